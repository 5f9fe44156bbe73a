// What a scan of coding-agent session logs costs, next to merely reading the same bytes with
// `cat` in the same run: a cold scan (empty parse cache) of a generated folder of thousands of
// logs, some of hundreds of megabytes, beside the same logs parsed one by one on one thread; the
// once-a-minute re-scan of the unchanged folder; and the re-scan after 1 MB was appended to a
// 200 MB log. The folder is generated under /tmp and deleted
// afterwards. Prints the figures; asserts nothing.
//
//   bench_sessions_scan [--mb TOTAL] [--files COUNT]     (defaults: 600 MB in 3,000 files)
#include "sessions/claudewatcher.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <dirent.h>
#include <random>
#include <string>
#include <sys/stat.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr double coldTargetRatio = 2.0;
constexpr double warmTargetMillis = 30.0;
constexpr double appendTargetMillis = 20.0;
constexpr qint64 megabyte = 1 << 20;

using SteadyClock = std::chrono::steady_clock;

double millisSince(SteadyClock::time_point start)
{
    return std::chrono::duration<double, std::milli>(SteadyClock::now() - start).count();
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Writes session logs shaped like the real ones: a summary line, user prompts, assistant turns
// with thinking, text and tool calls, tool results that carry whole files (the bulk of the
// bytes, repeated in "toolUseResult" as the agent does), and system lines.
class LogWriter
{
public:
    explicit LogWriter(unsigned seed)
        : m_random(seed)
    {}

    void write(const std::string &path, const std::string &cwd, qint64 bytes, bool fresh)
    {
        std::FILE *file = std::fopen(path.c_str(), fresh ? "wb" : "ab");
        if (!file) {
            std::perror(path.c_str());
            std::exit(1);
        }
        std::string sessionId = uuid();
        if (fresh) {
            line(file, "{\"type\":\"summary\",\"summary\":\"" + words(8) + "\",\"leafUuid\":\"" + uuid() + "\"}\n");
        }
        qint64 written = 0;
        while (written < bytes) {
            written += line(file, next(cwd, sessionId, bytes - written));
        }
        std::fclose(file);
    }

private:
    std::mt19937_64 m_random;
    qint64 m_time = 1740819600000; // 2025-03-01T09:00:00Z
    std::string m_parent = "null";

    std::size_t line(std::FILE *file, const std::string &text)
    {
        std::fwrite(text.data(), 1, text.size(), file);
        return text.size();
    }

    std::size_t pick(std::size_t from, std::size_t to) { return from + m_random() % (to - from + 1); }

    std::string uuid()
    {
        static const char hex[] = "0123456789abcdef";
        std::string id = "xxxxxxxx-xxxx-4xxx-8xxx-xxxxxxxxxxxx";
        for (char &c : id) {
            if (c == 'x') {
                c = hex[m_random() % 16];
            }
        }
        return id;
    }

    std::string words(std::size_t count)
    {
        static const char *vocabulary[] = {"invoice", "the",      "refactor", "café",    "test",   "line",
                                           "VAT",     "rounding", "function", "returns", "const",  "async",
                                           "await",   "error",    "result",   "total",   "naïve",  "—",
                                           "✓",       "project",  "export",   "if",      "else",   "\\\"ok\\\"",
                                           "map",     "filter",   "→",        "tiếng",   "データ", "and"};
        std::string text;
        for (std::size_t i = 0; i < count; ++i) {
            text += vocabulary[m_random() % std::size(vocabulary)];
            text += (m_random() % 12 == 0) ? "\\n" : " ";
        }
        return text;
    }

    // A source file as a tool returns it: numbered lines, escaped for JSON.
    std::string fileText(std::size_t bytes)
    {
        std::string text;
        int number = 1;
        while (text.size() < bytes) {
            text += "     " + std::to_string(number++) + "\\t  " + words(pick(3, 14)) + "\\n";
        }
        return text;
    }

    std::string timestamp()
    {
        // Mostly seconds apart, now and then a pause longer than the idle gap.
        m_time += m_random() % 40 == 0 ? qint64(pick(1000, 4000)) * 1000 : qint64(pick(200, 90000));
        const QDateTime at = QDateTime::fromMSecsSinceEpoch(m_time, Qt::UTC);
        return (m_random() % 20 == 0 ? at.toString(Qt::ISODate) : at.toString(Qt::ISODateWithMs)).toStdString();
    }

    // `budget`: what the file may still grow by, so that logs end near the size asked for.
    std::string next(const std::string &cwd, const std::string &sessionId, qint64 budget)
    {
        const std::string uuidNow = uuid();
        const std::size_t kind = pick(0, 99);
        std::string type;
        std::string body;
        std::string extra;
        if (kind < 10) {
            type = "user";
            body = "{\"role\":\"user\",\"content\":\"" + words(pick(5, 120)) + "\"}";
        } else if (kind < 45) {
            type = "assistant";
            std::string content;
            if (m_random() % 3 == 0) {
                content = "{\"type\":\"thinking\",\"thinking\":\"" + words(pick(20, 300)) +
                          "\",\"signature\":\"EqQBCkYIBRgCKkB" + uuid() + "\"},";
            }
            if (m_random() % 2 == 0) {
                content += "{\"type\":\"text\",\"text\":\"" + words(pick(10, 400)) + "\"}";
            } else {
                content += "{\"type\":\"tool_use\",\"id\":\"toolu_" + uuid() +
                           "\",\"name\":\"Edit\",\"input\":{"
                           "\"file_path\":\"" +
                           cwd + "/src/checkout.ts\",\"old_string\":\"" + fileText(pick(100, 3000)) +
                           "\",\"new_string\":\"" + fileText(pick(100, 3000)) + "\"}}";
            }
            body = "{\"id\":\"msg_" + uuid() +
                   "\",\"type\":\"message\",\"role\":\"assistant\","
                   "\"model\":\"claude-sonnet-4-20250514\",\"content\":[" +
                   content + "],\"stop_reason\":null,\"usage\":{\"input_tokens\":" + std::to_string(pick(1, 9000)) +
                   ",\"cache_read_input_tokens\":" + std::to_string(pick(0, 90000)) +
                   ",\"output_tokens\":" + std::to_string(pick(1, 4000)) + "}}";
            extra = ",\"requestId\":\"req_" + uuid() + "\"";
        } else if (kind < 95) {
            type = "user";
            // Mostly a few kilobytes, sometimes a whole large file or a long command output.
            std::size_t size = m_random() % 25 == 0 ? pick(50'000, 400'000) : pick(200, 6000);
            size = std::min<std::size_t>(size, std::size_t(std::max<qint64>(budget / 2, 200)));
            const std::string output = fileText(size);
            body = "{\"role\":\"user\",\"content\":[{\"tool_use_id\":\"toolu_" + uuid() +
                   "\",\"type\":\"tool_result\",\"content\":\"" + output + "\"}]}";
            extra = ",\"toolUseResult\":{\"type\":\"text\",\"file\":{\"filePath\":\"" + cwd +
                    "/src/module.ts\",\"content\":\"" + output + "\",\"numLines\":120}}";
        } else {
            type = "system";
            body = "\"" + words(pick(3, 20)) + "\"";
        }
        std::string text = "{\"parentUuid\":" + m_parent +
                           ",\"isSidechain\":false,\"userType\":\"external\","
                           "\"cwd\":\"" +
                           cwd + "\",\"sessionId\":\"" + sessionId +
                           "\",\"version\":\"1.0.51\",\"gitBranch\":\"main\",\"type\":\"" + type + "\"" +
                           (type == "system" ? ",\"content\":" : ",\"message\":") + body + extra + ",\"uuid\":\"" +
                           uuidNow + "\",\"timestamp\":\"" + timestamp() + "\"}\n";
        m_parent = "\"" + uuidNow + "\"";
        return text;
    }
};

qint64 folderBytes(const QString &root)
{
    qint64 total = 0;
    for (const QFileInfo &folder : QDir(root).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        for (const QFileInfo &file : QDir(folder.filePath()).entryInfoList({u"*.jsonl"_s}, QDir::Files)) {
            total += file.size();
        }
    }
    return total;
}

// Listing and one attribute read per file: the least any scan must do.
double statWalkMillis(const QByteArray &root)
{
    const auto start = SteadyClock::now();
    DIR *top = ::opendir(root.constData());
    while (const dirent *folder = ::readdir(top)) {
        if (folder->d_name[0] == '.') {
            continue;
        }
        const QByteArray path = root + '/' + folder->d_name;
        DIR *inner = ::opendir(path.constData());
        while (inner && ::readdir(inner)) {
        }
        if (inner) {
            ::rewinddir(inner);
            while (const dirent *file = ::readdir(inner)) {
                struct stat info
                {};
                ::fstatat(::dirfd(inner), file->d_name, &info, 0);
            }
            ::closedir(inner);
        }
    }
    ::closedir(top);
    return millisSince(start);
}

// Every log parsed one after another on this thread, in the order a walk lists them: what a scan
// without its threads would return, to compare the scan's result and time with.
QList<ParsedSession> parseOneByOne(const QString &root)
{
    QList<ParsedSession> sessions;
    const QByteArray top = QFile::encodeName(root);
    DIR *projects = ::opendir(top.constData());
    while (const dirent *folder = ::readdir(projects)) {
        if (folder->d_name[0] == '.' || folder->d_type == DT_REG) {
            continue;
        }
        const QByteArray path = top + '/' + folder->d_name;
        DIR *inner = ::opendir(path.constData());
        while (const dirent *file = inner ? ::readdir(inner) : nullptr) {
            const QByteArray name(file->d_name);
            if (name.endsWith(".jsonl")) {
                const std::optional<ParsedSession> session =
                    ClaudeWatcher::parse(QFile::decodeName(path + '/' + name), QFile::decodeName(name.chopped(6)), 900);
                if (session) {
                    sessions.append(*session);
                }
            }
        }
        if (inner) {
            ::closedir(inner);
        }
    }
    ::closedir(projects);
    return sessions;
}

double catMillis(const QString &root)
{
    const auto start = SteadyClock::now();
    QProcess::execute(u"/bin/sh"_s,
                      {u"-c"_s, u"find '%1' -name '*.jsonl' -print0 | xargs -0 cat > /dev/null"_s.arg(root)});
    return millisSince(start);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    const auto option = [&](const QString &name, qint64 fallback) {
        const qsizetype at = arguments.indexOf(name);
        return at > 0 && at + 1 < arguments.size() ? arguments[at + 1].toLongLong() : fallback;
    };
    const qint64 totalBytes = option(u"--mb"_s, 600) * megabyte;
    const int files = int(option(u"--files"_s, 3000));
    const qint64 appendTarget = std::min<qint64>(200 * megabyte, totalBytes / 3);
    const qint64 secondLarge = std::min<qint64>(120 * megabyte, totalBytes / 5);
    const qint64 smallBytes = std::max<qint64>(totalBytes - appendTarget - secondLarge, files * 1024);

    QTemporaryDir dir(QDir::tempPath() + u"/bench-sessions-XXXXXX"_s);
    const QString root = dir.filePath(u"projects"_s);
    std::printf("generating %d logs, about %lld MB, in %s\n", files, (long long)(totalBytes / megabyte),
                qPrintable(dir.path()));
    std::fflush(stdout);
    const auto generation = SteadyClock::now();
    LogWriter writer(7);
    std::mt19937_64 sizes(11);
    // Sizes spread like real folders: most sessions small, a few large.
    std::lognormal_distribution<double> spread(0.0, 1.2);
    std::vector<double> weights(std::size_t(files), 0.0);
    double weightSum = 0;
    for (double &weight : weights) {
        weight = spread(sizes);
        weightSum += weight;
    }
    QString largest;
    for (int i = 0; i < files; ++i) {
        const QString folder = root + u"/-home-dev-code-project-%1"_s.arg(i % 40);
        QDir().mkpath(folder);
        const QString path = folder + u"/session-%1.jsonl"_s.arg(i, 5, 10, QLatin1Char('0'));
        qint64 bytes = qint64(double(smallBytes) * weights[std::size_t(i)] / weightSum);
        if (i == 0) {
            bytes = appendTarget;
            largest = path;
        } else if (i == 1) {
            bytes = secondLarge;
        }
        writer.write(path.toStdString(), u"/home/dev/code/project-%1"_s.arg(i % 40).toStdString(),
                     std::max<qint64>(bytes, 600), true);
    }
    const qint64 bytes = folderBytes(root);
    std::printf("generated %.1f MB in %.1f s; largest log %.1f MB\n\n", double(bytes) / megabyte,
                millisSince(generation) / 1000, double(QFileInfo(largest).size()) / megabyte);

    // Best of two, so that both read from the page cache.
    const double cat = std::min(catMillis(root), catMillis(root));
    std::vector<double> colds;
    ClaudeWatcher::ScanStats stats;
    QList<ParsedSession> sessions;
    for (int i = 0; i < 3; ++i) {
        ClaudeWatcher::clearParseCache();
        const auto start = SteadyClock::now();
        sessions = ClaudeWatcher::enumerateSessions(root, 900, 3650, QDateTime::currentDateTimeUtc(), &stats);
        colds.push_back(millisSince(start));
    }
    const double cold = *std::min_element(colds.begin(), colds.end());
    QList<ParsedSession> oneByOne;
    double serial = 0;
    for (int i = 0; i < 2; ++i) {
        const auto start = SteadyClock::now();
        oneByOne = parseOneByOne(root);
        serial = i == 0 ? millisSince(start) : std::min(serial, millisSince(start));
    }
    const double mb = double(bytes) / megabyte;
    std::printf("cold scan      %8.1f ms  %7.0f MB/s  (%d sessions, %lld MB read, %d threads)\n", cold,
                mb / (cold / 1000), int(sessions.size()), (long long)(stats.bytesRead / megabyte),
                QThread::idealThreadCount());
    std::printf("one by one     %8.1f ms  %7.0f MB/s  the same files parsed in turn on one thread; same "
                "sessions in the same order: %s\n",
                serial, mb / (serial / 1000), oneByOne == sessions ? "yes" : "NO");
    std::printf("cat > /dev/null %7.1f ms  %7.0f MB/s\n", cat, mb / (cat / 1000));
    std::printf("cold / cat     %8.2f x    target under %.1f x: %s\n\n", cold / cat, coldTargetRatio,
                cold / cat < coldTargetRatio ? "met" : "MISSED");

    std::vector<double> warms;
    std::vector<double> walks;
    for (int i = 0; i < 9; ++i) {
        const auto start = SteadyClock::now();
        ClaudeWatcher::enumerateSessions(root, 900, 3650, QDateTime::currentDateTimeUtc(), &stats);
        warms.push_back(millisSince(start));
        walks.push_back(statWalkMillis(QFile::encodeName(root)));
    }
    const double warm = median(warms);
    std::printf("warm re-scan   %8.2f ms  of %d unchanged logs (%d from the cache, %lld bytes read)\n", warm,
                stats.filesSeen, stats.filesFromCache, (long long)stats.bytesRead);
    std::printf("readdir+stat   %8.2f ms  the same files, nothing else\n", median(walks));
    std::printf("warm target under %.0f ms: %s\n\n", warmTargetMillis, warm < warmTargetMillis ? "met" : "MISSED");

    std::vector<double> appends;
    LogWriter appender(13);
    for (int i = 0; i < 5; ++i) {
        appender.write(largest.toStdString(), "/home/dev/code/project-0", megabyte, false);
        const auto start = SteadyClock::now();
        ClaudeWatcher::enumerateSessions(root, 900, 3650, QDateTime::currentDateTimeUtc(), &stats);
        appends.push_back(millisSince(start));
    }
    const double append = median(appends);
    std::printf("append re-scan %8.2f ms  after 1 MB appended to a %.0f MB log (%d extended, %d read whole, "
                "%.2f MB read)\n",
                append, double(QFileInfo(largest).size()) / megabyte, stats.filesExtended, stats.filesReadWhole,
                double(stats.bytesRead) / megabyte);
    std::printf("append target under %.0f ms: %s\n", appendTargetMillis,
                append < appendTargetMillis ? "met" : "MISSED");
    return 0;
}
