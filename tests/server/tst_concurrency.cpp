#include "pg/pgconnection.h"
#include "support/testbackend.h"

#include <QDateTime>
#include <QEventLoop>
#include <QJsonArray>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QScopeGuard>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

// Requests sent all at once, each on a connection of its own so that none waits behind another
// in the client, and the order in which their answers arrived.
class Flights
{
public:
    explicit Flights(const TestBackend &backend)
        : m_backend(backend)
    {}

    int start(const QByteArray &method, const QByteArray &target, const QByteArray &token, const QByteArray &body = {},
              const QList<std::pair<QByteArray, QByteArray>> &headers = {})
    {
        auto flight = std::make_unique<Flight>();
        QNetworkRequest request(QUrl::fromEncoded(m_backend.url().toEncoded() + "/rest/v1/" + target));
        request.setRawHeader("Content-Type", "application/json");
        request.setRawHeader("apikey", m_backend.anonKey());
        if (!token.isEmpty()) {
            request.setRawHeader("Authorization", "Bearer " + token);
        }
        for (const auto &[name, value] : headers) {
            request.setRawHeader(name, value);
        }
        flight->reply =
            method == "GET" ? flight->manager.get(request) : flight->manager.sendCustomRequest(request, method, body);
        const int index = int(m_flights.size());
        QObject::connect(flight->reply, &QNetworkReply::finished, [this, index] { land(index); });
        m_flights.push_back(std::move(flight));
        return index;
    }

    // Runs the event loop until all of `which` have answered; false if they hang.
    bool waitFor(const QList<int> &which)
    {
        auto done = [&] { return std::all_of(which.cbegin(), which.cend(), [&](int i) { return isFinished(i); }); };
        if (done()) {
            return true;
        }
        QEventLoop loop;
        QTimer guard;
        guard.setSingleShot(true);
        QObject::connect(&guard, &QTimer::timeout, &loop, &QEventLoop::quit);
        guard.start(60000);
        m_wake = [&] {
            if (done()) {
                loop.quit();
            }
        };
        loop.exec();
        m_wake = nullptr;
        return done();
    }

    bool waitForAll()
    {
        QList<int> all;
        for (int i = 0; i < int(m_flights.size()); ++i) {
            all.append(i);
        }
        return waitFor(all);
    }

    [[nodiscard]] bool isFinished(int index) const { return m_flights[std::size_t(index)]->position >= 0; }
    // 0 for the first answer to arrive, 1 for the next, ...
    [[nodiscard]] int position(int index) const { return m_flights[std::size_t(index)]->position; }
    [[nodiscard]] const HttpResult &result(int index) const { return m_flights[std::size_t(index)]->result; }
    [[nodiscard]] int size() const { return int(m_flights.size()); }

private:
    struct Flight
    {
        QNetworkAccessManager manager;
        QNetworkReply *reply = nullptr;
        int position = -1;
        HttpResult result;
    };

    void land(int index)
    {
        Flight &flight = *m_flights[std::size_t(index)];
        flight.position = m_landed++;
        flight.result.status = flight.reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        for (const auto &[name, value] : flight.reply->rawHeaderPairs()) {
            flight.result.headers.append({name, value});
        }
        flight.result.body = flight.reply->readAll();
        flight.reply->deleteLater();
        if (m_wake) {
            m_wake();
        }
    }

    const TestBackend &m_backend;
    std::vector<std::unique_ptr<Flight>> m_flights;
    int m_landed = 0;
    std::function<void()> m_wake;
};

} // namespace

class TestConcurrency : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    int m_users = 0;

    PgConnection &db() { return m_backend.database(); }

    int count(const QByteArray &sql, const PgParams &params = {}) { return db().exec(sql, params).value(0, 0).toInt(); }

    std::pair<QByteArray, QString> newUser(const QString &prefix)
    {
        const QString email = u"%1%2@example.nl"_s.arg(prefix).arg(++m_users);
        return {m_backend.createUser(email, prefix).toUtf8(), email};
    }

    QByteArray insert(const QByteArray &sql, const PgParams &params) { return db().exec(sql, params).value(0, 0); }

private slots:
    void initTestCase() { QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog())); }

    void invoiceNumbersAreConsecutiveUnderLoad()
    {
        const QByteArray busy = newUser(u"busy"_s).first;
        const QByteArray other = newUser(u"other"_s).first;
        const QByteArray busyToken = m_backend.tokenFor(QString::fromLatin1(busy));
        const QByteArray otherToken = m_backend.tokenFor(QString::fromLatin1(other));

        // The second user's calls are interleaved with the first user's, all in flight together.
        Flights flights(m_backend);
        QList<int> busyCalls;
        QList<int> otherCalls;
        for (int i = 0; i < 20; ++i) {
            busyCalls.append(flights.start("POST", "rpc/next_invoice_number", busyToken, "{}"));
            if (i % 4 == 0) {
                otherCalls.append(flights.start("POST", "rpc/next_invoice_number", otherToken, "{}"));
            }
        }
        QVERIFY(flights.waitForAll());

        const QString year = QString::number(QDateTime::currentDateTimeUtc().date().year());
        auto numbers = [&](const QList<int> &calls) {
            QStringList found;
            for (int call : calls) {
                const HttpResult &result = flights.result(call);
                found.append(result.status == 200 ? QString::fromUtf8(result.body) : u"HTTP %1"_s.arg(result.status));
            }
            found.sort();
            return found;
        };
        auto expected = [&](int n) {
            QStringList list;
            for (int i = 1; i <= n; ++i) {
                list.append(u"\"%1-%2\""_s.arg(year).arg(i, 4, 10, QLatin1Char('0')));
            }
            return list;
        };
        QCOMPARE(numbers(busyCalls), expected(20));
        QCOMPARE(numbers(otherCalls), expected(5));
        QCOMPARE(db().exec("SELECT last_value FROM app.invoice_counters WHERE user_id = $1", {busy}).value(0, 0), "20");
    }

    void oneLiveLinkPerEntryUnderRace()
    {
        const QByteArray user = newUser(u"biller"_s).first;
        const QByteArray token = m_backend.tokenFor(QString::fromLatin1(user));
        const QByteArray project =
            insert("INSERT INTO projects (user_id, name) VALUES ($1, 'Race') RETURNING id", {user});
        const QByteArray task = insert(
            "INSERT INTO tasks (user_id, project_id, title) VALUES ($1, $2, 'Race') RETURNING id", {user, project});
        QList<QByteArray> invoices;
        for (const QByteArray &number : {QByteArray("R-1"), QByteArray("R-2")}) {
            invoices.append(insert("INSERT INTO invoices (user_id, number, issued_at, currency)"
                                   " VALUES ($1, $2, '2025-06-01', 'EUR') RETURNING id",
                                   {user, number}));
        }
        QList<QByteArray> entries;
        for (int i = 0; i < 10; ++i) {
            entries.append(
                insert("INSERT INTO time_entries (user_id, task_id, project_id, started_at, ended_at,"
                       " duration_seconds) VALUES ($1, $2, $3, '2025-06-01T08:00:00Z'::timestamptz + $4 * "
                       "interval '1 hour', '2025-06-01T09:00:00Z'::timestamptz + $4 * interval '1 hour', 3600)"
                       " RETURNING id",
                       {user, task, project, QByteArray::number(i)}));
        }

        // Both links of every entry are in flight before any answer is read.
        Flights flights(m_backend);
        QList<std::pair<int, int>> races;
        for (const QByteArray &entry : std::as_const(entries)) {
            auto link = [&](const QByteArray &invoice) {
                return flights.start("POST", "invoice_entries", token,
                                     compact({{u"invoice_id"_s, QString::fromLatin1(invoice)},
                                              {u"time_entry_id"_s, QString::fromLatin1(entry)}}));
            };
            const int first = link(invoices[0]);
            races.append({first, link(invoices[1])});
        }
        QVERIFY(flights.waitForAll());

        for (qsizetype i = 0; i < entries.size(); ++i) {
            const auto [first, second] = races[i];
            const HttpResult &a = flights.result(first);
            const HttpResult &b = flights.result(second);
            QList<int> statuses{a.status, b.status};
            std::sort(statuses.begin(), statuses.end());
            QCOMPARE(statuses, (QList<int>{201, 409}));
            const HttpResult &loser = a.status == 409 ? a : b;
            QCOMPARE(loser.code(), u"23505"_s);

            const PgResult links =
                db().exec("SELECT invoice_id FROM invoice_entries WHERE time_entry_id = $1 AND live", {entries[i]});
            QCOMPARE(links.rows(), 1);
            QCOMPARE(links.value(0, 0), invoices[a.status == 201 ? 0 : 1]);
        }
    }

    void lastPlaceInTeamGoesToOneInvitee()
    {
        // A few rounds, since one round could be decided by arrival order alone.
        for (int round = 0; round < 3; ++round) {
            const QByteArray owner = newUser(u"owner"_s).first;
            const QByteArray ownerToken = m_backend.tokenFor(QString::fromLatin1(owner));
            const HttpResult created = m_backend.request("POST", "/rest/v1/teams", ownerToken, "{\"name\":\"Crowded\"}",
                                                         {{"Prefer", "return=representation"}});
            QCOMPARE(created.status, 201);
            const QByteArray team = created.json().array().first().toObject().value(u"id"_s).toString().toUtf8();
            for (int i = 0; i < 8; ++i) {
                const auto [member, email] = newUser(u"member"_s);
                db().exec("INSERT INTO team_members (team_id, user_id, email, role) VALUES ($1, $2, $3, 'viewer')",
                          {team, member, email.toUtf8()});
            }
            QCOMPARE(count("SELECT count(*) FROM team_members WHERE team_id = $1", {team}), 9);

            Flights flights(m_backend);
            QList<QByteArray> invitees;
            for (int i = 0; i < 4; ++i) {
                const auto [invitee, email] = newUser(u"hopeful"_s);
                invitees.append(invitee);
                flights.start("POST", "rpc/invite_team_member_by_email", ownerToken,
                              compact({{u"team_id_param"_s, QString::fromLatin1(team)},
                                       {u"invitee_email"_s, email},
                                       {u"member_role"_s, u"viewer"_s}}));
            }
            QVERIFY(flights.waitForAll());

            QList<QByteArray> admitted;
            int full = 0;
            for (int i = 0; i < flights.size(); ++i) {
                const HttpResult &result = flights.result(i);
                if (result.status == 200) {
                    QCOMPARE(result.json().object().value(u"status"_s).toString(), u"invited"_s);
                    admitted.append(invitees[i]);
                } else {
                    QCOMPARE(result.status, 400);
                    QCOMPARE(result.code(), u"23514"_s);
                    ++full;
                }
            }
            QCOMPARE(admitted.size(), 1);
            QCOMPARE(full, 3);
            QCOMPARE(count("SELECT count(*) FROM team_members WHERE team_id = $1", {team}), 10);
            QCOMPARE(
                count("SELECT count(*) FROM team_members WHERE team_id = $1 AND user_id = $2", {team, admitted[0]}), 1);
        }
    }

    void requestWaitingOnTheDatabaseHoldsUpNoOther()
    {
        const QByteArray user = newUser(u"patient"_s).first;
        const QByteArray token = m_backend.tokenFor(QString::fromLatin1(user));
        const QByteArray locked = insert(
            "INSERT INTO projects (user_id, name, description) VALUES ($1, 'Locked', 'before') RETURNING id", {user});
        const QByteArray free = insert(
            "INSERT INTO projects (user_id, name, description) VALUES ($1, 'Free', 'before') RETURNING id", {user});

        // Another session holds the row the slow request needs, as a long transaction elsewhere would.
        const QByteArray conninfo = "host='" + m_backend.dataDir().toUtf8() + "/postgres' dbname=morvane user=morvane";
        const std::unique_ptr<PgConnection> holder = PgConnection::open(conninfo);
        holder->execScript("BEGIN");
        holder->exec("SELECT 1 FROM projects WHERE id = $1 FOR UPDATE", {locked});
        const auto release = qScopeGuard([&] {
            if (holder->inTransaction()) {
                holder->execScript("ROLLBACK");
            }
        });

        Flights flights(m_backend);
        const QList<std::pair<QByteArray, QByteArray>> represent{{"Prefer", "return=representation"}};
        const int slow =
            flights.start("PATCH", "projects?id=eq." + locked, token, "{\"description\":\"after\"}", represent);
        auto waitingOnLock = [&] {
            return count("SELECT count(*) FROM pg_stat_activity WHERE wait_event_type = 'Lock'"
                         " AND query LIKE '%UPDATE%projects%'");
        };
        QTRY_COMPARE_WITH_TIMEOUT(waitingOnLock(), 1, 30000);

        // More requests than the server has worker threads to spare, reads and a write of another row.
        QList<int> quick;
        for (const QByteArray &target :
             {QByteArray("projects?select=id"), QByteArray("tasks?select=id"), QByteArray("profiles?select=id"),
              QByteArray("clients?select=id"), QByteArray("invoices?select=id"), QByteArray("time_entries?select=id"),
              QByteArray("teams?select=id"), QByteArray("trips?select=id"),
              QByteArray("unbilled_time_entries?select=id")}) {
            quick.append(flights.start("GET", target, token));
        }
        quick.append(flights.start("PATCH", "projects?id=eq." + free, token, "{\"description\":\"after\"}", represent));
        QVERIFY(flights.waitFor(quick));

        QVERIFY(!flights.isFinished(slow));
        QCOMPARE(waitingOnLock(), 1);
        for (int request : std::as_const(quick)) {
            QVERIFY2(flights.result(request).status == 200, flights.result(request).body.constData());
            QVERIFY(flights.position(request) < quick.size());
        }
        // The readers saw the row as it was: the waiting write is not half done.
        QCOMPARE(flights.result(quick[0]).json().array().size(), 2);
        QCOMPARE(db().exec("SELECT description FROM projects WHERE id = $1", {locked}).value(0, 0), "before");
        QCOMPARE(db().exec("SELECT description FROM projects WHERE id = $1", {free}).value(0, 0), "after");

        holder->execScript("COMMIT");
        QVERIFY(flights.waitFor({slow}));
        QCOMPARE(flights.result(slow).status, 200);
        QCOMPARE(flights.result(slow).json().array().size(), 1);
        QCOMPARE(flights.position(slow), quick.size());
        QCOMPARE(db().exec("SELECT description FROM projects WHERE id = $1", {locked}).value(0, 0), "after");
    }
};

QTEST_GUILESS_MAIN(TestConcurrency)
#include "tst_concurrency.moc"
