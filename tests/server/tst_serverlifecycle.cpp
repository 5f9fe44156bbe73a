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
        static TestBackend backend;
        QVERIFY(backend.isReady());
        const HttpResult result = backend.request(method, target, {}, body);
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
    }

    void preflightAllowsBrowsers()
    {
        static TestBackend backend;
        const HttpResult result = backend.request("OPTIONS", "/rest/v1/tasks", {}, {},
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
