#pragma once

#include "model/wire.h"

// A row of `time_entries`: one run of work on a task.
struct TimeEntry
{
    QString id;
    QString userId;
    QString taskId;
    QString projectId;
    QString startedAt;
    QString endedAt;
    // Stored, not derived from the two instants: an entry logged by hand has no real bounds.
    qint64 durationSeconds = 0;
    std::optional<QString> loggedByUserId;
    std::optional<QString> loggedByEmail;

    static constexpr std::string_view wireName = "TimeEntry";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("id", &TimeEntry::id),
            field("user_id", &TimeEntry::userId),
            field("task_id", &TimeEntry::taskId),
            field("project_id", &TimeEntry::projectId),
            field("started_at", &TimeEntry::startedAt),
            field("ended_at", &TimeEntry::endedAt),
            field("duration_seconds", &TimeEntry::durationSeconds),
            field("logged_by_user_id", &TimeEntry::loggedByUserId),
            field("logged_by_email", &TimeEntry::loggedByEmail),
        };
    }
    friend bool operator==(const TimeEntry &, const TimeEntry &) = default;
};
