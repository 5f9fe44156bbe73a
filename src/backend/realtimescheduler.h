#pragma once

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>

// The waits of the realtime client (heartbeat, token watch, reconnect back-off). The system one
// runs on Qt timers; tests drive their own and never sleep.
class RealtimeScheduler
{
public:
    using Id = quint64;

    virtual ~RealtimeScheduler() = default;
    // Calls `fire` once after `delay` on the caller's thread; `purpose` names the wait for logs and
    // for tests ("heartbeat", "token", "reconnect").
    virtual Id schedule(std::chrono::milliseconds delay, const char *purpose, std::function<void()> fire) = 0;
    // Forgets a wait that has not fired; unknown or fired ids are ignored.
    virtual void cancel(Id id) = 0;

    static std::shared_ptr<RealtimeScheduler> system();
};
