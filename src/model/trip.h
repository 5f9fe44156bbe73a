#pragma once

#include "model/wire.h"

#include <QJsonObject>

// How a trip was made; "transit" is public transport.
enum class TripMode { Car, Bike, Walk, Transit, Other };

constexpr auto wireNames(TripMode)
{
    return std::array<std::string_view, 5>{"car", "bike", "walk", "transit", "other"};
}

// A row of `trips`: one journey, for work or private, recorded by the phone or by hand.
struct Trip
{
    QString id;
    QString userId;
    std::optional<QString> projectId;
    std::optional<QString> taskId;
    std::optional<QString> clientId;
    QString startedAt;
    // Absent while the trip is still under way.
    std::optional<QString> endedAt;
    std::optional<double> startLat;
    std::optional<double> startLng;
    std::optional<QString> startLabel;
    std::optional<double> endLat;
    std::optional<double> endLng;
    std::optional<QString> endLabel;
    int distanceM = 0;
    // An encoded polyline (precision 5).
    std::optional<QString> route;
    TripMode mode = TripMode::Car;
    QString source = QStringLiteral("manual");
    QString kind = QStringLiteral("business");
    bool billable = true;
    std::optional<QString> purpose;
    std::optional<QString> createdAt;
    std::optional<QString> updatedAt;

    [[nodiscard]] bool isBusiness() const { return kind == u"business"; }
    [[nodiscard]] bool isFinished() const { return endedAt.has_value(); }

    static constexpr std::string_view wireName = "Trip";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("id", &Trip::id),
            field("user_id", &Trip::userId),
            field("project_id", &Trip::projectId),
            field("task_id", &Trip::taskId),
            field("client_id", &Trip::clientId),
            field("started_at", &Trip::startedAt),
            field("ended_at", &Trip::endedAt),
            field("start_lat", &Trip::startLat),
            field("start_lng", &Trip::startLng),
            field("start_label", &Trip::startLabel),
            field("end_lat", &Trip::endLat),
            field("end_lng", &Trip::endLng),
            field("end_label", &Trip::endLabel),
            field("distance_m", &Trip::distanceM),
            field("route", &Trip::route),
            field("mode", &Trip::mode),
            field("source", &Trip::source),
            field("kind", &Trip::kind),
            field("billable", &Trip::billable),
            field("purpose", &Trip::purpose),
            field("created_at", &Trip::createdAt),
            field("updated_at", &Trip::updatedAt),
        };
    }
    friend bool operator==(const Trip &, const Trip &) = default;
};

// The body of a new `trips` row; the backend fills the id, the owner and the timestamps.
struct TripInsert
{
    std::optional<QString> projectId;
    std::optional<QString> taskId;
    std::optional<QString> clientId;
    QString startedAt;
    std::optional<QString> endedAt;
    std::optional<double> startLat;
    std::optional<double> startLng;
    std::optional<QString> startLabel;
    std::optional<double> endLat;
    std::optional<double> endLng;
    std::optional<QString> endLabel;
    int distanceM = 0;
    TripMode mode = TripMode::Car;
    QString source = QStringLiteral("manual");
    QString kind = QStringLiteral("business");
    bool billable = true;
    std::optional<QString> purpose;
    std::optional<QString> route;

    static constexpr std::string_view wireName = "TripInsert";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("project_id", &TripInsert::projectId),
            field("task_id", &TripInsert::taskId),
            field("client_id", &TripInsert::clientId),
            field("started_at", &TripInsert::startedAt),
            field("ended_at", &TripInsert::endedAt),
            field("start_lat", &TripInsert::startLat),
            field("start_lng", &TripInsert::startLng),
            field("start_label", &TripInsert::startLabel),
            field("end_lat", &TripInsert::endLat),
            field("end_lng", &TripInsert::endLng),
            field("end_label", &TripInsert::endLabel),
            field("distance_m", &TripInsert::distanceM),
            field("mode", &TripInsert::mode),
            field("source", &TripInsert::source),
            field("kind", &TripInsert::kind),
            field("billable", &TripInsert::billable),
            field("purpose", &TripInsert::purpose),
            field("route", &TripInsert::route),
        };
    }
    friend bool operator==(const TripInsert &, const TripInsert &) = default;
};

// Only the columns that changed: a text (absent clears it), a truth value or a number.
class TripPatch
{
public:
    void setText(const QString &column, const std::optional<QString> &value)
    {
        m_values.insert(column, value ? QJsonValue(*value) : QJsonValue(QJsonValue::Null));
    }
    void setBool(const QString &column, bool value) { m_values.insert(column, value); }
    void setInt(const QString &column, int value) { m_values.insert(column, value); }
    void setNumber(const QString &column, std::optional<double> value)
    {
        m_values.insert(column, value ? QJsonValue(*value) : QJsonValue(QJsonValue::Null));
    }
    [[nodiscard]] bool isEmpty() const { return m_values.isEmpty(); }
    [[nodiscard]] const QJsonObject &values() const { return m_values; }

private:
    QJsonObject m_values;
};

// The user's own travel settings, kept in the profile's `travel` map.
struct TravelSettings
{
    static constexpr double defaultRatePerKm = 0.23;

    bool detect = false;
    double ratePerKm = defaultRatePerKm;
    TripMode defaultMode = TripMode::Car;

    // Missing or unreadable keys take their defaults; a rate that is not a finite, non-negative
    // number is no rate.
    [[nodiscard]] static TravelSettings fromJson(const JSONValue &travel);
    // The profile's whole map with these three keys set, so keys of other devices stay.
    [[nodiscard]] JSONValue mergedInto(const JSONValue &travel) const;
    friend bool operator==(const TravelSettings &, const TravelSettings &) = default;
};
