#include "store/tripexport.h"

#include "model/isodate.h"
#include "store/appstore.h"
#include "travel/travel.h"

using namespace Qt::StringLiterals;

namespace TripExport {

QList<QStringList> rows(QList<Trip> trips, const Context &context, const AccountantExport::Period &period)
{
    const QDateTime start = period.start();
    const QDateTime end = period.end();
    QList<std::pair<QDateTime, Trip>> inPeriod;
    for (Trip &trip : trips) {
        const std::optional<QDateTime> started = isoDate(trip.startedAt);
        if (started && *started >= start && *started < end) {
            inPeriod.append({*started, std::move(trip)});
        }
    }
    std::stable_sort(inPeriod.begin(), inPeriod.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
    QList<QStringList> table;
    table << QStringList{u"date"_s,    u"from"_s,    u"to"_s,       u"km"_s,           u"mode"_s,
                         u"purpose"_s, u"project"_s, u"billable"_s, u"invoice number"_s};
    for (const auto &[started, trip] : std::as_const(inPeriod)) {
        const bool billable = trip.isBusiness() && trip.billable;
        table << QStringList{started.toTimeZone(period.zone).date().toString(Qt::ISODate),
                             Csv::text(trip.startLabel.value_or(QString())),
                             Csv::text(trip.endLabel.value_or(QString())),
                             QString::number(Travel::billedKm(trip.distanceM), 'f', 1),
                             Wire::enumName(trip.mode),
                             Csv::text(trip.purpose.value_or(QString())),
                             Csv::text(context.projectNames.value(trip.projectId.value_or(QString()))),
                             billable ? u"yes"_s : u"no"_s,
                             Csv::text(context.invoiceOfTrip.value(trip.id))};
    }
    return table;
}

QCoro::Task<AccountantExport::Result> build(AppStore &store, AccountantExport::Period period)
{
    if (!co_await store.loadTrips() || !co_await store.loadInvoices() || !co_await store.reloadBilledTrips()) {
        co_return AccountantExport::Result{std::nullopt, 0, store.lastError()};
    }
    Context context;
    for (const Project &project : store.projects()) {
        context.projectNames.insert(project.id, project.name);
    }
    QHash<QString, QString> numberOfInvoice;
    for (const Invoice &invoice : store.invoices()) {
        numberOfInvoice.insert(invoice.id, invoice.number);
    }
    for (const Trip &trip : store.trips()) {
        const QString invoiceId = store.billedTripInvoiceId(trip.id);
        if (!invoiceId.isEmpty()) {
            context.invoiceOfTrip.insert(trip.id, numberOfInvoice.value(invoiceId));
        }
    }
    const QList<QStringList> table = rows(store.trips(), context, period);
    co_return AccountantExport::Result{Csv::document(table), int(table.size() - 1), {}};
}

} // namespace TripExport
