#pragma once

#include "backend/realtimescheduler.h"

#include <QByteArray>
#include <QList>

#include <optional>

// Waits that fire only when the test says so; every requested delay is remembered.
class ManualScheduler : public RealtimeScheduler
{
public:
    struct Wait
    {
        Id id;
        std::chrono::milliseconds delay;
        QByteArray purpose;
        std::function<void()> fire;
    };

    Id schedule(std::chrono::milliseconds delay, const char *purpose, std::function<void()> fire) override
    {
        const Id id = m_next++;
        m_pending.append({id, delay, purpose, std::move(fire)});
        m_requested.append({purpose, delay});
        return id;
    }

    void cancel(Id id) override
    {
        m_pending.removeIf([id](const Wait &wait) { return wait.id == id; });
    }

    [[nodiscard]] std::optional<std::chrono::milliseconds> pending(const QByteArray &purpose) const
    {
        for (const Wait &wait : m_pending) {
            if (wait.purpose == purpose) {
                return wait.delay;
            }
        }
        return std::nullopt;
    }

    // Lets the first wait of this purpose end now; false when there is none.
    bool fire(const QByteArray &purpose)
    {
        for (qsizetype i = 0; i < m_pending.size(); ++i) {
            if (m_pending.at(i).purpose == purpose) {
                const Wait wait = m_pending.takeAt(i);
                wait.fire();
                return true;
            }
        }
        return false;
    }

    // Every delay asked for with this purpose, in order.
    [[nodiscard]] QList<int> requestedSeconds(const QByteArray &purpose) const
    {
        QList<int> seconds;
        for (const auto &[name, delay] : m_requested) {
            if (name == purpose) {
                seconds.append(int(std::chrono::duration_cast<std::chrono::seconds>(delay).count()));
            }
        }
        return seconds;
    }

    [[nodiscard]] int pendingCount() const { return int(m_pending.size()); }
    void forgetRequests() { m_requested.clear(); }

private:
    QList<Wait> m_pending;
    QList<std::pair<QByteArray, std::chrono::milliseconds>> m_requested;
    Id m_next = 1;
};
