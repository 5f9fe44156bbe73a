// Hostile bytes as a session log, cut at a point the input chooses: whatever the bytes, reading
// the file must not fault, and reading the first part and then only what was appended must give
// exactly what one read of the whole file gives.
#include "sessions/claudewatcher.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

namespace {

void writeAll(const QByteArray &path, const uint8_t *data, size_t size, int flags)
{
    const int fd = ::open(path.constData(), O_WRONLY | O_CREAT | flags, 0600);
    if (fd < 0 || ::write(fd, data, size) != ssize_t(size)) {
        std::abort();
    }
    ::close(fd);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // A static object, not a leaked one: its folder is removed when the run exits.
    static const QTemporaryDir dir;
    static const QString projects = dir.path();
    static const QByteArray path = QFile::encodeName(projects + QStringLiteral("/p/s.jsonl"));
    static const bool made = QDir().mkpath(projects + QStringLiteral("/p"));
    if (!made || size == 0) {
        return 0;
    }
    const size_t split = size_t(data[0]) * (size - 1) / 255;
    const uint8_t *log = data + 1;
    const size_t length = size - 1;

    ClaudeWatcher::clearParseCache();
    writeAll(path, log, split, O_TRUNC);
    ClaudeWatcher::enumerateSessions(projects, 900, 30);
    writeAll(path, log + split, length - split, O_APPEND);
    const QList<ParsedSession> walked = ClaudeWatcher::enumerateSessions(projects, 900, 30);
    const std::optional<ParsedSession> whole =
        ClaudeWatcher::parse(QFile::decodeName(path), QStringLiteral("s"), 900);
    const std::optional<ParsedSession> extended =
        walked.isEmpty() ? std::nullopt : std::optional<ParsedSession>(walked.first());
    if (extended != whole) {
        std::abort();
    }
    return 0;
}
