#pragma once

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QMutex>
#include <QString>

#include <chrono>

// Counts events per key within a sliding window (password failures, e-mails sent to an address).
// Kept in memory: a restart forgets them, which only ever loosens the limits.
class RateLimiter
{
public:
    // The number of events recorded for `key` within `window` before `now`.
    int count(const QString &key, std::chrono::seconds window, const QDateTime &now);
    void record(const QString &key, const QDateTime &now);
    // Seconds until the oldest event within `window` leaves it; 0 when there is none.
    qint64 secondsUntilFree(const QString &key, std::chrono::seconds window, const QDateTime &now);

private:
    void prune(const QString &key, std::chrono::seconds window, const QDateTime &now);

    QMutex m_mutex;
    QHash<QString, QList<QDateTime>> m_events;
    quint64 m_recorded = 0;
};
