#include "model/daykey.h"
#include "model/isodate.h"

#include <QTest>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace {

QDateTime utc(int y, int mo, int d, int h, int mi, int s, int ms = 0)
{
    return QDateTime(QDate(y, mo, d), QTime(h, mi, s, ms), Qt::UTC);
}

} // namespace

class TestIsoDate : public QObject
{
    Q_OBJECT

private slots:
    void parses_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDateTime>("expected");

        QTest::newRow("fractional, offset") << u"2025-03-01T09:30:00.123+01:00"_s << utc(2025, 3, 1, 8, 30, 0, 123);
        QTest::newRow("microseconds as the database prints them")
            << u"2025-03-01T09:30:00.123456+00:00"_s << utc(2025, 3, 1, 9, 30, 0, 123);
        QTest::newRow("plain, negative offset") << u"2025-03-01T09:30:00-05:30"_s << utc(2025, 3, 1, 15, 0, 0);
        QTest::newRow("offset without colon") << u"2025-03-01T09:30:00-0530"_s << utc(2025, 3, 1, 15, 0, 0);
        QTest::newRow("hour-only offset") << u"2025-03-01T09:30:00+02"_s << utc(2025, 3, 1, 7, 30, 0);
        QTest::newRow("space instead of T") << u"2025-03-01 09:30:00+00:00"_s << utc(2025, 3, 1, 9, 30, 0);
        QTest::newRow("offset crosses midnight") << u"2025-01-01T00:30:00+01:00"_s << utc(2024, 12, 31, 23, 30, 0);
    }

    void parses()
    {
        QFETCH(QString, text);
        QFETCH(QDateTime, expected);
        const std::optional<QDateTime> instant = isoDate(text);
        QCOMPARE(instant, std::optional(expected));
        QCOMPARE(instant->timeSpec(), Qt::UTC);
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("no zone") << u"2025-03-01T09:30:00"_s;
        QTest::newRow("space with fraction") << u"2025-03-01 09:30:00.5+00:00"_s;
        QTest::newRow("dot without digits") << u"2025-03-01T09:30:00.Z"_s;
        QTest::newRow("five digits, offset without colon") << u"2025-03-01T09:30:00.12345+0000"_s;
        QTest::newRow("no such day") << u"2025-02-29T09:30:00Z"_s;
        QTest::newRow("offset out of range") << u"2025-03-01T09:30:00+25:00"_s;
        QTest::newRow("trailing text") << u"2025-03-01T09:30:00Zjunk"_s;
        QTest::newRow("non-ASCII digits") << u"٢٠٢٥-03-01T09:30:00Z"_s;
    }

    void refuses()
    {
        QFETCH(QString, text);
        QCOMPARE(isoDate(text), std::nullopt);
    }

    void writesWhatItReads()
    {
        QCOMPARE(isoDate(std::optional<QString>()), std::nullopt);
        const QDateTime instant = utc(2025, 3, 1, 9, 30, 0, 999);
        // Whole seconds in UTC, whatever zone the instant was made in.
        QCOMPARE(isoString(instant), u"2025-03-01T09:30:00Z"_s);
        QCOMPARE(isoString(instant.toTimeZone(QTimeZone("Asia/Tokyo"))), u"2025-03-01T09:30:00Z"_s);
        QCOMPARE(isoDate(isoString(instant)), utc(2025, 3, 1, 9, 30, 0));
    }

    void dayKeysFollowTheZone_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QDateTime>("instant");
        QTest::addColumn<QString>("key");
        QTest::newRow("Amsterdam is already tomorrow")
            << QByteArray("Europe/Amsterdam") << utc(2025, 3, 1, 23, 30, 0) << u"2025-03-02"_s;
        QTest::newRow("Bangkok, new year")
            << QByteArray("Asia/Bangkok") << utc(2024, 12, 31, 17, 0, 0) << u"2025-01-01"_s;
        QTest::newRow("Amsterdam, last second before midnight in summer time")
            << QByteArray("Europe/Amsterdam") << utc(2025, 7, 1, 21, 59, 59) << u"2025-07-01"_s;
    }

    void dayKeysFollowTheZone()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QDateTime, instant);
        QFETCH(QString, key);
        const DayKey dayKey{QTimeZone(zone)};
        QCOMPARE(dayKey.key(instant), key);
    }
};

QTEST_GUILESS_MAIN(TestIsoDate)
#include "tst_isodate.moc"
