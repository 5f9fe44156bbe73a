#include "model/isodate.h"
#include "pg/pgconnection.h"
#include "support/desktopwindow.h"
#include "support/scriptedhttpserver.h"
#include "support/testbackend.h"
#include "travel/geo.h"
#include "travel/travel.h"
#include "ui/desktopshell.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 20000;

// OSRM's documented answer of a route request (overview=full, geometries=polyline).
const QByteArray osrmRoute =
    "{\"code\":\"Ok\",\"routes\":[{\"geometry\":\"_p~iF~ps|U_ulLnnqC_mqNvxq`@\",\"legs\":[],\"distance\":34512.7,"
    "\"duration\":1893.4,\"weight_name\":\"routability\",\"weight\":1893.4}],\"waypoints\":[]}";

// Nominatim's "jsonv2" answer for one hit, at the given place.
QByteArray nominatimHit(const char *name, const char *lat, const char *lon)
{
    return "[{\"place_id\":1,\"osm_type\":\"way\",\"osm_id\":123456,\"lat\":\"" + QByteArray(lat) + "\",\"lon\":\"" +
           QByteArray(lon) + "\",\"name\":\"" + name + "\",\"display_name\":\"" + name +
           ", Nederland\",\"address\":{\"road\":\"Dam\",\"country_code\":\"nl\"}}]";
}

} // namespace

// The trips screen in the real window over a real backend, with the routing and address services
// as loopback fakes that answer as the real ones document: a trip found by address and routed by
// road, one estimated when routing fails, the filters, a trip under way finished, the travel
// settings, and a delete after the question.
class TestTripsView : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    ScriptedHttpServer m_osrm{[](const RecordedRequest &) { return ScriptedHttpServer::json(200, osrmRoute); }};
    ScriptedHttpServer m_nominatim{[](const RecordedRequest &request) {
        const bool utrecht = request.queryValue(u"q"_s).contains(u"Neude"_s);
        return ScriptedHttpServer::json(200, utrecht ? nominatimHit("Neude", "52.0907", "5.1214")
                                                     : nominatimHit("Paleis", "52.3731", "4.8926"));
    }};
    std::unique_ptr<DesktopWindow> m_desktop;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    QString m_projectId;

    AppStore *store() const { return m_desktop->store(); }
    TripsView *trips() const { return m_desktop->workspace()->trips(); }
    // Items, list delegates and popups by object name.
    QObject *item(const char *name) const
    {
        const QString wanted = QString::fromLatin1(name);
        if (QObject *found = m_desktop->item(wanted)) {
            return found;
        }
        return m_desktop->window()->findChild<QObject *>(wanted);
    }
    void click(const char *button) { QVERIFY(QMetaObject::invokeMethod(item(button), "clicked")); }
    QString column(const char *name, const QString &tripId)
    {
        return QString::fromUtf8(
            m_backend.database()
                .exec("SELECT coalesce(" + QByteArray(name) + "::text, 'NULL') FROM trips WHERE id = $1",
                      {tripId.toUtf8()})
                .value(0, 0));
    }
    // Types into a place field and takes the first hit the search brings.
    void place(const QString &field, const QString &text)
    {
        trips()->typePlace(field, text);
        QTRY_VERIFY_WITH_TIMEOUT(!trips()->searchResults().isEmpty(), patience);
        trips()->choosePlace(0);
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        qputenv("MORVANE_OSRM_URL", m_osrm.url().toString().toUtf8());
        qputenv("MORVANE_NOMINATIM_URL", m_nominatim.url().toString().toUtf8());
        m_desktop = std::make_unique<DesktopWindow>(m_backend);
        m_tester = std::make_unique<QAbstractItemModelTester>(trips()->rows(),
                                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
        QVERIFY(m_desktop->open());
        QVERIFY(m_desktop->signUp(u"ada@example.com"_s, u"Ada Lovelace"_s, u"EUR"_s, u"90"_s, u"Europe/Amsterdam"_s));
        m_desktop->workspace()->createProject(u"Hoekstra Design"_s);
        QTRY_COMPARE_WITH_TIMEOUT(store()->projects().size(), 1, patience);
        m_projectId = store()->projects().first().id;
    }

    void cleanupTestCase()
    {
        m_tester.reset();
        m_desktop.reset();
    }

    void aTripFoundByAddressGoesByRoad()
    {
        m_desktop->showPage(u"trips"_s);
        QTRY_VERIFY(item("tripsView"));
        QTRY_VERIFY_WITH_TIMEOUT(trips()->isReady(), patience);
        QVERIFY(item("tripsEmpty")->property("visible").toBool());
        QVERIFY(m_desktop->shoot(u"trips-empty"_s));

        click("newTrip");
        QVERIFY(item("tripEditor")->property("visible").toBool());
        // Typing fast asks the service once, for the text that stands when the typing pauses.
        trips()->typePlace(u"from"_s, u"Da"_s);
        trips()->typePlace(u"from"_s, u"Dam 1"_s);
        trips()->typePlace(u"from"_s, u"Dam 1, Amsterdam"_s);
        QTRY_COMPARE_WITH_TIMEOUT(trips()->searchResults().size(), 1, patience);
        QCOMPARE(m_nominatim.requests().size(), 1);
        QCOMPARE(m_nominatim.requests().first().queryValue(u"q"_s), u"Dam 1, Amsterdam"_s);
        QCOMPARE(m_nominatim.requests().first().header("Accept-Language"), QByteArray("en"));
        QCOMPARE(trips()->searchNote(), qtTrId("ui.trips.resultsFrom"));
        trips()->choosePlace(0);
        QCOMPARE(trips()->fromText(), u"Paleis, Nederland"_s);
        QVERIFY(trips()->fromPlaced());
        QVERIFY(trips()->searchResults().isEmpty());

        trips()->typePlace(u"to"_s, u"Neude, Utrecht"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!trips()->searchResults().isEmpty(), patience);
        QVERIFY(m_desktop->shoot(u"trips-search"_s));
        trips()->choosePlace(0);
        QTRY_COMPARE_WITH_TIMEOUT(trips()->km(), u"34.5"_s, patience);
        QCOMPARE(m_osrm.requests().size(), 1);
        QCOMPARE(m_osrm.requests().first().path(), QByteArray("/route/v1/driving/4.892600,52.373100;5.121400,52.090700"));
        QCOMPARE(trips()->distanceNote(), qtTrId("tripDistanceByRoad").arg(32));

        // The route's three points fill the square along its longer side, start first.
        QVERIFY(trips()->mapIsRoute());
        const QVariantList points = trips()->mapPoints();
        QCOMPARE(points.size(), 3);
        double low = 1, high = 0;
        for (const QVariant &point : points) {
            const QPointF p = point.toPointF();
            low = std::min({low, p.x(), p.y()});
            high = std::max({high, p.x(), p.y()});
        }
        QCOMPARE(low, 0.0);
        QCOMPARE(high, 1.0);
        // North is up: the line runs from the south-east corner to the north-west.
        QCOMPARE(points.first().toPointF().y(), 1.0);
        QCOMPARE(points.last().toPointF().y(), 0.0);
        QVERIFY(points.last().toPointF().x() < 0.01 && points.first().toPointF().x() > 0.99);

        trips()->setWork(u"p:"_s + m_projectId);
        trips()->setPurpose(u"  Workshop at the client "_s);
        click("saveTrip");
        QTRY_COMPARE_WITH_TIMEOUT(store()->trips().size(), 1, patience);
        const QString id = store()->trips().first().id;
        // The road's own metres are kept, not the rounded kilometres shown.
        QCOMPARE(column("distance_m", id), u"34513"_s);
        QCOMPARE(column("route", id), u"_p~iF~ps|U_ulLnnqC_mqNvxq`@"_s);
        QCOMPARE(column("project_id", id), m_projectId);
        QCOMPARE(column("purpose", id), u"Workshop at the client"_s);
        QCOMPARE(column("start_lat", id), u"52.3731"_s);
        QCOMPARE(column("billable", id), u"true"_s);
        QTRY_COMPARE(trips()->editing(), id);
        QCOMPARE(trips()->rows()->rowCount(), 1);
        QCOMPARE(trips()->rows()->get(0).value(u"km"_s).toString(), u"34.5"_s);
    }

    void withoutARouteTheEstimateIsSavedAndFiltered()
    {
        m_osrm.setHandler([](const RecordedRequest &) {
            return ScriptedHttpServer::json(400, "{\"code\":\"NoRoute\",\"message\":\"Impossible route\"}");
        });
        trips()->newTrip();
        // Nothing is sent while the editor is incomplete; each missing part is named.
        QVERIFY(!trips()->save());
        QCOMPARE(trips()->problems().keys(), (QStringList{u"from"_s, u"km"_s, u"to"_s}));
        trips()->setDate(u"2025-02-30"_s);
        QVERIFY(trips()->problems().contains(u"date"_s));

        // Coordinates typed as a place need no search.
        trips()->typePlace(u"from"_s, u"52.3702, 4.8952"_s);
        trips()->typePlace(u"to"_s, u"52.0907, 5.1214"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!trips()->routing() && !trips()->km().isEmpty(), patience);
        const double metres = Geo::haversineM({52.3702, 4.8952}, {52.0907, 5.1214});
        QCOMPARE(trips()->km(), QString::number(Travel::billedKm(metres), 'f', 1));
        QVERIFY(trips()->distanceNote().endsWith(qtTrId("tripDistanceEstimate")));
        QVERIFY(trips()->distanceNote().startsWith(qtTrId("tripErrNotFound")));
        QVERIFY(!trips()->mapIsRoute());
        QCOMPARE(trips()->mapPoints().size(), 2);

        const QDate lastMonth = QDate::currentDate().addMonths(-1);
        trips()->setDate(QDate(lastMonth.year(), lastMonth.month(), 15).toString(Qt::ISODate));
        trips()->setPrivateTrip(true);
        trips()->setMode(u"bike"_s);
        QVERIFY(trips()->save());
        QTRY_COMPARE_WITH_TIMEOUT(store()->trips().size(), 2, patience);
        const Trip saved = store()->trips().last();
        QCOMPARE(saved.kind, u"private"_s);
        QVERIFY(!saved.billable);
        QCOMPARE(saved.mode, TripMode::Bike);
        QCOMPARE(saved.distanceM, int(std::lround(metres)));
        QVERIFY(!saved.route);

        struct Filter
        {
            QString period, project, billable;
            int rows;
        };
        for (const Filter &filter : {Filter{u"all"_s, {}, u"all"_s, 2}, Filter{u"month"_s, {}, u"all"_s, 1},
                                     Filter{u"lastMonth"_s, {}, u"all"_s, 1}, Filter{u"all"_s, {}, u"billable"_s, 1},
                                     Filter{u"all"_s, {}, u"notBillable"_s, 1},
                                     Filter{u"all"_s, m_projectId, u"all"_s, 1},
                                     Filter{u"lastMonth"_s, m_projectId, u"all"_s, 0}}) {
            trips()->setPeriod(filter.period);
            trips()->setProject(filter.project);
            trips()->setBillable(filter.billable);
            QCOMPARE(trips()->rows()->rowCount(), filter.rows);
        }
        // Nothing shown by the filters says so rather than showing an empty pane.
        QTRY_VERIFY(item("tripsEmpty")->property("visible").toBool());
        QCOMPARE(item("tripsEmpty")->property("title").toString(), qtTrId("ui.trips.noMatch"));
        // A project that charges no travel says which trips would go on its invoices.
        QCOMPARE(trips()->toInvoice(), qtTrId("ui.trips.projectHint"));
        trips()->setPeriod(u"all"_s);
        trips()->setProject({});
        trips()->setBillable(u"all"_s);
    }

    void aTripUnderWayIsFinished()
    {
        m_osrm.setHandler([](const RecordedRequest &) { return ScriptedHttpServer::json(200, osrmRoute); });
        trips()->closeEditor();
        click("startTrip");
        QTRY_VERIFY_WITH_TIMEOUT(!trips()->progressId().isEmpty(), patience);
        const QString id = trips()->progressId();
        QCOMPARE(column("ended_at", id), u"NULL"_s);
        QCOMPARE(trips()->progressText(), u"0.0 km · 0 min"_s);
        QVERIFY(item("tripProgress")->property("visible").toBool());
        QVERIFY(!item("startTrip")->property("visible").toBool());
        QVERIFY(m_desktop->shoot(u"trips-list"_s));

        click("finishTrip");
        QVERIFY(trips()->finishing());
        QCOMPARE(trips()->editing(), id);
        place(u"from"_s, u"Dam 1"_s);
        place(u"to"_s, u"Neude"_s);
        QTRY_COMPARE_WITH_TIMEOUT(trips()->km(), u"34.5"_s, patience);
        QVERIFY(trips()->save());
        QTRY_VERIFY_WITH_TIMEOUT(trips()->progressId().isEmpty(), patience);
        QVERIFY(isoDate(column("ended_at", id)));
        QCOMPARE(column("distance_m", id), u"34513"_s);
        QCOMPARE(column("end_label", id), u"Neude, Nederland"_s);
        QVERIFY(!trips()->finishing());
        QVERIFY(m_desktop->shoot(u"trips-editor"_s));
    }

    void travelSettingsAreCheckedAndSaved()
    {
        QVERIFY(!trips()->saveSettings(u"a lot"_s, u"car"_s));
        QCOMPARE(trips()->settingsProblem(), qtTrId("ui.trips.problem.rate"));
        QVERIFY(!trips()->saveSettings(u"-1"_s, u"car"_s));
        QVERIFY(trips()->saveSettings(u"0,30"_s, u"bike"_s));
        QVERIFY(trips()->settingsProblem().isEmpty());
        QTRY_COMPARE_WITH_TIMEOUT(store()->travelSettings().ratePerKm, 0.30, patience);
        QCOMPARE(store()->travelSettings().defaultMode, TripMode::Bike);
        // The usual mode is what a new trip starts with.
        trips()->newTrip();
        QCOMPARE(trips()->mode(), u"bike"_s);
        trips()->closeEditor();
    }

    void deleteAsksFirst()
    {
        const QString id = store()->trips().first().id;
        trips()->edit(id);
        click("deleteTrip");
        QObject *dialog = item("confirmDeleteTrip");
        QVERIFY(dialog);
        QTRY_VERIFY(dialog->property("opened").toBool());
        QCOMPARE(store()->trips().size(), 3);
        QVERIFY(QMetaObject::invokeMethod(dialog, "confirmed"));
        QTRY_COMPARE_WITH_TIMEOUT(store()->trips().size(), 2, patience);
        QCOMPARE(m_backend.database().exec("SELECT count(*) FROM trips WHERE id = $1", {id.toUtf8()}).value(0, 0),
                 QByteArray("0"));
        QVERIFY(!trips()->editorOpen());
        QTRY_COMPARE(trips()->rows()->rowCount(), 2);
    }
};

MORVANE_DESKTOP_TEST_MAIN(TestTripsView)

#include "tst_tripsview.moc"
