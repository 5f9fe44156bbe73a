#include "storesessionlogsink.h"

#include "backend/authstore.h"
#include "model/error.h"
#include "store/appstore.h"
#include "store/storetext.h"

#include <QLoggingCategory>

Q_LOGGING_CATEGORY(lcSessionSink, "morvane.sessions.sink")

namespace {

class StoreWriteError : public MorvaneError
{
public:
    explicit StoreWriteError(QString text)
        : m_text(std::move(text))
    {}
    [[nodiscard]] QString message() const override { return m_text; }

private:
    QString m_text;
};

// Built outside the coroutines: GCC 12 mishandles initializer lists inside them.
TaskInsert taskInsert(const BurstTask &task)
{
    TaskInsert insert;
    insert.userId = task.userId;
    insert.projectId = task.projectId;
    insert.title = task.title;
    insert.description = task.description;
    insert.billing = Billing{};
    insert.priority = task.priority == u"low"    ? TaskPriority::Low
                      : task.priority == u"high" ? TaskPriority::High
                                                 : TaskPriority::Medium;
    return insert;
}

qsizetype entryCount(const AppStore &store, const QString &taskId)
{
    return store.entriesByTask().value(taskId).size();
}

} // namespace

StoreSessionLogSink::StoreSessionLogSink(AuthStore &auth, AppStore &store)
    : m_auth(auth)
    , m_store(store)
{}

QCoro::Task<std::optional<QString>> StoreSessionLogSink::signedInUserId()
{
    const std::optional<QString> token = co_await m_auth.validToken(30);
    if (!token || m_auth.userId().isEmpty()) {
        co_return std::nullopt;
    }
    co_return std::optional<QString>(m_auth.userId());
}

QCoro::Task<QString> StoreSessionLogSink::createTask(BurstTask task)
{
    const TaskInsert insert = taskInsert(task);
    const std::optional<TaskItem> created = co_await m_store.createTask(insert);
    if (!created) {
        const QString error = m_store.lastError();
        throw StoreWriteError(error.isEmpty() ? StoreText::taskNotCreated() : error);
    }
    co_return created->id;
}

QCoro::Task<> StoreSessionLogSink::logMinutes(QString taskId, double minutes)
{
    const qsizetype before = entryCount(m_store, taskId);
    const bool logged = co_await m_store.logManualMinutes(taskId, minutes);
    if (logged) {
        co_return;
    }
    if (entryCount(m_store, taskId) > before) {
        // The entry was written and only the task's total failed to follow: logging the burst
        // again would bill its time twice, while the total is put right by the next change.
        qCWarning(lcSessionSink) << "Entry logged on" << taskId
                                 << "but its total was not updated:" << m_store.lastError();
        co_return;
    }
    const QString error = m_store.lastError();
    throw StoreWriteError(error.isEmpty() ? StoreText::entryNotLogged() : error);
}
