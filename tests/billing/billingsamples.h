#pragma once

#include "model/billing.h"
#include "model/project.h"
#include "model/taskitem.h"

#include <QMetaType>

#include <optional>

Q_DECLARE_METATYPE(Billing)
Q_DECLARE_METATYPE(std::optional<Billing>)
Q_DECLARE_METATYPE(std::optional<double>)

// Short ways to write the price settings, tasks and projects of the billing tests' tables.
namespace BillingSamples {

using Opt = std::optional<double>;

inline Billing hourly(Opt rate = std::nullopt)
{
    return Billing{.model = BillingModel::Hourly, .unitPrice = rate};
}

inline Billing fixedPrice(Opt total)
{
    return Billing{.model = BillingModel::Fixed, .amount = total};
}

inline Billing perUnit(Opt price, Opt quantity, std::optional<QString> label = std::nullopt)
{
    return Billing{.model = BillingModel::PerUnit, .unitLabel = label, .unitPrice = price, .unitQuantity = quantity};
}

inline Billing daily(Opt rate, Opt hoursPerDay = std::nullopt)
{
    return Billing{.model = BillingModel::Daily, .dayRate = rate, .dayHours = hoursPerDay};
}

inline Billing withExtras(Billing billing, Opt minCharge, Opt surcharge, Opt materials, Opt discount = std::nullopt,
                          std::optional<bool> percent = std::nullopt)
{
    billing.minCharge = minCharge;
    billing.surcharge = surcharge;
    billing.materials = materials;
    billing.discount = discount;
    billing.discountIsPct = percent;
    return billing;
}

inline Billing discounted(Billing billing, double discount, std::optional<bool> percent = std::nullopt)
{
    return withExtras(std::move(billing), std::nullopt, std::nullopt, std::nullopt, discount, percent);
}

inline Billing withVat(Billing billing, double rate)
{
    billing.vatRate = rate;
    return billing;
}

inline TaskItem task(Opt rate, std::optional<Billing> billing = std::nullopt)
{
    TaskItem item;
    item.id = QStringLiteral("t1");
    item.hourlyRate = rate;
    item.billing = std::move(billing);
    return item;
}

inline Project project(Opt rate, std::optional<Billing> billing = std::nullopt)
{
    Project item;
    item.id = QStringLiteral("p1");
    item.name = QStringLiteral("Site");
    item.hourlyRate = rate;
    item.billing = std::move(billing);
    return item;
}

} // namespace BillingSamples
