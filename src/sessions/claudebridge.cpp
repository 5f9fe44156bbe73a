#include "claudebridge.h"

#include "backend/secretstore.h"
#include "sessions/aiwire.h"
#include "sessions/captureprompt.h"
#include "sessions/claudebridgeerror.h"

#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLocale>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProcess>
#include <QSettings>
#include <QTimer>

#include <qcoro/qcoronetworkreply.h>
#include <qcoro/qcoroprocess.h>
#include <qcoro/qcorosignal.h>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

const QString overrideKey = u"ai.cliPath"_s;
const QString providerKey = u"ai.provider"_s;

bool isExecutableFile(const QString &path)
{
    const QFileInfo info(path);
    return info.isFile() && info.isExecutable();
}

// The process's result object, or why there is none.
QJsonObject resultObject(const QByteArray &out)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(out, &error);
    if (error.error != QJsonParseError::NoError) {
        throw ClaudeBridgeError::malformedJSON(error.errorString(), QString::fromUtf8(out));
    }
    if (!document.isObject()) {
        throw ClaudeBridgeError::malformedJSON(u"not an object"_s, QString::fromUtf8(out));
    }
    const QJsonObject object = document.object();
    if (object.value(u"is_error").toBool(false)) {
        throw ClaudeRequestError(ClaudeRequestError::Kind::ResultIsError);
    }
    return object;
}

QStringList textInput()
{
    return {u"--disable-slash-commands"_s, u"--input-format"_s, u"text"_s};
}

// The bridge's own runs must not leave session logs behind: they would show up among the
// user's sessions and be logged as billable work.
const QString noSessionLog = u"--no-session-persistence"_s;

struct HttpAnswer
{
    int status = 0;
    QByteArray body;
};

// One POST with an overall time-out. No answer at all, or none in time, is an AIRouteError; any
// HTTP status is the caller's to read.
QCoro::Task<HttpAnswer> post(AIHttpCall call, int timeoutSeconds, QString routeName)
{
    QNetworkAccessManager network;
    QNetworkRequest request(call.url);
    for (const auto &[name, value] : std::as_const(call.headers)) {
        request.setRawHeader(name, value);
    }
    // A key must never follow a redirect to another host.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    std::unique_ptr<QNetworkReply> reply(network.post(request, call.body));
    bool timedOut = false;
    QTimer overall;
    overall.setSingleShot(true);
    // Queued: aborting finishes the reply at once, which resumes this coroutine and would end the
    // timer while it is still delivering its signal.
    QObject::connect(
        &overall, &QTimer::timeout, reply.get(),
        [&timedOut, r = reply.get()] {
            timedOut = true;
            r->abort();
        },
        Qt::QueuedConnection);
    overall.start(std::chrono::seconds(timeoutSeconds));
    co_await reply.get();
    overall.stop();
    if (timedOut) {
        throw AIRouteError(AIRouteError::Kind::TimedOut, routeName, QString::number(timeoutSeconds));
    }
    const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    if (!status.isValid()) {
        throw AIRouteError(AIRouteError::Kind::Unreachable, routeName, reply->errorString());
    }
    co_return HttpAnswer{status.toInt(), reply->readAll()};
}

QString routeKey(ClaudeBridge::Route route)
{
    switch (route) {
    case ClaudeBridge::Route::ClaudeCLI:
        return u"claudeCLI"_s;
    case ClaudeBridge::Route::MorvaneAI:
        return u"morvaneAI"_s;
    case ClaudeBridge::Route::Anthropic:
        return u"anthropic"_s;
    case ClaudeBridge::Route::OpenAI:
        return u"openAI"_s;
    case ClaudeBridge::Route::Gemini:
        return u"gemini"_s;
    }
    return {};
}

std::optional<AIVendor> vendorOf(ClaudeBridge::Route route)
{
    switch (route) {
    case ClaudeBridge::Route::Anthropic:
        return AIVendor::Anthropic;
    case ClaudeBridge::Route::OpenAI:
        return AIVendor::OpenAI;
    case ClaudeBridge::Route::Gemini:
        return AIVendor::Gemini;
    case ClaudeBridge::Route::ClaudeCLI:
    case ClaudeBridge::Route::MorvaneAI:
        break;
    }
    return std::nullopt;
}

// The requests the HTTP routes accept are bounded by their time-out; the answers they read are
// bounded here, so a broken or hostile service cannot fill memory.
constexpr qsizetype maxAnswerBytes = 8 * 1024 * 1024;

struct FileStamp
{
    bool exists = false;
    QDateTime modified;
    qint64 size = 0;

    static FileStamp of(const QString &path)
    {
        const QFileInfo info(path);
        return {info.exists(), info.exists() ? info.lastModified() : QDateTime(), info.exists() ? info.size() : 0};
    }
    bool operator==(const FileStamp &) const = default;
};

} // namespace

namespace AIProviders {

QString storedName(AIProvider provider)
{
    switch (provider) {
    case AIProvider::Auto:
        return u"auto"_s;
    case AIProvider::CliOnly:
        return u"cliOnly"_s;
    case AIProvider::MorvaneAIOnly:
        return u"morvaneAIOnly"_s;
    case AIProvider::AnthropicCustom:
        return u"anthropicCustom"_s;
    case AIProvider::OpenAICustom:
        return u"openAICustom"_s;
    case AIProvider::GeminiCustom:
        return u"geminiCustom"_s;
    }
    return u"auto"_s;
}

AIProvider fromStoredName(const QString &name)
{
    for (AIProvider provider : {AIProvider::CliOnly, AIProvider::MorvaneAIOnly, AIProvider::AnthropicCustom,
                                AIProvider::OpenAICustom, AIProvider::GeminiCustom}) {
        if (storedName(provider) == name) {
            return provider;
        }
    }
    return AIProvider::Auto;
}

} // namespace AIProviders

ClaudeBridge::ClaudeBridge(std::shared_ptr<QSettings> settings, QProcessEnvironment environment, QString home)
    : m_settings(std::move(settings))
    , m_environment(std::move(environment))
    , m_candidates(defaultCandidates(home.isEmpty() ? QDir::homePath() : home))
{}

QStringList ClaudeBridge::defaultCandidates(const QString &home)
{
    return {u"/opt/homebrew/bin/claude"_s, u"/usr/local/bin/claude"_s, u"/usr/bin/claude"_s,
            home + u"/.local/bin/claude"_s};
}

QString ClaudeBridge::claudeCLIPath(const QSettings &settings, const QProcessEnvironment &environment,
                                    const QStringList &candidates)
{
    const QString chosen = settings.value(overrideKey).toString();
    if (!chosen.isEmpty() && isExecutableFile(chosen)) {
        return chosen;
    }
    const QString fromEnvironment = environment.value(u"CLAUDE_CLI_PATH"_s);
    if (!fromEnvironment.isEmpty()) {
        return fromEnvironment;
    }
    for (const QString &candidate : candidates) {
        if (isExecutableFile(candidate)) {
            return candidate;
        }
    }
    return candidates.value(0);
}

QString ClaudeBridge::claudeCLIPath() const
{
    return claudeCLIPath(*m_settings, m_environment, m_candidates);
}

ClaudeBridge::Route ClaudeBridge::route(AIProvider provider, bool cliAvailable)
{
    switch (provider) {
    case AIProvider::Auto:
        return cliAvailable ? Route::ClaudeCLI : Route::MorvaneAI;
    case AIProvider::CliOnly:
        return Route::ClaudeCLI;
    case AIProvider::MorvaneAIOnly:
        return Route::MorvaneAI;
    case AIProvider::AnthropicCustom:
        return Route::Anthropic;
    case AIProvider::OpenAICustom:
        return Route::OpenAI;
    case AIProvider::GeminiCustom:
        return Route::Gemini;
    }
    return Route::ClaudeCLI;
}

AIProvider ClaudeBridge::provider() const
{
    return AIProviders::fromStoredName(m_settings->value(providerKey).toString());
}

ClaudeBridge::Route ClaudeBridge::currentRoute() const
{
    return route(provider(), isExecutableFile(claudeCLIPath()));
}

QString ClaudeBridge::routeName(Route route)
{
    switch (route) {
    case Route::ClaudeCLI:
        return u"Claude CLI"_s;
    case Route::MorvaneAI:
        return u"Morvane AI"_s;
    case Route::Anthropic:
        return u"Anthropic API"_s;
    case Route::OpenAI:
        return u"OpenAI API"_s;
    case Route::Gemini:
        return u"Google Gemini API"_s;
    }
    return {};
}

QString ClaudeBridge::routeDestination(Route route)
{
    switch (route) {
    case Route::ClaudeCLI:
        //% "Your text goes to the claude program on this computer, which sends it to Anthropic under your own Claude
        // account. Morvane itself sends nothing over the network."
        return qtTrId("ai.route.claudeCLI.where");
    case Route::MorvaneAI:
        //% "Your text goes to the Morvane server you are signed in to, which passes it on to the AI service its
        // operator has chosen, and the answer comes back the same way."
        return qtTrId("ai.route.morvaneAI.where");
    case Route::Anthropic:
        //% "Your text goes straight from this computer to Anthropic, with your own API key."
        return qtTrId("ai.route.anthropic.where");
    case Route::OpenAI:
        //% "Your text goes straight from this computer to OpenAI, with your own API key."
        return qtTrId("ai.route.openAI.where");
    case Route::Gemini:
        //% "Your text goes straight from this computer to Google, with your own API key."
        return qtTrId("ai.route.gemini.where");
    }
    return {};
}

bool ClaudeBridge::needsConsent(Route route)
{
    return route != Route::ClaudeCLI;
}

std::optional<bool> ClaudeBridge::consent(Route route) const
{
    const QVariant stored = m_settings->value(u"ai.consent."_s + routeKey(route));
    if (!stored.isValid()) {
        return std::nullopt;
    }
    return stored.toBool();
}

void ClaudeBridge::setConsent(Route route, bool allowed)
{
    m_settings->setValue(u"ai.consent."_s + routeKey(route), allowed);
    m_settings->sync();
}

void ClaudeBridge::clearConsent(Route route)
{
    m_settings->remove(u"ai.consent."_s + routeKey(route));
    m_settings->sync();
}

QUrl ClaudeBridge::vendorBaseUrl(AIVendor vendor) const
{
    const QString name = AIWire::vendorName(vendor);
    const QUrl chosen(m_settings->value(u"ai.%1.baseUrl"_s.arg(name)).toString());
    if (chosen.isValid() && !chosen.host().isEmpty()) {
        return chosen;
    }
    const QUrl fromEnvironment(m_environment.value(u"MORVANE_AI_%1_URL"_s.arg(name.toUpper())));
    if (fromEnvironment.isValid() && !fromEnvironment.host().isEmpty()) {
        return fromEnvironment;
    }
    return AIWire::defaultBaseUrl(vendor);
}

QString ClaudeBridge::keyItem(AIVendor vendor)
{
    return u"morvane.ai.%1.key"_s.arg(AIWire::vendorName(vendor));
}

QCoro::Task<> ClaudeBridge::admit(Route route)
{
    if (!needsConsent(route)) {
        co_return;
    }
    std::optional<bool> answer = consent(route);
    if (!answer && m_consentHook) {
        answer = co_await m_consentHook(route);
        setConsent(route, *answer);
    }
    if (!answer) {
        throw AIRouteError(AIRouteError::Kind::ConsentMissing, routeName(route));
    }
    if (!*answer) {
        throw AIRouteError(AIRouteError::Kind::ConsentDeclined, routeName(route));
    }
}

QCoro::Task<QString> ClaudeBridge::askOverHttp(Route route, AIRequest request, int timeoutSeconds)
{
    const QString name = routeName(route);
    const std::optional<AIVendor> vendor = vendorOf(route);
    AIHttpCall call;
    if (vendor) {
        std::optional<QString> key;
        if (m_access.secrets) {
            key = co_await m_access.secrets->read(keyItem(*vendor));
        }
        if (!key || key->trimmed().isEmpty()) {
            throw AIRouteError(AIRouteError::Kind::NoKey, name);
        }
        call = AIWire::build(*vendor, vendorBaseUrl(*vendor), key->trimmed(), request);
    } else {
        std::optional<QString> token;
        if (m_access.accessToken) {
            token = co_await m_access.accessToken();
        }
        if (!token || token->isEmpty() || !m_access.backendUrl.isValid()) {
            throw AIRouteError(AIRouteError::Kind::NotSignedIn, name);
        }
        QUrl url = m_access.backendUrl;
        QString path = url.path();
        while (path.endsWith(u'/')) {
            path.chop(1);
        }
        url.setPath(path + u"/functions/v1/morvane-ai"_s);
        call.url = url;
        call.headers = {{"Content-Type", "application/json"},
                        {"apikey", m_access.anonKey.toUtf8()},
                        {"Authorization", "Bearer " + token->toUtf8()}};
        QJsonObject body{{u"system"_s, request.systemPrompt},
                         {u"input"_s, request.userText},
                         {u"model"_s, request.model},
                         {u"max_tokens"_s, request.maxTokens}};
        if (!request.schema.isEmpty()) {
            body.insert(u"schema"_s, request.schema);
        }
        call.body = QJsonDocument(body).toJson(QJsonDocument::Compact);
    }
    const HttpAnswer answer = co_await post(std::move(call), timeoutSeconds, name);
    if (answer.body.size() > maxAnswerBytes) {
        throw AIRouteError(AIRouteError::Kind::BadAnswer, name, u"the answer is too large"_s);
    }
    if (answer.status < 200 || answer.status > 299) {
        throw AIRouteError(AIRouteError::Kind::Status, name, AIWire::errorText(answer.body), answer.status);
    }
    if (!vendor) {
        const QJsonValue text = QJsonDocument::fromJson(answer.body).object().value(u"text");
        if (!text.isString()) {
            throw AIRouteError(AIRouteError::Kind::BadAnswer, name, u"no \"text\" in the answer"_s);
        }
        co_return text.toString();
    }
    const AIAnswer read = AIWire::readAnswer(*vendor, answer.body);
    if (!read.text) {
        throw AIRouteError(AIRouteError::Kind::BadAnswer, name, read.problem);
    }
    co_return *read.text;
}

QCoro::Task<ClaudeBridge::Output> ClaudeBridge::run(QStringList arguments, QByteArray input, QString workingDirectory,
                                                    int timeoutSeconds, bool workspace) const
{
    const QString program = claudeCLIPath();
    QProcess process;
    QProcessEnvironment environment = m_environment;
    environment.insert(u"NO_COLOR"_s, u"1"_s);
    process.setProcessEnvironment(environment);
    if (!workingDirectory.isEmpty()) {
        process.setWorkingDirectory(workingDirectory);
    }
    process.setProgram(program);
    process.setArguments(arguments);

    // Waiting on the state rather than on `started` alone: a program that cannot be executed
    // never sends `started`, and its failure must end the wait at once.
    process.start();
    while (process.state() == QProcess::Starting) {
        co_await qCoro(&process, &QProcess::stateChanged);
    }
    auto coProcess = qCoro(process);
    if (process.state() != QProcess::Running) {
        if (!QFileInfo::exists(program)) {
            throw ClaudeBridgeError::binaryMissing();
        }
        throw ClaudeBridgeError::launchFailed(process.errorString());
    }
    process.write(input);
    process.closeWriteChannel();

    const bool finished = co_await coProcess.waitForFinished(std::chrono::seconds(timeoutSeconds));
    if (!finished) {
        process.terminate();
        // A child that ignores the polite signal is not left running behind the user's back.
        const bool ended = co_await coProcess.waitForFinished(std::chrono::seconds(3));
        if (!ended) {
            process.kill();
            co_await coProcess.waitForFinished(std::chrono::seconds(3));
        }
        throw ClaudeRequestError(workspace ? ClaudeRequestError::Kind::WorkspaceTimedOut
                                           : ClaudeRequestError::Kind::TimedOut,
                                 QString::number(timeoutSeconds));
    }
    Output output;
    output.out = process.readAllStandardOutput();
    output.err = process.readAllStandardError();
    output.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    co_return output;
}

QCoro::Task<QJsonObject> ClaudeBridge::parse(ParseInput input, QTimeZone zone)
{
    const Route chosen = currentRoute();
    co_await admit(chosen);
    const QString systemPrompt = parseSystemPrompt(input.knownProjects, input.todayISO, zone);
    const QString userText = u"User input: "_s + input.userText;
    if (chosen != Route::ClaudeCLI) {
        AIRequest request{systemPrompt, userText, QJsonDocument::fromJson(jsonSchema().toUtf8()).object(), u"sonnet"_s};
        const QString text = co_await askOverHttp(chosen, std::move(request), parseTimeoutSeconds);
        // Every vendor is asked for exactly the object, but one that wraps it in prose or a fence
        // still gives a usable answer.
        const std::optional<QJsonObject> found = firstJSONObject(text);
        if (!found) {
            throw ClaudeRequestError(ClaudeRequestError::Kind::NoJSONObject);
        }
        co_return *found;
    }
    QStringList arguments{u"--print"_s, u"--model"_s, u"sonnet"_s, u"--output-format"_s, u"json"_s};
    arguments += textInput();
    arguments += QStringList{u"--system-prompt"_s, systemPrompt, u"--json-schema"_s, jsonSchema(), noSessionLog};
    const QByteArray stdinText = userText.toUtf8();
    const Output output = co_await run(arguments, stdinText, QString(), parseTimeoutSeconds, false);
    if (output.out.trimmed().isEmpty()) {
        throw ClaudeBridgeError::emptyOutput();
    }
    if (output.exitCode != 0) {
        throw ClaudeBridgeError::nonZeroExit(output.exitCode, QString::fromUtf8(output.err));
    }
    const QJsonObject result = resultObject(output.out);
    const QJsonValue structured = result.value(u"structured_output");
    if (structured.isObject()) {
        co_return structured.toObject();
    }
    const std::optional<QJsonObject> found = firstJSONObject(result.value(u"result").toString());
    if (!found) {
        throw ClaudeRequestError(ClaudeRequestError::Kind::NoJSONObject);
    }
    co_return *found;
}

QCoro::Task<QString> ClaudeBridge::parsePlain(QString userText, QString model, int timeoutSeconds, QString systemPrompt,
                                              QString effort)
{
    // The command-line program has no effort setting, and the HTTP routes leave it to the model.
    Q_UNUSED(effort)
    const Route chosen = currentRoute();
    co_await admit(chosen);
    if (chosen != Route::ClaudeCLI) {
        co_return co_await askOverHttp(chosen, AIRequest{systemPrompt, userText, {}, model}, timeoutSeconds);
    }
    QStringList arguments{u"--print"_s, u"--model"_s, model, u"--output-format"_s, u"json"_s};
    arguments += textInput();
    arguments += QStringList{u"--system-prompt"_s, systemPrompt, noSessionLog};
    const Output output = co_await run(arguments, userText.toUtf8(), QString(), timeoutSeconds, false);
    if (output.out.trimmed().isEmpty()) {
        throw ClaudeBridgeError::emptyOutput();
    }
    if (output.exitCode != 0) {
        throw ClaudeBridgeError::nonZeroExit(output.exitCode, QString::fromUtf8(output.err));
    }
    const QJsonObject result = resultObject(output.out);
    const QJsonValue text = result.contains(u"result") ? result.value(u"result") : result.value(u"response");
    if (!text.isString()) {
        throw ClaudeBridgeError::emptyOutput();
    }
    co_return text.toString();
}

QCoro::Task<QString> ClaudeBridge::parseWithWorkspace(QString prompt, QString workspaceDir, QString outputPath,
                                                      QString model, int timeoutSeconds)
{
    const Route chosen = currentRoute();
    if (chosen != Route::ClaudeCLI) {
        throw AIRouteError(AIRouteError::Kind::NeedsCLI, routeName(chosen));
    }
    const QString target = QDir(workspaceDir).absoluteFilePath(outputPath);
    const FileStamp before = FileStamp::of(target);
    QStringList arguments{u"--print"_s,
                          u"--model"_s,
                          model,
                          u"--add-dir"_s,
                          workspaceDir,
                          u"--allowedTools"_s,
                          u"Read,Write,Edit,Glob,Grep"_s,
                          u"--permission-mode"_s,
                          u"bypassPermissions"_s};
    arguments += textInput();
    arguments.append(noSessionLog);
    const Output output = co_await run(arguments, prompt.toUtf8(), workspaceDir, timeoutSeconds, true);
    if (output.exitCode != 0) {
        throw ClaudeBridgeError::nonZeroExit(output.exitCode, QString::fromUtf8(output.err));
    }
    // A file left from an earlier run does not count as written by this one.
    const FileStamp after = FileStamp::of(target);
    QFile file(target);
    if (!after.exists || after == before || !file.open(QIODevice::ReadOnly)) {
        throw ClaudeRequestError(ClaudeRequestError::Kind::OutputNotWritten, QFileInfo(target).fileName());
    }
    co_return QString::fromUtf8(file.readAll());
}

QString ClaudeBridge::parseSystemPrompt(const QStringList &knownProjects, const QString &todayISO,
                                        const QTimeZone &zone)
{
    return CapturePrompt::systemPrompt(knownProjects, todayISO, zone);
}

QString ClaudeBridge::jsonSchema()
{
    return CapturePrompt::jsonSchema();
}

std::optional<QString> ClaudeBridge::extractHTMLDocument(const QString &text)
{
    const qsizetype start = text.indexOf(u"<!doctype html", 0, Qt::CaseInsensitive);
    if (start < 0) {
        return std::nullopt;
    }
    const QLatin1StringView close("</html>");
    const qsizetype end = text.lastIndexOf(close, -1, Qt::CaseInsensitive);
    if (end < start) {
        return std::nullopt;
    }
    return text.mid(start, end + close.size() - start);
}

std::optional<QJsonObject> ClaudeBridge::firstJSONObject(const QString &text)
{
    for (qsizetype open = text.indexOf(u'{'); open >= 0; open = text.indexOf(u'{', open + 1)) {
        // The brace that closes this one, minding strings and their escapes.
        int depth = 0;
        bool inString = false;
        bool escaped = false;
        for (qsizetype i = open; i < text.size(); ++i) {
            const QChar c = text[i];
            if (inString) {
                if (escaped) {
                    escaped = false;
                } else if (c == u'\\') {
                    escaped = true;
                } else if (c == u'"') {
                    inString = false;
                }
                continue;
            }
            if (c == u'"') {
                inString = true;
            } else if (c == u'{') {
                ++depth;
            } else if (c == u'}' && --depth == 0) {
                const QJsonDocument document = QJsonDocument::fromJson(text.mid(open, i + 1 - open).toUtf8());
                if (document.isObject()) {
                    return document.object();
                }
                break;
            }
        }
    }
    return std::nullopt;
}
