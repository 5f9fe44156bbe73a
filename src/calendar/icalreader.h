#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QTimeZone>

#include <optional>

// One occurrence of an event as an iCalendar text has it: a single event, one instance of a
// recurring one, or a moved instance.
struct CalendarOccurrence
{
    QString uid;
    // The instance's original start (its RECURRENCE-ID) for a recurring event, else its start;
    // stays the same when a single instance is moved, so it names the instance.
    QString instanceKey;
    QString title;
    // Invalid when the event has no start, or no end and no duration.
    QDateTime start;
    QDateTime end;
    bool allDay = false;
    QString location;
    QString notes;
    int attendeeCount = 0;
};

// What a calendar text says of itself (name and colour), with the occurrences asked for.
struct CalendarFeed
{
    QString name;
    QString colorHex;
    QList<CalendarOccurrence> occurrences;
    // Set when the text is not iCalendar at all.
    QString error;
};

namespace IcalReader {

// A calendar's text is read with only what touches [from, to) expanded: a rule is walked from
// just before `from`, and never for more than this many instances, however dense it is.
inline constexpr int maxInstancesPerRule = 5000;

// The occurrences of every event in `ics` that overlap [from, to). Times without a zone
// ("floating") are read in `floatingZone`, as are all-day dates. Cancelled events are left out.
// Several VCALENDAR objects one after another (as a CalDAV collection answers) are read as one.
[[nodiscard]] CalendarFeed read(const QByteArray &ics, const QDateTime &from, const QDateTime &to,
                                const QTimeZone &floatingZone);

// "#RRGGBB" for a colour as calendars write it ("#rrggbb", "#RRGGBBAA", a CSS name); none otherwise.
[[nodiscard]] std::optional<QString> colorHex(const QString &text);

} // namespace IcalReader
