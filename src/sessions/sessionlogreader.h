#pragma once

#include "sessions/sessionrecords.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <string_view>
#include <vector>

// What the complete lines of one session log have told so far. Logs only ever grow by appended
// lines, so this is kept per file and extended with the new lines instead of reading the file
// again; every field is exactly what a read of the same lines from the start would give.
struct SessionLogState
{
    // Offset just past the last line feed read; an unterminated last line is never part of it,
    // because it may still be being written.
    qint64 parsedBytes = 0;
    // The last complete line (start offset and hash, line feed included), to tell cheaply whether
    // the file still begins with the bytes read before.
    qint64 lastLineStart = 0;
    size_t lastLineHash = 0;
    bool invalidUtf8 = false;
    QString cwd;
    std::vector<LogInstant> timestamps; // ascending
    std::vector<UserPrompt> prompts;    // by date; equal dates keep file order
};

// What one line contributes.
struct SessionLogLine
{
    bool invalidUtf8 = false;
    QString cwd;
    std::optional<LogInstant> timestamp;
    std::optional<QString> prompt;
};

// The result of reading a log: its complete lines, and the unterminated line after them.
struct SessionLogRead
{
    SessionLogState state;
    std::optional<SessionLogLine> tail;
    qint64 bytesRead = 0;
};

// Reads session logs line by line through one padded buffer per thread (a scan may run on two
// threads at once), so a file of hundreds of megabytes never becomes one allocation.
namespace SessionLogReader {

// Reads a whole file; nothing when it cannot be opened or read.
std::optional<SessionLogRead> readWhole(const QByteArray &nativePath);

// Reads only what was appended after `previous`; nothing when the file no longer starts with the
// bytes `previous` was read from (shrunk, rewritten, unreadable), and the caller reads it whole.
std::optional<SessionLogRead> readAppended(const QByteArray &nativePath, const SessionLogState &previous);

// ISO 8601 internet date-time, with or without fractional seconds, in UTC or with an offset.
std::optional<LogInstant> parseTimestamp(std::string_view text);

// A prompt's text as sessions show it: trimmed, and cut to 140 characters followed by "..." when
// longer. Nothing when only white space remains.
std::optional<QString> promptText(std::string_view raw);

} // namespace SessionLogReader
