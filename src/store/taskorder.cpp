#include "taskorder.h"

#include "model/isodate.h"

#include <QCollator>

#include <algorithm>

namespace TaskOrder {

namespace {

std::optional<int> positionOf(const TaskItem &task)
{
    return task.attachments ? task.attachments->position : std::nullopt;
}

// Sorts by a key where an absent key sorts last; `before` orders two present keys.
template<class Key, class Before>
void stableSortBy(QList<TaskItem> &tasks, const std::function<std::optional<Key>(const TaskItem &)> &keyOf,
                  Before before)
{
    // Keys are computed once per task, not once per comparison: parsing dates dominates otherwise.
    QList<std::pair<std::optional<Key>, qsizetype>> keyed;
    keyed.reserve(tasks.size());
    for (qsizetype i = 0; i < tasks.size(); ++i) {
        keyed.append({keyOf(tasks[i]), i});
    }
    std::stable_sort(keyed.begin(), keyed.end(), [&](const auto &a, const auto &b) {
        if (a.first.has_value() != b.first.has_value()) {
            return a.first.has_value();
        }
        return a.first.has_value() && before(*a.first, *b.first);
    });
    QList<TaskItem> sorted;
    sorted.reserve(tasks.size());
    for (const auto &[key, index] : keyed) {
        sorted.append(std::move(tasks[index]));
    }
    tasks = std::move(sorted);
}

} // namespace

bool passes(const TaskItem &task, TaskFilter filter, const QDateTime &now)
{
    const bool completed = task.status == TaskStatus::Completed;
    switch (filter) {
    case TaskFilter::All:
        return true;
    case TaskFilter::Active:
        return !completed;
    case TaskFilter::Done:
        return completed;
    case TaskFilter::Archived: {
        if (!completed) {
            return false;
        }
        const std::optional<QDateTime> touched = isoDate(task.updatedAt ? task.updatedAt : task.createdAt);
        return !touched || touched->addDays(archiveAfterDays) <= now;
    }
    }
    return false;
}

QList<TaskItem> manualOrder(const QList<TaskItem> &tasks)
{
    QList<TaskItem> sorted = tasks;
    stableSortBy<int>(sorted, positionOf, std::less<int>());
    return sorted;
}

QList<TaskItem> filterAndSort(const QList<TaskItem> &tasks, TaskFilter filter, TaskSort sort, const QDateTime &now)
{
    QList<TaskItem> shown;
    shown.reserve(tasks.size());
    for (const TaskItem &task : tasks) {
        if (passes(task, filter, now)) {
            shown.append(task);
        }
    }

    switch (sort) {
    case TaskSort::Manual:
        stableSortBy<int>(shown, positionOf, std::less<int>());
        break;
    case TaskSort::CreatedDesc:
        stableSortBy<qint64>(
            shown,
            [](const TaskItem &task) -> std::optional<qint64> {
                const std::optional<QDateTime> created = isoDate(task.createdAt);
                return created ? std::optional(created->toMSecsSinceEpoch()) : std::nullopt;
            },
            std::greater<qint64>());
        break;
    case TaskSort::PriorityDesc:
        stableSortBy<int>(
            shown, [](const TaskItem &task) { return std::optional(int(task.priority)); }, std::greater<int>());
        break;
    case TaskSort::DueAsc:
        stableSortBy<QString>(
            shown,
            [](const TaskItem &task) -> std::optional<QString> {
                if (!task.dueDate || task.dueDate->size() < 10) {
                    return std::nullopt;
                }
                return task.dueDate->left(10);
            },
            std::less<QString>());
        break;
    case TaskSort::TrackedDesc:
        stableSortBy<qint64>(
            shown, [](const TaskItem &task) { return std::optional(task.timeSpentSeconds); }, std::greater<qint64>());
        break;
    case TaskSort::Alpha: {
        QLocale locale;
        // The C locale collates by code point (capitals first, "10" before "2"), which nobody reads
        // that way; English collation is the neutral choice when no language is set.
        if (locale.language() == QLocale::C) {
            locale = QLocale(QLocale::English);
        }
        QCollator collator{locale};
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        collator.setNumericMode(true);
        stableSortBy<QCollatorSortKey>(
            shown, [&](const TaskItem &task) { return std::optional(collator.sortKey(task.title)); },
            [](const QCollatorSortKey &a, const QCollatorSortKey &b) { return a.compare(b) < 0; });
        break;
    }
    }

    std::stable_partition(shown.begin(), shown.end(),
                          [](const TaskItem &task) { return task.status != TaskStatus::Completed; });
    return shown;
}

} // namespace TaskOrder
