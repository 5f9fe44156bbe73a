#include "restservice.h"

#include "rest/apierror.h"
#include "rest/sqlbuilder.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSet>

#include <functional>

using namespace Qt::StringLiterals;

struct RestService::Preferences
{
    enum class Return { Minimal, Representation, HeadersOnly };
    Return returning = Return::Minimal;
    bool returnGiven = false;
    bool countExact = false;
    SqlBuilder::Conflict conflict = SqlBuilder::Conflict::Error;
    bool missingAsDefault = false;
    QList<QByteArray> applied;
    bool singleObject = false;

    static Preferences of(const HttpRequest &request)
    {
        Preferences preferences;
        for (const QByteArray &header : request.headerValues("prefer")) {
            for (QByteArray token : header.split(',')) {
                token = token.trimmed();
                if (token == "return=representation" || token == "return=minimal" || token == "return=headers-only") {
                    preferences.returning = token == "return=representation" ? Return::Representation
                                            : token == "return=minimal"      ? Return::Minimal
                                                                             : Return::HeadersOnly;
                    preferences.returnGiven = true;
                } else if (token == "count=exact" || token == "count=planned" || token == "count=estimated") {
                    preferences.countExact = true;
                } else if (token == "resolution=merge-duplicates") {
                    preferences.conflict = SqlBuilder::Conflict::MergeDuplicates;
                } else if (token == "resolution=ignore-duplicates") {
                    preferences.conflict = SqlBuilder::Conflict::IgnoreDuplicates;
                } else if (token == "missing=default") {
                    preferences.missingAsDefault = true;
                } else {
                    continue;
                }
                if (!preferences.applied.contains(token)) {
                    preferences.applied.append(token);
                }
            }
        }
        preferences.singleObject = request.header("accept").contains("application/vnd.pgrst.object");
        return preferences;
    }

    void addApplied(HttpHeaders &headers) const
    {
        if (!applied.isEmpty()) {
            headers.append({"Preference-Applied", applied.join(", ")});
        }
    }
};

namespace {

struct Rows
{
    QByteArray json = "[]";
    qint64 count = 0;
    std::optional<qint64> total;
};

Rows readRows(const PgResult &result)
{
    Rows rows;
    if (result.rows() > 0) {
        rows.json = result.value(0, 0);
        rows.count = result.value(0, 1).toLongLong();
        if (!result.isNull(0, 2)) {
            rows.total = result.value(0, 2).toLongLong();
        }
    }
    return rows;
}

ApiError notSingle(qint64 count)
{
    return ApiError(406, u"PGRST116"_s, u"Cannot coerce the result to a single JSON object"_s,
                    u"The result contains %1 rows"_s.arg(count));
}

// json_agg writes "[a, \n b]"; one row is the text between the brackets.
QByteArray onlyRow(const QByteArray &array)
{
    return array.mid(1, array.size() - 2).trimmed();
}

HttpResponse jsonAnswer(int status, QByteArray body, bool single, HttpHeaders headers = {})
{
    headers.prepend({"Content-Type",
                     single ? "application/vnd.pgrst.object+json; charset=utf-8" : "application/json; charset=utf-8"});
    return {status, std::move(headers), std::move(body)};
}

std::optional<std::pair<qint64, std::optional<qint64>>> parseRange(const QByteArray &header)
{
    static const QRegularExpression pattern(u"^(?:items=)?\\s*(\\d+)-(\\d*)\\s*$"_s);
    const QRegularExpressionMatch match = pattern.match(QString::fromLatin1(header));
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    const qint64 first = match.captured(1).toLongLong();
    std::optional<qint64> last;
    if (!match.captured(2).isEmpty()) {
        last = match.captured(2).toLongLong();
    }
    return std::pair{first, last};
}

QJsonValue parseBody(const QByteArray &body)
{
    QJsonParseError error{};
    const QByteArray trimmed = body.trimmed();
    const QJsonDocument document = QJsonDocument::fromJson(trimmed, &error);
    if (trimmed.isEmpty() || error.error != QJsonParseError::NoError) {
        throw ApiError(400, u"PGRST102"_s, u"Empty or invalid json"_s,
                       trimmed.isEmpty() ? QString() : error.errorString());
    }
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

std::optional<QByteArray> argumentText(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        return std::nullopt;
    case QJsonValue::Bool:
        return value.toBool() ? QByteArray("true") : QByteArray("false");
    case QJsonValue::Double: {
        const double number = value.toDouble();
        const qint64 whole = value.toInteger(0);
        return whole == value.toInteger(1) ? QByteArray::number(whole) : QByteArray::number(number, 'g', 17);
    }
    case QJsonValue::String:
        return value.toString().toUtf8();
    case QJsonValue::Array:
        return QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact);
    case QJsonValue::Object:
        return QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact);
    }
    return std::nullopt;
}

ApiError unknownColumn(const QString &column, const QString &table)
{
    return ApiError(400, u"PGRST204"_s,
                    u"Could not find the '%1' column of '%2' in the schema cache"_s.arg(column, table));
}

} // namespace

RestService::RestService(PgPool &pool, QByteArray jwtSecret, std::shared_ptr<const Catalog> catalog, bool checkSessions)
    : m_scope{pool, checkSessions}
    , m_secret(std::move(jwtSecret))
    , m_catalog(std::move(catalog))
{}

void RestService::setCatalog(std::shared_ptr<const Catalog> catalog)
{
    QMutexLocker lock(&m_catalogMutex);
    m_catalog = std::move(catalog);
}

std::shared_ptr<const Catalog> RestService::catalog() const
{
    QMutexLocker lock(&m_catalogMutex);
    return m_catalog;
}

HttpResponse RestService::handle(const HttpRequest &request)
{
    const auto identity = identify(request, m_secret, QDateTime::currentSecsSinceEpoch());
    if (const auto *failure = std::get_if<Jwt::Failure>(&identity)) {
        const QString code = failure->kind == Jwt::Failure::Kind::Expired ? u"PGRST303"_s : u"PGRST301"_s;
        HttpResponse response = HttpResponse::error(401, code, failure->message);
        response.headers.append({"WWW-Authenticate", "Bearer error=\"invalid_token\", error_description=\"" +
                                                         failure->message.toUtf8() + '"'});
        return response;
    }
    try {
        return dispatch(request, std::get<RequestIdentity>(identity));
    } catch (const ApiError &error) {
        HttpResponse response = HttpResponse::json(error.status(), error.body(), error.headers());
        return response;
    }
}

HttpResponse RestService::dispatch(const HttpRequest &request, const RequestIdentity &identity)
{
    const std::shared_ptr<const Catalog> current = catalog();
    // Clients name the schema on every call (supabase-js sends "public"); one that switches to a
    // schema we do not expose must hear so instead of silently getting the public tables.
    const bool reading = request.method == "GET" || request.method == "HEAD";
    const QString profile = QString::fromUtf8(request.header(reading ? "accept-profile" : "content-profile"));
    if (!profile.isEmpty() && profile != current->schema()) {
        throw ApiError(406, u"PGRST106"_s, u"Invalid schema: %1"_s.arg(profile), std::nullopt,
                       u"Only the following schemas are exposed: %1"_s.arg(current->schema()));
    }
    QString name = request.path.mid(prefix().size());
    while (name.startsWith(u'/')) {
        name.remove(0, 1);
    }
    if (name.startsWith(u"rpc/")) {
        return call(request, identity, *current, name.mid(4));
    }
    if (name.isEmpty() || name.contains(u'/')) {
        throw ApiError(404, u"PGRST125"_s, u"Invalid path specified in request URL"_s);
    }
    const CatalogRelation *relation = current->relation(name);
    if (!relation) {
        throw ApiError(404, u"PGRST205"_s,
                       u"Could not find the table '%1.%2' in the schema cache"_s.arg(current->schema(), name));
    }
    const Preferences preferences = Preferences::of(request);
    if (request.method == "GET" || request.method == "HEAD") {
        return read(request, identity, *current, *relation, preferences);
    }
    if (request.method == "POST" || request.method == "PATCH" || request.method == "DELETE") {
        return write(request, identity, *current, *relation, preferences);
    }
    throw ApiError(405, u"PGRST117"_s, u"Unsupported HTTP method: %1"_s.arg(QString::fromLatin1(request.method)));
}

HttpResponse RestService::read(const HttpRequest &request, const RequestIdentity &identity, const Catalog &catalog,
                               const CatalogRelation &relation, const Preferences &preferences)
{
    ParsedQuery query = parseQuery(request.query);
    QueryLevel &top = query.levels[{}];
    if (const auto range = parseRange(request.header("range"))) {
        if (!top.offset) {
            top.offset = range->first;
        }
        if (range->second && !top.limit) {
            if (*range->second < range->first) {
                throw ApiError(416, u"PGRST103"_s, u"Requested range not satisfiable"_s);
            }
            top.limit = *range->second - range->first + 1;
        }
    }
    const qint64 offset = top.offset.value_or(0);
    Rows rows;
    m_scope.run(identity, request, true, [&](PgConnection &connection) {
        SqlBuilder builder(catalog, SqlBuilder::resolveCasts(connection, query.select));
        const SqlBuilder::Statement statement = builder.read(relation, query, preferences.countExact);
        rows = readRows(connection.exec(statement.sql, statement.params));
        return true;
    });

    if (rows.total && offset > 0 && offset >= *rows.total && rows.count == 0) {
        throw ApiError(416, u"PGRST103"_s, u"Requested range not satisfiable"_s,
                       u"An offset of %1 was requested, but there are only %2 rows."_s.arg(offset).arg(*rows.total));
    }
    HttpHeaders headers;
    const QByteArray total = rows.total ? QByteArray::number(*rows.total) : QByteArray("*");
    const QByteArray range =
        rows.count > 0
            ? QByteArray(QByteArray::number(offset) + '-' + QByteArray::number(offset + rows.count - 1) + '/' + total)
            : QByteArray("*/" + total);
    headers.append({"Content-Range", range});
    preferences.addApplied(headers);
    QByteArray body = rows.json;
    if (preferences.singleObject) {
        if (rows.count != 1) {
            throw notSingle(rows.count);
        }
        body = onlyRow(body);
    }
    const int status = rows.total && rows.count < *rows.total ? 206 : 200;
    return jsonAnswer(status, request.method == "HEAD" ? QByteArray() : body, preferences.singleObject, headers);
}

HttpResponse RestService::write(const HttpRequest &request, const RequestIdentity &identity, const Catalog &catalog,
                                const CatalogRelation &relation, const Preferences &preferences)
{
    const ParsedQuery query = parseQuery(request.query);
    // Built once the casts of the select are known, inside the request's transaction.
    std::function<SqlBuilder::Statement(SqlBuilder &)> build;
    const bool inserting = request.method == "POST";

    if (inserting) {
        const QJsonValue body = parseBody(request.body);
        QJsonArray rows = body.isArray() ? body.toArray() : QJsonArray{body};
        for (const QJsonValue &row : std::as_const(rows)) {
            if (!row.isObject()) {
                throw ApiError(400, u"PGRST102"_s, u"All object keys must match"_s,
                               u"Every row must be a JSON object."_s);
            }
        }
        SqlBuilder::InsertOptions options;
        options.conflict = preferences.conflict;
        options.missingAsDefault = preferences.missingAsDefault && query.columns.has_value();
        if (query.columns) {
            options.columns = *query.columns;
        } else if (!rows.isEmpty()) {
            options.columns = rows.first().toObject().keys();
            const QSet<QString> keys(options.columns.cbegin(), options.columns.cend());
            for (const QJsonValue &row : std::as_const(rows)) {
                const QStringList rowKeys = row.toObject().keys();
                if (QSet<QString>(rowKeys.cbegin(), rowKeys.cend()) != keys) {
                    throw ApiError(400, u"PGRST102"_s, u"All object keys must match"_s);
                }
            }
        }
        for (const QString &column : std::as_const(options.columns)) {
            if (!relation.column(column)) {
                throw unknownColumn(column, relation.name);
            }
        }
        if (rows.isEmpty()) {
            HttpHeaders headers{{"Content-Range", "*/*"}};
            preferences.addApplied(headers);
            return jsonAnswer(201, preferences.returning == Preferences::Return::Representation ? "[]" : QByteArray(),
                              false, headers);
        }
        if (options.columns.isEmpty() && rows.size() > 1) {
            throw ApiError(400, u"PGRST102"_s, u"All object keys must match"_s,
                           u"Rows without columns cannot be bulk inserted."_s);
        }
        build = [&, rows, options](SqlBuilder &builder) { return builder.insert(relation, query, rows, options); };
    } else if (request.method == "PATCH") {
        const QJsonValue body = parseBody(request.body);
        if (!body.isObject()) {
            throw ApiError(400, u"PGRST102"_s, u"A PATCH body must be one JSON object"_s);
        }
        const QJsonObject patch = body.toObject();
        for (auto it = patch.begin(); it != patch.end(); ++it) {
            if (!relation.column(it.key())) {
                throw unknownColumn(it.key(), relation.name);
            }
        }
        build = [&, patch](SqlBuilder &builder) { return builder.update(relation, query, patch); };
    } else {
        build = [&](SqlBuilder &builder) { return builder.remove(relation, query); };
    }

    Rows rows;
    m_scope.run(identity, request, false, [&](PgConnection &connection) {
        SqlBuilder builder(catalog, SqlBuilder::resolveCasts(connection, query.select));
        const SqlBuilder::Statement statement = build(builder);
        rows = readRows(connection.exec(statement.sql, statement.params));
        // A single object was asked for: anything else undoes the write.
        if (preferences.singleObject && rows.count != 1) {
            throw notSingle(rows.count);
        }
        return true;
    });

    HttpHeaders headers{{"Content-Range", QByteArray("*/" + (preferences.countExact ? QByteArray::number(rows.count)
                                                                                    : QByteArray("*")))}};
    preferences.addApplied(headers);
    if (preferences.returning == Preferences::Return::Representation) {
        return jsonAnswer(inserting ? 201 : 200, preferences.singleObject ? onlyRow(rows.json) : rows.json,
                          preferences.singleObject, headers);
    }
    if (inserting && preferences.returning == Preferences::Return::HeadersOnly && rows.count == 1 &&
        !relation.primaryKey.isEmpty()) {
        const QJsonObject row = QJsonDocument::fromJson(rows.json).array().first().toObject();
        QStringList filters;
        for (const QString &column : relation.primaryKey) {
            filters.append(column + u"=eq." + row.value(column).toVariant().toString());
        }
        headers.append({"Location", QString(u'/' + relation.name + u'?' + filters.join(u'&')).toUtf8()});
    }
    return {inserting ? 201 : 204, headers, {}};
}

HttpResponse RestService::call(const HttpRequest &request, const RequestIdentity &identity, const Catalog &catalog,
                               const QString &name)
{
    const bool viaGet = request.method == "GET" || request.method == "HEAD";
    if (!viaGet && request.method != "POST") {
        throw ApiError(405, u"PGRST117"_s, u"Unsupported HTTP method: %1"_s.arg(QString::fromLatin1(request.method)));
    }
    QJsonObject named;
    QByteArray wholeBody;
    if (viaGet) {
        for (const auto &[key, value] : parseQuery(request.query, true).arguments) {
            named.insert(key, value);
        }
    } else if (!request.body.trimmed().isEmpty()) {
        const QJsonValue body = parseBody(request.body);
        wholeBody = request.body;
        if (body.isObject()) {
            named = body.toObject();
        }
    }
    const QStringList given = named.keys();

    const CatalogFunction *chosen = nullptr;
    bool passWhole = false;
    const QList<CatalogFunction> overloads = catalog.functions(name);
    for (const CatalogFunction &function : overloads) {
        if (!viaGet && function.arguments.size() == 1 && function.arguments.first().name.isEmpty() &&
            (function.arguments.first().type == u"json" || function.arguments.first().type == u"jsonb")) {
            chosen = &function;
            passWhole = true;
            break;
        }
        bool fits = true;
        for (const QString &key : given) {
            fits = fits && std::any_of(function.arguments.cbegin(), function.arguments.cend(),
                                       [&](const CatalogArgument &a) { return a.name == key; });
        }
        for (const CatalogArgument &argument : function.arguments) {
            fits = fits && (argument.hasDefault || given.contains(argument.name));
        }
        if (fits) {
            chosen = &function;
            break;
        }
    }
    if (!chosen) {
        QStringList sorted = given;
        sorted.sort();
        throw ApiError(404, u"PGRST202"_s,
                       u"Could not find the function %1.%2(%3) in the schema cache"_s.arg(catalog.schema(), name,
                                                                                          sorted.join(u", ")),
                       u"Searched for the function %1.%2 with parameters %3 or with a single unnamed json/jsonb "
                       u"parameter, but no matches were found in the schema cache."_s.arg(catalog.schema(), name,
                                                                                          sorted.join(u", ")));
    }
    if (viaGet && chosen->isVolatile) {
        throw ApiError(405, u"PGRST101"_s, u"Cannot use GET on a volatile function; use POST"_s);
    }

    QList<std::pair<QString, std::optional<QByteArray>>> arguments;
    if (passWhole) {
        arguments.append({QString(), wholeBody.trimmed().isEmpty() ? QByteArray("{}") : wholeBody});
    } else {
        for (const QString &key : given) {
            arguments.append({key, argumentText(named.value(key))});
        }
    }
    SqlBuilder builder(catalog);
    const SqlBuilder::Statement statement = builder.call(*chosen, arguments, passWhole);
    QByteArray result;
    bool isNull = false;
    m_scope.run(identity, request, viaGet, [&](PgConnection &connection) {
        const PgResult answer = connection.exec(statement.sql, statement.params);
        isNull = answer.rows() == 0 || answer.isNull(0, 0);
        result = isNull ? QByteArray("null") : answer.value(0, 0);
        return true;
    });
    if (chosen->returnsVoid) {
        return {204, {}, {}};
    }
    return jsonAnswer(200, request.method == "HEAD" ? QByteArray() : result, false);
}
