#include "pg/pgconnection.h"
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

// The official JavaScript clients (tests/js, installed by scripts/test) against one real server:
// one node:test script per client, each finding the server in MORVANE_URL and MORVANE_ANON_KEY,
// acting with MORVANE_TOKEN, with the ids seeded here in MORVANE_FIXTURE.
class TestJsClients : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    QString m_anna;
    QString m_bob;

    QByteArray insert(const QByteArray &sql, const PgParams &values)
    {
        return m_backend.database().exec(sql + " RETURNING id", values).value(0, 0);
    }

    // Runs `script`; `minimumPassed` catches a script that loads but registers fewer tests than it holds.
    void runNode(const QString &script, const QString &package, const QJsonObject &fixture, int minimumPassed)
    {
        const QString node = QStandardPaths::findExecutable(u"node"_s);
        QVERIFY2(!node.isEmpty(), "node is not on PATH; the JavaScript client tests need Node.js 20 or later");
        const QDir folder(QStringLiteral(MORVANE_JS_TESTS));
        QVERIFY2(QFileInfo::exists(folder.filePath(u"node_modules/"_s + package + u"/package.json"_s)),
                 qPrintable(package + u" is missing: run 'npm ci' in tests/js (./scripts/test does)"_s));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"MORVANE_URL"_s, m_backend.url().toString(QUrl::StripTrailingSlash));
        environment.insert(u"MORVANE_ANON_KEY"_s, QString::fromLatin1(m_backend.anonKey()));
        environment.insert(u"MORVANE_TOKEN"_s, QString::fromLatin1(m_backend.tokenFor(m_anna)));
        environment.insert(u"MORVANE_FIXTURE"_s, QString::fromUtf8(QJsonDocument(fixture).toJson()));
        environment.insert(u"NO_COLOR"_s, u"1"_s);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(node, {u"--test"_s, u"--test-reporter=tap"_s, folder.filePath(script)});
        const bool finished = process.waitForFinished(240000);
        if (!finished) {
            process.kill();
            process.waitForFinished();
        }
        const QByteArray output = process.readAll();
        QVERIFY2(finished && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
                 output.constData());
        const QRegularExpressionMatch passed = QRegularExpression(u"\\bpass (\\d+)"_s).match(QString::fromUtf8(output));
        QVERIFY2(passed.captured(1).toInt() >= minimumPassed, output.constData());
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_anna = m_backend.createUser(u"anna@example.nl"_s, u"Anna"_s);
        m_bob = m_backend.createUser(u"bob@example.nl"_s, u"Bob"_s);
    }

    void postgrestClient()
    {
        const QByteArray anna = m_anna.toUtf8();
        const QByteArray bob = m_bob.toUtf8();
        const QByteArray website = insert("INSERT INTO projects (user_id, name) VALUES ($1, 'Website')", {anna});
        const QByteArray elsewhere = insert("INSERT INTO projects (user_id, name) VALUES ($1, 'Not yours')", {bob});
        const QByteArray task = "INSERT INTO tasks (user_id, project_id, title) VALUES ($1, $2, $3)";
        const QByteArray design = insert(task, {anna, website, "Design"});
        const QByteArray build = insert(task, {anna, website, "Build"});
        // The query's bound is 09:00 UTC: a second before it is out, on it is in.
        auto entry = [&](const QByteArray &taskId, const char *start, const char *end) {
            return insert("INSERT INTO time_entries (user_id, task_id, project_id, started_at, ended_at,"
                          " duration_seconds) VALUES ($1, $2, $3, $4::timestamptz, $5::timestamptz,"
                          " extract(epoch FROM $5::timestamptz - $4::timestamptz))",
                          {anna, taskId, website, start, end});
        };
        entry(design, "2025-03-01T08:00:00Z", "2025-03-01T08:59:59Z");
        const QByteArray designAtBound = entry(design, "2025-03-01T08:30:00Z", "2025-03-01T09:00:00Z");
        const QByteArray later = entry(build, "2025-03-01T09:00:00Z", "2025-03-01T10:00:00Z");
        const QJsonObject fixture{
            {u"user"_s, m_anna},
            {u"website"_s, QString::fromLatin1(website)},
            {u"strangerProject"_s, QString::fromLatin1(elsewhere)},
            {u"design"_s, QString::fromLatin1(design)},
            {u"build"_s, QString::fromLatin1(build)},
            {u"designAtBound"_s, QString::fromLatin1(designAtBound)},
            {u"later"_s, QString::fromLatin1(later)},
        };
        runNode(u"postgrest-client.test.js"_s, u"@supabase/postgrest-js"_s, fixture, 3);
    }

    void authClient() { runNode(u"auth-client.test.js"_s, u"@supabase/auth-js"_s, {}, 1); }

    void storageClient() { runNode(u"storage-client.test.js"_s, u"@supabase/storage-js"_s, {{u"user"_s, m_anna}}, 1); }

    void realtimeClient()
    {
        const QByteArray project =
            insert("INSERT INTO projects (user_id, name) VALUES ($1, 'Live')", {m_anna.toUtf8()});
        runNode(u"realtime-client.test.js"_s, u"@supabase/realtime-js"_s,
                {{u"user"_s, m_anna}, {u"project"_s, QString::fromLatin1(project)}}, 2);
    }
};

QTEST_GUILESS_MAIN(TestJsClients)
#include "tst_jsclients.moc"
