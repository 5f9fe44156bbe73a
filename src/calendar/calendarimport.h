#pragma once

#include "calendar/icalreader.h"
#include "model/project.h"
#include "model/taskitem.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>

#include <optional>
#include <variant>

// One event of the chosen day as the import screen lists it.
struct CalendarEventDraft
{
    // Short enough to type back on the command line; unique within a day's list.
    QString id;
    QString title;
    QString calendar;
    std::optional<QString> calendarColorHex;
    QDateTime start;
    QDateTime end;
    int durationSeconds = 60;
    std::optional<QString> location;
    int attendeeCount = 0;
    std::optional<QString> notes;
    // What the backend remembers an imported occurrence by: a digest of the calendar's address,
    // the event's UID and the instance, the same on every device.
    QString importKey;

    bool operator==(const CalendarEventDraft &) const = default;
};

// Where one event goes: a new task in a project, or time on an existing task.
struct CalendarDestination
{
    enum class Kind { NewTask, ExistingTask };
    Kind kind = Kind::NewTask;
    // The project's id for a new task, else the task's.
    QString id;

    bool operator==(const CalendarDestination &) const = default;
};

// The calendar an occurrence came from, as a draft shows it.
struct CalendarIdentity
{
    // The file path or the fetched address: part of every import key.
    QString address;
    QString title;
    QString colorHex;
};

namespace CalendarImport {

// Shorter events are not work worth logging.
inline constexpr int minimumSeconds = 60;

// The draft of one occurrence, or none when it is not listed: all-day, without a start or an
// end, or shorter than a minute (a negative length counts as none).
[[nodiscard]] std::optional<CalendarEventDraft> convert(const CalendarOccurrence &occurrence,
                                                        const CalendarIdentity &calendar);
// Every listed draft of the calendars, by start; events that start together keep the order
// they were read in. The same occurrence read twice (two copies of a calendar) is listed once.
[[nodiscard]] QList<CalendarEventDraft> drafts(const QList<std::pair<CalendarIdentity, CalendarFeed>> &calendars);

[[nodiscard]] QString importKey(const QString &calendarAddress, const QString &uid, const QString &instanceKey);

// Lower case, runs of white space as one blank, no blanks at either end.
[[nodiscard]] QString normalizedTitle(const QString &title);
// An open task of the same title, else a new task in the preferred project when it exists,
// else nothing: the person chooses.
[[nodiscard]] std::optional<CalendarDestination> defaultDestination(const QString &title, const QList<TaskItem> &tasks,
                                                                    const QList<Project> &projects,
                                                                    const QString &preferredProjectId);

// The list in its two sections: events that become new tasks (and those without a destination
// yet), then events logged on existing tasks. Each keeps the list's order.
struct Sections
{
    QList<CalendarEventDraft> newTasks;
    QList<CalendarEventDraft> existing;
};
[[nodiscard]] Sections sections(const QList<CalendarEventDraft> &events,
                                const QHash<QString, CalendarDestination> &destinationByEvent);

// The screen's texts.
[[nodiscard]] QString newTaskSectionTitle();
[[nodiscard]] QString existingSectionTitle();
[[nodiscard]] QString selectedCount(int count);
[[nodiscard]] QString noEventsHint();
[[nodiscard]] QString heroTitle();
[[nodiscard]] QString loadingText();
[[nodiscard]] QString accessOffTitle();
[[nodiscard]] QString accessOffBody();
[[nodiscard]] QString alreadyImported();
[[nodiscard]] QString readFailed(const QString &calendar);

} // namespace CalendarImport
