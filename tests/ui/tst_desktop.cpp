#include "backend/localserver.h"
#include "backend/secretstore.h"
#include "pg/pgconnection.h"
#include "store/idlewatcher.h"
#include "i18n/language.h"
#include "store/storedevice.h"
#include "support/testbackend.h"
#include "support/desktopwindow.h"
#include "ui/desktopshell.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>


using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 20000;
const QString email = u"ada@example.com"_s;

// The rows of a list model as the view reads them, by role name.
QStringList column(const RowsModel *model, const QString &role)
{
    QStringList values;
    for (const QVariantHash &row : model->rows()) {
        values << row.value(role).toString();
    }
    return values;
}

} // namespace

// The real window over a real backend: what a person does on the first day, end to end.
class TestDesktop : public QObject
{
    Q_OBJECT

private:
    TestBackend m_backend;
    std::unique_ptr<DesktopWindow> m_desktop;
    DesktopShell *m_shell = nullptr;
    QQuickWindow *m_window = nullptr;
    std::vector<std::unique_ptr<QAbstractItemModelTester>> m_testers;
    qint64 m_clockOffset = 0;

    Workspace *workspace() const { return m_shell->workspace(); }
    AppStore *store() const { return m_shell->store(); }

    QQuickItem *item(const char *name) const { return m_desktop->item(QString::fromLatin1(name)); }

    // Every screen in both languages and both schemes, saved beside the test for a person to look at.
    void shoot(const QString &name, QQuickWindow *window = nullptr) { QVERIFY(m_desktop->shoot(name, window)); }

    // Everything reachable with Tab on the screen as it is now says what it is.
    void checkControlsHaveNames()
    {
        QAccessible::setActive(true);
        QStringList nameless;
        int focusable = 0;
        QList<QQuickItem *> items{m_window->contentItem()};
        for (qsizetype i = 0; i < items.size(); ++i) {
            QQuickItem *control = items.at(i);
            items << control->childItems();
            // Controls take Tab through their focus policy, plain items through activeFocusOnTab.
            const QVariant policy = control->property("focusPolicy");
            const bool tabbable = policy.isValid() ? (policy.toInt() & Qt::TabFocus) : control->activeFocusOnTab();
            if (!control->isVisible() || !control->isEnabled() || !tabbable) {
                continue;
            }
            // Qt's accessibility bridge withholds every text of a field that hides what is typed,
            // its name included; the label beside it names it.
            if (const QVariant echo = control->property("echoMode"); echo.isValid() && echo.toInt() != 0) {
                continue;
            }
            ++focusable;
            QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(control);
            if (!accessible || accessible->text(QAccessible::Name).trimmed().isEmpty() ||
                accessible->role() == QAccessible::NoRole) {
                nameless << QString::fromLatin1(control->metaObject()->className()) + u' ' + control->objectName();
            }
        }
        QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(u", "_s)));
        QVERIFY2(focusable > 10, qPrintable(QString::number(focusable)));

        // Names come from other people (a team mate's task title): a text item that guessed at
        // rich text would draw their tags and fetch their images.
        QStringList guessing;
        for (QQuickItem *shown : std::as_const(items)) {
            // Placeholders are the window's own words.
            if (shown->inherits("QQuickText") && !shown->inherits("QQuickPlaceholderText") && shown->isVisible() &&
                shown->property("textFormat").toInt() != 0) {
                guessing << shown->property("text").toString();
            }
        }
        QVERIFY2(guessing.isEmpty(), qPrintable(guessing.join(u", "_s)));
    }

    // Each test function runs alone too: it makes the account and the project it needs when an
    // earlier function has not.
    void signUpOnce()
    {
        QTRY_VERIFY_WITH_TIMEOUT(m_shell->phase() != DesktopShell::StartingBackend, patience);
        if (m_shell->phase() == DesktopShell::BackendFailed) {
            m_shell->start();
        }
        QTRY_VERIFY_WITH_TIMEOUT(m_shell->phase() == DesktopShell::SignedOut || m_shell->phase() == DesktopShell::Ready,
                                 patience);
        if (m_shell->phase() == DesktopShell::SignedOut) {
            m_shell->signUp(email, QString::fromLatin1(StoreDevice::password), u"Ada Lovelace"_s, u"en"_s,
                            u"CHF"_s, u"95,50"_s, u"Europe/Zurich"_s);
        }
        QTRY_COMPARE_WITH_TIMEOUT(m_shell->phase(), DesktopShell::Ready, patience);
        QTRY_VERIFY_WITH_TIMEOUT(store()->profile().has_value(), patience);
    }

    // "Website redesign" with four tasks, chosen in the sidebar.
    void website()
    {
        signUpOnce();
        for (const Project &project : store()->projects()) {
            if (project.name == u"Website redesign") {
                workspace()->selectProject(project.id);
                QTRY_VERIFY(workspace()->tasks()->rowCount() >= 4);
                return;
            }
        }
        workspace()->createProject(u"Website redesign"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!workspace()->selectedProjectId().isEmpty(), patience);
        for (const char *title : {"Design the home page", "Write the copy", "Pick the photos", "Launch <b>now</b>"}) {
            workspace()->createTask(QString::fromLatin1(title));
        }
        QTRY_COMPARE_WITH_TIMEOUT(workspace()->tasks()->rowCount(), 4, patience);
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_desktop = std::make_unique<DesktopWindow>(m_backend, [this](DesktopShell::Options &options) {
            // The first start fails as a local backend that cannot start does; "Try again" works.
            options.backend = [config = Config{m_backend.url(), QString::fromLatin1(m_backend.anonKey())},
                               attempts = std::make_shared<int>(0)]() -> QCoro::Task<Config> {
                if ((*attempts)++ == 0) {
                    throw LocalServerError(LocalServerError::Kind::ExitedEarly,
                                           u"/home/ada/.local/share/morvane/server"_s,
                                           u"morvane-server: cannot listen on 127.0.0.1:54321"_s);
                }
                co_return config;
            };
            // Real time, moved on by the tests that need a later moment.
            options.clock = [this] { return QDateTime::currentDateTimeUtc().addSecs(m_clockOffset); };
        });
        m_shell = &m_desktop->shell();
        for (RowsModel *model : {workspace()->sidebar(), workspace()->tasks(), workspace()->palette()}) {
            m_testers.push_back(std::make_unique<QAbstractItemModelTester>(
                model, QAbstractItemModelTester::FailureReportingMode::QtTest));
        }
        QVERIFY(m_desktop->open());
        m_window = m_desktop->window();
    }

    void cleanupTestCase()
    {
        m_testers.clear();
        m_desktop.reset();
    }

    void firstStartSignsUpWithTheOnboardingAnswers()
    {
        QTRY_COMPARE_WITH_TIMEOUT(m_shell->phase(), DesktopShell::BackendFailed, patience);
        QVERIFY(m_shell->backendError().contains(u"54321"_s));
        shoot(u"backend-failed"_s);
        m_shell->start();
        QTRY_COMPARE_WITH_TIMEOUT(m_shell->phase(), DesktopShell::SignedOut, patience);
        shoot(u"welcome"_s);
        for (const char *mode : {"onboarding", "signUp", "signIn", "forgot"}) {
            item("authView")->setProperty("mode", QString::fromLatin1(mode));
            shoot(u"auth-"_s + QString::fromLatin1(mode));
        }
        signUpOnce();
        QCOMPARE(store()->profile()->displayName, u"Ada Lovelace"_s);
        QCOMPARE(store()->currency(), u"CHF"_s);
        QCOMPARE(store()->defaultHourlyRate(), 95.5);
        shoot(u"main-empty"_s);
    }

    void aProjectATaskAndItsTime()
    {
        signUpOnce();
        workspace()->createProject(u"Website redesign"_s);
        QTRY_VERIFY_WITH_TIMEOUT(column(workspace()->sidebar(), u"title"_s).contains(u"Website redesign"_s), patience);
        QTRY_VERIFY(!workspace()->selectedProjectId().isEmpty());
        workspace()->createTask(u"Design the home page"_s);
        QTRY_COMPARE_WITH_TIMEOUT(workspace()->tasks()->rowCount(), 1, patience);
        QTRY_VERIFY(workspace()->inspector()->present());

        workspace()->toggleTimer(workspace()->selectedTaskId());
        QTRY_VERIFY_WITH_TIMEOUT(workspace()->timerRunning(), patience);
        QTRY_VERIFY(item("timerClock")->isVisible());
        QCOMPARE(column(workspace()->sidebar(), u"running"_s).count(u"true"_s), 2); // overview and project
        workspace()->toggleTimer({});
        QTRY_VERIFY_WITH_TIMEOUT(!workspace()->timerRunning(), patience);
        QTRY_COMPARE_WITH_TIMEOUT(workspace()->inspector()->entries().size(), 1, patience);

        // Edit the run's length, then log a quarter of an hour by hand.
        const QString entryId = workspace()->inspector()->entries().first().toMap().value(u"id"_s).toString();
        QVERIFY(workspace()->inspector()->editEntryDuration(entryId, u"30"_s));
        QTRY_COMPARE_WITH_TIMEOUT(workspace()->inspector()->tracked(), u"30m"_s, patience);
        QVERIFY(!workspace()->inspector()->logMinutes(u"soon"_s));
        QVERIFY(workspace()->inspector()->logMinutes(u"15"_s));
        QTRY_COMPARE_WITH_TIMEOUT(workspace()->inspector()->entries().size(), 2, patience);
        QTRY_COMPARE_WITH_TIMEOUT(workspace()->inspector()->tracked(), u"45m"_s, patience);

        for (const char *title : {"Write the copy", "Pick the photos", "Launch <img src=\"http://127.0.0.1:9/x\"><b>now</b>"}) {
            workspace()->createTask(QString::fromLatin1(title));
        }
        QTRY_COMPARE_WITH_TIMEOUT(workspace()->tasks()->rowCount(), 4, patience);
        workspace()->createProject(u"Bookkeeping"_s);
        QTRY_VERIFY_WITH_TIMEOUT(column(workspace()->sidebar(), u"title"_s).contains(u"Bookkeeping"_s), patience);
        workspace()->selectProjectAt(2);
        QTRY_COMPARE(workspace()->project().value(u"name"_s).toString(), u"Website redesign"_s);
        QTRY_COMPARE(workspace()->tasks()->rowCount(), 4);
        workspace()->selectTask(workspace()->tasks()->rows().first().value(u"id"_s).toString());
        workspace()->startTimer(workspace()->selectedTaskId());
        QTRY_VERIFY_WITH_TIMEOUT(workspace()->timerRunning(), patience);
        shoot(u"main-filled"_s);
        auto *floating = m_window->findChild<QQuickWindow *>(u"floatingTimer"_s);
        QVERIFY(floating);
        floating->setVisible(true);
        shoot(u"floating"_s, floating);
        floating->setVisible(false);
        checkControlsHaveNames();
        // Narrow: the inspector folds away and the sidebar shows initials; wide: more of each.
        for (const QSize size : {QSize(860, 640), QSize(1920, 1200)}) {
            m_window->resize(size);
            // The layouts follow a resize over a few polish passes.
            QTRY_COMPARE(m_window->contentItem()->width(), qreal(size.width()));
            QTest::qWait(200);
            shoot(u"main-%1x%2"_s.arg(size.width()).arg(size.height()));
        }
        m_window->resize(1280, 800);
    }

    void reorderingAndBulkChangesFollowTheList()
    {
        website();
        workspace()->stopTimer();
        QTRY_VERIFY_WITH_TIMEOUT(!workspace()->timerRunning(), patience);
        const QStringList before = column(workspace()->tasks(), u"id"_s);
        workspace()->moveTaskInList(before.last(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(column(workspace()->tasks(), u"id"_s).first(), before.last(), patience);
        // Completed work sinks below the open tasks, whatever the order.
        workspace()->toggleChecked(before.at(0));
        workspace()->toggleChecked(before.at(1));
        workspace()->bulkSetStatus(u"completed"_s);
        QTRY_COMPARE_WITH_TIMEOUT(column(workspace()->tasks(), u"status"_s).mid(2),
                                  QStringList(2, u"completed"_s), patience);
        workspace()->bulkSetStatus(u"not_started"_s);
        QTRY_COMPARE_WITH_TIMEOUT(column(workspace()->tasks(), u"status"_s).count(u"completed"_s), 0, patience);
        workspace()->clearChecked();

        // A searched list follows a change to the task it shows.
        workspace()->setSearch(u"photos"_s);
        QTRY_COMPARE(workspace()->tasks()->rowCount(), 1);
        workspace()->setTaskStatus(workspace()->tasks()->rows().first().value(u"id"_s).toString(), u"completed"_s);
        QTRY_COMPARE_WITH_TIMEOUT(column(workspace()->tasks(), u"status"_s), QStringList{u"completed"_s}, patience);
        workspace()->setSearch({});
        QTRY_COMPARE(workspace()->tasks()->rowCount(), 4);
    }

    // A team mate's project shared with Ada as a viewer: she sees it, cannot change it, and the
    // window shows that rather than refusing after the fact.
    void aViewerSeesATeamProjectReadOnly()
    {
        signUpOnce();
        auto bo = StoreDevice::signUp(m_backend, u"bo@example.com"_s, u"Bo"_s);
        QVERIFY(bo && bo->refresh());
        const std::optional<Team> team = runBlocking(bo->store->createTeam(u"Studio Bo"_s));
        QVERIFY(team);
        QCOMPARE(runBlocking(bo->store->inviteMember(team->id, email, TeamRole::Viewer)).kind,
                 InviteOutcome::Kind::Invited);
        ProjectInsert project;
        project.userId = bo->userId();
        project.teamId = team->id;
        project.name = u"Client site"_s;
        const std::optional<Project> shared = runBlocking(bo->store->createProject(project));
        QVERIFY(shared);
        QVERIFY(runBlocking(bo->store->createTask(TaskInsert{bo->userId(), shared->id, u"Wireframes"_s})));

        QVERIFY(runBlocking(store()->refreshAll()));
        QTRY_COMPARE_WITH_TIMEOUT(workspace()->invitations().size(), 1, patience);
        workspace()->answerInvitation(team->id, true);
        QTRY_VERIFY_WITH_TIMEOUT(column(workspace()->sidebar(), u"title"_s).contains(u"Client site"_s), patience);
        workspace()->selectProject(shared->id);
        QTRY_COMPARE(workspace()->tasks()->rowCount(), 1);
        QCOMPARE(workspace()->project().value(u"canEdit"_s), false);
        QCOMPARE(workspace()->tasks()->rows().first().value(u"editable"_s), false);
        workspace()->selectTask(workspace()->tasks()->rows().first().value(u"id"_s).toString());
        QTRY_VERIFY(workspace()->inspector()->present());
        QVERIFY(!workspace()->inspector()->canEdit());
        QVERIFY(item("taskTitleField")->property("readOnly").toBool());
        shoot(u"viewer"_s);

        item("mainView")->setProperty("teamId", team->id);
        QTRY_COMPARE(workspace()->teams().size(), 1);
        shoot(u"team"_s);
        item("mainView")->setProperty("teamId", QString());
    }

    void eachIdleChoiceSettlesTheAbsence_data()
    {
        QTest::addColumn<QString>("choice");
        QTest::addColumn<bool>("running");
        QTest::addColumn<bool>("logged");
        QTest::newRow("keep the time") << u"keep"_s << true << false;
        QTest::newRow("discard the idle time") << u"discard"_s << false << true;
        QTest::newRow("discard it and go on") << u"discardAndContinue"_s << true << true;
    }

    // The run began half an hour ago; the person left twenty minutes ago and is back now.
    void eachIdleChoiceSettlesTheAbsence()
    {
        QFETCH(QString, choice);
        QFETCH(bool, running);
        QFETCH(bool, logged);
        website();
        const QString taskId = workspace()->tasks()->rows().first().value(u"id"_s).toString();
        workspace()->selectTask(taskId);
        workspace()->startTimer(taskId);
        QTRY_COMPARE_WITH_TIMEOUT(workspace()->runningTaskId(), taskId, patience);
        // Each absence is a new one, an hour after the last was settled.
        m_clockOffset += 3600;
        const QDateTime now = QDateTime::currentDateTimeUtc().addSecs(m_clockOffset);
        m_backend.database().exec("UPDATE tasks SET started_at = $2 WHERE id = $1",
                                  {taskId.toUtf8(), now.addSecs(-30 * 60).toString(Qt::ISODate).toUtf8()});
        QVERIFY(runBlocking(store()->refreshAll()));
        const qint64 trackedBefore = store()->task(taskId)->timeSpentSeconds;

        auto *idle = qobject_cast<IdleWatcher *>(m_shell->idleWatcher());
        QVERIFY(idle);
        idle->onIdleTime(20 * 60 * 1000);
        idle->onIdleTime(0);
        QVERIFY(idle->isAsking());
        QObject *dialog = m_window->findChild<QObject *>(u"idleDialog"_s);
        QTRY_VERIFY(dialog && dialog->property("visible").toBool());
        if (choice == u"keep") {
            shoot(u"idle"_s);
        }
        QVERIFY(QMetaObject::invokeMethod(idle, choice.toLatin1().constData()));
        QTRY_VERIFY(!dialog->property("visible").toBool());

        if (logged) {
            // Ten minutes of work, up to the moment the person left.
            QTRY_VERIFY_WITH_TIMEOUT(store()->task(taskId)->timeSpentSeconds > trackedBefore, patience);
            QVERIFY(qAbs(store()->task(taskId)->timeSpentSeconds - trackedBefore - 600) < 30);
        }
        QTRY_COMPARE_WITH_TIMEOUT(workspace()->runningTaskId() == taskId, running, patience);
        if (!logged) {
            QCOMPARE(store()->task(taskId)->timeSpentSeconds, trackedBefore);
        }
        workspace()->stopTimer();
        QTRY_VERIFY_WITH_TIMEOUT(!workspace()->timerRunning(), patience);
    }

    void pricingAProjectAndATask()
    {
        website();
        workspace()->editProjectPrice();
        BillingEditor *project = workspace()->projectPriceEditor();
        project->setModelName(u"hourly"_s);
        project->unitPrice()->setText(u"120"_s);
        QVERIFY(workspace()->saveProjectPrice());
        QTRY_VERIFY_WITH_TIMEOUT(column(workspace()->tasks(), u"price"_s).first().contains(u"120"_s), patience);

        const QString taskId = workspace()->tasks()->rows().last().value(u"id"_s).toString();
        workspace()->selectTask(taskId);
        QTRY_COMPARE(workspace()->inspector()->taskId(), taskId);
        QMetaObject::invokeMethod(item("editPriceButton"), "clicked");
        BillingEditor *task = workspace()->inspector()->priceEditor();
        QVERIFY(task->isInheriting());
        task->clearInheritance();
        task->setModelName(u"fixed"_s);
        task->amount()->setText(u"fifteen"_s);
        QVERIFY(!task->canSave() && !workspace()->inspector()->savePrice());
        task->amount()->setText(u"1.500,50"_s);
        QCOMPARE(task->net(), 1500.5);
        shoot(u"price-editor"_s);
        QVERIFY(workspace()->inspector()->savePrice());
        QTRY_VERIFY_WITH_TIMEOUT(store()->task(taskId)->billing.has_value(), patience);
        QCOMPARE(store()->task(taskId)->billing->amount, 1500.5);
        QTRY_VERIFY(column(workspace()->tasks(), u"price"_s).last().contains(u"500.50"_s));
        QTest::keyClick(m_window, Qt::Key_Escape);
    }

    void thePaletteRanksTheObviousHitFirst()
    {
        website();
        QTest::keyClick(m_window, Qt::Key_K, Qt::ControlModifier);
        QObject *palette = m_window->findChild<QObject *>(u"commandPalette"_s);
        QTRY_VERIFY(palette && palette->property("visible").toBool());
        for (const char key : {'d', 'e', 's'}) {
            QTest::keyClick(m_window, key);
        }
        shoot(u"palette"_s);
        QTest::keyClick(m_window, Qt::Key_Escape);
        QTRY_VERIFY(!palette->property("visible").toBool());
        workspace()->searchPalette(u"web"_s);
        QCOMPARE(workspace()->palette()->rows().first().value(u"title"_s).toString(), u"Website redesign"_s);
        workspace()->searchPalette(u"photos"_s);
        QCOMPARE(workspace()->palette()->rows().first().value(u"title"_s).toString(), u"Pick the photos"_s);
        // Nothing matches: what was typed can still be said to quick add.
        workspace()->searchPalette(u"zzzz"_s);
        QCOMPARE(workspace()->palette()->rowCount(), 1);
        QCOMPARE(workspace()->palette()->rows().first().value(u"kind"_s).toString(), u"capture"_s);
    }

    void aTimerStartedOnAnotherDeviceShowsHere()
    {
        website();
        workspace()->stopTimer();
        QTRY_VERIFY_WITH_TIMEOUT(!workspace()->timerRunning(), patience);
        auto other = StoreDevice::signIn(m_backend, email);
        QVERIFY(other && other->refresh());
        QString projectId;
        for (const Project &project : other->store->projects()) {
            projectId = project.name == u"Website redesign" ? project.id : projectId;
        }
        const QString taskId = other->store->tasks(projectId).last().id;
        QVERIFY(runBlocking(other->store->startTimer(taskId)));
        QTRY_COMPARE_WITH_TIMEOUT(workspace()->runningTaskId(), taskId, patience);
        QVERIFY(runBlocking(other->store->stopTimer(taskId)));
        QTRY_VERIFY_WITH_TIMEOUT(!workspace()->timerRunning(), patience);
    }

    void switchingTheLanguageRetranslatesTheOpenWindow()
    {
        signUpOnce();
        workspace()->selectProject({});
        m_shell->setLanguage(u"ja"_s);
        QTRY_COMPARE(column(workspace()->sidebar(), u"title"_s).first(), u"すべてのプロジェクト"_s);
        QTRY_COMPARE(item("projectNameField")->property("text").toString(), u"すべてのプロジェクト"_s);
        m_shell->setLanguage(u"en"_s);
        QTRY_COMPARE(item("projectNameField")->property("text").toString(), u"All projects"_s);
    }

    void anInvoiceOverTwoProjectsFromComposerToVoid()
    {
        signUpOnce();
        // Two projects priced through the window's editor, each at its own VAT rate.
        struct Priced { QString name; QString rate; QString vat; QString projectId; QString taskId; };
        QList<Priced> projects{{u"Harbour"_s, u"100"_s, u"21"_s, {}, {}}, {u"Lighthouse"_s, u"80"_s, u"9"_s, {}, {}}};
        for (Priced &priced : projects) {
            workspace()->createProject(priced.name);
            QTRY_VERIFY_WITH_TIMEOUT(workspace()->project().value(u"name"_s) == priced.name, patience);
            priced.projectId = workspace()->selectedProjectId();
            workspace()->createTask(u"Survey "_s + priced.name);
            QTRY_COMPARE_WITH_TIMEOUT(workspace()->tasks()->rowCount(), 1, patience);
            priced.taskId = workspace()->tasks()->rows().first().value(u"id"_s).toString();
            workspace()->editProjectPrice();
            BillingEditor *editor = workspace()->projectPriceEditor();
            editor->setModelName(u"hourly"_s);
            editor->unitPrice()->setText(priced.rate);
            editor->vatPercent()->setText(priced.vat);
            QVERIFY(workspace()->saveProjectPrice());
            QTRY_VERIFY_WITH_TIMEOUT(store()->project(priced.projectId)->billing.has_value(), patience);
        }
        // Harbour: two hours today and one ten days ago; Lighthouse: an hour and a half today.
        const QDateTime noon(QDate::currentDate(), QTime(12, 0));
        for (const auto &[index, start, hours] : {std::tuple{0, noon.addDays(-10), 1.0}, std::tuple{0, noon.addSecs(-4 * 3600), 2.0},
                                                 std::tuple{1, noon.addSecs(-2 * 3600), 1.5}}) {
            const QDateTime end = start.addSecs(qint64(hours * 3600));
            m_backend.database().exec("INSERT INTO time_entries (user_id, task_id, project_id, started_at, ended_at, "
                                      "duration_seconds) VALUES ($1, $2, $3, $4, $5, $6)",
                                      {store()->currentUserId().toUtf8(), projects[index].taskId.toUtf8(),
                                       projects[index].projectId.toUtf8(), start.toUTC().toString(Qt::ISODate).toUtf8(),
                                       end.toUTC().toString(Qt::ISODate).toUtf8(), QByteArray::number(qint64(hours * 3600))});
        }

        // From the first project's menu; the second joins and the period stays.
        ComposerView *view = workspace()->composer();
        view->open({projects[0].projectId});
        QTRY_COMPARE(item("mainView")->property("page").toString(), u"composer"_s);
        InvoiceComposer *composer = view->composer();
        QTRY_VERIFY_WITH_TIMEOUT(!view->number().isEmpty() && composer->canSave(), patience);
        QCOMPARE(composer->from(), QDate::currentDate().addDays(-10));
        view->toggleProject(projects[1].projectId);
        QTRY_COMPARE_WITH_TIMEOUT(composer->availableTaskIds().size(), 2, patience);
        // By hand: 3 h × 100 at 21 % and 1.5 h × 80 at 9 %.
        QCOMPARE(composer->subtotal(), 420.0);
        QCOMPARE(composer->vat().groups, (QList<InvoiceVatGroup>{{9, 120, 10.8}, {21, 300, 63}}));
        QCOMPARE(composer->total(), 493.8);
        QCOMPARE(view->vatRows().size(), 2);
        QTRY_VERIFY_WITH_TIMEOUT(!view->previewPages().isEmpty() && !view->previewBusy(), patience);
        QCOMPARE(view->previewPages().size(), 1);
        const QImage wider = view->previewImage(0);

        // A later start leaves the old hour out, and the preview follows.
        QVERIFY(!view->setPeriod(u"2026-13-01"_s, view->toText()));
        QVERIFY(view->messageIsError());
        QVERIFY(view->setPeriod(QDate::currentDate().addDays(-2).toString(Qt::ISODate), view->toText()));
        QCOMPARE(composer->subtotal(), 320.0);
        QCOMPARE(composer->total(), 372.8);
        QTRY_VERIFY_WITH_TIMEOUT(!view->previewBusy() && view->previewImage(0) != wider, patience);
        composer->setClientName(u"Hoekstra Design"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!view->previewBusy(), patience);
        QTest::qWait(300);
        shoot(u"invoice-composer"_s);

        const QString number = view->number();
        view->save(u"sent"_s);
        QTRY_COMPARE_WITH_TIMEOUT(item("mainView")->property("page").toString(), u"invoices"_s, patience);
        const std::optional<Invoice> saved = store()->invoiceByNumber(number);
        QVERIFY(saved);
        QCOMPARE(saved->status, InvoiceStatus::Sent);
        QCOMPARE(saved->total, 372.8);
        QCOMPARE(saved->clientName, u"Hoekstra Design"_s);
        QVERIFY(saved->pdfPath);
        InvoiceList *list = workspace()->invoices();
        QTRY_VERIFY(list->rows()->indexOf(saved->id) >= 0);
        // The hour before the period is still there to bill.
        const auto unbilledOf = [this](const QString &projectId) {
            const QList<TimeEntry> &entries = store()->unbilledEntries();
            return std::count_if(entries.cbegin(), entries.cend(),
                                 [&](const TimeEntry &entry) { return entry.projectId == projectId; });
        };
        QTRY_COMPARE_WITH_TIMEOUT(unbilledOf(projects[0].projectId), 1, patience);
        QCOMPARE(unbilledOf(projects[1].projectId), 0);

        list->redraw(saved->id);
        QTRY_VERIFY2_WITH_TIMEOUT(!list->busy() && list->message().contains(number), qPrintable(list->message()),
                                  patience);
        QVERIFY(!list->messageIsError());

        list->voidInvoice(saved->id);
        QTRY_COMPARE_WITH_TIMEOUT(store()->invoice(saved->id)->status, InvoiceStatus::Void, patience);
        QTRY_VERIFY(!list->busy());
        list->changeStatus(saved->id, u"paid"_s);
        QTRY_VERIFY_WITH_TIMEOUT(list->messageIsError(), patience);
        QCOMPARE(store()->invoice(saved->id)->status, InvoiceStatus::Void);
    }

    void settingsSaveTheProfileAndMoveToAnotherBackend()
    {
        website();
        QTest::keyClick(m_window, Qt::Key_Comma, Qt::ControlModifier);
        QTRY_VERIFY(m_window->findChild<QQuickItem *>(u"signOutButton"_s));
        shoot(u"settings"_s);
        checkControlsHaveNames();
        Preferences *prefs = m_shell->preferences();
        QVERIFY(!prefs->saveProfile(u"Ada"_s, u"lots"_s, u"EUR"_s));
        QVERIFY(prefs->saveProfile(u"Ada L."_s, u"120"_s, u"EUR"_s));
        QTRY_COMPARE_WITH_TIMEOUT(store()->defaultHourlyRate(), 120.0, patience);
        QCOMPARE(store()->currency(), u"EUR"_s);

        QVERIFY(!prefs->useBackend(u"ftp://example.com"_s, u"key"_s));
        QVERIFY(!prefs->useBackend(m_backend.url().toString(), {}));
        QVERIFY(prefs->useBackend(m_backend.url().toString(), QString::fromLatin1(m_backend.anonKey())));
        QVERIFY(!prefs->usesLocalBackend());
        // The session comes back on the new connection with everything in it.
        QTRY_COMPARE_WITH_TIMEOUT(m_shell->phase(), DesktopShell::Ready, patience);
        QTRY_VERIFY_WITH_TIMEOUT(column(workspace()->sidebar(), u"title"_s).contains(u"Website redesign"_s), patience);
    }

};

MORVANE_DESKTOP_TEST_MAIN(TestDesktop)

#include "tst_desktop.moc"
