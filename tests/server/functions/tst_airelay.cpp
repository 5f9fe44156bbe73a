#include "backend/runblocking.h"
#include "i18n/language.h"
#include "model/error.h"
#include "sessions/claudebridge.h"
#include "support/aivendors.h"
#include "support/scriptedhttpserver.h"
#include "support/testbackend.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Anthropic as the relay's provider: a forced tool call for a schema call, text otherwise.
ScriptedResponse anthropic(const RecordedRequest &request)
{
    const bool tool = request.body.contains("\"tools\"");
    return ScriptedHttpServer::json(
        200, vendorAnswer(u"anthropic"_s, tool ? u"{\"intent\":\"stop_timer\"}"_s : u"Relayed."_s, tool));
}

QString writeKey(const QString &path, QFileDevice::Permissions permissions)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write("relay-key\n");
        file.close();
        file.setPermissions(permissions);
    }
    return path;
}

constexpr auto ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

} // namespace

// The "morvane-ai" relay of a real morvane-server, configured with a loopback stand-in for the
// Anthropic Messages API, and the bridge's relay route that calls it.
class TestAIRelay : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    ScriptedHttpServer m_vendor{anthropic};
    std::unique_ptr<TestBackend> m_backend;
    std::shared_ptr<QSettings> m_settings;

    // A bridge on the relay route, signed in as `userId`, consent given.
    ClaudeBridge relayBridge(const QString &userId)
    {
        m_settings->setValue(u"ai.provider"_s, u"morvaneAIOnly"_s);
        m_settings->setValue(u"ai.consent.morvaneAI"_s, true);
        ClaudeBridge bridge(m_settings, QProcessEnvironment(), m_dir.path());
        const QString token = QString::fromUtf8(m_backend->tokenFor(userId));
        bridge.setAccess({{},
                          m_backend->url(),
                          QString::fromUtf8(m_backend->anonKey()),
                          [token]() -> QCoro::Task<std::optional<QString>> { co_return token; }});
        return bridge;
    }

    QString failureOf(QCoro::Task<QString> task)
    {
        try {
            runBlocking(std::move(task));
        } catch (const MorvaneError &error) {
            return error.message();
        }
        return u"(no failure)"_s;
    }

private Q_SLOTS:
    void initTestCase()
    {
        Language::apply(u"en"_s);
        m_settings = std::make_shared<QSettings>(m_dir.filePath(u"settings.ini"_s), QSettings::IniFormat);
        const QString key = writeKey(m_dir.filePath(u"relay.key"_s), ownerOnly);
        m_backend = std::make_unique<TestBackend>(QStringList{u"--ai-provider"_s, u"anthropic"_s, u"--ai-key-file"_s,
                                                              key, u"--ai-base-url"_s, m_vendor.url().toString(),
                                                              u"--ai-calls-per-hour"_s, u"3"_s});
        QVERIFY2(m_backend->isReady(), qPrintable(m_backend->startupLog()));
    }

    // The operator's key goes to the vendor; the user's token, and nothing but the call, stays behind.
    void forwardsForASignedInUser()
    {
        const QString anna = m_backend->createUser(u"anna@example.nl"_s);
        const qsizetype before = m_vendor.requests().size();
        ClaudeBridge bridge = relayBridge(anna);
        QCOMPARE(runBlocking(bridge.parsePlain(u"FACTS: 3 h on Acme"_s, u"haiku"_s, 30, u"Write a recap."_s, u"low"_s)),
                 u"Relayed."_s);
        QCOMPARE(m_vendor.requests().size(), before + 1);
        const RecordedRequest &forwarded = m_vendor.requests().last();
        QCOMPARE(forwarded.path(), QByteArray("/v1/messages"));
        QCOMPARE(forwarded.header("x-api-key"), QByteArray("relay-key"));
        QVERIFY(!forwarded.hasHeader("authorization"));
        QVERIFY(!forwarded.hasHeader("apikey"));
        const QJsonObject body = QJsonDocument::fromJson(forwarded.body).object();
        QCOMPARE(body.value(u"system"_s).toString(), u"Write a recap."_s);
        QCOMPARE(body.value(u"messages"_s)[0][u"content"_s].toString(), u"FACTS: 3 h on Acme"_s);
        QCOMPARE(body.value(u"model"_s).toString(), u"claude-haiku-4-5"_s);

        // A capture call carries its schema through the relay, and the object comes back.
        const QJsonObject captured = runBlocking(bridge.parse({u"stop de timer"_s, {}, u"2026-03-05"_s}));
        QCOMPARE(captured.value(u"intent"_s).toString(), u"stop_timer"_s);
        const QJsonObject capture = QJsonDocument::fromJson(m_vendor.requests().last().body).object();
        QCOMPARE(capture.value(u"tools"_s)[0][u"input_schema"_s].toObject(),
                 QJsonDocument::fromJson(ClaudeBridge::jsonSchema().toUtf8()).object());
    }

    void refusesWhatItMustNotForward_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QString>("caller"); // "anon", "service" or "user"
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("code");

        const QByteArray good = "{\"system\":\"s\",\"input\":\"hello\"}";
        QTest::newRow("anonymous") << QByteArray("POST") << u"anon"_s << good << 401 << u"not_signed_in"_s;
        QTest::newRow("the service role")
            << QByteArray("POST") << u"service"_s << good << 403 << u"user_token_required"_s;
        QTest::newRow("GET") << QByteArray("GET") << u"user"_s << QByteArray() << 405 << u"method_not_allowed"_s;
        QTest::newRow("no input") << QByteArray("POST") << u"user"_s << QByteArray("{\"system\":\"s\"}") << 400
                                  << u"ai_bad_request"_s;
        QTest::newRow("over the size limit")
            << QByteArray("POST") << u"user"_s
            << QByteArray("{\"system\":\"s\",\"input\":\"") + QByteArray(300 * 1024, 'a') + QByteArray("\"}") << 413
            << u"ai_request_too_large"_s;
    }

    void refusesWhatItMustNotForward()
    {
        QFETCH(QByteArray, method);
        QFETCH(QString, caller);
        QFETCH(QByteArray, body);
        const QByteArray token =
            caller == u"anon" ? QByteArray()
            : caller == u"service"
                ? m_backend->serviceToken()
                : m_backend->tokenFor(m_backend->createUser(
                      u"refused-%1@example.nl"_s.arg(QLatin1String(QTest::currentDataTag())).replace(u' ', u'-')));
        const qsizetype before = m_vendor.requests().size();
        const HttpResult result = m_backend->request(method, "/functions/v1/morvane-ai", token, body);
        QTEST(result.status, "status");
        QTEST(result.code(), "code");
        QCOMPARE(m_vendor.requests().size(), before);
    }

    // Three calls an hour for this server: the fourth waits, and another user is not held back.
    void eachUserIsRateLimited()
    {
        ClaudeBridge cara = relayBridge(m_backend->createUser(u"cara@example.nl"_s));
        for (int call = 0; call < 3; ++call) {
            QCOMPARE(runBlocking(cara.parsePlain(u"x"_s, u"sonnet"_s, 30, u"s"_s, u"low"_s)), u"Relayed."_s);
        }
        const qsizetype before = m_vendor.requests().size();
        QVERIFY(failureOf(cara.parsePlain(u"x"_s, u"sonnet"_s, 30, u"s"_s, u"low"_s))
                    .startsWith(
                        u"Morvane AI answered with error 429: You have used the AI relay 3 times in the last hour."_s));
        QCOMPARE(m_vendor.requests().size(), before);
        ClaudeBridge dirk = relayBridge(m_backend->createUser(u"dirk@example.nl"_s));
        QCOMPARE(runBlocking(dirk.parsePlain(u"x"_s, u"sonnet"_s, 30, u"s"_s, u"low"_s)), u"Relayed."_s);
    }

    void aKeyOthersCanReadIsRefused()
    {
        const QString open = writeKey(m_dir.filePath(u"open.key"_s), ownerOnly | QFileDevice::ReadGroup);
        QProcess server;
        server.start(TestBackend::serverProgram(), {u"--data-dir"_s, m_dir.filePath(u"unused"_s), u"--ai-provider"_s,
                                                    u"openai"_s, u"--ai-key-file"_s, open});
        QVERIFY(server.waitForFinished(10000));
        QCOMPARE(server.exitCode(), 2);
        QVERIFY(server.readAllStandardError().contains("chmod 600"));
    }
};

QTEST_GUILESS_MAIN(TestAIRelay)
#include "tst_airelay.moc"
