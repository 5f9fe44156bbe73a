#include "pg/pgconnection.h"
#include "support/morvanecli.h"

#include <QFile>
#include <QJsonArray>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

// `morvane invoice ...` as a person runs it. What goes on an invoice and its sums are the store's
// rules, tested in tests/store.
class TestInvoiceCommands : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    MorvaneCli ann{m_backend};
    using Run = MorvaneCli::Run;
    QByteArray m_user;

    PgConnection &db() { return m_backend.database(); }
    QByteArray sql(const QByteArray &query, const PgParams &parameters = {})
    {
        return db().exec(query, parameters).value(0, 0);
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

    // The March invoice of a new project with time, as `invoice create` saves it.
    QJsonObject createInvoice(const QByteArray &project)
    {
        addProjectWithTime(project);
        return ann(u"invoice|create|%1|--to|2026-03-31|--vat|21|--client|Port authority|--json"_s.arg(
                       QString::fromLatin1(project)))
            .object();
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        QCOMPARE(ann(u"auth signup ann@example.nl"_s, "ann's secret\n").code, 0);
        m_user = sql("SELECT id FROM auth.users WHERE email = 'ann@example.nl'");
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
        const QByteArray id = run.object()[u"id"_s].toString().toLatin1();
        QVERIFY2(!id.isEmpty(), qPrintable(run.err));
        QCOMPARE(sql("SELECT status || '|' || client_name || '|' || total FROM invoices WHERE id = $1", {id}),
                 "sent|Port authority|1597.2");
        QCOMPARE(sql("SELECT string_agg(order_index::text, ',' ORDER BY order_index) FROM invoice_lines "
                     "WHERE invoice_id = $1",
                     {id}),
                 "0,1");
        // Nothing is left to bill in that period: no empty invoice, and no number used up on one.
        const Run again = ann(call);
        QCOMPARE(again.code, 1);
        // The graphical libraries may say something about the machine first.
        QVERIFY2(again.err.endsWith(u"No unbilled time of Quay in this period.\n"_s), qPrintable(again.err));
    }

    void listShowAndPdf()
    {
        const QString number = createInvoice("Harbour")[u"number"_s].toString();
        QVERIFY(!number.isEmpty());
        QVERIFY(jsonColumn(ann(u"invoice list --json"_s).json().array(), u"number"_s).contains(number));
        QVERIFY(ann(u"invoice list"_s).out.contains(QRegularExpression(u"(^|\n)"_s + number + u".*Port authority"_s)));
        const QJsonObject invoice = ann(u"invoice show %1 --json"_s.arg(number)).object();
        QCOMPARE(jsonColumn(invoice[u"lines"_s].toArray(), u"title"_s).size(), 2);
        const QString shown = ann(u"invoice show "_s + number).out;
        QVERIFY2(shown.startsWith(u"Invoice %1 (draft), issued "_s.arg(number)), qPrintable(shown));
        QCOMPARE(ann(u"invoice show 1999-0001"_s).err, u"No invoice matches 1999-0001.\n"_s);

        // The stored PDF is a real rendering, and making it again draws the stored lines.
        const QString file = ann.homeFile(u"invoice.pdf"_s);
        QCOMPARE(ann(u"invoice pdf %1 --out %2"_s.arg(number, file)).out,
                 u"Saved the PDF of invoice %1 to %2.\n"_s.arg(number, file));
        QVERIFY(readFile(file).startsWith("%PDF"));
        QCOMPARE(ann(u"invoice replace-pdf "_s + number).out, u"The PDF of invoice %1 was made again.\n"_s.arg(number));
        QCOMPARE(ann(u"invoice pdf %1 --out %2"_s.arg(number, file)).code, 0);
        QProcess text;
        text.start(u"pdftotext"_s, {file, u"-"_s});
        QVERIFY(text.waitForFinished(30000));
        const QString words = QString::fromUtf8(text.readAllStandardOutput());
        QVERIFY2(words.contains(u"Support"_s) && words.contains(u"1,597.20"_s), qPrintable(words));

        // No stored PDF: an error, and no file.
        db().exec("UPDATE invoices SET pdf_path = NULL WHERE number = $1", {number.toUtf8()});
        const QString none = ann.homeFile(u"none.pdf"_s);
        const Run missing = ann(u"invoice pdf %1 --out %2"_s.arg(number, none));
        QCOMPARE(missing.code, 1);
        QVERIFY(missing.err.contains(u"The invoice PDF could not be opened"_s));
        QVERIFY(!QFile::exists(none));
    }

    void statusVoidAndRm()
    {
        const QJsonObject invoice = createInvoice("Town");
        const QString number = invoice[u"number"_s].toString();
        QCOMPARE(ann(u"invoice status %1 sent"_s.arg(number)).out, u"Invoice %1 is now sent.\n"_s.arg(number));
        QCOMPARE(ann(u"invoice void "_s + number).out,
                 u"Invoice %1 is void; its hours are unbilled again.\n"_s.arg(number));
        // The store's refusal, in its words.
        const Run back = ann(u"invoice status %1 paid"_s.arg(number));
        QCOMPARE(back.code, 1);
        QVERIFY(back.err.contains(u"This invoice is void. A void invoice cannot be changed back."_s));
        QCOMPARE(ann(u"invoice rm "_s + invoice[u"id"_s].toString().left(8)).out,
                 u"Invoice %1 deleted; its hours are unbilled again.\n"_s.arg(number));
        QCOMPARE(sql("SELECT count(*) FROM invoices WHERE number = $1", {number.toUtf8()}), "0");
    }
};

QTEST_GUILESS_MAIN(TestInvoiceCommands)
#include "tst_invoicecommands.moc"
