#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// The row filter of a postgres_changes binding: "col=op.value" conditions joined by top-level
// commas, all of which must hold. Operators: eq, neq, lt, lte, gt, gte, in ("in.(a,b)").
class ChangeFilter
{
public:
    enum class Op { Eq, Neq, Lt, Lte, Gt, Gte, In };
    struct Condition
    {
        QString column;
        Op op = Op::Eq;
        QStringList values; // one, or the members of an in-list
    };

    // An empty text is the filter that lets every row through. Answers nothing and sets `error`
    // when the text is not a filter.
    static std::optional<ChangeFilter> parse(const QString &text, QString *error);

    [[nodiscard]] bool matches(const QJsonObject &row) const;
    [[nodiscard]] QStringList columns() const;
    [[nodiscard]] bool isEmpty() const { return m_conditions.isEmpty(); }

private:
    QList<Condition> m_conditions;
};
