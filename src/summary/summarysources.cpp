#include "summary/summarysources.h"

#include "backend/authstore.h"
#include "store/appstore.h"
#include "store/periodentries.h"
#include "summary/worksummary.h"

namespace WorkSummary {

QCoro::Task<std::optional<Sources>> loadSources(AuthStore &auth, const AppStore &store, QDateTime now)
{
    const std::optional<QList<TimeEntry>> entries = co_await loadEntriesBetween(auth, now.addDays(-15), now.addSecs(60));
    if (!entries) {
        co_return std::nullopt;
    }
    Sources sources;
    QList<TaskItem> tasks;
    for (const QList<TaskItem> &projectTasks : store.tasksByProject()) {
        tasks << projectTasks;
    }
    const OwnWork own = ownWork(*entries, tasks, auth.userId());
    sources.entries = own.entries;
    sources.tasks = own.tasks;
    sources.projects = store.projects();
    sources.defaultHourlyRate = store.defaultHourlyRate();
    sources.currency = store.currency();
    co_return sources;
}

} // namespace WorkSummary
