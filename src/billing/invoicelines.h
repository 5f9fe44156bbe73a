#pragma once

#include "billing/earnings.h"
#include "model/billing.h"
#include "model/invoicedraft.h"
#include "model/project.h"
#include "model/taskitem.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

#include <optional>

// From unbilled time to invoice lines and their VAT. Pure: the composer hands in what it selected
// and what was billed before, and gets back lines, amounts and VAT groups ready for the preview,
// the PDF and the rows that are saved.
namespace Earnings {

// One selected task with the unbilled time of the invoice period.
struct ComposerTask
{
    TaskItem task;
    std::optional<Project> project;
    qint64 seconds = 0;
    QList<QString> entryIds;
};

struct BuiltLine
{
    enum class Kind { Work, Fixed, PerUnit, MinCharge, Surcharge, Materials, Discount, Travel };

    Kind kind = Kind::Work;
    // A short tag beside the title: "fixed price", "Project price", "Project extras", "FOLLOW-UP";
    // for an extra of a task's own price, the task's title.
    QString label;
    // The line's main text: the task's title, or the extra's name ("Minimum charge", the call-out
    // fee's own label, ...), or "Project price" for a project's price.
    QString title;
    // Why the line is as it is: "once per project", "included in the project price",
    // "new time only · extras already billed", ...
    std::optional<QString> description;
    double quantity = 0;
    std::optional<QString> unit;
    double unitPrice = 0;
    double amount = 0; // rounded to cents; negative for a discount
    std::optional<QString> taskId;
    QString unitKey;
    std::optional<double> vatRate; // a fraction, from the unit's price setting
    friend bool operator==(const BuiltLine &, const BuiltLine &) = default;
};

enum class UnitKind { Own, Pool, Legacy };

// A group of tasks billed under one price setting: a task with its own (own), the tasks that
// follow their project's (pool: one price and one set of extras for all of them), or a task
// priced by the legacy rate columns (legacy).
struct BuiltUnit
{
    QString key; // "task:<id>", "pool:<project id>", "legacy:<id>"
    UnitKind kind = UnitKind::Legacy;
    QString projectId;
    QString projectName;
    QList<QString> taskIds;
    Billing billing;
    bool billedBefore = false; // its one-off parts are on a live invoice already
    bool followUp = false;     // billed before and not billed again: only new time is billed
    bool hasOneOffs = false;
    bool oneOffs = false; // the one-off parts are billed on this invoice
    QList<BuiltLine> lines;
    double total = 0;
};

struct BuildResult
{
    QList<BuiltUnit> units;
    QList<BuiltLine> lines; // every unit's lines: tasks' own and legacy units first, then pools
    double subtotal = 0;
    QHash<QString, double> byTask;             // task id -> amount of its lines
    QHash<QString, double> poolExtraByProject; // project id -> project price and extras of its pool
};

// The words the builder writes into lines, in the interface language (lineLabels()) or any other.
struct LineLabels
{
    QString hours = QStringLiteral("h");
    QString days = QStringLiteral("day");
    QString units = QStringLiteral("unit");
    QString fixedPrice = QStringLiteral("fixed price");
    QString projectPrice = QStringLiteral("Project price");
    QString minCharge = QStringLiteral("Minimum charge");
    QString surcharge = QStringLiteral("Call-out fee");
    QString materials = QStringLiteral("Materials");
    QString discount = QStringLiteral("Discount");
    QString followUp = QStringLiteral("FOLLOW-UP");
    QString onlyNewTime = QStringLiteral("new time only");
    QString projectExtras = QStringLiteral("Project extras");
    QString oncePerProject = QStringLiteral("once per project");
    QString inProjectPrice = QStringLiteral("included in the project price");
    QString priceBilledBefore = QStringLiteral("fixed price already billed");
    QString extrasBilledBefore = QStringLiteral("extras already billed");
};

// The line words of the interface language.
[[nodiscard]] LineLabels lineLabels();

// Turns the selected tasks into invoice lines. A unit whose task is in `priorTasks`, or whose
// pool's project is in `priorPoolProjects`, had its one-off parts billed before: it bills its new
// time only, unless its key is in `rebillUnitKeys`. Each line amount is rounded to cents.
[[nodiscard]] BuildResult buildInvoiceLines(const QList<ComposerTask> &tasks, double defaultHourlyRate,
                                            const QSet<QString> &priorTasks, const QSet<QString> &priorPoolProjects,
                                            const QSet<QString> &rebillUnitKeys, const LineLabels &labels);

// --- VAT --------------------------------------------------------------------------------------------

// The lines that share one VAT percentage; the renderer draws the same record.
using VatGroup = InvoiceVatGroup;

struct VatResult
{
    QList<VatGroup> groups; // ascending by percentage; a 0 % group carries its base and no VAT
    double vat = 0;
    double total = 0;
};

// VAT of `lines`: each line at `manualPercent` when set, else at its own rate, else at
// `defaultPercent` (the template's). Each group is rounded to cents on its own base.
[[nodiscard]] VatResult computeVat(const QList<BuiltLine> &lines, double subtotal,
                                   std::optional<double> manualPercent, double defaultPercent);

// The VAT percentage of a stored invoice: the simplest rate (whole before tenths) that turns
// `subtotal` into exactly `vatAmount` after rounding to cents. 0 when there is no VAT; nothing when
// no single rate reproduces the amount (lines at several rates) or the subtotal is not positive.
[[nodiscard]] std::optional<double> inferVatPercent(double subtotal, double vatAmount);

// One VAT row of the composer's totals: its text and amount.
struct VatRow
{
    QString text;
    double amount = 0;
    friend bool operator==(const VatRow &, const VatRow &) = default;
};

// The VAT rows under the subtotal: "VAT 21%" for a single rate, "VAT 9% on €100.00" per rate when
// there are several, "No VAT on these lines" when nothing carries VAT.
[[nodiscard]] QList<VatRow> vatRows(const QList<VatGroup> &groups, const QString &currency);

// The composer's other words about totals and billing again, in the interface language.
struct ComposerWords
{
    QString subtotal;
    QString total;
    QString rebill;
    QString rebillHelp;
    QString vatHint;
    QString vatOverride;
};

[[nodiscard]] ComposerWords composerWords();

} // namespace Earnings
