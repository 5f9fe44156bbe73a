#pragma once

#include "sessions/sessionrecords.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>

#include <qcoro/qcorotask.h>

#include <memory>

class QSettings;

// Turns the coding agent's local session logs (~/.claude/projects/<folder>/<session>.jsonl) into
// sessions and work bursts. The scanning functions are static and touch no instance state, so
// they run on any thread; the instance lives on the main thread and publishes what they find.
class ClaudeWatcher : public QObject
{
    Q_OBJECT

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

    ClaudeWatcher(std::shared_ptr<QSettings> settings, QString projectsDir, QObject *parent = nullptr);
    explicit ClaudeWatcher(std::shared_ptr<QSettings> settings, QObject *parent = nullptr);
    ~ClaudeWatcher() override;

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

    [[nodiscard]] QString projectsDir() const { return m_projectsDir; }
    [[nodiscard]] QList<ParsedSession> liveSessions() const { return m_liveSessions; }

    // Sessions of the last 30 days, newest first, walked off the main thread.
    QCoro::Task<> loadLiveSessions();

Q_SIGNALS:
    void liveSessionsChanged();

private:
    std::shared_ptr<QSettings> m_settings;
    QString m_projectsDir;
    QList<ParsedSession> m_liveSessions;
};
