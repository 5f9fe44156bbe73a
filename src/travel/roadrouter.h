#pragma once

#include "model/trip.h"
#include "travel/geo.h"
#include "travel/travelservices.h"

#include <QUrl>

#include <QCoroTask>

class QNetworkAccessManager;

// Road routes from an OSRM service: distance, duration and the route as a polyline.
class RoadRouter
{
public:
    struct Route
    {
        int distanceM = 0;
        int durationS = 0;
        // Empty when the service sent no usable line; the distance still holds.
        QString route;
        friend bool operator==(const Route &, const Route &) = default;
    };

    RoadRouter(QNetworkAccessManager &network, QUrl service, RequestGate &gate);

    [[nodiscard]] bool isConfigured() const { return m_service.isValid(); }
    // Throws TravelServiceError: NotFound when the service knows no route between the points.
    QCoro::Task<Route> route(GeoPoint from, GeoPoint to, TripMode mode = TripMode::Car);

    // The service's profile for a means of transport.
    [[nodiscard]] static QString profile(TripMode mode);
    [[nodiscard]] QUrl routeUrl(GeoPoint from, GeoPoint to, TripMode mode) const;
    // Reads an answer as OSRM documents it; anything out of shape or range throws BadAnswer.
    [[nodiscard]] static Route parse(const TravelHttp::Answer &answer);

    static constexpr qint64 maxAnswerBytes = 4 * 1024 * 1024;

private:
    QNetworkAccessManager &m_network;
    QUrl m_service;
    RequestGate &m_gate;
};
