#include "app/capturecommand.h"

#include "app/clisession.h"
#include "backend/runblocking.h"
#include "billing/money.h"
#include "capture/applyairesult.h"
#include "capture/capturehistory.h"
#include "capture/capturetext.h"
#include "sessions/claudebridge.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QSettings>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

// A sentence is a few lines at most; more is a pasted document, which the model would only guess at.
constexpr qsizetype maxSentenceLength = 4000;


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
        //% "Understood:"
        out << qtTrId("cli.add.understood") << u'\n' << CaptureText::understood(understood, store.currency()).join(u'\n')
            << u'\n';
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
        for (const QString &line : CaptureText::done(store, outcome)) {
            out << line << u'\n';
        }
        out.flush();
        if (outcome.needsTaskClarification) {
            //% "Which task? None of your tasks is called \"%1\", or several are. Say it as 'morvane tasks list' shows it."
            err << qtTrId("cli.add.clarify").arg(understood.result->taskTitle.value_or(u"?"_s)) << Qt::endl;
        }
        if (outcome.error) {
            err << CaptureText::stopped(outcome) << Qt::endl;
        }
    }
    return outcome.error || outcome.needsTaskClarification ? 1 : 0;
}
