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
        // Settings, environment: "url|key", an empty side unset, blanks kept as they are.
        QTest::addColumn<QString>("settings");
        QTest::addColumn<QString>("environment");
        QTest::addColumn<bool>("localServerWroteItsFile");
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QList<int>>("sources");
        const int settings = int(Config::Source::Settings);
        const int environment = int(Config::Source::Environment);
        const int local = int(Config::Source::LocalServer);
        QTest::newRow("settings win over the environment")
            << u"https://team.example.org|key-s"_s << u"https://env.example.org|key-e"_s << true
            << u"https://team.example.org"_s << u"key-s"_s << QList<int>{settings, settings};
        QTest::newRow("blank setting falls through")
            << u"   |"_s << u"https://env.example.org|key-e"_s << false << u"https://env.example.org"_s << u"key-e"_s
            << QList<int>{environment, environment};
        QTest::newRow("local backend that has started") << u"|"_s << u"|"_s << true << u"http://127.0.0.1:55000"_s
                                                        << u"local-anon-key"_s << QList<int>{local, local};
        QTest::newRow("local backend not started yet")
            << u"|"_s << u"|"_s << false << u"http://127.0.0.1:54321"_s << QString() << QList<int>{local, local};
        QTest::newRow("each setting on its own")
            << u"|key-s"_s << u"https://env.example.org|"_s << true << u"https://env.example.org"_s << u"key-s"_s
            << QList<int>{environment, settings};
    }

    void lookupOrder()
    {
        QFETCH(QString, settings);
        QFETCH(QString, environment);
        QFETCH(bool, localServerWroteItsFile);
        QTemporaryDir dir;
        QSettings stored(dir.filePath(u"morvane.conf"_s), QSettings::IniFormat);
        QProcessEnvironment variables;
        const QStringList names{u"SUPABASE_URL"_s, u"SUPABASE_ANON_KEY"_s};
        for (int i = 0; i < 2; ++i) {
            if (const QString value = settings.section(u'|', i, i); !value.isEmpty()) {
                stored.setValue(names[i], value);
            }
            if (const QString value = environment.section(u'|', i, i); !value.isEmpty()) {
                variables.insert(names[i], value);
            }
        }
        if (localServerWroteItsFile) {
            QFile info(dir.filePath(u"server.json"_s));
            QVERIFY(info.open(QIODevice::WriteOnly));
            // moc misreads raw strings holding "//", so this one is escaped.
            info.write("{\"url\":\"http://127.0.0.1:55000\",\"anon_key\":\"local-anon-key\"}");
        }
        const Config config = Config::resolve(stored, variables, dir.path());
        QTEST(config.supabaseURL.toString(), "url");
        QTEST(config.supabaseAnonKey, "key");
        QTEST((QList<int>{int(config.urlSource), int(config.keySource)}), "sources");
    }
};

QTEST_GUILESS_MAIN(TestConfig)
#include "tst_config.moc"
