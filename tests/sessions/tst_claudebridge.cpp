#include "backend/runblocking.h"
#include "i18n/language.h"
#include "sessions/claudebridge.h"
#include "sessions/claudebridgeerror.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <qcoro/qcorotask.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &bytes, QFileDevice::Permissions permissions)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(bytes);
    file.close();
    QVERIFY(file.setPermissions(permissions));
}

constexpr auto executable = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
constexpr auto plain = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

template<typename T>
QString failureOf(QCoro::Task<T> task)
{
    try {
        runBlocking(std::move(task));
    } catch (const MorvaneError &error) {
        return error.message();
    }
    return u"(no failure)"_s;
}

} // namespace

class TestClaudeBridge : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString m_record;
    std::shared_ptr<QSettings> m_settings;

    // A bridge that finds the fake program through CLAUDE_CLI_PATH and runs it in `mode`.
    ClaudeBridge bridge(const QString &mode, const QString &text = {}) const
    {
        QProcessEnvironment environment;
        environment.insert(u"CLAUDE_CLI_PATH"_s, QStringLiteral(FAKE_CLAUDE_PROGRAM));
        environment.insert(u"FAKE_CLAUDE_MODE"_s, mode);
        environment.insert(u"FAKE_CLAUDE_RECORD"_s, m_record);
        environment.insert(u"FAKE_CLAUDE_OUTPUT"_s, u"template.html"_s);
        if (!text.isEmpty()) {
            environment.insert(u"FAKE_CLAUDE_TEXT"_s, text);
        }
        return ClaudeBridge(m_settings, environment, m_dir.path());
    }

    QStringList recordedArguments() const
    {
        QStringList arguments = QString::fromUtf8(readFile(m_record + u"/args"_s)).split(QChar(u'\0'));
        arguments.removeLast();
        return arguments;
    }

    QString recorded(const char *name) const
    {
        return QString::fromUtf8(readFile(m_record + u'/' + QLatin1String(name)));
    }

private Q_SLOTS:
    void initTestCase()
    {
        Language::apply(u"en"_s);
        m_record = m_dir.filePath(u"record"_s);
        m_settings = std::make_shared<QSettings>(m_dir.filePath(u"settings.ini"_s), QSettings::IniFormat);
    }

    void init()
    {
        m_settings->clear();
        QDir(m_record).removeRecursively();
        QDir().mkpath(m_record);
    }

    void locatesTheProgram_data()
    {
        QTest::addColumn<QString>("override"); // file name in the test folder; "" for none
        QTest::addColumn<QString>("variable"); // CLAUDE_CLI_PATH
        QTest::addColumn<QStringList>("candidates");
        QTest::addColumn<QString>("expected");

        const QStringList none{u"a/claude"_s, u"b/claude"_s};
        QTest::newRow("override that runs")
            << u"override-exec"_s << u"/elsewhere/claude"_s << none << u"override-exec"_s;
        QTest::newRow("override not executable: variable, unchecked")
            << u"override-plain"_s << u"/elsewhere/claude"_s << none << u"/elsewhere/claude"_s;
        QTest::newRow("first executable candidate")
            << QString() << QString() << QStringList{u"a/claude"_s, u"plain/claude"_s, u"exec/claude"_s}
            << u"exec/claude"_s;
        QTest::newRow("none anywhere: the first candidate") << QString() << QString() << none << u"a/claude"_s;
    }

    void locatesTheProgram()
    {
        QFETCH(QString, override);
        QFETCH(QString, variable);
        QFETCH(QStringList, candidates);
        QFETCH(QString, expected);
        QTemporaryDir dir;
        QDir().mkpath(dir.filePath(u"plain"_s));
        QDir().mkpath(dir.filePath(u"exec"_s));
        for (const QString &name : {u"override-exec"_s, u"override-plain"_s, u"plain/claude"_s, u"exec/claude"_s}) {
            writeFile(dir.filePath(name), "#!/bin/sh\n", name.contains(u"exec") ? executable : plain);
        }
        const auto inDir = [&](const QString &name) { return name.startsWith(u'/') ? name : dir.filePath(name); };

        QSettings settings(dir.filePath(u"s.ini"_s), QSettings::IniFormat);
        if (!override.isEmpty()) {
            settings.setValue(u"ai.cliPath"_s, inDir(override));
        }
        QProcessEnvironment environment;
        if (!variable.isEmpty()) {
            environment.insert(u"CLAUDE_CLI_PATH"_s, variable);
        }
        QStringList paths;
        for (const QString &candidate : candidates) {
            paths.append(inDir(candidate));
        }
        QCOMPARE(ClaudeBridge::claudeCLIPath(settings, environment, paths), inDir(expected));
    }

    // Each of the three ways of running the program, as the program sees it.
    void commandLines()
    {
        const QStringList print{u"--print"_s, u"--model"_s};
        const QStringList plainText{u"--output-format"_s, u"json"_s, u"--disable-slash-commands"_s,
                                    u"--input-format"_s,  u"text"_s, u"--system-prompt"_s};
        const QTimeZone amsterdam("Europe/Amsterdam");
        const QStringList projects{u"Webshop"_s, u"Invoicer"_s};
        const QJsonObject answer = runBlocking(
            bridge(u"structured"_s).parse({u"2 uur aan de webshop gisteren"_s, projects, u"2025-03-05"_s}, amsterdam));
        QCOMPARE(answer[u"intent"].toString(), u"create_task"_s);
        QCOMPARE(recordedArguments(),
                 print + QStringList(u"sonnet"_s) + plainText +
                     QStringList(ClaudeBridge::parseSystemPrompt(projects, u"2025-03-05"_s, amsterdam)) +
                     (QStringList{u"--json-schema"_s, ClaudeBridge::jsonSchema(), u"--no-session-persistence"_s}));
        QCOMPARE(recorded("stdin"), u"User input: 2 uur aan de webshop gisteren"_s);

        QCOMPARE(
            runBlocking(bridge(u"result"_s, u"Vandaag: 3 taken af."_s)
                            .parsePlain(u"FACTS: 3 tasks done"_s, u"haiku"_s, 30, u"Write the stand-up."_s, u"low"_s)),
            u"Vandaag: 3 taken af."_s);
        const QStringList standUp{u"Write the stand-up."_s, u"--no-session-persistence"_s};
        QCOMPARE(recordedArguments(), print + QStringList(u"haiku"_s) + plainText + standUp);
        QCOMPARE(recorded("stdin"), u"FACTS: 3 tasks done"_s);
        // An older program answers in "response" where newer ones use "result".
        QCOMPARE(runBlocking(bridge(u"response"_s, u"Done"_s).parsePlain(u"x"_s, u"sonnet"_s, 30, u"s"_s, u"low"_s)),
                 u"Done"_s);

        QTemporaryDir workspace;
        QCOMPARE(runBlocking(bridge(u"write"_s)
                                 .parseWithWorkspace(u"Design the invoice from brand.json"_s, workspace.path(),
                                                     u"template.html"_s, u"opus"_s, 30)),
                 u"<!doctype html><html><body>Invoice</body></html>\n"_s);
        QCOMPARE(recordedArguments(),
                 (print + QStringList{u"opus"_s, u"--add-dir"_s, workspace.path(), u"--allowedTools"_s,
                                      u"Read,Write,Edit,Glob,Grep"_s, u"--permission-mode"_s, u"bypassPermissions"_s,
                                      u"--disable-slash-commands"_s, u"--input-format"_s, u"text"_s,
                                      u"--no-session-persistence"_s}));
        QCOMPARE(recorded("cwd"), workspace.path());
        QCOMPARE(recorded("stdin"), u"Design the invoice from brand.json"_s);
        QCOMPARE(recorded("no_color"), u"1"_s);
    }

    void readsTheAnswerOfParse_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("failure"); // empty: success
        QTest::addColumn<QString>("intent");

        QTest::newRow("structured output") << u"structured"_s << QString() << u"create_task"_s;
        QTest::newRow("prose without an object") << u"noobject"_s << u"no JSON object detected"_s << QString();
        QTest::newRow("is_error with status 0") << u"error"_s << u"claude returned is_error=true"_s << QString();
        QTest::newRow("no output") << u"empty"_s << u"Claude produced no output"_s << QString();
        QTest::newRow("non-zero exit") << u"fail"_s
                                       << u"Claude exited 2: Error: the API is overloaded, try again later"_s
                                       << QString();
        QTest::newRow("not JSON") << u"notjson"_s
                                  << u"Bad JSON from Claude (illegal value) Welcome to Claude Code! Run claude "
                                     u"--help for usage.\n"_s
                                  << QString();
    }

    void readsTheAnswerOfParse()
    {
        QFETCH(QString, mode);
        QFETCH(QString, failure);
        QFETCH(QString, intent);
        ClaudeBridge::ParseInput input{u"log 90 minutes"_s, {}, u"2025-03-05"_s};
        if (failure.isEmpty()) {
            QCOMPARE(runBlocking(bridge(mode).parse(input))[u"intent"].toString(), intent);
        } else {
            QCOMPARE(failureOf(bridge(mode).parse(input)), failure);
        }
    }

    void timeOutTerminatesTheChild_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<bool>("workspace");
        QTest::addColumn<QString>("failure");
        QTest::newRow("workspace task") << u"sleep"_s << true << u"Claude workspace task timed out after 1 s"_s;
        // Ignores the polite signal and is killed a little later.
        QTest::newRow("deaf to SIGTERM") << u"stubborn"_s << false << u"Claude request timed out after 1 s"_s;
    }

    void timeOutTerminatesTheChild()
    {
        QFETCH(QString, mode);
        QFETCH(bool, workspace);
        QFETCH(QString, failure);
        QTemporaryDir folder;
        QElapsedTimer clock;
        clock.start();
        const QString message =
            workspace ? failureOf(bridge(mode).parseWithWorkspace(u"p"_s, folder.path(), u"t.html"_s, u"m"_s, 1))
                      : failureOf(bridge(mode).parsePlain(u"x"_s, u"sonnet"_s, 1, u"s"_s, u"low"_s));
        QCOMPARE(message, failure);
        QVERIFY2(clock.elapsed() < 10'000, "the bridge waited for the child instead of ending it");
        const pid_t child = recorded("pid").toInt();
        QVERIFY(child > 0);
        QVERIFY2(::kill(child, 0) != 0, "the child is still running");
    }

    void workspaceRunMustWriteItsFile()
    {
        QTemporaryDir workspace;
        const auto failure = [&](const QString &mode) {
            return failureOf(bridge(mode).parseWithWorkspace(u"p"_s, workspace.path(), u"template.html"_s, u"m"_s, 30));
        };
        const QString notWritten = u"Claude finished but did not write template.html"_s;
        QCOMPARE(failure(u"nowrite"_s), notWritten);
        // A file left by an earlier run is not this run's answer.
        QFile stale(workspace.filePath(u"template.html"_s));
        QVERIFY(stale.open(QIODevice::WriteOnly) && stale.write("<html>old</html>") > 0);
        stale.close();
        QCOMPARE(failure(u"nowrite"_s), notWritten);
        // Written, but the run failed: the exit status wins.
        QCOMPARE(failure(u"fail"_s), u"Claude exited 2: Error: the API is overloaded, try again later"_s);
    }

    void missingOrBrokenProgram()
    {
        // Nothing anywhere: the first place is tried, and starting it fails.
        ClaudeBridge nowhere(m_settings, QProcessEnvironment(), m_dir.path());
        nowhere.setCandidates({m_dir.filePath(u"no/claude"_s), m_dir.filePath(u"nor/claude"_s)});
        QCOMPARE(nowhere.claudeCLIPath(), m_dir.filePath(u"no/claude"_s));
        m_settings->setValue(u"ai.provider"_s, u"cliOnly"_s);
        QCOMPARE(failureOf(nowhere.parsePlain(u"x"_s, u"sonnet"_s, 5, u"s"_s, u"low"_s)),
                 u"AI features need the Claude CLI on this Mac (it powers voice/prompt capture, briefs, and the "
                 u"invoice note). Everything else works without it. Set CLAUDE_CLI_PATH or install it, then try "
                 u"again."_s);

        // There, but not a program.
        writeFile(m_dir.filePath(u"not-a-program"_s), "plain text", plain);
        QProcessEnvironment environment;
        environment.insert(u"CLAUDE_CLI_PATH"_s, m_dir.filePath(u"not-a-program"_s));
        ClaudeBridge broken(m_settings, environment, m_dir.path());
        QVERIFY(
            failureOf(broken.parsePlain(u"x"_s, u"sonnet"_s, 5, u"s"_s, u"low"_s)).startsWith(u"Launch failed: "_s));
    }

    void routeFollowsTheProvider_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<bool>("cliAvailable");
        QTest::addColumn<int>("route");
        using R = ClaudeBridge::Route;
        QTest::newRow("auto with the program") << u"auto"_s << true << int(R::ClaudeCLI);
        QTest::newRow("auto without it: the relay") << u"auto"_s << false << int(R::MorvaneAI);
        QTest::newRow("unknown name is auto") << u"skynet"_s << true << int(R::ClaudeCLI);
        QTest::newRow("CLI only, even without it") << u"cliOnly"_s << false << int(R::ClaudeCLI);
        QTest::newRow("relay only ignores the program") << u"morvaneAIOnly"_s << true << int(R::MorvaneAI);
        QTest::newRow("own Anthropic key") << u"anthropicCustom"_s << true << int(R::Anthropic);
    }

    void routeFollowsTheProvider()
    {
        QFETCH(QString, stored);
        QFETCH(bool, cliAvailable);
        QFETCH(int, route);
        const AIProvider provider = AIProviders::fromStoredName(stored);
        QCOMPARE(int(ClaudeBridge::route(provider, cliAvailable)), route);
        if (!stored.isEmpty() && provider != AIProvider::Auto) {
            QCOMPARE(AIProviders::storedName(provider), stored);
        }
    }

    void extractsAnHTMLDocument_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected"); // empty: none
        QTest::newRow("inline between prose") << u"Here you go:\n<!DOCTYPE html>\n<html><body>A</body></html>\nEnjoy."_s
                                              << u"<!DOCTYPE html>\n<html><body>A</body></html>"_s;
        QTest::newRow("closing tag in capitals")
            << u"<!doctype html><html>B</HTML>"_s << u"<!doctype html><html>B</HTML>"_s;
        QTest::newRow("up to the last closing tag") << u"<!doctype html><html><script>s='</html>'</script></html> bye"_s
                                                    << u"<!doctype html><html><script>s='</html>'</script></html>"_s;
        QTest::newRow("not closed") << u"<!doctype html><html><body>cut off"_s << QString();
        QTest::newRow("closing tag only before the doctype") << u"</html> then <!doctype html><p>"_s << QString();
    }

    void extractsAnHTMLDocument()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(ClaudeBridge::extractHTMLDocument(text).value_or(QString()), expected);
    }

    void findsTheFirstJSONObject_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected"); // compact JSON; empty: none
        QTest::newRow("fenced, braces inside strings") << u"```json\n{\"a\": \"}{\", \"b\": {\"c\": \"\\\"}\"}}\n```"_s
                                                       << u"{\"a\":\"}{\",\"b\":{\"c\":\"\\\"}\"}}"_s;
        QTest::newRow("a brace in prose first") << u"Use {curly} braces: {\"ok\": true}"_s << u"{\"ok\":true}"_s;
        QTest::newRow("the first of two") << u"{\"n\":1} and {\"n\":2}"_s << u"{\"n\":1}"_s;
        QTest::newRow("unbalanced") << u"{\"a\": 1"_s << QString();
    }

    void findsTheFirstJSONObject()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        const std::optional<QJsonObject> found = ClaudeBridge::firstJSONObject(text);
        QCOMPARE(found ? QString::fromUtf8(QJsonDocument(*found).toJson(QJsonDocument::Compact)) : QString(), expected);
    }
};

QTEST_GUILESS_MAIN(TestClaudeBridge)
#include "tst_claudebridge.moc"
