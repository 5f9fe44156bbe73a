#include "pgpool.h"

#include <QDeadlineTimer>

PgPool::Lease::Lease(PgPool *pool, std::unique_ptr<PgConnection> connection)
    : m_pool(pool)
    , m_connection(std::move(connection))
{}

PgPool::Lease::~Lease()
{
    if (m_connection) {
        m_pool->release(std::move(m_connection));
    }
}

PgPool::PgPool(QByteArray conninfo, int size)
    : m_conninfo(std::move(conninfo))
    , m_size(size)
{}

PgPool::Lease PgPool::acquire(std::chrono::milliseconds wait)
{
    const QDeadlineTimer deadline(wait);
    QMutexLocker lock(&m_mutex);
    for (;;) {
        if (!m_idle.empty()) {
            std::unique_ptr<PgConnection> connection = std::move(m_idle.back());
            m_idle.pop_back();
            return Lease(this, std::move(connection));
        }
        if (m_open < m_size) {
            ++m_open;
            lock.unlock();
            try {
                return Lease(this, PgConnection::open(m_conninfo));
            } catch (...) {
                lock.relock();
                --m_open;
                throw;
            }
        }
        if (!m_available.wait(&m_mutex, deadline)) {
            throw Busy();
        }
    }
}

void PgPool::release(std::unique_ptr<PgConnection> connection)
{
    // A connection left inside a transaction or broken is not handed to the next request.
    if (connection->inTransaction()) {
        try {
            connection->execScript("ROLLBACK");
        } catch (const PgException &) {
        }
    }
    if (connection->carriedLargeMessage() || (!connection->isHealthy() && !connection->reset())) {
        connection.reset();
    }
    QMutexLocker lock(&m_mutex);
    if (connection) {
        m_idle.push_back(std::move(connection));
    } else {
        --m_open;
    }
    m_available.wakeOne();
}
