#include "taskinspector.h"

#include "billing/earnings.h"
#include "billing/moneyinput.h"
#include "model/isodate.h"
#include "i18n/language.h"
#include "store/appstore.h"

#include <QLocale>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace {

const QString entryTimeFormat = u"yyyy-MM-dd HH:mm"_s;

QString newId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

std::optional<QDateTime> localTime(const QString &text)
{
    QDateTime time = QDateTime::fromString(text.trimmed(), entryTimeFormat);
    if (!time.isValid()) {
        return std::nullopt;
    }
    time.setTimeSpec(Qt::LocalTime);
    return time;
}

QString utcText(const QDateTime &time)
{
    return time.toUTC().toString(Qt::ISODate);
}

} // namespace

TaskInspector::TaskInspector(QObject *parent)
    : QObject(parent)
    , m_priceEditor(new BillingEditor(this))
{
}

void TaskInspector::setStore(AppStore *store)
{
    if (m_store) {
        disconnect(m_store, nullptr, this, nullptr);
    }
    m_store = store;
    if (store) {
        connect(store, &AppStore::selectedTaskIdChanged, this, &TaskInspector::follow);
        for (auto signal : {&AppStore::tasksChanged, &AppStore::savingTaskIdsChanged, &AppStore::projectsChanged,
                            &AppStore::teamsChanged, &AppStore::profileChanged, &AppStore::unbilledEntriesChanged}) {
            connect(store, signal, this, &TaskInspector::changed);
        }
        connect(store, &AppStore::entriesChanged, this, &TaskInspector::entriesChanged);
        connect(store, &AppStore::billedSetChanged, this, &TaskInspector::entriesChanged);
    }
    follow();
}

void TaskInspector::follow()
{
    const QString id = m_store ? m_store->selectedTaskId() : QString();
    if (id != m_taskId) {
        m_taskId = id;
        // Entries older than the recent window come with the task's own read.
        if (m_store && !id.isEmpty()) {
            m_store->fetchEntries(id);
        }
    }
    emit changed();
    emit entriesChanged();
}

std::optional<TaskItem> TaskInspector::task() const
{
    return m_store && !m_taskId.isEmpty() ? m_store->task(m_taskId) : std::nullopt;
}

bool TaskInspector::present() const
{
    return task().has_value();
}

QString TaskInspector::title() const
{
    const auto t = task();
    return t ? t->title : QString();
}

QString TaskInspector::description() const
{
    const auto t = task();
    return t ? t->description.value_or(QString()) : QString();
}

QString TaskInspector::dueDate() const
{
    const auto t = task();
    return t && t->dueDate ? t->dueDate->left(10) : QString();
}

QString TaskInspector::priority() const
{
    const auto t = task();
    return t ? Wire::enumName(t->priority) : QString();
}

QString TaskInspector::category() const
{
    const auto t = task();
    return t && t->attachments && t->attachments->category ? Wire::enumName(*t->attachments->category) : QString();
}

QString TaskInspector::status() const
{
    const auto t = task();
    return t ? Wire::enumName(t->status) : QString();
}

QString TaskInspector::projectName() const
{
    const auto t = task();
    const auto project = t ? m_store->project(t->projectId) : std::nullopt;
    return project ? project->name : QString();
}

bool TaskInspector::canEdit() const
{
    const auto t = task();
    return t && m_store->isProjectAdmin(t->projectId);
}

bool TaskInspector::saving() const
{
    return m_store && m_store->savingTaskIds().contains(m_taskId);
}

bool TaskInspector::running() const
{
    const auto t = task();
    return t && t->status == TaskStatus::InProgress;
}

bool TaskInspector::onTeam() const
{
    const auto t = task();
    const auto project = t ? m_store->project(t->projectId) : std::nullopt;
    return project && project->teamId.has_value();
}

QString TaskInspector::tracked() const
{
    const auto t = task();
    return t ? Earnings::formatHM(t->timeSpentSeconds) : QString();
}

QString TaskInspector::price() const
{
    const auto t = task();
    if (!t) {
        return {};
    }
    const auto project = m_store->project(t->projectId);
    const Project *projectPtr = project ? &*project : nullptr;
    const double rate = m_store->defaultHourlyRate();
    const Billing billing = Earnings::resolve(&*t, projectPtr, rate);
    QString text = Earnings::describe(billing, m_store->currency(), Earnings::legacyRate(&*t, projectPtr, rate));
    if (const auto extras = Earnings::describeExtras(billing, m_store->currency())) {
        text += u" · "_s + *extras;
    }
    return text;
}

QString TaskInspector::priceSource() const
{
    const auto t = task();
    if (!t) {
        return {};
    }
    if (t->billing) {
        //% "This task has its own price."
        return qtTrId("ui.inspector.ownPrice");
    }
    return Earnings::inheritedFrom(projectName());
}

QVariantList TaskInspector::subtasks() const
{
    QVariantList list;
    const auto t = task();
    if (t && t->attachments && t->attachments->subtasks) {
        for (const Subtask &subtask : *t->attachments->subtasks) {
            list << QVariantMap{{u"id"_s, subtask.id}, {u"title"_s, subtask.title}, {u"done"_s, subtask.done}};
        }
    }
    return list;
}

QVariantList TaskInspector::notes() const
{
    QVariantList list;
    const auto t = task();
    if (t && t->attachments && t->attachments->notes) {
        for (const TaskNote &note : *t->attachments->notes) {
            const auto at = isoDate(note.createdAt);
            list << QVariantMap{{u"id"_s, note.id},
                                {u"text"_s, note.text},
                                {u"author"_s, note.authorEmail.value_or(QString())},
                                {u"when"_s, at ? QLocale().toString(at->toLocalTime(), QLocale::ShortFormat)
                                               : QString()}};
        }
    }
    return list;
}

QVariantList TaskInspector::assignees() const
{
    QVariantList list;
    const auto t = task();
    if (t && t->attachments && t->attachments->assignees) {
        for (const TaskAssignee &assignee : *t->attachments->assignees) {
            list << QVariantMap{{u"userId"_s, assignee.userId}, {u"email"_s, assignee.email}};
        }
    }
    return list;
}

QVariantList TaskInspector::members() const
{
    QVariantList list;
    const auto t = task();
    const auto project = t ? m_store->project(t->projectId) : std::nullopt;
    if (!project || !project->teamId) {
        return list;
    }
    QSet<QString> assigned;
    if (t->attachments && t->attachments->assignees) {
        for (const TaskAssignee &assignee : *t->attachments->assignees) {
            assigned.insert(assignee.userId);
        }
    }
    for (const TeamMember &member : m_store->membersByTeam().value(*project->teamId)) {
        list << QVariantMap{{u"userId"_s, member.userId},
                            {u"email"_s, member.email},
                            {u"assigned"_s, assigned.contains(member.userId)}};
    }
    return list;
}

QVariantList TaskInspector::entries() const
{
    QVariantList list;
    if (!m_store || m_taskId.isEmpty()) {
        return list;
    }
    QList<TimeEntry> entries = m_store->entriesByTask().value(m_taskId);
    std::sort(entries.begin(), entries.end(),
              [](const TimeEntry &a, const TimeEntry &b) { return a.startedAt > b.startedAt; });
    for (const TimeEntry &entry : entries) {
        const auto start = isoDate(entry.startedAt);
        const auto end = isoDate(entry.endedAt);
        list << QVariantMap{
            {u"id"_s, entry.id},
            {u"start"_s, start ? start->toLocalTime().toString(entryTimeFormat) : entry.startedAt},
            {u"end"_s, end ? end->toLocalTime().toString(entryTimeFormat) : entry.endedAt},
            {u"day"_s, start ? QLocale().toString(start->toLocalTime().date(), QLocale::ShortFormat) : QString()},
            {u"span"_s, start && end ? start->toLocalTime().toString(u"HH:mm"_s) + u"–"_s +
                                           end->toLocalTime().toString(u"HH:mm"_s)
                                     : QString()},
            {u"duration"_s, Earnings::formatHM(entry.durationSeconds)},
            {u"minutes"_s, MoneyInput::text(double(entry.durationSeconds) / 60.0, QLocale().name().left(2),
                                            MoneyInput::Kind::Number)},
            {u"billed"_s, m_store->billedEntryIds().contains(entry.id)},
            {u"by"_s, entry.loggedByEmail.value_or(QString())},
        };
    }
    return list;
}

void TaskInspector::writePatch(const TaskItem &task, std::optional<QString> title, std::optional<QString> description,
                               std::optional<QString> dueDate)
{
    // Absent description and due date clear their columns, so the ones not edited go along.
    TaskPatch patch;
    patch.title = title;
    patch.description = description ? (description->isEmpty() ? std::nullopt : description) : task.description;
    patch.dueDate = dueDate ? (dueDate->isEmpty() ? std::nullopt : dueDate) : task.dueDate;
    m_store->updateTask(task.id, patch);
}

void TaskInspector::setTitle(const QString &title)
{
    const auto t = task();
    if (t && !title.trimmed().isEmpty() && title.trimmed() != t->title) {
        writePatch(*t, title.trimmed(), std::nullopt, std::nullopt);
    }
}

void TaskInspector::setDescription(const QString &description)
{
    const auto t = task();
    if (t && description.trimmed() != t->description.value_or(QString())) {
        writePatch(*t, std::nullopt, description.trimmed(), std::nullopt);
    }
}

bool TaskInspector::setDueDate(const QString &day)
{
    const auto t = task();
    const QString text = day.trimmed();
    if (!text.isEmpty() && !QDate::fromString(text, Qt::ISODate).isValid()) {
        return false;
    }
    if (t && text != dueDate()) {
        writePatch(*t, std::nullopt, std::nullopt, text);
    }
    return true;
}

void TaskInspector::setPriority(const QString &priority)
{
    const auto t = task();
    const auto value = Wire::enumFromName<TaskPriority>(priority);
    if (t && value && *value != t->priority) {
        m_store->updateTaskPriority(t->id, *value);
    }
}

void TaskInspector::setCategory(const QString &category)
{
    const auto t = task();
    if (!t) {
        return;
    }
    const auto value = Wire::enumFromName<TaskCategory>(category);
    m_store->updateTaskCategory(t->id, value);
}

void TaskInspector::setStatus(const QString &status)
{
    const auto t = task();
    const auto value = Wire::enumFromName<TaskStatus>(status);
    if (t && value && *value != t->status) {
        m_store->setTaskStatus(t->id, *value);
    }
}

void TaskInspector::addSubtask(const QString &title)
{
    const auto t = task();
    if (!t || title.trimmed().isEmpty()) {
        return;
    }
    QList<Subtask> list = t->attachments && t->attachments->subtasks ? *t->attachments->subtasks : QList<Subtask>();
    list << Subtask{newId(), title.trimmed(), false};
    m_store->updateTaskSubtasks(t->id, list);
}

void TaskInspector::setSubtaskDone(const QString &subtaskId, bool done)
{
    const auto t = task();
    if (!t || !t->attachments || !t->attachments->subtasks) {
        return;
    }
    QList<Subtask> list = *t->attachments->subtasks;
    for (Subtask &subtask : list) {
        if (subtask.id == subtaskId) {
            subtask.done = done;
        }
    }
    m_store->updateTaskSubtasks(t->id, list);
}

void TaskInspector::removeSubtask(const QString &subtaskId)
{
    const auto t = task();
    if (!t || !t->attachments || !t->attachments->subtasks) {
        return;
    }
    QList<Subtask> list = *t->attachments->subtasks;
    list.removeIf([&](const Subtask &subtask) { return subtask.id == subtaskId; });
    m_store->updateTaskSubtasks(t->id, list);
}

void TaskInspector::addNote(const QString &text)
{
    const auto t = task();
    if (!t || text.trimmed().isEmpty()) {
        return;
    }
    QList<TaskNote> list = t->attachments && t->attachments->notes ? *t->attachments->notes : QList<TaskNote>();
    std::optional<QString> author;
    if (m_store->profile() && m_store->profile()->email) {
        author = m_store->profile()->email;
    }
    list << TaskNote{newId(), text.trimmed(), QDateTime::currentDateTimeUtc().toString(Qt::ISODate), author};
    m_store->updateTaskNotes(t->id, list);
}

void TaskInspector::removeNote(const QString &noteId)
{
    const auto t = task();
    if (!t || !t->attachments || !t->attachments->notes) {
        return;
    }
    QList<TaskNote> list = *t->attachments->notes;
    list.removeIf([&](const TaskNote &note) { return note.id == noteId; });
    m_store->updateTaskNotes(t->id, list);
}

void TaskInspector::setAssigned(const QString &userId, bool assigned)
{
    const auto t = task();
    if (!t) {
        return;
    }
    QList<TaskAssignee> list =
        t->attachments && t->attachments->assignees ? *t->attachments->assignees : QList<TaskAssignee>();
    list.removeIf([&](const TaskAssignee &assignee) { return assignee.userId == userId; });
    if (assigned) {
        for (const QVariant &member : members()) {
            const QVariantMap map = member.toMap();
            if (map.value(u"userId"_s) == userId) {
                list << TaskAssignee{userId, map.value(u"email"_s).toString()};
            }
        }
    }
    m_store->updateTaskAssignees(t->id, list);
}

bool TaskInspector::logMinutes(const QString &minutes)
{
    const auto t = task();
    const std::optional<double> value = MoneyInput::parseDecimal(minutes);
    if (!t || !value || *value <= 0 || *value > 24 * 60) {
        return false;
    }
    m_store->logManualMinutes(t->id, *value);
    return true;
}

bool TaskInspector::editEntryTimes(const QString &entryId, const QString &start, const QString &end)
{
    const auto from = localTime(start);
    const auto to = localTime(end);
    if (!m_store || !from || !to || *to <= *from) {
        return false;
    }
    m_store->updateEntry(entryId, TimeEntryPatch{utcText(*from), utcText(*to), from->secsTo(*to)});
    return true;
}

bool TaskInspector::editEntryDuration(const QString &entryId, const QString &minutes)
{
    const std::optional<TimeEntry> entry = m_store ? m_store->entry(entryId) : std::nullopt;
    const std::optional<double> value = MoneyInput::parseDecimal(minutes);
    const auto start = entry ? isoDate(entry->startedAt) : std::nullopt;
    if (!entry || !value || *value <= 0 || !start) {
        return false;
    }
    const qint64 seconds = qRound64(*value * 60);
    m_store->updateEntry(entryId, TimeEntryPatch{utcText(*start), utcText(start->addSecs(seconds)), seconds});
    return true;
}

void TaskInspector::editPrice()
{
    const auto t = task();
    if (!t) {
        return;
    }
    const auto project = m_store->project(t->projectId);
    m_priceEditor->setCurrency(m_store->currency());
    m_priceEditor->setLanguage(Language::current());
    m_priceEditor->loadTask(*t, project ? &*project : nullptr, m_store->defaultHourlyRate());
}

bool TaskInspector::savePrice()
{
    const auto t = task();
    if (!t || !m_priceEditor->canSave()) {
        return false;
    }
    m_store->updateTaskPrice(t->id, m_priceEditor->taskPrice());
    return true;
}

void TaskInspector::deleteEntry(const QString &entryId)
{
    if (m_store) {
        m_store->deleteEntry(entryId);
    }
}
