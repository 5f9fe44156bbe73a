#include "app/storesessionlogsink.h"
#include "i18n/language.h"
#include "pg/pgconnection.h"
#include "sessions/claudewatcher.h"
#include "store/storedevice.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <ctime>

using namespace Qt::StringLiterals;

namespace {

// A log on 1 March 2025 (UTC) as Claude Code writes it, of prompts ("10:00:00 Fix the cart") and
// the assistant's replies ("10:00:40").
QByteArray log(const QString &session, const QString &cwd, const QStringList &lines)
{
    QByteArray bytes;
    for (const QString &entry : lines) {
        const QString prompt = entry.section(u' ', 1);
        const QString message = prompt.isEmpty()
                                    ? uR"({"role":"assistant","content":[{"type":"text","text":"Done."}]})"_s
                                    : uR"({"role":"user","content":"%1"})"_s.arg(prompt);
        bytes +=
            uR"({"type":"%1","cwd":"%2","sessionId":"%3","timestamp":"2025-03-01T%4Z","message":%5})"_s
                .arg(prompt.isEmpty() ? u"assistant"_s : u"user"_s, cwd, session, entry.section(u' ', 0, 0), message)
                .toUtf8() +
            '\n';
    }
    return bytes;
}

// "title | priority | billing | first three description lines | task total | entries" as the sink writes them.
QString task(const QString &title, const QString &session, int segment, int of, const QString &cwd, int prompts,
             const QString &total, const QString &entries)
{
    return u"[AI] %1 | medium | {\"model\": \"hourly\"} | Claude Code session %2, segment %3 of %4 / Working dir: %5 / "
           u"Prompts in this segment: %6 | %7 | %8"_s.arg(title, session, QString::number(segment), QString::number(of),
                                                          cwd, QString::number(prompts), total, entries);
}

} // namespace

// The watcher logging through the real store into a real backend: the tasks and entries that
// bursts become, and what happens when a write fails. The watcher's own rules
// (bursts, processed keys, dismissed folders) are tested against a recording sink in tests/sessions.
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

    QString projects() const { return m_logs->filePath(u"projects"_s); }

    // Writes `bytes` as the session's log and maps its folder to the project.
    void write(const QString &session, const QString &cwd, const QByteArray &bytes)
    {
        const QString folder = projects() + u'/' + QString(cwd).replace(u'/', u'-');
        QVERIFY(QDir().mkpath(folder));
        QFile file(folder + u'/' + session + u".jsonl"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        ClaudeWatcher(m_settings, projects()).mapPath(cwd, m_project);
    }

    std::unique_ptr<ClaudeWatcher> watcher(const std::shared_ptr<SessionLogSink> &sink)
    {
        auto created = std::make_unique<ClaudeWatcher>(m_settings, projects());
        created->setSink(sink, false);
        return created;
    }

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

    // Makes every `event` ("INSERT ON table") fail until the returned guard goes.
    auto refuse(const QByteArray &event)
    {
        PgConnection &db = m_backend.database();
        db.execScript("CREATE FUNCTION test_refuse() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN "
                      "RAISE EXCEPTION 'closed for the audit'; END $$; CREATE TRIGGER test_refuse BEFORE " +
                      event + " FOR EACH ROW EXECUTE FUNCTION test_refuse();");
        const QByteArray table = event.mid(event.lastIndexOf(' ') + 1);
        return std::shared_ptr<void>(nullptr, [&db, table](void *) {
            db.execScript("DROP TRIGGER test_refuse ON " + table + "; DROP FUNCTION test_refuse();");
        });
    }

private slots:
    void initTestCase()
    {
        qputenv("TZ", "UTC");
        tzset();
        Language::apply(u"en"_s);
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_device = StoreDevice::signUp(m_backend, u"ana@example.nl"_s, u"Ana"_s);
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

    // The settings write themselves out when they go, so they must go before their folder does.
    void cleanup()
    {
        m_settings.reset();
        m_logs.reset();
    }

    void burstsBecomeTasksWithTheirActiveTime()
    {
        const QString cwd = u"/w/gap"_s;
        write(u"g1"_s, cwd,
              log(u"g1"_s, cwd,
                  {u"10:00:00.000 Write the migration"_s, u"10:00:40"_s, u"10:01:30 Check it"_s, u"10:16:30 Run it"_s,
                   u"10:17:00"_s, u"10:31:31 Send it"_s, u"10:32:00"_s}));
        QCOMPARE(runBlocking(watcher(m_sink)->scanNow()).loggedSeconds, 1050);
        QCOMPARE(tasksOf(cwd),
                 (QStringList{task(u"Send it"_s, u"g1"_s, 2, 2, cwd, 1, u"60"_s, u"60"_s),
                              task(u"Write the migration"_s, u"g1"_s, 1, 2, cwd, 3, u"990"_s, u"990"_s)}));
        // The store shows what was written, as it would after the user's own edits.
        const QList<TaskItem> shown = m_device->store->tasks(m_project);
        QCOMPARE(std::count_if(shown.begin(), shown.end(),
                               [&](const TaskItem &item) {
                                   return item.description.value_or(QString()).contains(u"Working dir: "_s + cwd);
                               }),
                 2);
    }

    // A burst whose entry was refused is logged again on the task already made; one whose entry is
    // in but whose task total was refused is not, or its time would be billed twice.
    void aRefusedWriteIsRetriedOnlyWhenNothingWasBilled_data()
    {
        QTest::addColumn<QByteArray>("event");
        QTest::addColumn<int>("failed");
        QTest::addColumn<QStringList>("refused");
        QTest::addColumn<QStringList>("retried");
        QTest::newRow("entry") << QByteArray("INSERT ON time_entries") << 1 << QStringList{u"0"_s, u"-"_s}
                               << QStringList{u"300"_s, u"300"_s};
        QTest::newRow("task-total") << QByteArray("UPDATE OF time_spent_seconds ON tasks") << 0
                                    << QStringList{u"0"_s, u"300"_s} << QStringList{u"0"_s, u"300"_s};
    }

    void aRefusedWriteIsRetriedOnlyWhenNothingWasBilled()
    {
        QFETCH(QByteArray, event);
        QFETCH(int, failed);
        QFETCH(QStringList, refused);
        QFETCH(QStringList, retried);
        const QString cwd = u"/w/"_s + QString::fromLatin1(QTest::currentDataTag());
        write(u"f1"_s, cwd, log(u"f1"_s, cwd, {u"10:00:00 Close the month"_s, u"10:05:00 Book it"_s}));
        const auto tasks = [&](const QStringList &time) {
            return QStringList{task(u"Close the month"_s, u"f1"_s, 1, 1, cwd, 2, time[0], time[1])};
        };
        auto w = watcher(m_sink);
        {
            const auto refusal = refuse(event);
            QCOMPARE(runBlocking(w->scanNow()).failedBursts, failed);
        }
        QCOMPARE(tasksOf(cwd), tasks(refused));
        if (failed) {
            QCOMPARE(w->scanError(), u"Create task failed: "_s + m_device->store->lastError());
        }
        QCOMPARE(runBlocking(w->scanNow()).loggedSessions, failed);
        QCOMPARE(tasksOf(cwd), tasks(retried));
    }
};

QTEST_GUILESS_MAIN(TestStoreSessionLogSink)
#include "tst_storesessionlogsink.moc"
