#include "desktopapp.h"

#include "backend/urlscheme.h"
#include "i18n/language.h"
#include "invoicing/pdf/invoicepdfrenderer.h"
#include "ui/desktopshell.h"
#include "ui/globalshortcut.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLoggingCategory>
#include <QQmlApplicationEngine>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace DesktopApp {

namespace {

// The name the running window listens under, private to the user.
QString instanceName()
{
    return u"morvane-window-"_s + qEnvironmentVariable("USER", u"user"_s);
}

// Hands the arguments to a window that runs already; answers whether one took them.
bool handOver(const QStringList &arguments)
{
    QLocalSocket socket;
    socket.connectToServer(instanceName());
    if (!socket.waitForConnected(500)) {
        return false;
    }
    socket.write((arguments.mid(1).join(u'\n') + u"\n\n"_s).toUtf8());
    socket.waitForBytesWritten(1000);
    socket.disconnectFromServer();
    return true;
}

} // namespace

void prepareEngine(QQmlEngine &engine)
{
    // The module's files sit under qrc:/Morvane/Ui, which Qt 6.4 does not search by itself.
    engine.addImportPath(u"qrc:/"_s);
}

bool wanted(int argc, char *argv[])
{
    return argc == 1 || (argc == 2 && QByteArray(argv[1]) == "--window");
}

int run(int argc, char *argv[])
{
    InvoicePdfRenderer::prepareEngine();
    QApplication app(argc, argv);
    QApplication::setOrganizationName(u"morvane"_s);
    QApplication::setApplicationName(u"morvane"_s);
    QApplication::setApplicationDisplayName(u"Morvane"_s);
    QApplication::setApplicationVersion(QStringLiteral(MORVANE_VERSION));
    QApplication::setDesktopFileName(u"morvane"_s);
    QApplication::setWindowIcon(QIcon(u":/Morvane/Ui/icons/morvane.svg"_s));
    // Closing the window keeps the tray and the floating timer; quitting is explicit.
    QApplication::setQuitOnLastWindowClosed(false);
    QLoggingCategory::setFilterRules(u"morvane.*.debug=false"_s);
    Language::apply();

    if (handOver(QApplication::arguments())) {
        return 0;
    }
    QLocalServer instance;
    QLocalServer::removeServer(instanceName());
    instance.setSocketOptions(QLocalServer::UserAccessOption);
    instance.listen(instanceName());

    QQuickStyle::setStyle(u"Basic"_s);
    QFont font(u"Inter"_s);
    font.setPixelSize(13);
    QApplication::setFont(font);

    DesktopShell shell(DesktopShell::Options{});
    DesktopShell::setInstance(&shell);
    QQmlApplicationEngine engine;
    prepareEngine(engine);
    shell.setEngine(&engine);
    QObject::connect(&instance, &QLocalServer::newConnection, &shell, [&] {
        while (QLocalSocket *socket = instance.nextPendingConnection()) {
            QObject::connect(socket, &QLocalSocket::readyRead, socket, [socket, &shell] {
                // A handover is a few addresses; anything longer is not one of ours.
                constexpr qint64 handoverLimit = 1 << 16;
                if (!socket->peek(handoverLimit).contains("\n\n")) {
                    if (socket->bytesAvailable() >= handoverLimit) {
                        socket->abort();
                    }
                    return;
                }
                for (const QByteArray &line : socket->readAll().split('\n')) {
                    const QUrl url(QString::fromUtf8(line.trimmed()));
                    if (url.scheme() == UrlScheme::scheme) {
                        shell.handleUrl(url);
                    }
                }
                shell.activate();
                socket->deleteLater();
            });
            QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        }
    });
    engine.load(QUrl(u"qrc:/Morvane/Ui/Main.qml"_s));
    if (engine.rootObjects().isEmpty()) {
        return 1;
    }
    shell.start();
    // Off X11 the person binds `morvane timer toggle` in the desktop's keyboard settings instead.
    GlobalShortcut shortcut;
    QObject::connect(&shortcut, &GlobalShortcut::activated, &shell, [&shell] { shell.workspace()->toggleTimer({}); });
    shortcut.setShortcut(QKeySequence(u"Ctrl+Alt+Space"_s));
    return QApplication::exec();
}

} // namespace DesktopApp
