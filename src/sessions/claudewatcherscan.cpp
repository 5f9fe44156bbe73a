// The scanning half of ClaudeWatcher: static, touching no instance state, safe on any thread.
#include "claudewatcher.h"
#include "sessions/sessionlogreader.h"

#include <QFile>
#include <QHash>
#include <QMutex>
#include <QMutexLocker>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <dirent.h>
#include <numeric>
#include <span>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 secondsPerDay = 86400;

// A parsed file as it was when read. A file counts as unchanged while its identity, size and
// modification time (to the nanosecond) and the idle gap stay the same.
struct CacheEntry
{
    qint64 modSeconds = 0;
    qint64 modNanoseconds = 0;
    qint64 size = 0;
    dev_t device = 0;
    ino_t inode = 0;
    int idleGap = 0;
    SessionLogState state;
    std::optional<ParsedSession> session;
};

struct CacheSlot
{
    std::shared_ptr<const CacheEntry> entry;
    // The latest walk that saw the file. Walks are numbered as they start, so a walk that prunes
    // what it did not see keeps what a later walk running beside it has seen.
    quint64 seenByWalk = 0;
};

struct ParseCache
{
    QMutex lock;
    QHash<QByteArray, CacheSlot> entries;
    quint64 walks = 0;
};

ParseCache &parseCache()
{
    static ParseCache cache;
    return cache;
}

QDateTime instant(LogInstant at)
{
    return QDateTime::fromMSecsSinceEpoch(at, Qt::UTC);
}

QList<SessionSegment> bursts(const QString &sessionId, std::span<const UserPrompt> prompts,
                             std::span<const LogInstant> timestamps, int idleGap)
{
    QList<SessionSegment> segments;
    if (prompts.empty()) {
        return segments;
    }
    const auto close = [&](size_t first, size_t last) {
        const UserPrompt &opening = prompts[first];
        const LogInstant start = opening.at;
        const LogInstant stop = prompts[last].at;
        const auto from = std::lower_bound(timestamps.begin(), timestamps.end(), start);
        const auto to = std::upper_bound(timestamps.begin(), timestamps.end(), stop);
        SessionSegment burst;
        burst.sessionId = sessionId;
        burst.index = int(segments.size());
        burst.title = opening.text.value_or(u"Claude segment "_s + QString::number(burst.index + 1));
        burst.startedAt = instant(start);
        burst.endedAt = instant(stop);
        // One minute at least: a single prompt is still a piece of work.
        const LogInstant *base = timestamps.data();
        burst.activeSeconds = std::max<qint64>(
            ClaudeWatcher::computeActive(base + (from - timestamps.begin()), base + (to - timestamps.begin()), idleGap),
            60);
        burst.promptCount = int(last - first + 1);
        segments.append(std::move(burst));
    };
    size_t first = 0;
    for (size_t i = 1; i < prompts.size(); ++i) {
        if ((prompts[i].at - prompts[i - 1].at) / 1000 > idleGap) {
            close(first, i - 1);
            first = i;
        }
    }
    close(first, prompts.size() - 1);
    return segments;
}

ParsedSession session(const QString &sessionId, const QString &cwd, std::span<const LogInstant> timestamps,
                      std::span<const UserPrompt> prompts, int idleGap)
{
    ParsedSession session;
    session.sessionId = sessionId;
    session.cwd = cwd;
    session.startedAt = instant(timestamps.front());
    session.endedAt = instant(timestamps.back());
    session.activeSeconds =
        ClaudeWatcher::computeActive(timestamps.data(), timestamps.data() + timestamps.size(), idleGap);
    session.promptCount = int(prompts.size());
    if (!prompts.empty()) {
        session.firstUserMessage = prompts.front().text;
    }
    session.segments = bursts(sessionId, prompts, timestamps, idleGap);
    return session;
}

// The session of a read: its complete lines plus, when the file does not end in a line feed, the
// line being written.
std::optional<ParsedSession> finish(const SessionLogRead &read, const QString &sessionId, int idleGap)
{
    const SessionLogState &state = read.state;
    const SessionLogLine *tail = read.tail ? &*read.tail : nullptr;
    if (state.invalidUtf8 || (tail && tail->invalidUtf8)) {
        return std::nullopt;
    }
    const QString cwd = !state.cwd.isEmpty() ? state.cwd : tail ? tail->cwd : QString();
    const bool tailTimestamp = tail && tail->timestamp;
    if (cwd.isEmpty() || (state.timestamps.empty() && !tailTimestamp)) {
        return std::nullopt;
    }
    if (!tailTimestamp) {
        return session(sessionId, cwd, state.timestamps, state.prompts, idleGap);
    }

    // Only a file that ends inside a line pays for copies.
    std::vector<LogInstant> timestamps = state.timestamps;
    std::vector<UserPrompt> prompts = state.prompts;
    const LogInstant at = *tail->timestamp;
    timestamps.insert(std::upper_bound(timestamps.begin(), timestamps.end(), at), at);
    if (tail->prompt) {
        // The last line in the file goes after every prompt of the same date.
        const auto place = std::upper_bound(prompts.begin(), prompts.end(), at,
                                            [](LogInstant value, const UserPrompt &p) { return value < p.at; });
        prompts.insert(place, UserPrompt{at, tail->prompt});
    }
    return session(sessionId, cwd, timestamps, prompts, idleGap);
}

bool endsWithLogSuffix(const char *name, size_t length)
{
    return length >= 6 && std::memcmp(name + length - 6, ".jsonl", 6) == 0;
}

// A file a walk found new or changed, and what reading it gave.
struct PendingRead
{
    QByteArray path;
    QString sessionId;
    struct stat info
    {};
    // Set when only the bytes appended since this parse need reading.
    std::shared_ptr<const CacheEntry> previous;

    std::shared_ptr<const CacheEntry> entry; // nothing when the file could not be read
    bool extended = false;
    qint64 bytesRead = 0;
};

// One file of a walk in directory order: from the cache, or the pending read numbered from 1.
struct Visit
{
    std::shared_ptr<const CacheEntry> cached;
    size_t pending = 0;
};

void readOne(PendingRead &pending, int idleGap)
{
    std::optional<SessionLogRead> read;
    if (pending.previous) {
        read = SessionLogReader::readAppended(pending.path, pending.previous->state);
        pending.extended = read.has_value();
    }
    if (!read) {
        read = SessionLogReader::readWhole(pending.path);
        if (!read) {
            return;
        }
    }
    pending.bytesRead = read->bytesRead;
    auto entry = std::make_shared<CacheEntry>();
    entry->modSeconds = pending.info.st_mtim.tv_sec;
    entry->modNanoseconds = pending.info.st_mtim.tv_nsec;
    entry->size = pending.info.st_size;
    entry->device = pending.info.st_dev;
    entry->inode = pending.info.st_ino;
    entry->idleGap = idleGap;
    entry->session = finish(*read, pending.sessionId, idleGap);
    entry->state = std::move(read->state);
    pending.entry = std::move(entry);
}

// Reads the pending files on as many threads as there are cores, the walking thread among them.
// Helpers inherit the walk's scheduling, so a background walk stays in the background. The
// largest files are taken first: one started last would leave the other cores idle at the end.
void readAll(std::vector<PendingRead> &pending, int idleGap)
{
    if (pending.empty()) {
        return;
    }
    std::vector<size_t> bySize(pending.size());
    std::iota(bySize.begin(), bySize.end(), size_t(0));
    std::stable_sort(bySize.begin(), bySize.end(),
                     [&](size_t a, size_t b) { return pending[a].info.st_size > pending[b].info.st_size; });
    std::atomic<size_t> next{0};
    const auto drain = [&] {
        for (size_t taken = next++; taken < bySize.size(); taken = next++) {
            readOne(pending[bySize[taken]], idleGap);
        }
    };
    const size_t threads = std::min(pending.size(), size_t(std::max(1, QThread::idealThreadCount())));
    std::vector<std::jthread> helpers;
    helpers.reserve(threads - 1);
    for (size_t i = 1; i < threads; ++i) {
        try {
            helpers.emplace_back(drain);
        } catch (const std::system_error &) {
            // No thread to be had: the threads already running read the rest.
            break;
        }
    }
    drain();
}

} // namespace

std::optional<ParsedSession> ClaudeWatcher::parse(const QString &path, const QString &sessionId, int idleGap)
{
    const std::optional<SessionLogRead> read = SessionLogReader::readWhole(QFile::encodeName(path));
    if (!read) {
        return std::nullopt;
    }
    return finish(*read, sessionId, idleGap);
}

qint64 ClaudeWatcher::computeActive(const LogInstant *begin, const LogInstant *end, int idleGap)
{
    qint64 total = 0;
    for (const LogInstant *at = begin; at + 1 < end; ++at) {
        // Whole seconds, truncated toward zero.
        const qint64 gap = (at[1] - at[0]) / 1000;
        if (gap > 0 && gap <= idleGap) {
            total += gap;
        }
    }
    return total;
}

qint64 ClaudeWatcher::computeActive(const QList<LogInstant> &instants, int idleGap)
{
    return computeActive(instants.constData(), instants.constData() + instants.size(), idleGap);
}

QList<SessionSegment> ClaudeWatcher::segment(const QString &sessionId, const QList<UserPrompt> &prompts,
                                             const QList<LogInstant> &timestamps, int idleGap)
{
    return bursts(sessionId, prompts, timestamps, idleGap);
}

QList<SessionSegment> ClaudeWatcher::fallbackSingleSegment(const ParsedSession &session)
{
    SessionSegment whole;
    whole.sessionId = session.sessionId;
    whole.index = 0;
    whole.title = session.firstUserMessage.value_or(u"Claude session"_s);
    whole.startedAt = session.startedAt;
    whole.endedAt = session.endedAt;
    whole.activeSeconds = session.activeSeconds;
    whole.promptCount = session.promptCount;
    return {whole};
}

QList<ParsedSession> ClaudeWatcher::enumerateSessions(const QString &projectsDir, int idleGap, int recentDays,
                                                      const QDateTime &now, ScanStats *stats)
{
    ScanStats counted;
    QList<ParsedSession> sessions;
    const qint64 cutoff = now.toSecsSinceEpoch() - qint64(recentDays) * secondsPerDay;
    ParseCache &cache = parseCache();
    quint64 walk = 0;
    {
        const QMutexLocker locker(&cache.lock);
        walk = ++cache.walks;
    }
    const auto prune = [&] {
        const QMutexLocker locker(&cache.lock);
        for (auto it = cache.entries.begin(); it != cache.entries.end();) {
            it = it->seenByWalk >= walk ? std::next(it) : cache.entries.erase(it);
        }
    };

    const QByteArray root = QFile::encodeName(projectsDir);
    DIR *top = ::opendir(root.constData());
    if (!top) {
        prune();
        return sessions;
    }
    // The walk only lists and stats; the files to open are read afterwards on every core, and
    // `visits` keeps the directory order the sessions are returned in.
    std::vector<Visit> visits;
    std::vector<PendingRead> pending;
    // One buffer for every path: an unchanged file costs no allocation.
    QByteArray path;
    path.reserve(4096);
    while (const dirent *project = ::readdir(top)) {
        const size_t nameLength = std::strlen(project->d_name);
        if (project->d_type == DT_REG || std::strcmp(project->d_name, ".") == 0 ||
            std::strcmp(project->d_name, "..") == 0) {
            continue;
        }
        path = root;
        path += '/';
        path.append(project->d_name, qsizetype(nameLength));
        path += '/';
        const qsizetype folderLength = path.size();
        DIR *inner = ::opendir(path.constData());
        if (!inner) {
            continue;
        }
        while (const dirent *file = ::readdir(inner)) {
            const size_t length = std::strlen(file->d_name);
            if (!endsWithLogSuffix(file->d_name, length)) {
                continue;
            }
            struct stat info
            {};
            if (::fstatat(::dirfd(inner), file->d_name, &info, 0) != 0 || !S_ISREG(info.st_mode) ||
                info.st_mtim.tv_sec < cutoff) {
                continue;
            }
            path.truncate(folderLength);
            path.append(file->d_name, qsizetype(length));
            ++counted.filesSeen;

            std::shared_ptr<const CacheEntry> cached;
            {
                const QMutexLocker locker(&cache.lock);
                const auto slot = cache.entries.find(path);
                if (slot != cache.entries.end()) {
                    slot->seenByWalk = std::max(slot->seenByWalk, walk);
                    cached = slot->entry;
                }
            }
            const bool sameFile =
                cached && cached->device == info.st_dev && cached->inode == info.st_ino && cached->idleGap == idleGap;
            if (sameFile && cached->modSeconds == info.st_mtim.tv_sec &&
                cached->modNanoseconds == info.st_mtim.tv_nsec && cached->size == info.st_size) {
                ++counted.filesFromCache;
                if (cached->session) {
                    visits.push_back(Visit{std::move(cached), 0});
                }
                continue;
            }

            PendingRead read;
            read.path = QByteArray(path.constData(), path.size());
            read.sessionId = QFile::decodeName(QByteArray(file->d_name, qsizetype(length - 6)));
            read.info = info;
            if (sameFile && info.st_size >= cached->state.parsedBytes) {
                read.previous = std::move(cached);
            }
            pending.push_back(std::move(read));
            visits.push_back(Visit{nullptr, pending.size()});
        }
        ::closedir(inner);
    }
    ::closedir(top);

    readAll(pending, idleGap);

    for (const PendingRead &read : pending) {
        if (!read.entry) {
            continue;
        }
        counted.filesExtended += read.extended ? 1 : 0;
        counted.filesReadWhole += read.extended ? 0 : 1;
        counted.bytesRead += read.bytesRead;
        // Files without a session are kept too: unchanged, they would give none again, and
        // a growing one is extended like any other.
        const QMutexLocker locker(&cache.lock);
        CacheSlot &slot = cache.entries[read.path];
        slot.entry = read.entry;
        slot.seenByWalk = std::max(slot.seenByWalk, walk);
    }
    sessions.reserve(qsizetype(visits.size()));
    for (const Visit &visit : visits) {
        const CacheEntry *entry = visit.pending > 0 ? pending[visit.pending - 1].entry.get() : visit.cached.get();
        if (entry && entry->session) {
            sessions.append(*entry->session);
        }
    }
    prune();
    if (stats) {
        *stats = counted;
    }
    return sessions;
}

void ClaudeWatcher::clearParseCache()
{
    ParseCache &cache = parseCache();
    const QMutexLocker locker(&cache.lock);
    cache.entries.clear();
}
