#include "workspace.h"

#include "billing/billedchip.h"
#include "billing/earnings.h"
#include "model/fuzzymatch.h"
#include "model/isodate.h"
#include "i18n/language.h"
#include "store/appstore.h"
#include "store/taskorder.h"
#include "ui/taskinspector.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString statusName(ProjectStatus status)
{
    switch (status) {
    case ProjectStatus::Active:
        //% "Active"
        return qtTrId("ui.projects.status.active");
    case ProjectStatus::Completed:
        //% "Completed"
        return qtTrId("ui.projects.status.completed");
    case ProjectStatus::Archived:
        //% "Archived"
        return qtTrId("ui.projects.status.archived");
    }
    return {};
}

QString toneName(BilledChip::Tone tone)
{
    switch (tone) {
    case BilledChip::Tone::Muted:
        return u"muted"_s;
    case BilledChip::Tone::DeepPrimary:
        return u"deepPrimary"_s;
    case BilledChip::Tone::Primary:
        return u"primary"_s;
    case BilledChip::Tone::Success:
        return u"success"_s;
    }
    return {};
}

bool isOpen(const TaskItem &task)
{
    return task.status != TaskStatus::Completed;
}

// The palette's own commands, by the name the window acts on.
struct PaletteAction
{
    const char *name;
    QString (*title)();
};

const PaletteAction paletteActions[] = {
    //% "New task"
    {"newTask", [] { return qtTrId("ui.action.newTask"); }},
    //% "New project"
    {"newProject", [] { return qtTrId("ui.action.newProject"); }},
    //% "Start or stop the timer"
    {"toggleTimer", [] { return qtTrId("ui.action.toggleTimer"); }},
    //% "Show or hide the floating timer"
    {"floatingTimer", [] { return qtTrId("ui.action.floatingTimer"); }},
    //% "New team"
    {"newTeam", [] { return qtTrId("ui.action.newTeam"); }},
    //% "Settings"
    {"settings", [] { return qtTrId("ui.action.settings"); }},
    //% "Switch between light and dark"
    {"toggleTheme", [] { return qtTrId("ui.action.toggleTheme"); }},
    //% "Export for the accountant…"
    {"accountantExport", [] { return qtTrId("ui.export.action"); }},
    //% "Quick add: a sentence becomes work…"
    {"quickAdd", [] { return qtTrId("ui.action.quickAdd"); }},
    //% "Sign out"
    {"signOut", [] { return qtTrId("ui.action.signOut"); }},
};

constexpr int paletteLimit = 30;

} // namespace

Workspace::Workspace(QObject *parent)
    : QObject(parent)
    , m_sidebar(new RowsModel({u"kind"_s, u"id"_s, u"title"_s, u"count"_s, u"running"_s, u"shared"_s, u"status"_s},
                              this))
    , m_tasks(new RowsModel({u"id"_s, u"title"_s, u"projectId"_s, u"projectName"_s, u"status"_s, u"priority"_s,
                             u"due"_s, u"overdue"_s, u"tracked"_s, u"chipLabel"_s, u"chipTone"_s, u"chipOpacity"_s,
                             u"price"_s, u"saving"_s, u"checked"_s, u"running"_s, u"subtasks"_s, u"editable"_s},
                            this))
    , m_palette(new RowsModel({u"kind"_s, u"id"_s, u"title"_s, u"subtitle"_s, u"projectId"_s}, this))
    , m_inspector(new TaskInspector(this))
    , m_clients(new ClientList(this))
    , m_invoices(new InvoiceList(this))
    , m_invoiceStyle(new InvoiceStyleView(this))
    , m_printer(new InvoicePrinter(this))
    , m_composer(new ComposerView(*m_printer, this))
    , m_trips(new TripsView(this))
    , m_projectPrice(new BillingEditor(this))
{
    m_rebuild.setSingleShot(true);
    m_rebuild.setInterval(0);
    connect(&m_rebuild, &QTimer::timeout, this, [this] {
        rebuildSidebar();
        rebuildTasks();
    });
}

Workspace::~Workspace() = default;

void Workspace::setStore(AppStore *store)
{
    if (m_store == store) {
        return;
    }
    if (m_store) {
        disconnect(m_store, nullptr, this, nullptr);
        disconnect(m_store->timerObject(), nullptr, this, nullptr);
    }
    m_store = store;
    m_rowCache.clear();
    m_inspector->setStore(store);
    m_clients->setStore(store);
    m_invoices->setStore(store);
    m_invoiceStyle->setStore(store);
    m_invoices->setPrinter(m_printer);
    m_composer->setStore(store);
    m_trips->setStore(store);
    if (store) {
        for (auto signal : {&AppStore::projectsChanged, &AppStore::tasksChanged, &AppStore::teamsChanged,
                            &AppStore::savingTaskIdsChanged, &AppStore::selectedTaskIdsChanged,
                            &AppStore::taskFilterChanged, &AppStore::taskSortChanged, &AppStore::searchQueryChanged,
                            &AppStore::selectedProjectIdChanged, &AppStore::unbilledEntriesChanged,
                            &AppStore::profileChanged, &AppStore::runningTaskChanged}) {
            connect(store, signal, this, &Workspace::scheduleRebuild);
        }
        // Everything but the choice of rows (search, filter, sort, project) can change what a row says.
        for (auto signal : {&AppStore::projectsChanged, &AppStore::tasksChanged, &AppStore::teamsChanged,
                            &AppStore::savingTaskIdsChanged, &AppStore::selectedTaskIdsChanged,
                            &AppStore::unbilledEntriesChanged, &AppStore::profileChanged,
                            &AppStore::runningTaskChanged}) {
            connect(store, signal, this, [this] { m_rowCache.clear(); });
        }
        connect(store, &AppStore::projectsChanged, this, &Workspace::projectChanged);
        connect(store, &AppStore::teamsChanged, this, &Workspace::projectChanged);
        connect(store, &AppStore::selectedProjectIdChanged, this, &Workspace::projectChanged);
        connect(store, &AppStore::selectedProjectIdChanged, this, &Workspace::selectionChanged);
        connect(store, &AppStore::selectedTaskIdChanged, this, &Workspace::selectionChanged);
        connect(store, &AppStore::teamsChanged, this, &Workspace::teamsChanged);
        connect(store, &AppStore::invitationsChanged, this, &Workspace::teamsChanged);
        connect(store, &AppStore::taskFilterChanged, this, &Workspace::listOptionsChanged);
        connect(store, &AppStore::taskSortChanged, this, &Workspace::listOptionsChanged);
        connect(store, &AppStore::searchQueryChanged, this, &Workspace::listOptionsChanged);
        connect(store, &AppStore::selectedTaskIdsChanged, this, &Workspace::checkedChanged);
        connect(store, &AppStore::lastErrorChanged, this, &Workspace::lastErrorChanged);
        connect(store, &AppStore::isLoadingChanged, this, &Workspace::loadingChanged);
        connect(store, &AppStore::realtimeConnectedChanged, this, &Workspace::onlineChanged);
        connect(store, &AppStore::profileChanged, this, &Workspace::profileChanged);
        connect(store, &AppStore::runningTaskChanged, this, &Workspace::timerChanged);
        connect(store, &AppStore::tasksChanged, this, &Workspace::timerChanged);
        connect(store, &AppStore::entriesChanged, this, &Workspace::timerChanged);
        connect(store->timerObject(), &TimerStore::tickNowChanged, this, &Workspace::timerTextChanged);
        // The billed chips need the unbilled work, which the refresh does not read; the store
        // keeps it current afterwards.
        connect(store, &AppStore::lastRefreshedAtChanged, this, [this] {
            if (m_store && !m_store->unbilledReady()) {
                m_store->loadUnbilledEntries();
            }
        });
        connect(store, &AppStore::runningTaskChanged, this, &Workspace::timerTextChanged);
    }
    rebuildSidebar();
    rebuildTasks();
    emit storeChanged();
    emit selectionChanged();
    emit projectChanged();
    emit teamsChanged();
    emit timerChanged();
    emit timerTextChanged();
}

void Workspace::retranslate()
{
    for (BillingEditor *editor : {m_projectPrice, m_inspector->priceEditor()}) {
        editor->setLanguage(Language::current());
        editor->retranslate();
    }
    m_rowCache.clear();
    m_invoices->retranslate();
    m_invoiceStyle->retranslate();
    m_composer->retranslate();
    m_trips->retranslate();
    rebuildSidebar();
    rebuildTasks();
    emit m_inspector->changed();
    emit m_inspector->entriesChanged();
    emit projectChanged();
}

void Workspace::scheduleRebuild()
{
    m_rebuild.start();
}

// --- Selection ------------------------------------------------------------------------------------

QString Workspace::selectedProjectId() const
{
    return m_store ? m_store->selectedProjectId() : QString();
}

void Workspace::selectProject(const QString &projectId)
{
    if (!m_store) {
        return;
    }
    m_store->setSelectedProjectId(projectId);
    m_store->clearSelection();
    const std::optional<TaskItem> selected = m_store->task(m_store->selectedTaskId());
    if (selected && !projectId.isEmpty() && selected->projectId != projectId) {
        m_store->setSelectedTaskId({});
    }
}

QString Workspace::selectedTaskId() const
{
    return m_store ? m_store->selectedTaskId() : QString();
}

void Workspace::selectTask(const QString &taskId)
{
    if (m_store) {
        m_store->setSelectedTaskId(taskId);
    }
}

QString Workspace::selectNeighbor(bool next)
{
    if (!m_store) {
        return {};
    }
    const QList<QVariantHash> &rows = m_tasks->rows();
    if (rows.isEmpty()) {
        return {};
    }
    const int at = m_tasks->indexOf(m_store->selectedTaskId());
    int target = 0;
    if (at < 0) {
        target = next ? 0 : int(rows.size()) - 1;
    } else {
        target = std::clamp(at + (next ? 1 : -1), 0, int(rows.size()) - 1);
    }
    const QString id = rows.at(target).value(u"id"_s).toString();
    m_store->setSelectedTaskId(id);
    return id;
}

void Workspace::selectProjectAt(int number)
{
    int seen = 0;
    for (const QVariantHash &row : m_sidebar->rows()) {
        if (row.value(u"kind"_s).toString() == u"project" && ++seen == number) {
            selectProject(row.value(u"id"_s).toString());
            return;
        }
    }
}

void Workspace::toggleChecked(const QString &taskId)
{
    if (m_store) {
        m_store->toggleSelection(taskId);
    }
}

void Workspace::checkRange(const QString &fromTaskId, const QString &toTaskId)
{
    if (!m_store) {
        return;
    }
    int from = m_tasks->indexOf(fromTaskId);
    int to = m_tasks->indexOf(toTaskId);
    if (from < 0 || to < 0) {
        return;
    }
    if (from > to) {
        std::swap(from, to);
    }
    for (int i = from; i <= to; ++i) {
        const QString id = m_tasks->rows().at(i).value(u"id"_s).toString();
        if (!m_store->selectedTaskIds().contains(id)) {
            m_store->toggleSelection(id);
        }
    }
}

void Workspace::clearChecked()
{
    if (m_store) {
        m_store->clearSelection();
    }
}

QStringList Workspace::checkedTaskIds() const
{
    return m_store ? m_store->selectedTaskIdList() : QStringList();
}

QString Workspace::filter() const
{
    return m_store ? m_store->taskFilterName() : u"all"_s;
}

void Workspace::setFilter(const QString &filter)
{
    if (m_store) {
        m_store->setTaskFilterName(filter);
    }
}

QString Workspace::sort() const
{
    return m_store ? m_store->taskSortName() : u"manual"_s;
}

void Workspace::setSort(const QString &sort)
{
    if (m_store) {
        m_store->setTaskSortName(sort);
    }
}

QString Workspace::search() const
{
    return m_store ? m_store->searchQuery() : QString();
}

void Workspace::setSearch(const QString &search)
{
    if (m_store) {
        m_store->setSearchQuery(search);
    }
}

QString Workspace::lastError() const
{
    return m_store ? m_store->lastError() : QString();
}

void Workspace::dismissError()
{
    if (m_store) {
        m_store->clearLastError();
    }
    setMessage({});
}

void Workspace::setMessage(const QString &message)
{
    if (m_message == message) {
        return;
    }
    m_message = message;
    emit messageChanged();
}

bool Workspace::isLoading() const
{
    return m_store && m_store->isLoading();
}

bool Workspace::isOnline() const
{
    return m_store && m_store->realtimeConnected();
}

QString Workspace::displayName() const
{
    if (!m_store || !m_store->profile()) {
        return {};
    }
    const Profile &profile = *m_store->profile();
    return profile.displayName.value_or(profile.email.value_or(QString()));
}

// --- Projects and teams -----------------------------------------------------------------------------

QVariantMap Workspace::project() const
{
    if (!m_store) {
        return {};
    }
    const std::optional<Project> project = m_store->project(m_store->selectedProjectId());
    if (!project) {
        return {};
    }
    QString teamName;
    for (const Team &team : m_store->teams()) {
        if (project->teamId && team.id == *project->teamId) {
            teamName = team.name;
        }
    }
    return {
        {u"id"_s, project->id},
        {u"name"_s, project->name},
        {u"description"_s, project->description.value_or(QString())},
        {u"status"_s, Wire::enumName(project->status)},
        {u"teamId"_s, project->teamId.value_or(QString())},
        {u"teamName"_s, teamName},
        {u"canEdit"_s, m_store->isProjectAdmin(project->id)},
        {u"isOwner"_s, project->userId == m_store->currentUserId()},
    };
}

QVariantList Workspace::projectChoices() const
{
    QVariantList choices;
    if (!m_store) {
        return choices;
    }
    QList<Project> projects = m_store->projects();
    std::sort(projects.begin(), projects.end(),
              [](const Project &a, const Project &b) { return a.name.localeAwareCompare(b.name) < 0; });
    for (const Project &project : projects) {
        if (project.status == ProjectStatus::Active && m_store->isProjectAdmin(project.id)) {
            choices << QVariantMap{{u"id"_s, project.id}, {u"name"_s, project.name}};
        }
    }
    return choices;
}

QVariantList Workspace::teams() const
{
    QVariantList list;
    if (!m_store) {
        return list;
    }
    for (const Team &team : m_store->teams()) {
        QVariantList members;
        for (const TeamMember &member : m_store->membersByTeam().value(team.id)) {
            members << QVariantMap{{u"userId"_s, member.userId},
                                   {u"email"_s, member.email},
                                   {u"role"_s, Wire::enumName(member.role)},
                                   {u"isMe"_s, member.userId == m_store->currentUserId()}};
        }
        const std::optional<TeamRole> role = m_store->roleInTeam(team.id);
        list << QVariantMap{{u"id"_s, team.id},
                            {u"name"_s, team.name},
                            {u"members"_s, members},
                            {u"canInvite"_s, role == TeamRole::Owner || role == TeamRole::Editor},
                            {u"canManage"_s, role == TeamRole::Owner}};
    }
    return list;
}

QVariantList Workspace::invitations() const
{
    QVariantList list;
    if (!m_store) {
        return list;
    }
    for (const TeamInvitation &invitation : m_store->invitations()) {
        list << QVariantMap{{u"teamId"_s, invitation.teamId},
                            {u"teamName"_s, invitation.teamName},
                            {u"role"_s, Wire::enumName(invitation.role)},
                            {u"invitedBy"_s, invitation.invitedByName.value_or(
                                                 invitation.invitedByEmail.value_or(QString()))}};
    }
    return list;
}

void Workspace::createProject(const QString &name)
{
    if (!m_store || name.trimmed().isEmpty()) {
        return;
    }
    [](QPointer<Workspace> self, QPointer<AppStore> store, QString name) -> QCoro::Task<> {
        ProjectInsert draft;
        draft.userId = store->currentUserId();
        draft.name = name;
        const std::optional<Project> created = co_await store->createProject(draft);
        if (self && store && created) {
            self->selectProject(created->id);
            emit self->projectCreated(created->id);
        }
    }(this, m_store, name.trimmed());
}

void Workspace::renameProject(const QString &projectId, const QString &name)
{
    const std::optional<Project> project = m_store ? m_store->project(projectId) : std::nullopt;
    if (!project || name.trimmed().isEmpty() || name.trimmed() == project->name) {
        return;
    }
    // The patch clears an absent description or rate, so the current ones go along.
    ProjectPatch patch;
    patch.name = name.trimmed();
    patch.description = project->description;
    patch.hourlyRate = project->hourlyRate;
    m_store->updateProject(projectId, patch);
}

void Workspace::describeProject(const QString &projectId, const QString &description)
{
    const std::optional<Project> project = m_store ? m_store->project(projectId) : std::nullopt;
    const QString text = description.trimmed();
    if (!project || text == project->description.value_or(QString())) {
        return;
    }
    ProjectPatch patch;
    patch.description = text.isEmpty() ? std::nullopt : std::optional(text);
    patch.hourlyRate = project->hourlyRate;
    m_store->updateProject(projectId, patch);
}

void Workspace::setProjectStatus(const QString &projectId, const QString &status)
{
    const std::optional<ProjectStatus> value = Wire::enumFromName<ProjectStatus>(status);
    if (m_store && value) {
        m_store->setProjectStatus(projectId, *value);
    }
}

void Workspace::deleteProject(const QString &projectId)
{
    if (!m_store) {
        return;
    }
    if (m_store->selectedProjectId() == projectId) {
        selectProject({});
    }
    m_store->deleteProject(projectId);
}

void Workspace::shareProject(const QString &projectId, const QString &teamId)
{
    if (m_store) {
        m_store->assignProjectToTeam(projectId, teamId.isEmpty() ? std::nullopt : std::optional(teamId));
    }
}

void Workspace::editProjectPrice()
{
    const std::optional<Project> project = m_store ? m_store->project(m_store->selectedProjectId()) : std::nullopt;
    if (!project) {
        return;
    }
    m_projectPrice->setCurrency(m_store->currency());
    m_projectPrice->setLanguage(Language::current());
    m_projectPrice->loadProject(*project, m_store->defaultHourlyRate());
}

bool Workspace::saveProjectPrice()
{
    const QString projectId = m_store ? m_store->selectedProjectId() : QString();
    if (projectId.isEmpty() || !m_projectPrice->canSave()) {
        return false;
    }
    if (const std::optional<Earnings::ProjectBillingWrite> write = m_projectPrice->projectWrite()) {
        m_store->updateProjectBilling(projectId, *write);
    }
    return true;
}

void Workspace::createTeam(const QString &name)
{
    if (m_store && !name.trimmed().isEmpty()) {
        m_store->createTeam(name.trimmed());
    }
}

void Workspace::invite(const QString &teamId, const QString &email, const QString &role)
{
    const std::optional<TeamRole> value = Wire::enumFromName<TeamRole>(role);
    if (!m_store || !value) {
        return;
    }
    [](QPointer<Workspace> self, QPointer<AppStore> store, QString teamId, QString email,
       TeamRole role) -> QCoro::Task<> {
        const InviteOutcome outcome = co_await store->inviteMember(teamId, email, role);
        if (self) {
            self->setMessage(outcome.text());
        }
    }(this, m_store, teamId, email.trimmed(), *value);
}

void Workspace::setMemberRole(const QString &teamId, const QString &userId, const QString &role)
{
    const std::optional<TeamRole> value = Wire::enumFromName<TeamRole>(role);
    if (m_store && value) {
        m_store->setMemberRole(teamId, userId, *value);
    }
}

void Workspace::removeMember(const QString &teamId, const QString &userId)
{
    if (m_store) {
        m_store->removeMember(teamId, userId);
    }
}

void Workspace::answerInvitation(const QString &teamId, bool accept)
{
    if (m_store) {
        accept ? m_store->acceptInvitation(teamId) : m_store->declineInvitation(teamId);
    }
}

// --- Tasks ----------------------------------------------------------------------------------------

void Workspace::createTask(const QString &title)
{
    if (!m_store || title.trimmed().isEmpty()) {
        return;
    }
    QString projectId = m_store->selectedProjectId();
    if (projectId.isEmpty()) {
        const QVariantList choices = projectChoices();
        if (choices.isEmpty()) {
            //% "Create a project first: tasks belong to a project."
            setMessage(qtTrId("ui.tasks.needsProject"));
            return;
        }
        projectId = choices.first().toMap().value(u"id"_s).toString();
    }
    [](QPointer<Workspace> self, QPointer<AppStore> store, QString projectId, QString title) -> QCoro::Task<> {
        TaskInsert draft;
        draft.userId = store->currentUserId();
        draft.projectId = projectId;
        draft.title = title;
        const std::optional<TaskItem> created = co_await store->createTask(draft);
        if (self && store && created) {
            store->setSelectedTaskId(created->id);
            emit self->taskCreated(created->id);
        }
    }(this, m_store, projectId, title.trimmed());
}

void Workspace::setTaskStatus(const QString &taskId, const QString &status)
{
    const std::optional<TaskStatus> value = Wire::enumFromName<TaskStatus>(status);
    if (m_store && value) {
        m_store->setTaskStatus(taskId, *value);
    }
}

void Workspace::deleteTask(const QString &taskId)
{
    if (!m_store) {
        return;
    }
    if (m_store->selectedTaskId() == taskId) {
        m_store->setSelectedTaskId({});
    }
    m_store->deleteTask(taskId);
}

void Workspace::bulkSetStatus(const QString &status)
{
    const std::optional<TaskStatus> value = Wire::enumFromName<TaskStatus>(status);
    if (m_store && value) {
        m_store->bulkUpdateStatus(*value);
    }
}

void Workspace::bulkDelete()
{
    if (m_store) {
        if (m_store->selectedTaskIds().contains(m_store->selectedTaskId())) {
            m_store->setSelectedTaskId({});
        }
        m_store->bulkDelete();
    }
}

void Workspace::bulkMove(const QString &projectId)
{
    if (m_store) {
        m_store->bulkMoveToProject(projectId);
    }
}

void Workspace::moveTaskInList(const QString &taskId, int toRow)
{
    if (!m_store || m_store->taskSort() != TaskSort::Manual || m_store->selectedProjectId().isEmpty()) {
        return;
    }
    QStringList order;
    for (const QVariantHash &row : m_tasks->rows()) {
        order << row.value(u"id"_s).toString();
    }
    const qsizetype from = order.indexOf(taskId);
    if (from < 0 || toRow < 0 || toRow >= order.size() || from == toRow) {
        return;
    }
    order.move(from, toRow);
    m_store->reorderTasks(m_store->selectedProjectId(), order);
}

// --- Timer ----------------------------------------------------------------------------------------

void Workspace::startTimer(const QString &taskId)
{
    if (m_store && !taskId.isEmpty()) {
        m_lastRunningTaskId = taskId;
        m_store->startTimer(taskId);
    }
}

void Workspace::stopTimer()
{
    if (m_store) {
        if (const std::optional<TaskItem> running = m_store->runningTask()) {
            m_store->stopTimer(running->id);
        }
    }
}

void Workspace::toggleTimer(const QString &taskId)
{
    if (!m_store) {
        return;
    }
    const std::optional<TaskItem> running = m_store->runningTask();
    if (running && (taskId.isEmpty() || running->id == taskId)) {
        m_store->stopTimer(running->id);
        return;
    }
    startTimer(taskId.isEmpty() ? lastTaskId() : taskId);
}

bool Workspace::timerRunning() const
{
    return m_store && m_store->runningTask().has_value();
}

QString Workspace::runningTaskId() const
{
    const std::optional<TaskItem> running = m_store ? m_store->runningTask() : std::nullopt;
    return running ? running->id : QString();
}

QString Workspace::runningTaskTitle() const
{
    const std::optional<TaskItem> running = m_store ? m_store->runningTask() : std::nullopt;
    return running ? running->title : QString();
}

QString Workspace::runningProjectId() const
{
    const std::optional<TaskItem> running = m_store ? m_store->runningTask() : std::nullopt;
    return running ? running->projectId : QString();
}

QString Workspace::runningProjectName() const
{
    const std::optional<TaskItem> running = m_store ? m_store->runningTask() : std::nullopt;
    const std::optional<Project> project = running ? m_store->project(running->projectId) : std::nullopt;
    return project ? project->name : QString();
}

QString Workspace::timerText() const
{
    const std::optional<TaskItem> running = m_store ? m_store->runningTask() : std::nullopt;
    return running ? m_store->timer().elapsedString(running->timeSpentSeconds) : TimerStore::format(0);
}

QVariantList Workspace::recentTasks() const
{
    QVariantList list;
    if (!m_store) {
        return list;
    }
    QStringList seen;
    const auto add = [&](const QString &taskId) {
        if (seen.contains(taskId)) {
            return;
        }
        const std::optional<TaskItem> task = m_store->task(taskId);
        if (!task) {
            return;
        }
        seen << taskId;
        const std::optional<Project> project = m_store->project(task->projectId);
        list << QVariantMap{{u"id"_s, task->id},
                            {u"title"_s, task->title},
                            {u"projectName"_s, project ? project->name : QString()}};
    };
    if (!m_lastRunningTaskId.isEmpty()) {
        add(m_lastRunningTaskId);
    }
    // Newest first: the first five tasks found are the list, however many entries follow.
    for (const TimeEntry &entry : m_store->recentEntries()) {
        if (seen.size() >= 5) {
            break;
        }
        add(entry.taskId);
    }
    return list;
}

QString Workspace::lastTaskId() const
{
    const QString running = runningTaskId();
    if (!running.isEmpty()) {
        return running;
    }
    const QVariantList recent = recentTasks();
    if (!recent.isEmpty()) {
        return recent.first().toMap().value(u"id"_s).toString();
    }
    return selectedTaskId();
}

// --- Rows -----------------------------------------------------------------------------------------

void Workspace::rebuildSidebar()
{
    QList<QVariantHash> rows;
    if (!m_store) {
        m_sidebar->setRows(rows);
        return;
    }
    const std::optional<TaskItem> running = m_store->runningTask();
    int openTotal = 0;
    QHash<QString, int> openByProject;
    for (auto it = m_store->tasksByProject().begin(); it != m_store->tasksByProject().end(); ++it) {
        const int open = int(std::count_if(it.value().begin(), it.value().end(), isOpen));
        openByProject.insert(it.key(), open);
        openTotal += open;
    }
    //% "All projects"
    rows << QVariantHash{{u"key"_s, u"overview"_s},      {u"kind"_s, u"overview"_s},
                         {u"title"_s, qtTrId("ui.sidebar.overview")}, {u"count"_s, openTotal},
                         {u"running"_s, running.has_value()}};
    QList<Project> projects = m_store->projects();
    std::sort(projects.begin(), projects.end(),
              [](const Project &a, const Project &b) { return a.name.localeAwareCompare(b.name) < 0; });
    for (const ProjectStatus status : {ProjectStatus::Active, ProjectStatus::Completed, ProjectStatus::Archived}) {
        QList<QVariantHash> group;
        for (const Project &project : projects) {
            if (project.status != status) {
                continue;
            }
            group << QVariantHash{{u"key"_s, QString(u"p:"_s + project.id)},
                                  {u"kind"_s, u"project"_s},
                                  {u"id"_s, project.id},
                                  {u"title"_s, project.name},
                                  {u"count"_s, openByProject.value(project.id)},
                                  {u"running"_s, running && running->projectId == project.id},
                                  {u"shared"_s, project.teamId.has_value()},
                                  {u"status"_s, Wire::enumName(status)}};
        }
        if (group.isEmpty()) {
            continue;
        }
        rows << QVariantHash{{u"key"_s, QString(u"h:"_s + Wire::enumName(status))},
                             {u"kind"_s, u"header"_s},
                             {u"title"_s, statusName(status)},
                             {u"count"_s, int(group.size())},
                             {u"status"_s, Wire::enumName(status)}};
        rows << group;
    }
    if (!m_store->teams().isEmpty() || !m_store->invitations().isEmpty()) {
        //% "Teams"
        rows << QVariantHash{{u"key"_s, u"h:teams"_s},
                             {u"kind"_s, u"header"_s},
                             {u"title"_s, qtTrId("ui.sidebar.teams")},
                             {u"count"_s, int(m_store->teams().size())}};
        for (const Team &team : m_store->teams()) {
            rows << QVariantHash{{u"key"_s, QString(u"t:"_s + team.id)},
                                 {u"kind"_s, u"team"_s},
                                 {u"id"_s, team.id},
                                 {u"title"_s, team.name},
                                 {u"count"_s, int(m_store->membersByTeam().value(team.id).size())}};
        }
    }
    m_sidebar->setRows(rows);
}

QList<TaskItem> Workspace::visibleTasks() const
{
    const QString projectId = m_store->selectedProjectId();
    const QString query = m_store->searchQuery().trimmed();
    const auto matches = [&](const TaskItem &task) {
        return query.isEmpty() || task.title.contains(query, Qt::CaseInsensitive) ||
               (task.description && task.description->contains(query, Qt::CaseInsensitive));
    };
    if (!projectId.isEmpty()) {
        QList<TaskItem> found = m_store->filteredSortedTasks(projectId);
        found.removeIf([&](const TaskItem &task) { return !matches(task); });
        return found;
    }
    // All projects: the active projects' tasks as one list, in the same order rules. The search
    // goes first, so that a narrowing search sorts few tasks; the sorts are stable, so the order
    // is the same either way.
    QList<TaskItem> all;
    for (const Project &project : m_store->projects()) {
        if (project.status == ProjectStatus::Active) {
            for (const TaskItem &task : m_store->tasksByProject().value(project.id)) {
                if (matches(task)) {
                    all << task;
                }
            }
        }
    }
    static const QString never;
    std::stable_sort(all.begin(), all.end(), [](const TaskItem &a, const TaskItem &b) {
        return (a.createdAt ? *a.createdAt : never) > (b.createdAt ? *b.createdAt : never);
    });
    return TaskOrder::filterAndSort(all, m_store->taskFilter(), m_store->taskSort(), QDateTime::currentDateTimeUtc());
}

// What every row of one rebuild shares, looked up once: asked per task, the projects, roles and
// unbilled work would be searched ten thousand times over for a busy account.
struct Workspace::RowContext
{
    QHash<QString, Project> projects;
    QHash<QString, bool> editable;
    QHash<QString, double> billed;
    bool unbilledReady = false;
    double rate = 0;
    QString currency;
    QLocale locale;
    QDate today = QDate::currentDate();
};

QVariantHash Workspace::taskRow(const TaskItem &task, const RowContext &context) const
{
    const auto project = context.projects.constFind(task.projectId);
    const Project *projectPtr = project != context.projects.cend() ? &*project : nullptr;
    const Billing billing = Earnings::resolve(&task, projectPtr, context.rate);
    const auto billed = context.billed.constFind(task.id);
    const BilledChip::Chip chip =
        context.unbilledReady
            ? BilledChip::classify(billed != context.billed.cend() ? std::optional(*billed) : std::nullopt, true)
            : BilledChip::Chip{};
    QString due;
    bool overdue = false;
    if (task.dueDate && task.dueDate->size() >= 10) {
        const QDate day = QDate::fromString(task.dueDate->left(10), Qt::ISODate);
        due = context.locale.toString(day, QLocale::ShortFormat);
        overdue = task.status != TaskStatus::Completed && day < context.today;
    }
    QString subtasks;
    if (task.attachments && task.attachments->subtasks && !task.attachments->subtasks->isEmpty()) {
        const QList<Subtask> &list = *task.attachments->subtasks;
        subtasks = QString::number(std::count_if(list.begin(), list.end(), [](const Subtask &s) { return s.done; })) +
                   u'/' + QString::number(list.size());
    }
    return {
        {u"key"_s, task.id},
        {u"id"_s, task.id},
        {u"title"_s, task.title},
        {u"projectId"_s, task.projectId},
        {u"projectName"_s, projectPtr ? projectPtr->name : QString()},
        {u"status"_s, Wire::enumName(task.status)},
        {u"priority"_s, Wire::enumName(task.priority)},
        {u"due"_s, due},
        {u"overdue"_s, overdue},
        {u"tracked"_s, task.timeSpentSeconds > 0 ? Earnings::formatHM(task.timeSpentSeconds) : QString()},
        {u"chipLabel"_s, chip.label},
        {u"chipTone"_s, toneName(chip.tone)},
        {u"chipOpacity"_s, chip.opacity},
        {u"price"_s, Earnings::describe(billing, context.currency,
                                        Earnings::legacyRate(&task, projectPtr, context.rate))},
        {u"saving"_s, m_store->savingTaskIds().contains(task.id)},
        {u"checked"_s, m_store->selectedTaskIds().contains(task.id)},
        {u"running"_s, task.status == TaskStatus::InProgress},
        {u"subtasks"_s, subtasks},
        {u"editable"_s, context.editable.value(task.projectId)},
    };
}

void Workspace::rebuildTasks()
{
    QList<QVariantHash> rows;
    if (m_store) {
        const QList<TaskItem> tasks = visibleTasks();
        // A row says "overdue" against today.
        if (m_rowCacheDay != QDate::currentDate()) {
            m_rowCache.clear();
            m_rowCacheDay = QDate::currentDate();
        }
        std::optional<RowContext> context;
        rows.reserve(tasks.size());
        for (const TaskItem &task : tasks) {
            const auto cached = m_rowCache.constFind(task.id);
            if (cached != m_rowCache.cend()) {
                rows << *cached;
                continue;
            }
            if (!context) {
                context.emplace();
                for (const Project &project : m_store->projects()) {
                    context->projects.insert(project.id, project);
                    context->editable.insert(project.id, m_store->isProjectAdmin(project.id));
                }
                context->unbilledReady = m_store->unbilledReady();
                if (context->unbilledReady) {
                    context->billed = m_store->taskBilledFractions();
                }
                context->rate = m_store->defaultHourlyRate();
                context->currency = m_store->currency();
            }
            rows << m_rowCache.insert(task.id, taskRow(task, *context)).value();
        }
    }
    m_tasks->setRows(std::move(rows));
}

void Workspace::searchPalette(const QString &query)
{
    struct Hit
    {
        int score;
        QVariantHash row;
    };
    QList<Hit> hits;
    const auto consider = [&](const QString &text, QVariantHash row, int weight) {
        if (const std::optional<int> score = FuzzyMatch::score(query, text)) {
            row.insert(u"title"_s, text);
            hits << Hit{*score + weight, std::move(row)};
        }
    };
    for (const PaletteAction &action : paletteActions) {
        const QString name = QString::fromLatin1(action.name);
        consider(action.title(), {{u"key"_s, QString(u"a:"_s + name)}, {u"kind"_s, u"action"_s}, {u"id"_s, name}}, 2);
    }
    if (m_store) {
        for (const Project &project : m_store->projects()) {
            // Projects rank before their own tasks of the same name: picking one opens the list.
            consider(project.name,
                     {{u"key"_s, QString(u"p:"_s + project.id)},
                      {u"kind"_s, u"project"_s},
                      {u"id"_s, project.id},
                      {u"subtitle"_s, statusName(project.status)}},
                     project.status == ProjectStatus::Active ? 3 : 0);
        }
        for (const QList<TaskItem> &tasks : m_store->tasksByProject()) {
            for (const TaskItem &task : tasks) {
                const std::optional<Project> project = m_store->project(task.projectId);
                consider(task.title,
                         {{u"key"_s, QString(u"t:"_s + task.id)},
                          {u"kind"_s, u"task"_s},
                          {u"id"_s, task.id},
                          {u"projectId"_s, task.projectId},
                          {u"subtitle"_s, project ? project->name : QString()}},
                         task.status == TaskStatus::Completed ? 0 : 1);
            }
        }
    }
    std::stable_sort(hits.begin(), hits.end(), [](const Hit &a, const Hit &b) { return a.score > b.score; });
    QList<QVariantHash> rows;
    for (const Hit &hit : hits) {
        if (rows.size() == paletteLimit) {
            break;
        }
        rows << hit.row;
    }
    // Whatever was typed can also be said to the assistant, after what matched.
    if (const QString sentence = query.trimmed(); !sentence.isEmpty()) {
        //% "Quick add “%1”"
        rows << QVariantHash{{u"key"_s, u"capture"_s},
                             {u"kind"_s, u"capture"_s},
                             {u"id"_s, sentence},
                             {u"title"_s, qtTrId("ui.palette.capture").arg(sentence)},
                             {u"subtitle"_s, QString()},
                             {u"projectId"_s, QString()}};
    }
    m_palette->setRows(std::move(rows));
}
