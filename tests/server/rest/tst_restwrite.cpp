#include "pg/pgconnection.h"
#include "support/testbackend.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

using Headers = QList<std::pair<QByteArray, QByteArray>>;

namespace {

const QByteArray project = "00000000-0000-4000-8000-00000000000a";

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
            NOTIFY pgrst, 'reload schema';
        )SQL");
        QTRY_COMPARE_WITH_TIMEOUT(send("POST", "rpc/test_numbers", "{\"n\":1}").status, 200, 10000);
    }

    void insertReturnsWhatWasAskedFor_data()
    {
        QTest::addColumn<Headers>("headers");
        QTest::addColumn<int>("status");
        QTest::addColumn<bool>("hasBody");
        QTest::addColumn<bool>("hasLocation");
        QTest::newRow("minimal by default") << Headers{} << 201 << false << false;
        QTest::newRow("representation") << Headers{{"Prefer", "return=representation"}} << 201 << true << false;
        QTest::newRow("headers only") << Headers{{"Prefer", "return=headers-only"}} << 201 << false << true;
    }

    void insertReturnsWhatWasAskedFor()
    {
        QFETCH(Headers, headers);
        QFETCH(bool, hasBody);
        QFETCH(bool, hasLocation);
        const QByteArray title = QTest::currentDataTag();
        const HttpResult result = send("POST", "tasks",
                                       "{\"user_id\":\"" + m_anna.toUtf8() + "\",\"project_id\":\"" + project +
                                           "\",\"title\":\"" + title + "\"}",
                                       headers);
        QTEST(result.status, "status");
        QCOMPARE(!result.body.isEmpty(), hasBody);
        if (hasBody) {
            const QJsonObject row = result.json().array().first().toObject();
            QCOMPARE(row.value(u"title"_s).toString(), QString::fromLatin1(title));
            // Defaults of the table are in the answer.
            QCOMPARE(row.value(u"status"_s).toString(), u"not_started"_s);
            QCOMPARE(row.value(u"time_spent_seconds"_s).toInt(), 0);
        }
        QCOMPARE(result.header("Location").startsWith("/tasks?id=eq."), hasLocation);
        QCOMPARE(countRows("SELECT count(*) FROM tasks WHERE title = '" + title + "'"), 1);
    }

    void bulkInsertRules_data()
    {
        QTest::addColumn<QByteArray>("target");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<Headers>("headers");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QStringList>("statuses");

        const Headers represent{{"Prefer", "return=representation"}};
        QTest::newRow("same keys") << QByteArray("clients")
                                   << QByteArray(
                                          "[{\"name\":\"B1\",\"archived\":true},{\"name\":\"B2\",\"archived\":false}]")
                                   << represent << 201 << QString() << QStringList{u"B1"_s, u"B2"_s}
                                   << QStringList{u"true"_s, u"false"_s};
        QTest::newRow("keys differ") << QByteArray("clients")
                                     << QByteArray("[{\"name\":\"B3\"},{\"name\":\"B4\",\"archived\":true}]")
                                     << represent << 400 << u"PGRST102"_s << QStringList{} << QStringList{};
        QTest::newRow("columns pick keys, missing ones are null")
            << QByteArray("clients?columns=name,notes")
            << QByteArray("[{\"name\":\"B5\",\"phone\":\"1\"},{\"name\":\"B6\",\"notes\":\"n\"}]") << represent << 201
            << QString() << QStringList{u"B5"_s, u"B6"_s} << QStringList{u"false"_s, u"false"_s};
        QTest::newRow("missing=default fills defaults")
            << QByteArray("projects?columns=name,status")
            << QByteArray("[{\"name\":\"P1\",\"status\":\"completed\"},{\"name\":\"P2\"}]")
            << Headers{{"Prefer", "return=representation,missing=default"}} << 201 << QString()
            << QStringList{u"P1"_s, u"P2"_s} << QStringList{};
        QTest::newRow("unknown column") << QByteArray("clients") << QByteArray("{\"name\":\"B7\",\"colour\":\"red\"}")
                                        << represent << 400 << u"PGRST204"_s << QStringList{} << QStringList{};
        QTest::newRow("not JSON") << QByteArray("clients") << QByteArray("{name:") << represent << 400 << u"PGRST102"_s
                                  << QStringList{} << QStringList{};
        QTest::newRow("empty body") << QByteArray("clients") << QByteArray() << represent << 400 << u"PGRST102"_s
                                    << QStringList{} << QStringList{};
        QTest::newRow("array of scalars") << QByteArray("clients") << QByteArray("[1,2]") << represent << 400
                                          << u"PGRST102"_s << QStringList{} << QStringList{};
        QTest::newRow("empty array inserts nothing") << QByteArray("clients") << QByteArray("[]") << represent << 201
                                                     << QString() << QStringList{} << QStringList{};
    }

    void bulkInsertRules()
    {
        QFETCH(QByteArray, target);
        QFETCH(QByteArray, body);
        QFETCH(Headers, headers);
        QFETCH(QString, code);
        QFETCH(QStringList, names);
        QFETCH(QStringList, statuses);
        const int before = countRows("SELECT count(*) FROM clients") + countRows("SELECT count(*) FROM projects");
        const HttpResult result = send("POST", target, body, headers);
        QTEST(result.status, "status");
        if (!code.isEmpty()) {
            QCOMPARE(result.code(), code);
            QCOMPARE(countRows("SELECT count(*) FROM clients") + countRows("SELECT count(*) FROM projects"), before);
            return;
        }
        const QJsonArray rows = result.json().array();
        QCOMPARE(jsonColumn(rows, u"name"_s), names);
        if (!statuses.isEmpty()) {
            QCOMPARE(jsonColumn(rows, u"archived"_s), statuses);
        }
        if (target.startsWith("projects")) {
            QCOMPARE(jsonColumn(rows, u"status"_s), (QStringList{u"completed"_s, u"active"_s}));
            QCOMPARE(jsonColumn(rows, u"user_id"_s), (QStringList{m_anna, m_anna}));
        }
    }

    void upserts()
    {
        const QByteArray id = "00000000-0000-4000-8000-0000000000f1";
        QCOMPARE(send("POST", "clients", "{\"id\":\"" + id + "\",\"name\":\"First\"}").status, 201);
        const QByteArray again =
            "[{\"id\":\"" + id +
            "\",\"name\":\"Second\"},{\"id\":\"00000000-0000-4000-8000-0000000000f2\",\"name\":\"Other\"}]";

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
        QCOMPARE(m_backend.database()
                     .exec("SELECT count(*) FROM pg_indexes WHERE tablename = 'invoices' AND indexdef ILIKE "
                           "'%(user_id, number)%'")
                     .value(0, 0),
                 "1");
        const QByteArray invoice = "{\"number\":\"2025-0001\",\"issued_at\":\"2025-03-01\",\"currency\":\"EUR\","
                                   "\"subtotal\":10,\"vat_amount\":2.1,\"total\":12.1}";
        QCOMPARE(send("POST", "invoices", invoice).status, 201);
        result = send("POST", "invoices?on_conflict=user_id,number",
                      "{\"user_id\":\"" + m_anna.toUtf8() +
                          "\",\"number\":\"2025-0001\",\"issued_at\":\"2025-03-01\",\"currency\":\"EUR\",\"subtotal\":"
                          "20,\"vat_amount\":4.2,\"total\":24.2}",
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

        // A filter that matches nothing is not an error.
        result = send("PATCH", "clients?name=eq.nobody", "{\"phone\":\"1\"}", {{"Prefer", "return=representation"}});
        QCOMPARE(result.status, 200);
        QCOMPARE(result.json().array().size(), 0);

        result = send("PATCH", "clients?notes=eq.batch", "{\"notes\":\"seen\"}");
        QCOMPARE(result.status, 204);
        QCOMPARE(countRows("SELECT count(*) FROM clients WHERE notes = 'seen'"), 5);

        // A limit with an order changes only the first rows.
        result = send("PATCH", "clients?notes=eq.seen&order=name.desc&limit=2", "{\"notes\":\"last two\"}",
                      {{"Prefer", "return=representation"}});
        QStringList changed = jsonColumn(result.json().array(), u"name"_s);
        changed.sort();
        QCOMPARE(changed, (QStringList{u"U4"_s, u"U5"_s}));

        result = send("PATCH", "clients?notes=eq.seen", "[{\"phone\":\"1\"}]");
        QCOMPARE(result.status, 400);
        QCOMPARE(result.code(), u"PGRST102"_s);
        result = send("PATCH", "clients?notes=eq.seen", "{\"shoe_size\":44}");
        QCOMPARE(result.code(), u"PGRST204"_s);

        result = send("DELETE", "clients?notes=eq.last two", {}, {{"Prefer", "return=representation"}});
        QCOMPARE(result.status, 200);
        QCOMPARE(result.json().array().size(), 2);
        result = send("DELETE", "clients?notes=eq.seen");
        QCOMPARE(result.status, 204);
        QCOMPARE(countRows("SELECT count(*) FROM clients WHERE name LIKE 'U_'"), 0);
    }

    void singleObjectWritesRollBackOtherwise()
    {
        const Headers object{{"Accept", "application/vnd.pgrst.object+json"}, {"Prefer", "return=representation"}};
        HttpResult result = send("POST", "clients", "[{\"name\":\"S1\"},{\"name\":\"S2\"}]", object);
        QCOMPARE(result.status, 406);
        QCOMPARE(result.code(), u"PGRST116"_s);
        QCOMPARE(countRows("SELECT count(*) FROM clients WHERE name IN ('S1', 'S2')"), 0);

        result = send("POST", "clients", "{\"name\":\"S3\"}", object);
        QCOMPARE(result.status, 201);
        QCOMPARE(result.json().object().value(u"name"_s).toString(), u"S3"_s);
    }

    void embedsInWrittenRows()
    {
        const HttpResult result =
            send("POST", "tasks?select=title,project:projects(name)",
                 "{\"project_id\":\"" + project + "\",\"title\":\"Embedded\"}", {{"Prefer", "return=representation"}});
        QCOMPARE(result.status, 201);
        QCOMPARE(result.json().array().first().toObject().value(u"project"_s).toObject().value(u"name"_s).toString(),
                 u"Site"_s);
    }

    void procedures_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QByteArray>("target");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("answer");

        QTest::newRow("set of scalars") << QByteArray("POST") << QByteArray("test_numbers") << QByteArray("{\"n\":3}")
                                        << 200 << QByteArray("[1,2,3]");
        QTest::newRow("set of scalars by GET")
            << QByteArray("GET") << QByteArray("test_numbers?n=2") << QByteArray() << 200 << QByteArray("[1,2]");
        QTest::newRow("table rows, default argument")
            << QByteArray("POST") << QByteArray("test_pairs") << QByteArray("{\"n\":2}") << 200
            << QByteArray("[{\"x\":1,\"y\":\"x1\"},{\"x\":2,\"y\":\"x2\"}]");
        QTest::newRow("table rows, both arguments")
            << QByteArray("POST") << QByteArray("test_pairs") << QByteArray("{\"n\":1,\"label\":\"a\"}") << 200
            << QByteArray("[{\"x\":1,\"y\":\"a1\"}]");
        QTest::newRow("composite is an object")
            << QByteArray("POST") << QByteArray("test_project") << QByteArray("{\"p\":\"" + project + "\"}") << 200
            << QByteArray("name=Site");
        QTest::newRow("no row is null") << QByteArray("POST") << QByteArray("test_project")
                                        << QByteArray("{\"p\":\"00000000-0000-4000-8000-000000000000\"}") << 200
                                        << QByteArray("null");
        QTest::newRow("one unnamed json argument takes the body")
            << QByteArray("POST") << QByteArray("test_echo") << QByteArray("{\"any\":[1,{\"b\":null}]}") << 200
            << QByteArray("{\"any\":[1,{\"b\":null}]}");
        QTest::newRow("scalar text") << QByteArray("POST") << QByteArray("next_invoice_number") << QByteArray("{}")
                                     << 200 << QByteArray("\"YYYY-0001\"");
        QTest::newRow("unknown function")
            << QByteArray("POST") << QByteArray("test_nothing") << QByteArray("{\"b\":1,\"a\":2}") << 404
            << QByteArray("Could not find the function public.test_nothing(a, b) in the schema cache");
        QTest::newRow("unknown argument") << QByteArray("POST") << QByteArray("test_numbers")
                                          << QByteArray("{\"n\":1,\"m\":2}") << 404 << QByteArray("PGRST202");
        QTest::newRow("missing argument")
            << QByteArray("POST") << QByteArray("test_numbers") << QByteArray("{}") << 404 << QByteArray("PGRST202");
        QTest::newRow("GET of a volatile function")
            << QByteArray("GET") << QByteArray("test_fail?code=P0001") << QByteArray() << 405 << QByteArray("PGRST101");
        QTest::newRow("void answers no content") << QByteArray("POST") << QByteArray("void_invoice")
                                                 << QByteArray("{\"p_invoice_id\":\"INVOICE\"}") << 204 << QByteArray();
    }

    void procedures()
    {
        QFETCH(QByteArray, method);
        QFETCH(QByteArray, target);
        QFETCH(QByteArray, body);
        QFETCH(QByteArray, answer);
        if (body.contains("INVOICE")) {
            const QByteArray invoice =
                m_backend.database()
                    .exec("INSERT INTO invoices (user_id, number, issued_at, currency, subtotal, vat_amount, total)"
                          " VALUES ($1, 'V-1', '2025-03-01', 'EUR', 1, 0, 1) RETURNING id",
                          {m_anna.toUtf8()})
                    .value(0, 0);
            body.replace("INVOICE", invoice);
        }
        const HttpResult result = send(method, "rpc/" + target, body);
        QTEST(result.status, "status");
        if (answer.contains("YYYY")) {
            answer.replace("YYYY", QByteArray::number(QDate::currentDate().year()));
        }
        if (answer.startsWith("name=")) {
            QCOMPARE(result.json().object().value(u"name"_s).toString(), QString::fromUtf8(answer.mid(5)));
        } else if (answer.startsWith("PGRST") || answer.startsWith("Could not")) {
            QVERIFY2(result.body.contains(answer), result.body.constData());
        } else if (answer.startsWith('[') || answer.startsWith('{')) {
            QCOMPARE(QJsonDocument::fromJson(result.body), QJsonDocument::fromJson(answer));
        } else {
            QCOMPARE(result.body, answer);
        }
    }

    void databaseErrorsMapToStatuses_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QByteArray>("target");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QByteArray>("caller");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("code");

        const QByteArray orphan = "{\"user_id\":\"" + m_anna.toUtf8() +
                                  "\",\"project_id\":\"00000000-0000-4000-8000-000000000000\",\"title\":\"x\"}";
        QTest::newRow("foreign key") << QByteArray("POST") << QByteArray("tasks") << orphan << QByteArray("service")
                                     << 409 << u"23503"_s;
        // Row-level security speaks before the foreign key does.
        QTest::newRow("a project that is not yours")
            << QByteArray("POST") << QByteArray("tasks") << orphan << QByteArray("user") << 403 << u"42501"_s;
        QTest::newRow("check constraint")
            << QByteArray("POST") << QByteArray("projects") << QByteArray("{\"name\":\"x\",\"status\":\"paused\"}")
            << QByteArray("user") << 400 << u"23514"_s;
        QTest::newRow("not null") << QByteArray("POST") << QByteArray("projects") << QByteArray("{\"name\":null}")
                                  << QByteArray("user") << 400 << u"23502"_s;
        QTest::newRow("bad uuid") << QByteArray("GET") << QByteArray("tasks?id=eq.not-a-uuid") << QByteArray()
                                  << QByteArray("user") << 400 << u"22P02"_s;
        QTest::newRow("raised exception")
            << QByteArray("POST") << QByteArray("rpc/test_fail") << QByteArray("{\"code\":\"P0001\"}")
            << QByteArray("user") << 400 << u"P0001"_s;
        QTest::newRow("status chosen by the procedure")
            << QByteArray("POST") << QByteArray("rpc/test_fail") << QByteArray("{\"code\":\"PT402\"}")
            << QByteArray("user") << 402 << u"PT402"_s;
        QTest::newRow("anonymous lacks the privilege")
            << QByteArray("GET") << QByteArray("tasks") << QByteArray() << QByteArray("anon") << 401 << u"42501"_s;
        QTest::newRow("signed in but not granted")
            << QByteArray("GET") << QByteArray("messages") << QByteArray() << QByteArray("user") << 403 << u"42501"_s;
        QTest::newRow("unknown table") << QByteArray("GET") << QByteArray("nothing") << QByteArray()
                                       << QByteArray("user") << 404 << u"PGRST205"_s;
        QTest::newRow("unknown column") << QByteArray("GET") << QByteArray("tasks?select=shoe_size") << QByteArray()
                                        << QByteArray("user") << 400 << u"42703"_s;
        QTest::newRow("PUT is not offered") << QByteArray("PUT") << QByteArray("tasks") << QByteArray("{}")
                                            << QByteArray("user") << 405 << u"PGRST117"_s;
    }

    void databaseErrorsMapToStatuses()
    {
        QFETCH(QByteArray, method);
        QFETCH(QByteArray, target);
        QFETCH(QByteArray, body);
        QFETCH(QByteArray, caller);
        if (target == "messages") {
            m_backend.database().execScript(
                "CREATE TABLE IF NOT EXISTS public.messages (id int); NOTIFY pgrst, 'reload schema'");
            QTRY_COMPARE_WITH_TIMEOUT(send("GET", "messages").code(), u"42501"_s, 10000);
        }
        const QByteArray token = caller == "anon"      ? QByteArray()
                                 : caller == "service" ? m_backend.serviceToken()
                                                       : m_token;
        const HttpResult result = m_backend.request(method, "/rest/v1/" + target, token, body);
        QTEST(result.status, "status");
        QTEST(result.code(), "code");
        const QJsonObject error = result.json().object();
        QCOMPARE(error.keys(), (QStringList{u"code"_s, u"details"_s, u"hint"_s, u"message"_s}));
        QVERIFY(!error.value(u"message"_s).toString().isEmpty());
        QCOMPARE(result.status == 401, !result.header("WWW-Authenticate").isEmpty());
        if (code() == u"P0001"_s) {
            QCOMPARE(error.value(u"message"_s).toString(), u"test failure P0001"_s);
            QCOMPARE(error.value(u"details"_s).toString(), u"some detail"_s);
            QCOMPARE(error.value(u"hint"_s).toString(), u"a hint"_s);
        }
    }

private:
    QString code() const
    {
        return QString::fromLatin1(QTest::currentDataTag()) == u"raised exception" ? u"P0001"_s : QString();
    }
};

QTEST_GUILESS_MAIN(TestRestWrite)
#include "tst_restwrite.moc"
