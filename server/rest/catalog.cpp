#include "catalog.h"

#include "pg/pgconnection.h"

#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

QStringList jsonStrings(const QByteArray &json)
{
    QStringList strings;
    const QJsonArray array = QJsonDocument::fromJson(json).array();
    for (const QJsonValue &value : array) {
        strings.append(value.toString());
    }
    return strings;
}

QString text(const PgResult &result, int row, int column)
{
    return QString::fromUtf8(result.value(row, column));
}

} // namespace

const CatalogColumn *CatalogRelation::column(const QString &name) const
{
    for (const CatalogColumn &column : columns) {
        if (column.name == name) {
            return &column;
        }
    }
    return nullptr;
}

const CatalogRelation *Catalog::relation(const QString &name) const
{
    const auto it = m_relations.constFind(name);
    return it == m_relations.cend() ? nullptr : &*it;
}

QList<CatalogFunction> Catalog::functions(const QString &name) const
{
    return m_functions.values(name);
}

Catalog Catalog::fromParts(const QString &schema, const QList<CatalogRelation> &relations,
                           QList<CatalogForeignKey> foreignKeys, const QList<CatalogFunction> &functions)
{
    Catalog catalog;
    catalog.m_schema = schema;
    for (const CatalogRelation &relation : relations) {
        catalog.m_relations.insert(relation.name, relation);
    }
    catalog.m_foreignKeys = std::move(foreignKeys);
    for (const CatalogFunction &function : functions) {
        catalog.m_functions.insert(function.name, function);
    }
    return catalog;
}

Catalog Catalog::load(PgConnection &connection, const QString &schema)
{
    Catalog catalog;
    catalog.m_schema = schema;
    const QByteArray name = schema.toUtf8();

    const PgResult columns = connection.exec(
        "SELECT c.relname, c.relkind IN ('v','m'), a.attname, format_type(a.atttypid, a.atttypmod), NOT a.attnotnull,"
        " pg_get_expr(d.adbin, d.adrelid), a.attgenerated <> ''"
        " FROM pg_class c JOIN pg_namespace n ON n.oid = c.relnamespace"
        " JOIN pg_attribute a ON a.attrelid = c.oid AND a.attnum > 0 AND NOT a.attisdropped"
        " LEFT JOIN pg_attrdef d ON d.adrelid = c.oid AND d.adnum = a.attnum"
        " WHERE n.nspname = $1 AND c.relkind IN ('r','v','m','f','p')"
        " ORDER BY c.relname, a.attnum",
        {name});
    for (int row = 0; row < columns.rows(); ++row) {
        CatalogRelation &relation = catalog.m_relations[text(columns, row, 0)];
        relation.schema = schema;
        relation.name = text(columns, row, 0);
        relation.isView = columns.value(row, 1) == "t";
        CatalogColumn column;
        column.name = text(columns, row, 2);
        column.type = text(columns, row, 3);
        column.nullable = columns.value(row, 4) == "t";
        if (!columns.isNull(row, 5)) {
            column.defaultExpression = text(columns, row, 5);
        }
        column.generated = columns.value(row, 6) == "t";
        relation.columns.append(column);
    }

    const PgResult keys = connection.exec(
        "SELECT c.relname, array_to_json(ARRAY(SELECT a.attname FROM unnest(i.indkey::int2[]) WITH ORDINALITY k(num, "
        "ord)"
        "  JOIN pg_attribute a ON a.attrelid = c.oid AND a.attnum = k.num ORDER BY k.ord))"
        " FROM pg_index i JOIN pg_class c ON c.oid = i.indrelid JOIN pg_namespace n ON n.oid = c.relnamespace"
        " WHERE i.indisprimary AND n.nspname = $1",
        {name});
    for (int row = 0; row < keys.rows(); ++row) {
        auto it = catalog.m_relations.find(text(keys, row, 0));
        if (it != catalog.m_relations.end()) {
            it->primaryKey = jsonStrings(keys.value(row, 1));
        }
    }

    const PgResult foreign = connection.exec(
        "SELECT con.conname, cl.relname,"
        " array_to_json(ARRAY(SELECT a.attname FROM unnest(con.conkey) WITH ORDINALITY k(num, ord)"
        "  JOIN pg_attribute a ON a.attrelid = con.conrelid AND a.attnum = k.num ORDER BY k.ord)),"
        " fcl.relname,"
        " array_to_json(ARRAY(SELECT a.attname FROM unnest(con.confkey) WITH ORDINALITY k(num, ord)"
        "  JOIN pg_attribute a ON a.attrelid = con.confrelid AND a.attnum = k.num ORDER BY k.ord))"
        " FROM pg_constraint con"
        " JOIN pg_class cl ON cl.oid = con.conrelid JOIN pg_namespace n ON n.oid = cl.relnamespace"
        " JOIN pg_class fcl ON fcl.oid = con.confrelid JOIN pg_namespace fn ON fn.oid = fcl.relnamespace"
        " WHERE con.contype = 'f' AND n.nspname = $1 AND fn.nspname = $1 ORDER BY con.conname",
        {name});
    for (int row = 0; row < foreign.rows(); ++row) {
        catalog.m_foreignKeys.append({text(foreign, row, 0), text(foreign, row, 1), jsonStrings(foreign.value(row, 2)),
                                      text(foreign, row, 3), jsonStrings(foreign.value(row, 4))});
    }

    const PgResult functions = connection.exec(
        "SELECT p.proname, array_to_json(p.proargnames), array_to_json(p.proargmodes),"
        " array_to_json(ARRAY(SELECT format_type(t, NULL) FROM unnest(p.proargtypes) t)),"
        " p.pronargdefaults, p.proretset, p.prorettype = 'void'::regtype,"
        " t.typtype = 'c' OR p.prorettype = 'record'::regtype, p.provolatile = 'v'"
        " FROM pg_proc p JOIN pg_namespace n ON n.oid = p.pronamespace JOIN pg_type t ON t.oid = p.prorettype"
        " WHERE n.nspname = $1 AND p.prokind = 'f'",
        {name});
    for (int row = 0; row < functions.rows(); ++row) {
        CatalogFunction function;
        function.schema = schema;
        function.name = text(functions, row, 0);
        const QStringList names = jsonStrings(functions.value(row, 1));
        const QStringList modes = jsonStrings(functions.value(row, 2));
        const QStringList types = jsonStrings(functions.value(row, 3));
        // proargtypes lists the input arguments only, proargnames every argument.
        qsizetype typeIndex = 0;
        for (qsizetype i = 0; i < std::max(names.size(), types.size()); ++i) {
            const QString mode = modes.value(i, u"i"_s);
            if (mode != u"i" && mode != u"b" && mode != u"v") {
                continue;
            }
            function.arguments.append({names.value(i), types.value(typeIndex++), false});
            if (typeIndex >= types.size()) {
                break;
            }
        }
        const int defaults = functions.value(row, 4).toInt();
        for (qsizetype i = function.arguments.size() - defaults; i < function.arguments.size(); ++i) {
            if (i >= 0) {
                function.arguments[i].hasDefault = true;
            }
        }
        function.returnsSet = functions.value(row, 5) == "t";
        function.returnsVoid = functions.value(row, 6) == "t";
        function.returnsRows = functions.value(row, 7) == "t";
        function.isVolatile = functions.value(row, 8) == "t";
        catalog.m_functions.insert(function.name, function);
    }
    return catalog;
}
