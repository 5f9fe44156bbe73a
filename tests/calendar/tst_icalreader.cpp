#include "calendar/calendarimport.h"
#include "calendar/icalreader.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

// The events of a day as a person's calendar files hold them, read through to the import list.
class TestIcalReader : public QObject
{
    Q_OBJECT

    static QByteArray fixture(const QString &name)
    {
        QFile file(QStringLiteral(MORVANE_TEST_DATA "/calendar/") + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    // "title start–end" in UTC, one line per listed event.
    static QStringList listed(const QString &file, QDate day, const QTimeZone &zone)
    {
        const QDateTime from(day, QTime(0, 0), zone);
        const CalendarFeed feed = IcalReader::read(fixture(file), from, from.addDays(1), zone);
        const QList<CalendarEventDraft> drafts =
            CalendarImport::drafts({{CalendarIdentity{file, feed.name, feed.colorHex}, feed}});
        QStringList lines;
        for (const CalendarEventDraft &draft : drafts) {
            lines.append(u"%1 %2-%3 %4"_s.arg(draft.title, draft.start.toUTC().toString(u"MM-dd HH:mm"_s),
                                               draft.end.toUTC().toString(u"MM-dd HH:mm"_s))
                             .arg(draft.durationSeconds));
        }
        return lines;
    }

private slots:
    void days_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QDate>("day");
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QStringList>("expected");

        const QByteArray utc("UTC");
        QTest::newRow("weekly in its own VTIMEZONE, winter offset; the cancelled call is left out")
            << u"weekly.ics"_s << QDate(2025, 1, 6) << utc
            << QStringList{u"Weekly  Sync 01-06 08:30-01-06 09:00 1800"_s};
        QTest::newRow("EXDATE removes that week") << u"weekly.ics"_s << QDate(2025, 1, 20) << utc << QStringList{};
        QTest::newRow("moved occurrence leaves its original day") << u"weekly.ics"_s << QDate(2025, 1, 27) << utc
                                                                   << QStringList{};
        QTest::newRow("moved occurrence shows on its new day")
            << u"weekly.ics"_s << QDate(2025, 1, 28) << utc
            << QStringList{u"Weekly Sync (moved) 01-28 13:00-01-28 14:00 3600"_s};
        QTest::newRow("summer time after the last Sunday of March")
            << u"weekly.ics"_s << QDate(2025, 3, 31) << utc
            << QStringList{u"Weekly  Sync 03-31 07:30-03-31 08:00 1800"_s};
        QTest::newRow("years after the first instance")
            << u"weekly.ics"_s << QDate(2031, 6, 2) << utc << QStringList{u"Weekly  Sync 06-02 07:30-06-02 08:00 1800"_s};
        QTest::newRow("not a Monday") << u"weekly.ics"_s << QDate(2025, 1, 7) << utc << QStringList{};

        QTest::newRow("UTC day: named zone, floating, UTC, 60 s and the start of a midnight crossing")
            << u"mixed.ics"_s << QDate(2025, 3, 10) << utc
            << QStringList{u"Floating standup 03-10 08:30-03-10 09:15 2700"_s,
                           u"Tokyo call 03-10 09:00-03-10 10:00 3600"_s,
                           u"Design review 03-10 13:00-03-10 14:30 5400"_s,
                           u"Sixty seconds 03-10 16:00-03-10 16:01 60"_s,
                           u"Late deploy 03-10 22:30-03-11 01:30 10800"_s};
        QTest::newRow("the next day lists the crossing event with its full length")
            << u"mixed.ics"_s << QDate(2025, 3, 11) << utc << QStringList{u"Late deploy 03-10 22:30-03-11 01:30 10800"_s};
        QTest::newRow("a Tokyo day starts at 15:00 UTC the day before; floating times are Tokyo's")
            << u"mixed.ics"_s << QDate(2025, 3, 10) << QByteArray("Asia/Tokyo")
            << QStringList{u"Floating standup 03-09 23:30-03-10 00:15 2700"_s,
                           u"Tokyo call 03-10 09:00-03-10 10:00 3600"_s,
                           u"Design review 03-10 13:00-03-10 14:30 5400"_s};
    }

    void days()
    {
        QFETCH(QString, file);
        QFETCH(QDate, day);
        QFETCH(QByteArray, zone);
        QFETCH(QStringList, expected);
        QCOMPARE(listed(file, day, QTimeZone(zone)), expected);
    }

    void calendarNameAndColour_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("color");
        QTest::newRow("Apple colour with alpha") << u"weekly.ics"_s << u"Office"_s << u"#1BADF8"_s;
        QTest::newRow("CSS colour name") << u"mixed.ics"_s << u"Clients"_s << u"#40E0D0"_s;
    }

    void calendarNameAndColour()
    {
        QFETCH(QString, file);
        const QDateTime from(QDate(2025, 1, 6), QTime(0, 0), QTimeZone::utc());
        const CalendarFeed feed = IcalReader::read(fixture(file), from, from.addDays(1), QTimeZone::utc());
        QTEST(feed.name, "name");
        QTEST(feed.colorHex, "color");
    }

    void occurrenceDetails()
    {
        const QDateTime from(QDate(2025, 1, 13), QTime(0, 0), QTimeZone::utc());
        const CalendarFeed feed = IcalReader::read(fixture(u"weekly.ics"_s), from, from.addDays(1), QTimeZone::utc());
        QCOMPARE(feed.occurrences.size(), 1);
        const CalendarOccurrence &occurrence = feed.occurrences.first();
        QCOMPARE(occurrence.location, u"Room 4"_s);
        QCOMPARE(occurrence.notes, u"Standing agenda"_s);
        QCOMPARE(occurrence.attendeeCount, 2);
        // Each instance is named by its original start, so each week imports on its own.
        QCOMPARE(occurrence.instanceKey, u"2025-01-13T08:30:00Z"_s);
    }

    void hostileInput_data()
    {
        QTest::addColumn<QByteArray>("ics");
        QTest::addColumn<bool>("error");
        QTest::addColumn<int>("count");
        QTest::newRow("not a calendar") << QByteArray("<html>sign in</html>") << true << 0;
        QTest::newRow("a rule every second since 1970 stays bounded")
            << QByteArray("BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nUID:x\r\nDTSTART:19700101T000000Z\r\n"
                          "DURATION:PT1S\r\nRRULE:FREQ=SECONDLY;COUNT=100000000\r\nSUMMARY:flood\r\nEND:VEVENT\r\n"
                          "END:VCALENDAR\r\n")
            << false << 0;
        QTest::newRow("a rule every minute, open-ended, lists the day's instances only")
            << QByteArray("BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nUID:y\r\nDTSTART:20200101T000000Z\r\n"
                          "DURATION:PT1M\r\nRRULE:FREQ=MINUTELY;INTERVAL=30\r\nSUMMARY:tick\r\nEND:VEVENT\r\n"
                          "END:VCALENDAR\r\n")
            << false << 48;
    }

    void hostileInput()
    {
        QFETCH(QByteArray, ics);
        const QDateTime from(QDate(2025, 6, 1), QTime(0, 0), QTimeZone::utc());
        const CalendarFeed feed = IcalReader::read(ics, from, from.addDays(1), QTimeZone::utc());
        QTEST(!feed.error.isEmpty(), "error");
        QTEST(int(feed.occurrences.size()), "count");
    }
};

QTEST_GUILESS_MAIN(TestIcalReader)
#include "tst_icalreader.moc"
