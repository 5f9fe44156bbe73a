#include "model/trip.h"

#include <cmath>

using namespace Qt::StringLiterals;

TravelSettings TravelSettings::fromJson(const JSONValue &travel)
{
    TravelSettings settings;
    const JSONValue detect = travel.value(u"detect"_s);
    if (detect.kind() == JSONValue::Kind::Bool) {
        settings.detect = detect.toBool();
    }
    const JSONValue rate = travel.value(u"rate_per_km"_s);
    if (rate.kind() == JSONValue::Kind::Number && std::isfinite(rate.toDouble()) && rate.toDouble() >= 0) {
        settings.ratePerKm = rate.toDouble();
    }
    const JSONValue mode = travel.value(u"default_mode"_s);
    if (mode.kind() == JSONValue::Kind::String) {
        settings.defaultMode = Wire::enumFromName<TripMode>(mode.toString()).value_or(TripMode::Car);
    }
    return settings;
}

JSONValue TravelSettings::mergedInto(const JSONValue &travel) const
{
    JSONValue::Object map = travel.toObject();
    map.insert(u"detect"_s, detect);
    map.insert(u"rate_per_km"_s, ratePerKm);
    map.insert(u"default_mode"_s, Wire::enumName(defaultMode));
    return map;
}
