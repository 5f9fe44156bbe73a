#pragma once

#include <QByteArray>
#include <QByteArrayView>

// Follows the requests of one connection through their framing (request line and headers, then a
// body by Content-Length or in chunks, then the next request), so that limits hold for each request
// as its bytes arrive instead of for whatever a client sends before the first answer.
class RequestFraming
{
public:
    struct Limits
    {
        // Long enough for a filter on a few hundred ids.
        qsizetype maxRequestLine = 32 * 1024;
        qsizetype maxHead = 64 * 1024; // request line and headers together
        qint64 maxBody = 10 * 1024 * 1024;
    };

    // What the bytes so far amount to: fine, or the answer that refuses them.
    enum class Verdict {
        Ok,
        Malformed = 400,
        BodyTooLarge = 413,
        RequestLineTooLong = 414,
        HeadTooLarge = 431,
    };

    explicit RequestFraming(Limits limits);

    Verdict feed(QByteArrayView bytes);

    // Between requests or inside a head: the connection waits for a request to be sent.
    [[nodiscard]] bool awaitingHead() const { return m_state == State::Head; }
    // Some bytes of a head have come, not all of it.
    [[nodiscard]] bool headStarted() const { return m_state == State::Head && !m_head.isEmpty(); }
    // The connection switched protocols (a WebSocket): no longer HTTP requests to follow.
    [[nodiscard]] bool upgraded() const { return m_state == State::Upgraded; }

private:
    enum class State { Head, Body, ChunkSize, ChunkData, ChunkEnd, Trailer, Upgraded, Refused };

    Verdict endOfHead(QByteArrayView head);
    Verdict refuse(Verdict verdict);

    Limits m_limits;
    State m_state = State::Head;
    QByteArray m_head;       // the head so far, or a chunk-size or trailer line
    qint64 m_remaining = 0;  // body or chunk bytes still to come
    qint64 m_bodyBytes = 0;  // of the current chunked body
    qsizetype m_trailer = 0; // bytes of trailer lines so far
};
