#include "app/storesessionlogsink.h"
#include "i18n/language.h"
#include "pg/pgconnection.h"
#include "sessions/claudewatcher.h"
#include "store/storedevice.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <ctime>

using namespace Qt::StringLiterals;

namespace {

// A session log as Claude Code writes it: a summary line, user lines with prompts as plain
// strings or text blocks, tool results, assistant lines with thinking, text and tool use, and
// system lines, all on 1 March 2025 (UTC).
class SessionLog
{
public:
    SessionLog(QString sessionId, QString cwd)
        : m_sessionId(std::move(sessionId))
        , m_cwd(std::move(cwd))
    {
        m_bytes += "{\"type\":\"summary\",\"summary\":\"Work on the shop\","
                   "\"leafUuid\":\"0b5e7a1c-0000-4000-8000-00000000000f\"}\n";
    }

    SessionLog &prompt(const char *time, const QString &text)
    {
        return add("user", time, QJsonObject{{u"role"_s, u"user"_s}, {u"content"_s, text}});
    }
    SessionLog &promptBlocks(const char *time, const QString &text)
    {
        const QJsonArray content{QJsonObject{{u"type"_s, u"text"_s}, {u"text"_s, text}}};
        return add("user", time, QJsonObject{{u"role"_s, u"user"_s}, {u"content"_s, content}});
    }
    SessionLog &toolResult(const char *time)
    {
        const QJsonArray content{
            QJsonObject{{u"tool_use_id"_s, u"toolu_01"_s}, {u"type"_s, u"tool_result"_s}, {u"content"_s, u"ok"_s}}};
        return add("user", time, QJsonObject{{u"role"_s, u"user"_s}, {u"content"_s, content}});
    }
    SessionLog &reply(const char *time)
    {
        const QJsonArray content{QJsonObject{{u"type"_s, u"thinking"_s}, {u"thinking"_s, u"Read the file first."_s}},
                                 QJsonObject{{u"type"_s, u"text"_s}, {u"text"_s, u"Done."_s}},
                                 QJsonObject{{u"type"_s, u"tool_use"_s},
                                             {u"id"_s, u"toolu_01"_s},
                                             {u"name"_s, u"Bash"_s},
                                             {u"input"_s, QJsonObject{{u"command"_s, u"make test"_s}}}}};
        return add("assistant", time,
                   QJsonObject{{u"role"_s, u"assistant"_s},
                               {u"model"_s, u"claude-sonnet-4-20250514"_s},
                               {u"content"_s, content}});
    }
    SessionLog &system(const char *time)
    {
        QJsonObject object = common("system", time);
        object.insert(u"content"_s, u"Auto-compact is off"_s);
        object.insert(u"level"_s, u"info"_s);
        m_bytes += QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
        return *this;
    }

    [[nodiscard]] QByteArray bytes() const { return m_bytes; }

    // Writes the log where the agent keeps it: a folder named after the working directory.
    void writeTo(const QString &projectsDir) const
    {
        QString folder = m_cwd;
        folder.replace(u'/', u'-');
        QDir().mkpath(projectsDir + u'/' + folder);
        QFile file(projectsDir + u'/' + folder + u'/' + m_sessionId + u".jsonl"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(m_bytes), m_bytes.size());
    }

private:
    QJsonObject common(const char *type, const char *time)
    {
        ++m_line;
        return QJsonObject{{u"parentUuid"_s, m_line == 1 ? QJsonValue() : QJsonValue(u"u%1"_s.arg(m_line - 1))},
                           {u"isSidechain"_s, false},
                           {u"userType"_s, u"external"_s},
                           {u"cwd"_s, m_cwd},
                           {u"sessionId"_s, m_sessionId},
                           {u"version"_s, u"1.0.51"_s},
                           {u"gitBranch"_s, u"main"_s},
                           {u"type"_s, QString::fromLatin1(type)},
                           {u"uuid"_s, u"u%1"_s.arg(m_line)},
                           {u"timestamp"_s, u"2025-03-01T%1Z"_s.arg(QString::fromLatin1(time))}};
    }

    SessionLog &add(const char *type, const char *time, const QJsonObject &message)
    {
        QJsonObject object = common(type, time);
        object.insert(u"message"_s, message);
        m_bytes += QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
        return *this;
    }

    QString m_sessionId;
    QString m_cwd;
    QByteArray m_bytes;
    int m_line = 0;
};

} // namespace

// The watcher logging through the real store into a real backend: the tasks and entries that
// bursts become, and what happens without a user or when a write fails.
class TestStoreSessionLogSink : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    std::unique_ptr<StoreDevice> m_device;
    std::shared_ptr<StoreSessionLogSink> m_sink;
    QString m_project;
    std::unique_ptr<QTemporaryDir> m_logs;
    std::shared_ptr<QSettings> m_settings;

    static constexpr const char *email = "ana@example.nl";

    QString projects() const { return m_logs->filePath(u"projects"_s); }

    std::unique_ptr<ClaudeWatcher> watcher(const std::shared_ptr<SessionLogSink> &sink)
    {
        auto created = std::make_unique<ClaudeWatcher>(m_settings, projects());
        created->setSink(sink, false);
        return created;
    }

    // Title, priority, billing, the first three description lines, the task's total and its
    // entries' durations, of every task logged for one working directory, by title.
    QStringList tasksOf(const QString &cwd)
    {
        const PgResult rows = m_backend.database().exec(
            "SELECT t.title || ' | ' || t.priority || ' | ' || coalesce(t.billing::text, '-') || ' | ' || "
            "array_to_string((string_to_array(t.description, E'\\n'))[1:3], ' / ') || ' | ' || "
            "t.time_spent_seconds || ' | ' || coalesce((SELECT string_agg(e.duration_seconds::text, ',') "
            "FROM time_entries e WHERE e.task_id = t.id), '-') "
            "FROM tasks t WHERE t.description LIKE '%Working dir: ' || $1 || E'\\n%' ORDER BY t.title, t.created_at",
            {cwd.toUtf8()});
        QStringList tasks;
        for (int row = 0; row < rows.rows(); ++row) {
            tasks.append(QString::fromUtf8(rows.value(row, 0)));
        }
        return tasks;
    }

    void map(const QString &cwd, const QString &projectId)
    {
        ClaudeWatcher(m_settings, projects()).mapPath(cwd, projectId);
    }

private slots:
    void initTestCase()
    {
        qputenv("TZ", "UTC");
        tzset();
        Language::apply(u"en"_s);
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_device = StoreDevice::signUp(m_backend, QString::fromLatin1(email), u"Ana"_s);
        QVERIFY(m_device);
        ProjectInsert project;
        project.name = u"Webshop"_s;
        const std::optional<Project> created = runBlocking(m_device->store->createProject(project));
        QVERIFY2(created, qPrintable(m_device->store->lastError()));
        m_project = created->id;
        m_sink = std::make_shared<StoreSessionLogSink>(*m_device->auth, *m_device->store);
    }

    void init()
    {
        ClaudeWatcher::clearParseCache();
        m_logs = std::make_unique<QTemporaryDir>();
        m_settings = std::make_shared<QSettings>(m_logs->filePath(u"settings.ini"_s), QSettings::IniFormat);
    }

    void burstsBecomeTasksWithTheirActiveTime_data()
    {
        QTest::addColumn<QString>("cwd");
        QTest::addColumn<QString>("session");
        QTest::addColumn<QByteArray>("log");
        QTest::addColumn<QStringList>("tasks");
        // Title | priority | billing | first three description lines | task total | entries.
        const QString billing = u" | medium | {\"model\": \"hourly\"} | "_s;
        const auto description = [](const char *session, int segment, int of, const char *cwd, int prompts) {
            return u"Claude Code session %1, segment %2 of %3 / Working dir: %4 / Prompts in this segment: %5"_s.arg(
                QString::fromLatin1(session), QString::number(segment), QString::number(of), QString::fromLatin1(cwd),
                QString::number(prompts));
        };

        QTest::newRow("90 s of activity are 1.5 minutes")
            << u"/w/cart"_s << u"c1"_s
            << SessionLog(u"c1"_s, u"/w/cart"_s)
                   .prompt("10:00:00.000", u"Fix the cart"_s)
                   .reply("10:00:40")
                   .toolResult("10:00:41")
                   .promptBlocks("10:01:30", u"And the totals"_s)
                   .reply("10:09:00")
                   .bytes()
            << QStringList{u"[AI] Fix the cart"_s + billing + description("c1", 1, 1, "/w/cart", 2) + u" | 90 | 90"_s};
        QTest::newRow("a lone prompt counts one minute")
            << u"/w/lone"_s << u"l1"_s
            << SessionLog(u"l1"_s, u"/w/lone"_s).prompt("09:00:00", u"Rename the column"_s).reply("09:00:05").bytes()
            << QStringList{u"[AI] Rename the column"_s + billing + description("l1", 1, 1, "/w/lone", 1) +
                           u" | 60 | 60"_s};
        QTest::newRow("prompts exactly the idle gap apart are one burst")
            << u"/w/gap"_s << u"g1"_s
            << SessionLog(u"g1"_s, u"/w/gap"_s)
                   .prompt("10:00:00", u"Write the migration"_s)
                   .reply("10:10:00")
                   .prompt("10:15:00", u"Run it"_s)
                   .reply("10:16:00")
                   .bytes()
            << QStringList{u"[AI] Write the migration"_s + billing + description("g1", 1, 1, "/w/gap", 2) +
                           u" | 900 | 900"_s};
        QTest::newRow("a second more makes two tasks")
            << u"/w/split"_s << u"s1"_s
            << SessionLog(u"s1"_s, u"/w/split"_s)
                   .prompt("10:00:00", u"Draft the mail"_s)
                   .reply("10:02:00")
                   .prompt("10:03:00", u"Shorter"_s)
                   .system("10:05:00")
                   .prompt("10:18:01", u"Send it"_s)
                   .reply("10:20:00")
                   .bytes()
            << QStringList{u"[AI] Draft the mail"_s + billing + description("s1", 1, 2, "/w/split", 2) +
                               u" | 180 | 180"_s,
                           u"[AI] Send it"_s + billing + description("s1", 2, 2, "/w/split", 1) + u" | 60 | 60"_s};
        QTest::newRow("a session without prompts is one Claude session")
            << u"/w/quiet"_s << u"q1"_s
            << SessionLog(u"q1"_s, u"/w/quiet"_s).toolResult("08:00:00").reply("08:00:30").reply("08:01:45").bytes()
            << QStringList{u"[AI] Claude session"_s + billing + description("q1", 1, 1, "/w/quiet", 0) +
                           u" | 105 | 105"_s};
    }

    void burstsBecomeTasksWithTheirActiveTime()
    {
        QFETCH(QString, cwd);
        QFETCH(QString, session);
        QFETCH(QByteArray, log);
        QFETCH(QStringList, tasks);
        QString folder = cwd;
        folder.replace(u'/', u'-');
        QVERIFY(QDir().mkpath(projects() + u'/' + folder));
        QFile file(projects() + u'/' + folder + u'/' + session + u".jsonl"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(log);
        file.close();
        map(cwd, m_project);

        const ScanResult result = runBlocking(watcher(m_sink)->scanNow());
        QCOMPARE(tasksOf(cwd), tasks);
        QCOMPARE(result.loggedSessions, tasks.size());
        QCOMPARE(result.failedBursts, 0);
        // The store shows what was written, as it would after the user's own edits.
        qsizetype shown = 0;
        for (const TaskItem &task : m_device->store->tasks(m_project)) {
            shown += task.description && task.description->contains(u"Working dir: "_s + cwd + u'\n') ? 1 : 0;
        }
        QCOMPARE(shown, tasks.size());
    }

    void aBurstIsLoggedOnceAcrossRestarts()
    {
        const QString cwd = u"/w/restart"_s;
        SessionLog(u"r1"_s, cwd)
            .prompt("10:00:00", u"Fix the cart"_s)
            .reply("10:01:00")
            .prompt("11:00:00", u"Ship it"_s)
            .reply("11:02:00")
            .writeTo(projects());
        map(cwd, m_project);
        QCOMPARE(runBlocking(watcher(m_sink)->scanNow()).loggedSessions, 2);
        QCOMPARE(tasksOf(cwd).size(), 2);

        // Another start of the application: new stores from the kept session, a new watcher on
        // the same settings, every log read again.
        auto device = StoreDevice::signIn(m_backend, QString::fromLatin1(email));
        QVERIFY(device);
        device->restart(m_backend);
        QVERIFY(device->auth->isSignedIn());
        ClaudeWatcher::clearParseCache();
        const auto sink = std::make_shared<StoreSessionLogSink>(*device->auth, *device->store);
        const ScanResult again = runBlocking(watcher(sink)->scanNow());
        QCOMPARE(again.foundSessions, 1);
        QCOMPARE(again.loggedSessions, 0);
        QCOMPARE(tasksOf(cwd).size(), 2);

        // A burst added to the same session later is new work.
        QFile file(projects() + u"/-w-restart/r1.jsonl"_s);
        QVERIFY(file.open(QIODevice::Append));
        file.write(SessionLog(u"r1"_s, cwd).prompt("13:00:00", u"Tag the release"_s).bytes());
        file.close();
        QCOMPARE(runBlocking(watcher(sink)->scanNow()).loggedSessions, 1);
        QCOMPARE(tasksOf(cwd).size(), 3);
    }

    void anIgnoredFolderComesBackWithANewSession()
    {
        const QString cwd = u"/w/side"_s;
        SessionLog(u"o1"_s, cwd).prompt("09:00:00", u"Try an idea"_s).reply("09:03:00").writeTo(projects());
        auto w = watcher(m_sink);
        QCOMPARE(runBlocking(w->scanNow()).pendingSessions, 1);
        QCOMPARE(w->pendingPaths(), QList<PendingPath>{(PendingPath{cwd, 1, 180})});

        runBlocking(w->dismissPath(cwd));
        QVERIFY(w->pendingPaths().isEmpty());
        QCOMPARE(runBlocking(w->scanNow()).pendingSessions, 0);
        QVERIFY(w->pendingPaths().isEmpty());

        SessionLog(u"o2"_s, cwd)
            .prompt("15:00:00", u"Try another"_s)
            .reply("15:01:00")
            .prompt("15:02:00", u"Keep it"_s)
            .writeTo(projects());
        QCOMPARE(runBlocking(w->scanNow()).pendingSessions, 1);
        QCOMPARE(w->pendingPaths(), QList<PendingPath>{(PendingPath{cwd, 1, 120})});

        map(cwd, m_project);
        const ScanResult result = runBlocking(w->scanNow());
        QCOMPARE(result.loggedSessions, 1);
        QCOMPARE(tasksOf(cwd),
                 QStringList{u"[AI] Try another | medium | {\"model\": \"hourly\"} | Claude Code session o2, segment 1 "
                             u"of 1 / Working dir: /w/side / Prompts in this segment: 2 | 120 | 120"_s});
    }

    void nothingIsLoggedWithoutASignedInUser()
    {
        const QString cwd = u"/w/nobody"_s;
        SessionLog(u"n1"_s, cwd)
            .prompt("10:00:00", u"Look at the logs"_s)
            .reply("10:01:00")
            .prompt("10:04:00", u"And the older ones"_s)
            .writeTo(projects());
        map(cwd, m_project);

        // A machine where nobody signed in yet.
        StoreDevice device(m_backend);
        const auto sink = std::make_shared<StoreSessionLogSink>(*device.auth, *device.store);
        QVERIFY(!runBlocking(sink->signedInUserId()));
        ScanResult result = runBlocking(watcher(sink)->scanNow());
        QCOMPARE(result.foundSessions, 1);
        QCOMPARE(result.loggedSessions, 0);
        QCOMPARE(result.failedBursts, 0);
        QVERIFY(ClaudeWatcher(m_settings, projects()).processedKeys().isEmpty());
        QVERIFY(tasksOf(cwd).isEmpty());

        QVERIFY(
            runBlocking(device.auth->signIn(QString::fromLatin1(email), QString::fromLatin1(StoreDevice::password))));
        QCOMPARE(runBlocking(sink->signedInUserId()).value_or(QString()), m_device->userId());
        result = runBlocking(watcher(sink)->scanNow());
        QCOMPARE(result.loggedSessions, 1);
        QCOMPARE(result.loggedSeconds, 240);
        QCOMPARE(tasksOf(cwd).size(), 1);

        // Signed out again: the next session waits.
        runBlocking(device.auth->signOut());
        SessionLog(u"n2"_s, cwd).prompt("12:00:00", u"And again"_s).reply("12:01:00").writeTo(projects());
        result = runBlocking(watcher(sink)->scanNow());
        QCOMPARE(result.loggedSessions, 0);
        QCOMPARE(tasksOf(cwd).size(), 1);
        QVERIFY(!ClaudeWatcher(m_settings, projects()).processedKeys().contains(u"n2:seg0"_s));
    }

    void aFailedEntryIsRetriedOnTheTaskAlreadyMade()
    {
        const QString cwd = u"/w/retry"_s;
        SessionLog(u"f1"_s, cwd)
            .prompt("10:00:00", u"Close the month"_s)
            .reply("10:02:00")
            .prompt("10:05:00", u"Book it"_s)
            .writeTo(projects());
        map(cwd, m_project);
        PgConnection &db = m_backend.database();
        db.execScript("CREATE FUNCTION test_refuse_entries() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN "
                      "RAISE EXCEPTION 'entries are closed for the audit'; END $$; "
                      "CREATE TRIGGER test_refuse_entries BEFORE INSERT ON time_entries "
                      "FOR EACH ROW EXECUTE FUNCTION test_refuse_entries();");

        auto w = watcher(m_sink);
        ScanResult result = runBlocking(w->scanNow());
        db.execScript("DROP TRIGGER test_refuse_entries ON time_entries; DROP FUNCTION test_refuse_entries();");
        QCOMPARE(result.loggedSessions, 0);
        QCOMPARE(result.failedBursts, 1);
        QVERIFY(!m_device->store->lastError().isEmpty());
        QCOMPARE(w->scanError(), u"Create task failed: "_s + m_device->store->lastError());
        QCOMPARE(tasksOf(cwd),
                 QStringList{u"[AI] Close the month | medium | {\"model\": \"hourly\"} | Claude Code session f1, "
                             u"segment 1 of 1 / Working dir: /w/retry / Prompts in this segment: 2 | 0 | -"_s});
        QVERIFY(w->processedKeys().isEmpty());

        result = runBlocking(w->scanNow());
        QCOMPARE(result.loggedSessions, 1);
        QCOMPARE(result.failedBursts, 0);
        QVERIFY(w->scanError().isEmpty());
        QCOMPARE(tasksOf(cwd),
                 QStringList{u"[AI] Close the month | medium | {\"model\": \"hourly\"} | Claude Code session f1, "
                             u"segment 1 of 1 / Working dir: /w/retry / Prompts in this segment: 2 | 300 | 300"_s});
        QCOMPARE(w->processedKeys(), QStringList{u"f1:seg0"_s});
    }

    void anEntryWhoseTotalFailsIsNotBilledTwice()
    {
        const QString cwd = u"/w/total"_s;
        SessionLog(u"t1"_s, cwd)
            .prompt("10:00:00", u"Fix the totals"_s)
            .reply("10:01:00")
            .prompt("10:02:00", u"Again"_s)
            .writeTo(projects());
        map(cwd, m_project);
        PgConnection &db = m_backend.database();
        db.execScript("CREATE FUNCTION test_refuse_totals() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN "
                      "RAISE EXCEPTION 'totals are frozen'; END $$; "
                      "CREATE TRIGGER test_refuse_totals BEFORE UPDATE OF time_spent_seconds ON tasks "
                      "FOR EACH ROW EXECUTE FUNCTION test_refuse_totals();");
        auto w = watcher(m_sink);
        const ScanResult result = runBlocking(w->scanNow());
        db.execScript("DROP TRIGGER test_refuse_totals ON tasks; DROP FUNCTION test_refuse_totals();");
        // The time is in its entry; logging the burst again would bill it twice.
        QCOMPARE(result.loggedSessions, 1);
        QCOMPARE(result.failedBursts, 0);
        QCOMPARE(runBlocking(w->scanNow()).loggedSessions, 0);
        QCOMPARE(tasksOf(cwd),
                 QStringList{u"[AI] Fix the totals | medium | {\"model\": \"hourly\"} | Claude Code session t1, "
                             u"segment 1 of 1 / Working dir: /w/total / Prompts in this segment: 2 | 0 | 120"_s});
    }

    void aMappingToAProjectThatIsGoneFailsEveryScan()
    {
        const QString cwd = u"/w/gone"_s;
        SessionLog(u"x1"_s, cwd).prompt("10:00:00", u"Polish"_s).reply("10:01:00").writeTo(projects());
        map(cwd, u"00000000-0000-4000-8000-00000000dead"_s);
        auto w = watcher(m_sink);
        for (int scan = 0; scan < 2; ++scan) {
            const ScanResult result = runBlocking(w->scanNow());
            QCOMPARE(result.loggedSessions, 0);
            QCOMPARE(result.failedBursts, 1);
            QVERIFY(w->scanError().startsWith(u"Create task failed: "_s));
            QCOMPARE(w->scanError(), u"Create task failed: "_s + m_device->store->lastError());
        }
        QVERIFY(w->processedKeys().isEmpty());
        QVERIFY(tasksOf(cwd).isEmpty());

        map(cwd, m_project);
        QCOMPARE(runBlocking(w->scanNow()).loggedSessions, 1);
        QCOMPARE(tasksOf(cwd).size(), 1);
    }
};

QTEST_GUILESS_MAIN(TestStoreSessionLogSink)
#include "tst_storesessionlogsink.moc"
