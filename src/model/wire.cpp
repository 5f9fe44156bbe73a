#include "wire.h"

#include <QJsonDocument>

DecodeError::DecodeError(QString problem)
    : m_problem(std::move(problem))
{}

void DecodeError::enterField(std::string_view key)
{
    m_segments.prepend(u'.' + QString::fromLatin1(key.data(), qsizetype(key.size())));
}

void DecodeError::enterIndex(qsizetype index)
{
    m_segments.prepend(u'[' + QString::number(index) + u']');
}

void DecodeError::enterRecord(std::string_view name)
{
    // The outermost record wins: it is the one the caller asked for.
    m_record = QString::fromLatin1(name.data(), qsizetype(name.size()));
}

QString DecodeError::path() const
{
    QString path = m_segments.join(QString());
    if (path.startsWith(u'.')) {
        path.remove(0, 1);
    }
    return path;
}

QString DecodeError::message() const
{
    QString where = m_record.isEmpty() ? path() : m_record + m_segments.join(QString());
    return where.isEmpty() ? m_problem : where + u": " + m_problem;
}

namespace Wire {

QString describeJsonType(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Null:
        return QStringLiteral("null");
    case QJsonValue::Bool:
        return QStringLiteral("a boolean");
    case QJsonValue::Double:
        return QStringLiteral("a number");
    case QJsonValue::String:
        return QStringLiteral("a string");
    case QJsonValue::Array:
        return QStringLiteral("an array");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    case QJsonValue::Undefined:
        break;
    }
    return QStringLiteral("nothing");
}

void throwTypeMismatch(const char *expected, const QJsonValue &found)
{
    throw DecodeError(
        QStringLiteral("expected %1, found %2").arg(QString::fromLatin1(expected), describeJsonType(found)));
}

QString Coder<QString>::decode(const QJsonValue &json)
{
    if (!json.isString()) {
        throwTypeMismatch("a string", json);
    }
    return json.toString();
}

bool Coder<bool>::decode(const QJsonValue &json)
{
    if (!json.isBool()) {
        throwTypeMismatch("a boolean", json);
    }
    return json.toBool();
}

double Coder<double>::decode(const QJsonValue &json)
{
    if (!json.isDouble()) {
        throwTypeMismatch("a number", json);
    }
    return json.toDouble();
}

qint64 Coder<qint64>::decode(const QJsonValue &json)
{
    if (!json.isDouble()) {
        throwTypeMismatch("an integer", json);
    }
    // toInteger() answers its fallback for fractions and out-of-range values; two different
    // fallbacks tell a real 0 or 1 from a refusal.
    const qint64 value = json.toInteger(0);
    if (value != json.toInteger(1)) {
        throw DecodeError(QStringLiteral("expected an integer, found %1").arg(json.toDouble()));
    }
    return value;
}

int Coder<int>::decode(const QJsonValue &json)
{
    const qint64 value = Coder<qint64>::decode(json);
    if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max()) {
        throw DecodeError(QStringLiteral("integer %1 is out of range").arg(value));
    }
    return int(value);
}

QJsonObject Coder<QJsonObject>::decode(const QJsonValue &json)
{
    if (!json.isObject()) {
        throwTypeMismatch("an object", json);
    }
    return json.toObject();
}

QJsonValue parseJson(const QByteArray &bytes)
{
    // QJsonDocument holds only arrays and objects; a bare scalar (a procedure's number or
    // text) is parsed inside a one-element array instead.
    const QByteArray trimmed = bytes.trimmed();
    const bool container = trimmed.startsWith('{') || trimmed.startsWith('[');
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(container ? bytes : QByteArray('[' + trimmed + ']'), &error);
    if (error.error != QJsonParseError::NoError) {
        const int offset = container ? error.offset : qMax(0, error.offset - 1);
        throw DecodeError(QStringLiteral("invalid JSON at offset %1: %2").arg(offset).arg(error.errorString()));
    }
    if (!container) {
        const QJsonArray wrapped = document.array();
        if (wrapped.size() != 1) {
            throw DecodeError(QStringLiteral("invalid JSON: expected one value"));
        }
        return wrapped.first();
    }
    if (document.isArray()) {
        return document.array();
    }
    return document.object();
}

} // namespace Wire

QByteArray AnyEncodable::toJson() const
{
    if (m_json.isArray()) {
        return QJsonDocument(m_json.toArray()).toJson(QJsonDocument::Compact);
    }
    if (m_json.isObject()) {
        return QJsonDocument(m_json.toObject()).toJson(QJsonDocument::Compact);
    }
    // A bare scalar body: QJsonDocument only holds containers, so wrap and cut.
    const QByteArray wrapped = QJsonDocument(QJsonArray{m_json}).toJson(QJsonDocument::Compact);
    return wrapped.mid(1, wrapped.size() - 2);
}
