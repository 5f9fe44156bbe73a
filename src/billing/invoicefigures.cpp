#include "invoicefigures.h"

#include "billing/money.h"

#include <algorithm>

namespace InvoiceFigures {

namespace {

QDate day(const QString &text)
{
    // Dates arrive as "yyyy-MM-dd", sometimes with a time after them.
    return QDate::fromString(text.left(10), Qt::ISODate);
}

} // namespace

bool isOpen(const Invoice &invoice)
{
    return invoice.status == InvoiceStatus::Sent;
}

bool isOverdue(const Invoice &invoice, QDate today)
{
    if (!isOpen(invoice) || !invoice.dueAt) {
        return false;
    }
    const QDate due = day(*invoice.dueAt);
    return due.isValid() && today.isValid() && due < today;
}

bool matches(const Invoice &invoice, const Filter &filter)
{
    if (filter.status && invoice.status != *filter.status) {
        return false;
    }
    return filter.year == 0 || day(invoice.issuedAt).year() == filter.year;
}

QList<Invoice> filtered(const QList<Invoice> &invoices, const Filter &filter)
{
    QList<Invoice> shown;
    for (const Invoice &invoice : invoices) {
        if (matches(invoice, filter)) {
            shown.append(invoice);
        }
    }
    return shown;
}

QList<int> years(const QList<Invoice> &invoices)
{
    QList<int> found;
    for (const Invoice &invoice : invoices) {
        const QDate issued = day(invoice.issuedAt);
        if (issued.isValid() && !found.contains(issued.year())) {
            found.append(issued.year());
        }
    }
    std::sort(found.begin(), found.end(), std::greater<>());
    return found;
}

Outstanding outstanding(const QList<Invoice> &invoices, QDate today)
{
    Outstanding sums;
    for (const Invoice &invoice : invoices) {
        if (isOpen(invoice)) {
            sums.open[invoice.currency] += invoice.total;
            if (isOverdue(invoice, today)) {
                sums.overdue[invoice.currency] += invoice.total;
            }
        }
    }
    for (Sums *each : {&sums.open, &sums.overdue}) {
        for (double &amount : *each) {
            amount = round2(amount);
        }
    }
    return sums;
}

} // namespace InvoiceFigures
