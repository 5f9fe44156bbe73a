// The main-thread half of ClaudeWatcher: settings, polling and logging bursts through the sink.
#include "claudewatcher.h"

#include "model/error.h"

#include <QDir>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QSet>
#include <QSettings>
#include <QThreadPool>

#include <qcoro/qcorofuture.h>

#include <QtConcurrent/QtConcurrentRun>
#include <algorithm>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcSessions, "morvane.sessions")

const QString ClaudeWatcher::enabledKey = u"claude_tracking_enabled"_s;
const QString ClaudeWatcher::idleGapKey = u"claude_idle_gap_seconds"_s;
const QString ClaudeWatcher::mappingsKey = u"claude_path_mappings"_s;
const QString ClaudeWatcher::processedKey = u"claude_processed_sessions"_s;

namespace {

// Walks run one at a time at low priority: they read files, and the user's work comes first.
QThreadPool &backgroundPool()
{
    static QThreadPool *pool = [] {
        auto *created = new QThreadPool;
        created->setMaxThreadCount(1);
        created->setThreadPriority(QThread::LowPriority);
        return created;
    }();
    return *pool;
}

// The locale's long date without the weekday and with short month names: what is called a
// medium date elsewhere ("Mar 1, 2025", "1 mrt 2025").
QString mediumDateFormat(const QLocale &locale)
{
    QString format = locale.dateFormat(QLocale::LongFormat);
    format.remove(QRegularExpression(u"dddd[,.]?\\s*"_s));
    format.replace(u"MMMM"_s, u"MMM"_s);
    return format.trimmed();
}

// Built outside the coroutines: GCC 12 mishandles initializer lists inside them.
BurstTask burstTask(const QString &userId, const QString &projectId, const ParsedSession &session,
                    const SessionSegment &burst, int burstCount)
{
    BurstTask task;
    task.userId = userId;
    task.projectId = projectId;
    task.title = u"[AI] "_s + burst.title;
    const QStringList lines{
        u"Claude Code session "_s + session.sessionId + u", segment "_s + QString::number(burst.index + 1) + u" of "_s +
            QString::number(burstCount),
        u"Working dir: "_s + session.cwd,
        u"Prompts in this segment: "_s + QString::number(burst.promptCount),
        u"Window: "_s + ClaudeWatcher::formatDateRange(burst.startedAt, burst.endedAt),
    };
    task.description = lines.join(u'\n');
    return task;
}

} // namespace

ClaudeWatcher::ClaudeWatcher(std::shared_ptr<QSettings> settings, QString projectsDir, QObject *parent)
    : QObject(parent)
    , m_settings(std::move(settings))
    , m_projectsDir(std::move(projectsDir))
{
    m_enabled = m_settings->value(enabledKey, false).toBool();
    m_pollTimer.setSingleShot(true);
    connect(&m_pollTimer, &QTimer::timeout, this, [this] { pollStep(m_pollRun); });
}

ClaudeWatcher::ClaudeWatcher(std::shared_ptr<QSettings> settings, QObject *parent)
    : ClaudeWatcher(std::move(settings), defaultProjectsDir(), parent)
{}

ClaudeWatcher::~ClaudeWatcher() = default;

QString ClaudeWatcher::defaultProjectsDir()
{
    return QDir::homePath() + u"/.claude/projects";
}

int ClaudeWatcher::idleGapSeconds(const QSettings &settings)
{
    bool ok = false;
    const int value = settings.value(idleGapKey).toInt(&ok);
    return ok && value > 0 ? value : defaultIdleGapSeconds;
}

QString ClaudeWatcher::burstKey(const QString &sessionId, int index)
{
    return sessionId + u":seg" + QString::number(index);
}

QString ClaudeWatcher::formatDateRange(const QDateTime &from, const QDateTime &to, const QLocale &locale)
{
    const auto format = [&](const QDateTime &at) -> QString {
        const QDateTime local = at.toLocalTime();
        return locale.toString(local.date(), mediumDateFormat(locale)) + u' ' +
               locale.toString(local.time(), QLocale::ShortFormat);
    };
    return format(from) + u" > " + format(to);
}

void ClaudeWatcher::setSink(const std::shared_ptr<SessionLogSink> &sink, bool resume)
{
    m_sink = sink;
    if (resume && m_enabled) {
        resumePolling();
    }
}

QHash<QString, QString> ClaudeWatcher::pathMappings() const
{
    QHash<QString, QString> mappings;
    const QVariantMap stored = m_settings->value(mappingsKey).toMap();
    for (auto it = stored.cbegin(); it != stored.cend(); ++it) {
        mappings.insert(it.key(), it.value().toString());
    }
    return mappings;
}

QStringList ClaudeWatcher::processedKeys() const
{
    return m_settings->value(processedKey).toStringList();
}

void ClaudeWatcher::storeProcessed(const QStringList &keys)
{
    m_settings->setValue(processedKey, keys);
}

void ClaudeWatcher::setScanError(const QString &error)
{
    if (m_scanError != error) {
        m_scanError = error;
        Q_EMIT scanErrorChanged();
    }
}

QCoro::Task<QList<ParsedSession>> ClaudeWatcher::walk(int recentDays) const
{
    const int idleGap = idleGapSeconds(*m_settings);
    const QString dir = m_projectsDir;
    const QDateTime now = m_clock();
    // The future is made in a statement of its own: GCC 12 mishandles temporaries (here the
    // lambda) made inside a co_await expression.
    QFuture<QList<ParsedSession>> future = QtConcurrent::run(&backgroundPool(), [dir, idleGap, recentDays, now] {
        return enumerateSessions(dir, idleGap, recentDays, now);
    });
    QList<ParsedSession> sessions = co_await future;
    co_return sessions;
}

QCoro::Task<> ClaudeWatcher::loadLiveSessions()
{
    QList<ParsedSession> sessions = co_await walk(listRecentDays);
    std::stable_sort(sessions.begin(), sessions.end(),
                     [](const ParsedSession &a, const ParsedSession &b) { return a.endedAt > b.endedAt; });
    m_liveSessions = std::move(sessions);
    Q_EMIT liveSessionsChanged();
}

void ClaudeWatcher::setEnabled(bool enabled)
{
    if (m_enabled == enabled) {
        return;
    }
    m_enabled = enabled;
    m_settings->setValue(enabledKey, enabled);
    Q_EMIT enabledChanged();
    if (enabled) {
        resumePolling();
    } else {
        // A scan under way finishes; no other follows.
        ++m_pollRun;
        m_polling = false;
        m_pollTimer.stop();
    }
}

void ClaudeWatcher::mapPath(const QString &cwd, const std::optional<QString> &projectId)
{
    QVariantMap mappings = m_settings->value(mappingsKey).toMap();
    if (projectId) {
        mappings.insert(cwd, *projectId);
    } else {
        mappings.remove(cwd);
    }
    m_settings->setValue(mappingsKey, mappings);
    Q_EMIT pathMappingsChanged();
}

QCoro::Task<> ClaudeWatcher::dismissPath(QString cwd)
{
    const QList<ParsedSession> sessions = co_await walk(scanRecentDays);
    QStringList processed = processedKeys();
    for (const ParsedSession &session : sessions) {
        if (session.cwd == cwd && !processed.contains(session.sessionId)) {
            processed.append(session.sessionId);
        }
    }
    storeProcessed(processed);
    const qsizetype removed = m_pendingPaths.removeIf([&](const PendingPath &pending) { return pending.cwd == cwd; });
    if (removed > 0) {
        Q_EMIT pendingPathsChanged();
    }
}

void ClaudeWatcher::resumePolling()
{
    if (!m_enabled || m_polling || m_sink.expired()) {
        return;
    }
    m_polling = true;
    pollStep(++m_pollRun);
}

QCoro::Task<> ClaudeWatcher::pollStep(quint64 run)
{
    co_await scanNow();
    if (run == m_pollRun && m_polling) {
        m_pollTimer.start(m_pollInterval);
    }
}

QCoro::Task<ClaudeWatcher::Logged> ClaudeWatcher::logBurst(const ParsedSession &session, const SessionSegment &burst,
                                                           int burstCount, const QString &projectId)
{
    const std::shared_ptr<SessionLogSink> sink = m_sink.lock();
    if (!sink) {
        co_return Logged::NoUser;
    }
    const std::optional<QString> userId = co_await sink->signedInUserId();
    if (!userId) {
        co_return Logged::NoUser;
    }
    const QString key = burstKey(session.sessionId, burst.index);
    try {
        QString taskId = m_createdTasks.value(key);
        if (taskId.isEmpty()) {
            const BurstTask task = burstTask(*userId, projectId, session, burst, burstCount);
            taskId = co_await sink->createTask(task);
            m_createdTasks.insert(key, taskId);
        }
        co_await sink->logMinutes(taskId, double(burst.activeSeconds) / 60.0);
        m_createdTasks.remove(key);
    } catch (const MorvaneError &error) {
        qCWarning(lcSessions) << "Create task failed:" << error.message();
        //% "Create task failed: %1"
        setScanError(qtTrId("claude.err.createTask").arg(error.message()));
        co_return Logged::Failed;
    }
    co_return Logged::Yes;
}

QCoro::Task<ScanResult> ClaudeWatcher::scanNow()
{
    if (!m_scanning) {
        m_scanning = true;
        Q_EMIT scanningChanged();
    }
    setScanError({});
    const QList<ParsedSession> sessions = co_await walk(scanRecentDays);
    const QHash<QString, QString> mappings = pathMappings();
    QStringList processed = processedKeys();
    QSet<QString> done(processed.cbegin(), processed.cend());

    ScanResult result;
    result.foundSessions = int(sessions.size());
    QList<PendingPath> pending;
    bool signedIn = true;
    for (const ParsedSession &session : sessions) {
        if (done.contains(session.sessionId)) {
            continue;
        }
        const auto mapping = mappings.constFind(session.cwd);
        if (mapping == mappings.cend()) {
            auto found = std::find_if(pending.begin(), pending.end(),
                                      [&](const PendingPath &path) { return path.cwd == session.cwd; });
            if (found == pending.end()) {
                pending.append(PendingPath{session.cwd, 0, 0});
                found = pending.end() - 1;
            }
            ++found->sessionCount;
            found->totalActiveSeconds += session.activeSeconds;
            ++result.pendingSessions;
            continue;
        }
        const QList<SessionSegment> bursts =
            session.segments.isEmpty() ? fallbackSingleSegment(session) : session.segments;
        for (const SessionSegment &burst : bursts) {
            const QString key = burstKey(session.sessionId, burst.index);
            if (!signedIn || done.contains(key)) {
                continue;
            }
            const Logged logged = co_await logBurst(session, burst, int(bursts.size()), *mapping);
            if (logged == Logged::NoUser) {
                // Nobody to log for: every burst stays for a later scan.
                signedIn = false;
            } else if (logged == Logged::Yes) {
                done.insert(key);
                processed.append(key);
                ++result.loggedSessions;
                result.loggedSeconds += burst.activeSeconds;
            } else {
                ++result.failedBursts;
            }
        }
    }
    storeProcessed(processed);

    std::stable_sort(pending.begin(), pending.end(), [](const PendingPath &a, const PendingPath &b) {
        return a.totalActiveSeconds > b.totalActiveSeconds;
    });
    result.scannedAt = m_clock();
    m_pendingPaths = pending;
    m_lastResult = result;
    m_scanning = false;
    Q_EMIT pendingPathsChanged();
    Q_EMIT lastResultChanged();
    Q_EMIT scanningChanged();
    co_return result;
}

QCoro::Task<int> ClaudeWatcher::logSession(ParsedSession session, QString projectId)
{
    const QList<SessionSegment> bursts = session.segments.isEmpty() ? fallbackSingleSegment(session) : session.segments;
    QStringList processed = processedKeys();
    int logged = 0;
    for (const SessionSegment &burst : bursts) {
        const QString key = burstKey(session.sessionId, burst.index);
        if (processed.contains(key)) {
            continue;
        }
        const Logged outcome = co_await logBurst(session, burst, int(bursts.size()), projectId);
        if (outcome == Logged::NoUser) {
            break;
        }
        if (outcome == Logged::Yes) {
            processed.append(key);
            ++logged;
        }
    }
    storeProcessed(processed);
    co_return logged;
}

QCoro::Task<> ClaudeWatcher::reimportSession(ParsedSession session)
{
    QStringList processed = processedKeys();
    processed.removeAll(session.sessionId);
    const qsizetype bursts = std::max<qsizetype>(session.segments.size(), 1);
    for (qsizetype i = 0; i < bursts; ++i) {
        processed.removeAll(burstKey(session.sessionId, int(i)));
    }
    storeProcessed(processed);
    co_await loadLiveSessions();
}

QCoro::Task<ScanResult> ClaudeWatcher::reimportAll()
{
    storeProcessed({});
    co_return co_await scanNow();
}
