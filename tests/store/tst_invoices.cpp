#include "backend/runblocking.h"
#include "i18n/language.h"
#include "pg/pgconnection.h"
#include "store/appstore.h"
#include "store/storedevice.h"
#include "support/testbackend.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QTest>

#include <functional>

#include <QCoroNetworkReply>

using namespace Qt::StringLiterals;

namespace {

const QByteArray pdfBytes = "%PDF-1.4\n% a stand-in page\n%%EOF\n";
const QString noProject = u"00000000-0000-4000-8000-000000000000"_s;

QByteArray fetch(const QUrl &url)
{
    QNetworkAccessManager network;
    return runBlocking([&]() -> QCoro::Task<QByteArray> {
        std::unique_ptr<QNetworkReply> reply(network.get(QNetworkRequest(url)));
        co_await qCoro(reply.get()).waitForFinished();
        co_return reply->readAll();
    }());
}

} // namespace

// Invoices of one user through the store against the real backend: the billed and unbilled sets,
// the save sequence and its rollback, and what the user is told. The numbering and the void
// rules themselves are the server's and are tested there.
class TestInvoices : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    std::unique_ptr<StoreDevice> m_device;
    QString m_project;
    QString m_fixedTask;
    QString m_hourlyTask;
    int m_entrySerial = 0;
    QDateTime m_lastStart;

    AppStore &store() { return *m_device->store; }
    PgConnection &db() { return m_backend.database(); }
    QByteArray sql(const QByteArray &query, const QString &id = {})
    {
        return id.isNull() ? db().exec(query).value(0, 0) : db().exec(query, {id.toUtf8()}).value(0, 0);
    }
    QString insert(const QByteArray &query, const PgParams &values)
    {
        return QString::fromUtf8(db().exec(query, values).value(0, 0));
    }

    // One finished entry of `hours` on the task, a day further on for each new one.
    QString newEntry(const QString &taskId, double hours, const QString &projectId = {})
    {
        m_lastStart = QDateTime(QDate(2026, 3, 1).addDays(++m_entrySerial), QTime(9, 0), Qt::UTC);
        const auto seconds = qint64(hours * 3600);
        return insert("INSERT INTO time_entries (user_id, task_id, project_id, started_at, ended_at, duration_seconds)"
                      " VALUES ($1, $2, $3, $4, $5, $6) RETURNING id",
                      {m_device->userIdBytes(), taskId.toUtf8(), (projectId.isEmpty() ? m_project : projectId).toUtf8(),
                       m_lastStart.toString(Qt::ISODate).toUtf8(),
                       m_lastStart.addSecs(seconds).toString(Qt::ISODate).toUtf8(), QByteArray::number(seconds)});
    }

    InvoiceSaveRequest request(const QStringList &entryIds, const QString &taskId = {})
    {
        InvoiceSaveRequest request;
        request.invoice.projectId = m_project;
        request.invoice.issuedAt = u"2026-03-31"_s;
        request.invoice.currency = u"EUR"_s;
        request.invoice.subtotal = request.invoice.total = 190;
        request.invoice.status = u"draft"_s;
        InvoiceLineInsert line;
        line.taskId = taskId.isEmpty() ? m_hourlyTask : taskId;
        line.title = u"Support"_s;
        line.quantity = 2;
        line.unitPrice = 95;
        line.amount = 190;
        InvoiceLineInsert note;
        note.title = u"Travel"_s;
        note.quantity = 1;
        request.lines = {line, note};
        request.coveredEntryIds = entryIds;
        request.pdf = pdfBytes;
        return request;
    }

    std::optional<Invoice> save(InvoiceSaveRequest request)
    {
        const std::optional<QString> number = runBlocking(store().allocateInvoiceNumber());
        if (!number) {
            return std::nullopt;
        }
        request.invoice.number = *number;
        return runBlocking(store().saveInvoice(std::move(request)));
    }

    // A saved invoice over a new entry of `hours`, with the billed set read first.
    std::optional<Invoice> saveNew(double hours, QString *entry = nullptr, const QString &taskId = {})
    {
        const QString id = newEntry(taskId.isEmpty() ? m_hourlyTask : taskId, hours);
        if (entry) {
            *entry = id;
        }
        if (!runBlocking(store().reloadBilledEntrySet())) {
            return std::nullopt;
        }
        return save(request({id}, taskId));
    }

    // The server reads its catalogue again after the notice, on its own time: wait until a probe
    // request sees the change (until then a stale catalogue sends calls on to the database).
    bool catalogueShows(const QByteArray &method, const QByteArray &target, const std::function<bool(const HttpResult &)> &seen)
    {
        db().exec("NOTIFY pgrst, 'reload schema'");
        const QByteArray token = m_backend.tokenFor(m_device->userId());
        const QByteArray body = method == "POST" ? "{\"p_invoice_id\":\"" + noProject.toUtf8() + "\"}" : QByteArray();
        for (int attempt = 0; attempt < 200; ++attempt) {
            if (seen(m_backend.request(method, target, token, body, {{"Content-Type", "application/json"}}))) {
                return true;
            }
            QTest::qWait(50);
        }
        return false;
    }
    bool voidProcedureShown(bool present)
    {
        return catalogueShows("POST", "/rest/v1/rpc/void_invoice",
                              [present](const HttpResult &result) { return !result.body.contains("PGRST202") == present; });
    }
    bool poolColumnShown(bool present)
    {
        return catalogueShows("GET", "/rest/v1/invoice_lines?select=pool_project_id",
                              [present](const HttpResult &result) { return (result.status == 200) == present; });
    }

    bool unbilledHas(const QString &entryId)
    {
        const QList<TimeEntry> &entries = store().unbilledEntries();
        return std::any_of(entries.cbegin(), entries.cend(), [&](const TimeEntry &entry) { return entry.id == entryId; });
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        Language::apply(u"en"_s);
        m_device = StoreDevice::signUp(m_backend, u"ilse@example.nl"_s, u"Ilse"_s);
        QVERIFY(m_device);
        const PricedProject priced = insertPricedProject(m_backend, *m_device, "Town hall");
        m_project = priced.project;
        m_fixedTask = priced.fixedTask;
        m_hourlyTask = priced.hourlyTask;
        QVERIFY(m_device->refresh());
    }

    void saveWritesInvoiceLinesLinksAndPdf()
    {
        const QString entry = newEntry(m_hourlyTask, 2);
        // Saving refuses until the billed set has been read.
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Save invoice failed: "_s));
        QVERIFY(!runBlocking(store().saveInvoice(request({entry}))));
        QCOMPARE(store().invoiceSaveMessage(), u"Still reading what was billed before."_s);

        QVERIFY(runBlocking(store().reloadBilledEntrySet()));
        QVERIFY(runBlocking(store().loadUnbilledEntries()));
        const std::optional<Invoice> saved = save(request({entry}));
        QVERIFY2(saved, qPrintable(store().lastError()));
        QCOMPARE(store().invoiceSaveMessage(), u"Invoice %1 saved"_s.arg(saved->number));
        QVERIFY(store().billedEntryIds().contains(entry));
        QVERIFY(!unbilledHas(entry));

        const std::optional<QList<InvoiceLine>> lines = runBlocking(store().loadInvoiceLines(saved->id));
        QVERIFY(lines && lines->size() == 2);
        QCOMPARE(lines->at(0).orderIndex, 0);
        QCOMPARE(lines->at(1).orderIndex, 1);

        // The stored PDF comes back through the signed link, without a token; replacing keeps
        // the path and changes the bytes behind it.
        QCOMPARE(fetch(*runBlocking(store().invoicePdfURL(saved->id))), pdfBytes);
        const QByteArray replacement = pdfBytes + "% regenerated\n";
        QVERIFY(runBlocking(store().replaceInvoicePDF(saved->id, replacement)));
        QCOMPARE(store().invoice(saved->id)->pdfPath, saved->pdfPath);
        QCOMPARE(fetch(*runBlocking(store().invoicePdfURL(saved->id))), replacement);
    }

    void statusChangesVoidAndDeleteReleaseTheHours()
    {
        QString entry;
        const std::optional<Invoice> saved = saveNew(1.5, &entry);
        QVERIFY2(saved, qPrintable(store().lastError()));
        QVERIFY(runBlocking(store().updateInvoiceStatus(saved->id, InvoiceStatus::Sent)));
        QCOMPARE(sql("SELECT status FROM invoices WHERE id = $1", saved->id), "sent");

        QVERIFY(runBlocking(store().voidInvoice(saved->id)));
        QCOMPARE(store().invoice(saved->id)->status, InvoiceStatus::Void);
        // Voiding releases the hours: they are unbilled again and may go on a new invoice.
        QVERIFY(!store().billedEntryIds().contains(entry));
        QVERIFY(unbilledHas(entry));

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Update invoice status failed: "_s));
        QVERIFY(!runBlocking(store().updateInvoiceStatus(saved->id, InvoiceStatus::Draft)));
        QCOMPARE(store().lastError(), u"This invoice is void. A void invoice cannot be changed back."_s);
        QCOMPARE(store().invoice(saved->id)->status, InvoiceStatus::Void);

        const std::optional<Invoice> again = save(request({entry}));
        QVERIFY2(again, qPrintable(store().lastError()));
        QVERIFY(store().billedEntryIds().contains(entry));

        // Deleting releases the hours as well; a second delete finds nothing.
        QVERIFY(runBlocking(store().deleteInvoice(again->id)));
        QCOMPARE(sql("SELECT count(*) FROM invoices WHERE id = $1", again->id), "0");
        QVERIFY(unbilledHas(entry) && !store().billedEntryIds().contains(entry));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Delete invoice failed: "_s));
        QVERIFY(!runBlocking(store().deleteInvoice(again->id)));
    }

    void voidWithoutTheProcedureChangesNothing()
    {
        QString entry;
        const std::optional<Invoice> saved = saveNew(1, &entry);
        QVERIFY2(saved, qPrintable(store().lastError()));
        db().exec("ALTER FUNCTION public.void_invoice(uuid) RENAME TO void_invoice_kept");
        const bool gone = voidProcedureShown(false);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Void invoice failed: "_s));
        const bool voided = runBlocking(store().voidInvoice(saved->id));
        db().exec("ALTER FUNCTION public.void_invoice_kept(uuid) RENAME TO void_invoice");
        QVERIFY(voidProcedureShown(true));
        QVERIFY(gone && !voided);
        QCOMPARE(store().lastError(),
                 u"Voiding is not available yet because the server has not been updated. Try again later."_s);
        QCOMPARE(store().invoice(saved->id)->status, InvoiceStatus::Draft);
        QVERIFY(store().billedEntryIds().contains(entry));
    }

    void priorBillingFollowsLiveInvoices()
    {
        // A fixed-price task on a live invoice counts as billed; an hourly one has nothing to
        // bill once; a pool line names its project.
        const QString fixedEntry = newEntry(m_fixedTask, 2);
        const QString hourlyEntry = newEntry(m_hourlyTask, 2);
        QVERIFY(runBlocking(store().reloadBilledEntrySet()));
        QVERIFY(!store().priorBilling().tasks.contains(m_fixedTask));
        InvoiceSaveRequest both = request({fixedEntry, hourlyEntry}, m_fixedTask);
        InvoiceLineInsert hourly = both.lines.first();
        hourly.taskId = m_hourlyTask;
        InvoiceLineInsert pool;
        pool.poolProjectId = m_project;
        pool.title = u"Project extras"_s;
        pool.amount = 40;
        both.lines = {both.lines.first(), hourly, pool};
        const std::optional<Invoice> saved = save(both);
        QVERIFY2(saved, qPrintable(store().lastError()));
        QVERIFY(store().priorBilling().tasks.contains(m_fixedTask));
        QVERIFY(!store().priorBilling().tasks.contains(m_hourlyTask));
        QVERIFY(store().priorBilling().poolProjects.contains(m_project));

        QVERIFY(runBlocking(store().voidInvoice(saved->id)));
        QVERIFY(!store().priorBilling().tasks.contains(m_fixedTask));
        QVERIFY(!store().priorBilling().poolProjects.contains(m_project));
    }

    void priorBillingReadsTheOlderLineForm()
    {
        // A backend from before shared prices has no pool column on lines: the read falls back,
        // and task-level prior billing still works.
        const std::optional<Invoice> saved = saveNew(1, nullptr, m_fixedTask);
        QVERIFY2(saved, qPrintable(store().lastError()));
        db().exec("ALTER TABLE invoice_lines RENAME COLUMN pool_project_id TO pool_project_kept");
        const bool gone = poolColumnShown(false);
        const bool read = runBlocking(store().reloadBilledEntrySet());
        db().exec("ALTER TABLE invoice_lines RENAME COLUMN pool_project_kept TO pool_project_id");
        QVERIFY(poolColumnShown(true));
        QVERIFY(gone && read);
        QVERIFY(store().priorBilling().tasks.contains(m_fixedTask));
        QVERIFY(runBlocking(store().deleteInvoice(saved->id)));
    }

    void billedStateUnreadableBlocksSaving()
    {
        db().exec("REVOKE SELECT ON invoice_entries FROM authenticated");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Load billed state failed: "_s));
        const bool read = runBlocking(store().reloadBilledEntrySet());
        db().exec("GRANT SELECT ON invoice_entries TO authenticated");
        QVERIFY(!read);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Save invoice failed: "_s));
        QVERIFY(!runBlocking(store().saveInvoice(request({newEntry(m_hourlyTask, 1)}))));
        QVERIFY(store().invoiceSaveMessage().startsWith(u"Could not read which work was billed before."_s));
        QVERIFY(runBlocking(store().reloadBilledEntrySet()));
    }

    void concurrentSavesForTheSameEntries()
    {
        const QString first = newEntry(m_hourlyTask, 2);
        const QString second = newEntry(m_hourlyTask, 1);
        // Two installations of the same user compose an invoice over the same hours at once.
        std::unique_ptr<StoreDevice> other = StoreDevice::signIn(m_backend, u"ilse@example.nl"_s);
        QVERIFY(other && other->refresh());
        QVERIFY(runBlocking(store().reloadBilledEntrySet()));
        QVERIFY(runBlocking(other->store->reloadBilledEntrySet()));
        InvoiceSaveRequest mine = request({first, second});
        InvoiceSaveRequest theirs = request({second, first});
        mine.invoice.number = *runBlocking(store().allocateInvoiceNumber());
        theirs.invoice.number = *runBlocking(other->store->allocateInvoiceNumber());
        const int before = sql("SELECT count(*) FROM invoices").toInt();

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Save invoice failed: "_s));
        QCoro::Task<std::optional<Invoice>> mineSaving = store().saveInvoice(mine);
        QCoro::Task<std::optional<Invoice>> theirsSaving = other->store->saveInvoice(theirs);
        const std::optional<Invoice> mineSaved = runBlocking(std::move(mineSaving));
        const std::optional<Invoice> theirsSaved = runBlocking(std::move(theirsSaving));

        QVERIFY2(mineSaved.has_value() != theirsSaved.has_value(), "exactly one save wins");
        AppStore &loser = mineSaved ? *other->store : store();
        QCOMPARE(loser.invoiceSaveMessage(),
                 u"Some of these hours are already on another invoice. The list was refreshed: check it and try again."_s);
        QCOMPARE(sql("SELECT count(*) FROM invoices").toInt(), before + 1);
        QCOMPARE(sql("SELECT invoice_id FROM invoice_entries WHERE time_entry_id = $1 AND live", first),
                 (mineSaved ? mineSaved->id : theirsSaved->id).toUtf8());
        // The loser's lists were refreshed: both entries show as billed there.
        QVERIFY(loser.billedEntryIds().contains(first) && loser.billedEntryIds().contains(second));
    }

    void failureAfterInsertLeavesNoRow()
    {
        const QString entry = newEntry(m_hourlyTask, 1);
        QVERIFY(runBlocking(store().reloadBilledEntrySet()));
        InvoiceSaveRequest broken = request({entry});
        // A line the backend refuses (its task does not exist), so the lines step fails after
        // the invoice row and its PDF were written.
        broken.lines.append(InvoiceLineInsert{});
        broken.lines.last().taskId = u"00000000-0000-4000-8000-00000000dead"_s;
        const QByteArray before = sql("SELECT count(*) FROM invoices");
        broken.invoice.number = *runBlocking(store().allocateInvoiceNumber());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Save invoice failed: "_s));
        QVERIFY(!runBlocking(store().saveInvoice(broken)));
        QCOMPARE(sql("SELECT count(*) FROM invoices"), before);
        QCOMPARE(sql("SELECT count(*) FROM storage.objects WHERE bucket_id = 'invoice-templates' AND name = $1",
                     AppStore::invoicePdfPath(m_device->userId(), broken.invoice.number)),
                 "0");
        QVERIFY(unbilledHas(entry));
    }

    void derivedValuesOfAProject()
    {
        // A project of its own at 95/h: 3 h tracked, the first hour billed.
        const QByteArray user = m_device->userIdBytes();
        const QString project =
            insert("INSERT INTO projects (user_id, name, hourly_rate) VALUES ($1, 'Fraction', 95) RETURNING id", {user});
        const QString task = insert("INSERT INTO tasks (user_id, project_id, title, time_spent_seconds)"
                                    " VALUES ($1, $2, 'T', 10800) RETURNING id",
                                    {user, project.toUtf8()});
        const QString billed = newEntry(task, 1, project);
        newEntry(task, 2, project);
        const QDate unbilledSince = m_lastStart.toLocalTime().date();
        QVERIFY(runBlocking(store().reloadBilledEntrySet()));
        InvoiceSaveRequest bill = request({billed}, task);
        bill.invoice.projectId = project;
        QVERIFY2(save(bill), qPrintable(store().lastError()));
        QVERIFY(m_device->refresh());
        QVERIFY(runBlocking(store().loadUnbilledEntries()));

        QCOMPARE(store().unbilledTotal(project), 190.0);
        QCOMPARE(store().smartInvoiceStartDate(project), unbilledSince);
        QCOMPARE(store().billedFraction(project), std::optional(1.0 / 3.0));
        QCOMPARE(store().unbilledTotal(noProject), 0.0);
        QCOMPARE(store().smartInvoiceStartDate(noProject), std::nullopt);
        QCOMPARE(store().billedFraction(noProject), std::nullopt);
        QCOMPARE(store().taskBilledFraction(task), std::optional(1.0 / 3.0));
        // Work logged now counts as unbilled without another read of the view.
        QVERIFY(runBlocking(store().logManualMinutes(task, 60)));
        QCOMPARE(store().taskBilledFraction(task), std::optional(0.25));
        // The whole list's shares at once agree with the one task's.
        QCOMPARE(store().taskBilledFractions().value(task, -1), 0.25);
    }
};

QTEST_GUILESS_MAIN(TestInvoices)
#include "tst_invoices.moc"
