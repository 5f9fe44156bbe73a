#include "desktopwindow.h"

#include "backend/secretstore.h"
#include "i18n/language.h"
#include "invoicing/pdf/invoicepdfrenderer.h"
#include "ui/desktopapp.h"

#include <QApplication>
#include <QDir>
#include <QQuickStyle>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Morvane_UiPlugin)

using namespace Qt::StringLiterals;

namespace {
constexpr int patience = 20000;
}

DesktopWindow::DesktopWindow(const TestBackend &backend, std::function<void(DesktopShell::Options &)> adjust)
{
    DesktopShell::Options options;
    const Config config{backend.url(), QString::fromLatin1(backend.anonKey())};
    options.backend = [config]() -> QCoro::Task<Config> { co_return config; };
    const QString secrets = m_dir.filePath(u"secrets.json"_s);
    options.secrets = [secrets]() -> QCoro::Task<std::shared_ptr<SecretStore>> { co_return SecretStore::file(secrets); };
    options.settings = std::make_shared<QSettings>(m_dir.filePath(u"morvane.conf"_s), QSettings::IniFormat);
    options.followDesktopScheme = false;
    if (adjust) {
        adjust(options);
    }
    m_shell = std::make_unique<DesktopShell>(options);
    m_shell->setColorScheme(u"light"_s);
    DesktopShell::setInstance(m_shell.get());
}

DesktopWindow::~DesktopWindow()
{
    m_engine.reset();
    m_shell.reset();
}

bool DesktopWindow::open()
{
    QQuickStyle::setStyle(u"Basic"_s);
    m_engine = std::make_unique<QQmlApplicationEngine>();
    DesktopApp::prepareEngine(*m_engine);
    m_shell->setEngine(m_engine.get());
    m_engine->load(QUrl(u"qrc:/Morvane/Ui/Main.qml"_s));
    if (m_engine->rootObjects().size() != 1) {
        qWarning("the window did not load");
        return false;
    }
    m_window = qobject_cast<QQuickWindow *>(m_engine->rootObjects().first());
    if (!m_window) {
        return false;
    }
    m_window->resize(1280, 800);
    m_shell->start();
    return true;
}

bool DesktopWindow::signUp(const QString &email, const QString &name, const QString &currency, const QString &rate,
                           const QString &timeZone)
{
    if (!QTest::qWaitFor([&] { return m_shell->phase() == DesktopShell::SignedOut; }, patience)) {
        return false;
    }
    m_shell->signUp(email, QString::fromLatin1(password), name, u"en"_s, currency, rate, timeZone);
    return QTest::qWaitFor(
        [&] { return m_shell->phase() == DesktopShell::Ready && store()->lastRefreshedAt().isValid(); }, patience);
}

QQuickItem *DesktopWindow::item(const QString &name) const
{
    QList<QQuickItem *> items{m_window->contentItem()};
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (items.at(i)->objectName() == name) {
            return items.at(i);
        }
        items << items.at(i)->childItems();
    }
    return m_window->findChild<QQuickItem *>(name);
}

void DesktopWindow::showPage(const QString &page) const
{
    if (QQuickItem *main = item(u"mainView"_s)) {
        main->setProperty("page", page);
    }
}

bool DesktopWindow::shoot(const QString &name, QQuickWindow *other) const
{
    QQuickWindow *window = other ? other : m_window;
    const QString folder = QCoreApplication::applicationDirPath() + u"/screenshots"_s;
    QDir().mkpath(folder);
    const QString language = m_shell->language();
    bool saved = true;
    for (const QString &code : {u"en"_s, u"ja"_s}) {
        m_shell->setLanguage(code);
        for (const QString &scheme : {u"light"_s, u"dark"_s}) {
            m_shell->setColorScheme(scheme);
            QTest::qWait(50);
            const QImage image = window->grabWindow();
            saved = saved && !image.isNull() &&
                    image.save(folder + u'/' + name + u'-' + code + u'-' + scheme + u".png"_s);
        }
    }
    m_shell->setLanguage(language);
    m_shell->setColorScheme(u"light"_s);
    return saved;
}

int runDesktopTest(int argc, char *argv[], const std::function<int(int, char **)> &run)
{
    qputenv("QT_QUICK_BACKEND", "software");
    // The window keeps its sizes and choices in the user's settings; the test's go with it.
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    InvoicePdfRenderer::prepareEnvironment();
    QApplication app(argc, argv);
    QApplication::setOrganizationName(u"morvane"_s);
    QApplication::setApplicationName(u"morvane"_s);
    QApplication::setFont(QFont(u"Inter"_s, 10));
    Language::apply(u"en"_s);
    return run(argc, argv);
}
