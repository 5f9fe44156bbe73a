#include "backend/runblocking.h"
#include "i18n/language.h"
#include "pg/pgconnection.h"
#include "store/appstore.h"
#include "store/invoicecomposer.h"
#include "store/storedevice.h"
#include "support/testbackend.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Noon of `day` in local time: the composer's "today" whatever the machine's zone.
Clock fixedClock(QDate day = QDate(2026, 3, 20))
{
    return [day] { return QDateTime(day, QTime(12, 0)).toUTC(); };
}

} // namespace

// The composer's state over a real store and backend: its period, the tasks it bills, billing a
// follow-up again, VAT, waiting for what was billed before, and time billed elsewhere meanwhile.
class TestInvoiceComposer : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    std::unique_ptr<StoreDevice> m_device;
    QString m_project;
    QString m_fixedTask;
    QString m_hourlyTask;
    QString m_firstHourly;
    QString m_secondHourly;
    QString m_fixedEntry;

    AppStore &store() { return *m_device->store; }
    QString insert(const QByteArray &sql, const PgParams &values)
    {
        return QString::fromUtf8(m_backend.database().exec(sql, values).value(0, 0));
    }
    QString newEntry(const QString &taskId, QDate day, double hours)
    {
        const QDateTime start(day, QTime(9, 0), Qt::UTC);
        const auto seconds = qint64(hours * 3600);
        return insert("INSERT INTO time_entries (user_id, task_id, project_id, started_at, ended_at, duration_seconds)"
                      " VALUES ($1, $2, $3, $4, $5, $6) RETURNING id",
                      {m_device->userIdBytes(), taskId.toUtf8(), m_project.toUtf8(), start.toString(Qt::ISODate).toUtf8(),
                       start.addSecs(seconds).toString(Qt::ISODate).toUtf8(), QByteArray::number(seconds)});
    }
    static bool reload(AppStore &target)
    {
        return runBlocking(target.reloadBilledEntrySet()) && runBlocking(target.loadUnbilledEntries());
    }
    static std::optional<Invoice> save(AppStore &target, InvoiceSaveRequest request)
    {
        request.invoice.number = runBlocking(target.allocateInvoiceNumber()).value_or(QString());
        request.pdf = "%PDF-1.4\n%%EOF\n";
        return runBlocking(target.saveInvoice(std::move(request)));
    }
    static double lineTotal(const InvoiceComposer &composer, const QString &taskId)
    {
        return composer.built().byTask.value(taskId);
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        Language::apply(u"en"_s);
        m_device = StoreDevice::signUp(m_backend, u"joris@example.nl"_s, u"Joris"_s);
        QVERIFY(m_device);
        const PricedProject priced = insertPricedProject(m_backend, *m_device, "Library");
        m_project = priced.project;
        m_fixedTask = priced.fixedTask;
        m_hourlyTask = priced.hourlyTask;
        m_firstHourly = newEntry(m_hourlyTask, QDate(2026, 3, 3), 2);
        m_secondHourly = newEntry(m_hourlyTask, QDate(2026, 3, 10), 1);
        m_fixedEntry = newEntry(m_fixedTask, QDate(2026, 3, 5), 1);
        QVERIFY(m_device->refresh());
        QVERIFY(runBlocking(store().loadUnbilledEntries()));
    }

    void aViewOpensTheComposerThroughTheStore()
    {
        QSignalSpy asked(&store(), &AppStore::pendingInvoiceContextChanged);
        store().openInvoiceComposer({{m_project}, QStringList{m_hourlyTask}, std::nullopt, std::nullopt});
        QCOMPARE(asked.size(), 1);
        InvoiceComposer composer(store());
        composer.open(*store().pendingInvoiceContext());
        QCOMPARE(composer.selectedTaskIds(), QStringList{m_hourlyTask});
        store().closeInvoiceComposer();
        QCOMPARE(asked.size(), 2);
        QVERIFY(!store().pendingInvoiceContext());
    }

    void presets_data()
    {
        QTest::addColumn<QDate>("today");
        QTest::addColumn<QString>("preset");
        QTest::addColumn<QDate>("from");
        QTest::addColumn<QDate>("to");
        QTest::newRow("last 30 across a leap February")
            << QDate(2024, 3, 15) << u"invoicePeriodLast30"_s << QDate(2024, 2, 15) << QDate(2024, 3, 15);
        QTest::newRow("this month on its last day")
            << QDate(2026, 4, 30) << u"invoicePeriodThisMonth"_s << QDate(2026, 4, 1) << QDate(2026, 4, 30);
        QTest::newRow("last month in January")
            << QDate(2026, 1, 10) << u"invoicePeriodLastMonth"_s << QDate(2025, 12, 1) << QDate(2025, 12, 31);
        QTest::newRow("unknown preset keeps the period")
            << QDate(2026, 3, 15) << u"invoicePeriodForever"_s << QDate(2000, 1, 1) << QDate(2000, 1, 2);
    }

    void presets()
    {
        QFETCH(QDate, today);
        QFETCH(QString, preset);
        QFETCH(QDate, from);
        InvoiceComposer composer(store(), fixedClock(today));
        composer.open({{m_project}, std::nullopt, QDate(2000, 1, 1), QDate(2000, 1, 2)});
        QSignalSpy changed(&composer, &InvoiceComposer::periodChanged);
        const bool known = from.year() != 2000;
        QCOMPARE(composer.applyPeriodPreset(preset), known);
        QCOMPARE(composer.from(), from);
        QTEST(composer.to(), "to");
        QCOMPARE(changed.size(), known ? 1 : 0);
        QCOMPARE(InvoiceComposer::periodText(preset).isEmpty(), !known);
    }

    void readinessBlocksTheRequest()
    {
        // Nothing read yet of what was billed before: lines are shown, saving waits.
        InvoiceComposer composer(store(), fixedClock());
        composer.open({{m_project}, std::nullopt, std::nullopt, std::nullopt});
        QVERIFY(!composer.built().lines.isEmpty());
        QCOMPARE(composer.readinessError(), u"Still reading what was billed before."_s);
        QVERIFY(!composer.saveRequest(u"2026-0001"_s, QDate(2026, 3, 20), {}, u"draft"_s));

        QSignalSpy result(&composer, &InvoiceComposer::resultChanged);
        QVERIFY(runBlocking(store().reloadBilledEntrySet()));
        QVERIFY(!result.isEmpty());
        QVERIFY(composer.saveRequest(u"2026-0001"_s, QDate(2026, 3, 20), {}, u"draft"_s));
    }

    void openedForAProjectStartsAtItsEarliestUnbilledWork()
    {
        InvoiceComposer composer(store(), fixedClock());
        composer.open({{m_project}, std::nullopt, std::nullopt, std::nullopt});
        QCOMPARE(composer.from(), QDate(2026, 3, 3));
        QCOMPARE(composer.to(), QDate(2026, 3, 20));
        QCOMPARE(composer.availableTaskIds().size(), 2);
        // A period that ends before the second hourly entry leaves it out.
        composer.setTo(QDate(2026, 3, 9));
        QCOMPARE(composer.coveredEntryIds().contains(m_firstHourly), true);
        QCOMPARE(composer.coveredEntryIds().contains(m_secondHourly), false);
        QCOMPARE(lineTotal(composer, m_hourlyTask), 190.0);
    }

    void selectingTasksChangesLinesAndTotals()
    {
        InvoiceComposer composer(store(), fixedClock());
        composer.open({{m_project}, std::nullopt, std::nullopt, std::nullopt});
        QCOMPARE(lineTotal(composer, m_hourlyTask), 285.0);
        QCOMPARE(lineTotal(composer, m_fixedTask), 1200.0);
        QCOMPARE(composer.subtotal(), 1485.0);

        composer.toggleTask(m_fixedTask);
        QCOMPARE(composer.total(), 285.0);
        QVERIFY(!composer.coveredEntryIds().contains(m_fixedEntry));
        composer.toggleTask(m_hourlyTask);
        QVERIFY(composer.built().lines.isEmpty());
        QVERIFY(!composer.canSave());

        // Opened for one task: only that task is selected, and another can be added.
        composer.open({{m_project}, QStringList{m_fixedTask}, std::nullopt, std::nullopt});
        QCOMPARE(composer.selectedTaskIds(), QStringList{m_fixedTask});
        composer.toggleTask(m_hourlyTask);
        QCOMPARE(composer.subtotal(), 1485.0);
    }

    void manualVatOverridesTheTemplate()
    {
        InvoiceComposer composer(store(), fixedClock());
        composer.open({{m_project}, QStringList{m_hourlyTask}, std::nullopt, std::nullopt});
        composer.setDefaultVatPercent(21);
        QCOMPARE(composer.total(), 344.85);
        composer.setManualVatPercent(9);
        QCOMPARE(composer.vatAmount(), 59.85); // the percentage alone does not switch it on
        composer.setManualVat(true);
        QCOMPARE(composer.vatAmount(), 25.65);
        composer.setManualVat(false);
        QCOMPARE(composer.vatAmount(), 59.85);
    }

    void followUpAndBillingAgain()
    {
        QVERIFY(reload(store()));
        InvoiceComposer composer(store(), fixedClock());
        composer.open({{m_project}, QStringList{m_fixedTask}, std::nullopt, std::nullopt});
        composer.setClientName(u" Bibliotheek Utrecht "_s);
        composer.setClientEmail(u"facturen@bibliotheek.example"_s);
        composer.setSaveAsClient(true);
        std::optional<InvoiceSaveRequest> request = composer.saveRequest({}, QDate(2026, 3, 20), QDate(2026, 4, 3), u"sent"_s);
        QVERIFY(request);
        QCOMPARE(request->coveredEntryIds, QStringList{m_fixedEntry});
        QCOMPARE(request->invoice.total, 1200.0);
        QCOMPARE(request->invoice.clientName, std::optional<QString>(u"Bibliotheek Utrecht"_s));
        QCOMPARE(request->saveClient->email, std::optional<QString>(u"facturen@bibliotheek.example"_s));
        QVERIFY2(save(store(), *request), qPrintable(store().lastError()));

        // New time on the billed fixed-price task: a follow-up that bills no second fixed price.
        const QString later = newEntry(m_fixedTask, QDate(2026, 3, 12), 1);
        QVERIFY(reload(store()));
        QCOMPARE(composer.coveredEntryIds(), QStringList{later});
        const QString key = u"task:"_s + m_fixedTask;
        QVERIFY(composer.built().units.first().followUp);
        QCOMPARE(composer.subtotal(), 0.0);
        composer.setRebill(key, true);
        QCOMPARE(composer.subtotal(), 1200.0);
        composer.setRebill(key, false);
        QCOMPARE(composer.subtotal(), 0.0);
    }

    void entriesBilledElsewhereAreLeftOut()
    {
        QVERIFY(reload(store()));
        InvoiceComposer composer(store(), fixedClock());
        composer.open({{m_project}, QStringList{m_hourlyTask}, std::nullopt, std::nullopt});
        QCOMPARE(composer.coveredEntryIds().size(), 2);
        QCOMPARE(composer.leftOutMessage(), QString());

        // Another device bills the first hourly entry.
        std::unique_ptr<StoreDevice> other = StoreDevice::signIn(m_backend, u"joris@example.nl"_s);
        QVERIFY(other && other->refresh() && reload(*other->store));
        InvoiceComposer elsewhere(*other->store, fixedClock());
        elsewhere.open({{m_project}, QStringList{m_hourlyTask}, QDate(2026, 3, 1), QDate(2026, 3, 5)});
        QCOMPARE(elsewhere.coveredEntryIds(), QStringList{m_firstHourly});
        QVERIFY2(save(*other->store, *elsewhere.saveRequest({}, QDate(2026, 3, 20), {}, u"draft"_s)),
                 qPrintable(other->store->lastError()));

        QSignalSpy leftOut(&composer, &InvoiceComposer::leftOutMessageChanged);
        QVERIFY(runBlocking(store().loadUnbilledEntries()));
        QCOMPARE(leftOut.size(), 1);
        QCOMPARE(composer.leftOutMessage(), u"1 time entry already billed, left out"_s);
        QCOMPARE(composer.coveredEntryIds(), QStringList{m_secondHourly});
        // A refresh that loses nothing keeps the message until it is dismissed.
        QVERIFY(runBlocking(store().loadUnbilledEntries()));
        QCOMPARE(composer.leftOutMessage(), u"1 time entry already billed, left out"_s);
        composer.clearLeftOutMessage();
        QCOMPARE(composer.leftOutMessage(), QString());
    }
};

QTEST_GUILESS_MAIN(TestInvoiceComposer)
#include "tst_invoicecomposer.moc"
