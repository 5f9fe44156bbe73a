#pragma once

#include "realtime/subscription.h"

#include <QByteArray>
#include <QHash>
#include <QJsonArray>
#include <QString>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

class PgConnection;

// Reads the change queue on a thread of its own, decides who receives each change (binding,
// filter, and whether the subscriber may SELECT the row under row-level security), hands the
// deliveries over, and deletes what it has read.
class ChangeDispatcher
{
public:
    struct Hooks
    {
        std::function<SubscriptionSnapshot()> subscriptions;
        std::function<void(QList<ChangeDelivery>)> deliver;
        // The queue cannot be read; changes may be lost until `recovered`.
        std::function<void(const QString &reason)> failed;
        std::function<void()> recovered;
    };

    // `queueConninfo` reads and empties the queue (its owner); `checkConninfo` logs in as the
    // role that becomes each subscriber for the read checks.
    ChangeDispatcher(QByteArray queueConninfo, QByteArray checkConninfo, Hooks hooks);
    ~ChangeDispatcher();

    ChangeDispatcher(const ChangeDispatcher &) = delete;
    ChangeDispatcher &operator=(const ChangeDispatcher &) = delete;

    // Something may be waiting in the queue. Any thread.
    void wake();
    // Tables, columns or policies changed: read them again before the next routing. Any thread.
    void forgetTables();

private:
    struct Change;
    struct TableInfo
    {
        QJsonArray columns; // [{name, type}]
        QStringList keyColumns;
        bool rowSecurity = false;
        // Per database role: empty when the role may not read the table at all; "true" when it
        // bypasses row-level security.
        QHash<QString, QString> visibility;
    };

    void run();
    bool drainOnce(PgConnection &connection, PgConnection &checks);
    TableInfo &tableInfo(PgConnection &connection, const QString &schema, const QString &table);
    QString visibilityCondition(PgConnection &connection, TableInfo &info, const QString &schema, const QString &table,
                                const QString &role);
    QList<ChangeDelivery> route(PgConnection &queue, PgConnection &checks, const QList<Change> &changes);

    QByteArray m_conninfo;
    QByteArray m_checkConninfo;
    Hooks m_hooks;
    QHash<QString, TableInfo> m_tables;
    std::mutex m_mutex;
    std::condition_variable m_wakeup;
    bool m_pending = true;
    std::atomic<bool> m_tablesStale{false};
    bool m_stop = false;
    std::thread m_thread;
};
