#include "sessions/claudewatcher.h"
#include "sessions/sessionjson.h"
#include "sessions/sessionlogreader.h"
#include "support/testdata.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonDocument>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <qcoro/qcorotask.h>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

const QString webshop = u"/home/ana/code/webshop"_s;
const QString invoicer = u"/home/ana/code/invoicer"_s;

QDateTime at(const QString &iso)
{
    return QDateTime::fromString(iso, Qt::ISODateWithMs).toUTC();
}

LogInstant ms(const QString &iso)
{
    return at(iso).toMSecsSinceEpoch();
}

QByteArray describe(const std::optional<ParsedSession> &session)
{
    return session ? QJsonDocument(SessionJson::toJson(*session)).toJson(QJsonDocument::Indented) : "no session";
}

#define COMPARE_SESSION(actual, expected)                                                                              \
    QVERIFY2((actual) == (expected), QByteArray(describe(actual) + "\n  expected:\n" + describe(expected)).constData())

SessionSegment burst(const QString &sessionId, int index, const QString &title, const QString &from, const QString &to,
                     qint64 active, int prompts)
{
    return SessionSegment{sessionId, index, title, at(from), at(to), active, prompts};
}

void setModified(const QString &path, const QDateTime &when)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(when, QFileDevice::FileModificationTime));
}

// A copy of the fixture folder whose files all changed an hour ago.
QString copyFixtures(const QTemporaryDir &dir)
{
    const QString source = QStringLiteral(MORVANE_TEST_DATA "/sessions/projects");
    const QString target = dir.filePath(u"projects"_s);
    QDirIterator it(source, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    const QDateTime anHourAgo = QDateTime::currentDateTimeUtc().addSecs(-3600);
    while (it.hasNext()) {
        const QString from = it.next();
        const QString to = target + from.mid(source.size());
        QDir().mkpath(QFileInfo(to).absolutePath());
        QFile::copy(from, to);
        setModified(to, anHourAgo);
    }
    return target;
}

void append(const QString &path, const QByteArray &bytes, qint64 shiftSeconds = 1)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::Append));
    file.write(bytes);
    file.close();
    // Modification times can be coarse; move them on so that the change is always seen.
    setModified(path, QFileInfo(path).lastModified().toUTC().addSecs(shiftSeconds));
}

void write(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(bytes);
}

QByteArray userLine(const QString &timestamp, const QString &text)
{
    return u"{\"type\":\"user\",\"cwd\":\"/w\",\"timestamp\":\"%1\",\"message\":{\"role\":\"user\",\"content\":\"%2\"}}\n"_s
        .arg(timestamp, text)
        .toUtf8();
}

QByteArray agentLine(const QString &timestamp, const QByteArray &padding = {})
{
    return "{\"type\":\"assistant\",\"cwd\":\"/w\",\"timestamp\":\"" + timestamp.toUtf8() +
           "\",\"message\":{\"content\":[{\"type\":\"text\",\"text\":\"" + padding + "\"}]}}\n";
}

ParsedSession firstById(const QList<ParsedSession> &sessions)
{
    return *std::min_element(sessions.cbegin(), sessions.cend(),
                             [](const auto &a, const auto &b) { return a.sessionId < b.sessionId; });
}

QStringList ids(const QList<ParsedSession> &sessions)
{
    QStringList list;
    for (const ParsedSession &session : sessions) {
        list.append(session.sessionId);
    }
    list.sort();
    return list;
}

// How a log changes between two walks.
constexpr int Append = 0;
constexpr int Rewrite = 1;
constexpr int Replace = 2;

} // namespace

class TestClaudeWatcher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { ClaudeWatcher::clearParseCache(); }

    void parsesFixtureLogs_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<std::optional<ParsedSession>>("expected");

        const auto session = [](const QString &id, const QString &cwd, std::optional<QString> title,
                                const QString &from, const QString &to, qint64 active, int prompts,
                                QList<SessionSegment> segments = {}) {
            return std::optional(
                ParsedSession{id, cwd, std::move(title), at(from), at(to), active, prompts, std::move(segments)});
        };
        const QString checkout = u"4f1c2a9e-7b3d-4e2a-9c1f-0a5b6c7d8e9f"_s;
        const QString vat = u"Refactor the checkout so that VAT is computed per line"_s;
        // Prompts at 10:00, 10:10 and 10:25 are one burst (the last gap is exactly the idle gap);
        // 10:41:01 is 961 s later and starts another. The 901 s before it count nowhere, and the
        // agent's answers after the last prompt count for the session only.
        QTest::newRow("two bursts, mixed time stamp forms")
            << u"-home-ana-code-webshop/"_s + checkout
            << session(checkout, webshop, vat, u"2025-03-01T10:00:00Z"_s, u"2025-03-01T10:42:00Z"_s, 1615, 4,
                       {burst(checkout, 0, vat, u"2025-03-01T10:00:00Z"_s, u"2025-03-01T10:25:00Z"_s, 1497, 3),
                        burst(checkout, 1, u"Commit with a clear message"_s, u"2025-03-01T10:41:01Z"_s,
                              u"2025-03-01T10:41:01Z"_s, 60, 1)});
        const QString tools = u"9a8b7c6d-5e4f-4a3b-8c2d-1e0f9a8b7c6d"_s;
        // Tool results are no prompt, and a blank first text part is not replaced by a later one.
        QTest::newRow("no prompts, a 30 minute pause dropped whole")
            << u"-home-ana-code-webshop/"_s + tools
            << session(tools, webshop, std::nullopt, u"2025-03-02T09:00:00Z"_s, u"2025-03-02T09:36:30Z"_s, 390, 0);
        const QString numbering = u"c0ffee00-1234-4abc-9def-000000000003"_s;
        const QString cut141 = u"Rename every invoice number column so that the yearly sequence, the prefix and the "
                               u"padding live in one place and the old migration still app..."_s;
        QTest::newRow("prompt rules and undecodable lines")
            << u"-home-ana-code-invoicer/"_s + numbering
            << session(numbering, invoicer, cut141, u"2025-03-03T14:00:00Z"_s, u"2025-03-03T14:01:10Z"_s, 70, 7,
                       {burst(numbering, 0, cut141, u"2025-03-03T14:00:10Z"_s, u"2025-03-03T14:01:10Z"_s, 60, 7)});
        const QString truncated = u"7e57a11e-0000-4000-8000-000000000006"_s;
        const QString ledger = u"Export the ledger as CSV"_s;
        QTest::newRow("last line still being written")
            << u"-home-ana-code-invoicer/"_s + truncated
            << session(truncated, invoicer, ledger, u"2025-03-04T08:00:00Z"_s, u"2025-03-04T08:00:20Z"_s, 20, 1,
                       {burst(truncated, 0, ledger, u"2025-03-04T08:00:00Z"_s, u"2025-03-04T08:00:00Z"_s, 60, 1)});
        QTest::newRow("no working directory, even with prompts")
            << u"-home-ana-code-invoicer/d00d0000-0000-4000-8000-000000000004"_s << std::optional<ParsedSession>();
        QTest::newRow("one byte that is not UTF-8")
            << u"-home-ana-code-invoicer/bad0bad0-0000-4000-8000-000000000005"_s << std::optional<ParsedSession>();
    }

    void parsesFixtureLogs()
    {
        QFETCH(QString, file);
        QFETCH(std::optional<ParsedSession>, expected);
        const QString path = QStringLiteral(MORVANE_TEST_DATA "/sessions/projects/") + file + u".jsonl"_s;
        const QString sessionId = QFileInfo(path).completeBaseName();
        COMPARE_SESSION(ClaudeWatcher::parse(path, sessionId, 900), expected);
    }

    void promptsFollowTheTextRules()
    {
        const QString path = QStringLiteral(MORVANE_TEST_DATA "/sessions/projects/-home-ana-code-invoicer/"
                                                              "c0ffee00-1234-4abc-9def-000000000003.jsonl");
        // Each burst's title is its first prompt: with an idle gap of 1 s every prompt but the two
        // of the same second is a burst of its own, in date order.
        const std::optional<ParsedSession> session = ClaudeWatcher::parse(path, u"s"_s, 1);
        QVERIFY(session);
        QStringList titles;
        for (const SessionSegment &segment : session->segments) {
            titles.append(segment.title);
        }
        const QString exactly140 = u"Rename every invoice number column so that the yearly sequence, the prefix and "
                                   u"the padding live in one place and the old migration still ap!"_s;
        // 139 letters, a person at a computer (one character of five code units) and one more.
        const QString emoji = QString(139, u'x') + QString::fromUtf8("\U0001F469\u200D\U0001F4BB") + u"..."_s;
        QCOMPARE(titles,
                 (QStringList{session->firstUserMessage.value(), exactly140, u"Why did numbering skip 2025-004?"_s,
                              emoji, u"First of two at the same second"_s, u"Message before type"_s}));
        QCOMPARE(session->segments[4].promptCount, 2);
        // The first working directory wins; a later different one is not looked at.
        QCOMPARE(session->cwd, invoicer);
    }

    void computeActive_data()
    {
        QTest::addColumn<QList<LogInstant>>("instants");
        QTest::addColumn<qint64>("expected");
        const auto row = [](const char *name, std::initializer_list<const char *> times, qint64 expected) {
            QList<LogInstant> instants;
            for (const char *time : times) {
                instants.append(ms(u"2025-03-01T"_s + QLatin1String(time) + u"Z"_s));
            }
            QTest::newRow(name) << instants << expected;
        };
        row("gap of exactly the idle gap counts", {"10:00:00", "10:15:00"}, 900);
        row("one second more counts nothing", {"10:00:00", "10:15:01"}, 0);
        row("fractions truncated per gap", {"10:00:00.000", "10:00:00.999", "10:00:02.998"}, 1);
        row("900.999 s is 900 whole seconds", {"10:00:00.000", "10:15:00.999"}, 900);
    }

    void computeActive()
    {
        QFETCH(QList<LogInstant>, instants);
        QFETCH(qint64, expected);
        QCOMPARE(ClaudeWatcher::computeActive(instants, 900), expected);
    }

    void segment_data()
    {
        QTest::addColumn<QList<UserPrompt>>("prompts");
        QTest::addColumn<QList<LogInstant>>("others");
        QTest::addColumn<QList<SessionSegment>>("expected");

        const auto t = [](const char *time) -> QString { return u"2025-03-01T"_s + QLatin1String(time) + u"Z"_s; };
        const auto p = [&](const char *time, const char *text) {
            return UserPrompt{ms(t(time)), text ? std::optional(QString::fromUtf8(text)) : std::nullopt};
        };
        // Exactly the idle gap apart stays one burst: the first fixture log's 10:10 and 10:25.
        QTest::newRow("15:01 apart: two bursts of a minute each")
            << QList<UserPrompt>{p("10:00:00", "a"), p("10:15:01", "b")} << QList<LogInstant>{ms(t("10:05:00"))}
            << QList<SessionSegment>{burst(u"s"_s, 0, u"a"_s, t("10:00:00"), t("10:00:00"), 60, 1),
                                     burst(u"s"_s, 1, u"b"_s, t("10:15:01"), t("10:15:01"), 60, 1)};
        QTest::newRow("61 s stay 61; lines after the last prompt are not the burst's")
            << QList<UserPrompt>{p("10:00:00", "a"), p("10:01:01", "b")}
            << QList<LogInstant>{ms(t("10:00:30")), ms(t("10:05:00"))}
            << QList<SessionSegment>{burst(u"s"_s, 0, u"a"_s, t("10:00:00"), t("10:01:01"), 61, 2)};
        QTest::newRow("a prompt without text is named by position")
            << QList<UserPrompt>{p("10:00:00", "a"), p("11:00:00", nullptr)} << QList<LogInstant>{}
            << QList<SessionSegment>{burst(u"s"_s, 0, u"a"_s, t("10:00:00"), t("10:00:00"), 60, 1),
                                     burst(u"s"_s, 1, u"Claude segment 2"_s, t("11:00:00"), t("11:00:00"), 60, 1)};
    }

    void segment()
    {
        QFETCH(QList<UserPrompt>, prompts);
        QFETCH(QList<LogInstant>, others);
        QFETCH(QList<SessionSegment>, expected);
        QList<LogInstant> all = others;
        for (const UserPrompt &prompt : prompts) {
            all.append(prompt.at);
        }
        std::sort(all.begin(), all.end());
        const QList<SessionSegment> segments = ClaudeWatcher::segment(u"s"_s, prompts, all, 900);
        QVERIFY2(segments == expected, QJsonDocument(SessionJson::toJson(segments.value(0))).toJson().constData());
    }

    void timestampForms_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("utc"); // empty: refused

        QTest::newRow("microseconds") << u"2025-03-01T10:15:30.123456Z"_s << u"2025-03-01T10:15:30.123Z"_s;
        QTest::newRow("offset") << u"2025-03-01T00:15:30+01:00"_s << u"2025-02-28T23:15:30.000Z"_s;
        QTest::newRow("negative offset") << u"2024-02-29T22:00:00.250-03:30"_s << u"2024-03-01T01:30:00.250Z"_s;
        QTest::newRow("no zone") << u"2025-03-01T10:15:30"_s << QString();
        QTest::newRow("no leap day") << u"2025-02-29T10:15:30Z"_s << QString();
    }

    void timestampForms()
    {
        QFETCH(QString, text);
        QFETCH(QString, utc);
        const QByteArray bytes = text.toUtf8();
        const std::optional<LogInstant> instant =
            SessionLogReader::parseTimestamp({bytes.constData(), size_t(bytes.size())});
        QCOMPARE(instant ? SessionJson::instant(QDateTime::fromMSecsSinceEpoch(*instant, Qt::UTC)) : QString(), utc);
    }

    void walksTheProjectsFolder()
    {
        QTemporaryDir dir;
        const QString projects = copyFixtures(dir);
        ClaudeWatcher::ScanStats stats;
        const QList<ParsedSession> first =
            ClaudeWatcher::enumerateSessions(projects, 900, 30, QDateTime::currentDateTimeUtc(), &stats);
        QCOMPARE(ids(first),
                 (QStringList{u"4f1c2a9e-7b3d-4e2a-9c1f-0a5b6c7d8e9f"_s, u"7e57a11e-0000-4000-8000-000000000006"_s,
                              u"9a8b7c6d-5e4f-4a3b-8c2d-1e0f9a8b7c6d"_s, u"c0ffee00-1234-4abc-9def-000000000003"_s}));
        // The stray file beside the folders is not a folder; notes.txt is no log.
        QCOMPARE(stats.filesSeen, 6);
        QCOMPARE(stats.filesReadWhole, 6);

        // Unchanged: nothing is opened, not even the files that gave no session.
        const QList<ParsedSession> second =
            ClaudeWatcher::enumerateSessions(projects, 900, 30, QDateTime::currentDateTimeUtc(), &stats);
        QCOMPARE(ids(second), ids(first));
        QCOMPARE(stats.filesFromCache, 6);
        QCOMPARE(stats.bytesRead, qint64(0));

        // Another idle gap reads every file again and gives other figures.
        const QList<ParsedSession> regapped =
            ClaudeWatcher::enumerateSessions(projects, 1000, 30, QDateTime::currentDateTimeUtc(), &stats);
        QCOMPARE(stats.filesReadWhole, 6);
        const ParsedSession checkout = firstById(regapped);
        QCOMPARE(checkout.activeSeconds, 1615 + 901);
        QCOMPARE(checkout.segments.size(), 1);
    }

    void skipsFilesPastTheCutOff()
    {
        QTemporaryDir dir;
        const QString projects = copyFixtures(dir);
        const QString old = projects + u"/-home-ana-code-webshop/9a8b7c6d-5e4f-4a3b-8c2d-1e0f9a8b7c6d.jsonl"_s;
        const QDateTime now = QDateTime::currentDateTimeUtc();
        setModified(old, now.addDays(-31));
        ClaudeWatcher::ScanStats stats;

        const QString id = u"9a8b7c6d-5e4f-4a3b-8c2d-1e0f9a8b7c6d"_s;
        QVERIFY(ids(ClaudeWatcher::enumerateSessions(projects, 900, 60, now, &stats)).contains(id));
        QVERIFY(!ids(ClaudeWatcher::enumerateSessions(projects, 900, 30, now, &stats)).contains(id));
        QCOMPARE(stats.filesSeen, 5);
        QCOMPARE(stats.filesFromCache, 5);
        // The 30-day walk dropped the old file from the cache, so the next 60-day walk reads it.
        QVERIFY(ids(ClaudeWatcher::enumerateSessions(projects, 900, 60, now, &stats)).contains(id));
        QCOMPARE(stats.filesReadWhole, 1);
        QCOMPARE(stats.filesFromCache, 5);
        // Exactly at the cut-off is still recent.
        setModified(old, now.addDays(-30));
        QVERIFY(ids(ClaudeWatcher::enumerateSessions(projects, 900, 30, now, &stats)).contains(id));
    }

    void badInputNeverStopsAWalk()
    {
        QTemporaryDir dir;
        const QString projects = copyFixtures(dir);
        const QString folder = projects + u"/-home-ana-code-webshop"_s;
        // A tool result of 24 MB on one line: larger than the read buffer.
        const QString huge = folder + u"/1a2b3c4d-huge.jsonl"_s;
        write(huge, userLine(u"2025-03-05T10:00:00Z"_s, u"Summarise the dump"_s) +
                        agentLine(u"2025-03-05T10:00:30Z"_s, QByteArray(24 << 20, 'z')) +
                        "{\"type\":\"assistant\",\"timestamp\":\"2025-03-05T10:00:31Z\",\"x\":[" +
                        QByteArray(3 << 20, ' ') + "\n" + agentLine(u"2025-03-05T10:01:00Z"_s));
        // Unreadable even for root: the kernel refuses reads at offset 0 of a process's memory.
        QVERIFY(QFile::link(u"/proc/self/mem"_s, folder + u"/unreadable.jsonl"_s));
        QVERIFY(QFile::link(folder + u"/missing"_s, folder + u"/dangling.jsonl"_s));
        QDir().mkpath(folder + u"/folder.jsonl"_s);
        QVERIFY(QFile::link(projects + u"/loop"_s, projects + u"/loop"_s));
        setModified(huge, QDateTime::currentDateTimeUtc().addSecs(-60));

        const QList<ParsedSession> sessions = ClaudeWatcher::enumerateSessions(projects, 900, 30);
        QCOMPARE(ids(sessions),
                 (QStringList{u"1a2b3c4d-huge"_s, u"4f1c2a9e-7b3d-4e2a-9c1f-0a5b6c7d8e9f"_s,
                              u"7e57a11e-0000-4000-8000-000000000006"_s, u"9a8b7c6d-5e4f-4a3b-8c2d-1e0f9a8b7c6d"_s,
                              u"c0ffee00-1234-4abc-9def-000000000003"_s}));
        const ParsedSession dump = firstById(sessions);
        // The broken line in the middle gives no time stamp; the lines around it do.
        QCOMPARE(dump.activeSeconds, 60);
        QCOMPARE(dump.endedAt, at(u"2025-03-05T10:01:00Z"_s));
        QCOMPARE(dump.firstUserMessage, std::optional(u"Summarise the dump"_s));
    }

    // Walks after a change read only the new bytes where they can, and the whole file where what
    // was read before changed; either way they equal one full read.
    void laterWalksEqualAFullRead_data()
    {
        QTest::addColumn<QByteArray>("initial");
        QTest::addColumn<QList<QByteArray>>("steps");
        QTest::addColumn<int>("change");
        QTest::addColumn<bool>("extended"); // the last walk read only new bytes

        const QByteArray start = userLine(u"2025-03-01T10:00:00Z"_s, u"first"_s) + agentLine(u"2025-03-01T10:00:10Z"_s);
        QTest::newRow("a line finished after being read half")
            << start
            << QList<QByteArray>{userLine(u"2025-03-01T10:05:00Z"_s, u"second"_s).left(40),
                                 userLine(u"2025-03-01T10:05:00Z"_s, u"second"_s).mid(40)}
            << Append << true;
        QTest::newRow("older time stamps and a prompt of an equal date arrive late")
            << start
            << QList<QByteArray>{userLine(u"2025-03-01T09:59:00Z"_s, u"earlier"_s) +
                                 userLine(u"2025-03-01T10:00:00Z"_s, u"same date, later in file"_s)}
            << Append << true;
        QTest::newRow("a file that was only a partial line")
            << QByteArray("{\"type\":\"us") << QList<QByteArray>{QByteArray("er\"}\n") + start} << Append << false;
        const QByteArray first = userLine(u"2025-03-01T10:00:00Z"_s, u"first"_s);
        QTest::newRow("last line rewritten, file longer")
            << start
            << QList<QByteArray>{first + agentLine(u"2025-03-01T10:00:19Z"_s) + agentLine(u"2025-03-01T10:01:00Z"_s)}
            << Rewrite << false;
        QTest::newRow("replaced by another file")
            << start
            << QList<QByteArray>{first + agentLine(u"2025-03-01T10:00:10Z"_s) + agentLine(u"2025-03-01T10:02:00Z"_s)}
            << Replace << false;
    }

    void laterWalksEqualAFullRead()
    {
        QFETCH(QByteArray, initial);
        QFETCH(QList<QByteArray>, steps);
        QFETCH(int, change);
        QFETCH(bool, extended);
        QTemporaryDir dir;
        const QString path = dir.filePath(u"p/s.jsonl"_s);
        write(path, initial);
        setModified(path, QDateTime::currentDateTimeUtc().addSecs(-600));
        ClaudeWatcher::ScanStats stats;
        ClaudeWatcher::enumerateSessions(dir.path(), 900, 30, QDateTime::currentDateTimeUtc(), &stats);
        QCOMPARE(stats.filesReadWhole, 1);
        for (const QByteArray &bytes : steps) {
            if (change == Append) {
                append(path, bytes);
            } else {
                write(change == Rewrite ? path : path + u".new"_s, bytes);
                QVERIFY(change == Rewrite || ::rename(QFile::encodeName(path + u".new"_s).constData(),
                                                      QFile::encodeName(path).constData()) == 0);
                setModified(path, QDateTime::currentDateTimeUtc().addSecs(-300));
            }
            const QList<ParsedSession> walked =
                ClaudeWatcher::enumerateSessions(dir.path(), 900, 30, QDateTime::currentDateTimeUtc(), &stats);
            const std::optional<ParsedSession> full = ClaudeWatcher::parse(path, u"s"_s, 900);
            COMPARE_SESSION(walked.isEmpty() ? std::nullopt : std::optional(walked.first()), full);
        }
        QCOMPARE(stats.filesExtended, extended ? 1 : 0);
        QCOMPARE(stats.filesReadWhole, extended ? 0 : 1);
        if (extended) {
            QVERIFY(stats.bytesRead < QFileInfo(path).size());
        }
    }

    void liveSessionsAreNewestFirst()
    {
        QTemporaryDir dir;
        const QString projects = copyFixtures(dir);
        auto settings = std::make_shared<QSettings>(dir.filePath(u"settings.ini"_s), QSettings::IniFormat);
        settings->setValue(u"claude_idle_gap_seconds"_s, 0); // not positive: 900
        ClaudeWatcher watcher(settings, projects);
        int changes = 0;
        connect(&watcher, &ClaudeWatcher::liveSessionsChanged, this, [&] { ++changes; });
        QCoro::waitFor(watcher.loadLiveSessions());
        QCOMPARE(changes, 1);
        QStringList order;
        for (const ParsedSession &session : watcher.liveSessions()) {
            order.append(session.sessionId);
        }
        QCOMPARE(order,
                 (QStringList{u"7e57a11e-0000-4000-8000-000000000006"_s, u"c0ffee00-1234-4abc-9def-000000000003"_s,
                              u"9a8b7c6d-5e4f-4a3b-8c2d-1e0f9a8b7c6d"_s, u"4f1c2a9e-7b3d-4e2a-9c1f-0a5b6c7d8e9f"_s}));
        QCOMPARE(watcher.liveSessions().last().activeSeconds, 1615);
    }
};

QTEST_GUILESS_MAIN(TestClaudeWatcher)
#include "tst_claudewatcher.moc"
