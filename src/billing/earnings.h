#pragma once

#include "billing/money.h"
#include "model/billing.h"
#include "model/project.h"
#include "model/taskitem.h"

#include <QString>

#include <optional>

// How tracked time turns into money: the effective price setting of a task, the net amount of a
// price setting, what a price editor saves, and the short texts that summarise a price. Every
// function is pure; money stays unrounded here until it becomes an invoice line (round2).
namespace Earnings {

using ::formatHM;
using ::formatMoney;
using ::round2;

// The columns a task price save writes; an absent value is written as null.
struct PriceColumns
{
    std::optional<Billing> billing;
    std::optional<double> hourlyRate;
    std::optional<double> totalPrice;
    friend bool operator==(const PriceColumns &, const PriceColumns &) = default;
};

// What a project price save writes. The legacy hourly rate follows an hourly setting so that
// readers of the old column see the same rate.
struct ProjectBillingWrite
{
    Billing billing;
    std::optional<double> hourlyRate;
    friend bool operator==(const ProjectBillingWrite &, const ProjectBillingWrite &) = default;
};

// --- Choosing the price -------------------------------------------------------------------------

// The price setting a task bills under: its own, else its project's (the task inherits it), else
// hourly at the legacy rate. `task` and `project` may be null.
[[nodiscard]] Billing resolve(const TaskItem *task, const Project *project, double defaultHourlyRate);

// The hourly rate of the columns that predate price settings: the task's rate, else the
// project's, else `defaultHourlyRate` (the profile's). A rate of 0 or NaN is no rate.
[[nodiscard]] double legacyRate(const TaskItem *task, const Project *project, double defaultHourlyRate);

// --- Arithmetic -------------------------------------------------------------------------------

// The rate an hourly setting bills at: its own when set (not 0, not NaN), else `legacyRate`
// (NaN counting as 0).
[[nodiscard]] double hourlyRate(const Billing &billing, double legacyRate);

// The billable days of `seconds` under a daily setting: hours ÷ `day_hours` (8 when absent, no
// days when not positive). Not rounded.
[[nodiscard]] double billableDays(const Billing &billing, qint64 seconds);

// The price of the tracked time alone, before the extras. Fixed and per-unit prices do not
// depend on time.
[[nodiscard]] double base(const Billing &billing, qint64 seconds, double legacyRate);

// The net amount from `base`: minimum charge, then call-out fee and materials, then the discount
// (a percentage of everything before it, or an absolute amount); never below 0.
[[nodiscard]] double applyExtras(const Billing &billing, double base);

// applyExtras(billing, base(billing, seconds, legacyRate)): the net, before VAT.
[[nodiscard]] double amount(const Billing &billing, qint64 seconds, double legacyRate);

// Whether the setting holds parts billed once per unit of work rather than per hour: a fixed or
// per-unit price, a minimum charge, a call-out fee, materials or an absolute discount. A
// percentage discount scales with the time billed and is not one.
[[nodiscard]] bool hasOneOffParts(const Billing &billing);

// --- What an editor saves -------------------------------------------------------------------------

// A copy in which an hourly setting's rate is kept only when finite and positive, so that an
// empty or zero rate leaves the legacy rate in charge. Other models are copied unchanged.
[[nodiscard]] Billing cleanBilling(const Billing &billing);

// The form of a setting in which only differences that change a price, an invoice or a summary
// remain, so that two settings that compare equal here are the same price: fields of other
// models, values that mean the same as their absence (a zero extra, 8 hours per day, an empty
// label, a false percentage switch), and values that are not finite are left out. A VAT rate of
// 0 stays apart from an absent one, which invoices replace by their default.
[[nodiscard]] Billing comparableBilling(const Billing &billing);

// The setting a project's price editor starts from: the project's own, else hourly at the
// project's legacy rate, else at `defaultHourlyRate`, else without a rate.
[[nodiscard]] Billing editorBilling(const Project &project, std::optional<double> defaultHourlyRate);

// What saving the project price editor writes; nothing when the edited setting `current` is,
// once cleaned, comparably equal to the `loaded` one.
[[nodiscard]] std::optional<ProjectBillingWrite> projectBillingWrite(const std::optional<Billing> &loaded,
                                                                     const Billing &current);

// --- Summaries --------------------------------------------------------------------------------------

// The one-line price of a task or project: "€85.00/h", "€1,200.00", "3 visit × €40.00", "€600.00/day".
// An hourly setting without its own rate shows `legacyRate`.
[[nodiscard]] QString describe(const Billing &billing, const QString &currency, std::optional<double> legacyRate);

// The extras in one line ("+ Voorrijkosten · − 10% korting · 21% BTW"), none when there are no
// extras. These words are Dutch in every language.
[[nodiscard]] std::optional<QString> describeExtras(const Billing &billing, const QString &currency);

// The note on a task that follows its project's price: "Inherited from Website".
[[nodiscard]] QString inheritedFrom(const QString &projectName);

// A quantity: whole numbers without decimals, others with one.
[[nodiscard]] QString formatQty(double x);

// A percentage rounded to a whole number, halves away from zero.
[[nodiscard]] QString formatPercent(double x);

} // namespace Earnings
