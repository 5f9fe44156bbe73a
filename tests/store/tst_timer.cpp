#include "backend/runblocking.h"
#include "i18n/language.h"
#include "model/isodate.h"
#include "pg/pgconnection.h"
#include "store/appstore.h"
#include "store/storedevice.h"
#include "support/testbackend.h"

#include <QTest>

using namespace Qt::StringLiterals;

// The running clock, and the timer and entries of one user on two devices against one backend.
// Each device has a clock of its own, so a test moves time by hand instead of sleeping.
class TestTimer : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    std::unique_ptr<StoreDevice> m_laptop;
    std::unique_ptr<StoreDevice> m_desktop;
    QString m_project;

    QByteArray sql(const QByteArray &query, const QString &id)
    {
        return m_backend.database().exec(query, {id.toUtf8()}).value(0, 0);
    }
    QByteArray entryCount(const QString &taskId)
    {
        return sql("SELECT count(*) FROM time_entries WHERE task_id = $1", taskId);
    }
    QByteArray taskRow(const QString &taskId)
    {
        return sql("SELECT status || '|' || time_spent_seconds FROM tasks WHERE id = $1", taskId);
    }
    QString newTask(const QString &title)
    {
        const std::optional<TaskItem> task = runBlocking(m_laptop->store->createTask(TaskInsert{{}, m_project, title}));
        return task ? task->id : QString();
    }
    bool start(StoreDevice &device, const QString &task) { return runBlocking(device.store->startTimer(task)); }
    bool stop(StoreDevice &device, const QString &task) { return runBlocking(device.store->stopTimer(task)); }

    // Both devices' clocks move on together, as real ones do.
    void advance(qint64 seconds)
    {
        m_laptop->now = m_laptop->now.addSecs(seconds);
        m_desktop->now = m_desktop->now.addSecs(seconds);
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        Language::apply(u"en"_s);
        m_laptop = StoreDevice::signUp(m_backend, u"tim@example.nl"_s, u"Tim"_s);
        QVERIFY(m_laptop);
        m_desktop = StoreDevice::signIn(m_backend, u"tim@example.nl"_s);
        QVERIFY(m_desktop);
        // One whole-second instant on both: a start is written to the second.
        m_laptop->now = m_desktop->now = QDateTime::fromSecsSinceEpoch(QDateTime::currentSecsSinceEpoch(), Qt::UTC);
        QVERIFY(m_laptop->refresh());
        ProjectInsert draft;
        draft.name = u"Timekeeping"_s;
        const std::optional<Project> project = runBlocking(m_laptop->store->createProject(draft));
        QVERIFY(project);
        m_project = project->id;
    }

    void clockText_data()
    {
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<QString>("text");
        QTest::newRow("under a minute") << qint64(59) << u"0:59"_s;
        QTest::newRow("just under an hour") << qint64(3599) << u"59:59"_s;
        QTest::newRow("an hour") << qint64(3600) << u"1:00:00"_s;
        QTest::newRow("over a day") << qint64(26 * 3600 + 5) << u"26:00:05"_s;
        // Another device's clock runs ahead: its start counts as no time yet, never negative.
        QTest::newRow("start ahead of this clock") << qint64(-300) << u"0:00"_s;
    }

    void clockText()
    {
        QFETCH(qint64, seconds);
        QFETCH(QString, text);
        QDateTime now = QDateTime(QDate(2026, 3, 1), QTime(9, 0), Qt::UTC);
        TimerStore timer([&] { return now; });
        TaskItem task;
        task.id = u"t"_s;
        task.status = TaskStatus::InProgress;
        task.startedAt = u"2026-03-01T09:00:00+00:00"_s;
        timer.bind(task);
        now = now.addSecs(seconds);
        timer.tick();
        QCOMPARE(timer.elapsedSeconds(), std::max<qint64>(seconds, 0));
        QCOMPARE(timer.elapsedString(), text);
        // The task's earlier total comes on top.
        QCOMPARE(timer.elapsedString(60), TimerStore::format(std::max<qint64>(seconds, 0) + 60));
    }

    void clockStopsWithoutARunningStart()
    {
        TimerStore timer([] { return QDateTime(QDate(2026, 3, 1), QTime(9, 0), Qt::UTC); });
        TaskItem task;
        task.id = u"t"_s;
        task.status = TaskStatus::InProgress;
        task.startedAt = u"2026-03-01T08:00:00Z"_s;
        timer.bind(task);
        QVERIFY(timer.isTicking());
        task.startedAt.reset();
        timer.bind(task);
        QVERIFY(!timer.isTicking() && !timer.activeTaskId());
        task.startedAt = u"2026-03-01T08:00:00Z"_s;
        task.status = TaskStatus::Completed;
        timer.bind(task);
        QVERIFY(!timer.isTicking());
        timer.bind(std::nullopt);
        QCOMPARE(timer.elapsedSeconds(), 0);
    }

    void claimFilter_data()
    {
        QTest::addColumn<std::optional<QString>>("startedAt");
        QTest::addColumn<QString>("filter");
        QTest::newRow("zero offset with colon") << std::optional(u"2026-03-01T09:00:00.123+00:00"_s)
                                                << u"eq.2026-03-01T09:00:00.123Z"_s;
        QTest::newRow("another offset stays") << std::optional(u"2026-03-01T10:00:00+01:00"_s)
                                              << u"eq.2026-03-01T10:00:00+01:00"_s;
        QTest::newRow("no start known") << std::optional<QString>() << u"is.null"_s;
    }

    void claimFilter()
    {
        QFETCH(std::optional<QString>, startedAt);
        QFETCH(QString, filter);
        const QueryItems expected{
            {u"id"_s, u"eq.t-1"_s}, {u"status"_s, u"eq.in_progress"_s}, {u"started_at"_s, filter}};
        QCOMPARE(AppStore::claimQuery(u"t-1"_s, startedAt), expected);
    }

    void aStartShowsOnTheOtherDeviceAndOneStopLogsIt()
    {
        const QString task = newTask(u"Landing page"_s);
        QVERIFY(start(*m_laptop, task));
        const std::optional<TaskItem> started = m_laptop->store->task(task);

        // The start as the backend keeps it reads on every device as the same instant, and the
        // claim filter finds the row by it.
        QVERIFY(m_desktop->refresh());
        const std::optional<TaskItem> seen = m_desktop->store->task(task);
        QCOMPARE(isoDate(seen->startedAt), isoDate(started->startedAt));
        QCOMPARE(m_desktop->store->timer().startedAt(), m_laptop->store->timer().startedAt());
        const QList<TaskItem> claimed = runBlocking(m_desktop->auth->client().select<TaskItem>(
            u"tasks"_s, *runBlocking(m_desktop->auth->validToken(30)), AppStore::claimQuery(task, seen->startedAt)));
        QCOMPARE(claimed.size(), 1);

        // The laptop stops after ten minutes; the desktop, not yet refreshed, stops too.
        advance(600);
        QVERIFY(stop(*m_laptop, task));
        QVERIFY(!m_laptop->store->timer().activeTaskId());
        QVERIFY(stop(*m_desktop, task));
        QCOMPARE(entryCount(task), "1");
        QCOMPARE(m_desktop->store->task(task)->timeSpentSeconds, 600);
        QVERIFY(!m_desktop->store->timer().activeTaskId());
        QCOMPARE(m_laptop->store->entriesByTask().value(task).first().durationSeconds, 600);
    }

    void twoStopsAtOnceLogTheRunOnce()
    {
        const QString task = newTask(u"Race"_s);
        QVERIFY(start(*m_laptop, task));
        QVERIFY(m_desktop->refresh());
        advance(300);
        // The clocks differ by a second, so two entries would not even look like duplicates.
        m_desktop->now = m_desktop->now.addSecs(1);
        QCoro::Task<bool> laptopStop = m_laptop->store->stopTimer(task);
        QCoro::Task<bool> desktopStop = m_desktop->store->stopTimer(task);
        QVERIFY(runBlocking(std::move(laptopStop)));
        QVERIFY(runBlocking(std::move(desktopStop)));
        QCOMPARE(entryCount(task), "1");
        const QByteArray total = taskRow(task);
        QVERIFY2(total == "not_started|300" || total == "not_started|301", total.constData());
        QCOMPARE(sql("SELECT sum(duration_seconds)::text FROM time_entries WHERE task_id = $1", task), total.right(3));
        m_laptop->now = m_desktop->now;
    }

    void startingHereStopsTheRunThatRunsElsewhere()
    {
        const QString first = newTask(u"Design"_s);
        const QString second = newTask(u"Copy"_s);
        QVERIFY(start(*m_laptop, first));
        QVERIFY(m_desktop->refresh());
        advance(120);
        QVERIFY(start(*m_desktop, second));
        QCOMPARE(entryCount(first), "1");
        QCOMPARE(taskRow(first), "not_started|120");
        QCOMPARE(taskRow(second), "in_progress|0");

        // A second start of the running task, from the laptop that has not seen it, keeps the run.
        const QByteArray startedAt = sql("SELECT started_at::text FROM tasks WHERE id = $1", second);
        advance(30);
        QVERIFY(start(*m_laptop, second));
        QCOMPARE(sql("SELECT started_at::text FROM tasks WHERE id = $1", second), startedAt);

        // A status change from the laptop leaves the running task alone.
        QVERIFY(!runBlocking(m_laptop->store->setTaskStatus(second, TaskStatus::Completed)));
        QCOMPARE(m_laptop->store->lastError(),
                 u"The timer of this task was started on another device, so its status was not changed."_s);
        QCOMPARE(taskRow(second), "in_progress|0");
        advance(30);
        QVERIFY(stop(*m_laptop, second));
        QCOMPARE(entryCount(second), "1");
    }

    void aRefusedEntryLeavesTheTimerRunning()
    {
        // Time logged before the run: a stop adds the run to it.
        const QString task = newTask(u"Refused"_s);
        QVERIFY(runBlocking(m_laptop->store->logManualMinutes(task, 1)));
        QVERIFY(start(*m_laptop, task));
        const QByteArray startedAt = sql("SELECT started_at::text FROM tasks WHERE id = $1", task);
        m_backend.database().execScript(
            "CREATE FUNCTION pg_temp_refuse() RETURNS trigger LANGUAGE plpgsql AS "
            "$$ BEGIN RAISE EXCEPTION 'disk full' USING ERRCODE = '53100'; END $$;"
            "CREATE TRIGGER refuse_entries BEFORE INSERT ON time_entries FOR EACH ROW EXECUTE FUNCTION pg_temp_refuse();");
        advance(900);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Stop timer failed: "_s));
        QVERIFY(!stop(*m_laptop, task));
        QCOMPARE(m_laptop->store->lastError(),
                 u"The time could not be logged, so the timer keeps running. Try stopping it again."_s);
        QCOMPARE(entryCount(task), "1");
        QCOMPARE(sql("SELECT status || '|' || time_spent_seconds || '|' || started_at::text FROM tasks WHERE id = $1",
                     task),
                 "in_progress|60|" + startedAt);
        QCOMPARE(m_laptop->store->timer().activeTaskId(), std::optional(task));

        m_backend.database().execScript("DROP TRIGGER refuse_entries ON time_entries; DROP FUNCTION pg_temp_refuse();");
        advance(60);
        QVERIFY(stop(*m_laptop, task));
        QCOMPARE(entryCount(task), "2");
        QCOMPARE(taskRow(task), "not_started|1020");
    }

    void aStopAtAGivenInstantEndsTheEntryThere_data()
    {
        QTest::addColumn<qint64>("endOffset");
        QTest::addColumn<qint64>("logged");
        // The run lasts an hour on the clock; the stop names an instant relative to its start.
        QTest::newRow("the moment the person left") << qint64(1200) << qint64(1200);
        QTest::newRow("before the start is held at the start") << qint64(-60) << qint64(0);
        QTest::newRow("after now is held at now") << qint64(7200) << qint64(3600);
    }

    void aStopAtAGivenInstantEndsTheEntryThere()
    {
        QFETCH(qint64, endOffset);
        QFETCH(qint64, logged);
        const QString task = newTask(QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY(runBlocking(m_laptop->store->logManualMinutes(task, 1)));
        QVERIFY(start(*m_laptop, task));
        const QDateTime started = *isoDate(m_laptop->store->task(task)->startedAt);
        advance(3600);
        QVERIFY(runBlocking(m_laptop->store->stopTimer(task, started.addSecs(endOffset))));
        QCOMPARE(taskRow(task), "not_started|" + QByteArray::number(60 + logged));
        QCOMPARE(sql("SELECT extract(epoch FROM ended_at)::bigint || '|' || duration_seconds FROM time_entries "
                     "WHERE task_id = $1 AND started_at = (SELECT max(started_at) FROM time_entries WHERE task_id = $1)",
                     task),
                 QByteArray::number(started.toSecsSinceEpoch() + logged) + '|' + QByteArray::number(logged));
        // The other device reads the same total from the backend.
        QVERIFY(m_desktop->refresh());
        QCOMPARE(m_desktop->store->task(task)->timeSpentSeconds, 60 + logged);
    }

    void entriesByHandKeepTheTotal()
    {
        const QString task = newTask(u"Meetings"_s);
        AppStore &desktop = *m_desktop->store;
        QVERIFY(runBlocking(m_laptop->store->logManualMinutes(task, 1.5)));
        QVERIFY(runBlocking(m_laptop->store->logManualMinutes(task, 30)));
        QCOMPARE(m_laptop->store->task(task)->timeSpentSeconds, 90 + 1800);
        QVERIFY(!runBlocking(m_laptop->store->logManualMinutes(task, 0)));

        QVERIFY(runBlocking(desktop.fetchEntries(task)));
        const QList<TimeEntry> entries = desktop.entriesByTask().value(task);
        QCOMPARE(entries.size(), 2);
        const TimeEntry shortOne = entries.first().durationSeconds == 90 ? entries.first() : entries.last();
        const TimeEntryPatch patch{shortOne.startedAt, shortOne.endedAt, 600};
        QVERIFY(runBlocking(desktop.updateEntry(shortOne.id, patch)));
        QCOMPARE(desktop.task(task)->timeSpentSeconds, 600 + 1800);
        QVERIFY(runBlocking(desktop.deleteEntry(shortOne.id)));
        QCOMPARE(desktop.task(task)->timeSpentSeconds, 1800);

        // An entry that is gone is refused with the entry's own text.
        const QString entryNotSaved = u"The time entry was not saved: it is not yours or it no longer exists."_s;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Update entry failed: "_s));
        QVERIFY(!runBlocking(desktop.updateEntry(shortOne.id, patch)));
        QCOMPARE(desktop.lastError(), entryNotSaved);
        QCOMPARE(entryCount(task), "1");
    }
};

QTEST_GUILESS_MAIN(TestTimer)
#include "tst_timer.moc"
