#include "timerstore.h"

#include "model/isodate.h"

using namespace Qt::StringLiterals;

TimerStore::TimerStore(Clock clock, QObject *parent)
    : QObject(parent)
    , m_clock(std::move(clock))
    , m_tickNow(m_clock())
{
    m_ticker.setInterval(std::chrono::seconds(1));
    connect(&m_ticker, &QTimer::timeout, this, &TimerStore::tick);
}

void TimerStore::bind(const std::optional<TaskItem> &task)
{
    const bool running = task && task->status == TaskStatus::InProgress && task->startedAt;
    const std::optional<QString> id = running ? std::optional(task->id) : std::nullopt;
    const std::optional<QDateTime> start = running ? isoDate(task->startedAt) : std::nullopt;
    if (id != m_activeTaskId) {
        m_activeTaskId = id;
        emit activeTaskIdChanged();
    }
    if (start != m_startedAt) {
        m_startedAt = start;
        emit startedAtChanged();
    }
    if (m_startedAt) {
        if (!m_ticker.isActive()) {
            m_ticker.start();
        }
    } else {
        m_ticker.stop();
    }
    tick();
}

void TimerStore::tick()
{
    m_tickNow = m_clock();
    emit tickNowChanged();
}

qint64 TimerStore::elapsedSeconds() const
{
    if (!m_startedAt) {
        return 0;
    }
    return qMax<qint64>(0, m_startedAt->secsTo(m_tickNow));
}

QString TimerStore::elapsedString(qint64 extraSeconds) const
{
    return format(elapsedSeconds() + extraSeconds);
}

QString TimerStore::format(qint64 seconds)
{
    seconds = qMax<qint64>(0, seconds);
    const qint64 hours = seconds / 3600;
    const QString minutesSeconds = QString::number(seconds % 3600 / 60) + u':' +
                                   QString::number(seconds % 60).rightJustified(2, u'0');
    if (hours == 0) {
        return minutesSeconds;
    }
    return QString::number(hours) + u':' + minutesSeconds.rightJustified(5, u'0');
}
