#include "backend/runblocking.h"
#include "backend/supabase.h"
#include "model/isodate.h"
#include "model/project.h"
#include "model/taskitem.h"
#include "model/team.h"
#include "model/timeentry.h"
#include "pg/pgconnection.h"
#include "support/testbackend.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

// The client against the real backend: what the scripted server cannot show is whether real rows
// decode into the records and real errors arrive with their codes.
class TestSupabaseLive : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    std::optional<Supabase> m_client;
    QString m_user;
    QString m_token;

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_client.emplace(m_backend.url(), QString::fromLatin1(m_backend.anonKey()));
        m_user = m_backend.createUser(u"live@example.nl"_s, u"Live"_s);
        m_token = QString::fromLatin1(m_backend.tokenFor(m_user));
    }

    void writtenRowsComeBackAsRecords()
    {
        Project draft;
        draft.userId = m_user;
        draft.name = u"Bakery"_s;
        draft.hourlyRate = 92.5;
        Billing billing;
        billing.model = BillingModel::Daily;
        billing.dayRate = 720;
        billing.vatRate = 0.21;
        billing.travel = JSONValue(JSONValue::Object{{u"mode"_s, u"per_km"_s}});
        draft.billing = billing;
        QJsonObject body = Wire::encode(draft).toObject();
        body.remove(u"id"_s);
        const QList<Project> inserted = runBlocking(m_client->insert<Project>(u"projects"_s, m_token, body));
        QCOMPARE(inserted.size(), 1);
        const Project &project = inserted.first();
        QVERIFY(!project.id.isEmpty());
        QCOMPARE(project.hourlyRate, 92.5);
        QCOMPARE(project.status, ProjectStatus::Active);
        QVERIFY(project.billing == billing);
        // The database's time stamps are read by the client's date parser.
        QVERIFY(isoDate(project.createdAt).has_value());

        QJsonObject task{{u"project_id"_s, project.id},
                         {u"title"_s, u"Bread photos"_s},
                         {u"started_at"_s, u"2025-03-01T09:30:00+01:00"_s},
                         {u"status"_s, u"in_progress"_s},
                         {u"attachments"_s, QJsonArray()}};
        const QList<TaskItem> tasks = runBlocking(m_client->insert<TaskItem>(u"tasks"_s, m_token, task));
        QCOMPARE(tasks.first().status, TaskStatus::InProgress);
        QCOMPARE(isoDate(tasks.first().startedAt), QDateTime(QDate(2025, 3, 1), QTime(8, 30), Qt::UTC));
        // The older array form of the side data decodes as empty side data.
        QVERIFY(tasks.first().attachments == TaskAttachments{});

        // A claim that no longer holds matches nothing: an empty answer, not an error.
        const QList<TaskItem> lost =
            runBlocking(m_client->update<TaskItem>(u"tasks"_s, m_token,
                                                   {{u"id"_s, u"eq."_s + tasks.first().id},
                                                    {u"status"_s, u"eq.in_progress"_s},
                                                    {u"started_at"_s, u"eq.2025-03-01T09:31:00Z"_s}},
                                                   QJsonObject{{u"status"_s, u"not_started"_s}}));
        QVERIFY(lost.isEmpty());
        const QList<TaskItem> claimed = runBlocking(
            m_client->update<TaskItem>(u"tasks"_s, m_token,
                                       {{u"id"_s, u"eq."_s + tasks.first().id},
                                        {u"status"_s, u"eq.in_progress"_s},
                                        {u"started_at"_s, u"eq.2025-03-01T08:30:00Z"_s}},
                                       QJsonObject{{u"status"_s, u"not_started"_s}, {u"time_spent_seconds"_s, 3600}}));
        QCOMPARE(claimed.size(), 1);
        QCOMPARE(claimed.first().timeSpentSeconds, 3600);

        runBlocking(m_client->deleteFrom(u"tasks"_s, m_token, {{u"id"_s, u"eq."_s + tasks.first().id}}));
        QVERIFY(runBlocking(m_client->select<TaskItem>(u"tasks"_s, m_token, {{u"select"_s, u"*"_s}})).isEmpty());
    }

    void pagedReadOfExactlyOnePage()
    {
        PgConnection &db = m_backend.database();
        const QByteArray project =
            db.exec("INSERT INTO projects (user_id, name) VALUES ($1, 'Paged') RETURNING id", {m_user.toUtf8()})
                .value(0, 0);
        const QByteArray task =
            db.exec("INSERT INTO tasks (user_id, project_id, title) VALUES ($1, $2, 'T') RETURNING id",
                    {m_user.toUtf8(), project})
                .value(0, 0);
        db.exec("INSERT INTO time_entries (user_id, task_id, project_id, started_at, ended_at, duration_seconds)"
                " SELECT $1, $2, $3, t, t + interval '1 minute', 60"
                " FROM generate_series(timestamptz '2025-01-01', timestamptz '2025-01-01' + interval '999 minutes',"
                " interval '1 minute') t",
                {m_user.toUtf8(), task, project});
        const QList<TimeEntry> entries = runBlocking(m_client->selectAll<TimeEntry>(
            u"time_entries"_s, m_token, {{u"select"_s, u"*"_s}, {u"order"_s, u"ended_at.desc,id.desc"_s}}));
        QCOMPARE(entries.size(), 1000);
        QCOMPARE(isoDate(entries.first().endedAt), QDateTime(QDate(2025, 1, 1), QTime(16, 40), Qt::UTC));
        QCOMPARE(entries.last().durationSeconds, 60);
    }

    void realErrorsKeepTheirCodes()
    {
        const QString id = u"00000000-0000-4000-8000-00000000beef"_s;
        runBlocking(m_client->insert<Team>(u"teams"_s, m_token, QJsonObject{{u"id"_s, id}, {u"name"_s, u"Crew"_s}}));
        try {
            runBlocking(
                m_client->insert<Team>(u"teams"_s, m_token, QJsonObject{{u"id"_s, id}, {u"name"_s, u"Again"_s}}));
            QFAIL("a duplicate was accepted");
        } catch (const SupabaseError &error) {
            QCOMPARE(error.status(), 409);
            QCOMPARE(error.errorCode(), u"23505"_s);
        }
        try {
            runBlocking(m_client->select<Team>(
                u"teams"_s, QString::fromLatin1(m_backend.tokenFor(m_user, u"authenticated"_s, -10))));
            QFAIL("an expired token was accepted");
        } catch (const SupabaseError &error) {
            QCOMPARE(error.status(), 401);
            QCOMPARE(error.errorCode(), u"PGRST303"_s);
        }
        try {
            runBlocking(m_client->callRPC(u"no_such_procedure"_s, m_token, QJsonObject()));
            QFAIL("a missing procedure answered");
        } catch (const SupabaseError &error) {
            QCOMPARE(error.errorCode(), u"PGRST202"_s);
        }
    }

    void proceduresAnswerTheirValues()
    {
        const auto number =
            runBlocking(m_client->callRPCReturning<QString>(u"next_invoice_number"_s, m_token, QJsonObject()));
        QCOMPARE(number, QString::number(QDateTime::currentDateTimeUtc().date().year()) + u"-0001"_s);
    }
};

QTEST_GUILESS_MAIN(TestSupabaseLive)
#include "tst_supabaselive.moc"
