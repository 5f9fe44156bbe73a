#include "appstore.h"

#include "appstore_p.h"
#include "backend/authstore.h"
#include "backend/supabase.h"
#include "i18n/language.h"
#include "model/isodate.h"
#include "store/pendingonboarding.h"
#include "store/storelog.h"
#include "store/storetext.h"

#include <QTimeZone>

#include <algorithm>
#include <limits>
#include <vector>

Q_LOGGING_CATEGORY(lcStore, "morvane.store")

using namespace Qt::StringLiterals;
using namespace StoreDetail;

namespace {

QSet<QString> idSet(const QStringList &ids)
{
    return {ids.cbegin(), ids.cend()};
}

} // namespace

AppStore::AppStore(AuthStore &auth, std::shared_ptr<QSettings> settings, Clock clock, QObject *parent)
    : QObject(parent)
    , m_auth(auth)
    , m_settings(std::move(settings))
    , m_clock(std::move(clock))
    , m_timer(m_clock)
{
    m_pollTimer.setSingleShot(true);
    connect(&m_pollTimer, &QTimer::timeout, this, [this] { pollStep(m_pollRun); });
}

AppStore::~AppStore() = default;

// ---- Published state -------------------------------------------------------------------------

std::optional<Project> AppStore::project(const QString &projectId) const
{
    for (const Project &project : m_projects) {
        if (project.id == projectId) {
            return project;
        }
    }
    return std::nullopt;
}

std::optional<TaskItem> AppStore::task(const QString &taskId) const
{
    const auto owner = m_projectOfTask.constFind(taskId);
    if (owner == m_projectOfTask.cend()) {
        return std::nullopt;
    }
    for (const TaskItem &task : m_tasksByProject.value(*owner)) {
        if (task.id == taskId) {
            return task;
        }
    }
    return std::nullopt;
}

QString AppStore::currency() const
{
    return m_profile && m_profile->currency && !m_profile->currency->isEmpty() ? *m_profile->currency : u"EUR"_s;
}

double AppStore::defaultHourlyRate() const
{
    return m_profile && m_profile->defaultHourlyRate ? *m_profile->defaultHourlyRate : 0.0;
}

std::optional<TaskItem> AppStore::runningTask() const
{
    std::optional<TaskItem> running;
    qint64 runningSince = 0;
    for (const QList<TaskItem> &tasks : m_tasksByProject) {
        for (const TaskItem &task : tasks) {
            if (task.status != TaskStatus::InProgress) {
                continue;
            }
            const qint64 since = instantKey(task.startedAt);
            if (!running || since > runningSince || (since == runningSince && task.id < running->id)) {
                running = task;
                runningSince = since;
            }
        }
    }
    return running;
}

void AppStore::setSelectedProjectId(const QString &projectId)
{
    if (m_selectedProjectId == projectId) {
        return;
    }
    m_selectedProjectId = projectId;
    emit selectedProjectIdChanged();
}

void AppStore::setSelectedTaskId(const QString &taskId)
{
    if (m_selectedTaskId == taskId) {
        return;
    }
    m_selectedTaskId = taskId;
    emit selectedTaskIdChanged();
}

QStringList AppStore::savingTaskIdList() const
{
    QStringList ids(m_savingTaskIds.cbegin(), m_savingTaskIds.cend());
    ids.sort();
    return ids;
}

void AppStore::setRealtimeConnected(bool connected)
{
    if (m_realtimeConnected == connected) {
        return;
    }
    m_realtimeConnected = connected;
    emit realtimeConnectedChanged();
}

QStringList AppStore::selectedTaskIdList() const
{
    QStringList ids(m_selectedTaskIds.cbegin(), m_selectedTaskIds.cend());
    ids.sort();
    return ids;
}

void AppStore::toggleSelection(const QString &taskId)
{
    QSet<QString> ids = m_selectedTaskIds;
    if (!ids.remove(taskId)) {
        ids.insert(taskId);
    }
    setSelectedTaskIds(std::move(ids));
}

void AppStore::clearSelection()
{
    setSelectedTaskIds({});
}

void AppStore::setSelectedTaskIds(QSet<QString> ids)
{
    if (m_selectedTaskIds == ids) {
        return;
    }
    m_selectedTaskIds = std::move(ids);
    emit selectedTaskIdsChanged();
}

void AppStore::setSidebarSelection(const SidebarSelection &selection)
{
    if (m_sidebarSelection == selection) {
        return;
    }
    m_sidebarSelection = selection;
    emit sidebarSelectionChanged();
}

void AppStore::setTaskFilter(TaskFilter filter)
{
    if (m_taskFilter == filter) {
        return;
    }
    m_taskFilter = filter;
    emit taskFilterChanged();
}

QString AppStore::taskFilterName() const
{
    return Wire::enumName(m_taskFilter);
}

void AppStore::setTaskFilterName(const QString &name)
{
    if (const std::optional<TaskFilter> filter = Wire::enumFromName<TaskFilter>(name)) {
        setTaskFilter(*filter);
    }
}

void AppStore::setTaskSort(TaskSort sort)
{
    if (m_taskSort == sort) {
        return;
    }
    m_taskSort = sort;
    emit taskSortChanged();
}

QString AppStore::taskSortName() const
{
    return Wire::enumName(m_taskSort);
}

void AppStore::setTaskSortName(const QString &name)
{
    if (const std::optional<TaskSort> sort = Wire::enumFromName<TaskSort>(name)) {
        setTaskSort(*sort);
    }
}

void AppStore::setSearchQuery(const QString &query)
{
    if (m_searchQuery == query) {
        return;
    }
    m_searchQuery = query;
    emit searchQueryChanged();
}

void AppStore::setAiProgress(const QString &progress)
{
    if (m_aiProgress == progress) {
        return;
    }
    m_aiProgress = progress;
    emit aiProgressChanged();
}

void AppStore::setLastError(const QString &message)
{
    if (m_lastError == message) {
        return;
    }
    m_lastError = message;
    emit lastErrorChanged();
}

void AppStore::failed(const char *logPrefix, const QString &detail, const QString &message)
{
    qCWarning(lcStore).noquote() << QString(QLatin1StringView(logPrefix) + detail);
    setLastError(message);
}

void AppStore::writeFailed(const char *logPrefix, const MorvaneError &error, const QString &refusedMessage)
{
    failed(logPrefix, error.message(), isRefusal(error) ? refusedMessage : StoreText::writeFailed());
}

void AppStore::setLoadingDepth(int depth)
{
    const bool was = isLoading();
    m_loadingDepth = depth;
    if (was != isLoading()) {
        emit isLoadingChanged();
    }
}

void AppStore::setLastRefreshedAt(const QDateTime &at)
{
    if (m_lastRefreshedAt == at) {
        return;
    }
    m_lastRefreshedAt = at;
    emit lastRefreshedAtChanged();
}

void AppStore::setCurrentUserId(const QString &userId)
{
    if (m_currentUserId == userId) {
        return;
    }
    m_currentUserId = userId;
    emit currentUserIdChanged();
}

void AppStore::setProfile(const std::optional<Profile> &profile)
{
    if (m_profile == profile) {
        return;
    }
    m_profile = profile;
    emit profileChanged();
}

void AppStore::setProjects(QList<Project> projects)
{
    if (m_projects == projects) {
        return;
    }
    m_projects = std::move(projects);
    emit projectsChanged();
    // Team mates' rows reach this device only through bindings on the team's projects.
    QStringList teamProjects;
    for (const Project &project : std::as_const(m_projects)) {
        if (project.teamId) {
            teamProjects.append(project.id);
        }
    }
    teamProjects.sort();
    if (teamProjects != m_teamProjectIds) {
        m_teamProjectIds = teamProjects;
        if (m_realtime) {
            m_realtime->setTeamProjects(m_teamProjectIds);
        }
    }
}

void AppStore::setTeams(QList<Team> teams, QHash<QString, QList<TeamMember>> members)
{
    if (m_teams == teams && m_membersByTeam == members) {
        return;
    }
    m_teams = std::move(teams);
    m_membersByTeam = std::move(members);
    emit teamsChanged();
}

void AppStore::setInvitations(QList<TeamInvitation> invitations)
{
    if (m_invitations == invitations) {
        return;
    }
    m_invitations = std::move(invitations);
    emit invitationsChanged();
}

// ---- Sessions --------------------------------------------------------------------------------

QCoro::Task<std::optional<AppStore::Session>> AppStore::openSession(const char *logPrefix)
{
    const std::optional<QString> token = co_await m_auth.validToken(30);
    if (!token) {
        failed(logPrefix, u"not signed in"_s, StoreText::notSignedIn());
        co_return std::nullopt;
    }
    const QString userId = m_auth.userId();
    if (userId != m_currentUserId) {
        adoptUser(userId);
    }
    co_return Session{*token, m_generation};
}

void AppStore::adoptUser(const QString &userId)
{
    // Another account's rows must never show, not even until the first refresh ends.
    clearCollections();
    ++m_generation;
    setCurrentUserId(userId);
}

void AppStore::endSession()
{
    stopSync();
    clearCollections();
    ++m_generation;
    setCurrentUserId({});
}

void AppStore::clearCollections()
{
    setProjects({});
    if (!m_tasksByProject.isEmpty()) {
        m_tasksByProject.clear();
        m_projectOfTask.clear();
        tasksDidChange();
    }
    if (!m_entriesByTask.isEmpty() || !m_recentEntries.isEmpty()) {
        m_entriesByTask.clear();
        m_recentEntries.clear();
        emit entriesChanged();
    }
    setTeams({}, {});
    setInvitations({});
    setClients({});
    setInvoiceTemplates({});
    clearInvoices();
    clearTrips();
    setProfile(std::nullopt);
    setSelectedProjectId({});
    setSelectedTaskId({});
    setSelectedTaskIds({});
    setSidebarSelection({});
    setLastRefreshedAt({});
    setLastError({});
}

// ---- Loading ---------------------------------------------------------------------------------

QDateTime AppStore::recentWindowStart() const
{
    // Midnight of the local day 30 days back: the window follows the user's calendar, not UTC.
    const QDate today = m_clock().toLocalTime().date();
    return QDateTime(today.addDays(-recentWindowDays), QTime(0, 0)).toUTC();
}

QCoro::Task<bool> AppStore::refreshAll()
{
    std::optional<Session> session = co_await openSession("Refresh failed: ");
    if (!session) {
        co_return false;
    }
    LoadingScope loading(*this);
    const Supabase client = m_auth.client();
    const QDateTime windowStart = recentWindowStart();

    const QueryItems profileQuery{{u"select"_s, u"*"_s}};
    const QueryItems projectQuery{{u"select"_s, u"*"_s}, {u"order"_s, u"updated_at.desc"_s}};
    const QueryItems taskQuery{{u"select"_s, u"*"_s}, {u"order"_s, u"created_at.desc"_s}};
    const QueryItems entryQuery{{u"select"_s, u"*"_s},
                                {u"ended_at"_s, u"gte."_s + isoString(windowStart)},
                                {u"order"_s, u"ended_at.desc,id.desc"_s}};
    // All four are under way before the first is awaited.
    const auto profileRequest = [&](const QString &token) {
        return client.select<Profile>(u"profiles"_s, token, profileQuery);
    };
    const auto projectRequest = [&](const QString &token) {
        return client.select<Project>(u"projects"_s, token, projectQuery);
    };
    const auto taskRequest = [&](const QString &token) {
        return client.select<TaskItem>(u"tasks"_s, token, taskQuery);
    };
    const auto entryRequest = [&](const QString &token) {
        return client.selectAll<TimeEntry>(u"time_entries"_s, token, entryQuery);
    };
    QCoro::Task<QList<Profile>> profileRead = authorized(*session, profileRequest);
    QCoro::Task<QList<Project>> projectRead = authorized(*session, projectRequest);
    QCoro::Task<QList<TaskItem>> taskRead = authorized(*session, taskRequest);
    QCoro::Task<QList<TimeEntry>> entryRead = authorized(*session, entryRequest);

    QStringList failures;
    QList<Profile> profiles;
    QList<Project> projects;
    QList<TaskItem> tasks;
    std::optional<QList<TimeEntry>> entries;
    try {
        profiles = co_await profileRead;
    } catch (const MorvaneError &error) {
        failures << u"profiles: "_s + error.message();
    }
    try {
        projects = co_await projectRead;
    } catch (const MorvaneError &error) {
        failures << u"projects: "_s + error.message();
    }
    try {
        tasks = co_await taskRead;
    } catch (const MorvaneError &error) {
        failures << u"tasks: "_s + error.message();
    }
    try {
        entries = co_await entryRead;
    } catch (const MorvaneError &error) {
        // The entries are the least needed part: the lists still load without them.
        qCWarning(lcStore).noquote() << u"Load time entries failed: "_s + error.message();
    }
    if (!isCurrent(*session)) {
        co_return false;
    }
    if (!failures.isEmpty()) {
        failed("Refresh failed: ", failures.join(u"; "), StoreText::loadFailed());
        co_return false;
    }

    // Team mates' profiles come along (team views show their names); ours is the one with our id.
    std::optional<Profile> own;
    for (const Profile &profile : std::as_const(profiles)) {
        if (profile.id == m_currentUserId) {
            own = profile;
        }
    }
    setProfile(own);

    // Visibility depends on the user's roles, so the teams come before the tasks are grouped. A
    // failed team read leaves the last known teams in place and says so; the lists still load.
    co_await loadTeams();
    if (!isCurrent(*session)) {
        co_return false;
    }
    setProjects(std::move(projects));
    groupTasks(tasks);
    if (entries) {
        foldEntries(*entries, windowStart);
    }
    // The timer display follows runningTaskChanged, which groupTasks raised if the running task
    // changed; invoices join the refresh here once invoicing is built.
    co_await loadClients();
    co_await loadInvoiceTemplates();
    if (!isCurrent(*session)) {
        co_return false;
    }
    setLastRefreshedAt(m_clock());
    co_return true;
}

void AppStore::groupTasks(const QList<TaskItem> &tasks)
{
    // canSeeTask per project rather than per task: a refresh brings thousands of tasks.
    QHash<QString, bool> seesEveryTaskOf;
    for (const Project &project : std::as_const(m_projects)) {
        seesEveryTaskOf.insert(project.id, project.userId == m_currentUserId ||
                                               (project.teamId && roleInTeam(*project.teamId).has_value()));
    }
    QHash<QString, QList<TaskItem>> grouped;
    QHash<QString, QString> owners;
    owners.reserve(tasks.size());
    for (const TaskItem &task : tasks) {
        if (task.userId == m_currentUserId || seesEveryTaskOf.value(task.projectId)) {
            grouped[task.projectId].append(task);
            owners.insert(task.id, task.projectId);
        }
    }
    if (grouped == m_tasksByProject) {
        return;
    }
    m_tasksByProject = std::move(grouped);
    m_projectOfTask = std::move(owners);
    tasksDidChange();
}

void AppStore::foldEntries(const QList<TimeEntry> &entries, const QDateTime &windowStart)
{
    // Entries that ended before the window were loaded for one task on demand; the fresh read
    // says nothing about them, so they stay. Inside the window the fresh read is the truth.
    QHash<QString, QList<TimeEntry>> byTask;
    for (const TimeEntry &entry : entries) {
        byTask[entry.taskId].append(entry);
    }
    for (auto it = m_entriesByTask.cbegin(); it != m_entriesByTask.cend(); ++it) {
        for (const TimeEntry &entry : it.value()) {
            const std::optional<QDateTime> ended = isoDate(entry.endedAt);
            if (ended && *ended < windowStart) {
                byTask[it.key()].append(entry);
            }
        }
    }
    if (byTask == m_entriesByTask && entries == m_recentEntries) {
        return;
    }
    m_entriesByTask = std::move(byTask);
    m_recentEntries = entries;
    emit entriesChanged();
}

void AppStore::tasksDidChange()
{
    emit tasksChanged();
    const std::optional<TaskItem> running = runningTask();
    const QString key = running ? running->id + u'|' + running->startedAt.value_or(QString()) : QString();
    if (key != m_runningKey) {
        m_runningKey = key;
        m_timer.bind(running);
        emit runningTaskChanged();
    }
}

// ---- Sync ------------------------------------------------------------------------------------

void AppStore::startSync()
{
    m_syncing = true;
    ++m_pollRun;
    armPoll();
    if (!m_realtimeEnabled || m_auth.userId().isEmpty()) {
        return;
    }
    if (!m_realtime) {
        const Supabase client = m_auth.client();
        m_realtime = std::make_unique<RealtimeClient>(client.baseUrl(), client.anonKey(), m_realtimeScheduler);
        connect(m_realtime.get(), &RealtimeClient::connectedChanged, this, &AppStore::setRealtimeConnected);
        connect(m_realtime.get(), &RealtimeClient::changeReceived, this, &AppStore::applyRealtimeChange);
        // Changes may have been missed while the feed was down.
        connect(m_realtime.get(), &RealtimeClient::resyncRequested, this, [this] { refreshAll(); });
    }
    m_realtime->setTeamProjects(m_teamProjectIds);
    // A token that outlives the socket's next look at it by a margin.
    m_realtime->start(m_auth.userId(), [this] { return m_auth.validToken(300); });
}

void AppStore::stopSync()
{
    m_syncing = false;
    ++m_pollRun;
    m_pollTimer.stop();
    if (m_realtime) {
        m_realtime->stop();
    }
    setRealtimeConnected(false);
}

void AppStore::applyRealtimeChange(const RealtimeChange &change)
{
    using Kind = RealtimeChange::Kind;
    switch (change.kind) {
    case Kind::TaskInserted:
    case Kind::TaskUpdated:
        replaceTask(*change.task());
        break;
    case Kind::TaskDeleted:
        removeTasks({change.deletedId()});
        break;
    case Kind::EntryInserted:
        appendEntryLocally(*change.entry());
        break;
    case Kind::EntryUpdated:
        replaceEntry(*change.entry());
        break;
    case Kind::EntryDeleted:
        removeEntry(change.deletedId());
        break;
    case Kind::ProjectUpserted:
        mergeProject(*change.project());
        break;
    case Kind::ProjectDeleted:
        removeProject(change.deletedId());
        break;
    case Kind::TripUpserted:
        try {
            upsertTripLocally(Wire::decode<Trip>(*change.trip()));
        } catch (const DecodeError &error) {
            qCWarning(lcStore).noquote() << u"Realtime trip dropped: "_s + error.message();
        }
        break;
    case Kind::TripDeleted:
        removeTripLocally(change.deletedId());
        break;
    }
}

void AppStore::armPoll()
{
    m_pollTimer.start(m_pollInterval);
}

QCoro::Task<> AppStore::pollStep(quint64 run)
{
    co_await pollOnce();
    if (m_syncing && run == m_pollRun) {
        armPoll();
    }
}

bool AppStore::refreshDue(const QDateTime &now) const
{
    if (!m_lastRefreshedAt.isValid()) {
        return true;
    }
    const std::chrono::milliseconds age(m_lastRefreshedAt.msecsTo(now));
    // A last refresh "in the future" means the clock was set back: better one refresh too many
    // than none until the clock catches up.
    if (age.count() < 0) {
        return true;
    }
    return age >= (m_realtimeConnected ? staleWithRealtime : staleWithoutRealtime);
}

QCoro::Task<bool> AppStore::pollOnce()
{
    // A refresh under way will end with a fresh lastRefreshedAt; a second one would only repeat it.
    if (!m_auth.isSignedIn() || isLoading() || !refreshDue(m_clock())) {
        co_return false;
    }
    co_return co_await refreshAll();
}

// ---- Task views ------------------------------------------------------------------------------

QList<TaskItem> AppStore::filteredSortedTasks(const QString &projectId) const
{
    return TaskOrder::filterAndSort(m_tasksByProject.value(projectId), m_taskFilter, m_taskSort, m_clock());
}

std::optional<TaskItem> AppStore::neighborTask(const QString &taskId, Neighbor direction) const
{
    const QString projectId = m_projectOfTask.value(taskId);
    if (projectId.isEmpty()) {
        return std::nullopt;
    }
    const QList<TaskItem> shown = filteredSortedTasks(projectId);
    for (qsizetype i = 0; i < shown.size(); ++i) {
        if (shown[i].id != taskId) {
            continue;
        }
        const qsizetype next = direction == Neighbor::Next ? i + 1 : i - 1;
        if (next < 0 || next >= shown.size()) {
            return std::nullopt;
        }
        return shown[next];
    }
    return std::nullopt;
}

std::optional<TeamRole> AppStore::roleInTeam(const QString &teamId) const
{
    if (m_currentUserId.isEmpty()) {
        return std::nullopt;
    }
    // An invitation grants nothing until it is accepted, on the backend and here.
    std::optional<TeamRole> role;
    for (const Team &team : m_teams) {
        if (team.id == teamId && team.ownerId == m_currentUserId) {
            role = TeamRole::Owner;
        }
    }
    for (const TeamMember &member : m_membersByTeam.value(teamId)) {
        if (member.userId == m_currentUserId && !member.isPending() && (!role || member.role < *role)) {
            role = member.role;
        }
    }
    return role;
}

bool AppStore::canSeeTask(const TaskItem &task, const QList<Project> *projects) const
{
    if (m_currentUserId.isEmpty()) {
        return false;
    }
    if (task.userId == m_currentUserId) {
        return true;
    }
    const QList<Project> &list = projects ? *projects : m_projects;
    const auto found =
        std::find_if(list.cbegin(), list.cend(), [&](const Project &p) { return p.id == task.projectId; });
    if (found == list.cend()) {
        return false;
    }
    if (found->userId == m_currentUserId) {
        return true;
    }
    return found->teamId && roleInTeam(*found->teamId).has_value();
}

bool AppStore::isProjectAdmin(const QString &projectId) const
{
    if (m_currentUserId.isEmpty()) {
        return false;
    }
    const std::optional<Project> found = project(projectId);
    if (!found) {
        return false;
    }
    if (found->userId == m_currentUserId) {
        return true;
    }
    if (!found->teamId) {
        return false;
    }
    const std::optional<TeamRole> role = roleInTeam(*found->teamId);
    return role == TeamRole::Owner || role == TeamRole::Editor;
}

void AppStore::replaceTask(const TaskItem &task)
{
    const QString oldProject = m_projectOfTask.value(task.id);
    // Answers and feed events can arrive out of order (a reorder's late answer after a status
    // change): a version older than the one held is not the task any more.
    if (!oldProject.isEmpty() && task.updatedAt) {
        for (const TaskItem &held : std::as_const(m_tasksByProject[oldProject])) {
            if (held.id == task.id && held.updatedAt) {
                const std::optional<QDateTime> heldAt = isoDate(*held.updatedAt);
                const std::optional<QDateTime> incomingAt = isoDate(*task.updatedAt);
                if (heldAt && incomingAt && *incomingAt < *heldAt) {
                    return;
                }
                break;
            }
        }
    }
    if (!oldProject.isEmpty()) {
        QList<TaskItem> &list = m_tasksByProject[oldProject];
        for (qsizetype i = 0; i < list.size(); ++i) {
            if (list[i].id != task.id) {
                continue;
            }
            if (oldProject == task.projectId && canSeeTask(task)) {
                if (list[i] == task) {
                    return;
                }
                list[i] = task;
                tasksDidChange();
                return;
            }
            list.removeAt(i);
            break;
        }
        if (list.isEmpty()) {
            m_tasksByProject.remove(oldProject);
        }
        m_projectOfTask.remove(task.id);
    }
    if (canSeeTask(task)) {
        // Lists keep the load order, newest first, so a moved or new task goes where a reload
        // would put it.
        QList<TaskItem> &list = m_tasksByProject[task.projectId];
        const qint64 created = instantKey(task.createdAt);
        const auto at = std::find_if(list.begin(), list.end(),
                                     [&](const TaskItem &other) { return instantKey(other.createdAt) < created; });
        list.insert(at, task);
        m_projectOfTask.insert(task.id, task.projectId);
    }
    tasksDidChange();
}

void AppStore::removeTasks(const QSet<QString> &taskIds)
{
    bool changed = false;
    for (const QString &id : taskIds) {
        const QString projectId = m_projectOfTask.take(id);
        if (projectId.isEmpty()) {
            continue;
        }
        QList<TaskItem> &list = m_tasksByProject[projectId];
        list.removeIf([&](const TaskItem &task) { return task.id == id; });
        if (list.isEmpty()) {
            m_tasksByProject.remove(projectId);
        }
        changed = true;
    }
    bool entriesTouched = false;
    for (const QString &id : taskIds) {
        entriesTouched |= m_entriesByTask.remove(id);
    }
    entriesTouched |=
        m_recentEntries.removeIf([&](const TimeEntry &entry) { return taskIds.contains(entry.taskId); }) > 0;
    if (changed) {
        tasksDidChange();
    }
    if (entriesTouched) {
        emit entriesChanged();
    }
    setSelectedTaskIds(m_selectedTaskIds - taskIds);
    if (taskIds.contains(m_selectedTaskId)) {
        setSelectedTaskId({});
    }
}

// ---- Projects --------------------------------------------------------------------------------

void AppStore::mergeProject(const Project &project)
{
    QList<Project> projects = m_projects;
    const auto found =
        std::find_if(projects.begin(), projects.end(), [&](const Project &p) { return p.id == project.id; });
    if (found != projects.end()) {
        *found = project;
    } else {
        projects.prepend(project);
    }
    setProjects(std::move(projects));
}

void AppStore::removeProject(const QString &projectId)
{
    QList<Project> projects = m_projects;
    projects.removeIf([&](const Project &p) { return p.id == projectId; });
    setProjects(std::move(projects));
    QSet<QString> taskIds;
    for (const TaskItem &task : m_tasksByProject.value(projectId)) {
        taskIds.insert(task.id);
    }
    removeTasks(taskIds);
    if (m_selectedProjectId == projectId) {
        setSelectedProjectId({});
    }
}

QCoro::Task<std::optional<Project>> AppStore::createProject(ProjectInsert draft)
{
    std::optional<Session> session = co_await openSession("Create project failed: ");
    if (!session) {
        co_return std::nullopt;
    }
    if (draft.userId.isEmpty()) {
        draft.userId = m_currentUserId;
    }
    try {
        const auto rowsRequest = [&, client = m_auth.client()](const QString &token) {
            return client.insert<Project>(u"projects"_s, token, draft);
        };
        const QList<Project> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return std::nullopt;
        }
        if (rows.isEmpty()) {
            failed("Create project failed: ", u"no row came back"_s, StoreText::projectNotCreated());
            co_return std::nullopt;
        }
        mergeProject(rows.first());
        co_return rows.first();
    } catch (const MorvaneError &error) {
        writeFailed("Create project failed: ", error, StoreText::projectNotCreated());
        co_return std::nullopt;
    }
}

QCoro::Task<bool> AppStore::patchProject(QString projectId, AnyEncodable body, const char *logPrefix,
                                         QString refusedMessage)
{
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    try {
        const auto rowsRequest = [&, client = m_auth.client()](const QString &token) {
            return client.update<Project>(u"projects"_s, token, idFilter(projectId), body);
        };
        const QList<Project> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return false;
        }
        if (rows.isEmpty()) {
            failed(logPrefix, u"no row matched "_s + projectId, refusedMessage);
            co_return false;
        }
        mergeProject(rows.first());
        co_return true;
    } catch (const MorvaneError &error) {
        writeFailed(logPrefix, error, refusedMessage);
        co_return false;
    }
}

QCoro::Task<bool> AppStore::updateProject(QString projectId, ProjectPatch patch)
{
    co_return co_await patchProject(projectId, patch, "Update project failed: ", StoreText::projectNotSaved());
}

QCoro::Task<bool> AppStore::updateProjectBilling(QString projectId, Earnings::ProjectBillingWrite write)
{
    const ProjectBillingPatch patch{write.billing, write.hourlyRate, std::nullopt};
    co_return co_await patchProject(projectId, patch, "Update project billing failed: ", StoreText::projectNotSaved());
}

QCoro::Task<bool> AppStore::updateTaskPrice(QString taskId, Earnings::PriceColumns price)
{
    const TaskPricePatch patch{price.billing, price.hourlyRate, price.totalPrice};
    co_return co_await patchTask(taskId, patch, "Update task price failed: ");
}

QCoro::Task<bool> AppStore::setProjectStatus(QString projectId, ProjectStatus status)
{
    const ProjectStatusPatch patch{status};
    co_return co_await patchProject(projectId, patch, "Set project status failed: ", StoreText::projectNotSaved());
}

QCoro::Task<bool> AppStore::deleteProject(QString projectId)
{
    std::optional<Session> session = co_await openSession("Delete project failed: ");
    if (!session) {
        co_return false;
    }
    try {
        const auto rowsRequest = [&, client = m_auth.client()](const QString &token) {
            return deleteReturning<Project>(client, u"projects"_s, token, idFilter(projectId));
        };
        const QList<Project> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return false;
        }
        if (rows.isEmpty()) {
            failed("Delete project failed: ", u"no row matched "_s + projectId, StoreText::projectNotSaved());
            co_return false;
        }
        removeProject(projectId);
        co_return true;
    } catch (const MorvaneError &error) {
        writeFailed("Delete project failed: ", error, StoreText::projectNotSaved());
        co_return false;
    }
}

QCoro::Task<int> AppStore::archiveIdleProjects(int olderThanDays)
{
    std::optional<Session> session = co_await openSession("Archive projects failed: ");
    if (!session) {
        co_return -1;
    }
    const QDateTime cutoff = m_clock().addDays(-qMax(0, olderThanDays));
    const qint64 cutoffKey = cutoff.toMSecsSinceEpoch();
    QStringList candidates;
    for (const Project &project : std::as_const(m_projects)) {
        if (project.status != ProjectStatus::Active || project.userId != m_currentUserId ||
            instantKey(project.createdAt) >= cutoffKey) {
            continue;
        }
        const QList<TaskItem> tasks = m_tasksByProject.value(project.id);
        const bool busy = std::any_of(tasks.cbegin(), tasks.cend(), [&](const TaskItem &task) {
            return task.status == TaskStatus::InProgress || instantKey(task.createdAt) >= cutoffKey;
        });
        if (!busy) {
            candidates.append(project.id);
        }
    }
    if (candidates.isEmpty()) {
        co_return 0;
    }
    try {
        const Supabase client = m_auth.client();
        // The window may reach past the entries the store holds, so the backend answers which
        // candidates saw logged time.
        const QueryItems entryQuery{{u"select"_s, u"project_id"_s},
                                    {u"project_id"_s, inList(candidates)},
                                    {u"ended_at"_s, u"gte."_s + isoString(cutoff)},
                                    {u"order"_s, u"id.asc"_s}};
        const auto workedRequest = [&](const QString &token) {
            return client.selectAll<ProjectRef>(u"time_entries"_s, token, entryQuery);
        };
        const QList<ProjectRef> worked = co_await authorized(*session, workedRequest);
        for (const ProjectRef &ref : worked) {
            candidates.removeAll(ref.projectId);
        }
        if (candidates.isEmpty()) {
            co_return 0;
        }
        // Only projects still active: another device may have changed one meanwhile.
        const QueryItems archiveQuery{{u"id"_s, inList(candidates)}, {u"status"_s, u"eq.active"_s}};
        const ProjectStatusPatch patch{ProjectStatus::Archived};
        const auto rowsRequest = [&](const QString &token) {
            return client.update<Project>(u"projects"_s, token, archiveQuery, patch);
        };
        const QList<Project> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return -1;
        }
        for (const Project &project : rows) {
            mergeProject(project);
        }
        co_return int(rows.size());
    } catch (const MorvaneError &error) {
        writeFailed("Archive projects failed: ", error, StoreText::projectNotSaved());
        co_return -1;
    }
}

QCoro::Task<bool> AppStore::assignProjectToTeam(QString projectId, std::optional<QString> teamId)
{
    const ProjectTeamPatch patch{teamId};
    co_return co_await patchProject(projectId, patch, "Assign-to-team failed: ", StoreText::projectTeamNotChanged());
}

// ---- Tasks -----------------------------------------------------------------------------------

QCoro::Task<std::optional<TaskItem>> AppStore::createTask(TaskInsert draft)
{
    std::optional<Session> session = co_await openSession("Create task failed: ");
    if (!session) {
        co_return std::nullopt;
    }
    if (draft.userId.isEmpty()) {
        draft.userId = m_currentUserId;
    }
    try {
        const auto rowsRequest = [&, client = m_auth.client()](const QString &token) {
            return client.insert<TaskItem>(u"tasks"_s, token, draft);
        };
        const QList<TaskItem> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return std::nullopt;
        }
        if (rows.isEmpty()) {
            failed("Create task failed: ", u"no row came back"_s, StoreText::taskNotCreated());
            co_return std::nullopt;
        }
        replaceTask(rows.first());
        co_return rows.first();
    } catch (const MorvaneError &error) {
        writeFailed("Create task failed: ", error, StoreText::taskNotCreated());
        co_return std::nullopt;
    }
}

QCoro::Task<bool> AppStore::patchTask(QString taskId, AnyEncodable body, const char *logPrefix)
{
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    SavingScope saving(*this, {taskId});
    try {
        const auto rowsRequest = [&, client = m_auth.client()](const QString &token) {
            return client.update<TaskItem>(u"tasks"_s, token, idFilter(taskId), body);
        };
        const QList<TaskItem> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return false;
        }
        if (rows.isEmpty()) {
            failed(logPrefix, u"no row matched "_s + taskId, StoreText::taskNotSaved());
            co_return false;
        }
        replaceTask(rows.first());
        co_return true;
    } catch (const MorvaneError &error) {
        writeFailed(logPrefix, error, StoreText::taskNotSaved());
        co_return false;
    }
}

QCoro::Task<bool> AppStore::updateTask(QString taskId, TaskPatch patch)
{
    co_return co_await patchTask(taskId, patch, "Update task failed: ");
}

QCoro::Task<bool> AppStore::moveTask(QString taskId, QString projectId)
{
    const TaskMovePatch patch{projectId};
    co_return co_await patchTask(taskId, patch, "Move task failed: ");
}

QCoro::Task<bool> AppStore::updateTaskPriority(QString taskId, TaskPriority priority)
{
    co_return co_await patchTask(taskId, TaskPriorityPatch{priority}, "Update task failed: ");
}

QCoro::Task<QStringList> AppStore::writeStatus(Session session, QStringList taskIds, TaskStatus status,
                                               const char *logPrefix)
{
    QStringList changed;
    if (taskIds.isEmpty()) {
        co_return changed;
    }
    const Supabase client = m_auth.client();
    try {
        // The second condition keeps a running timer out of reach: its task is "in_progress" with a
        // start, and only the timer's own stop may end that.
        const QueryItems query{
            {u"id"_s, taskIds.size() == 1 ? u"eq."_s + taskIds.first() : inList(taskIds)},
            {u"or"_s, u"(status.neq.in_progress,started_at.is.null)"_s},
        };
        const TaskStatusPatch patch{status};
        const auto rowsRequest = [&](const QString &token) {
            return client.update<TaskItem>(u"tasks"_s, token, query, patch);
        };
        const QList<TaskItem> rows = co_await authorized(session, rowsRequest);
        if (!isCurrent(session)) {
            co_return changed;
        }
        for (const TaskItem &task : rows) {
            replaceTask(task);
            changed.append(task.id);
        }
        QStringList untouched;
        for (const QString &id : std::as_const(taskIds)) {
            if (!changed.contains(id)) {
                untouched.append(id);
            }
        }
        if (untouched.isEmpty()) {
            co_return changed;
        }
        // Why did they stay? The rows as they are now tell a timer that runs (started on another
        // device since the last refresh) from a task this user may not change or that is gone.
        const QueryItems reread{{u"select"_s, u"*"_s}, {u"id"_s, inList(untouched)}};
        const auto currentRequest = [&](const QString &token) {
            return client.select<TaskItem>(u"tasks"_s, token, reread);
        };
        const QList<TaskItem> current = co_await authorized(session, currentRequest);
        if (!isCurrent(session)) {
            co_return changed;
        }
        bool running = false;
        QSet<QString> gone = idSet(untouched);
        for (const TaskItem &task : current) {
            replaceTask(task);
            gone.remove(task.id);
            running |= task.status == TaskStatus::InProgress;
        }
        removeTasks(gone);
        failed(logPrefix, QStringLiteral("%1 of %2 tasks unchanged").arg(untouched.size()).arg(taskIds.size()),
               running ? StoreText::timerStartedElsewhere() : StoreText::taskNotSaved());
    } catch (const MorvaneError &error) {
        writeFailed(logPrefix, error, StoreText::taskNotSaved());
    }
    co_return changed;
}

QCoro::Task<bool> AppStore::setTaskStatus(QString taskId, TaskStatus status)
{
    std::optional<Session> session = co_await openSession("Set task status failed: ");
    if (!session) {
        co_return false;
    }
    const QStringList ids{taskId};
    SavingScope saving(*this, ids);
    const QStringList changed = co_await writeStatus(*session, ids, status, "Set task status failed: ");
    co_return !changed.isEmpty();
}

QCoro::Task<bool> AppStore::deleteTask(QString taskId)
{
    std::optional<Session> session = co_await openSession("Delete task failed: ");
    if (!session) {
        co_return false;
    }
    SavingScope saving(*this, {taskId});
    try {
        const auto rowsRequest = [&, client = m_auth.client()](const QString &token) {
            return deleteReturning<TaskItem>(client, u"tasks"_s, token, idFilter(taskId));
        };
        const QList<TaskItem> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return false;
        }
        if (rows.isEmpty()) {
            failed("Delete task failed: ", u"no row matched "_s + taskId, StoreText::taskNotSaved());
            co_return false;
        }
        removeTasks({taskId});
        co_return true;
    } catch (const MorvaneError &error) {
        writeFailed("Delete task failed: ", error, StoreText::taskNotSaved());
        co_return false;
    }
}

QCoro::Task<bool> AppStore::rewriteAttachments(QString taskId, std::function<void(TaskAttachments &)> change,
                                               const char *logPrefix)
{
    const std::optional<TaskItem> local = task(taskId);
    if (!local) {
        failed(logPrefix, u"unknown task "_s + taskId, StoreText::taskNotSaved());
        co_return false;
    }
    // The column holds all side data at once, so the whole object is written with one field changed.
    TaskAttachments attachments = local->attachments.value_or(TaskAttachments{});
    change(attachments);
    const TaskAttachmentsPatch patch{std::move(attachments)};
    co_return co_await patchTask(taskId, patch, logPrefix);
}

// Each change is built before the co_await: GCC 12 mishandles a temporary made inside one.
QCoro::Task<bool> AppStore::updateTaskCategory(QString taskId, std::optional<TaskCategory> category)
{
    std::function<void(TaskAttachments &)> change = [category](TaskAttachments &a) { a.category = category; };
    co_return co_await rewriteAttachments(taskId, std::move(change), "Update task category failed: ");
}

QCoro::Task<bool> AppStore::updateTaskSubtasks(QString taskId, QList<Subtask> subtasks)
{
    std::function<void(TaskAttachments &)> change = [subtasks](TaskAttachments &a) { a.subtasks = subtasks; };
    co_return co_await rewriteAttachments(taskId, std::move(change), "Update subtasks failed: ");
}

QCoro::Task<bool> AppStore::updateTaskAssignees(QString taskId, QList<TaskAssignee> assignees)
{
    std::function<void(TaskAttachments &)> change = [assignees](TaskAttachments &a) { a.assignees = assignees; };
    co_return co_await rewriteAttachments(taskId, std::move(change), "Update assignees failed: ");
}

QCoro::Task<bool> AppStore::updateTaskNotes(QString taskId, QList<TaskNote> notes)
{
    std::function<void(TaskAttachments &)> change = [notes](TaskAttachments &a) { a.notes = notes; };
    co_return co_await rewriteAttachments(taskId, std::move(change), "Update notes failed: ");
}

QCoro::Task<int> AppStore::bulkUpdateStatus(TaskStatus status)
{
    const QStringList ids = selectedTaskIdList();
    if (ids.isEmpty()) {
        co_return 0;
    }
    std::optional<Session> session = co_await openSession("Bulk status change failed: ");
    if (!session) {
        co_return 0;
    }
    SavingScope saving(*this, ids);
    const QStringList changed = co_await writeStatus(*session, ids, status, "Bulk status change failed: ");
    co_return int(changed.size());
}

QCoro::Task<int> AppStore::bulkDelete()
{
    const QStringList ids = selectedTaskIdList();
    if (ids.isEmpty()) {
        co_return 0;
    }
    std::optional<Session> session = co_await openSession("Bulk delete failed: ");
    if (!session) {
        co_return 0;
    }
    SavingScope saving(*this, ids);
    try {
        const QueryItems query{{u"id"_s, inList(ids)}};
        const auto rowsRequest = [&, client = m_auth.client()](const QString &token) {
            return deleteReturning<TaskItem>(client, u"tasks"_s, token, query);
        };
        const QList<TaskItem> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return 0;
        }
        QSet<QString> deleted;
        for (const TaskItem &task : rows) {
            deleted.insert(task.id);
        }
        removeTasks(deleted);
        if (deleted.size() < ids.size()) {
            failed("Bulk delete failed: ",
                   QStringLiteral("%1 of %2 tasks not deleted").arg(ids.size() - deleted.size()).arg(ids.size()),
                   StoreText::taskNotSaved());
        }
        co_return int(deleted.size());
    } catch (const MorvaneError &error) {
        writeFailed("Bulk delete failed: ", error, StoreText::taskNotSaved());
        co_return 0;
    }
}

QCoro::Task<int> AppStore::bulkMoveToProject(QString projectId)
{
    const QStringList ids = selectedTaskIdList();
    if (ids.isEmpty()) {
        co_return 0;
    }
    std::optional<Session> session = co_await openSession("Bulk move failed: ");
    if (!session) {
        co_return 0;
    }
    SavingScope saving(*this, ids);
    try {
        const QueryItems query{{u"id"_s, inList(ids)}};
        const TaskMovePatch patch{projectId};
        const auto rowsRequest = [&, client = m_auth.client()](const QString &token) {
            return client.update<TaskItem>(u"tasks"_s, token, query, patch);
        };
        const QList<TaskItem> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return 0;
        }
        for (const TaskItem &task : rows) {
            replaceTask(task);
        }
        if (rows.size() < ids.size()) {
            failed("Bulk move failed: ",
                   QStringLiteral("%1 of %2 tasks not moved").arg(ids.size() - rows.size()).arg(ids.size()),
                   StoreText::taskNotSaved());
        }
        co_return int(rows.size());
    } catch (const MorvaneError &error) {
        writeFailed("Bulk move failed: ", error, StoreText::taskNotSaved());
        co_return 0;
    }
}

QCoro::Task<bool> AppStore::reorderTasks(QString projectId, QStringList orderedIds)
{
    std::optional<Session> session = co_await openSession("Reorder tasks failed: ");
    if (!session) {
        co_return false;
    }
    const QList<TaskItem> current = TaskOrder::manualOrder(m_tasksByProject.value(projectId));
    QHash<QString, TaskItem> byId;
    for (const TaskItem &task : current) {
        byId.insert(task.id, task);
    }
    QStringList order;
    for (const QString &id : std::as_const(orderedIds)) {
        if (byId.contains(id) && !order.contains(id)) {
            order.append(id);
        }
    }
    const QSet<QString> moving = idSet(order);
    QList<TaskItem> reordered;
    reordered.reserve(current.size());
    qsizetype next = 0;
    for (const TaskItem &task : current) {
        reordered.append(moving.contains(task.id) ? byId.value(order[next++]) : task);
    }

    // The new positions show at once; the writes follow.
    QHash<QString, std::optional<int>> previous;
    QList<std::pair<QString, TaskAttachments>> writes;
    for (qsizetype i = 0; i < reordered.size(); ++i) {
        const TaskItem &task = reordered[i];
        const std::optional<int> was = task.attachments ? task.attachments->position : std::nullopt;
        if (was == int(i)) {
            continue;
        }
        TaskAttachments attachments = task.attachments.value_or(TaskAttachments{});
        attachments.position = int(i);
        previous.insert(task.id, was);
        writes.append({task.id, attachments});
    }
    if (writes.isEmpty()) {
        co_return true;
    }
    auto setLocalPosition = [this, &projectId](const QString &taskId, std::optional<int> position) {
        for (TaskItem &task : m_tasksByProject[projectId]) {
            if (task.id == taskId) {
                TaskAttachments attachments = task.attachments.value_or(TaskAttachments{});
                attachments.position = position;
                task.attachments = attachments;
            }
        }
    };
    for (const auto &[id, attachments] : std::as_const(writes)) {
        setLocalPosition(id, attachments.position);
    }
    tasksDidChange();

    QStringList writing;
    for (const auto &[id, attachments] : std::as_const(writes)) {
        writing.append(id);
    }
    SavingScope saving(*this, writing);
    const Supabase client = m_auth.client();
    std::vector<QCoro::Task<QList<TaskItem>>> calls;
    calls.reserve(std::size_t(writes.size()));
    for (const auto &[id, attachments] : std::as_const(writes)) {
        const TaskAttachmentsPatch patch{attachments};
        calls.push_back(client.update<TaskItem>(u"tasks"_s, session->token, idFilter(id), patch));
    }
    QStringList failedIds;
    bool refused = false;
    QString detail;
    for (std::size_t i = 0; i < calls.size(); ++i) {
        try {
            const QList<TaskItem> rows = co_await calls[i];
            if (rows.isEmpty()) {
                refused = true;
                failedIds.append(writes[qsizetype(i)].first);
            } else if (isCurrent(*session)) {
                replaceTask(rows.first());
            }
        } catch (const MorvaneError &error) {
            refused |= isRefusal(error);
            detail = error.message();
            failedIds.append(writes[qsizetype(i)].first);
        }
    }
    if (!isCurrent(*session)) {
        co_return false;
    }
    if (failedIds.isEmpty()) {
        co_return true;
    }
    for (const QString &id : std::as_const(failedIds)) {
        setLocalPosition(id, previous.value(id));
    }
    tasksDidChange();
    failed("Reorder tasks failed: ",
           QStringLiteral("%1 of %2 tasks kept their place").arg(failedIds.size()).arg(writes.size()) +
               (detail.isEmpty() ? QString() : QString(u": "_s + detail)),
           refused ? StoreText::taskNotSaved() : StoreText::writeFailed());
    co_return false;
}

// ---- Profile and onboarding ------------------------------------------------------------------

QCoro::Task<bool> AppStore::patchProfile(AnyEncodable patch, const char *logPrefix, QString notSaved)
{
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    try {
        const auto rowsRequest = [&, client = m_auth.client()](const QString &token) {
            return client.update<Profile>(u"profiles"_s, token, idFilter(m_currentUserId), patch);
        };
        const QList<Profile> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return false;
        }
        if (rows.isEmpty()) {
            failed(logPrefix, u"no profile row"_s, notSaved);
            co_return false;
        }
        setProfile(rows.first());
        co_return true;
    } catch (const MorvaneError &error) {
        failed(logPrefix, error.message(), notSaved);
        co_return false;
    }
}

QCoro::Task<bool> AppStore::updateProfile(ProfilePatch patch)
{
    AnyEncodable body(patch);
    co_return co_await patchProfile(std::move(body), "Update profile failed: ", StoreText::profileNotSaved());
}

QCoro::Task<bool> AppStore::saveOnboarding(OnboardingPatch patch)
{
    AnyEncodable body(patch);
    co_return co_await patchProfile(std::move(body), "Save onboarding failed: ", StoreText::onboardingNotSaved());
}

QCoro::Task<bool> AppStore::ensureOnboarded()
{
    std::optional<Session> session = co_await openSession("Onboarding check failed: ");
    if (!session) {
        co_return false;
    }
    OnboardingPatch patch;
    try {
        const QueryItems query{{u"select"_s, u"id,onboarding_complete,language,currency,timezone"_s},
                               {u"id"_s, u"eq."_s + m_currentUserId}};
        const auto statesRequest = [&, client = m_auth.client()](const QString &token) {
            return client.select<OnboardingState>(u"profiles"_s, token, query);
        };
        const QList<OnboardingState> states = co_await authorized(*session, statesRequest);
        if (states.isEmpty()) {
            // Every account gets its profile row when it is made; without one there is nothing to fill.
            qCWarning(lcStore).noquote() << u"Onboarding check failed: no profile row for "_s + m_currentUserId;
            co_return false;
        }
        const OnboardingState &state = states.first();
        if (state.onboardingComplete) {
            co_return true;
        }
        const QString language = Language::current();
        patch.language = state.language.value_or(language.isEmpty() ? u"en"_s : language);
        patch.currency = state.currency.value_or(u"EUR"_s);
        if (!state.timezone) {
            patch.timezone = QString::fromUtf8(QTimeZone::systemTimeZoneId());
        }
        patch.onboardingComplete = true;
    } catch (const MorvaneError &error) {
        qCWarning(lcStore).noquote() << u"Onboarding check failed: "_s + error.message();
        co_return false;
    }
    co_return co_await saveOnboarding(std::move(patch));
}

QCoro::Task<bool> AppStore::applyPendingOnboarding()
{
    std::optional<PendingOnboarding> pending = PendingOnboarding::load(*m_settings);
    if (!pending || !pending->belongsTo(m_auth.email())) {
        co_return false;
    }
    pending->answers.onboardingComplete = true;
    if (!co_await saveOnboarding(pending->answers)) {
        // The answers stay for the next sign-in.
        co_return false;
    }
    PendingOnboarding::clear(*m_settings);
    co_return true;
}

// ---- Teams -----------------------------------------------------------------------------------
