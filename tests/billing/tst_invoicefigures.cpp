#include "billing/invoicefigures.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

Invoice invoice(InvoiceStatus status, const QString &issued, std::optional<QString> due, double total,
                const QString &currency = u"EUR"_s)
{
    Invoice made;
    made.status = status;
    made.issuedAt = issued;
    made.dueAt = std::move(due);
    made.total = total;
    made.currency = currency;
    return made;
}

const QDate today(2026, 3, 15);

} // namespace

Q_DECLARE_METATYPE(InvoiceFigures::Sums)

class TestInvoiceFigures : public QObject
{
    Q_OBJECT

private slots:
    void outstanding_data()
    {
        using S = InvoiceStatus;
        QTest::addColumn<QList<Invoice>>("invoices");
        QTest::addColumn<InvoiceFigures::Sums>("open");
        QTest::addColumn<InvoiceFigures::Sums>("overdue");

        QTest::newRow("nothing") << QList<Invoice>{} << InvoiceFigures::Sums{} << InvoiceFigures::Sums{};
        QTest::newRow("only sent ones are owed")
            << QList<Invoice>{invoice(S::Draft, u"2026-03-01"_s, u"2026-03-02"_s, 100),
                              invoice(S::Paid, u"2026-03-01"_s, u"2026-03-02"_s, 200),
                              invoice(S::Void, u"2026-03-01"_s, u"2026-03-02"_s, 400),
                              invoice(S::Sent, u"2026-03-01"_s, u"2026-03-31"_s, 800)}
            << InvoiceFigures::Sums{{u"EUR"_s, 800}} << InvoiceFigures::Sums{};
        QTest::newRow("due day itself is in time, the day before is not")
            << QList<Invoice>{invoice(S::Sent, u"2026-02-01"_s, u"2026-03-15"_s, 10),
                              invoice(S::Sent, u"2026-02-01"_s, u"2026-03-14"_s, 20)}
            << InvoiceFigures::Sums{{u"EUR"_s, 30}} << InvoiceFigures::Sums{{u"EUR"_s, 20}};
        QTest::newRow("no or unreadable due date is open, never overdue")
            << QList<Invoice>{invoice(S::Sent, u"2025-01-01"_s, std::nullopt, 5),
                              invoice(S::Sent, u"2025-01-01"_s, u"soon"_s, 7)}
            << InvoiceFigures::Sums{{u"EUR"_s, 12}} << InvoiceFigures::Sums{};
        QTest::newRow("currencies apart, cents rounded")
            << QList<Invoice>{invoice(S::Sent, u"2026-01-01"_s, u"2026-01-31T00:00:00Z"_s, 0.1),
                              invoice(S::Sent, u"2026-01-01"_s, u"2026-01-31"_s, 0.2),
                              invoice(S::Sent, u"2026-01-01"_s, u"2026-01-31"_s, 99.5, u"CHF"_s)}
            << InvoiceFigures::Sums{{u"EUR"_s, 0.3}, {u"CHF"_s, 99.5}}
            << InvoiceFigures::Sums{{u"EUR"_s, 0.3}, {u"CHF"_s, 99.5}};
    }

    void outstanding()
    {
        QFETCH(QList<Invoice>, invoices);
        QFETCH(InvoiceFigures::Sums, open);
        QFETCH(InvoiceFigures::Sums, overdue);
        const InvoiceFigures::Outstanding sums = InvoiceFigures::outstanding(invoices, today);
        QCOMPARE(sums.open, open);
        QCOMPARE(sums.overdue, overdue);
    }

    void filter_data()
    {
        using S = InvoiceStatus;
        QTest::addColumn<std::optional<InvoiceStatus>>("status");
        QTest::addColumn<int>("year");
        QTest::addColumn<QList<double>>("totals");

        QTest::newRow("all") << std::optional<S>() << 0 << QList<double>{1, 2, 3, 4};
        QTest::newRow("sent") << std::optional<S>(S::Sent) << 0 << QList<double>{1, 3};
        QTest::newRow("2025") << std::optional<S>() << 2025 << QList<double>{1, 2};
        QTest::newRow("sent in 2026, from its first day") << std::optional<S>(S::Sent) << 2026 << QList<double>{3};
        QTest::newRow("void in 2025") << std::optional<S>(S::Void) << 2025 << QList<double>{};
    }

    void filter()
    {
        using S = InvoiceStatus;
        QFETCH(std::optional<InvoiceStatus>, status);
        QFETCH(int, year);
        QFETCH(QList<double>, totals);
        const QList<Invoice> all{invoice(S::Sent, u"2025-12-31"_s, {}, 1), invoice(S::Draft, u"2025-06-01"_s, {}, 2),
                                 invoice(S::Sent, u"2026-01-01"_s, {}, 3), invoice(S::Void, u"2026-02-01"_s, {}, 4)};
        QList<double> shown;
        for (const Invoice &each : InvoiceFigures::filtered(all, {status, year})) {
            shown.append(each.total);
        }
        QCOMPARE(shown, totals);
        QCOMPARE(InvoiceFigures::years(all + QList<Invoice>{invoice(S::Paid, u""_s, {}, 0)}), (QList<int>{2026, 2025}));
    }
};

QTEST_GUILESS_MAIN(TestInvoiceFigures)

#include "tst_invoicefigures.moc"
