#pragma once

#include "model/taskitem.h"
#include "model/wire.h"

#include <QDateTime>
#include <QSet>
#include <QString>
#include <QStringList>

#include <QCoroTask>

#include <optional>

class AppStore;
class AuthStore;

// A row of `calendar_imports`: one occurrence already turned into time.
struct CalendarImportRow
{
    QString id;
    QString eventKey;
    std::optional<QString> timeEntryId;

    static constexpr std::string_view wireName = "CalendarImportRow";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("id", &CalendarImportRow::id),
            field("event_key", &CalendarImportRow::eventKey),
            field("time_entry_id", &CalendarImportRow::timeEntryId),
        };
    }
    friend bool operator==(const CalendarImportRow &, const CalendarImportRow &) = default;
};

enum class CalendarLogOutcome { Logged, AlreadyImported, Failed };

// Logs calendar events as time entries, each occurrence once per person: the backend holds the
// keys of what was imported and refuses a second copy, whichever device or day it comes from.
class CalendarLog
{
public:
    CalendarLog(AppStore &store, AuthStore &auth);

    // Claims the occurrence's key, then inserts the entry [start, end] on `task` and links the
    // two. A key already claimed answers AlreadyImported with nothing logged; an entry that
    // cannot be written releases the key again, so the event can be tried once more.
    QCoro::Task<CalendarLogOutcome> logCalendarEvent(TaskItem task, QDateTime start, QDateTime end, QString importKey);
    // Which of `keys` were imported before; none when the backend could not be asked.
    QCoro::Task<std::optional<QSet<QString>>> importedKeys(QStringList keys);

    // Why the last call failed, a sentence for the person.
    [[nodiscard]] QString lastError() const { return m_lastError; }

private:
    AppStore &m_store;
    AuthStore &m_auth;
    QString m_lastError;
};
