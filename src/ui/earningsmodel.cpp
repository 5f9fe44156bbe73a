#include "earningsmodel.h"

#include "backend/authstore.h"
#include "billing/money.h"
#include "model/error.h"
#include "store/appstore.h"
#include "store/periodentries.h"
#include "store/storetext.h"

#include <QLocale>
#include <QTimeZone>

#include <QCoroTask>

using namespace Qt::StringLiterals;
using EarningsReport::Grouping;
using EarningsReport::Row;

namespace {

QString dayText(QDate day)
{
    //: A date format (Qt's QDate::toString) for a day without its year, as in a chart's labels.
    //% "d MMM"
    return QLocale().toString(day, qtTrId("ui.earnings.dayFormat"));
}

QString fullDayText(QDate day)
{
    //: A date format (Qt's QDate::toString) for a day with its year.
    //% "d MMM yyyy"
    return QLocale().toString(day, qtTrId("ui.earnings.dateFormat"));
}

QString monthText(QDate day)
{
    //: A date format (Qt's QDate::toString) for a month and its year.
    //% "MMM yyyy"
    return QLocale().toString(day, qtTrId("ui.earnings.monthFormat"));
}

QString hoursText(qint64 seconds)
{
    return QLocale().toString(double(seconds) / 3600, 'f', 1);
}

} // namespace

EarningsModel::EarningsModel(Clock clock, QObject *parent)
    : QObject(parent)
    , m_clock(std::move(clock))
{
    // A refresh changes projects, tasks, entries and the billed set one after the other.
    m_rebuild.setSingleShot(true);
    m_rebuild.setInterval(0);
    connect(&m_rebuild, &QTimer::timeout, this, &EarningsModel::rebuild);
    m_reload.setSingleShot(true);
    m_reload.setInterval(1000);
    connect(&m_reload, &QTimer::timeout, this, &EarningsModel::reload);
}

void EarningsModel::setStores(AppStore *store, AuthStore *auth)
{
    if (m_store == store && m_auth == auth) {
        return;
    }
    if (m_store) {
        disconnect(m_store, nullptr, this, nullptr);
    }
    m_store = store;
    m_auth = auth;
    ++m_loadGeneration;
    m_active = false;
    m_periodEntries.clear();
    m_selectedKey.clear();
    m_reload.stop();
    if (store) {
        for (auto signal : {&AppStore::projectsChanged, &AppStore::tasksChanged, &AppStore::billedSetChanged,
                            &AppStore::profileChanged}) {
            connect(store, signal, &m_rebuild, qOverload<>(&QTimer::start));
        }
        // An entry written, edited or deleted elsewhere may be older than the store's window.
        connect(store, &AppStore::entriesChanged, this, [this] {
            m_rebuild.start();
            if (m_active) {
                m_reload.start();
            }
        });
        connect(store, &AppStore::currentUserIdChanged, this, [this] {
            ++m_loadGeneration;
            m_periodEntries.clear();
            m_selectedKey.clear();
            m_rebuild.start();
        });
    }
    setLoading(false);
    rebuild();
}

QString EarningsModel::grouping() const
{
    switch (m_by) {
    case By::Week:
        return u"week"_s;
    case By::Month:
        return u"month"_s;
    case By::Project:
        return u"project"_s;
    }
    return {};
}

void EarningsModel::setGrouping(const QString &grouping)
{
    const By by = grouping == u"month" ? By::Month : grouping == u"project" ? By::Project : By::Week;
    if (by == m_by) {
        return;
    }
    m_by = by;
    m_selectedKey.clear();
    rebuild();
}

QDate EarningsModel::coverageStart() const
{
    const QDate today = m_clock().toTimeZone(QTimeZone::systemTimeZone()).date();
    return EarningsReport::periodStart(today, Grouping::Month).addMonths(1 - monthsCovered);
}

void EarningsModel::setLoading(bool loading, const QString &error)
{
    if (m_loading == loading && m_error == error) {
        return;
    }
    m_loading = loading;
    m_error = error;
    emit loadingChanged();
}

void EarningsModel::reload()
{
    if (!m_store || !m_auth) {
        return;
    }
    m_active = true;
    m_reload.stop();
    const quint64 generation = ++m_loadGeneration;
    const QDateTime from(coverageStart(), QTime(0, 0), QTimeZone::systemTimeZone());
    // The end lies a day ahead, so an entry started a moment ago on a clock that runs ahead is in.
    const QDateTime to = m_clock().addDays(1);
    setLoading(true);
    [](QPointer<EarningsModel> self, QPointer<AppStore> store, QPointer<AuthStore> auth, quint64 generation,
       QDateTime from, QDateTime to) -> QCoro::Task<> {
        std::optional<QList<TimeEntry>> rows;
        QString failure;
        try {
            rows = co_await loadEntriesBetween(*auth, from, to);
        } catch (const MorvaneError &error) {
            failure = error.message();
        }
        // Fixed prices and extras count as billed only once the set of billed work is known.
        if (store) {
            co_await store->reloadBilledEntrySet();
        }
        if (!self || generation != self->m_loadGeneration) {
            co_return;
        }
        if (rows) {
            self->m_periodEntries = *rows;
        } else if (failure.isEmpty()) {
            failure = StoreText::loadFailed();
        }
        self->setLoading(false, failure);
        self->rebuild();
    }(this, m_store, m_auth, generation, from, to);
}

QList<TimeEntry> EarningsModel::mergedEntries() const
{
    // The store's copies are the fresher ones: they follow edits made since the period was read.
    QHash<QString, TimeEntry> byId;
    for (const TimeEntry &entry : m_periodEntries) {
        byId.insert(entry.id, entry);
    }
    for (const TimeEntry &entry : m_store->recentEntries()) {
        byId.insert(entry.id, entry);
    }
    for (const QList<TimeEntry> &entries : m_store->entriesByTask()) {
        for (const TimeEntry &entry : entries) {
            byId.insert(entry.id, entry);
        }
    }
    return byId.values();
}

void EarningsModel::rebuild()
{
    m_rows.clear();
    m_totals.clear();
    m_priced.clear();
    m_reportRows.clear();
    const QDate first = coverageStart();
    const QDate today = m_clock().toTimeZone(QTimeZone::systemTimeZone()).date();
    const QDate firstWeek = EarningsReport::periodStart(today.addDays(-7 * (weeksShown - 1)), Grouping::Week);
    //% "%1 to %2"
    m_coverage =
        qtTrId("ui.earnings.coverage").arg(fullDayText(m_by == By::Week ? firstWeek : first), fullDayText(today));
    if (m_store) {
        EarningsReport::Sources sources;
        sources.entries = mergedEntries();
        for (const QList<TaskItem> &tasks : m_store->tasksByProject()) {
            sources.tasks << tasks;
        }
        sources.projects = m_store->projects();
        sources.billedEntryIds = m_store->billedEntryIds();
        sources.defaultHourlyRate = m_store->defaultHourlyRate();
        sources.zone = QTimeZone::systemTimeZone();
        const QList<EarningsReport::PricedEntry> priced = EarningsReport::price(sources);
        for (const EarningsReport::PricedEntry &entry : priced) {
            if (entry.day.isValid() && entry.day >= (m_by == By::Week ? firstWeek : first) && entry.day <= today) {
                m_priced << entry;
            }
        }
        if (m_by == By::Project) {
            m_reportRows = EarningsReport::byProject(m_priced);
        } else {
            const Grouping grouping = m_by == By::Week ? Grouping::Week : Grouping::Month;
            const QDate from = m_by == By::Week ? today.addDays(-7 * (weeksShown - 1)) : first;
            m_reportRows = EarningsReport::byPeriod(m_priced, grouping, from, today);
        }
    }
    const QString currency = m_store ? m_store->currency() : QString();
    const auto rateText = [&](const Row &row) {
        const std::optional<double> rate = row.effectiveRate();
        return rate ? formatMoney(*rate, currency) : u"–"_s;
    };
    double largest = 0;
    for (const Row &row : std::as_const(m_reportRows)) {
        largest = std::max(largest, row.earned);
    }
    for (const Row &row : std::as_const(m_reportRows)) {
        QString key;
        QString label;
        if (m_by == By::Project) {
            key = u"project:"_s + row.projectId;
            const std::optional<Project> project = m_store->project(row.projectId);
            //% "No project"
            label = project ? project->name : qtTrId("ui.earnings.noProject");
        } else {
            key = row.start.toString(Qt::ISODate);
            label = m_by == By::Week ? dayText(row.start) : monthText(row.start);
        }
        m_rows << QVariantMap{{u"key"_s, key},
                              {u"label"_s, label},
                              {u"earned"_s, row.earned},
                              {u"billed"_s, row.billed},
                              {u"unbilled"_s, row.unbilled()},
                              {u"earnedText"_s, formatMoney(row.earned, currency)},
                              {u"billedText"_s, formatMoney(row.billed, currency)},
                              {u"unbilledText"_s, formatMoney(row.unbilled(), currency)},
                              {u"hoursText"_s, hoursText(row.seconds)},
                              {u"rateText"_s, rateText(row)},
                              {u"earnedShare"_s, largest > 0 ? row.earned / largest : 0.0},
                              {u"billedShare"_s, largest > 0 ? std::max(0.0, row.billed) / largest : 0.0},
                              {u"entryCount"_s, row.entryIds.size()},
                              {u"empty"_s, row.entryIds.isEmpty()}};
    }
    const Row all = EarningsReport::total(m_priced);
    m_totals = {{u"earnedText"_s, formatMoney(all.earned, currency)},
                {u"billedText"_s, formatMoney(all.billed, currency)},
                {u"unbilledText"_s, formatMoney(all.unbilled(), currency)},
                {u"hoursText"_s, hoursText(all.seconds)},
                {u"rateText"_s, rateText(all)}};
    m_empty = m_priced.isEmpty();
    const bool selectionKept = std::any_of(m_rows.cbegin(), m_rows.cend(), [&](const QVariant &row) {
        return row.toMap().value(u"key"_s).toString() == m_selectedKey;
    });
    if (!selectionKept) {
        m_selectedKey.clear();
    }
    emit changed();
}

void EarningsModel::select(const QString &key)
{
    m_selectedKey = key == m_selectedKey ? QString() : key;
    emit changed();
}

QString EarningsModel::selectedLabel() const
{
    for (qsizetype i = 0; i < m_rows.size(); ++i) {
        const QVariantMap row = m_rows[i].toMap();
        if (row.value(u"key"_s).toString() != m_selectedKey) {
            continue;
        }
        if (m_by == By::Week) {
            const Row &report = m_reportRows[i];
            return dayText(report.start) + u" – "_s + fullDayText(report.end);
        }
        return row.value(u"label"_s).toString();
    }
    return {};
}

QVariantList EarningsModel::selectedEntries() const
{
    QVariantList result;
    if (m_selectedKey.isEmpty() || !m_store) {
        return result;
    }
    QList<QString> ids;
    for (qsizetype i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].toMap().value(u"key"_s).toString() == m_selectedKey) {
            ids = m_reportRows[i].entryIds;
        }
    }
    const QSet<QString> wanted(ids.cbegin(), ids.cend());
    const QString currency = m_store->currency();
    // Newest first, as a person looks back from today.
    for (auto it = m_priced.crbegin(); it != m_priced.crend(); ++it) {
        if (!wanted.contains(it->entry.id)) {
            continue;
        }
        const std::optional<TaskItem> task = m_store->task(it->entry.taskId);
        const std::optional<Project> project = m_store->project(it->projectId);
        //% "includes %1 charged once"
        const QString note =
            it->oneOff != 0 ? qtTrId("ui.earnings.oneOffNote").arg(formatMoney(it->oneOff, currency)) : QString();
        result << QVariantMap{{u"id"_s, it->entry.id},
                              {u"date"_s, fullDayText(it->day)},
                              {u"task"_s, task ? task->title : QString()},
                              {u"project"_s, project ? project->name : qtTrId("ui.earnings.noProject")},
                              {u"duration"_s, formatHM(it->entry.durationSeconds)},
                              {u"amount"_s, formatMoney(it->earned, currency)},
                              {u"billed"_s, it->billed != 0 && it->billed == it->earned},
                              {u"note"_s, note}};
    }
    return result;
}
