#include "billing/money.h"
#include "pg/pgconnection.h"
#include "support/desktopwindow.h"
#include "support/testbackend.h"
#include "ui/desktopshell.h"
#include "ui/invoicelist.h"

#include <QAbstractItemModelTester>
#include <QFile>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
constexpr int patience = 20000;
} // namespace

// The invoice list in the real window over a real backend: invoices written straight into the
// database are listed with the sums a person works out by hand, and a status change, a void and a
// deletion made on the screen arrive in the backend, the void for good.
class TestInvoicesView : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    std::unique_ptr<DesktopWindow> m_desktop;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    const QDate m_today = QDate::currentDate();

    AppStore *store() const { return m_desktop->store(); }
    InvoiceList *invoices() const { return m_desktop->workspace()->invoices(); }
    QQuickItem *item(const char *name) const { return m_desktop->item(QString::fromLatin1(name)); }
    QByteArray sql(const QByteArray &query, const PgParams &params = {})
    {
        return m_backend.database().exec(query, params).value(0, 0);
    }
    QString statusOf(const QString &number)
    {
        return QString::fromUtf8(sql("SELECT status FROM invoices WHERE number = $1", {number.toUtf8()}));
    }
    QString idOf(const QString &number) { return store()->invoiceByNumber(number).value_or(Invoice{}).id; }
    void click(const char *button) { QVERIFY(QMetaObject::invokeMethod(item(button), "clicked")); }
    void choose(const QString &number)
    {
        QVERIFY(QMetaObject::invokeMethod(item("invoicesView"), "choose", Q_ARG(QVariant, idOf(number))));
    }
    void confirm(const char *dialogName)
    {
        // A popup is no item: it is found as an object of the window.
        QObject *dialog = m_desktop->window()->findChild<QObject *>(QString::fromLatin1(dialogName));
        QVERIFY(dialog);
        QTRY_VERIFY(dialog->property("opened").toBool());
        QVERIFY(QMetaObject::invokeMethod(dialog, "confirmed"));
    }
    // One invoice in euros with its single line.
    void insert(const QString &number, const QString &status, QDate issued, std::optional<QDate> due, double net,
                double vat)
    {
        const QByteArray id =
            sql("INSERT INTO invoices (user_id, number, issued_at, due_at, currency, subtotal, vat_amount, total, "
                "status, client_name) VALUES ($1, $2, $3, $4, 'EUR', $5, $6, $7, $8, 'Hoekstra Design') RETURNING id",
                {store()->currentUserId().toUtf8(), number.toUtf8(), issued.toString(Qt::ISODate).toUtf8(),
                 due ? std::optional<QByteArray>(due->toString(Qt::ISODate).toUtf8()) : std::nullopt, QByteArray::number(net),
                 QByteArray::number(vat), QByteArray::number(net + vat), status.toUtf8()});
        QVERIFY(!id.isEmpty());
        sql("INSERT INTO invoice_lines (invoice_id, title, quantity, unit, unit_price, amount) "
            "VALUES ($1, 'Design work', 1, 'h', $2, $2)",
            {id, QByteArray::number(net)});
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_desktop = std::make_unique<DesktopWindow>(m_backend);
        m_tester = std::make_unique<QAbstractItemModelTester>(invoices()->rows(),
                                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
        QVERIFY(m_desktop->open());
        QVERIFY(m_desktop->signUp(u"ada@example.com"_s, u"Ada Lovelace"_s, u"EUR"_s, u"90"_s, u"Europe/Amsterdam"_s));
    }

    void cleanupTestCase()
    {
        m_tester.reset();
        m_desktop.reset();
    }

    void onlyTheBackendsLinksAreFollowed_data()
    {
        QTest::addColumn<QUrl>("link");
        QTest::addColumn<bool>("followed");
        QTest::newRow("its host over http") << QUrl(u"http://127.0.0.1:5432/storage/v1/object/sign/x.pdf?token=a"_s) << true;
        QTest::newRow("its host over https, other port") << QUrl(u"https://127.0.0.1/x.pdf"_s) << true;
        QTest::newRow("another host") << QUrl(u"https://example.com/x.pdf"_s) << false;
        QTest::newRow("a host that only begins alike") << QUrl(u"https://127.0.0.1.example.com/x.pdf"_s) << false;
        QTest::newRow("a local file") << QUrl(u"file:///etc/passwd"_s) << false;
        QTest::newRow("credentials in the link") << QUrl(u"https://user:pw@127.0.0.1/x.pdf"_s) << false;
    }

    void onlyTheBackendsLinksAreFollowed()
    {
        QFETCH(QUrl, link);
        QFETCH(bool, followed);
        QCOMPARE(InvoiceList::isBackendLink(link, QUrl(u"http://127.0.0.1:54321"_s)), followed);
        QVERIFY(!InvoiceList::isBackendLink(link, QUrl()));
    }

    void listSumsStatusVoidAndDelete()
    {
        m_desktop->showPage(u"invoices"_s);
        QTRY_VERIFY(item("invoicesView"));
        QTRY_VERIFY(item("invoicesEmpty")->isVisible());

        const QDate lastYear(m_today.year() - 1, 11, 20);
        insert(u"INV-001"_s, u"draft"_s, lastYear, lastYear.addDays(30), 40, 8.4);
        insert(u"INV-002"_s, u"sent"_s, m_today.addDays(-60), m_today.addDays(-30), 100, 21);
        insert(u"INV-003"_s, u"sent"_s, m_today.addDays(-5), m_today.addDays(25), 500, 105);
        insert(u"INV-004"_s, u"paid"_s, m_today.addDays(-40), m_today.addDays(-10), 200, 42);
        invoices()->reload();
        QTRY_COMPARE_WITH_TIMEOUT(invoices()->rows()->rowCount(), 4, patience);

        // Open: 121 + 605 sent and unpaid; overdue: only the 121 past its due date.
        QCOMPARE(invoices()->openText(), formatMoney(726, u"EUR"_s));
        QCOMPARE(invoices()->overdueText(), formatMoney(121, u"EUR"_s));
        QCOMPARE(item("invoicesOpen")->property("value").toString(), formatMoney(726, u"EUR"_s));
        QVERIFY(!item("invoicesEmpty")->isVisible());
        const QVariantMap overdue = invoices()->rows()->get(invoices()->rows()->indexOf(idOf(u"INV-002"_s)));
        QCOMPARE(overdue.value(u"total"_s).toString(), formatMoney(121, u"EUR"_s));
        QCOMPARE(overdue.value(u"vat"_s).toString(), formatMoney(21, u"EUR"_s));
        QCOMPARE(overdue.value(u"client"_s).toString(), u"Hoekstra Design"_s);
        QVERIFY(overdue.value(u"overdue"_s).toBool());
        QVERIFY(!invoices()->rows()->get(invoices()->rows()->indexOf(idOf(u"INV-003"_s))).value(u"overdue"_s).toBool());

        // The filters narrow the rows and the sums with them.
        invoices()->setYear(lastYear.year());
        QCOMPARE(invoices()->rows()->rowCount(), 1);
        QCOMPARE(invoices()->openText(), formatMoney(0, u"EUR"_s));
        invoices()->setYear(0);
        invoices()->setStatus(u"sent"_s);
        QCOMPARE(invoices()->rows()->rowCount(), 2);
        invoices()->setStatus(u"void"_s);
        QVERIFY(item("invoicesEmpty")->isVisible());
        invoices()->setStatus({});
        QCOMPARE(invoices()->years(), (QVariantList{m_today.year(), lastYear.year()}));

        choose(u"INV-002"_s);
        QTRY_VERIFY(item("invoiceActions")->isVisible());
        QVERIFY(m_desktop->shoot(u"invoices-list"_s));

        // A status change on the screen reaches the backend.
        choose(u"INV-003"_s);
        QVERIFY(QMetaObject::invokeMethod(item("invoiceStatus"), "chosen", Q_ARG(QString, u"paid"_s)));
        QTRY_COMPARE_WITH_TIMEOUT(statusOf(u"INV-003"_s), u"paid"_s, patience);
        QTRY_COMPARE(invoices()->openText(), formatMoney(121, u"EUR"_s));

        // Voided after the question; it is final, and the screen says so when asked to change it.
        choose(u"INV-002"_s);
        click("voidInvoice");
        confirm("confirmVoidInvoice");
        QTRY_COMPARE_WITH_TIMEOUT(statusOf(u"INV-002"_s), u"void"_s, patience);
        QTRY_VERIFY(item("invoiceVoidNote")->isVisible());
        QVERIFY(!item("invoiceStatus")->isVisible());
        QCOMPARE(invoices()->openText(), formatMoney(0, u"EUR"_s));
        QVERIFY(!invoices()->hasOverdue());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Update invoice status failed: "_s));
        invoices()->changeStatus(idOf(u"INV-002"_s), u"sent"_s);
        QTRY_COMPARE_WITH_TIMEOUT(invoices()->message(),
                                  u"This invoice is void. A void invoice cannot be changed back."_s, patience);
        QVERIFY(invoices()->messageIsError());
        QVERIFY(item("invoicesMessage")->isVisible());
        QCOMPARE(statusOf(u"INV-002"_s), u"void"_s);

        // The stored PDF: its signed link goes to the viewer, and a copy to a file picked here.
        const QByteArray pdf = "%PDF-1.4\n% invoice INV-004\n%%EOF\n";
        store()->replaceInvoicePDF(idOf(u"INV-004"_s), pdf);
        QTRY_VERIFY_WITH_TIMEOUT(store()->invoiceByNumber(u"INV-004"_s)->pdfPath.has_value(), patience);
        QUrl opened;
        invoices()->setUrlOpener([&](const QUrl &url) {
            opened = url;
            return true;
        });
        choose(u"INV-004"_s);
        QTRY_VERIFY(item("openInvoicePdf")->isEnabled());
        click("openInvoicePdf");
        QTRY_VERIFY_WITH_TIMEOUT(opened.isValid(), patience);
        QCOMPARE(opened.host(), m_backend.url().host());
        QTemporaryDir folder;
        const QString copy = folder.filePath(u"INV-004.pdf"_s);
        invoices()->savePdf(idOf(u"INV-004"_s), QUrl::fromLocalFile(copy));
        QTRY_VERIFY_WITH_TIMEOUT(invoices()->message().startsWith(u"Saved to"_s), patience);
        QFile saved(copy);
        QVERIFY(saved.open(QIODevice::ReadOnly));
        QCOMPARE(saved.readAll(), pdf);

        // Deleted after the question, with its lines.
        const QByteArray draftId = idOf(u"INV-001"_s).toUtf8();
        choose(u"INV-001"_s);
        click("deleteInvoice");
        confirm("confirmDeleteInvoice");
        QTRY_COMPARE_WITH_TIMEOUT(sql("SELECT count(*) FROM invoices WHERE number = 'INV-001'"), "0", patience);
        QCOMPARE(sql("SELECT count(*) FROM invoice_lines WHERE invoice_id = $1", {draftId}), "0");
        QTRY_COMPARE(invoices()->rows()->rowCount(), 3);
        QCOMPARE(invoices()->total(), 3);
    }
};

MORVANE_DESKTOP_TEST_MAIN(TestInvoicesView)

#include "tst_invoicesview.moc"
