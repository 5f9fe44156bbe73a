#include "travel/travel.h"

#include "billing/money.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace Travel {

Setting of(const std::optional<Billing> &billing)
{
    if (!billing || !billing->travel || billing->travel->kind() != JSONValue::Kind::Object) {
        return {};
    }
    const JSONValue &travel = *billing->travel;
    const JSONValue mode = travel.value(u"mode"_s);
    Setting setting;
    if (mode.kind() == JSONValue::Kind::String) {
        setting.mode = Wire::enumFromName<Mode>(mode.toString()).value_or(Mode::None);
    }
    if (setting.mode == Mode::None) {
        return setting;
    }
    const JSONValue label = travel.value(u"label"_s);
    if (label.kind() == JSONValue::Kind::String && !label.toString().trimmed().isEmpty()) {
        setting.label = label.toString().trimmed();
    }
    const JSONValue rate = travel.value(u"rate"_s);
    // A rate written by another device is not trusted to be a price.
    if (rate.kind() == JSONValue::Kind::Number && std::isfinite(rate.toDouble()) && rate.toDouble() >= 0) {
        setting.rate = rate.toDouble();
    }
    return setting;
}

JSONValue toJson(const Setting &setting)
{
    JSONValue::Object map;
    map.insert(u"mode"_s, Wire::enumName(setting.mode));
    if (setting.rate) {
        map.insert(u"rate"_s, *setting.rate);
    }
    if (setting.label) {
        map.insert(u"label"_s, *setting.label);
    }
    return map;
}

QList<Trip> tripsToBill(const QList<Trip> &trips, const QString &projectId, const QSet<QString> &billedTripIds)
{
    QList<Trip> billed;
    for (const Trip &trip : trips) {
        if (trip.projectId != projectId || !trip.isBusiness() || !trip.billable || !trip.isFinished() ||
            billedTripIds.contains(trip.id)) {
            continue;
        }
        billed.append(trip);
    }
    return billed;
}

double billedKm(double metres)
{
    if (!std::isfinite(metres)) {
        return 0;
    }
    const double whole = std::max(0.0, std::floor(metres + 0.5));
    const double hectometres = std::floor((whole + 50) / 100);
    return hectometres / 10;
}

QString Labels::describe(double km, qsizetype trips) const
{
    const QString kmText = QString::asprintf("%.1f", km);
    return trips == 1 ? describeOne.arg(kmText) : describeMany.arg(kmText).arg(trips);
}

Labels labels()
{
    Labels words;
    //% "Travel"
    words.title = qtTrId("travelTitle");
    //: The unit of a travel line charged per kilometre.
    //% "km"
    words.km = qtTrId("travelKm");
    //: The unit of a travel line charged per trip.
    //% "trip"
    words.trip = qtTrId("travelTrip");
    //% "%1 km in 1 trip"
    words.describeOne = qtTrId("travelDescribeOne");
    //% "%1 km in %2 trips"
    words.describeMany = qtTrId("travelDescribeMany");
    return words;
}

std::optional<Line> line(const QList<Trip> &trips, const Setting &setting, std::optional<double> userRatePerKm,
                         const Labels &words)
{
    if (setting.mode == Mode::None || trips.isEmpty()) {
        return std::nullopt;
    }
    double metres = 0;
    Line result;
    for (const Trip &trip : trips) {
        metres += double(trip.distanceM);
        result.tripIds << trip.id;
    }
    const double km = billedKm(metres);
    result.title = setting.label.value_or(words.title);
    result.description = words.describe(km, trips.size());
    if (setting.mode == Mode::PerKm) {
        const bool userRateUsable = userRatePerKm && std::isfinite(*userRatePerKm) && *userRatePerKm >= 0;
        const double rate = setting.rate.value_or(userRateUsable ? *userRatePerKm : TravelSettings::defaultRatePerKm);
        result.quantity = km;
        result.unit = words.km;
        result.unitPrice = rate;
        result.amount = round2(km * rate);
    } else {
        const double rate = setting.rate.value_or(0);
        result.quantity = double(trips.size());
        result.unit = words.trip;
        result.unitPrice = rate;
        result.amount = round2(double(trips.size()) * rate);
    }
    return result;
}

InvoiceLine invoiceLine(const Line &line, const QString &projectId, std::optional<double> vatRate)
{
    Earnings::BuiltLine built;
    built.kind = Earnings::BuiltLine::Kind::Travel;
    built.title = line.title;
    built.description = line.description;
    built.quantity = line.quantity;
    built.unit = line.unit;
    built.unitPrice = line.unitPrice;
    built.amount = line.amount;
    built.unitKey = u"travel:"_s + projectId;
    built.vatRate = vatRate;
    return {built, line.tripIds};
}

} // namespace Travel
