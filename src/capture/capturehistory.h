#pragma once

#include "capture/aiparseresult.h"
#include "model/clock.h"

#include <QCoroTask>
#include <QTimeZone>

class ClaudeBridge;

// The captures of this run, newest last: each sentence sent to the model with its reading or the
// reason there is none. Lives as long as the window or command that shows them.
class CaptureHistory
{
public:
    explicit CaptureHistory(ClaudeBridge &bridge, QTimeZone zone = QTimeZone::systemTimeZone(),
                            Clock clock = systemClock());

    // Sends the sentence with the user's project names and today's date where the user is. Never
    // throws: a failed call or an unreadable answer is the session's `error`.
    QCoro::Task<AISession> understand(QString text, QStringList knownProjects);

    [[nodiscard]] const QList<AISession> &sessions() const { return m_sessions; }

private:
    ClaudeBridge &m_bridge;
    QTimeZone m_zone;
    Clock m_clock;
    QList<AISession> m_sessions;
};
