#include "backend/runblocking.h"
#include "i18n/language.h"
#include "store/appstore.h"
#include "store/invoicecomposer.h"
#include "store/storedevice.h"
#include "store/tripexport.h"
#include "support/testbackend.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

// Trips through the store against the real backend, and the one path from trips to a saved
// invoice: the composer's travel line, the links it writes, and the refusal of a second invoice
// over the same trip. The line's arithmetic is tested where it lives.
class TestTrips : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    std::unique_ptr<StoreDevice> m_device;
    QString m_project;

    AppStore &store() { return *m_device->store; }

    TripInsert insert(int metres, const QString &day = u"2026-03-02"_s)
    {
        TripInsert trip;
        trip.projectId = m_project;
        trip.startedAt = day + u"T08:00:00Z"_s;
        trip.endedAt = day + u"T09:00:00Z"_s;
        trip.startLabel = u"Home"_s;
        trip.endLabel = u"Town hall, \"west\" wing"_s;
        trip.distanceM = metres;
        return trip;
    }

    std::optional<Invoice> saveComposed(InvoiceComposer &composer)
    {
        const std::optional<QString> number = runBlocking(store().allocateInvoiceNumber());
        std::optional<InvoiceSaveRequest> request =
            composer.saveRequest(number.value_or(QString()), QDate(2026, 3, 31), {}, u"draft"_s);
        if (!number || !request) {
            return std::nullopt;
        }
        request->pdf = "%PDF-1.4\n%%EOF\n";
        return runBlocking(store().saveInvoice(*request));
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        Language::apply(u"en"_s);
        m_device = StoreDevice::signUp(m_backend, u"tom@example.nl"_s, u"Tom"_s);
        QVERIFY(m_device);
        m_project = QString::fromUtf8(
            m_backend.database()
                .exec("INSERT INTO projects (user_id, name, billing) VALUES ($1, 'Town hall', "
                      "'{\"model\":\"hourly\",\"unit_price\":90,\"vat_rate\":0.21,\"travel\":{\"mode\":\"per_km\"}}') "
                      "RETURNING id",
                      {m_device->userIdBytes()})
                .value(0, 0));
        QVERIFY(m_device->refresh());
    }

    void tripsAreWrittenEditedAndDeleted()
    {
        const auto made = runBlocking(store().createTrips({insert(1000), insert(2000, u"2026-03-05"_s)}));
        QVERIFY2(made && made->size() == 2, qPrintable(store().lastError()));
        QCOMPARE(store().trips().first().id, made->at(1).id); // newest first
        TripPatch patch;
        patch.setText(u"purpose"_s, u"Site visit"_s);
        patch.setInt(u"distance_m"_s, 2500);
        QVERIFY(runBlocking(store().updateTrip(made->at(1).id, patch)));
        QCOMPARE(store().trip(made->at(1).id)->purpose, std::optional<QString>(u"Site visit"_s));
        QVERIFY(runBlocking(store().deleteTrip(made->at(0).id)));
        QVERIFY(!store().trip(made->at(0).id));
        // The list read again is the list kept.
        const QList<Trip> kept = store().trips();
        QVERIFY(runBlocking(store().loadTrips()));
        QCOMPARE(store().trips(), kept);
        QVERIFY(runBlocking(store().deleteTrip(made->at(1).id)));
    }

    void theBackendRefusesWhatNoTripCanBe_data()
    {
        QTest::addColumn<QByteArray>("column");
        QTest::addColumn<QByteArray>("value");
        QTest::newRow("latitude beyond the pole") << QByteArray("start_lat") << QByteArray("91");
        QTest::newRow("negative distance") << QByteArray("distance_m") << QByteArray("-1");
        QTest::newRow("another user's project") << QByteArray("project_id") << QByteArray("other");
    }
    void theBackendRefusesWhatNoTripCanBe()
    {
        QFETCH(QByteArray, column);
        QFETCH(QByteArray, value);
        if (value == "other") {
            auto stranger = StoreDevice::signUp(m_backend, u"stranger@example.nl"_s, u"S"_s);
            QVERIFY(stranger);
            value = "\"" + m_backend.database()
                               .exec("INSERT INTO projects (user_id, name) VALUES ($1, 'Theirs') RETURNING id",
                                     {stranger->userIdBytes()})
                               .value(0, 0) +
                    "\"";
        }
        const QByteArray body = "{\"started_at\":\"2026-03-02T08:00:00Z\",\"" + column + "\":" + value + "}";
        const HttpResult result = m_backend.request("POST", "/rest/v1/trips", m_backend.tokenFor(m_device->userId()),
                                                    body, {{"Content-Type", "application/json"}});
        QVERIFY2(result.status >= 400, result.body.constData());
        QCOMPARE(m_backend.database().exec("SELECT count(*) FROM trips").value(0, 0), QByteArray("0"));
    }

    void anInvoiceChargesTheTripsOnceOnly()
    {
        const auto made = runBlocking(store().createTrips({insert(12340), insert(5000, u"2026-03-03"_s)}));
        QVERIFY(made);
        TripInsert privateTrip = insert(90000, u"2026-03-04"_s);
        privateTrip.kind = u"private"_s;
        privateTrip.billable = false;
        QVERIFY(runBlocking(store().createTrips({privateTrip})));
        QVERIFY(runBlocking(store().setTravelSettings(TravelSettings{false, 0.3, TripMode::Car})));
        QVERIFY(runBlocking(store().reloadBilledEntrySet()));
        QVERIFY(runBlocking(store().loadUnbilledEntries()));
        QVERIFY(runBlocking(store().reloadBilledTrips()));

        InvoiceComposer composer(store());
        composer.open(InvoiceContext{.projectIds = {m_project}, .from = QDate(2026, 3, 1), .to = QDate(2026, 3, 31)});
        QCOMPARE(composer.travelProjectIds(), QStringList{m_project});
        QCOMPARE(composer.built().lines.size(), 1);
        const Earnings::BuiltLine &line = composer.built().lines.first();
        QCOMPARE(line.description, std::optional<QString>(u"17.3 km in 2 trips"_s));
        QCOMPARE(line.amount, 5.19); // 17.3 km at the user's 0.30
        QCOMPARE(composer.vatAmount(), 1.09);
        QCOMPARE(QSet<QString>(composer.tripIds().cbegin(), composer.tripIds().cend()),
                 (QSet<QString>{made->at(0).id, made->at(1).id}));
        // Turning "Charge travel" off leaves nothing to invoice.
        composer.setChargeTravel(m_project, false);
        QVERIFY(composer.built().lines.isEmpty() && composer.tripIds().isEmpty());
        composer.setChargeTravel(m_project, true);

        // A second composer opened before the first saves still offers the same trips.
        InvoiceComposer late(store());
        late.open(InvoiceContext{.projectIds = {m_project}, .from = QDate(2026, 3, 1), .to = QDate(2026, 3, 31)});
        const std::optional<InvoiceSaveRequest> lateRequest = late.saveRequest(u"X"_s, QDate(2026, 3, 31), {}, u"draft"_s);
        QVERIFY(lateRequest && lateRequest->tripIds.size() == 2);

        const std::optional<Invoice> saved = saveComposed(composer);
        QVERIFY2(saved, qPrintable(store().lastError()));
        QCOMPARE(m_backend.database()
                     .exec("SELECT count(*) FROM invoice_trips WHERE invoice_id = $1 AND live", {saved->id.toUtf8()})
                     .value(0, 0),
                 QByteArray("2"));
        QVERIFY(store().billedTripIds().contains(made->at(0).id));
        QVERIFY(!store().travelInvoiceLine(m_project));
        QVERIFY(!store().travelToInvoice(m_project).amount);

        // The other device's save over the same trips is refused, and nothing of it stays.
        InvoiceSaveRequest second = *lateRequest;
        second.invoice.number = *runBlocking(store().allocateInvoiceNumber());
        second.pdf = "%PDF-1.4\n%%EOF\n";
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Save invoice failed: "_s));
        QVERIFY(!runBlocking(store().saveInvoice(second)));
        QCOMPARE(store().invoiceSaveMessage(),
                 u"Some of these trips are already on another invoice. Refresh and try again."_s);
        QCOMPARE(m_backend.database().exec("SELECT count(*) FROM invoices").value(0, 0), QByteArray("1"));

        // The mileage log names the invoice of each charged trip and marks the private one.
        const AccountantExport::Result log =
            runBlocking(TripExport::build(store(), {QDate(2026, 3, 1), QDate(2026, 3, 31), QTimeZone::utc()}));
        QVERIFY(log.csv);
        QCOMPARE(log.rows, 3);
        const QList<QByteArray> lines = log.csv->split('\n');
        QCOMPARE(lines.at(0), QByteArray("date,from,to,km,mode,purpose,project,billable,invoice number\r"));
        const QByteArray expected =
            QByteArray("2026-03-02,Home,\"Town hall, \"\"west\"\" wing\",12.3,car,,Town hall,yes,") + saved->number.toUtf8();
        QCOMPARE(lines.at(1), expected + '\r');
        QVERIFY(lines.at(3).startsWith("2026-03-04,"));
        QVERIFY(lines.at(3).endsWith(",90.0,car,,Town hall,no,\r"));

        // Voiding the invoice frees the trips for the next one.
        QVERIFY(runBlocking(store().voidInvoice(saved->id)));
        QVERIFY(!store().billedTripIds().contains(made->at(0).id));
        QCOMPARE(store().travelToInvoice(m_project).amount, std::optional<double>(5.19));
    }
};

QTEST_GUILESS_MAIN(TestTrips)
#include "tst_trips.moc"
