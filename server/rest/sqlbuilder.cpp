#include "sqlbuilder.h"

#include "rest/apierror.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QString joined(const QStringList &parts, const QString &separator)
{
    return parts.join(separator);
}

void collectCasts(const QList<SelectItem> &items, QStringList &casts)
{
    for (const SelectItem &item : items) {
        if (!item.cast.isEmpty() && !casts.contains(item.cast)) {
            casts.append(item.cast);
        }
        collectCasts(item.children, casts);
    }
}

ApiError unsupportedCast(const QString &cast)
{
    return ApiError::badQuery(u"\"failed to parse select parameter\""_s, u"unsupported cast \"%1\""_s.arg(cast));
}

} // namespace

QString SqlBuilder::quoteIdentifier(const QString &name)
{
    QString quoted = name;
    quoted.replace(u'"', u"\"\""_s);
    return u'"' + quoted + u'"';
}

SqlBuilder::CastTypes SqlBuilder::resolveCasts(PgConnection &connection, const QList<SelectItem> &select)
{
    QStringList casts;
    collectCasts(select, casts);
    CastTypes types;
    if (casts.isEmpty()) {
        return types;
    }
    QJsonArray names;
    for (const QString &cast : std::as_const(casts)) {
        // Longer than any type name with its schema; the database need not read it at all.
        if (cast.size() > 2 * 64 + 3) {
            throw unsupportedCast(cast);
        }
        names.append(cast);
    }
    const PgResult found =
        connection.exec("SELECT c.name, n.nspname, t.typname FROM json_array_elements_text($1::json) AS c(name)"
                        // Pseudo-types (unknown, internal, cstring, ...) are no type a value can be read as.
        " LEFT JOIN pg_catalog.pg_type t ON t.oid = pg_catalog.to_regtype(c.name) AND t.typtype <> 'p'"
                        " LEFT JOIN pg_catalog.pg_namespace n ON n.oid = t.typnamespace",
                        {QJsonDocument(names).toJson(QJsonDocument::Compact)});
    for (int row = 0; row < found.rows(); ++row) {
        const QString cast = QString::fromUtf8(found.value(row, 0));
        if (found.isNull(row, 1)) {
            throw unsupportedCast(cast);
        }
        types.insert(cast, quoteIdentifier(QString::fromUtf8(found.value(row, 1))) + u'.' +
                               quoteIdentifier(QString::fromUtf8(found.value(row, 2))));
    }
    return types;
}

QString SqlBuilder::param(const std::optional<QByteArray> &value)
{
    m_params.append(value);
    return u'$' + QString::number(m_params.size());
}

QString SqlBuilder::nextAlias(const char *prefix)
{
    return QString::fromLatin1(prefix) + QString::number(m_aliases++);
}

QString SqlBuilder::relationName(const CatalogRelation &relation) const
{
    return quoteIdentifier(relation.schema) + u'.' + quoteIdentifier(relation.name);
}

QString SqlBuilder::columnRef(const CatalogRelation &relation, const QString &alias, const QString &column) const
{
    if (!relation.column(column)) {
        throw ApiError(400, u"42703"_s, u"column %1.%2 does not exist"_s.arg(relation.name, column));
    }
    return alias + u'.' + quoteIdentifier(column);
}

QString SqlBuilder::conditionSql(const CatalogRelation &relation, const QString &alias, const Condition &condition)
{
    const QString ref = columnRef(relation, alias, condition.column);
    const QString &op = condition.op;
    const QByteArray value = condition.value.toUtf8();
    QString sql;
    if (op == u"eq") {
        sql = ref + u" = " + param(value);
    } else if (op == u"neq") {
        sql = ref + u" <> " + param(value);
    } else if (op == u"gt") {
        sql = ref + u" > " + param(value);
    } else if (op == u"gte") {
        sql = ref + u" >= " + param(value);
    } else if (op == u"lt") {
        sql = ref + u" < " + param(value);
    } else if (op == u"lte") {
        sql = ref + u" <= " + param(value);
    } else if (op == u"like" || op == u"ilike") {
        QByteArray pattern = value;
        pattern.replace('*', '%');
        sql = ref + u"::text " + (op == u"like" ? u"LIKE "_s : u"ILIKE "_s) + param(pattern);
    } else if (op == u"match" || op == u"imatch") {
        sql = ref + u"::text " + (op == u"match" ? u"~ "_s : u"~* "_s) + param(value);
    } else if (op == u"isdistinct") {
        sql = ref + u" IS DISTINCT FROM " + param(value);
    } else if (op == u"is") {
        static const QHash<QString, QString> tests{{u"null"_s, u"IS NULL"_s},
                                                   {u"not_null"_s, u"IS NOT NULL"_s},
                                                   {u"true"_s, u"IS TRUE"_s},
                                                   {u"false"_s, u"IS FALSE"_s},
                                                   {u"unknown"_s, u"IS UNKNOWN"_s}};
        sql = ref + u' ' + tests.value(condition.value);
    } else if (op == u"in") {
        if (condition.list.isEmpty()) {
            sql = u"false"_s;
        } else {
            QStringList params;
            for (const QString &item : condition.list) {
                params.append(param(item.toUtf8()));
            }
            sql = ref + u" IN (" + params.join(u", ") + u')';
        }
    }
    return condition.negate ? u"NOT (" + sql + u')' : sql;
}

QString SqlBuilder::logicSql(const CatalogRelation &relation, const QString &alias, const LogicTree &tree)
{
    QString sql;
    if (tree.kind == LogicTree::Kind::Leaf) {
        sql = conditionSql(relation, alias, tree.condition);
    } else {
        QStringList parts;
        for (const LogicTree &child : tree.children) {
            parts.append(u'(' + logicSql(relation, alias, child) + u')');
        }
        // Bracketed as a whole: the tree is ANDed with the other filters, and AND binds tighter
        // than OR, so a bare "a OR b" would let b match rows the other filters exclude.
        sql = u'(' + parts.join(tree.kind == LogicTree::Kind::Or ? u" OR " : u" AND ") + u')';
    }
    return tree.negate ? u"NOT (" + sql + u')' : sql;
}

QStringList SqlBuilder::filterSql(const CatalogRelation &relation, const QString &alias, const QueryLevel &level)
{
    QStringList conditions;
    for (const LogicTree &tree : level.filters) {
        conditions.append(logicSql(relation, alias, tree));
    }
    return conditions;
}

QString SqlBuilder::orderSql(const CatalogRelation &relation, const QString &alias, const QList<OrderTerm> &order) const
{
    if (order.isEmpty()) {
        return {};
    }
    QStringList terms;
    for (const OrderTerm &term : order) {
        QString sql = columnRef(relation, alias, term.column) + (term.descending ? u" DESC"_s : u" ASC"_s);
        if (term.nullsFirst) {
            sql += *term.nullsFirst ? u" NULLS FIRST"_s : u" NULLS LAST"_s;
        }
        terms.append(sql);
    }
    return u" ORDER BY " + terms.join(u", ");
}

QString SqlBuilder::pagingSql(const QueryLevel &level) const
{
    QString sql;
    if (level.limit) {
        sql += u" LIMIT " + QString::number(*level.limit);
    }
    if (level.offset && *level.offset > 0) {
        sql += u" OFFSET " + QString::number(*level.offset);
    }
    return sql;
}

SqlBuilder::Relationship SqlBuilder::resolve(const CatalogRelation &parent, const SelectItem &embed) const
{
    struct Candidate
    {
        Relationship relationship;
        QString constraint;
        QStringList columns;
    };
    QList<Candidate> candidates;
    for (const CatalogForeignKey &key : m_catalog.foreignKeys()) {
        // The parent holds the key: at most one target row.
        if (key.table == parent.name) {
            const bool named = embed.name == key.foreignTable || embed.name == key.name ||
                               (key.columns.size() == 1 && embed.name == key.columns.first());
            if (named) {
                candidates.append({{m_catalog.relation(key.foreignTable), key.foreignColumns, key.columns, true},
                                   key.name,
                                   key.columns});
            }
        }
        // The target holds the key: any number of rows, unless the key is its primary key.
        if (key.foreignTable == parent.name) {
            const bool named = embed.name == key.table || embed.name == key.name;
            if (named) {
                const CatalogRelation *target = m_catalog.relation(key.table);
                const bool unique = target && target->primaryKey == key.columns;
                candidates.append({{target, key.columns, key.foreignColumns, unique}, key.name, key.columns});
            }
        }
    }
    for (const QString &hint : embed.hints) {
        if (hint == u"inner" || hint == u"left") {
            continue;
        }
        candidates.removeIf([&](const Candidate &candidate) {
            return candidate.constraint != hint &&
                   !(candidate.columns.size() == 1 && candidate.columns.first() == hint);
        });
    }
    candidates.removeIf([](const Candidate &candidate) { return candidate.relationship.target == nullptr; });
    if (candidates.isEmpty()) {
        throw ApiError(
            400, u"PGRST200"_s,
            u"Could not find a relationship between '%1' and '%2' in the schema cache"_s.arg(parent.name, embed.name),
            u"Searched for a foreign key relationship between '%1' and '%2' in the schema '%3', but no "
            u"matches were found."_s.arg(parent.name, embed.name, parent.schema));
    }
    if (candidates.size() > 1) {
        QStringList options;
        for (const Candidate &candidate : std::as_const(candidates)) {
            options.append(u"'%1!%2'"_s.arg(embed.name, candidate.constraint));
        }
        throw ApiError(300, u"PGRST201"_s,
                       u"Could not embed because more than one relationship was found for '%1' and '%2'"_s.arg(
                           parent.name, embed.name),
                       u"Relationships: "_s + options.join(u", "),
                       u"Try changing '%1' to one of the following: %2. Find the desired relationship in the "
                       u"'details' key."_s.arg(embed.name, options.join(u", ")));
    }
    return candidates.first().relationship;
}

QString SqlBuilder::levelSql(const CatalogRelation &relation, const QString &source, const QString &alias,
                             const QList<SelectItem> &items, const QString &path, QStringList conditions,
                             bool applyLevel, const ParsedQuery &query, QStringList *topConditions)
{
    m_usedLevels.insert(path);
    QStringList fields;
    const QList<SelectItem> effective = items.isEmpty() ? QList<SelectItem>{SelectItem{SelectItem::Kind::Star}} : items;
    for (const SelectItem &item : effective) {
        switch (item.kind) {
        case SelectItem::Kind::Star:
            fields.append(alias + u".*");
            break;
        case SelectItem::Kind::Column: {
            QString ref = columnRef(relation, alias, item.name);
            if (!item.cast.isEmpty()) {
                const auto type = m_castTypes.constFind(item.cast);
                if (type == m_castTypes.cend()) {
                    throw unsupportedCast(item.cast);
                }
                ref = u"CAST(" + ref + u" AS " + *type + u')';
            }
            fields.append(ref + u" AS " + quoteIdentifier(item.key()));
            break;
        }
        case SelectItem::Kind::Embed: {
            const Relationship relationship = resolve(relation, item);
            const QString childAlias = nextAlias();
            QStringList join;
            for (qsizetype i = 0; i < relationship.targetColumns.size(); ++i) {
                join.append(childAlias + u'.' + quoteIdentifier(relationship.targetColumns[i]) + u" = " + alias + u'.' +
                            quoteIdentifier(relationship.parentColumns[i]));
            }
            const QString childPath = path.isEmpty() ? item.key() : path + u'.' + item.key();
            const QString childSql = levelSql(*relationship.target, relationName(*relationship.target), childAlias,
                                              item.children, childPath, join, true, query);
            const QString row = nextAlias("j");
            const QString expression =
                relationship.toOne
                    ? QString(u"(SELECT row_to_json(" + row + u") FROM (" + childSql + u") " + row + u" LIMIT 1)")
                    : QString(u"COALESCE((SELECT json_agg(" + row + u") FROM (" + childSql + u") " + row +
                              u"), '[]'::json)");
            fields.append(expression + u" AS " + quoteIdentifier(item.key()));
            if (item.isInner()) {
                conditions.append(u"EXISTS (SELECT 1 FROM (" + childSql + u") " + nextAlias("e") + u')');
            }
            break;
        }
        }
    }

    const QueryLevel level = query.level(path);
    if (applyLevel) {
        conditions.append(filterSql(relation, alias, level));
    }
    if (topConditions) {
        *topConditions = conditions;
    }
    QString sql = u"SELECT " + joined(fields, u", "_s) + u" FROM " + source + u" AS " + alias;
    if (!conditions.isEmpty()) {
        sql += u" WHERE " + joined(conditions, u" AND "_s);
    }
    if (applyLevel) {
        sql += orderSql(relation, alias, level.order) + pagingSql(level);
    }
    return sql;
}

QByteArray SqlBuilder::wrap(const QString &rowsSql, const QString &with, const QString &total) const
{
    const QString sql = with + u"SELECT COALESCE(json_agg(_r), '[]'::json)::text, count(*), " +
                        (total.isEmpty() ? u"NULL::bigint"_s : total) + u" FROM (" + rowsSql + u") _r";
    return sql.toUtf8();
}

void SqlBuilder::checkLevelsUsed(const ParsedQuery &query, bool writing) const
{
    for (auto it = query.levels.cbegin(); it != query.levels.cend(); ++it) {
        const bool empty = it->filters.isEmpty() && it->order.isEmpty() && !it->limit && !it->offset;
        if (!empty && !m_usedLevels.contains(it.key()) && !(writing && it.key().isEmpty())) {
            throw ApiError::badQuery(u"\"failed to parse filter\""_s,
                                     u"\"%1\" is not an embedded resource of this request"_s.arg(it.key()));
        }
    }
}

SqlBuilder::Statement SqlBuilder::read(const CatalogRelation &relation, const ParsedQuery &query, bool withTotal)
{
    QStringList top;
    const QString alias = nextAlias();
    const QString rows = levelSql(relation, relationName(relation), alias, query.select, {}, {}, true, query, &top);
    checkLevelsUsed(query, false);
    QString total;
    if (withTotal) {
        total = u"(SELECT count(*) FROM " + relationName(relation) + u" AS " + alias +
                (top.isEmpty() ? QString() : u" WHERE " + top.join(u" AND ")) + u')';
    }
    return {wrap(rows, {}, total), m_params};
}

QString SqlBuilder::limitedTo(const CatalogRelation &relation, const QString &alias, const ParsedQuery &query)
{
    const QueryLevel level = query.level({});
    if (!level.limit) {
        return {};
    }
    // Writes have no LIMIT of their own: pick the rows first, by physical address.
    const QString inner = nextAlias();
    QStringList conditions = filterSql(relation, inner, level);
    return alias + u".ctid = ANY (ARRAY(SELECT " + inner + u".ctid FROM " + relationName(relation) + u" AS " + inner +
           (conditions.isEmpty() ? QString() : u" WHERE " + conditions.join(u" AND ")) +
           orderSql(relation, inner, level.order) + pagingSql(level) + u"))";
}

SqlBuilder::Statement SqlBuilder::insert(const CatalogRelation &relation, const ParsedQuery &query,
                                         const QJsonArray &rows, const InsertOptions &options)
{
    const QString target = relationName(relation);
    QString written;
    if (options.columns.isEmpty()) {
        written = u"INSERT INTO " + target + u" AS _t DEFAULT VALUES RETURNING _t.*";
    } else {
        const QString body = param(QJsonDocument(rows).toJson(QJsonDocument::Compact));
        QStringList columns;
        QStringList values;
        for (const QString &name : options.columns) {
            const CatalogColumn *column = relation.column(name);
            columns.append(quoteIdentifier(name));
            QString value = u"_p." + quoteIdentifier(name);
            if (options.missingAsDefault) {
                const QString fallback = column->defaultExpression.value_or(u"NULL"_s);
                value = u"CASE WHEN _rows._j::jsonb ? " + param(name.toUtf8()) + u" THEN " + value + u" ELSE " +
                        fallback + u" END";
            }
            values.append(value);
        }
        written = u"INSERT INTO " + target + u" AS _t (" + columns.join(u", ") + u") SELECT " + values.join(u", ") +
                  u" FROM (SELECT value AS _j FROM json_array_elements(" + body +
                  u"::json)) _rows, json_populate_record(NULL::" + target + u", _rows._j) _p";
        if (options.conflict != Conflict::Error) {
            QStringList conflictColumns = query.onConflict.isEmpty() ? relation.primaryKey : query.onConflict;
            for (const QString &name : std::as_const(conflictColumns)) {
                columnRef(relation, u"_t"_s, name);
            }
            if (conflictColumns.isEmpty()) {
                throw ApiError::badQuery(u"\"an upsert needs a primary key or on_conflict\""_s);
            }
            QStringList quoted;
            for (const QString &name : std::as_const(conflictColumns)) {
                quoted.append(quoteIdentifier(name));
            }
            written += u" ON CONFLICT (" + quoted.join(u", ") + u')';
            if (options.conflict == Conflict::IgnoreDuplicates) {
                written += u" DO NOTHING"_s;
            } else {
                QStringList sets;
                for (const QString &column : std::as_const(columns)) {
                    sets.append(column + u" = EXCLUDED." + column);
                }
                written += u" DO UPDATE SET " + sets.join(u", ");
            }
        }
        written += u" RETURNING _t.*"_s;
    }
    const QString rowsSql = levelSql(relation, u"_written"_s, nextAlias(), query.select, {}, {}, false, query);
    checkLevelsUsed(query, true);
    return {wrap(rowsSql, u"WITH _written AS (" + written + u") "), m_params};
}

SqlBuilder::Statement SqlBuilder::update(const CatalogRelation &relation, const ParsedQuery &query,
                                         const QJsonObject &patch)
{
    const QString target = relationName(relation);
    const QString alias = nextAlias();
    QStringList conditions = filterSql(relation, alias, query.level({}));
    if (const QString limited = limitedTo(relation, alias, query); !limited.isEmpty()) {
        conditions.append(limited);
    }
    const QString where = conditions.isEmpty() ? QString() : u" WHERE " + conditions.join(u" AND ");
    QString written;
    if (patch.isEmpty()) {
        // Nothing to change: answer the rows the filter matches, as they are.
        written = u"SELECT " + alias + u".* FROM " + target + u" AS " + alias + where;
    } else {
        const QString body = param(QJsonDocument(patch).toJson(QJsonDocument::Compact));
        QStringList sets;
        for (auto it = patch.begin(); it != patch.end(); ++it) {
            columnRef(relation, alias, it.key());
            sets.append(quoteIdentifier(it.key()) + u" = (_body._p)." + quoteIdentifier(it.key()));
        }
        written = u"UPDATE " + target + u" AS " + alias + u" SET " + sets.join(u", ") +
                  u" FROM (SELECT json_populate_record(NULL::" + target + u", " + body + u"::json) AS _p) _body" +
                  where + u" RETURNING " + alias + u".*";
    }
    const QString rowsSql = levelSql(relation, u"_written"_s, nextAlias(), query.select, {}, {}, false, query);
    checkLevelsUsed(query, true);
    return {wrap(rowsSql, u"WITH _written AS (" + written + u") "), m_params};
}

SqlBuilder::Statement SqlBuilder::remove(const CatalogRelation &relation, const ParsedQuery &query)
{
    const QString alias = nextAlias();
    QStringList conditions = filterSql(relation, alias, query.level({}));
    if (const QString limited = limitedTo(relation, alias, query); !limited.isEmpty()) {
        conditions.append(limited);
    }
    const QString written = u"DELETE FROM " + relationName(relation) + u" AS " + alias +
                            (conditions.isEmpty() ? QString() : u" WHERE " + conditions.join(u" AND ")) +
                            u" RETURNING " + alias + u".*";
    const QString rowsSql = levelSql(relation, u"_written"_s, nextAlias(), query.select, {}, {}, false, query);
    checkLevelsUsed(query, true);
    return {wrap(rowsSql, u"WITH _written AS (" + written + u") "), m_params};
}

SqlBuilder::Statement SqlBuilder::call(const CatalogFunction &function,
                                       const QList<std::pair<QString, std::optional<QByteArray>>> &arguments,
                                       bool wholeBody)
{
    QStringList passed;
    for (const auto &given : arguments) {
        const QString &name = given.first;
        const std::optional<QByteArray> &value = given.second;
        const auto argument = std::find_if(function.arguments.cbegin(), function.arguments.cend(),
                                           [&name](const CatalogArgument &a) { return a.name == name; });
        const QString type = wholeBody ? function.arguments.first().type : argument->type;
        const QString cast = param(value) + u"::" + type;
        passed.append(wholeBody ? cast : quoteIdentifier(name) + u" := " + cast);
    }
    const QString invocation =
        quoteIdentifier(function.schema) + u'.' + quoteIdentifier(function.name) + u'(' + passed.join(u", ") + u')';
    QString sql;
    if (function.returnsVoid) {
        sql = u"SELECT " + invocation + u" IS NULL";
    } else if (function.returnsSet) {
        sql = u"SELECT COALESCE(json_agg(_r), '[]'::json)::text FROM " + invocation + u" AS _r";
    } else {
        sql = u"SELECT to_json(" + invocation + u")::text";
    }
    return {sql.toUtf8(), m_params};
}
