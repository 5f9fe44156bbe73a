#pragma once

#include "model/wire.h"

// How tracked time turns into money.
enum class BillingModel { Hourly, Fixed, PerUnit, Daily };

constexpr auto wireNames(BillingModel)
{
    return std::array<std::string_view, 4>{"hourly", "fixed", "per_unit", "daily"};
}

// The price setting of a project or task, stored as JSON in their `billing` column.
struct Billing
{
    BillingModel model = BillingModel::Hourly;
    std::optional<QString> unitLabel;
    std::optional<double> unitPrice;
    std::optional<double> unitQuantity;
    std::optional<double> amount;
    std::optional<double> dayRate;
    std::optional<double> dayHours;
    std::optional<double> minCharge;
    std::optional<double> surcharge;
    std::optional<QString> surchargeLabel;
    std::optional<double> materials;
    std::optional<double> discount;
    std::optional<bool> discountIsPct;
    std::optional<double> vatRate;
    // Travel pricing is a free JSON map whose keys belong to the travel feature.
    std::optional<JSONValue> travel;

    static constexpr std::string_view wireName = "Billing";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("model", &Billing::model),
            field("unit_label", &Billing::unitLabel),
            field("unit_price", &Billing::unitPrice),
            field("unit_quantity", &Billing::unitQuantity),
            field("amount", &Billing::amount),
            field("day_rate", &Billing::dayRate),
            field("day_hours", &Billing::dayHours),
            field("min_charge", &Billing::minCharge),
            field("surcharge", &Billing::surcharge),
            field("surcharge_label", &Billing::surchargeLabel),
            field("materials", &Billing::materials),
            field("discount", &Billing::discount),
            field("discount_is_pct", &Billing::discountIsPct),
            field("vat_rate", &Billing::vatRate),
            field("travel", &Billing::travel),
        };
    }
    friend bool operator==(const Billing &, const Billing &) = default;
};
