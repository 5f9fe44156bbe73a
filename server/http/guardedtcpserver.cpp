#include "guardedtcpserver.h"

#include "http/httpmessage.h"

#include <QPointer>

#include <malloc.h>
#include <sys/socket.h>

using namespace Qt::StringLiterals;

namespace {

QString clientKey(const QHostAddress &address)
{
    bool isV4 = false;
    const quint32 v4 = address.toIPv4Address(&isV4);
    return isV4 ? QHostAddress(v4).toString() : address.toString();
}

QByteArray reason(int status)
{
    switch (status) {
    case 400:
        return "Bad Request";
    case 408:
        return "Request Timeout";
    case 413:
        return "Payload Too Large";
    case 414:
        return "URI Too Long";
    case 431:
        return "Request Header Fields Too Large";
    default:
        return "Service Unavailable";
    }
}

} // namespace

void returnFreedMemory()
{
    static QPointer<QTimer> pending;
    if (pending) {
        return;
    }
    pending = new QTimer;
    pending->setSingleShot(true);
    QObject::connect(pending, &QTimer::timeout, pending, [] {
        malloc_trim(0);
        pending->deleteLater();
    });
    pending->start(std::chrono::milliseconds(200));
}


GuardedSocket::GuardedSocket(const Limits &limits, QObject *parent)
    : QTcpSocket(parent)
    , m_limits(limits.framing)
    , m_framing(limits.framing)
    // A backstop for pipelined requests that all wait for their answers.
    , m_maxUnanswered(limits.framing.maxBody + limits.framing.maxHead * 4)
{
    m_idle.setSingleShot(true);
    m_idle.setInterval(limits.idle);
    connect(&m_idle, &QTimer::timeout, this, &GuardedSocket::idle);
    m_headDeadline.setSingleShot(true);
    m_headDeadline.setInterval(limits.headDeadline);
    connect(&m_headDeadline, &QTimer::timeout, this,
            [this] { refuse(408, u"The request's headers did not arrive in time."_s); });
    // Connected before the HTTP server connects its own reader, so the new bytes are still unread.
    connect(this, &QIODevice::readyRead, this, &GuardedSocket::onArrival);
    m_idle.start();
}

void GuardedSocket::refuse(int status, const QString &message)
{
    if (m_refused) {
        return;
    }
    m_refused = true;
    m_headDeadline.stop();
    const HttpResponse refusal =
        HttpResponse::error(status, u"PGRST%1"_s.arg(status), QString::fromLatin1(reason(status)), message);
    QByteArray out = "HTTP/1.1 " + QByteArray::number(status) + ' ' + reason(status) + "\r\n";
    for (const auto &[name, value] : refusal.headers) {
        out += name + ": " + value + "\r\n";
    }
    out +=
        "Content-Length: " + QByteArray::number(refusal.body.size()) + "\r\nConnection: close\r\n\r\n" + refusal.body;
    write(out);
    if (isTransactionStarted()) {
        commitTransaction();
    }
    skip(bytesAvailable());
    returnFreedMemory();
    // The client may still be sending the request: what comes is read and dropped for a moment, so
    // that it gets to read this answer instead of a reset connection; then the connection closes.
    auto finishWriting = [this] {
        if (bytesToWrite() == 0) {
            ::shutdown(int(socketDescriptor()), SHUT_WR);
        }
    };
    connect(this, &QAbstractSocket::bytesWritten, this, finishWriting);
    connect(this, &QIODevice::readChannelFinished, this, &QAbstractSocket::abort);
    QTimer::singleShot(std::chrono::seconds(5), this, &QAbstractSocket::abort);
}

void GuardedSocket::onArrival()
{
    m_idle.start();
    if (m_refused) {
        // Whatever else comes is dropped as it arrives. The HTTP reader keeps what it reads in a
        // transaction until a request is complete, which a refused one never is: end that first,
        // or every dropped byte would stay in memory.
        if (isTransactionStarted()) {
            commitTransaction();
        }
        skip(bytesAvailable());
        return;
    }
    const QByteArray arrived = peek(bytesAvailable());
    m_unanswered += arrived.size();
    const RequestFraming::Verdict verdict = m_framing.feed(arrived);
    if (verdict != RequestFraming::Verdict::Ok) {
        static const QHash<int, QString> messages{
            {400, u"The request's framing cannot be read."_s},
            {413, u"A request body may hold at most %1 bytes."_s},
            {414, u"The request line may hold at most %1 bytes."_s},
        };
        const int status = int(verdict);
        const qint64 limit = status == 413   ? m_limits.maxBody
                             : status == 414 ? qint64(m_limits.maxRequestLine)
                                             : qint64(m_limits.maxHead);
        refuse(status, messages.value(status, u"The request's headers may hold at most %1 bytes."_s).arg(limit));
        return;
    }
    if (!m_framing.upgraded() && m_unanswered > m_maxUnanswered) {
        refuse(413, u"Requests waiting for their answers may hold at most %1 bytes."_s.arg(m_maxUnanswered));
        return;
    }
    if (m_framing.headStarted() != m_headDeadline.isActive()) {
        if (m_framing.headStarted()) {
            m_headDeadline.start();
        } else {
            m_headDeadline.stop();
        }
    }
    if (m_framing.awaitingHead() != m_awaiting) {
        m_awaiting = m_framing.awaitingHead();
        emit awaitingRequestChanged();
    }
}

qint64 GuardedSocket::writeData(const char *data, qint64 size)
{
    // An answer is going out: what the client sent before it has been dealt with.
    m_unanswered = 0;
    m_idle.start();
    return QTcpSocket::writeData(data, size);
}

GuardedTcpServer::GuardedTcpServer(const GuardedSocket::Limits &limits, int maxWaitingPerClient, QObject *parent)
    : QTcpServer(parent)
    , m_limits(limits)
    , m_maxWaiting(maxWaitingPerClient)
{}

void GuardedTcpServer::incomingConnection(qintptr descriptor)
{
    auto *socket = new GuardedSocket(m_limits, this);
    if (!socket->setSocketDescriptor(descriptor)) {
        delete socket;
        return;
    }
    const QString client = clientKey(socket->peerAddress());
    // Past the waiting ones, a connection in the middle of a body also holds memory: in all, a
    // client address holds at most four times as many.
    if (m_waiting.value(client) >= m_maxWaiting || m_open.value(client) >= 4 * m_maxWaiting) {
        socket->refuse(503, u"Too many connections from this address wait to send a request."_s);
        connect(socket, &QAbstractSocket::disconnected, socket, &QObject::deleteLater);
        return;
    }
    track(socket);
    connect(socket, &GuardedSocket::idle, this, [this, socket] { emit socketIdle(socket); });
    addPendingConnection(socket);
}

void GuardedTcpServer::track(GuardedSocket *socket)
{
    const QString client = clientKey(socket->peerAddress());
    ++m_waiting[client];
    ++m_open[client];
    connect(socket, &QObject::destroyed, this, [this, client] {
        if (--m_open[client] <= 0) {
            m_open.remove(client);
        }
    });
    auto counted = std::make_shared<bool>(true);
    auto release = [this, client] {
        if (--m_waiting[client] <= 0) {
            m_waiting.remove(client);
        }
    };
    connect(socket, &GuardedSocket::awaitingRequestChanged, this, [this, socket, client, counted, release] {
        if (socket->awaitingRequest() == *counted) {
            return;
        }
        *counted = socket->awaitingRequest();
        if (*counted) {
            ++m_waiting[client];
        } else {
            release();
        }
    });
    connect(socket, &QObject::destroyed, this, [counted, release] {
        if (*counted) {
            release();
        }
    });
}
