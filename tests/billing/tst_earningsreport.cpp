#include "billing/billingsamples.h"
#include "billing/earningsreport.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace BillingSamples;
using EarningsReport::Grouping;
using EarningsReport::Row;

namespace {

constexpr qint64 hour = 3600;

TaskItem taskIn(const QString &id, const QString &projectId, std::optional<Billing> billing = std::nullopt)
{
    TaskItem item;
    item.id = id;
    item.projectId = projectId;
    item.billing = std::move(billing);
    return item;
}

Project projectWith(const QString &id, Opt legacyRate, std::optional<Billing> billing = std::nullopt)
{
    Project item;
    item.id = id;
    item.hourlyRate = legacyRate;
    item.billing = std::move(billing);
    return item;
}

TimeEntry entry(const QString &id, const QString &taskId, const QString &projectId, const QString &startedAt,
                qint64 seconds)
{
    TimeEntry item;
    item.id = id;
    item.taskId = taskId;
    item.projectId = projectId;
    item.startedAt = startedAt;
    item.durationSeconds = seconds;
    return item;
}

// The known week (and the start of the next): Web follows an hourly €80 project price, except its
// day-rate task and its own fixed-price task; Brand has only the legacy €60 rate; Shop is one
// €1,200 fixed price shared by two tasks. e1 and e5 are on an invoice.
EarningsReport::Sources knownWeek(const QString &zone)
{
    EarningsReport::Sources sources;
    sources.projects = {projectWith(u"web"_s, std::nullopt, hourly(80)), projectWith(u"brand"_s, 60),
                        projectWith(u"shop"_s, std::nullopt, fixedPrice(1200))};
    sources.tasks = {taskIn(u"design"_s, u"web"_s),
                     taskIn(u"build"_s, u"web"_s, daily(600, 8)),
                     taskIn(u"logo"_s, u"brand"_s),
                     taskIn(u"cart"_s, u"shop"_s),
                     taskIn(u"pay"_s, u"shop"_s),
                     taskIn(u"audit"_s, u"web"_s, withExtras(fixedPrice(500), std::nullopt, 50, std::nullopt))};
    sources.entries = {
        entry(u"e1"_s, u"design"_s, u"web"_s, u"2025-03-24T09:00:00Z"_s, 2 * hour),     // 160
        entry(u"e2"_s, u"design"_s, u"web"_s, u"2025-03-25T09:00:00Z"_s, 3 * hour / 2), // 120
        entry(u"e3"_s, u"build"_s, u"web"_s, u"2025-03-26T08:00:00Z"_s, 4 * hour),      // half a day: 300
        entry(u"e4"_s, u"logo"_s, u"brand"_s, u"2025-03-27T10:00:00Z"_s, hour),         // 60
        entry(u"e5"_s, u"cart"_s, u"shop"_s, u"2025-03-28T10:00:00Z"_s, 3 * hour),      // 0
        // Shop's latest entry carries its price; Sunday in UTC, Monday 01:00 in Auckland.
        entry(u"e6"_s, u"pay"_s, u"shop"_s, u"2025-03-30T12:00:00Z"_s, hour),       // 1200
        entry(u"e7"_s, u"audit"_s, u"web"_s, u"2025-03-31T09:00:00Z"_s, 2 * hour),  // 500 + 50
        entry(u"e8"_s, u"design"_s, u"web"_s, u"2025-04-01T09:00:00Z"_s, hour / 2), // 40
    };
    sources.billedEntryIds = {u"e1"_s, u"e5"_s};
    sources.defaultHourlyRate = 50;
    sources.zone = QTimeZone(zone.toUtf8());
    return sources;
}

// start, earned, billed, seconds
using Expected = QList<std::tuple<QDate, double, double, qint64>>;

} // namespace

Q_DECLARE_METATYPE(Expected)
Q_DECLARE_METATYPE(Grouping)

class TestEarningsReport : public QObject
{
    Q_OBJECT

private slots:
    void periods_data()
    {
        QTest::addColumn<QString>("zone");
        QTest::addColumn<Grouping>("grouping");
        QTest::addColumn<QDate>("from");
        QTest::addColumn<QDate>("to");
        QTest::addColumn<Expected>("expected");

        const QDate mar17(2025, 3, 17), mar24(2025, 3, 24), mar31(2025, 3, 31);
        QTest::newRow("weeks in UTC; the week after the month end holds March and April")
            << u"UTC"_s << Grouping::Week << mar24 << QDate(2025, 4, 6)
            << Expected{{mar24, 1840, 1360, 45000}, {mar31, 590, 0, 9000}};
        QTest::newRow("an empty week before stays in the chart")
            << u"UTC"_s << Grouping::Week << QDate(2025, 3, 20) << mar31
            << Expected{{mar17, 0, 0, 0}, {mar24, 1840, 1360, 45000}, {mar31, 590, 0, 9000}};
        QTest::newRow("Auckland's Monday begins on UTC's Sunday: the shared fixed price moves with it")
            << u"Pacific/Auckland"_s << Grouping::Week << mar24 << mar31
            << Expected{{mar24, 640, 160, 41400}, {mar31, 1790, 1200, 12600}};
        QTest::newRow("months split the week that crosses the month end")
            << u"UTC"_s << Grouping::Month << QDate(2025, 3, 15) << QDate(2025, 4, 2)
            << Expected{{QDate(2025, 3, 1), 2390, 1360, 52200}, {QDate(2025, 4, 1), 40, 0, 1800}};
        QTest::newRow("entries outside the periods are left out")
            << u"UTC"_s << Grouping::Week << mar31 << mar31 << Expected{{mar31, 590, 0, 9000}};
    }

    void periods()
    {
        QFETCH(QString, zone);
        QFETCH(Grouping, grouping);
        QFETCH(QDate, from);
        QFETCH(QDate, to);
        QFETCH(Expected, expected);
        const QList<Row> rows = EarningsReport::byPeriod(EarningsReport::price(knownWeek(zone)), grouping, from, to);
        QCOMPARE(rows.size(), expected.size());
        for (qsizetype i = 0; i < rows.size(); ++i) {
            const auto &[start, earned, billed, seconds] = expected[i];
            QCOMPARE(rows[i].start, start);
            QCOMPARE(rows[i].end, EarningsReport::periodEnd(start, grouping));
            QCOMPARE(rows[i].earned, earned);
            QCOMPARE(rows[i].billed, billed);
            QCOMPARE(rows[i].unbilled(), earned - billed);
            QCOMPARE(rows[i].seconds, seconds);
        }
    }

    void projectsWithHoursAndRate()
    {
        const QList<EarningsReport::PricedEntry> priced = EarningsReport::price(knownWeek(u"UTC"_s));
        const QList<Row> rows = EarningsReport::byProject(priced);
        QCOMPARE(rows.size(), 3);
        QCOMPARE(rows[0].projectId, u"shop"_s);
        QCOMPARE(rows[0].earned, 1200.0);
        QCOMPARE(rows[0].billed, 1200.0);
        QCOMPARE(rows[0].effectiveRate(), std::optional<double>(300));
        QCOMPARE(rows[1].projectId, u"web"_s);
        QCOMPARE(rows[1].earned, 1170.0);
        QCOMPARE(rows[1].billed, 160.0);
        QCOMPARE(rows[1].hours(), 10.0);
        QCOMPARE(rows[1].effectiveRate(), std::optional<double>(117));
        QCOMPARE(rows[1].entryIds, (QList<QString>{u"e1"_s, u"e2"_s, u"e3"_s, u"e7"_s, u"e8"_s}));
        QCOMPARE(rows[2].projectId, u"brand"_s);
        QCOMPARE(rows[2].effectiveRate(), std::optional<double>(60));

        const Row all = EarningsReport::total(priced);
        QCOMPARE(all.earned, 2430.0);
        QCOMPARE(all.billed, 1360.0);
        QCOMPARE(all.seconds, 15 * hour);
    }

    // One unit's entries (all starting an hour apart in this order) and what each earns.
    void oncePerUnitParts_data()
    {
        QTest::addColumn<Billing>("billing");
        QTest::addColumn<QList<qint64>>("durations");
        QTest::addColumn<QList<QString>>("billed");
        QTest::addColumn<QList<double>>("earned");
        QTest::addColumn<double>("billedMoney");

        const QList<qint64> halfHours{hour / 2, hour / 2};
        QTest::newRow("the minimum charge tops up the latest entry")
            << withExtras(hourly(100), 150, std::nullopt, std::nullopt) << halfHours << QList<QString>{}
            << QList<double>{50, 100} << 0.0;
        QTest::newRow("a minimum below the time adds nothing")
            << withExtras(hourly(100), 80, std::nullopt, std::nullopt) << halfHours << QList<QString>{}
            << QList<double>{50, 50} << 0.0;
        QTest::newRow("a percentage discount scales each entry")
            << discounted(hourly(100), 10, true) << halfHours << QList<QString>{} << QList<double>{45, 45} << 0.0;
        QTest::newRow("an absolute discount is taken once")
            << discounted(hourly(100), 30) << halfHours << QList<QString>{} << QList<double>{50, 20} << 0.0;
        QTest::newRow("per-unit price once, however many entries")
            << perUnit(40, 3) << QList<qint64>{hour, hour, hour} << QList<QString>{} << QList<double>{0, 0, 120} << 0.0;
        QTest::newRow("a fixed price billed with the first entry stays billed after new time")
            << fixedPrice(900) << halfHours << QList<QString>{u"x0"_s} << QList<double>{0, 900} << 900.0;
        QTest::newRow("hourly time is billed entry by entry")
            << withExtras(hourly(100), std::nullopt, 25, std::nullopt) << halfHours << QList<QString>{u"x0"_s}
            << QList<double>{50, 75} << 75.0;
        QTest::newRow("a day's rate on part of a day, 6-hour days")
            << daily(480, 6) << QList<qint64>{3 * hour} << QList<QString>{} << QList<double>{240} << 0.0;
    }

    void oncePerUnitParts()
    {
        QFETCH(Billing, billing);
        QFETCH(QList<qint64>, durations);
        QFETCH(QList<QString>, billed);
        QFETCH(QList<double>, earned);
        QFETCH(double, billedMoney);
        EarningsReport::Sources sources;
        sources.tasks = {taskIn(u"t"_s, u"p"_s, billing)};
        sources.projects = {projectWith(u"p"_s, std::nullopt)};
        sources.billedEntryIds = QSet<QString>(billed.begin(), billed.end());
        // Handed in newest first: the latest entry is found by time, not by position.
        for (qsizetype i = durations.size() - 1; i >= 0; --i) {
            const QString start =
                QDateTime(QDate(2025, 6, 2), QTime(int(8 + i), 0), QTimeZone::utc()).toString(Qt::ISODate);
            sources.entries << entry(u"x"_s + QString::number(i), u"t"_s, u"p"_s, start, durations[i]);
        }
        const QList<EarningsReport::PricedEntry> priced = EarningsReport::price(sources);
        QCOMPARE(priced.size(), earned.size());
        for (qsizetype i = 0; i < priced.size(); ++i) {
            QCOMPARE(priced[i].entry.id, u"x"_s + QString::number(i));
            QCOMPARE(priced[i].earned, earned[i]);
        }
        QCOMPARE(EarningsReport::total(priced).billed, billedMoney);
    }

    void noHoursNoRate()
    {
        EarningsReport::Sources sources;
        sources.tasks = {taskIn(u"t"_s, u"p"_s, fixedPrice(300))};
        sources.entries = {entry(u"a"_s, u"t"_s, u"p"_s, u"2025-06-02T08:00:00Z"_s, -40)};
        const Row row = EarningsReport::total(EarningsReport::price(sources));
        QCOMPARE(row.earned, 300.0);
        QCOMPARE(row.seconds, 0);
        QCOMPARE(row.effectiveRate(), std::nullopt);
    }
};

QTEST_GUILESS_MAIN(TestEarningsReport)
#include "tst_earningsreport.moc"
