#include "app/commandline.h"
#include "app/renderinvoice.h"
#include "i18n/language.h"
#include "ui/desktopapp.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QTextStream>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Morvane_UiPlugin)

int main(int argc, char *argv[])
{
    // Without a command, the window; with one, the command line, which starts no QML engine.
    if (DesktopApp::wanted(argc, argv)) {
        return DesktopApp::run(argc, argv);
    }
    // Only rendering an invoice needs a GUI application (for the web engine); nothing else pays for it.
    const std::unique_ptr<QCoreApplication> app = RenderInvoiceCommand::requested(argc, argv)
                                                      ? RenderInvoiceCommand::makeApplication(argc, argv)
                                                      : std::make_unique<QCoreApplication>(argc, argv);
    // The command line speaks in its messages; the library's notes stay out of the way unless
    // QT_LOGGING_RULES asks for them.
    // The same for the web engine, which describes its set-up at length on every start.
    QLoggingCategory::setFilterRules(
        QStringLiteral("morvane.*.debug=false\nmorvane.*.info=false\nqt.webenginecontext.info=false"));
    QCoreApplication::setOrganizationName(QStringLiteral("morvane"));
    QCoreApplication::setApplicationName(QStringLiteral("morvane"));
    QCoreApplication::setApplicationVersion(QStringLiteral(MORVANE_VERSION));
    Language::apply();

    QTextStream out(stdout);
    QTextStream err(stderr);
    return runCommandLine(QCoreApplication::arguments(), out, err);
}
