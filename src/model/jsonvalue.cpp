#include "jsonvalue.h"

#include <QJsonArray>
#include <QJsonObject>

JSONValue JSONValue::fromJson(const QJsonValue &json)
{
    switch (json.type()) {
    case QJsonValue::Bool:
        return json.toBool();
    case QJsonValue::Double:
        return json.toDouble();
    case QJsonValue::String:
        return json.toString();
    case QJsonValue::Array: {
        Array items;
        const QJsonArray array = json.toArray();
        items.reserve(array.size());
        for (const QJsonValue &item : array) {
            items.append(fromJson(item));
        }
        return items;
    }
    case QJsonValue::Object: {
        Object members;
        const QJsonObject object = json.toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            members.insert(it.key(), fromJson(it.value()));
        }
        return members;
    }
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        break;
    }
    return {};
}

QJsonValue JSONValue::toJson() const
{
    switch (kind()) {
    case Kind::Null:
        return QJsonValue::Null;
    case Kind::Bool:
        return std::get<bool>(m_value);
    case Kind::Number:
        return std::get<double>(m_value);
    case Kind::String:
        return std::get<QString>(m_value);
    case Kind::Array: {
        QJsonArray array;
        for (const JSONValue &item : std::get<Array>(m_value)) {
            array.append(item.toJson());
        }
        return array;
    }
    case Kind::Object: {
        QJsonObject object;
        const Object &members = std::get<Object>(m_value);
        for (auto it = members.begin(); it != members.end(); ++it) {
            object.insert(it.key(), it.value().toJson());
        }
        return object;
    }
    }
    return QJsonValue::Null;
}

bool JSONValue::toBool(bool fallback) const
{
    const bool *value = std::get_if<bool>(&m_value);
    return value ? *value : fallback;
}

double JSONValue::toDouble(double fallback) const
{
    const double *value = std::get_if<double>(&m_value);
    return value ? *value : fallback;
}

QString JSONValue::toString() const
{
    const QString *value = std::get_if<QString>(&m_value);
    return value ? *value : QString();
}

JSONValue::Array JSONValue::toArray() const
{
    const Array *value = std::get_if<Array>(&m_value);
    return value ? *value : Array();
}

JSONValue::Object JSONValue::toObject() const
{
    const Object *value = std::get_if<Object>(&m_value);
    return value ? *value : Object();
}

JSONValue JSONValue::value(const QString &key) const
{
    const Object *members = std::get_if<Object>(&m_value);
    return members ? members->value(key) : JSONValue();
}

size_t qHash(const JSONValue &value, size_t seed)
{
    seed = qHashMulti(seed, int(value.kind()));
    switch (value.kind()) {
    case JSONValue::Kind::Null:
        return seed;
    case JSONValue::Kind::Bool:
        return qHash(value.toBool(), seed);
    case JSONValue::Kind::Number:
        return qHash(value.toDouble(), seed);
    case JSONValue::Kind::String:
        return qHash(value.toString(), seed);
    case JSONValue::Kind::Array: {
        const JSONValue::Array items = value.toArray();
        return qHashRange(items.cbegin(), items.cend(), seed);
    }
    case JSONValue::Kind::Object: {
        const JSONValue::Object members = value.toObject();
        for (auto it = members.begin(); it != members.end(); ++it) {
            seed = qHashMulti(seed, it.key(), it.value());
        }
        return seed;
    }
    }
    return seed;
}
