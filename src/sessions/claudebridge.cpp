#include "claudebridge.h"

#include "sessions/captureprompt.h"
#include "sessions/claudebridgeerror.h"

#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLocale>
#include <QProcess>
#include <QSettings>

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

void ClaudeBridge::requireCommandLineRoute() const
{
    switch (currentRoute()) {
    case Route::ClaudeCLI:
        return;
    case Route::MorvaneAI:
        throw ClaudeRequestError(ClaudeRequestError::Kind::RouteNotConfigured, u"Morvane AI"_s);
    case Route::Anthropic:
        throw ClaudeRequestError(ClaudeRequestError::Kind::RouteNotConfigured, u"The Anthropic API"_s);
    case Route::OpenAI:
        throw ClaudeRequestError(ClaudeRequestError::Kind::RouteNotConfigured, u"The OpenAI API"_s);
    case Route::Gemini:
        throw ClaudeRequestError(ClaudeRequestError::Kind::RouteNotConfigured, u"The Google Gemini API"_s);
    }
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
    requireCommandLineRoute();
    QStringList arguments{u"--print"_s, u"--model"_s, u"sonnet"_s, u"--output-format"_s, u"json"_s};
    arguments += textInput();
    arguments += QStringList{u"--system-prompt"_s, parseSystemPrompt(input.knownProjects, input.todayISO, zone),
                             u"--json-schema"_s, jsonSchema(), noSessionLog};
    const QByteArray stdinText = QString(u"User input: "_s + input.userText).toUtf8();
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
    Q_UNUSED(effort)
    requireCommandLineRoute();
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
    requireCommandLineRoute();
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
