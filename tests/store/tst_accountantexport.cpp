#include "store/accountantexport.h"

#include <QTest>

using namespace Qt::StringLiterals;

// The accountant's CSV: how a field is quoted and guarded, and the forms of its dates, hours and
// amounts. Reading the period from a real backend is tested through `morvane export` in tests/app.
class TestAccountantExport : public QObject
{
    Q_OBJECT

private:
    static AccountantExport::Period period(const char *from, const char *to, const QByteArray &zone = "Europe/Amsterdam")
    {
        return {QDate::fromString(QString::fromLatin1(from), Qt::ISODate),
                QDate::fromString(QString::fromLatin1(to), Qt::ISODate), QTimeZone(zone)};
    }

    static TimeEntry entry(const QString &id, const QString &start, qint64 seconds)
    {
        TimeEntry entry;
        entry.id = id;
        entry.userId = u"u1"_s;
        entry.taskId = u"t1"_s;
        entry.projectId = u"p1"_s;
        entry.startedAt = start;
        entry.endedAt = isoEnd(start, seconds);
        entry.durationSeconds = seconds;
        return entry;
    }

    static QString isoEnd(const QString &start, qint64 seconds)
    {
        return QDateTime::fromString(start, Qt::ISODate).addSecs(seconds).toUTC().toString(Qt::ISODate);
    }

private slots:
    void fieldsAreQuotedAndGuarded_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("typed");
        QTest::addColumn<QString>("written");
        QTest::newRow("plain stays bare") << u"Harbour app"_s << true << u"Harbour app"_s;
        QTest::newRow("empty stays empty") << QString() << true << QString();
        QTest::newRow("comma is quoted") << u"Port, north"_s << true << u"\"Port, north\""_s;
        QTest::newRow("quotes are doubled") << u"The \"new\" site"_s << true << u"\"The \"\"new\"\" site\""_s;
        QTest::newRow("LF is quoted") << u"two\nlines"_s << true << u"\"two\nlines\""_s;
        QTest::newRow("CR alone is quoted") << u"a\rb"_s << true << u"\"a\rb\""_s;
        QTest::newRow("= formula is text") << u"=1+2"_s << true << u"'=1+2"_s;
        QTest::newRow("+ formula is text") << u"+31 6 1234"_s << true << u"'+31 6 1234"_s;
        QTest::newRow("- formula is text") << u"-2+3"_s << true << u"'-2+3"_s;
        QTest::newRow("@ formula is text") << u"@SUM(A1)"_s << true << u"'@SUM(A1)"_s;
        QTest::newRow("tab start is text") << u"\t=1"_s << true << u"'\t=1"_s;
        QTest::newRow("guarded and quoted") << u"=HYPERLINK(\"x\",\"y\")"_s << true
                                            << u"\"'=HYPERLINK(\"\"x\"\",\"\"y\"\")\""_s;
        QTest::newRow("= inside is fine") << u"a=b"_s << true << u"a=b"_s;
        QTest::newRow("our negative number stays a number") << u"-12.50"_s << false << u"-12.50"_s;
        QTest::newRow("non-ASCII stays as is") << u"Café 東京"_s << true << u"Café 東京"_s;
    }

    void fieldsAreQuotedAndGuarded()
    {
        QFETCH(QString, value);
        QFETCH(bool, typed);
        QFETCH(QString, written);
        QCOMPARE(Csv::field(typed ? Csv::text(value) : value), written);
    }

    void documentEndsEachRowWithCrlfInUtf8()
    {
        const QByteArray csv = Csv::document({{u"a"_s, u"b"_s}, {u"x\ny"_s, u"é"_s}});
        QCOMPARE(csv, QByteArray("a,b\r\n\"x\ny\",\xc3\xa9\r\n"));
    }

    void entryDurationsAndTimes_data()
    {
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<QString>("hours");
        QTest::addColumn<QString>("minutes");
        QTest::newRow("zero") << qint64(0) << u"0.00"_s << u"0"_s;
        QTest::newRow("29 s is no whole minute yet") << qint64(29) << u"0.01"_s << u"0"_s;
        QTest::newRow("30 s is a minute") << qint64(30) << u"0.01"_s << u"1"_s;
        QTest::newRow("18 s is half a hundredth, up") << qint64(18) << u"0.01"_s << u"0"_s;
        QTest::newRow("7.5 min is 0.125 h, up") << qint64(450) << u"0.13"_s << u"8"_s;
        QTest::newRow("long day") << qint64(12 * 3600 + 59) << u"12.02"_s << u"721"_s;
    }

    void entryDurationsAndTimes()
    {
        QFETCH(qint64, seconds);
        QFETCH(QString, hours);
        QFETCH(QString, minutes);
        const QList<QStringList> rows =
            AccountantExport::entryRows({entry(u"e1"_s, u"2026-03-03T12:00:00Z"_s, seconds)}, {},
                                        period("2026-03-01", "2026-03-31"));
        QCOMPARE(rows.size(), 2);
        QCOMPARE(rows.at(1).at(3), hours);
        QCOMPARE(rows.at(1).at(4), minutes);
        // The period's zone, with its offset, so the clock time is the one the person saw.
        QCOMPARE(rows.at(1).at(1), u"2026-03-03T13:00:00+01:00"_s);
    }

    // A day belongs to the period by the local start of its work: an entry at 23:30 in Amsterdam
    // on the last day is in, one at 00:10 after it is out, whatever UTC says.
    void periodBoundsFollowTheLocalCalendar()
    {
        const QList<TimeEntry> entries{
            entry(u"before"_s, u"2026-02-28T22:59:59Z"_s, 60), // 23:59:59 on 28 February
            entry(u"first"_s, u"2026-02-28T23:00:00Z"_s, 60),  // 00:00 on 1 March
            entry(u"last"_s, u"2026-03-31T21:30:00Z"_s, 3600), // 23:30 on 31 March, summer time
            entry(u"after"_s, u"2026-03-31T22:10:00Z"_s, 60),  // 00:10 on 1 April
        };
        EntryContextFixture fixture;
        const QList<QStringList> rows =
            AccountantExport::entryRows(entries, fixture.context, period("2026-03-01", "2026-03-31"));
        QCOMPARE(rows.size(), 3);
        QCOMPARE(rows.at(1).at(0), u"2026-03-01"_s);
        QCOMPARE(rows.at(2).at(0), u"2026-03-31"_s);
        QCOMPARE(rows.at(2).at(1), u"2026-03-31T23:30:00+02:00"_s);
        QCOMPARE(rows.at(2).at(2), u"2026-04-01T00:30:00+02:00"_s);
        QCOMPARE(period("2026-03-01", "2026-03-31").end().toUTC(),
                 QDateTime(QDate(2026, 3, 31), QTime(22, 0), Qt::UTC));
    }

    void entryRowsNameTheirInvoiceAndAuthor()
    {
        TimeEntry billed = entry(u"b"_s, u"2026-03-02T09:00:00Z"_s, 3600);
        billed.loggedByEmail = u"ann@example.nl"_s;
        TimeEntry open = entry(u"a"_s, u"2026-03-02T08:00:00Z"_s, 1800);
        open.userId = u"u2"_s;
        const TimeEntry unseen = entry(u"c"_s, u"2026-03-02T10:00:00Z"_s, 60);
        EntryContextFixture fixture;
        fixture.context.invoiceOfEntry.insert(u"b"_s, u"2026-0007"_s);
        fixture.context.emailOfUser.insert(u"u2"_s, u"ben@example.nl"_s);
        fixture.context.billedUnseen.insert(u"c"_s);
        const QList<QStringList> rows = AccountantExport::entryRows({unseen, billed, open}, fixture.context,
                                                                    period("2026-03-01", "2026-03-31"));
        QCOMPARE(rows.at(0), (QStringList{u"date"_s, u"start"_s, u"end"_s, u"hours"_s, u"minutes"_s, u"project"_s,
                                          u"task"_s, u"billed"_s, u"invoice"_s, u"logged_by"_s}));
        // Oldest first; the names from the context, guarded as what people typed.
        QCOMPARE(rows.at(1).mid(5), (QStringList{u"'=Quay"_s, u"Logo"_s, u"no"_s, QString(), u"ben@example.nl"_s}));
        QCOMPARE(rows.at(2).mid(5),
                 (QStringList{u"'=Quay"_s, u"Logo"_s, u"yes"_s, u"2026-0007"_s, u"ann@example.nl"_s}));
        QCOMPARE(rows.at(3).mid(7, 2), (QStringList{u"yes"_s, QString()}));
    }

    void invoiceRowsOfThePeriod()
    {
        const auto invoice = [](const QString &number, const QString &issued, double net, double vat,
                                InvoiceStatus status) {
            Invoice made;
            made.number = number;
            made.issuedAt = issued;
            made.dueAt = QDate::fromString(issued, Qt::ISODate).addDays(14).toString(Qt::ISODate);
            made.subtotal = net;
            made.vatAmount = vat;
            made.total = net + vat;
            made.status = status;
            made.currency = u"EUR"_s;
            made.clientName = u"Port, authority"_s;
            return made;
        };
        const QList<Invoice> invoices{
            invoice(u"2026-0003"_s, u"2026-04-01"_s, 10, 2.1, InvoiceStatus::Sent),
            invoice(u"2026-0002"_s, u"2026-03-31"_s, 1.005, 0.21105, InvoiceStatus::Void),
            invoice(u"2026-0001"_s, u"2026-03-01"_s, 1320, 277.2, InvoiceStatus::Paid),
            invoice(u"2025-0099"_s, u"2026-02-28"_s, 5, 0, InvoiceStatus::Paid),
        };
        const QList<QStringList> rows = AccountantExport::invoiceRows(invoices, period("2026-03-01", "2026-03-31"));
        QCOMPARE(rows.size(), 3);
        QCOMPARE(rows.at(0), (QStringList{u"number"_s, u"issue_date"_s, u"due_date"_s, u"client"_s, u"status"_s,
                                          u"net"_s, u"vat"_s, u"total"_s, u"currency"_s}));
        QCOMPARE(rows.at(1), (QStringList{u"2026-0001"_s, u"2026-03-01"_s, u"2026-03-15"_s, u"Port, authority"_s,
                                          u"paid"_s, u"1320.00"_s, u"277.20"_s, u"1597.20"_s, u"EUR"_s}));
        // Cents as the person typed them, not as binary rounding has them; void invoices stay.
        QCOMPARE(rows.at(2).mid(4), (QStringList{u"void"_s, u"1.01"_s, u"0.21"_s, u"1.22"_s, u"EUR"_s}));
    }

private:
    struct EntryContextFixture
    {
        AccountantExport::EntryContext context{{{u"p1"_s, u"=Quay"_s}}, {{u"t1"_s, u"Logo"_s}}, {}, {}};
    };
};

QTEST_GUILESS_MAIN(TestAccountantExport)
#include "tst_accountantexport.moc"
