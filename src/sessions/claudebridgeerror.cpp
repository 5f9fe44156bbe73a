#include "claudebridgeerror.h"

namespace {

// The program's own words can be long (a whole HTML page, a stack trace); the start says enough.
QString shortened(const QString &text)
{
    constexpr qsizetype limit = 2000;
    return text.size() > limit ? text.left(limit) + u"…" : text;
}

} // namespace

ClaudeBridgeError::ClaudeBridgeError(Kind kind, qint32 status, QString first, QString second)
    : m_kind(kind)
    , m_status(status)
    , m_first(std::move(first))
    , m_second(std::move(second))
{}

ClaudeBridgeError ClaudeBridgeError::binaryMissing()
{
    return ClaudeBridgeError(Kind::BinaryMissing);
}

ClaudeBridgeError ClaudeBridgeError::launchFailed(QString reason)
{
    return ClaudeBridgeError(Kind::LaunchFailed, 0, std::move(reason));
}

ClaudeBridgeError ClaudeBridgeError::nonZeroExit(qint32 status, QString errorText)
{
    return ClaudeBridgeError(Kind::NonZeroExit, status, std::move(errorText));
}

ClaudeBridgeError ClaudeBridgeError::malformedJSON(QString reason, QString text)
{
    return ClaudeBridgeError(Kind::MalformedJSON, 0, std::move(reason), std::move(text));
}

ClaudeBridgeError ClaudeBridgeError::emptyOutput()
{
    return ClaudeBridgeError(Kind::EmptyOutput);
}

QString ClaudeBridgeError::message() const
{
    switch (m_kind) {
    case Kind::BinaryMissing:
        //% "AI features need the Claude CLI on this Mac (it powers voice/prompt capture, briefs, and the invoice note).
        // Everything else works without it. Set CLAUDE_CLI_PATH or install it, then try again."
        return qtTrId("claude.err.binaryMissing");
    case Kind::LaunchFailed:
        //% "Launch failed: %1"
        return qtTrId("claude.err.launchFailed").arg(m_first);
    case Kind::NonZeroExit:
        //% "Claude exited %1: %2"
        return qtTrId("claude.err.nonZeroExit").arg(QString::number(m_status), shortened(m_first.trimmed()));
    case Kind::MalformedJSON:
        //% "Bad JSON from Claude (%1) %2"
        return qtTrId("claude.err.malformedJSON").arg(m_first, shortened(m_second));
    case Kind::EmptyOutput:
        //% "Claude produced no output"
        return qtTrId("claude.err.emptyOutput");
    }
    return {};
}

ClaudeRequestError::ClaudeRequestError(Kind kind, QString detail)
    : m_kind(kind)
    , m_detail(std::move(detail))
{}

QString ClaudeRequestError::message() const
{
    switch (m_kind) {
    case Kind::TimedOut:
        //% "Claude request timed out after %1 s"
        return qtTrId("claude.err.timedOut").arg(m_detail);
    case Kind::WorkspaceTimedOut:
        //% "Claude workspace task timed out after %1 s"
        return qtTrId("claude.err.workspaceTimedOut").arg(m_detail);
    case Kind::ResultIsError:
        //% "claude returned is_error=true"
        return qtTrId("claude.err.resultIsError");
    case Kind::NoJSONObject:
        //% "no JSON object detected"
        return qtTrId("claude.err.noJSONObject");
    case Kind::OutputNotWritten:
        //% "Claude finished but did not write %1"
        return qtTrId("claude.err.outputNotWritten").arg(m_detail);
    }
    return {};
}

AIRouteError::AIRouteError(Kind kind, QString route, QString detail, int status)
    : m_kind(kind)
    , m_route(std::move(route))
    , m_detail(std::move(detail))
    , m_status(status)
{}

QString AIRouteError::message() const
{
    switch (m_kind) {
    case Kind::ConsentMissing:
        //% "Morvane asks before it sends your text to %1 for the first time. Answer that question in the window, or run
        // the command again with --yes."
        return qtTrId("ai.err.consentMissing").arg(m_route);
    case Kind::ConsentDeclined:
        //% "You chose not to send your text to %1. You can change this in the AI settings."
        return qtTrId("ai.err.consentDeclined").arg(m_route);
    case Kind::NoKey:
        //% "There is no API key for %1 in your keyring. Add your key in the AI settings."
        return qtTrId("ai.err.noKey").arg(m_route);
    case Kind::NotSignedIn:
        //% "%1 works only while you are signed in. Sign in, then try again."
        return qtTrId("ai.err.notSignedIn").arg(m_route);
    case Kind::Status:
        //% "%1 answered with error %2: %3"
        return qtTrId("ai.err.status").arg(m_route, QString::number(m_status), shortened(m_detail));
    case Kind::Unreachable:
        //% "%1 could not be reached: %2"
        return qtTrId("ai.err.unreachable").arg(m_route, m_detail);
    case Kind::TimedOut:
        //% "%1 did not answer within %2 s"
        return qtTrId("ai.err.timedOut").arg(m_route, m_detail);
    case Kind::BadAnswer:
        //% "%1 sent an answer Morvane cannot use: %2"
        return qtTrId("ai.err.badAnswer").arg(m_route, shortened(m_detail));
    case Kind::NeedsCLI:
        //% "This needs the Claude CLI, which can work with files; %1 cannot. Choose the Claude CLI in the AI settings."
        return qtTrId("ai.err.needsCLI").arg(m_route);
    }
    return {};
}
