#include "backend/runblocking.h"
#include "calendar/calendarimporter.h"
#include "pg/pgconnection.h"
#include "store/storedevice.h"
#include "store/writerecords.h"
#include "support/testbackend.h"

#include <QSettings>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

// A day's events imported as time against a real backend: each occurrence is logged once, however
// often, on whichever device and after whatever restart it is picked again.
class TestCalendarImporter : public QObject
{
    Q_OBJECT

    TestBackend m_backend;
    std::unique_ptr<StoreDevice> m_alice;
    QString m_project;
    QString m_reviewTask;
    QTemporaryDir m_cache;

    std::unique_ptr<CalendarImporter> importer(StoreDevice &device)
    {
        auto made = std::make_unique<CalendarImporter>(*device.store, *device.auth, device.secrets, m_cache.path());
        made->setTimeZone(QTimeZone::utc());
        return made;
    }

    qint64 count(const QByteArray &sql, const QByteArray &user)
    {
        return QString::fromUtf8(m_backend.database().exec(sql, {user}).value(0, 0)).toLongLong();
    }

    qint64 entries() { return count("select count(*) from time_entries where user_id = $1", m_alice->userIdBytes()); }
    qint64 tasks() { return count("select count(*) from tasks where user_id = $1", m_alice->userIdBytes()); }

    static QSet<QString> ids(const QList<CalendarEventDraft> &events)
    {
        QSet<QString> all;
        for (const CalendarEventDraft &event : events) {
            all.insert(event.id);
        }
        return all;
    }

    static QHash<QString, CalendarDestination> destinations(const CalendarImporter &importer)
    {
        QHash<QString, CalendarDestination> to;
        for (const CalendarEventDraft &event : importer.events()) {
            if (const std::optional<CalendarDestination> destination = importer.defaultDestination(event)) {
                to.insert(event.id, *destination);
            }
        }
        return to;
    }

private slots:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QSettings().remove(QString::fromLatin1(CalendarSources::settingsKey));
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_alice = StoreDevice::signUp(m_backend, u"alice@example.nl"_s, u"Alice"_s);
        QVERIFY(m_alice);
        QVERIFY(m_alice->refresh());
        ProjectInsert project;
        project.userId = m_alice->userId();
        project.name = u"Client work"_s;
        const std::optional<Project> made = runBlocking(m_alice->store->createProject(project));
        QVERIFY(made);
        m_project = made->id;
        TaskInsert review;
        review.userId = m_alice->userId();
        review.projectId = m_project;
        review.title = u"design REVIEW"_s;
        const std::optional<TaskItem> task = runBlocking(m_alice->store->createTask(review));
        QVERIFY(task);
        m_reviewTask = task->id;
    }

    void withoutCalendarsNothingIsRead()
    {
        auto calendar = importer(*m_alice);
        QCOMPARE(calendar->authState(), CalendarImporter::Auth::Undetermined);
        QVERIFY(!runBlocking(calendar->load(QDate(2025, 3, 10))));
        QCOMPARE(calendar->authState(), CalendarImporter::Auth::Denied);
        QVERIFY(calendar->events().isEmpty());
    }

    void importsEachEventOnce()
    {
        auto calendar = importer(*m_alice);
        std::optional<CalendarSource> source;
        QString why;
        source = CalendarSources::make(QStringLiteral(MORVANE_TEST_DATA "/calendar/mixed.ics"), false, {}, &why);
        QVERIFY2(source, qPrintable(why));
        QVERIFY(runBlocking(calendar->addSource(*source)));
        QCOMPARE(calendar->authState(), CalendarImporter::Auth::Granted);

        m_alice->store->setSelectedProjectId(m_project);
        QVERIFY(runBlocking(calendar->load(QDate(2025, 3, 10))));
        QCOMPARE(calendar->events().size(), 5);
        const QHash<QString, CalendarDestination> to = destinations(*calendar);
        QCOMPARE(to.size(), 5);
        const CalendarImport::Sections sections = CalendarImport::sections(calendar->events(), to);
        QCOMPARE(sections.existing.size(), 1);
        QCOMPARE(sections.existing.first().title, u"Design review"_s);

        const qint64 tasksBefore = tasks();
        QCOMPARE(runBlocking(calendar->importEvents(ids(calendar->events()), to)), 5);
        QCOMPARE(entries(), 5);
        QCOMPARE(tasks(), tasksBefore + 4);
        QCOMPARE(count("select count(*) from calendar_imports where user_id = $1 and time_entry_id is not null",
                       m_alice->userIdBytes()),
                 5);
        QCOMPARE(m_backend.database()
                     .exec("select duration_seconds from time_entries where task_id = $1", {m_reviewTask.toUtf8()})
                     .value(0, 0),
                 QByteArray("5400"));

        // The screen's own guard: a second press logs nothing.
        QCOMPARE(runBlocking(calendar->importEvents(ids(calendar->events()), to)), 0);
        QCOMPARE(entries(), 5);
    }

    void recognisedAfterRestartAndOnTheNextDay()
    {
        m_alice->restart(m_backend);
        QVERIFY(m_alice->refresh());
        m_alice->store->setSelectedProjectId(m_project);
        auto calendar = importer(*m_alice);
        QVERIFY(runBlocking(calendar->load(QDate(2025, 3, 10))));
        QCOMPARE(calendar->loggedIds(), ids(calendar->events()));
        const qint64 tasksBefore = tasks();
        QCOMPARE(runBlocking(calendar->importEvents(ids(calendar->events()), destinations(*calendar))), 0);
        QCOMPARE(entries(), 5);
        QCOMPARE(tasks(), tasksBefore);

        // The deploy that ran past midnight is the same occurrence on its second day.
        QVERIFY(runBlocking(calendar->load(QDate(2025, 3, 11))));
        QCOMPARE(calendar->events().size(), 1);
        QVERIFY(calendar->loggedIds().contains(calendar->events().first().id));
    }

    // Another device that never saw the first import is refused by the backend itself.
    void backendRefusesASecondCopy()
    {
        auto laptop = StoreDevice::signIn(m_backend, u"alice@example.nl"_s);
        QVERIFY(laptop);
        QVERIFY(laptop->refresh());
        auto calendar = importer(*laptop);
        QVERIFY(runBlocking(calendar->load(QDate(2025, 3, 10))));
        const CalendarEventDraft event = calendar->events().first();
        CalendarLog log(*laptop->store, *laptop->auth);
        const std::optional<TaskItem> task = laptop->store->task(m_reviewTask);
        QVERIFY(task);
        QCOMPARE(runBlocking(log.logCalendarEvent(*task, event.start, event.end, event.importKey)),
                 CalendarLogOutcome::AlreadyImported);
        QCOMPARE(log.lastError(), CalendarImport::alreadyImported());
        QCOMPARE(entries(), 5);
    }

    // Keys are private; a refused entry gives its key back; a deleted entry frees its event.
    void keysBelongToTheirOwner()
    {
        auto bob = StoreDevice::signUp(m_backend, u"bob@example.nl"_s, u"Bob"_s);
        QVERIFY(bob);
        QVERIFY(bob->refresh());
        auto calendar = importer(*bob);
        QVERIFY(runBlocking(calendar->load(QDate(2025, 3, 10))));
        QVERIFY(calendar->loggedIds().isEmpty());

        CalendarLog log(*bob->store, *bob->auth);
        const CalendarEventDraft event = *std::find_if(calendar->events().begin(), calendar->events().end(),
                                                       [](const CalendarEventDraft &e) { return e.title == u"Design review"_s; });
        TaskItem alicesTask;
        alicesTask.id = m_reviewTask;
        alicesTask.projectId = m_project;
        QCOMPARE(runBlocking(log.logCalendarEvent(alicesTask, event.start, event.end, event.importKey)),
                 CalendarLogOutcome::Failed);
        QCOMPARE(count("select count(*) from calendar_imports where user_id = $1", bob->userIdBytes()), 0);

        const QByteArray entry = m_backend.database()
                                     .exec("select id from time_entries where task_id = $1", {m_reviewTask.toUtf8()})
                                     .value(0, 0);
        QVERIFY(runBlocking(m_alice->store->deleteEntry(QString::fromUtf8(entry))));
        CalendarLog alices(*m_alice->store, *m_alice->auth);
        const std::optional<QSet<QString>> imported = runBlocking(alices.importedKeys({event.importKey}));
        QVERIFY(imported);
        QVERIFY(imported->isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestCalendarImporter)
#include "tst_calendarimporter.moc"
