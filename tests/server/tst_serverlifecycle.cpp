#include "auth/jwt.h"
#include "pg/pgconnection.h"
#include "support/testbackend.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// One morvane-server process on a data folder of the test's choosing.
class ServerProcess
{
public:
    explicit ServerProcess(const QString &dataDir, const QStringList &extra = {})
    {
        m_process.start(TestBackend::serverProgram(),
                        QStringList{u"--data-dir"_s, dataDir, u"--port"_s, u"0"_s} + extra);
    }

    ~ServerProcess() { stop(SIGTERM); }

    // Waits for the ready line; false when the process ended first.
    bool waitReady()
    {
        const qint64 deadline = QDateTime::currentMSecsSinceEpoch() + 120000;
        while (QDateTime::currentMSecsSinceEpoch() < deadline) {
            collect();
            const qsizetype at = m_out.indexOf("morvane-server ready url=");
            if (at >= 0 && m_out.indexOf('\n', at) > at) {
                const QByteArray line = m_out.mid(at, m_out.indexOf('\n', at) - at);
                m_url = QString::fromLatin1(line.mid(line.indexOf('=') + 1));
                return true;
            }
            if (m_process.state() == QProcess::NotRunning) {
                return false;
            }
            m_process.waitForReadyRead(200);
        }
        return false;
    }

    int waitExit()
    {
        m_process.waitForFinished(120000);
        collect();
        return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }

    void stop(int signal)
    {
        if (m_process.state() != QProcess::NotRunning) {
            ::kill(pid_t(m_process.processId()), signal);
            m_process.waitForFinished(120000);
        }
        collect();
    }

    [[nodiscard]] QString url() const { return m_url; }
    [[nodiscard]] QString log() const { return m_err; }

private:
    void collect()
    {
        m_out += m_process.readAllStandardOutput();
        m_err += QString::fromLocal8Bit(m_process.readAllStandardError());
    }

    QProcess m_process;
    QByteArray m_out;
    QString m_err;
    QString m_url;
};

// A data folder the cluster's system user can reach when the tests run as root.
class DataDir
{
public:
    DataDir()
    {
        QFile::setPermissions(m_dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
                                                QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
    }
    [[nodiscard]] QString path() const { return m_dir.path() + u"/data"_s; }
    [[nodiscard]] QByteArray conninfo() const
    {
        return "host='" + QString(path() + u"/postgres"_s).toUtf8() + "' dbname=morvane user=morvane";
    }

private:
    QTemporaryDir m_dir;
};

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

bool postmasterRunning(const DataDir &dir)
{
    return QFile::exists(dir.path() + u"/postgres/postmaster.pid"_s);
}

} // namespace

class TestServerLifecycle : public QObject
{
    Q_OBJECT

private slots:
    void firstStartWritesItsAddressAndKeys()
    {
        DataDir dir;
        ServerProcess server(dir.path());
        QVERIFY2(server.waitReady(), qPrintable(server.log()));
        QVERIFY(server.url().startsWith(u"http://127.0.0.1:"_s));

        const QString info = dir.path() + u"/server.json"_s;
        const QString secretPath = dir.path() + u"/jwt-secret"_s;
        const QFile::Permissions privateOnly = QFile::ReadOwner | QFile::WriteOwner;
        QCOMPARE(QFile::permissions(info) & ~(QFile::ReadUser | QFile::WriteUser), privateOnly);
        QCOMPARE(QFile::permissions(secretPath) & ~(QFile::ReadUser | QFile::WriteUser), privateOnly);

        const QJsonObject server_json = QJsonDocument::fromJson(readFile(info)).object();
        QCOMPARE(server_json.value(u"url"_s).toString(), server.url());
        const QByteArray anonKey = server_json.value(u"anon_key"_s).toString().toLatin1();
        const auto claims = Jwt::verify(anonKey, readFile(secretPath).trimmed(), QDateTime::currentSecsSinceEpoch());
        QVERIFY(std::holds_alternative<QJsonObject>(claims));
        QCOMPARE(std::get<QJsonObject>(claims).value(u"role"_s).toString(), u"anon"_s);
        QVERIFY(QByteArray(anonKey.split('.').first()).contains(QByteArray("eyJhbGciOiJIUzI1NiI")));

        // A second server on the same folder says so and gives up.
        ServerProcess second(dir.path());
        QVERIFY(second.waitExit() != 0);
        QVERIFY2(second.log().contains(u"already serves"_s), qPrintable(second.log()));
    }

    void restartKeepsDataAndMigratesOnce()
    {
        DataDir dir;
        {
            ServerProcess server(dir.path());
            QVERIFY2(server.waitReady(), qPrintable(server.log()));
            QVERIFY(server.log().contains(u"applied migration 0001"_s));
            auto db = PgConnection::open(dir.conninfo());
            db->exec("INSERT INTO auth.users (email) VALUES ('kept@example.nl')");
            db.reset();
            server.stop(SIGTERM);
            // A clean stop takes the database down with it.
            QVERIFY(!postmasterRunning(dir));
        }
        const QByteArray secret = readFile(dir.path() + u"/jwt-secret"_s);
        ServerProcess again(dir.path());
        QVERIFY2(again.waitReady(), qPrintable(again.log()));
        QVERIFY2(!again.log().contains(u"applied migration"_s), qPrintable(again.log()));
        QVERIFY(!again.log().contains(u"creating the database cluster"_s));
        QCOMPARE(readFile(dir.path() + u"/jwt-secret"_s), secret);
        auto db = PgConnection::open(dir.conninfo());
        QCOMPARE(db->exec("SELECT count(*) FROM profiles WHERE email = 'kept@example.nl'").value(0, 0), "1");
    }

    void recoversAfterACrash()
    {
        DataDir dir;
        {
            ServerProcess server(dir.path());
            QVERIFY2(server.waitReady(), qPrintable(server.log()));
            auto db = PgConnection::open(dir.conninfo());
            db->exec("INSERT INTO auth.users (email) VALUES ('crash@example.nl')");
            db.reset();
            server.stop(SIGKILL);
        }
        // The database outlived the server and its lock file names a live process.
        QVERIFY(postmasterRunning(dir));
        ServerProcess again(dir.path());
        QVERIFY2(again.waitReady(), qPrintable(again.log()));
        QVERIFY2(again.log().contains(u"left running"_s), qPrintable(again.log()));
        auto db = PgConnection::open(dir.conninfo());
        QCOMPARE(db->exec("SELECT count(*) FROM profiles WHERE email = 'crash@example.nl'").value(0, 0), "1");
    }

    void aFailingMigrationStopsTheStart()
    {
        DataDir dir;
        QTemporaryDir migrations;
        auto write = [&](const QString &name, const QByteArray &sql) {
            QFile file(migrations.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(sql);
        };
        write(u"0001_first.sql"_s, "CREATE TABLE public.first (id int);");
        write(u"0002_broken.sql"_s, "CREATE TABLE public.second (id int); CREATE TABEL oops;");
        {
            ServerProcess server(dir.path(), {u"--migrations-dir"_s, migrations.path()});
            QVERIFY(server.waitExit() != 0);
            QVERIFY2(server.log().contains(u"migration 0002_broken.sql failed"_s), qPrintable(server.log()));
            QVERIFY2(server.log().contains(u"syntax error"_s), qPrintable(server.log()));
        }
        // Each migration is its own transaction: the first stays, nothing of the broken one does.
        write(u"0002_broken.sql"_s, "CREATE TABLE public.second (id int);");
        ServerProcess fixed(dir.path(), {u"--migrations-dir"_s, migrations.path()});
        QVERIFY2(fixed.waitReady(), qPrintable(fixed.log()));
        QVERIFY(!fixed.log().contains(u"applied migration 0001_first.sql"_s));
        QVERIFY(fixed.log().contains(u"applied migration 0002_broken.sql"_s));
        auto db = PgConnection::open(dir.conninfo());
        QCOMPARE(db->exec("SELECT count(*) FROM morvane_meta.migrations").value(0, 0), "2");
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

        DataDir dir;
        const QString conninfo = u"host='"_s + owner.dataDir() + u"/postgres' dbname=morvane user=morvane"_s;
        ServerProcess second(dir.path(), {u"--database-url"_s, conninfo});
        QVERIFY2(second.waitReady(), qPrintable(second.log()));
        // It owns no cluster of its own...
        QVERIFY(!QFile::exists(dir.path() + u"/postgres"_s));
        // ...and tokens it signs are its own; rows are the shared database's.
        const QByteArray secret = readFile(dir.path() + u"/jwt-secret"_s).trimmed();
        const QByteArray token = Jwt::sign(
            {{u"sub"_s, user}, {u"role"_s, u"authenticated"_s}, {u"exp"_s, QDateTime::currentSecsSinceEpoch() + 600}},
            secret);
        QNetworkAccessManager network;
        QNetworkRequest request(QUrl(second.url() + u"/rest/v1/profiles?select=email"_s));
        request.setRawHeader("Authorization", "Bearer " + token);
        QNetworkReply *reply = network.get(request);
        QTRY_VERIFY_WITH_TIMEOUT(reply->isFinished(), 30000);
        QCOMPARE(QJsonDocument::fromJson(reply->readAll()).array().first().toObject().value(u"email"_s).toString(),
                 u"shared@example.nl"_s);
        delete reply;
    }

    void everyAnswerIsJson_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QByteArray>("target");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("status");
        QTest::newRow("unknown path") << QByteArray("GET") << QByteArray("/nowhere") << QByteArray() << 404;
        QTest::newRow("unknown service path") << QByteArray("GET") << QByteArray("/rest/v1/a/b") << QByteArray() << 404;
        QTest::newRow("body just over the limit")
            << QByteArray("POST") << QByteArray("/rest/v1/clients") << QByteArray(10 * 1024 * 1024 + 1, 'x') << 413;
    }

    void everyAnswerIsJson()
    {
        QFETCH(QByteArray, method);
        QFETCH(QByteArray, target);
        QFETCH(QByteArray, body);
        QVERIFY(sharedBackend().isReady());
        const HttpResult result = sharedBackend().request(method, target, {}, body);
        QTEST(result.status, "status");
        QVERIFY(result.header("Content-Type").startsWith("application/json"));
        QVERIFY(!result.code().isEmpty());
        QVERIFY(!result.json().object().value(u"message"_s).toString().isEmpty());
    }

    void guardsAgainstSlowAndOversizedClients()
    {
        DataDir dir;
        ServerProcess server(dir.path(), {u"--idle-timeout"_s, u"1"_s});
        QVERIFY2(server.waitReady(), qPrintable(server.log()));
        const QUrl url(server.url());

        // A client that opens a connection and sends half a request is let go.
        QTcpSocket slow;
        slow.connectToHost(url.host(), quint16(url.port()));
        QVERIFY(slow.waitForConnected(10000));
        slow.write("GET /rest/v1/tasks HTTP/1.1\r\nHost: x\r\n");
        QTRY_COMPARE_WITH_TIMEOUT(slow.state(), QAbstractSocket::UnconnectedState, 15000);

        // A body far over the limit is refused while it arrives, before the server holds it all.
        QTcpSocket big;
        big.connectToHost(url.host(), quint16(url.port()));
        QVERIFY(big.waitForConnected(10000));
        big.write("POST /rest/v1/clients HTTP/1.1\r\nHost: x\r\nContent-Type: application/json\r\n"
                  "Content-Length: 1073741824\r\n\r\n");
        const QByteArray chunk(1024 * 1024, 'x');
        QByteArray answer;
        for (int i = 0; i < 64 && big.state() == QAbstractSocket::ConnectedState; ++i) {
            big.write(chunk);
            big.waitForBytesWritten(1000);
            big.waitForReadyRead(50);
            answer += big.readAll();
        }
        QTRY_VERIFY_WITH_TIMEOUT(
            (answer += big.readAll()).contains("PGRST413") || big.state() == QAbstractSocket::UnconnectedState, 15000);
        answer += big.readAll();
        QVERIFY2(answer.startsWith("HTTP/1.1 413"), answer.left(200).constData());
        QVERIFY(answer.contains("\"code\":\"PGRST413\""));

        // The head of a request is held to a few tens of KiB, and refused with its own status as it arrives.
        QCOMPARE(firstLine(url, "GET /rest/v1/tasks?x=" + QByteArray(40 * 1024, 'a')), "HTTP/1.1 414 URI Too Long");
        QCOMPARE(firstLine(url, "GET / HTTP/1.1\r\nX-Big: " + QByteArray(70 * 1024, 'a')),
                 "HTTP/1.1 431 Request Header Fields Too Large");
        QCOMPARE(firstLine(url, "GET /nowhere HTTP/1.1\r\nX-Fine: " + QByteArray(20 * 1024, 'a') + "\r\n\r\n"),
                 "HTTP/1.1 404 Not Found");
    }

    void connectionsWaitingPerClientAreLimited()
    {
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
        QTRY_COMPARE_WITH_TIMEOUT(firstLine(url, "GET /nowhere HTTP/1.1\r\n\r\n"), "HTTP/1.1 404 Not Found", 10000);
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
        DataDir dir;
        QTemporaryDir elsewhere;
        QVERIFY(QDir().mkpath(dir.path()));
        const QString secret = dir.path() + u"/jwt-secret"_s;
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
            QVERIFY(QFile::setPermissions(dir.path(), QFileDevice::Permissions(0x7777)));
        } else if (plant == u"folder-nobody") {
            QCOMPARE(::chown(QFile::encodeName(dir.path()).constData(), 65534, 65534), 0);
        } else if (plant == u"postgres-link") {
            QVERIFY(QFile::link(elsewhere.path(), dir.path() + u"/postgres"_s));
        }
        ServerProcess server(dir.path());
        QVERIFY(server.waitExit() != 0);
        QVERIFY2(server.log().contains(u"refusing"_s), qPrintable(server.log()));
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
