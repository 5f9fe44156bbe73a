#include "daykey.h"

DayKey::DayKey(QTimeZone zone)
    : m_zone(std::move(zone))
{}

QString DayKey::key(const QDateTime &instant) const
{
    if (!instant.isValid()) {
        return {};
    }
    return instant.toTimeZone(m_zone).date().toString(u"yyyy-MM-dd");
}
