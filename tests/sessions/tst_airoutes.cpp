#include "backend/runblocking.h"
#include "backend/secretstore.h"
#include "i18n/language.h"
#include "sessions/aiwire.h"
#include "sessions/claudebridge.h"
#include "sessions/claudebridgeerror.h"
#include "support/aivendors.h"
#include "support/scriptedhttpserver.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

template<typename T>
QString failureOf(QCoro::Task<T> task)
{
    try {
        runBlocking(std::move(task));
    } catch (const MorvaneError &error) {
        return error.message();
    }
    return u"(no failure)"_s;
}

// The value at a path such as "messages/0/content" in a request's JSON body.
QJsonValue at(const RecordedRequest &request, const QString &path)
{
    QJsonValue value = QJsonDocument::fromJson(request.body).object();
    for (const QString &step : path.split(u'/')) {
        bool index = false;
        const int i = step.toInt(&index);
        value = index ? value.toArray().at(i) : value.toObject().value(step);
    }
    return value;
}

const QJsonObject captureAnswer{{u"intent"_s, u"log_time"_s}, {u"minutes"_s, 90}};

} // namespace

// The HTTP routes of the bridge against loopback servers that answer as each vendor documents,
// and the consent gate every call passes.
class TestAIRoutes : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    std::shared_ptr<QSettings> m_settings;
    std::shared_ptr<SecretStore> m_secrets;
    std::unique_ptr<ScriptedHttpServer> m_vendor;

    // A bridge on `provider` whose vendors all live at the loopback server; consent is given
    // unless the test takes it back.
    ClaudeBridge bridge(const QString &provider)
    {
        m_settings->setValue(u"ai.provider"_s, provider);
        for (const char *vendor : {"anthropic", "openai", "gemini"}) {
            m_settings->setValue(u"ai.%1.baseUrl"_s.arg(QLatin1String(vendor)), m_vendor->url().toString());
        }
        ClaudeBridge made(m_settings, QProcessEnvironment(), m_dir.path());
        made.setCandidates({m_dir.filePath(u"no/claude"_s)});
        made.setAccess({m_secrets, {}, {}, {}});
        return made;
    }

    void allowAll()
    {
        for (const char *route : {"anthropic", "openAI", "gemini", "morvaneAI"}) {
            m_settings->setValue(u"ai.consent."_s + QLatin1String(route), true);
        }
    }

private Q_SLOTS:
    void initTestCase()
    {
        Language::apply(u"en"_s);
        m_settings = std::make_shared<QSettings>(m_dir.filePath(u"settings.ini"_s), QSettings::IniFormat);
        m_secrets = SecretStore::file(m_dir.filePath(u"secrets.json"_s));
        for (const char *vendor : {"anthropic", "openai", "gemini"}) {
            QVERIFY(runBlocking(m_secrets->write(u"morvane.ai.%1.key"_s.arg(QLatin1String(vendor)),
                                                 u"key-of-"_s + QLatin1String(vendor))));
        }
    }

    void init()
    {
        m_settings->clear();
        m_vendor = std::make_unique<ScriptedHttpServer>(
            [](const RecordedRequest &) { return ScriptedHttpServer::json(500, "{}"); });
        allowAll();
    }

    void eachVendorGetsItsOwnRequestFormat_data()
    {
        QTest::addColumn<QString>("provider");
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QByteArray>("keyHeader");
        QTest::addColumn<QStringList>("where"); // of the system prompt, the user text and the schema

        QTest::newRow("Anthropic Messages")
            << u"anthropicCustom"_s << QByteArray("/v1/messages") << QByteArray("x-api-key: key-of-anthropic")
            << QStringList{u"system"_s, u"messages/0/content"_s, u"tools/0/input_schema"_s};
        QTest::newRow("OpenAI chat completions")
            << u"openAICustom"_s << QByteArray("/v1/chat/completions")
            << QByteArray("authorization: Bearer key-of-openai")
            << QStringList{u"messages/0/content"_s, u"messages/1/content"_s, u"response_format/json_schema/schema"_s};
        QTest::newRow("Google generateContent")
            << u"geminiCustom"_s << QByteArray("/v1beta/models/gemini-3.8-flash:generateContent")
            << QByteArray("x-goog-api-key: key-of-gemini")
            << QStringList{u"systemInstruction/parts/0/text"_s, u"contents/0/parts/0/text"_s,
                           u"generationConfig/responseJsonSchema"_s};
    }

    // The same system prompt, user text and schema reach every vendor, each where its format wants
    // them, and each answer comes back as text or as the capture object.
    void eachVendorGetsItsOwnRequestFormat()
    {
        QFETCH(QString, provider);
        QFETCH(QByteArray, path);
        QFETCH(QByteArray, keyHeader);
        QFETCH(QStringList, where);
        const QString vendor = provider.left(provider.indexOf(u"Custom"_s)).toLower();
        const QString captureText = QString::fromUtf8(QJsonDocument(captureAnswer).toJson(QJsonDocument::Compact));
        m_vendor->setHandler([&](const RecordedRequest &request) {
            const bool structured = request.body.contains("intent");
            return ScriptedHttpServer::json(
                200, vendorAnswer(vendor, structured ? captureText : u"Three lines of week."_s, structured));
        });
        ClaudeBridge routed = bridge(provider);
        QCOMPARE(runBlocking(routed.parsePlain(u"FACTS: 3 h"_s, u"sonnet"_s, 30, u"Write a recap."_s, u"low"_s)),
                 u"Three lines of week."_s);
        QCOMPARE(runBlocking(routed.parse({u"anderhalf uur aan Acme"_s, {u"Acme"_s}, u"2026-03-05"_s})), captureAnswer);

        QCOMPARE(m_vendor->requests().size(), 2);
        const RecordedRequest &plain = m_vendor->requests().at(0);
        const RecordedRequest &capture = m_vendor->requests().at(1);
        QCOMPARE(plain.path(), path);
        const QList<QByteArray> key = keyHeader.split(':');
        QCOMPARE(plain.header(key[0]), key[1].trimmed());
        QVERIFY(!plain.target.contains("key-of")); // never in the address
        QCOMPARE(at(plain, where[0]).toString(), u"Write a recap."_s);
        QCOMPARE(at(plain, where[1]).toString(), u"FACTS: 3 h"_s);
        QVERIFY(at(plain, where[2]).isUndefined());
        QCOMPARE(at(capture, where[0]).toString(),
                 ClaudeBridge::parseSystemPrompt({u"Acme"_s}, u"2026-03-05"_s, QTimeZone::systemTimeZone()));
        QCOMPARE(at(capture, where[1]).toString(), u"User input: anderhalf uur aan Acme"_s);
        QCOMPARE(at(capture, where[2]).toObject(),
                 QJsonDocument::fromJson(ClaudeBridge::jsonSchema().toUtf8()).object());
    }

    void failuresShowTheVendorsOwnWords_data()
    {
        QTest::addColumn<QString>("provider");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("message");

        QTest::newRow("Anthropic: key refused")
            << u"anthropicCustom"_s << 401
            << QByteArray("{\"type\":\"error\",\"error\":{\"type\":\"authentication_error\",\"message\":\"invalid "
                          "x-api-key\"}}")
            << u"Anthropic API answered with error 401: invalid x-api-key"_s;
        QTest::newRow("OpenAI: quota")
            << u"openAICustom"_s << 429
            << QByteArray("{\"error\":{\"message\":\"You exceeded your current quota.\","
                          "\"type\":\"insufficient_quota\",\"param\":null,\"code\":\"insufficient_quota\"}}")
            << u"OpenAI API answered with error 429: You exceeded your current quota."_s;
        QTest::newRow("Google: bad argument")
            << u"geminiCustom"_s << 400
            << QByteArray("{\"error\":{\"code\":400,\"message\":\"API key not valid. Please pass a valid API key.\","
                          "\"status\":\"INVALID_ARGUMENT\"}}")
            << u"Google Gemini API answered with error 400: API key not valid. Please pass a valid API key."_s;
        QTest::newRow("a slow answer is cut by the time-out")
            << u"anthropicCustom"_s << 0 << QByteArray() << u"Anthropic API did not answer within 2 s"_s;
        QTest::newRow("Google: prompt blocked")
            << u"geminiCustom"_s << 200 << QByteArray("{\"promptFeedback\":{\"blockReason\":\"SAFETY\"}}")
            << u"Google Gemini API sent an answer Morvane cannot use: the request was blocked (SAFETY)"_s;
    }

    void failuresShowTheVendorsOwnWords()
    {
        QFETCH(QString, provider);
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        m_vendor->setHandler([&](const RecordedRequest &) {
            return status == 0 ? ScriptedResponse{200, {}, {}, true} : ScriptedHttpServer::json(status, body);
        });
        QTEST(failureOf(bridge(provider).parsePlain(u"x"_s, u"sonnet"_s, 2, u"s"_s, u"low"_s)), "message");
    }

    void withoutAKeyNothingIsSent()
    {
        QVERIFY(runBlocking(m_secrets->remove(u"morvane.ai.gemini.key"_s)));
        QCOMPARE(failureOf(bridge(u"geminiCustom"_s).parsePlain(u"x"_s, u"sonnet"_s, 30, u"s"_s, u"low"_s)),
                 u"There is no API key for Google Gemini API in your keyring. Add your key in the AI settings."_s);
        QVERIFY(m_vendor->requests().isEmpty());
        QVERIFY(runBlocking(m_secrets->write(u"morvane.ai.gemini.key"_s, u"key-of-gemini"_s)));
    }

    // Asked once per route, the answer remembered; a no is kept too, and nothing leaves the machine
    // without a yes.
    void consentIsAskedOncePerRoute()
    {
        for (const char *route : {"anthropic", "openAI", "gemini"}) {
            m_settings->remove(u"ai.consent."_s + QLatin1String(route));
        }
        m_vendor->setHandler([](const RecordedRequest &) {
            return ScriptedHttpServer::json(200, vendorAnswer(u"anthropic"_s, u"ok"_s, false));
        });
        QList<ClaudeBridge::Route> asked;
        bool answer = true;
        auto hook = [&](ClaudeBridge::Route route) -> QCoro::Task<bool> {
            asked.append(route);
            co_return answer;
        };

        ClaudeBridge anthropic = bridge(u"anthropicCustom"_s);
        QCOMPARE(failureOf(anthropic.parsePlain(u"x"_s, u"sonnet"_s, 30, u"s"_s, u"low"_s)),
                 u"Morvane asks before it sends your text to Anthropic API for the first time. Answer that question "
                 u"in the window, or run the command again with --yes."_s);
        QVERIFY(m_vendor->requests().isEmpty());

        anthropic.setConsentHook(hook);
        QCOMPARE(runBlocking(anthropic.parsePlain(u"x"_s, u"sonnet"_s, 30, u"s"_s, u"low"_s)), u"ok"_s);
        QCOMPARE(runBlocking(anthropic.parsePlain(u"y"_s, u"sonnet"_s, 30, u"s"_s, u"low"_s)), u"ok"_s);
        QCOMPARE(asked, QList{ClaudeBridge::Route::Anthropic});
        // Remembered beyond this bridge, as the settings are.
        QCOMPARE(bridge(u"anthropicCustom"_s).consent(ClaudeBridge::Route::Anthropic), std::optional<bool>(true));

        answer = false;
        ClaudeBridge openAI = bridge(u"openAICustom"_s);
        openAI.setConsentHook(hook);
        const QString declined = u"You chose not to send your text to OpenAI API. You can change this in the AI "
                                 u"settings."_s;
        QCOMPARE(failureOf(openAI.parsePlain(u"x"_s, u"sonnet"_s, 30, u"s"_s, u"low"_s)), declined);
        QCOMPARE(asked, (QList{ClaudeBridge::Route::Anthropic, ClaudeBridge::Route::OpenAI}));
        QCOMPARE(m_vendor->requests().size(), 2);

        // The program runs on the user's own account and Morvane sends nothing itself: not asked.
        ClaudeBridge program = bridge(u"cliOnly"_s);
        program.setConsentHook(hook);
        QVERIFY(failureOf(program.parsePlain(u"x"_s, u"sonnet"_s, 30, u"s"_s, u"low"_s)).startsWith(u"AI features"_s));
        QCOMPARE(asked.size(), 2);
    }

    void baseAddressFromSettingThenEnvironment()
    {
        QProcessEnvironment environment;
        environment.insert(u"MORVANE_AI_OPENAI_URL"_s, u"http://gateway.example:8080/openai"_s);
        ClaudeBridge routed(m_settings, environment, m_dir.path());
        QCOMPARE(routed.vendorBaseUrl(AIVendor::OpenAI), QUrl(u"http://gateway.example:8080/openai"_s));
        m_settings->setValue(u"ai.openai.baseUrl"_s, u"https://own.example"_s);
        QCOMPARE(routed.vendorBaseUrl(AIVendor::OpenAI), QUrl(u"https://own.example"_s));
        // A gateway under a path keeps its path before the vendor's.
        const AIHttpCall call =
            AIWire::build(AIVendor::OpenAI, QUrl(u"http://gateway.example:8080/openai/"_s), u"k"_s, {});
        QCOMPARE(call.url.toString(), u"http://gateway.example:8080/openai/v1/chat/completions"_s);
        // A model name goes into Google's path, so one that could bend it is not taken.
        QCOMPARE(AIWire::modelFor(AIVendor::Gemini, u"../../v1/files?x="_s), u"gemini-3.8-flash"_s);
    }
};

QTEST_GUILESS_MAIN(TestAIRoutes)
#include "tst_airoutes.moc"
