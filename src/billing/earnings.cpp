#include "earnings.h"

#include <QStringList>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

bool isRate(const std::optional<double> &rate)
{
    return rate && *rate != 0 && !std::isnan(*rate);
}

bool isPositive(const std::optional<double> &value)
{
    return value && *value > 0;
}

bool isNonZero(const std::optional<double> &value)
{
    return value && *value != 0;
}

bool isPercentDiscount(const Billing &billing)
{
    return billing.discountIsPct.value_or(false);
}

// The range in which a double converts to qint64 without overflow.
bool fitsInt64(double x)
{
    return x >= -9223372036854775808.0 && x < 9223372036854775808.0;
}

// Absent when `keep` says the value means nothing beyond its absence.
void dropUnless(std::optional<double> &value, bool keep)
{
    if (value && !keep) {
        value.reset();
    }
}

void dropBlank(std::optional<QString> &text)
{
    if (text) {
        *text = text->trimmed();
        if (text->isEmpty()) {
            text.reset();
        }
    }
}

} // namespace

namespace Earnings {

Billing resolve(const TaskItem *task, const Project *project, double defaultHourlyRate)
{
    if (task && task->billing) {
        return *task->billing;
    }
    if (project && project->billing) {
        return *project->billing;
    }
    Billing billing;
    billing.model = BillingModel::Hourly;
    billing.unitPrice = legacyRate(task, project, defaultHourlyRate);
    return billing;
}

double legacyRate(const TaskItem *task, const Project *project, double defaultHourlyRate)
{
    if (task && isRate(task->hourlyRate)) {
        return *task->hourlyRate;
    }
    if (project && isRate(project->hourlyRate)) {
        return *project->hourlyRate;
    }
    return defaultHourlyRate;
}

double hourlyRate(const Billing &billing, double legacyRate)
{
    if (isRate(billing.unitPrice)) {
        return *billing.unitPrice;
    }
    return std::isnan(legacyRate) ? 0 : legacyRate;
}

double billableDays(const Billing &billing, qint64 seconds)
{
    const double hours = double(seconds) / 3600;
    if (!billing.dayHours) {
        return hours / 8;
    }
    return *billing.dayHours > 0 ? hours / *billing.dayHours : 0;
}

double base(const Billing &billing, qint64 seconds, double legacyRate)
{
    switch (billing.model) {
    case BillingModel::Hourly:
        return double(seconds) / 3600 * hourlyRate(billing, legacyRate);
    case BillingModel::Fixed:
        return billing.amount.value_or(0);
    case BillingModel::PerUnit:
        return billing.unitPrice.value_or(0) * billing.unitQuantity.value_or(0);
    case BillingModel::Daily:
        return billableDays(billing, seconds) * billing.dayRate.value_or(0);
    }
    return 0;
}

double applyExtras(const Billing &billing, double base)
{
    double value = base;
    if (isPositive(billing.minCharge)) {
        // Written so that a base that is not a number still ends at the minimum.
        value = base > *billing.minCharge ? base : *billing.minCharge;
    }
    value += billing.surcharge.value_or(0);
    value += billing.materials.value_or(0);
    if (isNonZero(billing.discount)) {
        value -= isPercentDiscount(billing) ? *billing.discount / 100 * value : *billing.discount;
    }
    // NaN fails the comparison and ends at 0 too; adding +0 turns a -0 into +0.
    return value >= 0 ? value + 0.0 : 0.0;
}

double amount(const Billing &billing, qint64 seconds, double legacyRate)
{
    return applyExtras(billing, base(billing, seconds, legacyRate));
}

bool hasOneOffParts(const Billing &billing)
{
    return billing.model == BillingModel::Fixed || billing.model == BillingModel::PerUnit ||
           isPositive(billing.minCharge) || isNonZero(billing.surcharge) || isNonZero(billing.materials) ||
           (isNonZero(billing.discount) && !isPercentDiscount(billing));
}

Billing cleanBilling(const Billing &billing)
{
    Billing cleaned = billing;
    if (cleaned.model == BillingModel::Hourly && cleaned.unitPrice &&
        !(std::isfinite(*cleaned.unitPrice) && *cleaned.unitPrice > 0)) {
        cleaned.unitPrice.reset();
    }
    return cleaned;
}

Billing comparableBilling(const Billing &billing)
{
    Billing c = cleanBilling(billing);
    for (std::optional<double> *value : {&c.unitPrice, &c.unitQuantity, &c.amount, &c.dayRate, &c.dayHours,
                                         &c.minCharge, &c.surcharge, &c.materials, &c.discount, &c.vatRate}) {
        dropUnless(*value, !*value || std::isfinite(**value));
    }
    dropBlank(c.unitLabel);
    dropBlank(c.surchargeLabel);

    const BillingModel model = c.model;
    const bool perUnit = model == BillingModel::PerUnit;
    const bool daily = model == BillingModel::Daily;
    // Each model reads its own fields; the others may linger from switching models in the editor.
    // Where a model reads an absent value as 0 (or 8 hours per day), that value is its absence.
    dropUnless(c.unitPrice, (model == BillingModel::Hourly || perUnit) && isNonZero(c.unitPrice));
    dropUnless(c.unitQuantity, perUnit && isNonZero(c.unitQuantity));
    if (!perUnit) {
        c.unitLabel.reset();
    }
    dropUnless(c.amount, model == BillingModel::Fixed && isNonZero(c.amount));
    dropUnless(c.dayRate, daily && isNonZero(c.dayRate));
    dropUnless(c.dayHours, daily && c.dayHours != 8.0);

    dropUnless(c.minCharge, isPositive(c.minCharge));
    dropUnless(c.surcharge, isNonZero(c.surcharge));
    if (!c.surcharge) {
        c.surchargeLabel.reset();
    }
    dropUnless(c.materials, isNonZero(c.materials));
    dropUnless(c.discount, isNonZero(c.discount));
    if (!c.discount || !c.discountIsPct.value_or(false)) {
        c.discountIsPct.reset();
    }
    return c;
}

Billing editorBilling(const Project &project, std::optional<double> defaultHourlyRate)
{
    if (project.billing) {
        return *project.billing;
    }
    Billing billing;
    billing.model = BillingModel::Hourly;
    billing.unitPrice = project.hourlyRate ? project.hourlyRate : defaultHourlyRate;
    return billing;
}

std::optional<ProjectBillingWrite> projectBillingWrite(const std::optional<Billing> &loaded, const Billing &current)
{
    const Billing cleaned = cleanBilling(current);
    if (loaded && comparableBilling(*loaded) == comparableBilling(cleaned)) {
        return std::nullopt;
    }
    ProjectBillingWrite write{cleaned, std::nullopt};
    if (cleaned.model == BillingModel::Hourly) {
        write.hourlyRate = cleaned.unitPrice;
    }
    return write;
}

QString describe(const Billing &billing, const QString &currency, std::optional<double> legacyRate)
{
    switch (billing.model) {
    case BillingModel::Hourly: {
        const double rate = isNonZero(billing.unitPrice) ? *billing.unitPrice : legacyRate.value_or(0);
        //: Follows a money amount: the price per hour
        //% "/h"
        return formatMoney(rate, currency) + qtTrId("billing.suffix.hour");
    }
    case BillingModel::Fixed:
        return formatMoney(billing.amount.value_or(0), currency);
    case BillingModel::PerUnit: {
        QString label = billing.unitLabel.value_or(QString()).trimmed();
        if (label.isEmpty()) {
            //: The name of a billing unit that has no label of its own
            //% "unit"
            label = qtTrId("billing.unitDefault");
        }
        return formatQty(billing.unitQuantity.value_or(0)) + u' ' + label + u" \u00D7 "_s +
               formatMoney(billing.unitPrice.value_or(0), currency);
    }
    case BillingModel::Daily:
        //: Follows a money amount: the price per day
        //% "/day"
        return formatMoney(billing.dayRate.value_or(0), currency) + qtTrId("billing.suffix.day");
    }
    return {};
}

std::optional<QString> describeExtras(const Billing &billing, const QString &currency)
{
    QStringList parts;
    if (isPositive(billing.surcharge)) {
        const QString label = billing.surchargeLabel.value_or(QString()).trimmed();
        parts << u"+ "_s + (label.isEmpty() ? u"Voorrijkosten"_s : label);
    }
    if (isPositive(billing.materials)) {
        parts << u"+ materiaal"_s;
    }
    if (isNonZero(billing.discount)) {
        parts << (isPercentDiscount(billing) ? u"\u2212 "_s + formatQty(*billing.discount) + u"% korting"_s
                                             : u"\u2212 korting"_s);
    }
    if (isPositive(billing.minCharge)) {
        parts << u"min. "_s + formatMoney(*billing.minCharge, currency);
    }
    if (isPositive(billing.vatRate)) {
        // 0.07 × 100 is 7.000000000000001 in binary; rounding to cents first keeps it "7".
        parts << formatQty(round2(*billing.vatRate * 100)) + u"% BTW"_s;
    }
    if (parts.isEmpty()) {
        return std::nullopt;
    }
    return parts.join(u" \u00B7 "_s);
}

QString inheritedFrom(const QString &projectName)
{
    //: On a task without a price of its own; %1 is the project's name
    //% "Inherited from %1"
    return qtTrId("task.inheritedFrom").arg(projectName);
}

QString formatQty(double x)
{
    if (x == std::round(x) && fitsInt64(x)) {
        return QString::number(qint64(x));
    }
    return QString::asprintf("%.1f", x);
}

QString formatPercent(double x)
{
    const double rounded = std::round(x);
    if (fitsInt64(rounded)) {
        return QString::number(qint64(rounded));
    }
    return QString::asprintf("%.0f", rounded);
}

} // namespace Earnings
