#include "backend/localserver.h"
#include "i18n/language.h"
#include "support/localservers.h"
#include "support/testbackend.h"

#include <QFile>
#include <QProcess>
#include <QTcpServer>
#include <QTest>

#include <csignal>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

LocalServer serverFor(const QString &dataDir, const QString &program = TestBackend::serverProgram())
{
    LocalServer server(dataDir, program);
    // Several suites run at once; none may count on the default port.
    server.setArguments({u"--port"_s, u"0"_s});
    return server;
}

bool databaseRunning(const QString &dataDir)
{
    return QFile::exists(dataDir + u"/postgres/postmaster.pid"_s);
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Ways a start goes wrong, each with what the user must be told.
enum class Failure { PortTaken, DataFolderIsAFile, NoSuchProgram };

} // namespace

// Finding, starting and stopping the local backend the way the application does.
class TestLocalServer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Language::apply(u"en"_s); }

    void startsOnceIsFoundAndStops()
    {
        ScratchServerDir dir;
        const LocalServer server = serverFor(dir.path());
        QCOMPARE(runBlocking(server.status()).state, LocalServer::State::Stopped);
        const LocalServer::Address first = runBlocking(server.ensureRunning());
        QVERIFY(first.started);
        QCOMPARE(first.url.host(), u"127.0.0.1"_s);
        QCOMPARE(accountWorks(first.url, first.anonKey), QString());
        // Started detached: the server outlives the call that started it and needs no one to
        // read its output, which goes to its log.
        QVERIFY(readFile(server.logPath()).contains(QByteArray("morvane-server ready url=" + first.url.toEncoded())));

        // A later application (a new object, as a new process would have) finds it.
        const LocalServer::Address again = runBlocking(serverFor(dir.path()).ensureRunning());
        QVERIFY(!again.started);
        QCOMPARE(std::tie(again.pid, again.url, again.anonKey), std::tie(first.pid, first.url, first.anonKey));
        QCOMPARE(serversOn(dir.path()), QList<qint64>{first.pid});
        const LocalServer::Status status = runBlocking(server.status());
        QCOMPARE(status.state, LocalServer::State::Running);
        QCOMPARE(status.pid, first.pid);
        QCOMPARE(status.url, first.url);

        // Stopping ends the server and its database; stopping again stops nothing.
        QCOMPARE(runBlocking(server.stop()), first.pid);
        QVERIFY(serversOn(dir.path()).isEmpty());
        QVERIFY(!databaseRunning(dir.path()));
        QCOMPARE(runBlocking(server.status()).state, LocalServer::State::Stopped);
        QCOMPARE(runBlocking(server.stop()), 0);
        // The file it leaves behind leads nowhere: the next start is a new server.
        const LocalServer::Address restarted = runBlocking(server.ensureRunning());
        QVERIFY(restarted.started && restarted.pid != first.pid);

        // Killed, it leaves its address, a lock naming the dead process and its database behind.
        ::kill(pid_t(restarted.pid), SIGKILL);
        QTRY_VERIFY_WITH_TIMEOUT(serversOn(dir.path()).isEmpty(), 10000);
        QVERIFY(QFile::exists(dir.path() + u"/morvane-server.lock"_s));
        QVERIFY(databaseRunning(dir.path()));
        QCOMPARE(runBlocking(server.status()).state, LocalServer::State::Stopped);
        const LocalServer::Address afterKill = runBlocking(server.ensureRunning());
        QVERIFY(afterKill.started && afterKill.pid != restarted.pid);
        QCOMPARE(serversOn(dir.path()), QList<qint64>{afterKill.pid});
        QCOMPARE(accountWorks(afterKill.url, afterKill.anonKey), QString());
    }

    void anotherFoldersServerAtTheAddressIsNotTrusted()
    {
        ScratchServerDir dir;
        ScratchServerDir otherDir;
        const LocalServer::Address stale = runBlocking(serverFor(otherDir.path()).ensureRunning());
        QVERIFY(QDir().mkpath(dir.path()));
        QVERIFY(QFile::copy(otherDir.path() + u"/server.json"_s, dir.path() + u"/server.json"_s));
        const LocalServer server = serverFor(dir.path());
        QCOMPARE(runBlocking(server.status()).state, LocalServer::State::Stopped);
        const LocalServer::Address address = runBlocking(server.ensureRunning());
        QVERIFY(address.started && address.url != stale.url && address.anonKey != stale.anonKey);
        QCOMPARE(serversOn(dir.path()), QList<qint64>{address.pid});
    }

    void racingStartsEndWithOneServer()
    {
        ScratchServerDir dir;
        // As several applications opened at once: each sees no server and starts one.
        const std::vector<LocalServer> racers(3, serverFor(dir.path()));
        QList<LocalServer::Address> answers;
        runBlocking([&]() -> QCoro::Task<> {
            std::vector<QCoro::Task<LocalServer::Address>> starts;
            for (const LocalServer &racer : racers) {
                starts.push_back(racer.ensureRunning());
            }
            for (auto &start : starts) {
                answers.append(co_await std::move(start));
            }
        }());
        QCOMPARE(answers.size(), 3);
        for (const LocalServer::Address &answer : std::as_const(answers)) {
            QCOMPARE(std::tie(answer.pid, answer.url, answer.anonKey),
                     std::tie(answers.first().pid, answers.first().url, answers.first().anonKey));
        }
        QCOMPARE(std::count_if(answers.cbegin(), answers.cend(), [](const auto &answer) { return answer.started; }), 1);
        QTRY_COMPARE_WITH_TIMEOUT(serversOn(dir.path()), QList<qint64>{answers.first().pid}, 10000);
        QCOMPARE(accountWorks(answers.first().url, answers.first().anonKey), QString());
    }

    void waitsForAServerStartedElsewhere()
    {
        ScratchServerDir dir;
        QProcess byHand;
        byHand.setStandardErrorFile(QProcess::nullDevice());
        byHand.start(TestBackend::serverProgram(), {u"--data-dir"_s, dir.path(), u"--port"_s, u"0"_s});
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(dir.path() + u"/morvane-server.lock"_s), 30000);

        LocalServer server = serverFor(dir.path());
        const LocalServer::Address address = runBlocking(server.ensureRunning());
        QVERIFY(!address.started);
        QCOMPARE(address.pid, byHand.processId());
        QVERIFY(byHand.readAllStandardOutput().contains(QByteArray("ready url=" + address.url.toEncoded())));

        // Suspended, it keeps its lock and its port, and the kernel still accepts connections
        // for it: the way a wedged server looks from outside.
        QCOMPARE(::kill(pid_t(address.pid), SIGSTOP), 0);
        server.setStartTimeout(std::chrono::seconds(3));
        QCOMPARE(runBlocking(server.status()).state, LocalServer::State::Starting);
        try {
            runBlocking(server.ensureRunning());
            QFAIL("a wedged server was trusted");
        } catch (const LocalServerError &error) {
            QCOMPARE(error.kind(), LocalServerError::Kind::NotReady);
            QVERIFY2(error.message().contains(u"not ready within 3 seconds (log: "_s + dir.path()), qPrintable(error.message()));
        }
        QCOMPARE(::kill(pid_t(address.pid), SIGCONT), 0);
        QCOMPARE(runBlocking(server.stop()), address.pid);
        QTRY_COMPARE_WITH_TIMEOUT(byHand.state(), QProcess::NotRunning, 10000);
        // A clean stop on SIGTERM, not a kill.
        QCOMPARE(byHand.exitStatus(), QProcess::NormalExit);
        QCOMPARE(byHand.exitCode(), 0);
    }

    void failuresAreExplained_data()
    {
        QTest::addColumn<Failure>("failure");
        QTest::addColumn<LocalServerError::Kind>("kind");
        // What the message must say for a person to see the cause; <dir> is the data folder.
        QTest::addColumn<QStringList>("explanation");
        QTest::newRow("the port is taken: the server's own words")
            << Failure::PortTaken << LocalServerError::Kind::ExitedEarly
            << QStringList{u"stopped before it was ready (log: <dir>/morvane-server.log)."_s,
                           u"\nmorvane-server: cannot listen on 127.0.0.1:"_s};
        QTest::newRow("the data folder is a file") << Failure::DataFolderIsAFile << LocalServerError::Kind::DataFolder
                                                   << QStringList{u"Cannot write the local backend's data folder <dir>."_s};
        QTest::newRow("the program is missing")
            << Failure::NoSuchProgram << LocalServerError::Kind::Launch
            << QStringList{u"Cannot run the local backend <dir>-missing/morvane-server."_s};
    }

    void failuresAreExplained()
    {
        QFETCH(Failure, failure);
        QFETCH(QStringList, explanation);
        ScratchServerDir dir;
        LocalServer server = serverFor(dir.path());
        QTcpServer occupant;
        if (failure == Failure::PortTaken) {
            QVERIFY(occupant.listen(QHostAddress::LocalHost));
            server.setArguments({u"--port"_s, QString::number(occupant.serverPort())});
        } else if (failure == Failure::DataFolderIsAFile) {
            QFile file(dir.path());
            QVERIFY(file.open(QIODevice::WriteOnly));
        } else {
            server = serverFor(dir.path(), dir.path() + u"-missing/morvane-server"_s);
        }
        try {
            runBlocking(server.ensureRunning());
            QFAIL("the start did not fail");
        } catch (const LocalServerError &error) {
            QTEST(error.kind(), "kind");
            for (QString expected : std::as_const(explanation)) {
                QVERIFY2(error.message().contains(expected.replace(u"<dir>"_s, dir.path())), qPrintable(error.message()));
            }
        }
        // Nothing was left running to be found later.
        QTRY_VERIFY_WITH_TIMEOUT(serversOn(dir.path()).isEmpty(), 10000);
        QCOMPARE(runBlocking(server.status()).state, LocalServer::State::Stopped);
    }

    void findsTheProgramOnThePath()
    {
        // Nothing sits beside a test executable (build/tests): the PATH is the way left.
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(QFileInfo(TestBackend::serverProgram()).path()) + ':' + path);
        const QString found = LocalServer::findProgram();
        qputenv("PATH", path);
        QCOMPARE(QFileInfo(found).canonicalFilePath(), QFileInfo(TestBackend::serverProgram()).canonicalFilePath());
    }
};

QTEST_GUILESS_MAIN(TestLocalServer)
#include "tst_localserver.moc"
