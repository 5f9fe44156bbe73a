#include "backend/runblocking.h"
#include "i18n/language.h"
#include "model/isodate.h"
#include "store/appstore.h"
#include "store/storedevice.h"
#include "support/testbackend.h"

#include <QTest>

using namespace Qt::StringLiterals;

// The store kept in step by the realtime feed alone: two devices of one user and a team mate
// against one backend, nobody refreshing by hand.
class TestStoreRealtime : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    std::unique_ptr<StoreDevice> m_laptop;
    std::unique_ptr<StoreDevice> m_desktop;
    std::unique_ptr<StoreDevice> m_mate;
    QString m_project;

    std::optional<TaskItem> createTask(StoreDevice &device, const QString &title)
    {
        return runBlocking(device.store->createTask(TaskInsert{{}, m_project, title}));
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        Language::apply(u"en"_s);
        m_laptop = StoreDevice::signUp(m_backend, u"rea@example.nl"_s, u"Rea"_s);
        m_mate = StoreDevice::signUp(m_backend, u"mate@example.nl"_s, u"Mate"_s);
        QVERIFY(m_laptop && m_mate);
        m_desktop = StoreDevice::signIn(m_backend, u"rea@example.nl"_s);
        QVERIFY(m_desktop);
        ProjectInsert draft;
        draft.name = u"Live"_s;
        QVERIFY(m_laptop->refresh());
        const std::optional<Project> project = runBlocking(m_laptop->store->createProject(draft));
        QVERIFY(project);
        m_project = project->id;
        for (StoreDevice *device : {m_laptop.get(), m_desktop.get(), m_mate.get()}) {
            // The devices' clocks only matter for the poll here: keep them on real time.
            device->now = QDateTime::currentDateTimeUtc();
            QVERIFY(device->refresh());
            device->store->startSync();
            QVERIFY(QTest::qWaitFor([&] { return device->store->realtimeConnected(); }, 15000));
        }
    }

    void aTimerStartedHereRunsThereFromTheSameStart()
    {
        const std::optional<TaskItem> task = createTask(*m_laptop, u"Wireframes"_s);
        QVERIFY(task);
        QTRY_VERIFY(m_desktop->store->task(task->id).has_value());
        QVERIFY(runBlocking(m_laptop->store->startTimer(task->id)));
        QTRY_COMPARE(m_desktop->store->timer().activeTaskId(), std::optional(task->id));
        QCOMPARE(isoDate(m_desktop->store->task(task->id)->startedAt), isoDate(m_laptop->store->task(task->id)->startedAt));
        QCOMPARE(m_desktop->store->timer().startedAt(), m_laptop->store->timer().startedAt());

        QVERIFY(runBlocking(m_laptop->store->stopTimer(task->id)));
        QTRY_VERIFY(!m_desktop->store->timer().activeTaskId().has_value());
    }

    void entriesProjectsAndDeletionsFollow()
    {
        const std::optional<TaskItem> task = createTask(*m_laptop, u"Notes"_s);
        QVERIFY(task);
        QVERIFY(runBlocking(m_laptop->store->logManualMinutes(task->id, 10)));
        QTRY_COMPARE(m_desktop->store->entriesByTask().value(task->id).size(), 1);
        QTRY_COMPARE(m_desktop->store->task(task->id)->timeSpentSeconds, 600);
        const QString entry = m_laptop->store->entriesByTask().value(task->id).first().id;
        QVERIFY(runBlocking(m_laptop->store->deleteEntry(entry)));
        QTRY_VERIFY(!m_desktop->store->entry(entry).has_value());

        ProjectInsert draft;
        draft.name = u"Short-lived"_s;
        const std::optional<Project> project = runBlocking(m_laptop->store->createProject(draft));
        QVERIFY(project);
        QTRY_VERIFY(m_desktop->store->project(project->id).has_value());
        QVERIFY(runBlocking(m_laptop->store->deleteProject(project->id)));
        QTRY_VERIFY(!m_desktop->store->project(project->id).has_value());
        QVERIFY(runBlocking(m_laptop->store->deleteTask(task->id)));
        QTRY_VERIFY(!m_desktop->store->task(task->id).has_value());
    }

    void aTeamMatesEditArrives()
    {
        const std::optional<Team> team = runBlocking(m_laptop->store->createTeam(u"Live team"_s));
        QVERIFY(team);
        QCOMPARE(runBlocking(m_laptop->store->inviteMember(team->id, u"mate@example.nl"_s, TeamRole::Editor)).kind,
                 InviteOutcome::Kind::Invited);
        QVERIFY(runBlocking(m_laptop->store->assignProjectToTeam(m_project, team->id)));
        QVERIFY(m_mate->refresh());
        QVERIFY(runBlocking(m_mate->store->acceptInvitation(team->id)));
        const std::optional<TaskItem> task = createTask(*m_laptop, u"Shared copy"_s);
        QVERIFY(task);
        QTRY_VERIFY(m_mate->store->task(task->id).has_value());

        TaskPatch edit;
        edit.title = u"Shared copy, edited by the mate"_s;
        QVERIFY(runBlocking(m_mate->store->updateTask(task->id, edit)));
        QTRY_COMPARE(m_desktop->store->task(task->id)->title, *edit.title);
    }

    // A reorder's answer or feed event can arrive after a later change of the same task: the older
    // version must not undo the newer one. Each write of a row carries a later updated_at.
    void anOlderVersionArrivingLateIsIgnored()
    {
        const std::optional<TaskItem> task = createTask(*m_laptop, u"Late answers"_s);
        QVERIFY(task && task->updatedAt);
        QVERIFY(runBlocking(m_laptop->store->setTaskStatus(task->id, TaskStatus::Completed)));
        const TaskItem done = *m_laptop->store->task(task->id);
        QCOMPARE(done.status, TaskStatus::Completed);
        QVERIFY(*isoDate(done.updatedAt) > *isoDate(task->updatedAt));
        m_laptop->store->replaceTask(*task);
        QCOMPARE(m_laptop->store->task(task->id)->status, TaskStatus::Completed);
        TaskItem newer = done;
        newer.title = u"Late answers, renamed"_s;
        newer.updatedAt = isoString(isoDate(done.updatedAt)->addSecs(1));
        m_laptop->store->replaceTask(newer);
        QCOMPARE(m_laptop->store->task(task->id)->title, newer.title);
    }
};

QTEST_GUILESS_MAIN(TestStoreRealtime)
#include "tst_storerealtime.moc"
