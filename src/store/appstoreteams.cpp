#include "appstore.h"

#include "appstore_p.h"
#include "store/storelog.h"
#include "store/storetext.h"

// Teams, their members and invitations.

using namespace Qt::StringLiterals;
using namespace StoreDetail;

QCoro::Task<bool> AppStore::loadTeams()
{
    std::optional<Session> session = co_await openSession("Load teams failed: ");
    if (!session) {
        co_return false;
    }
    const Supabase client = m_auth.client();
    try {
        const QueryItems teamQuery{{u"select"_s, u"*"_s}, {u"order"_s, u"created_at.desc"_s}};
        const QueryItems memberQuery{{u"select"_s, u"*"_s}};
        const auto teamRequest = [&](const QString &token) {
            return client.select<Team>(u"teams"_s, token, teamQuery);
        };
        const auto memberRequest = [&](const QString &token) {
            return client.select<TeamMember>(u"team_members"_s, token, memberQuery);
        };
        QCoro::Task<QList<Team>> teamRead = authorized(*session, teamRequest);
        QCoro::Task<QList<TeamMember>> memberRead = authorized(*session, memberRequest);
        // Both reads are awaited even when the first fails: a read left running would outlive the
        // client it was started on.
        std::exception_ptr teamFailure;
        QList<Team> teams;
        try {
            teams = co_await teamRead;
        } catch (...) {
            teamFailure = std::current_exception();
        }
        const QList<TeamMember> members = co_await memberRead;
        if (teamFailure) {
            std::rethrow_exception(teamFailure);
        }

        // A backend that shows a member only the teams they own still lists their memberships:
        // those teams are read by id.
        QSet<QString> owned;
        QSet<QString> known;
        for (const Team &team : std::as_const(teams)) {
            known.insert(team.id);
            if (team.ownerId == m_currentUserId) {
                owned.insert(team.id);
            }
        }
        QStringList memberOf;
        for (const TeamMember &member : members) {
            if (member.userId == m_currentUserId && !member.isPending() && !owned.contains(member.teamId) &&
                !memberOf.contains(member.teamId)) {
                memberOf.append(member.teamId);
            }
        }
        if (!memberOf.isEmpty()) {
            const QueryItems byId{{u"select"_s, u"*"_s}, {u"id"_s, inList(memberOf)}};
            const auto extraRequest = [&](const QString &token) {
                return client.select<Team>(u"teams"_s, token, byId);
            };
            const QList<Team> extra = co_await authorized(*session, extraRequest);
            for (const Team &team : extra) {
                if (!known.contains(team.id)) {
                    known.insert(team.id);
                    teams.append(team);
                }
            }
            std::stable_sort(teams.begin(), teams.end(), [](const Team &a, const Team &b) {
                return instantKey(a.createdAt) > instantKey(b.createdAt);
            });
        }

        QList<TeamInvitation> invitations;
        try {
            const auto invitationsRequest = [&](const QString &token) {
                return client.callRPCReturning<QList<TeamInvitation>>(u"my_team_invitations"_s, token,
                                                                      JSONValue(JSONValue::Object{}));
            };
            invitations = co_await authorized(*session, invitationsRequest);
        } catch (const SupabaseError &error) {
            // A backend without invitations to answer has none waiting.
            if (error.errorCode() != u"PGRST202") {
                throw;
            }
        }

        QHash<QString, QList<TeamMember>> byTeam;
        for (const TeamMember &member : members) {
            // Our own open invitation is not a team we are in; it shows among the invitations.
            if (member.userId == m_currentUserId && member.isPending()) {
                continue;
            }
            byTeam[member.teamId].append(member);
        }
        for (QList<TeamMember> &list : byTeam) {
            sortMembers(list);
        }
        if (!isCurrent(*session)) {
            co_return false;
        }
        setTeams(std::move(teams), std::move(byTeam));
        setInvitations(std::move(invitations));
        co_return true;
    } catch (const MorvaneError &error) {
        failed("Load teams failed: ", error.message(), StoreText::teamsNotLoaded());
        co_return false;
    }
}

QCoro::Task<> AppStore::reloadMembers(Session session, QString teamId)
{
    try {
        const QueryItems query{{u"select"_s, u"*"_s}, {u"team_id"_s, u"eq."_s + teamId}};
        const auto membersRequest = [&, client = m_auth.client()](const QString &token) {
            return client.select<TeamMember>(u"team_members"_s, token, query);
        };
        QList<TeamMember> members = co_await authorized(session, membersRequest);
        if (!isCurrent(session)) {
            co_return;
        }
        sortMembers(members);
        QHash<QString, QList<TeamMember>> byTeam = m_membersByTeam;
        byTeam.insert(teamId, members);
        setTeams(m_teams, std::move(byTeam));
    } catch (const MorvaneError &error) {
        // The write before this succeeded; the next refresh brings the members.
        qCWarning(lcStore).noquote() << u"Load team members failed: "_s + error.message();
    }
}

QCoro::Task<std::optional<Team>> AppStore::createTeam(QString name)
{
    std::optional<Session> session = co_await openSession("Create team failed: ");
    if (!session) {
        co_return std::nullopt;
    }
    std::optional<Team> created;
    try {
        const TeamInsert draft{m_currentUserId, name.trimmed()};
        const auto rowsRequest = [&, client = m_auth.client()](const QString &token) {
            return client.insert<Team>(u"teams"_s, token, draft);
        };
        const QList<Team> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return std::nullopt;
        }
        if (rows.isEmpty()) {
            failed("Create team failed: ", u"no row came back"_s, StoreText::teamNotCreated());
            co_return std::nullopt;
        }
        created = rows.first();
    } catch (const MorvaneError &error) {
        failed("Create team failed: ", error.message(), StoreText::teamNotCreated());
        co_return std::nullopt;
    }
    QList<Team> teams = m_teams;
    teams.prepend(*created);
    setTeams(std::move(teams), m_membersByTeam);
    // The backend made the creator the first member; the list shows that row.
    co_await reloadMembers(*session, created->id);
    co_return created;
}

QCoro::Task<bool> AppStore::acceptInvitation(QString teamId)
{
    return answerInvitation(std::move(teamId), true);
}

QCoro::Task<bool> AppStore::declineInvitation(QString teamId)
{
    return answerInvitation(std::move(teamId), false);
}

QCoro::Task<bool> AppStore::answerInvitation(QString teamId, bool accept)
{
    const char *prefix = accept ? "Accept invitation failed: " : "Decline invitation failed: ";
    std::optional<Session> session = co_await openSession(prefix);
    if (!session) {
        co_return false;
    }
    try {
        const TeamInvitationArgs args{teamId};
        const auto answerRequest = [&, client = m_auth.client()](const QString &token) {
            return client.callRPC(accept ? u"accept_team_invitation"_s : u"decline_team_invitation"_s, token, args);
        };
        co_await authorized(*session, answerRequest);
    } catch (const MorvaneError &error) {
        failed(prefix, error.message(), StoreText::invitationNotAnswered());
        co_return false;
    }
    if (!isCurrent(*session)) {
        co_return false;
    }
    // A new team brings its members, projects, tasks and time: everything is read again.
    if (accept) {
        co_return co_await refreshAll();
    }
    QList<TeamInvitation> open = m_invitations;
    open.removeIf([&](const TeamInvitation &invitation) { return invitation.teamId == teamId; });
    setInvitations(std::move(open));
    co_return true;
}

QCoro::Task<InviteOutcome> AppStore::inviteMember(QString teamId, QString email, TeamRole role)
{
    const QString address = email.trimmed();
    std::optional<Session> session = co_await openSession("invite_team_member_by_email failed: ");
    if (!session) {
        co_return InviteOutcome{InviteOutcome::Kind::Failed, address, std::nullopt};
    }
    InviteOutcome outcome;
    try {
        const InviteByEmailArgs args{teamId, address, role};
        const auto resultRequest = [&, client = m_auth.client()](const QString &token) {
            return client.callRPCReturning<InviteByEmailResult>(u"invite_team_member_by_email"_s, token, args);
        };
        const InviteByEmailResult result = co_await authorized(*session, resultRequest);
        outcome = InviteOutcome::fromStatus(result.status, address);
        outcome.userId = result.userId;
        if (outcome.kind == InviteOutcome::Kind::Failed) {
            qCWarning(lcStore).noquote() << u"invite_team_member_by_email failed: unexpected status "_s + result.status;
        }
    } catch (const SupabaseError &error) {
        outcome = InviteOutcome::fromError(error.errorCode(), error.body(), address);
        if (outcome.kind == InviteOutcome::Kind::Failed || outcome.kind == InviteOutcome::Kind::Unavailable) {
            qCWarning(lcStore).noquote() << u"invite_team_member_by_email failed: "_s + error.message();
        }
    } catch (const MorvaneError &error) {
        qCWarning(lcStore).noquote() << u"invite_team_member_by_email failed: "_s + error.message();
        outcome = InviteOutcome{InviteOutcome::Kind::Failed, address, std::nullopt};
    }
    if (outcome.kind == InviteOutcome::Kind::Invited) {
        co_await reloadMembers(*session, teamId);
    }
    co_return outcome;
}

QCoro::Task<bool> AppStore::setMemberRole(QString teamId, QString userId, TeamRole role)
{
    co_return co_await writeMember(teamId, userId, role);
}

QCoro::Task<bool> AppStore::removeMember(QString teamId, QString userId)
{
    co_return co_await writeMember(teamId, userId, std::nullopt);
}

QCoro::Task<bool> AppStore::writeMember(QString teamId, QString userId, std::optional<TeamRole> role)
{
    const char *const logPrefix = role ? "Change member role failed: " : "Remove member failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    try {
        const QueryItems query{{u"team_id"_s, u"eq."_s + teamId}, {u"user_id"_s, u"eq."_s + userId}};
        const auto rowsRequest = [&, client = m_auth.client()](const QString &token) {
            return role ? client.update<TeamMember>(u"team_members"_s, token, query, TeamMemberRolePatch{*role})
                        : deleteReturning<TeamMember>(client, u"team_members"_s, token, query);
        };
        if ((co_await authorized(*session, rowsRequest)).isEmpty()) {
            failed(logPrefix, u"no row matched"_s, StoreText::memberNotChanged());
            co_return false;
        }
    } catch (const MorvaneError &error) {
        failed(logPrefix, error.message(), isRefusal(error) ? StoreText::memberNotChanged() : error.message());
        co_return false;
    }
    if (!isCurrent(*session)) {
        co_return false;
    }
    // Leaving a team takes its projects out of sight: everything is read again.
    if (!role && userId == m_currentUserId) {
        co_return co_await refreshAll();
    }
    co_await reloadMembers(*session, teamId);
    co_return true;
}
