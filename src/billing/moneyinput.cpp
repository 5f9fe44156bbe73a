#include "moneyinput.h"

#include <QLocale>

#include <cmath>

using namespace Qt::StringLiterals;

namespace MoneyInput {

namespace {

// Keeps digits (of any script, written as ASCII), the two separators and a minus sign that
// comes before them; currency signs, spaces and letters go.
QString keepNumberCharacters(const QString &text)
{
    QString kept;
    kept.reserve(text.size());
    for (const QChar c : text.trimmed()) {
        if (c.isDigit() && c.digitValue() >= 0) {
            kept += QChar(u'0' + c.digitValue());
        } else if (c == u',' || c == u'.') {
            kept += c;
        } else if ((c == u'-' || c == QChar(0x2212)) && kept.isEmpty()) {
            kept += u'-';
        }
    }
    return kept;
}

} // namespace

bool isGrouped(QStringView text, QChar separator)
{
    const QList<QStringView> parts = text.split(separator);
    if (parts.size() < 2) {
        return false;
    }
    const auto allDigits = [](QStringView part) {
        return std::all_of(part.begin(), part.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    };
    if (parts.front().isEmpty() || parts.front().size() > 3 || !allDigits(parts.front())) {
        return false;
    }
    return std::all_of(parts.begin() + 1, parts.end(),
                       [&](QStringView part) { return part.size() == 3 && allDigits(part); });
}

std::optional<double> parseDecimal(const QString &text)
{
    QString number = keepNumberCharacters(text);
    if (number.isEmpty()) {
        return std::nullopt;
    }
    const bool negative = number.startsWith(u'-');
    QString digits = negative ? number.mid(1) : number;

    const qsizetype lastComma = digits.lastIndexOf(u',');
    const qsizetype lastPoint = digits.lastIndexOf(u'.');
    if (lastComma >= 0 && lastPoint >= 0) {
        const QChar grouping = lastComma > lastPoint ? u'.' : u',';
        digits.remove(grouping);
        digits.replace(u',', u'.');
    } else if (lastComma >= 0 || lastPoint >= 0) {
        const QChar separator = lastComma >= 0 ? u',' : u'.';
        // The sign is not part of the grouping: -1.250 is as grouped as 1.250.
        if (isGrouped(digits, separator)) {
            digits.remove(separator);
        } else {
            digits.replace(separator, u'.');
        }
    }

    bool ok = false;
    const double value = QLocale::c().toDouble(digits, &ok);
    if (!ok || !std::isfinite(value)) {
        return std::nullopt;
    }
    return negative ? -value : value;
}

QString text(std::optional<double> value, const QString &lang, Kind kind)
{
    if (!value || !std::isfinite(*value)) {
        return {};
    }
    const bool money = kind != Kind::Number;
    const int decimals = money ? 2 : 4;
    const double scale = std::pow(10.0, decimals);
    double shown = std::round(*value * scale) / scale;
    if (shown == 0) {
        shown = 0; // no "-0"
    }
    QString written;
    if (shown == std::trunc(shown)) {
        written = QString::number(shown, 'f', 0);
    } else {
        written = QString::number(shown, 'f', decimals);
        if (!money) {
            while (written.endsWith(u'0')) {
                written.chop(1);
            }
            // "1.125" would read back as one thousand one hundred and twenty-five.
            const qsizetype point = written.indexOf(u'.');
            if (written.size() - point - 1 == 3 && isGrouped(written.mid(written.startsWith(u'-') ? 1 : 0), u'.')) {
                written += u'0';
            }
        }
    }
    const QString decimalPoint = (lang.isEmpty() ? QLocale() : QLocale(lang)).decimalPoint();
    if (decimalPoint == u",") {
        written.replace(u'.', u',');
    }
    return written;
}

} // namespace MoneyInput
