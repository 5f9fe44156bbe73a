#pragma once

#include <QJsonObject>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTimeZone>
#include <QUrl>

#include <qcoro/qcorotask.h>

#include <functional>
#include <memory>
#include <optional>

class QSettings;
class SecretStore;
struct AIRequest;
enum class AIVendor;

// Where the user wants model calls to go. Stored under "ai.provider" by these names.
enum class AIProvider { Auto, CliOnly, MorvaneAIOnly, AnthropicCustom, OpenAICustom, GeminiCustom };

namespace AIProviders {
QString storedName(AIProvider provider);
// Unknown or missing names mean Auto.
AIProvider fromStoredName(const QString &name);
} // namespace AIProviders

// The one way text work reaches a language model: capture of free text as JSON, plain text from
// facts, and an agent run that writes a file in a scratch folder. The route the user chose decides
// whether a call starts the local `claude` program or goes over HTTP (the backend's relay or a
// vendor's API with the user's own key); every call passes the consent gate first. Each call has
// its own process or connection and its own time-out, so calls may overlap.
class ClaudeBridge
{
public:
    enum class Route { ClaudeCLI, MorvaneAI, Anthropic, OpenAI, Gemini };

    // What the HTTP routes need from the application around the bridge.
    struct Access
    {
        std::shared_ptr<SecretStore> secrets; // the user's own vendor keys
        QUrl backendUrl;                      // the relay lives under its /functions/v1/
        QString anonKey;
        // The signed-in user's token, or nothing when no one is signed in.
        std::function<QCoro::Task<std::optional<QString>>()> accessToken;
    };

    // Asked when a route that sends text off this machine has no stored answer yet; true allows
    // it. The answer is remembered per route.
    using ConsentHook = std::function<QCoro::Task<bool>(Route route)>;

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

    void setAccess(Access access) { m_access = std::move(access); }
    void setConsentHook(ConsentHook hook) { m_consentHook = std::move(hook); }

    // The route as a person knows it ("Morvane AI", "Anthropic API") and, in their language,
    // where their text goes when it is used: what the consent question shows.
    static QString routeName(Route route);
    static QString routeDestination(Route route);
    // The `claude` program is the user's own tool under their own account, and the application
    // itself sends nothing over the network on that route; every other route does.
    static bool needsConsent(Route route);
    // The stored answer for a route, if the person has given one; a settings screen may change it.
    [[nodiscard]] std::optional<bool> consent(Route route) const;
    void setConsent(Route route, bool allowed);
    // Forgets the answer, so the question comes again before the next call.
    void clearConsent(Route route);

    // Where a vendor's API is reached: the setting "ai.<vendor>.baseUrl", else the environment
    // variable MORVANE_AI_<VENDOR>_URL, else the vendor's public address. Self-hosted gateways
    // and tests use the first two.
    [[nodiscard]] QUrl vendorBaseUrl(AIVendor vendor) const;
    static QString keyItem(AIVendor vendor); // the keyring item holding the user's key

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
    // Passes when the route may be used now; otherwise throws why not, after asking the hook once.
    QCoro::Task<> admit(Route route);
    QCoro::Task<QString> askOverHttp(Route route, AIRequest request, int timeoutSeconds);

    std::shared_ptr<QSettings> m_settings;
    QProcessEnvironment m_environment;
    QStringList m_candidates;
    Access m_access;
    ConsentHook m_consentHook;
};
