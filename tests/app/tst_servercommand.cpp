#include "support/morvanecli.h"

#include <QTest>

using namespace Qt::StringLiterals;

using Run = MorvaneCli::Run;

// `morvane server ...` and the local backend as a person meets them, in a home of their own with
// no other backend configured.
class TestServerCommand : public QObject
{
    Q_OBJECT

private slots:
    // Looking, and wrong calls, start nothing: a start leaves its traces, the server's log (written
    // before it runs) and its lock.
    void lookingStartsNothing_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("out");
        QTest::addColumn<QString>("err");
        const QString usage = u"Usage: morvane server start|stop|status [--json]\n"_s;
        const QString stopped = u"The local backend is not running.\nData folder: <dir>\n"_s;
        const QString any;
        QTest::newRow("config") << u"config --json"_s << 0 << any << QString();
        QTest::newRow("server status") << u"server status"_s << 3 << stopped << QString();
        QTest::newRow("server status, another backend in use")
            << u"SUPABASE_URL=https://team.example.org server status"_s << 3
            << stopped + u"Morvane uses https://team.example.org (environment), not the local backend.\n"_s
            << QString();
        QTest::newRow("server stop") << u"server stop"_s << 0 << any << QString();
        QTest::newRow("no action") << u"server"_s << 2 << u""_s << usage;
        QTest::newRow("unknown action") << u"server restart"_s << 2 << u""_s << usage;
        QTest::newRow("two actions") << u"server start stop"_s << 2 << u""_s << usage;
    }

    void lookingStartsNothing()
    {
        QFETCH(QString, command);
        QFETCH(int, code);
        QFETCH(QString, out);
        QFETCH(QString, err);
        const MorvaneCli home;
        QStringList arguments = command.split(u' ');
        QProcessEnvironment environment = home.environment();
        if (arguments.first().contains(u'=')) {
            const QString variable = arguments.takeFirst();
            environment.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
        }
        const Run run = MorvaneCli::finish(*home.start(arguments, environment));
        QCOMPARE(run.code, code);
        QCOMPARE(run.err, err);
        if (!out.isNull()) {
            QCOMPARE(run.out, out.replace(u"<dir>"_s, home.localServerDir()));
        }
        QVERIFY(!QFile::exists(home.localServerDir() + u"/morvane-server.log"_s));
        QVERIFY(!QFile::exists(home.localServerDir() + u"/morvane-server.lock"_s));
        QVERIFY(serversOn(home.localServerDir()).isEmpty());
    }

    void startStatusStopAsJson()
    {
        const MorvaneCli home;
        const auto server = [&](const char *action, int code) {
            const Run run = home(u"server %1 --json"_s.arg(QString::fromLatin1(action)));
            [&] { QCOMPARE(run.code, code); }();
            return run.object();
        };
        const auto pidOf = [](const QJsonObject &object) { return qint64(object[u"pid"_s].toDouble()); };
        const QJsonObject before = server("status", 3);
        QCOMPARE(before[u"data_dir"_s].toString(), home.localServerDir());

        const QJsonObject start = server("start", 0);
        QCOMPARE(start[u"started"_s].toBool(), true);
        const qint64 pid = pidOf(start);
        const QString url = start[u"url"_s].toString();
        // The program that started it has ended; the server has not.
        QCOMPARE(serversOn(home.localServerDir()), QList<qint64>{pid});
        const QJsonObject running = server("status", 0);
        QCOMPARE(pidOf(running), pid);
        QCOMPARE(running[u"in_use"_s].toBool(), true);
        // What the application will talk to is that server, and it answers with that key.
        const QJsonObject config = home(u"config --json"_s).object();
        QCOMPARE(config[u"url"_s].toString(), url);
        const QString failure = accountWorks(QUrl(url), config[u"anon_key"_s].toString());
        QVERIFY2(failure.isEmpty(), qPrintable(failure));

        const QJsonObject again = server("start", 0);
        QCOMPARE(again[u"started"_s].toBool(true), false);
        QCOMPARE(pidOf(again), pid);
        QCOMPARE(server("stop", 0)[u"stopped"_s].toBool(), true);
        QVERIFY(serversOn(home.localServerDir()).isEmpty());
        QVERIFY(!QFile::exists(home.localServerDir() + u"/postgres/postmaster.pid"_s));
        QCOMPARE(server("stop", 0)[u"stopped"_s].toBool(true), false);
    }

    void failedStartSaysWhy()
    {
        const MorvaneCli home;
        // A file where the data folder belongs: nothing can be started there.
        QVERIFY(QDir().mkpath(QFileInfo(home.localServerDir()).path()));
        QFile blocker(home.localServerDir());
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        const Run run = home(u"server start"_s);
        QCOMPARE(run.code, 1);
        QCOMPARE(run.err, u"Cannot write the local backend's data folder "_s + home.localServerDir() + u".\n"_s);
    }
};

QTEST_GUILESS_MAIN(TestServerCommand)
#include "tst_servercommand.moc"
