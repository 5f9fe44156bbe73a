#include "backend/runblocking.h"
#include "backend/secretstore.h"
#include "i18n/language.h"
#include "sessions/aiwire.h"
#include "sessions/claudebridge.h"
#include "sessions/claudebridgeerror.h"
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

QJsonObject bodyOf(const RecordedRequest &request)
{
    return QJsonDocument::fromJson(request.body).object();
}

// Each vendor's answer as its documentation shows it, carrying `text`.
QByteArray vendorAnswer(const QString &vendor, const QString &text, bool asTool)
{
    QJsonObject answer;
    if (vendor == u"anthropic") {
        const QJsonObject block = asTool ? QJsonObject{{u"type"_s, u"tool_use"_s},
                                                       {u"id"_s, u"toolu_1"_s},
                                                       {u"name"_s, u"answer"_s},
                                                       {u"input"_s, QJsonDocument::fromJson(text.toUtf8()).object()}}
                                         : QJsonObject{{u"type"_s, u"text"_s}, {u"text"_s, text}};
        answer = {{u"id"_s, u"msg_1"_s},
                  {u"type"_s, u"message"_s},
                  {u"role"_s, u"assistant"_s},
                  {u"content"_s, QJsonArray{block}},
                  {u"stop_reason"_s, asTool ? u"tool_use"_s : u"end_turn"_s}};
    } else if (vendor == u"openai") {
        answer = {{u"id"_s, u"chatcmpl-1"_s},
                  {u"object"_s, u"chat.completion"_s},
                  {u"choices"_s, QJsonArray{QJsonObject{{u"index"_s, 0},
                                                        {u"message"_s, QJsonObject{{u"role"_s, u"assistant"_s},
                                                                                   {u"content"_s, text},
                                                                                   {u"refusal"_s, QJsonValue::Null}}},
                                                        {u"finish_reason"_s, u"stop"_s}}}}};
    } else {
        answer = {{u"candidates"_s,
                   QJsonArray{QJsonObject{
                       {u"content"_s,
                        QJsonObject{{u"role"_s, u"model"_s}, {u"parts"_s, QJsonArray{QJsonObject{{u"text"_s, text}}}}}},
                       {u"finishReason"_s, u"STOP"_s}}}}};
    }
    return QJsonDocument(answer).toJson(QJsonDocument::Compact);
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
    int m_asked = 0;

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
        QTest::addColumn<QString>("vendor");
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QByteArray>("keyHeader");
        QTest::addColumn<QByteArray>("keyValue");

        QTest::newRow("Anthropic Messages") << u"anthropicCustom"_s << u"anthropic"_s << QByteArray("/v1/messages")
                                            << QByteArray("x-api-key") << QByteArray("key-of-anthropic");
        QTest::newRow("OpenAI chat completions")
            << u"openAICustom"_s << u"openai"_s << QByteArray("/v1/chat/completions") << QByteArray("authorization")
            << QByteArray("Bearer key-of-openai");
        QTest::newRow("Google generateContent")
            << u"geminiCustom"_s << u"gemini"_s << QByteArray("/v1beta/models/gemini-3.8-flash:generateContent")
            << QByteArray("x-goog-api-key") << QByteArray("key-of-gemini");
    }

    // The same system prompt, user text and schema reach every vendor, each where its format wants
    // them, and each answer comes back as text or as the capture object.
    void eachVendorGetsItsOwnRequestFormat()
    {
        QFETCH(QString, provider);
        QFETCH(QString, vendor);
        QFETCH(QByteArray, path);
        QFETCH(QByteArray, keyHeader);
        QFETCH(QByteArray, keyValue);
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
        QCOMPARE(plain.method, QByteArray("POST"));
        QCOMPARE(plain.path(), path);
        QCOMPARE(plain.header(keyHeader), keyValue);
        // The key travels in its header only, never in the address.
        QVERIFY(!plain.target.contains("key-of"));

        const QJsonObject plainBody = bodyOf(plain);
        const QJsonObject captureBody = bodyOf(capture);
        const QString captureSystem =
            ClaudeBridge::parseSystemPrompt({u"Acme"_s}, u"2026-03-05"_s, QTimeZone::systemTimeZone());
        const QJsonObject schema = QJsonDocument::fromJson(ClaudeBridge::jsonSchema().toUtf8()).object();
        if (vendor == u"anthropic") {
            QCOMPARE(plain.header("anthropic-version"), QByteArray("2023-06-01"));
            QCOMPARE(plainBody.value(u"model"_s).toString(), u"claude-sonnet-5-5"_s);
            QCOMPARE(plainBody.value(u"system"_s).toString(), u"Write a recap."_s);
            QCOMPARE(plainBody.value(u"messages"_s)[0][u"content"_s].toString(), u"FACTS: 3 h"_s);
            QVERIFY(!plainBody.contains(u"tools"_s));
            QCOMPARE(captureBody.value(u"system"_s).toString(), captureSystem);
            QCOMPARE(captureBody.value(u"messages"_s)[0][u"content"_s].toString(),
                     u"User input: anderhalf uur aan Acme"_s);
            QCOMPARE(captureBody.value(u"tools"_s)[0][u"input_schema"_s].toObject(), schema);
            QCOMPARE(captureBody.value(u"tool_choice"_s)[u"name"_s].toString(), u"answer"_s);
        } else if (vendor == u"openai") {
            QCOMPARE(plainBody.value(u"model"_s).toString(), u"gpt-6.1-sol"_s);
            QCOMPARE(plainBody.value(u"messages"_s)[0][u"content"_s].toString(), u"Write a recap."_s);
            QCOMPARE(plainBody.value(u"messages"_s)[1][u"content"_s].toString(), u"FACTS: 3 h"_s);
            QVERIFY(!plainBody.contains(u"response_format"_s));
            QCOMPARE(captureBody.value(u"messages"_s)[0][u"content"_s].toString(), captureSystem);
            QCOMPARE(captureBody.value(u"response_format"_s)[u"json_schema"_s][u"schema"_s].toObject(), schema);
        } else {
            QCOMPARE(plainBody.value(u"systemInstruction"_s)[u"parts"_s][0][u"text"_s].toString(), u"Write a recap."_s);
            QCOMPARE(plainBody.value(u"contents"_s)[0][u"parts"_s][0][u"text"_s].toString(), u"FACTS: 3 h"_s);
            QVERIFY(!plainBody.value(u"generationConfig"_s).toObject().contains(u"responseJsonSchema"_s));
            QCOMPARE(captureBody.value(u"systemInstruction"_s)[u"parts"_s][0][u"text"_s].toString(), captureSystem);
            QCOMPARE(captureBody.value(u"generationConfig"_s)[u"responseJsonSchema"_s].toObject(), schema);
            QCOMPARE(captureBody.value(u"generationConfig"_s)[u"responseMimeType"_s].toString(), u"application/json"_s);
        }
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
        QTest::newRow("Anthropic: overloaded")
            << u"anthropicCustom"_s << 529
            << QByteArray("{\"type\":\"error\",\"error\":{\"type\":\"overloaded_error\",\"message\":\"Overloaded\"}}")
            << u"Anthropic API answered with error 529: Overloaded"_s;
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
        QTest::newRow("a gateway's HTML page")
            << u"openAICustom"_s << 502 << QByteArray("<html><body>Bad Gateway</body></html>")
            << u"OpenAI API answered with error 502: <html><body>Bad Gateway</body></html>"_s;
        QTest::newRow("OpenAI: refusal")
            << u"openAICustom"_s << 200
            << QByteArray("{\"choices\":[{\"message\":{\"role\":\"assistant\",\"content\":null,\"refusal\":\"I can't "
                          "help.\"}}]}")
            << u"OpenAI API sent an answer Morvane cannot use: the model refused: I can't help."_s;
        QTest::newRow("Google: prompt blocked")
            << u"geminiCustom"_s << 200 << QByteArray("{\"promptFeedback\":{\"blockReason\":\"SAFETY\"}}")
            << u"Google Gemini API sent an answer Morvane cannot use: the request was blocked (SAFETY)"_s;
        QTest::newRow("Anthropic: no text at all")
            << u"anthropicCustom"_s << 200 << QByteArray("{\"content\":[],\"stop_reason\":\"max_tokens\"}")
            << u"Anthropic API sent an answer Morvane cannot use: the answer holds no text (stop reason: max_tokens)"_s;
        QTest::newRow("a 200 that is not JSON") << u"geminiCustom"_s << 200 << QByteArray("ok")
                                                << u"Google Gemini API sent an answer Morvane cannot use: the answer "
                                                   u"is not JSON (illegal value)"_s;
    }

    void failuresShowTheVendorsOwnWords()
    {
        QFETCH(QString, provider);
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        m_vendor->setHandler([&](const RecordedRequest &) { return ScriptedHttpServer::json(status, body); });
        QTEST(failureOf(bridge(provider).parsePlain(u"x"_s, u"sonnet"_s, 30, u"s"_s, u"low"_s)), "message");
    }

    void aSlowAnswerIsCutByTheTimeOut()
    {
        m_vendor->setHandler([](const RecordedRequest &) { return ScriptedResponse{200, {}, {}, true}; });
        QCOMPARE(failureOf(bridge(u"anthropicCustom"_s).parsePlain(u"x"_s, u"sonnet"_s, 1, u"s"_s, u"low"_s)),
                 u"Anthropic API did not answer within 1 s"_s);
    }

    void aCaptureAnswerWithoutObjectFails()
    {
        m_vendor->setHandler([](const RecordedRequest &) {
            return ScriptedHttpServer::json(200, vendorAnswer(u"openai"_s, u"Sorry, no idea."_s, false));
        });
        QCOMPARE(failureOf(bridge(u"openAICustom"_s).parse({u"x"_s, {}, u"2026-03-05"_s})),
                 u"no JSON object detected"_s);
    }

    void withoutAKeyNothingIsSent()
    {
        QVERIFY(runBlocking(m_secrets->remove(u"morvane.ai.gemini.key"_s)));
        QCOMPARE(failureOf(bridge(u"geminiCustom"_s).parsePlain(u"x"_s, u"sonnet"_s, 30, u"s"_s, u"low"_s)),
                 u"There is no API key for Google Gemini API in your keyring. Add your key in the AI settings."_s);
        QVERIFY(m_vendor->requests().isEmpty());
        QVERIFY(runBlocking(m_secrets->write(u"morvane.ai.gemini.key"_s, u"key-of-gemini"_s)));
    }

    void theRelayNeedsASignedInUser()
    {
        QCOMPARE(failureOf(bridge(u"morvaneAIOnly"_s).parsePlain(u"x"_s, u"sonnet"_s, 30, u"s"_s, u"low"_s)),
                 u"Morvane AI works only while you are signed in. Sign in, then try again."_s);
    }

    void workspaceRunsNeedTheProgram()
    {
        QTemporaryDir workspace;
        QCOMPARE(
            failureOf(
                bridge(u"openAICustom"_s).parseWithWorkspace(u"p"_s, workspace.path(), u"t.html"_s, u"sonnet"_s, 5)),
            u"This needs the Claude CLI, which can work with files; OpenAI API cannot. Choose the Claude CLI "
            u"in the AI settings."_s);
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
        QCOMPARE(failureOf(openAI.parse({u"x"_s, {}, u"2026-03-05"_s})), declined);
        QCOMPARE(asked, (QList{ClaudeBridge::Route::Anthropic, ClaudeBridge::Route::OpenAI}));
        QCOMPARE(m_vendor->requests().size(), 2);

        // The program runs on the user's own account and Morvane sends nothing itself: not asked.
        ClaudeBridge program = bridge(u"cliOnly"_s);
        program.setConsentHook(hook);
        QVERIFY(failureOf(program.parsePlain(u"x"_s, u"sonnet"_s, 30, u"s"_s, u"low"_s)).startsWith(u"AI features"_s));
        QCOMPARE(asked.size(), 2);
        QVERIFY(!ClaudeBridge::routeDestination(ClaudeBridge::Route::MorvaneAI).isEmpty());
    }

    void vendorModelsAndAddresses_data()
    {
        QTest::addColumn<QString>("vendor");
        QTest::addColumn<QString>("asked");
        QTest::addColumn<QString>("model");
        QTest::newRow("sonnet at Anthropic") << u"anthropic"_s << u"sonnet"_s << u"claude-sonnet-5-5"_s;
        QTest::newRow("haiku at Anthropic") << u"anthropic"_s << u"haiku"_s << u"claude-haiku-4-5"_s;
        QTest::newRow("opus at Anthropic") << u"anthropic"_s << u"opus"_s << u"claude-opus-5-5"_s;
        QTest::newRow("haiku at OpenAI: the small one") << u"openai"_s << u"haiku"_s << u"gpt-6-luna"_s;
        QTest::newRow("nothing at Google: the default") << u"gemini"_s << QString() << u"gemini-3.8-flash"_s;
        QTest::newRow("an own identifier stays")
            << u"gemini"_s << u"gemini-3.5-flash-lite"_s << u"gemini-3.5-flash-lite"_s;
        QTest::newRow("a name that would bend the path")
            << u"gemini"_s << u"../../v1/files?x="_s << u"gemini-3.8-flash"_s;
    }

    void vendorModelsAndAddresses()
    {
        QFETCH(QString, vendor);
        QFETCH(QString, asked);
        QTEST(AIWire::modelFor(*AIWire::vendorFromName(vendor), asked), "model");
    }

    void baseAddressFromSettingThenEnvironment()
    {
        QProcessEnvironment environment;
        environment.insert(u"MORVANE_AI_OPENAI_URL"_s, u"http://gateway.example:8080/openai"_s);
        ClaudeBridge routed(m_settings, environment, m_dir.path());
        QCOMPARE(routed.vendorBaseUrl(AIVendor::OpenAI), QUrl(u"http://gateway.example:8080/openai"_s));
        QCOMPARE(routed.vendorBaseUrl(AIVendor::Anthropic), QUrl(u"https://api.anthropic.com"_s));
        m_settings->setValue(u"ai.openai.baseUrl"_s, u"https://own.example"_s);
        QCOMPARE(routed.vendorBaseUrl(AIVendor::OpenAI), QUrl(u"https://own.example"_s));
        // A gateway under a path keeps its path before the vendor's.
        const AIHttpCall call =
            AIWire::build(AIVendor::OpenAI, QUrl(u"http://gateway.example:8080/openai/"_s), u"k"_s, {});
        QCOMPARE(call.url.toString(), u"http://gateway.example:8080/openai/v1/chat/completions"_s);
    }
};

QTEST_GUILESS_MAIN(TestAIRoutes)
#include "tst_airoutes.moc"
