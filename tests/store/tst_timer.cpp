#include "backend/runblocking.h"
#include "i18n/language.h"
#include "model/isodate.h"
#include "pg/pgconnection.h"
#include "store/appstore.h"
#include "store/storedevice.h"
#include "support/testbackend.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString startedElsewhere =
    u"The timer of this task was started on another device, so its status was not changed."_s;
const QString notStopped = u"The time could not be logged, so the timer keeps running. Try stopping it again."_s;
const QString entryNotSaved = u"The time entry was not saved: it is not yours or it no longer exists."_s;

} // namespace

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

    PgConnection &db() { return m_backend.database(); }
    QByteArray sql(const QByteArray &query, const QByteArray &id)
    {
        return db().exec(query, {id}).value(0, 0);
    }
    QByteArray entryCount(const QString &taskId)
    {
        return sql("SELECT count(*) FROM time_entries WHERE task_id = $1", taskId.toUtf8());
    }

    QString newTask(const QString &title)
    {
        TaskInsert draft;
        draft.projectId = m_project;
        draft.title = title;
        const std::optional<TaskItem> task = runBlocking(m_laptop->store->createTask(draft));
        return task ? task->id : QString();
    }

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
        const QDateTime now = QDateTime::fromSecsSinceEpoch(QDateTime::currentSecsSinceEpoch(), Qt::UTC);
        m_laptop->now = now;
        m_desktop->now = now;
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
        QTest::newRow("nothing") << qint64(0) << u"0:00"_s;
        QTest::newRow("under a minute") << qint64(59) << u"0:59"_s;
        QTest::newRow("a minute") << qint64(60) << u"1:00"_s;
        QTest::newRow("just under an hour") << qint64(3599) << u"59:59"_s;
        QTest::newRow("an hour") << qint64(3600) << u"1:00:00"_s;
        QTest::newRow("minutes and seconds padded") << qint64(3600 + 61) << u"1:01:01"_s;
        QTest::newRow("over a day") << qint64(26 * 3600 + 5) << u"26:00:05"_s;
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
        QCOMPARE(timer.elapsedSeconds(), seconds);
        QCOMPARE(timer.elapsedString(), text);
        // The task's earlier total comes on top.
        QCOMPARE(timer.elapsedString(60), TimerStore::format(seconds + 60));
    }

    void clockBinding()
    {
        QDateTime now = QDateTime(QDate(2026, 3, 1), QTime(9, 0), Qt::UTC);
        TimerStore timer([&] { return now; });
        QSignalSpy ticks(&timer, &TimerStore::tickNowChanged);
        TaskItem task;
        task.id = u"t"_s;
        task.status = TaskStatus::InProgress;
        // A start that this device's clock places in the future (another device's clock runs
        // ahead) counts as no time yet, never as negative time.
        task.startedAt = u"2026-03-01T09:05:00Z"_s;
        timer.bind(task);
        QVERIFY(timer.isTicking());
        QCOMPARE(timer.activeTaskId(), std::optional(u"t"_s));
        QCOMPARE(timer.elapsedSeconds(), 0);
        QCOMPARE(timer.elapsedString(), u"0:00"_s);
        QVERIFY(ticks.wait(1500));

        // A task that is not running, or runs without a start, stops the clock.
        task.startedAt.reset();
        timer.bind(task);
        QVERIFY(!timer.isTicking());
        QVERIFY(!timer.activeTaskId());
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
        QTest::newRow("zero offset without colon") << std::optional(u"2026-03-01T09:00:00+0000"_s)
                                                   << u"eq.2026-03-01T09:00:00Z"_s;
        QTest::newRow("already Z") << std::optional(u"2026-03-01T09:00:00Z"_s) << u"eq.2026-03-01T09:00:00Z"_s;
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
        QVERIFY(runBlocking(m_laptop->store->startTimer(task)));
        const std::optional<TaskItem> started = m_laptop->store->task(task);
        QCOMPARE(started->status, TaskStatus::InProgress);
        QCOMPARE(m_laptop->store->timer().activeTaskId(), std::optional(task));

        // The start as the backend keeps it reads on every device as the same instant, and the
        // claim filter finds the row by it.
        QVERIFY(m_desktop->refresh());
        const std::optional<TaskItem> seen = m_desktop->store->task(task);
        QVERIFY(seen && seen->startedAt);
        QCOMPARE(isoDate(seen->startedAt), isoDate(started->startedAt));
        QCOMPARE(m_desktop->store->timer().startedAt(), m_laptop->store->timer().startedAt());
        const QList<TaskItem> claimed = runBlocking(m_desktop->auth->client().select<TaskItem>(
            u"tasks"_s, *runBlocking(m_desktop->auth->validToken(30)), AppStore::claimQuery(task, seen->startedAt)));
        QCOMPARE(claimed.size(), 1);

        // The laptop stops after ten minutes; the desktop, not yet refreshed, stops too.
        advance(600);
        QVERIFY(runBlocking(m_laptop->store->stopTimer(task)));
        QCOMPARE(m_laptop->store->task(task)->timeSpentSeconds, 600);
        QVERIFY(!m_laptop->store->timer().activeTaskId());
        QVERIFY(runBlocking(m_desktop->store->stopTimer(task)));
        QCOMPARE(entryCount(task), "1");
        const std::optional<TaskItem> desktopView = m_desktop->store->task(task);
        QCOMPARE(desktopView->status, TaskStatus::NotStarted);
        QCOMPARE(desktopView->timeSpentSeconds, 600);
        QVERIFY(!m_desktop->store->timer().activeTaskId());
        QCOMPARE(m_laptop->store->entriesByTask().value(task).size(), 1);
        QCOMPARE(m_laptop->store->entriesByTask().value(task).first().durationSeconds, 600);
    }

    void twoStopsAtOnceLogTheRunOnce()
    {
        const QString task = newTask(u"Race"_s);
        QVERIFY(runBlocking(m_laptop->store->startTimer(task)));
        QVERIFY(m_desktop->refresh());
        advance(300);
        // The clocks differ by a second, so two entries would not even look like duplicates.
        m_desktop->now = m_desktop->now.addSecs(1);
        // Both read the run as running, both try to claim it; only one claim can match.
        QCoro::Task<bool> laptopStop = m_laptop->store->stopTimer(task);
        QCoro::Task<bool> desktopStop = m_desktop->store->stopTimer(task);
        QVERIFY(runBlocking(std::move(laptopStop)));
        QVERIFY(runBlocking(std::move(desktopStop)));
        QCOMPARE(entryCount(task), "1");
        const QByteArray total = sql("SELECT time_spent_seconds || '|' || status FROM tasks WHERE id = $1", task.toUtf8());
        QVERIFY2(total == "300|not_started" || total == "301|not_started", total.constData());
        QCOMPARE(sql("SELECT sum(duration_seconds)::text FROM time_entries WHERE task_id = $1", task.toUtf8()),
                 total.left(3));
        m_laptop->now = m_desktop->now;
    }

    void startingHereStopsTheRunThatRunsElsewhere()
    {
        const QString first = newTask(u"Design"_s);
        const QString second = newTask(u"Copy"_s);
        QVERIFY(runBlocking(m_laptop->store->startTimer(first)));
        QVERIFY(m_desktop->refresh());
        advance(120);
        QVERIFY(runBlocking(m_desktop->store->startTimer(second)));
        QCOMPARE(entryCount(first), "1");
        QCOMPARE(sql("SELECT status || '|' || time_spent_seconds FROM tasks WHERE id = $1", first.toUtf8()),
                 "not_started|120");
        QCOMPARE(sql("SELECT status FROM tasks WHERE id = $1", second.toUtf8()), "in_progress");
        QCOMPARE(m_desktop->store->timer().activeTaskId(), std::optional(second));

        // A second start of the running task, from the laptop that has not seen it, keeps the run.
        const QByteArray startedAt = sql("SELECT started_at::text FROM tasks WHERE id = $1", second.toUtf8());
        advance(30);
        QVERIFY(runBlocking(m_laptop->store->startTimer(second)));
        QCOMPARE(sql("SELECT started_at::text FROM tasks WHERE id = $1", second.toUtf8()), startedAt);

        // A status change from the laptop leaves the running task alone.
        QVERIFY(!runBlocking(m_laptop->store->setTaskStatus(second, TaskStatus::Completed)));
        QCOMPARE(m_laptop->store->lastError(), startedElsewhere);
        QCOMPARE(sql("SELECT status FROM tasks WHERE id = $1", second.toUtf8()), "in_progress");

        advance(30);
        QVERIFY(runBlocking(m_laptop->store->stopTimer(second)));
        QCOMPARE(entryCount(second), "1");
    }

    void aRefusedEntryLeavesTheTimerRunning()
    {
        const QString task = newTask(u"Refused"_s);
        QVERIFY(runBlocking(m_laptop->store->startTimer(task)));
        const QByteArray startedAt = sql("SELECT started_at::text FROM tasks WHERE id = $1", task.toUtf8());
        db().exec("CREATE FUNCTION pg_temp_refuse() RETURNS trigger LANGUAGE plpgsql AS "
                  "$$ BEGIN RAISE EXCEPTION 'disk full' USING ERRCODE = '53100'; END $$");
        db().exec("CREATE TRIGGER refuse_entries BEFORE INSERT ON time_entries FOR EACH ROW "
                  "EXECUTE FUNCTION pg_temp_refuse()");
        advance(900);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Stop timer failed: "_s));
        QVERIFY(!runBlocking(m_laptop->store->stopTimer(task)));
        QCOMPARE(m_laptop->store->lastError(), notStopped);
        QCOMPARE(entryCount(task), "0");
        QCOMPARE(sql("SELECT status || '|' || time_spent_seconds || '|' || started_at::text FROM tasks WHERE id = $1",
                     task.toUtf8()),
                 "in_progress|0|" + startedAt);
        QCOMPARE(m_laptop->store->task(task)->status, TaskStatus::InProgress);
        QCOMPARE(m_laptop->store->timer().activeTaskId(), std::optional(task));

        db().exec("DROP TRIGGER refuse_entries ON time_entries");
        db().exec("DROP FUNCTION pg_temp_refuse()");
        advance(60);
        QVERIFY(runBlocking(m_laptop->store->stopTimer(task)));
        QCOMPARE(sql("SELECT count(*) || '|' || sum(duration_seconds) FROM time_entries WHERE task_id = $1",
                     task.toUtf8()),
                 "1|960");
    }

    void entriesByHandKeepTheTotal()
    {
        const QString task = newTask(u"Meetings"_s);
        QVERIFY(runBlocking(m_laptop->store->logManualMinutes(task, 1.5)));
        QVERIFY(runBlocking(m_laptop->store->logManualMinutes(task, 30)));
        QCOMPARE(m_laptop->store->task(task)->timeSpentSeconds, 90 + 1800);
        QCOMPARE(sql("SELECT string_agg(duration_seconds::text, ',' ORDER BY duration_seconds) FROM time_entries "
                     "WHERE task_id = $1",
                     task.toUtf8()),
                 "90,1800");
        QVERIFY(!runBlocking(m_laptop->store->logManualMinutes(task, 0)));
        QVERIFY(!runBlocking(m_laptop->store->logManualMinutes(task, -5)));

        QVERIFY(runBlocking(m_desktop->store->fetchEntries(task)));
        const QList<TimeEntry> entries = m_desktop->store->entriesByTask().value(task);
        QCOMPARE(entries.size(), 2);
        const TimeEntry shortOne = entries.first().durationSeconds == 90 ? entries.first() : entries.last();
        TimeEntryPatch patch{shortOne.startedAt, shortOne.endedAt, 600};
        QVERIFY(runBlocking(m_desktop->store->updateEntry(shortOne.id, patch)));
        QCOMPARE(m_desktop->store->task(task)->timeSpentSeconds, 600 + 1800);
        QCOMPARE(m_desktop->store->entry(shortOne.id)->durationSeconds, 600);

        QVERIFY(runBlocking(m_desktop->store->deleteEntry(shortOne.id)));
        QCOMPARE(m_desktop->store->task(task)->timeSpentSeconds, 1800);
        QVERIFY(!m_desktop->store->entry(shortOne.id));

        // Another user's entry, or one that is gone, is refused with the entry's own text.
        auto stranger = StoreDevice::signUp(m_backend, u"stranger@example.nl"_s, u"Sam"_s);
        QVERIFY(stranger);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Delete entry failed: "_s));
        QVERIFY(!runBlocking(stranger->store->deleteEntry(entries.last().id)));
        QCOMPARE(stranger->store->lastError(), entryNotSaved);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Update entry failed: "_s));
        QVERIFY(!runBlocking(m_desktop->store->updateEntry(shortOne.id, patch)));
        QCOMPARE(m_desktop->store->lastError(), entryNotSaved);
        QCOMPARE(entryCount(task), "1");
    }
};

QTEST_GUILESS_MAIN(TestTimer)
#include "tst_timer.moc"
