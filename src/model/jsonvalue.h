#pragma once

#include <QJsonValue>
#include <QList>
#include <QMap>
#include <QString>

#include <variant>

// A JSON value of any shape, kept as plain data so that records can hold free-form columns
// (travel settings, onboarding answers) and still compare and hash by value.
class JSONValue
{
public:
    enum class Kind { Null, Bool, Number, String, Array, Object };
    using Array = QList<JSONValue>;
    using Object = QMap<QString, JSONValue>;

    JSONValue() = default;
    JSONValue(std::nullptr_t) {}
    JSONValue(bool value)
        : m_value(value)
    {}
    JSONValue(double value)
        : m_value(value)
    {}
    JSONValue(int value)
        : m_value(double(value))
    {}
    JSONValue(QString value)
        : m_value(std::move(value))
    {}
    JSONValue(Array value)
        : m_value(std::move(value))
    {}
    JSONValue(Object value)
        : m_value(std::move(value))
    {}
    // A string literal would otherwise silently become a bool.
    JSONValue(const char *) = delete;

    // Every JSON number becomes a double: a row's 1 and 1.0 are the same value.
    static JSONValue fromJson(const QJsonValue &json);
    [[nodiscard]] QJsonValue toJson() const;

    [[nodiscard]] Kind kind() const { return Kind(m_value.index()); }
    [[nodiscard]] bool isNull() const { return kind() == Kind::Null; }
    [[nodiscard]] bool toBool(bool fallback = false) const;
    [[nodiscard]] double toDouble(double fallback = 0) const;
    [[nodiscard]] QString toString() const;
    [[nodiscard]] Array toArray() const;
    [[nodiscard]] Object toObject() const;
    // The member `key` of an object; null for a missing key or a value that is not an object.
    [[nodiscard]] JSONValue value(const QString &key) const;

    friend bool operator==(const JSONValue &, const JSONValue &) = default;

private:
    std::variant<std::monostate, bool, double, QString, Array, Object> m_value;
};

size_t qHash(const JSONValue &value, size_t seed = 0);
