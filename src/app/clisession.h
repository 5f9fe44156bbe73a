#pragma once

#include "backend/authstore.h"
#include "sessions/claudebridge.h"
#include "store/appstore.h"
#include "store/sessionsequence.h"

#include <QCommandLineParser>
#include <QJsonValue>
#include <QStringList>

#include <memory>
#include <optional>

class QTextStream;

// One command's view of the signed-in user's data: the session restored from the same secrets
// and settings the desktop application keeps, then loaded through the same sequence, so what a
// command sees and writes is what the application sees.
class CliSession
{
public:
    CliSession();
    ~CliSession();

    // Restores the session and loads the store. On failure prints why ("Not signed in" with the
    // way out, or the store's own message) and answers false.
    bool open(QTextStream &err);

    [[nodiscard]] AuthStore &auth() { return *m_auth; }
    [[nodiscard]] std::shared_ptr<SecretStore> secrets() const { return m_secrets; }
    [[nodiscard]] AppStore &store() { return *m_store; }

    // Prints the store's last error and answers the exit code of a failed command.
    int failed(QTextStream &err) const;

    // A project, task or team by id, by the start of its id, or by its name (any case). An
    // unknown or ambiguous reference is printed and answers nothing.
    [[nodiscard]] std::optional<Project> project(const QString &reference, QTextStream &err) const;
    [[nodiscard]] std::optional<TaskItem> task(const QString &reference, QTextStream &err) const;
    [[nodiscard]] std::optional<Team> team(const QString &reference, QTextStream &err) const;
    // An open invitation, by its team's name or id.
    [[nodiscard]] std::optional<TeamInvitation> invitation(const QString &reference, QTextStream &err) const;

private:
    std::shared_ptr<SecretStore> m_secrets;
    std::unique_ptr<AuthStore> m_auth;
    std::unique_ptr<AppStore> m_store;
    std::unique_ptr<SessionSequence> m_sequence;
};

namespace Cli {

// Ids are UUIDs; eight characters tell a user's rows apart and can be typed back.
[[nodiscard]] QString shortId(const QString &id);
void printJson(QTextStream &out, const QJsonValue &value);
// Parses `arguments` with the option --json added; prints the parser's complaint on failure.
[[nodiscard]] bool parse(QCommandLineParser &parser, const QStringList &arguments, QTextStream &err);
[[nodiscard]] bool wantsJson(const QCommandLineParser &parser);
// Prints the usage line and answers the exit code of a wrong call.
int usage(QTextStream &err, const QString &text);
// Hours and minutes of a duration in seconds, as lists show tracked time ("3:05").
[[nodiscard]] QString hoursMinutes(qint64 seconds);

// The --yes option of every command that calls a model.
[[nodiscard]] QCommandLineOption yesOption();
// Readies a bridge for a command: the HTTP routes get the user's keys and, for the relay, the
// session's token; the consent question goes to the person at the terminal, or is answered yes
// with `assumeYes`. With neither a terminal nor --yes, a route that needs consent fails and says so.
void connectAI(ClaudeBridge &bridge, CliSession &session, bool assumeYes, QTextStream &err);

// Text from other devices and people, as one line with no control characters, so that it can
// neither break a table nor send escape sequences to the terminal.
[[nodiscard]] QString printable(QString text);

// Asks on the error stream and reads the answer; only a yes goes on, so an empty line or closed
// input keeps things as they are. `question` ends with its own "[y/N] ".
[[nodiscard]] bool confirm(const QString &question, QTextStream &err);

// One line from standard input, without echo when a person types it at a terminal; `prompt` is
// shown only there.
QString readSecret(QTextStream &in, const QString &prompt, QTextStream &err);

} // namespace Cli
