#include "pg/pgconnection.h"
#include "support/morvanecli.h"
#include "support/testbackend.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

// `morvane auth ...` as a person runs it: separate invocations that share the session through the
// secrets the application keeps, against a real backend.
class TestAuthCommands : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    MorvaneCli morvane{m_backend};
    using Run = MorvaneCli::Run;

private slots:
    void initTestCase() { QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog())); }

    void aSessionLastsAcrossInvocations()
    {
        Run run = morvane({u"auth"_s, u"signup"_s, u"cli@example.nl"_s, u"--name"_s, u"Cleo"_s}, "terminal secret\n");
        QCOMPARE(run.code, 0);
        QCOMPARE(run.out, u"Signed in as cli@example.nl.\n"_s);
        QCOMPARE(
            m_backend.database().exec("SELECT display_name FROM profiles WHERE email = 'cli@example.nl'").value(0, 0),
            "Cleo");

        run = morvane({u"auth"_s, u"status"_s, u"--json"_s});
        QCOMPARE(run.code, 0);
        const QJsonObject status = QJsonDocument::fromJson(run.out.toUtf8()).object();
        QCOMPARE(status.value(u"signed_in"_s).toBool(), true);
        QCOMPARE(status.value(u"email"_s).toString(), u"cli@example.nl"_s);

        // The secrets file is the user's alone.
        const QString secrets = morvane.homeFile(u"config/morvane/secrets.json"_s);
        QVERIFY(QFile::exists(secrets));
        QCOMPARE(QFile::permissions(secrets) &
                     (QFile::ReadOther | QFile::ReadGroup | QFile::WriteOther | QFile::WriteGroup),
                 QFile::Permissions());

        QCOMPARE(morvane({u"auth"_s, u"signout"_s}).out, u"Signed out.\n"_s);
        run = morvane({u"auth"_s, u"status"_s});
        QCOMPARE(run.code, 1);
        QCOMPARE(run.out, u"Not signed in.\n"_s);
    }

    void wrongPasswordsAndSwitching()
    {
        Run run = morvane({u"auth"_s, u"signin"_s, u"cli@example.nl"_s}, "not it\n");
        QCOMPARE(run.code, 1);
        QCOMPARE(run.err, u"The e-mail address or the password is not right.\n"_s);

        QCOMPARE(morvane({u"auth"_s, u"signin"_s, u"cli@example.nl"_s}, "terminal secret\n").code, 0);
        QCOMPARE(morvane({u"auth"_s, u"signup"_s, u"second@example.nl"_s}, "second secret\n").code, 0);
        run = morvane({u"auth"_s, u"accounts"_s, u"--json"_s});
        const QJsonArray accounts = QJsonDocument::fromJson(run.out.toUtf8()).array();
        QCOMPARE(accounts.size(), 2);
        QCOMPARE(accounts.first().toObject().value(u"email"_s).toString(), u"second@example.nl"_s);
        QVERIFY(accounts.first().toObject().value(u"current"_s).toBool());

        run = morvane({u"auth"_s, u"switch"_s, u"CLI@example.nl"_s});
        QCOMPARE(run.code, 0);
        QCOMPARE(run.out, u"Signed in as cli@example.nl.\n"_s);
        QCOMPARE(morvane({u"auth"_s, u"switch"_s, u"stranger@example.nl"_s}).code, 1);
        QCOMPARE(morvane({u"auth"_s, u"accounts"_s}).out, u"* cli@example.nl\n  second@example.nl\n"_s);
        QCOMPARE(morvane({u"auth"_s, u"fly"_s}).code, 2);
    }
};

QTEST_GUILESS_MAIN(TestAuthCommands)
#include "tst_authcommands.moc"
