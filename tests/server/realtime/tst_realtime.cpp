#include "pg/pgconnection.h"
#include "support/phoenixclient.h"
#include "support/testbackend.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTcpSocket>
#include <QTest>
#include <QUrlQuery>

using namespace Qt::StringLiterals;

// The realtime feed of a real morvane-server, spoken to by plain WebSocket clients.
class TestRealtime : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    QString m_anna;
    QString m_bob;
    QByteArray m_annaProject;
    QByteArray m_bobProject;
    QByteArray m_team;
    QByteArray m_teamProject;
    int m_topics = 0;

    PgConnection &db() { return m_backend.database(); }

    QString nextTopic() { return u"realtime:test-%1"_s.arg(++m_topics); }

    QByteArray insertTask(const QString &owner, const QByteArray &project, const QString &title,
                          const QByteArray &status = "not_started", qint64 seconds = 0)
    {
        return db()
            .exec("INSERT INTO tasks (user_id, project_id, title, status, time_spent_seconds)"
                  " VALUES ($1, $2, $3, $4, $5) RETURNING id",
                  {owner.toUtf8(), project, title.toUtf8(), status, QByteArray::number(seconds)})
            .value(0, 0);
    }

    std::unique_ptr<PhoenixClient> connected(const QString &vsn = u"1.0.0"_s)
    {
        auto client = std::make_unique<PhoenixClient>(m_backend.url(), m_backend.anonKey(), vsn);
        if (!client->open()) {
            return nullptr;
        }
        return client;
    }

    static QJsonArray bindingsOf(const QJsonObject &reply)
    {
        return reply.value(u"response").toObject().value(u"postgres_changes").toArray();
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_anna = m_backend.createUser(u"anna@example.nl"_s, u"Anna"_s);
        m_bob = m_backend.createUser(u"bob@example.nl"_s, u"Bob"_s);
        m_annaProject =
            db().exec("INSERT INTO projects (user_id, name) VALUES ($1, 'Anna''s') RETURNING id", {m_anna.toUtf8()})
                .value(0, 0);
        m_bobProject =
            db().exec("INSERT INTO projects (user_id, name) VALUES ($1, 'Bob''s') RETURNING id", {m_bob.toUtf8()})
                .value(0, 0);
        m_team = db().exec("INSERT INTO teams (owner_id, name) VALUES ($1, 'Studio') RETURNING id", {m_bob.toUtf8()})
                     .value(0, 0);
        db().exec("INSERT INTO team_members (team_id, user_id, email, role, accepted_at)"
                  " VALUES ($1, $2, 'anna@example.nl', 'editor', now())",
                  {m_team, m_anna.toUtf8()});
        m_teamProject = db().exec("INSERT INTO projects (user_id, team_id, name) VALUES ($1, $2, 'Studio work')"
                                  " RETURNING id",
                                  {m_bob.toUtf8(), m_team})
                            .value(0, 0);
    }

    void joinAnswersEveryBindingWithAnId_data()
    {
        QTest::addColumn<QString>("vsn");
        QTest::newRow("objects (1.0.0)") << u"1.0.0"_s;
        QTest::newRow("arrays (2.0.0)") << u"2.0.0"_s;
    }

    void joinAnswersEveryBindingWithAnId()
    {
        QFETCH(QString, vsn);
        auto client = connected(vsn);
        QVERIFY(client);
        const QString topic = nextTopic();
        const QJsonArray asked{changesOf(u"tasks"_s, u"user_id=eq."_s + m_anna),
                               changesOf(u"projects"_s, {}, u"INSERT"_s)};
        const QString ref = client->send(topic, u"phx_join"_s,
                                         {{u"config"_s, QJsonObject{{u"postgres_changes"_s, asked}}},
                                          {u"access_token"_s, QString::fromLatin1(m_backend.tokenFor(m_anna))}},
                                         u"42"_s);
        const auto reply = client->take(PhoenixClient::reply(ref));
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

        const auto system = client->take(PhoenixClient::event(topic, u"system"_s));
        QVERIFY(system);
        QCOMPARE(system->payload.value(u"status").toString(), u"ok"_s);
        QCOMPARE(system->payload.value(u"extension").toString(), u"postgres_changes"_s);
        QCOMPARE(system->payload.value(u"message").toString(), u"Subscribed to PostgreSQL"_s);
        QCOMPARE(system->payload.value(u"channel").toString(), topic.mid(9));

        // A change comes in the same frame form, naming the binding it matched.
        const QByteArray task = insertTask(m_anna, m_annaProject, u"Frames"_s);
        const auto change = client->take(PhoenixClient::change(topic, u"INSERT"_s, QString::fromLatin1(task)));
        QVERIFY(change);
        QCOMPARE(change->payload.value(u"ids").toArray(), QJsonArray{ids.at(0)});
        QVERIFY(change->ref.isNull());
    }

    void heartbeatIsAnswered_data() { joinAnswersEveryBindingWithAnId_data(); }

    void heartbeatIsAnswered()
    {
        QFETCH(QString, vsn);
        auto client = connected(vsn);
        QVERIFY(client);
        const QString ref = client->send(u"phoenix"_s, u"heartbeat"_s, {});
        const auto reply = client->take(PhoenixClient::reply(ref));
        QVERIFY(reply);
        QCOMPARE(reply->topic, u"phoenix"_s);
        QCOMPARE(reply->payload.value(u"status").toString(), u"ok"_s);
    }

    void joinIsRefused_data()
    {
        QTest::addColumn<QByteArray>("token");
        QTest::addColumn<QJsonObject>("binding");
        QTest::addColumn<QString>("reason");
        const QByteArray good = m_backend.tokenFor(m_anna);
        QTest::newRow("expired token") << m_backend.tokenFor(m_anna, u"authenticated"_s, -5) << changesOf(u"tasks"_s)
                                       << u"Token has expired"_s;
        QByteArray forged = good;
        forged.chop(3);
        QTest::newRow("forged token") << forged + "abc" << changesOf(u"tasks"_s) << u"Invalid token"_s;
        QTest::newRow("unknown filter operator")
            << good << changesOf(u"tasks"_s, u"status=like.x"_s) << u"unknown operator"_s;
        QTest::newRow("filter without operator") << good << changesOf(u"tasks"_s, u"status"_s) << u"Invalid filter"_s;
        QTest::newRow("unclosed in-list") << good << changesOf(u"tasks"_s, u"status=in.(a,b"_s) << u"in-list"_s;
        QTest::newRow("unknown event") << good << changesOf(u"tasks"_s, {}, u"TRUNCATE"_s) << u"unknown event"_s;
    }

    void joinIsRefused()
    {
        QFETCH(QByteArray, token);
        QFETCH(QJsonObject, binding);
        QFETCH(QString, reason);
        auto client = connected();
        QVERIFY(client);
        const QString topic = nextTopic();
        const QJsonObject reply = client->join(topic, {binding}, token);
        QCOMPARE(reply.value(u"status").toString(), u"error"_s);
        QVERIFY2(reply.value(u"response").toObject().value(u"reason").toString().contains(reason),
                 QJsonDocument(reply).toJson().constData());
        // Not joined: a later message to the topic is answered as unmatched.
        const QString ref = client->send(topic, u"access_token"_s, {{u"access_token"_s, u"x"_s}});
        const auto unmatched = client->take(PhoenixClient::reply(ref));
        QVERIFY(unmatched);
        QCOMPARE(unmatched->payload.value(u"response").toObject().value(u"reason").toString(), u"unmatched topic"_s);
    }

    void socketWithoutValidKeyIsRefused_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("query");
        const QString key = QString::fromLatin1(m_backend.anonKey());
        QTest::newRow("no apikey") << u"/realtime/v1/websocket"_s << u"vsn=1.0.0"_s;
        QTest::newRow("forged apikey") << u"/realtime/v1/websocket"_s << u"vsn=1.0.0&apikey=a.b.c"_s;
        QTest::newRow("unknown version") << u"/realtime/v1/websocket"_s << u"vsn=3.0.0&apikey="_s + key;
        QTest::newRow("other path") << u"/rest/v1/websocket"_s << u"vsn=1.0.0&apikey="_s + key;
    }

    void socketWithoutValidKeyIsRefused()
    {
        QFETCH(QString, path);
        QFETCH(QString, query);
        QUrl url = m_backend.url();
        url.setScheme(u"ws"_s);
        url.setPath(path);
        url.setQuery(query);
        QWebSocket socket;
        socket.open(url);
        QTRY_VERIFY_WITH_TIMEOUT(socket.state() == QAbstractSocket::UnconnectedState, 5000);
        QCOMPARE(socket.closeCode(), QWebSocketProtocol::CloseCodePolicyViolated);
    }

    void insertUpdateAndDeleteArrive()
    {
        auto client = connected();
        QVERIFY(client);
        const QString topic = nextTopic();
        const QJsonObject reply =
            client->join(topic, {changesOf(u"tasks"_s, u"user_id=eq."_s + m_anna)}, m_backend.tokenFor(m_anna));
        QCOMPARE(reply.value(u"status").toString(), u"ok"_s);

        // Larger than a notification may carry.
        const QString description(20000, u'x');
        const QString task = QString::fromLatin1(insertTask(m_anna, m_annaProject, u"Lifecycle"_s));
        db().exec("UPDATE tasks SET status = 'in_progress', started_at = '2025-03-01T09:00:00Z', description = $2"
                  " WHERE id = $1",
                  {task.toUtf8(), description.toUtf8()});
        db().exec("DELETE FROM tasks WHERE id = $1", {task.toUtf8()});

        const auto inserted = client->take(PhoenixClient::change(topic, u"INSERT"_s, task));
        QVERIFY(inserted);
        const QJsonObject data = inserted->payload.value(u"data").toObject();
        QCOMPARE(data.value(u"schema").toString(), u"public"_s);
        QCOMPARE(data.value(u"table").toString(), u"tasks"_s);
        QVERIFY(!data.value(u"commit_timestamp").toString().isEmpty());
        QVERIFY(data.value(u"errors").isNull());
        QVERIFY(!data.contains(u"old_record"));
        QCOMPARE(data.value(u"record").toObject().value(u"title").toString(), u"Lifecycle"_s);
        QCOMPARE(data.value(u"record").toObject().value(u"time_spent_seconds").toInt(), 0);
        const QJsonArray columns = data.value(u"columns").toArray();
        QVERIFY(columns.contains(QJsonObject{{u"name"_s, u"started_at"_s}, {u"type"_s, u"timestamptz"_s}}));
        QVERIFY(columns.contains(QJsonObject{{u"name"_s, u"id"_s}, {u"type"_s, u"uuid"_s}}));

        const auto updated = client->take(PhoenixClient::change(topic, u"UPDATE"_s, task));
        QVERIFY(updated);
        const QJsonObject record = updated->payload.value(u"data").toObject().value(u"record").toObject();
        QCOMPARE(record.value(u"status").toString(), u"in_progress"_s);
        QCOMPARE(record.value(u"description").toString(), description);
        QVERIFY(record.value(u"started_at").toString().startsWith(u"2025-03-01T09:00:00"));

        const auto deleted = client->take(PhoenixClient::change(topic, u"DELETE"_s, task));
        QVERIFY(deleted);
        const QJsonObject deletedData = deleted->payload.value(u"data").toObject();
        QVERIFY(!deletedData.contains(u"record"));
        // The key and the filter's column, nothing else of the old row.
        QCOMPARE(deletedData.value(u"old_record").toObject(), (QJsonObject{{u"id"_s, task}, {u"user_id"_s, m_anna}}));

        // Delivered changes leave the queue.
        QTRY_COMPARE_WITH_TIMEOUT(db().exec("SELECT count(*) FROM app.realtime_changes").value(0, 0), QByteArray("0"),
                                  5000);
    }

    void aLargeTransactionArrivesWholeAndInOrder()
    {
        auto client = connected();
        QVERIFY(client);
        const QString topic = nextTopic();
        QCOMPARE(client->join(topic, {changesOf(u"tasks"_s)}, m_backend.tokenFor(m_anna)).value(u"status").toString(),
                 u"ok"_s);
        // Thirty rows of a megabyte each in one commit: more than one slice of the queue.
        const int rows = 30;
        db().exec("INSERT INTO tasks (user_id, project_id, title, description)"
                  " SELECT $1, $2, 'Bulk ' || n, repeat(chr(97 + n % 26), 1024 * 1024)"
                  " FROM generate_series(1, $3) AS n",
                  {m_anna.toUtf8(), m_annaProject, QByteArray::number(rows)});
        QStringList titles;
        QVERIFY(QTest::qWaitFor(
            [&] {
                while (const auto change = client->take(PhoenixClient::event(topic, u"postgres_changes"_s), 0)) {
                    const QJsonObject record = change->payload.value(u"data").toObject().value(u"record").toObject();
                    if (record.value(u"description").toString().size() == 1024 * 1024) {
                        titles.append(record.value(u"title").toString());
                    }
                }
                return titles.size() >= rows;
            },
            30000));
        QStringList expected;
        for (int n = 1; n <= rows; ++n) {
            expected.append(u"Bulk %1"_s.arg(n));
        }
        QCOMPARE(titles, expected);
    }

    void filtersDecideWhatArrives_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QByteArray>("status");
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<bool>("arrives");
        QTest::newRow("eq holds") << u"status=eq.in_progress"_s << QByteArray("in_progress") << 0LL << true;
        QTest::newRow("eq fails") << u"status=eq.completed"_s << QByteArray("in_progress") << 0LL << false;
        QTest::newRow("neq") << u"status=neq.completed"_s << QByteArray("in_progress") << 0LL << true;
        QTest::newRow("gt compares numbers, not text")
            << u"time_spent_seconds=gt.9"_s << QByteArray("not_started") << 10LL << true;
        QTest::newRow("gt at the bound") << u"time_spent_seconds=gt.10"_s << QByteArray("not_started") << 10LL << false;
        QTest::newRow("gte at the bound")
            << u"time_spent_seconds=gte.10"_s << QByteArray("not_started") << 10LL << true;
        QTest::newRow("lt") << u"time_spent_seconds=lt.10"_s << QByteArray("not_started") << 9LL << true;
        QTest::newRow("lte above") << u"time_spent_seconds=lte.10"_s << QByteArray("not_started") << 11LL << false;
        QTest::newRow("in holds") << u"status=in.(completed,in_progress)"_s << QByteArray("in_progress") << 0LL << true;
        QTest::newRow("in fails") << u"status=in.(completed,not_started)"_s << QByteArray("in_progress") << 0LL
                                  << false;
        QTest::newRow("and: both hold") << u"status=eq.in_progress,time_spent_seconds=gte.5"_s
                                        << QByteArray("in_progress") << 5LL << true;
        QTest::newRow("and: one fails") << u"status=eq.in_progress,time_spent_seconds=gte.6"_s
                                        << QByteArray("in_progress") << 5LL << false;
        QTest::newRow("unknown column never matches")
            << u"nonsense=eq.1"_s << QByteArray("in_progress") << 0LL << false;
    }

    void filtersDecideWhatArrives()
    {
        QFETCH(QString, filter);
        QFETCH(QByteArray, status);
        QFETCH(qint64, seconds);
        QFETCH(bool, arrives);
        auto client = connected();
        QVERIFY(client);
        const QString filtered = nextTopic();
        const QString everything = nextTopic();
        const QByteArray token = m_backend.tokenFor(m_anna);
        QCOMPARE(
            client->join(filtered, {changesOf(u"tasks"_s, filter, u"INSERT"_s)}, token).value(u"status").toString(),
            u"ok"_s);
        QCOMPARE(client->join(everything, {changesOf(u"tasks"_s, {}, u"INSERT"_s)}, token).value(u"status").toString(),
                 u"ok"_s);
        const QString task = QString::fromLatin1(insertTask(m_anna, m_annaProject, u"Filtered"_s, status, seconds));
        // Both channels' messages of one change leave together, so once the unfiltered one is here
        // the filtered one would be too.
        QVERIFY(client->take(PhoenixClient::change(everything, u"INSERT"_s, task)));
        QCOMPARE(client->has(PhoenixClient::change(filtered, u"INSERT"_s, task)), arrives);
    }

    void rowsTheSubscriberMayNotReadNeverArrive()
    {
        auto client = connected();
        QVERIFY(client);
        const QString topic = nextTopic();
        QCOMPARE(client->join(topic, {changesOf(u"tasks"_s)}, m_backend.tokenFor(m_anna)).value(u"status").toString(),
                 u"ok"_s);

        const QString strangers = QString::fromLatin1(insertTask(m_bob, m_bobProject, u"Bob alone"_s));
        const QString teams = QString::fromLatin1(insertTask(m_bob, m_teamProject, u"Studio task"_s));
        const QString own = QString::fromLatin1(insertTask(m_anna, m_annaProject, u"Anna's own"_s));
        QVERIFY(client->take(PhoenixClient::change(topic, u"INSERT"_s, teams)));
        QVERIFY(client->take(PhoenixClient::change(topic, u"INSERT"_s, own)));
        QVERIFY(!client->has(PhoenixClient::change(topic, u"INSERT"_s, strangers)));

        // Deletes are checked against the old row the same way.
        db().exec("DELETE FROM tasks WHERE id = $1", {strangers.toUtf8()});
        db().exec("UPDATE tasks SET title = 'Still mine' WHERE id = $1", {own.toUtf8()});
        QVERIFY(client->take(PhoenixClient::change(topic, u"UPDATE"_s, own)));
        QVERIFY(!client->has(PhoenixClient::change(topic, u"DELETE"_s, strangers)));

        // Out of the team, its project's rows stop coming.
        db().exec("DELETE FROM team_members WHERE team_id = $1 AND user_id = $2", {m_team, m_anna.toUtf8()});
        db().exec("UPDATE tasks SET title = 'Studio task, renamed' WHERE id = $1", {teams.toUtf8()});
        db().exec("UPDATE tasks SET title = 'Mine again' WHERE id = $1", {own.toUtf8()});
        QVERIFY(client->take(PhoenixClient::change(topic, u"UPDATE"_s, own)));
        QVERIFY(!client->has(PhoenixClient::change(topic, u"UPDATE"_s, teams)));
        db().exec("INSERT INTO team_members (team_id, user_id, email, role, accepted_at)"
                  " VALUES ($1, $2, 'anna@example.nl', 'editor', now())",
                  {m_team, m_anna.toUtf8()});

        // The service role reads everything.
        const QString all = nextTopic();
        QCOMPARE(client->join(all, {changesOf(u"tasks"_s)}, m_backend.serviceToken()).value(u"status").toString(),
                 u"ok"_s);
        const QString another = QString::fromLatin1(insertTask(m_bob, m_bobProject, u"Bob again"_s));
        QVERIFY(client->take(PhoenixClient::change(all, u"INSERT"_s, another)));
        QVERIFY(!client->has(PhoenixClient::change(topic, u"INSERT"_s, another)));
    }

    // Every binding is matched against every change and every identity checked against every
    // readable row: one socket cannot make that work grow without bound, and a deleted account
    // reads nothing more.
    void channelsPerSocketAreCappedAndAccountsEnd()
    {
        const QString mia = m_backend.createUser(u"mia@example.nl"_s);
        const QByteArray project =
            db().exec("INSERT INTO projects (user_id, name) VALUES ($1, 'Mia') RETURNING id", {mia.toUtf8()})
                .value(0, 0);
        auto client = connected();
        QVERIFY(client);
        QStringList topics;
        for (int i = 0; i < 100; ++i) {
            topics.append(nextTopic());
            QCOMPARE(client->join(topics.last(), {changesOf(u"tasks"_s)}, m_backend.tokenFor(mia)).value(u"status"),
                     u"ok"_s);
        }
        const QJsonObject refused = client->join(nextTopic(), {changesOf(u"tasks"_s)}, m_backend.tokenFor(mia));
        QVERIFY(refused[u"response"_s][u"reason"_s].toString().contains(u"Too many channels"_s));
        const QString task = QString::fromLatin1(insertTask(mia, project, u"Mia's task"_s));
        for (const QString &topic : std::as_const(topics)) {
            QVERIFY(client->take(PhoenixClient::change(topic, u"INSERT"_s, task)));
        }

        // Changes arrive in order: once a later one reached another subscriber, Mia's would have too.
        auto watcher = connected();
        const QString watched = nextTopic();
        QCOMPARE(watcher->join(watched, {changesOf(u"tasks"_s)}, m_backend.tokenFor(m_anna)).value(u"status"), u"ok"_s);
        db().exec("DELETE FROM auth.users WHERE id = $1", {mia.toUtf8()});
        db().exec("UPDATE tasks SET title = 'After Mia' WHERE id = $1", {task.toUtf8()});
        const QString marker = QString::fromLatin1(insertTask(m_anna, m_annaProject, u"Later"_s));
        QVERIFY(watcher->take(PhoenixClient::change(watched, u"INSERT"_s, marker)));
        QVERIFY(!client->has(PhoenixClient::change(topics.first(), u"UPDATE"_s, task)));
    }

    void policiesChangedWhileRunningApply()
    {
        auto client = connected();
        QVERIFY(client);
        const QString topic = nextTopic();
        QCOMPARE(client->join(topic, {changesOf(u"tasks"_s)}, m_backend.tokenFor(m_anna)).value(u"status").toString(),
                 u"ok"_s);
        // A restrictive policy narrows what the permissive ones allow; a migration announces itself
        // as it does to the REST layer.
        db().execScript("CREATE POLICY \"no drafts\" ON public.tasks AS RESTRICTIVE FOR SELECT TO authenticated"
                        " USING (title NOT LIKE 'Draft%'); NOTIFY pgrst, 'reload schema'");
        QTest::qWait(500);
        const QString draft = QString::fromLatin1(insertTask(m_anna, m_annaProject, u"Draft plan"_s));
        const QString final = QString::fromLatin1(insertTask(m_anna, m_annaProject, u"Final plan"_s));
        QVERIFY(client->take(PhoenixClient::change(topic, u"INSERT"_s, final)));
        QVERIFY(!client->has(PhoenixClient::change(topic, u"INSERT"_s, draft)));

        db().execScript("DROP POLICY \"no drafts\" ON public.tasks; NOTIFY pgrst, 'reload schema'");
        QTest::qWait(500);
        const QString again = QString::fromLatin1(insertTask(m_anna, m_annaProject, u"Draft again"_s));
        QVERIFY(client->take(PhoenixClient::change(topic, u"INSERT"_s, again)));
    }

    void everyTableOfTheFeedArrives_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QByteArray>("insert");
        QTest::newRow("projects") << u"projects"_s
                                  << QByteArray("INSERT INTO projects (user_id, name) VALUES ($1, 'New') RETURNING id");
        QTest::newRow("trips") << u"trips"_s
                               << QByteArray("INSERT INTO trips (user_id, started_at, distance_m) VALUES ($1, now(), "
                                             "1200) RETURNING id");
        QTest::newRow("time_entries")
            << u"time_entries"_s
            << QByteArray("INSERT INTO time_entries (user_id, task_id, project_id, started_at, ended_at,"
                          " duration_seconds) SELECT $1, t.id, t.project_id, now() - interval '1 hour', now(), 3600"
                          " FROM tasks t WHERE t.user_id = $1 LIMIT 1 RETURNING id");
    }

    void everyTableOfTheFeedArrives()
    {
        QFETCH(QString, table);
        QFETCH(QByteArray, insert);
        auto client = connected(u"2.0.0"_s);
        QVERIFY(client);
        const QString topic = u"realtime:public:"_s + table;
        QCOMPARE(client->join(topic, {changesOf(table, u"user_id=eq."_s + m_anna)}, m_backend.tokenFor(m_anna))
                     .value(u"status")
                     .toString(),
                 u"ok"_s);
        insertTask(m_anna, m_annaProject, u"For time"_s);
        const QString id = QString::fromLatin1(db().exec(insert, {m_anna.toUtf8()}).value(0, 0));
        QVERIFY(!id.isEmpty());
        QVERIFY(client->take(PhoenixClient::change(topic, u"INSERT"_s, id)));
    }

    void tokenRenewalKeepsAChannelAndExpiryClosesIt()
    {
        auto client = connected();
        QVERIFY(client);
        const QString renewed = nextTopic();
        const QString lapsing = nextTopic();
        const QByteArray shortToken = m_backend.tokenFor(m_anna, u"authenticated"_s, 3);
        QCOMPARE(client->join(renewed, {changesOf(u"tasks"_s)}, shortToken).value(u"status").toString(), u"ok"_s);
        QCOMPARE(client->join(lapsing, {changesOf(u"tasks"_s)}, shortToken).value(u"status").toString(), u"ok"_s);
        client->send(renewed, u"access_token"_s,
                     {{u"access_token"_s, QString::fromLatin1(m_backend.tokenFor(m_anna))}});

        const auto system = client->take(PhoenixClient::event(lapsing, u"system"_s), 7000);
        // The first system message of the topic is the subscription's; the error follows.
        std::optional<PhoenixClient::Message> error = system;
        if (error && error->payload.value(u"status").toString() == u"ok") {
            error = client->take(PhoenixClient::event(lapsing, u"system"_s), 7000);
        }
        QVERIFY(error);
        QCOMPARE(error->payload.value(u"status").toString(), u"error"_s);
        QVERIFY(error->payload.value(u"message").toString().contains(u"expired"));
        QVERIFY(client->take(PhoenixClient::event(lapsing, u"phx_close"_s)));
        QVERIFY(!client->has(PhoenixClient::event(renewed, u"phx_close"_s)));

        const QString task = QString::fromLatin1(insertTask(m_anna, m_annaProject, u"After renewal"_s));
        QVERIFY(client->take(PhoenixClient::change(renewed, u"INSERT"_s, task)));
        QVERIFY(!client->has(PhoenixClient::change(lapsing, u"INSERT"_s, task)));

        // An expired or forged token sent as a renewal ends the channel at once.
        client->send(renewed, u"access_token"_s,
                     {{u"access_token"_s, QString::fromLatin1(m_backend.tokenFor(m_anna, u"authenticated"_s, -1))}});
        QVERIFY(client->take(PhoenixClient::event(renewed, u"phx_close"_s)));
    }

    void leaveClosesTheChannel()
    {
        auto client = connected(u"2.0.0"_s);
        QVERIFY(client);
        const QString left = nextTopic();
        const QString stays = nextTopic();
        const QByteArray token = m_backend.tokenFor(m_anna);
        QCOMPARE(client->join(left, {changesOf(u"tasks"_s)}, token).value(u"status").toString(), u"ok"_s);
        QCOMPARE(client->join(stays, {changesOf(u"tasks"_s)}, token).value(u"status").toString(), u"ok"_s);
        const QString ref = client->send(left, u"phx_leave"_s, {});
        const auto reply = client->take(PhoenixClient::reply(ref));
        QVERIFY(reply);
        QCOMPARE(reply->payload.value(u"status").toString(), u"ok"_s);
        QVERIFY(client->take(PhoenixClient::event(left, u"phx_close"_s)));

        const QString task = QString::fromLatin1(insertTask(m_anna, m_annaProject, u"After leaving"_s));
        QVERIFY(client->take(PhoenixClient::change(stays, u"INSERT"_s, task)));
        QVERIFY(!client->has(PhoenixClient::change(left, u"INSERT"_s, task)));
    }

    void aSecondJoinReplacesTheFirst()
    {
        auto client = connected();
        QVERIFY(client);
        const QString topic = nextTopic();
        const QByteArray token = m_backend.tokenFor(m_anna);
        const QJsonObject first =
            client->join(topic, {changesOf(u"tasks"_s, u"status=eq.completed"_s, u"INSERT"_s)}, token);
        QCOMPARE(first.value(u"status").toString(), u"ok"_s);
        const QJsonObject second =
            client->join(topic, {changesOf(u"tasks"_s, u"status=eq.in_progress"_s, u"INSERT"_s)}, token);
        QCOMPARE(second.value(u"status").toString(), u"ok"_s);
        const int secondId = bindingsOf(second).at(0).toObject().value(u"id").toInt();
        QVERIFY(secondId != bindingsOf(first).at(0).toObject().value(u"id").toInt());
        // The first join (this client's first message, ref "1") is closed under its own reference.
        const auto closed = client->take(PhoenixClient::event(topic, u"phx_close"_s));
        QVERIFY(closed);
        QCOMPARE(closed->joinRef.toString(), u"1"_s);

        const QString old = QString::fromLatin1(insertTask(m_anna, m_annaProject, u"Old filter"_s, "completed"));
        const QString current = QString::fromLatin1(insertTask(m_anna, m_annaProject, u"New filter"_s, "in_progress"));
        const auto change = client->take(PhoenixClient::change(topic, u"INSERT"_s, current));
        QVERIFY(change);
        QCOMPARE(change->payload.value(u"ids").toArray(), QJsonArray{secondId});
        QVERIFY(!client->has(PhoenixClient::change(topic, u"INSERT"_s, old)));
    }

    void aLostChangeQueueErrsTheChannels()
    {
        auto client = connected();
        QVERIFY(client);
        const QString topic = nextTopic();
        const QByteArray token = m_backend.tokenFor(m_anna);
        QCOMPARE(client->join(topic, {changesOf(u"tasks"_s)}, token).value(u"status").toString(), u"ok"_s);
        // Changes may be missed while the server cannot read its queue: the channel errs, so that
        // the client joins again and reloads.
        db().exec("SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE application_name = 'morvane realtime'");
        QVERIFY(client->take(PhoenixClient::event(topic, u"phx_error"_s), 10000));
        const QString ref = client->send(topic, u"access_token"_s, {{u"access_token"_s, QString::fromLatin1(token)}});
        QVERIFY(client->take(PhoenixClient::reply(ref))); // no longer joined: "unmatched topic"

        QCOMPARE(client->join(topic, {changesOf(u"tasks"_s)}, token).value(u"status").toString(), u"ok"_s);
        const QString task = QString::fromLatin1(insertTask(m_anna, m_annaProject, u"After the loss"_s));
        QVERIFY(client->take(PhoenixClient::change(topic, u"INSERT"_s, task), 10000));
    }

    void slowReaderIsDroppedOthersKeepUp()
    {
        // A server of its own with a small backlog allowance, and an idle limit the sockets must
        // outlive.
        TestBackend backend({u"--realtime-max-backlog"_s, u"65536"_s, u"--idle-timeout"_s, u"1"_s});
        QVERIFY2(backend.isReady(), qPrintable(backend.startupLog()));
        const QString carl = backend.createUser(u"carl@example.nl"_s);
        const QByteArray project =
            backend.database()
                .exec("INSERT INTO projects (user_id, name) VALUES ($1, 'Big') RETURNING id", {carl.toUtf8()})
                .value(0, 0);

        PhoenixClient healthy(backend.url(), backend.anonKey());
        QVERIFY(healthy.open());
        QCOMPARE(healthy.join(u"realtime:healthy"_s, {changesOf(u"tasks"_s)}, backend.tokenFor(carl))
                     .value(u"status")
                     .toString(),
                 u"ok"_s);

        // A reader that takes a few kilobytes and then stops reading: a raw socket with a small
        // read buffer, so that neither Qt nor this test drains it.
        QTcpSocket slow;
        slow.connectToHost(backend.url().host(), quint16(backend.url().port()));
        QVERIFY(slow.waitForConnected(5000));
        QUrlQuery query;
        query.addQueryItem(u"apikey"_s, QString::fromLatin1(backend.anonKey()));
        query.addQueryItem(u"vsn"_s, u"1.0.0"_s);
        slow.write("GET /realtime/v1/websocket?" + query.toString(QUrl::FullyEncoded).toLatin1() +
                   " HTTP/1.1\r\nHost: localhost\r\nUpgrade: websocket\r\nConnection: Upgrade\r\n"
                   "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\nSec-WebSocket-Version: 13\r\n\r\n");
        QVERIFY(
            QTest::qWaitFor([&] { return slow.bytesAvailable() > 0 && slow.peek(4096).contains("\r\n\r\n"); }, 5000));
        QVERIFY(slow.readAll().startsWith("HTTP/1.1 101"));
        const QByteArray join =
            QJsonDocument(
                QJsonObject{
                    {u"topic"_s, u"realtime:slow"_s},
                    {u"event"_s, u"phx_join"_s},
                    {u"ref"_s, u"1"_s},
                    {u"join_ref"_s, u"1"_s},
                    {u"payload"_s,
                     QJsonObject{{u"config"_s, QJsonObject{{u"postgres_changes"_s, QJsonArray{changesOf(u"tasks"_s)}}}},
                                 {u"access_token"_s, QString::fromLatin1(backend.tokenFor(carl))}}}})
                .toJson(QJsonDocument::Compact);
        // A masked text frame, as every client frame must be.
        QByteArray frame;
        frame.append(char(0x81));
        frame.append(char(0x80 | 126));
        frame.append(char(join.size() >> 8));
        frame.append(char(join.size() & 0xff));
        const QByteArray mask("\x11\x22\x33\x44", 4);
        frame.append(mask);
        for (qsizetype i = 0; i < join.size(); ++i) {
            frame.append(char(join.at(i) ^ mask.at(i % 4)));
        }
        slow.write(frame);
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
            const QString id = QString::fromLatin1(
                backend.database()
                    .exec("INSERT INTO tasks (user_id, project_id, title, description) VALUES ($1, $2, $3, $4)"
                          " RETURNING id",
                          {carl.toUtf8(), project, QByteArray::number(i), big})
                    .value(0, 0));
            QVERIFY2(healthy.take(PhoenixClient::change(u"realtime:healthy"_s, u"INSERT"_s, id), 10000),
                     qPrintable(u"change %1"_s.arg(i)));
        }
        QVERIFY(healthy.isOpen());

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
        QVERIFY2(read < qint64(changes) * big.size(), qPrintable(QString::number(read)));
        QTRY_COMPARE_WITH_TIMEOUT(backend.database().exec("SELECT count(*) FROM app.realtime_changes").value(0, 0),
                                  QByteArray("0"), 5000);
    }
};

QTEST_GUILESS_MAIN(TestRealtime)
#include "tst_realtime.moc"
