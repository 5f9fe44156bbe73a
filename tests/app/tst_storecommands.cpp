#include "pg/pgconnection.h"
#include "support/morvanecli.h"
#include "support/testbackend.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

// `morvane projects|tasks|teams ...` as people run them: separate invocations, each restoring the
// session and loading the store, against a real backend.
class TestStoreCommands : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    MorvaneCli ann{m_backend};
    MorvaneCli ben{m_backend};
    using Run = MorvaneCli::Run;

    QByteArray sql(const QByteArray &query) { return m_backend.database().exec(query).value(0, 0); }

    // Creates a project and answers its id.
    QString addProject(const QString &name, const QStringList &extra = {})
    {
        const Run run = ann(QStringList{u"projects"_s, u"add"_s, name, u"--json"_s} + extra);
        if (run.code != 0) {
            qWarning() << run.err;
            return {};
        }
        return run.json().object().value(u"id"_s).toString();
    }

    QString addTask(const QString &project, const QString &title, const QStringList &extra = {})
    {
        const Run run = ann(QStringList{u"tasks"_s, u"add"_s, project, title, u"--json"_s} + extra);
        return run.code == 0 ? run.json().object().value(u"id"_s).toString() : QString();
    }

    static QStringList titles(const Run &run)
    {
        QStringList list;
        for (const QJsonValue &row : run.json().array()) {
            list << row.toObject().value(u"title"_s).toString();
        }
        return list;
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        // Before anyone signs up: every data command needs a session.
        for (const QString &command : {u"projects"_s, u"tasks"_s, u"teams"_s}) {
            const Run run = ann({command, u"list"_s});
            QCOMPARE(run.code, 1);
            QVERIFY2(run.err.startsWith(u"Not signed in."_s), qPrintable(run.err));
        }
        QCOMPARE(ann({u"auth"_s, u"signup"_s, u"ann@example.nl"_s}, "ann's secret\n").code, 0);
        QCOMPARE(ben({u"auth"_s, u"signup"_s, u"ben@example.nl"_s}, "ben's secret\n").code, 0);
    }

    void wrongCallsExitWithUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no action") << QStringList{u"projects"_s};
        QTest::newRow("add without name") << QStringList{u"projects"_s, u"add"_s};
        QTest::newRow("rename without new name") << QStringList{u"projects"_s, u"rename"_s, u"x"_s};
        QTest::newRow("archive both ways") << QStringList{u"projects"_s, u"archive"_s, u"x"_s, u"--idle"_s, u"5"_s};
        QTest::newRow("idle days zero") << QStringList{u"projects"_s, u"archive"_s, u"--idle"_s, u"0"_s};
        QTest::newRow("unknown sort") << QStringList{u"tasks"_s, u"list"_s, u"--sort"_s, u"random"_s};
        QTest::newRow("unknown filter") << QStringList{u"tasks"_s, u"list"_s, u"--filter"_s, u"late"_s};
        QTest::newRow("unknown status") << QStringList{u"tasks"_s, u"status"_s, u"x"_s, u"flying"_s};
        QTest::newRow("day not ISO") << QStringList{u"tasks"_s, u"add"_s, u"p"_s, u"t"_s, u"--due"_s, u"31-12-2026"_s};
        QTest::newRow("edit without change") << QStringList{u"tasks"_s, u"edit"_s, u"x"_s};
        QTest::newRow("invite as owner") << QStringList{u"teams"_s,  u"invite"_s, u"t"_s,
                                                        u"a@b.nl"_s, u"--role"_s, u"owner"_s};
        QTest::newRow("unknown action") << QStringList{u"teams"_s, u"leave"_s};
    }

    void wrongCallsExitWithUsage()
    {
        QFETCH(QStringList, arguments);
        const Run run = ann(arguments);
        QCOMPARE(run.code, 2);
        QVERIFY(!run.err.isEmpty());
        QVERIFY(run.out.isEmpty());
    }

    void projectLifeCycle()
    {
        const QString id = addProject(u"Harbour app"_s, {u"--description"_s, u"Mobile app for the harbour"_s});
        QVERIFY(!id.isEmpty());
        m_backend.database().exec("UPDATE projects SET hourly_rate = 95 WHERE id = $1", {id.toUtf8()});

        // A rename must not clear what the project form owns.
        Run run = ann({u"projects"_s, u"rename"_s, id.left(8), u"Harbour portal"_s});
        QCOMPARE(run.code, 0);
        QCOMPARE(run.out, u"Renamed Harbour app to Harbour portal.\n"_s);
        QCOMPARE(sql("SELECT name || '|' || description || '|' || hourly_rate FROM projects WHERE id = '" +
                     id.toUtf8() + "'"),
                 "Harbour portal|Mobile app for the harbour|95");

        QCOMPARE(ann({u"projects"_s, u"archive"_s, u"harbour PORTAL"_s}).code, 0);
        QCOMPARE(sql("SELECT status || '|' || hourly_rate FROM projects WHERE id = '" + id.toUtf8() + "'"),
                 "archived|95");

        run = ann({u"projects"_s, u"list"_s, u"--json"_s});
        QCOMPARE(run.code, 0);
        const QJsonArray rows = run.json().array();
        const auto listed = std::find_if(rows.begin(), rows.end(),
                                         [&](const QJsonValue &row) { return row[u"id"_s].toString() == id; });
        QVERIFY(listed != rows.end());
        QCOMPARE((*listed)[u"status"_s].toString(), u"archived"_s);

        QCOMPARE(ann({u"projects"_s, u"rm"_s, id}).code, 0);
        QCOMPARE(sql("SELECT count(*) FROM projects WHERE id = '" + id.toUtf8() + "'"), "0");
    }

    void referencesAreResolvedOrRefused()
    {
        const QString first = addProject(u"Shop"_s);
        const QString second = addProject(u"shop"_s);
        QVERIFY(!first.isEmpty() && !second.isEmpty());

        Run run = ann({u"tasks"_s, u"add"_s, u"SHOP"_s, u"Checkout"_s});
        QCOMPARE(run.code, 1);
        QVERIFY2(run.err.contains(u"matches several"_s), qPrintable(run.err));
        QVERIFY(run.err.contains(first.left(8)) && run.err.contains(second.left(8)));

        run = ann({u"tasks"_s, u"add"_s, u"Shopping"_s, u"Checkout"_s});
        QCOMPARE(run.code, 1);
        QCOMPARE(run.err, u"No project matches \"Shopping\".\n"_s);

        // Too short a start of an id would match by accident.
        run = ann({u"projects"_s, u"rm"_s, first.left(3)});
        QCOMPARE(run.code, 1);

        QVERIFY(!addTask(second.left(6), u"Checkout"_s).isEmpty());
        QCOMPARE(sql("SELECT count(*) FROM tasks WHERE project_id = '" + second.toUtf8() + "'"), "1");
        QCOMPARE(ann({u"projects"_s, u"rm"_s, first}).code, 0);
        QCOMPARE(ann({u"projects"_s, u"rm"_s, second}).code, 0);
    }

    void listsFollowFilterAndSort_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QStringList>("expected");
        // Created in this order: "Task 10", "task 2", "Alpha" (completed), "Beta".
        QTest::newRow("alpha: numbers by value, completed last")
            << QStringList{u"--sort"_s, u"alpha"_s} << QStringList{u"Beta"_s, u"task 2"_s, u"Task 10"_s, u"Alpha"_s};
        QTest::newRow("newest first") << QStringList{u"--sort"_s, u"createdDesc"_s}
                                      << QStringList{u"Beta"_s, u"task 2"_s, u"Task 10"_s, u"Alpha"_s};
        QTest::newRow("due first, undated last")
            << QStringList{u"--sort"_s, u"dueAsc"_s} << QStringList{u"task 2"_s, u"Task 10"_s, u"Beta"_s, u"Alpha"_s};
        QTest::newRow("done only") << QStringList{u"--filter"_s, u"done"_s} << QStringList{u"Alpha"_s};
        QTest::newRow("active only") << QStringList{u"--filter"_s, u"active"_s, u"--sort"_s, u"alpha"_s}
                                     << QStringList{u"Beta"_s, u"task 2"_s, u"Task 10"_s};
    }

    void listsFollowFilterAndSort()
    {
        QFETCH(QStringList, options);
        QFETCH(QStringList, expected);
        static QString project;
        if (project.isEmpty()) {
            project = addProject(u"Ordering"_s);
            QVERIFY(!addTask(project, u"Task 10"_s, {u"--due"_s, u"2026-12-20"_s}).isEmpty());
            QTest::qWait(5);
            QVERIFY(!addTask(project, u"task 2"_s, {u"--due"_s, u"2026-12-03"_s}).isEmpty());
            QTest::qWait(5);
            QVERIFY(!addTask(project, u"Alpha"_s).isEmpty());
            QTest::qWait(5);
            QVERIFY(!addTask(project, u"Beta"_s).isEmpty());
            QCOMPARE(ann({u"tasks"_s, u"status"_s, u"Alpha"_s, u"completed"_s}).code, 0);
        }
        const Run run = ann(QStringList{u"tasks"_s, u"list"_s, project, u"--json"_s} + options);
        QCOMPARE(run.code, 0);
        QCOMPARE(titles(run), expected);
    }

    void editKeepsWhatItDoesNotChange()
    {
        const QString project = addProject(u"Editing"_s);
        const QString task =
            addTask(project, u"Draft contract"_s, {u"--description"_s, u"Two pages"_s, u"--due"_s, u"2026-12-01"_s});
        QVERIFY(!task.isEmpty());
        const QByteArray row =
            "SELECT title || '|' || coalesce(description, '-') || '|' || coalesce(due_date::text, '-') "
            "FROM tasks WHERE id = '" +
            task.toUtf8() + "'";

        QCOMPARE(ann({u"tasks"_s, u"edit"_s, task, u"--due"_s, u""_s}).code, 0);
        QCOMPARE(sql(row), "Draft contract|Two pages|-");
        QCOMPARE(ann({u"tasks"_s, u"edit"_s, u"draft CONTRACT"_s, u"--title"_s, u"Final contract"_s}).code, 0);
        QCOMPARE(sql(row), "Final contract|Two pages|-");
        QCOMPARE(ann({u"tasks"_s, u"edit"_s, task, u"--description"_s, u""_s, u"--due"_s, u"2027-01-15"_s}).code, 0);
        QVERIFY(sql(row).startsWith("Final contract|-|2027-01-15"));

        const QString other = addProject(u"Legal"_s);
        const Run run = ann({u"tasks"_s, u"move"_s, task, u"Legal"_s});
        QCOMPARE(run.code, 0);
        QCOMPARE(run.out, u"Moved Final contract to Legal.\n"_s);
        QCOMPARE(sql("SELECT project_id FROM tasks WHERE id = '" + task.toUtf8() + "'"), other.toUtf8());

        QCOMPARE(ann({u"tasks"_s, u"rm"_s, task}).code, 0);
        QCOMPARE(sql("SELECT count(*) FROM tasks WHERE id = '" + task.toUtf8() + "'"), "0");
        QCOMPARE(ann({u"tasks"_s, u"rm"_s, task}).code, 1);
    }

    void teamsAcrossPeople()
    {
        const QString project = addProject(u"Shared site"_s);
        Run run = ann({u"teams"_s, u"create"_s, u"Studio North"_s, u"--json"_s});
        QCOMPARE(run.code, 0);
        const QString team = run.json().object().value(u"id"_s).toString();

        run = ann({u"teams"_s, u"invite"_s, u"studio north"_s, u"nobody@example.nl"_s});
        QCOMPARE(run.code, 1);
        QCOMPARE(run.err, u"No Morvane account uses that email yet. Ask them to sign up first.\n"_s);

        run = ann({u"teams"_s, u"invite"_s, team, u"ben@example.nl"_s, u"--role"_s, u"viewer"_s});
        QCOMPARE(run.code, 0);
        QCOMPARE(run.out, u"ben@example.nl is invited to this team.\n"_s);
        QCOMPARE(ann({u"teams"_s, u"assign"_s, u"Shared site"_s, u"Studio North"_s}).code, 0);

        // Ben sees the invitation, and the team only once he accepts it.
        run = ben({u"teams"_s, u"invitations"_s});
        QCOMPARE(run.code, 0);
        QVERIFY2(run.out.startsWith(u"Studio North ("_s + team.left(8) + u"): as viewer, from "_s),
                 qPrintable(run.out));
        QVERIFY(ben({u"projects"_s, u"list"_s, u"--json"_s}).json().array().isEmpty());
        QCOMPARE(ben({u"teams"_s, u"accept"_s, u"nowhere"_s}).code, 1);
        run = ben({u"teams"_s, u"accept"_s, u"studio north"_s});
        QCOMPARE(run.code, 0);
        QCOMPARE(run.out, u"You are now in team Studio North, as viewer.\n"_s);

        run = ann({u"teams"_s, u"list"_s, u"--json"_s});
        const QJsonObject listed = run.json().array().first().toObject();
        QCOMPARE(listed[u"my_role"_s].toString(), u"owner"_s);
        QStringList members;
        for (const QJsonValue &member : listed[u"members"_s].toArray()) {
            members << member[u"email"_s].toString() + u':' + member[u"role"_s].toString();
        }
        QCOMPARE(members, (QStringList{u"ann@example.nl:owner"_s, u"ben@example.nl:viewer"_s}));

        // The viewer sees the project and its tasks but may change nothing.
        QVERIFY(!addTask(project, u"Homepage"_s).isEmpty());
        run = ben({u"tasks"_s, u"list"_s, u"Shared site"_s, u"--json"_s});
        QCOMPARE(run.code, 0);
        QCOMPARE(titles(run), QStringList{u"Homepage"_s});
        run = ben({u"projects"_s, u"rename"_s, u"Shared site"_s, u"Mine now"_s});
        QCOMPARE(run.code, 1);
        QVERIFY(!run.err.isEmpty());
        QCOMPARE(sql("SELECT name FROM projects WHERE id = '" + project.toUtf8() + "'"), "Shared site");
        run = ben({u"teams"_s, u"invite"_s, u"Studio North"_s, u"ann@example.nl"_s});
        QCOMPARE(run.code, 1);
        QCOMPARE(run.err, u"Only the team owner and editors can invite people.\n"_s);

        // Out of the team, the project is the owner's alone again.
        QCOMPARE(ann({u"teams"_s, u"assign"_s, project, u"none"_s}).code, 0);
        run = ben({u"projects"_s, u"list"_s, u"--json"_s});
        QCOMPARE(run.code, 0);
        QVERIFY(run.json().array().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestStoreCommands)
#include "tst_storecommands.moc"
