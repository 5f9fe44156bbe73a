#pragma once

#include "model/billing.h"
#include "model/project.h"
#include "model/taskitem.h"
#include "model/team.h"

// The bodies the store writes. Absent optionals are left out of the JSON, so a patch changes only
// what it carries, unless a field is marked NullWhenAbsent: such a field stands for an input the
// user may empty, and an empty input must clear the column.

struct ProjectInsert
{
    QString userId;
    std::optional<QString> teamId;
    QString name;
    std::optional<QString> description;
    std::optional<double> hourlyRate;
    ProjectStatus status = ProjectStatus::Active;
    std::optional<Billing> billing;
    std::optional<double> totalPrice;

    static constexpr std::string_view wireName = "ProjectInsert";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("user_id", &ProjectInsert::userId),
            field("team_id", &ProjectInsert::teamId),
            field("name", &ProjectInsert::name),
            field("description", &ProjectInsert::description),
            field("hourly_rate", &ProjectInsert::hourlyRate),
            field("status", &ProjectInsert::status),
            field("billing", &ProjectInsert::billing),
            field("total_price", &ProjectInsert::totalPrice),
        };
    }
    friend bool operator==(const ProjectInsert &, const ProjectInsert &) = default;
};

// What the project form saves. The form always shows the description and the rate, so leaving
// them empty clears them; the name, status and team change only when given.
struct ProjectPatch
{
    std::optional<QString> name;
    std::optional<QString> description;
    std::optional<double> hourlyRate;
    std::optional<ProjectStatus> status;
    std::optional<QString> teamId;

    static constexpr std::string_view wireName = "ProjectPatch";
    static constexpr auto wireFields()
    {
        using Wire::field;
        using Wire::FieldFlag;
        return std::tuple{
            field("name", &ProjectPatch::name),
            field("description", &ProjectPatch::description, FieldFlag::NullWhenAbsent),
            field("hourly_rate", &ProjectPatch::hourlyRate, FieldFlag::NullWhenAbsent),
            field("status", &ProjectPatch::status),
            field("team_id", &ProjectPatch::teamId),
        };
    }
    friend bool operator==(const ProjectPatch &, const ProjectPatch &) = default;
};

// Only the status, for changes that must not touch what the form owns (archiving idle projects).
struct ProjectStatusPatch
{
    ProjectStatus status = ProjectStatus::Active;

    static constexpr std::string_view wireName = "ProjectStatusPatch";
    static constexpr auto wireFields() { return std::tuple{Wire::field("status", &ProjectStatusPatch::status)}; }
    friend bool operator==(const ProjectStatusPatch &, const ProjectStatusPatch &) = default;
};

// An absent team takes the project out of its team, so it is sent as null, never left out.
struct ProjectTeamPatch
{
    std::optional<QString> teamId;

    static constexpr std::string_view wireName = "ProjectTeamPatch";
    static constexpr auto wireFields()
    {
        return std::tuple{Wire::field("team_id", &ProjectTeamPatch::teamId, Wire::FieldFlag::NullWhenAbsent)};
    }
    friend bool operator==(const ProjectTeamPatch &, const ProjectTeamPatch &) = default;
};

struct TaskInsert
{
    QString userId;
    QString projectId;
    QString title;
    std::optional<QString> description;
    std::optional<double> hourlyRate;
    std::optional<double> totalPrice;
    std::optional<Billing> billing;
    std::optional<QString> dueDate;
    // Absent leaves the column's own default.
    std::optional<TaskPriority> priority;

    static constexpr std::string_view wireName = "TaskInsert";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("user_id", &TaskInsert::userId),
            field("project_id", &TaskInsert::projectId),
            field("title", &TaskInsert::title),
            field("description", &TaskInsert::description),
            field("hourly_rate", &TaskInsert::hourlyRate),
            field("total_price", &TaskInsert::totalPrice),
            field("billing", &TaskInsert::billing),
            field("due_date", &TaskInsert::dueDate),
            field("priority", &TaskInsert::priority),
        };
    }
    friend bool operator==(const TaskInsert &, const TaskInsert &) = default;
};

// What the task editor saves: an emptied description or due date clears the column; the title
// changes only when given.
struct TaskPatch
{
    std::optional<QString> title;
    std::optional<QString> description;
    std::optional<QString> dueDate;

    static constexpr std::string_view wireName = "TaskPatch";
    static constexpr auto wireFields()
    {
        using Wire::field;
        using Wire::FieldFlag;
        return std::tuple{
            field("title", &TaskPatch::title),
            field("description", &TaskPatch::description, FieldFlag::NullWhenAbsent),
            field("due_date", &TaskPatch::dueDate, FieldFlag::NullWhenAbsent),
        };
    }
    friend bool operator==(const TaskPatch &, const TaskPatch &) = default;
};

struct TaskPriorityPatch
{
    TaskPriority priority = TaskPriority::Medium;

    static constexpr std::string_view wireName = "TaskPriorityPatch";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{field("priority", &TaskPriorityPatch::priority)};
    }
    friend bool operator==(const TaskPriorityPatch &, const TaskPriorityPatch &) = default;
};

struct TaskMovePatch
{
    QString projectId;

    static constexpr std::string_view wireName = "TaskMovePatch";
    static constexpr auto wireFields() { return std::tuple{Wire::field("project_id", &TaskMovePatch::projectId)}; }
    friend bool operator==(const TaskMovePatch &, const TaskMovePatch &) = default;
};

struct TaskStatusPatch
{
    TaskStatus status = TaskStatus::NotStarted;

    static constexpr std::string_view wireName = "TaskStatusPatch";
    static constexpr auto wireFields() { return std::tuple{Wire::field("status", &TaskStatusPatch::status)}; }
    friend bool operator==(const TaskStatusPatch &, const TaskStatusPatch &) = default;
};

// The whole side-data object: the column is one JSON value, so a change of one field rewrites all.
struct TaskAttachmentsPatch
{
    TaskAttachments attachments;

    static constexpr std::string_view wireName = "TaskAttachmentsPatch";
    static constexpr auto wireFields()
    {
        return std::tuple{Wire::field("attachments", &TaskAttachmentsPatch::attachments)};
    }
    friend bool operator==(const TaskAttachmentsPatch &, const TaskAttachmentsPatch &) = default;
};

struct ProfilePatch
{
    std::optional<QString> displayName;
    std::optional<double> defaultHourlyRate;
    std::optional<QString> currency;
    std::optional<QString> language;

    static constexpr std::string_view wireName = "ProfilePatch";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("display_name", &ProfilePatch::displayName),
            field("default_hourly_rate", &ProfilePatch::defaultHourlyRate),
            field("currency", &ProfilePatch::currency),
            field("language", &ProfilePatch::language),
        };
    }
    friend bool operator==(const ProfilePatch &, const ProfilePatch &) = default;
};

struct OnboardingPatch
{
    std::optional<QString> displayName;
    QString language;
    std::optional<double> defaultHourlyRate;
    QString currency;
    std::optional<JSONValue> onboarding;
    bool onboardingComplete = true;
    std::optional<QString> timezone;

    static constexpr std::string_view wireName = "OnboardingPatch";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("display_name", &OnboardingPatch::displayName),
            field("language", &OnboardingPatch::language),
            field("default_hourly_rate", &OnboardingPatch::defaultHourlyRate),
            field("currency", &OnboardingPatch::currency),
            field("onboarding", &OnboardingPatch::onboarding),
            field("onboarding_complete", &OnboardingPatch::onboardingComplete),
            field("timezone", &OnboardingPatch::timezone),
        };
    }
    friend bool operator==(const OnboardingPatch &, const OnboardingPatch &) = default;
};

// The part of the profile row that onboarding reads: `Profile` leaves these columns out.
struct OnboardingState
{
    QString id;
    bool onboardingComplete = false;
    std::optional<QString> language;
    std::optional<QString> currency;
    std::optional<QString> timezone;

    static constexpr std::string_view wireName = "OnboardingState";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("id", &OnboardingState::id),
            field("onboarding_complete", &OnboardingState::onboardingComplete),
            field("language", &OnboardingState::language),
            field("currency", &OnboardingState::currency),
            field("timezone", &OnboardingState::timezone),
        };
    }
    friend bool operator==(const OnboardingState &, const OnboardingState &) = default;
};

struct TeamInsert
{
    QString ownerId;
    QString name;

    static constexpr std::string_view wireName = "TeamInsert";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{field("owner_id", &TeamInsert::ownerId), field("name", &TeamInsert::name)};
    }
    friend bool operator==(const TeamInsert &, const TeamInsert &) = default;
};

struct TeamMemberRolePatch
{
    TeamRole role = TeamRole::Viewer;

    static constexpr std::string_view wireName = "TeamMemberRolePatch";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{field("role", &TeamMemberRolePatch::role)};
    }
    friend bool operator==(const TeamMemberRolePatch &, const TeamMemberRolePatch &) = default;
};

struct InviteByEmailArgs
{
    QString teamIdParam;
    QString inviteeEmail;
    TeamRole memberRole = TeamRole::Viewer;

    static constexpr std::string_view wireName = "InviteByEmailArgs";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("team_id_param", &InviteByEmailArgs::teamIdParam),
            field("invitee_email", &InviteByEmailArgs::inviteeEmail),
            field("member_role", &InviteByEmailArgs::memberRole),
        };
    }
    friend bool operator==(const InviteByEmailArgs &, const InviteByEmailArgs &) = default;
};

// The argument of accept_team_invitation and decline_team_invitation.
struct TeamInvitationArgs
{
    QString teamIdParam;

    static constexpr std::string_view wireName = "TeamInvitationArgs";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{field("team_id_param", &TeamInvitationArgs::teamIdParam)};
    }
    friend bool operator==(const TeamInvitationArgs &, const TeamInvitationArgs &) = default;
};

struct InviteByEmailResult
{
    QString status;
    std::optional<QString> userId;

    static constexpr std::string_view wireName = "InviteByEmailResult";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{field("status", &InviteByEmailResult::status),
                          field("user_id", &InviteByEmailResult::userId)};
    }
    friend bool operator==(const InviteByEmailResult &, const InviteByEmailResult &) = default;
};

// One column of a row, for reads that only need to know which projects something touches.
struct ProjectRef
{
    QString projectId;

    static constexpr std::string_view wireName = "ProjectRef";
    static constexpr auto wireFields() { return std::tuple{Wire::field("project_id", &ProjectRef::projectId)}; }
    friend bool operator==(const ProjectRef &, const ProjectRef &) = default;
};

// A project's price setting. The legacy fixed total is always cleared: once a setting exists it
// is the one price of the project.
struct ProjectBillingPatch
{
    Billing billing;
    std::optional<double> hourlyRate;
    std::optional<double> totalPrice;

    static constexpr std::string_view wireName = "ProjectBillingPatch";
    static constexpr auto wireFields()
    {
        using Wire::field;
        using Wire::FieldFlag;
        return std::tuple{
            field("billing", &ProjectBillingPatch::billing),
            field("hourly_rate", &ProjectBillingPatch::hourlyRate, FieldFlag::NullWhenAbsent),
            field("total_price", &ProjectBillingPatch::totalPrice, FieldFlag::NullWhenAbsent),
        };
    }
    friend bool operator==(const ProjectBillingPatch &, const ProjectBillingPatch &) = default;
};

// A task's own price; no setting (null) lets the task inherit its project's again.
struct TaskPricePatch
{
    std::optional<Billing> billing;
    std::optional<double> hourlyRate;
    std::optional<double> totalPrice;

    static constexpr std::string_view wireName = "TaskPricePatch";
    static constexpr auto wireFields()
    {
        using Wire::field;
        using Wire::FieldFlag;
        return std::tuple{
            field("billing", &TaskPricePatch::billing, FieldFlag::NullWhenAbsent),
            field("hourly_rate", &TaskPricePatch::hourlyRate, FieldFlag::NullWhenAbsent),
            field("total_price", &TaskPricePatch::totalPrice, FieldFlag::NullWhenAbsent),
        };
    }
    friend bool operator==(const TaskPricePatch &, const TaskPricePatch &) = default;
};

// What the client form saves. The form always shows these fields, so an emptied one clears its
// column; the name changes only when given. The columns the form does not show (phone, bank
// account, notes, colour, the geocoded place) are never touched.
struct ClientPatch
{
    std::optional<QString> name;
    std::optional<QString> email;
    std::optional<QString> address;
    std::optional<QString> vatId;
    std::optional<QString> kvk;

    static constexpr std::string_view wireName = "ClientPatch";
    static constexpr auto wireFields()
    {
        using Wire::field;
        using Wire::FieldFlag;
        return std::tuple{
            field("name", &ClientPatch::name),
            field("email", &ClientPatch::email, FieldFlag::NullWhenAbsent),
            field("address", &ClientPatch::address, FieldFlag::NullWhenAbsent),
            field("vat_id", &ClientPatch::vatId, FieldFlag::NullWhenAbsent),
            field("kvk", &ClientPatch::kvk, FieldFlag::NullWhenAbsent),
        };
    }
    friend bool operator==(const ClientPatch &, const ClientPatch &) = default;
};

struct ClientArchivePatch
{
    bool archived = true;

    static constexpr std::string_view wireName = "ClientArchivePatch";
    static constexpr auto wireFields() { return std::tuple{Wire::field("archived", &ClientArchivePatch::archived)}; }
    friend bool operator==(const ClientArchivePatch &, const ClientArchivePatch &) = default;
};
