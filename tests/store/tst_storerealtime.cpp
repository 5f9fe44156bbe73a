#include "backend/runblocking.h"
#include "i18n/language.h"
#include "model/isodate.h"
#include "pg/pgconnection.h"
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

    PgConnection &db() { return m_backend.database(); }

    static bool live(StoreDevice &device)
    {
        device.store->startSync();
        return QTest::qWaitFor([&] { return device.store->realtimeConnected(); }, 15000);
    }

    std::optional<TaskItem> createTask(StoreDevice &device, const QString &projectId, const QString &title)
    {
        TaskInsert draft;
        draft.projectId = projectId;
        draft.title = title;
        return runBlocking(device.store->createTask(draft));
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
        for (StoreDevice *device : {m_laptop.get(), m_desktop.get(), m_mate.get()}) {
            // The devices' clocks only matter for the poll here: keep them on real time.
            device->now = QDateTime::currentDateTimeUtc();
            QVERIFY(device->refresh());
        }
        ProjectInsert draft;
        draft.name = u"Live"_s;
        const std::optional<Project> project = runBlocking(m_laptop->store->createProject(draft));
        QVERIFY(project);
        m_project = project->id;
        QVERIFY(m_desktop->refresh());
        QVERIFY(live(*m_laptop));
        QVERIFY(live(*m_desktop));
        QVERIFY(live(*m_mate));
    }

    void cleanupTestCase()
    {
        for (StoreDevice *device : {m_laptop.get(), m_desktop.get(), m_mate.get()}) {
            if (device) {
                device->store->stopSync();
            }
        }
    }

    void aTimerStartedHereRunsThereFromTheSameStart()
    {
        const std::optional<TaskItem> task = createTask(*m_laptop, m_project, u"Wireframes"_s);
        QVERIFY(task);
        QTRY_VERIFY(m_desktop->store->task(task->id).has_value());

        QVERIFY(runBlocking(m_laptop->store->startTimer(task->id)));
        const std::optional<QString> started = m_laptop->store->task(task->id)->startedAt;
        QTRY_COMPARE(m_desktop->store->timer().activeTaskId(), std::optional(task->id));
        QCOMPARE(isoDate(m_desktop->store->task(task->id)->startedAt), isoDate(started));
        QCOMPARE(m_desktop->store->timer().startedAt(), m_laptop->store->timer().startedAt());

        QVERIFY(runBlocking(m_laptop->store->stopTimer(task->id)));
        QTRY_VERIFY(!m_desktop->store->timer().activeTaskId().has_value());
        // The entry of the run arrives too.
        QTRY_COMPARE(m_desktop->store->entriesByTask().value(task->id).size(), 1);
    }

    void entriesAndProjectsFollow()
    {
        const std::optional<TaskItem> task = createTask(*m_laptop, m_project, u"Notes"_s);
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
        ProjectPatch rename;
        rename.name = u"Renamed"_s;
        QVERIFY(runBlocking(m_laptop->store->updateProject(project->id, rename)));
        QTRY_COMPARE(m_desktop->store->project(project->id)->name, u"Renamed"_s);
        QVERIFY(runBlocking(m_laptop->store->deleteProject(project->id)));
        QTRY_VERIFY(!m_desktop->store->project(project->id).has_value());

        QVERIFY(runBlocking(m_laptop->store->deleteTask(task->id)));
        QTRY_VERIFY(!m_desktop->store->task(task->id).has_value());
    }

    void aTeamMatesEditArrivesAndAStrangersRowDoesNot()
    {
        const std::optional<Team> team = runBlocking(m_laptop->store->createTeam(u"Live team"_s));
        QVERIFY(team);
        QCOMPARE(runBlocking(m_laptop->store->inviteMember(team->id, u"mate@example.nl"_s, TeamRole::Editor)).kind,
                 InviteOutcome::Kind::Invited);
        QVERIFY(runBlocking(m_laptop->store->assignProjectToTeam(m_project, team->id)));
        QVERIFY(m_mate->refresh());
        QVERIFY(runBlocking(m_mate->store->acceptInvitation(team->id)));
        const std::optional<TaskItem> task = createTask(*m_laptop, m_project, u"Shared copy"_s);
        QVERIFY(task);
        QTRY_VERIFY(m_mate->store->task(task->id).has_value());

        TaskPatch edit;
        edit.title = u"Shared copy, edited by the mate"_s;
        QVERIFY(runBlocking(m_mate->store->updateTask(task->id, edit)));
        QTRY_COMPARE(m_laptop->store->task(task->id)->title, *edit.title);
        QTRY_COMPARE(m_desktop->store->task(task->id)->title, *edit.title);

        // The mate's own project stays the mate's: it never reaches the other account, even
        // while a later visible change does.
        ProjectInsert draft;
        draft.name = u"Mate's own"_s;
        const std::optional<Project> own = runBlocking(m_mate->store->createProject(draft));
        QVERIFY(own);
        const std::optional<TaskItem> hidden = createTask(*m_mate, own->id, u"Private"_s);
        QVERIFY(hidden);
        edit.title = u"Marker"_s;
        QVERIFY(runBlocking(m_mate->store->updateTask(task->id, edit)));
        QTRY_COMPARE(m_laptop->store->task(task->id)->title, u"Marker"_s);
        QVERIFY(!m_laptop->store->project(own->id));
        QVERIFY(!m_laptop->store->task(hidden->id));
    }

    void withTheFeedUpThePollWaitsLonger()
    {
        AppStore &store = *m_desktop->store;
        QVERIFY(store.realtimeConnected());
        const QDateTime last = store.lastRefreshedAt();
        QVERIFY(last.isValid());
        m_desktop->now = last.addSecs(60);
        QCOMPARE(runBlocking(store.pollOnce()), false);
        m_desktop->now = last.addSecs(121);
        QCOMPARE(runBlocking(store.pollOnce()), true);
    }
};

QTEST_GUILESS_MAIN(TestStoreRealtime)
#include "tst_storerealtime.moc"
