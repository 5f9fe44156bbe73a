#pragma once

#include "model/taskitem.h"

// The bodies the timer and the time entries write.

struct StartTimerPatch
{
    QString startedAt;
    TaskStatus status = TaskStatus::InProgress;

    static constexpr std::string_view wireName = "StartTimerPatch";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{field("started_at", &StartTimerPatch::startedAt), field("status", &StartTimerPatch::status)};
    }
    friend bool operator==(const StartTimerPatch &, const StartTimerPatch &) = default;
};

struct StopTimerPatch
{
    TaskStatus status = TaskStatus::NotStarted;
    qint64 timeSpentSeconds = 0;

    static constexpr std::string_view wireName = "StopTimerPatch";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{field("status", &StopTimerPatch::status),
                          field("time_spent_seconds", &StopTimerPatch::timeSpentSeconds)};
    }
    friend bool operator==(const StopTimerPatch &, const StopTimerPatch &) = default;
};

// Puts a task back into the running state it had before a stop whose entry could not be written.
struct TimerRestorePatch
{
    std::optional<QString> startedAt;
    TaskStatus status = TaskStatus::InProgress;
    qint64 timeSpentSeconds = 0;

    static constexpr std::string_view wireName = "TimerRestorePatch";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("started_at", &TimerRestorePatch::startedAt, Wire::FieldFlag::NullWhenAbsent),
            field("status", &TimerRestorePatch::status),
            field("time_spent_seconds", &TimerRestorePatch::timeSpentSeconds),
        };
    }
    friend bool operator==(const TimerRestorePatch &, const TimerRestorePatch &) = default;
};

struct TimeEntryInsert
{
    QString userId;
    QString taskId;
    QString projectId;
    QString startedAt;
    QString endedAt;
    qint64 durationSeconds = 0;
    QString loggedByUserId;
    std::optional<QString> loggedByEmail;

    static constexpr std::string_view wireName = "TimeEntryInsert";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("user_id", &TimeEntryInsert::userId),
            field("task_id", &TimeEntryInsert::taskId),
            field("project_id", &TimeEntryInsert::projectId),
            field("started_at", &TimeEntryInsert::startedAt),
            field("ended_at", &TimeEntryInsert::endedAt),
            field("duration_seconds", &TimeEntryInsert::durationSeconds),
            field("logged_by_user_id", &TimeEntryInsert::loggedByUserId),
            field("logged_by_email", &TimeEntryInsert::loggedByEmail),
        };
    }
    friend bool operator==(const TimeEntryInsert &, const TimeEntryInsert &) = default;
};

struct TimeEntryPatch
{
    QString startedAt;
    QString endedAt;
    qint64 durationSeconds = 0;

    static constexpr std::string_view wireName = "TimeEntryPatch";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("started_at", &TimeEntryPatch::startedAt),
            field("ended_at", &TimeEntryPatch::endedAt),
            field("duration_seconds", &TimeEntryPatch::durationSeconds),
        };
    }
    friend bool operator==(const TimeEntryPatch &, const TimeEntryPatch &) = default;
};

struct TaskTotalPatch
{
    qint64 timeSpentSeconds = 0;

    static constexpr std::string_view wireName = "TaskTotalPatch";
    static constexpr auto wireFields()
    {
        return std::tuple{Wire::field("time_spent_seconds", &TaskTotalPatch::timeSpentSeconds)};
    }
    friend bool operator==(const TaskTotalPatch &, const TaskTotalPatch &) = default;
};

// Only the durations, for adding up a task's total.
struct EntryDuration
{
    qint64 durationSeconds = 0;

    static constexpr std::string_view wireName = "EntryDuration";
    static constexpr auto wireFields()
    {
        return std::tuple{Wire::field("duration_seconds", &EntryDuration::durationSeconds)};
    }
    friend bool operator==(const EntryDuration &, const EntryDuration &) = default;
};
