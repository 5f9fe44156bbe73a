#include "support/morvanecli.h"
#include "support/outsideprovider.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QUrlQuery>

using namespace Qt::StringLiterals;

// `morvane auth signin --provider` as a person meets it: the program sends them to the browser,
// and the browser comes back either through the application's own address scheme (on a desktop)
// or to a loopback address (on a machine without one).
class TestBrowserSignIn : public QObject
{
    Q_OBJECT

private:
    OutsideProvider m_provider;
    TestBackend m_backend{m_provider.backendArguments()};

    // Reads the program's messages until it names the address to open in the browser.
    static QUrl addressToOpen(QProcess &process)
    {
        static const QRegularExpression goTo(u"go to: (\\S+)"_s);
        QString seen;
        process.setReadChannel(QProcess::StandardError);
        while (process.state() == QProcess::Running && process.waitForReadyRead(15000)) {
            seen += QString::fromUtf8(process.readAllStandardError());
            const QRegularExpressionMatch match = goTo.match(seen);
            if (match.hasMatch()) {
                return QUrl::fromEncoded(match.captured(1).toUtf8());
            }
        }
        qWarning() << "no address in" << seen;
        return {};
    }

    // The command line the desktop runs for an address of the scheme, from the entry the program
    // registered: its Exec line with the address in place of %u.
    static QStringList handlerCommand(const MorvaneCli &person, const QUrl &address)
    {
        QFile entry(person.homeFile(u"data/applications/morvane.desktop"_s));
        entry.open(QIODevice::ReadOnly);
        static const QRegularExpression exec(u"^Exec=(.*)$"_s, QRegularExpression::MultilineOption);
        QStringList command = QProcess::splitCommand(exec.match(QString::fromUtf8(entry.readAll())).captured(1));
        return command.replaceInStrings(u"%u"_s, QString::fromUtf8(address.toEncoded()));
    }

private slots:
    void initTestCase() { QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog())); }

    void onADesktopTheSchemeBringsTheBrowserBack()
    {
        MorvaneCli person(m_backend);
        // A desktop: a display and an opener of addresses (here one that opens nothing, since the
        // test plays the browser itself).
        QTemporaryDir bin;
        QFile opener(bin.filePath(u"xdg-open"_s));
        QVERIFY(opener.open(QIODevice::WriteOnly));
        opener.write("#!/bin/sh\nexit 0\n");
        opener.close();
        opener.setPermissions(opener.permissions() | QFile::ExeOwner);
        QProcessEnvironment environment = person.environment();
        environment.insert(u"DISPLAY"_s, u":0"_s);
        environment.insert(u"PATH"_s, bin.path() + u':' + environment.value(u"PATH"_s));

        // Nothing waits yet: an address of the scheme has nowhere to go.
        QCOMPARE(MorvaneCli::finish(*person.start({u"morvane://auth-callback?code=early"_s}, environment)).err,
                 u"No sign-in is waiting for this address. Start the sign-in in Morvane again.\n"_s);

        const std::unique_ptr<QProcess> signIn = person.start(u"auth signin --provider idp"_s.split(u' '), environment);
        const QUrl authorize = addressToOpen(*signIn);
        QCOMPARE(QUrlQuery(authorize).queryItemValue(u"redirect_to"_s, QUrl::FullyDecoded),
                 u"morvane://auth-callback"_s);

        const QUrl landing = OutsideProvider::landingOf(authorize);

        // The desktop runs the registered handler, which hands the address to the waiting sign-in.
        QFile mimeApps(person.homeFile(u"config/mimeapps.list"_s));
        QVERIFY(mimeApps.open(QIODevice::ReadOnly));
        QVERIFY(mimeApps.readAll().contains("x-scheme-handler/morvane=morvane.desktop;"));
        const QStringList command = handlerCommand(person, landing);
        QVERIFY(!command.isEmpty());
        QProcess handler;
        handler.setProcessEnvironment(environment);
        handler.start(command.first(), command.mid(1));
        QVERIFY(handler.waitForFinished(15000));
        QCOMPARE(handler.exitCode(), 0);

        QCOMPARE(MorvaneCli::finish(*signIn).out, u"Signed in as pia@example.nl.\n"_s);
        QCOMPARE(person(u"auth status"_s).out, u"Signed in as pia@example.nl.\n"_s);
    }

    void withoutADesktopALoopbackAddressIsUsed()
    {
        MorvaneCli person(m_backend);
        QProcessEnvironment environment = person.environment();
        environment.remove(u"DISPLAY"_s);
        environment.remove(u"WAYLAND_DISPLAY"_s);
        const std::unique_ptr<QProcess> signIn = person.start(u"auth signin --provider idp"_s.split(u' '), environment);
        const QUrl authorize = addressToOpen(*signIn);
        const QUrl redirect(QUrlQuery(authorize).queryItemValue(u"redirect_to"_s, QUrl::FullyDecoded));
        QCOMPARE(redirect.host(), u"127.0.0.1"_s);

        const QUrl landing = OutsideProvider::landingOf(authorize);
        QCOMPARE(landing.port(), redirect.port());
        QVERIFY(OutsideProvider::get(landing).contains("You are signed in to Morvane."));
        QCOMPARE(MorvaneCli::finish(*signIn).out, u"Signed in as pia@example.nl.\n"_s);
        // No desktop, so nothing was registered with one.
        QVERIFY(!QFile::exists(person.homeFile(u"data/applications/morvane.desktop"_s)));
    }
};

QTEST_GUILESS_MAIN(TestBrowserSignIn)
#include "tst_browsersignin.moc"
