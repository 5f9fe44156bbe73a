#include "store/invoicecomposer.h"

#include "billing/money.h"
#include "model/isodate.h"

using namespace Qt::StringLiterals;

namespace {

const QString last7 = u"invoicePeriodLast7"_s;
const QString last30 = u"invoicePeriodLast30"_s;
const QString thisMonth = u"invoicePeriodThisMonth"_s;
const QString lastMonth = u"invoicePeriodLastMonth"_s;

QStringList sorted(const QSet<QString> &set)
{
    QStringList list(set.cbegin(), set.cend());
    list.sort();
    return list;
}

std::optional<QString> nonEmpty(const QString &text)
{
    const QString trimmed = text.trimmed();
    return trimmed.isEmpty() ? std::nullopt : std::optional<QString>(trimmed);
}

} // namespace

InvoiceComposer::InvoiceComposer(AppStore &store, Clock clock, QObject *parent)
    : QObject(parent)
    , m_store(store)
    , m_clock(std::move(clock))
{
    connect(&m_store, &AppStore::unbilledEntriesChanged, this, &InvoiceComposer::storeRefreshed);
    connect(&m_store, &AppStore::billedSetChanged, this, &InvoiceComposer::recompute);
    connect(&m_store, &AppStore::tasksChanged, this, &InvoiceComposer::recompute);
    connect(&m_store, &AppStore::projectsChanged, this, &InvoiceComposer::recompute);
    connect(&m_store, &AppStore::profileChanged, this, &InvoiceComposer::recompute);
    connect(&m_store, &AppStore::tripsChanged, this, &InvoiceComposer::recompute);
    connect(&m_store, &AppStore::billedTripsChanged, this, &InvoiceComposer::recompute);
}

QDate InvoiceComposer::today() const
{
    return m_clock().toLocalTime().date();
}

void InvoiceComposer::open(const InvoiceContext &context)
{
    m_context = context;
    m_onlyTasks.reset();
    if (context.taskIds) {
        m_onlyTasks = QSet<QString>(context.taskIds->cbegin(), context.taskIds->cend());
    }
    m_deselected.clear();
    m_rebill.clear();
    m_noTravel.clear();
    m_from = context.from.value_or(QDate());
    m_to = context.to.value_or(QDate());
    if (!context.from && context.projectIds.size() == 1) {
        m_from = m_store.smartInvoiceStartDate(context.projectIds.first()).value_or(QDate());
    }
    if (!context.to) {
        m_to = today();
    }
    if (m_leftOutMessage.size()) {
        m_leftOutMessage.clear();
        emit leftOutMessageChanged();
    }
    emit contextChanged();
    emit periodChanged();
    recompute();
}

QStringList InvoiceComposer::periodPresets()
{
    return {last7, last30, thisMonth, lastMonth};
}

QString InvoiceComposer::periodText(const QString &preset)
{
    if (preset == last7) {
        //% "Last 7 days"
        return qtTrId("invoicePeriodLast7");
    }
    if (preset == last30) {
        //% "Last 30 days"
        return qtTrId("invoicePeriodLast30");
    }
    if (preset == thisMonth) {
        //% "This month"
        return qtTrId("invoicePeriodThisMonth");
    }
    if (preset == lastMonth) {
        //% "Last month"
        return qtTrId("invoicePeriodLastMonth");
    }
    return {};
}

bool InvoiceComposer::applyPeriodPreset(const QString &preset)
{
    const QDate day = today();
    QDate from;
    QDate to = day;
    if (preset == last7) {
        from = day.addDays(-6);
    } else if (preset == last30) {
        from = day.addDays(-29);
    } else if (preset == thisMonth) {
        from = QDate(day.year(), day.month(), 1);
    } else if (preset == lastMonth) {
        from = QDate(day.year(), day.month(), 1).addMonths(-1);
        to = QDate(day.year(), day.month(), 1).addDays(-1);
    } else {
        return false;
    }
    m_from = from;
    m_to = to;
    emit periodChanged();
    recompute();
    return true;
}

void InvoiceComposer::setFrom(const QDate &from)
{
    if (from == m_from) {
        return;
    }
    m_from = from;
    emit periodChanged();
    recompute();
}

void InvoiceComposer::setTo(const QDate &to)
{
    if (to == m_to) {
        return;
    }
    m_to = to;
    emit periodChanged();
    recompute();
}

QStringList InvoiceComposer::selectedTaskIds() const
{
    QStringList selected;
    for (const QString &taskId : m_availableTaskIds) {
        if ((!m_onlyTasks || m_onlyTasks->contains(taskId)) && !m_deselected.contains(taskId)) {
            selected << taskId;
        }
    }
    return selected;
}

void InvoiceComposer::toggleTask(const QString &taskId)
{
    if (selectedTaskIds().contains(taskId)) {
        m_deselected.insert(taskId);
    } else {
        m_deselected.remove(taskId);
        if (m_onlyTasks) {
            m_onlyTasks->insert(taskId);
        }
    }
    recompute();
}

QStringList InvoiceComposer::rebillUnitKeys() const
{
    return sorted(m_rebill);
}

void InvoiceComposer::setRebill(const QString &unitKey, bool rebill)
{
    if (rebill == m_rebill.contains(unitKey)) {
        return;
    }
    if (rebill) {
        m_rebill.insert(unitKey);
    } else {
        m_rebill.remove(unitKey);
    }
    recompute();
}

void InvoiceComposer::setManualVat(bool on)
{
    if (on == m_manualVat) {
        return;
    }
    m_manualVat = on;
    emit vatChanged();
    recompute();
}

void InvoiceComposer::setManualVatPercent(double percent)
{
    if (qFuzzyCompare(percent + 1, m_manualVatPercent + 1)) {
        return;
    }
    m_manualVatPercent = percent;
    emit vatChanged();
    recompute();
}

void InvoiceComposer::setDefaultVatPercent(double percent)
{
    if (qFuzzyCompare(percent + 1, m_defaultVatPercent + 1)) {
        return;
    }
    m_defaultVatPercent = percent;
    emit vatChanged();
    recompute();
}

void InvoiceComposer::setClientName(const QString &name)
{
    if (name != m_clientName) {
        m_clientName = name;
        emit clientChanged();
    }
}

void InvoiceComposer::setClientEmail(const QString &email)
{
    if (email != m_clientEmail) {
        m_clientEmail = email;
        emit clientChanged();
    }
}

void InvoiceComposer::setClientAddress(const QString &address)
{
    if (address != m_clientAddress) {
        m_clientAddress = address;
        emit clientChanged();
    }
}

void InvoiceComposer::setSaveAsClient(bool save)
{
    if (save != m_saveAsClient) {
        m_saveAsClient = save;
        emit clientChanged();
    }
}

QString InvoiceComposer::currency() const
{
    return m_store.currency();
}

void InvoiceComposer::clearLeftOutMessage()
{
    if (!m_leftOutMessage.isEmpty()) {
        m_leftOutMessage.clear();
        emit leftOutMessageChanged();
    }
}

// Entries this composer covered that the refreshed unbilled list no longer holds were billed
// elsewhere meanwhile: they drop out of the invoice, and the user is told how many.
void InvoiceComposer::storeRefreshed()
{
    QSet<QString> unbilled;
    for (const TimeEntry &entry : m_store.unbilledEntries()) {
        unbilled.insert(entry.id);
    }
    qsizetype lost = 0;
    for (const QString &entryId : std::as_const(m_coveredEntryIds)) {
        if (!unbilled.contains(entryId)) {
            ++lost;
        }
    }
    recompute();
    if (lost > 0) {
        m_leftOutMessage = lost == 1 ?
                               //% "1 time entry already billed, left out"
                               qtTrId("inv.leftOut.one")
                               //% "%1 time entries already billed, left out"
                               : qtTrId("inv.leftOut.many").arg(lost);
        emit leftOutMessageChanged();
    }
}

void InvoiceComposer::recompute()
{
    const QSet<QString> projects(m_context.projectIds.cbegin(), m_context.projectIds.cend());
    QHash<QString, Earnings::ComposerTask> byTask;
    for (const TimeEntry &entry : m_store.unbilledEntries()) {
        if (!projects.contains(entry.projectId)) {
            continue;
        }
        const std::optional<QDateTime> started = isoDate(entry.startedAt);
        const QDate day = started ? started->toLocalTime().date() : QDate();
        if ((m_from.isValid() && day < m_from) || (m_to.isValid() && day > m_to)) {
            continue;
        }
        auto found = byTask.find(entry.taskId);
        if (found == byTask.end()) {
            const std::optional<TaskItem> task = m_store.task(entry.taskId);
            if (!task) {
                continue;
            }
            found = byTask.insert(entry.taskId, Earnings::ComposerTask{*task, m_store.project(entry.projectId), 0, {}});
        }
        found->seconds += entry.durationSeconds;
        found->entryIds << entry.id;
    }
    // The projects' own task order, so that the same choice always gives the same invoice.
    m_availableTaskIds.clear();
    m_secondsByTask.clear();
    for (const QString &projectId : std::as_const(m_context.projectIds)) {
        for (const TaskItem &task : m_store.tasks(projectId)) {
            if (byTask.contains(task.id)) {
                m_availableTaskIds << task.id;
                m_secondsByTask.insert(task.id, byTask.value(task.id).seconds);
            }
        }
    }
    QList<Earnings::ComposerTask> tasks;
    m_coveredEntryIds.clear();
    for (const QString &taskId : selectedTaskIds()) {
        tasks << byTask.value(taskId);
        m_coveredEntryIds << byTask.value(taskId).entryIds;
    }
    const double defaultRate = m_store.defaultHourlyRate();
    const PriorBilling &prior = m_store.priorBilling();
    m_built = Earnings::buildInvoiceLines(tasks, defaultRate, prior.tasks, prior.poolProjects, m_rebill,
                                          Earnings::lineLabels());
    addTravelLines();
    m_vat = Earnings::computeVat(m_built.lines, m_built.subtotal,
                                 m_manualVat ? std::optional<double>(m_manualVatPercent) : std::nullopt,
                                 m_defaultVatPercent);
    emit resultChanged();
}

// Trips go on an invoice only once the set of trips already invoiced is known: a guess could
// charge a trip twice (the backend would refuse the second save, but only after the user chose).
void InvoiceComposer::addTravelLines()
{
    m_travelProjectIds.clear();
    m_tripIds.clear();
    if (!m_store.billedTripsReady() || m_store.billedTripsError()) {
        return;
    }
    for (const QString &projectId : std::as_const(m_context.projectIds)) {
        const std::optional<Travel::InvoiceLine> travel = m_store.travelInvoiceLine(projectId, m_from, m_to);
        if (!travel) {
            continue;
        }
        m_travelProjectIds << projectId;
        if (m_noTravel.contains(projectId)) {
            continue;
        }
        m_built.lines << travel->line;
        m_built.subtotal = round2(m_built.subtotal + travel->line.amount);
        m_tripIds << travel->tripIds;
    }
}

void InvoiceComposer::setChargeTravel(const QString &projectId, bool charge)
{
    if (charge == !m_noTravel.contains(projectId)) {
        return;
    }
    if (charge) {
        m_noTravel.remove(projectId);
    } else {
        m_noTravel.insert(projectId);
    }
    recompute();
}

QString InvoiceComposer::chargeTravelText()
{
    //% "Charge travel"
    return qtTrId("invoiceTravelInclude");
}

QString InvoiceComposer::readinessError() const
{
    if (m_store.priorBillingError()) {
        return qtTrId("inv.err.priorBilling");
    }
    if (!m_store.priorBillingReady()) {
        return qtTrId("inv.err.notReady");
    }
    return {};
}

bool InvoiceComposer::canSave() const
{
    return readinessError().isEmpty() && !m_built.lines.isEmpty();
}

std::optional<InvoiceSaveRequest> InvoiceComposer::saveRequest(const QString &number, const QDate &issued,
                                                               const QDate &due, const QString &status) const
{
    if (!canSave()) {
        return std::nullopt;
    }
    InvoiceSaveRequest request;
    if (m_context.projectIds.size() == 1) {
        request.invoice.projectId = m_context.projectIds.first();
        if (const std::optional<Project> project = m_store.project(m_context.projectIds.first())) {
            request.invoice.teamId = project->teamId;
        }
    }
    request.invoice.number = number;
    request.invoice.issuedAt = issued.toString(Qt::ISODate);
    if (due.isValid()) {
        request.invoice.dueAt = due.toString(Qt::ISODate);
    }
    request.invoice.currency = currency();
    request.invoice.subtotal = m_built.subtotal;
    request.invoice.vatAmount = m_vat.vat;
    request.invoice.total = m_vat.total;
    request.invoice.status = status;
    request.invoice.clientName = nonEmpty(m_clientName);
    request.invoice.clientEmail = nonEmpty(m_clientEmail);
    request.invoice.clientAddress = nonEmpty(m_clientAddress);
    for (const Earnings::BuiltLine &built : m_built.lines) {
        request.lines << lineInsert(built);
    }
    request.coveredEntryIds = m_coveredEntryIds;
    request.tripIds = m_tripIds;
    if (m_saveAsClient && request.invoice.clientName) {
        ClientInsert client;
        client.teamId = request.invoice.teamId;
        client.name = *request.invoice.clientName;
        client.email = request.invoice.clientEmail;
        client.address = request.invoice.clientAddress;
        request.saveClient = client;
    }
    return request;
}

InvoiceLineInsert InvoiceComposer::lineInsert(const Earnings::BuiltLine &built)
{
    InvoiceLineInsert insert;
    insert.taskId = built.taskId;
    // A pool's own price and extras belong to its project, so they are billed there only once.
    if (!built.taskId && built.unitKey.startsWith(u"pool:"_s)) {
        insert.poolProjectId = built.unitKey.mid(5);
    }
    insert.title = built.title;
    insert.description = built.description;
    insert.quantity = built.quantity;
    insert.unit = built.unit;
    insert.unitPrice = built.unitPrice;
    insert.amount = built.amount;
    return insert;
}
