#include "pg/pgconnection.h"
#include "support/testbackend.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The status line a server at `url` answers a raw request with.
QByteArray firstLine(const QUrl &url, const QByteArray &request)
{
    QTcpSocket socket;
    socket.connectToHost(url.host(), quint16(url.port()));
    socket.waitForConnected(10000);
    socket.write(request);
    QByteArray reply;
    while (!reply.contains("\r\n") && socket.waitForReadyRead(10000)) {
        reply += socket.readAll();
    }
    return reply.left(reply.indexOf("\r\n"));
}

// One server for the checks that need nothing but a running one.
TestBackend &sharedBackend()
{
    static TestBackend backend;
    return backend;
}

} // namespace

class TestServerLifecycle : public QObject
{
    Q_OBJECT

private slots:
    void firstStartWritesItsSecretsPrivately()
    {
        TestBackend server;
        QVERIFY2(server.isReady(), qPrintable(server.startupLog()));
        // That the address and key it writes work is tst_localserver's; that the key is only anon, tst_security's.
        const QString info = server.dataDir() + u"/server.json"_s;
        const QString secretPath = server.dataDir() + u"/jwt-secret"_s;
        for (const QString &file : {info, secretPath}) {
            QCOMPARE(QFile::permissions(file) & ~(QFile::ReadUser | QFile::WriteUser),
                     QFile::ReadOwner | QFile::WriteOwner);
        }
        // A second server on the same folder says so and gives up.
        QProcess second;
        second.start(TestBackend::serverProgram(), {u"--data-dir"_s, server.dataDir(), u"--port"_s, u"0"_s});
        QVERIFY(second.waitForFinished(120000) && second.exitCode() != 0);
        QVERIFY(second.readAllStandardError().contains("already serves"));
    }

    // Whether the database outlives the server is tst_localserver's; after a crash or a stop alike the
    // next start finds the data, keeps the secret and applies no migration twice.
    void restartsKeepDataAfterACrashOrAStop()
    {
        TestBackend server;
        QVERIFY2(server.isReady(), qPrintable(server.startupLog()));
        QVERIFY(server.startupLog().contains(u"applied migration 0001"_s));
        const QByteArray secret = readFile(server.dataDir() + u"/jwt-secret"_s);
        server.database().exec("INSERT INTO auth.users (email) VALUES ('crash@example.nl')");
        ::kill(pid_t(server.processId()), SIGKILL);

        qsizetype seen = server.startupLog().size();
        QVERIFY2(server.start(), qPrintable(server.startupLog()));
        QVERIFY2(server.startupLog().mid(seen).contains(u"left running"_s), qPrintable(server.startupLog()));
        server.database().exec("INSERT INTO auth.users (email) VALUES ('kept@example.nl')");
        server.stop();

        seen = server.startupLog().size();
        QVERIFY2(server.start(), qPrintable(server.startupLog()));
        const QString log = server.startupLog().mid(seen);
        QVERIFY2(!log.contains(u"applied migration"_s) && !log.contains(u"creating the database cluster"_s),
                 qPrintable(log));
        QCOMPARE(readFile(server.dataDir() + u"/jwt-secret"_s), secret);
        QCOMPARE(server.database()
                     .exec("SELECT count(*) FROM profiles WHERE email IN ('crash@example.nl', 'kept@example.nl')")
                     .value(0, 0),
                 "2");
    }

    void aFailingMigrationStopsTheStart()
    {
        QTemporaryDir migrations;
        auto write = [&](const QString &name, const QByteArray &sql) {
            QFile file(migrations.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(sql);
        };
        write(u"0001_first.sql"_s, "CREATE TABLE public.first (id int);");
        write(u"0002_broken.sql"_s, "CREATE TABLE public.second (id int); CREATE TABEL oops;");
        TestBackend server({u"--migrations-dir"_s, migrations.path()});
        QVERIFY(!server.isReady());
        QVERIFY2(server.startupLog().contains(u"migration 0002_broken.sql failed"_s), qPrintable(server.startupLog()));

        // Each migration is its own transaction: the first stays, nothing of the broken one does.
        write(u"0002_broken.sql"_s, "CREATE TABLE public.second (id int);");
        const qsizetype seen = server.startupLog().size();
        QVERIFY2(server.start(), qPrintable(server.startupLog()));
        QVERIFY(server.startupLog().mid(seen).contains(u"applied migration 0002_broken.sql"_s));
        QCOMPARE(server.database().exec("SELECT count(*) FROM morvane_meta.migrations").value(0, 0), "2");
    }

    // A root-run server's cluster runs as the system user 'postgres', which other clusters and
    // tools share: only the server's own user gets in, by its identity, never by the socket alone.
    void onlyTheServersUserReachesItsDatabase()
    {
        if (::geteuid() != 0) {
            QSKIP("needs root, to be another system user");
        }
        TestBackend backend;
        QVERIFY2(backend.isReady(), qPrintable(backend.startupLog()));
        QProcess psql;
        psql.setProcessChannelMode(QProcess::MergedChannels);
        psql.start(u"runuser"_s,
                   {u"-u"_s, u"postgres"_s, u"--"_s, u"psql"_s,
                    u"host=%1/postgres dbname=morvane user=morvane"_s.arg(backend.dataDir()), u"-c"_s, u"select 1"_s});
        QVERIFY(psql.waitForFinished(30000));
        QVERIFY(psql.exitCode() != 0);
        QVERIFY2(psql.readAll().contains("authentication failed"), "psql got in as the system user 'postgres'");
        QCOMPARE(backend.database().exec("SELECT 1").value(0, 0), "1");
    }

    void aGivenDatabaseIsShared()
    {
        TestBackend owner;
        QVERIFY2(owner.isReady(), qPrintable(owner.startupLog()));
        const QString user = owner.createUser(u"shared@example.nl"_s);

        TestBackend second(
            {u"--database-url"_s, u"host='"_s + owner.dataDir() + u"/postgres' dbname=morvane user=morvane"_s});
        QVERIFY2(second.isReady(), qPrintable(second.startupLog()));
        // It owns no cluster of its own...
        QVERIFY(!QFile::exists(second.dataDir() + u"/postgres"_s));
        // ...and tokens it signs are its own; rows are the shared database's.
        const HttpResult read = second.request("GET", "/rest/v1/profiles?select=email", second.tokenFor(user));
        QCOMPARE(jsonColumn(read.json().array(), u"email"_s), QStringList{u"shared@example.nl"_s});
        QCOMPARE(owner.request("GET", "/rest/v1/profiles?select=email", second.tokenFor(user)).status, 401);
    }

    void guardsAgainstSlowAndOversizedClients()
    {
        TestBackend server({u"--idle-timeout"_s, u"1"_s});
        QVERIFY2(server.isReady(), qPrintable(server.startupLog()));
        const QUrl url = server.url();

        // A client that opens a connection and sends half a request is let go.
        QTcpSocket slow;
        slow.connectToHost(url.host(), quint16(url.port()));
        QVERIFY(slow.waitForConnected(10000));
        slow.write("GET /rest/v1/tasks HTTP/1.1\r\nHost: x\r\n");
        QTRY_COMPARE_WITH_TIMEOUT(slow.state(), QAbstractSocket::UnconnectedState, 15000);

        // A body over the 10 MiB limit is refused by its declared length, before any of it arrives.
        QVERIFY(firstLine(url, "POST /rest/v1/clients HTTP/1.1\r\nHost: x\r\nContent-Length: 10485761\r\n\r\n")
                    .startsWith("HTTP/1.1 413"));
        // The head of a request is held to a few tens of KiB (where the framing draws the line is tst_requestframing's).
        QCOMPARE(firstLine(url, "GET / HTTP/1.1\r\nX-Big: " + QByteArray(70 * 1024, 'a')),
                 "HTTP/1.1 431 Request Header Fields Too Large");
    }

    void connectionsWaitingPerClientAreLimited()
    {
        QVERIFY2(sharedBackend().isReady(), qPrintable(sharedBackend().startupLog()));
        const QUrl url = sharedBackend().url();
        // One address cannot hold more than 64 connections waiting to send a request.
        std::vector<std::unique_ptr<QTcpSocket>> waiting;
        for (int i = 0; i < 64; ++i) {
            waiting.push_back(std::make_unique<QTcpSocket>());
            waiting.back()->connectToHost(url.host(), quint16(url.port()));
            QVERIFY(waiting.back()->waitForConnected(10000));
            waiting.back()->write("GET / HTTP/1.1\r\n");
            waiting.back()->flush();
        }
        QTRY_COMPARE_WITH_TIMEOUT(firstLine(url, "GET /nowhere HTTP/1.1\r\n\r\n"), "HTTP/1.1 503 Service Unavailable",
                                  10000);
        waiting.clear();
        // Served again once they go; and an unknown path is answered in JSON like any other error.
        QTRY_COMPARE_WITH_TIMEOUT(sharedBackend().request("GET", "/nowhere").status, 404, 10000);
        const HttpResult unknown = sharedBackend().request("GET", "/nowhere");
        QVERIFY(unknown.header("Content-Type").startsWith("application/json"));
        QVERIFY(!unknown.code().isEmpty());
    }

    // What another local user could have planted is refused, not trusted.
    void untrustedFilesAreRefused_data()
    {
        QTest::addColumn<QString>("plant"); // what to do to the data folder before the start
        QTest::newRow("a secret others can read") << u"secret-644"_s;
        QTest::newRow("a secret that is a link") << u"secret-link"_s;
        QTest::newRow("a folder others can change") << u"folder-777"_s;
        if (::geteuid() == 0) {
            QTest::newRow("a folder of another user") << u"folder-nobody"_s;
            QTest::newRow("a database folder that is a link") << u"postgres-link"_s;
        }
    }

    void untrustedFilesAreRefused()
    {
        QFETCH(QString, plant);
        TestBackend server({}, false);
        QTemporaryDir elsewhere;
        QVERIFY(QDir().mkpath(server.dataDir()));
        const QString secret = server.dataDir() + u"/jwt-secret"_s;
        QFile file(plant == u"secret-link" ? elsewhere.filePath(u"secret"_s) : secret);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(48, 's'));
        file.close();
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        if (plant == u"secret-644") {
            file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
        } else if (plant == u"secret-link") {
            QVERIFY(QFile::link(file.fileName(), secret));
        } else if (plant == u"folder-777") {
            QVERIFY(QFile::setPermissions(server.dataDir(), QFileDevice::Permissions(0x7777)));
        } else if (plant == u"folder-nobody") {
            QCOMPARE(::chown(QFile::encodeName(server.dataDir()).constData(), 65534, 65534), 0);
        } else if (plant == u"postgres-link") {
            QVERIFY(QFile::link(elsewhere.path(), server.dataDir() + u"/postgres"_s));
        }
        QVERIFY(!server.start());
        QVERIFY2(server.startupLog().contains(u"refusing"_s), qPrintable(server.startupLog()));
        // Nothing was handed to the database's user through the link.
        QCOMPARE(QFileInfo(elsewhere.path()).ownerId(), ::geteuid());
    }

    void preflightAllowsBrowsers()
    {
        const HttpResult result = sharedBackend().request("OPTIONS", "/rest/v1/tasks", {}, {},
                                                          {{"Origin", "http://localhost:5173"},
                                                           {"Access-Control-Request-Method", "PATCH"},
                                                           {"Access-Control-Request-Headers", "authorization,prefer"}});
        QCOMPARE(result.status, 204);
        QCOMPARE(result.header("Access-Control-Allow-Origin"), "*");
        QVERIFY(result.header("Access-Control-Allow-Methods").contains("PATCH"));
        QCOMPARE(result.header("Access-Control-Allow-Headers"), "authorization,prefer");
    }
};

QTEST_GUILESS_MAIN(TestServerLifecycle)
#include "tst_serverlifecycle.moc"
