#include "backend/runblocking.h"
#include "i18n/language.h"
#include "pg/pgconnection.h"
#include "store/appstore.h"
#include "store/invoicecomposer.h"
#include "store/storedevice.h"
#include "support/testbackend.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray pdfBytes = "%PDF-1.4\n% a stand-in page\n%%EOF\n";

// Noon of `day` in local time: the composer's "today" whatever the machine's zone.
Clock fixedClock(QDate day)
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
    PgConnection &db() { return m_backend.database(); }

    QString newEntry(const QString &taskId, QDate day, double hours)
    {
        const QDateTime start(day, QTime(9, 0), Qt::UTC);
        const auto seconds = qint64(hours * 3600);
        return QString::fromUtf8(
            db().exec("INSERT INTO time_entries (user_id, task_id, project_id, started_at, ended_at, duration_seconds) "
                      "VALUES ($1, $2, $3, $4, $5, $6) RETURNING id",
                      {m_device->userIdBytes(), taskId.toUtf8(), m_project.toUtf8(),
                       start.toString(Qt::ISODate).toUtf8(), start.addSecs(seconds).toString(Qt::ISODate).toUtf8(),
                       QByteArray::number(seconds)})
                .value(0, 0));
    }

    bool reload(AppStore &target)
    {
        return runBlocking(target.reloadBilledEntrySet()) && runBlocking(target.loadUnbilledEntries());
    }

    std::optional<Invoice> save(AppStore &target, InvoiceSaveRequest request)
    {
        const std::optional<QString> number = runBlocking(target.allocateInvoiceNumber());
        if (!number) {
            return std::nullopt;
        }
        request.invoice.number = *number;
        request.pdf = pdfBytes;
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
        const QByteArray user = m_device->userIdBytes();
        m_project = QString::fromUtf8(
            db().exec("INSERT INTO projects (user_id, name, hourly_rate) VALUES ($1, 'Library', 95) RETURNING id", {user})
                .value(0, 0));
        m_fixedTask = QString::fromUtf8(db().exec("INSERT INTO tasks (user_id, project_id, title, billing) VALUES ($1, $2, "
                                                  "'Logo', '{\"model\":\"fixed\",\"amount\":1200}') RETURNING id",
                                                  {user, m_project.toUtf8()})
                                            .value(0, 0));
        m_hourlyTask = QString::fromUtf8(
            db().exec("INSERT INTO tasks (user_id, project_id, title) VALUES ($1, $2, 'Support') RETURNING id",
                      {user, m_project.toUtf8()})
                .value(0, 0));
        m_firstHourly = newEntry(m_hourlyTask, QDate(2026, 3, 3), 2);
        m_secondHourly = newEntry(m_hourlyTask, QDate(2026, 3, 10), 1);
        m_fixedEntry = newEntry(m_fixedTask, QDate(2026, 3, 5), 1);
        QVERIFY(m_device->refresh());
        QVERIFY(runBlocking(store().loadUnbilledEntries()));
    }

    void aViewOpensTheComposerThroughTheStore()
    {
        QSignalSpy asked(&store(), &AppStore::pendingInvoiceContextChanged);
        InvoiceContext context;
        context.projectIds = {m_project};
        context.taskIds = QStringList{m_hourlyTask};
        store().openInvoiceComposer(context);
        QCOMPARE(asked.size(), 1);
        QVERIFY(store().pendingInvoiceContext());
        InvoiceComposer composer(store());
        composer.open(*store().pendingInvoiceContext());
        QCOMPARE(composer.selectedTaskIds(), QStringList{m_hourlyTask});
        store().closeInvoiceComposer();
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
        QTest::newRow("last 7 counts today") << QDate(2026, 3, 15) << u"invoicePeriodLast7"_s << QDate(2026, 3, 9)
                                             << QDate(2026, 3, 15);
        QTest::newRow("last 7 across a month") << QDate(2026, 3, 3) << u"invoicePeriodLast7"_s << QDate(2026, 2, 25)
                                               << QDate(2026, 3, 3);
        QTest::newRow("last 30 across a leap February") << QDate(2024, 3, 15) << u"invoicePeriodLast30"_s
                                                        << QDate(2024, 2, 15) << QDate(2024, 3, 15);
        QTest::newRow("this month on its first day") << QDate(2026, 3, 1) << u"invoicePeriodThisMonth"_s
                                                     << QDate(2026, 3, 1) << QDate(2026, 3, 1);
        QTest::newRow("this month on its last day") << QDate(2026, 4, 30) << u"invoicePeriodThisMonth"_s
                                                    << QDate(2026, 4, 1) << QDate(2026, 4, 30);
        QTest::newRow("last month of March, leap year") << QDate(2024, 3, 31) << u"invoicePeriodLastMonth"_s
                                                        << QDate(2024, 2, 1) << QDate(2024, 2, 29);
        QTest::newRow("last month in January") << QDate(2026, 1, 10) << u"invoicePeriodLastMonth"_s
                                               << QDate(2025, 12, 1) << QDate(2025, 12, 31);
        QTest::newRow("last month on the first") << QDate(2026, 5, 1) << u"invoicePeriodLastMonth"_s
                                                 << QDate(2026, 4, 1) << QDate(2026, 4, 30);
    }
    void presets()
    {
        QFETCH(QDate, today);
        QFETCH(QString, preset);
        QFETCH(QDate, from);
        QFETCH(QDate, to);
        InvoiceComposer composer(store(), fixedClock(today));
        composer.open({{m_project}, std::nullopt, QDate(2000, 1, 1), QDate(2000, 1, 2)});
        QSignalSpy changed(&composer, &InvoiceComposer::periodChanged);
        QVERIFY(composer.applyPeriodPreset(preset));
        QCOMPARE(composer.from(), from);
        QCOMPARE(composer.to(), to);
        QCOMPARE(changed.size(), 1);
        QVERIFY(!InvoiceComposer::periodText(preset).isEmpty());
    }

    void unknownPresetKeepsThePeriod()
    {
        InvoiceComposer composer(store(), fixedClock(QDate(2026, 3, 15)));
        composer.open({{m_project}, std::nullopt, QDate(2026, 3, 1), QDate(2026, 3, 2)});
        QVERIFY(!composer.applyPeriodPreset(u"invoicePeriodForever"_s));
        QCOMPARE(composer.from(), QDate(2026, 3, 1));
        QCOMPARE(composer.to(), QDate(2026, 3, 2));
        QCOMPARE(InvoiceComposer::periodText(u"invoicePeriodLastMonth"_s), u"Last month"_s);
    }

    void readinessBlocksTheRequest()
    {
        // Nothing read yet of what was billed before: lines are shown, saving waits.
        InvoiceComposer composer(store(), fixedClock(QDate(2026, 3, 20)));
        composer.open({{m_project}, std::nullopt, std::nullopt, std::nullopt});
        QVERIFY(!composer.built().lines.isEmpty());
        QCOMPARE(composer.readinessError(), u"Still reading what was billed before."_s);
        QVERIFY(!composer.canSave());
        QVERIFY(!composer.saveRequest(u"2026-0001"_s, QDate(2026, 3, 20), {}, u"draft"_s));

        QSignalSpy result(&composer, &InvoiceComposer::resultChanged);
        QVERIFY(runBlocking(store().reloadBilledEntrySet()));
        QVERIFY(!result.isEmpty());
        QCOMPARE(composer.readinessError(), QString());
        QVERIFY(composer.canSave());
        QVERIFY(composer.saveRequest(u"2026-0001"_s, QDate(2026, 3, 20), {}, u"draft"_s));
    }

    void openedForAProjectStartsAtItsEarliestUnbilledWork()
    {
        InvoiceComposer composer(store(), fixedClock(QDate(2026, 3, 20)));
        composer.open({{m_project}, std::nullopt, std::nullopt, std::nullopt});
        QCOMPARE(composer.from(), QDate(2026, 3, 3));
        QCOMPARE(composer.to(), QDate(2026, 3, 20));
        QCOMPARE(composer.availableTaskIds(), composer.selectedTaskIds());
        QCOMPARE(composer.availableTaskIds().size(), 2);

        // A period that ends before the second hourly entry leaves it out.
        composer.setTo(QDate(2026, 3, 9));
        QVERIFY(composer.coveredEntryIds().contains(m_firstHourly));
        QVERIFY(!composer.coveredEntryIds().contains(m_secondHourly));
        QCOMPARE(lineTotal(composer, m_hourlyTask), 190.0);
    }

    void selectingTasksChangesLinesAndTotals()
    {
        InvoiceComposer composer(store(), fixedClock(QDate(2026, 3, 20)));
        composer.open({{m_project}, std::nullopt, std::nullopt, std::nullopt});
        QCOMPARE(lineTotal(composer, m_hourlyTask), 285.0);
        QCOMPARE(lineTotal(composer, m_fixedTask), 1200.0);
        QCOMPARE(composer.subtotal(), 1485.0);
        QCOMPARE(composer.coveredEntryIds().size(), 3);

        composer.toggleTask(m_fixedTask);
        QCOMPARE(composer.selectedTaskIds(), QStringList{m_hourlyTask});
        QCOMPARE(composer.subtotal(), 285.0);
        QCOMPARE(composer.total(), 285.0);
        QVERIFY(!composer.coveredEntryIds().contains(m_fixedEntry));
        for (const Earnings::BuiltLine &line : composer.built().lines) {
            QCOMPARE(line.taskId, std::optional<QString>(m_hourlyTask));
        }

        composer.toggleTask(m_hourlyTask);
        QVERIFY(composer.built().lines.isEmpty());
        QVERIFY(!composer.canSave());

        // Opened for one task: only that task is selected, and another can be added.
        composer.open({{m_project}, QStringList{m_fixedTask}, std::nullopt, std::nullopt});
        QCOMPARE(composer.selectedTaskIds(), QStringList{m_fixedTask});
        composer.toggleTask(m_hourlyTask);
        QCOMPARE(composer.selectedTaskIds().size(), 2);
        QCOMPARE(composer.subtotal(), 1485.0);
    }

    void manualVatOverridesTheTemplate()
    {
        InvoiceComposer composer(store(), fixedClock(QDate(2026, 3, 20)));
        composer.open({{m_project}, QStringList{m_hourlyTask}, std::nullopt, std::nullopt});
        composer.setDefaultVatPercent(21);
        QCOMPARE(composer.vatAmount(), 59.85);
        QCOMPARE(composer.total(), 344.85);

        composer.setManualVatPercent(9);
        QCOMPARE(composer.vatAmount(), 59.85); // the percentage alone does not switch it on
        composer.setManualVat(true);
        QCOMPARE(composer.vat().groups.size(), 1);
        QCOMPARE(composer.vat().groups.first().percent, 9.0);
        QCOMPARE(composer.vatAmount(), 25.65);
        composer.setManualVatPercent(0);
        QCOMPARE(composer.vatAmount(), 0.0);
        QCOMPARE(composer.total(), 285.0);
        composer.setManualVat(false);
        QCOMPARE(composer.vatAmount(), 59.85);
    }

    void followUpAndBillingAgain()
    {
        QVERIFY(reload(store()));
        InvoiceComposer composer(store(), fixedClock(QDate(2026, 3, 20)));
        composer.open({{m_project}, QStringList{m_fixedTask}, std::nullopt, std::nullopt});
        composer.setClientName(u" Bibliotheek Utrecht "_s);
        composer.setClientEmail(u"facturen@bibliotheek.example"_s);
        composer.setSaveAsClient(true);
        std::optional<InvoiceSaveRequest> request = composer.saveRequest({}, QDate(2026, 3, 20), QDate(2026, 4, 3), u"sent"_s);
        QVERIFY(request);
        QCOMPARE(request->coveredEntryIds, QStringList{m_fixedEntry});
        QCOMPARE(request->invoice.total, 1200.0);
        QCOMPARE(request->invoice.clientName, std::optional<QString>(u"Bibliotheek Utrecht"_s));
        QVERIFY(request->saveClient);
        QCOMPARE(request->saveClient->email, std::optional<QString>(u"facturen@bibliotheek.example"_s));
        QCOMPARE(request->invoice.dueAt, std::optional<QString>(u"2026-04-03"_s));
        const std::optional<Invoice> saved = save(store(), *request);
        QVERIFY2(saved, qPrintable(store().lastError()));

        // New time on the billed fixed-price task: a follow-up that bills no second fixed price.
        const QString later = newEntry(m_fixedTask, QDate(2026, 3, 12), 1);
        QVERIFY(reload(store()));
        QCOMPARE(composer.coveredEntryIds(), QStringList{later});
        const QString key = u"task:"_s + m_fixedTask;
        QCOMPARE(composer.built().units.size(), 1);
        QCOMPARE(composer.built().units.first().key, key);
        QVERIFY(composer.built().units.first().followUp);
        QCOMPARE(composer.subtotal(), 0.0);

        composer.setRebill(key, true);
        QCOMPARE(composer.rebillUnitKeys(), QStringList{key});
        QVERIFY(!composer.built().units.first().followUp);
        QCOMPARE(composer.subtotal(), 1200.0);
        composer.setRebill(key, false);
        QVERIFY(composer.built().units.first().followUp);
        QCOMPARE(composer.subtotal(), 0.0);
    }

    void entriesBilledElsewhereAreLeftOut()
    {
        QVERIFY(reload(store()));
        InvoiceComposer composer(store(), fixedClock(QDate(2026, 3, 20)));
        composer.open({{m_project}, QStringList{m_hourlyTask}, std::nullopt, std::nullopt});
        QCOMPARE(composer.coveredEntryIds().size(), 2);
        QCOMPARE(composer.leftOutMessage(), QString());

        // Another device bills the first hourly entry.
        std::unique_ptr<StoreDevice> other = StoreDevice::signIn(m_backend, u"joris@example.nl"_s);
        QVERIFY(other);
        QVERIFY(runBlocking(other->store->refreshAll()));
        QVERIFY(reload(*other->store));
        InvoiceComposer elsewhere(*other->store, fixedClock(QDate(2026, 3, 20)));
        elsewhere.open({{m_project}, QStringList{m_hourlyTask}, QDate(2026, 3, 1), QDate(2026, 3, 5)});
        QCOMPARE(elsewhere.coveredEntryIds(), QStringList{m_firstHourly});
        const std::optional<InvoiceSaveRequest> request =
            elsewhere.saveRequest({}, QDate(2026, 3, 20), {}, u"draft"_s);
        QVERIFY(request);
        QVERIFY2(save(*other->store, *request), qPrintable(other->store->lastError()));

        QSignalSpy leftOut(&composer, &InvoiceComposer::leftOutMessageChanged);
        QVERIFY(runBlocking(store().loadUnbilledEntries()));
        QCOMPARE(leftOut.size(), 1);
        QCOMPARE(composer.leftOutMessage(), u"1 time entry already billed, left out"_s);
        QCOMPARE(composer.coveredEntryIds(), QStringList{m_secondHourly});
        QCOMPARE(composer.subtotal(), 95.0);

        // A refresh that loses nothing keeps the message until it is dismissed.
        QVERIFY(runBlocking(store().loadUnbilledEntries()));
        QCOMPARE(composer.leftOutMessage(), u"1 time entry already billed, left out"_s);
        composer.clearLeftOutMessage();
        QCOMPARE(composer.leftOutMessage(), QString());
    }

    void severalLeftOutAreCounted()
    {
        const QString a = newEntry(m_hourlyTask, QDate(2026, 3, 14), 1);
        const QString b = newEntry(m_hourlyTask, QDate(2026, 3, 15), 1);
        QVERIFY(reload(store()));
        InvoiceComposer composer(store(), fixedClock(QDate(2026, 3, 20)));
        composer.open({{m_project}, QStringList{m_hourlyTask}, QDate(2026, 3, 14), QDate(2026, 3, 15)});
        QCOMPARE(composer.coveredEntryIds().size(), 2);
        // Both are linked to a live invoice behind this device's back.
        for (const QString &entry : {a, b}) {
            db().exec("INSERT INTO invoice_entries (invoice_id, time_entry_id) SELECT id, $1 FROM invoices "
                      "WHERE user_id = $2 AND status <> 'void' LIMIT 1",
                      {entry.toUtf8(), m_device->userIdBytes()});
        }
        QVERIFY(runBlocking(store().loadUnbilledEntries()));
        QCOMPARE(composer.leftOutMessage(), u"2 time entries already billed, left out"_s);
        QVERIFY(composer.coveredEntryIds().isEmpty());
        QVERIFY(!composer.canSave());
    }
};

QTEST_GUILESS_MAIN(TestInvoiceComposer)
#include "tst_invoicecomposer.moc"
