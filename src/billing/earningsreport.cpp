#include "earningsreport.h"

#include "billing/earnings.h"
#include "model/isodate.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace EarningsReport {

namespace {

struct Unit
{
    Billing billing;
    bool legacy = false;
    QList<qsizetype> members; // indexes into the priced list
};

bool timeBased(const Billing &billing)
{
    return billing.model == BillingModel::Hourly || billing.model == BillingModel::Daily;
}

// The share of a unit's time price left after a percentage discount; absolute discounts are a
// once-per-unit part.
double percentFactor(const Billing &billing)
{
    if (!billing.discountIsPct.value_or(false) || !billing.discount || *billing.discount == 0) {
        return 1;
    }
    return std::max(0.0, 1 - *billing.discount / 100);
}

void add(Row &row, const PricedEntry &priced)
{
    row.earned += priced.earned;
    row.billed += priced.billed;
    row.seconds += priced.entry.durationSeconds;
    row.entryIds << priced.entry.id;
}

} // namespace

std::optional<double> Row::effectiveRate() const
{
    if (seconds <= 0) {
        return std::nullopt;
    }
    return earned / hours();
}

QList<PricedEntry> price(const Sources &sources)
{
    QHash<QString, const TaskItem *> tasks;
    for (const TaskItem &task : sources.tasks) {
        tasks.insert(task.id, &task);
    }
    QHash<QString, const Project *> projects;
    for (const Project &project : sources.projects) {
        projects.insert(project.id, &project);
    }
    const QTimeZone zone = sources.zone.isValid() ? sources.zone : QTimeZone::utc();

    struct Dated
    {
        PricedEntry priced;
        QDateTime start;
    };
    QList<Dated> dated;
    dated.reserve(sources.entries.size());
    for (const TimeEntry &entry : sources.entries) {
        Dated item;
        item.priced.entry = entry;
        // A duration from outside is not trusted to be positive.
        item.priced.entry.durationSeconds = std::max<qint64>(0, entry.durationSeconds);
        item.start = isoDate(entry.startedAt).value_or(isoDate(entry.endedAt).value_or(QDateTime()));
        if (item.start.isValid()) {
            item.priced.day = item.start.toTimeZone(zone).date();
        }
        dated << item;
    }
    // Oldest first; equal starts by id, so that "the latest entry" of a unit does not depend on
    // the order of the answer.
    std::stable_sort(dated.begin(), dated.end(), [](const Dated &a, const Dated &b) {
        if (a.start != b.start) {
            return a.start < b.start;
        }
        return a.priced.entry.id < b.priced.entry.id;
    });

    QList<PricedEntry> result;
    result.reserve(dated.size());
    QList<double> timeBases; // each entry's time price before a percentage discount
    timeBases.reserve(dated.size());
    QHash<QString, Unit> units;
    QList<QString> unitOrder;
    for (Dated &item : dated) {
        PricedEntry &priced = item.priced;
        const TaskItem *task = tasks.value(priced.entry.taskId);
        priced.projectId =
            !priced.entry.projectId.isEmpty() ? priced.entry.projectId : (task ? task->projectId : QString());
        const Project *project = projects.value(priced.projectId);
        const double legacy = Earnings::legacyRate(task, project, sources.defaultHourlyRate);
        Billing billing;
        bool isLegacy = false;
        if ((!task || !task->billing) && project && project->billing) {
            priced.unitKey = u"pool:"_s + priced.projectId;
            billing = *project->billing;
        } else if (task && task->billing) {
            priced.unitKey = u"task:"_s + priced.entry.taskId;
            billing = *task->billing;
        } else {
            priced.unitKey = u"legacy:"_s + priced.entry.taskId;
            billing = Earnings::resolve(task, project, sources.defaultHourlyRate);
            isLegacy = true;
        }
        const double timeBase = timeBased(billing) ? Earnings::base(billing, priced.entry.durationSeconds, legacy) : 0;
        priced.earned = timeBase * percentFactor(billing);
        timeBases << timeBase;
        auto found = units.find(priced.unitKey);
        if (found == units.end()) {
            found = units.insert(priced.unitKey, Unit{billing, isLegacy, {}});
            unitOrder << priced.unitKey;
        }
        found->members << result.size();
        result << priced;
    }

    for (const QString &key : std::as_const(unitOrder)) {
        const Unit &unit = std::as_const(units)[key];
        if (unit.legacy || !Earnings::hasOneOffParts(unit.billing)) {
            continue;
        }
        double timePrice = 0;
        double timeBase = 0;
        bool anyBilled = false;
        for (qsizetype index : unit.members) {
            const PricedEntry &member = result[index];
            timePrice += member.earned;
            timeBase += timeBases[index];
            anyBilled = anyBilled || sources.billedEntryIds.contains(member.entry.id);
        }
        const double unitBase = timeBased(unit.billing) ? timeBase : Earnings::base(unit.billing, 0, 0);
        PricedEntry &latest = result[unit.members.last()];
        latest.oneOff = Earnings::applyExtras(unit.billing, unitBase) - timePrice;
        latest.earned += latest.oneOff;
        if (anyBilled) {
            latest.billed += latest.oneOff;
        }
    }
    for (PricedEntry &priced : result) {
        if (sources.billedEntryIds.contains(priced.entry.id)) {
            priced.billed += priced.earned - priced.oneOff;
        }
    }
    return result;
}

QDate periodStart(QDate day, Grouping grouping)
{
    if (!day.isValid()) {
        return {};
    }
    if (grouping == Grouping::Week) {
        return day.addDays(1 - day.dayOfWeek());
    }
    return QDate(day.year(), day.month(), 1);
}

QDate periodEnd(QDate start, Grouping grouping)
{
    if (grouping == Grouping::Week) {
        return start.addDays(6);
    }
    return start.addMonths(1).addDays(-1);
}

QList<Row> byPeriod(const QList<PricedEntry> &entries, Grouping grouping, QDate from, QDate to)
{
    QList<Row> rows;
    const QDate first = periodStart(from, grouping);
    const QDate last = periodStart(to, grouping);
    if (!first.isValid() || !last.isValid() || first > last) {
        return rows;
    }
    QHash<QDate, qsizetype> index;
    for (QDate start = first; start <= last; start = periodEnd(start, grouping).addDays(1)) {
        index.insert(start, rows.size());
        rows << Row{start, periodEnd(start, grouping), {}, 0, 0, 0, {}};
    }
    for (const PricedEntry &priced : entries) {
        const auto found = index.constFind(periodStart(priced.day, grouping));
        if (found != index.constEnd()) {
            add(rows[*found], priced);
        }
    }
    return rows;
}

QList<Row> byProject(const QList<PricedEntry> &entries)
{
    QList<Row> rows;
    QHash<QString, qsizetype> index;
    for (const PricedEntry &priced : entries) {
        auto found = index.constFind(priced.projectId);
        if (found == index.constEnd()) {
            found = index.insert(priced.projectId, rows.size());
            Row row;
            row.projectId = priced.projectId;
            rows << row;
        }
        add(rows[*found], priced);
    }
    std::stable_sort(rows.begin(), rows.end(), [](const Row &a, const Row &b) {
        if (a.earned != b.earned) {
            return a.earned > b.earned;
        }
        return a.projectId < b.projectId;
    });
    return rows;
}

Row total(const QList<PricedEntry> &entries)
{
    Row row;
    for (const PricedEntry &priced : entries) {
        add(row, priced);
    }
    return row;
}

} // namespace EarningsReport
