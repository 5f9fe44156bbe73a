#include "model/invoice.h"
#include "model/invoicestyle.h"
#include "model/timeentry.h"
#include "pg/pgconnection.h"
#include "support/testbackend.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray project = "00000000-0000-4000-8000-0000000000a1";
const QByteArray fixedTask = "00000000-0000-4000-8000-0000000000b1";
const QByteArray hourlyTask = "00000000-0000-4000-8000-0000000000b2";
const QByteArray entryA = "00000000-0000-4000-8000-0000000000c1";
const QByteArray entryB = "00000000-0000-4000-8000-0000000000c2";
const QByteArray trip = "00000000-0000-4000-8000-0000000000d1";

const QList<std::pair<QByteArray, QByteArray>> returnRows{{"Prefer", "return=representation"},
                                                          {"Content-Type", "application/json"}};

} // namespace

// The invoice records against the rows the real backend writes and reads: every key the records
// name exists, the types match, and the embedded reads of what was billed decode.
class TestInvoiceWire : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    QString m_user;
    QByteArray m_token;

    HttpResult send(const QByteArray &method, const QByteArray &target, const QByteArray &body = {})
    {
        return m_backend.request(method, "/rest/v1/" + target, m_token, body, returnRows);
    }

    template<class T>
    QList<T> rows(const HttpResult &result)
    {
        if (result.status / 100 != 2) {
            qWarning() << result.status << result.body;
            return {};
        }
        return Wire::decodeJson<QList<T>>(result.body);
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_user = m_backend.createUser(u"sanne@example.nl"_s, u"Sanne"_s);
        m_token = m_backend.tokenFor(m_user);
        const QByteArray user = m_user.toUtf8();
        PgConnection &db = m_backend.database();
        db.exec("INSERT INTO projects (id, user_id, name) VALUES ($1, $2, 'Town hall')", {project, user});
        db.exec("INSERT INTO tasks (id, user_id, project_id, title, billing) VALUES ($1, $2, $3, 'Logo', "
                "'{\"model\":\"fixed\",\"amount\":1200,\"materials\":40}')",
                {fixedTask, user, project});
        db.exec("INSERT INTO tasks (id, user_id, project_id, title) VALUES ($1, $2, $3, 'Support')",
                {hourlyTask, user, project});
        db.exec("INSERT INTO time_entries (id, user_id, task_id, project_id, started_at, ended_at, duration_seconds) "
                "VALUES ($1, $2, $3, $4, '2025-03-03 09:00+00', '2025-03-03 11:30+00', 9000)",
                {entryA, user, fixedTask, project});
        db.exec("INSERT INTO time_entries (id, user_id, task_id, project_id, started_at, ended_at, duration_seconds) "
                "VALUES ($1, $2, $3, $4, '2025-03-04 13:00+00', '2025-03-04 14:00+00', 3600)",
                {entryB, user, hourlyTask, project});
        db.exec("INSERT INTO trips (id, user_id, project_id, started_at, distance_m) "
                "VALUES ($1, $2, $3, '2025-03-03 08:00+00', 18500)",
                {trip, user, project});
    }

    // One invoice through its life: written, its lines and links added, what it billed read back,
    // and voided.
    void invoiceWritesReadBackAndVoidReleases()
    {
        InvoiceInsert insert;
        insert.userId = m_user;
        insert.projectId = QString::fromLatin1(project);
        insert.number = u"2025-0007"_s;
        insert.issuedAt = u"2025-03-31"_s;
        insert.dueAt = u"2025-04-14"_s;
        insert.currency = u"EUR"_s;
        insert.subtotal = 1355.5;
        insert.vatAmount = 284.66;
        insert.total = 1640.16;
        insert.status = u"sent"_s;
        insert.clientName = u"Gemeente Houten"_s;
        insert.clientAddress = u"Onderdoor 25\n3995 DW Houten"_s;
        const QList<Invoice> created = rows<Invoice>(send("POST", "invoices", AnyEncodable(insert).toJson()));
        QCOMPARE(created.size(), 1);
        const Invoice &invoice = created.first();
        const QString invoiceId = invoice.id;
        QCOMPARE(invoice.status, InvoiceStatus::Sent);
        QCOMPARE(invoice.dueAt, u"2025-04-14"_s);
        QCOMPARE(invoice.vatAmount, 284.66);
        QCOMPARE(invoice.clientAddress, insert.clientAddress);
        QVERIFY(invoice.createdAt.has_value());

        // The whole table reads as the store reads it.
        const QList<Invoice> all = rows<Invoice>(send("GET", "invoices?select=*&order=issued_at.desc,created_at.desc"));
        QCOMPARE(all.size(), 1);
        QVERIFY(all.first() == invoice);

        // Lines and links.
        const auto line = [&](const QByteArray &task, const QString &title, double price, int order) {
            InvoiceLineInsert row;
            row.invoiceId = invoiceId;
            (task == project ? row.poolProjectId : row.taskId) = QString::fromLatin1(task);
            row.title = title;
            row.quantity = 1;
            row.unitPrice = price;
            row.amount = price;
            row.orderIndex = order;
            return AnyEncodable(row).json();
        };
        QJsonArray body{line(fixedTask, u"Logo"_s, 1200, 0), line(project, u"Project extras"_s, 60.5, 1),
                        line(hourlyTask, u"Support"_s, 95, 2)};
        const QList<InvoiceLine> lines =
            rows<InvoiceLine>(send("POST", "invoice_lines", QJsonDocument(body).toJson(QJsonDocument::Compact)));
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines[1].poolProjectId, QString::fromLatin1(project));
        QCOMPARE(lines[1].unitPrice, 60.5);

        const QList<InvoiceEntryLink> links = rows<InvoiceEntryLink>(
            send("POST", "invoice_entries",
                 "[" + AnyEncodable(InvoiceEntryInsert{invoiceId, QString::fromLatin1(entryA)}).toJson() + "," +
                     AnyEncodable(InvoiceEntryInsert{invoiceId, QString::fromLatin1(entryB)}).toJson() + "]"));
        QCOMPARE(links.size(), 2);
        QCOMPARE(links[0].invoiceId, invoiceId);
        const QList<InvoiceTripLink> trips = rows<InvoiceTripLink>(send(
            "POST", "invoice_trips", AnyEncodable(InvoiceTripInsert{invoiceId, QString::fromLatin1(trip)}).toJson()));
        QCOMPARE(trips.size(), 1);
        QCOMPARE(trips[0].tripId, QString::fromLatin1(trip));

        // The reads of what was billed before, with the embedded selects the store sends.
        const QList<BilledEntryRow> entries = rows<BilledEntryRow>(
            send("GET", "invoice_entries?select=id,time_entry_id,invoice:invoices(status),"
                        "entry:time_entries(task_id,task:tasks(project_id,billing))&order=id.asc"));
        QCOMPARE(entries.size(), 2);
        for (const BilledEntryRow &row : entries) {
            QVERIFY(row.invoice->isLive());
            QCOMPARE(row.entry->task->projectId, QString::fromLatin1(project));
            QCOMPARE(row.entry->task->billing.has_value(), row.timeEntryId == QString::fromLatin1(entryA));
        }

        const QList<BilledLineRow> billed = rows<BilledLineRow>(
            send("GET", "invoice_lines?select=id,task_id,pool_project_id,task:tasks(project_id,billing),"
                        "invoice:invoices(status)&order=order_index.asc"));
        QCOMPARE(billed.size(), 3);
        QCOMPARE(billed[0].taskId, QString::fromLatin1(fixedTask));
        QCOMPARE(billed[0].task->billing->value(u"model"_s).toString(), u"fixed"_s);
        QCOMPARE(billed[1].poolProjectId, QString::fromLatin1(project));
        QCOMPARE(billed[1].task, std::nullopt);
        QCOMPARE(billed[2].task->billing, std::nullopt);

        // Voided, the same rows say their invoice no longer holds them.
        QCOMPARE(m_backend
                     .request("POST", "/rest/v1/rpc/void_invoice", m_token,
                              "{\"p_invoice_id\":\"" + invoiceId.toUtf8() + "\"}",
                              {{"Content-Type", "application/json"}})
                     .status,
                 204);
        const QList<BilledEntryRow> released = rows<BilledEntryRow>(
            send("GET", "invoice_entries?select=id,time_entry_id,invoice:invoices(status)&order=id.asc"));
        QCOMPARE(released.size(), 2);
        QVERIFY(!released[0].invoice->isLive());
    }

    void templateStyleRoundTrips()
    {
        InvoiceStyle style;
        style.company = u"Studio Vlinder"_s;
        style.accentHex = u"#C2410C"_s;
        style.vatRate = 21;
        style.paymentTermsDays = 14;
        style.morvaneFooter = true;
        style.htmlTemplate = u"signatureEditorial"_s;
        style.customTemplateHtml = u"<!doctype html><html><body><header></header><footer></footer></body></html>"_s;
        const QJsonObject body{{u"name"_s, u"Studio"_s}, {u"style"_s, Wire::encode(style)}};
        const QList<InvoiceTemplate> created =
            rows<InvoiceTemplate>(send("POST", "invoice_templates", QJsonDocument(body).toJson()));
        QCOMPARE(created.size(), 1);
        QVERIFY(created.first().style == style);
        QCOMPARE(created.first().userId, m_user);
        QCOMPARE(created.first().isDefault, false);
    }
};

QTEST_GUILESS_MAIN(TestInvoiceWire)
#include "tst_invoicewire.moc"
