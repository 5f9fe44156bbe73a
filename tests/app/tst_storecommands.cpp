#include "pg/pgconnection.h"
#include "support/morvanecli.h"
#include "support/testdata.h"

#include <QJsonArray>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString checkout = u"4f1c2a9e-7b3d-4e2a-9c1f-0a5b6c7d8e9f"_s;
const QString quiet = u"9a8b7c6d-5e4f-4a3b-8c2d-1e0f9a8b7c6d"_s;

// Copies a fixture session log into a person's ~/.claude/projects as if the agent had just written it.
void copyLog(const MorvaneCli &person, const QString &folder, const QString &sessionId)
{
    const QString target = person.homeFile(u".claude/projects/"_s + folder);
    QVERIFY(QDir().mkpath(target));
    QFile file(target + u'/' + sessionId + u".jsonl"_s);
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.write(readTestData(u"sessions/projects/"_s + folder + u'/' + sessionId + u".jsonl"_s));
    QVERIFY(file.setFileTime(QDateTime::currentDateTimeUtc().addSecs(-120), QFileDevice::FileModificationTime));
}

} // namespace

// The commands that read and write the store (`auth`, `projects`, `tasks`, `teams`, `timer`, `log`,
// `entries`, `price`, `sessions scan`) as people run them: separate invocations, each restoring the
// session and loading the store, against one real backend. The store's rules are tested in
// tests/store; here the arguments, the words and the exit codes.
class TestStoreCommands : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    MorvaneCli ann{m_backend};
    MorvaneCli ben{m_backend};
    using Run = MorvaneCli::Run;
    QString m_studio;

    QByteArray sql(const QByteArray &query, const QString &id = {})
    {
        return m_backend.database().exec(query, id.isNull() ? PgParams{} : PgParams{id.toUtf8()}).value(0, 0);
    }

    QString addTask(const QString &project, const QString &title, const QString &options = {})
    {
        return ann(u"tasks|add|%1|%2|--json"_s.arg(project, title) + options).id();
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        QCOMPARE(ann(u"auth signup ann@example.nl"_s, "ann's secret\n").code, 0);
        QCOMPARE(ben(u"auth signup ben@example.nl"_s, "ben's secret\n").code, 0);
        m_studio = ann(u"projects add Studio --json"_s).id();
        QVERIFY(!m_studio.isEmpty());
    }

    void wrongCallsExitWithUsage_data()
    {
        QTest::addColumn<QString>("arguments");
        for (const char *arguments :
             {"projects", "projects add", "projects archive x --idle 5", "projects archive --idle 0",
              "tasks list --sort random", "tasks add p t --due 31-12-2026", "tasks edit x",
              "teams invite t a@b.nl --role owner", "log Studio 0", "log Studio half",
              "price set Studio --rate eighty"}) {
            QTest::newRow(arguments) << QString::fromLatin1(arguments);
        }
    }

    void wrongCallsExitWithUsage()
    {
        QFETCH(QString, arguments);
        const Run run = ann(arguments);
        QCOMPARE(run.code, 2);
        QVERIFY(run.out.isEmpty() && !run.err.isEmpty());
    }

    void aSessionLastsAcrossInvocations()
    {
        const MorvaneCli cleo(m_backend);
        QCOMPARE(cleo(u"auth signup cli@example.nl"_s, "terminal secret\n").out, u"Signed in as cli@example.nl.\n"_s);
        // The secrets file is the user's alone.
        QCOMPARE(QFile::permissions(cleo.homeFile(u"config/morvane/secrets.json"_s)) &
                     (QFile::ReadOther | QFile::ReadGroup | QFile::WriteOther | QFile::WriteGroup),
                 QFile::Permissions());

        QCOMPARE(cleo(u"auth signin cli@example.nl"_s, "not it\n").code, 1);
        QCOMPARE(cleo(u"auth signup second@example.nl"_s, "second secret\n").code, 0);
        QCOMPARE(cleo(u"auth switch CLI@example.nl"_s).out, u"Signed in as cli@example.nl.\n"_s);
        QCOMPARE(cleo(u"auth accounts"_s).out, u"* cli@example.nl\n  second@example.nl\n"_s);
        QCOMPARE(cleo(u"auth signout"_s).out, u"Signed out.\n"_s);
        QCOMPARE(cleo(u"auth status"_s).code, 1);
    }

    void projectsAreFoundByIdPrefixOrName()
    {
        const QString id = ann(u"projects|add|Harbour app|--json"_s).id();
        QCOMPARE(ann(u"projects|rename|%1|Harbour portal"_s.arg(id.left(8))).out,
                 u"Renamed Harbour app to Harbour portal.\n"_s);
        QCOMPARE(ann(u"projects|archive|harbour PORTAL"_s).code, 0);
        QCOMPARE(sql("SELECT name || '|' || status FROM projects WHERE id = $1", id), "Harbour portal|archived");

        const QString twin = ann(u"projects|add|harbour Portal|--json"_s).id();
        const QString err = ann(u"tasks|add|HARBOUR PORTAL|Checkout"_s).err;
        QVERIFY(err.contains(u"matches several"_s) && err.contains(id.left(8)) && err.contains(twin.left(8)));
        QCOMPARE(ann(u"tasks add Harbours Checkout"_s).err, u"No project matches \"Harbours\".\n"_s);
        // Too short a start of an id would match by accident.
        QCOMPARE(ann(u"projects rm "_s + id.left(3)).code, 1);
    }

    void tasksAreEditedMovedAndListed()
    {
        const QString project = ann(u"projects add Editing --json"_s).id();
        const QString task = addTask(project, u"Draft contract"_s, u"|--description|Two pages|--due|2026-12-01"_s);
        const QByteArray row = "SELECT title || '|' || coalesce(description, '-') || '|' || coalesce(due_date::text, "
                               "'-') FROM tasks WHERE id = $1";
        // An option left out keeps its field; an empty one clears it.
        QCOMPARE(ann(u"tasks|edit|draft CONTRACT|--title|Final|--due|"_s).code, 0);
        QCOMPARE(sql(row, task), "Final|Two pages|-");
        const QString legal = ann(u"projects add Legal --json"_s).id();
        QCOMPARE(ann(u"tasks move %1 Legal"_s.arg(task)).out, u"Moved Final to Legal.\n"_s);
        QCOMPARE(sql("SELECT project_id FROM tasks WHERE id = $1", task), legal.toUtf8());
        QCOMPARE(ann(u"tasks rm "_s + task).code, 0);

        // Each sort and filter option reaches the list.
        for (const QString &title : {u"Task 10|--due|2026-12-03"_s, u"task 2|--due|2026-12-20"_s, u"Alpha"_s}) {
            QVERIFY(!addTask(project, title).isEmpty());
        }
        QCOMPARE(ann(u"tasks status Alpha completed"_s).code, 0);
        const std::pair<QString, QStringList> lists[] = {
            {u"--sort dueAsc"_s, {u"Task 10"_s, u"task 2"_s, u"Alpha"_s}},
            {u"--filter done"_s, {u"Alpha"_s}},
        };
        for (const auto &[options, titles] : lists) {
            QCOMPARE(jsonColumn(ann(u"tasks list %1 --json "_s.arg(project) + options).json().array(), u"title"_s),
                     titles);
        }
    }

    void teamsAcrossPeople()
    {
        const QString project = ann(u"projects|add|Shared site|--json"_s).id();
        const QString team = ann(u"teams|create|Studio North|--json"_s).id();
        QCOMPARE(ann(u"teams invite %1 ben@example.nl --role viewer"_s.arg(team)).out,
                 u"ben@example.nl is invited to this team.\n"_s);
        QCOMPARE(ann(u"teams|assign|Shared site|Studio North"_s).code, 0);

        QVERIFY(
            ben(u"teams invitations"_s).out.startsWith(u"Studio North ("_s + team.left(8) + u"): as viewer, from "_s));
        QCOMPARE(ben(u"teams|accept|studio north"_s).out, u"You are now in team Studio North, as viewer.\n"_s);
        QCOMPARE(jsonColumn(ann(u"teams list --json"_s).json().array().first()[u"members"_s].toArray(), u"email"_s),
                 (QStringList{u"ann@example.nl"_s, u"ben@example.nl"_s}));

        // A refusal of the store reaches the viewer as a failure in its words.
        QCOMPARE(ben(u"teams|invite|Studio North|ann@example.nl"_s).err,
                 u"Only the team owner and editors can invite people.\n"_s);
        QCOMPARE(jsonColumn(ben(u"projects list --json"_s).json().array(), u"id"_s), QStringList{project});
    }

    void timerRunsAndStops()
    {
        const QString task = addTask(m_studio, u"Sketches"_s);
        QCOMPARE(ann(u"log %1 1"_s.arg(task)).code, 0);
        QCOMPARE(ann(u"timer stop"_s).out, u"No timer runs.\n"_s);
        QCOMPARE(ann(u"timer start sketches"_s).out, u"Timer started on Sketches.\n"_s);
        QVERIFY(ann(u"timer status"_s).out.startsWith(u"Sketches (Studio): 0:0"_s));
        // The run is added to the time logged before it.
        const QByteArray total =
            QByteArray::number(60 + ann(u"timer stop --json"_s).object()[u"logged_seconds"_s].toInteger());
        QCOMPARE(sql("SELECT time_spent_seconds FROM tasks WHERE id = $1", task), total);
        // Toggling goes on with the task of the newest entry, then stops what runs. A logged entry
        // ends at a whole second, so it is the newer one only from the next second on.
        QTest::qWait(1000);
        QCOMPARE(ann(u"log %1 1"_s.arg(addTask(m_studio, u"Follow-ups"_s))).code, 0);
        QCOMPARE(ann(u"timer toggle"_s).out, u"Timer started on Follow-ups.\n"_s);
        QVERIFY(ann(u"timer toggle"_s).out.startsWith(u"Stopped Follow-ups: "_s));
    }

    void entriesAreEditedAndRemoved()
    {
        const QString task = addTask(m_studio, u"Calls"_s);
        QCOMPARE(ann(u"log %1 30"_s.arg(task)).code, 0);
        // Minutes as typed, with a decimal comma.
        QCOMPARE(ann(u"log %1 14,5"_s.arg(task)).code, 0);
        QCOMPARE(sql("SELECT sum(duration_seconds) FROM time_entries WHERE task_id = $1", task), "2670");
        const QJsonArray entries = ann(u"entries --task Calls --json"_s).json().array();
        QCOMPARE(entries.size(), 2);
        // Both may end in the same second, so the order says nothing here.
        const QString shortOne =
            entries[entries[0][u"duration_seconds"_s].toInteger() == 870 ? 0 : 1][u"id"_s].toString();
        QCOMPARE(ann(u"entries edit %1 --minutes 20"_s.arg(shortOne.left(8))).code, 0);
        QCOMPARE(sql("SELECT duration_seconds || '|' || extract(epoch FROM ended_at - started_at)::int FROM "
                     "time_entries WHERE id = $1",
                     shortOne),
                 "1200|1200");
        Run run = ann(u"entries edit %1 --start 2026-01-05T10:00:00Z --end 2026-01-05T09:00:00Z"_s.arg(shortOne));
        QCOMPARE(run.code, 2);
        QCOMPARE(run.err, u"An entry must end after it starts.\n"_s);
        QCOMPARE(ann(u"entries rm "_s + shortOne).code, 0);
        QVERIFY(ann(u"entries rm "_s + shortOne).err.startsWith(u"No single time entry matches"_s));
    }

    void priceSetWritesWhatTheFormWrites()
    {
        const QString project = ann(u"projects add Pricing --json"_s).id();
        const QString task = addTask(project, u"Pricing work"_s);
        const QByteArray hourly = R"({"model": "hourly", "vat_rate": 0.21, "unit_price": 85}|85|-)";
        const std::tuple<QString, QByteArray, QByteArray> steps[] = {
            {u"Pricing|--rate|85|--vat|21"_s, hourly, "-|-|-"},
            {u"--task|Pricing work|--model|fixed|--amount|1.250,50"_s, hourly,
             R"({"model": "fixed", "amount": 1250.5, "vat_rate": 0.21, "unit_price": 85}|-|-)"},
            {u"--task|Pricing work|--inherit"_s, hourly, "-|-|-"},
        };
        const QByteArray columns = "SELECT coalesce(billing::text, '-') || '|' || coalesce(hourly_rate::text, '-') || "
                                   "'|' || coalesce(total_price::text, '-') FROM ";
        for (const auto &[arguments, projectColumns, taskColumns] : steps) {
            QCOMPARE(ann(u"price|set|"_s + arguments).code, 0);
            QCOMPARE(sql(columns + "projects WHERE id = $1", project), projectColumns);
            QCOMPARE(sql(columns + "tasks WHERE id = $1", task), taskColumns);
        }

        // What the time is worth at the project's rate, which an unchanged save leaves alone.
        QCOMPARE(ann(u"price set Studio --rate 80"_s).code, 0);
        QVERIFY(ann(u"price set Studio --rate 80"_s).out.startsWith(u"Nothing changed.\n"_s));
        const QString worth = addTask(m_studio, u"Worth"_s);
        QCOMPARE(ann(u"log %1 90"_s.arg(worth)).code, 0);
        const QJsonObject price = ann(u"price show --task %1 --json"_s.arg(worth)).object();
        QCOMPARE(price[u"inherited"_s].toBool(), true);
        QCOMPARE(price[u"amount"_s].toDouble(), 120.0);
    }

    void sessionsScanLogsEachBurstOnce()
    {
        const MorvaneCli ana(m_backend);
        copyLog(ana, u"-home-ana-code-webshop"_s, checkout);
        copyLog(ana, u"-home-ana-code-webshop"_s, quiet);
        Run run = ana(u"sessions scan"_s);
        QCOMPARE(run.code, 1);
        QCOMPARE(run.err, u"Not signed in. Sign in with: morvane auth signin <e-mail>\n"_s);

        QCOMPARE(ana(u"auth signup ana@example.nl"_s, "ana's secret\n").code, 0);
        const QString project = ana(u"projects add Webshop --json"_s).id();
        QCOMPARE(ana(u"sessions map /home/ana/code/webshop "_s + project).code, 0);
        run = ana(u"sessions scan"_s);
        // 1497 + 60 + 390 seconds: two bursts of the checkout session, the quiet session whole.
        QCOMPARE(run.out, u"Sessions seen: 2 · work bursts logged: 3 · time logged: 0:32:27 (32.45 minutes) · "
                          u"failed: 0\n"_s);
        QCOMPARE(sql("SELECT sum(time_spent_seconds) FROM tasks WHERE project_id = $1", project), "1947");
        // What was logged stays logged for the next invocation.
        QCOMPARE(ana(u"sessions scan --json"_s).object()[u"loggedSessions"_s].toInt(), 0);

        copyLog(ana, u"-home-ana-code-invoicer"_s, u"7e57a11e-0000-4000-8000-000000000006"_s);
        run = ana(u"sessions scan"_s);
        QVERIFY(run.out.contains(u"\nNot mapped to a project: /home/ana/code/invoicer · sessions: 1 · active "_s));
        QCOMPARE(ana(u"sessions reimport "_s + quiet).out,
                 u"Session "_s + quiet + u" logged again: 1 of 1 work bursts.\n"_s);

        QCOMPARE(ana(u"sessions map /home/ana/code/invoicer 00000000-0000-4000-8000-00000000dead"_s).code, 0);
        run = ana(u"sessions scan"_s);
        QCOMPARE(run.code, 1);
        QVERIFY(run.out.endsWith(u"failed: 1\n"_s));
        // The store's own words reach the user.
        QVERIFY(run.err.endsWith(u"\nCreate task failed: The task was not created: you may not add tasks to this "
                                 u"project.\n"_s));
    }

    // With no backend configured the program starts the user's own, as every logging command does.
    void sessionsScanStartsTheLocalBackend()
    {
        const MorvaneCli bo;
        copyLog(bo, u"-home-ana-code-webshop"_s, checkout);
        QCOMPARE(bo(u"auth signup bo@example.nl"_s, "bo's secret\n").code, 0);
        const QString project = bo(u"projects add Shop --json"_s).id();
        QCOMPARE(bo(u"sessions map /home/ana/code/webshop "_s + project).code, 0);
        // As after a restart of the machine: no server runs until a command needs one.
        QCOMPARE(bo(u"server stop"_s).code, 0);
        QVERIFY(serversOn(bo.localServerDir()).isEmpty());
        const Run run = bo(u"sessions scan"_s);
        QVERIFY(run.out.contains(u" · work bursts logged: 2 · "_s));
        QCOMPARE(serversOn(bo.localServerDir()).size(), 1);
    }
};

QTEST_GUILESS_MAIN(TestStoreCommands)
#include "tst_storecommands.moc"
