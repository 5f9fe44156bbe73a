#include "requestframing.h"

#include <QList>

namespace {

constexpr qsizetype maxChunkLine = 1024;

bool allDigits(QByteArrayView text, int maxDigits)
{
    return !text.isEmpty() && text.size() <= maxDigits &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// A header name as HTTP defines a token: letters, digits and a few marks, nothing else.
bool isToken(QByteArrayView text)
{
    return std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               QByteArrayView("!#$%&'*+-.^_`|~").contains(c);
    });
}

} // namespace

RequestFraming::RequestFraming(Limits limits)
    : m_limits(limits)
{}

RequestFraming::Verdict RequestFraming::refuse(Verdict verdict)
{
    m_state = State::Refused;
    m_head.clear();
    return verdict;
}

RequestFraming::Verdict RequestFraming::feed(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        switch (m_state) {
        case State::Refused:
        case State::Upgraded:
            return Verdict::Ok;
        case State::Head: {
            // Empty lines before a request line are allowed and ignored.
            while (m_head.isEmpty() && !bytes.isEmpty() && (bytes.front() == '\r' || bytes.front() == '\n')) {
                bytes = bytes.sliced(1);
            }
            if (bytes.isEmpty()) {
                return Verdict::Ok;
            }
            // Never more than one byte past the limit is kept, however much arrives.
            const qsizetype before = m_head.size();
            const qsizetype take = std::min(bytes.size(), m_limits.maxHead + 1 - before);
            m_head.append(bytes.first(take));
            const qsizetype end = m_head.indexOf("\r\n\r\n", std::max<qsizetype>(0, before - 3));
            const qsizetype lineEnd = m_head.indexOf('\n');
            if ((lineEnd < 0 ? m_head.size() : lineEnd) > m_limits.maxRequestLine) {
                return refuse(Verdict::RequestLineTooLong);
            }
            if (end < 0) {
                if (m_head.size() > m_limits.maxHead) {
                    return refuse(Verdict::HeadTooLarge);
                }
                bytes = bytes.sliced(take);
                continue;
            }
            const qsizetype headLength = end + 4;
            if (headLength > m_limits.maxHead) {
                return refuse(Verdict::HeadTooLarge);
            }
            bytes = bytes.sliced(headLength - before);
            const QByteArray head = m_head.left(headLength);
            m_head.clear();
            if (const Verdict verdict = endOfHead(head); verdict != Verdict::Ok) {
                return verdict;
            }
            continue;
        }
        case State::Body:
        case State::ChunkData:
        case State::ChunkEnd: {
            const qsizetype taken = qsizetype(std::min<qint64>(m_remaining, bytes.size()));
            m_remaining -= taken;
            bytes = bytes.sliced(taken);
            if (m_remaining == 0) {
                // After a chunk's data come its CR LF, then the next chunk's size.
                m_state = m_state == State::Body        ? State::Head
                          : m_state == State::ChunkData ? State::ChunkEnd
                                                        : State::ChunkSize;
                m_remaining = m_state == State::ChunkEnd ? 2 : 0;
            }
            continue;
        }
        case State::ChunkSize:
        case State::Trailer: {
            const qsizetype newline = bytes.indexOf('\n');
            const QByteArrayView part = newline < 0 ? bytes : bytes.first(newline + 1);
            m_head.append(part);
            bytes = bytes.sliced(part.size());
            const qsizetype limit = m_state == State::ChunkSize ? maxChunkLine : m_limits.maxHead - m_trailer;
            if (m_head.size() > limit) {
                return refuse(m_state == State::ChunkSize ? Verdict::Malformed : Verdict::HeadTooLarge);
            }
            if (newline < 0) {
                continue;
            }
            const QByteArray line = m_head.trimmed();
            m_trailer += m_head.size();
            m_head.clear();
            if (m_state == State::Trailer) {
                if (line.isEmpty()) {
                    m_state = State::Head;
                }
                continue;
            }
            // The size in hexadecimal, perhaps with extensions after ';'.
            const qsizetype extensions = line.indexOf(';');
            const QByteArray digits = (extensions < 0 ? line : line.left(extensions)).trimmed();
            bool ok = digits.size() <= 15;
            const qint64 size = ok ? digits.toLongLong(&ok, 16) : 0;
            if (!ok || size < 0) {
                return refuse(Verdict::Malformed);
            }
            if (size == 0) {
                m_state = State::Trailer;
                m_trailer = 0;
                continue;
            }
            m_bodyBytes += size;
            if (m_bodyBytes > m_limits.maxBody) {
                return refuse(Verdict::BodyTooLarge);
            }
            m_state = State::ChunkData;
            m_remaining = size;
            continue;
        }
        }
    }
    return Verdict::Ok;
}

RequestFraming::Verdict RequestFraming::endOfHead(QByteArrayView head)
{
    qint64 length = -1;
    bool chunked = false;
    bool upgrade = false;
    bool connectionUpgrade = false;
    const QList<QByteArray> lines = head.toByteArray().split('\n');
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const QByteArray &line = lines.at(i);
        // A folded line continues the header before it for some readers and starts a header for
        // others: refused, so that no two readers of this connection can see different requests.
        if (line.startsWith(' ') || line.startsWith('\t')) {
            return refuse(Verdict::Malformed);
        }
        const QByteArrayView field = line.endsWith('\r') ? QByteArrayView(line).chopped(1) : QByteArrayView(line);
        if (field.isEmpty()) {
            continue;
        }
        // A name with white space before its colon, or a line without a name, is read as another
        // header (or none) by other readers; a value holding CR or NUL is cut differently by each.
        const qsizetype colon = field.indexOf(':');
        if (colon <= 0 || !isToken(field.first(colon)) || field.contains('\r') || field.contains('\0')) {
            return refuse(Verdict::Malformed);
        }
        const QByteArray name = field.first(colon).toByteArray().toLower();
        const QByteArray value = field.sliced(colon + 1).toByteArray().trimmed();
        if (name == "content-length") {
            // Two lengths that disagree would let the two ends of a connection see two different
            // requests.
            if (!allDigits(value, 18) || (length >= 0 && length != value.toLongLong())) {
                return refuse(Verdict::Malformed);
            }
            length = value.toLongLong();
        } else if (name == "transfer-encoding") {
            if (!value.toLower().endsWith("chunked")) {
                return refuse(Verdict::Malformed);
            }
            chunked = true;
        } else if (name == "upgrade") {
            upgrade = true;
        } else if (name == "connection") {
            connectionUpgrade = connectionUpgrade || value.toLower().contains("upgrade");
        }
    }
    if (upgrade && connectionUpgrade) {
        m_state = State::Upgraded;
        return Verdict::Ok;
    }
    if (chunked) {
        m_state = State::ChunkSize;
        m_bodyBytes = 0;
        return Verdict::Ok;
    }
    if (length > m_limits.maxBody) {
        return refuse(Verdict::BodyTooLarge);
    }
    m_remaining = std::max<qint64>(0, length);
    m_state = m_remaining > 0 ? State::Body : State::Head;
    return Verdict::Ok;
}
