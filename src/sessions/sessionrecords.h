#pragma once

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>

#include <optional>

// Instants inside the scanner: milliseconds since the epoch, UTC. Logs hold tens of thousands of
// time stamps per file, so they stay plain integers until they become part of a record.
using LogInstant = qint64;

// One user prompt of a session log: when it was written and its text, already trimmed and cut.
struct UserPrompt
{
    LogInstant at = 0;
    std::optional<QString> text;

    friend bool operator==(const UserPrompt &, const UserPrompt &) = default;
};

// A work burst: a run of prompts with no pause longer than the idle gap between them.
struct SessionSegment
{
    QString sessionId;
    int index = 0;
    QString title;
    QDateTime startedAt;
    QDateTime endedAt;
    qint64 activeSeconds = 0;
    int promptCount = 0;

    friend bool operator==(const SessionSegment &, const SessionSegment &) = default;
};

inline size_t qHash(const SessionSegment &segment, size_t seed = 0)
{
    return qHashMulti(seed, segment.sessionId, segment.index, segment.title, segment.startedAt, segment.endedAt,
                      segment.activeSeconds, segment.promptCount);
}

// One coding-agent session: everything the scan learns from one log file.
struct ParsedSession
{
    QString sessionId;
    QString cwd;
    std::optional<QString> firstUserMessage;
    QDateTime startedAt;
    QDateTime endedAt;
    qint64 activeSeconds = 0;
    int promptCount = 0;
    QList<SessionSegment> segments;

    friend bool operator==(const ParsedSession &, const ParsedSession &) = default;
};
