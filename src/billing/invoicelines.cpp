#include "billing/invoicelines.h"

#include <QMap>

#include <algorithm>
#include <cmath>

namespace Earnings {

namespace {

bool isSet(const std::optional<double> &value)
{
    return value && std::isfinite(*value) && *value != 0;
}

// Extras that are given once per unit of work; the percentage discount scales with the time
// billed and is left out on purpose.
bool hasOneOffExtras(const Billing &billing)
{
    return (billing.minCharge && *billing.minCharge > 0) || isSet(billing.surcharge) || isSet(billing.materials)
        || (isSet(billing.discount) && !billing.discountIsPct.value_or(false));
}

bool isTimeBased(BillingModel model)
{
    return model == BillingModel::Hourly || model == BillingModel::Daily;
}

const Project *projectOf(const ComposerTask &task)
{
    return task.project ? &*task.project : nullptr;
}

struct UnitDraft
{
    BuiltUnit unit;
    QList<const ComposerTask *> tasks;
};

class UnitBuilder
{
public:
    UnitBuilder(UnitDraft &draft, double defaultHourlyRate, const LineLabels &labels)
        : m_unit(draft.unit)
        , m_tasks(draft.tasks)
        , m_defaultRate(defaultHourlyRate)
        , m_labels(labels)
    {
    }

    void build()
    {
        const Billing &billing = m_unit.billing;
        if (isTimeBased(billing.model)) {
            for (const ComposerTask *task : m_tasks) {
                addWork(*task);
            }
        } else if (m_unit.followUp) {
            // The price covered this work already; new time is listed so that its entries are
            // accounted for, at no charge.
            for (const ComposerTask *task : m_tasks) {
                addUncharged(*task, m_labels.followUp, followUpNote());
            }
        } else {
            addPrice();
            if (m_unit.kind == UnitKind::Pool) {
                for (const ComposerTask *task : m_tasks) {
                    addUncharged(*task, QString(), m_labels.inProjectPrice);
                }
            }
        }
        addExtras();
        double sum = 0;
        for (const BuiltLine &line : std::as_const(m_unit.lines)) {
            sum += line.amount;
        }
        m_unit.total = round2(sum);
    }

private:
    BuiltLine line(BuiltLine::Kind kind) const
    {
        BuiltLine built;
        built.kind = kind;
        built.unitKey = m_unit.key;
        built.vatRate = m_unit.billing.vatRate && std::isfinite(*m_unit.billing.vatRate)
            ? m_unit.billing.vatRate
            : std::nullopt;
        return built;
    }

    double runningTotal() const
    {
        double sum = 0;
        for (const BuiltLine &built : m_unit.lines) {
            sum += built.amount;
        }
        return round2(sum);
    }

    QString followUpNote() const
    {
        QStringList parts;
        parts << (isTimeBased(m_unit.billing.model) ? m_labels.onlyNewTime : m_labels.priceBilledBefore);
        if (hasOneOffExtras(m_unit.billing)) {
            parts << m_labels.extrasBilledBefore;
        }
        return parts.join(QStringLiteral(" · "));
    }

    void addWork(const ComposerTask &task)
    {
        const Billing &billing = m_unit.billing;
        const double rate = legacyRate(&task.task, projectOf(task), m_defaultRate);
        BuiltLine work = line(BuiltLine::Kind::Work);
        work.title = task.task.title;
        work.taskId = task.task.id;
        if (billing.model == BillingModel::Daily) {
            work.quantity = billableDays(billing, task.seconds);
            work.unit = m_labels.days;
            work.unitPrice = billing.dayRate && std::isfinite(*billing.dayRate) ? *billing.dayRate : 0;
        } else {
            work.quantity = double(task.seconds) / 3600.0;
            work.unit = m_labels.hours;
            work.unitPrice = hourlyRate(billing, rate);
        }
        work.amount = round2(base(billing, task.seconds, rate));
        if (m_unit.followUp) {
            work.label = m_labels.followUp;
            work.description = followUpNote();
        }
        m_unit.lines << work;
    }

    void addUncharged(const ComposerTask &task, const QString &label, const QString &note)
    {
        BuiltLine work = line(BuiltLine::Kind::Work);
        work.title = task.task.title;
        work.taskId = task.task.id;
        work.label = label;
        work.description = note;
        work.quantity = double(task.seconds) / 3600.0;
        work.unit = m_labels.hours;
        m_unit.lines << work;
    }

    void addPrice()
    {
        const Billing &billing = m_unit.billing;
        const bool fixed = billing.model == BillingModel::Fixed;
        BuiltLine price = line(fixed ? BuiltLine::Kind::Fixed : BuiltLine::Kind::PerUnit);
        price.amount = round2(base(billing, 0, 0));
        if (fixed) {
            price.quantity = 1;
            price.unitPrice = price.amount;
        } else {
            price.quantity = billing.unitQuantity.value_or(0);
            price.unitPrice = billing.unitPrice.value_or(0);
            price.unit = billing.unitLabel && !billing.unitLabel->isEmpty() ? *billing.unitLabel : m_labels.units;
        }
        if (m_unit.kind == UnitKind::Pool) {
            price.title = m_labels.projectPrice;
            price.label = m_unit.projectName;
            price.description = m_labels.oncePerProject;
        } else {
            const ComposerTask &task = *m_tasks.front();
            price.title = task.task.title;
            price.taskId = task.task.id;
            if (fixed) {
                price.label = m_labels.fixedPrice;
            }
        }
        m_unit.lines << price;
    }

    void addExtra(BuiltLine::Kind kind, const QString &title, double amount, std::optional<QString> note = {})
    {
        BuiltLine extra = line(kind);
        extra.title = title;
        extra.quantity = 1;
        extra.amount = amount;
        extra.unitPrice = amount;
        if (m_unit.kind == UnitKind::Pool) {
            extra.label = m_labels.projectExtras;
            extra.description = note ? *note + QStringLiteral(" · ") + m_labels.oncePerProject : m_labels.oncePerProject;
        } else {
            const ComposerTask &task = *m_tasks.front();
            extra.label = task.task.title;
            extra.taskId = task.task.id;
            extra.description = std::move(note);
        }
        if (m_unit.followUp) {
            extra.label = m_labels.followUp;
        }
        m_unit.lines << extra;
    }

    void addExtras()
    {
        const Billing &billing = m_unit.billing;
        if (m_unit.oneOffs) {
            if (billing.minCharge && std::isfinite(*billing.minCharge) && *billing.minCharge > 0) {
                const double topUp = round2(*billing.minCharge - runningTotal());
                if (topUp > 0) {
                    addExtra(BuiltLine::Kind::MinCharge, m_labels.minCharge, topUp);
                }
            }
            if (isSet(billing.surcharge)) {
                const QString title = billing.surchargeLabel && !billing.surchargeLabel->trimmed().isEmpty()
                    ? billing.surchargeLabel->trimmed()
                    : m_labels.surcharge;
                addExtra(BuiltLine::Kind::Surcharge, title, round2(*billing.surcharge));
            }
            if (isSet(billing.materials)) {
                addExtra(BuiltLine::Kind::Materials, m_labels.materials, round2(*billing.materials));
            }
        }
        if (!isSet(billing.discount)) {
            return;
        }
        const bool percent = billing.discountIsPct.value_or(false);
        if (!percent && !m_unit.oneOffs) {
            return;
        }
        const double running = runningTotal();
        if (running <= 0) {
            return;
        }
        // Never more than what is there to discount: the unit does not go below zero.
        const double deduction = percent ? *billing.discount / 100.0 * running : *billing.discount;
        const double amount = -round2(std::min(deduction, running));
        if (amount == 0) {
            return;
        }
        std::optional<QString> note;
        if (percent) {
            note = formatQty(*billing.discount) + QStringLiteral("%");
        }
        addExtra(BuiltLine::Kind::Discount, m_labels.discount, amount, note);
    }

    BuiltUnit &m_unit;
    const QList<const ComposerTask *> &m_tasks;
    double m_defaultRate;
    const LineLabels &m_labels;
};

double normalisedPercent(double percent)
{
    // 0.21 × 100 is 21.000000000000004: lines at the same rate must land in the same group.
    return std::round(percent * 10000.0) / 10000.0 + 0.0;
}

} // namespace

LineLabels lineLabels()
{
    LineLabels labels;
    labels.hours = qtTrId("inv.unit.hours");
    labels.days = qtTrId("inv.unit.days");
    labels.units = qtTrId("inv.unit.units");
    labels.fixedPrice = qtTrId("inv.line.fixedPrice");
    labels.projectPrice = qtTrId("inv.line.projectPrice");
    labels.minCharge = qtTrId("inv.line.minimum");
    labels.surcharge = qtTrId("inv.line.surcharge");
    labels.materials = qtTrId("inv.line.materials");
    labels.discount = qtTrId("inv.line.discount");
    labels.followUp = qtTrId("inv.followUp");
    labels.onlyNewTime = qtTrId("inv.onlyNewTime");
    labels.projectExtras = qtTrId("inv.projectExtras");
    labels.oncePerProject = qtTrId("inv.oncePerProject");
    labels.inProjectPrice = qtTrId("inv.inProjectPrice");
    labels.priceBilledBefore = qtTrId("inv.priceBilledBefore");
    labels.extrasBilledBefore = qtTrId("inv.extrasBilledBefore");
    return labels;
}

BuildResult buildInvoiceLines(const QList<ComposerTask> &tasks, double defaultHourlyRate,
                              const QSet<QString> &priorTasks, const QSet<QString> &priorPoolProjects,
                              const QSet<QString> &rebillUnitKeys, const LineLabels &labels)
{
    QList<UnitDraft> single; // own and legacy units, in the order of the tasks
    QList<UnitDraft> pools;
    QHash<QString, qsizetype> poolIndex;

    for (const ComposerTask &task : tasks) {
        const Project *project = projectOf(task);
        if (!task.task.billing && project && project->billing) {
            const QString projectId = project->id.isEmpty() ? task.task.projectId : project->id;
            const QString key = QStringLiteral("pool:") + projectId;
            auto found = poolIndex.constFind(key);
            if (found == poolIndex.constEnd()) {
                UnitDraft draft;
                draft.unit.key = key;
                draft.unit.kind = UnitKind::Pool;
                draft.unit.projectId = projectId;
                draft.unit.projectName = project->name;
                draft.unit.billing = *project->billing;
                draft.unit.billedBefore = priorPoolProjects.contains(projectId);
                found = poolIndex.insert(key, pools.size());
                pools << draft;
            }
            UnitDraft &draft = pools[*found];
            draft.unit.taskIds << task.task.id;
            draft.tasks << &task;
            continue;
        }
        UnitDraft draft;
        const bool own = task.task.billing.has_value();
        draft.unit.key = (own ? QStringLiteral("task:") : QStringLiteral("legacy:")) + task.task.id;
        draft.unit.kind = own ? UnitKind::Own : UnitKind::Legacy;
        draft.unit.projectId = project && !project->id.isEmpty() ? project->id : task.task.projectId;
        draft.unit.projectName = project ? project->name : QString();
        draft.unit.billing = resolve(&task.task, project, defaultHourlyRate);
        draft.unit.billedBefore = own && priorTasks.contains(task.task.id);
        draft.unit.taskIds << task.task.id;
        draft.tasks << &task;
        single << draft;
    }

    BuildResult result;
    double sum = 0;
    single << pools;
    for (UnitDraft &draft : single) {
        BuiltUnit &unit = draft.unit;
        unit.hasOneOffs = unit.kind != UnitKind::Legacy && hasOneOffParts(unit.billing);
        unit.followUp = unit.billedBefore && !rebillUnitKeys.contains(unit.key);
        unit.oneOffs = unit.hasOneOffs && !unit.followUp;
        UnitBuilder(draft, defaultHourlyRate, labels).build();
        for (const BuiltLine &line : std::as_const(unit.lines)) {
            sum += line.amount;
            if (line.taskId) {
                result.byTask[*line.taskId] += line.amount;
            } else if (unit.kind == UnitKind::Pool) {
                result.poolExtraByProject[unit.projectId] += line.amount;
            }
        }
        result.lines << unit.lines;
        result.units << unit;
    }
    for (double &amount : result.byTask) {
        amount = round2(amount);
    }
    for (double &amount : result.poolExtraByProject) {
        amount = round2(amount);
    }
    result.subtotal = round2(sum);
    return result;
}

VatResult computeVat(const QList<BuiltLine> &lines, double subtotal, std::optional<double> manualPercent,
                     double defaultPercent)
{
    QMap<double, double> sums;
    for (const BuiltLine &line : lines) {
        double percent = defaultPercent;
        if (manualPercent) {
            percent = *manualPercent;
        } else if (line.vatRate && std::isfinite(*line.vatRate)) {
            percent = *line.vatRate * 100.0;
        }
        if (!std::isfinite(percent)) {
            percent = 0;
        }
        sums[normalisedPercent(percent)] += line.amount;
    }
    VatResult result;
    double vat = 0;
    for (auto it = sums.cbegin(); it != sums.cend(); ++it) {
        VatGroup group;
        group.percent = it.key();
        group.base = round2(it.value());
        group.amount = group.percent == 0 ? 0 : round2(group.base * group.percent / 100.0);
        vat += group.amount;
        result.groups << group;
    }
    result.vat = round2(vat);
    result.total = round2(subtotal + result.vat);
    return result;
}

std::optional<double> inferVatPercent(double subtotal, double vatAmount)
{
    if (!std::isfinite(subtotal) || !std::isfinite(vatAmount)) {
        return std::nullopt;
    }
    const double target = round2(vatAmount);
    if (target == 0) {
        return 0.0;
    }
    if (subtotal <= 0) {
        return std::nullopt;
    }
    const double ratio = target / subtotal * 100.0;
    std::optional<double> best;
    bool bestWhole = false;
    // Tenths of a percent up to 100 %: whole rates first, then the one nearest the plain ratio.
    for (int tenths = 1; tenths <= 1000; ++tenths) {
        const double candidate = tenths / 10.0;
        if (round2(subtotal * candidate / 100.0) != target) {
            continue;
        }
        const bool whole = tenths % 10 == 0;
        if (!best || (whole && !bestWhole)
            || (whole == bestWhole && std::abs(candidate - ratio) < std::abs(*best - ratio))) {
            best = candidate;
            bestWhole = whole;
        }
    }
    return best;
}

QList<VatRow> vatRows(const QList<VatGroup> &groups, const QString &currency)
{
    QList<VatGroup> taxed;
    for (const VatGroup &group : groups) {
        if (group.percent > 0) {
            taxed << group;
        }
    }
    QList<VatRow> rows;
    if (taxed.isEmpty()) {
        rows << VatRow{qtTrId("inv.vat.none"), 0};
    } else if (taxed.size() == 1) {
        rows << VatRow{qtTrId("inv.vat.row").arg(formatQty(taxed.front().percent)), taxed.front().amount};
    } else {
        for (const VatGroup &group : std::as_const(taxed)) {
            rows << VatRow{qtTrId("inv.vat.rowOver").arg(formatQty(group.percent), formatMoney(group.base, currency)),
                           group.amount};
        }
    }
    return rows;
}

ComposerWords composerWords()
{
    return ComposerWords{
        .subtotal = qtTrId("inv.subtotal"),
        .total = qtTrId("inv.total"),
        .rebill = qtTrId("inv.rebill"),
        .rebillHelp = qtTrId("inv.rebillHelp"),
        .vatHint = qtTrId("inv.vat.hint"),
        .vatOverride = qtTrId("inv.vat.override"),
    };
}

} // namespace Earnings
