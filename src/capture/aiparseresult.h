#pragma once

#include "model/wire.h"

#include <QDateTime>
#include <QJsonObject>

// What a language model made of one sentence. The model is outside our control: its answer is
// decoded through these records' own description (a wrong type refuses the answer) and then held
// to sane bounds by `readParseResult`, which says what it left out or cut.

enum class AIIntent { CreateProject, CreateProjects, CreateTask, StartTimer, StopTimer, LogTime, Unknown };

constexpr auto wireNames(AIIntent)
{
    return std::array<std::string_view, 7>{"create_project", "create_projects", "create_task", "start_timer",
                                           "stop_timer",     "log_time",        "unknown"};
}

struct AITaskDraft
{
    QString title;
    std::optional<QString> description;
    // Read as text so that an unknown word costs the task its priority, not the whole answer.
    std::optional<QString> priority;
    std::optional<QString> dueDate;
    std::optional<double> hourlyRate;
    std::optional<double> totalPrice;
    std::optional<double> minutes;

    static constexpr std::string_view wireName = "AITaskDraft";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("title", &AITaskDraft::title),
            field("description", &AITaskDraft::description),
            field("priority", &AITaskDraft::priority),
            field("due_date", &AITaskDraft::dueDate),
            field("hourly_rate", &AITaskDraft::hourlyRate),
            field("total_price", &AITaskDraft::totalPrice),
            field("minutes", &AITaskDraft::minutes),
        };
    }
    friend bool operator==(const AITaskDraft &, const AITaskDraft &) = default;
};

struct AIProjectDraft
{
    QString name;
    std::optional<QString> description;
    std::optional<double> hourlyRate;
    std::optional<double> totalPrice;
    std::optional<QString> teamName;
    std::optional<QList<AITaskDraft>> tasks;

    static constexpr std::string_view wireName = "AIProjectDraft";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("name", &AIProjectDraft::name),
            field("description", &AIProjectDraft::description),
            field("hourly_rate", &AIProjectDraft::hourlyRate),
            field("total_price", &AIProjectDraft::totalPrice),
            field("team_name", &AIProjectDraft::teamName),
            field("tasks", &AIProjectDraft::tasks),
        };
    }
    friend bool operator==(const AIProjectDraft &, const AIProjectDraft &) = default;
};

struct AIParseResult
{
    AIIntent intent = AIIntent::Unknown;
    std::optional<QString> projectName;
    std::optional<double> projectHourlyRate;
    std::optional<QList<AITaskDraft>> tasks;
    std::optional<QString> taskTitle;
    std::optional<double> minutes;
    std::optional<QString> notes;
    std::optional<QList<AIProjectDraft>> projects;

    static constexpr std::string_view wireName = "AIParseResult";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("intent", &AIParseResult::intent),
            field("project_name", &AIParseResult::projectName),
            field("project_hourly_rate", &AIParseResult::projectHourlyRate),
            field("tasks", &AIParseResult::tasks),
            field("task_title", &AIParseResult::taskTitle),
            field("minutes", &AIParseResult::minutes),
            field("notes", &AIParseResult::notes),
            field("projects", &AIParseResult::projects),
        };
    }
    friend bool operator==(const AIParseResult &, const AIParseResult &) = default;
};

// A checked answer and what checking changed, each change as a sentence for the user.
struct AIReading
{
    AIParseResult result;
    QStringList adjustments;
};

namespace CaptureLimits {
// Past these an answer is not a reading of one sentence but noise, or an attack on the store.
constexpr qsizetype maxAnswerBytes = 64 * 1024;
constexpr qsizetype maxDrafts = 50;
constexpr qsizetype maxNameLength = 200;
constexpr qsizetype maxTextLength = 4000;
constexpr double maxHourlyRate = 10'000;
constexpr double maxTotalPrice = 10'000'000;
// One sentence logs at most a day's work on one task.
constexpr double maxMinutes = 24 * 60;
} // namespace CaptureLimits

// Decodes and checks a model's answer. An answer of the wrong shape (not an object, a wrong
// type, an unknown intent, too large, too many drafts) is refused with a ClaudeBridgeError of
// the malformed-answer kind; out-of-bounds values are left out or cut, each with its reason.
AIReading readParseResult(const QJsonObject &answer);

// One capture of the current run: the sentence, and what came of it.
struct AISession
{
    QString id;
    QString prompt;
    std::optional<AIParseResult> result;
    std::optional<QString> error;
    QStringList adjustments;
    QDateTime at;
};
