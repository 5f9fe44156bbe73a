#pragma once

#include "model/error.h"
#include "model/jsonvalue.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>
#include <string_view>
#include <tuple>
#include <type_traits>

// The wire coding of every record: each record lists its fields and JSON keys once in
// `wireFields()`, and the templates below walk that list to decode, encode, compare and hash.

// A row that does not have the shape its record describes. The message names the outermost
// record and the path to the offending key, e.g. `TaskItem[3].attachments._notes[0].text`.
class DecodeError : public MorvaneError
{
public:
    explicit DecodeError(QString problem);

    void enterField(std::string_view key);
    void enterIndex(qsizetype index);
    void enterRecord(std::string_view name);

    [[nodiscard]] QString record() const { return m_record; }
    [[nodiscard]] QString path() const;
    [[nodiscard]] QString problem() const { return m_problem; }
    [[nodiscard]] QString message() const override;

private:
    QString m_record;
    QStringList m_segments; // outermost first, each ".key" or "[index]"
    QString m_problem;
};

namespace Wire {

enum class FieldFlag {
    None,
    // Patches write an absent optional as JSON null, so that the column is cleared.
    NullWhenAbsent,
    // A missing key keeps the member's default instead of failing the row: for documents people
    // write by hand, where the default is what they mean.
    DefaultWhenAbsent,
};

template<class Record, class T>
struct Field
{
    std::string_view key;
    T Record::*member;
    FieldFlag flag = FieldFlag::None;
};

template<class Record, class T>
constexpr Field<Record, T> field(std::string_view key, T Record::*member, FieldFlag flag = FieldFlag::None)
{
    return {key, member, flag};
}

// clang-format off
template<class T>
concept WireRecord = requires {
    { T::wireName } -> std::convertible_to<std::string_view>;
    T::wireFields();
};

// An enumeration is coded by name: `wireNames(E{})`, found by argument-dependent lookup,
// returns the JSON strings in declaration order.
template<class E>
concept WireEnum = std::is_enum_v<E> && requires(E e) { wireNames(e); };
// clang-format on

template<class T>
struct IsOptional : std::false_type
{};
template<class T>
struct IsOptional<std::optional<T>> : std::true_type
{};
template<class T>
struct IsList : std::false_type
{};
template<class T>
struct IsList<QList<T>> : std::true_type
{};

QString describeJsonType(const QJsonValue &value);
[[noreturn]] void throwTypeMismatch(const char *expected, const QJsonValue &found);

template<WireEnum E>
QString enumName(E value)
{
    constexpr auto names = wireNames(E{});
    const std::string_view name = names[std::size_t(value)];
    return QString::fromLatin1(name.data(), qsizetype(name.size()));
}

template<WireEnum E>
std::optional<E> enumFromName(QStringView text)
{
    constexpr auto names = wireNames(E{});
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (text == QLatin1StringView(names[i].data(), qsizetype(names[i].size()))) {
            return E(i);
        }
    }
    return std::nullopt;
}

// Every value of an enumeration in declaration order, for pickers.
template<WireEnum E>
constexpr auto allCases()
{
    constexpr std::size_t count = wireNames(E{}).size();
    std::array<E, count> cases{};
    for (std::size_t i = 0; i < count; ++i) {
        cases[i] = E(i);
    }
    return cases;
}

template<class T>
struct Coder;

template<>
struct Coder<QString>
{
    static QString decode(const QJsonValue &json);
    static QJsonValue encode(const QString &value) { return value; }
};

template<>
struct Coder<bool>
{
    static bool decode(const QJsonValue &json);
    static QJsonValue encode(bool value) { return value; }
};

template<>
struct Coder<double>
{
    static double decode(const QJsonValue &json);
    static QJsonValue encode(double value) { return value; }
};

// Whole numbers only: 12.5 where seconds are expected is a broken row, not 12 seconds.
template<>
struct Coder<qint64>
{
    static qint64 decode(const QJsonValue &json);
    static QJsonValue encode(qint64 value) { return value; }
};

template<>
struct Coder<int>
{
    static int decode(const QJsonValue &json);
    static QJsonValue encode(int value) { return value; }
};

template<>
struct Coder<JSONValue>
{
    static JSONValue decode(const QJsonValue &json) { return JSONValue::fromJson(json); }
    static QJsonValue encode(const JSONValue &value) { return value.toJson(); }
};

template<>
struct Coder<QJsonValue>
{
    static QJsonValue decode(const QJsonValue &json) { return json; }
    static QJsonValue encode(const QJsonValue &value) { return value; }
};

template<>
struct Coder<QJsonObject>
{
    static QJsonObject decode(const QJsonValue &json);
    static QJsonValue encode(const QJsonObject &value) { return value; }
};

template<WireEnum E>
struct Coder<E>
{
    static E decode(const QJsonValue &json)
    {
        if (!json.isString()) {
            throwTypeMismatch("a string", json);
        }
        if (const std::optional<E> value = enumFromName<E>(json.toString())) {
            return *value;
        }
        QStringList allowed;
        for (const E value : allCases<E>()) {
            allowed << enumName(value);
        }
        throw DecodeError(QStringLiteral("\"%1\" is not one of %2").arg(json.toString(), allowed.join(u", ")));
    }
    static QJsonValue encode(E value) { return enumName(value); }
};

template<class T>
struct Coder<QList<T>>
{
    static QList<T> decode(const QJsonValue &json)
    {
        if (!json.isArray()) {
            throwTypeMismatch("an array", json);
        }
        const QJsonArray array = json.toArray();
        QList<T> items;
        items.reserve(array.size());
        for (qsizetype i = 0; i < array.size(); ++i) {
            try {
                items.append(Coder<T>::decode(array.at(i)));
            } catch (DecodeError &error) {
                error.enterIndex(i);
                throw;
            }
        }
        return items;
    }
    static QJsonValue encode(const QList<T> &items)
    {
        QJsonArray array;
        for (const T &item : items) {
            array.append(Coder<T>::encode(item));
        }
        return array;
    }
};

// The generic coding of a record from its field list. A record with a second wire form
// specialises Coder<> and falls back on this for the object form.
template<WireRecord R>
struct RecordCoder
{
    static R decode(const QJsonValue &json)
    {
        if (!json.isObject()) {
            try {
                throwTypeMismatch("an object", json);
            } catch (DecodeError &error) {
                error.enterRecord(R::wireName);
                throw;
            }
        }
        return decodeObject(json.toObject());
    }

    static R decodeObject(const QJsonObject &object)
    {
        R record{};
        try {
            std::apply([&](const auto &...fields) { (decodeField(object, record, fields), ...); }, R::wireFields());
        } catch (DecodeError &error) {
            error.enterRecord(R::wireName);
            throw;
        }
        return record;
    }

    static QJsonObject encodeObject(const R &record)
    {
        QJsonObject object;
        std::apply([&](const auto &...fields) { (encodeField(object, record, fields), ...); }, R::wireFields());
        return object;
    }

    static QJsonValue encode(const R &record) { return encodeObject(record); }

private:
    template<class T>
    static void decodeField(const QJsonObject &object, R &record, const Field<R, T> &field)
    {
        const QJsonValue json = object.value(QLatin1StringView(field.key.data(), qsizetype(field.key.size())));
        try {
            if constexpr (IsOptional<T>::value) {
                if (json.isUndefined() || json.isNull()) {
                    record.*field.member = std::nullopt;
                } else {
                    record.*field.member = Coder<typename T::value_type>::decode(json);
                }
            } else {
                if (json.isUndefined()) {
                    if (field.flag == FieldFlag::DefaultWhenAbsent) {
                        return;
                    }
                    throw DecodeError(QStringLiteral("required key is missing"));
                }
                record.*field.member = Coder<T>::decode(json);
            }
        } catch (DecodeError &error) {
            error.enterField(field.key);
            throw;
        }
    }

    template<class T>
    static void encodeField(QJsonObject &object, const R &record, const Field<R, T> &field)
    {
        const QString key = QString::fromLatin1(field.key.data(), qsizetype(field.key.size()));
        const T &value = record.*field.member;
        if constexpr (IsOptional<T>::value) {
            if (value) {
                object.insert(key, Coder<typename T::value_type>::encode(*value));
            } else if (field.flag == FieldFlag::NullWhenAbsent) {
                object.insert(key, QJsonValue::Null);
            }
        } else {
            object.insert(key, Coder<T>::encode(value));
        }
    }
};

template<WireRecord R>
struct Coder<R> : RecordCoder<R>
{};

template<class T>
T decode(const QJsonValue &json)
{
    return Coder<T>::decode(json);
}

template<class T>
QJsonValue encode(const T &value)
{
    return Coder<T>::encode(value);
}

// Parses JSON text first; text that is not JSON is reported like any other decoding failure.
QJsonValue parseJson(const QByteArray &bytes);

template<class T>
T decodeJson(const QByteArray &bytes)
{
    return decode<T>(parseJson(bytes));
}

inline std::size_t hashCombine(std::size_t seed, std::size_t hash)
{
    return seed ^ (hash + 0x9e3779b9 + (seed << 6) + (seed >> 2));
}

template<class T>
std::size_t hashValue(const T &value, std::size_t seed)
{
    if constexpr (IsOptional<T>::value) {
        return value ? hashValue(*value, hashCombine(seed, 1)) : hashCombine(seed, 0);
    } else if constexpr (IsList<T>::value) {
        seed = hashCombine(seed, std::size_t(value.size()));
        for (const auto &item : value) {
            seed = hashValue(item, seed);
        }
        return seed;
    } else if constexpr (std::is_enum_v<T>) {
        return hashCombine(seed, std::size_t(value));
    } else {
        return hashCombine(seed, qHash(value, std::size_t(0)));
    }
}

} // namespace Wire

// Field-by-field hashing of every record, so that records can key a QHash or QSet.
template<Wire::WireRecord R>
std::size_t qHash(const R &record, std::size_t seed)
{
    std::apply([&](const auto &...fields) { ((seed = Wire::hashValue(record.*(fields.member), seed)), ...); },
               R::wireFields());
    return seed;
}

// A request body of any encodable type, so that one call can take records of mixed types.
class AnyEncodable
{
public:
    template<class T>
    AnyEncodable(const T &value) // NOLINT(google-explicit-constructor): a body converts implicitly
        : m_json(Wire::encode(value))
    {}

    [[nodiscard]] const QJsonValue &json() const { return m_json; }
    [[nodiscard]] QByteArray toJson() const;

private:
    QJsonValue m_json;
};
