#pragma once

#include "model/invoice.h"
#include "model/timeentry.h"

#include <QByteArray>
#include <QDate>
#include <QHash>
#include <QList>
#include <QSet>
#include <QStringList>
#include <QTimeZone>

#include <QCoroTask>

#include <optional>

class AppStore;

// The fields of one CSV file as RFC 4180 writes them, for files that others open in a spreadsheet.
namespace Csv {

// Quoted when it holds a comma, a quote, CR or LF; quotes inside are doubled.
[[nodiscard]] QString field(const QString &value);
// A value someone typed (a name, a title): one that a spreadsheet would run as a formula gets a
// leading single quote, so a client named "=HYPERLINK(...)" stays text. Numbers we write go
// without it, so that a negative amount stays a number.
[[nodiscard]] QString text(const QString &value);
// Rows joined with CRLF (the standard's line end) after each row, as UTF-8 without a byte order mark.
[[nodiscard]] QByteArray document(const QList<QStringList> &rows);

} // namespace Csv

// Time entries and invoices of a period as CSV files for an accountant: one header row, ISO dates,
// amounts and hours with a dot.
namespace AccountantExport {

enum class Kind { Entries, Invoices };
[[nodiscard]] std::optional<Kind> kindFromName(QStringView name);

// The days from `from` to `to`, both included, as the calendar of `zone` has them.
struct Period
{
    QDate from;
    QDate to;
    QTimeZone zone = QTimeZone::systemTimeZone();

    [[nodiscard]] bool isValid() const { return from.isValid() && to.isValid() && from <= to; }
    // The first instant of `from` and the first instant after `to`.
    [[nodiscard]] QDateTime start() const;
    [[nodiscard]] QDateTime end() const;
};

// What an entry row names besides the entry itself.
struct EntryContext
{
    QHash<QString, QString> projectNames;
    QHash<QString, QString> taskTitles;
    // The number of the live invoice that holds an entry; a void invoice holds nothing.
    QHash<QString, QString> invoiceOfEntry;
    // Entries billed on an invoice the user cannot read (a team owner's, of a member's entry):
    // billed, with no number to show.
    QSet<QString> billedUnseen;
    // Addresses of people by user id, for entries written before the address was logged with them.
    QHash<QString, QString> emailOfUser;
};

// One row per entry that started in the period, oldest first: date, start, end, hours, minutes,
// project, task, billed, invoice, logged by. Times are in the period's zone with their offset.
[[nodiscard]] QList<QStringList> entryRows(QList<TimeEntry> entries, const EntryContext &context,
                                           const Period &period);
// One row per invoice issued in the period, by date then number: number, issue date, due date,
// client, status, net, VAT, total, currency. Void invoices stay, so the numbering has no gaps.
[[nodiscard]] QList<QStringList> invoiceRows(QList<Invoice> invoices, const Period &period);

struct Result
{
    // None when the store could not read; `error` says why.
    std::optional<QByteArray> csv;
    // Rows without the header.
    int rows = 0;
    QString error;
};

// Reads what the file needs through the store and writes it. Invoices come from the store's list
// (loaded again here); entries are read for the period from the backend, since the store keeps
// only the recent ones. An entry is billed by the backend's own reckoning (the store's unbilled
// entries), and its invoice number comes from the invoices' entry links the user may read.
QCoro::Task<Result> build(AppStore &store, Kind kind, Period period);

// Writes the file whole or not at all, so a failed save never leaves half a file in place of a
// good one. Answers the reason it could not, or nothing.
[[nodiscard]] QString writeFile(const QString &path, const QByteArray &csv);

} // namespace AccountantExport
