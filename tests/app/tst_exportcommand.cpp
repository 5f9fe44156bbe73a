#include "pg/pgconnection.h"
#include "support/morvanecli.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// RFC 4180 as a spreadsheet reads it: quoted fields may hold commas, doubled quotes and line
// breaks; rows end with CRLF. Anything else (a bare LF, text after a closing quote) fails the test.
QList<QStringList> parseCsv(const QString &text)
{
    QList<QStringList> rows;
    QStringList row;
    QString field;
    qsizetype i = 0;
    while (i < text.size()) {
        if (text.at(i) == u'"' && field.isEmpty()) {
            ++i;
            while (true) {
                if (i >= text.size()) {
                    qWarning("unterminated quoted field");
                    return {};
                }
                if (text.at(i) == u'"') {
                    if (i + 1 < text.size() && text.at(i + 1) == u'"') {
                        field += u'"';
                        i += 2;
                        continue;
                    }
                    ++i;
                    break;
                }
                field += text.at(i++);
            }
            if (i < text.size() && text.at(i) != u',' && text.at(i) != u'\r') {
                qWarning("text after a closing quote");
                return {};
            }
            continue;
        }
        const QChar c = text.at(i);
        if (c == u',') {
            row << std::exchange(field, QString());
            ++i;
        } else if (c == u'\r' && text.mid(i, 2) == u"\r\n") {
            row << std::exchange(field, QString());
            rows << std::exchange(row, QStringList());
            i += 2;
        } else if (c == u'\n' || c == u'\r' || c == u'"') {
            qWarning("bare line break or quote in an unquoted field");
            return {};
        } else {
            field += c;
            ++i;
        }
    }
    if (!field.isEmpty() || !row.isEmpty()) {
        qWarning("last row without its CRLF");
        return {};
    }
    return rows;
}

} // namespace

// `morvane export` as a person runs it against a real backend: the CSV read back and compared with
// the rows the database holds. The forms of the fields are tested in tests/store.
class TestExportCommand : public QObject
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

    // In Amsterdam, so that a day's bounds differ from UTC's.
    Run run(const QStringList &arguments) const
    {
        QProcessEnvironment environment = ann.environment();
        environment.insert(u"TZ"_s, u"Europe/Amsterdam"_s);
        return MorvaneCli::finish(*ann.start(arguments, environment));
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        QCOMPARE(ann(u"auth signup ann@example.nl"_s, "ann's secret\n").code, 0);
        m_user = sql("SELECT id FROM auth.users WHERE email = 'ann@example.nl'");

        // Names that a spreadsheet would misread: a formula, a comma, quotes and a line break.
        const QByteArray project =
            sql("INSERT INTO projects (user_id, name) VALUES ($1, '=Quay, north') RETURNING id", {m_user});
        const QByteArray task = sql("INSERT INTO tasks (user_id, project_id, title) VALUES ($1, $2, "
                                    "E'Logo \"big\"\\nsecond line') RETURNING id",
                                    {m_user, project});
        const auto entry = [&](const QByteArray &start, int seconds, const QByteArray &email) {
            return sql("INSERT INTO time_entries (user_id, task_id, project_id, started_at, ended_at, "
                       "duration_seconds, logged_by_email) VALUES ($1, $2, $3, $4::timestamptz, $4::timestamptz + "
                       "make_interval(secs => $5::int), $5::int, NULLIF($6, '')) RETURNING id",
                       {m_user, task, project, start, QByteArray::number(seconds), email});
        };
        // Long before the store's recent window, on the first local day of the period.
        const QByteArray old = entry("2025-12-31 23:30+00", 5400, "ann@example.nl");
        const QByteArray voided = entry("2026-01-10 09:00+00", 450, "");
        entry("2026-01-31 23:00+00", 60, "ann@example.nl"); // 1 February in Amsterdam: outside
        entry("2025-12-31 22:59+00", 60, "ann@example.nl"); // 31 December in Amsterdam: outside

        // Each starts as a draft; the status follows once its entries are linked.
        const auto invoice = [&](const QByteArray &number, const QByteArray &issued, const QByteArray &client,
                                 const QByteArray &net) {
            return sql("INSERT INTO invoices (user_id, project_id, number, issued_at, due_at, currency, subtotal, "
                       "vat_amount, total, status, client_name) VALUES ($1, $2, $3, $4::date, $4::date + 14, 'EUR', "
                       "$5::numeric, round($5::numeric * 0.21, 2), $5::numeric + round($5::numeric * 0.21, 2), "
                       "'draft', $6) RETURNING id",
                       {m_user, project, number, issued, net, client});
        };
        const QByteArray sent = invoice("2026-0001", "2026-01-05", "@Port authority", "120");
        const QByteArray gone = invoice("2026-0002", "2026-01-31", "Town, \"West\"", "15.5");
        invoice("2026-0003", "2026-02-01", "Later", "1");
        db().exec("INSERT INTO invoice_entries (invoice_id, time_entry_id) VALUES ($1, $2), ($3, $4)",
                  {sent, old, gone, voided});
        db().exec("UPDATE invoices SET status = 'sent' WHERE id = $1", {sent});
        // Voiding releases the entry: it counts as unbilled again.
        db().exec("UPDATE invoices SET status = 'void' WHERE id = $1", {gone});
    }

    void wrongCallsExitWithUsage_data()
    {
        QTest::addColumn<QString>("arguments");
        for (const char *arguments :
             {"export trips --from 2026-01-01 --to 2026-01-31", "export entries --from 2026-01-01",
              "export entries --from 2026-02-30 --to 2026-03-01", "export invoices --from 2026-02-01 --to 2026-01-31"}) {
            QTest::newRow(arguments) << QString::fromLatin1(arguments);
        }
    }

    void wrongCallsExitWithUsage()
    {
        QFETCH(QString, arguments);
        const Run result = run(arguments.split(u' '));
        QCOMPARE(result.code, 2);
        QVERIFY(result.out.isEmpty());
        QVERIFY2(result.err.contains(u"Usage: morvane export"_s), qPrintable(result.err));
    }

    void entriesOfThePeriodOnStandardOutput()
    {
        const Run result = run({u"export"_s, u"entries"_s, u"--from"_s, u"2026-01-01"_s, u"--to"_s, u"2026-01-31"_s});
        QVERIFY2(result.code == 0, qPrintable(result.err));
        const QList<QStringList> rows = parseCsv(result.out);
        QCOMPARE(rows.size(), 3);
        QCOMPARE(rows.at(0).join(u','), u"date,start,end,hours,minutes,project,task,billed,invoice,logged_by"_s);

        // The same rows from the database, in the same order and zone.
        const PgResult expected = db().exec(
            "SELECT to_char(te.started_at AT TIME ZONE 'Europe/Amsterdam', 'YYYY-MM-DD'), "
            "  to_char(te.started_at AT TIME ZONE 'Europe/Amsterdam', 'YYYY-MM-DD\"T\"HH24:MI:SS\"+01:00\"'), "
            "  to_char(te.ended_at AT TIME ZONE 'Europe/Amsterdam', 'YYYY-MM-DD\"T\"HH24:MI:SS\"+01:00\"'), "
            "  to_char(round(te.duration_seconds / 3600.0, 2), 'FM990.00'), round(te.duration_seconds / 60.0)::text, "
            "  '''' || p.name, t.title, "
            "  CASE WHEN i.number IS NULL THEN 'no' ELSE 'yes' END, coalesce(i.number, ''), "
            "  coalesce(te.logged_by_email, u.email) "
            "FROM time_entries te JOIN projects p ON p.id = te.project_id JOIN tasks t ON t.id = te.task_id "
            "JOIN auth.users u ON u.id = te.user_id "
            "LEFT JOIN invoice_entries ie ON ie.time_entry_id = te.id AND ie.live "
            "LEFT JOIN invoices i ON i.id = ie.invoice_id "
            "WHERE (te.started_at AT TIME ZONE 'Europe/Amsterdam')::date BETWEEN '2026-01-01' AND '2026-01-31' "
            "ORDER BY te.started_at");
        QCOMPARE(expected.rows(), 2);
        for (int row = 0; row < expected.rows(); ++row) {
            QStringList values;
            for (int column = 0; column < expected.columns(); ++column) {
                values << QString::fromUtf8(expected.value(row, column));
            }
            QCOMPARE(rows.at(row + 1), values);
        }
        // What the table above says by hand: the old entry billed on 2026-0001, the released one not.
        QCOMPARE(rows.at(1).mid(7, 2), (QStringList{u"yes"_s, u"2026-0001"_s}));
        QCOMPARE(rows.at(2).mid(7, 2), (QStringList{u"no"_s, QString()}));
    }

    void invoicesOfThePeriodIntoAFile()
    {
        const QString path = ann.homeFile(u"invoices-january.csv"_s);
        const Run result = run({u"export"_s, u"invoices"_s, u"--from"_s, u"2026-01-01"_s, u"--to"_s,
                                u"2026-01-31"_s, u"--out"_s, path});
        QVERIFY2(result.code == 0, qPrintable(result.err));
        QCOMPARE(result.out, u"Saved %1 (rows: 2).\n"_s.arg(path));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QList<QStringList> rows = parseCsv(QString::fromUtf8(file.readAll()));
        QCOMPARE(rows.size(), 3);
        QCOMPARE(rows.at(0).join(u','), u"number,issue_date,due_date,client,status,net,vat,total,currency"_s);
        const PgResult expected =
            db().exec("SELECT number, issued_at::text, due_at::text, "
                      "  CASE WHEN client_name LIKE '@%' THEN '''' ELSE '' END || client_name, status, "
                      "  to_char(subtotal, 'FM99990.00'), to_char(vat_amount, 'FM99990.00'), "
                      "  to_char(total, 'FM99990.00'), currency "
                      "FROM invoices WHERE issued_at BETWEEN '2026-01-01' AND '2026-01-31' ORDER BY issued_at, number");
        QCOMPARE(expected.rows(), 2);
        for (int row = 0; row < expected.rows(); ++row) {
            QStringList values;
            for (int column = 0; column < expected.columns(); ++column) {
                values << QString::fromUtf8(expected.value(row, column));
            }
            QCOMPARE(rows.at(row + 1), values);
        }
        QCOMPARE(rows.at(2).at(4), u"void"_s);
    }

    void aFileThatCannotBeWrittenSaysSo()
    {
        const Run result = run({u"export"_s, u"invoices"_s, u"--from"_s, u"2026-01-01"_s, u"--to"_s, u"2026-01-31"_s,
                                u"--out"_s, ann.homeFile(u"no/such/folder/x.csv"_s)});
        QCOMPARE(result.code, 1);
        QVERIFY2(result.err.contains(u"Could not write"_s), qPrintable(result.err));
        QVERIFY(result.out.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestExportCommand)
#include "tst_exportcommand.moc"
