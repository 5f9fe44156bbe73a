#include "ui/sessionsview.h"

#include "app/storesessionlogsink.h"
#include "billing/money.h"
#include "store/appstore.h"

#include <QDir>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

// Recency of a folder's newest session, as the list buckets it.
QString bucketOf(const QDate &day, const QDate &today)
{
    if (day >= today) {
        //% "Today"
        return qtTrId("ui.sessions.today");
    }
    if (day == today.addDays(-1)) {
        //% "Yesterday"
        return qtTrId("ui.sessions.yesterday");
    }
    const QDate monday = today.addDays(1 - today.dayOfWeek());
    if (day >= monday) {
        //% "Earlier this week"
        return qtTrId("ui.sessions.thisWeek");
    }
    if (day >= monday.addDays(-7)) {
        //% "Last week"
        return qtTrId("ui.sessions.lastWeek");
    }
    //% "Earlier"
    return qtTrId("ui.sessions.earlier");
}

QString sessionTitle(const ParsedSession &session)
{
    //% "Claude session"
    return session.firstUserMessage.value_or(qtTrId("ui.sessions.untitled")).simplified().left(140);
}

} // namespace

SessionsView::SessionsView(std::shared_ptr<QSettings> settings, QString projectsDir, QObject *parent)
    : QObject(parent)
    , m_settings(std::move(settings))
    , m_watcher(projectsDir.isEmpty() ? std::make_unique<ClaudeWatcher>(m_settings)
                                      : std::make_unique<ClaudeWatcher>(m_settings, std::move(projectsDir)))
{
    ClaudeWatcher *watcher = m_watcher.get();
    for (auto signal : {&ClaudeWatcher::enabledChanged, &ClaudeWatcher::scanningChanged,
                        &ClaudeWatcher::scanErrorChanged, &ClaudeWatcher::lastResultChanged}) {
        connect(watcher, signal, this, &SessionsView::trackingChanged);
    }
    connect(watcher, &ClaudeWatcher::pendingPathsChanged, this, &SessionsView::pendingChanged);
    connect(watcher, &ClaudeWatcher::liveSessionsChanged, this, &SessionsView::rebuild);
    connect(watcher, &ClaudeWatcher::pathMappingsChanged, this, &SessionsView::rebuild);
    // A finished scan logged bursts: the list's "logged" marks follow.
    connect(watcher, &ClaudeWatcher::lastResultChanged, this, &SessionsView::rebuild);
}

SessionsView::~SessionsView() = default;

void SessionsView::setStores(AppStore *store, AuthStore *auth)
{
    if (m_store) {
        disconnect(m_store, nullptr, this, nullptr);
    }
    m_store = store;
    m_sink.reset();
    if (store && auth) {
        m_sink = std::make_shared<StoreSessionLogSink>(*auth, *store);
        connect(store, &AppStore::projectsChanged, this, &SessionsView::rebuild);
        connect(store, &AppStore::projectsChanged, this, &SessionsView::pendingChanged);
    }
    // Held weakly by the watcher: polling stops by itself once the sink is gone.
    m_watcher->setSink(m_sink);
    rebuild();
}

void SessionsView::retranslate()
{
    rebuild();
    emit trackingChanged();
    emit pendingChanged();
}

QString SessionsView::resultText() const
{
    const std::optional<ScanResult> result = m_watcher->lastResult();
    if (!result) {
        //% "No scan yet."
        return qtTrId("ui.sessions.noScan");
    }
    //% "Last scan %1: %2 sessions found, %3 work bursts logged (%4), %5 sessions waiting for a project."
    return qtTrId("ui.sessions.result")
        .arg(QLocale().toString(result->scannedAt.toLocalTime(), QLocale::ShortFormat))
        .arg(result->foundSessions)
        .arg(result->loggedSessions)
        .arg(formatHM(result->loggedSeconds))
        .arg(result->pendingSessions);
}

int SessionsView::idleGapMinutes() const
{
    return ClaudeWatcher::idleGapSeconds(*m_settings) / 60;
}

void SessionsView::setIdleGapMinutes(int minutes)
{
    // Between a minute and a working day: anything else is a typo, not a choice.
    const int clamped = std::clamp(minutes, 1, 8 * 60);
    if (clamped != idleGapMinutes()) {
        m_settings->setValue(ClaudeWatcher::idleGapKey, clamped * 60);
        emit trackingChanged();
    }
}

QVariantList SessionsView::pending() const
{
    QVariantList list;
    for (const PendingPath &path : m_watcher->pendingPaths()) {
        list << QVariantMap{{u"cwd"_s, path.cwd},
                            {u"name"_s, folderName(path.cwd)},
                            {u"sessions"_s, path.sessionCount},
                            {u"active"_s, formatHM(path.totalActiveSeconds)}};
    }
    return list;
}

QString SessionsView::folderName(const QString &cwd)
{
    const QString name = QDir(QDir::cleanPath(cwd)).dirName();
    return name.isEmpty() ? cwd : name;
}

void SessionsView::rebuild()
{
    const QHash<QString, QString> mappings = m_watcher->pathMappings();
    const QSet<QString> processed = [&] {
        const QStringList keys = m_watcher->processedKeys();
        return QSet<QString>(keys.cbegin(), keys.cend());
    }();
    const QDate today = QDate::currentDate();
    // Newest first already: each folder appears where its newest session puts it.
    QStringList order;
    QHash<QString, QVariantList> sessionsByCwd;
    QHash<QString, QDate> newestByCwd;
    for (const ParsedSession &session : m_watcher->liveSessions()) {
        if (!sessionsByCwd.contains(session.cwd)) {
            order << session.cwd;
            newestByCwd.insert(session.cwd, session.endedAt.toLocalTime().date());
        }
        const int bursts = std::max<int>(1, session.segments.size());
        int logged = processed.contains(session.sessionId) ? bursts : 0;
        for (int i = 0; i < session.segments.size() && logged < bursts; ++i) {
            logged += processed.contains(ClaudeWatcher::burstKey(session.sessionId, i));
        }
        sessionsByCwd[session.cwd] << QVariantMap{
            {u"id"_s, session.sessionId},
            {u"title"_s, sessionTitle(session)},
            {u"when"_s, ClaudeWatcher::formatDateRange(session.startedAt.toLocalTime(), session.endedAt.toLocalTime())},
            {u"active"_s, formatHM(session.activeSeconds)},
            {u"bursts"_s, bursts},
            {u"logged"_s, logged >= bursts},
        };
    }
    m_groups.clear();
    QString bucket;
    for (const QString &cwd : std::as_const(order)) {
        const QString here = bucketOf(newestByCwd.value(cwd), today);
        const QString projectId = mappings.value(cwd);
        const std::optional<Project> project =
            m_store && !projectId.isEmpty() ? m_store->project(projectId) : std::nullopt;
        m_groups << QVariantMap{{u"cwd"_s, cwd},
                                {u"name"_s, folderName(cwd)},
                                {u"bucket"_s, here == bucket ? QString() : here},
                                {u"projectId"_s, project ? projectId : QString()},
                                {u"projectName"_s, project ? project->name : QString()},
                                {u"sessions"_s, sessionsByCwd.value(cwd)}};
        bucket = here;
    }
    emit groupsChanged();
}

void SessionsView::rescan()
{
    if (m_loading) {
        return;
    }
    m_loading = true;
    emit loadingChanged();
    [](QPointer<SessionsView> self) -> QCoro::Task<> {
        co_await self->m_watcher->loadLiveSessions();
        if (self) {
            self->m_loading = false;
            emit self->loadingChanged();
        }
    }(this);
}

void SessionsView::scanNow()
{
    if (!m_sink) {
        return;
    }
    [](QPointer<SessionsView> self) -> QCoro::Task<> {
        co_await self->m_watcher->scanNow();
        if (self) {
            self->rescan();
        }
    }(this);
}

void SessionsView::reimportAll()
{
    if (!m_sink) {
        return;
    }
    [](QPointer<SessionsView> self) -> QCoro::Task<> {
        co_await self->m_watcher->reimportAll();
        if (self) {
            self->rescan();
        }
    }(this);
}

void SessionsView::mapFolder(const QString &cwd, const QString &projectId)
{
    m_watcher->mapPath(cwd, projectId.isEmpty() ? std::nullopt : std::optional<QString>(projectId));
    emit pendingChanged();
}

void SessionsView::ignoreFolder(const QString &cwd)
{
    [](QPointer<SessionsView> self, QString cwd) -> QCoro::Task<> {
        co_await self->m_watcher->dismissPath(cwd);
        if (self) {
            self->rebuild();
        }
    }(this, cwd);
}

std::optional<ParsedSession> SessionsView::session(const QString &sessionId) const
{
    for (const ParsedSession &session : m_watcher->liveSessions()) {
        if (session.sessionId == sessionId) {
            return session;
        }
    }
    return std::nullopt;
}

QCoro::Task<std::optional<QString>> SessionsView::createProject(QString name, QString description)
{
    QPointer<AppStore> store = m_store;
    if (!store) {
        co_return std::nullopt;
    }
    ProjectInsert draft;
    draft.userId = store->currentUserId();
    draft.name = name;
    draft.description = description;
    const std::optional<Project> project = co_await store->createProject(draft);
    if (!project) {
        //% "Create project failed: %1"
        say(qtTrId("ui.sessions.err.createProject").arg(store ? store->lastError() : QString()), true);
        co_return std::nullopt;
    }
    co_return project->id;
}

void SessionsView::createProjectForFolder(const QString &cwd)
{
    [](QPointer<SessionsView> self, QString cwd) -> QCoro::Task<> {
        //% "Auto-created for Claude sessions in %1"
        const std::optional<QString> projectId =
            co_await self->createProject(folderName(cwd), qtTrId("ui.sessions.folderProject").arg(cwd));
        if (self && projectId) {
            self->mapFolder(cwd, *projectId);
        }
    }(this, cwd);
}

void SessionsView::createProjectForSession(const QString &sessionId)
{
    const std::optional<ParsedSession> found = session(sessionId);
    if (!found) {
        return;
    }
    [](QPointer<SessionsView> self, ParsedSession session) -> QCoro::Task<> {
        //% "Auto-created for Claude session %1"
        const std::optional<QString> projectId = co_await self->createProject(
            folderName(session.cwd), qtTrId("ui.sessions.sessionProject").arg(session.sessionId));
        if (self && projectId) {
            self->previewSession(session.sessionId, *projectId);
        }
    }(this, *found);
}

void SessionsView::previewSession(const QString &sessionId, const QString &projectId)
{
    const std::optional<ParsedSession> found = session(sessionId);
    const std::optional<Project> project = m_store ? m_store->project(projectId) : std::nullopt;
    if (!found || !project) {
        return;
    }
    const QList<SessionSegment> bursts =
        found->segments.isEmpty() ? ClaudeWatcher::fallbackSingleSegment(*found) : found->segments;
    QVariantList rows;
    for (const SessionSegment &burst : bursts) {
        rows << QVariantMap{{u"title"_s, QString(u"[AI] "_s + burst.title)},
                            {u"when"_s, ClaudeWatcher::formatDateRange(burst.startedAt.toLocalTime(),
                                                                       burst.endedAt.toLocalTime())},
                            {u"active"_s, formatHM(burst.activeSeconds)},
                            {u"prompts"_s, burst.promptCount}};
    }
    const qsizetype count = std::max<qsizetype>(1, bursts.size());
    const QString tasks = count == 1 ?
                                     //% "1 task"
                              qtTrId("ui.sessions.oneTask")
                                     //% "%1 tasks"
                                     : qtTrId("ui.sessions.manyTasks").arg(count);
    m_preview = {{u"sessionId"_s, sessionId},
                 {u"projectId"_s, projectId},
                 //% "Review and log to: %1 (%2)"
                 {u"title"_s, qtTrId("ui.sessions.previewTitle").arg(project->name, tasks)},
                 {u"rows"_s, rows}};
    emit previewChanged();
}

void SessionsView::commitPreview()
{
    const std::optional<ParsedSession> found = session(m_preview.value(u"sessionId"_s).toString());
    const QString projectId = m_preview.value(u"projectId"_s).toString();
    closePreview();
    if (!found || projectId.isEmpty() || !m_sink) {
        return;
    }
    [](QPointer<SessionsView> self, ParsedSession session, QString projectId) -> QCoro::Task<> {
        const int bursts = std::max<int>(1, session.segments.size());
        const int logged = co_await self->m_watcher->logSession(session, projectId);
        if (!self) {
            co_return;
        }
        if (!self->m_watcher->scanError().isEmpty() && logged < bursts) {
            self->say(self->m_watcher->scanError(), true);
        } else {
            //% "Logged %1 of %2 work bursts."
            self->say(qtTrId("ui.sessions.logged").arg(logged).arg(bursts), false);
        }
        self->rebuild();
    }(this, *found, projectId);
}

void SessionsView::closePreview()
{
    if (!m_preview.isEmpty()) {
        m_preview.clear();
        emit previewChanged();
    }
}

void SessionsView::reimportSession(const QString &sessionId)
{
    const std::optional<ParsedSession> found = session(sessionId);
    if (!found) {
        return;
    }
    [](QPointer<SessionsView> self, ParsedSession session) -> QCoro::Task<> {
        co_await self->m_watcher->reimportSession(session);
        if (self) {
            self->rescan();
        }
    }(this, *found);
}

void SessionsView::say(const QString &text, bool error)
{
    if (text != m_message || error != m_messageIsError) {
        m_message = text;
        m_messageIsError = error;
        emit messageChanged();
    }
}
