#include "capture/capturetext.h"

#include "billing/money.h"
#include "store/appstore.h"
#include "store/timerstore.h"

using namespace Qt::StringLiterals;

namespace {

QString duration(double minutes)
{
    return TimerStore::format(qRound64(minutes * 60));
}

QString priorityWord(const QString &priority)
{
    if (priority == u"low") {
        return qtTrId("ui.priority.low");
    }
    if (priority == u"high") {
        return qtTrId("ui.priority.high");
    }
    return qtTrId("ui.priority.medium");
}

QString price(const std::optional<double> &rate, const std::optional<double> &total, const QString &currency)
{
    if (total) {
        //% "%1 fixed"
        return qtTrId("cli.add.fixed").arg(formatMoney(*total, currency));
    }
    if (rate) {
        return formatMoney(*rate, currency) + qtTrId("billing.suffix.hour");
    }
    return {};
}

QString withDetails(const QString &line, QStringList details)
{
    details.removeAll(QString());
    return details.isEmpty() ? line : line + u" ("_s + details.join(u", "_s) + u')';
}

void addTask(QStringList &lines, const AITaskDraft &task, const QString &currency, const QString &indent)
{
    //% "due %1"
    const QString due = task.dueDate ? qtTrId("cli.add.due").arg(*task.dueDate) : QString();
    //% "%1 already spent"
    const QString spent = task.minutes ? qtTrId("cli.add.spent").arg(duration(*task.minutes)) : QString();
    //% "Task \"%1\""
    lines << indent + withDetails(qtTrId("cli.add.task").arg(task.title),
                                  {priorityWord(task.priority.value_or(QString())), due,
                                   price(task.hourlyRate, task.totalPrice, currency), spent});
}

QString taskTitle(const AppStore &store, const std::optional<QString> &taskId)
{
    const std::optional<TaskItem> task = taskId ? store.task(*taskId) : std::nullopt;
    return task ? task->title : QString();
}

} // namespace

namespace CaptureText {

QStringList understood(const AISession &session, const QString &currency)
{
    QStringList lines;
    if (!session.result) {
        return lines;
    }
    const AIParseResult &result = *session.result;
    const QList<AITaskDraft> tasks = result.tasks.value_or(QList<AITaskDraft>());
    const QString taskTitle = result.taskTitle.value_or(tasks.size() == 1 ? tasks.first().title : u"?"_s);
    switch (result.intent) {
    case AIIntent::CreateProject:
    case AIIntent::CreateProjects:
        for (const AIProjectDraft &project : result.projects.value_or(QList<AIProjectDraft>())) {
            //% "shared with team %1"
            const QString team = project.teamName ? qtTrId("cli.add.team").arg(*project.teamName) : QString();
            //% "Project \"%1\""
            lines << u"  "_s + withDetails(qtTrId("cli.add.project").arg(project.name),
                                           {price(project.hourlyRate, project.totalPrice, currency), team});
            for (const AITaskDraft &task : project.tasks.value_or(QList<AITaskDraft>())) {
                addTask(lines, task, currency, u"    "_s);
            }
        }
        // One new project may come in the single-project keys instead of the list.
        if (result.projects.value_or(QList<AIProjectDraft>()).isEmpty() && result.projectName) {
            lines << u"  "_s + withDetails(qtTrId("cli.add.project").arg(*result.projectName),
                                           {price(result.projectHourlyRate, std::nullopt, currency)});
            for (const AITaskDraft &task : tasks) {
                addTask(lines, task, currency, u"    "_s);
            }
        }
        break;
    case AIIntent::CreateTask:
        lines << u"  "_s + withDetails(qtTrId("cli.add.project").arg(result.projectName.value_or(u"?"_s)),
                                       {price(result.projectHourlyRate, std::nullopt, currency)});
        for (const AITaskDraft &task : tasks) {
            addTask(lines, task, currency, u"    "_s);
        }
        if (tasks.isEmpty() && result.taskTitle) {
            addTask(lines, AITaskDraft{*result.taskTitle}, currency, u"    "_s);
        }
        break;
    case AIIntent::LogTime: {
        const double minutes = result.minutes.value_or(tasks.size() == 1 ? tasks.first().minutes.value_or(0) : 0);
        //% "Log %1 on \"%2\""
        lines << u"  "_s + qtTrId("cli.add.logTime").arg(minutes > 0 ? duration(minutes) : u"?"_s, taskTitle);
        break;
    }
    case AIIntent::StartTimer:
        //% "Start the timer on \"%1\""
        lines << u"  "_s + qtTrId("cli.add.startTimer").arg(taskTitle);
        break;
    case AIIntent::StopTimer:
        if (result.taskTitle || tasks.size() == 1) {
            //% "Stop the timer on \"%1\""
            lines << u"  "_s + qtTrId("cli.add.stopTimer").arg(taskTitle);
        } else {
            //% "Stop the running timer"
            lines << u"  "_s + qtTrId("cli.add.stopRunning");
        }
        break;
    case AIIntent::Unknown:
        //% "Nothing to do: the sentence holds no project, task, time or timer action."
        lines << u"  "_s + qtTrId("cli.add.unknown");
        break;
    }
    if (result.notes) {
        //% "The model notes: %1"
        lines << qtTrId("cli.add.modelNote").arg(*result.notes);
    }
    for (const QString &adjustment : session.adjustments) {
        //% "Checked: %1"
        lines << qtTrId("cli.add.adjusted").arg(adjustment);
    }
    return lines;
}

QStringList done(const AppStore &store, const AIApplyOutcome &outcome)
{
    QStringList lines;
    if (outcome.projectsCreated + outcome.projectsMatched + outcome.tasksCreated + outcome.tasksMatched > 0 ||
        outcome.minutesLogged > 0) {
        //% "Projects: %1 new, %2 existing. Tasks: %3 new, %4 existing. Time logged: %5."
        lines << qtTrId("cli.add.summary")
                     .arg(outcome.projectsCreated)
                     .arg(outcome.projectsMatched)
                     .arg(outcome.tasksCreated)
                     .arg(outcome.tasksMatched)
                     .arg(duration(outcome.minutesLogged));
    }
    if (outcome.timerStartedTaskId) {
        lines << qtTrId("cli.timer.started").arg(taskTitle(store, outcome.timerStartedTaskId));
    }
    if (outcome.timerStoppedTaskId) {
        //% "Timer stopped on %1."
        lines << qtTrId("cli.add.timerStopped").arg(taskTitle(store, outcome.timerStoppedTaskId));
    }
    lines << outcome.notes;
    return lines;
}

QString stopped(const AIApplyOutcome &outcome)
{
    //% "Stopped: %1 What was made before stays; give the same sentence again to finish the rest without making anything twice."
    return outcome.error ? qtTrId("cli.add.partial").arg(*outcome.error) : QString();
}

} // namespace CaptureText

