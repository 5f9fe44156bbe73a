#include "guardedtcpserver.h"

#include "http/httpmessage.h"

GuardedSocket::GuardedSocket(qint64 maxUnansweredBytes, std::chrono::milliseconds idleLimit, QObject *parent)
    : QTcpSocket(parent)
    , m_limit(maxUnansweredBytes)
{
    m_idle.setSingleShot(true);
    m_idle.setInterval(idleLimit);
    connect(&m_idle, &QTimer::timeout, this, &GuardedSocket::idle);
    // Connected before the HTTP server connects its own reader, so the new bytes are still unread.
    connect(this, &QIODevice::readyRead, this, &GuardedSocket::onArrival);
    m_idle.start();
}

void GuardedSocket::onArrival()
{
    m_idle.start();
    if (m_refused) {
        return;
    }
    m_unanswered += bytesAvailable();
    if (m_unanswered <= m_limit) {
        return;
    }
    m_refused = true;
    const HttpResponse refusal =
        HttpResponse::error(413, QStringLiteral("PGRST413"), QStringLiteral("Payload too large"),
                            QStringLiteral("A request may hold at most %1 bytes.").arg(m_limit));
    QByteArray out = "HTTP/1.1 413 Payload Too Large\r\n";
    for (const auto &[name, value] : refusal.headers) {
        out += name + ": " + value + "\r\n";
    }
    out +=
        "Content-Length: " + QByteArray::number(refusal.body.size()) + "\r\nConnection: close\r\n\r\n" + refusal.body;
    write(out);
    disconnectFromHost();
}

qint64 GuardedSocket::writeData(const char *data, qint64 size)
{
    // An answer is going out: whatever the client sends next is a new request.
    m_unanswered = 0;
    m_idle.start();
    return QTcpSocket::writeData(data, size);
}

GuardedTcpServer::GuardedTcpServer(qint64 maxUnansweredBytes, std::chrono::milliseconds idleLimit, QObject *parent)
    : QTcpServer(parent)
    , m_limit(maxUnansweredBytes)
    , m_idleLimit(idleLimit)
{}

void GuardedTcpServer::incomingConnection(qintptr descriptor)
{
    auto *socket = new GuardedSocket(m_limit, m_idleLimit, this);
    if (!socket->setSocketDescriptor(descriptor)) {
        delete socket;
        return;
    }
    connect(socket, &GuardedSocket::idle, this, [this, socket] { emit socketIdle(socket); });
    addPendingConnection(socket);
}
