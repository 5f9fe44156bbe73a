#include "app/commandline.h"
#include "i18n/language.h"
#include "sessions/claudewatcher.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

struct Run
{
    int code = 0;
    QString out;
    QString err;
};

Run run(const QStringList &arguments)
{
    Run result;
    QTextStream out(&result.out);
    QTextStream err(&result.err);
    result.code = runCommandLine(QStringList{u"morvane"_s} + arguments, out, err);
    out.flush();
    err.flush();
    return result;
}

void setModified(const QString &path, qint64 secondsAgo)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTimeUtc().addSecs(-secondsAgo), QFileDevice::FileModificationTime));
}

const QString checkout = u"4f1c2a9e-7b3d-4e2a-9c1f-0a5b6c7d8e9f"_s;

} // namespace

// The command reads ~/.claude/projects of whoever runs it; here HOME is a throw-away folder with
// the fixture logs in it.
class TestSessionsCommand : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_home;
    QString m_projects;

    QString logPath(const QString &folder, const QString &sessionId) const
    {
        return m_projects + u'/' + folder + u'/' + sessionId + u".jsonl"_s;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_home.isValid());
        qputenv("HOME", m_home.path().toUtf8());
        qputenv("XDG_CONFIG_HOME", m_home.filePath(u".config"_s).toUtf8());
        qputenv("TZ", "UTC");
        tzset();
        QCoreApplication::setOrganizationName(u"morvane"_s);
        QCoreApplication::setApplicationName(u"morvane"_s);
        Language::apply(u"en"_s);

        const QString source = QStringLiteral(MORVANE_TEST_DATA "/sessions/projects");
        m_projects = m_home.filePath(u".claude/projects"_s);
        QDirIterator it(source, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString from = it.next();
            const QString to = m_projects + from.mid(source.size());
            QDir().mkpath(QFileInfo(to).absolutePath());
            QVERIFY(QFile::copy(from, to));
            setModified(to, 3600);
        }
    }

    void init()
    {
        QSettings().remove(u"claude_idle_gap_seconds"_s);
        ClaudeWatcher::clearParseCache();
    }

    void jsonListsSessionsNewestFirst()
    {
        const Run result = run({u"sessions"_s, u"list"_s, u"--json"_s});
        QCOMPARE(result.code, 0);
        QVERIFY2(result.err.isEmpty(), qPrintable(result.err));
        const QJsonArray sessions = QJsonDocument::fromJson(result.out.toUtf8()).array();
        QStringList order;
        for (const QJsonValue &session : sessions) {
            order.append(session[u"sessionId"].toString());
        }
        QCOMPARE(order,
                 (QStringList{u"7e57a11e-0000-4000-8000-000000000006"_s, u"c0ffee00-1234-4abc-9def-000000000003"_s,
                              u"9a8b7c6d-5e4f-4a3b-8c2d-1e0f9a8b7c6d"_s, checkout}));

        const QJsonObject expected = QJsonDocument::fromJson(R"({
            "sessionId": "4f1c2a9e-7b3d-4e2a-9c1f-0a5b6c7d8e9f",
            "cwd": "/home/ana/code/webshop",
            "firstUserMessage": "Refactor the checkout so that VAT is computed per line",
            "startedAt": "2025-03-01T10:00:00.000Z",
            "endedAt": "2025-03-01T10:42:00.000Z",
            "activeSeconds": 1615,
            "promptCount": 4,
            "segments": [
                {"index": 0, "title": "Refactor the checkout so that VAT is computed per line",
                 "startedAt": "2025-03-01T10:00:00.000Z", "endedAt": "2025-03-01T10:25:00.000Z",
                 "activeSeconds": 1497, "promptCount": 3},
                {"index": 1, "title": "Commit with a clear message",
                 "startedAt": "2025-03-01T10:41:01.000Z", "endedAt": "2025-03-01T10:41:01.000Z",
                 "activeSeconds": 60, "promptCount": 1}
            ]})")
                                         .object();
        QCOMPARE(sessions.last().toObject(), expected);
        // A session without prompts has no first message and no bursts.
        QCOMPARE(sessions[2][u"firstUserMessage"], QJsonValue(QJsonValue::Null));
        QCOMPARE(sessions[2][u"segments"].toArray().size(), 0);
    }

    void readsTheIdleGapSetting()
    {
        QSettings().setValue(u"claude_idle_gap_seconds"_s, 1000);
        const Run result = run({u"sessions"_s, u"list"_s, u"--json"_s});
        QCOMPARE(result.code, 0);
        const QJsonObject session = QJsonDocument::fromJson(result.out.toUtf8()).array().last().toObject();
        QCOMPARE(session[u"sessionId"].toString(), checkout);
        QCOMPARE(session[u"activeSeconds"].toInt(), 1615 + 901);
        QCOMPARE(session[u"segments"].toArray().size(), 1);
    }

    void daysSetsTheCutOff()
    {
        const QString old = logPath(u"-home-ana-code-webshop"_s, checkout);
        setModified(old, 40 * 86400);
        const Run recent = run({u"sessions"_s, u"list"_s, u"--json"_s});
        const Run longer = run({u"sessions"_s, u"list"_s, u"--days"_s, u"41"_s, u"--json"_s});
        const Run shorter = run({u"sessions"_s, u"list"_s, u"--days=1"_s, u"--json"_s});
        setModified(old, 3600);
        QCOMPARE(QJsonDocument::fromJson(recent.out.toUtf8()).array().size(), 3);
        QCOMPARE(QJsonDocument::fromJson(longer.out.toUtf8()).array().size(), 4);
        QCOMPARE(QJsonDocument::fromJson(shorter.out.toUtf8()).array().size(), 3);
    }

    void refusesBadArguments_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("message");
        const QString usage = u"Usage: morvane sessions list [--days N] [--json] | scan [--json] | map <dir> "
                              u"<project-id> | ignore <dir> | reimport <session>|--all | track on|off"_s;
        const QString days = u"--days takes a whole number of days from 1 to 36500."_s;
        QTest::newRow("no action") << QStringList{u"sessions"_s} << usage;
        QTest::newRow("unknown action") << QStringList{u"sessions"_s, u"lsit"_s} << usage;
        QTest::newRow("extra argument") << QStringList{u"sessions"_s, u"list"_s, u"now"_s} << usage;
        QTest::newRow("unknown option") << QStringList{u"sessions"_s, u"list"_s, u"--all"_s} << usage;
        QTest::newRow("--days without value") << QStringList{u"sessions"_s, u"list"_s, u"--days"_s} << usage;
        QTest::newRow("--json outside list") << QStringList{u"sessions"_s, u"track"_s, u"on"_s, u"--json"_s} << usage;
        QTest::newRow("--days with scan") << QStringList{u"sessions"_s, u"scan"_s, u"--days"_s, u"3"_s} << usage;
        QTest::newRow("scan of a folder") << QStringList{u"sessions"_s, u"scan"_s, u"/w"_s} << usage;
        QTest::newRow("track what") << QStringList{u"sessions"_s, u"track"_s, u"maybe"_s} << usage;
        QTest::newRow("map without project") << QStringList{u"sessions"_s, u"map"_s, u"/w"_s} << usage;
        QTest::newRow("ignore without folder") << QStringList{u"sessions"_s, u"ignore"_s} << usage;
        QTest::newRow("reimport of nothing") << QStringList{u"sessions"_s, u"reimport"_s} << usage;
        QTest::newRow("reimport of one and all")
            << QStringList{u"sessions"_s, u"reimport"_s, u"a1"_s, u"--all"_s} << usage;
        QTest::newRow("zero days") << QStringList{u"sessions"_s, u"list"_s, u"--days"_s, u"0"_s} << days;
        QTest::newRow("negative days") << QStringList{u"sessions"_s, u"list"_s, u"--days=-3"_s} << days;
        QTest::newRow("not a number") << QStringList{u"sessions"_s, u"list"_s, u"--days"_s, u"week"_s} << days;
        QTest::newRow("too many days") << QStringList{u"sessions"_s, u"list"_s, u"--days"_s, u"36501"_s} << days;
    }

    void refusesBadArguments()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, message);
        const Run result = run(arguments);
        QCOMPARE(result.code, 2);
        QVERIFY2(result.err.contains(message), qPrintable(result.err));
        QVERIFY(result.out.isEmpty());
    }

    void printsSessionsGroupedByDirectory()
    {
        const Run result = run({u"sessions"_s, u"list"_s});
        QCOMPARE(result.code, 0);
        const QStringList lines = result.out.split(u'\n', Qt::SkipEmptyParts);
        // The invoicer's sessions ended last, so its group comes first; each directory once.
        QCOMPARE(lines.first(), u"/home/ana/code/invoicer · sessions: 2 · active 0:01:30"_s);
        QCOMPARE(lines.filter(u"/home/ana/code/webshop · "_s),
                 QStringList{u"/home/ana/code/webshop · sessions: 2 · active 0:33:25"_s});
        QVERIFY(lines.contains(u"  4f1c2a9e-7b3d-4e2a-9c1f-0a5b6c7d8e9f · 2025-03-01 10:00 to 2025-03-01 10:42 · "
                               u"active 0:26:55 · prompts: 4"_s));
        QVERIFY(lines.contains(u"    1. 2025-03-01 10:00 to 2025-03-01 10:25 · active 0:24:57 · prompts: 3 · "
                               u"Refactor the checkout so that VAT is computed per line"_s));
        QVERIFY(lines.contains(u"    2. 2025-03-01 10:41 to 2025-03-01 10:41 · active 0:01:00 · prompts: 1 · "
                               u"Commit with a clear message"_s));
        // A session without prompts is shown as the one burst it would be logged as.
        QVERIFY(lines.contains(u"    1. 2025-03-02 09:00 to 2025-03-02 09:36 · active 0:06:30 · prompts: 0 · "
                               u"Claude session"_s));
    }

    void saysSoWhenThereAreNoSessions()
    {
        const Run result = run({u"sessions"_s, u"list"_s, u"--days"_s, u"1"_s});
        QCOMPARE(result.code, 0);
        // The fixtures changed an hour ago: still a day's sessions.
        QVERIFY(result.out.startsWith(u"/home/ana/code/invoicer · sessions: 2"_s));
        QTemporaryDir empty;
        const QByteArray home = qgetenv("HOME");
        qputenv("HOME", empty.path().toUtf8());
        const Run none = run({u"sessions"_s, u"list"_s});
        const Run json = run({u"sessions"_s, u"list"_s, u"--json"_s});
        qputenv("HOME", home);
        QCOMPARE(none.code, 0);
        QCOMPARE(none.out, u"No Claude sessions parsed yet\nLooked for logs changed in the last 30 days in "_s +
                               empty.path() + u"/.claude/projects.\n"_s);
        QCOMPARE(QJsonDocument::fromJson(json.out.toUtf8()).array(), QJsonArray());
    }

    void changesTheTrackingSettings()
    {
        const auto value = [](const QString &key) { return QSettings().value(key); };
        QCOMPARE(run({u"sessions"_s, u"track"_s, u"on"_s}).code, 0);
        QCOMPARE(value(u"claude_tracking_enabled"_s).toBool(), true);
        const Run off = run({u"sessions"_s, u"track"_s, u"off"_s});
        QCOMPARE(off.out, u"Claude sessions are no longer tracked.\n"_s);
        QCOMPARE(value(u"claude_tracking_enabled"_s).toBool(), false);

        QCOMPARE(run({u"sessions"_s, u"map"_s, u"/home/ana/code/webshop"_s, u"project-7"_s}).out,
                 u"/home/ana/code/webshop is mapped to project project-7.\n"_s);
        QCOMPARE(value(u"claude_path_mappings"_s).toMap().value(u"/home/ana/code/webshop"_s).toString(),
                 u"project-7"_s);

        QSettings().setValue(u"claude_processed_sessions"_s, QStringList{u"zz"_s});
        QCOMPARE(run({u"sessions"_s, u"ignore"_s, u"/home/ana/code/webshop"_s}).out,
                 u"Ignored /home/ana/code/webshop: 2 sessions there will not be logged.\n"_s);
        QStringList processed = value(u"claude_processed_sessions"_s).toStringList();
        QCOMPARE(QSet<QString>(processed.cbegin(), processed.cend()),
                 (QSet<QString>{u"zz"_s, checkout, u"9a8b7c6d-5e4f-4a3b-8c2d-1e0f9a8b7c6d"_s}));

        QSettings().setValue(u"claude_processed_sessions"_s,
                             QStringList{checkout + u":seg0"_s, u"zz"_s, checkout + u":seg1"_s, checkout});
        QCOMPARE(run({u"sessions"_s, u"reimport"_s, checkout}).code, 0);
        QCOMPARE(value(u"claude_processed_sessions"_s).toStringList(), QStringList{u"zz"_s});
        const Run unknown = run({u"sessions"_s, u"reimport"_s, u"nope"_s});
        QCOMPARE(unknown.code, 1);
        QCOMPARE(unknown.err, u"No session nope among the logs of the last 60 days.\n"_s);
        QCOMPARE(run({u"sessions"_s, u"reimport"_s, u"--all"_s}).out,
                 u"Every session will be logged again by the next scan.\n"_s);
        QVERIFY(value(u"claude_processed_sessions"_s).toStringList().isEmpty());
        QSettings().remove(u"claude_path_mappings"_s);
    }

    void isListedInTheHelp()
    {
        const Run result = run({u"--help"_s});
        QVERIFY(result.out.contains(u"sessions"_s));
    }
};

QTEST_GUILESS_MAIN(TestSessionsCommand)
#include "tst_sessionscommand.moc"
