#include "travel/roadrouter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// Longer than any road on Earth; a larger figure is a broken answer, not a trip.
constexpr double maxDistanceM = 40'000'000;
constexpr double maxDurationS = 60.0 * 60 * 24 * 60;

[[noreturn]] void badAnswer(const QString &why)
{
    throw TravelServiceError(TravelServiceError::Kind::BadAnswer, why);
}

QString coordinates(GeoPoint point)
{
    return QString::number(point.lng, 'f', 6) + u',' + QString::number(point.lat, 'f', 6);
}

} // namespace

RoadRouter::RoadRouter(QNetworkAccessManager &network, QUrl service, RequestGate &gate)
    : m_network(network)
    , m_service(std::move(service))
    , m_gate(gate)
{}

QString RoadRouter::profile(TripMode mode)
{
    switch (mode) {
    case TripMode::Bike:
        return u"cycling"_s;
    case TripMode::Walk:
        return u"foot"_s;
    default:
        return u"driving"_s;
    }
}

QUrl RoadRouter::routeUrl(GeoPoint from, GeoPoint to, TripMode mode) const
{
    QUrl url = m_service;
    QString path = url.path();
    if (!path.endsWith(u'/')) {
        path += u'/';
    }
    url.setPath(path + u"route/v1/"_s + profile(mode) + u'/' + coordinates(from) + u';' + coordinates(to));
    url.setQuery(u"overview=full&geometries=polyline"_s);
    return url;
}

QCoro::Task<RoadRouter::Route> RoadRouter::route(GeoPoint from, GeoPoint to, TripMode mode)
{
    if (!isConfigured()) {
        throw TravelServiceError(TravelServiceError::Kind::NotConfigured, u"no routing service"_s);
    }
    if (!from.isValid() || !to.isValid()) {
        throw TravelServiceError(TravelServiceError::Kind::NotFound, u"a point out of range"_s);
    }
    const TravelHttp::Answer answer = co_await TravelHttp::get(m_network, m_gate, routeUrl(from, to, mode), "en",
                                                                maxAnswerBytes);
    co_return parse(answer);
}

RoadRouter::Route RoadRouter::parse(const TravelHttp::Answer &answer)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(answer.body, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject()) {
        badAnswer(u"not a JSON object"_s);
    }
    const QJsonObject root = document.object();
    const QString code = root.value(u"code"_s).toString();
    if (code != u"Ok") {
        // NoRoute and NoSegment: the points are known, no road joins them; the rest is a refusal.
        const bool none = code == u"NoRoute" || code == u"NoSegment";
        throw TravelServiceError(none ? TravelServiceError::Kind::NotFound : TravelServiceError::Kind::Refused,
                                 u"OSRM "_s + code.left(40) + u": "_s + root.value(u"message"_s).toString().left(200));
    }
    if (answer.status != 200) {
        badAnswer(u"\"Ok\" with HTTP %1"_s.arg(answer.status));
    }
    const QJsonArray routes = root.value(u"routes"_s).toArray();
    if (routes.isEmpty() || !routes.first().isObject()) {
        throw TravelServiceError(TravelServiceError::Kind::NotFound, u"no routes"_s);
    }
    const QJsonObject first = routes.first().toObject();
    const QJsonValue distance = first.value(u"distance"_s);
    const QJsonValue duration = first.value(u"duration"_s);
    if (!distance.isDouble() || !duration.isDouble()) {
        badAnswer(u"distance or duration is not a number"_s);
    }
    const double metres = distance.toDouble();
    const double seconds = duration.toDouble();
    if (!std::isfinite(metres) || metres < 0 || metres > maxDistanceM || !std::isfinite(seconds) || seconds < 0 ||
        seconds > maxDurationS) {
        badAnswer(u"distance or duration out of range"_s);
    }
    Route route;
    route.distanceM = int(std::lround(metres));
    route.durationS = int(std::lround(seconds));
    const QString geometry = first.value(u"geometry"_s).toString();
    if (Geo::decodePolyline(geometry)) {
        route.route = geometry;
    }
    return route;
}
