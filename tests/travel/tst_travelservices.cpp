#include "backend/runblocking.h"
#include "support/scriptedhttpserver.h"
#include "travel/nominatimlookup.h"
#include "travel/roadrouter.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QNetworkAccessManager>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// The documented answers of the services, defined at the end of the file.
QByteArray osrmRouteAnswer();
QByteArray nominatimHitAnswer();

TravelServiceError::Kind failureOf(const std::function<void()> &call)
{
    try {
        call();
    } catch (const TravelServiceError &error) {
        return error.kind();
    }
    return TravelServiceError::Kind(-1);
}

} // namespace

// The routing and address services as their fakes on loopback answer, the way the real ones
// document it: the requests we send, and what we make of good, refused, broken and slow answers.
class TestTravelServices : public QObject
{
    Q_OBJECT

    QNetworkAccessManager m_network;

private slots:
    void initTestCase() { QCoreApplication::setApplicationVersion(u"1.2.3"_s); }

    void routeRequestAndAnswer()
    {
        ScriptedHttpServer osrm([](const RecordedRequest &) { return ScriptedHttpServer::json(200, osrmRouteAnswer()); });
        RequestGate gate(std::chrono::milliseconds(0));
        RoadRouter router(m_network, osrm.url(), gate);
        const RoadRouter::Route route =
            runBlocking(router.route({52.3702, 4.8952}, {52.0907, 5.1214}, TripMode::Bike));
        QCOMPARE(route.distanceM, 34513);
        QCOMPARE(route.durationS, 1893);
        QCOMPARE(route.route, u"_p~iF~ps|U_ulLnnqC_mqNvxq`@"_s);
        QCOMPARE(osrm.requests().size(), 1);
        const RecordedRequest &sent = osrm.requests().first();
        QCOMPARE(sent.method, QByteArray("GET"));
        // OSRM wants longitude first.
        QCOMPARE(sent.target, QByteArray("/route/v1/cycling/4.895200,52.370200;5.121400,52.090700"
                                         "?overview=full&geometries=polyline"));
        QCOMPARE(sent.header("User-Agent"), QByteArray("Morvane-Linux/1.2.3"));
        QCOMPARE(sent.header("Accept"), QByteArray("application/json"));
    }

    void routeFailures_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("kind");
        using K = TravelServiceError::Kind;
        QTest::newRow("no route between the points")
            << 400 << QByteArray("{\"code\":\"NoRoute\",\"message\":\"Impossible route between points\"}") << int(K::NotFound);
        QTest::newRow("invalid query") << 400 << QByteArray("{\"code\":\"InvalidQuery\",\"message\":\"Query string malformed\"}")
                                       << int(K::Refused);
        QTest::newRow("too many requests") << 429 << QByteArray("{}") << int(K::Refused);
        QTest::newRow("server failure") << 502 << QByteArray("<html>bad gateway</html>") << int(K::Network);
        QTest::newRow("not JSON") << 200 << QByteArray("<html>") << int(K::BadAnswer);
        QTest::newRow("negative distance") << 200
                                           << QByteArray("{\"code\":\"Ok\",\"routes\":[{\"distance\":-5,\"duration\":3}]}")
                                           << int(K::BadAnswer);
        QTest::newRow("distance as text") << 200
                                          << QByteArray("{\"code\":\"Ok\",\"routes\":[{\"distance\":\"NaN\",\"duration\":3}]}")
                                          << int(K::BadAnswer);
        QTest::newRow("farther than the Earth is round")
            << 200 << QByteArray("{\"code\":\"Ok\",\"routes\":[{\"distance\":1e12,\"duration\":3}]}") << int(K::BadAnswer);
        QTest::newRow("no routes") << 200 << QByteArray("{\"code\":\"Ok\",\"routes\":[]}") << int(K::NotFound);
        QTest::newRow("larger than allowed")
            << 200 << QByteArray("{\"code\":\"Ok\",\"pad\":\"") + QByteArray(RoadRouter::maxAnswerBytes, 'x') + "\"}"
            << int(K::BadAnswer);
    }
    void routeFailures()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(int, kind);
        ScriptedHttpServer osrm([&](const RecordedRequest &) { return ScriptedHttpServer::json(status, body); });
        RequestGate gate(std::chrono::milliseconds(0));
        RoadRouter router(m_network, osrm.url(), gate);
        QCOMPARE(int(failureOf([&] { runBlocking(router.route({52, 4}, {52.1, 4.1})); })), kind);
    }

    void aBrokenLineKeepsTheDistance()
    {
        const RoadRouter::Route route = RoadRouter::parse(
            {200, "{\"code\":\"Ok\",\"routes\":[{\"distance\":1000,\"duration\":60,\"geometry\":\"_p~iF \"}]}"});
        QCOMPARE(route.distanceM, 1000);
        QVERIFY(route.route.isEmpty());
    }

    void aSlowServiceTimesOutAfterSixSeconds()
    {
        ScriptedHttpServer osrm([](const RecordedRequest &) {
            ScriptedResponse never;
            never.hang = true;
            return never;
        });
        RequestGate gate(std::chrono::milliseconds(0));
        RoadRouter router(m_network, osrm.url(), gate);
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(failureOf([&] { runBlocking(router.route({52, 4}, {52.1, 4.1})); }),
                 TravelServiceError::Kind::TimedOut);
        // The gate is free again for the next request.
        osrm.setHandler([](const RecordedRequest &) { return ScriptedHttpServer::json(200, osrmRouteAnswer()); });
        QCOMPARE(runBlocking(router.route({52, 4}, {52.1, 4.1})).distanceM, 34513);
        QVERIFY(clock.elapsed() >= 5500);
    }

    void searchRequestIsEncodedAndIdentified()
    {
        ScriptedHttpServer nominatim([](const RecordedRequest &) { return ScriptedHttpServer::json(200, nominatimHitAnswer()); });
        RequestGate gate(std::chrono::milliseconds(0));
        NominatimLookup lookup(m_network, nominatim.url(), gate, u"nl"_s);
        const QList<PlaceResult> hits = runBlocking(lookup.search(u"Dam 1, Amsterdam & Zoë (x)!"_s));
        QCOMPARE(hits.size(), 1);
        const PlaceResult &hit = hits.first();
        QCOMPARE(hit.address, u"Paleis, Dam, Amsterdam, 1012 RJ, Nederland"_s);
        QCOMPARE(hit.point(), std::optional<GeoPoint>(GeoPoint{52.3731, 4.8926}));
        QCOMPARE(hit.osm, std::optional<QString>(u"W123456"_s));
        QCOMPARE(hit.street, std::optional<QString>(u"Dam"_s));
        QCOMPARE(hit.city, std::optional<QString>(u"Amsterdam"_s));
        QCOMPARE(hit.website, std::optional<QString>(u"https://example.nl"_s));
        const RecordedRequest &sent = nominatim.requests().first();
        QCOMPARE(sent.target, QByteArray("/search?q=Dam%201%2C%20Amsterdam%20%26%20Zo%C3%AB%20(x)!"
                                         "&format=jsonv2&addressdetails=1&extratags=1&limit=5"));
        QCOMPARE(sent.header("User-Agent"), QByteArray("Morvane-Linux/1.2.3"));
        QCOMPARE(sent.header("Accept-Language"), QByteArray("nl"));

        runBlocking(lookup.lookup({u"W123456"_s, u"N42"_s}));
        QCOMPARE(nominatim.requests().last().target,
                 QByteArray("/lookup?osm_ids=W123456%2CN42&format=jsonv2&addressdetails=1&extratags=1"));
        // An id of another shape never reaches the service.
        QCOMPARE(failureOf([&] { runBlocking(lookup.lookup({u"W1&x=y"_s})); }), TravelServiceError::Kind::NotFound);
        QCOMPARE(nominatim.requests().size(), 2);
    }

    void hostileHitsAreLeftOut()
    {
        const QList<PlaceResult> hits = NominatimLookup::parse("[ {\"display_name\":\"Nowhere\",\"lat\":\"123.0\",\"lon\":\"4\"}, {\"display_name\":\"No numbers\",\"lat\":\"x\",\"lon\":\"4\"}, {\"lat\":\"52\",\"lon\":\"4\"}, {\"display_name\":\"Fine\\u001b[31m place\",\"lat\":52,\"lon\":4,\"osm_type\":\"node\",\"osm_id\":-3}, \"not an object\"]");
        QCOMPARE(hits.size(), 1);
        QCOMPARE(hits.first().address, u"Fine [31m place"_s);
        QVERIFY(!hits.first().osm);
        QCOMPARE(failureOf([] { (void)NominatimLookup::parse("{\"error\":\"Unable to geocode\"}"); }),
                 TravelServiceError::Kind::BadAnswer);
    }

    void theGateLetsOneRequestOutAtATime()
    {
        QList<qint64> arrivals;
        QElapsedTimer clock;
        clock.start();
        ScriptedHttpServer nominatim([&](const RecordedRequest &) {
            arrivals << clock.elapsed();
            return ScriptedHttpServer::json(200, "[]");
        });
        RequestGate gate(std::chrono::milliseconds(300));
        NominatimLookup lookup(m_network, nominatim.url(), gate, u"en"_s);
        // Three searches started together, as a person typing fast would start them.
        auto first = lookup.search(u"a"_s);
        auto second = lookup.search(u"b"_s);
        auto third = lookup.search(u"c"_s);
        runBlocking(std::move(third));
        runBlocking(std::move(second));
        runBlocking(std::move(first));
        QCOMPARE(arrivals.size(), 3);
        QVERIFY2(arrivals.at(1) - arrivals.at(0) >= 290 && arrivals.at(2) - arrivals.at(1) >= 290,
                 qPrintable(u"%1 %2 %3"_s.arg(arrivals.at(0)).arg(arrivals.at(1)).arg(arrivals.at(2))));
        QVERIFY(gate.last().isValid());
    }

    void withoutAServiceNothingIsAsked()
    {
        RequestGate gate(std::chrono::milliseconds(0));
        RoadRouter router(m_network, QUrl(), gate);
        NominatimLookup lookup(m_network, QUrl(), gate, u"en"_s);
        QCOMPARE(failureOf([&] { runBlocking(router.route({52, 4}, {52.1, 4.1})); }),
                 TravelServiceError::Kind::NotConfigured);
        QCOMPARE(failureOf([&] { runBlocking(lookup.search(u"x"_s)); }), TravelServiceError::Kind::NotConfigured);
    }
};

namespace {

// OSRM's documented answer of a route request (overview=full, geometries=polyline).
QByteArray osrmRouteAnswer()
{
    return "{\"code\":\"Ok\",\"routes\":[{\"geometry\":\"_p~iF~ps|U_ulLnnqC_mqNvxq`@\",\"legs\":[], \"distance\":34512.7,\"duration\":1893.4,\"weight_name\":\"routability\",\"weight\":1893.4}], \"waypoints\":[{\"name\":\"Dam\",\"location\":[4.8952,52.3702]},{\"name\":\"Neude\",\"location\":[5.1214,52.0907]}]}";
}

// Nominatim's "jsonv2" answer for one hit with address details.
QByteArray nominatimHitAnswer()
{
    return "[{\"place_id\":1,\"osm_type\":\"way\",\"osm_id\":123456,\"lat\":\"52.3731\",\"lon\":\"4.8926\", \"category\":\"building\",\"type\":\"yes\",\"name\":\"Paleis\",\"display_name\":\"Paleis, Dam, Amsterdam, 1012 RJ, Nederland\", \"address\":{\"road\":\"Dam\",\"house_number\":\"1\",\"city\":\"Amsterdam\",\"postcode\":\"1012 RJ\",\"country_code\":\"nl\"}, \"extratags\":{\"website\":\"https://example.nl\"}}]";
}

} // namespace

QTEST_GUILESS_MAIN(TestTravelServices)
#include "tst_travelservices.moc"
