#pragma once

#include "billing/invoicelines.h"
#include "model/invoice.h"
#include "model/invoicedocument.h"

#include <QDate>
#include <QList>

class AppStore;
class InvoiceComposer;

// What an invoice is drawn from, in the one form the preview, the saved PDF and a redrawn PDF share,
// so that what the composer previews is what the client receives.
namespace InvoiceDocuments {

// What a new invoice starts with from the house style: days until payment is due and the VAT
// percentage of lines whose price names none. Both stay within sense when the style does not.
struct HouseTerms
{
    int paymentDays = 14;
    double vatPercent = 0;
};
[[nodiscard]] HouseTerms houseTerms(const AppStore &store);

[[nodiscard]] DraftLine draftLine(const Earnings::BuiltLine &built);

// The composer's current state with the number, days and notes the person chose.
[[nodiscard]] InvoiceDocument composed(const AppStore &store, const InvoiceComposer &composer, const QString &number,
                                       const QDate &issued, const QDate &due, const QString &notes = {});

// A saved invoice from its stored lines and the sender's current details; one VAT rate is all a
// stored invoice tells, recovered from its totals.
[[nodiscard]] InvoiceDocument stored(const AppStore &store, const Invoice &invoice, const QList<InvoiceLine> &lines);

} // namespace InvoiceDocuments
