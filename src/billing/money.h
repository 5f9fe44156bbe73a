#pragma once

#include <QString>

// Money arithmetic and the display of money and durations, shared by pricing, invoices and the
// command line.

// Rounds to cents, halves away from zero, after removing the binary noise of the multiplication
// (1.005 is 100.4999… cents in binary but 1.01 to the person who typed it). A value that is not
// finite becomes 0; the sign is kept, and a result of zero is always +0.
[[nodiscard]] double round2(double x);

// `amount` as money in the ISO 4217 `currency`, in the user's locale (QLocale()): the locale's
// own symbol for its own currency, the usual symbol of another currency where one is known and
// does not clash with the local one, else the code itself; decimals as the currency has them.
// Without a currency the amount is printed plainly with two decimals.
[[nodiscard]] QString formatMoney(double amount, const QString &currency);

// A duration as hours and minutes ("2h 5m"), or minutes alone below one hour ("45m"); minutes are
// whole and not padded.
[[nodiscard]] QString formatHM(qint64 seconds);
