#pragma once

#include "model/invoice.h"

#include <QDate>
#include <QList>
#include <QMap>

// What the invoice list shows and what it adds up, apart from the window: which invoices pass the
// status and year filters, and how much money is still open or overdue.
namespace InvoiceFigures {

// Sent and not yet paid. Drafts are not owed by anybody yet; void and paid ones are settled.
[[nodiscard]] bool isOpen(const Invoice &invoice);
// Open and past its due date on `today`; a due date that cannot be read never makes it overdue,
// and the due day itself is still in time.
[[nodiscard]] bool isOverdue(const Invoice &invoice, QDate today);

struct Filter
{
    std::optional<InvoiceStatus> status; // every status when empty
    int year = 0;                        // of the issue date; every year when 0
};

[[nodiscard]] bool matches(const Invoice &invoice, const Filter &filter);
[[nodiscard]] QList<Invoice> filtered(const QList<Invoice> &invoices, const Filter &filter);
// The issue years that occur, newest first, for the year filter.
[[nodiscard]] QList<int> years(const QList<Invoice> &invoices);

// Money by currency code: invoices in different currencies are never added together.
using Sums = QMap<QString, double>;
struct Outstanding
{
    Sums open;
    Sums overdue;
};

// Over the invoices given (the filtered ones, so the figures follow what is shown); rounded to cents.
[[nodiscard]] Outstanding outstanding(const QList<Invoice> &invoices, QDate today);

} // namespace InvoiceFigures
