#include "app/clisession.h"
#include "app/storecommands.h"
#include "backend/runblocking.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

QString statusText(ProjectStatus status)
{
    switch (status) {
    case ProjectStatus::Active:
        //% "active"
        return qtTrId("cli.projects.active");
    case ProjectStatus::Archived:
        //% "archived"
        return qtTrId("cli.projects.archived");
    case ProjectStatus::Completed:
        //% "completed"
        return qtTrId("cli.projects.completed");
    }
    return {};
}

int listProjects(CliSession &session, bool json, QTextStream &out)
{
    AppStore &store = session.store();
    if (json) {
        QJsonArray rows;
        for (const Project &project : store.projects()) {
            rows.append(Wire::encode(project));
        }
        Cli::printJson(out, rows);
        return 0;
    }
    if (store.projects().isEmpty()) {
        //% "No projects yet. Add one with: morvane projects add <name>"
        out << qtTrId("cli.projects.none") << Qt::endl;
        return 0;
    }
    QHash<QString, QString> teamNames;
    for (const Team &team : store.teams()) {
        teamNames.insert(team.id, team.name);
    }
    qsizetype width = 0;
    for (const Project &project : store.projects()) {
        width = qMax(width, project.name.size());
    }
    for (const Project &project : store.projects()) {
        const QList<TaskItem> tasks = store.tasks(project.id);
        qint64 tracked = 0;
        for (const TaskItem &task : tasks) {
            tracked += task.timeSpentSeconds;
        }
        //% "tasks: %1"
        out << Cli::shortId(project.id) << u"  "_s << project.name.leftJustified(width) << u"  "_s
            << statusText(project.status).leftJustified(9) << u"  "_s
            << qtTrId("cli.projects.taskCount").arg(tasks.size()).leftJustified(10) << u"  "_s
            << Cli::hoursMinutes(tracked);
        if (project.teamId) {
            //% "team %1"
            out << u"  "_s << qtTrId("cli.projects.team").arg(teamNames.value(*project.teamId, Cli::shortId(*project.teamId)));
        }
        out << u'\n';
    }
    out.flush();
    return 0;
}

} // namespace

int runProjectsCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    //% "A description of the project."
    const QCommandLineOption description(u"description"_s, qtTrId("cli.projects.option.description"), u"text"_s);
    //% "The team the new project belongs to."
    const QCommandLineOption team(u"team"_s, qtTrId("cli.projects.option.team"), u"team"_s);
    //% "Archive every project of yours without work for this many days."
    const QCommandLineOption idle(u"idle"_s, qtTrId("cli.projects.option.idle"), u"days"_s);
    parser.addOptions({description, team, idle});
    parser.addPositionalArgument(u"action"_s, qtTrId("cli.command.projects"));
    if (!Cli::parse(parser, arguments, err)) {
        return 2;
    }
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0);
    //% "Usage: morvane projects list | add <name> [--description TEXT] [--team TEAM] | rename <project> <name> | archive <project> | archive --idle DAYS | rm <project> [--json]"
    const QString usageText = qtTrId("cli.projects.usage");
    const bool known = (action == u"list" && positional.size() == 1) || (action == u"add" && positional.size() == 2) ||
                       (action == u"rename" && positional.size() == 3) ||
                       (action == u"archive" && (positional.size() == 2) != parser.isSet(idle)) ||
                       (action == u"rm" && positional.size() == 2);
    if (!known) {
        return Cli::usage(err, usageText);
    }
    bool idleDaysValid = true;
    const int idleDays = parser.value(idle).toInt(&idleDaysValid);
    if (parser.isSet(idle) && (!idleDaysValid || idleDays < 1)) {
        return Cli::usage(err, usageText);
    }

    CliSession session;
    if (!session.open(err)) {
        return 1;
    }
    AppStore &store = session.store();
    const bool json = Cli::wantsJson(parser);
    const auto printProject = [&](const Project &project, const QString &text) {
        if (json) {
            Cli::printJson(out, Wire::encode(project));
        } else {
            out << text << Qt::endl;
        }
        return 0;
    };

    if (action == u"list") {
        return listProjects(session, json, out);
    }
    if (action == u"add") {
        ProjectInsert draft;
        draft.name = positional.at(1).trimmed();
        if (parser.isSet(description)) {
            draft.description = parser.value(description);
        }
        if (parser.isSet(team)) {
            const std::optional<Team> found = session.team(parser.value(team), err);
            if (!found) {
                return 1;
            }
            draft.teamId = found->id;
        }
        if (draft.name.isEmpty()) {
            return Cli::usage(err, usageText);
        }
        const std::optional<Project> created = runBlocking(store.createProject(draft));
        if (!created) {
            return session.failed(err);
        }
        //% "Added project %1 (%2)."
        return printProject(*created, qtTrId("cli.projects.added").arg(created->name, Cli::shortId(created->id)));
    }
    if (action == u"archive" && parser.isSet(idle)) {
        const int archived = runBlocking(store.archiveIdleProjects(idleDays));
        if (archived < 0) {
            return session.failed(err);
        }
        if (json) {
            Cli::printJson(out, QJsonObject{{u"archived"_s, archived}});
        } else {
            //% "Idle projects archived: %1."
            out << qtTrId("cli.projects.archivedIdle").arg(archived) << Qt::endl;
        }
        return 0;
    }

    const std::optional<Project> project = session.project(positional.at(1), err);
    if (!project) {
        return 1;
    }
    if (action == u"rename") {
        // The form's patch clears an absent description or rate, so the current ones go along.
        ProjectPatch patch;
        patch.name = positional.at(2).trimmed();
        patch.description = project->description;
        patch.hourlyRate = project->hourlyRate;
        if (patch.name->isEmpty()) {
            return Cli::usage(err, usageText);
        }
        if (!runBlocking(store.updateProject(project->id, patch))) {
            return session.failed(err);
        }
        //% "Renamed %1 to %2."
        return printProject(*store.project(project->id),
                            qtTrId("cli.projects.renamed").arg(project->name, *patch.name));
    }
    if (action == u"archive") {
        if (!runBlocking(store.setProjectStatus(project->id, ProjectStatus::Archived))) {
            return session.failed(err);
        }
        //% "Archived %1."
        return printProject(*store.project(project->id), qtTrId("cli.projects.archivedOne").arg(project->name));
    }
    // rm
    if (!runBlocking(store.deleteProject(project->id))) {
        return session.failed(err);
    }
    //% "Deleted %1 and its tasks."
    return printProject(*project, qtTrId("cli.projects.deleted").arg(project->name));
}
