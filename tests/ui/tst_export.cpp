#include "backend/secretstore.h"
#include "i18n/language.h"
#include "pg/pgconnection.h"
#include "store/storedevice.h"
#include "support/testbackend.h"
#include "ui/accountantexportview.h"
#include "ui/desktopapp.h"
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

Q_IMPORT_QML_PLUGIN(Morvane_UiPlugin)

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
    std::unique_ptr<DesktopShell> m_shell;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow *m_window = nullptr;

    void shoot(const QString &name)
    {
        const QString folder = QCoreApplication::applicationDirPath() + u"/screenshots"_s;
        QDir().mkpath(folder);
        for (const QString &code : {u"en"_s, u"ja"_s}) {
            m_shell->setLanguage(code);
            for (const QString &scheme : {u"light"_s, u"dark"_s}) {
                m_shell->setColorScheme(scheme);
                QTest::qWait(50);
                const QImage image = m_window->grabWindow();
                QVERIFY(!image.isNull());
                QVERIFY(image.save(folder + u'/' + name + u'-' + code + u'-' + scheme + u".png"_s));
            }
        }
        m_shell->setLanguage(u"en"_s);
        m_shell->setColorScheme(u"light"_s);
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        DesktopShell::Options options;
        const Config config{m_backend.url(), QString::fromLatin1(m_backend.anonKey())};
        options.backend = [config]() -> QCoro::Task<Config> { co_return config; };
        const QString secrets = m_dir.filePath(u"secrets.json"_s);
        options.secrets = [secrets]() -> QCoro::Task<std::shared_ptr<SecretStore>> {
            co_return SecretStore::file(secrets);
        };
        options.settings = std::make_shared<QSettings>(m_dir.filePath(u"morvane.conf"_s), QSettings::IniFormat);
        options.followDesktopScheme = false;
        m_shell = std::make_unique<DesktopShell>(options);
        m_shell->setColorScheme(u"light"_s);
        DesktopShell::setInstance(m_shell.get());
        QQuickStyle::setStyle(u"Basic"_s);
        m_engine = std::make_unique<QQmlApplicationEngine>();
        DesktopApp::prepareEngine(*m_engine);
        m_shell->setEngine(m_engine.get());
        m_engine->load(QUrl(u"qrc:/Morvane/Ui/Main.qml"_s));
        QCOMPARE(m_engine->rootObjects().size(), 1);
        m_window = qobject_cast<QQuickWindow *>(m_engine->rootObjects().first());
        QVERIFY(m_window);
        m_shell->start();
        QTRY_COMPARE_WITH_TIMEOUT(m_shell->phase(), DesktopShell::SignedOut, patience);
        m_shell->signUp(u"ada@example.com"_s, QString::fromLatin1(StoreDevice::password), u"Ada Lovelace"_s, u"en"_s,
                        u"CHF"_s, u"95,50"_s, u"Europe/Zurich"_s);
        QTRY_COMPARE_WITH_TIMEOUT(m_shell->phase(), DesktopShell::Ready, patience);
    }

    void cleanupTestCase()
    {
        m_engine.reset();
        m_shell.reset();
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

int main(int argc, char *argv[])
{
    qputenv("QT_QUICK_BACKEND", "software");
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    QApplication app(argc, argv);
    QApplication::setOrganizationName(u"morvane"_s);
    QApplication::setApplicationName(u"morvane"_s);
    QApplication::setFont(QFont(u"Inter"_s, 10));
    Language::apply(u"en"_s);
    TestExport test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_export.moc"
