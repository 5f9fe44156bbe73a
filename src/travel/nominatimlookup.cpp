#include "travel/nominatimlookup.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maxText = 500;

// Text from the service, as a field should hold it: bounded, without control characters.
std::optional<QString> textOf(const QJsonValue &value)
{
    if (!value.isString()) {
        return std::nullopt;
    }
    QString text = value.toString().left(maxText);
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control) {
            c = u' ';
        }
    }
    text = text.simplified();
    return text.isEmpty() ? std::nullopt : std::optional<QString>(text);
}

// Nominatim writes coordinates as strings; either form is read, anything else is none.
std::optional<double> numberOf(const QJsonValue &value)
{
    bool ok = value.isDouble();
    double number = value.toDouble();
    if (value.isString()) {
        number = value.toString().toDouble(&ok);
    }
    return ok && std::isfinite(number) ? std::optional<double>(number) : std::nullopt;
}

std::optional<QString> firstOf(const QJsonObject &object, std::initializer_list<const char16_t *> keys)
{
    for (const char16_t *key : keys) {
        if (std::optional<QString> text = textOf(object.value(QString::fromUtf16(key)))) {
            return text;
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<GeoPoint> PlaceResult::point() const
{
    if (!lat || !lng) {
        return std::nullopt;
    }
    const GeoPoint point{*lat, *lng};
    return point.isValid() ? std::optional<GeoPoint>(point) : std::nullopt;
}

NominatimLookup::NominatimLookup(QNetworkAccessManager &network, QUrl service, RequestGate &gate, QString language)
    : m_network(network)
    , m_service(std::move(service))
    , m_gate(gate)
    , m_language(std::move(language))
{}

QUrl NominatimLookup::endpoint(const QString &name, const QByteArray &query) const
{
    QUrl url = m_service;
    QString path = url.path();
    if (!path.endsWith(u'/')) {
        path += u'/';
    }
    url.setPath(path + name);
    // Already encoded: QUrl must not encode the percent signs a second time.
    url.setQuery(QString::fromLatin1(query), QUrl::StrictMode);
    return url;
}

QUrl NominatimLookup::searchUrl(const QString &text, int limit) const
{
    return endpoint(u"search"_s, "q=" + TravelHttp::encodeComponent(text.simplified()) +
                                     "&format=jsonv2&addressdetails=1&extratags=1&limit=" +
                                     QByteArray::number(std::clamp(limit, 1, maxResults)));
}

QUrl NominatimLookup::lookupUrl(const QStringList &osmIds) const
{
    return endpoint(u"lookup"_s, "osm_ids=" + TravelHttp::encodeComponent(osmIds.join(u',')) +
                                     "&format=jsonv2&addressdetails=1&extratags=1");
}

QCoro::Task<QList<PlaceResult>> NominatimLookup::search(QString text, int limit)
{
    if (!isConfigured()) {
        throw TravelServiceError(TravelServiceError::Kind::NotConfigured, u"no address service"_s);
    }
    co_return co_await fetch(searchUrl(text, limit));
}

QCoro::Task<QList<PlaceResult>> NominatimLookup::lookup(QStringList osmIds)
{
    if (!isConfigured()) {
        throw TravelServiceError(TravelServiceError::Kind::NotConfigured, u"no address service"_s);
    }
    static const QRegularExpression osmId(u"^[NWR][0-9]{1,19}$"_s);
    for (const QString &id : std::as_const(osmIds)) {
        if (!osmId.match(id).hasMatch()) {
            throw TravelServiceError(TravelServiceError::Kind::NotFound, u"not an OSM id: "_s + id.left(40));
        }
    }
    co_return co_await fetch(lookupUrl(osmIds));
}

QCoro::Task<QList<PlaceResult>> NominatimLookup::fetch(QUrl url)
{
    const TravelHttp::Answer answer =
        co_await TravelHttp::get(m_network, m_gate, url, m_language.toUtf8(), maxAnswerBytes);
    if (answer.status != 200) {
        throw TravelServiceError(TravelServiceError::Kind::Refused, u"HTTP 400"_s);
    }
    co_return parse(answer.body);
}

QList<PlaceResult> NominatimLookup::parse(const QByteArray &body)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(body, &error);
    if (error.error != QJsonParseError::NoError || !document.isArray()) {
        throw TravelServiceError(TravelServiceError::Kind::BadAnswer, u"not a JSON array"_s);
    }
    QList<PlaceResult> results;
    for (const QJsonValue &value : document.array()) {
        if (results.size() >= maxResults) {
            break;
        }
        const QJsonObject hit = value.toObject();
        PlaceResult place;
        const std::optional<QString> address = textOf(hit.value(u"display_name"_s));
        if (!address) {
            continue;
        }
        place.address = *address;
        place.lat = numberOf(hit.value(u"lat"_s));
        place.lng = numberOf(hit.value(u"lon"_s));
        if (!place.point()) {
            continue;
        }
        place.name = textOf(hit.value(u"name"_s));
        const QString type = hit.value(u"osm_type"_s).toString();
        const std::optional<double> id = numberOf(hit.value(u"osm_id"_s));
        if (id && *id > 0 && *id < 1e18 && (type == u"node" || type == u"way" || type == u"relation")) {
            place.osm = type.left(1).toUpper() + QString::number(qint64(*id));
        }
        const QJsonObject parts = hit.value(u"address"_s).toObject();
        place.street = firstOf(parts, {u"road", u"pedestrian", u"path"});
        place.number = textOf(parts.value(u"house_number"_s));
        place.postcode = textOf(parts.value(u"postcode"_s));
        place.city = firstOf(parts, {u"city", u"town", u"village", u"municipality"});
        const QJsonObject extra = hit.value(u"extratags"_s).toObject();
        place.website = firstOf(extra, {u"website", u"contact:website"});
        place.phone = firstOf(extra, {u"phone", u"contact:phone"});
        place.email = firstOf(extra, {u"email", u"contact:email"});
        results.append(place);
    }
    return results;
}
