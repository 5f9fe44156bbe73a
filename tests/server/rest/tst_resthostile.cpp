#include "pg/pgconnection.h"
#include "support/testbackend.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

// Requests built to break the query translator or reach around it. Each must be answered with a
// clear client error, and none may change anything.
class TestRestHostile : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    QByteArray m_token;

    // Everything a successful attack could touch, in one string.
    QByteArray fingerprint()
    {
        return m_backend.database()
            .exec("SELECT (SELECT count(*) FROM pg_class) || '/' || (SELECT count(*) FROM tasks) || '/' ||"
                  " (SELECT string_agg(title || status, ',' ORDER BY id) FROM tasks) || '/' ||"
                  " (SELECT count(*) FROM pg_roles WHERE rolsuper)")
            .value(0, 0);
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        const QString user = m_backend.createUser(u"mallory@example.nl"_s);
        m_token = m_backend.tokenFor(user);
        m_backend.database().exec("INSERT INTO projects (id, user_id, name) VALUES "
                                  "('00000000-0000-4000-8000-0000000000a1', $1, 'Canary')",
                                  {user.toUtf8()});
        m_backend.database().exec("INSERT INTO tasks (user_id, project_id, title) VALUES "
                                  "($1, '00000000-0000-4000-8000-0000000000a1', 'canary task')",
                                  {user.toUtf8()});
    }

    void refusedClearly_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QByteArray>("target");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("status");

        struct Row
        {
            const char *name;
            QByteArray method;
            QByteArray target;
            QByteArray body;
            int status;
        };
        // clang-format off
        const Row rows[]{
            {"statement after select", "GET", "tasks?select=id;DROP%20TABLE%20tasks", {}, 400},
            {"quote breaking out of a name", "GET", "tasks?select=%22id%22%22;drop%20table%20tasks;--%22", {}, 400},
            {"unbalanced embed", "GET", "tasks?select=*,project:projects(name", {}, 400},
            {"cast carrying SQL", "GET", "tasks?select=id::text);drop%20table%20tasks;--", {}, 400},
            // A quoted cast may hold anything; only a type the catalog knows passes, and written quoted.
            {"quoted cast carrying keywords", "GET", "tasks?select=title::%22text%20from%20pg_authid%22", {}, 400},
            {"cast to no type at all", "GET", "tasks?select=title::nosuchtype", {}, 400},
            {"cast to a pseudo-type", "GET", "tasks?select=title::unknown", {}, 400},
            {"embedding nested beyond reason", "GET", "tasks?select=" + QByteArray("a(").repeated(5000) + "id", {}, 400},
            {"logic nested beyond reason", "GET",
             "tasks?or=(" + QByteArray("or(").repeated(3000) + "id.eq.1" + QByteArray(")").repeated(3001), {}, 400},
            {"statement in order", "GET", "tasks?order=id;delete%20from%20tasks", {}, 400},
            {"unknown order modifier", "GET", "tasks?order=id.sideways", {}, 400},
            {"SQL in a uuid value", "GET", "tasks?id=eq.1'%20OR%20'1'='1", {}, 400},
            {"unknown operator", "GET", "tasks?title=xx.1", {}, 400},
            {"empty logic tree", "GET", "tasks?or=()", {}, 400},
            {"logic tree with open quote", "GET", "tasks?or=(title.eq.%22open,id.eq.1)", {}, 400},
            {"in list, unterminated", "GET", "tasks?title=in.(a,%22b)", {}, 400},
            {"negative limit", "GET", "tasks?limit=-1", {}, 400},
            {"system catalog", "GET", "pg_authid", {}, 404},
            {"another schema", "GET", "auth.users", {}, 404},
            {"path climbing out", "GET", "../auth/users", {}, 404},
            {"columns carrying SQL", "POST", "tasks?columns=title%22);drop%20table%20tasks;--", "{}", 400},
            {"body key carrying SQL", "POST", "tasks", "{\"title\\\" ) ; drop table tasks; --\":1}", 400},
            {"procedure outside the schema", "POST", "rpc/pg_sleep", "{\"seconds\":5}", 404},
            {"invalid JSON", "POST", "tasks", "{\"title\":", 400},
            {"JSON nested beyond reason", "POST", "tasks", QByteArray(3000, '['), 400},
        };
        // clang-format on
        for (const Row &row : rows) {
            QTest::newRow(row.name) << row.method << QByteArray("/rest/v1/" + row.target) << row.body << row.status;
        }
    }

    void refusedClearly()
    {
        QFETCH(QByteArray, method);
        QFETCH(QByteArray, target);
        QFETCH(QByteArray, body);
        const QByteArray before = fingerprint();
        const HttpResult result = m_backend.request(method, target, m_token, body);
        QTEST(result.status, "status");
        QVERIFY(!result.code().isEmpty());
        QVERIFY(!result.json().object().value(u"message"_s).toString().isEmpty());
        QCOMPARE(fingerprint(), before);
    }

    void valuesNeverBecomeSql_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("quote and OR") << u"x' OR '1'='1"_s;
        QTest::newRow("statement after quote") << u"x'; DELETE FROM tasks; --"_s;
        QTest::newRow("dollar quoting") << u"$$; DROP TABLE tasks; $$"_s;
        QTest::newRow("null byte") << QString(QChar(0)) + u"x"_s;
    }

    void valuesNeverBecomeSql()
    {
        QFETCH(QString, value);
        const QByteArray before = fingerprint();
        for (const QString &filter : QStringList{u"eq."_s + value, u"like.*"_s + value, u"in.("_s + value + u')'}) {
            const HttpResult result = m_backend.request(
                "GET", "/rest/v1/tasks?" + queryString({{u"select"_s, u"title"_s}, {u"title"_s, filter}}), m_token);
            // Either nothing matches, or PostgreSQL refuses the text (a null byte): never a change.
            QVERIFY2(result.status == 200 || result.status == 400, result.body.constData());
            if (result.status == 200) {
                QCOMPARE(result.json().array().size(), 0);
            }
        }
        const HttpResult patch =
            m_backend.request("PATCH", "/rest/v1/tasks?" + queryString({{u"title"_s, u"eq."_s + value}}), m_token,
                              "{\"status\":\"completed\"}");
        QVERIFY(patch.status == 204 || patch.status == 400);
        QCOMPARE(fingerprint(), before);
    }

    void theServerKeepsServing()
    {
        const HttpResult result = m_backend.request(
            "GET", "/rest/v1/tasks?select=title::%22character%20varying%22,n:time_spent_seconds::float8", m_token);
        QCOMPARE(result.status, 200);
        QCOMPARE(result.json().array().first().toObject().value(u"title"_s).toString(), u"canary task"_s);
        QVERIFY(result.json().array().first().toObject().value(u"n"_s).isDouble());
    }

    // Whatever a statement tried, the connection it runs on can become the request roles and
    // nothing else: its login role owns nothing and is no superuser.
    void requestsRunAsARoleThatOwnsNothing()
    {
        PgConnection &owner = m_backend.database();
        owner.execScript("CREATE FUNCTION public.whoami() RETURNS text LANGUAGE sql AS 'SELECT session_user::text';"
                         "GRANT EXECUTE ON FUNCTION public.whoami() TO authenticated; NOTIFY pgrst, 'reload schema';");
        HttpResult answer;
        QTRY_COMPARE_WITH_TIMEOUT((answer = m_backend.request("POST", "/rest/v1/rpc/whoami", m_token, "{}")).status,
                                  200, 10000);
        QCOMPARE(answer.body, QByteArray("\"morvane_authenticator\""));

        const auto login = PgConnection::open("host='" + QFile::encodeName(m_backend.dataDir()) +
                                              "/postgres' dbname=morvane user=morvane_authenticator");
        QCOMPARE(login
                     ->exec("SELECT rolsuper::text || rolbypassrls::text || rolcreaterole::text FROM pg_roles"
                            " WHERE rolname = session_user")
                     .value(0, 0),
                 "falsefalsefalse");
        for (const char *role : {"morvane", "morvane_auth", "pg_read_server_files"}) {
            QVERIFY_THROWS_EXCEPTION(PgException, login->exec("SELECT set_config('role', $1, false)", {role}));
        }
        QCOMPARE(login->exec("SELECT set_config('role', 'authenticated', false)").value(0, 0), "authenticated");
    }
};

QTEST_GUILESS_MAIN(TestRestHostile)
#include "tst_resthostile.moc"
