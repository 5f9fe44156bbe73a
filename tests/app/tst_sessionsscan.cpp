#include "pg/pgconnection.h"
#include "support/localservers.h"
#include "support/morvanecli.h"
#include "support/testbackend.h"
#include "support/testdata.h"

#include <QDir>
#include <QFile>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString checkout = u"4f1c2a9e-7b3d-4e2a-9c1f-0a5b6c7d8e9f"_s;
const QString quiet = u"9a8b7c6d-5e4f-4a3b-8c2d-1e0f9a8b7c6d"_s;
const QString webshop = u"/home/ana/code/webshop"_s;

} // namespace

// `morvane sessions scan|reimport` as a person runs them: the real program, the fixture logs in
// its home's ~/.claude/projects, the time logged into a real backend.
class TestSessionsScan : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    MorvaneCli cli{m_backend};
    using Run = MorvaneCli::Run;
    QString m_project;

    QString projects() const { return cli.homeFile(u".claude/projects"_s); }

    // Copies a fixture log as if the agent had just written it.
    void copyLog(const QString &folder, const QString &sessionId)
    {
        const QString target = projects() + u'/' + folder;
        QVERIFY(QDir().mkpath(target));
        const QString path = target + u'/' + sessionId + u".jsonl"_s;
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        file.write(readTestData(u"sessions/projects/"_s + folder + u'/' + sessionId + u".jsonl"_s));
        QVERIFY(file.setFileTime(QDateTime::currentDateTimeUtc().addSecs(-120), QFileDevice::FileModificationTime));
    }

    // "title | total | entries" of each task of the project, by title and then age.
    QStringList tasks()
    {
        const PgResult rows = m_backend.database().exec(
            "SELECT t.title || ' | ' || t.time_spent_seconds || ' | ' || coalesce((SELECT "
            "string_agg(e.duration_seconds::text, ',') FROM time_entries e WHERE e.task_id = t.id), '-') "
            "FROM tasks t WHERE t.project_id = $1 ORDER BY t.title, t.created_at",
            {m_project.toUtf8()});
        QStringList list;
        for (int row = 0; row < rows.rows(); ++row) {
            list.append(QString::fromUtf8(rows.value(row, 0)));
        }
        return list;
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        copyLog(u"-home-ana-code-webshop"_s, checkout);
        copyLog(u"-home-ana-code-webshop"_s, quiet);
    }

    void withoutASignedInUserNothingIsLogged()
    {
        QCOMPARE(cli({u"sessions"_s, u"map"_s, webshop, u"00000000-0000-4000-8000-000000000001"_s}).code, 0);
        Run run = cli({u"sessions"_s, u"scan"_s});
        QCOMPARE(run.code, 1);
        QCOMPARE(run.err, u"Not signed in. Sign in with: morvane auth signin <e-mail>\n"_s);
        QCOMPARE(run.out, QString());

        // Forgetting works without a user; the logging waits for one.
        run = cli({u"sessions"_s, u"reimport"_s, u"--all"_s});
        QCOMPARE(run.code, 0);
        QCOMPARE(run.out, u"Every session will be logged again by the next scan.\n"_s);
        QCOMPARE(m_backend.database().exec("SELECT count(*) FROM tasks").value(0, 0), "0");
    }

    void scanLogsEachBurstOnce()
    {
        QCOMPARE(cli({u"auth"_s, u"signup"_s, u"ana@example.nl"_s}, "ana's secret\n").code, 0);
        Run run = cli({u"projects"_s, u"add"_s, u"Webshop"_s, u"--json"_s});
        QCOMPARE(run.code, 0);
        m_project = run.json().object().value(u"id"_s).toString();
        QCOMPARE(cli({u"sessions"_s, u"map"_s, webshop, m_project}).code, 0);

        run = cli({u"sessions"_s, u"scan"_s});
        QVERIFY2(run.code == 0, qPrintable(run.err));
        // 1497 + 60 + 390 seconds: two bursts of the checkout session, the quiet session whole.
        QCOMPARE(run.out, u"Sessions seen: 2 · work bursts logged: 3 · time logged: 0:32:27 (32.45 minutes) · "
                          u"failed: 0\n"_s);
        const QStringList logged{u"[AI] Claude session | 390 | 390"_s, u"[AI] Commit with a clear message | 60 | 60"_s,
                                 u"[AI] Refactor the checkout so that VAT is computed per line | 1497 | 1497"_s};
        QCOMPARE(tasks(), logged);

        // A later process finds everything logged already.
        run = cli({u"sessions"_s, u"scan"_s, u"--json"_s});
        QCOMPARE(run.code, 0);
        const QJsonObject figures = run.json().object();
        QCOMPARE(figures[u"foundSessions"_s].toInt(), 2);
        QCOMPARE(figures[u"loggedSessions"_s].toInt(), 0);
        QCOMPARE(figures[u"loggedSeconds"_s].toInteger(), 0);
        QCOMPARE(figures[u"failedBursts"_s].toInt(), 0);
        QCOMPARE(tasks(), logged);
    }

    void unmappedFoldersAreListed()
    {
        copyLog(u"-home-ana-code-invoicer"_s, u"7e57a11e-0000-4000-8000-000000000006"_s);
        const Run run = cli({u"sessions"_s, u"scan"_s});
        QCOMPARE(run.code, 0);
        const QStringList lines = run.out.split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 2);
        QVERIFY2(lines[0].startsWith(u"Sessions seen: 3 · work bursts logged: 0 · "_s), qPrintable(lines[0]));
        QVERIFY2(lines[1].startsWith(u"Not mapped to a project: /home/ana/code/invoicer · sessions: 1 · active "_s),
                 qPrintable(lines[1]));
    }

    void reimportLogsTheSessionAgain()
    {
        Run run = cli({u"sessions"_s, u"reimport"_s, quiet});
        QVERIFY2(run.code == 0, qPrintable(run.err));
        QCOMPARE(run.out, u"Session "_s + quiet + u" logged again: 1 of 1 work bursts.\n"_s);
        // Tasks logged before stay; the session is logged once more.
        QCOMPARE(tasks(),
                 (QStringList{u"[AI] Claude session | 390 | 390"_s, u"[AI] Claude session | 390 | 390"_s,
                              u"[AI] Commit with a clear message | 60 | 60"_s,
                              u"[AI] Refactor the checkout so that VAT is computed per line | 1497 | 1497"_s}));

        run = cli({u"sessions"_s, u"reimport"_s, u"--all"_s});
        QCOMPARE(run.code, 0);
        QVERIFY2(run.out.startsWith(u"Sessions seen: 3 · work bursts logged: 3 · time logged: 0:32:27"_s),
                 qPrintable(run.out));
        QCOMPARE(tasks().size(), 7);
        QCOMPARE(cli({u"sessions"_s, u"scan"_s}).out.section(u'\n', 0, 0),
                 u"Sessions seen: 3 · work bursts logged: 0 · time logged: 0:00:00 (0 minutes) · failed: 0"_s);
    }

    // With no backend configured the program starts the user's own, as every logging command does.
    void scanStartsTheLocalBackend()
    {
        const ScratchServerDir scratch(u"data/morvane/server"_s);
        QProcessEnvironment environment = cli.environment();
        environment.remove(u"SUPABASE_URL"_s);
        environment.remove(u"SUPABASE_ANON_KEY"_s);
        environment.insert(u"XDG_DATA_HOME"_s, scratch.base() + u"/data"_s);
        environment.insert(u"XDG_CONFIG_HOME"_s, scratch.base() + u"/config"_s);
        environment.insert(u"MORVANE_SERVER_PORT"_s, u"0"_s);
        const auto morvane = [&](const QStringList &arguments, const QByteArray &input = {}) {
            const std::unique_ptr<QProcess> process = cli.start(arguments, environment);
            return MorvaneCli::finish(*process, input);
        };

        QCOMPARE(morvane({u"auth"_s, u"signup"_s, u"ben@example.nl"_s}, "ben's secret\n").code, 0);
        Run run = morvane({u"projects"_s, u"add"_s, u"Shop"_s, u"--json"_s});
        QCOMPARE(run.code, 0);
        const QString project = run.json().object().value(u"id"_s).toString();
        QCOMPARE(morvane({u"sessions"_s, u"map"_s, webshop, project}).code, 0);
        // As after a restart of the machine: no server runs until a command needs one.
        QCOMPARE(morvane({u"server"_s, u"stop"_s}).code, 0);
        QVERIFY(serversOn(scratch.path()).isEmpty());
        run = morvane({u"sessions"_s, u"scan"_s});
        QVERIFY2(run.code == 0, qPrintable(run.err));
        QVERIFY2(run.out.contains(u" · work bursts logged: 3 · time logged: 0:32:27"_s), qPrintable(run.out));
        QCOMPARE(serversOn(scratch.path()).size(), 1);
    }

    void aFailedBurstFailsTheCommand()
    {
        QCOMPARE(cli({u"sessions"_s, u"map"_s, u"/home/ana/code/invoicer"_s, u"00000000-0000-4000-8000-00000000dead"_s})
                     .code,
                 0);
        const Run run = cli({u"sessions"_s, u"scan"_s});
        QCOMPARE(run.code, 1);
        QVERIFY2(run.out.startsWith(u"Sessions seen: 3 · work bursts logged: 0 · "_s), qPrintable(run.out));
        QVERIFY2(run.out.contains(u"failed: 1\n"_s), qPrintable(run.out));
        // The store's own words reach the user.
        QVERIFY2(run.err.endsWith(u"\nCreate task failed: The task was not created: you may not add tasks to this "
                                  u"project.\n"_s),
                 qPrintable(run.err));
        QCOMPARE(tasks().size(), 7);
    }
};

QTEST_GUILESS_MAIN(TestSessionsScan)
#include "tst_sessionsscan.moc"
