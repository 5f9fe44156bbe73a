#include "backend/secretstore.h"
#include "i18n/language.h"
#include "pg/pgconnection.h"
#include "store/storedevice.h"
#include "support/testbackend.h"
#include "support/desktopwindow.h"
#include "ui/desktopshell.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QDir>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

using namespace Qt::StringLiterals;

namespace {
constexpr int patience = 20000;
} // namespace

// The clients screen in the real window over a real backend: a client added, changed and deleted
// through the form arrives in the store and the backend.
class TestClientsView : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    std::unique_ptr<DesktopWindow> m_desktop;
    DesktopShell *m_shell = nullptr;
    QQuickWindow *m_window = nullptr;
    std::unique_ptr<QAbstractItemModelTester> m_tester;

    AppStore *store() const { return m_shell->store(); }
    ClientList *clients() const { return m_shell->workspace()->clients(); }
    QObject *item(const char *name) const { return m_window->findChild<QObject *>(QString::fromLatin1(name)); }
    QString column(const char *name, const QString &clientName)
    {
        return QString::fromUtf8(m_backend.database()
                                     .exec("SELECT coalesce(" + QByteArray(name) +
                                               "::text, 'NULL') FROM clients WHERE name = $1",
                                           {clientName.toUtf8()})
                                     .value(0, 0));
    }
    void type(const char *field, const QString &text) { QVERIFY(item(field)->setProperty("text", text)); }
    void click(const char *button) { QVERIFY(QMetaObject::invokeMethod(item(button), "clicked")); }

    void shoot(const QString &name) { QVERIFY(m_desktop->shoot(name)); }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_desktop = std::make_unique<DesktopWindow>(m_backend);
        m_shell = &m_desktop->shell();
        m_tester = std::make_unique<QAbstractItemModelTester>(clients()->rows(),
                                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
        QVERIFY(m_desktop->open());
        m_window = m_desktop->window();
        QVERIFY(m_desktop->signUp(u"ada@example.com"_s, u"Ada Lovelace"_s, u"EUR"_s, u"90"_s, u"Europe/Amsterdam"_s));
    }

    void cleanupTestCase()
    {
        m_tester.reset();
        m_desktop.reset();
    }

    void addEditAndDeleteAClient()
    {
        m_desktop->showPage(u"clients"_s);
        QTRY_VERIFY(item("clientsView"));
        QTRY_VERIFY(item("clientsEmpty")->property("visible").toBool());
        shoot(u"clients-empty"_s);

        // Added through the form; the blanks are typing slips.
        click("newClient");
        QTRY_VERIFY(item("clientForm")->property("visible").toBool());
        type("clientName", u"  Hoekstra Design "_s);
        type("clientEmail", u"bill@hoekstra.nl"_s);
        type("clientAddress", u"Prinsengracht 263\n1016 GV Amsterdam"_s);
        type("clientVat", u"NL001234567B01"_s);
        click("saveClient");
        QTRY_COMPARE_WITH_TIMEOUT(store()->clients().size(), 1, patience);
        QCOMPARE(store()->clients().first().name, u"Hoekstra Design"_s);
        QCOMPARE(column("address", u"Hoekstra Design"_s), u"Prinsengracht 263\n1016 GV Amsterdam"_s);
        QCOMPARE(column("kvk", u"Hoekstra Design"_s), u"NULL"_s);
        // The new client stays in the form, now to be edited.
        QTRY_COMPARE(item("clientsView")->property("selectedId").toString(), store()->clients().first().id);

        // Edited: the e-mail emptied, the chamber-of-commerce number added.
        type("clientEmail", QString());
        type("clientKvk", u"12345678"_s);
        click("saveClient");
        QTRY_COMPARE_WITH_TIMEOUT(column("kvk", u"Hoekstra Design"_s), u"12345678"_s, patience);
        QCOMPARE(column("email", u"Hoekstra Design"_s), u"NULL"_s);
        QTRY_VERIFY(!store()->clients().first().email.has_value());

        QString previous = item("clientsView")->property("selectedId").toString();
        for (const QString &name : {u"Atelier Noord"_s, u"Zuidas Legal"_s}) {
            click("newClient");
            type("clientName", name);
            type("clientEmail", u"office@"_s + name.split(u' ').first().toLower() + u".nl"_s);
            type("clientVat", u"NL00987654B02"_s);
            click("saveClient");
            QTRY_VERIFY_WITH_TIMEOUT(item("clientsView")->property("selectedId").toString() != previous, patience);
            previous = item("clientsView")->property("selectedId").toString();
        }
        QTRY_COMPARE(clients()->rows()->rowCount(), 3);
        QCOMPARE(clients()->rows()->get(0).value(u"name"_s).toString(), u"Atelier Noord"_s);
        QCOMPARE(column("email", u"Zuidas Legal"_s), u"office@zuidas.nl"_s);
        QVERIFY(QMetaObject::invokeMethod(item("clientsView"), "choose",
                                          Q_ARG(QVariant, clients()->rows()->get(1).value(u"id"_s))));
        QCOMPARE(item("clientAddress")->property("text").toString(), u"Prinsengracht 263\n1016 GV Amsterdam"_s);
        shoot(u"clients-list"_s);

        // The search narrows by e-mail too; a miss says so.
        clients()->setSearch(u"HOEKSTRA"_s);
        QCOMPARE(clients()->rows()->rowCount(), 1);
        clients()->setSearch(u"nobody"_s);
        QCOMPARE(clients()->rows()->rowCount(), 0);
        QVERIFY(item("clientsEmpty")->property("visible").toBool());
        clients()->setSearch({});

        // Deleted after the question; the backend keeps it archived for the invoices.
        QVERIFY(QMetaObject::invokeMethod(item("clientsView"), "choose",
                                          Q_ARG(QVariant, store()->clients().last().id)));
        click("deleteClient");
        QObject *dialog = item("confirmDeleteClient");
        QTRY_VERIFY(dialog->property("opened").toBool());
        QVERIFY(QMetaObject::invokeMethod(dialog, "confirmed"));
        QTRY_COMPARE_WITH_TIMEOUT(store()->clients().size(), 2, patience);
        QCOMPARE(column("archived", u"Zuidas Legal"_s), u"true"_s);
        QTRY_COMPARE(clients()->rows()->rowCount(), 2);
        QVERIFY(!item("clientForm")->property("visible").toBool());
    }
};

MORVANE_DESKTOP_TEST_MAIN(TestClientsView)

#include "tst_clientsview.moc"
