#pragma once

#include "model/clock.h"
#include "model/taskitem.h"

#include <QDateTime>
#include <QObject>
#include <QTimer>

#include <optional>

// The running clock the interface shows: which task runs since when, and a tick every second
// while one does. The store binds it to its running task after every change of that task.
class TimerStore : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString activeTaskId READ activeTaskIdText NOTIFY activeTaskIdChanged)
    Q_PROPERTY(QDateTime startedAt READ startedAtValue NOTIFY startedAtChanged)
    Q_PROPERTY(QDateTime tickNow READ tickNow NOTIFY tickNowChanged)
    Q_PROPERTY(qint64 elapsedSeconds READ elapsedSeconds NOTIFY tickNowChanged)

public:
    explicit TimerStore(Clock clock = systemClock(), QObject *parent = nullptr);

    // The running task, or none: sets the task and its start and starts or stops the ticker.
    void bind(const std::optional<TaskItem> &task);

    [[nodiscard]] const std::optional<QString> &activeTaskId() const { return m_activeTaskId; }
    [[nodiscard]] QString activeTaskIdText() const { return m_activeTaskId.value_or(QString()); }
    [[nodiscard]] const std::optional<QDateTime> &startedAt() const { return m_startedAt; }
    [[nodiscard]] QDateTime startedAtValue() const { return m_startedAt.value_or(QDateTime()); }
    [[nodiscard]] QDateTime tickNow() const { return m_tickNow; }
    [[nodiscard]] bool isTicking() const { return m_ticker.isActive(); }

    // Whole seconds since the start; a start the clock shows in the future counts as none.
    [[nodiscard]] qint64 elapsedSeconds() const;
    // The elapsed time plus `extraSeconds` (the task's earlier total): "m:ss" below an hour,
    // "h:mm:ss" from an hour on.
    Q_INVOKABLE [[nodiscard]] QString elapsedString(qint64 extraSeconds = 0) const;
    [[nodiscard]] static QString format(qint64 seconds);

public slots:
    // One tick: reads the clock again.
    void tick();

signals:
    void activeTaskIdChanged();
    void startedAtChanged();
    void tickNowChanged();

private:
    Clock m_clock;
    std::optional<QString> m_activeTaskId;
    std::optional<QDateTime> m_startedAt;
    QDateTime m_tickNow;
    QTimer m_ticker;
};
