#include "calendar/calendarimport.h"

#include <QTest>

using namespace Qt::StringLiterals;

// Which events are listed, and where each is proposed to go.
class TestCalendarImport : public QObject
{
    Q_OBJECT

    static TaskItem task(const QString &id, const QString &title, TaskStatus status)
    {
        TaskItem item;
        item.id = id;
        item.projectId = u"p1"_s;
        item.title = title;
        item.status = status;
        return item;
    }

private slots:
    void conversion_data()
    {
        QTest::addColumn<bool>("allDay");
        QTest::addColumn<bool>("hasStart");
        QTest::addColumn<qint64>("lengthMs");
        QTest::addColumn<int>("listedSeconds"); // -1: not listed

        QTest::newRow("an hour") << false << true << qint64(3600000) << 3600;
        QTest::newRow("60 seconds is listed") << false << true << qint64(60000) << 60;
        QTest::newRow("59.9 seconds is not") << false << true << qint64(59900) << -1;
        QTest::newRow("30 seconds is not") << false << true << qint64(30000) << -1;
        QTest::newRow("fractions are cut, not rounded up") << false << true << qint64(90999) << 90;
        QTest::newRow("ends before it starts") << false << true << qint64(-3600000) << -1;
        QTest::newRow("all-day, however long") << true << true << qint64(86400000) << -1;
        QTest::newRow("no start") << false << false << qint64(3600000) << -1;
    }

    void conversion()
    {
        QFETCH(bool, allDay);
        QFETCH(bool, hasStart);
        QFETCH(qint64, lengthMs);
        QFETCH(int, listedSeconds);
        const QDateTime start(QDate(2025, 3, 10), QTime(9, 0), QTimeZone::utc());
        CalendarOccurrence occurrence;
        occurrence.uid = u"u1"_s;
        occurrence.instanceKey = u"2025-03-10T09:00:00Z"_s;
        occurrence.title = u"Review"_s;
        occurrence.allDay = allDay;
        occurrence.start = hasStart ? start : QDateTime();
        occurrence.end = start.addMSecs(lengthMs);
        const std::optional<CalendarEventDraft> draft =
            CalendarImport::convert(occurrence, CalendarIdentity{u"/cal.ics"_s, u"Work"_s, u"#112233"_s});
        QCOMPARE(draft ? draft->durationSeconds : -1, listedSeconds);
        if (draft) {
            QCOMPARE(draft->calendar, u"Work"_s);
            QCOMPARE(draft->calendarColorHex, std::optional<QString>(u"#112233"_s));
        }
    }

    // The key names one instance of one event in one calendar, and nothing else.
    void importKeys()
    {
        const QString key = CalendarImport::importKey(u"https://a/cal"_s, u"uid"_s, u"2025-01-06T08:30:00Z"_s);
        QCOMPARE(key.size(), 64);
        QCOMPARE(CalendarImport::importKey(u"https://a/cal"_s, u"uid"_s, u"2025-01-06T08:30:00Z"_s), key);
        QVERIFY(CalendarImport::importKey(u"https://a/cal"_s, u"uid"_s, u"2025-01-13T08:30:00Z"_s) != key);
        QVERIFY(CalendarImport::importKey(u"https://b/cal"_s, u"uid"_s, u"2025-01-06T08:30:00Z"_s) != key);
        // Parts are delimited by their lengths, so shifting text between them changes the key.
        QVERIFY(CalendarImport::importKey(u"ab"_s, u"c"_s, u"d"_s) != CalendarImport::importKey(u"a"_s, u"bc"_s, u"d"_s));
    }

    void destination_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("preferred");
        QTest::addColumn<QString>("expected"); // "task:<id>", "new:<project>" or empty

        QTest::newRow("blanks and case do not matter") << u"Weekly  Sync"_s << u"p1"_s << u"task:open"_s;
        QTest::newRow("tabs, newlines and outer blanks") << u"\tWEEKLY\n sync  "_s << QString() << u"task:open"_s;
        QTest::newRow("a completed task of that title is not proposed") << u"Retro"_s << u"p1"_s << u"new:p1"_s;
        QTest::newRow("no match: new task in the selected project") << u"Kick-off"_s << u"p1"_s << u"new:p1"_s;
        QTest::newRow("no match and no selected project") << u"Kick-off"_s << QString() << QString();
        QTest::newRow("a selected project that does not exist") << u"Kick-off"_s << u"gone"_s << QString();
        QTest::newRow("words must match, not just letters") << u"Weekly Syncs"_s << QString() << QString();
    }

    void destination()
    {
        QFETCH(QString, title);
        QFETCH(QString, preferred);
        const QList<TaskItem> tasks{task(u"done"_s, u"weekly sync"_s, TaskStatus::Completed),
                                    task(u"open"_s, u"weekly sync"_s, TaskStatus::NotStarted),
                                    task(u"retro"_s, u"Retro"_s, TaskStatus::Completed)};
        Project project;
        project.id = u"p1"_s;
        const std::optional<CalendarDestination> to =
            CalendarImport::defaultDestination(title, tasks, {project}, preferred);
        const QString got = !to ? QString()
                            : to->kind == CalendarDestination::Kind::ExistingTask ? u"task:"_s + to->id
                                                                                  : u"new:"_s + to->id;
        QTEST(got, "expected");
    }
};

QTEST_GUILESS_MAIN(TestCalendarImport)
#include "tst_calendarimport.moc"
