#include "pg/pgconnection.h"
#include "support/testbackend.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpSocket>
#include <QTest>
#include <QWebSocket>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

// A plain Phoenix channel client speaking the array frames of "2.0.0" (the official client's
// tests speak the object form too), that keeps every message it receives so that a test can wait
// for the one it expects.
class PhoenixClient
{
public:
    struct Message
    {
        QJsonValue joinRef;
        QJsonValue ref;
        QString topic;
        QString event;
        QJsonObject payload;
    };
    using Predicate = std::function<bool(const Message &)>;

    explicit PhoenixClient(const TestBackend &backend)
    {
        QObject::connect(&m_socket, &QWebSocket::textMessageReceived, &m_socket, [this](const QString &text) {
            const QJsonArray a = QJsonDocument::fromJson(text.toUtf8()).array();
            m_received.append({a[0], a[1], a[2].toString(), a[3].toString(), a[4].toObject()});
        });
        m_socket.open(QUrl(address(backend) + u"vsn=2.0.0&apikey="_s + QString::fromLatin1(backend.anonKey())));
        (void)QTest::qWaitFor([this] { return isOpen(); }, 5000);
    }

    static QString address(const TestBackend &backend)
    {
        return u"ws://%1:%2/realtime/v1/websocket?"_s.arg(backend.url().host()).arg(backend.url().port());
    }

    [[nodiscard]] bool isOpen() const { return m_socket.state() == QAbstractSocket::ConnectedState; }

    // Sends one message and answers its ref.
    QString send(const QString &topic, const QString &event, const QJsonObject &payload,
                 const QJsonValue &joinRef = QJsonValue::Null)
    {
        const QString ref = QString::number(m_nextRef++);
        const QJsonDocument frame(QJsonArray{joinRef, ref, topic, event, payload});
        m_socket.sendTextMessage(QString::fromUtf8(frame.toJson(QJsonDocument::Compact)));
        return ref;
    }

    // phx_join with these postgres_changes bindings; answers the reply's payload (empty on time-out).
    QJsonObject join(const QString &topic, const QJsonArray &bindings, const QByteArray &token)
    {
        const QString ref = QString::number(m_nextRef);
        send(topic, u"phx_join"_s, joinPayload(bindings, token), ref);
        const auto answer = take(reply(ref));
        return answer ? answer->payload : QJsonObject{};
    }

    static QJsonObject joinPayload(const QJsonArray &bindings, const QByteArray &token)
    {
        return {{u"config"_s, QJsonObject{{u"postgres_changes"_s, bindings}}},
                {u"access_token"_s, QString::fromLatin1(token)}};
    }

    bool joins(const QString &topic, const QJsonObject &binding, const QByteArray &token)
    {
        return join(topic, {binding}, token).value(u"status") == u"ok"_s;
    }

    // The first message that matches and was not taken before, waiting up to `timeoutMs`.
    std::optional<Message> take(const Predicate &predicate, int timeoutMs = 5000)
    {
        std::optional<Message> found;
        (void)QTest::qWaitFor(
            [&] {
                const auto it = std::find_if(m_received.begin(), m_received.end(), predicate);
                if (it != m_received.end()) {
                    found = *it;
                    m_received.erase(it);
                }
                return found.has_value();
            },
            timeoutMs);
        return found;
    }

    // Whether such a message arrived already, without waiting or taking it.
    [[nodiscard]] bool has(const Predicate &predicate) const
    {
        return std::any_of(m_received.cbegin(), m_received.cend(), predicate);
    }

    static Predicate reply(const QString &ref)
    {
        return [ref](const Message &m) { return m.event == u"phx_reply" && m.ref.toString() == ref; };
    }

    static Predicate event(const QString &topic, const QString &event)
    {
        return [topic, event](const Message &m) { return m.topic == topic && m.event == event; };
    }

    // A postgres_changes message of this type for the row with this id.
    static Predicate change(const QString &topic, const QString &type, const QString &rowId)
    {
        return [topic, type, rowId](const Message &m) {
            const QJsonObject data = m.payload.value(u"data").toObject();
            const QJsonObject row = data.value(type == u"DELETE" ? u"old_record" : u"record").toObject();
            return m.topic == topic && m.event == u"postgres_changes" && data.value(u"type") == type &&
                   row.value(u"id") == rowId;
        };
    }

private:
    QWebSocket m_socket;
    int m_nextRef = 1;
    QList<Message> m_received;
};

QJsonObject changesOf(const QString &table, const QString &filter = {}, const QString &event = u"*"_s)
{
    QJsonObject binding{{u"event"_s, event}, {u"schema"_s, u"public"_s}, {u"table"_s, table}};
    if (!filter.isEmpty()) {
        binding.insert(u"filter"_s, filter);
    }
    return binding;
}

QJsonArray bindingsOf(const QJsonObject &reply)
{
    return reply.value(u"response").toObject().value(u"postgres_changes").toArray();
}

} // namespace

// The realtime feed of a real morvane-server, spoken to by plain WebSocket clients.
class TestRealtime : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    QString m_anna;
    QString m_bob;
    QByteArray m_annaToken;
    QByteArray m_annaProject;
    QByteArray m_bobProject;
    QByteArray m_team;
    QByteArray m_teamProject;
    int m_topics = 0;

    PgConnection &db() { return m_backend.database(); }

    QString nextTopic() { return u"realtime:test-%1"_s.arg(++m_topics); }

    QByteArray insert(const QByteArray &sql, const PgParams &values)
    {
        return db().exec(sql + " RETURNING id", values).value(0, 0);
    }

    QString insertTask(const QString &owner, const QByteArray &project, const QString &title,
                       const QByteArray &status = "not_started", qint64 seconds = 0)
    {
        return QString::fromLatin1(
            insert("INSERT INTO tasks (user_id, project_id, title, status, time_spent_seconds)"
                   " VALUES ($1, $2, $3, $4, $5)",
                   {owner.toUtf8(), project, title.toUtf8(), status, QByteArray::number(seconds)}));
    }

    QString annasTask(const QString &title) { return insertTask(m_anna, m_annaProject, title); }

    void addAnnaToTheTeam()
    {
        db().exec("INSERT INTO team_members (team_id, user_id, email, role, accepted_at)"
                  " VALUES ($1, $2, 'anna@example.nl', 'editor', now())",
                  {m_team, m_anna.toUtf8()});
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_anna = m_backend.createUser(u"anna@example.nl"_s, u"Anna"_s);
        m_bob = m_backend.createUser(u"bob@example.nl"_s, u"Bob"_s);
        m_annaToken = m_backend.tokenFor(m_anna);
        m_annaProject = insert("INSERT INTO projects (user_id, name) VALUES ($1, 'Anna''s')", {m_anna.toUtf8()});
        m_bobProject = insert("INSERT INTO projects (user_id, name) VALUES ($1, 'Bob''s')", {m_bob.toUtf8()});
        m_team = insert("INSERT INTO teams (owner_id, name) VALUES ($1, 'Studio')", {m_bob.toUtf8()});
        addAnnaToTheTeam();
        m_teamProject = insert("INSERT INTO projects (user_id, team_id, name) VALUES ($1, $2, 'Studio work')",
                               {m_bob.toUtf8(), m_team});
    }

    void joinAnswersEveryBindingWithAnId()
    {
        PhoenixClient client(m_backend);
        const auto beat = client.take(PhoenixClient::reply(client.send(u"phoenix"_s, u"heartbeat"_s, {})));
        QVERIFY(beat);
        QCOMPARE(beat->payload.value(u"status").toString(), u"ok"_s);

        const QString topic = nextTopic();
        const QJsonArray asked{changesOf(u"tasks"_s, u"user_id=eq."_s + m_anna),
                               changesOf(u"trips"_s, {}, u"INSERT"_s)};
        const QString ref = client.send(topic, u"phx_join"_s, PhoenixClient::joinPayload(asked, m_annaToken), u"42"_s);
        const auto reply = client.take(PhoenixClient::reply(ref));
        QVERIFY(reply);
        QCOMPARE(reply->topic, topic);
        QCOMPARE(reply->joinRef.toString(), u"42"_s);
        QCOMPARE(reply->payload.value(u"status").toString(), u"ok"_s);
        const QJsonArray answered = bindingsOf(reply->payload);
        QCOMPARE(answered.size(), 2);
        QList<int> ids;
        for (qsizetype i = 0; i < answered.size(); ++i) {
            QJsonObject binding = answered.at(i).toObject();
            QVERIFY(binding.value(u"id").isDouble());
            ids.append(binding.take(u"id").toInt());
            QCOMPARE(binding, asked.at(i).toObject()); // the params exactly as sent, no filter added
        }
        QVERIFY(ids.at(0) != ids.at(1));

        const auto system = client.take(PhoenixClient::event(topic, u"system"_s));
        QVERIFY(system);
        QCOMPARE(system->payload.value(u"status").toString(), u"ok"_s);

        // A change comes in the same frame form, naming the binding it matched.
        const auto change = client.take(PhoenixClient::change(topic, u"INSERT"_s, annasTask(u"Frames"_s)));
        QVERIFY(change);
        QCOMPARE(change->payload.value(u"ids").toArray(), QJsonArray{ids.at(0)});
        QVERIFY(change->ref.isNull());
        // Tasks are every other test's fare; trips are only here.
        const QByteArray trip =
            insert("INSERT INTO trips (user_id, started_at, distance_m) VALUES ($1, now(), 1200)", {m_anna.toUtf8()});
        const auto tripChange = client.take(PhoenixClient::change(topic, u"INSERT"_s, QString::fromLatin1(trip)));
        QVERIFY(tripChange);
        QCOMPARE(tripChange->payload.value(u"ids").toArray(), QJsonArray{ids.at(1)});
    }

    void joinIsRefused_data()
    {
        QTest::addColumn<QByteArray>("token");
        QTest::addColumn<QJsonObject>("binding");
        QTest::addColumn<QString>("reason");
        QTest::newRow("expired token") << m_backend.tokenFor(m_anna, u"authenticated"_s, -5) << changesOf(u"tasks"_s)
                                       << u"Token has expired"_s;
        QTest::newRow("unknown filter operator")
            << m_annaToken << changesOf(u"tasks"_s, u"status=like.x"_s) << u"unknown operator"_s;
    }

    void joinIsRefused()
    {
        QFETCH(QByteArray, token);
        QFETCH(QJsonObject, binding);
        PhoenixClient client(m_backend);
        const QString topic = nextTopic();
        const QJsonObject reply = client.join(topic, {binding}, token);
        QCOMPARE(reply.value(u"status").toString(), u"error"_s);
        QFETCH(QString, reason);
        QVERIFY2(reply[u"response"][u"reason"].toString().contains(reason), QJsonDocument(reply).toJson().constData());
        // Not joined: a later message to the topic is answered as unmatched.
        const auto unmatched = client.take(PhoenixClient::reply(client.send(topic, u"access_token"_s, {})));
        QVERIFY(unmatched);
        QCOMPARE(unmatched->payload[u"response"][u"reason"].toString(), u"unmatched topic"_s);
    }

    void socketWithoutValidKeyIsRefused()
    {
        for (const QString &query : QStringList{u"vsn=1.0.0&apikey=a.b.c"_s,
                                                u"vsn=3.0.0&apikey="_s + QString::fromLatin1(m_backend.anonKey())}) {
            QWebSocket socket;
            socket.open(QUrl(PhoenixClient::address(m_backend) + query));
            QTRY_VERIFY_WITH_TIMEOUT(socket.state() == QAbstractSocket::UnconnectedState, 5000);
            QCOMPARE(socket.closeCode(), QWebSocketProtocol::CloseCodePolicyViolated);
        }
    }

    void insertUpdateAndDeleteArrive()
    {
        PhoenixClient client(m_backend);
        const QString topic = nextTopic();
        QVERIFY(client.joins(topic, changesOf(u"tasks"_s, u"user_id=eq."_s + m_anna), m_annaToken));
        const QString task = annasTask(u"Lifecycle"_s);
        db().exec("UPDATE tasks SET status = 'in_progress' WHERE id = $1", {task.toUtf8()});
        db().exec("DELETE FROM tasks WHERE id = $1", {task.toUtf8()});

        // The payload's form is what the official client reads (tst_jsclients), and rows larger
        // than a notification may carry arrive whole in the large transaction below.
        QVERIFY(client.take(PhoenixClient::change(topic, u"UPDATE"_s, task)));
        const auto deleted = client.take(PhoenixClient::change(topic, u"DELETE"_s, task));
        QVERIFY(deleted);
        // The key and the filter's column, nothing else of the old row.
        QCOMPARE(deleted->payload[u"data"][u"old_record"].toObject(),
                 (QJsonObject{{u"id"_s, task}, {u"user_id"_s, m_anna}}));
        // Delivered changes leave the queue.
        QTRY_COMPARE_WITH_TIMEOUT(db().exec("SELECT count(*) FROM app.realtime_changes").value(0, 0), "0", 5000);
    }

    void aLargeTransactionArrivesWholeAndInOrder()
    {
        PhoenixClient client(m_backend);
        const QString topic = nextTopic();
        QVERIFY(client.joins(topic, changesOf(u"tasks"_s), m_annaToken));
        // Thirty rows of a megabyte each in one commit: more than one slice of the queue.
        db().exec(
            "INSERT INTO tasks (user_id, project_id, title, description)"
            " SELECT $1, $2, 'Bulk ' || n, repeat(chr(97 + n % 26), 1024 * 1024) FROM generate_series(1, 30) AS n",
            {m_anna.toUtf8(), m_annaProject});
        for (int n = 1; n <= 30; ++n) {
            const auto change = client.take(PhoenixClient::event(topic, u"postgres_changes"_s), 30000);
            QVERIFY(change);
            const QJsonObject record = change->payload[u"data"][u"record"].toObject();
            QCOMPARE(record.value(u"description").toString().size(), 1024 * 1024);
            QCOMPARE(record.value(u"title").toString(), u"Bulk %1"_s.arg(n));
        }
    }

    void filtersDecideWhatArrives_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QByteArray>("status");
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<bool>("arrives");
        const QList<std::tuple<const char *, const char *, const char *, qint64, bool>> rows{
            {"eq holds", "status=eq.in_progress", "in_progress", 0, true},
            {"gt compares numbers, not text", "time_spent_seconds=gt.9", "not_started", 10, true},
            {"gt at the bound", "time_spent_seconds=gt.10", "not_started", 10, false},
            {"gte at the bound", "time_spent_seconds=gte.10", "not_started", 10, true},
            {"lte above", "time_spent_seconds=lte.10", "not_started", 11, false},
            {"in holds", "status=in.(completed,in_progress)", "in_progress", 0, true},
            {"in fails", "status=in.(completed,not_started)", "in_progress", 0, false},
            {"and: one fails", "status=eq.in_progress,time_spent_seconds=gte.6", "in_progress", 5, false},
            {"unknown column never matches", "nonsense=eq.1", "in_progress", 0, false},
        };
        for (const auto &[name, filter, status, seconds, arrives] : rows) {
            QTest::newRow(name) << QString::fromLatin1(filter) << QByteArray(status) << seconds << arrives;
        }
    }

    void filtersDecideWhatArrives()
    {
        QFETCH(QString, filter);
        QFETCH(QByteArray, status);
        QFETCH(qint64, seconds);
        PhoenixClient client(m_backend);
        const QString filtered = nextTopic();
        const QString everything = nextTopic();
        QVERIFY(client.joins(filtered, changesOf(u"tasks"_s, filter, u"INSERT"_s), m_annaToken));
        QVERIFY(client.joins(everything, changesOf(u"tasks"_s, {}, u"INSERT"_s), m_annaToken));
        const QString task = insertTask(m_anna, m_annaProject, u"Filtered"_s, status, seconds);
        // Both channels' messages of one change leave together, so once the unfiltered one is here
        // the filtered one would be too.
        QVERIFY(client.take(PhoenixClient::change(everything, u"INSERT"_s, task)));
        QTEST(client.has(PhoenixClient::change(filtered, u"INSERT"_s, task)), "arrives");
    }

    void rowsTheSubscriberMayNotReadNeverArrive()
    {
        // Two people listening at once: whether a row may be read is decided per identity.
        PhoenixClient anna(m_backend);
        PhoenixClient bob(m_backend);
        const QString topic = nextTopic();
        QVERIFY(anna.joins(topic, changesOf(u"tasks"_s), m_annaToken));
        QVERIFY(bob.joins(topic, changesOf(u"tasks"_s), m_backend.tokenFor(m_bob)));

        // The team's task comes last: once a listener has it, the earlier ones would be there too.
        const QString own = annasTask(u"Anna's own"_s);
        const QString bobs = insertTask(m_bob, m_bobProject, u"Bob alone"_s);
        const QString teams = insertTask(m_bob, m_teamProject, u"Studio task"_s);
        QVERIFY(anna.take(PhoenixClient::change(topic, u"INSERT"_s, teams)));
        QVERIFY(bob.take(PhoenixClient::change(topic, u"INSERT"_s, teams)));
        QVERIFY(anna.has(PhoenixClient::change(topic, u"INSERT"_s, own)));
        QVERIFY(!anna.has(PhoenixClient::change(topic, u"INSERT"_s, bobs)));
        QVERIFY(bob.has(PhoenixClient::change(topic, u"INSERT"_s, bobs)));
        QVERIFY(!bob.has(PhoenixClient::change(topic, u"INSERT"_s, own)));

        // Deletes are checked against the old row the same way.
        db().exec("DELETE FROM tasks WHERE id = $1", {bobs.toUtf8()});
        db().exec("UPDATE tasks SET title = 'Still mine' WHERE id = $1", {own.toUtf8()});
        QVERIFY(anna.take(PhoenixClient::change(topic, u"UPDATE"_s, own)));
        QVERIFY(!anna.has(PhoenixClient::change(topic, u"DELETE"_s, bobs)));

        // Out of the team, its project's rows stop coming.
        db().exec("DELETE FROM team_members WHERE team_id = $1 AND user_id = $2", {m_team, m_anna.toUtf8()});
        db().exec("UPDATE tasks SET title = 'Studio task, renamed' WHERE id = $1", {teams.toUtf8()});
        db().exec("UPDATE tasks SET title = 'Mine again' WHERE id = $1", {own.toUtf8()});
        QVERIFY(anna.take(PhoenixClient::change(topic, u"UPDATE"_s, own)));
        QVERIFY(!anna.has(PhoenixClient::change(topic, u"UPDATE"_s, teams)));
        addAnnaToTheTeam();
    }

    // Every binding is matched against every change and every identity checked against every
    // readable row: one socket cannot make that work grow without bound, and a deleted account
    // reads nothing more.
    void channelsPerSocketAreCappedAndAccountsEnd()
    {
        const QString mia = m_backend.createUser(u"mia@example.nl"_s);
        const QByteArray miasToken = m_backend.tokenFor(mia);
        PhoenixClient client(m_backend);
        QStringList topics;
        for (int i = 0; i < 100; ++i) {
            topics.append(nextTopic());
            QVERIFY(client.joins(topics.last(), changesOf(u"tasks"_s), miasToken));
        }
        const QJsonObject refused = client.join(nextTopic(), {changesOf(u"tasks"_s)}, miasToken);
        QVERIFY(refused[u"response"][u"reason"].toString().contains(u"Too many channels"_s));
        const QString task =
            insertTask(mia, insert("INSERT INTO projects (user_id, name) VALUES ($1, 'Mia')", {mia.toUtf8()}), u"M"_s);
        for (const QString &topic : std::as_const(topics)) {
            QVERIFY(client.take(PhoenixClient::change(topic, u"INSERT"_s, task)));
        }

        // Changes arrive in order: once a later one reached another subscriber, Mia's would have too.
        PhoenixClient watcher(m_backend);
        const QString watched = nextTopic();
        QVERIFY(watcher.joins(watched, changesOf(u"tasks"_s), m_annaToken));
        db().exec("DELETE FROM auth.users WHERE id = $1", {mia.toUtf8()});
        QVERIFY(watcher.take(PhoenixClient::change(watched, u"INSERT"_s, annasTask(u"Later"_s))));
        QVERIFY(!client.has(PhoenixClient::change(topics.first(), u"DELETE"_s, task)));
    }

    void policiesChangedWhileRunningApply()
    {
        PhoenixClient client(m_backend);
        const QString topic = nextTopic();
        QVERIFY(client.joins(topic, changesOf(u"tasks"_s), m_annaToken));
        // A restrictive policy narrows what the permissive ones allow; a migration announces itself
        // as it does to the REST layer.
        db().execScript("CREATE POLICY \"no drafts\" ON public.tasks AS RESTRICTIVE FOR SELECT TO authenticated"
                        " USING (title NOT LIKE 'Draft%'); NOTIFY pgrst, 'reload schema'");
        QTest::qWait(500);
        const QString draft = annasTask(u"Draft plan"_s);
        QVERIFY(client.take(PhoenixClient::change(topic, u"INSERT"_s, annasTask(u"Final plan"_s))));
        QVERIFY(!client.has(PhoenixClient::change(topic, u"INSERT"_s, draft)));

        db().execScript("DROP POLICY \"no drafts\" ON public.tasks; NOTIFY pgrst, 'reload schema'");
        QTest::qWait(500);
        QVERIFY(client.take(PhoenixClient::change(topic, u"INSERT"_s, annasTask(u"Draft again"_s))));
    }

    void tokenRenewalKeepsAChannelAndExpiryClosesIt()
    {
        PhoenixClient client(m_backend);
        const QString renewed = nextTopic();
        const QString lapsing = nextTopic();
        const QByteArray shortToken = m_backend.tokenFor(m_anna, u"authenticated"_s, 3);
        QVERIFY(client.joins(renewed, changesOf(u"tasks"_s), shortToken));
        QVERIFY(client.joins(lapsing, changesOf(u"tasks"_s), shortToken));
        client.send(renewed, u"access_token"_s, {{u"access_token"_s, QString::fromLatin1(m_annaToken)}});

        // The first system message of the topic is the subscription's; the error follows.
        QVERIFY(client.take(PhoenixClient::event(lapsing, u"system"_s)));
        const auto error = client.take(PhoenixClient::event(lapsing, u"system"_s), 7000);
        QVERIFY(error);
        QCOMPARE(error->payload.value(u"status").toString(), u"error"_s);
        QVERIFY(error->payload.value(u"message").toString().contains(u"expired"));
        QVERIFY(client.take(PhoenixClient::event(lapsing, u"phx_close"_s)));
        QVERIFY(!client.has(PhoenixClient::event(renewed, u"phx_close"_s)));

        const QString task = annasTask(u"After renewal"_s);
        QVERIFY(client.take(PhoenixClient::change(renewed, u"INSERT"_s, task)));
        QVERIFY(!client.has(PhoenixClient::change(lapsing, u"INSERT"_s, task)));

        // An expired token sent as a renewal ends the channel at once.
        client.send(renewed, u"access_token"_s,
                    {{u"access_token"_s, QString::fromLatin1(m_backend.tokenFor(m_anna, u"authenticated"_s, -1))}});
        QVERIFY(client.take(PhoenixClient::event(renewed, u"phx_close"_s)));
    }

    void leaveAndRejoin()
    {
        PhoenixClient client(m_backend);
        const QString left = nextTopic();
        const QString topic = nextTopic();
        QVERIFY(client.joins(left, changesOf(u"tasks"_s), m_annaToken));
        const auto reply = client.take(PhoenixClient::reply(client.send(left, u"phx_leave"_s, {})));
        QVERIFY(reply);
        QCOMPARE(reply->payload.value(u"status").toString(), u"ok"_s);
        QVERIFY(client.take(PhoenixClient::event(left, u"phx_close"_s)));

        // A second join of a topic replaces the first, which is closed under its own reference.
        const QJsonObject first =
            client.join(topic, {changesOf(u"tasks"_s, u"status=eq.completed"_s, u"INSERT"_s)}, m_annaToken);
        const QJsonObject second =
            client.join(topic, {changesOf(u"tasks"_s, u"status=eq.in_progress"_s, u"INSERT"_s)}, m_annaToken);
        QCOMPARE(second.value(u"status").toString(), u"ok"_s);
        const int secondId = bindingsOf(second).at(0)[u"id"].toInt();
        QVERIFY(secondId != bindingsOf(first).at(0)[u"id"].toInt());
        const auto closed = client.take(PhoenixClient::event(topic, u"phx_close"_s));
        QVERIFY(closed);
        QCOMPARE(closed->joinRef.toString(), u"3"_s); // this client's third message

        const QString old = insertTask(m_anna, m_annaProject, u"Old filter"_s, "completed");
        const QString current = insertTask(m_anna, m_annaProject, u"New filter"_s, "in_progress");
        const auto change = client.take(PhoenixClient::change(topic, u"INSERT"_s, current));
        QVERIFY(change);
        QCOMPARE(change->payload.value(u"ids").toArray(), QJsonArray{secondId});
        QVERIFY(!client.has(PhoenixClient::change(topic, u"INSERT"_s, old)));
        QVERIFY(!client.has(PhoenixClient::change(left, u"INSERT"_s, current)));
    }

    void aLostChangeQueueErrsTheChannels()
    {
        PhoenixClient client(m_backend);
        const QString topic = nextTopic();
        QVERIFY(client.joins(topic, changesOf(u"tasks"_s), m_annaToken));
        // Changes may be missed while the server cannot read its queue: the channel errs, so that
        // the client joins again and reloads.
        db().exec("SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE application_name = 'morvane realtime'");
        QVERIFY(client.take(PhoenixClient::event(topic, u"phx_error"_s), 10000));
        QVERIFY(client.joins(topic, changesOf(u"tasks"_s), m_annaToken));
        QVERIFY(client.take(PhoenixClient::change(topic, u"INSERT"_s, annasTask(u"After the loss"_s)), 10000));
    }

    void slowReaderIsDroppedOthersKeepUp()
    {
        // A server of its own with a small backlog allowance, and an idle limit the sockets must
        // outlive.
        TestBackend backend({u"--realtime-max-backlog"_s, u"65536"_s, u"--idle-timeout"_s, u"1"_s});
        QVERIFY2(backend.isReady(), qPrintable(backend.startupLog()));
        const QByteArray carl = backend.createUser(u"carl@example.nl"_s).toUtf8();
        const QByteArray token = backend.tokenFor(QString::fromUtf8(carl));
        const QByteArray project =
            backend.database()
                .exec("INSERT INTO projects (user_id, name) VALUES ($1, 'B') RETURNING id", {carl})
                .value(0, 0);
        PhoenixClient healthy(backend);
        QVERIFY(healthy.joins(u"realtime:healthy"_s, changesOf(u"tasks"_s), token));

        // A reader that takes a few kilobytes and then stops reading: a raw socket with a small
        // read buffer, so that neither Qt nor this test drains it.
        QTcpSocket slow;
        slow.connectToHost(backend.url().host(), quint16(backend.url().port()));
        slow.write("GET /realtime/v1/websocket?vsn=2.0.0&apikey=" + backend.anonKey() +
                   " HTTP/1.1\r\nHost: localhost\r\nUpgrade: websocket\r\nConnection: Upgrade\r\n"
                   "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\nSec-WebSocket-Version: 13\r\n\r\n");
        QVERIFY(QTest::qWaitFor([&] { return slow.peek(4096).contains("\r\n\r\n"); }, 5000));
        QVERIFY(slow.readAll().startsWith("HTTP/1.1 101"));
        const QByteArray join = QJsonDocument(QJsonArray{u"1"_s, u"1"_s, u"realtime:slow"_s, u"phx_join"_s,
                                                         PhoenixClient::joinPayload({changesOf(u"tasks"_s)}, token)})
                                    .toJson(QJsonDocument::Compact);
        // A masked text frame, as every client frame must be; the mask of zeros keeps the bytes.
        slow.write(QByteArray("\x81\xfe", 2) + char(join.size() >> 8) + char(join.size() & 0xff) + QByteArray(4, '\0') +
                   join);
        QVERIFY(QTest::qWaitFor([&] { return slow.bytesAvailable() > 0; }, 5000));
        slow.setReadBufferSize(4096);

        // Longer than the idle limit: realtime sockets are not idle HTTP connections.
        QTest::qWait(2500);
        QVERIFY(healthy.isOpen());

        // One change at a time, each read by the healthy client before the next is written: it
        // keeps up, while the slow one falls further behind with every change.
        const int changes = 60;
        const QByteArray big(256 * 1024, 'z');
        for (int i = 0; i < changes; ++i) {
            const QByteArray id = backend.database()
                                      .exec("INSERT INTO tasks (user_id, project_id, title, description)"
                                            " VALUES ($1, $2, 'Big', $3) RETURNING id",
                                            {carl, project, big})
                                      .value(0, 0);
            QVERIFY(healthy.take(PhoenixClient::change(u"realtime:healthy"_s, u"INSERT"_s, QString::fromLatin1(id)),
                                 10000));
        }

        // The slow reader was cut off: reading what it still can ends in a closed connection,
        // long before all the changes were read.
        slow.setReadBufferSize(0);
        qint64 read = 0;
        QVERIFY(QTest::qWaitFor(
            [&] {
                read += slow.readAll().size();
                return slow.state() == QAbstractSocket::UnconnectedState;
            },
            20000));
        QVERIFY(read < qint64(changes) * big.size());
        QVERIFY(healthy.isOpen());
        QTRY_COMPARE_WITH_TIMEOUT(backend.database().exec("SELECT count(*) FROM app.realtime_changes").value(0, 0), "0",
                                  5000);
    }
};

QTEST_GUILESS_MAIN(TestRealtime)
#include "tst_realtime.moc"
