#pragma once

#include "http/httpmessage.h"
#include "rest/callerscope.h"
#include "rest/catalog.h"

#include <QMutex>

#include <memory>

// /rest/v1: tables, views and procedures of the exposed schema in PostgREST's protocol.
class RestService : public HttpService
{
public:
    RestService(PgPool &pool, QByteArray jwtSecret, std::shared_ptr<const Catalog> catalog, bool checkSessions = true);

    [[nodiscard]] QString prefix() const override { return QStringLiteral("/rest/v1"); }
    HttpResponse handle(const HttpRequest &request) override;

    void setCatalog(std::shared_ptr<const Catalog> catalog);

private:
    struct Preferences;

    HttpResponse dispatch(const HttpRequest &request, const RequestIdentity &identity);
    HttpResponse read(const HttpRequest &request, const RequestIdentity &identity, const Catalog &catalog,
                      const CatalogRelation &relation, const Preferences &preferences);
    HttpResponse write(const HttpRequest &request, const RequestIdentity &identity, const Catalog &catalog,
                       const CatalogRelation &relation, const Preferences &preferences);
    HttpResponse call(const HttpRequest &request, const RequestIdentity &identity, const Catalog &catalog,
                      const QString &name);
    [[nodiscard]] std::shared_ptr<const Catalog> catalog() const;

    CallerScope m_scope;
    QByteArray m_secret;
    mutable QMutex m_catalogMutex;
    std::shared_ptr<const Catalog> m_catalog;
};
