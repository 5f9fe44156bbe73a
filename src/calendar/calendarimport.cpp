#include "calendarimport.h"

#include <QCryptographicHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace CalendarImport {

std::optional<CalendarEventDraft> convert(const CalendarOccurrence &occurrence, const CalendarIdentity &calendar)
{
    if (occurrence.allDay || !occurrence.start.isValid() || !occurrence.end.isValid()) {
        return std::nullopt;
    }
    const double seconds = double(occurrence.start.msecsTo(occurrence.end)) / 1000.0;
    if (!std::isfinite(seconds)) {
        return std::nullopt;
    }
    const qint64 whole = std::max<qint64>(0, qint64(std::floor(seconds)));
    if (whole < minimumSeconds || whole > std::numeric_limits<int>::max()) {
        return std::nullopt;
    }
    CalendarEventDraft draft;
    draft.importKey = importKey(calendar.address, occurrence.uid, occurrence.instanceKey);
    draft.id = draft.importKey.left(12);
    draft.title = occurrence.title;
    draft.calendar = calendar.title;
    if (!calendar.colorHex.isEmpty()) {
        draft.calendarColorHex = calendar.colorHex;
    }
    draft.start = occurrence.start;
    draft.end = occurrence.end;
    draft.durationSeconds = int(whole);
    if (!occurrence.location.isEmpty()) {
        draft.location = occurrence.location;
    }
    draft.attendeeCount = occurrence.attendeeCount;
    if (!occurrence.notes.isEmpty()) {
        draft.notes = occurrence.notes;
    }
    return draft;
}

QList<CalendarEventDraft> drafts(const QList<std::pair<CalendarIdentity, CalendarFeed>> &calendars)
{
    QList<CalendarEventDraft> list;
    QSet<QString> seen;
    for (const auto &[calendar, feed] : calendars) {
        for (const CalendarOccurrence &occurrence : feed.occurrences) {
            std::optional<CalendarEventDraft> draft = convert(occurrence, calendar);
            if (draft && !seen.contains(draft->importKey)) {
                seen.insert(draft->importKey);
                list.append(*draft);
            }
        }
    }
    std::stable_sort(list.begin(), list.end(),
                     [](const CalendarEventDraft &a, const CalendarEventDraft &b) { return a.start < b.start; });
    return list;
}

QString importKey(const QString &calendarAddress, const QString &uid, const QString &instanceKey)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    // Lengths first, so that no two different triples join to the same text.
    for (const QString &part : {calendarAddress, uid, instanceKey}) {
        const QByteArray bytes = part.toUtf8();
        hash.addData(QByteArray::number(bytes.size()).append(':'));
        hash.addData(bytes);
    }
    return QString::fromLatin1(hash.result().toHex());
}

QString normalizedTitle(const QString &title)
{
    static const QRegularExpression blanks(u"\\s+"_s);
    return title.toLower().replace(blanks, u" "_s).trimmed();
}

std::optional<CalendarDestination> defaultDestination(const QString &title, const QList<TaskItem> &tasks,
                                                      const QList<Project> &projects,
                                                      const QString &preferredProjectId)
{
    const QString wanted = normalizedTitle(title);
    for (const TaskItem &task : tasks) {
        if (task.status != TaskStatus::Completed && normalizedTitle(task.title) == wanted) {
            return CalendarDestination{CalendarDestination::Kind::ExistingTask, task.id};
        }
    }
    const bool known = std::any_of(projects.begin(), projects.end(),
                                   [&](const Project &project) { return project.id == preferredProjectId; });
    if (!preferredProjectId.isEmpty() && known) {
        return CalendarDestination{CalendarDestination::Kind::NewTask, preferredProjectId};
    }
    return std::nullopt;
}

Sections sections(const QList<CalendarEventDraft> &events, const QHash<QString, CalendarDestination> &destinationByEvent)
{
    Sections result;
    for (const CalendarEventDraft &event : events) {
        const auto destination = destinationByEvent.constFind(event.id);
        if (destination != destinationByEvent.constEnd()
            && destination->kind == CalendarDestination::Kind::ExistingTask) {
            result.existing.append(event);
        } else {
            result.newTasks.append(event);
        }
    }
    return result;
}

QString newTaskSectionTitle()
{
    //% "New tasks"
    return qtTrId("calNewTaskSection");
}

QString existingSectionTitle()
{
    //% "Existing tasks"
    return qtTrId("calExistingSection");
}

QString selectedCount(int count)
{
    //% "%1 selected"
    return qtTrId("cal.selectedCount").arg(count);
}

QString noEventsHint()
{
    //% "No events on this day. Pick another day, or add a calendar."
    return qtTrId("cal.noEventsHint");
}

QString heroTitle()
{
    //% "Import from your calendar"
    return qtTrId("cal.heroTitle");
}

QString loadingText()
{
    //% "Loading calendar…"
    return qtTrId("cal.loading");
}

QString accessOffTitle()
{
    //% "No calendars yet"
    return qtTrId("cal.accessOffTitle");
}

QString accessOffBody()
{
    //% "Morvane turns calendar events into time entries. Add an iCalendar file, a subscription address or a CalDAV account, then come back and recheck."
    return qtTrId("cal.accessOffBody");
}

QString alreadyImported()
{
    //% "This event was imported before; its time is already logged."
    return qtTrId("cal.err.alreadyImported");
}

QString readFailed(const QString &calendar)
{
    //% "The calendar “%1” could not be read."
    return qtTrId("cal.err.readFailed").arg(calendar);
}

} // namespace CalendarImport
