#pragma once

#include <QDateTime>
#include <QString>
#include <QTimeZone>

// Names the calendar day ("yyyy-MM-dd", Gregorian) on which an instant falls in one time zone,
// so that entries group by the user's local day rather than by UTC.
class DayKey
{
public:
    explicit DayKey(QTimeZone zone);

    [[nodiscard]] QString key(const QDateTime &instant) const;
    [[nodiscard]] const QTimeZone &zone() const { return m_zone; }

private:
    QTimeZone m_zone;
};
