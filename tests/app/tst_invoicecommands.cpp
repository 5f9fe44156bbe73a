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

} // namespace

// `morvane invoice ...` as a person runs it, against invoices written the way a save writes them.
class TestInvoiceCommands : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    MorvaneCli ann{m_backend};
    using Run = MorvaneCli::Run;
    QByteArray m_user;
    QByteArray m_project;
    QByteArray m_entry;

    PgConnection &db() { return m_backend.database(); }
    QByteArray sql(const QByteArray &query, const PgParams &parameters = {})
    {
        return db().exec(query, parameters).value(0, 0);
    }

    // An invoice with two lines and one billed entry; answers its id.
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
            const HttpResult upload =
                m_backend.request("POST", "/storage/v1/object/invoice-templates/" + path, m_backend.tokenFor(QString::fromLatin1(m_user)),
                                  pdfBytes, {{"Content-Type", "application/pdf"}, {"x-upsert", "true"}});
            if (upload.status / 100 != 2) {
                qWarning() << upload.status << upload.body;
            }
            db().exec("UPDATE invoices SET pdf_path = $2 WHERE id = $1", {id, path});
        }
        return id;
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        QCOMPARE(ann({u"auth"_s, u"signup"_s, u"ann@example.nl"_s}, "ann's secret\n").code, 0);
        m_user = sql("SELECT id FROM auth.users WHERE email = 'ann@example.nl'");
        QVERIFY(!m_user.isEmpty());
        const Run none = ann({u"invoice"_s, u"list"_s});
        QCOMPARE(none.code, 0);
        QCOMPARE(none.out.trimmed(), u"No invoices yet."_s);

        m_project = sql("INSERT INTO projects (user_id, name) VALUES ($1, 'Town hall') RETURNING id", {m_user});
        const QByteArray task =
            sql("INSERT INTO tasks (user_id, project_id, title) VALUES ($1, $2, 'Support') RETURNING id", {m_user, m_project});
        m_entry = sql("INSERT INTO time_entries (user_id, task_id, project_id, started_at, ended_at, duration_seconds) "
                      "VALUES ($1, $2, $3, '2026-03-02 09:00+00', '2026-03-02 12:00+00', 10800) RETURNING id",
                      {m_user, task, m_project});
    }

    void wrongCallsExitWithUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no action") << QStringList{u"invoice"_s};
        QTest::newRow("unknown action") << QStringList{u"invoice"_s, u"send"_s, u"2026-0001"_s};
        QTest::newRow("show without invoice") << QStringList{u"invoice"_s, u"show"_s};
        QTest::newRow("unknown status") << QStringList{u"invoice"_s, u"status"_s, u"2026-0001"_s, u"overdue"_s};
        QTest::newRow("status without status") << QStringList{u"invoice"_s, u"status"_s, u"2026-0001"_s};
        QTest::newRow("pdf without --out") << QStringList{u"invoice"_s, u"pdf"_s, u"2026-0001"_s};
    }

    void wrongCallsExitWithUsage()
    {
        QFETCH(QStringList, arguments);
        const Run run = ann(arguments);
        QCOMPARE(run.code, 2);
        QVERIFY2(run.err.contains(u"Usage: morvane invoice"_s), qPrintable(run.err));
    }

    void listShowsNewestFirst()
    {
        addInvoice("2026-0001", "2026-02-28", false);
        addInvoice("2026-0002", "2026-03-31", true);
        const Run run = ann({u"invoice"_s, u"list"_s, u"--json"_s});
        QCOMPARE(run.code, 0);
        const QJsonArray rows = run.json().array();
        QCOMPARE(rows.size(), 2);
        QCOMPARE(rows[0].toObject().value(u"number"_s).toString(), u"2026-0002"_s);
        QCOMPARE(rows[1].toObject().value(u"number"_s).toString(), u"2026-0001"_s);
        QCOMPARE(rows[0].toObject().value(u"total"_s).toDouble(), 344.85);

        const Run text = ann({u"invoice"_s, u"list"_s});
        QCOMPARE(text.code, 0);
        const QStringList lines = text.out.trimmed().split(u'\n');
        QCOMPARE(lines.size(), 2);
        QVERIFY2(lines[0].startsWith(u"2026-0002"_s) && lines[0].contains(u"draft"_s) &&
                     lines[0].contains(u"Gemeente Houten"_s),
                 qPrintable(lines[0]));
    }

    void showPrintsLinesInOrder()
    {
        const Run run = ann({u"invoice"_s, u"show"_s, u"2026-0002"_s, u"--json"_s});
        QCOMPARE(run.code, 0);
        const QJsonObject invoice = run.json().object();
        QCOMPARE(invoice.value(u"due_at"_s).toString(), u"2026-04-14"_s);
        const QJsonArray lines = invoice.value(u"lines"_s).toArray();
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[0].toObject().value(u"title"_s).toString(), u"Support"_s);
        QCOMPARE(lines[1].toObject().value(u"title"_s).toString(), u"Call-out fee"_s);

        const Run text = ann({u"invoice"_s, u"show"_s, u"2026-0002"_s});
        QCOMPARE(text.code, 0);
        QVERIFY2(text.out.startsWith(u"Invoice 2026-0002 (draft), issued 2026-03-31, due 2026-04-14"_s), qPrintable(text.out));
        QVERIFY(text.out.indexOf(u"Support"_s) < text.out.indexOf(u"Call-out fee"_s));
        QVERIFY(text.out.contains(u"Total"_s));

        const Run unknown = ann({u"invoice"_s, u"show"_s, u"1999-0001"_s});
        QCOMPARE(unknown.code, 1);
        QCOMPARE(unknown.err.trimmed(), u"No invoice matches 1999-0001."_s);
    }

    void statusVoidAndVoidIsFinal()
    {
        const QByteArray id = addInvoice("2026-0003", "2026-03-15", false);
        db().exec("INSERT INTO invoice_entries (invoice_id, time_entry_id) VALUES ($1, $2)", {id, m_entry});
        QCOMPARE(sql("SELECT live FROM invoice_entries WHERE invoice_id = $1", {id}), "t");
        const Run sent = ann({u"invoice"_s, u"status"_s, u"2026-0003"_s, u"sent"_s});
        QCOMPARE(sent.code, 0);
        QCOMPARE(sent.out.trimmed(), u"Invoice 2026-0003 is now sent."_s);
        QCOMPARE(sql("SELECT status FROM invoices WHERE id = $1", {id}), "sent");

        const Run voided = ann({u"invoice"_s, u"void"_s, u"2026-0003"_s});
        QCOMPARE(voided.code, 0);
        QCOMPARE(voided.out.trimmed(), u"Invoice 2026-0003 is void; its hours are unbilled again."_s);
        QCOMPARE(sql("SELECT status FROM invoices WHERE id = $1", {id}), "void");
        QCOMPARE(sql("SELECT live FROM invoice_entries WHERE invoice_id = $1", {id}), "f");

        const Run back = ann({u"invoice"_s, u"status"_s, u"2026-0003"_s, u"paid"_s});
        QCOMPARE(back.code, 1);
        QVERIFY2(back.err.contains(u"This invoice is void. A void invoice cannot be changed back."_s), qPrintable(back.err));
        QCOMPARE(sql("SELECT status FROM invoices WHERE id = $1", {id}), "void");
    }

    void pdfIsWrittenToTheFile()
    {
        const QString file = ann.homeFile(u"invoice.pdf"_s);
        const Run run = ann({u"invoice"_s, u"pdf"_s, u"2026-0002"_s, u"--out"_s, file});
        QCOMPARE(run.code, 0);
        QCOMPARE(run.out.trimmed(), u"Saved the PDF of invoice 2026-0002 to %1."_s.arg(file));
        QFile written(file);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QCOMPARE(written.readAll(), pdfBytes);

        // No stored PDF: an error, and no file.
        const QString none = ann.homeFile(u"none.pdf"_s);
        const Run missing = ann({u"invoice"_s, u"pdf"_s, u"2026-0001"_s, u"--out"_s, none});
        QCOMPARE(missing.code, 1);
        QVERIFY2(missing.err.contains(u"The invoice PDF could not be opened"_s), qPrintable(missing.err));
        QVERIFY(!QFile::exists(none));
    }

    void draftBuildsWhatASaveWouldWrite()
    {
        const QByteArray project =
            sql("INSERT INTO projects (user_id, name, hourly_rate) VALUES ($1, 'Harbour', 80) RETURNING id", {m_user});
        const QByteArray logo = sql("INSERT INTO tasks (user_id, project_id, title, billing) VALUES ($1, $2, 'Logo', "
                                    "'{\"model\":\"fixed\",\"amount\":1200}') RETURNING id",
                                    {m_user, project});
        const QByteArray support =
            sql("INSERT INTO tasks (user_id, project_id, title) VALUES ($1, $2, 'Support') RETURNING id", {m_user, project});
        const auto entry = [&](const QByteArray &task, const QByteArray &start, int seconds) {
            return sql("INSERT INTO time_entries (user_id, task_id, project_id, started_at, ended_at, duration_seconds) "
                       "VALUES ($1, $2, $3, $4::timestamptz, $4::timestamptz + make_interval(secs => $5::int), $5::int) "
                       "RETURNING id",
                       {m_user, task, project, start, QByteArray::number(seconds)});
        };
        const QByteArray logoEntry = entry(logo, "2026-03-03 12:00+00", 7200);
        const QByteArray supportEntry = entry(support, "2026-03-04 12:00+00", 5400);
        entry(support, "2026-04-02 12:00+00", 3600); // after the period

        const QStringList call{u"invoice"_s, u"draft"_s, u"Harbour"_s, u"--to"_s, u"2026-03-31"_s, u"--vat"_s,
                               u"21"_s, u"--json"_s};
        const Run run = ann(call);
        QCOMPARE(run.code, 0);
        const QJsonObject draft = run.json().object();
        QCOMPARE(draft.value(u"from"_s).toString(), u"2026-03-03"_s);
        QCOMPARE(draft.value(u"to"_s).toString(), u"2026-03-31"_s);
        QStringList entries;
        for (const QJsonValue &id : draft.value(u"entry_ids"_s).toArray()) {
            entries << id.toString();
        }
        entries.sort();
        QStringList expected{QString::fromLatin1(logoEntry), QString::fromLatin1(supportEntry)};
        expected.sort();
        QCOMPARE(entries, expected);
        QMap<QString, double> amounts;
        for (const QJsonValue &line : draft.value(u"lines"_s).toArray()) {
            amounts.insert(line.toObject().value(u"kind"_s).toString(), line.toObject().value(u"amount"_s).toDouble());
        }
        QCOMPARE(amounts.value(u"fixed"_s), 1200.0);
        QCOMPARE(amounts.value(u"work"_s), 120.0); // 1.5 h at the project's 80
        QCOMPARE(draft.value(u"subtotal"_s).toDouble(), 1320.0);
        const QJsonArray groups = draft.value(u"vat_groups"_s).toArray();
        QCOMPARE(groups.size(), 1);
        QCOMPARE(groups[0].toObject().value(u"percent"_s).toDouble(), 21.0);
        QCOMPARE(draft.value(u"vat_amount"_s).toDouble(), 277.2);
        QCOMPARE(draft.value(u"total"_s).toDouble(), 1597.2);

        // Once the fixed price is on a live invoice, the next draft is a follow-up without it.
        const QByteArray billed = addInvoice("2026-0010", "2026-03-10", false);
        db().exec("INSERT INTO invoice_lines (invoice_id, task_id, title, quantity, unit_price, amount) "
                  "VALUES ($1, $2, 'Logo', 1, 1200, 1200)",
                  {billed, logo});
        const QJsonObject followUp = ann(call).json().object();
        bool logoFollowsUp = false;
        for (const QJsonValue &unit : followUp.value(u"units"_s).toArray()) {
            if (unit.toObject().value(u"key"_s).toString() == u"task:"_s + QString::fromLatin1(logo)) {
                logoFollowsUp = unit.toObject().value(u"follow_up"_s).toBool();
            }
        }
        QVERIFY(logoFollowsUp);
        for (const QJsonValue &line : followUp.value(u"lines"_s).toArray()) {
            QVERIFY(line.toObject().value(u"kind"_s).toString() != u"fixed"_s);
        }
        QCOMPARE(followUp.value(u"subtotal"_s).toDouble(), 120.0);

        const Run text = ann({u"invoice"_s, u"draft"_s, u"Harbour"_s, u"--from"_s, u"2026-05-01"_s});
        QCOMPARE(text.code, 0);
        QCOMPARE(text.out.trimmed(), u"No unbilled time of Harbour in this period."_s);
        QCOMPARE(ann({u"invoice"_s, u"draft"_s, u"Harbour"_s, u"--from"_s, u"2026-05-01"_s, u"--to"_s, u"2026-04-01"_s}).code, 2);
        QCOMPARE(ann({u"invoice"_s, u"draft"_s, u"Harbour"_s, u"--vat"_s, u"lots"_s}).code, 2);
    }

    void createRendersAndSaves()
    {
        // Harbour as the draft left it: the fixed price billed before, 1.5 h of support and 2 h
        // on the logo unbilled in March.
        const QStringList call{u"invoice"_s, u"create"_s, u"Harbour"_s, u"--to"_s, u"2026-03-31"_s, u"--vat"_s, u"21"_s,
                               u"--status"_s, u"sent"_s, u"--client"_s, u"Port authority"_s, u"--json"_s};
        const Run run = ann(call);
        QCOMPARE(run.code, 0);
        const QJsonObject invoice = run.json().object();
        const QByteArray id = invoice.value(u"id"_s).toString().toLatin1();
        QVERIFY2(!id.isEmpty(), qPrintable(run.err));
        QCOMPARE(sql("SELECT status FROM invoices WHERE id = $1", {id}), "sent");
        QCOMPARE(sql("SELECT client_name FROM invoices WHERE id = $1", {id}), "Port authority");
        QCOMPARE(invoice.value(u"subtotal"_s).toDouble(), 120.0);
        QCOMPARE(invoice.value(u"vat_amount"_s).toDouble(), 25.2);
        QCOMPARE(invoice.value(u"total"_s).toDouble(), 145.2);
        QCOMPARE(sql("SELECT count(*) FROM invoice_entries WHERE invoice_id = $1 AND live", {id}), "2");
        // The logo is a follow-up: its line bills new time only, without the fixed price again.
        QCOMPARE(sql("SELECT string_agg(title, ',' ORDER BY title) FROM invoice_lines WHERE invoice_id = $1", {id}),
                 "Logo,Support");
        QCOMPARE(sql("SELECT string_agg(order_index::text, ',' ORDER BY order_index) FROM invoice_lines "
                     "WHERE invoice_id = $1",
                     {id}),
                 "0,1");
        QCOMPARE(sql("SELECT sum(amount) FROM invoice_lines WHERE invoice_id = $1", {id}).toDouble(), 120.0);

        // The stored PDF is a real rendering of it.
        const QString file = ann.homeFile(u"created.pdf"_s);
        QCOMPARE(ann({u"invoice"_s, u"pdf"_s, invoice.value(u"number"_s).toString(), u"--out"_s, file}).code, 0);
        QFile pdf(file);
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        const QByteArray bytes = pdf.readAll();
        QVERIFY(bytes.startsWith("%PDF"));
        QVERIFY(bytes.size() > 2000);

        // Nothing is left to bill in that period: no empty invoice, and no number used up on one.
        const Run again = ann(call);
        QCOMPARE(again.code, 1);
        // The graphical libraries may say something about the machine first.
        QVERIFY2(again.err.trimmed().endsWith(u"\nNo unbilled time of Harbour in this period."_s) ||
                     again.err.trimmed() == u"No unbilled time of Harbour in this period."_s,
                 qPrintable(again.err));
        QCOMPARE(ann({u"invoice"_s, u"create"_s, u"Harbour"_s, u"--status"_s, u"paid"_s}).code, 2);
    }

    void rmDeletesAndReleases()
    {
        const QByteArray id = addInvoice("2026-0100", "2026-03-20", false);
        db().exec("INSERT INTO invoice_entries (invoice_id, time_entry_id) VALUES ($1, $2)", {id, m_entry});
        const Run run = ann({u"invoice"_s, u"rm"_s, QString::fromLatin1(id.left(8))});
        QCOMPARE(run.code, 0);
        QCOMPARE(run.out.trimmed(), u"Invoice 2026-0100 deleted; its hours are unbilled again."_s);
        QCOMPARE(sql("SELECT count(*) FROM invoices WHERE id = $1", {id}), "0");
        QCOMPARE(sql("SELECT count(*) FROM invoice_entries WHERE time_entry_id = $1 AND live", {m_entry}), "0");
        const Run again = ann({u"invoice"_s, u"rm"_s, u"2026-0100"_s});
        QCOMPARE(again.code, 1);
    }

    void replacePdfDrawsTheStoredLinesAgain()
    {
        const QByteArray id = addInvoice("2026-0100", "2026-04-01", true);
        const QByteArray path = sql("SELECT pdf_path FROM invoices WHERE id = $1", {id});
        const Run run = ann({u"invoice"_s, u"replace-pdf"_s, u"2026-0100"_s});
        QCOMPARE(run.code, 0);
        QCOMPARE(run.out.trimmed(), u"The PDF of invoice 2026-0100 was made again."_s);
        QCOMPARE(sql("SELECT pdf_path FROM invoices WHERE id = $1", {id}), path);

        const QString file = ann.homeFile(u"replaced.pdf"_s);
        QCOMPARE(ann({u"invoice"_s, u"pdf"_s, u"2026-0100"_s, u"--out"_s, file}).code, 0);
        QFile pdf(file);
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        const QByteArray bytes = pdf.readAll();
        QVERIFY(bytes.startsWith("%PDF"));
        QVERIFY(bytes != pdfBytes);
        // The new page carries the stored lines and totals.
        QProcess text;
        text.start(u"pdftotext"_s, {file, u"-"_s});
        QVERIFY(text.waitForFinished(30000));
        const QString words = QString::fromUtf8(text.readAllStandardOutput());
        QVERIFY2(words.contains(u"Support"_s) && words.contains(u"2026-0100"_s) && words.contains(u"344.85"_s),
                 qPrintable(words));

        QCOMPARE(ann({u"invoice"_s, u"replace-pdf"_s, u"2099-0001"_s}).code, 1);
    }
};

QTEST_GUILESS_MAIN(TestInvoiceCommands)
#include "tst_invoicecommands.moc"
