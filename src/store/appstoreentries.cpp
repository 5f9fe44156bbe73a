// The timer and the time entries of AppStore.

#include "appstore.h"
#include "appstore_p.h"

#include "model/isodate.h"
#include "store/storelog.h"
#include "store/storetext.h"

#include <cmath>

using namespace Qt::StringLiterals;
using namespace StoreDetail;

namespace {

// The backend's answer to an insert that repeats a row it has: the same run logged before.
bool isDuplicate(const MorvaneError &error)
{
    const auto *backend = dynamic_cast<const SupabaseError *>(&error);
    return backend && backend->kind() == SupabaseError::Kind::HttpStatus &&
           (backend->status() == 409 || backend->errorCode() == u"23505");
}

} // namespace

QString AppStore::timestampFilterValue(const QString &instant)
{
    static const QStringList zeroOffsets{u"+00:00"_s, u"+0000"_s, u"+00"_s};
    if (!instant.contains(u'+')) {
        return instant;
    }
    for (const QString &offset : zeroOffsets) {
        if (instant.endsWith(offset)) {
            return instant.chopped(offset.size()) + u'Z';
        }
    }
    return instant;
}

QueryItems AppStore::claimQuery(const QString &taskId, const std::optional<QString> &startedAt)
{
    return {
        {u"id"_s, u"eq."_s + taskId},
        {u"status"_s, u"eq.in_progress"_s},
        {u"started_at"_s, startedAt ? u"eq."_s + timestampFilterValue(*startedAt) : u"is.null"_s},
    };
}

std::optional<TimeEntry> AppStore::entry(const QString &entryId) const
{
    for (const QList<TimeEntry> &entries : m_entriesByTask) {
        for (const TimeEntry &entry : entries) {
            if (entry.id == entryId) {
                return entry;
            }
        }
    }
    for (const TimeEntry &entry : m_recentEntries) {
        if (entry.id == entryId) {
            return entry;
        }
    }
    return std::nullopt;
}

void AppStore::appendEntryLocally(const TimeEntry &entry)
{
    QList<TimeEntry> &list = m_entriesByTask[entry.taskId];
    if (std::any_of(list.cbegin(), list.cend(), [&](const TimeEntry &known) { return known.id == entry.id; })) {
        return;
    }
    list.prepend(entry);
    const std::optional<QDateTime> ended = isoDate(entry.endedAt);
    if (ended && *ended >= recentWindowStart()) {
        m_recentEntries.prepend(entry);
    }
    emit entriesChanged();
    // New or edited work is unbilled until an invoice takes it; the read of the unbilled view is
    // kept in step so that shares and totals do not count it as billed meanwhile.
    // The unbilled read may hold it already: it can arrive before the feed tells of it.
    if (m_unbilledReady && !m_billedEntryIds.contains(entry.id) &&
        std::none_of(m_unbilledEntries.cbegin(), m_unbilledEntries.cend(),
                     [&](const TimeEntry &known) { return known.id == entry.id; })) {
        m_unbilledEntries.append(entry);
        emit unbilledEntriesChanged();
    }
}

void AppStore::replaceEntry(const TimeEntry &entry)
{
    removeEntry(entry.id);
    appendEntryLocally(entry);
}

void AppStore::removeEntry(const QString &entryId)
{
    bool changed = false;
    for (auto it = m_entriesByTask.begin(); it != m_entriesByTask.end();) {
        changed |= it.value().removeIf([&](const TimeEntry &entry) { return entry.id == entryId; }) > 0;
        it = it.value().isEmpty() ? m_entriesByTask.erase(it) : std::next(it);
    }
    changed |= m_recentEntries.removeIf([&](const TimeEntry &entry) { return entry.id == entryId; }) > 0;
    if (changed) {
        emit entriesChanged();
    }
    if (m_unbilledEntries.removeIf([&](const TimeEntry &entry) { return entry.id == entryId; }) > 0) {
        emit unbilledEntriesChanged();
    }
}

QCoro::Task<std::optional<TaskItem>> AppStore::readTask(Session &session, QString taskId)
{
    const Supabase client = m_auth.client();
    const QueryItems query{{u"select"_s, u"*"_s}, {u"id"_s, u"eq."_s + taskId}};
    const auto rowsRequest = [&](const QString &token) { return client.select<TaskItem>(u"tasks"_s, token, query); };
    const QList<TaskItem> rows = co_await authorized(session, rowsRequest);
    if (rows.isEmpty()) {
        co_return std::nullopt;
    }
    co_return rows.first();
}

QCoro::Task<bool> AppStore::startTimer(QString taskId)
{
    const char *const logPrefix = "Start timer failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    SavingScope saving(*this, {taskId});
    const std::optional<TaskItem> running = runningTask();
    if (running && running->id != taskId) {
        if (!co_await stopRun(*session, *running)) {
            co_return false;
        }
    }
    try {
        const Supabase client = m_auth.client();
        // A task whose timer runs already (another device started it) keeps that run: starting
        // again would drop the time it has counted.
        const QueryItems query{{u"id"_s, u"eq."_s + taskId}, {u"or"_s, u"(status.neq.in_progress,started_at.is.null)"_s}};
        const StartTimerPatch patch{isoString(m_clock())};
        const auto rowsRequest = [&](const QString &token) {
            return client.update<TaskItem>(u"tasks"_s, token, query, patch);
        };
        const QList<TaskItem> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return false;
        }
        if (!rows.isEmpty()) {
            replaceTask(rows.first());
            co_return true;
        }
        const std::optional<TaskItem> current = co_await readTask(*session, taskId);
        if (!isCurrent(*session)) {
            co_return false;
        }
        if (current && current->status == TaskStatus::InProgress && current->startedAt) {
            replaceTask(*current);
            co_return true;
        }
        failed(logPrefix, u"no row matched "_s + taskId, StoreText::taskNotSaved());
        co_return false;
    } catch (const MorvaneError &error) {
        writeFailed(logPrefix, error, StoreText::taskNotSaved());
        co_return false;
    }
}

QCoro::Task<bool> AppStore::stopTimer(QString taskId, std::optional<QDateTime> endedAt)
{
    std::optional<Session> session = co_await openSession("Stop timer failed: ");
    if (!session) {
        co_return false;
    }
    SavingScope saving(*this, {taskId});
    try {
        // The backend's row, not ours: another device may have stopped or restarted the timer.
        const std::optional<TaskItem> current = co_await readTask(*session, taskId);
        if (!isCurrent(*session)) {
            co_return false;
        }
        if (!current) {
            failed("Stop timer failed: ", u"no task "_s + taskId, StoreText::taskNotSaved());
            co_return false;
        }
        co_return co_await stopRun(*session, *current, endedAt);
    } catch (const MorvaneError &error) {
        writeFailed("Stop timer failed: ", error, StoreText::taskNotSaved());
        co_return false;
    }
}

QCoro::Task<bool> AppStore::stopRun(Session &session, TaskItem running, std::optional<QDateTime> endedAt)
{
    const char *const logPrefix = "Stop timer failed: ";
    const std::optional<QDateTime> started = isoDate(running.startedAt);
    if (running.status != TaskStatus::InProgress || !started) {
        // Someone else stopped it: the backend's row is the truth.
        replaceTask(running);
        co_return true;
    }
    const Supabase client = m_auth.client();
    // An end before the start or after now would log time nobody spent.
    const QDateTime now = m_clock();
    const QDateTime end = endedAt ? qBound(*started, *endedAt, qMax(*started, now)) : now;
    const qint64 run = qMax<qint64>(0, started->secsTo(end));
    const StopTimerPatch stop{TaskStatus::NotStarted, running.timeSpentSeconds + run};
    try {
        const QueryItems claim = claimQuery(running.id, running.startedAt);
        const auto claimRequest = [&](const QString &token) {
            return client.update<TaskItem>(u"tasks"_s, token, claim, stop);
        };
        const QList<TaskItem> claimed = co_await authorized(session, claimRequest);
        if (!isCurrent(session)) {
            co_return false;
        }
        if (claimed.isEmpty()) {
            // Stopped or restarted elsewhere since the read: that device logs its run.
            if (const std::optional<TaskItem> current = co_await readTask(session, running.id); current && isCurrent(session)) {
                replaceTask(*current);
            }
            co_return true;
        }

        TimeEntryInsert insert;
        insert.userId = m_currentUserId;
        insert.taskId = running.id;
        insert.projectId = running.projectId;
        insert.startedAt = isoString(*started);
        insert.endedAt = isoString(end);
        insert.durationSeconds = run;
        insert.loggedByUserId = m_currentUserId;
        if (!m_auth.email().isEmpty()) {
            insert.loggedByEmail = m_auth.email();
        }
        std::exception_ptr entryFailure;
        QString entryFailureText;
        std::optional<TimeEntry> entry;
        try {
            const auto insertRequest = [&](const QString &token) {
                return client.insert<TimeEntry>(u"time_entries"_s, token, insert);
            };
            const QList<TimeEntry> rows = co_await authorized(session, insertRequest);
            if (!rows.isEmpty()) {
                entry = rows.first();
            }
        } catch (const MorvaneError &error) {
            if (!isDuplicate(error)) {
                entryFailure = std::current_exception();
                entryFailureText = error.message();
            }
        }
        if (entryFailure) {
            // The run must not vanish: the task goes back to running as it was, so a later stop
            // logs it.
            const TimerRestorePatch restore{running.startedAt, TaskStatus::InProgress, running.timeSpentSeconds};
            const QueryItems byId = idFilter(running.id);
            const auto restoreRequest = [&](const QString &token) {
                return client.update<TaskItem>(u"tasks"_s, token, byId, restore);
            };
            const QList<TaskItem> restored = co_await authorized(session, restoreRequest);
            if (isCurrent(session) && !restored.isEmpty()) {
                replaceTask(restored.first());
            }
            failed(logPrefix, entryFailureText, StoreText::timerNotStopped());
            co_return false;
        }
        if (!isCurrent(session)) {
            co_return false;
        }
        if (entry) {
            appendEntryLocally(*entry);
        }
        replaceTask(claimed.first());
        co_return true;
    } catch (const MorvaneError &error) {
        writeFailed(logPrefix, error, StoreText::taskNotSaved());
        co_return false;
    }
}

QCoro::Task<bool> AppStore::logManualMinutes(QString taskId, double minutes)
{
    const char *const logPrefix = "Log time failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    const std::optional<TaskItem> task = this->task(taskId);
    const qint64 seconds = std::isfinite(minutes) ? qRound64(minutes * 60.0) : 0;
    if (!task || seconds <= 0) {
        failed(logPrefix, u"no task or no time: "_s + taskId, StoreText::entryNotLogged());
        co_return false;
    }
    SavingScope saving(*this, {taskId});
    const QDateTime now = m_clock();
    TimeEntryInsert insert;
    insert.userId = m_currentUserId;
    insert.taskId = task->id;
    insert.projectId = task->projectId;
    insert.startedAt = isoString(now.addSecs(-seconds));
    insert.endedAt = isoString(now);
    insert.durationSeconds = seconds;
    insert.loggedByUserId = m_currentUserId;
    if (!m_auth.email().isEmpty()) {
        insert.loggedByEmail = m_auth.email();
    }
    try {
        const Supabase client = m_auth.client();
        const auto insertRequest = [&](const QString &token) {
            return client.insert<TimeEntry>(u"time_entries"_s, token, insert);
        };
        const QList<TimeEntry> rows = co_await authorized(*session, insertRequest);
        if (!isCurrent(*session)) {
            co_return false;
        }
        if (rows.isEmpty()) {
            failed(logPrefix, u"no row came back"_s, StoreText::entryNotLogged());
            co_return false;
        }
        appendEntryLocally(rows.first());
    } catch (const MorvaneError &error) {
        writeFailed(logPrefix, error, StoreText::entryNotLogged());
        co_return false;
    }
    co_return co_await recomputeTaskTotal(taskId);
}

QCoro::Task<bool> AppStore::fetchEntries(QString taskId)
{
    std::optional<Session> session = co_await openSession("Load entries failed: ");
    if (!session) {
        co_return false;
    }
    try {
        const Supabase client = m_auth.client();
        const QueryItems query{
            {u"select"_s, u"*"_s}, {u"task_id"_s, u"eq."_s + taskId}, {u"order"_s, u"ended_at.desc,id.desc"_s}};
        const auto rowsRequest = [&](const QString &token) {
            return client.selectAll<TimeEntry>(u"time_entries"_s, token, query);
        };
        const QList<TimeEntry> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return false;
        }
        if (rows.isEmpty()) {
            if (m_entriesByTask.remove(taskId) > 0) {
                emit entriesChanged();
            }
        } else if (m_entriesByTask.value(taskId) != rows) {
            m_entriesByTask.insert(taskId, rows);
            emit entriesChanged();
        }
        co_return true;
    } catch (const MorvaneError &error) {
        failed("Load entries failed: ", error.message(), StoreText::loadFailed());
        co_return false;
    }
}

QCoro::Task<bool> AppStore::updateEntry(QString entryId, TimeEntryPatch patch)
{
    co_return co_await writeEntry(entryId, patch, "Update entry failed: ");
}

QCoro::Task<bool> AppStore::deleteEntry(QString entryId)
{
    co_return co_await writeEntry(entryId, std::nullopt, "Delete entry failed: ");
}

QCoro::Task<bool> AppStore::writeEntry(QString entryId, std::optional<TimeEntryPatch> patch, const char *logPrefix)
{
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    QString taskId;
    try {
        const Supabase client = m_auth.client();
        const QueryItems query = idFilter(entryId);
        const auto rowsRequest = [&](const QString &token) {
            return patch ? client.update<TimeEntry>(u"time_entries"_s, token, query, *patch)
                         : deleteReturning<TimeEntry>(client, u"time_entries"_s, token, query);
        };
        const QList<TimeEntry> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return false;
        }
        if (rows.isEmpty()) {
            failed(logPrefix, u"no row matched "_s + entryId, StoreText::entryNotSaved());
            co_return false;
        }
        if (patch) {
            replaceEntry(rows.first());
        } else {
            removeEntry(entryId);
        }
        taskId = rows.first().taskId;
    } catch (const MorvaneError &error) {
        writeFailed(logPrefix, error, StoreText::entryNotSaved());
        co_return false;
    }
    co_return co_await recomputeTaskTotal(taskId);
}

QCoro::Task<bool> AppStore::recomputeTaskTotal(QString taskId)
{
    const char *const logPrefix = "Recompute total failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    qint64 total = 0;
    try {
        const Supabase client = m_auth.client();
        const QueryItems query{
            {u"select"_s, u"duration_seconds"_s}, {u"task_id"_s, u"eq."_s + taskId}, {u"order"_s, u"id.asc"_s}};
        const auto durationsRequest = [&](const QString &token) {
            return client.selectAll<EntryDuration>(u"time_entries"_s, token, query);
        };
        const QList<EntryDuration> durations = co_await authorized(*session, durationsRequest);
        for (const EntryDuration &duration : durations) {
            total += duration.durationSeconds;
        }
    } catch (const MorvaneError &error) {
        failed(logPrefix, error.message(), StoreText::loadFailed());
        co_return false;
    }
    const TaskTotalPatch patch{total};
    co_return co_await patchTask(taskId, patch, logPrefix);
}
