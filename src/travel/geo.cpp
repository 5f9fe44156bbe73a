#include "travel/geo.h"

#include <QRegularExpression>

#include <cmath>
#include <numbers>

bool GeoPoint::isValid() const
{
    return std::isfinite(lat) && std::isfinite(lng) && std::abs(lat) <= 90 && std::abs(lng) <= 180;
}

namespace Geo {

namespace {

constexpr double radians(double degrees)
{
    return degrees * std::numbers::pi / 180.0;
}

constexpr double scale = 1e5;

void encodeValue(qint64 value, QString &out)
{
    // Zig-zag: the sign goes to the lowest bit, so small negative steps stay short.
    quint64 bits = value < 0 ? ~(quint64(value) << 1) : quint64(value) << 1;
    while (bits >= 0x20) {
        out += QChar(char16_t((0x20 | (bits & 0x1f)) + 63));
        bits >>= 5;
    }
    out += QChar(char16_t(bits + 63));
}

} // namespace

double haversineM(GeoPoint from, GeoPoint to)
{
    const double dLat = radians(to.lat - from.lat);
    const double dLng = radians(to.lng - from.lng);
    const double sinLat = std::sin(dLat / 2);
    const double sinLng = std::sin(dLng / 2);
    const double a = sinLat * sinLat + std::cos(radians(from.lat)) * std::cos(radians(to.lat)) * sinLng * sinLng;
    // Rounding can push `a` of antipodal points a hair above 1, where asin has no value.
    return earthDiameterM * std::asin(std::min(1.0, std::sqrt(a)));
}

QString encodePolyline(const QList<GeoPoint> &points)
{
    QString out;
    qint64 lastLat = 0;
    qint64 lastLng = 0;
    for (const GeoPoint &point : points) {
        const auto lat = qint64(std::llround(point.lat * scale));
        const auto lng = qint64(std::llround(point.lng * scale));
        encodeValue(lat - lastLat, out);
        encodeValue(lng - lastLng, out);
        lastLat = lat;
        lastLng = lng;
    }
    return out;
}

std::optional<QList<GeoPoint>> decodePolyline(QStringView encoded)
{
    QList<GeoPoint> points;
    qint64 coordinates[2] = {0, 0};
    qsizetype at = 0;
    while (at < encoded.size()) {
        for (qint64 &coordinate : coordinates) {
            quint64 bits = 0;
            int shift = 0;
            while (true) {
                if (at >= encoded.size() || shift > 30) {
                    return std::nullopt; // cut off, or a value longer than any coordinate
                }
                const int chunk = encoded.at(at++).unicode() - 63;
                if (chunk < 0 || chunk > 0x3f) {
                    return std::nullopt;
                }
                bits |= quint64(chunk & 0x1f) << shift;
                shift += 5;
                if (chunk < 0x20) {
                    break;
                }
            }
            coordinate += (bits & 1) ? ~qint64(bits >> 1) : qint64(bits >> 1);
        }
        const GeoPoint point{double(coordinates[0]) / scale, double(coordinates[1]) / scale};
        if (!point.isValid()) {
            return std::nullopt;
        }
        points.append(point);
    }
    return points;
}

std::optional<GeoPoint> parseLatLng(const QString &text)
{
    static const QRegularExpression pair(
        QStringLiteral(R"(^\s*([-+]?\d{1,3}(?:\.\d+)?)\s*[,;\s]\s*([-+]?\d{1,3}(?:\.\d+)?)\s*$)"));
    const QRegularExpressionMatch match = pair.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    const GeoPoint point{match.captured(1).toDouble(), match.captured(2).toDouble()};
    return point.isValid() ? std::optional<GeoPoint>(point) : std::nullopt;
}

} // namespace Geo
