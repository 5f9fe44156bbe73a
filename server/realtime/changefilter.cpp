#include "changefilter.h"

#include <QHash>
#include <QJsonValue>

using namespace Qt::StringLiterals;

namespace {

// Commas inside an in-list's parentheses belong to the list, not to the conjunction.
QStringList splitTopLevel(const QString &text)
{
    QStringList parts;
    int depth = 0;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == u'(') {
            ++depth;
        } else if (c == u')') {
            depth = std::max(0, depth - 1);
        } else if (c == u',' && depth == 0) {
            parts.append(text.mid(start, i - start));
            start = i + 1;
        }
    }
    parts.append(text.mid(start));
    return parts;
}

// What a row's value reads as when compared with the text of a filter.
std::optional<QString> asText(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::String:
        return value.toString();
    case QJsonValue::Double: {
        const double number = value.toDouble();
        if (number == double(qint64(number))) {
            return QString::number(qint64(number));
        }
        return QString::number(number, 'g', 17);
    }
    case QJsonValue::Bool:
        return value.toBool() ? u"true"_s : u"false"_s;
    default:
        return std::nullopt;
    }
}

// Numbers compare as numbers (so "9" < "10"); everything else as text, which orders ISO dates
// and times correctly.
int compare(const QJsonValue &value, const QString &rowText, const QString &filterText)
{
    if (value.isDouble()) {
        bool ok = false;
        const double wanted = filterText.toDouble(&ok);
        if (ok) {
            const double have = value.toDouble();
            return have < wanted ? -1 : (have > wanted ? 1 : 0);
        }
    }
    return rowText.compare(filterText);
}

} // namespace

std::optional<ChangeFilter> ChangeFilter::parse(const QString &text, QString *error)
{
    static const QHash<QString, Op> operators{{u"eq"_s, Op::Eq},   {u"neq"_s, Op::Neq}, {u"lt"_s, Op::Lt},
                                              {u"lte"_s, Op::Lte}, {u"gt"_s, Op::Gt},   {u"gte"_s, Op::Gte},
                                              {u"in"_s, Op::In}};
    ChangeFilter filter;
    if (text.trimmed().isEmpty()) {
        return filter;
    }
    for (const QString &part : splitTopLevel(text)) {
        const qsizetype equals = part.indexOf(u'=');
        const qsizetype dot = part.indexOf(u'.', equals + 1);
        if (equals <= 0 || dot < 0) {
            *error = u"Invalid filter \"%1\": expected column=operator.value"_s.arg(part);
            return std::nullopt;
        }
        Condition condition;
        condition.column = part.left(equals).trimmed();
        const QString op = part.mid(equals + 1, dot - equals - 1);
        if (!operators.contains(op)) {
            *error =
                u"Invalid filter \"%1\": unknown operator \"%2\" (eq, neq, lt, lte, gt, gte or in)"_s.arg(part, op);
            return std::nullopt;
        }
        condition.op = operators.value(op);
        const QString value = part.mid(dot + 1);
        if (condition.op == Op::In) {
            if (!value.startsWith(u'(') || !value.endsWith(u')')) {
                *error = u"Invalid filter \"%1\": an in-list is written in.(a,b)"_s.arg(part);
                return std::nullopt;
            }
            for (const QString &member : value.mid(1, value.size() - 2).split(u',')) {
                QString trimmed = member.trimmed();
                if (trimmed.size() >= 2 && trimmed.startsWith(u'"') && trimmed.endsWith(u'"')) {
                    trimmed = trimmed.mid(1, trimmed.size() - 2);
                }
                condition.values.append(trimmed);
            }
        } else {
            condition.values.append(value);
        }
        filter.m_conditions.append(condition);
    }
    return filter;
}

bool ChangeFilter::matches(const QJsonObject &row) const
{
    for (const Condition &condition : m_conditions) {
        const QJsonValue value = row.value(condition.column);
        const std::optional<QString> text = asText(value);
        if (!text) {
            // A missing or null value satisfies no comparison, as NULL does in SQL.
            return false;
        }
        bool holds = false;
        switch (condition.op) {
        case Op::Eq:
            holds = compare(value, *text, condition.values.first()) == 0;
            break;
        case Op::Neq:
            holds = compare(value, *text, condition.values.first()) != 0;
            break;
        case Op::Lt:
            holds = compare(value, *text, condition.values.first()) < 0;
            break;
        case Op::Lte:
            holds = compare(value, *text, condition.values.first()) <= 0;
            break;
        case Op::Gt:
            holds = compare(value, *text, condition.values.first()) > 0;
            break;
        case Op::Gte:
            holds = compare(value, *text, condition.values.first()) >= 0;
            break;
        case Op::In:
            holds = std::any_of(condition.values.cbegin(), condition.values.cend(),
                                [&](const QString &member) { return compare(value, *text, member) == 0; });
            break;
        }
        if (!holds) {
            return false;
        }
    }
    return true;
}

QStringList ChangeFilter::columns() const
{
    QStringList names;
    for (const Condition &condition : m_conditions) {
        if (!names.contains(condition.column)) {
            names.append(condition.column);
        }
    }
    return names;
}
