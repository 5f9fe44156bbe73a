#pragma once

#include <QList>
#include <QString>

#include <optional>

// A point on the Earth in degrees.
struct GeoPoint
{
    double lat = 0;
    double lng = 0;

    // Finite, latitude within ±90 and longitude within ±180: what any point from outside must be.
    [[nodiscard]] bool isValid() const;
    friend bool operator==(const GeoPoint &, const GeoPoint &) = default;
};

// Distances and the encoded polylines routes are stored as.
namespace Geo {

// Twice the mean Earth radius of 6,371,008.8 m.
inline constexpr double earthDiameterM = 12'742'017.6;

// The great-circle distance in metres; the estimate when only the two places are known.
[[nodiscard]] double haversineM(GeoPoint from, GeoPoint to);

// The polyline encoding of precision 5 (degrees × 100000), as routing services answer it.
[[nodiscard]] QString encodePolyline(const QList<GeoPoint> &points);
// Nothing for text that is not a well-formed polyline or decodes to a point out of range: a
// stored route comes from a phone or a routing service and is not trusted.
[[nodiscard]] std::optional<QList<GeoPoint>> decodePolyline(QStringView encoded);

// "52.3702, 4.8952" typed as a place: the point, when the text is exactly two numbers in range.
[[nodiscard]] std::optional<GeoPoint> parseLatLng(const QString &text);

} // namespace Geo
