#include "query.h"
#include "rest/apierror.h"

using namespace Qt::StringLiterals;

namespace {

// Deeper nesting than any real request needs; it keeps hostile input from exhausting the stack.
constexpr int maxDepth = 16;

const QStringList operators{u"eq"_s,    u"neq"_s,   u"gt"_s,     u"gte"_s, u"lt"_s, u"lte"_s,       u"like"_s,
                            u"ilike"_s, u"match"_s, u"imatch"_s, u"in"_s,  u"is"_s, u"isdistinct"_s};

// Reads select= by hand: the grammar nests and names may be quoted.
class SelectReader
{
public:
    explicit SelectReader(const QString &text)
        : m_text(text)
    {}

    QList<SelectItem> readAll()
    {
        QList<SelectItem> items = readList();
        skipSpace();
        if (m_pos != m_text.size()) {
            fail(u"unexpected \"%1\""_s.arg(m_text.mid(m_pos, 1)));
        }
        return items;
    }

private:
    [[noreturn]] void fail(const QString &what) const
    {
        throw ApiError::badQuery(u"\"failed to parse select parameter (%1)\""_s.arg(m_text),
                                 u"%1 at position %2"_s.arg(what).arg(m_pos));
    }

    void skipSpace()
    {
        while (m_pos < m_text.size() && m_text[m_pos].isSpace()) {
            ++m_pos;
        }
    }

    bool take(QStringView token)
    {
        skipSpace();
        if (QStringView(m_text).mid(m_pos).startsWith(token)) {
            m_pos += token.size();
            return true;
        }
        return false;
    }

    QString readName()
    {
        skipSpace();
        if (m_pos < m_text.size() && m_text[m_pos] == u'"') {
            QString name;
            ++m_pos;
            while (m_pos < m_text.size()) {
                const QChar c = m_text[m_pos++];
                if (c == u'"') {
                    if (m_pos < m_text.size() && m_text[m_pos] == u'"') {
                        name += u'"';
                        ++m_pos;
                        continue;
                    }
                    return name;
                }
                name += c;
            }
            fail(u"unterminated quoted name"_s);
        }
        const qsizetype start = m_pos;
        while (m_pos < m_text.size()) {
            const QChar c = m_text[m_pos];
            if (c.isLetterOrNumber() || c == u'_' || c == u'-' || c == u'$') {
                ++m_pos;
            } else {
                break;
            }
        }
        if (m_pos == start) {
            fail(m_pos < m_text.size() ? u"unexpected \"%1\""_s.arg(m_text[m_pos]) : u"unexpected end"_s);
        }
        return m_text.mid(start, m_pos - start);
    }

    QList<SelectItem> readList()
    {
        if (++m_depth > maxDepth) {
            fail(u"embedding nested more than %1 levels deep"_s.arg(maxDepth));
        }
        QList<SelectItem> items;
        do {
            items.append(readItem());
        } while (take(u","));
        --m_depth;
        return items;
    }

    SelectItem readItem()
    {
        SelectItem item;
        if (take(u"*")) {
            item.kind = SelectItem::Kind::Star;
            return item;
        }
        item.name = readName();
        skipSpace();
        if (m_pos < m_text.size() && m_text[m_pos] == u':' && !QStringView(m_text).mid(m_pos).startsWith(u"::")) {
            ++m_pos;
            item.alias = item.name;
            item.name = readName();
        }
        if (take(u"::")) {
            item.cast = readName();
        }
        while (take(u"!")) {
            item.hints.append(readName());
        }
        if (take(u"(")) {
            item.kind = SelectItem::Kind::Embed;
            if (!take(u")")) {
                item.children = readList();
                if (!take(u")")) {
                    fail(u"expected \")\""_s);
                }
            }
            return item;
        }
        if (!item.hints.isEmpty()) {
            fail(u"\"!\" belongs to an embedded resource"_s);
        }
        item.kind = SelectItem::Kind::Column;
        return item;
    }

    const QString &m_text;
    qsizetype m_pos = 0;
    int m_depth = 0;
};

// Splits at commas outside double quotes and parentheses.
QStringList splitTopLevel(const QString &text)
{
    QStringList parts;
    QString current;
    int depth = 0;
    bool quoted = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (quoted) {
            current += c;
            if (c == u'\\' && i + 1 < text.size()) {
                current += text[++i];
            } else if (c == u'"') {
                quoted = false;
            }
            continue;
        }
        if (c == u'"') {
            quoted = true;
        } else if (c == u'(') {
            ++depth;
        } else if (c == u')') {
            --depth;
        } else if (c == u',' && depth == 0) {
            parts.append(current);
            current.clear();
            continue;
        }
        current += c;
    }
    if (quoted || depth != 0) {
        throw ApiError::badQuery(u"\"failed to parse logic tree (%1)\""_s.arg(text),
                                 u"unbalanced quotes or parentheses"_s);
    }
    parts.append(current);
    return parts;
}

// "a b" stays as written; "\"a,b\"" loses its quotes and escapes.
QString unquote(const QString &value)
{
    if (value.size() < 2 || !value.startsWith(u'"') || !value.endsWith(u'"')) {
        return value;
    }
    QString plain;
    for (qsizetype i = 1; i < value.size() - 1; ++i) {
        if (value[i] == u'\\' && i + 1 < value.size() - 1) {
            ++i;
        }
        plain += value[i];
    }
    return plain;
}

QStringList parseList(const QString &text, const QString &original)
{
    if (!text.startsWith(u'(') || !text.endsWith(u')')) {
        throw ApiError::badQuery(u"\"failed to parse filter (%1)\""_s.arg(original),
                                 u"\"in\" needs a list in parentheses"_s);
    }
    const QString inner = text.mid(1, text.size() - 2);
    if (inner.trimmed().isEmpty()) {
        return {};
    }
    QStringList items;
    for (const QString &item : splitTopLevel(inner)) {
        items.append(unquote(item));
    }
    return items;
}

qint64 parseCount(const QString &name, const QString &value)
{
    bool ok = false;
    const qint64 number = value.toLongLong(&ok);
    if (!ok || number < 0) {
        throw ApiError::badQuery(u"\"failed to parse %1 parameter (%2)\""_s.arg(name, value),
                                 u"expected a whole number, zero or more"_s);
    }
    return number;
}

QStringList parseNames(const QString &text)
{
    QStringList names;
    for (const QString &part : splitTopLevel(text)) {
        const QString name = unquote(part.trimmed());
        if (name.isEmpty()) {
            throw ApiError::badQuery(u"\"failed to parse columns parameter (%1)\""_s.arg(text), u"empty name"_s);
        }
        names.append(name);
    }
    return names;
}

const QStringList reserved{u"select"_s, u"order"_s, u"limit"_s,   u"offset"_s,
                           u"and"_s,    u"or"_s,    u"columns"_s, u"on_conflict"_s};

} // namespace

QList<SelectItem> parseSelect(const QString &text)
{
    return SelectReader(text).readAll();
}

Condition parseCondition(const QString &column, const QString &text)
{
    Condition condition;
    condition.column = column;
    QString rest = text;
    auto nextPart = [&rest]() {
        const qsizetype dot = rest.indexOf(u'.');
        QString part = dot < 0 ? rest : rest.left(dot);
        rest = dot < 0 ? QString() : rest.mid(dot + 1);
        return part;
    };
    QString op = nextPart();
    if (op == u"not") {
        condition.negate = true;
        op = nextPart();
    }
    if (!operators.contains(op) || (text.indexOf(u'.') < 0)) {
        throw ApiError::badQuery(u"\"failed to parse filter (%1)\""_s.arg(text), u"unknown operator \"%1\""_s.arg(op));
    }
    condition.op = op;
    if (op == u"in") {
        condition.list = parseList(rest, text);
    } else if (op == u"is") {
        const QString value = rest.toLower();
        static const QStringList allowed{u"null"_s, u"not_null"_s, u"true"_s, u"false"_s, u"unknown"_s};
        if (!allowed.contains(value)) {
            throw ApiError::badQuery(u"\"failed to parse filter (%1)\""_s.arg(text),
                                     u"\"is\" takes null, not_null, true, false or unknown"_s);
        }
        condition.value = value;
    } else {
        condition.value = rest;
    }
    return condition;
}

namespace {

LogicTree parseLogicAt(const QString &operatorName, bool negate, const QString &text, int depth);

} // namespace

LogicTree parseLogic(const QString &operatorName, bool negate, const QString &text)
{
    return parseLogicAt(operatorName, negate, text, 1);
}

namespace {

LogicTree parseLogicAt(const QString &operatorName, bool negate, const QString &text, int depth)
{
    if (depth > maxDepth) {
        throw ApiError::badQuery(u"\"failed to parse logic tree\""_s,
                                 u"logic nested more than %1 levels deep"_s.arg(maxDepth));
    }
    LogicTree tree;
    tree.kind = operatorName == u"or" ? LogicTree::Kind::Or : LogicTree::Kind::And;
    tree.negate = negate;
    if (!text.startsWith(u'(') || !text.endsWith(u')') || text.size() < 3) {
        throw ApiError::badQuery(u"\"failed to parse logic tree (%1)\""_s.arg(text), u"expected (condition, ...)"_s);
    }
    for (const QString &part : splitTopLevel(text.mid(1, text.size() - 2))) {
        QString item = part.trimmed();
        bool notted = false;
        if (item.startsWith(u"not.and(") || item.startsWith(u"not.or(")) {
            notted = true;
            item = item.mid(4);
        }
        if (item.startsWith(u"and(") || item.startsWith(u"or(")) {
            const qsizetype open = item.indexOf(u'(');
            tree.children.append(parseLogicAt(item.left(open), notted, item.mid(open), depth + 1));
            continue;
        }
        const qsizetype dot = item.indexOf(u'.');
        if (dot <= 0) {
            throw ApiError::badQuery(u"\"failed to parse logic tree (%1)\""_s.arg(text),
                                     u"\"%1\" is not column.operator.value"_s.arg(item));
        }
        LogicTree leaf;
        leaf.kind = LogicTree::Kind::Leaf;
        leaf.condition = parseCondition(unquote(item.left(dot)), item.mid(dot + 1));
        if (leaf.condition.op != u"in") {
            leaf.condition.value = unquote(leaf.condition.value);
        }
        tree.children.append(leaf);
    }
    return tree;
}

} // namespace

QList<OrderTerm> parseOrder(const QString &text)
{
    QList<OrderTerm> terms;
    for (const QString &part : splitTopLevel(text)) {
        QStringList pieces = part.trimmed().split(u'.');
        OrderTerm term;
        term.column = unquote(pieces.takeFirst());
        if (term.column.isEmpty()) {
            throw ApiError::badQuery(u"\"failed to parse order (%1)\""_s.arg(text), u"empty column"_s);
        }
        for (const QString &modifier : std::as_const(pieces)) {
            if (modifier == u"asc") {
                term.descending = false;
            } else if (modifier == u"desc") {
                term.descending = true;
            } else if (modifier == u"nullsfirst") {
                term.nullsFirst = true;
            } else if (modifier == u"nullslast") {
                term.nullsFirst = false;
            } else {
                throw ApiError::badQuery(u"\"failed to parse order (%1)\""_s.arg(text),
                                         u"unknown modifier \"%1\""_s.arg(modifier));
            }
        }
        terms.append(term);
    }
    return terms;
}

ParsedQuery parseQuery(const QList<std::pair<QString, QString>> &items, bool procedureCall)
{
    ParsedQuery query;
    for (const auto &[key, value] : items) {
        if (key == u"select") {
            query.select = parseSelect(value);
            continue;
        }
        if (key == u"columns") {
            query.columns = parseNames(value);
            continue;
        }
        if (key == u"on_conflict") {
            query.onConflict = parseNames(value);
            continue;
        }
        // Everything else may name an embedded resource first: "project.order", "tasks.status".
        QStringList path = key.split(u'.');
        QString last = path.takeLast();
        bool negate = false;
        if ((last == u"or" || last == u"and") && !path.isEmpty() && path.last() == u"not") {
            path.removeLast();
            negate = true;
        }
        const QString level = path.join(u'.');
        if (procedureCall && level.isEmpty() && !reserved.contains(last)) {
            query.arguments.append({key, value});
            continue;
        }
        QueryLevel &target = query.levels[level];
        if (last == u"order") {
            target.order = parseOrder(value);
        } else if (last == u"limit") {
            target.limit = parseCount(last, value);
        } else if (last == u"offset") {
            target.offset = parseCount(last, value);
        } else if (last == u"or" || last == u"and") {
            target.filters.append(parseLogic(last, negate, value));
        } else {
            if (last.isEmpty()) {
                throw ApiError::badQuery(u"\"failed to parse filter (%1)\""_s.arg(key), u"empty column name"_s);
            }
            LogicTree leaf;
            leaf.kind = LogicTree::Kind::Leaf;
            leaf.condition = parseCondition(last, value);
            target.filters.append(leaf);
        }
    }
    return query;
}
