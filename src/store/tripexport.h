#pragma once

#include "model/trip.h"
#include "store/accountantexport.h"

#include <QHash>

// Trips of a period as a CSV mileage log for a tax return: date, from, to, km, mode, purpose,
// project, billable, invoice number; one header row, oldest first.
namespace TripExport {

struct Context
{
    QHash<QString, QString> projectNames;
    // The number of the live invoice that charges a trip.
    QHash<QString, QString> invoiceOfTrip;
};

// Every trip that started in the period, in the period's zone; kilometres with one decimal as
// they are billed, private trips marked as not billable.
[[nodiscard]] QList<QStringList> rows(QList<Trip> trips, const Context &context,
                                      const AccountantExport::Period &period);

// Reads the trips, the invoices and which invoice holds which trip through the store.
QCoro::Task<AccountantExport::Result> build(AppStore &store, AccountantExport::Period period);

} // namespace TripExport
