#include "support/localservers.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Run
{
    int code = -1;
    QByteArray out;
    QString err;

    [[nodiscard]] QJsonObject json() const { return QJsonDocument::fromJson(out).object(); }
};

// The real `morvane` program as a user runs it, with a home of its own: its data and settings
// folders are throw-away ones, and it finds morvane-server the way it does in the build tree.
class Home
{
public:
    Home() = default;

    // Where the program keeps the local server's data under XDG_DATA_HOME.
    [[nodiscard]] QString dataDir() const { return m_scratch.path(); }

    Run morvane(const QStringList &arguments, const QList<std::pair<QString, QString>> &extraEnvironment = {}) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"SUPABASE_URL"_s);
        environment.remove(u"SUPABASE_ANON_KEY"_s);
        environment.remove(u"LANGUAGE"_s);
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        environment.insert(u"XDG_DATA_HOME"_s, m_scratch.base() + u"/data"_s);
        environment.insert(u"XDG_CONFIG_HOME"_s, m_scratch.base() + u"/config"_s);
        environment.insert(u"MORVANE_SERVER_PORT"_s, u"0"_s);
        for (const auto &[name, value] : extraEnvironment) {
            environment.insert(name, value);
        }
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(MORVANE_APP_PROGRAM), arguments);
        Run run;
        if (!process.waitForFinished(150000) || process.exitStatus() != QProcess::NormalExit) {
            return run;
        }
        run.code = process.exitCode();
        run.out = process.readAllStandardOutput();
        run.err = QString::fromUtf8(process.readAllStandardError());
        return run;
    }

private:
    // Its clean-up stops whatever server the program left on the data folder.
    ScratchServerDir m_scratch{u"data/morvane/server"_s};
};

} // namespace

class TestServerCommand : public QObject
{
    Q_OBJECT

private slots:
    void lookingStartsNothing_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::newRow("config") << QStringList{u"config"_s} << 0;
        QTest::newRow("config --json") << QStringList{u"config"_s, u"--json"_s} << 0;
        QTest::newRow("help") << QStringList{u"--help"_s} << 0;
        QTest::newRow("version") << QStringList{u"--version"_s} << 0;
        QTest::newRow("server status") << QStringList{u"server"_s, u"status"_s} << 3;
        QTest::newRow("server status --json") << QStringList{u"server"_s, u"status"_s, u"--json"_s} << 3;
        QTest::newRow("server stop") << QStringList{u"server"_s, u"stop"_s} << 0;
    }

    void lookingStartsNothing()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        const Home home;
        const Run run = home.morvane(arguments);
        QCOMPARE(run.code, code);
        QVERIFY2(run.err.isEmpty(), qPrintable(run.err));
        // A start leaves its traces: the server's log, written before it runs, and its lock.
        QVERIFY(!QFile::exists(home.dataDir() + u"/morvane-server.log"_s));
        QVERIFY(!QFile::exists(home.dataDir() + u"/morvane-server.lock"_s));
        QVERIFY(serversOn(home.dataDir()).isEmpty());
    }

    void startStatusStopAsJson()
    {
        const Home home;
        const Run before = home.morvane({u"server"_s, u"status"_s, u"--json"_s});
        QCOMPARE(before.code, 3);
        QCOMPARE(before.json().value(u"state"_s).toString(), u"stopped"_s);
        QCOMPARE(before.json().value(u"running"_s).toBool(true), false);
        QVERIFY(before.json().value(u"pid"_s).isNull());
        QCOMPARE(before.json().value(u"data_dir"_s).toString(), home.dataDir());

        const Run start = home.morvane({u"server"_s, u"start"_s, u"--json"_s});
        QCOMPARE(start.code, 0);
        QVERIFY2(start.err.isEmpty(), qPrintable(start.err));
        QCOMPARE(start.json().value(u"started"_s).toBool(), true);
        const auto pid = qint64(start.json().value(u"pid"_s).toDouble());
        const QString url = start.json().value(u"url"_s).toString();
        // The program that started it has ended; the server has not.
        QCOMPARE(serversOn(home.dataDir()), QList<qint64>{pid});

        const Run running = home.morvane({u"server"_s, u"status"_s, u"--json"_s});
        QCOMPARE(running.code, 0);
        QCOMPARE(running.json().value(u"state"_s).toString(), u"running"_s);
        QCOMPARE(qint64(running.json().value(u"pid"_s).toDouble()), pid);
        QCOMPARE(running.json().value(u"url"_s).toString(), url);
        QCOMPARE(running.json().value(u"in_use"_s).toBool(), true);

        // What the application will talk to is that server, and it answers with that key.
        const Run config = home.morvane({u"config"_s, u"--json"_s});
        QCOMPARE(config.json().value(u"url"_s).toString(), url);
        const QString failure = accountWorks(QUrl(url), config.json().value(u"anon_key"_s).toString());
        QVERIFY2(failure.isEmpty(), qPrintable(failure));

        const Run again = home.morvane({u"server"_s, u"start"_s, u"--json"_s});
        QCOMPARE(again.json().value(u"started"_s).toBool(true), false);
        QCOMPARE(qint64(again.json().value(u"pid"_s).toDouble()), pid);

        const Run stop = home.morvane({u"server"_s, u"stop"_s, u"--json"_s});
        QCOMPARE(stop.code, 0);
        QCOMPARE(stop.json().value(u"stopped"_s).toBool(), true);
        QCOMPARE(qint64(stop.json().value(u"pid"_s).toDouble()), pid);
        QVERIFY(serversOn(home.dataDir()).isEmpty());
        QVERIFY(!QFile::exists(home.dataDir() + u"/postgres/postmaster.pid"_s));

        const Run stopAgain = home.morvane({u"server"_s, u"stop"_s, u"--json"_s});
        QCOMPARE(stopAgain.code, 0);
        QCOMPARE(stopAgain.json().value(u"stopped"_s).toBool(true), false);
        QVERIFY(stopAgain.json().value(u"pid"_s).isNull());
    }

    void statusInWords_data()
    {
        QTest::addColumn<QString>("backendUrl");
        QTest::addColumn<QString>("expected");
        QTest::newRow("the local backend is the one in use")
            << QString() << u"The local backend is not running.\nData folder: <dir>\n"_s;
        QTest::newRow("another backend is in use")
            << u"https://team.example.org"_s
            << u"The local backend is not running.\nData folder: <dir>\n"
               u"Morvane uses https://team.example.org (environment), not the local backend.\n"_s;
    }

    void statusInWords()
    {
        QFETCH(QString, backendUrl);
        QFETCH(QString, expected);
        const Home home;
        QList<std::pair<QString, QString>> environment;
        if (!backendUrl.isEmpty()) {
            environment.append({u"SUPABASE_URL"_s, backendUrl});
        }
        const Run run = home.morvane({u"server"_s, u"status"_s}, environment);
        QCOMPARE(run.code, 3);
        QCOMPARE(QString::fromUtf8(run.out), expected.replace(u"<dir>"_s, home.dataDir()));
    }

    void failedStartSaysWhy()
    {
        const Home home;
        // A file where the data folder belongs: nothing can be started there.
        QVERIFY(QDir().mkpath(QFileInfo(home.dataDir()).path()));
        QFile blocker(home.dataDir());
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        const Run run = home.morvane({u"server"_s, u"start"_s});
        QCOMPARE(run.code, 1);
        QVERIFY(run.out.isEmpty());
        QCOMPARE(run.err, u"Cannot write the local backend's data folder "_s + home.dataDir() + u".\n"_s);
    }

    void usageErrors_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("complaint");
        const QString usage = u"Usage: morvane server start|stop|status [--json]\n"_s;
        QTest::newRow("no action") << QStringList{u"server"_s} << usage;
        QTest::newRow("unknown action") << QStringList{u"server"_s, u"restart"_s} << usage;
        QTest::newRow("two actions") << QStringList{u"server"_s, u"start"_s, u"stop"_s} << usage;
        QTest::newRow("unknown option") << QStringList{u"server"_s, u"status"_s, u"--yaml"_s}
                                        << u"Unknown option 'yaml'.\n"_s;
    }

    void usageErrors()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, complaint);
        const Home home;
        const Run run = home.morvane(arguments);
        QCOMPARE(run.code, 2);
        QVERIFY(run.out.isEmpty());
        QCOMPARE(run.err, complaint);
        QVERIFY(!QFile::exists(home.dataDir()));
    }
};

QTEST_GUILESS_MAIN(TestServerCommand)
#include "tst_servercommand.moc"
