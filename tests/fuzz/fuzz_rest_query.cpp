// libFuzzer target: a query string, as a client sends it, through the parser and the SQL
// builder. Besides crashes and sanitizer reports it checks the property the translator exists
// for: whatever the input, request text reaches SQL only as parameters.

#include "http/httpmessage.h"
#include "rest/apierror.h"
#include "rest/catalog.h"
#include "rest/query.h"
#include "rest/sqlbuilder.h"

#include <QRegularExpression>

#include <cstdint>
#include <cstdlib>

namespace {

CatalogRelation relation(const QString &name, const QStringList &columns)
{
    CatalogRelation relation;
    relation.schema = QStringLiteral("public");
    relation.name = name;
    relation.primaryKey = {QStringLiteral("id")};
    for (const QString &column : columns) {
        relation.columns.append({column, QStringLiteral("text"), true, std::nullopt, false});
    }
    return relation;
}

const Catalog &catalog()
{
    static const Catalog instance =
        Catalog::fromParts(QStringLiteral("public"),
                           {relation(QStringLiteral("projects"),
                                     {QStringLiteral("id"), QStringLiteral("name"), QStringLiteral("team_id")}),
                            relation(QStringLiteral("tasks"), {QStringLiteral("id"), QStringLiteral("project_id"),
                                                               QStringLiteral("title"), QStringLiteral("status")}),
                            relation(QStringLiteral("teams"), {QStringLiteral("id"), QStringLiteral("name")})},
                           {{QStringLiteral("tasks_project_id_fkey"),
                             QStringLiteral("tasks"),
                             {QStringLiteral("project_id")},
                             QStringLiteral("projects"),
                             {QStringLiteral("id")}},
                            {QStringLiteral("projects_team_id_fkey"),
                             QStringLiteral("projects"),
                             {QStringLiteral("team_id")},
                             QStringLiteral("teams"),
                             {QStringLiteral("id")}}},
                           {});
    return instance;
}

// Outside double-quoted identifiers (aliases are the caller's and are quoted), the statement may
// hold no quote, no statement separator and no comment: only the builder's own '[]'::json.
void checkNoLiteralFromInput(const QString &statement, qsizetype params)
{
    QString sql;
    bool quoted = false;
    for (const QChar c : statement) {
        if (c == u'"') {
            quoted = !quoted;
        } else if (!quoted) {
            sql += c;
        }
    }
    if (quoted) {
        std::abort();
    }
    sql.remove(QStringLiteral("'[]'::json"));
    if (sql.contains(u'\'') || sql.contains(u';') || sql.contains(QStringLiteral("--"))) {
        std::abort();
    }
    static const QRegularExpression placeholder(QStringLiteral("\\$(\\d+)"));
    for (const QRegularExpressionMatch &match : placeholder.globalMatch(sql)) {
        const qsizetype index = match.captured(1).toLongLong();
        if (index < 1 || index > params) {
            std::abort();
        }
    }
}

// As if the catalog knew a type by every name a cast gives, the most a hostile cast could hope
// for: its text must still reach the statement only inside a quoted identifier.
void addCasts(const QList<SelectItem> &items, SqlBuilder::CastTypes &types)
{
    for (const SelectItem &item : items) {
        if (!item.cast.isEmpty()) {
            types.insert(item.cast, SqlBuilder::quoteIdentifier(QStringLiteral("pg_catalog")) + u'.' +
                                        SqlBuilder::quoteIdentifier(item.cast));
        }
        addCasts(item.children, types);
    }
}

SqlBuilder::CastTypes anyCastResolves(const QList<SelectItem> &select)
{
    SqlBuilder::CastTypes types;
    addCasts(select, types);
    return types;
}

// Outside quoted identifiers and parameters, only words the builder itself writes.
void checkOnlyBuilderWords(const QString &statement)
{
    static const QRegularExpression quotedOrParam(QStringLiteral("\"(?:[^\"]|\"\")*\"|\\$\\d+"));
    static const QRegularExpression ownWord(QStringLiteral(
        "^(?:[tje]\\d+|_[a-z]+|\\d+|SELECT|FROM|WHERE|AND|OR|NOT|AS|IN|IS|NULL|TRUE|FALSE|UNKNOWN|DISTINCT|LIKE|"
        "ILIKE|ORDER|BY|ASC|DESC|NULLS|FIRST|LAST|LIMIT|OFFSET|COALESCE|EXISTS|CAST|WITH|DELETE|RETURNING|ANY|"
        "ARRAY|json_agg|row_to_json|count|json|text|bigint|ctid|false|true)$"));
    static const QRegularExpression word(QStringLiteral("[A-Za-z0-9_]+"));
    QString sql = statement;
    sql.replace(quotedOrParam, QStringLiteral(" "));
    for (const QRegularExpressionMatch &match : word.globalMatch(sql)) {
        if (!ownWord.match(match.captured()).hasMatch()) {
            std::abort();
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray raw(reinterpret_cast<const char *>(data), qsizetype(size));
    const QList<std::pair<QString, QString>> items = HttpRequest::parseQuery(raw);
    try {
        const ParsedQuery query = parseQuery(items);
        for (const char *table : {"tasks", "projects"}) {
            SqlBuilder builder(catalog(), anyCastResolves(query.select));
            const SqlBuilder::Statement read =
                builder.read(*catalog().relation(QString::fromLatin1(table)), query, true);
            checkNoLiteralFromInput(QString::fromUtf8(read.sql), read.params.size());
            checkOnlyBuilderWords(QString::fromUtf8(read.sql));
            SqlBuilder writer(catalog());
            const SqlBuilder::Statement removal = writer.remove(*catalog().relation(QString::fromLatin1(table)), query);
            checkNoLiteralFromInput(QString::fromUtf8(removal.sql), removal.params.size());
            checkOnlyBuilderWords(QString::fromUtf8(removal.sql));
        }
    } catch (const ApiError &) {
        // A refusal is a fine answer to nonsense.
    }
    return 0;
}
