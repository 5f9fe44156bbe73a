#include "pg/pgconnection.h"
#include "support/noderunner.h"
#include "support/testbackend.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

// The official JavaScript client (tests/js) runs its queries against a real server: the rows it
// expects are seeded here, and their ids travel to it in MORVANE_FIXTURE.
namespace {

QByteArray id(const char *suffix)
{
    return QByteArray("00000000-0000-4000-8000-0000000000") + suffix;
}

const QByteArray website = id("a1");
const QByteArray logo = id("a2");
const QByteArray strangerProject = id("a9");
const QByteArray design = id("b1");
const QByteArray build = id("b2");
const QByteArray deploy = id("b3");
const QByteArray review = id("b4");
const QByteArray testing = id("b5");
const QByteArray strangerTask = id("b9");
const QByteArray invoice = id("d0");
const QByteArray invoiceEntry = id("d1");

} // namespace

class TestJsClient : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    QString m_anna;
    QString m_bob;

    void seed()
    {
        PgConnection &db = m_backend.database();
        m_anna = m_backend.createUser(u"anna@example.nl"_s, u"Anna"_s);
        m_bob = m_backend.createUser(u"bob@example.nl"_s, u"Bob"_s);
        const QByteArray anna = m_anna.toUtf8();
        const QByteArray bob = m_bob.toUtf8();
        db.exec("INSERT INTO projects (id, user_id, name, billing) VALUES"
                " ($1, $4, 'Website', '{\"model\": \"hourly\", \"rate\": 85}'),"
                " ($2, $4, 'Logo', '{\"model\": \"fixed\", \"price\": 1200}'),"
                " ($3, $5, 'Not yours', NULL)",
                {website, logo, strangerProject, anna, bob});
        db.exec("INSERT INTO tasks (id, user_id, project_id, title, status, billing) VALUES"
                " ($1, $7, $9, 'Design', 'in_progress', '{\"model\": \"hourly\", \"rate\": 85}'),"
                " ($2, $7, $9, 'Build', 'in_progress', NULL),"
                " ($3, $7, $9, 'Deploy', 'not_started', NULL),"
                " ($4, $7, $9, 'Review', 'completed', NULL),"
                " ($5, $7, $9, 'Test', 'completed', NULL),"
                " ($6, $8, $10, 'Stranger''s task', 'not_started', NULL)",
                {design, build, deploy, review, testing, strangerTask, anna, bob, website, strangerProject});
        // Around 09:00 UTC, the bound the client's first query gives in local time: c1 and c2 end
        // before it, c3 on it. c6 was logged by a teammate, c7 belongs to a task the query leaves
        // out and c9 to another user, so only c3, c4 and c5 answer that query.
        db.exec("INSERT INTO time_entries (id, user_id, task_id, project_id, started_at, ended_at, duration_seconds,"
                " logged_by_user_id) VALUES"
                " ($1, $9, $11, $13, '2025-03-01T07:00:00Z', '2025-03-01T08:00:00Z', 3600, NULL),"
                " ($2, $9, $11, $13, '2025-03-01T08:00:00Z', '2025-03-01T08:59:59Z', 3599, NULL),"
                " ($3, $9, $11, $13, '2025-03-01T08:30:00Z', '2025-03-01T09:00:00Z', 1800, NULL),"
                " ($4, $9, $12, $13, '2025-03-01T09:00:00Z', '2025-03-01T10:00:00Z', 3600, NULL),"
                " ($5, $9, $12, $13, '2025-03-01T09:30:00Z', '2025-03-01T10:00:00Z', 1800, NULL),"
                " ($6, $9, $12, $13, '2025-03-01T10:00:00Z', '2025-03-01T11:00:00Z', 3600, $10),"
                " ($7, $9, $15, $13, '2025-03-01T11:00:00Z', '2025-03-01T12:00:00Z', 3600, NULL),"
                " ($8, $10, $14, $16, '2025-03-01T12:00:00Z', '2025-03-01T13:00:00Z', 3600, NULL)",
                {id("c1"), id("c2"), id("c3"), id("c4"), id("c5"), id("c6"), id("c7"), id("c9"), anna, bob, design,
                 build, website, strangerTask, deploy, strangerProject});
        // Typed in by hand with the first number of the year, which the numbering must then skip.
        db.exec("INSERT INTO invoices (id, user_id, number, issued_at, currency, status, total)"
                " VALUES ($1, $2, extract(year FROM now() AT TIME ZONE 'UTC')::int || '-0001', current_date, 'EUR',"
                " 'sent', 85)",
                {invoice, anna});
        db.exec("INSERT INTO invoice_entries (id, invoice_id, time_entry_id) VALUES ($1, $2, $3)",
                {invoiceEntry, invoice, id("c1")});
    }

    QByteArray fixture() const
    {
        auto text = [](const QByteArray &value) { return QString::fromLatin1(value); };
        const QJsonObject object{
            {u"user"_s, m_anna},
            {u"projects"_s, QJsonObject{{u"website"_s, text(website)}, {u"logo"_s, text(logo)}}},
            {u"tasks"_s, QJsonObject{{u"design"_s, text(design)}, {u"build"_s, text(build)}}},
            {u"entries"_s, QJsonObject{{u"designEarly"_s, text(id("c1"))},
                                       {u"designAtBound"_s, text(id("c3"))},
                                       {u"buildEarly"_s, text(id("c4"))},
                                       {u"buildLate"_s, text(id("c5"))}}},
            {u"strangerProject"_s, text(strangerProject)},
            {u"strangerTask"_s, text(strangerTask)},
            {u"invoice"_s, text(invoice)},
            {u"invoiceEntry"_s, text(invoiceEntry)},
        };
        return QJsonDocument(object).toJson(QJsonDocument::Compact);
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        seed();
    }

    void officialClientQueries()
    {
        const QString problem =
            runNodeTests(m_backend, u"postgrest-client.test.js"_s, u"@supabase/postgrest-js"_s,
                         m_backend.tokenFor(m_anna), QJsonDocument::fromJson(fixture()).object(), 10);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
    }
};

QTEST_GUILESS_MAIN(TestJsClient)
#include "tst_jsclient.moc"
