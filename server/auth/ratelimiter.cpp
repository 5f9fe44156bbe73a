#include "ratelimiter.h"

void RateLimiter::prune(const QString &key, std::chrono::seconds window, const QDateTime &now)
{
    auto it = m_events.find(key);
    if (it == m_events.end()) {
        return;
    }
    const QDateTime start = now.addSecs(-window.count());
    it->removeIf([&](const QDateTime &at) { return at <= start; });
    if (it->isEmpty()) {
        m_events.erase(it);
    }
}

int RateLimiter::count(const QString &key, std::chrono::seconds window, const QDateTime &now)
{
    QMutexLocker lock(&m_mutex);
    prune(key, window, now);
    return int(m_events.value(key).size());
}

void RateLimiter::record(const QString &key, const QDateTime &now)
{
    QMutexLocker lock(&m_mutex);
    m_events[key].append(now);
    // Keys that are never asked about again (addresses tried once) would otherwise stay for good;
    // no window is longer than a day.
    if (++m_recorded % 256 == 0) {
        const QDateTime oldest = now.addDays(-1);
        for (auto it = m_events.begin(); it != m_events.end();) {
            it->removeIf([&](const QDateTime &at) { return at <= oldest; });
            it = it->isEmpty() ? m_events.erase(it) : std::next(it);
        }
    }
}

qint64 RateLimiter::secondsUntilFree(const QString &key, std::chrono::seconds window, const QDateTime &now)
{
    QMutexLocker lock(&m_mutex);
    prune(key, window, now);
    const QList<QDateTime> events = m_events.value(key);
    if (events.isEmpty()) {
        return 0;
    }
    return std::max<qint64>(1, now.secsTo(events.first().addSecs(window.count())));
}
