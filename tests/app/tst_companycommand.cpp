#include "pg/pgconnection.h"
#include "support/morvanecli.h"

#include <QFile>
#include <QImage>
#include <QTest>

using namespace Qt::StringLiterals;

// `morvane company` and `invoice create --design` as a person runs them against a real backend:
// the sender details and look are stored in the default template and every new invoice is drawn
// in them. What a logo, a colour or a template may be is tested in tests/invoicing.
class TestCompanyCommand : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    MorvaneCli ann{m_backend};
    using Run = MorvaneCli::Run;
    QByteArray m_user;

    QByteArray sql(const QByteArray &query, const PgParams &parameters = {})
    {
        return m_backend.database().exec(query, parameters).value(0, 0);
    }
    QString write(const QString &name, const QByteArray &bytes)
    {
        QFile file(ann.homeFile(name));
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
        return file.fileName();
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        QCOMPARE(ann(u"auth signup ann@example.nl"_s, "ann's secret\n").code, 0);
        m_user = sql("SELECT id FROM auth.users WHERE email = 'ann@example.nl'");
    }

    void senderDetailsReachTheInvoice()
    {
        const Run empty = ann(u"company show"_s);
        QVERIFY2(empty.out.startsWith(u"No sender details yet."_s), qPrintable(empty.err));

        // A refused value changes nothing, not even the values beside it.
        const Run badColour = ann(u"company set --company Nobody --accent teal"_s);
        QCOMPARE(badColour.code, 2);
        QVERIFY2(badColour.err.contains(u"“teal” is no colour"_s), qPrintable(badColour.err));
        QCOMPARE(sql("SELECT count(*) FROM invoice_templates"), "0");

        QImage wide(1500, 300, QImage::Format_RGB32);
        wide.fill(Qt::darkCyan);
        QVERIFY(wide.save(ann.homeFile(u"logo.png"_s)));
        const Run set = ann(u"company|set|--company|Hoekstra Design|--address|Prinsengracht 263\n1016 GV Amsterdam|"
                            u"--iban|NL91ABNA0417164300|--payment-days|30|--vat-rate|21|--accent|#0f766e|"
                            u"--design|editorial|--logo|"_s +
                            ann.homeFile(u"logo.png"_s));
        QVERIFY2(set.code == 0, qPrintable(set.err));
        QCOMPARE(set.out, u"Sender details and invoice style saved.\n"_s);

        // A second change keeps the first and writes the same default template.
        const QString broken = write(u"broken.html"_s, "<html><body><header></header><footer></footer></body></html>");
        const Run custom = ann(u"company set --template "_s + broken);
        QCOMPARE(custom.code, 0);
        QVERIFY2(custom.out.contains(u"Custom template: not used, invoices fall back to lightMinimalAccent: The "
                                     u"template must start with <!doctype html>."_s),
                 qPrintable(custom.out));
        QCOMPARE(sql("SELECT count(*) || '|' || bool_and(is_default) || '|' || min(name) FROM invoice_templates "
                     "WHERE user_id = $1",
                     {m_user}),
                 "1|true|Default");

        const QJsonObject style = ann(u"company show --json"_s).object();
        QCOMPARE(style[u"company"_s].toString(), u"Hoekstra Design"_s);
        QCOMPARE(style[u"address"_s].toString(), u"Prinsengracht 263\n1016 GV Amsterdam"_s);
        QCOMPARE(style[u"payment_terms_days"_s].toInt(), 30);
        QCOMPARE(style[u"accent_hex"_s].toString(), u"#0f766e"_s);
        QCOMPARE(style[u"html_template"_s].toString(), u"aiCustom"_s);
        QImage logo;
        const QString uri = style[u"logo_data_uri"_s].toString();
        QVERIFY(uri.startsWith(u"data:image/png;base64,"_s));
        QVERIFY(logo.loadFromData(QByteArray::fromBase64(uri.mid(22).toLatin1()), "PNG"));
        QCOMPARE(logo.size(), QSize(600, 120));
        const QString shown = ann(u"company show"_s).out;
        QVERIFY2(shown.contains(u"Logo:"_s) && shown.contains(u"600 × 120 px"_s) &&
                     shown.contains(u"Payment terms:"_s) && shown.contains(u"30 days"_s),
                 qPrintable(shown));

        // An invoice of a project with time, in a design of its own.
        const QByteArray project =
            sql("INSERT INTO projects (user_id, name, hourly_rate) VALUES ($1, 'Quay', 80) RETURNING id", {m_user});
        const QByteArray task =
            sql("INSERT INTO tasks (user_id, project_id, title) VALUES ($1, $2, 'Support') RETURNING id",
                {m_user, project});
        m_backend.database().exec("INSERT INTO time_entries (user_id, task_id, project_id, started_at, ended_at, "
                                  "duration_seconds) VALUES ($1, $2, $3, '2026-03-04 12:00+00', "
                                  "'2026-03-04 13:30+00', 5400)",
                                  {m_user, task, project});
        const Run unknown = ann(u"invoice create Quay --to 2026-03-31 --design glitter"_s);
        QCOMPARE(unknown.code, 2);
        QVERIFY2(unknown.err.contains(u"Unknown design: glitter"_s) && unknown.err.contains(u"boldDark"_s),
                 qPrintable(unknown.err));
        QCOMPARE(sql("SELECT count(*) FROM invoices"), "0");

        const Run created = ann(u"invoice create Quay --to 2026-03-31 --design boldDark --json"_s);
        const QString number = created.object()[u"number"_s].toString();
        QVERIFY2(!number.isEmpty(), qPrintable(created.err));
        const QString file = ann.homeFile(u"invoice.pdf"_s);
        QCOMPARE(ann(u"invoice pdf %1 --out %2"_s.arg(number, file)).code, 0);
        QProcess text;
        text.start(u"pdftotext"_s, {file, u"-"_s});
        QVERIFY(text.waitForFinished(30000));
        const QString words = QString::fromUtf8(text.readAllStandardOutput());
        QVERIFY2(words.contains(u"Hoekstra Design"_s) && words.contains(u"NL91ABNA0417164300"_s), qPrintable(words));
    }
};

QTEST_GUILESS_MAIN(TestCompanyCommand)

#include "tst_companycommand.moc"
