#include "applyairesult.h"

#include "store/appstore.h"

#include <QCryptographicHash>
#include <QSettings>

using namespace Qt::StringLiterals;

QString captureMatchKey(const QString &name)
{
    return name.normalized(QString::NormalizationForm_KC).simplified().toCaseFolded();
}

namespace {

// Why a write failed, in the store's words when it has them.
QString failure(const AppStore &store)
{
    if (!store.lastError().isEmpty()) {
        return store.lastError();
    }
    //% "The change could not be saved."
    return qtTrId("capture.err.notSaved");
}

void priceOf(const std::optional<double> &rate, const std::optional<double> &total, std::optional<double> &hourlyRate,
             std::optional<double> &totalPrice, std::optional<Billing> &billing)
{
    if (total) {
        totalPrice = total;
        billing = Billing{};
        billing->model = BillingModel::Fixed;
        billing->amount = total;
    } else if (rate) {
        hourlyRate = rate;
        billing = Billing{};
        billing->model = BillingModel::Hourly;
        billing->unitPrice = rate;
    }
}

class Applier
{
public:
    Applier(AppStore &store, QStringList doneSteps)
        : m_store(store)
    {
        m_outcome.doneSteps = std::move(doneSteps);
    }

    QCoro::Task<AIApplyOutcome> run(AIParseResult result)
    {
        switch (result.intent) {
        case AIIntent::CreateProject:
        case AIIntent::CreateProjects: {
            QList<AIProjectDraft> drafts = result.projects.value_or(QList<AIProjectDraft>());
            // A single project is sometimes answered in the single-project keys instead.
            if (drafts.isEmpty() && result.projectName) {
                drafts << AIProjectDraft{*result.projectName, std::nullopt, result.projectHourlyRate, std::nullopt,
                                         std::nullopt, result.tasks};
            }
            for (const AIProjectDraft &draft : drafts) {
                const bool done = co_await project(draft);
                if (!done) {
                    break;
                }
            }
            break;
        }
        case AIIntent::CreateTask:
            co_await createTask(result);
            break;
        case AIIntent::LogTime:
        case AIIntent::StartTimer:
        case AIIntent::StopTimer:
            co_await timeOrTimer(result);
            break;
        case AIIntent::Unknown:
            break;
        }
        co_return m_outcome;
    }

private:
    bool fail()
    {
        m_outcome.error = failure(m_store);
        return false;
    }

    void focus(const QString &projectId, const std::optional<QString> &taskId = std::nullopt)
    {
        if (!m_outcome.focusProjectId) {
            m_outcome.focusProjectId = projectId;
        }
        if (taskId && !m_outcome.focusTaskId) {
            m_outcome.focusTaskId = taskId;
        }
    }

    // An active project of that name before an archived one.
    std::optional<Project> findProject(const QString &name) const
    {
        const QString wanted = captureMatchKey(name);
        std::optional<Project> found;
        for (const Project &project : m_store.projects()) {
            if (captureMatchKey(project.name) == wanted &&
                (!found || (found->status != ProjectStatus::Active && project.status == ProjectStatus::Active))) {
                found = project;
            }
        }
        return found;
    }

    // The tasks of that title (in one project, or anywhere); open ones win over completed ones.
    QList<TaskItem> findTasks(const QString &title, const std::optional<QString> &projectId) const
    {
        const QString wanted = captureMatchKey(title);
        QList<TaskItem> found;
        for (auto it = m_store.tasksByProject().cbegin(); it != m_store.tasksByProject().cend(); ++it) {
            if (projectId && it.key() != *projectId) {
                continue;
            }
            for (const TaskItem &task : it.value()) {
                if (captureMatchKey(task.title) == wanted) {
                    found << task;
                }
            }
        }
        if (found.size() > 1) {
            QList<TaskItem> open = found;
            open.removeIf([](const TaskItem &task) { return task.status == TaskStatus::Completed; });
            if (!open.isEmpty()) {
                return open;
            }
        }
        return found;
    }

    std::optional<QString> teamFor(const std::optional<QString> &teamName, const QString &projectName)
    {
        if (!teamName) {
            return std::nullopt;
        }
        for (const Team &team : m_store.teams()) {
            if (captureMatchKey(team.name) == captureMatchKey(*teamName) &&
                m_store.roleInTeam(team.id).value_or(TeamRole::Viewer) != TeamRole::Viewer) {
                return team.id;
            }
        }
        //% "You have no team called \"%1\" that you may add projects to; \"%2\" stays yours alone."
        m_outcome.notes << qtTrId("capture.note.noTeam").arg(*teamName, projectName);
        return std::nullopt;
    }

    QCoro::Task<std::optional<Project>> projectNamed(const QString &name, const std::optional<QString> &description,
                                                     const std::optional<double> &rate,
                                                     const std::optional<double> &total,
                                                     const std::optional<QString> &teamName)
    {
        if (std::optional<Project> existing = findProject(name)) {
            ++m_outcome.projectsMatched;
            co_return existing;
        }
        ProjectInsert insert;
        insert.name = name;
        insert.description = description;
        priceOf(rate, total, insert.hourlyRate, insert.totalPrice, insert.billing);
        insert.teamId = teamFor(teamName, name);
        std::optional<Project> created = co_await m_store.createProject(insert);
        if (created) {
            ++m_outcome.projectsCreated;
            m_outcome.newProjectIds << created->id;
        }
        co_return created;
    }

    QCoro::Task<bool> project(const AIProjectDraft &draft)
    {
        const std::optional<Project> project =
            co_await projectNamed(draft.name, draft.description, draft.hourlyRate, draft.totalPrice, draft.teamName);
        if (!project) {
            co_return fail();
        }
        focus(project->id);
        const QList<AITaskDraft> drafts = draft.tasks.value_or(QList<AITaskDraft>());
        const bool done = co_await tasks(project->id, drafts);
        co_return done;
    }

    QCoro::Task<bool> tasks(const QString &projectId, const QList<AITaskDraft> &drafts)
    {
        for (const AITaskDraft &draft : drafts) {
            std::optional<TaskItem> task;
            if (const QList<TaskItem> existing = findTasks(draft.title, projectId); !existing.isEmpty()) {
                task = existing.first();
                ++m_outcome.tasksMatched;
            } else {
                TaskInsert insert;
                insert.projectId = projectId;
                insert.title = draft.title;
                insert.description = draft.description;
                insert.dueDate = draft.dueDate;
                insert.priority =
                    Wire::enumFromName<TaskPriority>(draft.priority.value_or(QString())).value_or(TaskPriority::Medium);
                priceOf(draft.hourlyRate, draft.totalPrice, insert.hourlyRate, insert.totalPrice, insert.billing);
                task = co_await m_store.createTask(insert);
                if (!task) {
                    co_return fail();
                }
                ++m_outcome.tasksCreated;
                m_outcome.newTaskIds << task->id;
            }
            focus(projectId, task->id);
            if (draft.minutes) {
                const bool logged = co_await log(task->id, *draft.minutes);
                if (!logged) {
                    co_return false;
                }
            }
        }
        co_return true;
    }

    QCoro::Task<bool> log(const QString &taskId, double minutes)
    {
        const QString step = u"log:"_s + taskId + u':' + QString::number(minutes);
        if (!m_outcome.doneSteps.contains(step)) {
            const bool logged = co_await m_store.logManualMinutes(taskId, minutes);
            if (!logged) {
                co_return fail();
            }
            m_outcome.doneSteps << step;
        }
        m_outcome.minutesLogged += minutes;
        co_return true;
    }

    QCoro::Task<void> createTask(const AIParseResult &result)
    {
        QList<AITaskDraft> drafts = result.tasks.value_or(QList<AITaskDraft>());
        if (drafts.isEmpty() && result.taskTitle) {
            drafts << AITaskDraft{*result.taskTitle};
        }
        if (drafts.isEmpty()) {
            m_outcome.needsTaskClarification = true;
            co_return;
        }
        if (!result.projectName) {
            //% "The sentence names no project to add the task to."
            m_outcome.error = qtTrId("capture.err.noProject");
            co_return;
        }
        const QString name = *result.projectName;
        const std::optional<double> rate = result.projectHourlyRate;
        const std::optional<double> noPrice;
        const std::optional<QString> none;
        const std::optional<Project> project = co_await projectNamed(name, none, rate, noPrice, none);
        if (!project) {
            fail();
            co_return;
        }
        focus(project->id);
        co_await tasks(project->id, drafts);
    }

    QCoro::Task<void> timeOrTimer(const AIParseResult &result)
    {
        const QList<AITaskDraft> drafts = result.tasks.value_or(QList<AITaskDraft>());
        const std::optional<QString> title =
            result.taskTitle ? result.taskTitle
                             : (drafts.size() == 1 ? std::optional(drafts.first().title) : std::nullopt);
        std::optional<TaskItem> task;
        if (title) {
            const std::optional<Project> project =
                result.projectName ? findProject(*result.projectName) : std::nullopt;
            QList<TaskItem> found = findTasks(*title, project ? std::optional(project->id) : std::nullopt);
            if (found.isEmpty() && project) {
                found = findTasks(*title, std::nullopt);
            }
            if (found.size() == 1) {
                task = found.first();
            }
        } else if (result.intent == AIIntent::StopTimer) {
            // "Stop the timer" names no task: the one that runs is meant.
            task = m_store.runningTask();
            if (!task) {
                //% "No timer was running."
                m_outcome.notes << qtTrId("capture.note.noTimer");
                co_return;
            }
        }
        if (!task) {
            m_outcome.needsTaskClarification = true;
            co_return;
        }
        focus(task->projectId, task->id);
        switch (result.intent) {
        case AIIntent::LogTime: {
            const std::optional<double> minutes =
                result.minutes ? result.minutes : (drafts.size() == 1 ? drafts.first().minutes : std::nullopt);
            if (!minutes) {
                //% "The sentence gives no time to log."
                m_outcome.error = qtTrId("capture.err.noMinutes");
                co_return;
            }
            co_await log(task->id, *minutes);
            break;
        }
        case AIIntent::StartTimer:
            if (const bool started = co_await m_store.startTimer(task->id); started) {
                m_outcome.timerStartedTaskId = task->id;
            } else {
                fail();
            }
            break;
        default:
            if (!task->startedAt) {
                m_outcome.notes << qtTrId("capture.note.noTimer");
            } else if (const bool stopped = co_await m_store.stopTimer(task->id); stopped) {
                m_outcome.timerStoppedTaskId = task->id;
            } else {
                fail();
            }
            break;
        }
    }

    AppStore &m_store;
    AIApplyOutcome m_outcome;
};

const QString journalGroup = u"capture/unfinished/"_s;
constexpr qint64 journalDays = 7;

} // namespace

QCoro::Task<AIApplyOutcome> applyAIResult(AppStore &store, AIParseResult result, QStringList doneSteps)
{
    Applier applier(store, std::move(doneSteps));
    AIApplyOutcome outcome = co_await applier.run(std::move(result));
    co_return outcome;
}

CaptureJournal::CaptureJournal(QSettings &settings)
    : m_settings(settings)
{}

QString CaptureJournal::key(const QString &sentence)
{
    return journalGroup +
           QString::fromLatin1(
               QCryptographicHash::hash(captureMatchKey(sentence).toUtf8(), QCryptographicHash::Sha256).toHex());
}

QStringList CaptureJournal::doneSteps(const QString &sentence) const
{
    const QVariantMap entry = m_settings.value(key(sentence)).toMap();
    // A failure of last week is not what someone repeating the sentence today means.
    if (entry.value(u"at"_s).toDateTime().daysTo(QDateTime::currentDateTimeUtc()) > journalDays) {
        return {};
    }
    return entry.value(u"steps"_s).toStringList();
}

void CaptureJournal::record(const QString &sentence, const AIApplyOutcome &outcome)
{
    if (!outcome.error) {
        m_settings.remove(key(sentence));
    } else {
        m_settings.setValue(key(sentence), QVariantMap{{u"steps"_s, outcome.doneSteps},
                                                       {u"at"_s, QDateTime::currentDateTimeUtc()}});
    }
    m_settings.sync();
}
