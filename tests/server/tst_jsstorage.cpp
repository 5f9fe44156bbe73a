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

// The official JavaScript storage client (tests/js/storage-client.test.js) against a real server.
// Two users: the script acts as the first and must not reach the second's object.
class TestJsStorage : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    QString m_anna;
    QString m_bob;
    QString m_bobsObject;

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_anna = m_backend.createUser(u"anna@example.nl"_s, u"Anna"_s);
        m_bob = m_backend.createUser(u"bob@example.nl"_s, u"Bob"_s);
        m_bobsObject = m_bob + u"/private/secret.txt"_s;
        const HttpResult stored =
            m_backend.request("POST", "/storage/v1/object/invoice-templates/" + m_bobsObject.toUtf8(),
                              m_backend.tokenFor(m_bob), "his", {{"Content-Type", "text/plain"}});
        QVERIFY2(stored.status == 200, stored.body.constData());
    }

    void officialStorageClient()
    {
        const QString node = QStandardPaths::findExecutable(u"node"_s);
        QVERIFY2(!node.isEmpty(), "node is not on PATH; the JavaScript client tests need Node.js 20 or later");
        const QDir folder(QStringLiteral(MORVANE_JS_TESTS));
        QVERIFY2(QFileInfo::exists(folder.filePath(u"node_modules/@supabase/storage-js/package.json"_s)),
                 qPrintable(u"the client is not installed: run 'npm ci --no-audit --no-fund' in %1"
                            u" (./scripts/test does this)"_s.arg(folder.path())));

        const QJsonObject fixture{{u"user"_s, m_anna}, {u"otherUser"_s, m_bob}, {u"otherUsersObject"_s, m_bobsObject}};
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"MORVANE_URL"_s, m_backend.url().toString(QUrl::StripTrailingSlash));
        environment.insert(u"MORVANE_ANON_KEY"_s, QString::fromLatin1(m_backend.anonKey()));
        environment.insert(u"MORVANE_TOKEN"_s, QString::fromLatin1(m_backend.tokenFor(m_anna)));
        environment.insert(u"MORVANE_FIXTURE"_s,
                           QString::fromUtf8(QJsonDocument(fixture).toJson(QJsonDocument::Compact)));
        environment.insert(u"NO_COLOR"_s, u"1"_s);

        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(node, {u"--test"_s, u"--test-reporter=spec"_s, folder.filePath(u"storage-client.test.js"_s)});
        QVERIFY2(process.waitForStarted(), qPrintable(process.errorString()));
        const bool finished = process.waitForFinished(240000);
        if (!finished) {
            process.kill();
            process.waitForFinished();
        }
        const QString output = QString::fromUtf8(process.readAll());
        qInfo().noquote() << output;
        QVERIFY2(finished, qPrintable(u"node did not finish in time:\n"_s + output));
        QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
                 qPrintable(u"node --test failed:\n"_s + output));
        // A script that loaded but registered nothing also exits 0.
        const QRegularExpressionMatch passed = QRegularExpression(u"\\bpass (\\d+)"_s).match(output);
        QVERIFY2(passed.hasMatch() && passed.captured(1).toInt() >= 8,
                 qPrintable(u"node ran fewer tests than the script holds:\n"_s + output));

        // What the script left behind is still readable by its owner, and his object by him alone.
        const HttpResult his =
            m_backend.request("GET", "/storage/v1/object/authenticated/invoice-templates/" + m_bobsObject.toUtf8(),
                              m_backend.tokenFor(m_bob));
        QCOMPARE(his.body, QByteArray("his"));
    }
};

QTEST_GUILESS_MAIN(TestJsStorage)
#include "tst_jsstorage.moc"
