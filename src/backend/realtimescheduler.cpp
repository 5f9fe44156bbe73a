#include "realtimescheduler.h"

#include <QHash>
#include <QTimer>

namespace {

class TimerScheduler : public RealtimeScheduler
{
public:
    Id schedule(std::chrono::milliseconds delay, const char *, std::function<void()> fire) override
    {
        const Id id = m_next++;
        auto *timer = new QTimer(&m_owner);
        timer->setSingleShot(true);
        timer->setInterval(delay);
        QObject::connect(timer, &QTimer::timeout, &m_owner, [this, id, fire = std::move(fire)] {
            if (QTimer *done = m_timers.take(id)) {
                done->deleteLater();
            }
            fire();
        });
        m_timers.insert(id, timer);
        timer->start();
        return id;
    }

    void cancel(Id id) override
    {
        if (QTimer *timer = m_timers.take(id)) {
            timer->stop();
            timer->deleteLater();
        }
    }

private:
    QObject m_owner;
    QHash<Id, QTimer *> m_timers;
    Id m_next = 1;
};

} // namespace

std::shared_ptr<RealtimeScheduler> RealtimeScheduler::system()
{
    return std::make_shared<TimerScheduler>();
}
