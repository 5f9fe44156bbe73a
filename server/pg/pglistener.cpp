#include "pglistener.h"

#include <QString>

#include <libpq-fe.h>

#include <sys/select.h>

#include <chrono>

PgListener::PgListener(QByteArray conninfo, QByteArray channel, Callback callback)
    : m_conninfo(std::move(conninfo))
    , m_channel(std::move(channel))
    , m_callback(std::move(callback))
    , m_thread([this] { run(); })
{
}

PgListener::~PgListener()
{
    m_stop = true;
    m_thread.join();
}

void PgListener::run()
{
    while (!m_stop) {
        PGconn *conn = PQconnectdb(m_conninfo.constData());
        if (PQstatus(conn) == CONNECTION_OK) {
            char *escaped = PQescapeIdentifier(conn, m_channel.constData(), size_t(m_channel.size()));
            const QByteArray listen = QByteArray("LISTEN ") + QByteArray(escaped);
            PQclear(PQexec(conn, listen.constData()));
            PQfreemem(escaped);
            while (!m_stop && PQstatus(conn) == CONNECTION_OK) {
                const int socket = PQsocket(conn);
                fd_set readable;
                FD_ZERO(&readable);
                FD_SET(socket, &readable);
                // Wake up now and then to notice a stop request.
                timeval wait{0, 250000};
                if (select(socket + 1, &readable, nullptr, nullptr, &wait) < 0) {
                    break;
                }
                if (!PQconsumeInput(conn)) {
                    break;
                }
                while (PGnotify *notification = PQnotifies(conn)) {
                    const QByteArray payload(notification->extra);
                    PQfreemem(notification);
                    m_callback(payload);
                }
            }
        }
        PQfinish(conn);
        for (int i = 0; i < 10 && !m_stop; ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
        }
    }
}
