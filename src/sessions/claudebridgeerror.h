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
// the file it was asked for; and calls routed to a model service this build cannot reach yet.
class ClaudeRequestError : public MorvaneError
{
public:
    enum class Kind { TimedOut, WorkspaceTimedOut, ResultIsError, NoJSONObject, OutputNotWritten, RouteNotConfigured };

    ClaudeRequestError(Kind kind, QString detail = {});

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] QString message() const override;

private:
    Kind m_kind;
    QString m_detail;
};
