#include "app/clisession.h"
#include "app/storecommands.h"
#include "backend/runblocking.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

QString roleText(TeamRole role)
{
    switch (role) {
    case TeamRole::Owner:
        //% "owner"
        return qtTrId("cli.teams.owner");
    case TeamRole::Editor:
        //% "editor"
        return qtTrId("cli.teams.editor");
    case TeamRole::Viewer:
        //% "viewer"
        return qtTrId("cli.teams.viewer");
    }
    return {};
}

QJsonObject teamJson(const AppStore &store, const Team &team)
{
    QJsonObject object = Wire::encode(team).toObject();
    QJsonArray members;
    for (const TeamMember &member : store.membersByTeam().value(team.id)) {
        members.append(Wire::encode(member));
    }
    object.insert(u"members"_s, members);
    const std::optional<TeamRole> role = store.roleInTeam(team.id);
    object.insert(u"my_role"_s, role ? QJsonValue(Wire::enumName(*role)) : QJsonValue());
    return object;
}

int listTeams(const AppStore &store, bool json, QTextStream &out)
{
    if (json) {
        QJsonArray rows;
        for (const Team &team : store.teams()) {
            rows.append(teamJson(store, team));
        }
        Cli::printJson(out, rows);
        return 0;
    }
    if (store.teams().isEmpty()) {
        //% "No teams. Create one with: morvane teams create <name>"
        out << qtTrId("cli.teams.none") << Qt::endl;
        return 0;
    }
    for (const Team &team : store.teams()) {
        out << team.name << u" ("_s << Cli::shortId(team.id) << u')';
        if (const std::optional<TeamRole> role = store.roleInTeam(team.id)) {
            //% "you: %1"
            out << u"  "_s << qtTrId("cli.teams.you").arg(roleText(*role));
        }
        out << u'\n';
        for (const TeamMember &member : store.membersByTeam().value(team.id)) {
            out << u"  "_s << member.email << u"  "_s << roleText(member.role);
            if (member.isPending()) {
                //% "invited"
                out << u"  ("_s << qtTrId("cli.teams.pending") << u')';
            }
            out << u'\n';
        }
        QStringList projects;
        for (const Project &project : store.projects()) {
            if (project.teamId == team.id) {
                projects << project.name;
            }
        }
        if (!projects.isEmpty()) {
            //% "Projects: %1"
            out << u"  "_s << qtTrId("cli.teams.projects").arg(projects.join(u", "_s)) << u'\n';
        }
    }
    out.flush();
    return 0;
}

int listInvitations(const AppStore &store, bool json, QTextStream &out)
{
    if (json) {
        QJsonArray rows;
        for (const TeamInvitation &invitation : store.invitations()) {
            rows.append(Wire::encode(invitation));
        }
        Cli::printJson(out, rows);
        return 0;
    }
    if (store.invitations().isEmpty()) {
        //% "No invitations wait for your answer."
        out << qtTrId("cli.teams.noInvitations") << Qt::endl;
        return 0;
    }
    for (const TeamInvitation &invitation : store.invitations()) {
        const QString from =
            invitation.invitedByName.value_or(QString()).isEmpty()
                ? invitation.invitedByEmail.value_or(QString())
                : *invitation.invitedByName + u" <"_s + invitation.invitedByEmail.value_or(QString()) + u'>';
        //% "%1 (%2): as %3, from %4"
        out << qtTrId("cli.teams.invitation")
                   .arg(invitation.teamName, Cli::shortId(invitation.teamId), roleText(invitation.role), from)
            << u'\n';
    }
    //% "Answer with: morvane teams accept <team> or morvane teams decline <team>"
    out << qtTrId("cli.teams.answerHint") << Qt::endl;
    return 0;
}

} // namespace

int runTeamsCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    //% "The role of the invited member: editor or viewer."
    const QCommandLineOption role(u"role"_s, qtTrId("cli.teams.option.role"), u"role"_s, u"editor"_s);
    parser.addOption(role);
    parser.addPositionalArgument(u"action"_s, qtTrId("cli.command.teams"));
    if (!Cli::parse(parser, arguments, err)) {
        return 2;
    }
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0);
    //% "Usage: morvane teams list | create <name> | invite <team> <e-mail> [--role editor|viewer] | invitations |
    // accept <team> | decline <team> | assign <project> <team>|none [--json]"
    const QString usageText = qtTrId("cli.teams.usage");
    const qsizetype count = positional.size();
    const bool known = (action == u"list" && count == 1) || (action == u"create" && count == 2) ||
                       (action == u"invite" && count == 3) || (action == u"assign" && count == 3) ||
                       (action == u"invitations" && count == 1) || (action == u"accept" && count == 2) ||
                       (action == u"decline" && count == 2);
    const std::optional<TeamRole> roleValue = Wire::enumFromName<TeamRole>(parser.value(role));
    if (!known || !roleValue || *roleValue == TeamRole::Owner) {
        return Cli::usage(err, usageText);
    }

    CliSession session;
    if (!session.open(err)) {
        return 1;
    }
    AppStore &store = session.store();
    const bool json = Cli::wantsJson(parser);

    if (action == u"list") {
        return listTeams(store, json, out);
    }
    if (action == u"invitations") {
        return listInvitations(store, json, out);
    }
    if (action == u"accept" || action == u"decline") {
        const std::optional<TeamInvitation> invitation = session.invitation(positional.at(1), err);
        if (!invitation) {
            return 1;
        }
        const bool accept = action == u"accept";
        if (!runBlocking(accept ? store.acceptInvitation(invitation->teamId)
                                : store.declineInvitation(invitation->teamId))) {
            return session.failed(err);
        }
        if (json) {
            Cli::printJson(out, QJsonObject{{u"team_id"_s, invitation->teamId},
                                            {u"status"_s, accept ? u"accepted"_s : u"declined"_s}});
        } else if (accept) {
            //% "You are now in team %1, as %2."
            out << qtTrId("cli.teams.accepted").arg(invitation->teamName, roleText(invitation->role)) << Qt::endl;
        } else {
            //% "You declined the invitation to %1."
            out << qtTrId("cli.teams.declined").arg(invitation->teamName) << Qt::endl;
        }
        return 0;
    }
    if (action == u"create") {
        const QString name = positional.at(1).trimmed();
        if (name.isEmpty()) {
            return Cli::usage(err, usageText);
        }
        const std::optional<Team> team = runBlocking(store.createTeam(name));
        if (!team) {
            return session.failed(err);
        }
        if (json) {
            Cli::printJson(out, teamJson(store, *team));
        } else {
            //% "Created team %1 (%2)."
            out << qtTrId("cli.teams.created").arg(team->name, Cli::shortId(team->id)) << Qt::endl;
        }
        return 0;
    }
    if (action == u"invite") {
        const std::optional<Team> team = session.team(positional.at(1), err);
        if (!team) {
            return 1;
        }
        const InviteOutcome outcome = runBlocking(store.inviteMember(team->id, positional.at(2), *roleValue));
        const bool ok =
            outcome.kind == InviteOutcome::Kind::Invited || outcome.kind == InviteOutcome::Kind::AlreadyMember;
        if (json) {
            static const char *const kinds[] = {"invited",   "already_member", "no_account",   "not_allowed",
                                                "team_full", "unavailable",    "rate_limited", "failed"};
            Cli::printJson(out, QJsonObject{{u"outcome"_s, QString::fromLatin1(kinds[int(outcome.kind)])},
                                            {u"email"_s, outcome.email},
                                            {u"user_id"_s, outcome.userId ? QJsonValue(*outcome.userId) : QJsonValue()},
                                            {u"message"_s, outcome.text()}});
        } else {
            (ok ? out : err) << outcome.text() << Qt::endl;
        }
        return ok ? 0 : 1;
    }
    // assign
    const std::optional<Project> project = session.project(positional.at(1), err);
    if (!project) {
        return 1;
    }
    std::optional<QString> teamId;
    std::optional<Team> team;
    if (positional.at(2) != u"none") {
        team = session.team(positional.at(2), err);
        if (!team) {
            return 1;
        }
        teamId = team->id;
    }
    if (!runBlocking(store.assignProjectToTeam(project->id, teamId))) {
        return session.failed(err);
    }
    if (json) {
        Cli::printJson(out, Wire::encode(*store.project(project->id)));
    } else if (team) {
        //% "%1 now belongs to team %2."
        out << qtTrId("cli.teams.assigned").arg(project->name, team->name) << Qt::endl;
    } else {
        //% "%1 no longer belongs to a team."
        out << qtTrId("cli.teams.unassigned").arg(project->name) << Qt::endl;
    }
    return 0;
}
