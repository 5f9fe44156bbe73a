#include "storageservice.h"

#include "auth/jwt.h"
#include "auth/requestidentity.h"
#include "rest/apierror.h"
#include "storage/multipart.h"
#include "storage/storageerror.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maxSignedSeconds = 7 * 24 * 3600;

// Names are the database's business, but the unique index on them has a size limit, and control
// characters, empty or dot segments only ever come from a broken or hostile client.
constexpr qsizetype maxNameBytes = 1024;

// Each attempt re-reads the object's row: a concurrent replacement may remove the file of the
// version read a moment before.
constexpr int readAttempts = 3;
// An upsert that finds the row gone and then finds it back again is racing a steady stream of
// writers; it gives up rather than loop.
constexpr int upsertAttempts = 3;

void checkName(const QString &name)
{
    if (name.isEmpty() || name.toUtf8().size() > maxNameBytes) {
        throw StorageError::invalidKey(name);
    }
    for (const QChar c : name) {
        if (c.unicode() < 0x20 || c.unicode() == 0x7f || c == u'\\') {
            throw StorageError::invalidKey(name);
        }
    }
    for (const QStringView segment : QStringView(name).split(u'/')) {
        if (segment.isEmpty() || segment == u"." || segment == u"..") {
            throw StorageError::invalidKey(name);
        }
    }
}

QJsonObject bodyObject(const HttpRequest &request)
{
    const QByteArray body = request.body.trimmed();
    if (body.isEmpty()) {
        return {};
    }
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(body, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject()) {
        throw StorageError::invalidRequest(u"The body must be a JSON object"_s);
    }
    return document.object();
}

// The type and cache control are sent back as response headers on every download.
QString headerValue(const QByteArray &value, const char *what)
{
    const bool printable = std::all_of(value.begin(), value.end(), [](char c) { return c >= 0x20 && c < 0x7f; });
    if (!printable || value.size() > 1024) {
        throw StorageError::invalidRequest(
            u"The %1 holds characters a header cannot carry"_s.arg(QLatin1StringView(what)));
    }
    return QString::fromLatin1(value);
}

struct Content
{
    QByteArray bytes;
    QString mimeType;
    QString cacheControl;
};

// A file arrives either as the raw body with its own Content-Type, or as the file field of a form
// (which is how the storage clients send a Blob), with cache control in a field beside it.
Content readContent(const HttpRequest &request)
{
    const QByteArray contentType = request.header("content-type").trimmed();
    if (!contentType.toLower().startsWith("multipart/form-data")) {
        const QByteArray cacheControl = request.header("cache-control").trimmed();
        return {request.body,
                contentType.isEmpty() ? u"application/octet-stream"_s : headerValue(contentType, "content type"),
                cacheControl.isEmpty() ? u"no-cache"_s : headerValue(cacheControl, "cache control")};
    }
    const std::optional<QByteArray> boundary = Multipart::boundaryOf(contentType);
    if (!boundary) {
        throw StorageError::invalidRequest(u"The multipart body has no boundary"_s);
    }
    const std::optional<QList<Multipart::Part>> parts = Multipart::parse(request.body, *boundary);
    if (!parts) {
        throw StorageError::invalidRequest(u"The multipart body is malformed"_s);
    }
    const Multipart::Part *file = nullptr;
    QString cacheControl = u"no-cache"_s;
    for (const Multipart::Part &part : *parts) {
        if (part.name == "cacheControl" && !part.fileName) {
            const QByteArray value = part.body.trimmed();
            bool number = false;
            value.toLongLong(&number);
            cacheControl = number ? u"max-age="_s + QString::fromLatin1(value) : headerValue(value, "cache control");
        } else if (!file && (part.fileName || (part.name != "metadata" && part.name != "cacheControl"))) {
            file = &part;
        } else if (file && part.fileName) {
            throw StorageError::invalidRequest(u"The multipart body holds more than one file"_s);
        }
    }
    if (!file) {
        throw StorageError::invalidRequest(u"The multipart body holds no file"_s);
    }
    return {file->body,
            file->contentType.isEmpty() ? u"application/octet-stream"_s
                                        : headerValue(file->contentType, "content type"),
            cacheControl};
}

bool mimeTypeAllowed(const QString &mimeType, const QJsonArray &allowed)
{
    if (allowed.isEmpty()) {
        return true;
    }
    const QString type = mimeType.section(u';', 0, 0).trimmed().toLower();
    for (const QJsonValue &entry : allowed) {
        const QString pattern = entry.toString().trimmed().toLower();
        if (pattern == type || (pattern.endsWith(u"/*") && type.startsWith(pattern.chopped(1)))) {
            return true;
        }
    }
    return false;
}

QString text(const PgResult &result, int row, int column)
{
    return QString::fromUtf8(result.value(row, column));
}

QJsonObject jsonObject(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object();
}

HttpResponse jsonAnswer(const QJsonValue &value)
{
    return HttpResponse::json(200, value.isArray() ? QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact)
                                                   : QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
}

HttpResponse routeAnswer(int status, const QString &error, const QString &message)
{
    const QJsonObject body{
        {u"statusCode"_s, QString::number(status)}, {u"code"_s, error}, {u"error"_s, error}, {u"message"_s, message}};
    return HttpResponse::json(status, QJsonDocument(body).toJson(QJsonDocument::Compact));
}

QByteArray httpDate(const QString &iso)
{
    const QDateTime time = QDateTime::fromString(iso, Qt::ISODateWithMs);
    if (!time.isValid()) {
        return {};
    }
    return QLocale::c().toString(time.toUTC(), u"ddd, dd MMM yyyy hh:mm:ss 'GMT'"_s).toLatin1();
}

// Whether the transaction's fate is unknown: the connection broke while COMMIT was under way.
bool outcomeUnknown(const ApiError &error)
{
    return error.code() == u"PGRST001";
}

struct Bucket
{
    std::optional<qint64> sizeLimit;
    QJsonArray allowedMimeTypes;
};

// Throws when the bucket does not exist or the caller may not see it.
Bucket bucketOf(PgConnection &db, const QString &bucket)
{
    const PgResult result = db.exec("SELECT file_size_limit, coalesce(array_to_json(allowed_mime_types), '[]'::json)"
                                    " FROM storage.buckets WHERE id = $1",
                                    {bucket.toUtf8()});
    if (result.rows() == 0) {
        throw StorageError::bucketNotFound();
    }
    Bucket found;
    if (!result.isNull(0, 0)) {
        found.sizeLimit = result.value(0, 0).toLongLong();
    }
    found.allowedMimeTypes = QJsonDocument::fromJson(result.value(0, 1)).array();
    return found;
}

// Not finding an object tells the bucket's absence apart from the object's.
[[noreturn]] void throwNotFound(PgConnection &db, const QString &bucket)
{
    bucketOf(db, bucket);
    throw StorageError::objectNotFound();
}

} // namespace

StorageService::StorageService(PgPool &pool, QByteArray jwtSecret, QString filesRoot, Limits limits, bool checkSessions)
    : m_scope{pool, checkSessions}
    , m_secret(std::move(jwtSecret))
    , m_files(std::move(filesRoot))
    , m_limits(limits)
{}

HttpResponse StorageService::handle(const HttpRequest &request)
{
    try {
        return route(request);
    } catch (const StorageError &error) {
        return error.response();
    } catch (const ApiError &error) {
        return StorageError::fromDatabase(error).response();
    }
}

RequestIdentity StorageService::caller(const HttpRequest &request) const
{
    auto identity = identify(request, m_secret, QDateTime::currentSecsSinceEpoch());
    if (const auto *failure = std::get_if<Jwt::Failure>(&identity)) {
        throw StorageError::invalidJwt(failure->message);
    }
    return std::get<RequestIdentity>(std::move(identity));
}

StorageService::ObjectPath StorageService::objectPath(const QString &bucketAndName)
{
    const qsizetype slash = bucketAndName.indexOf(u'/');
    const QString bucket = bucketAndName.left(slash);
    if (!ObjectFiles::isSafeBucketId(bucket)) {
        throw StorageError::invalidBucketName(bucket);
    }
    const QString name = slash < 0 ? QString() : bucketAndName.mid(slash + 1);
    checkName(name);
    return {bucket, name};
}

HttpResponse StorageService::route(const HttpRequest &request)
{
    const QString rest = request.path.mid(prefix().size());
    const QByteArray &method = request.method;
    const bool read = method == "GET" || method == "HEAD";
    auto notAllowed = [&] {
        return routeAnswer(405, u"MethodNotAllowed"_s,
                           u"Method %1 is not allowed here"_s.arg(QString::fromLatin1(method)));
    };

    if (rest == u"/bucket" || rest == u"/bucket/") {
        return method == "GET" ? buckets(request, std::nullopt) : notAllowed();
    }
    if (rest.startsWith(u"/bucket/")) {
        return method == "GET" ? buckets(request, rest.mid(8)) : notAllowed();
    }
    if (rest.startsWith(u"/object/list/")) {
        return method == "POST" ? list(request, rest.mid(13)) : notAllowed();
    }
    if (rest.startsWith(u"/object/sign/")) {
        const ObjectPath path = objectPath(rest.mid(13));
        if (method == "POST") {
            return sign(request, path);
        }
        return method == "GET" ? serveSigned(request, path) : notAllowed();
    }
    if (rest.startsWith(u"/object/authenticated/")) {
        const ObjectPath path = objectPath(rest.mid(22));
        return read ? download(request, caller(request), path, method == "GET") : notAllowed();
    }
    if (rest.startsWith(u"/object/")) {
        const QString tail = rest.mid(8);
        if (!tail.contains(u'/') && method == "DELETE") {
            return removeMany(request, tail);
        }
        const ObjectPath path = objectPath(tail);
        if (method == "POST") {
            return upload(request, path,
                          request.header("x-upsert").trimmed().toLower() == "true" ? Write::Upsert : Write::Create);
        }
        if (method == "PUT") {
            return upload(request, path, Write::Replace);
        }
        if (read) {
            return download(request, caller(request), path, method == "GET");
        }
        return method == "DELETE" ? removeOne(request, path) : notAllowed();
    }
    return routeAnswer(404, u"NotFound"_s, u"Route %1 %2 not found"_s.arg(QString::fromLatin1(method), request.path));
}

HttpResponse StorageService::upload(const HttpRequest &request, const ObjectPath &path, Write mode)
{
    const RequestIdentity identity = caller(request);
    const Content content = readContent(request);
    if (content.bytes.size() > m_limits.maxObjectBytes) {
        throw StorageError::tooLarge(m_limits.maxObjectBytes);
    }
    const QString eTag =
        u'"' + QString::fromLatin1(QCryptographicHash::hash(content.bytes, QCryptographicHash::Md5).toHex()) + u'"';
    const QJsonObject metadata{
        {u"eTag"_s, eTag},
        {u"size"_s, content.bytes.size()},
        {u"mimetype"_s, content.mimeType},
        {u"cacheControl"_s, content.cacheControl},
        {u"lastModified"_s, QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs)},
        {u"contentLength"_s, content.bytes.size()},
        {u"httpStatusCode"_s, 200},
    };
    const QByteArray metadataJson = QJsonDocument(metadata).toJson(QJsonDocument::Compact);
    const QByteArray bucket = path.bucket.toUtf8();
    const QByteArray name = path.name.toUtf8();

    // The new content goes to its own file before the row may point at it; the file the row
    // pointed at before goes only once the new row is committed.
    QString written;
    QString id;
    std::optional<QString> replaced;
    bool workDone = false;
    try {
        m_scope.run(identity, request, false, [&](PgConnection &db) {
            const Bucket settings = bucketOf(db, path.bucket);
            if (settings.sizeLimit && content.bytes.size() > *settings.sizeLimit) {
                throw StorageError::tooLarge(std::min(*settings.sizeLimit, m_limits.maxObjectBytes));
            }
            if (!mimeTypeAllowed(content.mimeType, settings.allowedMimeTypes)) {
                throw StorageError::invalidMimeType(content.mimeType);
            }
            written = m_files.write(path.bucket, content.bytes);
            const QByteArray version = written.toUtf8();
            for (int attempt = 0; attempt < upsertAttempts && id.isEmpty(); ++attempt) {
                if (mode != Write::Create) {
                    const PgResult current = db.exec("SELECT id, version FROM storage.objects"
                                                     " WHERE bucket_id = $1 AND name = $2 FOR UPDATE",
                                                     {bucket, name});
                    if (current.rows() == 1) {
                        const PgResult updated =
                            db.exec("UPDATE storage.objects SET version = $2, metadata = $3::jsonb,"
                                    " updated_at = now(), last_accessed_at = now() WHERE id = $1",
                                    {current.value(0, 0), version, metadataJson});
                        if (updated.affectedRows() != 1) {
                            throw StorageError::denied(u"new row violates row-level security policy"_s);
                        }
                        id = text(current, 0, 0);
                        replaced = text(current, 0, 1);
                        break;
                    }
                    if (mode == Write::Replace) {
                        throw StorageError::objectNotFound();
                    }
                }
                const PgResult inserted =
                    db.exec("INSERT INTO storage.objects (bucket_id, name, version, metadata)"
                            " VALUES ($1, $2, $3, $4::jsonb) ON CONFLICT (bucket_id, name) DO NOTHING RETURNING id",
                            {bucket, name, version, metadataJson});
                if (inserted.rows() == 1) {
                    id = text(inserted, 0, 0);
                } else if (mode == Write::Create) {
                    throw StorageError::duplicate();
                }
            }
            if (id.isEmpty()) {
                throw StorageError::duplicate();
            }
            workDone = true;
            return true;
        });
    } catch (const ApiError &error) {
        // A broken connection during COMMIT may still have committed: keeping the file then costs
        // space, while removing it could leave a row without its content.
        if (!written.isEmpty() && !(workDone && outcomeUnknown(error))) {
            m_files.remove(path.bucket, written);
        }
        throw;
    } catch (...) {
        if (!written.isEmpty()) {
            m_files.remove(path.bucket, written);
        }
        throw;
    }
    if (replaced) {
        m_files.remove(path.bucket, *replaced);
    }
    return jsonAnswer(QJsonObject{{u"Key"_s, path.key()}, {u"Id"_s, id}, {u"id"_s, id}});
}

HttpResponse StorageService::download(const HttpRequest &request, const RequestIdentity &identity,
                                      const ObjectPath &path, bool withBody)
{
    for (int attempt = 0; attempt < readAttempts; ++attempt) {
        QString version;
        QByteArray metadataJson;
        m_scope.run(identity, request, true, [&](PgConnection &db) {
            const PgResult row = db.exec("SELECT version, coalesce(metadata, '{}'::jsonb)::text FROM storage.objects"
                                         " WHERE bucket_id = $1 AND name = $2",
                                         {path.bucket.toUtf8(), path.name.toUtf8()});
            if (row.rows() == 0) {
                throwNotFound(db, path.bucket);
            }
            version = text(row, 0, 0);
            metadataJson = row.value(0, 1);
            return true;
        });
        const std::optional<QByteArray> content = m_files.read(path.bucket, version);
        if (!content) {
            continue;
        }
        const QJsonObject metadata = jsonObject(metadataJson);
        const QString mimeType = metadata.value(u"mimetype"_s).toString(u"application/octet-stream"_s);
        HttpHeaders headers{{"Content-Type", mimeType.toLatin1()}};
        // Uploads are anyone's content served from the API's own origin: a browser must neither
        // guess a more active type nor run what it shows (HTML, SVG). Only passive types show inline.
        static const QStringList passive{u"image/png"_s,  u"image/jpeg"_s,      u"image/gif"_s,
                                         u"image/webp"_s, u"application/pdf"_s, u"text/plain"_s};
        headers.emplaceBack("X-Content-Type-Options", "nosniff");
        headers.emplaceBack("Content-Security-Policy", "default-src 'none'; sandbox");
        if (!passive.contains(mimeType.section(u';', 0, 0).trimmed().toLower())) {
            headers.emplaceBack("Content-Disposition", "attachment");
        }
        if (const QString cacheControl = metadata.value(u"cacheControl"_s).toString(); !cacheControl.isEmpty()) {
            headers.append({"Cache-Control", cacheControl.toLatin1()});
        }
        if (const QString eTag = metadata.value(u"eTag"_s).toString(); !eTag.isEmpty()) {
            headers.append({"ETag", eTag.toLatin1()});
        }
        if (const QByteArray modified = httpDate(metadata.value(u"lastModified"_s).toString()); !modified.isEmpty()) {
            headers.append({"Last-Modified", modified});
        }
        return {200, std::move(headers), withBody ? *content : QByteArray()};
    }
    throw StorageError::internal(u"The object's content is missing"_s);
}

HttpResponse StorageService::sign(const HttpRequest &request, const ObjectPath &path)
{
    const RequestIdentity identity = caller(request);
    const QJsonValue expiresIn = bodyObject(request).value(u"expiresIn"_s);
    const double seconds = expiresIn.toDouble(0);
    // Whole seconds, up to a week: an address that works without a token must not outlive the
    // reason it was handed out for.
    if (!expiresIn.isDouble() || seconds < 1 || seconds > double(maxSignedSeconds) ||
        seconds != double(qint64(seconds))) {
        throw StorageError::invalidRequest(
            u"expiresIn must be a whole number of seconds from 1 to %1 (a week)"_s.arg(maxSignedSeconds));
    }
    // Only an object the caller can read may be handed out.
    m_scope.run(identity, request, true, [&](PgConnection &db) {
        const PgResult row = db.exec("SELECT 1 FROM storage.objects WHERE bucket_id = $1 AND name = $2",
                                     {path.bucket.toUtf8(), path.name.toUtf8()});
        if (row.rows() == 0) {
            throwNotFound(db, path.bucket);
        }
        return true;
    });
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    const QByteArray token =
        Jwt::sign({{u"url"_s, path.key()}, {u"iat"_s, now}, {u"exp"_s, now + qint64(seconds)}}, m_secret);
    // The path stays as the name is written: the clients encode the whole address themselves.
    const QString signedUrl = u"/object/sign/"_s + path.key() + u"?token="_s + QString::fromLatin1(token);
    return jsonAnswer(QJsonObject{{u"signedURL"_s, signedUrl}});
}

HttpResponse StorageService::serveSigned(const HttpRequest &request, const ObjectPath &path)
{
    const QByteArray token = request.queryValue(u"token"_s).toLatin1();
    if (token.isEmpty()) {
        throw StorageError::invalidRequest(u"querystring must have required property 'token'"_s);
    }
    const auto verified = Jwt::verify(token, m_secret, QDateTime::currentSecsSinceEpoch());
    if (const auto *failure = std::get_if<Jwt::Failure>(&verified)) {
        if (failure->kind == Jwt::Failure::Kind::Expired) {
            throw StorageError{400, u"InvalidJWT"_s, u"InvalidJWT"_s, u"jwt expired"_s};
        }
        throw StorageError::invalidSignature(u"invalid signature"_s);
    }
    // A token names exactly one object; any access token signed with the same secret names none.
    if (std::get<QJsonObject>(verified).value(u"url"_s).toString() != path.key()) {
        throw StorageError::invalidSignature(u"The token does not grant access to this object"_s);
    }
    const RequestIdentity service{u"service_role"_s, QJsonObject{{u"role"_s, u"service_role"_s}}, {}};
    return download(request, service, path, true);
}

HttpResponse StorageService::removeOne(const HttpRequest &request, const ObjectPath &path)
{
    const RequestIdentity identity = caller(request);
    QString version;
    m_scope.run(identity, request, false, [&](PgConnection &db) {
        const PgResult gone =
            db.exec("DELETE FROM storage.objects WHERE bucket_id = $1 AND name = $2 RETURNING version",
                    {path.bucket.toUtf8(), path.name.toUtf8()});
        if (gone.rows() == 0) {
            throwNotFound(db, path.bucket);
        }
        version = text(gone, 0, 0);
        return true;
    });
    m_files.remove(path.bucket, version);
    return jsonAnswer(QJsonObject{{u"message"_s, u"Successfully deleted"_s}});
}

HttpResponse StorageService::removeMany(const HttpRequest &request, const QString &bucket)
{
    const RequestIdentity identity = caller(request);
    const QJsonValue prefixes = bodyObject(request).value(u"prefixes"_s);
    const QJsonArray names = prefixes.toArray();
    if (!prefixes.isArray() || names.isEmpty() || names.size() > 1000 ||
        std::any_of(names.begin(), names.end(), [](const QJsonValue &name) { return !name.isString(); })) {
        throw StorageError::invalidRequest(u"prefixes must be a list of 1 to 1000 object names"_s);
    }
    QList<QString> versions;
    QJsonArray removed;
    m_scope.run(identity, request, false, [&](PgConnection &db) {
        bucketOf(db, bucket);
        const PgResult gone = db.exec(
            "WITH gone AS (DELETE FROM storage.objects o WHERE o.bucket_id = $1"
            " AND o.name IN (SELECT jsonb_array_elements_text($2::jsonb)) RETURNING o.*)"
            " SELECT version, jsonb_build_object('name', name, 'id', id, 'bucket_id', bucket_id, 'owner', owner,"
            " 'created_at', created_at, 'updated_at', updated_at, 'last_accessed_at', last_accessed_at,"
            " 'metadata', metadata)::text FROM gone ORDER BY name",
            {bucket.toUtf8(), QJsonDocument(names).toJson(QJsonDocument::Compact)});
        for (int row = 0; row < gone.rows(); ++row) {
            versions.append(text(gone, row, 0));
            removed.append(jsonObject(gone.value(row, 1)));
        }
        return true;
    });
    for (const QString &version : std::as_const(versions)) {
        m_files.remove(bucket, version);
    }
    return jsonAnswer(removed);
}

HttpResponse StorageService::list(const HttpRequest &request, const QString &bucket)
{
    const RequestIdentity identity = caller(request);
    const QJsonObject options = bodyObject(request);
    QString folder = options.value(u"prefix"_s).toString();
    while (folder.startsWith(u'/')) {
        folder.remove(0, 1);
    }
    while (folder.endsWith(u'/')) {
        folder.chop(1);
    }
    const QString level = folder.isEmpty() ? QString() : QString(folder + u'/');
    const qint64 limit = std::clamp<qint64>(options.value(u"limit"_s).toInteger(100), 1, 1000);
    const qint64 offset = std::max<qint64>(options.value(u"offset"_s).toInteger(0), 0);
    const QJsonObject sortBy = options.value(u"sortBy"_s).toObject();
    static const QStringList columns{u"name"_s, u"created_at"_s, u"updated_at"_s, u"last_accessed_at"_s};
    const QString column = sortBy.value(u"column"_s).toString(u"name"_s);
    const QString order = sortBy.value(u"order"_s).toString(u"asc"_s).toLower();
    if (!columns.contains(column) || (order != u"asc" && order != u"desc")) {
        throw StorageError::invalidRequest(u"sortBy must name a column (name, created_at, updated_at,"
                                           u" last_accessed_at) and an order (asc, desc)"_s);
    }
    QString search = options.value(u"search"_s).toString();
    search.replace(u'\\', u"\\\\"_s).replace(u'%', u"\\%"_s).replace(u'_', u"\\_"_s);
    // Column and order come from the fixed lists above; everything else is a parameter.
    const QByteArray ordering = QString(u"e."_s + column + u' ' + order + u", e.name "_s + order).toLatin1();

    QByteArray entries = "[]";
    m_scope.run(identity, request, true, [&](PgConnection &db) {
        bucketOf(db, bucket);
        // The entries one level below the folder: objects directly in it, and one entry (without id
        // or metadata) per sub-folder, as a file browser shows them.
        const PgResult result = db.exec(
            "WITH level AS ("
            "  SELECT o.id, o.created_at, o.updated_at, o.last_accessed_at, o.metadata,"
            "         substr(o.name, char_length($2) + 1) AS rest"
            "  FROM storage.objects o WHERE o.bucket_id = $1 AND starts_with(o.name, $2)"
            "), entries AS ("
            "  SELECT split_part(rest, '/', 1) AS name, NULL::uuid AS id, NULL::timestamptz AS created_at,"
            "         NULL::timestamptz AS updated_at, NULL::timestamptz AS last_accessed_at, NULL::jsonb AS metadata"
            "  FROM level WHERE strpos(rest, '/') > 0 GROUP BY 1"
            "  UNION ALL"
            "  SELECT rest, id, created_at, updated_at, last_accessed_at, metadata FROM level WHERE strpos(rest, '/') "
            "= 0"
            ")"
            " SELECT coalesce(jsonb_agg(to_jsonb(e) ORDER BY " +
                ordering +
                "), '[]'::jsonb)::text FROM ("
                "  SELECT * FROM entries e WHERE e.name ILIKE $3 || '%' ESCAPE '\\' ORDER BY " +
                ordering + " LIMIT $4 OFFSET $5) e",
            {bucket.toUtf8(), level.toUtf8(), search.toUtf8(), QByteArray::number(limit), QByteArray::number(offset)});
        entries = result.value(0, 0);
        return true;
    });
    return HttpResponse::json(200, entries);
}

HttpResponse StorageService::buckets(const HttpRequest &request, const std::optional<QString> &id)
{
    const RequestIdentity identity = caller(request);
    QByteArray answer;
    m_scope.run(identity, request, true, [&](PgConnection &db) {
        const QByteArray select =
            "SELECT b.id, b.name, coalesce(b.owner::text, '') AS owner, b.public, b.file_size_limit,"
            " b.allowed_mime_types, b.created_at, b.updated_at FROM storage.buckets b";
        if (!id) {
            answer = db.exec("SELECT coalesce(json_agg(b ORDER BY b.name), '[]'::json)::text FROM (" + select + ") b")
                         .value(0, 0);
            return true;
        }
        const PgResult one =
            db.exec("SELECT row_to_json(b)::text FROM (" + select + " WHERE b.id = $1) b", {id->toUtf8()});
        if (one.rows() == 0) {
            throw StorageError::bucketNotFound();
        }
        answer = one.value(0, 0);
        return true;
    });
    return HttpResponse::json(200, answer);
}
