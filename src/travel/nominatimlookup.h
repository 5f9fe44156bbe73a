#pragma once

#include "travel/geo.h"
#include "travel/travelservices.h"

#include <QList>
#include <QUrl>

#include <QCoroTask>

#include <optional>

class QNetworkAccessManager;

// One hit of an address search.
struct PlaceResult
{
    std::optional<QString> name;
    std::optional<QString> kvk;
    std::optional<QString> branch;
    std::optional<QString> street;
    std::optional<QString> number;
    std::optional<QString> postcode;
    std::optional<QString> city;
    QString address;
    std::optional<double> lat;
    std::optional<double> lng;
    // "N123", "W456" or "R789": the key `lookup` takes back.
    std::optional<QString> osm;
    std::optional<QString> website;
    std::optional<QString> phone;
    std::optional<QString> email;
    std::optional<QString> kvkSource;

    [[nodiscard]] std::optional<GeoPoint> point() const;
    friend bool operator==(const PlaceResult &, const PlaceResult &) = default;
};

// Address search and lookup on an OpenStreetMap Nominatim service.
class NominatimLookup
{
public:
    NominatimLookup(QNetworkAccessManager &network, QUrl service, RequestGate &gate, QString language);

    [[nodiscard]] bool isConfigured() const { return m_service.isValid(); }
    // Places matching free text, best first.
    QCoro::Task<QList<PlaceResult>> search(QString text, int limit = 5);
    // The places of OSM ids ("N123", "W456").
    QCoro::Task<QList<PlaceResult>> lookup(QStringList osmIds);

    [[nodiscard]] QUrl searchUrl(const QString &text, int limit) const;
    [[nodiscard]] QUrl lookupUrl(const QStringList &osmIds) const;
    // Reads the JSON array Nominatim answers ("jsonv2"); hits without an address or with
    // coordinates out of range are left out, an answer of another shape throws BadAnswer.
    [[nodiscard]] static QList<PlaceResult> parse(const QByteArray &body);

    static constexpr qint64 maxAnswerBytes = 1024 * 1024;
    static constexpr int maxResults = 50;

private:
    [[nodiscard]] QUrl endpoint(const QString &name, const QByteArray &query) const;
    QCoro::Task<QList<PlaceResult>> fetch(QUrl url);

    QNetworkAccessManager &m_network;
    QUrl m_service;
    RequestGate &m_gate;
    QString m_language;
};
