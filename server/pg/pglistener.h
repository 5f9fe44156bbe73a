#pragma once

#include <QByteArray>

#include <atomic>
#include <functional>
#include <thread>

// Listens on one notification channel on a connection of its own and calls back (on its own
// thread) for every notification, reconnecting when the connection drops.
class PgListener
{
public:
    using Callback = std::function<void(const QByteArray &payload)>;

    PgListener(QByteArray conninfo, QByteArray channel, Callback callback);
    ~PgListener();

    PgListener(const PgListener &) = delete;
    PgListener &operator=(const PgListener &) = delete;

private:
    void run();

    QByteArray m_conninfo;
    QByteArray m_channel;
    Callback m_callback;
    std::atomic<bool> m_stop{false};
    std::thread m_thread;
};
