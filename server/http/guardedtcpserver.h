#pragma once

#include "http/requestframing.h"

#include <QHash>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <chrono>

// Hands memory the allocator holds free back to the system shortly (once for a burst): what a
// refused or large request had buffered must not leave the server large.
void returnFreedMemory();

// A socket that follows its requests as they arrive (RequestFraming), so that an oversized request
// line, head or body is refused while it arrives instead of after it has been buffered whole, and
// that tells its server whether it waits for a request.
class GuardedSocket : public QTcpSocket
{
    Q_OBJECT

public:
    struct Limits
    {
        RequestFraming::Limits framing;
        std::chrono::milliseconds idle{std::chrono::seconds(60)};
        // A head that has begun must be complete within this, however slowly it trickles in.
        std::chrono::milliseconds headDeadline{std::chrono::seconds(10)};
    };

    GuardedSocket(const Limits &limits, QObject *parent = nullptr);

    [[nodiscard]] bool awaitingRequest() const { return m_framing.awaitingHead(); }
    // Writes a refusal with this status and closes the connection.
    void refuse(int status, const QString &message);

signals:
    // Nothing arrived or left for the idle limit.
    void idle();
    void awaitingRequestChanged();

protected:
    qint64 writeData(const char *data, qint64 size) override;

private:
    void onArrival();

    RequestFraming::Limits m_limits;
    RequestFraming m_framing;
    qint64 m_maxUnanswered;
    qint64 m_unanswered = 0;
    bool m_refused = false;
    bool m_awaiting = true;
    QTimer m_idle;
    QTimer m_headDeadline;
};

// Accepts connections as GuardedSockets for QAbstractHttpServer::bind(), at most a number of them
// waiting for a request per client address.
class GuardedTcpServer : public QTcpServer
{
    Q_OBJECT

public:
    GuardedTcpServer(const GuardedSocket::Limits &limits, int maxWaitingPerClient, QObject *parent = nullptr);

signals:
    void socketIdle(QTcpSocket *socket);

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    void track(GuardedSocket *socket);

    GuardedSocket::Limits m_limits;
    int m_maxWaiting;
    QHash<QString, int> m_waiting; // client address -> connections waiting for a request
    QHash<QString, int> m_open;    // client address -> connections
};
