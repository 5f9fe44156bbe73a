#include "billing/money.h"
#include "pg/pgconnection.h"
#include "support/morvanecli.h"

#include <QJsonArray>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// One row of figures as `earnings --json` prints it, worked out by hand from the entries below.
struct Figures
{
    QString label; // the project's name, or the period as "start end"
    double hours;
    double earned;
    double billed;
    double rate;
};

// Hours as the table prints them ("2:30").
QString hoursMinutes(double hours)
{
    const int minutes = qRound(hours * 60);
    return QString::number(minutes / 60) + u':' + QString::number(minutes % 60).rightJustified(2, u'0');
}

} // namespace

Q_DECLARE_METATYPE(Figures)

// `morvane clients` and `morvane earnings` as a person runs them against a real backend. The
// pricing rules behind the figures are proven in tests/billing; here the command's own work is:
// arguments, the period in the user's zone, the rows it prints and its exit codes.
class TestMoneyCommands : public QObject
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

    // In Amsterdam, so that a day's bounds differ from UTC's. On the C locale Qt takes the
    // language from LANGUAGE (English), so money prints as in QLocale("en") whatever this machine's.
    Run run(const QStringList &arguments, const QByteArray &input = {}) const
    {
        QProcessEnvironment environment = ann.environment();
        environment.insert(u"TZ"_s, u"Europe/Amsterdam"_s);
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        return MorvaneCli::finish(*ann.start(arguments, environment), input);
    }

    QJsonArray clientList() const
    {
        const Run result = run({u"clients"_s, u"list"_s, u"--json"_s});
        return result.code == 0 ? result.json().array() : QJsonArray();
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        QLocale::setDefault(QLocale(u"en"_s));
        QCOMPARE(ann(u"auth signup ann@example.nl"_s, "ann's secret\n").code, 0);
        m_user = sql("SELECT id FROM auth.users WHERE email = 'ann@example.nl'");

        // Web follows its own hourly price, Brand the legacy rate column.
        const QByteArray web = sql("INSERT INTO projects (user_id, name, billing) VALUES ($1, 'Web', "
                                   "'{\"model\":\"hourly\",\"unit_price\":80}') RETURNING id",
                                   {m_user});
        const QByteArray brand =
            sql("INSERT INTO projects (user_id, name, hourly_rate) VALUES ($1, 'Brand', 60) RETURNING id", {m_user});
        const auto task = [&](const QByteArray &project, const QByteArray &title) {
            return sql("INSERT INTO tasks (user_id, project_id, title) VALUES ($1, $2, $3) RETURNING id",
                       {m_user, project, title});
        };
        const QByteArray design = task(web, "Design");
        const QByteArray logo = task(brand, "Logo");
        // `start` is UTC; Amsterdam is an hour ahead in January.
        const auto entry = [&](const QByteArray &task, const QByteArray &project, const QByteArray &start, int seconds) {
            return sql("INSERT INTO time_entries (user_id, task_id, project_id, started_at, ended_at, duration_seconds) "
                       "VALUES ($1, $2, $3, $4::timestamptz, $4::timestamptz + make_interval(secs => $5::int), "
                       "$5::int) RETURNING id",
                       {m_user, task, project, start, QByteArray::number(seconds)});
        };
        const QByteArray billed = entry(design, web, "2026-01-05 08:00+00", 7200); // Mon: 2 h × 80 = 160, billed
        entry(design, web, "2026-01-06 08:00+00", 5400);                           // Tue: 1.5 h × 80 = 120
        entry(logo, brand, "2026-01-08 09:00+00", 3600);                           // Thu: 1 h × 60 = 60
        entry(logo, brand, "2026-01-11 22:30+00", 1800);                           // Sun 23:30 there: 30
        entry(logo, brand, "2026-01-11 23:30+00", 3600);                           // Mon 12th 00:30 there: 60
        entry(design, web, "2026-01-04 22:30+00", 3600);                           // Sun 4th 23:30 there: 80
        const QByteArray invoice = sql("INSERT INTO invoices (user_id, number, issued_at, currency, status) "
                                       "VALUES ($1, 'E-1', '2026-01-12', 'EUR', 'sent') RETURNING id",
                                       {m_user});
        m_backend.database().exec("INSERT INTO invoice_entries (invoice_id, time_entry_id) VALUES ($1, $2)",
                                  {invoice, billed});
    }

    void clientsAddListEditAndRemove()
    {
        const Run added = run({u"clients"_s, u"add"_s, u" Acme BV "_s, u"--email"_s, u"ap@acme.nl"_s,
                               u"--vat-number"_s, u"NL123B01"_s, u"--json"_s});
        QVERIFY2(added.code == 0, qPrintable(added.err));
        const QString acme = added.id();
        QCOMPARE(added.object().value(u"name"_s).toString(), u"Acme BV"_s);
        QVERIFY(run({u"clients"_s, u"add"_s, u"ACME bv"_s}).code == 0);

        // Two names that match alike: refused, and both named so that the id can be used.
        const Run ambiguous = run({u"clients"_s, u"edit"_s, u"acme  bv"_s, u"--coc-number"_s, u"1"_s});
        QCOMPARE(ambiguous.code, 1);
        QVERIFY2(ambiguous.err.contains(u"matches several"_s) && ambiguous.err.contains(acme.left(8)),
                 qPrintable(ambiguous.err));

        // By the start of its id: the fields not named keep their values, an empty one is cleared.
        const Run edited = run({u"clients"_s, u"edit"_s, acme.left(6), u"--name"_s, u"Acme Holding"_s,
                                u"--address"_s, u"Quay 1\n1011 AB Amsterdam"_s, u"--email"_s, QString()});
        QVERIFY2(edited.code == 0, qPrintable(edited.err));
        const QJsonArray list = clientList();
        QCOMPARE(list.size(), 2);
        const QJsonObject holding = list.at(1).toObject(); // ordered by name: ACME bv, Acme Holding
        QCOMPARE(holding.value(u"id"_s).toString(), acme);
        QCOMPARE(holding.value(u"name"_s).toString(), u"Acme Holding"_s);
        QCOMPARE(holding.value(u"address"_s).toString(), u"Quay 1\n1011 AB Amsterdam"_s);
        QCOMPARE(holding.value(u"vat_id"_s).toString(), u"NL123B01"_s);
        QVERIFY(holding.value(u"email"_s).toString().isEmpty());

        // Deleting asks first; anything but yes keeps the client.
        const Run kept = run({u"clients"_s, u"rm"_s, u"acme holding"_s}, "\n");
        QCOMPARE(kept.code, 1);
        QVERIFY2(kept.err.contains(u"Nothing deleted."_s), qPrintable(kept.err));
        QCOMPARE(clientList().size(), 2);
        const Run removed = run({u"clients"_s, u"rm"_s, u"ACME  HOLDING"_s}, "yes\n");
        QVERIFY2(removed.code == 0, qPrintable(removed.err));
        QCOMPARE(removed.out, u"Deleted client Acme Holding.\n"_s);
        QCOMPARE(clientList().size(), 1);
        QCOMPARE(sql("SELECT archived::text FROM clients WHERE id = $1", {acme.toUtf8()}), "true");
        QCOMPARE(run({u"clients"_s, u"rm"_s, u"Acme Holding"_s, u"--yes"_s}).code, 1);
    }

    void earningsOfAKnownWeek_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QList<Figures>>("rows");
        QTest::addColumn<Figures>("total");
        // 5 h: Mon 2 h and Tue 1.5 h of Web at 80, Thu 1 h and Sunday night's half hour of Brand at 60.
        const Figures week{{}, 5, 370, 160, 74};
        QTest::newRow("by project, most earned first")
            << QStringList{u"--from"_s, u"2026-01-05"_s, u"--to"_s, u"2026-01-11"_s, u"--by"_s, u"project"_s}
            << QList<Figures>{{u"Web"_s, 3.5, 280, 160, 80}, {u"Brand"_s, 1.5, 90, 0, 60}} << week;
        // Across two weeks: each row says the days it counted; Monday 00:30 there is the second week.
        QTest::newRow("by week, cut to the period")
            << QStringList{u"--from"_s, u"2026-01-07"_s, u"--to"_s, u"2026-01-13"_s, u"--by"_s, u"week"_s}
            << QList<Figures>{{u"2026-01-07 2026-01-11"_s, 1.5, 90, 0, 60}, {u"2026-01-12 2026-01-13"_s, 1, 60, 0, 60}}
            << Figures{{}, 2.5, 150, 0, 60};
        QTest::newRow("by month, the default")
            << QStringList{u"--from"_s, u"2026-01-05"_s, u"--to"_s, u"2026-01-11"_s}
            << QList<Figures>{{u"2026-01-05 2026-01-11"_s, 5, 370, 160, 74}} << week;
    }

    void earningsOfAKnownWeek()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QList<Figures>, rows);
        QFETCH(Figures, total);
        const Run result = run(QStringList{u"earnings"_s} + arguments + QStringList{u"--json"_s});
        QVERIFY2(result.code == 0, qPrintable(result.err));
        const QJsonObject report = result.object();
        QCOMPARE(report.value(u"currency"_s).toString(), u"EUR"_s);
        QCOMPARE(report.value(u"from"_s).toString(), arguments.at(1));
        const auto compare = [](const QJsonObject &object, const Figures &expected) {
            QCOMPARE(object.value(u"hours"_s).toDouble(), expected.hours);
            QCOMPARE(object.value(u"earned"_s).toDouble(), expected.earned);
            QCOMPARE(object.value(u"billed"_s).toDouble(), expected.billed);
            QCOMPARE(object.value(u"unbilled"_s).toDouble(), expected.earned - expected.billed);
            QCOMPARE(object.value(u"effective_rate"_s).toDouble(), expected.rate);
        };
        const QJsonArray printed = report.value(u"rows"_s).toArray();
        QCOMPARE(printed.size(), rows.size());
        for (qsizetype i = 0; i < rows.size(); ++i) {
            const QJsonObject row = printed.at(i).toObject();
            const QString label = row.contains(u"project"_s)
                                      ? row.value(u"project"_s).toString()
                                      : row.value(u"start"_s).toString() + u' ' + row.value(u"end"_s).toString();
            QCOMPARE(label, rows.at(i).label);
            compare(row, rows.at(i));
        }
        compare(report.value(u"total"_s).toObject(), total);

        // The same report as a table: the total row in the user's money.
        const Run table = run(QStringList{u"earnings"_s} + arguments);
        QVERIFY2(table.code == 0, qPrintable(table.err));
        const QString last = table.out.trimmed().split(u'\n').last().simplified();
        const QStringList money{formatMoney(total.earned, u"EUR"_s), formatMoney(total.billed, u"EUR"_s),
                                formatMoney(total.earned - total.billed, u"EUR"_s), formatMoney(total.rate, u"EUR"_s)};
        QCOMPARE(last, QString(u"Total "_s + hoursMinutes(total.hours) + u' ' + money.join(u' ')).simplified());
    }

    void wrongEarningsCallsExitWithUsage_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QString>("message");
        QTest::newRow("unknown grouping") << u"--by year"_s << u"--by takes week, month or project, not \"year\"."_s;
        QTest::newRow("no such day") << u"--from 2026-02-30 --to 2026-03-01"_s << u"\"2026-02-30\" is not a day"_s;
        QTest::newRow("half a period") << u"--from 2026-01-01"_s << u"Give both --from and --to"_s;
        QTest::newRow("backwards") << u"--from 2026-01-31 --to 2026-01-01"_s << u"ends before it begins"_s;
    }

    void wrongEarningsCallsExitWithUsage()
    {
        QFETCH(QString, arguments);
        QFETCH(QString, message);
        const Run result = run(QStringList{u"earnings"_s} + arguments.split(u' '));
        QCOMPARE(result.code, 2);
        QVERIFY(result.out.isEmpty());
        QVERIFY2(result.err.contains(message) && result.err.contains(u"Usage: morvane earnings"_s),
                 qPrintable(result.err));
    }
};

QTEST_GUILESS_MAIN(TestMoneyCommands)
#include "tst_moneycommands.moc"
