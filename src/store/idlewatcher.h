#pragma once

#include "model/clock.h"
#include "store/idlesource.h"

#include <QDateTime>
#include <QObject>
#include <QPointer>
#include <QSettings>
#include <QTime>
#include <QTimeZone>
#include <QTimer>
#include <QVariantList>

#include <memory>
#include <optional>

class AppStore;

// Time that needs a decision: a running timer while the person was away (asked once on return),
// a timer left running past the end of the working day or the longest run (stopped at that
// moment), and no timer during working hours (a nudge). The rules read only the injected clock
// and idle source; the store only carries out what they decide.
class IdleWatcher : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool asking READ isAsking NOTIFY questionChanged)
    Q_PROPERTY(QString taskId READ questionTaskId NOTIFY questionChanged)
    Q_PROPERTY(QDateTime leftAt READ leftAt NOTIFY questionChanged)
    Q_PROPERTY(QDateTime returnedAt READ returnedAt NOTIFY questionChanged)
    Q_PROPERTY(int idleThresholdMinutes READ idleThresholdMinutes WRITE setIdleThresholdMinutes NOTIFY settingsChanged)
    Q_PROPERTY(QString endOfDay READ endOfDayText WRITE setEndOfDay NOTIFY settingsChanged)
    Q_PROPERTY(int maxRunMinutes READ maxRunMinutes WRITE setMaxRunMinutes NOTIFY settingsChanged)
    Q_PROPERTY(bool remindersEnabled READ remindersEnabled WRITE setRemindersEnabled NOTIFY settingsChanged)
    Q_PROPERTY(QVariantList reminderDays READ reminderDaysList WRITE setReminderDays NOTIFY settingsChanged)
    Q_PROPERTY(QString reminderFrom READ reminderFromText WRITE setReminderFrom NOTIFY settingsChanged)
    Q_PROPERTY(QString reminderTo READ reminderToText WRITE setReminderTo NOTIFY settingsChanged)
    Q_PROPERTY(int reminderEveryMinutes READ reminderEveryMinutes WRITE setReminderEveryMinutes NOTIFY settingsChanged)

public:
    struct Run
    {
        QString taskId;
        QDateTime startedAt;
        bool operator==(const Run &) const = default;
    };
    enum class Limit { EndOfDay, LongestRun };

    // How often the source is asked and the limits are checked while the window runs.
    static constexpr int pollMilliseconds = 15'000;

    IdleWatcher(std::shared_ptr<QSettings> settings, Clock clock = systemClock(), QObject *parent = nullptr);

    // Takes the source's answers from now on; the watcher does not own it.
    void setSource(IdleSource *source);
    // Follows the store's running task and carries the decisions out through its timer
    // operations; none detaches.
    void attach(AppStore *store);
    // The working day's times are read in this zone (the machine's by default).
    void setTimeZone(const QTimeZone &zone) { m_zone = zone; }
    // Starts asking the source every `pollMilliseconds`.
    void start();

    // The run the timer shows, or none: what the rules measure against.
    void setRunning(const std::optional<Run> &run);

    [[nodiscard]] bool isAsking() const { return m_question.has_value(); }
    [[nodiscard]] QString questionTaskId() const { return m_question ? m_question->run.taskId : QString(); }
    [[nodiscard]] QDateTime leftAt() const { return m_question ? m_question->leftAt : QDateTime(); }
    [[nodiscard]] QDateTime returnedAt() const { return m_question ? m_question->returnedAt : QDateTime(); }

    // The three answers to the question; each settles it.
    Q_INVOKABLE void keep();
    // Stops the timer at the moment the person left.
    Q_INVOKABLE void discard();
    // Stops it at the moment they left and starts the same task again now.
    Q_INVOKABLE void discardAndContinue();

    [[nodiscard]] int idleThresholdMinutes() const;
    void setIdleThresholdMinutes(int minutes);
    // "HH:mm", or empty when the day has no end.
    [[nodiscard]] QString endOfDayText() const;
    [[nodiscard]] std::optional<QTime> endOfDay() const;
    void setEndOfDay(const QString &time);
    // 0 when a run may last any length.
    [[nodiscard]] int maxRunMinutes() const;
    void setMaxRunMinutes(int minutes);
    [[nodiscard]] bool remindersEnabled() const;
    void setRemindersEnabled(bool enabled);
    // Days of the week from 1 (Monday) to 7.
    [[nodiscard]] QList<int> reminderDays() const;
    [[nodiscard]] QVariantList reminderDaysList() const;
    void setReminderDays(const QVariantList &days);
    [[nodiscard]] QString reminderFromText() const;
    void setReminderFrom(const QString &time);
    [[nodiscard]] QString reminderToText() const;
    void setReminderTo(const QString &time);
    [[nodiscard]] int reminderEveryMinutes() const;
    void setReminderEveryMinutes(int minutes);

    // The moment a run started at `startedAt` passes the end of the working day or the longest
    // run, whichever comes first; none when neither is set.
    [[nodiscard]] std::optional<std::pair<QDateTime, Limit>> limitOf(const QDateTime &startedAt) const;

public slots:
    // One round: asks the source, stops a run past its limit, nudges when no timer runs.
    void poll();
    void onIdleTime(qint64 milliseconds);
    void onLocked(bool locked);
    void onSleeping(bool sleeping);

signals:
    void questionChanged();
    void settingsChanged();
    // The decision for the store: stop the run at `endedAt`, and start the task again now when
    // `restart`.
    void stopRequested(const QString &taskId, const QDateTime &endedAt, bool restart);
    // The timer was stopped at `endedAt` because the run passed a limit.
    void limitReached(const QString &taskId, const QDateTime &endedAt, IdleWatcher::Limit limit);
    // No timer runs during working hours.
    void reminderDue();

private:
    struct Question
    {
        Run run;
        QDateTime leftAt;
        QDateTime returnedAt;
    };

    void beginAbsence(const QDateTime &leftAt);
    void leave();
    void returned(const QDateTime &at);
    bool checkLimit();
    void checkReminder();
    void settle();
    void followStore();
    [[nodiscard]] qint64 thresholdSeconds() const { return qint64(idleThresholdMinutes()) * 60; }
    [[nodiscard]] QVariant setting(const char *key, const QVariant &fallback) const;
    void store(const char *key, const QVariant &value);

    std::shared_ptr<QSettings> m_settings;
    Clock m_clock;
    QTimeZone m_zone = QTimeZone::systemTimeZone();
    QPointer<IdleSource> m_source;
    QPointer<AppStore> m_store;
    QList<QMetaObject::Connection> m_storeConnections;
    QTimer m_poller;

    std::optional<Run> m_running;
    // The last input the source reported, and when it reported it.
    std::optional<QDateTime> m_lastInput;
    QDateTime m_lastReadingAt;
    // The start of an absence known to have begun: a long idle reading, a lock, a sleep.
    std::optional<QDateTime> m_leftAt;
    bool m_locked = false;
    bool m_sleeping = false;
    std::optional<Question> m_question;
    // The return from the last absence handled: no absence that began before it is asked again.
    QDateTime m_settledUntil;
    // The run already stopped at its limit, so a slow store is not asked twice.
    std::optional<QDateTime> m_cutRun;
    QDateTime m_noTimerSince;
    QDateTime m_lastReminder;
};
