#include "backend/config.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestConfig : public QObject
{
    Q_OBJECT

private slots:
    void lookupOrder_data()
    {
        QTest::addColumn<QString>("settingUrl");
        QTest::addColumn<QString>("environmentUrl");
        QTest::addColumn<QString>("settingKey");
        QTest::addColumn<QString>("environmentKey");
        QTest::addColumn<bool>("localServerWroteItsFile");
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("urlSource");
        QTest::addColumn<int>("keySource");

        const int settings = int(Config::Source::Settings);
        const int environment = int(Config::Source::Environment);
        const int local = int(Config::Source::LocalServer);

        QTest::newRow("settings win over the environment")
            << u"https://team.example.org"_s << u"https://env.example.org"_s << u"key-s"_s << u"key-e"_s << true
            << u"https://team.example.org"_s << u"key-s"_s << settings << settings;
        QTest::newRow("environment when settings are silent")
            << QString() << u"https://env.example.org"_s << QString() << u"key-e"_s << true
            << u"https://env.example.org"_s << u"key-e"_s << environment << environment;
        QTest::newRow("blank setting falls through")
            << u"   "_s << u"https://env.example.org"_s << QString() << u"key-e"_s << false
            << u"https://env.example.org"_s << u"key-e"_s << environment << environment;
        QTest::newRow("local backend that has started")
            << QString() << QString() << QString() << QString() << true << u"http://127.0.0.1:55000"_s
            << u"local-anon-key"_s << local << local;
        QTest::newRow("local backend not started yet") << QString() << QString() << QString() << QString() << false
                                                       << u"http://127.0.0.1:54321"_s << QString() << local << local;
        QTest::newRow("each setting on its own")
            << QString() << u"https://env.example.org"_s << u"key-s"_s << QString() << true
            << u"https://env.example.org"_s << u"key-s"_s << environment << settings;
    }

    void lookupOrder()
    {
        QFETCH(QString, settingUrl);
        QFETCH(QString, environmentUrl);
        QFETCH(QString, settingKey);
        QFETCH(QString, environmentKey);
        QFETCH(bool, localServerWroteItsFile);

        QTemporaryDir dir;
        QSettings settings(dir.filePath(u"morvane.conf"_s), QSettings::IniFormat);
        if (!settingUrl.isNull()) {
            settings.setValue(u"SUPABASE_URL"_s, settingUrl);
        }
        if (!settingKey.isNull()) {
            settings.setValue(u"SUPABASE_ANON_KEY"_s, settingKey);
        }
        QProcessEnvironment environment;
        if (!environmentUrl.isNull()) {
            environment.insert(u"SUPABASE_URL"_s, environmentUrl);
        }
        if (!environmentKey.isNull()) {
            environment.insert(u"SUPABASE_ANON_KEY"_s, environmentKey);
        }
        if (localServerWroteItsFile) {
            QFile info(dir.filePath(u"server.json"_s));
            QVERIFY(info.open(QIODevice::WriteOnly));
            // moc misreads raw strings holding "//", so this one is escaped.
            info.write("{\"url\":\"http://127.0.0.1:55000\",\"anon_key\":\"local-anon-key\"}");
        }

        const Config config = Config::resolve(settings, environment, dir.path());
        QTEST(config.supabaseURL.toString(), "url");
        QTEST(config.supabaseAnonKey, "key");
        QTEST(int(config.urlSource), "urlSource");
        QTEST(int(config.keySource), "keySource");
    }

    void replacingTheSettingIsNoticed()
    {
        const int before = Config::generation();
        Config config;
        config.supabaseURL = QUrl(u"http://127.0.0.1:1"_s);
        Config::setCurrent(config);
        QCOMPARE(Config::generation(), before + 1);
        QCOMPARE(Config::current().supabaseURL, config.supabaseURL);
    }
};

QTEST_GUILESS_MAIN(TestConfig)
#include "tst_config.moc"
