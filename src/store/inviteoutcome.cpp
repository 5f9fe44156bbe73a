#include "inviteoutcome.h"

using namespace Qt::StringLiterals;

InviteOutcome InviteOutcome::fromStatus(const QString &status, const QString &email)
{
    Kind kind = Kind::Failed;
    if (status == u"invited") {
        kind = Kind::Invited;
    } else if (status == u"already_member") {
        kind = Kind::AlreadyMember;
    } else if (status == u"no_account") {
        kind = Kind::NoAccount;
    }
    return {kind, email, std::nullopt};
}

InviteOutcome InviteOutcome::fromError(const std::optional<QString> &code, const QString &message, const QString &email)
{
    Kind kind = Kind::Failed;
    if (message.contains(u"invitation_rate_limit")) {
        kind = Kind::RateLimited;
    } else if (code == u"42501") {
        kind = Kind::NotAllowed;
    } else if (code == u"23514") {
        kind = Kind::TeamFull;
    } else if (code == u"PGRST202" || code == u"42883") {
        kind = Kind::Unavailable;
    }
    return {kind, email, std::nullopt};
}

QString InviteOutcome::text() const
{
    switch (kind) {
    case Kind::Invited:
        //% "%1 is invited to this team."
        return qtTrId("inviteSent").arg(email);
    case Kind::AlreadyMember:
        //% "%1 is already in this team."
        return qtTrId("inviteAlreadyMember").arg(email);
    case Kind::NoAccount:
        //% "No Morvane account uses that email yet. Ask them to sign up first."
        return qtTrId("inviteNoAccount");
    case Kind::NotAllowed:
        //% "Only the team owner and editors can invite people."
        return qtTrId("inviteNotAllowed");
    case Kind::TeamFull:
        //% "This team is full: it already has 10 members, the maximum."
        return qtTrId("inviteTeamFull");
    case Kind::Unavailable:
        //% "Inviting by email is not available yet. Try again later."
        return qtTrId("inviteUnavailable");
    case Kind::RateLimited:
        //% "You have sent many invitations in the last hour. Try again later."
        return qtTrId("inviteRateLimited");
    case Kind::Failed:
        //% "Could not send the invite. Try again."
        return qtTrId("inviteFailed");
    }
    return {};
}
