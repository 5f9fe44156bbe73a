#include "pg/pgconnection.h"
#include "support/morvanecli.h"

#include <QTest>

using namespace Qt::StringLiterals;

// `morvane recap` and `morvane standup` as a person runs them against a real backend, with the
// fake `claude` program standing in for the model. The rules behind the texts are proven in
// tests/summary; here: the figures come from the backend, the model's text is used when it holds,
// and a failed call still gives the fixed text and says why.
class TestSummaryCommands : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    MorvaneCli ann{m_backend};
    QTemporaryDir m_record;

    MorvaneCli::Run run(const QStringList &arguments, const QString &mode, const QString &answer = {}) const
    {
        QProcessEnvironment environment = ann.environment();
        environment.insert(u"TZ"_s, u"Europe/Amsterdam"_s);
        environment.insert(u"CLAUDE_CLI_PATH"_s, QStringLiteral(FAKE_CLAUDE_PROGRAM));
        environment.insert(u"FAKE_CLAUDE_MODE"_s, mode);
        environment.insert(u"FAKE_CLAUDE_TEXT"_s, answer);
        environment.insert(u"FAKE_CLAUDE_RECORD"_s, m_record.path());
        return MorvaneCli::finish(*ann.start(arguments, environment));
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        QCOMPARE(ann(u"auth signup ann@example.nl"_s, "ann's secret\n").code, 0);
        PgConnection &db = m_backend.database();
        const QByteArray user = db.exec("SELECT id FROM auth.users WHERE email = 'ann@example.nl'").value(0, 0);
        const QByteArray project =
            db.exec("INSERT INTO projects (user_id, name) VALUES ($1, 'Webshop') RETURNING id", {user}).value(0, 0);
        const QByteArray task = db.exec("INSERT INTO tasks (user_id, project_id, title) VALUES ($1, $2, 'Checkout') "
                                        "RETURNING id",
                                        {user, project})
                                    .value(0, 0);
        // Ninety minutes two hours ago: within the week and, in any zone, within the last day or today.
        db.exec("INSERT INTO time_entries (user_id, task_id, project_id, started_at, ended_at, duration_seconds) "
                "VALUES ($1, $2, $3, now() - interval '2 hours', now() - interval '30 minutes', 5400)",
                {user, task, project});
    }

    void recapFromTheModel()
    {
        const QString answer = u"This week you tracked 1 h 30 min, nothing the previous week. You worked on 1 day. "
                               "Most time went to \"Webshop\" (1 h 30 min). No tasks were completed this week."_s;
        const MorvaneCli::Run result = run({u"recap"_s, u"--json"_s}, u"result"_s, answer);
        QVERIFY2(result.code == 0, qPrintable(result.err));
        const QJsonObject json = result.object();
        QCOMPARE(json.value(u"source"_s).toString(), u"model"_s);
        QCOMPARE(json.value(u"text"_s).toString(), answer);
        QVERIFY(json.value(u"reason"_s).isNull());
    }

    void standupFallsBackWhenTheCallFails()
    {
        const MorvaneCli::Run result = run({u"standup"_s, u"--lang"_s, u"nl"_s, u"--json"_s}, u"fail"_s);
        QVERIFY2(result.code == 0, qPrintable(result.err));
        const QJsonObject json = result.object();
        QCOMPARE(json.value(u"source"_s).toString(), u"fixed"_s);
        QCOMPARE(json.value(u"reason"_s).toString(), u"call_failed"_s);
        QVERIFY2(json.value(u"text"_s).toString().contains(u"1 u 30 min geregistreerd, aan \"Checkout\" (Webshop"_s),
                 qPrintable(json.value(u"text"_s).toString()));
    }
};

QTEST_GUILESS_MAIN(TestSummaryCommands)
#include "tst_summarycommands.moc"
