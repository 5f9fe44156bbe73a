#include "app/capturecommand.h"

#include "app/clisession.h"
#include "backend/runblocking.h"
#include "billing/money.h"
#include "capture/applyairesult.h"
#include "capture/capturehistory.h"
#include "sessions/claudebridge.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QSettings>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

// A sentence is a few lines at most; more is a pasted document, which the model would only guess at.
constexpr qsizetype maxSentenceLength = 4000;

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

void printTask(QTextStream &out, const AITaskDraft &task, const QString &currency, const QString &indent)
{
    //% "due %1"
    const QString due = task.dueDate ? qtTrId("cli.add.due").arg(*task.dueDate) : QString();
    //% "%1 already spent"
    const QString spent = task.minutes ? qtTrId("cli.add.spent").arg(duration(*task.minutes)) : QString();
    //% "Task \"%1\""
    out << indent
        << withDetails(qtTrId("cli.add.task").arg(task.title),
                       {priorityWord(task.priority.value_or(QString())), due,
                        price(task.hourlyRate, task.totalPrice, currency), spent})
        << u'\n';
}

void printUnderstood(QTextStream &out, const AISession &session, const QString &currency)
{
    const AIParseResult &result = *session.result;
    //% "Understood:"
    out << qtTrId("cli.add.understood") << u'\n';
    const QList<AITaskDraft> tasks = result.tasks.value_or(QList<AITaskDraft>());
    const QString taskTitle = result.taskTitle.value_or(tasks.size() == 1 ? tasks.first().title : u"?"_s);
    switch (result.intent) {
    case AIIntent::CreateProject:
    case AIIntent::CreateProjects:
        for (const AIProjectDraft &project : result.projects.value_or(QList<AIProjectDraft>())) {
            //% "shared with team %1"
            const QString team = project.teamName ? qtTrId("cli.add.team").arg(*project.teamName) : QString();
            //% "Project \"%1\""
            out << u"  "_s
                << withDetails(qtTrId("cli.add.project").arg(project.name),
                               {price(project.hourlyRate, project.totalPrice, currency), team})
                << u'\n';
            for (const AITaskDraft &task : project.tasks.value_or(QList<AITaskDraft>())) {
                printTask(out, task, currency, u"    "_s);
            }
        }
        break;
    case AIIntent::CreateTask:
        out << u"  "_s
            << withDetails(qtTrId("cli.add.project").arg(result.projectName.value_or(u"?"_s)),
                           {price(result.projectHourlyRate, std::nullopt, currency)})
            << u'\n';
        for (const AITaskDraft &task : tasks) {
            printTask(out, task, currency, u"    "_s);
        }
        if (tasks.isEmpty() && result.taskTitle) {
            printTask(out, AITaskDraft{*result.taskTitle}, currency, u"    "_s);
        }
        break;
    case AIIntent::LogTime: {
        const double minutes = result.minutes.value_or(tasks.size() == 1 ? tasks.first().minutes.value_or(0) : 0);
        //% "Log %1 on \"%2\""
        out << u"  "_s << qtTrId("cli.add.logTime").arg(minutes > 0 ? duration(minutes) : u"?"_s, taskTitle) << u'\n';
        break;
    }
    case AIIntent::StartTimer:
        //% "Start the timer on \"%1\""
        out << u"  "_s << qtTrId("cli.add.startTimer").arg(taskTitle) << u'\n';
        break;
    case AIIntent::StopTimer:
        if (result.taskTitle || tasks.size() == 1) {
            //% "Stop the timer on \"%1\""
            out << u"  "_s << qtTrId("cli.add.stopTimer").arg(taskTitle) << u'\n';
        } else {
            //% "Stop the running timer"
            out << u"  "_s << qtTrId("cli.add.stopRunning") << u'\n';
        }
        break;
    case AIIntent::Unknown:
        //% "Nothing to do: the sentence holds no project, task, time or timer action."
        out << u"  "_s << qtTrId("cli.add.unknown") << u'\n';
        break;
    }
    if (result.notes) {
        //% "The model notes: %1"
        out << qtTrId("cli.add.modelNote").arg(*result.notes) << u'\n';
    }
    for (const QString &adjustment : session.adjustments) {
        //% "Checked: %1"
        out << qtTrId("cli.add.adjusted").arg(adjustment) << u'\n';
    }
}

QString taskTitle(const AppStore &store, const std::optional<QString> &taskId)
{
    const std::optional<TaskItem> task = taskId ? store.task(*taskId) : std::nullopt;
    return task ? task->title : QString();
}

void printOutcome(QTextStream &out, QTextStream &err, const AppStore &store, const AIParseResult &result,
                  const AIApplyOutcome &outcome)
{
    if (outcome.projectsCreated + outcome.projectsMatched + outcome.tasksCreated + outcome.tasksMatched > 0 ||
        outcome.minutesLogged > 0) {
        //% "Projects: %1 new, %2 existing. Tasks: %3 new, %4 existing. Time logged: %5."
        out << qtTrId("cli.add.summary")
                   .arg(outcome.projectsCreated)
                   .arg(outcome.projectsMatched)
                   .arg(outcome.tasksCreated)
                   .arg(outcome.tasksMatched)
                   .arg(duration(outcome.minutesLogged))
            << u'\n';
    }
    if (outcome.timerStartedTaskId) {
        out << qtTrId("cli.timer.started").arg(taskTitle(store, outcome.timerStartedTaskId)) << u'\n';
    }
    if (outcome.timerStoppedTaskId) {
        //% "Timer stopped on %1."
        out << qtTrId("cli.add.timerStopped").arg(taskTitle(store, outcome.timerStoppedTaskId)) << u'\n';
    }
    for (const QString &note : outcome.notes) {
        out << note << u'\n';
    }
    out.flush();
    if (outcome.needsTaskClarification) {
        //% "Which task? None of your tasks is called \"%1\", or several are. Say it as 'morvane tasks list' shows it."
        err << qtTrId("cli.add.clarify").arg(result.taskTitle.value_or(u"?"_s)) << Qt::endl;
    }
    if (outcome.error) {
        //% "Stopped: %1 What was made before stays; give the same sentence again to finish the rest without making anything twice."
        err << qtTrId("cli.add.partial").arg(*outcome.error) << Qt::endl;
    }
}

QJsonObject outcomeJson(const AIApplyOutcome &outcome)
{
    const auto optional = [](const std::optional<QString> &value) {
        return value ? QJsonValue(*value) : QJsonValue(QJsonValue::Null);
    };
    return {{u"projects_created"_s, outcome.projectsCreated},
            {u"projects_matched"_s, outcome.projectsMatched},
            {u"tasks_created"_s, outcome.tasksCreated},
            {u"tasks_matched"_s, outcome.tasksMatched},
            {u"minutes_logged"_s, outcome.minutesLogged},
            {u"needs_task_clarification"_s, outcome.needsTaskClarification},
            {u"error"_s, optional(outcome.error)},
            {u"new_project_ids"_s, QJsonArray::fromStringList(outcome.newProjectIds)},
            {u"new_task_ids"_s, QJsonArray::fromStringList(outcome.newTaskIds)},
            {u"focus_project_id"_s, optional(outcome.focusProjectId)},
            {u"focus_task_id"_s, optional(outcome.focusTaskId)},
            {u"timer_started_task_id"_s, optional(outcome.timerStartedTaskId)},
            {u"timer_stopped_task_id"_s, optional(outcome.timerStoppedTaskId)},
            {u"notes"_s, QJsonArray::fromStringList(outcome.notes)}};
}

} // namespace

int runAddCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    const QCommandLineOption help({u"h"_s, u"help"_s}, qtTrId("cli.option.help"));
    //% "Show what was understood without changing anything."
    const QCommandLineOption dryRun(u"dry-run"_s, qtTrId("cli.add.option.dryRun"));
    const QCommandLineOption yes = Cli::yesOption();
    parser.addOptions({help, dryRun, yes});
    parser.addPositionalArgument(u"text"_s, qtTrId("cli.command.add"));
    if (!Cli::parse(parser, arguments, err)) {
        return 2;
    }
    //% "Usage: morvane add \"<text>\" [--dry-run] [--yes] [--json]"
    const QString usageText = qtTrId("cli.add.usage");
    if (parser.isSet(help)) {
        out << usageText << u"\n\n"_s << parser.helpText();
        out.flush();
        return 0;
    }
    const QString text = parser.positionalArguments().join(u' ').trimmed();
    if (text.isEmpty() || text.size() > maxSentenceLength) {
        return Cli::usage(err, usageText);
    }
    CliSession session;
    if (!session.open(err)) {
        return 1;
    }
    AppStore &store = session.store();
    const bool json = Cli::wantsJson(parser);

    auto settings = std::make_shared<QSettings>();
    ClaudeBridge bridge(settings);
    Cli::connectAI(bridge, session, parser.isSet(yes), err);
    CaptureHistory history(bridge);
    QStringList names;
    for (const Project &project : store.projects()) {
        names << project.name;
    }
    const AISession understood = runBlocking(history.understand(text, names));
    QJsonObject report{{u"prompt"_s, text},
                       {u"result"_s, understood.result ? Wire::encode(*understood.result) : QJsonValue()},
                       {u"adjustments"_s, QJsonArray::fromStringList(understood.adjustments)},
                       {u"error"_s, understood.error ? QJsonValue(*understood.error) : QJsonValue()},
                       {u"applied"_s, false}};
    if (!understood.result) {
        if (json) {
            Cli::printJson(out, report);
        }
        //% "Morvane could not make sense of that. Try saying it another way."
        err << qtTrId("add.couldNotParse") << u'\n' << understood.error.value_or(QString()) << Qt::endl;
        return 1;
    }
    if (!json) {
        printUnderstood(out, understood, store.currency());
    }
    if (parser.isSet(dryRun) || understood.result->intent == AIIntent::Unknown) {
        if (json) {
            Cli::printJson(out, report);
        } else if (understood.result->intent != AIIntent::Unknown) {
            //% "Nothing was changed (--dry-run)."
            out << qtTrId("cli.add.dryRunDone") << Qt::endl;
        }
        return understood.result->intent == AIIntent::Unknown ? 1 : 0;
    }

    CaptureJournal journal(*settings);
    const AIApplyOutcome outcome =
        runBlocking(applyAIResult(store, *understood.result, journal.doneSteps(text)));
    journal.record(text, outcome);
    if (json) {
        report.insert(u"applied"_s, true);
        report.insert(u"outcome"_s, outcomeJson(outcome));
        Cli::printJson(out, report);
    } else {
        printOutcome(out, err, store, *understood.result, outcome);
    }
    return outcome.error || outcome.needsTaskClarification ? 1 : 0;
}
