#include "backend/runblocking.h"
#include "i18n/language.h"
#include "model/error.h"
#include "sessions/claudewatcher.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <ctime>

using namespace Qt::StringLiterals;

namespace {

class SinkError : public MorvaneError
{
public:
    explicit SinkError(QString text)
        : m_text(std::move(text))
    {}
    [[nodiscard]] QString message() const override { return m_text; }

private:
    QString m_text;
};

// Keeps what would have been written, so the rules of logging can be checked on their own;
// failures are switched on per test.
class RecordingSink : public SessionLogSink
{
public:
    std::optional<QString> user = u"user-1"_s;
    QList<BurstTask> tasks;
    QList<std::pair<QString, double>> entries;
    int failCreates = 0;
    int failEntries = 0;

    QCoro::Task<std::optional<QString>> signedInUserId() override { co_return std::optional<QString>(user); }

    QCoro::Task<QString> createTask(BurstTask task) override
    {
        if (failCreates > 0) {
            --failCreates;
            throw SinkError(u"the project does not exist"_s);
        }
        tasks.append(task);
        co_return u"task-%1"_s.arg(tasks.size());
    }

    QCoro::Task<> logMinutes(QString taskId, double minutes) override
    {
        if (failEntries > 0) {
            --failEntries;
            throw SinkError(u"entry refused"_s);
        }
        entries.append({taskId, minutes});
        co_return;
    }
};

QByteArray line(const char *type, const QString &time, const QString &cwd, const QString &prompt = {})
{
    QJsonObject object{{u"type"_s, QString::fromLatin1(type)},
                       {u"cwd"_s, cwd},
                       {u"timestamp"_s, QString(u"2025-03-01T"_s + time + u"Z"_s)}};
    if (!prompt.isEmpty()) {
        object.insert(u"message"_s, QJsonObject{{u"role"_s, u"user"_s}, {u"content"_s, prompt}});
    } else {
        object.insert(
            u"message"_s,
            QJsonObject{{u"content"_s, QJsonArray{QJsonObject{{u"type"_s, u"text"_s}, {u"text"_s, u"ok"_s}}}}});
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace

class TestSessionLogging : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    std::shared_ptr<QSettings> m_settings;
    std::shared_ptr<RecordingSink> m_sink;

    QString projects() const { return m_dir->filePath(u"projects"_s); }

    void writeSession(const QString &folder, const QString &sessionId, const QByteArray &lines)
    {
        QDir().mkpath(projects() + u'/' + folder);
        QFile file(projects() + u'/' + folder + u'/' + sessionId + u".jsonl"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(lines);
    }

    std::unique_ptr<ClaudeWatcher> watcher()
    {
        auto created = std::make_unique<ClaudeWatcher>(m_settings, projects());
        created->setSink(m_sink);
        return created;
    }

    // Two bursts in /w/shop: 10:00 to 10:01:30 (90 s) and 11:00 alone.
    void writeShopSession()
    {
        writeSession(u"-w-shop"_s, u"a1"_s,
                     line("user", u"10:00:00"_s, u"/w/shop"_s, u"Fix the cart"_s) +
                         line("assistant", u"10:00:40"_s, u"/w/shop"_s) +
                         line("user", u"10:01:30"_s, u"/w/shop"_s, u"And the totals"_s) +
                         line("assistant", u"10:03:00"_s, u"/w/shop"_s) +
                         line("user", u"11:00:00"_s, u"/w/shop"_s, u"Ship it"_s));
    }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "UTC");
        tzset();
        Language::apply(u"en"_s);
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    }

    // The settings write themselves back when destroyed, which would make their folder again.
    void cleanup()
    {
        m_sink.reset();
        m_settings.reset();
        m_dir.reset();
    }

    void init()
    {
        ClaudeWatcher::clearParseCache();
        m_dir = std::make_unique<QTemporaryDir>();
        m_settings = std::make_shared<QSettings>(m_dir->filePath(u"settings.ini"_s), QSettings::IniFormat);
        m_sink = std::make_shared<RecordingSink>();
    }

    void logsMappedBurstsOnceAcrossRestarts()
    {
        writeShopSession();
        auto first = watcher();
        first->mapPath(u"/w/shop"_s, u"project-1"_s);
        const ScanResult result = runBlocking(first->scanNow());
        QCOMPARE(result.foundSessions, 1);
        QCOMPARE(result.loggedSessions, 2);
        QCOMPARE(result.loggedSeconds, qint64(90 + 60));
        const BurstTask expected{u"user-1"_s, u"project-1"_s, u"[AI] Fix the cart"_s,
                                 u"Claude Code session a1, segment 1 of 2\n"
                                 u"Working dir: /w/shop\n"
                                 u"Prompts in this segment: 2\n"
                                 u"Window: Mar 1, 2025 10:00 AM > Mar 1, 2025 10:01 AM"_s,
                                 u"medium"_s};
        QCOMPARE(m_sink->tasks[0].description, expected.description);
        QVERIFY(m_sink->tasks[0] == expected);
        QCOMPARE(m_sink->tasks[1].title, u"[AI] Ship it"_s);
        QVERIFY(m_sink->tasks[1].description.startsWith(u"Claude Code session a1, segment 2 of 2\n"_s));
        // 90 active seconds are a minute and a half; a lone prompt is one minute.
        QCOMPARE(m_sink->entries, (QList<std::pair<QString, double>>{{u"task-1"_s, 1.5}, {u"task-2"_s, 1.0}}));
        QCOMPARE(first->processedKeys(), (QStringList{u"a1:seg0"_s, u"a1:seg1"_s}));
        QVERIFY(first->lastScanAt().isValid());

        // A later run of the application, with the same settings, logs nothing again.
        first.reset();
        auto second = watcher();
        const ScanResult again = runBlocking(second->scanNow());
        QCOMPARE(again.loggedSessions, 0);
        QCOMPARE(m_sink->tasks.size(), 2);
    }

    void unmappedDirectoriesArePending()
    {
        const auto prompted = [&](const char *folder, const char *id, const QString &from, const QString &to) {
            const QString cwd = u"/w/"_s + QLatin1String(folder);
            writeSession(u"-w-"_s + QLatin1String(folder), QLatin1String(id),
                         line("user", from, cwd, u"Go"_s) + line("assistant", to, cwd));
        };
        prompted("blog", "b1", u"10:00:00"_s, u"10:01:40"_s);
        prompted("blog", "b2", u"12:00:00"_s, u"12:00:50"_s);
        prompted("api", "c1", u"09:00:00"_s, u"09:03:20"_s);
        auto w = watcher();
        const ScanResult result = runBlocking(w->scanNow());
        QCOMPARE(result.pendingSessions, 3);
        QCOMPARE(result.loggedSessions, 0);
        QVERIFY(m_sink->tasks.isEmpty());
        // Largest total first.
        QCOMPARE(w->pendingPaths(),
                 (QList<PendingPath>{{u"/w/api"_s, 1, 200}, {u"/w/blog"_s, 2, 150}}));

        // Mapped and unmapped again: pending once more on the next scan.
        w->mapPath(u"/w/api"_s, u"project-9"_s);
        runBlocking(w->scanNow());
        QCOMPARE(m_sink->tasks.size(), 1);
        QCOMPARE(m_sink->tasks[0].projectId, u"project-9"_s);
        w->mapPath(u"/w/api"_s, std::nullopt);
        QVERIFY(w->pathMappings().isEmpty());
        runBlocking(w->scanNow());
        // Logged bursts do not make a session's directory mapped: it is offered again.
        QCOMPARE(w->pendingPaths().size(), 2);
    }

    void ignoredFolderComesBackWithANewSession()
    {
        writeSession(u"-w-blog"_s, u"b1"_s, line("user", u"10:00:00"_s, u"/w/blog"_s, u"Draft"_s));
        auto w = watcher();
        runBlocking(w->scanNow());
        QCOMPARE(w->pendingPaths().size(), 1);
        runBlocking(w->dismissPath(u"/w/blog"_s));
        QCOMPARE(w->processedKeys(), QStringList{u"b1"_s});
        runBlocking(w->scanNow());
        QVERIFY(w->pendingPaths().isEmpty());
        // Ignored sessions are not logged even once the folder is mapped.
        w->mapPath(u"/w/blog"_s, u"project-2"_s);
        runBlocking(w->scanNow());
        QVERIFY(m_sink->tasks.isEmpty());
        w->mapPath(u"/w/blog"_s, std::nullopt);

        writeSession(u"-w-blog"_s, u"b2"_s, line("user", u"13:00:00"_s, u"/w/blog"_s, u"New post"_s));
        runBlocking(w->scanNow());
        QCOMPARE(w->pendingPaths(), (QList<PendingPath>{{u"/w/blog"_s, 1, 0}}));
    }

    void sessionWithoutPromptsIsOneTask()
    {
        writeSession(u"-w-ops"_s, u"e1"_s,
                     line("assistant", u"08:00:00"_s, u"/w/ops"_s) + line("assistant", u"08:04:30"_s, u"/w/ops"_s));
        auto w = watcher();
        w->mapPath(u"/w/ops"_s, u"project-3"_s);
        runBlocking(w->scanNow());
        QCOMPARE(m_sink->tasks.size(), 1);
        QCOMPARE(m_sink->tasks[0].title, u"[AI] Claude session"_s);
        QVERIFY(m_sink->tasks[0].description.contains(u"\nPrompts in this segment: 0\n"_s));
        QCOMPARE(m_sink->entries, (QList<std::pair<QString, double>>{{u"task-1"_s, 4.5}}));
        QCOMPARE(w->processedKeys(), QStringList{u"e1:seg0"_s});
    }

    void nothingIsLoggedWithoutASignedInUser()
    {
        writeShopSession();
        auto w = watcher();
        w->mapPath(u"/w/shop"_s, u"project-1"_s);
        m_sink->user.reset();
        QCOMPARE(runBlocking(w->scanNow()).loggedSessions, 0);
        QVERIFY(m_sink->tasks.isEmpty() && w->processedKeys().isEmpty());
        m_sink->user = u"user-1"_s;
        QCOMPARE(runBlocking(w->scanNow()).loggedSessions, 2);

        // Without a sink at all (the store is gone) nothing is logged either.
        auto orphan = std::make_unique<ClaudeWatcher>(m_settings, projects());
        runBlocking(orphan->reimportAll());
        QCOMPARE(m_sink->tasks.size(), 2);
    }

    void failedWritesAreRetriedOnTheNextScan()
    {
        writeShopSession();
        auto w = watcher();
        w->mapPath(u"/w/shop"_s, u"project-1"_s);
        m_sink->failCreates = 1;
        QSignalSpy errors(w.get(), &ClaudeWatcher::scanErrorChanged);
        const ScanResult failed = runBlocking(w->scanNow());
        QCOMPARE(w->scanError(), u"Create task failed: the project does not exist"_s);
        QCOMPARE(failed.loggedSessions, 1); // the second burst went through
        QCOMPARE(w->processedKeys(), QStringList{u"a1:seg1"_s});

        // The entry fails after its task was made: the retry puts the time on that same task.
        m_sink->failEntries = 1;
        runBlocking(w->scanNow());
        QCOMPARE(w->scanError(), u"Create task failed: entry refused"_s);
        QCOMPARE(m_sink->tasks.size(), 2);
        runBlocking(w->scanNow());
        QVERIFY(w->scanError().isEmpty());
        QCOMPARE(m_sink->tasks.size(), 2);
        QCOMPARE(m_sink->entries.last(), (std::pair<QString, double>{u"task-2"_s, 1.5}));
        QCOMPARE(w->processedKeys(), (QStringList{u"a1:seg1"_s, u"a1:seg0"_s}));
        QVERIFY(errors.size() >= 3);
    }

    void reimportLogsAgain()
    {
        writeShopSession();
        auto w = watcher();
        runBlocking(w->loadLiveSessions());
        const ParsedSession session = w->liveSessions().first();
        QCOMPARE(runBlocking(w->logSession(session, u"project-5"_s)), 2);
        QCOMPARE(runBlocking(w->logSession(session, u"project-5"_s)), 0);
        QCOMPARE(m_sink->tasks[0].projectId, u"project-5"_s);
        runBlocking(w->reimportSession(session));
        QVERIFY(w->processedKeys().isEmpty());
        w->mapPath(u"/w/shop"_s, u"project-1"_s);
        runBlocking(w->scanNow());
        QCOMPARE(m_sink->tasks.size(), 4);
        QCOMPARE(runBlocking(w->reimportAll()).loggedSessions, 2);
        QCOMPARE(m_sink->tasks.size(), 6);
    }

    void pollsWhileTrackingIsOn()
    {
        writeShopSession();
        auto w = std::make_unique<ClaudeWatcher>(m_settings, projects());
        w->setPollInterval(std::chrono::milliseconds(50));
        QSignalSpy scans(w.get(), &ClaudeWatcher::lastResultChanged);
        w->setEnabled(true);
        QCOMPARE(m_settings->value(u"claude_tracking_enabled"_s).toBool(), true);
        // No sink yet: nothing to log to, so no polling.
        QTest::qWait(120);
        QCOMPARE(scans.size(), 0);
        w->setSink(m_sink);
        QTRY_VERIFY(scans.size() >= 3);
        w->setEnabled(false);
        QTest::qWait(100); // a scan in flight may still end
        const qsizetype stopped = scans.size();
        QTest::qWait(200);
        QCOMPARE(scans.size(), stopped);

        // Tracking that was left on starts again with the next run of the application.
        w.reset();
        m_settings->setValue(u"claude_tracking_enabled"_s, true);
        auto restarted = std::make_unique<ClaudeWatcher>(m_settings, projects());
        QVERIFY(restarted->enabled());
        QSignalSpy again(restarted.get(), &ClaudeWatcher::lastResultChanged);
        restarted->setSink(m_sink);
        QTRY_COMPARE(again.size(), 1);
    }

    void dateRangesFollowTheLocale()
    {
        const QDateTime from = QDateTime::fromString(u"2025-03-01T09:05:00Z"_s, Qt::ISODate);
        const QDateTime to = QDateTime::fromString(u"2025-03-02T17:30:00Z"_s, Qt::ISODate);
        QCOMPARE(ClaudeWatcher::formatDateRange(from, to, QLocale(QLocale::Dutch, QLocale::Netherlands)),
                 u"1 mrt. 2025 09:05 > 2 mrt. 2025 17:30"_s);
    }
};

QTEST_GUILESS_MAIN(TestSessionLogging)
#include "tst_sessionlogging.moc"
