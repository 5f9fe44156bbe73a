#include "backend/runblocking.h"
#include "backend/supabase.h"
#include "model/isodate.h"
#include "model/project.h"
#include "model/taskitem.h"
#include "support/testbackend.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

// One smoke path of the client against the real backend: what the scripted server cannot show
// is whether real rows decode into the records. The server's answers themselves (paging, error
// codes, procedures) are tested by the server's own suites.
class TestSupabaseLive : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;

private slots:
    void initTestCase() { QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog())); }

    void writtenRowsComeBackAsRecords()
    {
        const Supabase client(m_backend.url(), QString::fromLatin1(m_backend.anonKey()));
        const QString user = m_backend.createUser(u"live@example.nl"_s, u"Live"_s);
        const QString token = QString::fromLatin1(m_backend.tokenFor(user));
        Project draft;
        draft.userId = user;
        draft.name = u"Bakery"_s;
        Billing billing;
        billing.model = BillingModel::Daily;
        billing.dayRate = 720;
        draft.billing = billing;
        QJsonObject body = Wire::encode(draft).toObject();
        body.remove(u"id"_s);
        const QList<Project> inserted = runBlocking(client.insert<Project>(u"projects"_s, token, body));
        const Project &project = inserted.first();
        QVERIFY(project.billing == billing);
        // The database's time stamps are read by the client's date parser.
        QVERIFY(isoDate(project.createdAt).has_value());

        const QJsonObject task{{u"project_id"_s, project.id},
                               {u"title"_s, u"Bread photos"_s},
                               {u"started_at"_s, u"2025-03-01T09:30:00+01:00"_s},
                               {u"status"_s, u"in_progress"_s},
                               {u"attachments"_s, QJsonArray()}};
        const TaskItem started = runBlocking(client.insert<TaskItem>(u"tasks"_s, token, task)).first();
        QCOMPARE(isoDate(started.startedAt), QDateTime(QDate(2025, 3, 1), QTime(8, 30), Qt::UTC));
        // The older array form of the side data decodes as empty side data.
        QVERIFY(started.attachments == TaskAttachments{});

        // A claim that no longer holds matches nothing: an empty answer, not an error.
        auto claim = [&](const QString &startedAt) {
            return runBlocking(client.update<TaskItem>(
                u"tasks"_s, token,
                {{u"id"_s, u"eq."_s + started.id}, {u"status"_s, u"eq.in_progress"_s}, {u"started_at"_s, startedAt}},
                QJsonObject{{u"status"_s, u"not_started"_s}, {u"time_spent_seconds"_s, 3600}}));
        };
        QVERIFY(claim(u"eq.2025-03-01T09:31:00Z"_s).isEmpty());
        const QList<TaskItem> claimed = claim(u"eq.2025-03-01T08:30:00Z"_s);
        QCOMPARE(claimed.size(), 1);
        QCOMPARE(claimed.first().timeSpentSeconds, 3600);
    }
};

QTEST_GUILESS_MAIN(TestSupabaseLive)
#include "tst_supabaselive.moc"
