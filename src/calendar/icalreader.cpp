#include "icalreader.h"

#include <QColor>
#include <QHash>
#include <QSet>

#include <libical/ical.h>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace IcalReader {

namespace {

struct ComponentFree
{
    void operator()(icalcomponent *component) const { icalcomponent_free(component); }
};
using ComponentPtr = std::unique_ptr<icalcomponent, ComponentFree>;

QString text(const char *value)
{
    return value ? QString::fromUtf8(value).trimmed() : QString();
}

bool isSet(const icaltimetype &time)
{
    return !icaltime_is_null_time(time) && icaltime_is_valid_time(time);
}

// An instant for a zoned or UTC time; wall time in `floating` for the rest and for dates.
QDateTime instant(icaltimetype time, const QTimeZone &floating)
{
    if (!isSet(time)) {
        return {};
    }
    if (time.is_date) {
        return QDateTime(QDate(time.year, time.month, time.day), QTime(0, 0), floating);
    }
    if (time.zone || icaltime_is_utc(time)) {
        const time_t seconds = icaltime_as_timet_with_zone(time, time.zone ? time.zone : icaltimezone_get_utc_timezone());
        return QDateTime::fromSecsSinceEpoch(qint64(seconds), QTimeZone::utc());
    }
    return QDateTime(QDate(time.year, time.month, time.day), QTime(time.hour, time.minute, time.second), floating);
}

// The same instance written differently (a zoned start, a UTC RECURRENCE-ID) gives one key.
QString instanceKey(const QDateTime &at, bool isDate)
{
    return isDate ? at.date().toString(Qt::ISODate) : at.toUTC().toString(Qt::ISODate);
}

icaltimetype propertyTime(icalproperty *property, icalcomponent *component)
{
    return icalproperty_get_datetime_with_component(property, component);
}

icaltimetype timeOf(icalcomponent *component, icalproperty_kind kind)
{
    icalproperty *property = icalcomponent_get_first_property(component, kind);
    return property ? propertyTime(property, component) : icaltime_null_time();
}

struct EventTimes
{
    QDateTime start;
    QDateTime end;
    qint64 seconds = 0; // end − start, carried to every instance
};

EventTimes timesOf(icalcomponent *event, const QTimeZone &floating)
{
    EventTimes times;
    const icaltimetype dtstart = timeOf(event, ICAL_DTSTART_PROPERTY);
    times.start = instant(dtstart, floating);
    if (!times.start.isValid()) {
        return times;
    }
    const icaltimetype dtend = timeOf(event, ICAL_DTEND_PROPERTY);
    if (isSet(dtend)) {
        times.end = instant(dtend, floating);
    } else if (icalproperty *duration = icalcomponent_get_first_property(event, ICAL_DURATION_PROPERTY)) {
        times.end = times.start.addSecs(icaldurationtype_as_int(icalproperty_get_duration(duration)));
    } else if (dtstart.is_date) {
        // A date without an end lasts that day.
        times.end = times.start.addDays(1);
    } else {
        times.end = times.start;
    }
    times.seconds = times.start.secsTo(times.end);
    return times;
}

CalendarOccurrence describe(icalcomponent *event, const QString &uid)
{
    CalendarOccurrence occurrence;
    occurrence.uid = uid;
    occurrence.title = text(icalcomponent_get_summary(event));
    occurrence.location = text(icalcomponent_get_location(event));
    occurrence.notes = text(icalcomponent_get_description(event));
    occurrence.attendeeCount = icalcomponent_count_properties(event, ICAL_ATTENDEE_PROPERTY);
    return occurrence;
}

bool overlaps(const QDateTime &start, const QDateTime &end, const QDateTime &from, const QDateTime &to)
{
    // A zero-length event belongs to the range its instant falls in.
    return start < to && (end > from || (end == start && start >= from));
}

bool cancelled(icalcomponent *event)
{
    return icalcomponent_get_status(event) == ICAL_STATUS_CANCELLED;
}

class Reader
{
public:
    Reader(QDateTime from, QDateTime to, QTimeZone floating)
        : m_from(std::move(from))
        , m_to(std::move(to))
        , m_floating(std::move(floating))
    {}

    void readCalendar(icalcomponent *calendar, CalendarFeed &feed)
    {
        readHeader(calendar, feed);
        QList<icalcomponent *> masters;
        for (icalcomponent *event = icalcomponent_get_first_component(calendar, ICAL_VEVENT_COMPONENT); event;
             event = icalcomponent_get_next_component(calendar, ICAL_VEVENT_COMPONENT)) {
            icalproperty *recurrenceId = icalcomponent_get_first_property(event, ICAL_RECURRENCEID_PROPERTY);
            if (recurrenceId) {
                readMoved(event, propertyTime(recurrenceId, event), feed);
            } else {
                masters.append(event);
            }
        }
        // Moved instances first: their masters must skip the original slots.
        for (icalcomponent *event : std::as_const(masters)) {
            readMaster(event, feed);
        }
    }

private:
    void readHeader(icalcomponent *calendar, CalendarFeed &feed)
    {
        for (icalproperty *property = icalcomponent_get_first_property(calendar, ICAL_ANY_PROPERTY); property;
             property = icalcomponent_get_next_property(calendar, ICAL_ANY_PROPERTY)) {
            const icalproperty_kind kind = icalproperty_isa(property);
            if (kind == ICAL_X_PROPERTY) {
                const QString name = text(icalproperty_get_x_name(property)).toUpper();
                const QString value = text(icalproperty_get_x(property));
                if (name == "X-WR-CALNAME"_L1 && feed.name.isEmpty()) {
                    feed.name = value;
                } else if (name == "X-APPLE-CALENDAR-COLOR"_L1 && feed.colorHex.isEmpty()) {
                    feed.colorHex = colorHex(value).value_or(QString());
                }
            } else if (kind == ICAL_NAME_PROPERTY && feed.name.isEmpty()) {
                feed.name = text(icalproperty_get_name(property));
            } else if (kind == ICAL_COLOR_PROPERTY) {
                feed.colorHex = colorHex(text(icalproperty_get_color(property))).value_or(feed.colorHex);
            }
        }
    }

    void readMoved(icalcomponent *event, icaltimetype recurrenceId, CalendarFeed &feed)
    {
        const QString uid = text(icalcomponent_get_uid(event));
        const QDateTime original = instant(recurrenceId, m_floating);
        if (uid.isEmpty() || !original.isValid()) {
            return;
        }
        const QString key = instanceKey(original, recurrenceId.is_date);
        m_moved[uid].insert(key);
        if (cancelled(event)) {
            return;
        }
        const EventTimes times = timesOf(event, m_floating);
        if (times.start.isValid() && !overlaps(times.start, times.end, m_from, m_to)) {
            return;
        }
        CalendarOccurrence occurrence = describe(event, uid);
        occurrence.instanceKey = key;
        occurrence.start = times.start;
        occurrence.end = times.end;
        occurrence.allDay = timeOf(event, ICAL_DTSTART_PROPERTY).is_date;
        feed.occurrences.append(occurrence);
    }

    void readMaster(icalcomponent *event, CalendarFeed &feed)
    {
        if (cancelled(event)) {
            return;
        }
        QString uid = text(icalcomponent_get_uid(event));
        const icaltimetype dtstart = timeOf(event, ICAL_DTSTART_PROPERTY);
        const EventTimes times = timesOf(event, m_floating);
        const CalendarOccurrence base = describe(event, uid);
        icalproperty *rule = icalcomponent_get_first_property(event, ICAL_RRULE_PROPERTY);
        if (!times.start.isValid() || (!rule && !icalcomponent_get_first_property(event, ICAL_RDATE_PROPERTY))) {
            // A single event; one without a start is still reported, for the import to skip.
            if (times.start.isValid() && !overlaps(times.start, times.end, m_from, m_to)) {
                return;
            }
            CalendarOccurrence occurrence = base;
            occurrence.instanceKey = times.start.isValid() ? instanceKey(times.start, dtstart.is_date) : QString();
            occurrence.start = times.start;
            occurrence.end = times.end;
            occurrence.allDay = dtstart.is_date;
            feed.occurrences.append(occurrence);
            return;
        }

        const QSet<QString> excluded = exclusions(event) + m_moved.value(uid);
        QSet<QString> seen;
        const auto add = [&](const QDateTime &start) {
            const QString key = instanceKey(start, dtstart.is_date);
            if (excluded.contains(key) || seen.contains(key)) {
                return;
            }
            seen.insert(key);
            const QDateTime end = start.addSecs(times.seconds);
            if (!overlaps(start, end, m_from, m_to)) {
                return;
            }
            CalendarOccurrence occurrence = base;
            occurrence.instanceKey = key;
            occurrence.start = start;
            occurrence.end = end;
            occurrence.allDay = dtstart.is_date;
            feed.occurrences.append(occurrence);
        };

        if (rule) {
            expandRule(icalproperty_get_rrule(rule), dtstart, times.seconds, add);
        }
        for (icalproperty *rdate = icalcomponent_get_first_property(event, ICAL_RDATE_PROPERTY); rdate;
             rdate = icalcomponent_get_next_property(event, ICAL_RDATE_PROPERTY)) {
            const QDateTime start = instant(propertyTime(rdate, event), m_floating);
            if (start.isValid()) {
                add(start);
            }
        }
    }

    template<class Add>
    void expandRule(icalrecurrencetype recurrence, icaltimetype dtstart, qint64 lengthSeconds, const Add &add)
    {
        icalrecur_iterator *iterator = icalrecur_iterator_new(recurrence, dtstart);
        if (!iterator) {
            return;
        }
        // Without a count the walk may begin just before the range: an instance that began
        // earlier and still runs into it is the furthest back that matters.
        if (recurrence.count == 0) {
            const qint64 reach = std::max<qint64>(lengthSeconds, 0) + 2 * 86400;
            const QDateTime hint = m_from.addSecs(-reach);
            const QDateTime startInstant = instant(dtstart, m_floating);
            if (hint > startInstant) {
                icaltimetype skip = dtstart;
                const QDateTime wall = dtstart.zone ? hint.toTimeZone(zoneOf(dtstart)) : hint.toTimeZone(m_floating);
                skip.year = wall.date().year();
                skip.month = wall.date().month();
                skip.day = wall.date().day();
                icalrecur_iterator_set_start(iterator, skip);
            }
        }
        for (int count = 0; count < maxInstancesPerRule; ++count) {
            icaltimetype next = icalrecur_iterator_next(iterator);
            if (icaltime_is_null_time(next)) {
                break;
            }
            next.zone = dtstart.zone;
            next.is_date = dtstart.is_date;
            const QDateTime start = instant(next, m_floating);
            if (!start.isValid() || start >= m_to) {
                break;
            }
            add(start);
        }
        icalrecur_iterator_free(iterator);
    }

    QTimeZone zoneOf(const icaltimetype &time) const
    {
        if (!time.zone || time.zone == icaltimezone_get_utc_timezone()) {
            return QTimeZone::utc();
        }
        // Only the day matters for the hint, so the offset at the start is near enough.
        int isDaylight = 0;
        const int offset = icaltimezone_get_utc_offset(const_cast<icaltimezone *>(time.zone),
                                                       const_cast<icaltimetype *>(&time), &isDaylight);
        return QTimeZone(offset);
    }

    QSet<QString> exclusions(icalcomponent *event) const
    {
        QSet<QString> keys;
        for (icalproperty *exdate = icalcomponent_get_first_property(event, ICAL_EXDATE_PROPERTY); exdate;
             exdate = icalcomponent_get_next_property(event, ICAL_EXDATE_PROPERTY)) {
            const icaltimetype time = propertyTime(exdate, event);
            const QDateTime at = instant(time, m_floating);
            if (at.isValid()) {
                keys.insert(instanceKey(at, time.is_date));
            }
        }
        return keys;
    }

    QDateTime m_from;
    QDateTime m_to;
    QTimeZone m_floating;
    QHash<QString, QSet<QString>> m_moved;
};

} // namespace

CalendarFeed read(const QByteArray &ics, const QDateTime &from, const QDateTime &to, const QTimeZone &floatingZone)
{
    CalendarFeed feed;
    QByteArray clean = ics;
    clean.replace('\0', ' ');
    if (!clean.contains("BEGIN:VCALENDAR")) {
        feed.error = u"not an iCalendar text"_s;
        return feed;
    }
    const ComponentPtr root(icalparser_parse_string(clean.constData()));
    if (!root) {
        feed.error = u"not an iCalendar text"_s;
        return feed;
    }
    Reader reader(from, to, floatingZone);
    if (icalcomponent_isa(root.get()) == ICAL_VCALENDAR_COMPONENT) {
        reader.readCalendar(root.get(), feed);
    } else {
        for (icalcomponent *calendar = icalcomponent_get_first_component(root.get(), ICAL_VCALENDAR_COMPONENT);
             calendar; calendar = icalcomponent_get_next_component(root.get(), ICAL_VCALENDAR_COMPONENT)) {
            reader.readCalendar(calendar, feed);
        }
    }
    return feed;
}

std::optional<QString> colorHex(const QString &text)
{
    const QString trimmed = text.trimmed();
    QColor color;
    if (trimmed.startsWith(u'#') && trimmed.size() == 9) {
        // Calendars write the alpha last; QColor reads it first.
        color = QColor::fromString(trimmed.left(7));
    } else if (!trimmed.isEmpty() && trimmed.size() <= 32) {
        color = QColor::fromString(trimmed);
    }
    if (!color.isValid()) {
        return std::nullopt;
    }
    return color.name(QColor::HexRgb).toUpper();
}

} // namespace IcalReader
