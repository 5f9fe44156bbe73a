#include "backend/runblocking.h"
#include "backend/supabase.h"
#include "pg/pgconnection.h"
#include "support/testbackend.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

using Headers = QList<std::pair<QByteArray, QByteArray>>;

namespace {

QByteArray id(const char *suffix)
{
    return QByteArray("00000000-0000-4000-8000-0000000000") + suffix;
}

// Anna deletes her account; Bob shares two teams with her and must lose nothing of his own.
const QByteArray annasTeam = id("a0");
const QByteArray bobsTeam = id("b0");
const QByteArray annasProject = id("a1");     // personal
const QByteArray annasTeamProject = id("a2"); // in Bob's team, where Bob works too
const QByteArray bobsProject = id("b1");      // in Bob's team
const QByteArray bobsProjectInHerTeam = id("b2");
const QByteArray annasTask = id("a3");
const QByteArray annasTaskInTeam = id("a4");  // only her time
const QByteArray annasTaskBobLogs = id("a5"); // carries Bob's time
const QByteArray bobsTask = id("b3");
const QByteArray bobsTaskInHerProject = id("b4");
const QByteArray bobsTaskInHerTeam = id("b5");
const QByteArray annasClient = id("a6");
const QByteArray annasInvoice = id("a7");
const QByteArray bobsInvoice = id("b7");
const QByteArray annasTrip = id("a8");
const QByteArray annasTemplate = id("a9");

} // namespace

class TestFunctions : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    QString m_anna;
    QString m_bob;
    QByteArray m_annaToken;
    QByteArray m_bobToken;

    PgConnection &db() { return m_backend.database(); }

    qint64 count(const QByteArray &sql, const PgParams &params = {})
    {
        return db().exec(sql, params).value(0, 0).toLongLong();
    }

    // Per column that names a row's owner, in the schemas the application's data lives in, how many rows name `user`.
    QMap<QByteArray, qint64> rowsOwnedBy(const QString &user)
    {
        const PgResult rows = db().exec(
            "SELECT c.table_schema || '.' || c.table_name || '.' || c.column_name,"
            " (xpath('/row/n/text()', query_to_xml(format('SELECT count(*) AS n FROM %I.%I WHERE %I = %L',"
            "  c.table_schema, c.table_name, c.column_name, $1::text), false, true, '')))[1]::text"
            " FROM information_schema.columns c JOIN information_schema.tables t USING (table_schema, table_name)"
            " WHERE t.table_type = 'BASE TABLE' AND c.table_schema IN ('public', 'app', 'storage', 'auth')"
            " AND c.column_name IN ('user_id', 'owner_id', 'owner') AND c.data_type = 'uuid'",
            {user.toUtf8()});
        QMap<QByteArray, qint64> owned;
        for (int row = 0; row < rows.rows(); ++row) {
            owned.insert(rows.value(row, 0), rows.value(row, 1).toLongLong());
        }
        return owned;
    }

    QSet<QString> filesOnDisk()
    {
        const QStringList names =
            QDir(m_backend.dataDir() + u"/storage/invoice-templates"_s).entryList(QDir::Files | QDir::Hidden);
        return {names.begin(), names.end()};
    }

    void store(const QByteArray &token, const QString &name, const QByteArray &content)
    {
        const HttpResult stored = m_backend.request("POST", "/storage/v1/object/invoice-templates/" + name.toUtf8(),
                                                    token, content, {{"Content-Type", "application/pdf"}});
        QVERIFY2(stored.status == 200, stored.body.constData());
    }

    void seed()
    {
        const QByteArray anna = m_anna.toUtf8();
        const QByteArray bob = m_bob.toUtf8();
        // The owner joins each team as a member by trigger.
        db().exec("INSERT INTO teams (id, owner_id, name) VALUES ($1, $3, 'Anna''s studio'), ($2, $4, 'Bob''s crew')",
                  {annasTeam, bobsTeam, anna, bob});
        db().exec("INSERT INTO team_members (team_id, user_id, email, role, accepted_at) VALUES"
                  " ($1, $4, 'bob@example.nl', 'editor', now()), ($2, $3, 'anna@example.nl', 'editor', now())",
                  {annasTeam, bobsTeam, anna, bob});
        db().exec("INSERT INTO projects (id, user_id, team_id, name) VALUES"
                  " ($1, $5, NULL, 'Anna alone'), ($2, $5, $8, 'Anna in Bob''s crew'),"
                  " ($3, $6, $8, 'Bob''s site'), ($4, $6, $7, 'Bob in Anna''s studio')",
                  {annasProject, annasTeamProject, bobsProject, bobsProjectInHerTeam, anna, bob, annasTeam, bobsTeam});
        db().exec("INSERT INTO tasks (id, user_id, project_id, title) VALUES"
                  " ($1, $7, $9, 'Her own'), ($2, $7, $10, 'Hers in the crew'), ($3, $7, $10, 'Hers, Bob logs'),"
                  " ($4, $8, $11, 'His'), ($5, $8, $10, 'His in her project'), ($6, $8, $12, 'His in her studio')",
                  {annasTask, annasTaskInTeam, annasTaskBobLogs, bobsTask, bobsTaskInHerProject, bobsTaskInHerTeam,
                   anna, bob, annasProject, annasTeamProject, bobsProject, bobsProjectInHerTeam});
        db().exec("INSERT INTO time_entries (id, user_id, task_id, project_id, started_at, ended_at, duration_seconds)"
                  " SELECT e.id::uuid, e.owner::uuid, e.task::uuid, t.project_id, e.at, e.at + interval '1 hour', 3600"
                  " FROM (VALUES ($1, $8, $10, timestamptz '2025-03-01 09:00Z'), ($2, $8, $11, '2025-03-01 10:00Z'),"
                  "  ($3, $8, $13, '2025-03-01 11:00Z'), ($4, $9, $12, '2025-03-01 12:00Z'),"
                  "  ($5, $9, $13, '2025-03-01 13:00Z'), ($6, $9, $14, '2025-03-01 14:00Z'),"
                  "  ($7, $9, $15, '2025-03-01 15:00Z')) e(id, owner, task, at)"
                  " JOIN tasks t ON t.id = e.task::uuid",
                  {id("c1"), id("c2"), id("c3"), id("d1"), id("d2"), id("d3"), id("d4"), anna, bob, annasTask,
                   annasTaskInTeam, annasTaskBobLogs, bobsTask, bobsTaskInHerProject, bobsTaskInHerTeam});
        db().exec("INSERT INTO clients (id, user_id, name) VALUES ($1, $2, 'Her client')", {annasClient, anna});
        // A key claimed before its entry was written names no entry: only her deletion removes it.
        db().exec("INSERT INTO calendar_imports (user_id, event_key) VALUES ($1, repeat('a', 64)), ($2, repeat('b', 64))",
                  {anna, bob});
        db().exec("INSERT INTO trips (id, user_id, started_at, client_id) VALUES ($1, $2, '2025-03-01 08:00Z', $3)",
                  {annasTrip, anna, annasClient});
        db().exec("INSERT INTO invoice_templates (id, user_id, name) VALUES ($1, $2, 'Classic')",
                  {annasTemplate, anna});
        // Bob's invoice names her client and her project; it stays his, without them.
        db().exec("INSERT INTO invoices (id, user_id, number, issued_at, currency, client_id, project_id, template_id,"
                  " status) VALUES ($1, $3, 'A-1', '2025-03-31', 'EUR', $5, $6, $7, 'sent'),"
                  " ($2, $4, 'B-1', '2025-03-31', 'EUR', $5, $6, NULL, 'void')",
                  {annasInvoice, bobsInvoice, anna, bob, annasClient, annasProject, annasTemplate});
        db().exec("INSERT INTO invoice_lines (invoice_id, title, quantity, unit_price, amount, task_id) VALUES"
                  " ($1, 'Her work', 1, 85, 85, $3), ($2, 'His work', 1, 85, 85, $3)",
                  {annasInvoice, bobsInvoice, annasTask});
        db().exec("INSERT INTO invoice_entries (invoice_id, time_entry_id) VALUES ($1, $2)", {annasInvoice, id("c1")});
        db().exec("INSERT INTO invoice_trips (invoice_id, trip_id) VALUES ($1, $2)", {annasInvoice, annasTrip});
        db().exec("INSERT INTO app.invoice_counters (user_id, year, last_value) VALUES ($1, 2025, 1), ($2, 2025, 1)",
                  {anna, bob});

        db().exec("INSERT INTO storage.buckets (id, name, owner) VALUES ('her-bucket', 'her-bucket', $1)", {anna});
        // Files: hers in her folder, one she owns outside it, and his.
        store(m_annaToken, m_anna + u"/invoices/A-1.pdf"_s, "%PDF hers");
        store(m_annaToken, m_anna + u"/templates/classic.pdf"_s, "%PDF template");
        store(m_backend.serviceToken(), u"shared/from-anna.pdf"_s, "%PDF shared");
        db().exec("UPDATE storage.objects SET owner = $1 WHERE name = 'shared/from-anna.pdf'", {anna});
        store(m_bobToken, m_bob + u"/invoices/B-1.pdf"_s, "%PDF his");
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_anna = m_backend.createUser(u"anna@example.nl"_s, u"Anna"_s);
        m_bob = m_backend.createUser(u"bob@example.nl"_s, u"Bob"_s);
        m_annaToken = m_backend.tokenFor(m_anna);
        m_bobToken = m_backend.tokenFor(m_bob);
        seed();
    }

    // Whatever is refused, or answered without doing anything, leaves every row and file of the user.
    void answersThatChangeNothing_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QByteArray>("target");
        QTest::addColumn<QByteArray>("token");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("error");

        struct Request
        {
            const char *name, *method, *target, *token, *body;
            int status;
            const char *error;
        };
        const char *const confirm = "{\"confirm\":\"DELETE\"}";
        // clang-format off
        const Request rows[]{
            {"another word", "POST", "delete-account", "anna", "{\"confirm\":\"delete\"}", 400, "confirmation_required"},
            {"the word and more", "POST", "delete-account", "anna", "{\"confirm\":\"DELETE\",\"also\":1}", 400,
             "confirmation_required"},
            {"no body", "POST", "delete-account", "anna", "", 400, "confirmation_required"},
            {"no token", "POST", "delete-account", "", confirm, 401, "not_signed_in"},
            {"the service role", "POST", "delete-account", "service", confirm, 403, "user_token_required"},
            {"GET", "GET", "delete-account", "anna", "", 405, "method_not_allowed"},
            {"below a known name", "POST", "delete-account/now", "anna", confirm, 404, "function_not_found"},
            {"the AI relay while unconfigured", "POST", "morvane-ai", "anna",
             "{\"messages\":[{\"role\":\"user\",\"content\":\"hi\"}]}", 503, "ai_not_configured"},
        };
        // clang-format on
        for (const Request &r : rows) {
            const QByteArray target = QByteArray("/functions/v1") + (*r.target ? "/" : "") + r.target;
            QTest::newRow(r.name) << QByteArray(r.method) << target << QByteArray(r.token) << QByteArray(r.body)
                                  << r.status << QString::fromLatin1(r.error);
        }
    }

    void answersThatChangeNothing()
    {
        QFETCH(QByteArray, method);
        QFETCH(QByteArray, target);
        QFETCH(QByteArray, token);
        QFETCH(QByteArray, body);
        QFETCH(QString, error);
        // Which tokens are genuine is tst_security's; here, what the function makes of a missing or a service one.
        const QMap<QByteArray, QByteArray> bearers{{"anna", m_annaToken}, {"service", m_backend.serviceToken()}};
        const QMap<QByteArray, qint64> before = rowsOwnedBy(m_anna);
        const QSet<QString> filesBefore = filesOnDisk();

        const HttpResult result = m_backend.request(method, target, bearers.value(token), body);
        QTEST(result.status, "status");
        const QJsonObject answer = result.json().object();
        QCOMPARE(answer.value(u"error"_s).toString(), error);
        QCOMPARE(answer.value(u"code"_s).toString(), error);
        QVERIFY(!answer.value(u"message"_s).toString().isEmpty());

        QCOMPARE(count("SELECT count(*) FROM auth.users WHERE id = $1", {m_anna.toUtf8()}), 1);
        QCOMPARE(rowsOwnedBy(m_anna), before);
        QCOMPARE(filesOnDisk(), filesBefore);
    }

    void deletionTakesEverythingOfTheUserAndNothingElse()
    {
        const QMap<QByteArray, qint64> annasBefore = rowsOwnedBy(m_anna);
        const QMap<QByteArray, qint64> bobsBefore = rowsOwnedBy(m_bob);
        // Every table that names an owner holds something of hers, so the check below cannot pass
        // for want of data.
        for (auto it = annasBefore.cbegin(); it != annasBefore.cend(); ++it) {
            QVERIFY2(it.value() > 0 || it.key().startsWith("auth."),
                     qPrintable(u"seed a row of the user in "_s + QString::fromLatin1(it.key()) +
                                u" and make app.delete_account() remove it"_s));
        }
        const PgResult herVersions = db().exec(
            "SELECT version FROM storage.objects WHERE owner = $1 OR name LIKE $1 || '/%'", {m_anna.toUtf8()});
        QCOMPARE(herVersions.rows(), 3);
        const QString bobsVersion = QString::fromUtf8(
            db().exec("SELECT version FROM storage.objects WHERE owner = $1", {m_bob.toUtf8()}).value(0, 0));

        // As the application asks for it.
        const Supabase client(m_backend.url(), QString::fromLatin1(m_backend.anonKey()));
        const QJsonValue answer = runBlocking(client.invokeFunction(
            u"delete-account"_s, QString::fromLatin1(m_annaToken), QJsonObject{{u"confirm"_s, u"DELETE"_s}}));
        QCOMPARE(answer.toObject().value(u"deleted"_s), QJsonValue(true));

        // Nothing names her any more, in any table.
        for (const auto &[column, rows] : rowsOwnedBy(m_anna).asKeyValueRange()) {
            QVERIFY2(rows == 0, column.constData());
        }
        QCOMPARE(count("SELECT count(*) FROM auth.users WHERE id = $1", {m_anna.toUtf8()}), 0);
        // Rows that name her only through her invoice or team go with them.
        QCOMPARE(count("SELECT (SELECT count(*) FROM invoice_lines WHERE invoice_id = $1)"
                       " + (SELECT count(*) FROM invoice_entries WHERE invoice_id = $1)"
                       " + (SELECT count(*) FROM invoice_trips WHERE invoice_id = $1)"
                       " + (SELECT count(*) FROM team_members WHERE team_id = $2)",
                       {annasInvoice, annasTeam}),
                 0);
        QCOMPARE(count("SELECT count(*) FROM tasks WHERE id IN ($1, $2)", {annasTask, annasTaskInTeam}), 0);
        const QSet<QString> files = filesOnDisk();
        for (int row = 0; row < herVersions.rows(); ++row) {
            QVERIFY(!files.contains(QString::fromUtf8(herVersions.value(row, 0))));
        }

        // Bob keeps all he had: he only gains the project she made in his team, with the task of
        // hers that holds his time, and only loses his place in her team.
        QMap<QByteArray, qint64> bobsExpected = bobsBefore;
        bobsExpected["public.projects.user_id"] += 1;
        bobsExpected["public.tasks.user_id"] += 1;
        bobsExpected["public.team_members.user_id"] -= 1;
        QCOMPARE(rowsOwnedBy(m_bob), bobsExpected);
        QCOMPARE(count("SELECT count(*) FROM projects WHERE id = $1 AND user_id = $2 AND team_id = $3",
                       {annasTeamProject, m_bob.toUtf8(), bobsTeam}),
                 1);
        QCOMPARE(count("SELECT count(*) FROM projects WHERE id = $1 AND team_id IS NULL", {bobsProjectInHerTeam}), 1);
        QCOMPARE(count("SELECT count(*) FROM invoices WHERE id = $1 AND client_id IS NULL AND project_id IS NULL"
                       " AND status = 'void'",
                       {bobsInvoice}),
                 1);
        QCOMPARE(count("SELECT count(*) FROM invoice_lines WHERE invoice_id = $1 AND task_id IS NULL", {bobsInvoice}),
                 1);
        QCOMPARE(count("SELECT count(*) FROM storage.buckets WHERE id = 'her-bucket' AND owner IS NULL"), 1);
        QVERIFY(files.contains(bobsVersion));
        const HttpResult his = m_backend.request(
            "GET", "/storage/v1/object/authenticated/invoice-templates/" + m_bob.toUtf8() + "/invoices/B-1.pdf",
            m_bobToken);
        QCOMPARE(his.body, QByteArray("%PDF his"));

        // The same token no longer speaks for anyone.
        const HttpResult again =
            m_backend.request("POST", "/functions/v1/delete-account", m_annaToken, "{\"confirm\":\"DELETE\"}");
        QCOMPARE(again.status, 401);
        QCOMPARE(again.json().object().value(u"error"_s).toString(), u"session_ended"_s);
    }
};

QTEST_GUILESS_MAIN(TestFunctions)
#include "tst_functions.moc"
