#pragma once

#include <QString>

#include <optional>

// What became of an invitation by e-mail address, as the team view reports it.
struct InviteOutcome
{
    enum class Kind { Invited, AlreadyMember, NoAccount, NotAllowed, TeamFull, Unavailable, RateLimited, Failed };

    Kind kind = Kind::Failed;
    QString email;
    // The invited account, when the backend named it.
    std::optional<QString> userId;

    // The procedure's answer ("invited", "already_member", "no_account"); anything else failed.
    static InviteOutcome fromStatus(const QString &status, const QString &email);
    // A refusal by its backend code: the member limit, a missing right, a missing procedure; or
    // by the marker in its message: too many invitations in the last hour.
    static InviteOutcome fromError(const std::optional<QString> &code, const QString &message, const QString &email);

    // The localised sentence the user is shown, with the address filled in.
    [[nodiscard]] QString text() const;

    friend bool operator==(const InviteOutcome &, const InviteOutcome &) = default;
};
