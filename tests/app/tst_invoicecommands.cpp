#include "pg/pgconnection.h"
#include "support/morvanecli.h"
#include "support/testbackend.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray pdfBytes = "%PDF-1.4\n% the stored page of an invoice\n%%EOF\n";

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

// `morvane invoice ...` as a person runs it, against invoices written the way a save writes them.
// What goes on an invoice and its sums are the store's rules, tested in tests/store.
class TestInvoiceCommands : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    MorvaneCli ann{m_backend};
    using Run = MorvaneCli::Run;
    QByteArray m_user;
    QByteArray m_project;

    PgConnection &db() { return m_backend.database(); }
    QByteArray sql(const QByteArray &query, const PgParams &parameters = {})
    {
        return db().exec(query, parameters).value(0, 0);
    }

    // An invoice with two lines, and its stored PDF when `withPdf`; answers its id.
    QByteArray addInvoice(const QByteArray &number, const QByteArray &issued, bool withPdf)
    {
        const QByteArray id = sql("INSERT INTO invoices (user_id, project_id, number, issued_at, due_at, currency, "
                                  "subtotal, vat_amount, total, status, client_name) VALUES ($1, $2, $3, $4, "
                                  "$4::date + 14, 'EUR', 285, 59.85, 344.85, 'draft', 'Gemeente Houten') RETURNING id",
                                  {m_user, m_project, number, issued});
        db().exec("INSERT INTO invoice_lines (invoice_id, title, quantity, unit, unit_price, amount, order_index) "
                  "VALUES ($1, 'Support', 3, 'h', 95, 285, 0), ($1, 'Call-out fee', 1, NULL, 0, 0, 1)",
                  {id});
        if (withPdf) {
            const QByteArray path = m_user + "/invoices/" + number + ".pdf";
            const HttpResult upload = m_backend.request("POST", "/storage/v1/object/invoice-templates/" + path,
                                                        m_backend.tokenFor(QString::fromLatin1(m_user)), pdfBytes,
                                                        {{"Content-Type", "application/pdf"}, {"x-upsert", "true"}});
            if (upload.status / 100 != 2) {
                qWarning() << "upload failed:" << upload.status << upload.body;
            }
            db().exec("UPDATE invoices SET pdf_path = $2 WHERE id = $1", {id, path});
        }
        return id;
    }

    // A project at 80 an hour: 2 h on a fixed-price logo and 1.5 h of support in March, 1 h in April.
    void addProjectWithTime(const QByteArray &name)
    {
        const QByteArray project =
            sql("INSERT INTO projects (user_id, name, hourly_rate) VALUES ($1, $2, 80) RETURNING id", {m_user, name});
        const auto entry = [&](const QByteArray &title, const QByteArray &billing, const QByteArray &start,
                               int seconds) {
            const QByteArray task = sql("INSERT INTO tasks (user_id, project_id, title, billing) VALUES ($1, $2, $3, "
                                        "NULLIF($4, '')::jsonb) RETURNING id",
                                        {m_user, project, title, billing});
            db().exec("INSERT INTO time_entries (user_id, task_id, project_id, started_at, ended_at, duration_seconds) "
                      "VALUES ($1, $2, $3, $4::timestamptz, $4::timestamptz + make_interval(secs => $5::int), $5::int)",
                      {m_user, task, project, start, QByteArray::number(seconds)});
        };
        entry("Logo", R"({"model":"fixed","amount":1200})", "2026-03-03 12:00+00", 7200);
        entry("Support", {}, "2026-03-04 12:00+00", 5400);
        entry("Support", {}, "2026-04-02 12:00+00", 3600);
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        QCOMPARE(ann(u"auth signup ann@example.nl"_s, "ann's secret\n").code, 0);
        m_user = sql("SELECT id FROM auth.users WHERE email = 'ann@example.nl'");
        QCOMPARE(ann(u"invoice list"_s).out, u"No invoices yet.\n"_s);
        m_project = sql("INSERT INTO projects (user_id, name) VALUES ($1, 'Town') RETURNING id", {m_user});
    }

    void wrongCallsExitWithUsage_data()
    {
        QTest::addColumn<QString>("arguments");
        for (const char *arguments :
             {"", "send 2026-0001", "show", "status 2026-0001 overdue", "create Town --status paid",
              "draft Town --vat lots", "draft Town --from 2026-05-01 --to 2026-04-01"}) {
            QTest::newRow(*arguments ? arguments : "no action") << QString::fromLatin1(arguments);
        }
    }

    void wrongCallsExitWithUsage()
    {
        QFETCH(QString, arguments);
        const Run run = ann(QString(u"invoice "_s + arguments).trimmed());
        QCOMPARE(run.code, 2);
        QVERIFY(run.err.contains(u"Usage: morvane invoice"_s));
    }

    void listShowAndPdf()
    {
        addInvoice("2026-0001", "2026-02-28", false);
        addInvoice("2026-0002", "2026-03-31", true);
        QCOMPARE(jsonColumn(ann(u"invoice list --json"_s).json().array(), u"number"_s).mid(0, 2),
                 (QStringList{u"2026-0002"_s, u"2026-0001"_s}));
        const QString line = ann(u"invoice list"_s).out.section(u'\n', 0, 0);
        QVERIFY2(line.startsWith(u"2026-0002"_s) && line.contains(u"Gemeente Houten"_s), qPrintable(line));

        const QJsonObject invoice = ann(u"invoice show 2026-0002 --json"_s).object();
        QCOMPARE(jsonColumn(invoice[u"lines"_s].toArray(), u"title"_s), (QStringList{u"Support"_s, u"Call-out fee"_s}));
        const QString text = ann(u"invoice show 2026-0002"_s).out;
        QVERIFY2(text.startsWith(u"Invoice 2026-0002 (draft), issued 2026-03-31, due 2026-04-14"_s), qPrintable(text));
        QCOMPARE(ann(u"invoice show 1999-0001"_s).err, u"No invoice matches 1999-0001.\n"_s);

        const QString file = ann.homeFile(u"invoice.pdf"_s);
        QCOMPARE(ann(u"invoice pdf 2026-0002 --out "_s + file).out,
                 u"Saved the PDF of invoice 2026-0002 to %1.\n"_s.arg(file));
        QCOMPARE(readFile(file), pdfBytes);
        // No stored PDF: an error, and no file.
        const QString none = ann.homeFile(u"none.pdf"_s);
        const Run missing = ann(u"invoice pdf 2026-0001 --out "_s + none);
        QCOMPARE(missing.code, 1);
        QVERIFY(missing.err.contains(u"The invoice PDF could not be opened"_s));
        QVERIFY(!QFile::exists(none));
    }

    void statusVoidAndRm()
    {
        const QByteArray id = addInvoice("2026-0003", "2026-03-15", false);
        QCOMPARE(ann(u"invoice status 2026-0003 sent"_s).out, u"Invoice 2026-0003 is now sent.\n"_s);
        QCOMPARE(ann(u"invoice void 2026-0003"_s).out, u"Invoice 2026-0003 is void; its hours are unbilled again.\n"_s);
        QCOMPARE(sql("SELECT status FROM invoices WHERE id = $1", {id}), "void");
        // The store's refusal, in its words.
        const Run back = ann(u"invoice status 2026-0003 paid"_s);
        QCOMPARE(back.code, 1);
        QVERIFY(back.err.contains(u"This invoice is void. A void invoice cannot be changed back."_s));

        const QByteArray other = addInvoice("2026-0100", "2026-03-20", false);
        QCOMPARE(ann(u"invoice rm "_s + QString::fromLatin1(other.left(8))).out,
                 u"Invoice 2026-0100 deleted; its hours are unbilled again.\n"_s);
        QCOMPARE(sql("SELECT count(*) FROM invoices WHERE id = $1", {other}), "0");
    }

    void draftThenCreate()
    {
        addProjectWithTime("Quay");
        const QJsonObject draft = ann(u"invoice draft Quay --to 2026-03-31 --vat 21 --json"_s).object();
        QCOMPARE(draft[u"from"_s].toString(), u"2026-03-03"_s);
        QCOMPARE(draft[u"entry_ids"_s].toArray().size(), 2);
        QCOMPARE(draft[u"total"_s].toDouble(), 1597.2);
        QCOMPARE(ann(u"invoice draft Quay --from 2026-05-01"_s).out, u"No unbilled time of Quay in this period.\n"_s);

        const QString call =
            u"invoice|create|Quay|--to|2026-03-31|--vat|21|--status|sent|--client|Port authority|--json"_s;
        const Run run = ann(call);
        const QJsonObject invoice = run.object();
        const QByteArray id = invoice[u"id"_s].toString().toLatin1();
        QVERIFY2(!id.isEmpty(), qPrintable(run.err));
        QCOMPARE(sql("SELECT status || '|' || client_name || '|' || total FROM invoices WHERE id = $1", {id}),
                 "sent|Port authority|1597.2");
        QCOMPARE(sql("SELECT string_agg(order_index::text, ',' ORDER BY order_index) FROM invoice_lines "
                     "WHERE invoice_id = $1",
                     {id}),
                 "0,1");
        // The stored PDF is a real rendering of it.
        const QString file = ann.homeFile(u"created.pdf"_s);
        QCOMPARE(ann(u"invoice pdf %1 --out %2"_s.arg(invoice[u"number"_s].toString(), file)).code, 0);
        const QByteArray bytes = readFile(file);
        QVERIFY(bytes.startsWith("%PDF") && bytes.size() > 2000);

        // Nothing is left to bill in that period: no empty invoice, and no number used up on one.
        const Run again = ann(call);
        QCOMPARE(again.code, 1);
        // The graphical libraries may say something about the machine first.
        QVERIFY2(again.err.endsWith(u"No unbilled time of Quay in this period.\n"_s), qPrintable(again.err));
    }

    void replacePdfDrawsTheStoredLinesAgain()
    {
        const QByteArray id = addInvoice("2026-0101", "2026-04-01", true);
        const QByteArray path = sql("SELECT pdf_path FROM invoices WHERE id = $1", {id});
        QCOMPARE(ann(u"invoice replace-pdf 2026-0101"_s).out, u"The PDF of invoice 2026-0101 was made again.\n"_s);
        QCOMPARE(sql("SELECT pdf_path FROM invoices WHERE id = $1", {id}), path);
        const QString file = ann.homeFile(u"replaced.pdf"_s);
        QCOMPARE(ann(u"invoice pdf 2026-0101 --out "_s + file).code, 0);
        QProcess text;
        text.start(u"pdftotext"_s, {file, u"-"_s});
        QVERIFY(text.waitForFinished(30000));
        const QString words = QString::fromUtf8(text.readAllStandardOutput());
        QVERIFY2(words.contains(u"Support"_s) && words.contains(u"344.85"_s), qPrintable(words));
    }
};

QTEST_GUILESS_MAIN(TestInvoiceCommands)
#include "tst_invoicecommands.moc"
