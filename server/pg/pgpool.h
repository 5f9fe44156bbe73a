#pragma once

#include "pg/pgconnection.h"

#include <QMutex>
#include <QWaitCondition>

#include <chrono>
#include <memory>
#include <vector>

// A fixed number of connections shared by the request threads. A request borrows one for the
// length of its transaction; when all are busy it waits, up to a limit.
class PgPool
{
public:
    class Lease
    {
    public:
        Lease(PgPool *pool, std::unique_ptr<PgConnection> connection);
        Lease(Lease &&other) noexcept = default;
        ~Lease();
        PgConnection *operator->() const { return m_connection.get(); }
        PgConnection &operator*() const { return *m_connection; }

    private:
        PgPool *m_pool;
        std::unique_ptr<PgConnection> m_connection;
    };

    // Thrown when no connection becomes free in time.
    class Busy : public std::exception
    {
    public:
        const char *what() const noexcept override { return "all database connections are busy"; }
    };

    PgPool(QByteArray conninfo, int size);

    // Throws Busy after `wait`, PgException when a new connection cannot be opened.
    Lease acquire(std::chrono::milliseconds wait);
    [[nodiscard]] int size() const { return m_size; }

private:
    void release(std::unique_ptr<PgConnection> connection);

    const QByteArray m_conninfo;
    const int m_size;
    QMutex m_mutex;
    QWaitCondition m_available;
    std::vector<std::unique_ptr<PgConnection>> m_idle;
    int m_open = 0;
};
