#pragma once

#include "model/wire.h"

enum class TeamRole { Owner, Editor, Viewer };

constexpr auto wireNames(TeamRole)
{
    return std::array<std::string_view, 3>{"owner", "editor", "viewer"};
}

// A row of `teams`.
struct Team
{
    QString id;
    QString ownerId;
    QString name;
    std::optional<QString> createdAt;

    static constexpr std::string_view wireName = "Team";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("id", &Team::id),
            field("owner_id", &Team::ownerId),
            field("name", &Team::name),
            field("created_at", &Team::createdAt),
        };
    }
    friend bool operator==(const Team &, const Team &) = default;
};

// A row of `team_members`; an absent `accepted_at` is an invitation still open.
struct TeamMember
{
    QString teamId;
    QString userId;
    QString email;
    TeamRole role = TeamRole::Viewer;
    std::optional<QString> invitedAt;
    std::optional<QString> acceptedAt;

    // The table has no id column: a member is one user in one team.
    [[nodiscard]] QString id() const { return teamId + u':' + userId; }
    [[nodiscard]] bool isPending() const { return !acceptedAt.has_value(); }

    static constexpr std::string_view wireName = "TeamMember";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("team_id", &TeamMember::teamId),       field("user_id", &TeamMember::userId),
            field("email", &TeamMember::email),          field("role", &TeamMember::role),
            field("invited_at", &TeamMember::invitedAt), field("accepted_at", &TeamMember::acceptedAt),
        };
    }
    friend bool operator==(const TeamMember &, const TeamMember &) = default;
};

// An invitation waiting for the signed-in user's answer, with what a person needs to decide: the
// team's rows stay out of reach until it is accepted.
struct TeamInvitation
{
    QString teamId;
    QString teamName;
    TeamRole role = TeamRole::Viewer;
    std::optional<QString> invitedAt;
    std::optional<QString> invitedByName;
    std::optional<QString> invitedByEmail;

    static constexpr std::string_view wireName = "TeamInvitation";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("team_id", &TeamInvitation::teamId),
            field("team_name", &TeamInvitation::teamName),
            field("role", &TeamInvitation::role),
            field("invited_at", &TeamInvitation::invitedAt),
            field("invited_by_name", &TeamInvitation::invitedByName),
            field("invited_by_email", &TeamInvitation::invitedByEmail),
        };
    }
    friend bool operator==(const TeamInvitation &, const TeamInvitation &) = default;
};
