#include "pg/pgconnection.h"
#include "support/testbackend.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QScopeGuard>
#include <QTest>

#include <memory>
#include <numeric>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

// Requests sent all at once, each on a connection of its own so that none waits behind another
// in the client.
class Flights
{
public:
    explicit Flights(const TestBackend &backend)
        : m_backend(backend)
    {}

    int start(const QByteArray &method, const QByteArray &target, const QByteArray &token, const QByteArray &body = {})
    {
        QNetworkRequest request(QUrl::fromEncoded(m_backend.url().toEncoded() + "/rest/v1/" + target));
        request.setRawHeader("Content-Type", "application/json");
        request.setRawHeader("apikey", m_backend.anonKey());
        request.setRawHeader("Authorization", "Bearer " + token);
        if (method == "PATCH") {
            request.setRawHeader("Prefer", "return=representation");
        }
        auto &manager = m_managers.emplace_back(std::make_unique<QNetworkAccessManager>());
        QNetworkReply *reply =
            method == "GET" ? manager->get(request) : manager->sendCustomRequest(request, method, body);
        m_replies.append(reply);
        return int(m_replies.size()) - 1;
    }

    // False if any of `which` (by default all) hangs.
    bool waitFor(QList<int> which = {})
    {
        if (which.isEmpty()) {
            which.resize(size());
            std::iota(which.begin(), which.end(), 0);
        }
        return QTest::qWaitFor(
            [&] { return std::all_of(which.cbegin(), which.cend(), [&](int i) { return isFinished(i); }); }, 60000);
    }

    [[nodiscard]] bool isFinished(int index) const { return m_replies[index]->isFinished(); }
    [[nodiscard]] int size() const { return int(m_replies.size()); }

    [[nodiscard]] HttpResult result(int index) const
    {
        QNetworkReply *reply = m_replies[index];
        HttpResult result;
        result.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        result.body = reply->peek(reply->bytesAvailable());
        return result;
    }

private:
    const TestBackend &m_backend;
    std::vector<std::unique_ptr<QNetworkAccessManager>> m_managers;
    QList<QNetworkReply *> m_replies;
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

    QByteArray tokenOf(const QByteArray &user) const { return m_backend.tokenFor(QString::fromLatin1(user)); }

    QByteArray insert(const QByteArray &sql, const PgParams &params) { return db().exec(sql, params).value(0, 0); }

private slots:
    void initTestCase() { QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog())); }

    // That each user counts on their own is tst_security's; here, that no number is handed out twice.
    void invoiceNumbersAreConsecutiveUnderLoad()
    {
        const QByteArray user = newUser(u"busy"_s).first;
        Flights flights(m_backend);
        for (int i = 0; i < 20; ++i) {
            flights.start("POST", "rpc/next_invoice_number", tokenOf(user), "{}");
        }
        QVERIFY(flights.waitFor());

        const QString year = QString::number(QDateTime::currentDateTimeUtc().date().year());
        QStringList numbers;
        QStringList expected;
        for (int i = 0; i < flights.size(); ++i) {
            const HttpResult result = flights.result(i);
            numbers.append(result.status == 200 ? QString::fromUtf8(result.body) : u"HTTP %1"_s.arg(result.status));
            expected.append(u"\"%1-%2\""_s.arg(year).arg(i + 1, 4, 10, QLatin1Char('0')));
        }
        numbers.sort();
        QCOMPARE(numbers, expected);
    }

    // What a full team answers one invitee at a time is tst_teams'; here, that racing invitations
    // cannot push a team past its ten members, nor can anyone by writing the table directly.
    void lastPlaceInTeamGoesToOneInvitee()
    {
        // A few rounds, since one round could be decided by arrival order alone.
        for (int round = 0; round < 3; ++round) {
            const QByteArray owner = newUser(u"owner"_s).first;
            // The owner joins as the first member.
            const QByteArray team = insert("INSERT INTO teams (owner_id, name) VALUES ($1, 'Crowded') RETURNING id", {owner});
            for (int i = 0; i < 8; ++i) {
                const auto [member, email] = newUser(u"member"_s);
                db().exec("INSERT INTO team_members (team_id, user_id, email, role) VALUES ($1, $2, $3, 'viewer')",
                          {team, member, email.toUtf8()});
            }
            auto members = [&] { return count("SELECT count(*) FROM team_members WHERE team_id = $1", {team}); };
            QCOMPARE(members(), 9);

            Flights flights(m_backend);
            QList<QByteArray> invitees;
            for (int i = 0; i < 4; ++i) {
                const auto [invitee, email] = newUser(u"hopeful"_s);
                invitees.append(invitee);
                flights.start("POST", "rpc/invite_team_member_by_email", tokenOf(owner),
                              compact({{u"team_id_param"_s, QString::fromLatin1(team)},
                                       {u"invitee_email"_s, email},
                                       {u"member_role"_s, u"viewer"_s}}));
            }
            QVERIFY(flights.waitFor());

            QList<QByteArray> admitted;
            for (int i = 0; i < flights.size(); ++i) {
                const HttpResult result = flights.result(i);
                if (result.status == 200) {
                    QCOMPARE(result.json().object().value(u"status"_s).toString(), u"invited"_s);
                    admitted.append(invitees[i]);
                } else {
                    QCOMPARE(result.status, 400);
                    QCOMPARE(result.code(), u"23514"_s);
                }
            }
            QCOMPARE(admitted.size(), 1);
            QCOMPARE(members(), 10);
            QCOMPARE(
                count("SELECT count(*) FROM team_members WHERE team_id = $1 AND user_id = $2", {team, admitted[0]}), 1);

            // The limit is the table's, not just the procedure's: even the database's owner cannot go past it.
            QByteArray state;
            try {
                db().exec("INSERT INTO team_members (team_id, user_id, email, role) VALUES ($1, $2, 'x', 'viewer')",
                          {team, newUser(u"late"_s).first});
            } catch (const PgException &error) {
                state = error.error().sqlstate;
            }
            QCOMPARE(state, QByteArray("23514"));
            QCOMPARE(members(), 10);
        }
    }

    void requestWaitingOnTheDatabaseHoldsUpNoOther()
    {
        const QByteArray user = newUser(u"patient"_s).first;
        const QByteArray token = tokenOf(user);
        const QByteArray locked = insert(
            "INSERT INTO projects (user_id, name, description) VALUES ($1, 'Locked', 'before') RETURNING id", {user});
        const QByteArray free = insert(
            "INSERT INTO projects (user_id, name, description) VALUES ($1, 'Free', 'before') RETURNING id", {user});
        auto description = [&](const QByteArray &project) {
            return db().exec("SELECT description FROM projects WHERE id = $1", {project}).value(0, 0);
        };

        // Another session holds the row the slow request needs, as a long transaction elsewhere would.
        const std::unique_ptr<PgConnection> holder =
            PgConnection::open("host='" + m_backend.dataDir().toUtf8() + "/postgres' dbname=morvane user=morvane");
        holder->execScript("BEGIN");
        holder->exec("SELECT 1 FROM projects WHERE id = $1 FOR UPDATE", {locked});
        const auto release = qScopeGuard([&] {
            if (holder->inTransaction()) {
                holder->execScript("ROLLBACK");
            }
        });

        Flights flights(m_backend);
        const int slow = flights.start("PATCH", "projects?id=eq." + locked, token, "{\"description\":\"after\"}");
        auto waitingOnLock = [&] {
            return count("SELECT count(*) FROM pg_stat_activity WHERE wait_event_type = 'Lock'"
                         " AND query LIKE '%UPDATE%projects%'");
        };
        QTRY_COMPARE_WITH_TIMEOUT(waitingOnLock(), 1, 30000);

        // More requests than the server has worker threads to spare, reads and a write of another row.
        QList<int> quick;
        for (const char *table : {"projects", "tasks", "profiles", "clients", "invoices", "time_entries", "teams",
                                  "trips", "unbilled_time_entries"}) {
            quick.append(flights.start("GET", table + QByteArray("?select=id"), token));
        }
        quick.append(flights.start("PATCH", "projects?id=eq." + free, token, "{\"description\":\"after\"}"));
        QVERIFY(flights.waitFor(quick));

        QVERIFY(!flights.isFinished(slow));
        QCOMPARE(waitingOnLock(), 1);
        for (int request : std::as_const(quick)) {
            QCOMPARE(flights.result(request).status, 200);
        }
        // The readers saw the row as it was: the waiting write is not half done.
        QCOMPARE(flights.result(quick[0]).json().array().size(), 2);
        QCOMPARE(description(locked), "before");
        QCOMPARE(description(free), "after");

        holder->execScript("COMMIT");
        QVERIFY(flights.waitFor({slow}));
        QCOMPARE(flights.result(slow).status, 200);
        QCOMPARE(flights.result(slow).json().array().size(), 1);
        QCOMPARE(description(locked), "after");
    }
};

QTEST_GUILESS_MAIN(TestConcurrency)
#include "tst_concurrency.moc"