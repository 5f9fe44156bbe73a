#include "backend/secretstore.h"
#include "i18n/language.h"
#include "pg/pgconnection.h"
#include "store/storedevice.h"
#include "support/testbackend.h"
#include "ui/accountantexportview.h"
#include "support/desktopwindow.h"
#include "ui/desktopshell.h"

#include <QApplication>
#include <QDir>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

using namespace Qt::StringLiterals;

namespace {
constexpr int patience = 20000;
}

// The export dialog in the real window over a real backend: opened from the palette's action, it
// saves the file the person chose and says so. The file's rows are tested in tests/store and
// through `morvane export` in tests/app.
class TestExport : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    QTemporaryDir m_dir;
    std::unique_ptr<DesktopWindow> m_desktop;
    DesktopShell *m_shell = nullptr;
    QQuickWindow *m_window = nullptr;

    void shoot(const QString &name) { QVERIFY(m_desktop->shoot(name)); }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_desktop = std::make_unique<DesktopWindow>(m_backend);
        m_shell = &m_desktop->shell();
        QVERIFY(m_desktop->open());
        m_window = m_desktop->window();
        QVERIFY(m_desktop->signUp(u"ada@example.com"_s));
    }

    void cleanupTestCase()
    {
        m_desktop.reset();
    }

    void thePaletteActionOpensTheDialogThatSavesTheFile()
    {
        const QByteArray user =
            m_backend.database().exec("SELECT id FROM auth.users WHERE email = 'ada@example.com'").value(0, 0);
        const QString from = AccountantExportView::previousMonthStart();
        m_backend.database().exec("INSERT INTO invoices (user_id, number, issued_at, currency, subtotal, vat_amount, "
                                  "total, status, client_name) VALUES ($1, '2026-0042', $2::date, 'CHF', 100, 8.1, "
                                  "108.1, 'sent', '=Zurich, \"Lake\" AG')",
                                  {user, from.toUtf8()});

        QVERIFY(QMetaObject::invokeMethod(m_window, "runAction", Q_ARG(QVariant, u"accountantExport"_s)));
        auto *dialog = m_window->findChild<QObject *>(u"exportDialog"_s);
        QVERIFY(dialog);
        QTRY_VERIFY(dialog->property("opened").toBool());
        // The month before this one, ready to save.
        auto *fromField = m_window->findChild<QQuickItem *>(u"exportFrom"_s);
        auto *toField = m_window->findChild<QQuickItem *>(u"exportTo"_s);
        QCOMPARE(fromField->property("text").toString(), from);
        QCOMPARE(toField->property("text").toString(), AccountantExportView::previousMonthEnd());
        QVERIFY(m_window->findChild<QQuickItem *>(u"exportSave"_s)->isEnabled());

        // What the file dialog hands over on Save goes to the dialog's exporter.
        dialog->setProperty("kind", u"invoices"_s);
        auto *exporter = dialog->findChild<AccountantExportView *>();
        QVERIFY(exporter);
        QSignalSpy finished(exporter, &AccountantExportView::finished);
        const QString path = m_dir.filePath(u"invoices.csv"_s);
        exporter->save(u"invoices"_s, from, AccountantExportView::previousMonthEnd(), QUrl::fromLocalFile(path));
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, patience);
        QCOMPARE(finished.first().first().toBool(), true);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), "number,issue_date,due_date,client,status,net,vat,total,currency\r\n2026-0042," +
                                     from.toUtf8() + ",,\"'=Zurich, \"\"Lake\"\" AG\",sent,100.00,8.10,108.10,CHF\r\n");
        QCOMPARE(m_window->findChild<QQuickItem *>(u"exportMessage"_s)->property("text").toString(),
                 u"Saved %1 (rows: 1)."_s.arg(path));
        shoot(u"export-saved"_s);

        // A period that is not one keeps Save off and says why, instead of the earlier outcome.
        toField->setProperty("text", u"2020-01-01"_s);
        QVERIFY(!m_window->findChild<QQuickItem *>(u"exportSave"_s)->isEnabled());
        QVERIFY(!m_window->findChild<QQuickItem *>(u"exportMessage"_s)->isVisible());
        shoot(u"export-bad-period"_s);
    }
};

MORVANE_DESKTOP_TEST_MAIN(TestExport)

#include "tst_export.moc"
