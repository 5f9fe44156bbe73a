#include "app/clisession.h"
#include "app/storecommands.h"
#include "backend/runblocking.h"
#include "billing/money.h"
#include "billing/moneyinput.h"
#include "model/isodate.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

QString localTime(const QString &instant, const QString &format)
{
    const std::optional<QDateTime> parsed = isoDate(instant);
    return parsed ? parsed->toLocalTime().toString(format) : instant;
}

// An instant as a person types it: with an offset, or in local time without one.
std::optional<QDateTime> typedInstant(const QString &text)
{
    const QDateTime local = QDateTime::fromString(text.trimmed(), Qt::ISODate);
    if (local.isValid()) {
        return local;
    }
    return isoDate(text.trimmed());
}

QString projectName(const AppStore &store, const QString &projectId)
{
    const std::optional<Project> project = store.project(projectId);
    return project ? project->name : Cli::shortId(projectId);
}

QJsonObject runningJson(AppStore &store, const TaskItem &task)
{
    return {{u"running"_s, true},
            {u"task_id"_s, task.id},
            {u"title"_s, task.title},
            {u"project_id"_s, task.projectId},
            {u"started_at"_s, task.startedAt.value_or(QString())},
            {u"elapsed_seconds"_s, store.timer().elapsedSeconds()},
            {u"total_seconds"_s, store.timer().elapsedSeconds() + task.timeSpentSeconds}};
}

void printEntry(QTextStream &out, const AppStore &store, const TimeEntry &entry)
{
    const std::optional<TaskItem> task = store.task(entry.taskId);
    out << Cli::shortId(entry.id) << u"  "_s << localTime(entry.startedAt, u"yyyy-MM-dd HH:mm"_s) << u"–"_s
        << localTime(entry.endedAt, u"HH:mm"_s) << u"  "_s
        << TimerStore::format(entry.durationSeconds).rightJustified(8) << u"  "_s
        << (task ? task->title : Cli::shortId(entry.taskId)) << u'\n';
}

} // namespace

int runTimerCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    parser.addPositionalArgument(u"action"_s, qtTrId("cli.command.timer"));
    if (!Cli::parse(parser, arguments, err)) {
        return 2;
    }
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0);
    const qsizetype count = positional.size();
    //% "Usage: morvane timer start <task> | stop [<task>] | toggle | status [--json]"
    const QString usageText = qtTrId("cli.timer.usage");
    if (!((action == u"start" && count == 2) || (action == u"stop" && count <= 2) ||
          ((action == u"status" || action == u"toggle") && count == 1))) {
        return Cli::usage(err, usageText);
    }
    CliSession session;
    if (!session.open(err)) {
        return 1;
    }
    AppStore &store = session.store();
    const bool json = Cli::wantsJson(parser);

    if (action == u"status") {
        const std::optional<TaskItem> running = store.runningTask();
        if (json) {
            Cli::printJson(out, running ? runningJson(store, *running) : QJsonObject{{u"running"_s, false}});
        } else if (running) {
            //% "%1 (%2): %3 running, %4 in all"
            out << qtTrId("cli.timer.running")
                       .arg(running->title, projectName(store, running->projectId), store.timer().elapsedString(),
                            store.timer().elapsedString(running->timeSpentSeconds))
                << Qt::endl;
        } else {
            //% "No timer runs."
            out << qtTrId("cli.timer.idle") << Qt::endl;
        }
        return 0;
    }

    std::optional<TaskItem> task;
    bool starting = action == u"start";
    if (action == u"toggle") {
        // What a desktop shortcut runs: stop what runs, else go on with the task worked on last
        // (the store holds the entries newest first).
        task = store.runningTask();
        for (qsizetype i = 0; !task && i < store.recentEntries().size(); ++i) {
            task = store.task(store.recentEntries().at(i).taskId);
            starting = true;
        }
        if (!task) {
            //% "No task has time yet, so there is none to go on with. Start one with: morvane timer start <task>"
            err << qtTrId("cli.timer.nothingToResume") << Qt::endl;
            return 1;
        }
    } else if (count == 2) {
        task = session.task(positional.at(1), err);
        if (!task) {
            return 1;
        }
    } else {
        task = store.runningTask();
        if (!task) {
            out << qtTrId("cli.timer.idle") << Qt::endl;
            return 0;
        }
    }
    if (starting) {
        if (!runBlocking(store.startTimer(task->id))) {
            return session.failed(err);
        }
        const std::optional<TaskItem> now = store.task(task->id);
        if (json) {
            Cli::printJson(out, runningJson(store, *now));
        } else {
            //% "Timer started on %1."
            out << qtTrId("cli.timer.started").arg(task->title) << Qt::endl;
        }
        return 0;
    }
    // stop
    const qint64 before = task->timeSpentSeconds;
    if (!runBlocking(store.stopTimer(task->id))) {
        return session.failed(err);
    }
    const std::optional<TaskItem> stopped = store.task(task->id);
    const qint64 total = stopped ? stopped->timeSpentSeconds : before;
    if (json) {
        Cli::printJson(out, QJsonObject{{u"task_id"_s, task->id},
                                        {u"logged_seconds"_s, qMax<qint64>(0, total - before)},
                                        {u"total_seconds"_s, total}});
    } else {
        //% "Stopped %1: %2 logged, %3 in all."
        out << qtTrId("cli.timer.stopped")
                   .arg(task->title, TimerStore::format(qMax<qint64>(0, total - before)), TimerStore::format(total))
            << Qt::endl;
    }
    return 0;
}

int runLogCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    parser.addPositionalArgument(u"task"_s, qtTrId("cli.command.log"));
    if (!Cli::parse(parser, arguments, err)) {
        return 2;
    }
    const QStringList positional = parser.positionalArguments();
    const std::optional<double> minutes =
        positional.size() == 2 ? MoneyInput::parseDecimal(positional.at(1)) : std::nullopt;
    if (positional.size() != 2 || !minutes || *minutes <= 0) {
        //% "Usage: morvane log <task> <minutes> (> 0; 1.5 = 1:30)"
        return Cli::usage(err, qtTrId("cli.log.usage"));
    }
    CliSession session;
    if (!session.open(err)) {
        return 1;
    }
    const std::optional<TaskItem> task = session.task(positional.at(0), err);
    if (!task) {
        return 1;
    }
    if (!runBlocking(session.store().logManualMinutes(task->id, *minutes))) {
        return session.failed(err);
    }
    const qint64 total = session.store().task(task->id)->timeSpentSeconds;
    if (Cli::wantsJson(parser)) {
        Cli::printJson(out, QJsonObject{{u"task_id"_s, task->id},
                                        {u"logged_seconds"_s, qRound64(*minutes * 60)},
                                        {u"total_seconds"_s, total}});
    } else {
        //% "Logged %1 on %2, %3 in all."
        out << qtTrId("cli.log.logged")
                   .arg(TimerStore::format(qRound64(*minutes * 60)), task->title, TimerStore::format(total))
            << Qt::endl;
    }
    return 0;
}

int runEntriesCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    //% "Only the entries of this task, older ones included."
    const QCommandLineOption taskOption(u"task"_s, qtTrId("cli.entries.option.task"), u"task"_s);
    //% "The new start (ISO 8601, local time without an offset)."
    const QCommandLineOption start(u"start"_s, qtTrId("cli.entries.option.start"), u"instant"_s);
    //% "The new end (ISO 8601, local time without an offset)."
    const QCommandLineOption end(u"end"_s, qtTrId("cli.entries.option.end"), u"instant"_s);
    //% "The new length in minutes."
    const QCommandLineOption minutes(u"minutes"_s, qtTrId("cli.entries.option.minutes"), u"minutes"_s);
    parser.addOptions({taskOption, start, end, minutes});
    parser.addPositionalArgument(u"action"_s, qtTrId("cli.command.entries"));
    if (!Cli::parse(parser, arguments, err)) {
        return 2;
    }
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0);
    //% "Usage: morvane entries [--task T] [--json] | entries edit <entry> [--start T] [--end T] [--minutes N] | entries
    //rm <entry>"
    const QString usageText = qtTrId("cli.entries.usage");
    const bool changes = parser.isSet(start) || parser.isSet(end) || parser.isSet(minutes);
    if (!(positional.isEmpty() || (action == u"edit" && positional.size() == 2 && changes) ||
          (action == u"rm" && positional.size() == 2))) {
        return Cli::usage(err, usageText);
    }
    const std::optional<QDateTime> newStart = parser.isSet(start) ? typedInstant(parser.value(start)) : std::nullopt;
    const std::optional<QDateTime> newEnd = parser.isSet(end) ? typedInstant(parser.value(end)) : std::nullopt;
    const std::optional<double> newMinutes =
        parser.isSet(minutes) ? MoneyInput::parseDecimal(parser.value(minutes)) : std::nullopt;
    if ((parser.isSet(start) && !newStart) || (parser.isSet(end) && !newEnd) ||
        (parser.isSet(minutes) && (!newMinutes || *newMinutes < 0))) {
        return Cli::usage(err, usageText);
    }

    CliSession session;
    if (!session.open(err)) {
        return 1;
    }
    AppStore &store = session.store();
    const bool json = Cli::wantsJson(parser);

    if (positional.isEmpty()) {
        QList<TimeEntry> entries = store.recentEntries();
        if (parser.isSet(taskOption)) {
            const std::optional<TaskItem> task = session.task(parser.value(taskOption), err);
            if (!task) {
                return 1;
            }
            if (!runBlocking(store.fetchEntries(task->id))) {
                return session.failed(err);
            }
            entries = store.entriesByTask().value(task->id);
        }
        if (json) {
            QJsonArray rows;
            for (const TimeEntry &entry : std::as_const(entries)) {
                rows.append(Wire::encode(entry));
            }
            Cli::printJson(out, rows);
            return 0;
        }
        if (entries.isEmpty()) {
            //% "No time entries."
            out << qtTrId("cli.entries.none") << Qt::endl;
        }
        qint64 total = 0;
        for (const TimeEntry &entry : std::as_const(entries)) {
            printEntry(out, store, entry);
            total += entry.durationSeconds;
        }
        if (!entries.isEmpty()) {
            //% "In all: %1"
            out << qtTrId("cli.entries.total").arg(formatHM(total)) << Qt::endl;
        }
        return 0;
    }

    // An entry by id or the start of it, among those the store holds.
    QList<TimeEntry> known = store.recentEntries();
    for (const QList<TimeEntry> &list : store.entriesByTask()) {
        known += list;
    }
    const QString wanted = positional.at(1);
    QList<TimeEntry> matches;
    for (const TimeEntry &entry : std::as_const(known)) {
        if ((entry.id == wanted || (wanted.size() >= 4 && entry.id.startsWith(wanted))) &&
            std::none_of(matches.cbegin(), matches.cend(), [&](const TimeEntry &m) { return m.id == entry.id; })) {
            matches.append(entry);
        }
    }
    if (matches.size() != 1) {
        //% "No single time entry matches \"%1\". List them with: morvane entries --task <task>"
        err << qtTrId("cli.entries.noMatch").arg(wanted) << Qt::endl;
        return 1;
    }
    const TimeEntry entry = matches.first();
    if (action == u"rm") {
        if (!runBlocking(store.deleteEntry(entry.id))) {
            return session.failed(err);
        }
        if (json) {
            Cli::printJson(out, Wire::encode(entry));
        } else {
            //% "Deleted the entry of %1."
            out << qtTrId("cli.entries.deleted").arg(TimerStore::format(entry.durationSeconds)) << Qt::endl;
        }
        return 0;
    }
    const QDateTime from = newStart.value_or(isoDate(entry.startedAt).value_or(QDateTime()));
    QDateTime to = newEnd ? *newEnd : isoDate(entry.endedAt).value_or(QDateTime());
    if (newMinutes && !newEnd) {
        to = from.addSecs(qRound64(*newMinutes * 60));
    }
    const qint64 duration = newMinutes ? qRound64(*newMinutes * 60) : from.secsTo(to);
    if (!from.isValid() || !to.isValid() || to < from || duration < 0) {
        //% "An entry must end after it starts."
        err << qtTrId("cli.entries.badRange") << Qt::endl;
        return 2;
    }
    const TimeEntryPatch patch{isoString(from), isoString(to), duration};
    if (!runBlocking(store.updateEntry(entry.id, patch))) {
        return session.failed(err);
    }
    const std::optional<TimeEntry> saved = store.entry(entry.id);
    if (json) {
        Cli::printJson(out, Wire::encode(saved.value_or(entry)));
    } else {
        printEntry(out, store, saved.value_or(entry));
    }
    return 0;
}
