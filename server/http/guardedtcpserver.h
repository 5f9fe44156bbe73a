#pragma once

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <chrono>

// A socket that counts the bytes a client sent since it was last answered, so that an oversized
// request is refused while it arrives instead of after it has been buffered whole.
class GuardedSocket : public QTcpSocket
{
    Q_OBJECT

public:
    GuardedSocket(qint64 maxUnansweredBytes, std::chrono::milliseconds idleLimit, QObject *parent = nullptr);

signals:
    // Nothing arrived or left for the idle limit.
    void idle();

protected:
    qint64 writeData(const char *data, qint64 size) override;

private:
    void onArrival();

    qint64 m_limit;
    qint64 m_unanswered = 0;
    bool m_refused = false;
    QTimer m_idle;
};

// Accepts connections as GuardedSockets for QAbstractHttpServer::bind().
class GuardedTcpServer : public QTcpServer
{
    Q_OBJECT

public:
    GuardedTcpServer(qint64 maxUnansweredBytes, std::chrono::milliseconds idleLimit, QObject *parent = nullptr);

signals:
    void socketIdle(QTcpSocket *socket);

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    qint64 m_limit;
    std::chrono::milliseconds m_idleLimit;
};
