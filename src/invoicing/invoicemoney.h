#pragma once

#include <QLocale>
#include <QString>

// Money and quantities as an invoice prints them: in the invoice's currency, with the number
// conventions of the invoice's language (not the reader's desktop).
namespace InvoiceMoney {

// "€ 1.062,50" for EUR in Dutch, "$1,062.50" for USD in English. An unknown code is printed
// in front of the amount ("XYZ 12.00") rather than dropped.
QString format(double amount, const QString &currencyCode, const QLocale &locale);

// The symbol a reader of the currency expects ("€", "$", "£"); the code itself when there is none.
QString symbol(const QString &currencyCode);

// Minor units of the currency: 0 for yen and won, 2 for nearly everything else.
int decimals(const QString &currencyCode);

// A quantity without trailing zeros: 12.5, 3, 0.25.
QString formatQuantity(double quantity, const QLocale &locale);

} // namespace InvoiceMoney
