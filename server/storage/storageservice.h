#pragma once

#include "http/httpmessage.h"
#include "rest/callerscope.h"
#include "storage/objectfiles.h"

// /storage/v1: buckets and the objects in them, in the storage API's protocol. Object rows are read
// and written as the caller, so row-level security on storage.objects decides who reaches which
// object; signed addresses are the one way past it. The bytes live in ObjectFiles.
class StorageService : public HttpService
{
public:
    struct Limits
    {
        // Larger objects are refused whatever their bucket allows. The server passes its request
        // limit, so that every object that can arrive at all can also be stored.
        qint64 maxObjectBytes = 10 * 1024 * 1024;
    };

    StorageService(PgPool &pool, QByteArray jwtSecret, QString filesRoot, Limits limits, bool checkSessions = true);

    [[nodiscard]] QString prefix() const override { return QStringLiteral("/storage/v1"); }
    HttpResponse handle(const HttpRequest &request) override;

private:
    struct ObjectPath
    {
        QString bucket;
        QString name;
        [[nodiscard]] QString key() const { return bucket + u'/' + name; }
    };
    enum class Write { Create, Upsert, Replace };

    HttpResponse route(const HttpRequest &request);
    [[nodiscard]] RequestIdentity caller(const HttpRequest &request) const;
    [[nodiscard]] static ObjectPath objectPath(const QString &bucketAndName);

    HttpResponse upload(const HttpRequest &request, const ObjectPath &path, Write mode);
    HttpResponse download(const HttpRequest &request, const RequestIdentity &identity, const ObjectPath &path,
                          bool withBody);
    HttpResponse sign(const HttpRequest &request, const ObjectPath &path);
    HttpResponse serveSigned(const HttpRequest &request, const ObjectPath &path);
    HttpResponse removeOne(const HttpRequest &request, const ObjectPath &path);
    HttpResponse removeMany(const HttpRequest &request, const QString &bucket);
    HttpResponse list(const HttpRequest &request, const QString &bucket);
    HttpResponse buckets(const HttpRequest &request, const std::optional<QString> &id);

    CallerScope m_scope;
    QByteArray m_secret;
    ObjectFiles m_files;
    Limits m_limits;
};
