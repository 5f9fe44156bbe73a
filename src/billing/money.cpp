#include "money.h"

#include <QHash>
#include <QLocale>

#include <charconv>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// Rounds to `decimals` places, halves away from zero, after removing the binary noise of the
// multiplication. The same rule serves invoice cents and the display of currencies whose minor
// unit is not the cent.
double roundHalfAway(double x, int decimals)
{
    if (!std::isfinite(x)) {
        return 0;
    }
    const double scale = std::pow(10.0, decimals);
    const double scaled = std::fabs(x) * scale;
    // Printing with 15 significant digits and reading back snaps 100.49999999999999 to 100.5; the
    // charconv pair is used because printf and strtod would follow the process's numeric locale.
    double snapped = scaled;
    char text[64];
    const std::to_chars_result printed =
        std::to_chars(text, text + sizeof text, scaled, std::chars_format::general, 15);
    if (printed.ec == std::errc()) {
        double read = 0;
        const std::from_chars_result parsed = std::from_chars(text, printed.ptr, read);
        if (parsed.ec == std::errc()) {
            snapped = read;
        }
    }
    // The largest double below one half: adding 0.5 itself would carry 0.49999999999999994 up to 1.
    const double rounded = std::trunc(snapped + 0.49999999999999994) / scale;
    if (rounded == 0) {
        return 0;
    }
    return std::copysign(rounded, x);
}

} // namespace

double round2(double x)
{
    return roundHalfAway(x, 2);
}

namespace {

// Minor units of the currencies whose cents are not two digits (ISO 4217).
int currencyDecimals(const QString &code)
{
    static const QHash<QString, int> exceptions = [] {
        QHash<QString, int> table;
        for (const char *zero : {"BIF", "CLP", "DJF", "GNF", "ISK", "JPY", "KMF", "KRW", "PYG", "RWF", "UGX", "UYI",
                                 "VND", "VUV", "XAF", "XOF", "XPF"}) {
            table.insert(QLatin1StringView(zero), 0);
        }
        for (const char *three : {"BHD", "IQD", "JOD", "KWD", "LYD", "OMR", "TND"}) {
            table.insert(QLatin1StringView(three), 3);
        }
        return table;
    }();
    return exceptions.value(code, 2);
}

// Qt knows a currency's symbol only through the locales that use it, so the symbols of every
// locale are gathered once: per currency, the symbol each language writes and the one most
// locales write.
struct CurrencySymbols
{
    QHash<QString, QHash<QLocale::Language, QString>> byLanguage;
    QHash<QString, QString> common;
};

const CurrencySymbols &currencySymbols()
{
    static const CurrencySymbols symbols = [] {
        CurrencySymbols result;
        QHash<QString, QHash<QString, int>> votes;
        const QList<QLocale> locales =
            QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
        for (const QLocale &locale : locales) {
            const QString code = locale.currencySymbol(QLocale::CurrencyIsoCode);
            const QString symbol = locale.currencySymbol(QLocale::CurrencySymbol);
            if (code.isEmpty() || symbol.isEmpty()) {
                continue;
            }
            result.byLanguage[code].insert(locale.language(), symbol);
            ++votes[code][symbol];
        }
        for (auto it = votes.cbegin(); it != votes.cend(); ++it) {
            QString best;
            int bestCount = 0;
            for (auto vote = it->cbegin(); vote != it->cend(); ++vote) {
                // Ties go to the shorter, then the smaller symbol, so that the choice never
                // depends on hash order.
                const bool better =
                    vote.value() > bestCount ||
                    (vote.value() == bestCount &&
                     (vote.key().size() < best.size() || (vote.key().size() == best.size() && vote.key() < best)));
                if (better) {
                    best = vote.key();
                    bestCount = vote.value();
                }
            }
            result.common.insert(it.key(), best);
        }
        return result;
    }();
    return symbols;
}

QString currencySymbol(const QLocale &locale, const QString &code)
{
    const QString ownSymbol = locale.currencySymbol(QLocale::CurrencySymbol);
    if (locale.currencySymbol(QLocale::CurrencyIsoCode) == code) {
        return ownSymbol;
    }
    const CurrencySymbols &symbols = currencySymbols();
    QString symbol = symbols.byLanguage.value(code).value(locale.language());
    if (symbol.isEmpty()) {
        symbol = symbols.common.value(code);
    }
    // Australian dollars must not read as the American user's own dollars.
    if (symbol.isEmpty() || symbol == ownSymbol) {
        return code;
    }
    return symbol;
}

// A symbol made of letters ("CHF", "AUD") runs into the digits in locales that write "$12"; the
// usual typography puts a no-break space between them.
QString spaceLetterSymbol(QString text, const QString &symbol)
{
    if (symbol.isEmpty() || !symbol.front().isLetter() || !symbol.back().isLetter()) {
        return text;
    }
    const qsizetype at = text.indexOf(symbol);
    if (at < 0) {
        return text;
    }
    const qsizetype after = at + symbol.size();
    if (after < text.size() && text.at(after).isDigit()) {
        text.insert(after, QChar(0x00A0));
    }
    if (at > 0 && text.at(at - 1).isDigit()) {
        text.insert(at, QChar(0x00A0));
    }
    return text;
}

} // namespace

QString formatMoney(double amount, const QString &currency)
{
    const QString code = currency.trimmed().toUpper();
    if (!code.isEmpty() && std::isfinite(amount)) {
        const QLocale locale;
        const QString symbol = currencySymbol(locale, code);
        const int decimals = currencyDecimals(code);
        // Rounded here as invoices round, so that a preview never shows a cent the invoice lacks;
        // the formatter itself would print 1.005 (binary 1.00499…) as 1.00.
        const double shown = roundHalfAway(amount, decimals);
        QString text = locale.toCurrencyString(shown, symbol, decimals);
        // Some locales (American English among them) bracket negative money as accountants do;
        // a discount line reads better with a minus sign.
        if (shown < 0 && text.startsWith(u'(')) {
            text = locale.negativeSign() + locale.toCurrencyString(-shown, symbol, decimals);
        }
        if (!text.isEmpty()) {
            return spaceLetterSymbol(text, symbol);
        }
    }
    return QString::asprintf("%.2f", amount);
}

QString formatHM(qint64 seconds)
{
    const qint64 minutes = (seconds % 3600) / 60;
    if (seconds < 3600) {
        //: A duration under one hour; %1 is the minutes
        //% "%1m"
        return qtTrId("time.minutes").arg(minutes);
    }
    //: A duration; %1 is the hours, %2 the minutes of the last hour
    //% "%1h %2m"
    return qtTrId("time.hoursMinutes").arg(seconds / 3600).arg(minutes);
}
