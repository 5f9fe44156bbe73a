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

#include <QCoroNetworkReply>

using namespace Qt::StringLiterals;

namespace {

const QString alreadyBilled =
    u"Some of these hours are already on another invoice. The list was refreshed: check it and try again."_s;
const QString voidFinal = u"This invoice is void. A void invoice cannot be changed back."_s;
const QString voidUnavailable =
    u"Voiding is not available yet because the server has not been updated. Try again later."_s;

const QByteArray pdfBytes = "%PDF-1.4\n% a stand-in page\n%%EOF\n";

} // namespace

// Invoices of one user against the real backend: numbers, the billed and unbilled sets, the
// status lifecycle with void as its final state, and a save that cleans up after itself.
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

    AppStore &store() { return *m_device->store; }
    PgConnection &db() { return m_backend.database(); }
    QByteArray sql(const QByteArray &query, const QByteArray &id)
    {
        return db().exec(query, {id}).value(0, 0);
    }
    QByteArray invoiceRows(const QString &invoiceId)
    {
        return sql("SELECT count(*) FROM invoices WHERE id = $1", invoiceId.toUtf8());
    }

    // One finished entry of `hours` on the task, a day further back for each new one.
    QString newEntry(const QString &taskId, double hours)
    {
        ++m_entrySerial;
        const QDateTime start = QDateTime(QDate(2026, 3, 1).addDays(m_entrySerial), QTime(9, 0), Qt::UTC);
        const auto seconds = qint64(hours * 3600);
        const QByteArray id = db().exec("INSERT INTO time_entries (user_id, task_id, project_id, started_at, ended_at, "
                                        "duration_seconds) VALUES ($1, $2, $3, $4, $5, $6) RETURNING id",
                                        {m_device->userIdBytes(), taskId.toUtf8(), m_project.toUtf8(),
                                         start.toString(Qt::ISODate).toUtf8(),
                                         start.addSecs(seconds).toString(Qt::ISODate).toUtf8(),
                                         QByteArray::number(seconds)})
                                   .value(0, 0);
        return QString::fromUtf8(id);
    }

    InvoiceSaveRequest request(const QStringList &entryIds, const QString &taskId = {})
    {
        InvoiceSaveRequest request;
        request.invoice.projectId = m_project;
        request.invoice.issuedAt = u"2026-03-31"_s;
        request.invoice.dueAt = u"2026-04-14"_s;
        request.invoice.currency = u"EUR"_s;
        request.invoice.subtotal = 190;
        request.invoice.vatAmount = 39.9;
        request.invoice.total = 229.9;
        request.invoice.status = u"draft"_s;
        request.invoice.clientName = u"Gemeente Houten"_s;
        InvoiceLineInsert line;
        line.taskId = taskId.isEmpty() ? m_hourlyTask : taskId;
        line.title = u"Support"_s;
        line.quantity = 2;
        line.unit = u"h"_s;
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

    // The server reads its catalogue again after the notice, on its own time: wait until a probe
    // request sees the change.
    bool reloadSchema(const QByteArray &method, const QByteArray &target, const std::function<bool(const HttpResult &)> &seen)
    {
        db().exec("NOTIFY pgrst, 'reload schema'");
        const QByteArray token = m_backend.tokenFor(m_device->userId());
        const QByteArray body = method == "POST" ? QByteArray("{\"p_invoice_id\":\"00000000-0000-4000-8000-000000000000\"}")
                                                 : QByteArray();
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
        // Until then the server's stale catalogue sends the call on and the database answers 42883.
        return reloadSchema("POST", "/rest/v1/rpc/void_invoice",
                            [present](const HttpResult &result) { return !result.body.contains("PGRST202") == present; });
    }
    bool poolColumnShown(bool present)
    {
        return reloadSchema("GET", "/rest/v1/invoice_lines?select=pool_project_id",
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
        const QByteArray user = m_device->userIdBytes();
        m_project = QString::fromUtf8(
            db().exec("INSERT INTO projects (user_id, name, hourly_rate) VALUES ($1, 'Town hall', 95) RETURNING id",
                      {user})
                .value(0, 0));
        m_fixedTask = QString::fromUtf8(
            db().exec("INSERT INTO tasks (user_id, project_id, title, billing) VALUES ($1, $2, 'Logo', "
                      "'{\"model\":\"fixed\",\"amount\":1200}') RETURNING id",
                      {user, m_project.toUtf8()})
                .value(0, 0));
        m_hourlyTask = QString::fromUtf8(
            db().exec("INSERT INTO tasks (user_id, project_id, title) VALUES ($1, $2, 'Support') RETURNING id",
                      {user, m_project.toUtf8()})
                .value(0, 0));
        QVERIFY(m_device->refresh());
    }

    void numbersFollowEachOther()
    {
        const std::optional<QString> first = runBlocking(store().allocateInvoiceNumber());
        const std::optional<QString> second = runBlocking(store().allocateInvoiceNumber());
        QVERIFY(first && second);
        QVERIFY(*first != *second);
        const QString year = QString::number(QDate::currentDate().year());
        QVERIFY2(first->startsWith(year + u'-'), qPrintable(*first));
        QCOMPARE(second->mid(5).toInt(), first->mid(5).toInt() + 1);
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
        QVERIFY(unbilledHas(entry));
        const std::optional<Invoice> saved = save(request({entry}));
        QVERIFY2(saved, qPrintable(store().lastError()));
        QCOMPARE(store().invoiceSaveMessage(), u"Invoice %1 saved"_s.arg(saved->number));
        QCOMPARE(saved->pdfPath, AppStore::invoicePdfPath(m_device->userId(), saved->number));
        QVERIFY(store().invoice(saved->id));
        QVERIFY(store().billedEntryIds().contains(entry));
        QVERIFY(!unbilledHas(entry));

        const std::optional<QList<InvoiceLine>> lines = runBlocking(store().loadInvoiceLines(saved->id));
        QVERIFY(lines);
        QCOMPARE(lines->size(), 2);
        QCOMPARE(lines->at(0).orderIndex, 0);
        QCOMPARE(lines->at(0).title, u"Support"_s);
        QCOMPARE(lines->at(1).orderIndex, 1);
        QCOMPARE(lines->at(1).taskId, std::nullopt);

        // The stored PDF comes back through the signed link, without a token.
        const std::optional<QUrl> url = runBlocking(store().invoicePdfURL(saved->id));
        QVERIFY(url);
        QNetworkAccessManager network;
        auto fetch = [&]() -> QCoro::Task<QByteArray> {
            std::unique_ptr<QNetworkReply> reply(network.get(QNetworkRequest(*url)));
            co_await qCoro(reply.get()).waitForFinished();
            co_return reply->readAll();
        };
        QCOMPARE(runBlocking(fetch()), pdfBytes);

        // Replacing keeps the path and changes the bytes behind it.
        const QByteArray replacement = pdfBytes + "% regenerated\n";
        QVERIFY(runBlocking(store().replaceInvoicePDF(saved->id, replacement)));
        QCOMPARE(store().invoice(saved->id)->pdfPath, saved->pdfPath);
        const std::optional<QUrl> again = runBlocking(store().invoicePdfURL(saved->id));
        QVERIFY(again);
        auto fetchAgain = [&]() -> QCoro::Task<QByteArray> {
            std::unique_ptr<QNetworkReply> reply(network.get(QNetworkRequest(*again)));
            co_await qCoro(reply.get()).waitForFinished();
            co_return reply->readAll();
        };
        QCOMPARE(runBlocking(fetchAgain()), replacement);
    }

    void statusChangesAndVoidIsFinal()
    {
        const QString entry = newEntry(m_hourlyTask, 1.5);
        QVERIFY(runBlocking(store().reloadBilledEntrySet()));
        const std::optional<Invoice> saved = save(request({entry}));
        QVERIFY2(saved, qPrintable(store().lastError()));
        for (const InvoiceStatus status : {InvoiceStatus::Sent, InvoiceStatus::Paid, InvoiceStatus::Draft,
                                           InvoiceStatus::Paid}) {
            QVERIFY2(runBlocking(store().updateInvoiceStatus(saved->id, status)), qPrintable(store().lastError()));
            QCOMPARE(store().invoice(saved->id)->status, status);
        }
        QCOMPARE(sql("SELECT status FROM invoices WHERE id = $1", saved->id.toUtf8()), "paid");

        QVERIFY(runBlocking(store().voidInvoice(saved->id)));
        QCOMPARE(store().invoice(saved->id)->status, InvoiceStatus::Void);
        QCOMPARE(sql("SELECT status FROM invoices WHERE id = $1", saved->id.toUtf8()), "void");
        // Voiding releases the hours: they are unbilled again and may go on a new invoice.
        QVERIFY(!store().billedEntryIds().contains(entry));
        QVERIFY(unbilledHas(entry));

        for (const InvoiceStatus status : {InvoiceStatus::Draft, InvoiceStatus::Sent, InvoiceStatus::Paid}) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Update invoice status failed: "_s));
            QVERIFY(!runBlocking(store().updateInvoiceStatus(saved->id, status)));
            QCOMPARE(store().lastError(), voidFinal);
            QCOMPARE(store().invoice(saved->id)->status, InvoiceStatus::Void);
        }
        QCOMPARE(sql("SELECT status FROM invoices WHERE id = $1", saved->id.toUtf8()), "void");

        const std::optional<Invoice> rebilled = save(request({entry}));
        QVERIFY2(rebilled, qPrintable(store().lastError()));
        QVERIFY(store().billedEntryIds().contains(entry));
    }

    void deleteReleasesHours()
    {
        const QString entry = newEntry(m_hourlyTask, 3);
        QVERIFY(runBlocking(store().reloadBilledEntrySet()));
        const std::optional<Invoice> saved = save(request({entry}));
        QVERIFY2(saved, qPrintable(store().lastError()));
        QVERIFY(!unbilledHas(entry));
        QVERIFY(runBlocking(store().deleteInvoice(saved->id)));
        QCOMPARE(invoiceRows(saved->id), "0");
        QCOMPARE(sql("SELECT count(*) FROM invoice_entries WHERE time_entry_id = $1", entry.toUtf8()), "0");
        QVERIFY(!store().invoice(saved->id));
        QVERIFY(unbilledHas(entry));
        QVERIFY(!store().billedEntryIds().contains(entry));

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Delete invoice failed: "_s));
        QVERIFY(!runBlocking(store().deleteInvoice(saved->id)));
    }

    void voidWithoutTheProcedureChangesNothing()
    {
        const QString entry = newEntry(m_hourlyTask, 1);
        QVERIFY(runBlocking(store().reloadBilledEntrySet()));
        const std::optional<Invoice> saved = save(request({entry}));
        QVERIFY2(saved, qPrintable(store().lastError()));

        db().exec("ALTER FUNCTION public.void_invoice(uuid) RENAME TO void_invoice_kept");
        const bool gone = voidProcedureShown(false);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Void invoice failed: "_s));
        const bool voided = runBlocking(store().voidInvoice(saved->id));
        db().exec("ALTER FUNCTION public.void_invoice_kept(uuid) RENAME TO void_invoice");
        QVERIFY(voidProcedureShown(true));
        QVERIFY(gone);
        QVERIFY(!voided);
        QCOMPARE(store().lastError(), voidUnavailable);
        QCOMPARE(store().invoice(saved->id)->status, InvoiceStatus::Draft);
        QCOMPARE(sql("SELECT status FROM invoices WHERE id = $1", saved->id.toUtf8()), "draft");
        QVERIFY(runBlocking(store().reloadBilledEntrySet()));
        QVERIFY(store().billedEntryIds().contains(entry));
    }

    void priorBillingFollowsLiveInvoices()
    {
        // A fixed-price task on a live invoice counts as billed; an hourly one has nothing to
        // bill once; a pool line names its project.
        const QString fixedEntry = newEntry(m_fixedTask, 2);
        const QString hourlyEntry = newEntry(m_hourlyTask, 2);
        QVERIFY(runBlocking(store().reloadBilledEntrySet()));
        const bool fixedBefore = store().priorBilling().tasks.contains(m_fixedTask);
        QVERIFY(!fixedBefore);
        InvoiceSaveRequest both = request({fixedEntry, hourlyEntry}, m_fixedTask);
        InvoiceLineInsert hourly = both.lines.first();
        hourly.taskId = m_hourlyTask;
        InvoiceLineInsert pool;
        pool.poolProjectId = m_project;
        pool.title = u"Project extras"_s;
        pool.quantity = 1;
        pool.amount = 40;
        both.lines = {both.lines.first(), hourly, pool};
        const std::optional<Invoice> saved = save(both);
        QVERIFY2(saved, qPrintable(store().lastError()));
        QVERIFY(store().priorBillingReady());
        QVERIFY(!store().priorBillingError());
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
        const QString entry = newEntry(m_fixedTask, 1);
        QVERIFY(runBlocking(store().reloadBilledEntrySet()));
        const std::optional<Invoice> saved = save(request({entry}, m_fixedTask));
        QVERIFY2(saved, qPrintable(store().lastError()));
        db().exec("ALTER TABLE invoice_lines RENAME COLUMN pool_project_id TO pool_project_kept");
        const bool gone = poolColumnShown(false);
        const bool read = runBlocking(store().reloadBilledEntrySet());
        db().exec("ALTER TABLE invoice_lines RENAME COLUMN pool_project_kept TO pool_project_id");
        QVERIFY(poolColumnShown(true));
        QVERIFY(gone);
        QVERIFY(read);
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
        QVERIFY(store().priorBillingError());
        QVERIFY(!store().priorBillingReady());
        const QString entry = newEntry(m_hourlyTask, 1);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Save invoice failed: "_s));
        QVERIFY(!runBlocking(store().saveInvoice(request({entry}))));
        QVERIFY(store().invoiceSaveMessage().startsWith(u"Could not read which work was billed before."_s));
        QVERIFY(runBlocking(store().reloadBilledEntrySet()));
    }

    void concurrentSavesForTheSameEntries()
    {
        const QString first = newEntry(m_hourlyTask, 2);
        const QString second = newEntry(m_hourlyTask, 1);
        // Two installations of the same user compose an invoice over the same hours at once.
        std::unique_ptr<StoreDevice> other = StoreDevice::signIn(m_backend, u"ilse@example.nl"_s);
        QVERIFY(other);
        QVERIFY(other->refresh());
        QVERIFY(runBlocking(store().reloadBilledEntrySet()));
        QVERIFY(runBlocking(other->store->reloadBilledEntrySet()));
        InvoiceSaveRequest mine = request({first, second});
        InvoiceSaveRequest theirs = request({second, first});
        mine.invoice.number = *runBlocking(store().allocateInvoiceNumber());
        theirs.invoice.number = *runBlocking(other->store->allocateInvoiceNumber());
        const QByteArray before = db().exec("SELECT count(*) FROM invoices", {}).value(0, 0);

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Save invoice failed: "_s));
        QCoro::Task<std::optional<Invoice>> mineSaving = store().saveInvoice(mine);
        QCoro::Task<std::optional<Invoice>> theirsSaving = other->store->saveInvoice(theirs);
        const std::optional<Invoice> mineSaved = runBlocking(std::move(mineSaving));
        const std::optional<Invoice> theirsSaved = runBlocking(std::move(theirsSaving));

        QVERIFY2(mineSaved.has_value() != theirsSaved.has_value(), "exactly one save wins");
        AppStore &loser = mineSaved ? *other->store : store();
        const Invoice &winner = mineSaved ? *mineSaved : *theirsSaved;
        QCOMPARE(loser.invoiceSaveMessage(), alreadyBilled);
        QCOMPARE(loser.lastError(), alreadyBilled);
        QCOMPARE(db().exec("SELECT count(*) FROM invoices", {}).value(0, 0).toInt(), before.toInt() + 1);
        QCOMPARE(sql("SELECT invoice_id FROM invoice_entries WHERE time_entry_id = $1 AND live", first.toUtf8()),
                 winner.id.toUtf8());
        // The loser's lists were refreshed: both entries show as billed there.
        QVERIFY(loser.billedEntryIds().contains(first));
        QVERIFY(loser.billedEntryIds().contains(second));
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
        const QByteArray before = db().exec("SELECT count(*) FROM invoices", {}).value(0, 0);
        broken.invoice.number = *runBlocking(store().allocateInvoiceNumber());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Save invoice failed: "_s));
        QVERIFY(!runBlocking(store().saveInvoice(broken)));
        QVERIFY2(store().invoiceSaveMessage().startsWith(u"Save invoice failed: "_s),
                 qPrintable(store().invoiceSaveMessage()));
        QCOMPARE(db().exec("SELECT count(*) FROM invoices", {}).value(0, 0), before);
        QCOMPARE(sql("SELECT count(*) FROM invoice_entries WHERE time_entry_id = $1", entry.toUtf8()), "0");
        const QString path = AppStore::invoicePdfPath(m_device->userId(), broken.invoice.number);
        QCOMPARE(sql("SELECT count(*) FROM storage.objects WHERE bucket_id = 'invoice-templates' AND name = $1",
                     path.toUtf8()),
                 "0");
        QVERIFY(unbilledHas(entry));
    }

    void derivedValues()
    {
        QVERIFY(runBlocking(store().loadUnbilledEntries()));
        QVERIFY(m_device->refresh());
        // Everything unbilled is on the hourly task at the project's 95/h, or on the fixed task.
        double expected = 0;
        qint64 hourlySeconds = 0;
        bool fixedUnbilled = false;
        QDateTime earliest;
        for (const TimeEntry &entry : store().unbilledEntries()) {
            if (entry.taskId == m_hourlyTask) {
                hourlySeconds += entry.durationSeconds;
            } else if (entry.taskId == m_fixedTask) {
                fixedUnbilled = true;
            }
            const QDateTime started = QDateTime::fromString(entry.startedAt, Qt::ISODate);
            if (!earliest.isValid() || started < earliest) {
                earliest = started;
            }
        }
        expected = hourlySeconds / 3600.0 * 95 + (fixedUnbilled ? 1200 : 0);
        QVERIFY(hourlySeconds > 0);
        QCOMPARE(store().unbilledTotal(m_project), Earnings::round2(expected));
        QCOMPARE(store().unbilledTotal(u"00000000-0000-4000-8000-000000000000"_s), 0.0);
        QCOMPARE(store().smartInvoiceStartDate(m_project), earliest.toLocalTime().date());
        QCOMPARE(store().smartInvoiceStartDate(u"00000000-0000-4000-8000-000000000000"_s), std::nullopt);
        QCOMPARE(store().billedFraction(u"00000000-0000-4000-8000-000000000000"_s), std::nullopt);
    }

    void billedFractionOfAProject()
    {
        // A project of its own: 3 h tracked, 1 h of it billed.
        const QByteArray user = m_device->userIdBytes();
        const QString project = QString::fromUtf8(
            db().exec("INSERT INTO projects (user_id, name) VALUES ($1, 'Fraction') RETURNING id", {user}).value(0, 0));
        const QString task = QString::fromUtf8(
            db().exec("INSERT INTO tasks (user_id, project_id, title, time_spent_seconds) VALUES ($1, $2, 'T', 10800) "
                      "RETURNING id",
                      {user, project.toUtf8()})
                .value(0, 0));
        const QString kept = m_project;
        m_project = project;
        const QString billed = newEntry(task, 1);
        newEntry(task, 2);
        QVERIFY(runBlocking(store().reloadBilledEntrySet()));
        const std::optional<Invoice> saved = save(request({billed}, task));
        m_project = kept;
        QVERIFY2(saved, qPrintable(store().lastError()));
        QVERIFY(m_device->refresh());
        const std::optional<double> fraction = store().billedFraction(project);
        QVERIFY(fraction);
        QCOMPARE(*fraction, 1.0 / 3.0);
    }
};

QTEST_GUILESS_MAIN(TestInvoices)
#include "tst_invoices.moc"
