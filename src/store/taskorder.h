#pragma once

#include "model/taskitem.h"

#include <QDateTime>

// Which of a project's tasks a list shows. Raw values are the case names, as settings keep them.
enum class TaskFilter { All, Active, Done, Archived };
// How a project's task list is ordered.
enum class TaskSort { Manual, CreatedDesc, PriorityDesc, DueAsc, TrackedDesc, Alpha };

constexpr auto wireNames(TaskFilter)
{
    return std::array<std::string_view, 4>{"all", "active", "done", "archived"};
}
constexpr auto wireNames(TaskSort)
{
    return std::array<std::string_view, 6>{"manual", "createdDesc", "priorityDesc", "dueAsc", "trackedDesc", "alpha"};
}

// The filtering and ordering of task lists, apart from the store so that it works on any list.
//
// The rules the lists follow:
// - "archived" shows completed tasks that nobody has touched for `archiveAfterDays` days
//   (`updated_at`, else `created_at`; a completed task without either counts as archived). "done"
//   shows every completed task, archived ones included.
// - Every sort is stable, "priorityDesc" too: ties keep the order of the input, which the store
//   keeps newest first. A list that does not jump between two refreshes matters more than the
//   freedom an unstable sort would give.
// - "manual": by "_position", lowest first; tasks without a position follow all that have one.
// - "createdDesc": newest first; tasks without a readable `created_at` last.
// - "dueAsc": by the calendar day of `due_date` (its first ten characters: the day the user
//   entered, whatever time or zone an older client appended); tasks without a due date last.
// - "trackedDesc": most tracked time first.
// - "alpha": by title as people read it: case-insensitive and with numbers compared by value
//   ("Task 2" before "Task 10"), collated for the interface's locale.
// - Whatever the sort, completed tasks then move below all others, each group keeping its order.
namespace TaskOrder {

inline constexpr int archiveAfterDays = 30;

[[nodiscard]] bool passes(const TaskItem &task, TaskFilter filter, const QDateTime &now);

// `tasks` in the store's order (newest first); answers the list as the view shows it.
[[nodiscard]] QList<TaskItem> filterAndSort(const QList<TaskItem> &tasks, TaskFilter filter, TaskSort sort,
                                            const QDateTime &now);

// Sorts by "_position" alone (without sinking completed tasks): the order reordering works on.
[[nodiscard]] QList<TaskItem> manualOrder(const QList<TaskItem> &tasks);

} // namespace TaskOrder
