#pragma once

#include "model/clock.h"
#include "sessions/sessionlogsink.h"
#include "sessions/sessionrecords.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QLocale>
#include <QObject>
#include <QString>
#include <QTimer>

#include <qcoro/qcorotask.h>

#include <chrono>
#include <memory>

class QSettings;

// A working directory with sessions but no project to log them to.
struct PendingPath
{
    QString cwd;
    int sessionCount = 0;
    qint64 totalActiveSeconds = 0;

    friend bool operator==(const PendingPath &, const PendingPath &) = default;
};

// The figures of one scan.
struct ScanResult
{
    int foundSessions = 0;
    int loggedSessions = 0; // bursts logged
    qint64 loggedSeconds = 0;
    int pendingSessions = 0;
    int failedBursts = 0; // tried and failed: left for the next scan
    QDateTime scannedAt;
};

// Turns the coding agent's local session logs (~/.claude/projects/<folder>/<session>.jsonl) into
// sessions and work bursts, and logs the bursts of mapped working directories as tasks with
// time. The scanning functions are static and touch no instance state, so they run on any
// thread; the instance lives on the main thread, keeps the settings and publishes what it finds.
class ClaudeWatcher : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool enabled READ enabled WRITE setEnabled NOTIFY enabledChanged)
    Q_PROPERTY(bool scanning READ scanning NOTIFY scanningChanged)
    Q_PROPERTY(QDateTime lastScanAt READ lastScanAt NOTIFY lastResultChanged)
    Q_PROPERTY(QString scanError READ scanError NOTIFY scanErrorChanged)

public:
    // What one walk did, for the command line and the benchmarks.
    struct ScanStats
    {
        int filesSeen = 0;      // recent log files
        int filesFromCache = 0; // unchanged since the last walk: not opened
        int filesExtended = 0;  // grown by appended lines: only the new bytes read
        int filesReadWhole = 0;
        qint64 bytesRead = 0;
    };

    static constexpr int defaultIdleGapSeconds = 900;
    static constexpr int listRecentDays = 30;
    static constexpr int scanRecentDays = 60;
    static constexpr std::chrono::milliseconds defaultPollInterval{60'000};

    // Settings keys.
    static const QString enabledKey;
    static const QString idleGapKey;
    static const QString mappingsKey;
    static const QString processedKey;

    ClaudeWatcher(std::shared_ptr<QSettings> settings, QString projectsDir, QObject *parent = nullptr);
    explicit ClaudeWatcher(std::shared_ptr<QSettings> settings, QObject *parent = nullptr);
    ~ClaudeWatcher() override;

    // Where bursts are logged. Held weakly; polling starts once there is one and tracking is on,
    // unless `resume` is false (a command that scans once and exits).
    void setSink(const std::shared_ptr<SessionLogSink> &sink, bool resume = true);
    void setClock(Clock clock) { m_clock = std::move(clock); }
    void setPollInterval(std::chrono::milliseconds interval) { m_pollInterval = interval; }

    // The user's home folder followed by "/.claude/projects".
    static QString defaultProjectsDir();
    // The idle gap setting; 900 seconds when missing, zero or negative.
    static int idleGapSeconds(const QSettings &settings);

    // One log file; nothing when it cannot be read, is not UTF-8, or has no working directory or
    // no time stamp.
    static std::optional<ParsedSession> parse(const QString &path, const QString &sessionId, int idleGap);
    // Splits prompts (in date order) into bursts; `timestamps` are all of the session's, ascending.
    static QList<SessionSegment> segment(const QString &sessionId, const QList<UserPrompt> &prompts,
                                         const QList<LogInstant> &timestamps, int idleGap);
    // Seconds between neighbouring instants (ascending), counting only gaps up to the idle gap.
    static qint64 computeActive(const LogInstant *begin, const LogInstant *end, int idleGap);
    static qint64 computeActive(const QList<LogInstant> &instants, int idleGap);
    // Every session whose log changed in the last `recentDays` days, in directory order. Unchanged
    // files come from the parse cache shared by the whole process.
    static QList<ParsedSession> enumerateSessions(const QString &projectsDir, int idleGap, int recentDays,
                                                  const QDateTime &now = QDateTime::currentDateTimeUtc(),
                                                  ScanStats *stats = nullptr);
    // One burst covering a session that has no prompts.
    static QList<SessionSegment> fallbackSingleSegment(const ParsedSession &session);
    // Forgets every cached parse; the next walk reads every file again.
    static void clearParseCache();

    // A burst's key in the processed set: the session id, ":seg" and the burst's index.
    static QString burstKey(const QString &sessionId, int index);
    // Both instants in the locale's medium date and short time, joined by " > ".
    static QString formatDateRange(const QDateTime &from, const QDateTime &to, const QLocale &locale = QLocale());

    [[nodiscard]] QString projectsDir() const { return m_projectsDir; }
    [[nodiscard]] QList<ParsedSession> liveSessions() const { return m_liveSessions; }
    [[nodiscard]] bool enabled() const { return m_enabled; }
    [[nodiscard]] bool scanning() const { return m_scanning; }
    [[nodiscard]] QDateTime lastScanAt() const { return m_lastResult ? m_lastResult->scannedAt : QDateTime(); }
    [[nodiscard]] std::optional<ScanResult> lastResult() const { return m_lastResult; }
    [[nodiscard]] QList<PendingPath> pendingPaths() const { return m_pendingPaths; }
    [[nodiscard]] QString scanError() const { return m_scanError; }
    // Working directory to project id.
    [[nodiscard]] QHash<QString, QString> pathMappings() const;
    [[nodiscard]] QStringList processedKeys() const;

    // Sessions of the last 30 days, newest first, walked off the main thread.
    QCoro::Task<> loadLiveSessions();

    void setEnabled(bool enabled);
    // Maps a working directory to a project, or with no project removes its mapping.
    void mapPath(const QString &cwd, const std::optional<QString> &projectId);
    // "Ignore this folder": its sessions as they are now are never logged nor offered again.
    QCoro::Task<> dismissPath(QString cwd);
    // Logs the bursts of one session not logged before to a project now; answers how many.
    QCoro::Task<int> logSession(ParsedSession session, QString projectId);
    // Forgets that a session (or every session) was logged, so that it is logged again.
    QCoro::Task<> reimportSession(ParsedSession session);
    QCoro::Task<ScanResult> reimportAll();
    // One scan at once, then one every poll interval, while tracking is on and a sink exists.
    void resumePolling();
    // One scan now; scans already running are not waited for.
    QCoro::Task<ScanResult> scanNow();

Q_SIGNALS:
    void liveSessionsChanged();
    void enabledChanged();
    void scanningChanged();
    void pendingPathsChanged();
    void scanErrorChanged();
    void lastResultChanged();
    void pathMappingsChanged();

private:
    enum class Logged { Yes, NoUser, Failed };

    QCoro::Task<Logged> logBurst(const ParsedSession &session, const SessionSegment &burst, int burstCount,
                                 const QString &projectId);
    QCoro::Task<QList<ParsedSession>> walk(int recentDays) const;
    void storeProcessed(const QStringList &keys);
    void setScanError(const QString &error);
    QCoro::Task<> pollStep(quint64 run);

    std::shared_ptr<QSettings> m_settings;
    QString m_projectsDir;
    QList<ParsedSession> m_liveSessions;
    std::weak_ptr<SessionLogSink> m_sink;
    Clock m_clock = systemClock();
    std::chrono::milliseconds m_pollInterval = defaultPollInterval;
    QTimer m_pollTimer;
    quint64 m_pollRun = 0;
    bool m_polling = false;
    bool m_enabled = false;
    bool m_scanning = false;
    std::optional<ScanResult> m_lastResult;
    QList<PendingPath> m_pendingPaths;
    QString m_scanError;
    // Tasks created for bursts whose time entry then failed: the retry logs the time on the
    // same task instead of creating a second one.
    QHash<QString, QString> m_createdTasks;
};
