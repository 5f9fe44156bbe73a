#include "app/startup.h"
#include "support/localservers.h"
#include "support/testbackend.h"

#include <QFileInfo>
#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QUrl teamUrl(u"https://team.example.org"_s);

Config configured(Config::Source urlSource, Config::Source keySource)
{
    Config config;
    config.urlSource = urlSource;
    config.keySource = keySource;
    config.supabaseURL = urlSource == Config::Source::LocalServer ? Config::defaultLocalUrl() : teamUrl;
    config.supabaseAnonKey = keySource == Config::Source::LocalServer ? QString() : u"configured-key"_s;
    return config;
}

} // namespace

class TestStartup : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_home;

private slots:
    void initTestCase()
    {
        // The user's own data folder and settings must stay untouched: the start-up finds the
        // local backend under the XDG data folder, and the program on the PATH, as nothing sits
        // beside a test executable.
        QFile::setPermissions(m_home.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
                                                 QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.path() + u"/data"_s));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_home.path() + u"/config"_s));
        qputenv("MORVANE_SERVER_PORT", "0");
        qputenv("PATH", QFile::encodeName(QFileInfo(TestBackend::serverProgram()).path()) + ':' + qgetenv("PATH"));
        QCOMPARE(Config::localServerDir(), m_home.path() + u"/data/morvane/server"_s);
    }

    void cleanup()
    {
        // One data folder for the whole suite: each test starts from a stopped server.
        runBlocking(Startup::localServer().stop());
    }

    // The local server stands in only for what is left local; a key the user configured stays.
    void onlyTheLocalPartIsReplaced()
    {
        const Config config = configured(Config::Source::LocalServer, Config::Source::Environment);
        ScratchServerDir dir;
        LocalServer server(dir.path(), TestBackend::serverProgram());
        server.setArguments({u"--port"_s, u"0"_s});
        const Config live = runBlocking(Startup::liveBackend(config, server));
        QCOMPARE(live.supabaseAnonKey, config.supabaseAnonKey);
        QCOMPARE(live.keySource, config.keySource);
        const LocalServer::Status status = runBlocking(server.status());
        QCOMPARE(status.state, LocalServer::State::Running);
        QCOMPARE(live.supabaseURL, status.url);
    }

    // Another backend's address is used as it is, even with the key left local.
    void ensureBackendLeavesAnotherBackendAlone()
    {
        Config::setCurrent(configured(Config::Source::Settings, Config::Source::LocalServer));
        const int generation = Config::generation();
        const Config config = runBlocking(Startup::ensureBackend());
        QCOMPARE(config.supabaseURL, teamUrl);
        QCOMPARE(Config::generation(), generation);
        QCOMPARE(runBlocking(Startup::localServer().status()).state, LocalServer::State::Stopped);
        QVERIFY(!QFile::exists(Startup::localServer().logPath()));
    }

    void ensureBackendMakesTheLiveServerCurrent()
    {
        // server.json of a server that is gone: read into the configuration, but not believed.
        const QString dataDir = Config::localServerDir();
        QVERIFY(QDir().mkpath(dataDir));
        QFile stale(dataDir + u"/server.json"_s);
        QVERIFY(stale.open(QIODevice::WriteOnly));
        stale.write("{\"url\": \"http://127.0.0.1:9\", \"anon_key\": \"stale-key\"}");
        stale.close();
        Config::setCurrent(Config::resolve(QSettings(m_home.filePath(u"none.conf"_s), QSettings::IniFormat),
                                           QProcessEnvironment(), dataDir));
        const int generation = Config::generation();

        const Config live = runBlocking(Startup::ensureBackend());
        QCOMPARE(Config::generation(), generation + 1);
        QCOMPARE(Config::current().supabaseAnonKey, live.supabaseAnonKey);
        const QString failure = accountWorks(live.supabaseURL, live.supabaseAnonKey);
        QVERIFY2(failure.isEmpty(), qPrintable(failure));

        // A second time the running server is found, and the configuration stays the same.
        const qint64 pid = runBlocking(Startup::localServer().status()).pid;
        QCOMPARE(runBlocking(Startup::ensureBackend()).supabaseURL, live.supabaseURL);
        QCOMPARE(runBlocking(Startup::localServer().status()).pid, pid);
    }
};

QTEST_GUILESS_MAIN(TestStartup)
#include "tst_startup.moc"
