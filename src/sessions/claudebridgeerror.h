#pragma once

#include "model/error.h"

#include <QString>

// Why a run of the `claude` program gave no answer. The message is what the user sees.
class ClaudeBridgeError : public MorvaneError
{
public:
    enum class Kind { BinaryMissing, LaunchFailed, NonZeroExit, MalformedJSON, EmptyOutput };

    static ClaudeBridgeError binaryMissing();
    static ClaudeBridgeError launchFailed(QString reason);
    static ClaudeBridgeError nonZeroExit(qint32 status, QString errorText);
    static ClaudeBridgeError malformedJSON(QString reason, QString text);
    static ClaudeBridgeError emptyOutput();

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] qint32 status() const { return m_status; }
    [[nodiscard]] QString message() const override;

private:
    ClaudeBridgeError(Kind kind, qint32 status = 0, QString first = {}, QString second = {});

    Kind m_kind;
    qint32 m_status;
    QString m_first;
    QString m_second;
};

// A run that ended without a usable answer for another reason: it took too long, the program
// reported an error in its result, the answer held no JSON object, or the agent did not write
// the file it was asked for.
class ClaudeRequestError : public MorvaneError
{
public:
    enum class Kind { TimedOut, WorkspaceTimedOut, ResultIsError, NoJSONObject, OutputNotWritten };

    ClaudeRequestError(Kind kind, QString detail = {});

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] QString message() const override;

private:
    Kind m_kind;
    QString m_detail;
};

// Why a call over one of the HTTP routes, or the consent gate before any route, gave no answer.
// `route` is the route's name as the person knows it.
class AIRouteError : public MorvaneError
{
public:
    enum class Kind {
        ConsentMissing,  // no answer stored and no one to ask
        ConsentDeclined, // the person said no
        NoKey,           // no key of the user's own in the keyring
        NotSignedIn,     // the relay needs a signed-in user
        Status,          // the service answered an error: detail is its own text
        Unreachable,     // no answer at all: detail is the network's reason
        TimedOut,        // detail is the seconds
        BadAnswer,       // an answer without usable text: detail says what was wrong
        NeedsCLI,        // only the `claude` program can work in a folder
    };

    AIRouteError(Kind kind, QString route, QString detail = {}, int status = 0);

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] int status() const { return m_status; }
    [[nodiscard]] QString message() const override;

private:
    Kind m_kind;
    QString m_route;
    QString m_detail;
    int m_status;
};
