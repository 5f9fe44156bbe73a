#include "isodate.h"

#include <QTimeZone>

#include <array>

namespace {

enum class Fraction {
    None,
    Any,         // one digit or more
    Microseconds // exactly six digits
};

enum class Zone {
    Internet, // Z or +HH:MM
    Lenient,  // Z, +HH:MM, +HHMM or +HH
    LiteralZ, // only Z
};

struct DateForm
{
    char16_t separator;
    Fraction fraction;
    Zone zone;
};

// In the order they are tried; the first that reads the whole text wins.
constexpr std::array<DateForm, 6> forms{{
    {u'T', Fraction::Any, Zone::Internet},
    {u'T', Fraction::None, Zone::Internet},
    {u'T', Fraction::Microseconds, Zone::Lenient},
    {u'T', Fraction::None, Zone::Lenient},
    {u'T', Fraction::None, Zone::LiteralZ},
    {u' ', Fraction::None, Zone::Lenient},
}};

class Cursor
{
public:
    explicit Cursor(QStringView text)
        : m_text(text)
    {}

    bool digits(int count, int &value)
    {
        if (m_pos + count > m_text.size()) {
            return false;
        }
        value = 0;
        for (int i = 0; i < count; ++i) {
            const char16_t c = m_text[m_pos + i].unicode();
            if (c < u'0' || c > u'9') {
                return false;
            }
            value = value * 10 + (c - u'0');
        }
        m_pos += count;
        return true;
    }

    bool literal(char16_t c)
    {
        if (m_pos < m_text.size() && m_text[m_pos] == c) {
            ++m_pos;
            return true;
        }
        return false;
    }

    // Reads a run of digits as milliseconds: .5 is 500 ms, .123456 is 123 ms.
    int fraction(Fraction kind, bool &ok)
    {
        const qsizetype start = m_pos;
        int millis = 0;
        while (m_pos < m_text.size() && m_text[m_pos].isDigit() && m_text[m_pos].unicode() < 128) {
            if (m_pos - start < 3) {
                millis = millis * 10 + (m_text[m_pos].unicode() - u'0');
            }
            ++m_pos;
        }
        const qsizetype count = m_pos - start;
        for (qsizetype i = count; i < 3; ++i) {
            millis *= 10;
        }
        ok = count > 0 && (kind != Fraction::Microseconds || count == 6);
        return millis;
    }

    bool zone(Zone kind, int &offsetSeconds)
    {
        offsetSeconds = 0;
        if (literal(u'Z')) {
            return true;
        }
        if (kind == Zone::LiteralZ) {
            return false;
        }
        int sign = 1;
        if (literal(u'-')) {
            sign = -1;
        } else if (!literal(u'+')) {
            return false;
        }
        int hours = 0;
        int minutes = 0;
        if (!digits(2, hours)) {
            return false;
        }
        if (literal(u':')) {
            if (!digits(2, minutes)) {
                return false;
            }
        } else if (kind == Zone::Internet) {
            return false;
        } else if (m_pos < m_text.size() && !digits(2, minutes)) {
            return false;
        }
        if (hours > 23 || minutes > 59) {
            return false;
        }
        offsetSeconds = sign * (hours * 3600 + minutes * 60);
        return true;
    }

    [[nodiscard]] bool atEnd() const { return m_pos == m_text.size(); }

private:
    QStringView m_text;
    qsizetype m_pos = 0;
};

std::optional<QDateTime> parseWith(QStringView text, const DateForm &form)
{
    Cursor in(text);
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
    const bool stamp = in.digits(4, year) && in.literal(u'-') && in.digits(2, month) && in.literal(u'-') &&
                       in.digits(2, day) && in.literal(form.separator) && in.digits(2, hour) && in.literal(u':') &&
                       in.digits(2, minute) && in.literal(u':') && in.digits(2, second);
    if (!stamp) {
        return std::nullopt;
    }
    int millis = 0;
    if (form.fraction != Fraction::None) {
        bool ok = false;
        if (!in.literal(u'.') || (millis = in.fraction(form.fraction, ok), !ok)) {
            return std::nullopt;
        }
    }
    int offsetSeconds = 0;
    if (!in.zone(form.zone, offsetSeconds) || !in.atEnd()) {
        return std::nullopt;
    }
    const QDate date(year, month, day);
    const QTime time(hour, minute, second, millis);
    if (!date.isValid() || !time.isValid()) {
        return std::nullopt;
    }
    return QDateTime(date, time, Qt::UTC).addSecs(-offsetSeconds);
}

} // namespace

std::optional<QDateTime> isoDate(QStringView text)
{
    if (text.isEmpty()) {
        return std::nullopt;
    }
    for (const DateForm &form : forms) {
        if (std::optional<QDateTime> instant = parseWith(text, form)) {
            return instant;
        }
    }
    return std::nullopt;
}

std::optional<QDateTime> isoDate(const QString &text)
{
    return isoDate(QStringView(text));
}

std::optional<QDateTime> isoDate(const std::optional<QString> &text)
{
    return text ? isoDate(QStringView(*text)) : std::nullopt;
}

QString isoString(const QDateTime &instant)
{
    return instant.toUTC().toString(Qt::ISODate);
}
