#include "invoicemoney.h"

#include <QHash>
#include <QMutex>

#include <cmath>

using namespace Qt::StringLiterals;

namespace InvoiceMoney {

QString symbol(const QString &currencyCode)
{
    const QString code = currencyCode.trimmed().toUpper();
    if (code.isEmpty()) {
        return {};
    }
    // The locale data knows each currency's symbol only through a territory that uses it; the
    // walk over every locale is slow, so each code is looked up once.
    static QMutex mutex;
    static QHash<QString, QString> cache;
    QMutexLocker lock(&mutex);
    if (const auto found = cache.constFind(code); found != cache.cend()) {
        return *found;
    }
    QString result = code;
    // The language of the currency's home first, so USD gives "$" rather than "US$".
    const QList<QLocale> locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    QString fallback;
    for (const QLocale &locale : locales) {
        if (locale.currencySymbol(QLocale::CurrencyIsoCode) != code) {
            continue;
        }
        const QString candidate = locale.currencySymbol(QLocale::CurrencySymbol);
        if (candidate.isEmpty()) {
            continue;
        }
        // Prefer a short symbol in a Latin script ("€" over "EUR", "¥" over "円").
        const bool latinish = candidate.size() <= 2 || candidate.front().unicode() < 0x0250;
        if (latinish && (fallback.isEmpty() || candidate.size() < fallback.size())) {
            fallback = candidate;
        }
    }
    if (!fallback.isEmpty()) {
        result = fallback;
    }
    // East Asian locales write the full-width yen sign, which looks out of place in Latin text.
    result.replace(QChar(0xFFE5), QChar(0x00A5));
    cache.insert(code, result);
    return result;
}

int decimals(const QString &currencyCode)
{
    static const QStringList noMinorUnits{u"JPY"_s, u"KRW"_s, u"ISK"_s, u"CLP"_s, u"VND"_s,
                                          u"PYG"_s, u"UGX"_s, u"XAF"_s, u"XOF"_s, u"HUF"_s};
    return noMinorUnits.contains(currencyCode.trimmed().toUpper()) ? 0 : 2;
}

QString format(double amount, const QString &currencyCode, const QLocale &locale)
{
    if (!std::isfinite(amount)) {
        amount = 0;
    }
    const int places = decimals(currencyCode);
    // No "-0,00" for an amount that rounds to nothing.
    if (std::abs(amount) < 0.5 * std::pow(10.0, -places)) {
        amount = 0;
    }
    const QString sign = symbol(currencyCode);
    if (sign.isEmpty()) {
        return locale.toString(amount, 'f', places);
    }
    // Some locales write negative money in accounting brackets; on an invoice a discount reads
    // better with a plain minus sign.
    const QString text = locale.toCurrencyString(std::abs(amount), sign, places);
    return amount < 0 ? locale.negativeSign() + text : text;
}

QString formatQuantity(double quantity, const QLocale &locale)
{
    if (!std::isfinite(quantity)) {
        return locale.toString(0);
    }
    QString text = locale.toString(quantity, 'f', 2);
    const QChar point = locale.decimalPoint().front();
    if (text.contains(point)) {
        while (text.endsWith(u'0')) {
            text.chop(1);
        }
        if (text.endsWith(point)) {
            text.chop(1);
        }
    }
    return text;
}

} // namespace InvoiceMoney
