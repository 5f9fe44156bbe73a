#pragma once

#include <QObject>

// Where the idle watcher learns that the person is away: how long since the last input, and
// whether the screen is locked or the machine is about to sleep. The desktop's services answer
// in the window; tests hand the watcher a small object of their own.
class IdleSource : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Asks for the time since the last input; the answer arrives as idleTime(), or never where
    // the desktop offers no way to know it.
    virtual void requestIdleTime() = 0;

signals:
    void idleTime(qint64 milliseconds);
    void lockedChanged(bool locked);
    void sleepingChanged(bool sleeping);
};
