#pragma once

#include "pg/pgconnection.h"
#include "rest/catalog.h"
#include "rest/query.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QSet>

// Turns one parsed request into one SQL statement with text parameters. Every name is checked
// against the catalog and quoted; every value from the request travels as a parameter.
// Reads and writes answer three columns: the rows as JSON text, how many rows, and the total
// (NULL unless asked for).
class SqlBuilder
{
public:
    struct Statement
    {
        QByteArray sql;
        PgParams params;
    };

    enum class Conflict { Error, MergeDuplicates, IgnoreDuplicates };

    struct InsertOptions
    {
        QStringList columns; // checked by the caller against the body
        Conflict conflict = Conflict::Error;
        bool missingAsDefault = false;
    };

    // A cast named in select= ("col::text") and the type it stands for, written quoted and
    // schema-qualified as the catalog knows it.
    using CastTypes = QHash<QString, QString>;

    explicit SqlBuilder(const Catalog &catalog, CastTypes castTypes = {})
        : m_catalog(catalog)
        , m_castTypes(std::move(castTypes))
    {}

    // Asks the database which type each cast of the select names, as it would read the type name
    // itself; a cast it cannot resolve is refused. Nothing of the cast's text reaches a statement.
    static CastTypes resolveCasts(PgConnection &connection, const QList<SelectItem> &select);

    Statement read(const CatalogRelation &relation, const ParsedQuery &query, bool withTotal);
    Statement insert(const CatalogRelation &relation, const ParsedQuery &query, const QJsonArray &rows,
                     const InsertOptions &options);
    Statement update(const CatalogRelation &relation, const ParsedQuery &query, const QJsonObject &patch);
    Statement remove(const CatalogRelation &relation, const ParsedQuery &query);
    // Answers one column: the result as JSON text (nothing for a procedure without a result).
    Statement call(const CatalogFunction &function,
                   const QList<std::pair<QString, std::optional<QByteArray>>> &arguments, bool wholeBody);

    static QString quoteIdentifier(const QString &name);

private:
    struct Relationship
    {
        const CatalogRelation *target = nullptr;
        QStringList targetColumns;
        QStringList parentColumns;
        bool toOne = false;
    };

    QString param(const std::optional<QByteArray> &value);
    QString nextAlias(const char *prefix = "t");
    QString relationName(const CatalogRelation &relation) const;
    QString columnRef(const CatalogRelation &relation, const QString &alias, const QString &column) const;
    QString conditionSql(const CatalogRelation &relation, const QString &alias, const Condition &condition);
    QString logicSql(const CatalogRelation &relation, const QString &alias, const LogicTree &tree);
    QStringList filterSql(const CatalogRelation &relation, const QString &alias, const QueryLevel &level);
    QString orderSql(const CatalogRelation &relation, const QString &alias, const QList<OrderTerm> &order) const;
    QString pagingSql(const QueryLevel &level) const;
    Relationship resolve(const CatalogRelation &parent, const SelectItem &embed) const;
    // SELECT of one level and, recursively, its embedded resources.
    QString levelSql(const CatalogRelation &relation, const QString &source, const QString &alias,
                     const QList<SelectItem> &items, const QString &path, QStringList conditions, bool applyLevel,
                     const ParsedQuery &query, QStringList *topConditions = nullptr);
    QByteArray wrap(const QString &rowsSql, const QString &with = {}, const QString &total = {}) const;
    void checkLevelsUsed(const ParsedQuery &query, bool writing) const;
    QString limitedTo(const CatalogRelation &relation, const QString &alias, const ParsedQuery &query);

    const Catalog &m_catalog;
    const CastTypes m_castTypes;
    PgParams m_params;
    int m_aliases = 0;
    QSet<QString> m_usedLevels;
};
