#pragma once

#include <QJsonObject>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTimeZone>

#include <qcoro/qcorotask.h>

#include <memory>
#include <optional>

class QSettings;

// Where the user wants model calls to go. Stored under "ai.provider" by these names.
enum class AIProvider { Auto, CliOnly, MorvaneAIOnly, AnthropicCustom, OpenAICustom, GeminiCustom };

namespace AIProviders {
QString storedName(AIProvider provider);
// Unknown or missing names mean Auto.
AIProvider fromStoredName(const QString &name);
} // namespace AIProviders

// The one way text work reaches a Claude model through the local `claude` program: capture of
// free text as JSON, plain text from facts, and an agent run that writes a file in a scratch
// folder. Each call starts its own child process with its own time-out, so calls may overlap.
class ClaudeBridge
{
public:
    enum class Route { ClaudeCLI, MorvaneAI, Anthropic, OpenAI, Gemini };

    struct ParseInput
    {
        QString userText;
        QStringList knownProjects;
        QString todayISO; // YYYY-MM-DD
    };

    static constexpr int parseTimeoutSeconds = 90;

    explicit ClaudeBridge(std::shared_ptr<QSettings> settings,
                          QProcessEnvironment environment = QProcessEnvironment::systemEnvironment(),
                          QString home = {});

    // The places the program is looked for after the override and the environment variable.
    static QStringList defaultCandidates(const QString &home);
    // The user's override when it names an executable file, else CLAUDE_CLI_PATH as it stands,
    // else the first executable candidate, else the first candidate: finding never fails, a
    // missing program shows when it is started.
    static QString claudeCLIPath(const QSettings &settings, const QProcessEnvironment &environment,
                                 const QStringList &candidates);
    [[nodiscard]] QString claudeCLIPath() const;
    // Tests point the lookup at folders of their own.
    void setCandidates(QStringList candidates) { m_candidates = std::move(candidates); }

    static Route route(AIProvider provider, bool cliAvailable);
    [[nodiscard]] AIProvider provider() const;
    [[nodiscard]] Route currentRoute() const;

    // Free text to the capture JSON (the object the schema describes).
    QCoro::Task<QJsonObject> parse(ParseInput input, QTimeZone zone = QTimeZone::systemTimeZone());
    // One prompt in, plain text out. The command-line program has no effort setting; `effort`
    // is for the routes that do.
    QCoro::Task<QString> parsePlain(QString userText, QString model, int timeoutSeconds, QString systemPrompt,
                                    QString effort);
    // The agent may read and write in `workspaceDir` and must write `outputPath` (relative to
    // the workspace or absolute); answers that file's contents.
    QCoro::Task<QString> parseWithWorkspace(QString prompt, QString workspaceDir, QString outputPath, QString model,
                                            int timeoutSeconds);

    static QString parseSystemPrompt(const QStringList &knownProjects, const QString &todayISO, const QTimeZone &zone);
    static QString jsonSchema();
    // A whole HTML document cut out of a text answer, from "<!doctype html" to the last "</html>".
    static std::optional<QString> extractHTMLDocument(const QString &text);
    // The first complete JSON object inside a text (prose and code fences around it are fine).
    static std::optional<QJsonObject> firstJSONObject(const QString &text);

private:
    struct Output
    {
        int exitCode = 0;
        QByteArray out;
        QByteArray err;
    };

    QCoro::Task<Output> run(QStringList arguments, QByteArray input, QString workingDirectory, int timeoutSeconds,
                            bool workspace) const;
    void requireCommandLineRoute() const;

    std::shared_ptr<QSettings> m_settings;
    QProcessEnvironment m_environment;
    QStringList m_candidates;
};
