#include "app/clisession.h"
#include "app/storecommands.h"
#include "backend/runblocking.h"

#include <QDate>
#include <QJsonArray>
#include <QJsonObject>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

QString mark(const TaskItem &task)
{
    if (task.startedAt) {
        return u"[>]"_s;
    }
    switch (task.status) {
    case TaskStatus::NotStarted:
        return u"[ ]"_s;
    case TaskStatus::InProgress:
        return u"[~]"_s;
    case TaskStatus::Completed:
        return u"[x]"_s;
    }
    return {};
}

QString priorityText(TaskPriority priority)
{
    switch (priority) {
    case TaskPriority::Low:
        //% "low"
        return qtTrId("cli.tasks.low");
    case TaskPriority::Medium:
        //% "medium"
        return qtTrId("cli.tasks.medium");
    case TaskPriority::High:
        //% "high"
        return qtTrId("cli.tasks.high");
    }
    return {};
}

void printTask(QTextStream &out, const TaskItem &task, qsizetype titleWidth)
{
    out << u"  "_s << mark(task) << u' ' << Cli::shortId(task.id) << u"  "_s << task.title.leftJustified(titleWidth)
        << u"  "_s << priorityText(task.priority);
    if (task.dueDate) {
        //% "due %1"
        out << u" · "_s << qtTrId("cli.tasks.due").arg(task.dueDate->left(10));
    }
    out << u" · "_s << Cli::hoursMinutes(task.timeSpentSeconds);
    if (task.startedAt) {
        //% "timer running"
        out << u" · "_s << qtTrId("cli.tasks.running");
    }
    out << u'\n';
}

// A day as the user types it; the column keeps the day only.
std::optional<QString> dueDay(const QString &text, bool &valid)
{
    valid = true;
    if (text.trimmed().isEmpty()) {
        return std::nullopt;
    }
    const QDate day = QDate::fromString(text.trimmed(), Qt::ISODate);
    valid = day.isValid();
    return day.toString(Qt::ISODate);
}

template <typename E>
QString names()
{
    QStringList list;
    for (const std::string_view name : wireNames(E{})) {
        list << QString::fromLatin1(name.data(), qsizetype(name.size()));
    }
    return list.join(u", "_s);
}

} // namespace

int runTasksCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    //% "Which tasks to list: %1."
    const QCommandLineOption filter(u"filter"_s, qtTrId("cli.tasks.option.filter").arg(names<TaskFilter>()),
                                    u"filter"_s, u"all"_s);
    //% "How to order the list: %1."
    const QCommandLineOption sort(u"sort"_s, qtTrId("cli.tasks.option.sort").arg(names<TaskSort>()), u"sort"_s,
                                  u"manual"_s);
    //% "The task's new title."
    const QCommandLineOption title(u"title"_s, qtTrId("cli.tasks.option.title"), u"text"_s);
    //% "The task's description; empty clears it."
    const QCommandLineOption description(u"description"_s, qtTrId("cli.tasks.option.description"), u"text"_s);
    //% "The day the task is due (YYYY-MM-DD); empty clears it."
    const QCommandLineOption due(u"due"_s, qtTrId("cli.tasks.option.due"), u"day"_s);
    parser.addOptions({filter, sort, title, description, due});
    parser.addPositionalArgument(u"action"_s, qtTrId("cli.command.tasks"));
    if (!Cli::parse(parser, arguments, err)) {
        return 2;
    }
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0);
    //% "Usage: morvane tasks list [<project>] [--filter F] [--sort S] | add <project> <title> [--description TEXT] [--due DAY] | edit <task> [--title T] [--description TEXT] [--due DAY] | move <task> <project> | status <task> not_started|in_progress|completed | rm <task> [--json]"
    const QString usageText = qtTrId("cli.tasks.usage");
    const qsizetype count = positional.size();
    const bool changesSomething = parser.isSet(title) || parser.isSet(description) || parser.isSet(due);
    const bool known = (action == u"list" && count <= 2) || (action == u"add" && count == 3) ||
                       (action == u"edit" && count == 2 && changesSomething) || (action == u"move" && count == 3) ||
                       (action == u"status" && count == 3) || (action == u"rm" && count == 2);
    if (!known) {
        return Cli::usage(err, usageText);
    }
    const std::optional<TaskFilter> filterValue = Wire::enumFromName<TaskFilter>(parser.value(filter));
    const std::optional<TaskSort> sortValue = Wire::enumFromName<TaskSort>(parser.value(sort));
    if (!filterValue || !sortValue) {
        //% "Unknown filter or sort. Filters: %1. Sorts: %2."
        err << qtTrId("cli.tasks.badOrder").arg(names<TaskFilter>(), names<TaskSort>()) << Qt::endl;
        return 2;
    }
    std::optional<TaskStatus> status;
    if (action == u"status") {
        status = Wire::enumFromName<TaskStatus>(positional.at(2));
        if (!status) {
            //% "Unknown status %1. Statuses: %2."
            err << qtTrId("cli.tasks.badStatus").arg(positional.at(2), names<TaskStatus>()) << Qt::endl;
            return 2;
        }
    }
    bool dueValid = true;
    const std::optional<QString> dueValue = dueDay(parser.value(due), dueValid);
    if (!dueValid) {
        //% "Not a day: %1. Write it as YYYY-MM-DD."
        err << qtTrId("cli.tasks.badDue").arg(parser.value(due)) << Qt::endl;
        return 2;
    }

    CliSession session;
    if (!session.open(err)) {
        return 1;
    }
    AppStore &store = session.store();
    const bool json = Cli::wantsJson(parser);
    const auto printResult = [&](const QString &taskId, const QString &text) {
        if (json) {
            const std::optional<TaskItem> task = store.task(taskId);
            Cli::printJson(out, task ? Wire::encode(*task) : QJsonValue(QJsonObject{{u"id"_s, taskId}}));
        } else {
            out << text << Qt::endl;
        }
        return 0;
    };

    if (action == u"list") {
        store.setTaskFilter(*filterValue);
        store.setTaskSort(*sortValue);
        QList<Project> projects;
        if (count == 2) {
            const std::optional<Project> project = session.project(positional.at(1), err);
            if (!project) {
                return 1;
            }
            projects.append(*project);
        } else {
            projects = store.projects();
        }
        QJsonArray rows;
        for (const Project &project : std::as_const(projects)) {
            const QList<TaskItem> tasks = store.filteredSortedTasks(project.id);
            if (json) {
                for (const TaskItem &task : tasks) {
                    rows.append(Wire::encode(task));
                }
                continue;
            }
            if (tasks.isEmpty() && count != 2) {
                continue;
            }
            qsizetype width = 0;
            for (const TaskItem &task : tasks) {
                width = qMax(width, task.title.size());
            }
            out << project.name << u" ("_s << Cli::shortId(project.id) << u")\n"_s;
            if (tasks.isEmpty()) {
                //% "  No tasks to show."
                out << qtTrId("cli.tasks.none") << u'\n';
            }
            for (const TaskItem &task : tasks) {
                printTask(out, task, width);
            }
        }
        if (json) {
            Cli::printJson(out, rows);
        }
        out.flush();
        return 0;
    }
    if (action == u"add") {
        const std::optional<Project> project = session.project(positional.at(1), err);
        if (!project) {
            return 1;
        }
        TaskInsert draft;
        draft.projectId = project->id;
        draft.title = positional.at(2).trimmed();
        if (draft.title.isEmpty()) {
            return Cli::usage(err, usageText);
        }
        if (!parser.value(description).isEmpty()) {
            draft.description = parser.value(description);
        }
        draft.dueDate = dueValue;
        const std::optional<TaskItem> created = runBlocking(store.createTask(draft));
        if (!created) {
            return session.failed(err);
        }
        //% "Added task %1 (%2) to %3."
        return printResult(created->id,
                           qtTrId("cli.tasks.added").arg(created->title, Cli::shortId(created->id), project->name));
    }

    const std::optional<TaskItem> task = session.task(positional.at(1), err);
    if (!task) {
        return 1;
    }
    if (action == u"edit") {
        // The editor's patch clears what it leaves out, so unchanged fields go along as they are.
        TaskPatch patch;
        if (parser.isSet(title) && !parser.value(title).trimmed().isEmpty()) {
            patch.title = parser.value(title).trimmed();
        }
        patch.description = parser.isSet(description)
                                ? (parser.value(description).isEmpty() ? std::nullopt
                                                                       : std::optional(parser.value(description)))
                                : task->description;
        patch.dueDate = parser.isSet(due) ? dueValue : task->dueDate;
        if (!runBlocking(store.updateTask(task->id, patch))) {
            return session.failed(err);
        }
        //% "Saved %1."
        return printResult(task->id, qtTrId("cli.tasks.saved").arg(patch.title.value_or(task->title)));
    }
    if (action == u"move") {
        const std::optional<Project> project = session.project(positional.at(2), err);
        if (!project) {
            return 1;
        }
        if (!runBlocking(store.moveTask(task->id, project->id))) {
            return session.failed(err);
        }
        //% "Moved %1 to %2."
        return printResult(task->id, qtTrId("cli.tasks.moved").arg(task->title, project->name));
    }
    if (action == u"status") {
        if (!runBlocking(store.setTaskStatus(task->id, *status))) {
            return session.failed(err);
        }
        //% "%1 is now %2."
        return printResult(task->id, qtTrId("cli.tasks.statusSet").arg(task->title, Wire::enumName(*status)));
    }
    // rm
    if (!runBlocking(store.deleteTask(task->id))) {
        return session.failed(err);
    }
    if (json) {
        Cli::printJson(out, Wire::encode(*task));
        return 0;
    }
    //% "Deleted %1."
    out << qtTrId("cli.tasks.deleted").arg(task->title) << Qt::endl;
    return 0;
}
