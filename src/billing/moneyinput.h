#pragma once

#include <QObject>
#include <QString>

#include <optional>

// Reading and writing the numbers a person types into money fields. Both the decimal comma and
// the decimal point are accepted, as are thousands separators and currency signs, so that
// "€ 1.250,50", "1,250.5" and "12,5" all mean what their writer meant.
namespace MoneyInput {
Q_NAMESPACE

// What a field edits, which decides how its value is shown.
enum class Kind {
    Rate,   // money per hour or day
    Amount, // a sum of money
    Number, // a plain quantity: units, hours, a percentage
};
Q_ENUM_NS(Kind)

// The number in `text`, or none when there is none to read. The separator that comes last of a
// comma and a point is the decimal one; a single kind of separator is a thousands separator
// when it groups the digits by three (isGrouped), else the decimal one.
[[nodiscard]] std::optional<double> parseDecimal(const QString &text);

// Whether `text` is digits grouped by `separator`: one to three digits, then groups of exactly
// three ("1.250", "1,250,000"; not "12,5" nor "1.5").
[[nodiscard]] bool isGrouped(QStringView text, QChar separator);

// `value` as a field shows it in the language `lang` ("nl", "pt-BR"): its decimal separator, no
// grouping, whole numbers without decimals, money with cents, quantities with up to four
// decimals. Empty for no value. What it writes reads back through parseDecimal.
[[nodiscard]] QString text(std::optional<double> value, const QString &lang, Kind kind = Kind::Amount);

} // namespace MoneyInput
