#include "backend/realtimeclient.h"
#include "manualscheduler.h"
#include "pg/pgconnection.h"
#include "support/testbackend.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

Q_DECLARE_METATYPE(RealtimeChange::Kind)

namespace {

QString idOf(const RealtimeChange &change)
{
    if (change.isDelete()) {
        return change.deletedId();
    }
    if (change.task()) {
        return change.task()->id;
    }
    if (change.entry()) {
        return change.entry()->id;
    }
    return change.project() ? change.project()->id : change.trip()->value(u"id").toString();
}

} // namespace

// The application's realtime client against a real server: what it subscribes to, what it hands
// on, and how it comes back after the server, the network or the heartbeat failed. Its waits are
// driven by hand, so nothing here waits 25 seconds for a heartbeat. Which rows reach whom is the
// server's rule and is tested there.
class TestRealtimeClient : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    QString m_anna;
    QString m_bob;
    QByteArray m_annaProject;
    QByteArray m_teamProject;
    // A private message bus standing in for the system bus, where a test plays logind.
    QProcess m_bus;
    QString m_busAddress;

    PgConnection &db() { return m_backend.database(); }

    struct Device
    {
        std::shared_ptr<ManualScheduler> scheduler = std::make_shared<ManualScheduler>();
        std::unique_ptr<RealtimeClient> client;
        std::unique_ptr<QSignalSpy> changes;
        std::unique_ptr<QSignalSpy> resyncs;

        // How many changes of this kind for this row arrived, waiting until one has.
        qsizetype waitFor(RealtimeChange::Kind kind, const QString &id)
        {
            qsizetype count = 0;
            QTest::qWaitFor(
                [&] {
                    count = 0;
                    for (const QList<QVariant> &arguments : std::as_const(*changes)) {
                        const auto change = arguments.at(0).value<RealtimeChange>();
                        if (change.kind == kind && idOf(change) == id) {
                            ++count;
                        }
                    }
                    return count > 0;
                },
                5000);
            return count;
        }
    };

    std::unique_ptr<Device> startDevice(const QString &user)
    {
        auto device = std::make_unique<Device>();
        device->client = std::make_unique<RealtimeClient>(m_backend.url(), QString::fromLatin1(m_backend.anonKey()),
                                                          device->scheduler);
        device->changes = std::make_unique<QSignalSpy>(device->client.get(), &RealtimeClient::changeReceived);
        device->resyncs = std::make_unique<QSignalSpy>(device->client.get(), &RealtimeClient::resyncRequested);
        device->client->start(user, [this, user]() -> QCoro::Task<std::optional<QString>> {
            co_return std::optional<QString>(QString::fromLatin1(m_backend.tokenFor(user)));
        });
        return QTest::qWaitFor([&] { return device->client->isConnected(); }, 10000) ? std::move(device) : nullptr;
    }

    QString insertTask(const QString &owner, const QByteArray &project, const QString &title)
    {
        return QString::fromUtf8(db().exec("INSERT INTO tasks (user_id, project_id, title) VALUES ($1, $2, $3) RETURNING id",
                                           {owner.toUtf8(), project, title.toUtf8()})
                                     .value(0, 0));
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        // Before any client asks for the system bus: the connection is made once per process.
        const QString daemon = QStandardPaths::findExecutable(u"dbus-daemon"_s);
        if (!daemon.isEmpty()) {
            m_bus.start(daemon, {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s});
            if (m_bus.waitForReadyRead(5000)) {
                m_busAddress = QString::fromLatin1(m_bus.readLine()).trimmed();
                qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_busAddress.toLatin1());
            }
        }
        m_anna = m_backend.createUser(u"anna@example.nl"_s, u"Anna"_s);
        m_bob = m_backend.createUser(u"bob@example.nl"_s, u"Bob"_s);
        m_annaProject = db().exec("INSERT INTO projects (user_id, name) VALUES ($1, 'Own') RETURNING id", {m_anna.toUtf8()})
                            .value(0, 0);
        const QByteArray team =
            db().exec("INSERT INTO teams (owner_id, name) VALUES ($1, 'Studio') RETURNING id", {m_bob.toUtf8()}).value(0, 0);
        db().exec("INSERT INTO team_members (team_id, user_id, email, role, accepted_at)"
                  " VALUES ($1, $2, 'anna@example.nl', 'editor', now())",
                  {team, m_anna.toUtf8()});
        m_teamProject = db().exec("INSERT INTO projects (user_id, team_id, name) VALUES ($1, $2, 'Studio work')"
                                  " RETURNING id",
                                  {m_bob.toUtf8(), team})
                            .value(0, 0);
    }

    void cleanupTestCase()
    {
        if (m_bus.state() != QProcess::NotRunning) {
            m_bus.terminate();
            m_bus.waitForFinished(5000);
        }
    }

    void socketAddressFollowsTheBackend_data()
    {
        QTest::addColumn<QUrl>("backend");
        QTest::addColumn<QUrl>("socket");
        QTest::newRow("local http") << QUrl(u"http://127.0.0.1:54321"_s)
                                    << QUrl(u"ws://127.0.0.1:54321/realtime/v1/websocket?apikey=K&vsn=1.0.0"_s);
        QTest::newRow("hosted https, under a path")
            << QUrl(u"https://example.org:8443/backend/"_s)
            << QUrl(u"wss://example.org:8443/backend/realtime/v1/websocket?apikey=K&vsn=1.0.0"_s);
    }

    void socketAddressFollowsTheBackend()
    {
        QFETCH(QUrl, backend);
        QTEST(RealtimeClient::socketURL(backend, u"K"_s), "socket");
    }

    void payloadsBecomeChanges_data()
    {
        using K = RealtimeChange::Kind;
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QJsonObject>("row");
        QTest::addColumn<int>("kind"); // -1: dropped
        const QJsonObject task{{u"id"_s, u"t1"_s},          {u"user_id"_s, u"u"_s},
                               {u"project_id"_s, u"p"_s},   {u"title"_s, u"Design"_s},
                               {u"status"_s, u"in_progress"_s}, {u"priority"_s, u"high"_s},
                               {u"time_spent_seconds"_s, 60}, {u"started_at"_s, u"2025-03-01T09:00:00+00:00"_s}};
        const QJsonObject trip{{u"id"_s, u"r1"_s}, {u"user_id"_s, u"u"_s}, {u"distance_m"_s, 1200}};
        const QJsonObject key{{u"id"_s, u"x1"_s}};
        QTest::newRow("task inserted") << u"tasks"_s << u"INSERT"_s << task << int(K::TaskInserted);
        QTest::newRow("task deleted") << u"tasks"_s << u"DELETE"_s << key << int(K::TaskDeleted);
        QTest::newRow("trip inserted") << u"trips"_s << u"INSERT"_s << trip << int(K::TripUpserted);
        QJsonObject badStatus = task;
        badStatus.insert(u"status"_s, u"paused"_s);
        QTest::newRow("task that does not decode") << u"tasks"_s << u"UPDATE"_s << badStatus << -1;
        QTest::newRow("delete without a key") << u"tasks"_s << u"DELETE"_s << QJsonObject{} << -1;
        QTest::newRow("table the store does not keep") << u"clients"_s << u"INSERT"_s << key << -1;
        QTest::newRow("unknown type") << u"tasks"_s << u"TRUNCATE"_s << task << -1;
    }

    void payloadsBecomeChanges()
    {
        QFETCH(QString, table);
        QFETCH(QString, type);
        QFETCH(QJsonObject, row);
        QFETCH(int, kind);
        QJsonObject data{{u"schema"_s, u"public"_s}, {u"table"_s, table}, {u"type"_s, type}};
        data.insert(type == u"DELETE" ? u"old_record"_s : u"record"_s, row);
        const std::optional<RealtimeChange> change =
            RealtimeChange::fromPayload({{u"ids"_s, QJsonArray{1}}, {u"data"_s, data}});
        QCOMPARE(change ? int(change->kind) : -1, kind);
        if (change) {
            QCOMPARE(idOf(*change), row.value(u"id").toString());
        }
        if (const TaskItem *task = change ? change->task() : nullptr) {
            QCOMPARE(task->status, TaskStatus::InProgress);
            QCOMPARE(task->startedAt, std::optional<QString>(u"2025-03-01T09:00:00+00:00"_s));
        }
    }

    void joinsEveryTableForTheUser()
    {
        auto device = startDevice(m_anna);
        QVERIFY(device);
        QVERIFY(device->client->joinedTopics().contains(u"realtime:public:trips"_s));
        // The first join is not a reconnect: nothing to reload.
        QCOMPARE(device->resyncs->size(), 0);
        QCOMPARE(device->scheduler->pending("heartbeat"), std::optional(25000ms));
        QCOMPARE(device->scheduler->pending("token"), std::optional(60000ms));
        const QJsonArray bindings = device->client->bindingsFor(u"tasks"_s);
        QCOMPARE(bindings.size(), 1);
        QCOMPARE(bindings.at(0).toObject().value(u"filter").toString(), u"user_id=eq."_s + m_anna);
    }

    void teamProjectsAreBoundToo()
    {
        auto device = startDevice(m_anna);
        QVERIFY(device);
        device->client->setTeamProjects({QString::fromLatin1(m_teamProject)});
        QCOMPARE(device->client->bindingsFor(u"tasks"_s).size(), 2);
        QCOMPARE(device->client->bindingsFor(u"trips"_s).size(), 1);
        // The new joins are answered before anything written after them arrives.
        QTRY_COMPARE_WITH_TIMEOUT(device->client->joinedTopics().size(), 4, 5000);
        QTest::qWait(200);
        const QString task = insertTask(m_bob, m_teamProject, u"Team's"_s);
        QVERIFY(device->waitFor(RealtimeChange::Kind::TaskInserted, task));
    }

    void networkBackReconnectsAndResyncs()
    {
        auto device = startDevice(m_anna);
        QVERIFY(device);
        RealtimeClient &client = *device->client;
        const quint64 generation = client.generation();
        client.noteNetwork(true); // already up: nothing happens
        QCOMPARE(client.generation(), generation);
        client.noteNetwork(false);
        client.noteNetwork(true);
        QTRY_VERIFY_WITH_TIMEOUT(client.isConnected() && client.generation() == generation + 1, 5000);
        QCOMPARE(device->resyncs->size(), 1);

        // Only the newest socket speaks: a change arrives once.
        const QString task = insertTask(m_anna, m_annaProject, u"Once"_s);
        QVERIFY(device->waitFor(RealtimeChange::Kind::TaskInserted, task));
        QTest::qWait(300);
        QCOMPARE(device->waitFor(RealtimeChange::Kind::TaskInserted, task), 1);
        client.stop();
        QVERIFY(!client.isConnected());
        QCOMPARE(device->scheduler->pendingCount(), 0);
    }

    void tokenWatchRenewsBeforeTheServerCloses()
    {
        // A short first token; the watch hands the server a long one before it lapses.
        int asked = 0;
        auto scheduler = std::make_shared<ManualScheduler>();
        RealtimeClient client(m_backend.url(), QString::fromLatin1(m_backend.anonKey()), scheduler);
        QSignalSpy changes(&client, &RealtimeClient::changeReceived);
        QSignalSpy status(&client, &RealtimeClient::connectedChanged);
        client.start(m_anna, [&]() -> QCoro::Task<std::optional<QString>> {
            ++asked;
            co_return std::optional<QString>(
                QString::fromLatin1(m_backend.tokenFor(m_anna, u"authenticated"_s, asked == 1 ? 4 : 3600)));
        });
        QElapsedTimer sinceFirstToken;
        sinceFirstToken.start();
        QTRY_VERIFY_WITH_TIMEOUT(client.isConnected(), 5000);
        QVERIFY(scheduler->fire("token"));
        QCOMPARE(asked, 2);
        // Until well past the first token's end.
        QTest::qWait(int(std::max<qint64>(0, 5500 - sinceFirstToken.elapsed())));
        QVERIFY(client.isConnected());
        const QString task = insertTask(m_anna, m_annaProject, u"Still live"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!changes.isEmpty(), 5000);
        QCOMPARE(idOf(changes.last().at(0).value<RealtimeChange>()), task);
        QCOMPARE(status.size(), 1); // connected once, never dropped
    }

    void noTokenRetriesLater()
    {
        auto scheduler = std::make_shared<ManualScheduler>();
        RealtimeClient client(m_backend.url(), QString::fromLatin1(m_backend.anonKey()), scheduler);
        bool signedIn = false;
        client.start(m_anna, [&]() -> QCoro::Task<std::optional<QString>> {
            co_return signedIn ? std::optional<QString>(QString::fromLatin1(m_backend.tokenFor(m_anna))) : std::nullopt;
        });
        QTRY_VERIFY_WITH_TIMEOUT(scheduler->pending("reconnect").has_value(), 2000);
        QVERIFY(scheduler->fire("reconnect"));
        signedIn = true;
        QVERIFY(scheduler->fire("reconnect"));
        QTRY_VERIFY_WITH_TIMEOUT(client.isConnected(), 5000);
        QCOMPARE(client.attempt(), 0);
    }

    void heartbeatWithoutReplyReconnects()
    {
        auto device = startDevice(m_anna);
        QVERIFY(device);
        ManualScheduler &scheduler = *device->scheduler;
        // Answered heartbeats keep the socket.
        for (int i = 0; i < 3; ++i) {
            QVERIFY(scheduler.fire("heartbeat"));
            QTest::qWait(150);
        }
        QVERIFY(device->client->isConnected());

        // A server that stops answering (frozen, not closed: the socket stays open).
        const auto server = pid_t(m_backend.processId());
        QCOMPARE(::kill(server, SIGSTOP), 0);
        QVERIFY(scheduler.fire("heartbeat"));
        QTest::qWait(300);
        QVERIFY(device->client->isConnected()); // one unanswered heartbeat is not yet a loss
        QVERIFY(scheduler.fire("heartbeat"));
        QVERIFY(!device->client->isConnected());
        QCOMPARE(scheduler.pending("reconnect"), std::optional(1000ms));
        QCOMPARE(::kill(server, SIGCONT), 0);
        QVERIFY(scheduler.fire("reconnect"));
        QTRY_VERIFY_WITH_TIMEOUT(device->client->isConnected(), 10000);
        QCOMPARE(device->resyncs->size(), 1);
    }

    void wakeFromSleepReconnects()
    {
        if (m_busAddress.isEmpty()) {
            QSKIP("dbus-daemon is not installed, so there is no bus to announce sleep on");
        }
        auto device = startDevice(m_anna);
        QVERIFY(device);
        const quint64 generation = device->client->generation();
        QDBusConnection logind = QDBusConnection::connectToBus(m_busAddress, u"logind"_s);
        QVERIFY(logind.registerService(u"org.freedesktop.login1"_s));
        auto announce = [&](bool sleeping) {
            QDBusMessage signal = QDBusMessage::createSignal(u"/org/freedesktop/login1"_s,
                                                             u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s);
            signal << sleeping;
            QVERIFY(logind.send(signal));
            QTest::qWait(300);
        };
        announce(true); // going to sleep: nothing to do yet
        QCOMPARE(device->client->generation(), generation);
        announce(false);
        QTRY_VERIFY_WITH_TIMEOUT(device->client->isConnected() && device->client->generation() == generation + 1, 5000);
        QCOMPARE(device->resyncs->size(), 1);
        logind.unregisterService(u"org.freedesktop.login1"_s);
        QDBusConnection::disconnectFromBus(u"logind"_s);
    }

    // Last: it restarts the server.
    void serverRestartBacksOffReconnectsAndResyncs()
    {
        auto device = startDevice(m_anna);
        QVERIFY(device);
        ManualScheduler &scheduler = *device->scheduler;
        scheduler.forgetRequests();
        m_backend.stop();
        // Each attempt fails while the server is down, and the next waits longer.
        QTRY_VERIFY_WITH_TIMEOUT(scheduler.pending("reconnect").has_value(), 10000);
        QVERIFY(!device->client->isConnected());
        for (int i = 0; i < 7; ++i) {
            QVERIFY(scheduler.fire("reconnect"));
            QTRY_VERIFY_WITH_TIMEOUT(scheduler.pending("reconnect").has_value(), 10000);
        }
        QCOMPARE(scheduler.requestedSeconds("reconnect"), (QList<int>{1, 2, 5, 10, 20, 30, 30, 30}));
        QCOMPARE(device->resyncs->size(), 0);

        QVERIFY2(m_backend.restart(), qPrintable(m_backend.startupLog()));
        QVERIFY(scheduler.fire("reconnect"));
        QTRY_VERIFY_WITH_TIMEOUT(device->client->isConnected(), 10000);
        QCOMPARE(device->resyncs->size(), 1);
        // A successful join starts the sequence over.
        QCOMPARE(device->client->attempt(), 0);
    }
};

QTEST_GUILESS_MAIN(TestRealtimeClient)
#include "tst_realtimeclient.moc"
