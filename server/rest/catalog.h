#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class PgConnection;

struct CatalogColumn
{
    QString name;
    QString type; // as format_type() prints it: "uuid", "timestamp with time zone", "numeric"
    bool nullable = true;
    std::optional<QString> defaultExpression; // SQL, read from the catalog
    bool generated = false;
};

struct CatalogRelation
{
    QString schema;
    QString name;
    bool isView = false;
    QList<CatalogColumn> columns; // in table order
    QStringList primaryKey;

    [[nodiscard]] const CatalogColumn *column(const QString &name) const;
};

struct CatalogForeignKey
{
    QString name;
    QString table;
    QStringList columns;
    QString foreignTable;
    QStringList foreignColumns;
};

struct CatalogArgument
{
    QString name; // empty for an unnamed argument
    QString type;
    bool hasDefault = false;
};

struct CatalogFunction
{
    QString schema;
    QString name;
    QList<CatalogArgument> arguments; // input arguments only
    bool returnsSet = false;
    bool returnsVoid = false;
    bool returnsRows = false; // a composite, a table or a record
    bool isVolatile = true;
};

// What the exposed schema holds, read once from pg_catalog so that every name in a request is
// checked against it before it reaches SQL.
class Catalog
{
public:
    static Catalog load(PgConnection &connection, const QString &schema = QStringLiteral("public"));
    // A catalog described by hand, for tools that translate queries without a database.
    static Catalog fromParts(const QString &schema, const QList<CatalogRelation> &relations,
                             QList<CatalogForeignKey> foreignKeys, const QList<CatalogFunction> &functions);

    [[nodiscard]] const QString &schema() const { return m_schema; }
    [[nodiscard]] const CatalogRelation *relation(const QString &name) const;
    [[nodiscard]] QList<CatalogFunction> functions(const QString &name) const;
    [[nodiscard]] const QList<CatalogForeignKey> &foreignKeys() const { return m_foreignKeys; }

private:
    QString m_schema;
    QHash<QString, CatalogRelation> m_relations;
    QList<CatalogForeignKey> m_foreignKeys;
    QMultiHash<QString, CatalogFunction> m_functions;
};
