#pragma once

#include "model/project.h"
#include "model/taskitem.h"
#include "model/timeentry.h"
#include "summary/summaryphrases.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTimeZone>

#include <optional>

// The weekly recap and the daily stand-up as pure functions: facts gathered in code, a FACTS
// block and a system prompt for the model, the model's answer cleaned and checked against the
// facts, and a fixed text from the same facts for whenever the model's answer cannot be trusted.
// Minutes are whole; money is in the profile currency.
namespace WorkSummary {

struct ProjectLine
{
    QString name;
    int minutes = 0;
    double earnings = 0;
    int sharePct = 0;
    friend bool operator==(const ProjectLine &, const ProjectLine &) = default;
};

struct RecapFacts
{
    QString from; // yyyy-MM-dd
    QString to;
    int days = 7;
    int totalMinutes = 0;
    int previousTotalMinutes = 0;
    int daysWorked = 0;
    double earningsTotal = 0;
    QString currency = QStringLiteral("EUR");
    QList<ProjectLine> projects; // most time first
    QStringList completedTasks;
    int overdueOpenTasks = 0;

    // Every project name and task title in the facts: the only names a model text may quote.
    [[nodiscard]] QStringList names() const;
    friend bool operator==(const RecapFacts &, const RecapFacts &) = default;
};

struct TaskLine
{
    QString title;
    QString project;
    int minutes = 0;
    friend bool operator==(const TaskLine &, const TaskLine &) = default;
};

struct PlannedItem
{
    QString title;
    QString project;
    std::optional<QString> dueDate;
    bool overdue = false;
    bool highPriority = false;
    friend bool operator==(const PlannedItem &, const PlannedItem &) = default;
};

struct LastWorkday
{
    QString date;
    bool isYesterday = false;
    int totalMinutes = 0;
    QList<TaskLine> tasks;
    friend bool operator==(const LastWorkday &, const LastWorkday &) = default;
};

struct StandupFacts
{
    QString today;
    std::optional<LastWorkday> lastWorkday;
    int todayMinutes = 0;
    QList<TaskLine> todayTasks;
    std::optional<TaskLine> running;
    QList<PlannedItem> planned;

    [[nodiscard]] bool isEmpty() const;
    [[nodiscard]] QStringList names() const;
    friend bool operator==(const StandupFacts &, const StandupFacts &) = default;
};

// The three line bodies of a stand-up under their labels.
struct StandupText
{
    Labels labels;
    QString first;
    QString today;
    QString blockers;

    [[nodiscard]] QString joined(const Phrases &phrases) const;
};

struct OwnWork
{
    QList<TimeEntry> entries;
    QList<TaskItem> tasks;
};

// The user's own entries (logged by them) and tasks (worked on by them, or open and theirs or
// assigned to them). A team mate's task the user never logged time on stays out.
[[nodiscard]] OwnWork ownWork(const QList<TimeEntry> &entries, const QList<TaskItem> &tasks, const QString &userId);

// The 7 days up to `now` against the 7 before; `zone` decides calendar days.
[[nodiscard]] RecapFacts recapFacts(const QList<TimeEntry> &entries, const QList<TaskItem> &tasks,
                                    const QList<Project> &projects, double defaultHourlyRate, const QString &currency,
                                    const QDateTime &now, const QTimeZone &zone);
// Today, the last day with tracked time in the 7 before it, the running timer and the open work.
[[nodiscard]] StandupFacts standupFacts(const QList<TimeEntry> &entries, const QList<TaskItem> &tasks,
                                        const QList<Project> &projects, const QDateTime &now, const QTimeZone &zone);

[[nodiscard]] QString recapFactsText(const RecapFacts &facts, const QString &lang);
[[nodiscard]] QString standupFactsText(const StandupFacts &facts, const QString &lang);
[[nodiscard]] QString recapSystemPrompt(const QString &lang);
[[nodiscard]] QString standupSystemPrompt(const QString &lang, const Labels &labels);

[[nodiscard]] QString renderRecap(const RecapFacts &facts, const QString &lang);
[[nodiscard]] StandupText renderStandup(const StandupFacts &facts, const QString &lang);

[[nodiscard]] QString cleanOutput(QString text);
// Puts each labelled part of a stand-up on its own line, however the model ran them together.
[[nodiscard]] QString toThreeLines(const QString &text, const QString &lang, const Labels &labels);
// A short code naming why a model text may not be shown ("empty", "unknown_name", "english:due
// today", ...), or nothing when it may.
[[nodiscard]] std::optional<QString> recapProblem(const QString &text, const QStringList &names,
                                                  const QString &factsText, const RecapFacts &facts,
                                                  const QString &lang);
[[nodiscard]] std::optional<QString> standupProblem(const QString &text, const Labels &labels, const QStringList &names,
                                                    const QString &factsText, const QString &lang);

// 65 → "1 h 5 min" (Japanese without blanks: "1時間5分"); negative counts as 0.
[[nodiscard]] QString formatDuration(int minutes, const QString &lang);
[[nodiscard]] QString formatMoney(double amount, const QString &currency, const QString &lang);
[[nodiscard]] QString joinNames(const QStringList &names, const Phrases &phrases, int max);
// The stand-up words; the first is the weekday's name when the last workday was not yesterday.
[[nodiscard]] Labels labels(const QString &lang, const StandupFacts &facts);
[[nodiscard]] QString weekdayName(const QString &isoDate, const QString &lang);
// Noon UTC of a day, so that no zone moves it when it is formatted.
[[nodiscard]] QDateTime noonUTC(const QString &isoDate);
[[nodiscard]] QString formatDate(const QString &isoDate, const QString &lang);

} // namespace WorkSummary
