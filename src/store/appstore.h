#pragma once

#include "backend/realtimeclient.h"
#include "backend/supabase.h"
#include "billing/earnings.h"
#include "model/client.h"
#include "model/clock.h"
#include "model/invoice.h"
#include "model/invoicestyle.h"
#include "model/profile.h"
#include "model/project.h"
#include "model/taskitem.h"
#include "model/team.h"
#include "model/timeentry.h"
#include "model/trip.h"
#include "store/inviteoutcome.h"
#include "store/invoicecontext.h"
#include "store/taskorder.h"
#include "store/timerrecords.h"
#include "store/timerstore.h"
#include "store/writerecords.h"
#include "travel/travel.h"

#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QSettings>
#include <QStringList>
#include <QTimer>

#include <QCoroTask>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

class AuthStore;
class MorvaneError;

// Which one-off parts are already on a live invoice: tasks with their own fixed price or extras,
// and projects whose shared price and extras were billed.
struct PriorBilling
{
    QSet<QString> tasks;
    QSet<QString> poolProjects;
    friend bool operator==(const PriorBilling &, const PriorBilling &) = default;
};

// Everything a save writes, built and rendered beforehand: the store only writes it, in an order
// that it can undo.
struct InvoiceSaveRequest
{
    // Number, dates, totals, status and bill-to details; `user_id` and `client_id` are set by the
    // store.
    InvoiceInsert invoice;
    // In display order; the store fills `invoice_id` and `order_index`.
    QList<InvoiceLineInsert> lines;
    QStringList coveredEntryIds;
    QStringList tripIds;
    // When set, the bill-to details become a saved client (an existing one of the same name is reused).
    std::optional<ClientInsert> saveClient;
    QByteArray pdf;
    // The object's file name without ".pdf"; the invoice number when empty.
    QString pdfFileName;
};

// What the sidebar shows: one project, the overview of all projects (a project selection
// without an id), the AI sessions or the earnings.
struct SidebarSelection
{
    enum class Kind { Project, AISessions, Earnings };
    Kind kind = Kind::Project;
    std::optional<QString> projectId;

    friend bool operator==(const SidebarSelection &, const SidebarSelection &) = default;
};

// The signed-in user's data in memory and every operation on it. Views read the collections and
// call the operations; each operation writes through to the backend and merges the row the
// backend answers by id, so a change that arrived meanwhile (another operation, a refresh) is not
// overwritten by position. Lives on the main thread and must outlive the operations it runs (the
// application holds it for the whole process).
//
// Failed writes: nothing is changed locally before the backend answers, except the order of
// tasks (reorderTasks), which moves at once and is put back for the tasks whose write failed.
// Every failure sets `lastError` to a localised sentence and logs one English line.
class AppStore : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString currentUserId READ currentUserId NOTIFY currentUserIdChanged)
    Q_PROPERTY(
        QString selectedProjectId READ selectedProjectId WRITE setSelectedProjectId NOTIFY selectedProjectIdChanged)
    Q_PROPERTY(QString selectedTaskId READ selectedTaskId WRITE setSelectedTaskId NOTIFY selectedTaskIdChanged)
    Q_PROPERTY(QString lastError READ lastError NOTIFY lastErrorChanged)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY isLoadingChanged)
    Q_PROPERTY(QDateTime lastRefreshedAt READ lastRefreshedAt NOTIFY lastRefreshedAtChanged)
    Q_PROPERTY(QStringList savingTaskIds READ savingTaskIdList NOTIFY savingTaskIdsChanged)
    Q_PROPERTY(bool realtimeConnected READ realtimeConnected NOTIFY realtimeConnectedChanged)
    Q_PROPERTY(QStringList selectedTaskIds READ selectedTaskIdList NOTIFY selectedTaskIdsChanged)
    Q_PROPERTY(QString taskFilter READ taskFilterName WRITE setTaskFilterName NOTIFY taskFilterChanged)
    Q_PROPERTY(QString taskSort READ taskSortName WRITE setTaskSortName NOTIFY taskSortChanged)
    Q_PROPERTY(QString searchQuery READ searchQuery WRITE setSearchQuery NOTIFY searchQueryChanged)
    Q_PROPERTY(QString aiProgress READ aiProgress WRITE setAiProgress NOTIFY aiProgressChanged)
    Q_PROPERTY(TimerStore *timer READ timerObject CONSTANT)

public:
    enum class Neighbor { Previous, Next };

    // How long the safety poll waits between looks, and how old the last refresh must be before
    // a look refreshes: the feed normally carries every change, so with it up the poll only
    // catches events the feed lost.
    static constexpr std::chrono::seconds defaultPollInterval{20};
    static constexpr std::chrono::seconds staleWithoutRealtime{20};
    static constexpr std::chrono::seconds staleWithRealtime{120};
    // Entries of this many days come with every refresh; older ones are loaded per task.
    static constexpr int recentWindowDays = 30;

    AppStore(AuthStore &auth, std::shared_ptr<QSettings> settings, Clock clock = systemClock(),
             QObject *parent = nullptr);
    ~AppStore() override;

    // Published collections.
    [[nodiscard]] const QList<Project> &projects() const { return m_projects; }
    [[nodiscard]] const QHash<QString, QList<TaskItem>> &tasksByProject() const { return m_tasksByProject; }
    [[nodiscard]] const QHash<QString, QList<TimeEntry>> &entriesByTask() const { return m_entriesByTask; }
    [[nodiscard]] const QList<Team> &teams() const { return m_teams; }
    // Each team's members: owners, then editors, then viewers, each group by address.
    [[nodiscard]] const QHash<QString, QList<TeamMember>> &membersByTeam() const { return m_membersByTeam; }
    // Invitations to teams that wait for this user's answer; they grant nothing until accepted.
    [[nodiscard]] const QList<TeamInvitation> &invitations() const { return m_invitations; }
    [[nodiscard]] const QList<TimeEntry> &recentEntries() const { return m_recentEntries; }
    [[nodiscard]] const QList<Client> &clients() const { return m_clients; }
    [[nodiscard]] const QList<Client> &allClients() const { return m_allClients; }
    [[nodiscard]] const std::optional<Profile> &profile() const { return m_profile; }

    // The profile's money settings, with the defaults a profile without them bills in.
    [[nodiscard]] QString currency() const;
    [[nodiscard]] double defaultHourlyRate() const;
    [[nodiscard]] std::optional<Project> project(const QString &projectId) const;
    [[nodiscard]] std::optional<TaskItem> task(const QString &taskId) const;
    [[nodiscard]] QList<TaskItem> tasks(const QString &projectId) const { return m_tasksByProject.value(projectId); }
    // The task whose timer runs; with several (team mates' timers show too), the one started last.
    [[nodiscard]] std::optional<TaskItem> runningTask() const;

    // Published state.
    [[nodiscard]] QString currentUserId() const { return m_currentUserId; }
    [[nodiscard]] QString selectedProjectId() const { return m_selectedProjectId; }
    void setSelectedProjectId(const QString &projectId);
    [[nodiscard]] QString selectedTaskId() const { return m_selectedTaskId; }
    void setSelectedTaskId(const QString &taskId);
    [[nodiscard]] QString lastError() const { return m_lastError; }
    void clearLastError() { setLastError({}); }
    [[nodiscard]] bool isLoading() const { return m_loadingDepth > 0; }
    // Invalid until the first successful refresh.
    [[nodiscard]] QDateTime lastRefreshedAt() const { return m_lastRefreshedAt; }
    [[nodiscard]] const QSet<QString> &savingTaskIds() const { return m_savingTaskIds; }
    [[nodiscard]] QStringList savingTaskIdList() const;
    [[nodiscard]] bool realtimeConnected() const { return m_realtimeConnected; }
    // The realtime feed reports its state here; until it runs, the feed counts as down.
    void setRealtimeConnected(bool connected);
    [[nodiscard]] const QSet<QString> &selectedTaskIds() const { return m_selectedTaskIds; }
    [[nodiscard]] QStringList selectedTaskIdList() const;
    void toggleSelection(const QString &taskId);
    void clearSelection();
    [[nodiscard]] SidebarSelection sidebarSelection() const { return m_sidebarSelection; }
    void setSidebarSelection(const SidebarSelection &selection);
    [[nodiscard]] TaskFilter taskFilter() const { return m_taskFilter; }
    void setTaskFilter(TaskFilter filter);
    [[nodiscard]] QString taskFilterName() const;
    void setTaskFilterName(const QString &name);
    [[nodiscard]] TaskSort taskSort() const { return m_taskSort; }
    void setTaskSort(TaskSort sort);
    [[nodiscard]] QString taskSortName() const;
    void setTaskSortName(const QString &name);
    [[nodiscard]] QString searchQuery() const { return m_searchQuery; }
    void setSearchQuery(const QString &query);
    [[nodiscard]] QString aiProgress() const { return m_aiProgress; }
    void setAiProgress(const QString &progress);

    // Loading and sync. Each answers whether it succeeded.
    QCoro::Task<bool> refreshAll();
    QCoro::Task<bool> loadTeams();
    QCoro::Task<bool> loadClients();
    // Opens the realtime feed (unless turned off) and starts the safety poll, which looks every
    // 20 s and refreshes when the last refresh is older than 20 s with the feed down or 120 s
    // with it up.
    void startSync();
    void stopSync();
    [[nodiscard]] bool isSyncing() const { return m_syncing; }
    // One look of the safety poll: refreshes when the last refresh is old enough for the state of
    // the feed. Answers whether it refreshed.
    QCoro::Task<bool> pollOnce();
    void setPollInterval(std::chrono::milliseconds interval) { m_pollInterval = interval; }
    // A one-shot command has no use for live changes; the desktop keeps the feed on.
    void setRealtimeEnabled(bool enabled) { m_realtimeEnabled = enabled; }
    void setRealtimeScheduler(std::shared_ptr<RealtimeScheduler> scheduler)
    {
        m_realtimeScheduler = std::move(scheduler);
    }
    [[nodiscard]] RealtimeClient *realtimeClient() const { return m_realtime.get(); }
    // Merges one change of the feed by id; a task change rebinds the timer to the running task.
    void applyRealtimeChange(const RealtimeChange &change);
    [[nodiscard]] std::chrono::milliseconds pollInterval() const { return m_pollInterval; }
    // The session ended: stops syncing and empties every collection.
    void endSession();

    // Task views.
    [[nodiscard]] QList<TaskItem> filteredSortedTasks(const QString &projectId) const;
    [[nodiscard]] std::optional<TaskItem> neighborTask(const QString &taskId, Neighbor direction) const;
    // With no list, against `projects`.
    [[nodiscard]] bool canSeeTask(const TaskItem &task, const QList<Project> *projects = nullptr) const;
    [[nodiscard]] bool isProjectAdmin(const QString &projectId) const;
    [[nodiscard]] std::optional<TeamRole> roleInTeam(const QString &teamId) const;
    // Puts a changed row in place of the one with its id, moving it between project lists when
    // its project changed; a row the user may no longer see leaves the store.
    void replaceTask(const TaskItem &task);

    // Projects.
    QCoro::Task<std::optional<Project>> createProject(ProjectInsert draft);
    QCoro::Task<bool> updateProject(QString projectId, ProjectPatch patch);
    QCoro::Task<bool> deleteProject(QString projectId);
    // Archives or reactivates one project without touching what the project form owns.
    QCoro::Task<bool> setProjectStatus(QString projectId, ProjectStatus status);
    // Archives the user's own active projects that saw no work in the last `olderThanDays` days:
    // no time entry ended in that span, no task was created in it, no timer runs on one of their
    // tasks, and the project itself is older than the span. Editing a project or its tasks does
    // not count as work (reordering would otherwise keep every project alive). Team mates'
    // projects are left to their creators. Answers how many it archived, or -1 on failure.
    QCoro::Task<int> archiveIdleProjects(int olderThanDays);
    QCoro::Task<bool> assignProjectToTeam(QString projectId, std::optional<QString> teamId);
    QCoro::Task<bool> updateProjectBilling(QString projectId, Earnings::ProjectBillingWrite write);

    // Tasks.
    QCoro::Task<std::optional<TaskItem>> createTask(TaskInsert draft);
    QCoro::Task<bool> updateTask(QString taskId, TaskPatch patch);
    QCoro::Task<bool> moveTask(QString taskId, QString projectId);
    QCoro::Task<bool> updateTaskPriority(QString taskId, TaskPriority priority);
    // Never stops or changes a running timer: a task whose timer runs keeps its status, and the
    // user learns that the timer was started elsewhere.
    QCoro::Task<bool> setTaskStatus(QString taskId, TaskStatus status);
    QCoro::Task<bool> deleteTask(QString taskId);
    QCoro::Task<bool> updateTaskCategory(QString taskId, std::optional<TaskCategory> category);
    QCoro::Task<bool> updateTaskSubtasks(QString taskId, QList<Subtask> subtasks);
    QCoro::Task<bool> updateTaskAssignees(QString taskId, QList<TaskAssignee> assignees);
    QCoro::Task<bool> updateTaskNotes(QString taskId, QList<TaskNote> notes);
    // No setting in `price` makes the task inherit its project's again.
    QCoro::Task<bool> updateTaskPrice(QString taskId, Earnings::PriceColumns price);
    // Over `selectedTaskIds`; each answers how many tasks it changed. Deleted tasks leave the
    // selection; after a status change or a move the selection stays for a further action.
    QCoro::Task<int> bulkUpdateStatus(TaskStatus status);
    QCoro::Task<int> bulkDelete();
    QCoro::Task<int> bulkMoveToProject(QString projectId);
    // `orderedIds` is the new order of some of the project's tasks (usually the visible list).
    // Those tasks swap among the places they held in the manual order, so tasks the view hides
    // keep theirs; then every task of the project gets its index in that order as "_position".
    QCoro::Task<bool> reorderTasks(QString projectId, QStringList orderedIds);

    // Profile and onboarding.
    QCoro::Task<bool> updateProfile(ProfilePatch patch);
    QCoro::Task<bool> saveOnboarding(OnboardingPatch patch);
    // Makes sure the profile counts as onboarded: a user who never went through the first-run
    // screens (an account made elsewhere) gets the interface language and the profile's currency
    // (or EUR) and this machine's time zone, without overwriting what the profile already has.
    QCoro::Task<bool> ensureOnboarded();
    // Writes the answers that wait in the settings (see PendingOnboarding) to the signed-in
    // profile and deletes them; answers meant for another address stay. Answers whether
    // answers were applied.
    QCoro::Task<bool> applyPendingOnboarding();

    // The timer and time entries. A run is protected by the claim filter, not a lock: a stop
    // changes the task only while it still runs the run this device saw, so two devices acting on
    // one run never log it twice.
    [[nodiscard]] TimerStore &timer() { return m_timer; }
    [[nodiscard]] TimerStore *timerObject() { return &m_timer; }
    // Stops the timer that runs on another task first. A task whose timer already runs (started
    // on another device) keeps that run.
    QCoro::Task<bool> startTimer(QString taskId);
    // Writes the run as one entry and adds it to the task's total. A run that another device
    // stopped meanwhile is left as that device wrote it. `endedAt` ends the run earlier than now
    // (the moment the person left); it is held between the run's start and now.
    QCoro::Task<bool> stopTimer(QString taskId, std::optional<QDateTime> endedAt = std::nullopt);
    // An entry of `minutes` (fractional) ending now.
    QCoro::Task<bool> logManualMinutes(QString taskId, double minutes);
    // Loads every entry of one task, older ones than the recent window included.
    QCoro::Task<bool> fetchEntries(QString taskId);
    // Every readable entry that started in [start, end), however old, answered and not kept;
    // none when the read failed (`lastError` says why).
    QCoro::Task<std::optional<QList<TimeEntry>>> readEntriesBetween(QDateTime start, QDateTime end);
    QCoro::Task<bool> updateEntry(QString entryId, TimeEntryPatch patch);
    QCoro::Task<bool> deleteEntry(QString entryId);
    // Sets the task's total to the sum of its entries' durations as the backend has them.
    QCoro::Task<bool> recomputeTaskTotal(QString taskId);
    void appendEntryLocally(const TimeEntry &entry);
    [[nodiscard]] std::optional<TimeEntry> entry(const QString &entryId) const;
    // Matches the task only while it runs the timer started at `startedAt`.
    [[nodiscard]] static QueryItems claimQuery(const QString &taskId, const std::optional<QString> &startedAt);
    // A zero UTC offset written as "Z", the form the filter compares in.
    [[nodiscard]] static QString timestampFilterValue(const QString &instant);

    // The composer a view should show, opened from a project, a selection of tasks or the
    // earnings view; none while no composer is asked for.
    [[nodiscard]] const std::optional<InvoiceContext> &pendingInvoiceContext() const { return m_pendingInvoiceContext; }
    void openInvoiceComposer(const InvoiceContext &context);
    void closeInvoiceComposer();

    // Teams.
    QCoro::Task<std::optional<Team>> createTeam(QString name);
    QCoro::Task<InviteOutcome> inviteMember(QString teamId, QString email, TeamRole role);
    // Accepting brings the team, its members and its projects in; declining removes the invitation.
    QCoro::Task<bool> acceptInvitation(QString teamId);
    QCoro::Task<bool> declineInvitation(QString teamId);
    // Only the team's owner changes roles and removes members; a member may remove themselves
    // (leave). A refusal sets `lastError` and changes nothing.
    QCoro::Task<bool> setMemberRole(QString teamId, QString userId, TeamRole role);
    QCoro::Task<bool> removeMember(QString teamId, QString userId);

    // Clients. Names and fields are trimmed; an empty field is no value, and a client needs a name.
    QCoro::Task<std::optional<Client>> createClient(ClientInsert draft);
    QCoro::Task<bool> updateClient(QString clientId, ClientPatch patch);
    // Archives the client rather than deleting the row: invoices and trips that name it keep
    // their link and show it, while `clients` (what the lists and the composer offer) drops it.
    QCoro::Task<bool> deleteClient(QString clientId);

    // Invoice templates: named styles, the user's own and their teams'. The house style every new
    // invoice is drawn in is the user's default template.
    [[nodiscard]] const QList<InvoiceTemplate> &invoiceTemplates() const { return m_invoiceTemplates; }
    // The user's own template marked default, else their newest; none before a style was saved.
    [[nodiscard]] std::optional<InvoiceTemplate> defaultInvoiceTemplate() const;
    QCoro::Task<bool> loadInvoiceTemplates();
    // Puts `style` into the default template, or makes one named "Default" when there is none.
    QCoro::Task<bool> saveHouseStyle(InvoiceStyle style);

    // Invoices. Each operation answers whether it succeeded and sets `lastError` otherwise.
    [[nodiscard]] const QList<Invoice> &invoices() const { return m_invoices; }
    [[nodiscard]] std::optional<Invoice> invoice(const QString &invoiceId) const;
    [[nodiscard]] std::optional<Invoice> invoiceByNumber(const QString &number) const;
    QCoro::Task<bool> loadInvoices();
    // The backend hands out numbers; the client never makes one up.
    QCoro::Task<std::optional<QString>> allocateInvoiceNumber();
    [[nodiscard]] const QList<TimeEntry> &unbilledEntries() const { return m_unbilledEntries; }
    [[nodiscard]] bool unbilledReady() const { return m_unbilledReady; }
    [[nodiscard]] bool unbilledError() const { return m_unbilledError; }
    QCoro::Task<bool> loadUnbilledEntries();
    [[nodiscard]] const QSet<QString> &billedEntryIds() const { return m_billedEntryIds; }
    [[nodiscard]] const PriorBilling &priorBilling() const { return m_priorBilling; }
    // Invoicing waits for these: a set that was not read would bill a fixed price twice.
    [[nodiscard]] bool priorBillingReady() const { return m_priorBillingReady; }
    [[nodiscard]] bool priorBillingError() const { return m_priorBillingError; }
    QCoro::Task<bool> reloadBilledEntrySet();
    // Which invoice holds which entry, void invoices' links included; answered and not kept.
    QCoro::Task<std::optional<QList<InvoiceEntryLink>>> readEntryLinks();
    QCoro::Task<std::optional<QList<InvoiceLine>>> loadInvoiceLines(QString invoiceId);
    // Draft, sent or paid; a void invoice stays void.
    QCoro::Task<bool> updateInvoiceStatus(QString invoiceId, InvoiceStatus status);
    // Voids the invoice and releases its hours and trips.
    QCoro::Task<bool> voidInvoice(QString invoiceId);
    QCoro::Task<bool> deleteInvoice(QString invoiceId);
    // A link to the stored PDF that works for ten minutes without a token.
    QCoro::Task<std::optional<QUrl>> invoicePdfURL(QString invoiceId);
    QCoro::Task<bool> replaceInvoicePDF(QString invoiceId, QByteArray pdf);
    // Writes a composed invoice; on a failure after the invoice row exists the row is deleted
    // again, so no half invoice stays behind. `invoiceSaveMessage` tells the outcome either way.
    QCoro::Task<std::optional<Invoice>> saveInvoice(InvoiceSaveRequest request);
    [[nodiscard]] QString invoiceSaveMessage() const { return m_invoiceSaveMessage; }
    // The net worth of the unbilled time (of one project, or of all with an empty id).
    [[nodiscard]] double unbilledTotal(const QString &projectId = {}) const;
    // Billed tracked seconds ÷ tracked seconds of the project; none when nothing is tracked.
    [[nodiscard]] std::optional<double> billedFraction(const QString &projectId) const;
    // The same share for one task.
    [[nodiscard]] std::optional<double> taskBilledFraction(const QString &taskId) const;
    // The same share for every task with tracked time, in one pass over the unbilled work: a list
    // of thousands of tasks asking one by one would go through all of it for each.
    [[nodiscard]] QHash<QString, double> taskBilledFractions() const;
    // Where an invoice of the project should start: the day of its earliest unbilled work.
    [[nodiscard]] std::optional<QDate> smartInvoiceStartDate(const QString &projectId) const;
    // The object path of an invoice's PDF: the owner's folder, "invoices", the file.
    [[nodiscard]] static QString invoicePdfPath(const QString &ownerId, const QString &fileName);

    // Trips: the user's own, newest first. Loaded on demand, then kept current by the feed.
    [[nodiscard]] const QList<Trip> &trips() const { return m_trips; }
    [[nodiscard]] bool tripsReady() const { return m_tripsReady; }
    [[nodiscard]] bool tripsError() const { return m_tripsError; }
    [[nodiscard]] std::optional<Trip> trip(const QString &tripId) const;
    // The ids of trips on a live invoice; a trip in it is never charged again.
    [[nodiscard]] const QSet<QString> &billedTripIds() const { return m_billedTripIds; }
    [[nodiscard]] bool billedTripsReady() const { return m_billedTripsReady; }
    [[nodiscard]] bool billedTripsError() const { return m_billedTripsError; }
    // The live invoice that charges the trip; empty when none does.
    [[nodiscard]] QString billedTripInvoiceId(const QString &tripId) const { return m_billedTripInvoice.value(tripId); }
    QCoro::Task<bool> loadTrips();
    QCoro::Task<bool> fetchTrip(QString tripId);
    QCoro::Task<std::optional<QList<Trip>>> createTrips(QList<TripInsert> inserts);
    QCoro::Task<bool> updateTrip(QString tripId, TripPatch patch);
    QCoro::Task<bool> deleteTrip(QString tripId);
    QCoro::Task<bool> reloadBilledTrips();
    QCoro::Task<bool> refreshTripBilled() { return reloadBilledTrips(); }
    void upsertTripLocally(const Trip &trip);
    void removeTripLocally(const QString &tripId);
    // The trip without an arrival, if one is under way.
    [[nodiscard]] std::optional<Trip> tripInProgress() const;
    [[nodiscard]] TravelSettings travelSettings() const;
    QCoro::Task<bool> setTravelSettings(TravelSettings settings);
    // The travel line the project's unbilled trips would add to its next invoice, limited to the
    // trips that started in [from, to] when those are valid; none when nothing is to be charged.
    [[nodiscard]] std::optional<Travel::InvoiceLine> travelInvoiceLine(const QString &projectId, QDate from = {},
                                                                       QDate to = {}) const;
    // The money those trips add, and the line's description ("12.3 km in 2 trips").
    struct TravelToInvoice
    {
        std::optional<double> amount;
        QString text;
    };
    [[nodiscard]] TravelToInvoice travelToInvoice(const QString &projectId) const;

signals:
    void projectsChanged();
    void tasksChanged();
    void entriesChanged();
    void teamsChanged();
    void invitationsChanged();
    void clientsChanged();
    void invoiceTemplatesChanged();
    void profileChanged();
    void currentUserIdChanged();
    void selectedProjectIdChanged();
    void selectedTaskIdChanged();
    void lastErrorChanged();
    void isLoadingChanged();
    void lastRefreshedAtChanged();
    void savingTaskIdsChanged();
    void realtimeConnectedChanged();
    void selectedTaskIdsChanged();
    void sidebarSelectionChanged();
    void taskFilterChanged();
    void taskSortChanged();
    void searchQueryChanged();
    void aiProgressChanged();
    // The running task, or its start, changed: the timer display binds to runningTask() here.
    void runningTaskChanged();
    void pendingInvoiceContextChanged();
    void invoicesChanged();
    void unbilledEntriesChanged();
    void billedSetChanged();
    void invoiceSaveMessageChanged();
    void tripsChanged();
    void billedTripsChanged();

private:
    // A token and the session it belongs to: an answer that arrives after the user changed is
    // dropped instead of being merged into the next user's data.
    struct Session
    {
        QString token;
        quint64 generation = 0;
    };
    class LoadingScope;
    class SavingScope;

    QCoro::Task<std::optional<Session>> openSession(const char *logPrefix);
    // Runs `call(token)`. A 401 means the backend no longer takes the token (revoked, or expired
    // early by the clocks' disagreement), not that the user may not do this: the call runs once
    // more with a fresh token, and only a second refusal reaches the caller.
    template<typename Call>
    auto authorized(Session &session, Call call) -> decltype(call(QString()));
    [[nodiscard]] bool isCurrent(const Session &session) const { return session.generation == m_generation; }
    void adoptUser(const QString &userId);
    void clearCollections();

    // One PATCH of one row by id, its answer merged; a write that matches no row was refused.
    QCoro::Task<bool> patchTask(QString taskId, AnyEncodable body, const char *logPrefix);
    QCoro::Task<bool> patchProfile(AnyEncodable patch, const char *logPrefix, QString notSaved);
    QCoro::Task<bool> rewriteAttachments(QString taskId, std::function<void(TaskAttachments &)> change,
                                         const char *logPrefix);
    QCoro::Task<bool> patchProject(QString projectId, AnyEncodable body, const char *logPrefix, QString refusedMessage);
    // Status writes that leave running timers alone; answers the ids that changed.
    QCoro::Task<QStringList> writeStatus(Session session, QStringList taskIds, TaskStatus status,
                                         const char *logPrefix);
    QCoro::Task<> reloadMembers(Session session, QString teamId);
    QCoro::Task<std::optional<TaskItem>> readTask(Session &session, QString taskId);
    QCoro::Task<bool> stopRun(Session &session, TaskItem running, std::optional<QDateTime> endedAt = std::nullopt);
    // Updates one entry with `patch`, or deletes it without one; then the task's total follows.
    QCoro::Task<bool> writeEntry(QString entryId, std::optional<TimeEntryPatch> patch, const char *logPrefix);
    void replaceEntry(const TimeEntry &entry);
    void removeEntry(const QString &entryId);
    void armPoll();
    [[nodiscard]] bool refreshDue(const QDateTime &now) const;
    QCoro::Task<> pollStep(quint64 run);

    void setLastError(const QString &message);
    void failed(const char *logPrefix, const QString &detail, const QString &message);
    void writeFailed(const char *logPrefix, const MorvaneError &error, const QString &refusedMessage);
    void setLoadingDepth(int depth);
    void setLastRefreshedAt(const QDateTime &at);
    void setCurrentUserId(const QString &userId);
    void setProfile(const std::optional<Profile> &profile);
    void setProjects(QList<Project> projects);
    void setTeams(QList<Team> teams, QHash<QString, QList<TeamMember>> members);
    void setInvitations(QList<TeamInvitation> invitations);
    QCoro::Task<bool> answerInvitation(QString teamId, bool accept);
    // Changes a member's role, or removes the member without one.
    QCoro::Task<bool> writeMember(QString teamId, QString userId, std::optional<TeamRole> role);
    void setClients(QList<Client> all);
    void setInvoiceTemplates(QList<InvoiceTemplate> templates);
    void mergeClient(const Client &client);
    QCoro::Task<bool> patchClient(QString clientId, AnyEncodable body, const char *logPrefix);
    void setSelectedTaskIds(QSet<QString> ids);
    void mergeProject(const Project &project);
    void removeProject(const QString &projectId);
    void removeTasks(const QSet<QString> &taskIds);
    void groupTasks(const QList<TaskItem> &tasks);
    void foldEntries(const QList<TimeEntry> &entries, const QDateTime &windowStart);
    void tasksDidChange();
    [[nodiscard]] QDateTime recentWindowStart() const;
    void mergeInvoice(const Invoice &invoice);
    void clearInvoices();
    void setInvoiceSaveMessage(const QString &message);
    QCoro::Task<std::optional<QString>> reuseOrCreateClient(Session &session, ClientInsert client);
    void clearTrips();

    AuthStore &m_auth;
    std::shared_ptr<QSettings> m_settings;
    Clock m_clock;

    QList<Project> m_projects;
    QHash<QString, QList<TaskItem>> m_tasksByProject;
    QHash<QString, QString> m_projectOfTask;
    QHash<QString, QList<TimeEntry>> m_entriesByTask;
    QList<Team> m_teams;
    QHash<QString, QList<TeamMember>> m_membersByTeam;
    QList<TeamInvitation> m_invitations;
    QList<TimeEntry> m_recentEntries;
    QList<Client> m_clients;
    QList<Client> m_allClients;
    QList<InvoiceTemplate> m_invoiceTemplates;
    std::optional<Profile> m_profile;

    QString m_currentUserId;
    QString m_selectedProjectId;
    QString m_selectedTaskId;
    QString m_lastError;
    int m_loadingDepth = 0;
    QDateTime m_lastRefreshedAt;
    QSet<QString> m_savingTaskIds;
    // Two writes on one task may overlap; the task shows as saving until the last one ends.
    QHash<QString, int> m_savingCounts;
    bool m_realtimeConnected = false;
    QSet<QString> m_selectedTaskIds;
    SidebarSelection m_sidebarSelection;
    TaskFilter m_taskFilter = TaskFilter::All;
    TaskSort m_taskSort = TaskSort::Manual;
    QString m_searchQuery;
    QString m_aiProgress;
    QString m_runningKey;
    TimerStore m_timer;

    quint64 m_generation = 0;
    bool m_syncing = false;
    // The safety poll: one look per timeout, re-armed after each look, so a slow refresh delays
    // the next look instead of piling looks up. A run number tells a look of an earlier
    // startSync not to re-arm.
    QTimer m_pollTimer;
    quint64 m_pollRun = 0;
    std::chrono::milliseconds m_pollInterval = defaultPollInterval;
    std::optional<InvoiceContext> m_pendingInvoiceContext;
    bool m_realtimeEnabled = true;
    std::shared_ptr<RealtimeScheduler> m_realtimeScheduler = RealtimeScheduler::system();
    std::unique_ptr<RealtimeClient> m_realtime;
    QStringList m_teamProjectIds;

    QList<Invoice> m_invoices;
    QList<TimeEntry> m_unbilledEntries;
    bool m_unbilledReady = false;
    bool m_unbilledError = false;
    QSet<QString> m_billedEntryIds;
    PriorBilling m_priorBilling;
    bool m_priorBillingReady = false;
    bool m_priorBillingError = false;
    QString m_invoiceSaveMessage;

    QList<Trip> m_trips;
    bool m_tripsReady = false;
    bool m_tripsError = false;
    QSet<QString> m_billedTripIds;
    QHash<QString, QString> m_billedTripInvoice;
    bool m_billedTripsReady = false;
    bool m_billedTripsError = false;
};
