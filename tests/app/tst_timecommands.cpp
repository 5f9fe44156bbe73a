#include "pg/pgconnection.h"
#include "support/morvanecli.h"
#include "support/testbackend.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

// `morvane timer|log|entries|price` as a person runs them against a real backend.
class TestTimeCommands : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    MorvaneCli cli{m_backend};
    using Run = MorvaneCli::Run;
    QString m_project;

    QByteArray sql(const QByteArray &query, const QString &id)
    {
        return m_backend.database().exec(query, {id.toUtf8()}).value(0, 0);
    }

    QString addTask(const QString &title)
    {
        const Run run = cli({u"tasks"_s, u"add"_s, m_project, title, u"--json"_s});
        return run.code == 0 ? run.json().object().value(u"id"_s).toString() : QString();
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        QCOMPARE(cli({u"auth"_s, u"signup"_s, u"tess@example.nl"_s}, "tess's secret\n").code, 0);
        const Run run = cli({u"projects"_s, u"add"_s, u"Studio"_s, u"--json"_s});
        QCOMPARE(run.code, 0);
        m_project = run.json().object().value(u"id"_s).toString();
    }

    void timerRunsAndStops()
    {
        const QString task = addTask(u"Sketches"_s);
        QCOMPARE(cli({u"timer"_s, u"status"_s}).out, u"No timer runs.\n"_s);
        QCOMPARE(cli({u"timer"_s, u"stop"_s}).out, u"No timer runs.\n"_s);

        Run run = cli({u"timer"_s, u"start"_s, u"sketches"_s});
        QCOMPARE(run.code, 0);
        QCOMPARE(run.out, u"Timer started on Sketches.\n"_s);
        run = cli({u"timer"_s, u"status"_s, u"--json"_s});
        const QJsonObject status = run.json().object();
        QCOMPARE(status[u"running"_s].toBool(), true);
        QCOMPARE(status[u"task_id"_s].toString(), task);
        QVERIFY(status[u"elapsed_seconds"_s].toInteger() >= 0);
        QVERIFY(cli({u"timer"_s, u"status"_s}).out.startsWith(u"Sketches (Studio): 0:0"_s));

        run = cli({u"timer"_s, u"stop"_s, u"--json"_s});
        QCOMPARE(run.code, 0);
        const qint64 logged = run.json().object()[u"logged_seconds"_s].toInteger();
        QCOMPARE(sql("SELECT count(*) || '|' || sum(duration_seconds) FROM time_entries WHERE task_id = $1", task),
                 "1|" + QByteArray::number(logged));
        QCOMPARE(sql("SELECT status FROM tasks WHERE id = $1", task), "not_started");
    }

    void logReadsMinutesAsTyped_data()
    {
        QTest::addColumn<QString>("minutes");
        QTest::addColumn<int>("code");
        QTest::addColumn<qint64>("seconds");
        QTest::newRow("fraction with a point") << u"1.5"_s << 0 << qint64(90);
        QTest::newRow("fraction with a comma") << u"2,25"_s << 0 << qint64(135);
        QTest::newRow("whole hours of minutes") << u"120"_s << 0 << qint64(7200);
        QTest::newRow("zero") << u"0"_s << 2 << qint64(0);
        QTest::newRow("negative") << u"-5"_s << 2 << qint64(0);
        QTest::newRow("not a number") << u"half an hour"_s << 2 << qint64(0);
    }

    void logReadsMinutesAsTyped()
    {
        QFETCH(QString, minutes);
        QFETCH(int, code);
        QFETCH(qint64, seconds);
        const QString task = addTask(QString(u"Log "_s + QString::fromLatin1(QTest::currentDataTag())));
        const Run run = cli({u"log"_s, task, minutes});
        QCOMPARE(run.code, code);
        QCOMPARE(sql("SELECT coalesce(sum(duration_seconds), 0) FROM time_entries WHERE task_id = $1", task),
                 QByteArray::number(seconds));
        QCOMPARE(sql("SELECT time_spent_seconds FROM tasks WHERE id = $1", task), QByteArray::number(seconds));
    }

    void entriesAreEditedAndRemoved()
    {
        const QString task = addTask(u"Calls"_s);
        QCOMPARE(cli({u"log"_s, task, u"30"_s}).code, 0);
        QCOMPARE(cli({u"log"_s, task, u"15"_s}).code, 0);
        Run run = cli({u"entries"_s, u"--task"_s, u"Calls"_s, u"--json"_s});
        QCOMPARE(run.code, 0);
        const QJsonArray entries = run.json().array();
        QCOMPARE(entries.size(), 2);
        // Both may end in the same second, so the order says nothing here.
        const QJsonValue shortEntry = entries[0][u"duration_seconds"_s].toInteger() == 900 ? entries[0] : entries[1];
        QCOMPARE(shortEntry[u"duration_seconds"_s].toInteger(), 900);
        const QString shortOne = shortEntry[u"id"_s].toString();

        run = cli({u"entries"_s, u"edit"_s, shortOne.left(8), u"--minutes"_s, u"20"_s});
        QCOMPARE(run.code, 0);
        QCOMPARE(sql("SELECT duration_seconds || '|' || extract(epoch FROM ended_at - started_at)::int FROM time_entries "
                     "WHERE id = $1",
                     shortOne),
                 "1200|1200");
        QCOMPARE(sql("SELECT time_spent_seconds FROM tasks WHERE id = $1", task), "3000");

        run = cli({u"entries"_s, u"edit"_s, shortOne, u"--start"_s, u"2026-01-05T10:00:00Z"_s, u"--end"_s,
                   u"2026-01-05T09:00:00Z"_s});
        QCOMPARE(run.code, 2);
        QCOMPARE(run.err, u"An entry must end after it starts.\n"_s);

        QCOMPARE(cli({u"entries"_s, u"rm"_s, shortOne}).code, 0);
        QCOMPARE(sql("SELECT time_spent_seconds FROM tasks WHERE id = $1", task), "1800");
        run = cli({u"entries"_s, u"rm"_s, shortOne});
        QCOMPARE(run.code, 1);
        QVERIFY(run.err.startsWith(u"No single time entry matches"_s));
    }

    void pricesAreSetAsTheFormSetsThem_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("projectColumns");
        QTest::addColumn<QByteArray>("taskColumns");
        const QByteArray none = "-|-|-";
        QTest::newRow("project rate with VAT")
            << QStringList{u"Pricing"_s, u"--rate"_s, u"85"_s, u"--vat"_s, u"21"_s} << 0
            << QByteArray("{\"model\": \"hourly\", \"vat_rate\": 0.21, \"unit_price\": 85}|85|-") << none;
        QTest::newRow("task fixed, amount with grouping")
            << QStringList{u"--task"_s, u"Pricing work"_s, u"--model"_s, u"fixed"_s, u"--amount"_s, u"1.250,50"_s} << 0
            << QByteArray("{\"model\": \"hourly\", \"vat_rate\": 0.21, \"unit_price\": 85}|85|-")
            << QByteArray("{\"model\": \"fixed\", \"amount\": 1250.5, \"vat_rate\": 0.21, \"unit_price\": 85}|-|-");
        QTest::newRow("task back to the project's price")
            << QStringList{u"--task"_s, u"Pricing work"_s, u"--inherit"_s} << 0
            << QByteArray("{\"model\": \"hourly\", \"vat_rate\": 0.21, \"unit_price\": 85}|85|-") << none;
        QTest::newRow("not an amount") << QStringList{u"Pricing"_s, u"--rate"_s, u"eighty"_s} << 2
                                       << QByteArray("{\"model\": \"hourly\", \"vat_rate\": 0.21, \"unit_price\": 85}|85|-")
                                       << none;
        QTest::newRow("per unit needs its quantity")
            << QStringList{u"Pricing"_s, u"--model"_s, u"per_unit"_s, u"--unit-label"_s, u"visit"_s, u"--rate"_s,
                           u"40"_s, u"--quantity"_s, u"3"_s}
            << 0 << QByteArray("{\"model\": \"per_unit\", \"vat_rate\": 0.21, \"unit_label\": \"visit\", \"unit_price\": 40, \"unit_quantity\": 3}|-|-")
            << none;
        QTest::newRow("unknown model") << QStringList{u"Pricing"_s, u"--model"_s, u"barter"_s} << 2
                                       << QByteArray("{\"model\": \"per_unit\", \"vat_rate\": 0.21, \"unit_label\": \"visit\", \"unit_price\": 40, \"unit_quantity\": 3}|-|-")
                                       << none;
    }

    void pricesAreSetAsTheFormSetsThem()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QFETCH(QByteArray, projectColumns);
        QFETCH(QByteArray, taskColumns);
        static QString project;
        static QString task;
        if (project.isEmpty()) {
            const Run run = cli({u"projects"_s, u"add"_s, u"Pricing"_s, u"--json"_s});
            project = run.json().object().value(u"id"_s).toString();
            task = cli({u"tasks"_s, u"add"_s, project, u"Pricing work"_s, u"--json"_s}).json().object()[u"id"_s].toString();
            QVERIFY(!task.isEmpty());
        }
        const Run run = cli(QStringList{u"price"_s, u"set"_s} + arguments);
        QCOMPARE(run.code, code);
        const QByteArray columns = "SELECT coalesce(billing::text, '-') || '|' || coalesce(hourly_rate::text, '-') || '|' "
                                   "|| coalesce(total_price::text, '-') FROM ";
        QCOMPARE(sql(QByteArray(columns + "projects WHERE id = $1"), project), projectColumns);
        QCOMPARE(sql(QByteArray(columns + "tasks WHERE id = $1"), task), taskColumns);
    }

    void priceShowsWhatTheTimeIsWorth()
    {
        const Run set = cli({u"price"_s, u"set"_s, u"Studio"_s, u"--rate"_s, u"80"_s});
        QCOMPARE(set.code, 0);
        // Again: the form's no-change save writes nothing.
        QVERIFY(cli({u"price"_s, u"set"_s, u"Studio"_s, u"--rate"_s, u"80"_s}).out.startsWith(u"Nothing changed.\n"_s));
        const QString task = addTask(u"Worth"_s);
        QCOMPARE(cli({u"log"_s, task, u"90"_s}).code, 0);
        const Run run = cli({u"price"_s, u"show"_s, u"--task"_s, task, u"--json"_s});
        QCOMPARE(run.code, 0);
        const QJsonObject price = run.json().object();
        QCOMPARE(price[u"inherited"_s].toBool(), true);
        QCOMPARE(price[u"tracked_seconds"_s].toInteger(), 5400);
        QCOMPARE(price[u"amount"_s].toDouble(), 120.0);
        QCOMPARE(price[u"billing"_s][u"unit_price"_s].toDouble(), 80.0);
    }
};

QTEST_GUILESS_MAIN(TestTimeCommands)
#include "tst_timecommands.moc"
