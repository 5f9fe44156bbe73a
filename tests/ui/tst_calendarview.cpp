#include "support/desktopwindow.h"
#include "ui/calendarview.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 20000;

QByteArray vevent(const QString &uid, const QString &title, const QDateTime &start, int minutes)
{
    const auto stamp = [](const QDateTime &at) { return at.toUTC().toString(u"yyyyMMdd'T'HHmmss'Z'"_s); };
    return (u"BEGIN:VEVENT\r\nUID:"_s + uid + u"\r\nDTSTAMP:"_s + stamp(start) + u"\r\nDTSTART:"_s + stamp(start) +
            u"\r\nDTEND:"_s + stamp(start.addSecs(minutes * 60)) + u"\r\nSUMMARY:"_s + title + u"\r\nEND:VEVENT\r\n"_s)
        .toUtf8();
}

} // namespace

// Calendar import in the real window over a real backend, from a calendar file written by the
// test: the day's events listed with a destination proposed by title, imported as time once.
class TestCalendarView : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    TestBackend m_backend;
    std::unique_ptr<DesktopWindow> m_desktop;

    CalendarView *view() const { return m_desktop->shell().calendar(); }
    AppStore *store() const { return m_desktop->store(); }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_backend.isReady(), qPrintable(m_backend.startupLog()));
        m_desktop = std::make_unique<DesktopWindow>(m_backend, [this](DesktopShell::Options &options) {
            options.calendarCacheDir = m_dir.filePath(u"cache"_s);
        });
        QVERIFY(m_desktop->open());
        QVERIFY(m_desktop->signUp(u"ada@example.com"_s));
    }

    void theDaysEventsBecomeTimeOnce()
    {
        Workspace *workspace = m_desktop->workspace();
        workspace->createProject(u"Harbour"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!workspace->selectedProjectId().isEmpty(), patience);
        const QString projectId = workspace->selectedProjectId();
        workspace->createTask(u"weekly sync"_s);
        QTRY_COMPARE_WITH_TIMEOUT(store()->tasks(projectId).size(), 1, patience);
        const QString syncTaskId = store()->tasks(projectId).first().id;

        const QDateTime morning(QDate::currentDate(), QTime(9, 0));
        QFile file(m_dir.filePath(u"work.ics"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Test//EN\r\nX-WR-CALNAME:Work\r\n" +
                   vevent(u"sync-1"_s, u"Weekly  Sync"_s, morning, 30) +
                   vevent(u"review-1"_s, u"Design review"_s, morning.addSecs(3600), 90) + "END:VCALENDAR\r\n");
        file.close();

        m_desktop->showPage(u"calendar"_s);
        QTRY_VERIFY(view()->ready());
        view()->addFile(QUrl::fromLocalFile(file.fileName()));
        QTRY_VERIFY_WITH_TIMEOUT(view()->hasAccess(), patience);
        QTRY_COMPARE_WITH_TIMEOUT(view()->events()->rowCount(), 2, patience);
        const auto row = [this](const QString &title) {
            for (const QVariantHash &event : view()->events()->rows()) {
                if (event.value(u"title"_s) == title) {
                    return event;
                }
            }
            return QVariantHash();
        };
        // The title matches the open task across case and spacing; the other waits for a choice.
        QCOMPARE(row(u"Weekly  Sync"_s).value(u"destination"_s).toString(), u"task:"_s + syncTaskId);
        view()->toggle(row(u"Weekly  Sync"_s).value(u"key"_s).toString());
        view()->setDestination(row(u"Design review"_s).value(u"key"_s).toString(), u"new:"_s + projectId);
        QCOMPARE(view()->selectedCount(), 2);
        QVERIFY(m_desktop->shoot(u"calendar-import"_s));

        view()->importSelected();
        QTRY_COMPARE_WITH_TIMEOUT(view()->message(), u"2 imported as time."_s, patience);
        QTRY_COMPARE_WITH_TIMEOUT(store()->tasks(projectId).size(), 2, patience);
        QTRY_VERIFY(row(u"Design review"_s).value(u"logged"_s).toBool());
        QCOMPARE(view()->selectedCount(), 0);
        // Again, after the day is read anew: nothing is logged twice.
        view()->reload();
        QTRY_VERIFY_WITH_TIMEOUT(!view()->loading(), patience);
        QTRY_VERIFY(row(u"Weekly  Sync"_s).value(u"logged"_s).toBool());
        QCOMPARE(view()->selectedCount(), 0);
    }

    void cleanupTestCase() { m_desktop.reset(); }
};

MORVANE_DESKTOP_TEST_MAIN(TestCalendarView)
#include "tst_calendarview.moc"
