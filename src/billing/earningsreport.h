#pragma once

#include "model/project.h"
#include "model/taskitem.h"
#include "model/timeentry.h"

#include <QDate>
#include <QList>
#include <QSet>
#include <QString>
#include <QTimeZone>

#include <optional>

// Earned, billed and still unbilled money of tracked time, by period and by project. Pure: the
// earnings view and the command line hand in what they have read and get back figures; money stays
// unrounded until it is shown (formatMoney).
//
// Entries are priced in the units the invoice composer bills: a task with its own price setting,
// the tasks that follow their project's setting (one price and one set of extras for all of them),
// or a task on the legacy rate columns. Within a unit:
// - Hourly and daily prices follow the clock: each entry earns the price of its own time (a
//   percentage discount, which scales with time, already taken off) on the day it started.
// - What does not follow the clock (a fixed or per-unit price, a minimum charge's top-up, a call-out
//   fee, materials, an absolute discount) is earned once per unit, not per entry: it rides on the
//   unit's latest entry among those handed in, so it lands in that entry's period and in the
//   project's total, and the unit's entries together earn exactly what one invoice of all of them
//   would charge. A report over a later period that holds newer entries of the same unit counts it
//   there instead, never twice in one report.
// - An entry's time counts as billed when the entry is on an invoice; the once-per-unit part counts
//   as billed as soon as any entry of its unit is, since the composer bills it with the first
//   invoice and a follow-up carries only new time.
namespace EarningsReport {

enum class Grouping { Week, Month };

struct Sources
{
    QList<TimeEntry> entries;
    QList<TaskItem> tasks;
    QList<Project> projects;
    QSet<QString> billedEntryIds;
    double defaultHourlyRate = 0;
    // The user's zone, in which days and weeks begin; UTC when not valid.
    QTimeZone zone;
};

// One entry and its money.
struct PricedEntry
{
    TimeEntry entry;
    QDate day; // the day it started, in the user's zone; null when its times cannot be read
    QString projectId;
    QString unitKey;
    double earned = 0; // its time's price plus, on the unit's latest entry, the once-per-unit part
    double oneOff = 0; // the once-per-unit part within `earned`
    double billed = 0;
};

struct Row
{
    // A period's first and last day; both null on a project's row.
    QDate start;
    QDate end;
    QString projectId; // empty on a period's row
    double earned = 0;
    double billed = 0;
    qint64 seconds = 0;
    QList<QString> entryIds; // oldest first

    [[nodiscard]] double unbilled() const { return earned - billed; }
    [[nodiscard]] double hours() const { return double(seconds) / 3600; }
    // Earned ÷ hours; none without hours.
    [[nodiscard]] std::optional<double> effectiveRate() const;
};

// Every entry priced, in the order of their start.
[[nodiscard]] QList<PricedEntry> price(const Sources &sources);

// The first day of the period holding `day`: its week's Monday or its month's first.
[[nodiscard]] QDate periodStart(QDate day, Grouping grouping);
[[nodiscard]] QDate periodEnd(QDate start, Grouping grouping);

// A row for every period from the one holding `from` to the one holding `to`, empty ones included
// so that a chart shows the gaps, oldest first. Entries outside them are left out.
[[nodiscard]] QList<Row> byPeriod(const QList<PricedEntry> &entries, Grouping grouping, QDate from, QDate to);

// A row per project that has entries, most earned first (then by id, for a stable order).
[[nodiscard]] QList<Row> byProject(const QList<PricedEntry> &entries);

// Everything in one row.
[[nodiscard]] Row total(const QList<PricedEntry> &entries);

} // namespace EarningsReport
