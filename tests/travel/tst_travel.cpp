#include "travel/geo.h"
#include "travel/travel.h"

#include <QJsonDocument>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

Trip trip(const QString &id, int metres, const QString &project = u"p1"_s)
{
    Trip t;
    t.id = id;
    t.projectId = project;
    t.startedAt = u"2026-03-02T08:00:00Z"_s;
    t.endedAt = u"2026-03-02T09:00:00Z"_s;
    t.distanceM = metres;
    return t;
}

Billing travelBilling(const QByteArray &json)
{
    Billing billing;
    billing.travel = JSONValue::fromJson(QJsonDocument::fromJson(json).object());
    return billing;
}

const Travel::Labels words{u"Travel"_s, u"km"_s, u"trip"_s, u"%1 km in 1 trip"_s, u"%1 km in %2 trips"_s};

} // namespace

// Distances, routes and the travel line: what a project's invoice charges for its trips.
class TestTravel : public QObject
{
    Q_OBJECT

private slots:
    void billedKilometres_data()
    {
        QTest::addColumn<QList<int>>("metres");
        QTest::addColumn<double>("km");
        QTest::newRow("1249 m stays 1.2 km") << QList<int>{1249} << 1.2;
        QTest::newRow("1250 m rounds up to 1.3 km") << QList<int>{1250} << 1.3;
        QTest::newRow("two 40 m trips: the sum is rounded, not each") << QList<int>{40, 40} << 0.1;
        QTest::newRow("49 m is nothing") << QList<int>{49} << 0.0;
        QTest::newRow("a long drive") << QList<int>{123456, 78950} << 202.4;
    }
    void billedKilometres()
    {
        QFETCH(QList<int>, metres);
        QFETCH(double, km);
        QList<Trip> trips;
        for (const int m : metres) {
            trips << trip(u"t%1"_s.arg(trips.size()), m);
        }
        const auto line = Travel::line(trips, {Travel::Mode::PerKm, 0.5, {}}, std::nullopt, words);
        QVERIFY(line);
        QCOMPARE(line->quantity, km);
        QCOMPARE(line->amount, std::round(km * 0.5 * 100) / 100);
        QCOMPARE(line->tripIds.size(), metres.size());
    }

    void negativeAndBrokenSumsCountAsNothing()
    {
        QCOMPARE(Travel::billedKm(-500), 0.0);
        QCOMPARE(Travel::billedKm(std::nan("")), 0.0);
    }

    void tripsThatNeverBill_data()
    {
        QTest::addColumn<Trip>("candidate");
        Trip privateTrip = trip(u"a"_s, 5000);
        privateTrip.kind = u"private"_s;
        Trip notCharged = trip(u"b"_s, 5000);
        notCharged.billable = false;
        Trip underWay = trip(u"c"_s, 5000);
        underWay.endedAt.reset();
        Trip otherProject = trip(u"d"_s, 5000, u"p2"_s);
        Trip noProject = trip(u"e"_s, 5000);
        noProject.projectId.reset();
        QTest::newRow("private") << privateTrip;
        QTest::newRow("not billable") << notCharged;
        QTest::newRow("still in progress") << underWay;
        QTest::newRow("another project") << otherProject;
        QTest::newRow("no project") << noProject;
        QTest::newRow("already on an invoice") << trip(u"billed"_s, 5000);
    }
    void tripsThatNeverBill()
    {
        QFETCH(Trip, candidate);
        const Trip good = trip(u"good"_s, 1000);
        const QList<Trip> billed = Travel::tripsToBill({candidate, good}, u"p1"_s, {u"billed"_s});
        QCOMPARE(billed, QList<Trip>{good});
    }

    void projectSetting_data()
    {
        QTest::addColumn<QByteArray>("travel");
        QTest::addColumn<int>("mode");
        QTest::addColumn<double>("rate"); // -1: none
        QTest::addColumn<QString>("label");
        QTest::newRow("no mode bills nothing") << QByteArray("{\"rate\":0.4}") << int(Travel::Mode::None) << -1.0
                                               << QString();
        QTest::newRow("unknown mode bills nothing") << QByteArray("{\"mode\":\"per_mile\",\"rate\":1}")
                                                    << int(Travel::Mode::None) << -1.0 << QString();
        QTest::newRow("per km with rate and label") << QByteArray("{\"mode\":\"per_km\",\"rate\":0.35,\"label\":\"Mileage\"}")
                                                    << int(Travel::Mode::PerKm) << 0.35 << u"Mileage"_s;
        QTest::newRow("empty label counts as none") << QByteArray("{\"mode\":\"per_trip\",\"rate\":15,\"label\":\"  \"}")
                                                    << int(Travel::Mode::PerTrip) << 15.0 << QString();
        QTest::newRow("a negative rate is no rate") << QByteArray("{\"mode\":\"per_km\",\"rate\":-2}")
                                                    << int(Travel::Mode::PerKm) << -1.0 << QString();
        QTest::newRow("a rate as text is no rate") << QByteArray("{\"mode\":\"per_km\",\"rate\":\"0.3\"}")
                                                   << int(Travel::Mode::PerKm) << -1.0 << QString();
    }
    void projectSetting()
    {
        QFETCH(QByteArray, travel);
        QFETCH(int, mode);
        QFETCH(double, rate);
        QFETCH(QString, label);
        const Travel::Setting setting = Travel::of(travelBilling(travel));
        QCOMPARE(int(setting.mode), mode);
        QCOMPARE(setting.rate, rate < 0 ? std::nullopt : std::optional<double>(rate));
        QCOMPARE(setting.label.value_or(QString()), label);
        QCOMPARE(Travel::of(std::nullopt).mode, Travel::Mode::None);
    }

    void rateFallbacks_data()
    {
        QTest::addColumn<QByteArray>("travel");
        QTest::addColumn<double>("userRate"); // -1: the profile names none
        QTest::addColumn<double>("unitPrice");
        QTest::addColumn<double>("amount");
        QTest::newRow("the project's rate wins") << QByteArray("{\"mode\":\"per_km\",\"rate\":0.4}") << 0.3 << 0.4 << 4.0;
        QTest::newRow("else the user's rate") << QByteArray("{\"mode\":\"per_km\"}") << 0.3 << 0.3 << 3.0;
        QTest::newRow("else 0.23") << QByteArray("{\"mode\":\"per_km\"}") << -1.0 << 0.23 << 2.3;
        QTest::newRow("per trip: count times the rate") << QByteArray("{\"mode\":\"per_trip\",\"rate\":12.5}") << 0.3
                                                        << 12.5 << 25.0;
        QTest::newRow("per trip without a rate is free") << QByteArray("{\"mode\":\"per_trip\"}") << 0.3 << 0.0 << 0.0;
    }
    void rateFallbacks()
    {
        QFETCH(QByteArray, travel);
        QFETCH(double, userRate);
        QFETCH(double, unitPrice);
        QFETCH(double, amount);
        const QList<Trip> trips{trip(u"a"_s, 6000), trip(u"b"_s, 4000)};
        const auto line = Travel::line(trips, Travel::of(travelBilling(travel)),
                                       userRate < 0 ? std::nullopt : std::optional<double>(userRate), words);
        QVERIFY(line);
        QCOMPARE(line->unitPrice, unitPrice);
        QCOMPARE(line->amount, amount);
        QCOMPARE(line->description, u"10.0 km in 2 trips"_s);
    }

    void lineWordsAndNoLine()
    {
        const auto one = Travel::line({trip(u"a"_s, 12340)}, {Travel::Mode::PerKm, 1, u"Mileage"_s}, {}, words);
        QVERIFY(one);
        QCOMPARE(one->title, u"Mileage"_s);
        QCOMPARE(one->description, u"12.3 km in 1 trip"_s);
        QCOMPARE(one->unit, u"km"_s);
        QVERIFY(!Travel::line({trip(u"a"_s, 1000)}, {Travel::Mode::None, 1, {}}, {}, words));
        QVERIFY(!Travel::line({}, {Travel::Mode::PerKm, 1, {}}, {}, words));
        // What the setting writes back reads as the same setting.
        const Travel::Setting setting{Travel::Mode::PerTrip, 9.5, u"Call-out"_s};
        Billing billing;
        billing.travel = Travel::toJson(setting);
        QCOMPARE(Travel::of(billing), setting);
    }

    void userSettingsKeepOtherKeys()
    {
        const JSONValue stored = JSONValue::fromJson(QJsonDocument::fromJson(
            "{\"rate_per_km\":\"lots\",\"default_mode\":\"hovercraft\",\"phone_only\":true}").object());
        const TravelSettings read = TravelSettings::fromJson(stored);
        QCOMPARE(read.ratePerKm, 0.23);
        QCOMPARE(read.defaultMode, TripMode::Car);
        TravelSettings changed = read;
        changed.defaultMode = TripMode::Transit;
        const JSONValue merged = changed.mergedInto(stored);
        QCOMPARE(merged.value(u"phone_only"_s).toBool(), true);
        QCOMPARE(TravelSettings::fromJson(merged), changed);
    }

    void haversine_data()
    {
        QTest::addColumn<GeoPoint>("from");
        QTest::addColumn<GeoPoint>("to");
        QTest::addColumn<double>("metres");
        QTest::addColumn<double>("tolerance");
        QTest::newRow("a point to itself") << GeoPoint{52.37, 4.89} << GeoPoint{52.37, 4.89} << 0.0 << 0.0;
        QTest::newRow("antipodes, root clamped at 1") << GeoPoint{0, 0} << GeoPoint{0, 180} << 20015114.4 << 0.1;
        QTest::newRow("pole to pole") << GeoPoint{90, 0} << GeoPoint{-90, 0} << 20015114.4 << 0.1;
        QTest::newRow("one degree of longitude at the equator") << GeoPoint{0, 0} << GeoPoint{0, 1} << 111195.08
                                                                << 0.1;
        QTest::newRow("Amsterdam to Utrecht") << GeoPoint{52.3702, 4.8952} << GeoPoint{52.0907, 5.1214} << 34687.6
                                              << 0.1;
    }
    void haversine()
    {
        QFETCH(GeoPoint, from);
        QFETCH(GeoPoint, to);
        QFETCH(double, metres);
        QFETCH(double, tolerance);
        const double got = Geo::haversineM(from, to);
        QVERIFY2(std::abs(got - metres) <= tolerance, qPrintable(QString::number(got, 'f', 2)));
        QCOMPARE(Geo::haversineM(to, from), got);
    }

    void polylineRoundTrip_data()
    {
        QTest::addColumn<QList<GeoPoint>>("points");
        QTest::addColumn<QString>("encoded");
        // The worked example of the format's own documentation.
        QTest::newRow("documented example") << QList<GeoPoint>{{38.5, -120.2}, {40.7, -120.95}, {43.252, -126.453}}
                                            << u"_p~iF~ps|U_ulLnnqC_mqNvxq`@"_s;
        QTest::newRow("no points") << QList<GeoPoint>{} << QString();
        QTest::newRow("corners of the map") << QList<GeoPoint>{{-90, -180}, {90, 180}, {0, 0}} << QString();
        QTest::newRow("repeated point") << QList<GeoPoint>{{52.1, 5.1}, {52.1, 5.1}} << QString();
    }
    void polylineRoundTrip()
    {
        QFETCH(QList<GeoPoint>, points);
        QFETCH(QString, encoded);
        const QString text = Geo::encodePolyline(points);
        if (!encoded.isEmpty()) {
            QCOMPARE(text, encoded);
        }
        const std::optional<QList<GeoPoint>> back = Geo::decodePolyline(text);
        QVERIFY(back);
        QCOMPARE(back->size(), points.size());
        for (qsizetype i = 0; i < points.size(); ++i) {
            QVERIFY(std::abs(back->at(i).lat - points.at(i).lat) < 1e-9);
            QVERIFY(std::abs(back->at(i).lng - points.at(i).lng) < 1e-9);
        }
    }

    void brokenPolylinesDecodeToNothing_data()
    {
        QTest::addColumn<QString>("encoded");
        QTest::newRow("cut inside a value") << u"_p~iF~ps|U_ulLnnqC_mqNvxq"_s;
        QTest::newRow("a latitude without longitude") << u"_p~iF"_s;
        QTest::newRow("a character below the alphabet") << u"_p~iF ps|U"_s;
        QTest::newRow("a value longer than any coordinate") << u"~~~~~~~~~~~~~~?"_s;
        QTest::newRow("a point beyond the pole") << Geo::encodePolyline({{89.99999, 0}}) + Geo::encodePolyline({{1, 0}});
    }
    void brokenPolylinesDecodeToNothing()
    {
        QFETCH(QString, encoded);
        QVERIFY(!Geo::decodePolyline(encoded));
    }

    void typedCoordinates_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("point");
        QTest::newRow("comma") << u"52.3702, 4.8952"_s << true;
        QTest::newRow("negative") << u"-33.86 151.21"_s << true;
        QTest::newRow("latitude out of range") << u"91, 4"_s << false;
        QTest::newRow("an address") << u"Dam 1, Amsterdam"_s << false;
    }
    void typedCoordinates()
    {
        QFETCH(QString, text);
        QFETCH(bool, point);
        QCOMPARE(Geo::parseLatLng(text).has_value(), point);
    }
};

QTEST_GUILESS_MAIN(TestTravel)
#include "tst_travel.moc"
