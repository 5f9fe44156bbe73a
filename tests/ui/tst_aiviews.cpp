#include "support/desktopwindow.h"
#include "ui/assistantview.h"
#include "ui/sessionsview.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 20000;

// One line of an agent log: a prompt when `prompt` is given, else an answer.
QByteArray line(const QDateTime &at, const QString &cwd, const QString &prompt = {})
{
    QJsonObject object{{u"type"_s, prompt.isEmpty() ? u"assistant"_s : u"user"_s},
                       {u"cwd"_s, cwd},
                       {u"timestamp"_s, at.toUTC().toString(Qt::ISODateWithMs)}};
    object.insert(u"message"_s,
                  prompt.isEmpty()
                      ? QJsonObject{{u"content"_s, QJsonArray{QJsonObject{{u"type"_s, u"text"_s}, {u"text"_s, u"ok"_s}}}}}
                      : QJsonObject{{u"role"_s, u"user"_s}, {u"content"_s, prompt}});
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace

// What the language model and the agent logs bring into the real window over a real backend: the
// sessions screen reading logs written by the test (folders by recency, a session logged after its
// preview, a folder linked and scanned), and quick add through a stand-in `claude` and the consent
// question of a route that leaves the machine.
class TestAIViews : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_logs;
    TestBackend m_backend;
    std::unique_ptr<DesktopWindow> m_desktop;

    SessionsView *view() const { return m_desktop->shell().sessions(); }
    AppStore *store() const { return m_desktop->store(); }

    void write(const QString &folder, const QString &sessionId, const QByteArray &lines)
    {
        const QString dir = m_logs.filePath(u"projects/"_s + folder);
        QVERIFY(QDir().mkpath(dir));
        QFile file(dir + u'/' + sessionId + u".jsonl"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(lines);
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        // Two bursts in the shop this morning (an hour apart), one in the blog two days ago.
        const QDateTime morning(QDate::currentDate(), QTime(9, 0));
        write(u"-w-shop"_s, u"s1"_s,
              line(morning, u"/w/shop"_s, u"Fix the basket"_s) + line(morning.addSecs(240), u"/w/shop"_s) +
                  line(morning.addSecs(3600), u"/w/shop"_s, u"Add coupons"_s) +
                  line(morning.addSecs(3600 + 300), u"/w/shop"_s));
        const QDateTime before = morning.addDays(-2);
        write(u"-w-blog"_s, u"b1"_s, line(before, u"/w/blog"_s, u"Draft the post"_s) + line(before.addSecs(600), u"/w/blog"_s));
        // The assistant's bridge reads its environment when the window is made.
        qputenv("CLAUDE_CLI_PATH", FAKE_CLAUDE_PROGRAM);
        qputenv("FAKE_CLAUDE_MODE", "result");
        qputenv("FAKE_CLAUDE_TEXT", R"({"intent":"create_project","project_name":"Lighthouse","project_hourly_rate":85,)"
                                    R"("tasks":[{"title":"Survey the lamp","priority":"high"}]})");
        m_desktop = std::make_unique<DesktopWindow>(
            m_backend, [this](DesktopShell::Options &options) { options.sessionsDir = m_logs.filePath(u"projects"_s); });
        QVERIFY(m_desktop->open());
        QVERIFY(m_desktop->signUp(u"ada@example.com"_s));
    }

    void aSessionLoggedAfterItsPreviewAndAFolderLinked()
    {
        m_desktop->workspace()->createProject(u"Shop"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!m_desktop->workspace()->selectedProjectId().isEmpty(), patience);
        const QString shopId = m_desktop->workspace()->selectedProjectId();
        m_desktop->showPage(u"sessions"_s);
        QTRY_COMPARE_WITH_TIMEOUT(view()->groups().size(), 2, patience);
        const QVariantMap shop = view()->groups().first().toMap();
        QCOMPARE(shop.value(u"name"_s).toString(), u"shop"_s);
        QCOMPARE(shop.value(u"bucket"_s).toString(), u"Today"_s);
        QCOMPARE(view()->groups().last().toMap().value(u"name"_s).toString(), u"blog"_s);
        QVERIFY(m_desktop->shoot(u"sessions-list"_s));

        view()->previewSession(u"s1"_s, shopId);
        QCOMPARE(view()->preview().value(u"title"_s).toString(), u"Review and log to: Shop (2 tasks)"_s);
        const QVariantList bursts = view()->preview().value(u"rows"_s).toList();
        QCOMPARE(bursts.size(), 2);
        QCOMPARE(bursts.first().toMap().value(u"title"_s).toString(), u"[AI] Fix the basket"_s);
        QVERIFY(m_desktop->shoot(u"sessions-preview"_s));
        view()->commitPreview();
        QTRY_COMPARE_WITH_TIMEOUT(view()->message(), u"Logged 2 of 2 work bursts."_s, patience);
        QTRY_COMPARE_WITH_TIMEOUT(store()->tasks(shopId).size(), 2, patience);
        QTRY_VERIFY(view()->groups().first().toMap().value(u"sessions"_s).toList().first().toMap().value(u"logged"_s).toBool());

        // Both folders wait for a project until linked; the scan then logs the blog.
        view()->scanNow();
        QTRY_COMPARE_WITH_TIMEOUT(view()->pending().size(), 2, patience);
        QTRY_VERIFY(!view()->scanning());
        view()->mapFolder(u"/w/blog"_s, shopId);
        view()->scanNow();
        QTRY_COMPARE_WITH_TIMEOUT(store()->tasks(shopId).size(), 3, patience);
        QTRY_COMPARE(view()->pending().size(), 1);
        QCOMPARE(view()->pending().first().toMap().value(u"cwd"_s).toString(), u"/w/shop"_s);
        // Logged once: a second scan adds nothing.
        QTRY_VERIFY(!view()->scanning());
        view()->scanNow();
        QTRY_VERIFY_WITH_TIMEOUT(!view()->scanning(), patience);
        QCOMPARE(store()->tasks(shopId).size(), 3);
        QVERIFY(m_desktop->item(u"trackingTab"_s));
        QVERIFY(QMetaObject::invokeMethod(m_desktop->item(u"trackingTab"_s), "clicked"));
        QVERIFY(m_desktop->shoot(u"sessions-tracking"_s));
    }

    void quickAddMakesWorkAndARouteOffTheMachineAsksFirst()
    {
        AssistantView *assistant = m_desktop->shell().assistant();
        QSettings &settings = *m_desktop->shell().settings();
        settings.setValue(u"ai.provider"_s, u"cliOnly"_s);
        assistant->capture(u"New project Lighthouse at 85 an hour, survey the lamp first"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!assistant->busy() && !assistant->history().isEmpty(), patience);
        const QVariantMap made = assistant->history().first().toMap();
        QVERIFY2(!made.value(u"failed"_s).toBool(), qPrintable(made.value(u"problem"_s).toString()));
        QVERIFY(made.value(u"understood"_s).toString().contains(u"Lighthouse"_s));
        const auto lighthouse = [this]() -> std::optional<Project> {
            for (const Project &project : store()->projects()) {
                if (project.name == u"Lighthouse") {
                    return project;
                }
            }
            return std::nullopt;
        };
        QTRY_VERIFY_WITH_TIMEOUT(lighthouse().has_value(), patience);
        QTRY_COMPARE(m_desktop->workspace()->selectedProjectId(), lighthouse()->id);
        QTRY_COMPARE_WITH_TIMEOUT(store()->tasks(lighthouse()->id).size(), 1, patience);
        QVERIFY(QMetaObject::invokeMethod(m_desktop->window()->findChild<QObject *>(u"quickAdd"_s), "openWith",
                                          Q_ARG(QVariant, QString())));
        QVERIFY(m_desktop->shoot(u"quick-add"_s));

        // The relay sends text off the machine: asked first, and a no sends nothing.
        settings.setValue(u"ai.provider"_s, u"morvaneAIOnly"_s);
        assistant->capture(u"Log two hours on the lamp"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!assistant->consentQuestion().isEmpty(), patience);
        QVERIFY(m_desktop->shoot(u"consent-question"_s));
        assistant->answerConsent(false);
        QTRY_VERIFY_WITH_TIMEOUT(!assistant->busy(), patience);
        QVERIFY(assistant->history().first().toMap().value(u"failed"_s).toBool());
        QCOMPARE(store()->tasks(lighthouse()->id).first().timeSpentSeconds, 0);
        // The answer is kept for the route, and the settings can take it back.
        const auto relayConsent = [assistant] {
            return assistant->consents().first().toMap().value(u"state"_s).toString();
        };
        QCOMPARE(relayConsent(), u"deny"_s);
        assistant->setConsent(u"morvaneAI"_s, u"ask"_s);
        QCOMPARE(relayConsent(), u"ask"_s);
        QVERIFY(QMetaObject::invokeMethod(m_desktop->window()->findChild<QObject *>(u"quickAdd"_s), "close"));
    }

    // The stand-in answers every call with a capture reading, which no recap can pass for: the
    // window shows the text written from the figures and says why.
    void aRecapTheModelGotWrongIsWrittenFromTheFigures()
    {
        AssistantView *assistant = m_desktop->shell().assistant();
        m_desktop->shell().settings()->setValue(u"ai.provider"_s, u"cliOnly"_s);
        m_desktop->showPage(u"summary"_s);
        assistant->writeSummary(u"recap"_s, QString());
        QTRY_VERIFY_WITH_TIMEOUT(!assistant->summaryBusy() && !assistant->summaryText().isEmpty(), patience);
        QVERIFY(assistant->summaryFixed());
        QVERIFY2(assistant->summaryNote().contains(u"did not hold up"_s), qPrintable(assistant->summaryNote()));
        QVERIFY(m_desktop->shoot(u"summary-recap"_s));
        assistant->writeSummary(u"standup"_s, u"ja"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!assistant->summaryBusy() && assistant->summaryKind() == u"standup"_s, patience);
        QVERIFY(assistant->summaryFixed());
        QVERIFY(!assistant->summaryText().isEmpty());
    }

    void cleanupTestCase() { m_desktop.reset(); }
};

MORVANE_DESKTOP_TEST_MAIN(TestAIViews)
#include "tst_aiviews.moc"
