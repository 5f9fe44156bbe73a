#include "sessionlogreader.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <simdjson.h>
#include <unistd.h>

namespace {

using namespace simdjson;

constexpr size_t defaultBufferSize = size_t(4) << 20;
// A buffer or parser grown for one huge line is given back afterwards instead of being held for
// the life of the process.
constexpr size_t keptBufferSize = size_t(64) << 20;
constexpr qsizetype promptLimit = 140;

// One per thread: the buffer every file streams through and the parser that reads its lines.
struct ReaderContext
{
    std::unique_ptr<char[]> buffer;
    size_t capacity = 0; // usable bytes; SIMDJSON_PADDING more are allocated after them
    std::unique_ptr<ondemand::parser> parser;

    void reserve(size_t size)
    {
        if (capacity >= size && buffer) {
            return;
        }
        std::unique_ptr<char[]> grown(new char[size + SIMDJSON_PADDING]);
        buffer = std::move(grown);
        capacity = size;
    }

    void grow(size_t keep)
    {
        const size_t size = capacity * 2;
        std::unique_ptr<char[]> grown(new char[size + SIMDJSON_PADDING]);
        std::memcpy(grown.get(), buffer.get(), keep);
        buffer = std::move(grown);
        capacity = size;
    }

    void trim()
    {
        if (capacity > keptBufferSize) {
            buffer.reset();
            capacity = 0;
        }
        if (parser && parser->capacity() > keptBufferSize) {
            parser.reset();
        }
    }

    ondemand::parser &jsonParser()
    {
        if (!parser) {
            parser = std::make_unique<ondemand::parser>();
        }
        return *parser;
    }
};

ReaderContext &context()
{
    thread_local ReaderContext local;
    local.reserve(defaultBufferSize);
    return local;
}

class File
{
public:
    explicit File(const QByteArray &path)
        : m_fd(::open(path.constData(), O_RDONLY | O_CLOEXEC))
    {
        if (m_fd >= 0) {
            ::posix_fadvise(m_fd, 0, 0, POSIX_FADV_SEQUENTIAL);
        }
    }
    ~File()
    {
        if (m_fd >= 0) {
            ::close(m_fd);
        }
    }
    File(const File &) = delete;
    File &operator=(const File &) = delete;

    [[nodiscard]] bool isOpen() const { return m_fd >= 0; }

    // Bytes read, 0 at the end, -1 on an error.
    ssize_t read(char *into, size_t size, qint64 offset) const
    {
        for (;;) {
            const ssize_t got = ::pread(m_fd, into, size, offset);
            if (got >= 0 || errno != EINTR) {
                return got;
            }
        }
    }

private:
    int m_fd;
};

size_t lineHash(const char *data, size_t size)
{
    return qHashBits(data, size, 0x5e551011);
}

// The "text" of the first content part whose type is "text". A list holding anything but
// objects is not a list of parts at all and gives no text.
template<typename Value>
std::optional<std::string_view> contentText(Value content)
{
    const auto kind = content.type();
    if (kind.error()) {
        return std::nullopt;
    }
    if (kind.value_unsafe() == ondemand::json_type::string) {
        std::string_view text;
        if (content.get_string().get(text)) {
            return std::nullopt;
        }
        return text;
    }
    if (kind.value_unsafe() != ondemand::json_type::array) {
        return std::nullopt;
    }
    ondemand::array parts;
    if (content.get_array().get(parts)) {
        return std::nullopt;
    }
    bool found = false;
    std::optional<std::string_view> text;
    for (auto element : parts) {
        ondemand::object part;
        if (element.get_object().get(part)) {
            return std::nullopt;
        }
        if (found) {
            // Still walked: every element must be an object for the list to count.
            continue;
        }
        bool isText = false;
        std::optional<std::string_view> partText;
        for (auto field : part) {
            std::string_view key;
            if (field.unescaped_key().get(key)) {
                return std::nullopt;
            }
            if (key == "type") {
                std::string_view type;
                isText = !field.value().get_string().get(type) && type == "text";
            } else if (key == "text") {
                std::string_view value;
                if (!field.value().get_string().get(value)) {
                    partText = value;
                } else {
                    partText.reset();
                }
            }
        }
        if (isText) {
            found = true;
            text = partText;
        }
    }
    return text;
}

std::optional<std::string_view> messageText(ondemand::value message)
{
    ondemand::object object;
    if (message.get_object().get(object)) {
        return std::nullopt;
    }
    std::optional<std::string_view> text;
    for (auto field : object) {
        std::string_view key;
        if (field.unescaped_key().get(key)) {
            return std::nullopt;
        }
        if (key == "content") {
            text = contentText(field.value());
        }
    }
    return text;
}

// Decodes one line as a JSON object and takes out the keys a session is made of. A line that is
// not one JSON object contributes nothing.
SessionLogLine readLine(ondemand::parser &parser, const char *data, size_t size, size_t capacity, bool wantCwd)
{
    SessionLogLine line;
    ondemand::document document;
    if (const error_code error = parser.iterate(padded_string_view(data, size, capacity)).get(document)) {
        // The parser checks UTF-8 while it indexes the line, but may report another fault first;
        // only then is the line checked on its own.
        line.invalidUtf8 = error == UTF8_ERROR || !simdjson::validate_utf8(data, size);
        return line;
    }
    ondemand::object object;
    if (document.get_object().get(object)) {
        return line;
    }
    std::string_view cwd;
    std::optional<std::string_view> timestamp;
    std::optional<std::string_view> text;
    bool isUser = false;
    bool typeKnown = false;
    for (auto field : object) {
        std::string_view key;
        if (field.unescaped_key().get(key)) {
            return line;
        }
        ondemand::value value;
        if (field.value().get(value)) {
            return line;
        }
        if (key == "cwd") {
            std::string_view found;
            if (wantCwd && cwd.empty() && !value.get_string().get(found)) {
                cwd = found;
            }
        } else if (key == "timestamp") {
            std::string_view found;
            if (!value.get_string().get(found)) {
                timestamp = found;
            } else {
                timestamp.reset();
            }
        } else if (key == "type") {
            std::string_view type;
            typeKnown = true;
            isUser = !value.get_string().get(type) && type == "user";
        } else if (key == "message" && (isUser || !typeKnown)) {
            // The type usually comes first; when it does not, the text is taken on the chance
            // that the line turns out to be a user's.
            text = messageText(value);
        }
    }
    // Anything after the object makes the line something other than one JSON object.
    if (document.current_location().error() != simdjson::OUT_OF_BOUNDS) {
        return line;
    }

    if (!cwd.empty()) {
        line.cwd = QString::fromUtf8(cwd.data(), qsizetype(cwd.size()));
    }
    if (timestamp) {
        line.timestamp = SessionLogReader::parseTimestamp(*timestamp);
    }
    if (isUser && line.timestamp && text) {
        line.prompt = SessionLogReader::promptText(*text);
    }
    return line;
}

void apply(SessionLogState &state, const SessionLogLine &line)
{
    if (line.invalidUtf8) {
        state.invalidUtf8 = true;
        return;
    }
    if (state.cwd.isEmpty() && !line.cwd.isEmpty()) {
        state.cwd = line.cwd;
    }
    if (line.timestamp) {
        state.timestamps.push_back(*line.timestamp);
        if (line.prompt) {
            state.prompts.push_back(UserPrompt{*line.timestamp, line.prompt});
        }
    }
}

// Puts what the newly read lines added (after the first `oldTimestamps` and `oldPrompts`) in
// order with what was there; merging keeps earlier lines first among equal dates.
void order(SessionLogState &state, size_t oldTimestamps, size_t oldPrompts)
{
    auto &times = state.timestamps;
    const auto timesMiddle = times.begin() + qsizetype(oldTimestamps);
    if (!std::is_sorted(timesMiddle, times.end())) {
        std::sort(timesMiddle, times.end());
    }
    std::inplace_merge(times.begin(), timesMiddle, times.end());

    auto &prompts = state.prompts;
    const auto byDate = [](const UserPrompt &a, const UserPrompt &b) { return a.at < b.at; };
    const auto promptsMiddle = prompts.begin() + qsizetype(oldPrompts);
    std::stable_sort(promptsMiddle, prompts.end(), byDate);
    std::inplace_merge(prompts.begin(), promptsMiddle, prompts.end(), byDate);
}

// Streams the file from `read.state.parsedBytes` to its end through the thread's buffer.
bool stream(const File &file, SessionLogRead &read)
{
    ReaderContext &ctx = context();
    ondemand::parser &parser = ctx.jsonParser();
    SessionLogState &state = read.state;
    const size_t oldTimestamps = state.timestamps.size();
    const size_t oldPrompts = state.prompts.size();

    qint64 bufferOffset = state.parsedBytes; // file offset of buffer[0]
    size_t filled = 0;
    bool ok = true;
    for (;;) {
        if (filled == ctx.capacity) {
            ctx.grow(filled);
        }
        const ssize_t got = file.read(ctx.buffer.get() + filled, ctx.capacity - filled, bufferOffset + qint64(filled));
        if (got < 0) {
            ok = false;
            break;
        }
        if (got == 0) {
            break;
        }
        read.bytesRead += got;
        char *const buffer = ctx.buffer.get();
        const size_t searchFrom = filled;
        filled += size_t(got);

        size_t lineStart = 0;
        size_t lastStart = 0;
        size_t lastEnd = 0;
        const char *cursor = buffer + searchFrom;
        const char *const end = buffer + filled;
        while (const char *feed = static_cast<const char *>(std::memchr(cursor, '\n', size_t(end - cursor)))) {
            const size_t lineEnd = size_t(feed - buffer);
            if (lineEnd > lineStart && !state.invalidUtf8) {
                // Past an invalid line the file gives no session whatever follows, so the rest
                // is only counted, not decoded.
                apply(state, readLine(parser, buffer + lineStart, lineEnd - lineStart,
                                      ctx.capacity + SIMDJSON_PADDING - lineStart, state.cwd.isEmpty()));
            }
            lastStart = lineStart;
            lastEnd = lineEnd + 1;
            lineStart = lineEnd + 1;
            cursor = feed + 1;
        }
        if (lastEnd > 0) {
            state.lastLineStart = bufferOffset + qint64(lastStart);
            state.lastLineHash = lineHash(buffer + lastStart, lastEnd - lastStart);
            state.parsedBytes = bufferOffset + qint64(lastEnd);
        }
        std::memmove(buffer, buffer + lineStart, filled - lineStart);
        bufferOffset += qint64(lineStart);
        filled -= lineStart;
    }
    if (ok && filled > 0) {
        SessionLogLine tail;
        if (!state.invalidUtf8) {
            tail = readLine(parser, ctx.buffer.get(), filled, ctx.capacity + SIMDJSON_PADDING, state.cwd.isEmpty());
        }
        read.tail = std::move(tail);
    }
    order(state, oldTimestamps, oldPrompts);
    ctx.trim();
    return ok;
}

int digits(std::string_view text, size_t at, size_t count)
{
    int value = 0;
    for (size_t i = at; i < at + count; ++i) {
        const char c = text[i];
        if (c < '0' || c > '9') {
            return -1;
        }
        value = value * 10 + (c - '0');
    }
    return value;
}

qint64 daysFromCivil(int year, int month, int day)
{
    // Howard Hinnant's days_from_civil: exact for the proleptic Gregorian calendar.
    year -= month <= 2 ? 1 : 0;
    const int era = (year >= 0 ? year : year - 399) / 400;
    const int yearOfEra = year - era * 400;
    const int dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const int dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return qint64(era) * 146097 + dayOfEra - 719468;
}

int daysInMonth(int year, int month)
{
    static constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return month == 2 && leap ? 29 : days[month - 1];
}

} // namespace

namespace SessionLogReader {

std::optional<SessionLogRead> readWhole(const QByteArray &nativePath)
{
    const File file(nativePath);
    if (!file.isOpen()) {
        return std::nullopt;
    }
    SessionLogRead read;
    if (!stream(file, read)) {
        return std::nullopt;
    }
    return read;
}

std::optional<SessionLogRead> readAppended(const QByteArray &nativePath, const SessionLogState &previous)
{
    if (previous.parsedBytes == 0 || previous.invalidUtf8) {
        return std::nullopt;
    }
    const File file(nativePath);
    if (!file.isOpen()) {
        return std::nullopt;
    }
    const size_t lastSize = size_t(previous.parsedBytes - previous.lastLineStart);
    QByteArray last(qsizetype(lastSize), Qt::Uninitialized);
    if (file.read(last.data(), lastSize, previous.lastLineStart) != ssize_t(lastSize) ||
        lineHash(last.constData(), lastSize) != previous.lastLineHash) {
        return std::nullopt;
    }
    SessionLogRead read{previous, std::nullopt, qint64(lastSize)};
    if (!stream(file, read)) {
        return std::nullopt;
    }
    return read;
}

std::optional<LogInstant> parseTimestamp(std::string_view text)
{
    // yyyy-MM-ddTHH:mm:ss[.fraction](Z|+HH:mm|-HH:mm)
    if (text.size() < 20 || text[4] != '-' || text[7] != '-' || text[10] != 'T' || text[13] != ':' || text[16] != ':') {
        return std::nullopt;
    }
    const int year = digits(text, 0, 4);
    const int month = digits(text, 5, 2);
    const int day = digits(text, 8, 2);
    const int hour = digits(text, 11, 2);
    const int minute = digits(text, 14, 2);
    const int second = digits(text, 17, 2);
    if (year < 0 || month < 1 || month > 12 || day < 1 || day > daysInMonth(year, month) || hour < 0 || hour > 23 ||
        minute < 0 || minute > 59 || second < 0 || second > 59) {
        return std::nullopt;
    }
    size_t at = 19;
    int millis = 0;
    if (text[at] == '.') {
        ++at;
        const size_t first = at;
        while (at < text.size() && text[at] >= '0' && text[at] <= '9') {
            if (at - first < 3) {
                millis = millis * 10 + (text[at] - '0');
            }
            ++at;
        }
        const size_t count = at - first;
        if (count == 0) {
            return std::nullopt;
        }
        for (size_t i = count; i < 3; ++i) {
            millis *= 10;
        }
    }
    int offsetMinutes = 0;
    if (at < text.size() && text[at] == 'Z') {
        ++at;
    } else if (at + 6 == text.size() && (text[at] == '+' || text[at] == '-') && text[at + 3] == ':') {
        const int offsetHours = digits(text, at + 1, 2);
        const int offsetMins = digits(text, at + 4, 2);
        if (offsetHours < 0 || offsetHours > 23 || offsetMins < 0 || offsetMins > 59) {
            return std::nullopt;
        }
        offsetMinutes = (offsetHours * 60 + offsetMins) * (text[at] == '-' ? -1 : 1);
        at += 6;
    } else {
        return std::nullopt;
    }
    if (at != text.size()) {
        return std::nullopt;
    }
    const qint64 seconds =
        daysFromCivil(year, month, day) * 86400 + hour * 3600 + minute * 60 + second - qint64(offsetMinutes) * 60;
    return seconds * 1000 + millis;
}

std::optional<QString> promptText(std::string_view raw)
{
    const QString text = QString::fromUtf8(raw.data(), qsizetype(raw.size())).trimmed();
    if (text.isEmpty()) {
        return std::nullopt;
    }
    // Characters as a reader counts them: an emoji or a letter with its accents is one.
    if (text.size() <= promptLimit) {
        return text;
    }
    QTextBoundaryFinder graphemes(QTextBoundaryFinder::Grapheme, text);
    qsizetype count = 0;
    while (graphemes.toNextBoundary() >= 0) {
        if (++count == promptLimit) {
            const qsizetype cut = graphemes.position();
            if (cut >= text.size()) {
                return text;
            }
            return text.left(cut) + u"...";
        }
    }
    return text;
}

} // namespace SessionLogReader
