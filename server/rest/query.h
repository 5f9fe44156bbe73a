#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// A request in PostgREST's query language, parsed but not yet checked against the catalog.

// col=[not.]op.value
struct Condition
{
    QString column;
    bool negate = false;
    QString op; // eq neq gt gte lt lte like ilike match imatch in is isdistinct
    QString value;
    QStringList list; // the items of "in"
};

// and=(...), or=(...), not.or=(...) nested to any depth; a leaf is one condition.
struct LogicTree
{
    enum class Kind { Leaf, And, Or };
    Kind kind = Kind::And;
    bool negate = false;
    Condition condition;
    QList<LogicTree> children;
};

struct OrderTerm
{
    QString column;
    bool descending = false;
    std::optional<bool> nullsFirst;
};

// One item of select=: *, a column (with alias and cast), or an embedded resource.
struct SelectItem
{
    enum class Kind { Star, Column, Embed };
    Kind kind = Kind::Column;
    QString alias;
    QString name;
    QString cast;
    QStringList hints; // after "!": a foreign key or column naming the relationship, "inner", "left"
    QList<SelectItem> children;

    // The key in the answer, and in filters on an embedded resource.
    [[nodiscard]] QString key() const { return alias.isEmpty() ? name : alias; }
    [[nodiscard]] bool isInner() const { return hints.contains(QStringLiteral("inner")); }
};

// Filters, order and paging of one level: the top ("") or an embedded resource ("project",
// "project.client").
struct QueryLevel
{
    QList<LogicTree> filters; // all must hold
    QList<OrderTerm> order;
    std::optional<qint64> limit;
    std::optional<qint64> offset;
};

struct ParsedQuery
{
    QList<SelectItem> select; // empty means *
    QHash<QString, QueryLevel> levels;
    std::optional<QStringList> columns; // ?columns= of an insert
    QStringList onConflict;
    // Keys that are neither reserved nor filters: the arguments of a procedure called with GET.
    QList<std::pair<QString, QString>> arguments;

    [[nodiscard]] QueryLevel level(const QString &path) const { return levels.value(path); }
};

// Throws ApiError (400 PGRST100) for anything it cannot read. With `procedureCall`, keys that are
// not reserved are taken as procedure arguments instead of filters.
ParsedQuery parseQuery(const QList<std::pair<QString, QString>> &items, bool procedureCall = false);

QList<SelectItem> parseSelect(const QString &text);
Condition parseCondition(const QString &column, const QString &text);
LogicTree parseLogic(const QString &operatorName, bool negate, const QString &text);
QList<OrderTerm> parseOrder(const QString &text);
