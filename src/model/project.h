#pragma once

#include "model/billing.h"

enum class ProjectStatus { Active, Archived, Completed };

constexpr auto wireNames(ProjectStatus)
{
    return std::array<std::string_view, 3>{"active", "archived", "completed"};
}

// A row of `projects`.
struct Project
{
    QString id;
    QString userId;
    std::optional<QString> teamId;
    QString name;
    std::optional<QString> description;
    std::optional<double> hourlyRate;
    std::optional<double> totalPrice;
    ProjectStatus status = ProjectStatus::Active;
    std::optional<QString> createdAt;
    std::optional<QString> updatedAt;
    std::optional<Billing> billing;

    static constexpr std::string_view wireName = "Project";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("id", &Project::id),
            field("user_id", &Project::userId),
            field("team_id", &Project::teamId),
            field("name", &Project::name),
            field("description", &Project::description),
            field("hourly_rate", &Project::hourlyRate),
            field("total_price", &Project::totalPrice),
            field("status", &Project::status),
            field("created_at", &Project::createdAt),
            field("updated_at", &Project::updatedAt),
            field("billing", &Project::billing),
        };
    }
    friend bool operator==(const Project &, const Project &) = default;
};
