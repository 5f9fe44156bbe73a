#include "pg/pgconnection.h"
#include "support/testbackend.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

using Headers = QList<std::pair<QByteArray, QByteArray>>;

namespace {

const QByteArray project = "00000000-0000-4000-8000-00000000000a";
const Headers represent{{"Prefer", "return=representation"}};

// JSON written with ' for ", as in the tables below.
QByteArray json(const char *text)
{
    return QByteArray(text).replace('\'', '"');
}

} // namespace

class TestRestWrite : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    QString m_anna;
    QByteArray m_token;

    HttpResult send(const QByteArray &method, const QByteArray &target, const QByteArray &body = {},
                    const Headers &headers = {})
    {
        return m_backend.request(method, "/rest/v1/" + target, m_token, body, headers);
    }

    int countRows(const QByteArray &sql) { return m_backend.database().exec(sql).value(0, 0).toInt(); }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_anna = m_backend.createUser(u"anna@example.nl"_s, u"Anna"_s);
        m_token = m_backend.tokenFor(m_anna);
        PgConnection &db = m_backend.database();
        db.exec("INSERT INTO projects (id, user_id, name) VALUES ($1, $2, 'Site')", {project, m_anna.toUtf8()});
        db.execScript(R"SQL(
            CREATE FUNCTION public.test_numbers(n int) RETURNS SETOF int LANGUAGE sql STABLE
                AS 'SELECT generate_series(1, n)';
            CREATE FUNCTION public.test_pairs(n int, label text DEFAULT 'x') RETURNS TABLE (x int, y text)
                LANGUAGE sql STABLE AS 'SELECT i, label || i FROM generate_series(1, n) i';
            CREATE FUNCTION public.test_project(p uuid) RETURNS public.projects LANGUAGE sql STABLE
                AS 'SELECT * FROM public.projects WHERE id = p';
            CREATE FUNCTION public.test_echo(json) RETURNS json LANGUAGE sql IMMUTABLE AS 'SELECT $1';
            CREATE FUNCTION public.test_fail(code text) RETURNS void LANGUAGE plpgsql AS $$
            BEGIN
                RAISE EXCEPTION 'test failure %', code USING ERRCODE = code, DETAIL = 'some detail', HINT = 'a hint';
            END $$;
            GRANT EXECUTE ON FUNCTION public.test_numbers, public.test_pairs, public.test_project, public.test_echo,
                public.test_fail TO authenticated;
            CREATE TABLE public.messages (id int);
            NOTIFY pgrst, 'reload schema';
        )SQL");
        QTRY_COMPARE_WITH_TIMEOUT(send("POST", "rpc/test_numbers", "{\"n\":1}").status, 200, 10000);
    }

    void insertReturnsWhatWasAskedFor_data()
    {
        QTest::addColumn<Headers>("headers");
        QTest::addColumn<bool>("hasBody");
        QTest::addColumn<bool>("hasLocation");
        QTest::newRow("minimal by default") << Headers{} << false << false;
        QTest::newRow("representation") << represent << true << false;
        QTest::newRow("headers only") << Headers{{"Prefer", "return=headers-only"}} << false << true;
    }

    void insertReturnsWhatWasAskedFor()
    {
        QFETCH(Headers, headers);
        QFETCH(bool, hasBody);
        QFETCH(bool, hasLocation);
        const QByteArray title = QTest::currentDataTag();
        const HttpResult result =
            send("POST", "tasks", "{\"project_id\":\"" + project + "\",\"title\":\"" + title + "\"}", headers);
        QCOMPARE(result.status, 201);
        QCOMPARE(!result.body.isEmpty(), hasBody);
        if (hasBody) {
            QCOMPARE(result.json()[0][u"status"_s].toString(), u"not_started"_s); // the table's default
        }
        QCOMPARE(result.header("Location").startsWith("/tasks?id=eq."), hasLocation);
        QCOMPARE(countRows("SELECT count(*) FROM tasks WHERE title = '" + title + "'"), 1);
    }

    void bulkInserts_data()
    {
        QTest::addColumn<QByteArray>("target");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QByteArray>("prefer");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("code");
        // The rows written, "name/archived" or "name/status" each; empty when refused.
        QTest::addColumn<QString>("written");

        struct Insert
        {
            const char *name, *target, *body, *prefer;
            int status;
            const char *code, *written;
        };
        // clang-format off
        const Insert rows[]{
            {"same keys", "clients", "[{'name':'B1','archived':true},{'name':'B2','archived':false}]", "", 201, "",
             "B1/true B2/false"},
            {"keys differ", "clients", "[{'name':'B3'},{'name':'B4','archived':true}]", "", 400, "PGRST102", ""},
            {"columns pick keys, missing ones are null", "clients?columns=name,notes",
             "[{'name':'B5','phone':'1'},{'name':'B6','notes':'n'}]", "", 201, "", "B5/false B6/false"},
            {"missing=default fills defaults", "projects?columns=name,status",
             "[{'name':'P1','status':'completed'},{'name':'P2'}]", ",missing=default", 201, "", "P1/completed P2/active"},
            {"unknown column", "clients", "{'name':'B7','colour':'red'}", "", 400, "PGRST204", ""},
            {"not JSON", "clients", "{name:", "", 400, "PGRST102", ""},
            {"empty array inserts nothing", "clients", "[]", "", 201, "", ""},
        };
        // clang-format on
        for (const Insert &r : rows) {
            QTest::newRow(r.name) << QByteArray(r.target) << json(r.body) << QByteArray(r.prefer) << r.status
                                  << QString::fromLatin1(r.code) << QString::fromLatin1(r.written);
        }
    }

    void bulkInserts()
    {
        QFETCH(QByteArray, target);
        QFETCH(QByteArray, body);
        QFETCH(QByteArray, prefer);
        QFETCH(QString, code);
        QFETCH(QString, written);
        const QByteArray counts = "SELECT (SELECT count(*) FROM clients) + (SELECT count(*) FROM projects)";
        const int before = countRows(counts);
        const HttpResult result = send("POST", target, body, {{"Prefer", "return=representation" + prefer}});
        QTEST(result.status, "status");
        QCOMPARE(result.code(), code);
        QStringList rows;
        const QString second = target.startsWith("projects") ? u"status"_s : u"archived"_s;
        for (const QJsonValue &row : result.json().array()) {
            rows.append(row[u"name"_s].toString() + u'/' + row[second].toVariant().toString());
            QCOMPARE(row[u"user_id"_s].toString(), m_anna);
        }
        QCOMPARE(rows.join(u' '), written);
        QCOMPARE(countRows(counts), before + int(rows.size()));
    }

    void upserts()
    {
        const QByteArray id = "00000000-0000-4000-8000-0000000000f1";
        QCOMPARE(send("POST", "clients", "{\"id\":\"" + id + "\",\"name\":\"First\"}").status, 201);
        const QByteArray again = json("[{'id':'ID','name':'Second'},{'id':'00000000-0000-4000-8000-0000000000f2',"
                                      "'name':'Other'}]")
                                     .replace("ID", id);

        HttpResult result =
            send("POST", "clients", again, {{"Prefer", "return=representation,resolution=ignore-duplicates"}});
        QCOMPARE(result.status, 201);
        QCOMPARE(jsonColumn(result.json().array(), u"name"_s), QStringList{u"Other"_s});
        QCOMPARE(result.header("Preference-Applied"), "return=representation, resolution=ignore-duplicates");

        result = send("POST", "clients", again, {{"Prefer", "return=representation, resolution=merge-duplicates"}});
        QCOMPARE(result.status, 201);
        QCOMPARE(jsonColumn(result.json().array(), u"name"_s), (QStringList{u"Second"_s, u"Other"_s}));

        // Without a resolution a duplicate is an error.
        result = send("POST", "clients", again);
        QCOMPARE(result.status, 409);
        QCOMPARE(result.code(), u"23505"_s);

        // on_conflict names another unique key.
        const QByteArray invoice = json("{'user_id':'USER','number':'2025-0001','issued_at':'2025-03-01',"
                                        "'currency':'EUR','subtotal':10,'vat_amount':2.1,'total':TOTAL}")
                                       .replace("USER", m_anna.toUtf8());
        QCOMPARE(send("POST", "invoices", QByteArray(invoice).replace("TOTAL", "12.1")).status, 201);
        result = send("POST", "invoices?on_conflict=user_id,number", QByteArray(invoice).replace("TOTAL", "24.2"),
                      {{"Prefer", "return=representation,resolution=merge-duplicates"}});
        QCOMPARE(result.status, 201);
        QCOMPARE(result.json().array().first().toObject().value(u"total"_s).toDouble(), 24.2);
        QCOMPARE(countRows("SELECT count(*) FROM invoices"), 1);
    }

    void updatesAndDeletes()
    {
        m_backend.database().exec(
            "INSERT INTO clients (user_id, name, notes) SELECT $1, 'U' || i, 'batch' FROM generate_series(1, 5) i",
            {m_anna.toUtf8()});
        HttpResult result = send("PATCH", "clients?notes=eq.batch&name=in.(U1,U2)", "{\"phone\":\"030\"}",
                                 {{"Prefer", "return=representation,count=exact"}});
        QCOMPARE(result.status, 200);
        QCOMPARE(jsonColumn(result.json().array(), u"phone"_s), (QStringList{u"030"_s, u"030"_s}));
        QCOMPARE(result.header("Content-Range"), "*/2");

        QCOMPARE(send("PATCH", "clients?notes=eq.batch", "{\"notes\":\"seen\"}").status, 204);
        QCOMPARE(countRows("SELECT count(*) FROM clients WHERE notes = 'seen'"), 5);

        // A limit with an order changes only the first rows.
        result = send("PATCH", "clients?notes=eq.seen&order=name.desc&limit=2", "{\"notes\":\"last two\"}", represent);
        QStringList changed = jsonColumn(result.json().array(), u"name"_s);
        changed.sort();
        QCOMPARE(changed, (QStringList{u"U4"_s, u"U5"_s}));

        QCOMPARE(send("PATCH", "clients?notes=eq.seen", "{\"shoe_size\":44}").code(), u"PGRST204"_s);

        result = send("DELETE", "clients?notes=eq.last two", {}, represent);
        QCOMPARE(result.status, 200);
        QCOMPARE(result.json().array().size(), 2);
        QCOMPARE(send("DELETE", "clients?notes=eq.seen").status, 204);
        QCOMPARE(countRows("SELECT count(*) FROM clients WHERE name LIKE 'U_'"), 0);
    }

    void singleObjectAndEmbedsInWrites()
    {
        const Headers object{{"Accept", "application/vnd.pgrst.object+json"}, represent.first()};
        HttpResult result = send("POST", "clients", "[{\"name\":\"S1\"},{\"name\":\"S2\"}]", object);
        QCOMPARE(result.status, 406);
        QCOMPARE(result.code(), u"PGRST116"_s);
        QCOMPARE(countRows("SELECT count(*) FROM clients WHERE name IN ('S1', 'S2')"), 0);

        result = send("POST", "clients", "{\"name\":\"S3\"}", object);
        QCOMPARE(result.status, 201);
        QCOMPARE(result.json().object().value(u"name"_s).toString(), u"S3"_s);

        result = send("POST", "tasks?select=title,project:projects(name)",
                      "{\"project_id\":\"" + project + "\",\"title\":\"Embedded\"}", represent);
        QCOMPARE(result.status, 201);
        QCOMPARE(result.json()[0][u"project"_s][u"name"_s].toString(), u"Site"_s);
    }

    void answers_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QByteArray>("target");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("status");
        // The whole answer as JSON; "~text" for an answer that holds the text, "^text" for one that starts with it;
        // "!code" for an error body with that code.
        QTest::addColumn<QByteArray>("answer");

        struct Request
        {
            const char *name, *method, *target, *body;
            int status;
            QByteArray answer;
        };
        // clang-format off
        const Request rows[]{
            {"set of scalars", "POST", "rpc/test_numbers", "{'n':3}", 200, "[1,2,3]"},
            {"set of scalars by GET", "GET", "rpc/test_numbers?n=2", "", 200, "[1,2]"},
            {"table rows, default argument", "POST", "rpc/test_pairs", "{'n':2}", 200,
             json("[{'x':1,'y':'x1'},{'x':2,'y':'x2'}]")},
            {"composite is an object", "POST", "rpc/test_project", "{'p':'00000000-0000-4000-8000-00000000000a'}", 200,
             "^{\"id\":\"00000000-0000-4000-8000-00000000000a\""},
            {"no row is null", "POST", "rpc/test_project", "{'p':'00000000-0000-4000-8000-000000000000'}", 200, "null"},
            {"one unnamed json argument takes the body", "POST", "rpc/test_echo", "{'any':[1,{'b':null}]}", 200,
             json("{'any':[1,{'b':null}]}")},
            {"unknown function", "POST", "rpc/test_nothing", "{'b':1,'a':2}", 404,
             "~Could not find the function public.test_nothing(a, b) in the schema cache"},
            {"unknown argument", "POST", "rpc/test_numbers", "{'n':1,'m':2}", 404, "!PGRST202"},
            {"GET of a volatile function", "GET", "rpc/test_fail?code=P0001", "", 405, "!PGRST101"},
            {"raised exception", "POST", "rpc/test_fail", "{'code':'P0001'}", 400,
             json("{'code':'P0001','details':'some detail','hint':'a hint','message':'test failure P0001'}")},
            {"status chosen by the procedure", "POST", "rpc/test_fail", "{'code':'PT402'}", 402, "!PT402"},
            // As the service role, which row security does not stop before the key is checked. How row
            // security and privileges answer is tst_security's.
            {"foreign key", "POST", "tasks", "{'user_id':'USER','project_id':'00000000-0000-4000-8000-000000000000','title':'x'}",
             409, "!23503"},
            {"check constraint", "POST", "projects", "{'name':'x','status':'paused'}", 400, "!23514"},
            {"bad uuid", "GET", "tasks?id=eq.not-a-uuid", "", 400, "!22P02"},
            {"signed in but not granted", "GET", "messages", "", 403, "!42501"},
            {"unknown table", "GET", "nothing", "", 404, "!PGRST205"},
            {"PUT is not offered", "PUT", "tasks", "{}", 405, "!PGRST117"},
        };
        // clang-format on
        for (const Request &r : rows) {
            QTest::newRow(r.name) << QByteArray(r.method) << QByteArray(r.target) << json(r.body) << r.status
                                  << r.answer;
        }
    }

    void answers()
    {
        QFETCH(QByteArray, method);
        QFETCH(QByteArray, target);
        QFETCH(QByteArray, body);
        QFETCH(QByteArray, answer);
        const bool asService = body.contains("USER");
        body.replace("USER", m_anna.toUtf8());
        const HttpResult result =
            m_backend.request(method, "/rest/v1/" + target, asService ? m_backend.serviceToken() : m_token, body);
        QTEST(result.status, "status");
        if (answer.startsWith('^')) {
            QVERIFY2(result.body.startsWith(answer.mid(1)), result.body.constData());
        } else if (answer.startsWith('~')) {
            QVERIFY2(result.body.contains(answer.mid(1)), result.body.constData());
        } else if (answer.startsWith('!')) {
            QCOMPARE(result.code(), QString::fromLatin1(answer.mid(1)));
            const QJsonObject error = result.json().object();
            QCOMPARE(error.keys(), (QStringList{u"code"_s, u"details"_s, u"hint"_s, u"message"_s}));
            QVERIFY(!error.value(u"message"_s).toString().isEmpty());
        } else {
            QCOMPARE(QJsonDocument::fromJson("[" + result.body + "]"), QJsonDocument::fromJson("[" + answer + "]"));
        }
    }
};

QTEST_GUILESS_MAIN(TestRestWrite)
#include "tst_restwrite.moc"