#pragma once

#include "model/billing.h"

enum class TaskStatus { NotStarted, InProgress, Completed };
enum class TaskPriority { Low, Medium, High };
enum class TaskCategory { Billable, InternalWork, Admin };

constexpr auto wireNames(TaskStatus)
{
    return std::array<std::string_view, 3>{"not_started", "in_progress", "completed"};
}
constexpr auto wireNames(TaskPriority)
{
    return std::array<std::string_view, 3>{"low", "medium", "high"};
}
constexpr auto wireNames(TaskCategory)
{
    return std::array<std::string_view, 3>{"billable", "internal", "admin"};
}

// One item of a task's checklist.
struct Subtask
{
    QString id;
    QString title;
    bool done = false;

    static constexpr std::string_view wireName = "Subtask";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{field("id", &Subtask::id), field("title", &Subtask::title), field("done", &Subtask::done)};
    }
    friend bool operator==(const Subtask &, const Subtask &) = default;
};

// One note in a task's notes thread.
struct TaskNote
{
    QString id;
    QString text;
    QString createdAt;
    std::optional<QString> authorEmail;

    static constexpr std::string_view wireName = "TaskNote";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("id", &TaskNote::id),
            field("text", &TaskNote::text),
            field("created_at", &TaskNote::createdAt),
            field("author_email", &TaskNote::authorEmail),
        };
    }
    friend bool operator==(const TaskNote &, const TaskNote &) = default;
};

// A team member a task is assigned to.
struct TaskAssignee
{
    QString userId;
    QString email;

    static constexpr std::string_view wireName = "TaskAssignee";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{field("user_id", &TaskAssignee::userId), field("email", &TaskAssignee::email)};
    }
    friend bool operator==(const TaskAssignee &, const TaskAssignee &) = default;
};

// The side data of a task, kept together in its `attachments` JSON column.
struct TaskAttachments
{
    std::optional<QList<TaskAssignee>> assignees;
    std::optional<QList<TaskNote>> notes;
    std::optional<int> position;
    std::optional<QList<Subtask>> subtasks;
    std::optional<TaskCategory> category;

    static constexpr std::string_view wireName = "TaskAttachments";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("_assignees", &TaskAttachments::assignees), field("_notes", &TaskAttachments::notes),
            field("_position", &TaskAttachments::position),   field("_subtasks", &TaskAttachments::subtasks),
            field("_category", &TaskAttachments::category),
        };
    }
    friend bool operator==(const TaskAttachments &, const TaskAttachments &) = default;
};

// Older rows stored the column as a JSON array; such a row has no side data at all.
template<>
struct Wire::Coder<TaskAttachments> : Wire::RecordCoder<TaskAttachments>
{
    static TaskAttachments decode(const QJsonValue &json)
    {
        if (json.isArray()) {
            return {};
        }
        return RecordCoder::decode(json);
    }
};

// A row of `tasks`.
struct TaskItem
{
    QString id;
    QString userId;
    QString projectId;
    QString title;
    std::optional<QString> description;
    TaskStatus status = TaskStatus::NotStarted;
    TaskPriority priority = TaskPriority::Medium;
    std::optional<QString> dueDate;
    std::optional<double> hourlyRate;
    std::optional<double> totalPrice;
    qint64 timeSpentSeconds = 0;
    std::optional<QString> startedAt;
    std::optional<QString> createdAt;
    std::optional<QString> updatedAt;
    std::optional<TaskAttachments> attachments;
    std::optional<Billing> billing;

    static constexpr std::string_view wireName = "TaskItem";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("id", &TaskItem::id),
            field("user_id", &TaskItem::userId),
            field("project_id", &TaskItem::projectId),
            field("title", &TaskItem::title),
            field("description", &TaskItem::description),
            field("status", &TaskItem::status),
            field("priority", &TaskItem::priority),
            field("due_date", &TaskItem::dueDate),
            field("hourly_rate", &TaskItem::hourlyRate),
            field("total_price", &TaskItem::totalPrice),
            field("time_spent_seconds", &TaskItem::timeSpentSeconds),
            field("started_at", &TaskItem::startedAt),
            field("created_at", &TaskItem::createdAt),
            field("updated_at", &TaskItem::updatedAt),
            field("attachments", &TaskItem::attachments),
            field("billing", &TaskItem::billing),
        };
    }
    friend bool operator==(const TaskItem &, const TaskItem &) = default;
};
