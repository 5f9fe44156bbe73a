#include "idlewatcher.h"

#include "model/isodate.h"
#include "store/appstore.h"

#include <QCoroTask>

using namespace Qt::StringLiterals;

namespace {

constexpr int defaultThresholdMinutes = 10;
constexpr int defaultReminderEveryMinutes = 30;
// An input the source reports within this much of the moment the person left is the same input:
// the idle time and the clock are read at slightly different moments.
constexpr qint64 sameInputMilliseconds = 1000;

std::optional<QTime> timeOfDay(const QString &text)
{
    const QTime time = QTime::fromString(text.trimmed(), u"HH:mm"_s);
    return time.isValid() ? std::optional(time) : std::nullopt;
}

QString timeText(const QTime &time)
{
    return time.toString(u"HH:mm"_s);
}

// Through the store's own operations, so every device sees the run end where it was decided.
QCoro::Task<> carryOut(QPointer<AppStore> store, QString taskId, QDateTime endedAt, bool restart)
{
    const bool stopped = co_await store->stopTimer(taskId, endedAt);
    if (stopped && restart && store) {
        co_await store->startTimer(taskId);
    }
}

} // namespace

IdleWatcher::IdleWatcher(std::shared_ptr<QSettings> settings, Clock clock, QObject *parent)
    : QObject(parent)
    , m_settings(std::move(settings))
    , m_clock(std::move(clock))
{
    m_noTimerSince = m_clock();
    m_poller.setInterval(pollMilliseconds);
    connect(&m_poller, &QTimer::timeout, this, &IdleWatcher::poll);
}

void IdleWatcher::setSource(IdleSource *source)
{
    if (m_source) {
        disconnect(m_source, nullptr, this, nullptr);
    }
    m_source = source;
    if (source) {
        connect(source, &IdleSource::idleTime, this, &IdleWatcher::onIdleTime);
        connect(source, &IdleSource::lockedChanged, this, &IdleWatcher::onLocked);
        connect(source, &IdleSource::sleepingChanged, this, &IdleWatcher::onSleeping);
    }
}

void IdleWatcher::start()
{
    m_poller.start();
}

void IdleWatcher::attach(AppStore *store)
{
    for (const QMetaObject::Connection &connection : std::as_const(m_storeConnections)) {
        disconnect(connection);
    }
    m_storeConnections.clear();
    m_store = store;
    if (store) {
        m_storeConnections.append(connect(store, &AppStore::runningTaskChanged, this, &IdleWatcher::followStore));
        m_storeConnections.append(connect(this, &IdleWatcher::stopRequested, store,
                                          [store](const QString &taskId, const QDateTime &endedAt, bool restart) {
                                              carryOut(store, taskId, endedAt, restart);
                                          }));
    }
    followStore();
}

void IdleWatcher::followStore()
{
    std::optional<Run> run;
    if (m_store) {
        if (const std::optional<TaskItem> task = m_store->runningTask()) {
            if (const std::optional<QDateTime> started = isoDate(task->startedAt)) {
                run = Run{task->id, *started};
            }
        }
    }
    setRunning(run);
}

void IdleWatcher::setRunning(const std::optional<Run> &run)
{
    if (run == m_running) {
        return;
    }
    if (!run) {
        m_noTimerSince = m_clock();
    }
    m_running = run;
    // The run the question is about ended or changed elsewhere: there is nothing left to decide.
    if (m_question && (!run || *run != m_question->run)) {
        m_question.reset();
        emit questionChanged();
    }
    checkLimit();
}

void IdleWatcher::poll()
{
    if (m_source) {
        m_source->requestIdleTime();
    }
    checkLimit();
    checkReminder();
}

void IdleWatcher::onIdleTime(qint64 milliseconds)
{
    const QDateTime now = m_clock();
    const QDateTime input = now.addMSecs(-qMax<qint64>(0, milliseconds));
    // Input on the lock screen is no return: the unlock is.
    if (!m_locked && !m_sleeping) {
        if (m_leftAt && m_leftAt->msecsTo(input) > sameInputMilliseconds) {
            returned(input);
        } else if (!m_leftAt && milliseconds > thresholdSeconds() * 1000) {
            beginAbsence(input);
        }
    }
    m_lastInput = input;
    m_lastReadingAt = now;
}

void IdleWatcher::beginAbsence(const QDateTime &leftAt)
{
    // Some desktops keep counting idle time across an unlock: what came before the last return
    // was settled then.
    m_leftAt = m_settledUntil.isValid() ? qMax(leftAt, m_settledUntil) : leftAt;
}

void IdleWatcher::leave()
{
    if (m_leftAt) {
        return;
    }
    // Idle already at the last reading: the person left at the last input and the screen locked
    // itself (or the machine slept) later. Active then: locking was the leaving.
    const bool idleBefore = m_lastInput && m_lastInput->msecsTo(m_lastReadingAt) > pollMilliseconds;
    beginAbsence(idleBefore ? *m_lastInput : m_clock());
}

void IdleWatcher::onLocked(bool locked)
{
    if (locked == m_locked) {
        return;
    }
    m_locked = locked;
    if (locked) {
        leave();
    } else if (!m_sleeping) {
        returned(m_clock());
    }
}

void IdleWatcher::onSleeping(bool sleeping)
{
    if (sleeping == m_sleeping) {
        return;
    }
    m_sleeping = sleeping;
    if (sleeping) {
        leave();
    } else if (!m_locked) {
        returned(m_clock());
    }
}

void IdleWatcher::returned(const QDateTime &at)
{
    const std::optional<QDateTime> leftAt = m_leftAt;
    m_leftAt.reset();
    if (!leftAt) {
        return;
    }
    // A run past its limit is stopped there, not asked about.
    const bool cut = checkLimit();
    if (m_question || cut || !m_running || m_running->startedAt > *leftAt || leftAt->secsTo(at) <= thresholdSeconds() ||
        (m_settledUntil.isValid() && *leftAt < m_settledUntil)) {
        m_settledUntil = qMax(m_settledUntil, at);
        return;
    }
    m_settledUntil = at;
    m_question = Question{*m_running, *leftAt, at};
    emit questionChanged();
}

void IdleWatcher::settle()
{
    m_question.reset();
    emit questionChanged();
}

void IdleWatcher::keep()
{
    if (m_question) {
        settle();
    }
}

void IdleWatcher::discard()
{
    if (const std::optional<Question> question = m_question) {
        settle();
        emit stopRequested(question->run.taskId, question->leftAt, false);
    }
}

void IdleWatcher::discardAndContinue()
{
    if (const std::optional<Question> question = m_question) {
        settle();
        emit stopRequested(question->run.taskId, question->leftAt, true);
    }
}

std::optional<std::pair<QDateTime, IdleWatcher::Limit>> IdleWatcher::limitOf(const QDateTime &startedAt) const
{
    std::optional<std::pair<QDateTime, Limit>> limit;
    if (const int minutes = maxRunMinutes(); minutes > 0) {
        limit = {startedAt.addSecs(qint64(minutes) * 60), Limit::LongestRun};
    }
    if (const std::optional<QTime> end = endOfDay()) {
        // The first end of a working day after the start: a run started in the evening ends the
        // next day.
        const QDateTime local = startedAt.toTimeZone(m_zone);
        QDateTime dayEnd(local.date(), *end, m_zone);
        if (dayEnd <= startedAt) {
            dayEnd = QDateTime(local.date().addDays(1), *end, m_zone);
        }
        if (!limit || dayEnd < limit->first) {
            limit = {dayEnd, Limit::EndOfDay};
        }
    }
    return limit;
}

bool IdleWatcher::checkLimit()
{
    if (!m_running || m_cutRun == m_running->startedAt) {
        return m_running.has_value();
    }
    const std::optional<std::pair<QDateTime, Limit>> limit = limitOf(m_running->startedAt);
    if (!limit || m_clock() < limit->first) {
        return false;
    }
    m_cutRun = m_running->startedAt;
    emit stopRequested(m_running->taskId, limit->first, false);
    emit limitReached(m_running->taskId, limit->first, limit->second);
    return true;
}

void IdleWatcher::checkReminder()
{
    if (!remindersEnabled() || m_running || m_leftAt || m_locked || m_sleeping) {
        return;
    }
    const QDateTime now = m_clock();
    const QDateTime local = now.toTimeZone(m_zone);
    const std::optional<QTime> from = timeOfDay(reminderFromText());
    const std::optional<QTime> to = timeOfDay(reminderToText());
    if (!reminderDays().contains(local.date().dayOfWeek()) || !from || !to || local.time() < *from ||
        local.time() >= *to) {
        return;
    }
    const QDateTime since = m_lastReminder.isValid() ? qMax(m_noTimerSince, m_lastReminder) : m_noTimerSince;
    if (since.secsTo(now) >= qint64(reminderEveryMinutes()) * 60) {
        m_lastReminder = now;
        emit reminderDue();
    }
}

QVariant IdleWatcher::setting(const char *key, const QVariant &fallback) const
{
    return m_settings->value(u"timer/"_s + QLatin1StringView(key), fallback);
}

void IdleWatcher::store(const char *key, const QVariant &value)
{
    const QString name = u"timer/"_s + QLatin1StringView(key);
    if (m_settings->value(name) == value) {
        return;
    }
    m_settings->setValue(name, value);
    emit settingsChanged();
}

int IdleWatcher::idleThresholdMinutes() const
{
    const int minutes = setting("idleThresholdMinutes", defaultThresholdMinutes).toInt();
    return minutes > 0 ? minutes : defaultThresholdMinutes;
}

void IdleWatcher::setIdleThresholdMinutes(int minutes)
{
    if (minutes > 0 && minutes <= 24 * 60) {
        store("idleThresholdMinutes", minutes);
    }
}

std::optional<QTime> IdleWatcher::endOfDay() const
{
    return timeOfDay(setting("endOfDay", QString()).toString());
}

QString IdleWatcher::endOfDayText() const
{
    const std::optional<QTime> end = endOfDay();
    return end ? timeText(*end) : QString();
}

void IdleWatcher::setEndOfDay(const QString &time)
{
    if (time.trimmed().isEmpty()) {
        store("endOfDay", QString());
    } else if (const std::optional<QTime> end = timeOfDay(time)) {
        store("endOfDay", timeText(*end));
    }
}

int IdleWatcher::maxRunMinutes() const
{
    return qMax(0, setting("maxRunMinutes", 0).toInt());
}

void IdleWatcher::setMaxRunMinutes(int minutes)
{
    if (minutes >= 0 && minutes <= 7 * 24 * 60) {
        store("maxRunMinutes", minutes);
    }
}

bool IdleWatcher::remindersEnabled() const
{
    return setting("reminders", false).toBool();
}

void IdleWatcher::setRemindersEnabled(bool enabled)
{
    store("reminders", enabled);
}

QList<int> IdleWatcher::reminderDays() const
{
    const QVariant stored = setting("reminderDays", QVariant());
    if (!stored.isValid()) {
        return {1, 2, 3, 4, 5};
    }
    QList<int> days;
    for (const QString &day : stored.toString().split(u',', Qt::SkipEmptyParts)) {
        const int number = day.toInt();
        if (number >= 1 && number <= 7 && !days.contains(number)) {
            days.append(number);
        }
    }
    std::sort(days.begin(), days.end());
    return days;
}

QVariantList IdleWatcher::reminderDaysList() const
{
    QVariantList list;
    for (int day : reminderDays()) {
        list.append(day);
    }
    return list;
}

void IdleWatcher::setReminderDays(const QVariantList &days)
{
    QList<int> numbers;
    for (const QVariant &day : days) {
        const int number = day.toInt();
        if (number >= 1 && number <= 7 && !numbers.contains(number)) {
            numbers.append(number);
        }
    }
    std::sort(numbers.begin(), numbers.end());
    QStringList texts;
    for (int number : numbers) {
        texts.append(QString::number(number));
    }
    store("reminderDays", texts.join(u','));
}

QString IdleWatcher::reminderFromText() const
{
    return timeText(timeOfDay(setting("reminderFrom", QString()).toString()).value_or(QTime(9, 0)));
}

void IdleWatcher::setReminderFrom(const QString &time)
{
    if (const std::optional<QTime> from = timeOfDay(time)) {
        store("reminderFrom", timeText(*from));
    }
}

QString IdleWatcher::reminderToText() const
{
    return timeText(timeOfDay(setting("reminderTo", QString()).toString()).value_or(QTime(17, 0)));
}

void IdleWatcher::setReminderTo(const QString &time)
{
    if (const std::optional<QTime> to = timeOfDay(time)) {
        store("reminderTo", timeText(*to));
    }
}

int IdleWatcher::reminderEveryMinutes() const
{
    const int minutes = setting("reminderEveryMinutes", defaultReminderEveryMinutes).toInt();
    return minutes > 0 ? minutes : defaultReminderEveryMinutes;
}

void IdleWatcher::setReminderEveryMinutes(int minutes)
{
    if (minutes > 0 && minutes <= 24 * 60) {
        store("reminderEveryMinutes", minutes);
    }
}
