#pragma once

#include "http/httpmessage.h"

#include <QAbstractHttpServer>
#include <QHash>
#include <QMap>
#include <QPointer>
#include <QThreadPool>

#include <chrono>
#include <memory>

class QTcpSocket;

// The backend's HTTP front: finds the service for a path, runs it on a worker thread so that a
// request waiting on the database never holds up the others, and writes the answers of one
// connection in the order its requests came. Every answer, errors included, is JSON.
class HttpServer : public QAbstractHttpServer
{
    Q_OBJECT

public:
    struct Limits
    {
        qint64 maxBodyBytes = 10 * 1024 * 1024;
        // A connection that sends nothing and waits for nothing is closed after this long.
        std::chrono::milliseconds idleConnection{std::chrono::seconds(60)};
        // More threads than database connections, so that requests waiting on a lock leave room for
        // the others.
        int workerThreads = 16;
        // Connections from one client address that may wait to send a request at the same time:
        // a browser opens six, a team behind one address a few each.
        int maxWaitingPerClient = 64;
    };

    explicit HttpServer(Limits limits, QObject *parent = nullptr);
    ~HttpServer() override;

    void addService(std::shared_ptr<HttpService> service);

    // Listens with the size and idle guards; answers the port, or 0 when it cannot listen.
    quint16 listenGuarded(const QHostAddress &address, quint16 port);

protected:
    bool handleRequest(const QHttpServerRequest &request, QTcpSocket *socket) override;
    void missingHandler(const QHttpServerRequest &request, QTcpSocket *socket) override;

private:
    struct Connection
    {
        quint64 nextSequence = 0;
        quint64 nextToWrite = 0;
        QMap<quint64, std::pair<HttpResponse, bool>> ready; // answer, close afterwards
    };

    void deliver(QTcpSocket *socket, quint64 sequence, HttpResponse response, bool close);
    static void write(QTcpSocket *socket, const HttpResponse &response, bool close);

    Limits m_limits;
    QThreadPool m_pool;
    QList<std::shared_ptr<HttpService>> m_services;
    QHash<QTcpSocket *, Connection> m_connections;
};
