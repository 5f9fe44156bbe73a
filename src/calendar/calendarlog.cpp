#include "calendarlog.h"

#include "backend/authstore.h"
#include "backend/supabaseerror.h"
#include "calendar/calendarimport.h"
#include "model/isodate.h"
#include "model/timeentry.h"
#include "store/appstore.h"
#include "store/storetext.h"
#include "store/timerrecords.h"

#include <QLoggingCategory>

using namespace Qt::StringLiterals;

Q_DECLARE_LOGGING_CATEGORY(lcCalendar)

namespace {

struct CalendarImportInsert
{
    QString userId;
    QString eventKey;

    static constexpr std::string_view wireName = "CalendarImportInsert";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{field("user_id", &CalendarImportInsert::userId),
                          field("event_key", &CalendarImportInsert::eventKey)};
    }
    friend bool operator==(const CalendarImportInsert &, const CalendarImportInsert &) = default;
};

struct CalendarImportLink
{
    QString timeEntryId;

    static constexpr std::string_view wireName = "CalendarImportLink";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{field("time_entry_id", &CalendarImportLink::timeEntryId)};
    }
    friend bool operator==(const CalendarImportLink &, const CalendarImportLink &) = default;
};

bool isUniqueViolation(const MorvaneError &error)
{
    const auto *backend = dynamic_cast<const SupabaseError *>(&error);
    return backend && backend->errorCode() == u"23505"_s;
}

} // namespace

CalendarLog::CalendarLog(AppStore &store, AuthStore &auth)
    : m_store(store)
    , m_auth(auth)
{}

QCoro::Task<CalendarLogOutcome> CalendarLog::logCalendarEvent(TaskItem task, QDateTime start, QDateTime end,
                                                              QString importKey)
{
    m_lastError.clear();
    const std::optional<QString> token = co_await m_auth.validToken();
    if (!token) {
        m_lastError = StoreText::notSignedIn();
        co_return CalendarLogOutcome::Failed;
    }
    const Supabase &client = m_auth.client();
    const QString userId = m_auth.userId();
    CalendarImportRow claim;
    try {
        const CalendarImportInsert claimInsert{userId, importKey};
        const QList<CalendarImportRow> rows =
            co_await client.insert<CalendarImportRow>(u"calendar_imports"_s, *token, claimInsert);
        if (rows.isEmpty()) {
            throw SupabaseError::decoding(u"no row came back"_s);
        }
        claim = rows.first();
    } catch (const MorvaneError &error) {
        if (isUniqueViolation(error)) {
            m_lastError = CalendarImport::alreadyImported();
            co_return CalendarLogOutcome::AlreadyImported;
        }
        qCWarning(lcCalendar).noquote() << u"Log calendar event failed:"_s << error.message();
        m_lastError = error.message();
        co_return CalendarLogOutcome::Failed;
    }

    TimeEntryInsert insert;
    insert.userId = userId;
    insert.taskId = task.id;
    insert.projectId = task.projectId;
    insert.startedAt = isoString(start);
    insert.endedAt = isoString(end);
    insert.durationSeconds = start.secsTo(end);
    insert.loggedByUserId = userId;
    if (!m_auth.email().isEmpty()) {
        insert.loggedByEmail = m_auth.email();
    }
    std::optional<TimeEntry> entry;
    bool sameRunLogged = false;
    try {
        const QList<TimeEntry> rows = co_await client.insert<TimeEntry>(u"time_entries"_s, *token, insert);
        if (rows.isEmpty()) {
            throw SupabaseError::decoding(u"no row came back"_s);
        }
        entry = rows.first();
    } catch (const MorvaneError &error) {
        qCWarning(lcCalendar).noquote() << u"Log calendar event failed:"_s << error.message();
        // The same run on the task already (logged by hand, or before keys were kept): the
        // claim stays, the event counts as imported.
        sameRunLogged = isUniqueViolation(error);
        m_lastError = sameRunLogged ? CalendarImport::alreadyImported() : error.message();
    }
    const QueryItems byClaim{{u"id"_s, u"eq."_s + claim.id}};
    if (sameRunLogged) {
        co_return CalendarLogOutcome::AlreadyImported;
    }
    if (!entry) {
        try {
            co_await client.deleteFrom(u"calendar_imports"_s, *token, byClaim);
        } catch (const MorvaneError &error) {
            qCWarning(lcCalendar).noquote() << u"Release calendar import failed:"_s << error.message();
        }
        co_return CalendarLogOutcome::Failed;
    }
    // The link lets a deleted entry free its event; without it the event stays imported, which is
    // the safe side, so a failure here is only logged.
    try {
        const CalendarImportLink link{entry->id};
        co_await client.update<CalendarImportRow>(u"calendar_imports"_s, *token, byClaim, link);
    } catch (const MorvaneError &error) {
        qCWarning(lcCalendar).noquote() << u"Link calendar import failed:"_s << error.message();
    }
    if (m_store.currentUserId() == userId) {
        m_store.appendEntryLocally(*entry);
        co_await m_store.recomputeTaskTotal(task.id);
    }
    co_return CalendarLogOutcome::Logged;
}

QCoro::Task<std::optional<QSet<QString>>> CalendarLog::importedKeys(QStringList keys)
{
    QSet<QString> imported;
    if (keys.isEmpty()) {
        co_return imported;
    }
    const std::optional<QString> token = co_await m_auth.validToken();
    if (!token) {
        m_lastError = StoreText::notSignedIn();
        co_return std::nullopt;
    }
    try {
        // Keys are hex digests, so they go into the filter as they are; a day has few.
        for (qsizetype at = 0; at < keys.size(); at += 100) {
            const QStringList chunk = keys.mid(at, 100);
            const QueryItems query{{u"select"_s, u"id,event_key,time_entry_id"_s},
                                   {u"event_key"_s, u"in.("_s + chunk.join(u',') + u')'}};
            const QList<CalendarImportRow> rows =
                co_await m_auth.client().selectAll<CalendarImportRow>(u"calendar_imports"_s, *token, query);
            for (const CalendarImportRow &row : rows) {
                imported.insert(row.eventKey);
            }
        }
    } catch (const MorvaneError &error) {
        qCWarning(lcCalendar).noquote() << u"Load calendar imports failed:"_s << error.message();
        m_lastError = error.message();
        co_return std::nullopt;
    }
    co_return imported;
}
