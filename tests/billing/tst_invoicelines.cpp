#include "billing/billingsamples.h"
#include "billing/invoicelines.h"
#include "i18n/language.h"

#include <QLocale>
#include <QTest>

#include <numeric>

using namespace Qt::StringLiterals;
using namespace BillingSamples;
using Earnings::BuiltLine;
using Earnings::ComposerTask;
using Earnings::UnitKind;
using Earnings::VatGroup;
using Kind = Earnings::BuiltLine::Kind;

Q_DECLARE_METATYPE(Kind)
Q_DECLARE_METATYPE(UnitKind)
Q_DECLARE_METATYPE(VatGroup)
Q_DECLARE_METATYPE(BuiltLine)
Q_DECLARE_METATYPE(ComposerTask)
Q_DECLARE_METATYPE(std::optional<QString>)

namespace {

constexpr qint64 hour = 3600;

ComposerTask composerTask(const QString &id, qint64 seconds, std::optional<Billing> own = std::nullopt,
                          std::optional<Billing> projectBilling = std::nullopt, Opt taskRate = std::nullopt,
                          Opt projectRate = std::nullopt, const QString &projectId = u"p1"_s)
{
    ComposerTask composer;
    composer.task.id = id;
    composer.task.title = u"Task "_s + id;
    composer.task.projectId = projectId;
    composer.task.hourlyRate = taskRate;
    composer.task.billing = std::move(own);
    Project project;
    project.id = projectId;
    project.name = u"Project "_s + projectId;
    project.hourlyRate = projectRate;
    project.billing = std::move(projectBilling);
    composer.project = project;
    composer.seconds = seconds;
    composer.entryIds = {id + u"-e1"_s};
    return composer;
}

QList<Kind> kindsOf(const QList<BuiltLine> &lines)
{
    QList<Kind> kinds;
    std::transform(lines.cbegin(), lines.cend(), std::back_inserter(kinds), [](const BuiltLine &l) { return l.kind; });
    return kinds;
}

QList<double> amountsOf(const QList<BuiltLine> &lines)
{
    QList<double> amounts;
    std::transform(lines.cbegin(), lines.cend(), std::back_inserter(amounts),
                   [](const BuiltLine &l) { return l.amount; });
    return amounts;
}

BuiltLine vatLine(double amount, std::optional<double> rate)
{
    BuiltLine line;
    line.amount = amount;
    line.vatRate = rate;
    return line;
}

} // namespace

class TestInvoiceLines : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Language::apply(u"en"_s);
        QLocale::setDefault(QLocale(u"en_US"_s));
    }

    // One task, one unit: which lines it gives and what they come to.
    void singleUnit_data()
    {
        QTest::addColumn<ComposerTask>("task");
        QTest::addColumn<bool>("billedBefore");
        QTest::addColumn<bool>("billAgain");
        QTest::addColumn<UnitKind>("unitKind");
        QTest::addColumn<QList<Kind>>("kinds");
        QTest::addColumn<QList<double>>("amounts");
        QTest::addColumn<bool>("followUp");

        const auto row = [](const char *name, ComposerTask task, QList<Kind> kinds, QList<double> amounts,
                            UnitKind unit = UnitKind::Own, bool before = false, bool again = false,
                            bool followUp = false) {
            QTest::newRow(name) << task << before << again << unit << kinds << amounts << followUp;
        };
        const Billing extras = withExtras(hourly(80), 100, 20, 30, 10, true);

        row("hourly own rate", composerTask(u"a"_s, 90 * 60, hourly(80)), {Kind::Work}, {120});
        row("legacy unit: project rate, never a follow-up", composerTask(u"a"_s, 2 * hour, {}, {}, 0, 50), {Kind::Work},
            {100}, UnitKind::Legacy, true);
        row("fixed", composerTask(u"a"_s, 5 * hour, fixedPrice(1200)), {Kind::Fixed}, {1200});
        row("every extra in order", composerTask(u"a"_s, 45 * 60, extras),
            {Kind::Work, Kind::MinCharge, Kind::Surcharge, Kind::Materials, Kind::Discount}, {60, 40, 20, 30, -15});
        row("minimum charge one cent short of the base",
            composerTask(u"a"_s, 3599, withExtras(hourly(100), 100, {}, {})), {Kind::Work, Kind::MinCharge},
            {99.97, 0.03});
        row("absolute discount beyond the total stops at zero",
            composerTask(u"a"_s, hour, withExtras(hourly(50), {}, 10, {}, 500)),
            {Kind::Work, Kind::Surcharge, Kind::Discount}, {50, 10, -60});
        row("percentage discount on a fixed price", composerTask(u"a"_s, 0, discounted(fixedPrice(999.99), 15, true)),
            {Kind::Fixed, Kind::Discount}, {999.99, -150});
        const ComposerTask billedFixed = composerTask(u"a"_s, 2 * hour, withExtras(fixedPrice(1200), {}, 35, {}));
        row("fixed price billed before: new time at no charge", billedFixed, {Kind::Work}, {0}, UnitKind::Own, true,
            false, true);
        row("fixed price billed before, billed again", billedFixed, {Kind::Fixed, Kind::Surcharge}, {1200, 35},
            UnitKind::Own, true, true);
        row("hourly billed before: percentage discount still given",
            composerTask(u"a"_s, 2 * hour, withExtras(hourly(50), 500, 20, 5, 10, true)), {Kind::Work, Kind::Discount},
            {100, -10}, UnitKind::Own, true, false, true);
        row("hourly billed before: fixed discount left out",
            composerTask(u"a"_s, 2 * hour, withExtras(hourly(50), {}, 20, {}, 10)), {Kind::Work}, {100}, UnitKind::Own,
            true, false, true);
    }

    void singleUnit()
    {
        QFETCH(ComposerTask, task);
        QFETCH(bool, billedBefore);
        QFETCH(bool, billAgain);
        QFETCH(UnitKind, unitKind);
        QFETCH(QList<Kind>, kinds);
        QFETCH(QList<double>, amounts);
        QFETCH(bool, followUp);

        const QString key = (unitKind == UnitKind::Own ? u"task:"_s : u"legacy:"_s) + task.task.id;
        const QSet<QString> prior = billedBefore ? QSet<QString>{task.task.id} : QSet<QString>{};
        const QSet<QString> again = billAgain ? QSet<QString>{key} : QSet<QString>{};
        const Earnings::BuildResult result = Earnings::buildInvoiceLines({task}, 70, prior, {}, again, {});

        QCOMPARE(result.units.size(), 1);
        const Earnings::BuiltUnit &unit = result.units.front();
        QCOMPARE(unit.kind, unitKind);
        QCOMPARE(unit.key, key);
        QCOMPARE(unit.followUp, followUp);
        QCOMPARE(unit.oneOffs, unit.hasOneOffs && !followUp);
        QCOMPARE(kindsOf(result.lines), kinds);
        QCOMPARE(amountsOf(result.lines), amounts);

        QCOMPARE(result.subtotal, Earnings::round2(std::accumulate(amounts.cbegin(), amounts.cend(), 0.0)));
        QCOMPARE(unit.total, result.subtotal);
        QCOMPARE(result.byTask.value(task.task.id), result.subtotal);
        for (const BuiltLine &line : result.lines) {
            QCOMPARE(line.unitKey, key);
            QCOMPARE(line.taskId, std::optional<QString>(task.task.id));
            QCOMPARE(line.label == u"FOLLOW-UP"_s, followUp);
        }
        if (!followUp) {
            // Billed in full, the lines add up to the net of the price setting.
            const Project *project = task.project ? &*task.project : nullptr;
            const double rate = Earnings::legacyRate(&task.task, project, 70);
            const Billing billing = Earnings::resolve(&task.task, project, 70);
            QCOMPARE(result.subtotal, Earnings::round2(Earnings::amount(billing, task.seconds, rate)));
        }
    }

    void workLineQuantities_data()
    {
        QTest::addColumn<Billing>("billing");
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<double>("quantity");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<double>("unitPrice");
        QTest::newRow("hourly") << hourly(80) << qint64(90 * 60) << 1.5 << u"h"_s << 80.0;
        QTest::newRow("daily") << daily(600, 4) << qint64(6 * hour) << 1.5 << u"day"_s << 600.0;
        QTest::newRow("daily without hours per day") << daily(500, 0) << qint64(6 * hour) << 0.0 << u"day"_s << 500.0;
        QTest::newRow("per unit without label") << perUnit(12.5, 4) << qint64(0) << 4.0 << u"unit"_s << 12.5;
    }

    void workLineQuantities()
    {
        QFETCH(Billing, billing);
        QFETCH(qint64, seconds);
        const auto result = Earnings::buildInvoiceLines({composerTask(u"a"_s, seconds, billing)}, 0, {}, {}, {}, {});
        QCOMPARE(result.lines.size(), 1);
        QTEST(result.lines.front().quantity, "quantity");
        QTEST(result.lines.front().unit.value_or(QString()), "unit");
        QTEST(result.lines.front().unitPrice, "unitPrice");
        QCOMPARE(result.lines.front().title, u"Task a"_s);
    }

    void surchargeTitle()
    {
        for (const auto &[label, title] : {std::pair{std::optional<QString>(u"Parking"_s), u"Parking"_s},
                                           std::pair{std::optional<QString>(u"  "_s), u"Call-out fee"_s}}) {
            Billing billing = withExtras(hourly(10), {}, 25, {});
            billing.surchargeLabel = label;
            const auto result = Earnings::buildInvoiceLines({composerTask(u"a"_s, hour, billing)}, 0, {}, {}, {}, {});
            QCOMPARE(result.lines.size(), 2);
            QCOMPARE(result.lines[1].title, title);
        }
    }

    // Tasks that follow their project's price share one price and one set of extras.
    void poolBillsProjectPriceOnce_data()
    {
        QTest::addColumn<bool>("billedBefore");
        QTest::addColumn<bool>("billAgain");
        QTest::addColumn<QList<Kind>>("kinds");
        QTest::addColumn<QList<double>>("amounts");
        QTest::addColumn<double>("poolExtra");

        // Lines: the own task first, then the pool in the order of its tasks.
        QTest::newRow("first invoice") << false << false
                                       << QList<Kind>{Kind::Work, Kind::Fixed, Kind::Work, Kind::Work, Kind::Surcharge}
                                       << QList<double>{150, 1000, 0, 0, 50} << 1050.0;
        QTest::newRow("follow-up") << true << false << QList<Kind>{Kind::Work, Kind::Work, Kind::Work}
                                   << QList<double>{150, 0, 0} << 0.0;
        QTest::newRow("billed again") << true << true
                                      << QList<Kind>{Kind::Work, Kind::Fixed, Kind::Work, Kind::Work, Kind::Surcharge}
                                      << QList<double>{150, 1000, 0, 0, 50} << 1050.0;
    }

    void poolBillsProjectPriceOnce()
    {
        QFETCH(bool, billedBefore);
        QFETCH(bool, billAgain);
        QFETCH(QList<Kind>, kinds);
        QFETCH(QList<double>, amounts);
        QFETCH(double, poolExtra);

        const Billing projectPrice = withVat(withExtras(fixedPrice(1000), {}, 50, {}), 0.21);
        const QList<ComposerTask> tasks{
            composerTask(u"a"_s, hour, {}, projectPrice),
            composerTask(u"own"_s, 2 * hour, hourly(75), projectPrice),
            composerTask(u"b"_s, 3 * hour, {}, projectPrice),
        };
        const QSet<QString> priorPools = billedBefore ? QSet<QString>{u"p1"_s} : QSet<QString>{};
        const QSet<QString> again = billAgain ? QSet<QString>{u"pool:p1"_s} : QSet<QString>{};
        const auto result = Earnings::buildInvoiceLines(tasks, 0, {}, priorPools, again, {});

        QCOMPARE(kindsOf(result.lines), kinds);
        QCOMPARE(amountsOf(result.lines), amounts);
        QCOMPARE(result.units.size(), 2);
        const Earnings::BuiltUnit &pool = result.units[1];
        QCOMPARE(pool.kind, UnitKind::Pool);
        QCOMPARE(pool.key, u"pool:p1"_s);
        QCOMPARE(pool.taskIds, (QList<QString>{u"a"_s, u"b"_s}));
        QCOMPARE(pool.followUp, billedBefore && !billAgain);
        QCOMPARE(result.poolExtraByProject.value(u"p1"_s), poolExtra);
        QCOMPARE(result.byTask.value(u"own"_s), 150.0);
        QCOMPARE(result.byTask.value(u"a"_s), 0.0);
        QCOMPARE(result.subtotal, 150 + poolExtra);

        for (const BuiltLine &line : pool.lines) {
            QCOMPARE(line.vatRate, std::optional<double>(0.21));
            if (line.kind == Kind::Work) {
                QVERIFY(line.taskId);
                QCOMPARE(line.description, pool.followUp ? u"fixed price already billed · extras already billed"_s
                                                         : u"included in the project price"_s);
            } else {
                QVERIFY(!line.taskId);
                QCOMPARE(line.description, std::optional<QString>(u"once per project"_s));
            }
        }
    }

    // An hourly pool's minimum charge is measured against all its tasks together.
    void poolMinimumOverAllTasks()
    {
        const Billing price = withExtras(hourly(80), 300, {}, {});
        const QList<ComposerTask> tasks{composerTask(u"a"_s, hour, {}, price),
                                        composerTask(u"b"_s, 2 * hour, {}, price),
                                        composerTask(u"c"_s, hour, {}, price, {}, {}, u"p2"_s)};
        const auto result = Earnings::buildInvoiceLines(tasks, 0, {}, {u"p2"_s}, {}, {});

        QCOMPARE(result.units.size(), 2);
        QCOMPARE(kindsOf(result.units[0].lines), (QList<Kind>{Kind::Work, Kind::Work, Kind::MinCharge}));
        QCOMPARE(amountsOf(result.units[0].lines), (QList<double>{80, 160, 60}));
        QCOMPARE(result.poolExtraByProject.value(u"p1"_s), 60.0);
        // The second project's minimum was billed before: its hour stands alone.
        QCOMPARE(amountsOf(result.units[1].lines), (QList<double>{80}));
        QCOMPARE(result.units[1].lines.front().description, u"new time only · extras already billed"_s);
        QCOMPARE(result.subtotal, 380.0);
    }

    void vat_data()
    {
        QTest::addColumn<QList<BuiltLine>>("lines");
        QTest::addColumn<std::optional<double>>("manual");
        QTest::addColumn<double>("templatePercent");
        QTest::addColumn<QList<VatGroup>>("groups");
        QTest::addColumn<double>("vat");
        QTest::addColumn<double>("total");

        // At 21 % three lines of 0.03 make 0.0189 (0.02) while each alone rounds to 0.01; at 9 %
        // 0.17 makes 0.0153 (0.02); the unrounded sum of both groups would be 0.03.
        const QList<BuiltLine> mixed{vatLine(0.03, 0.21), vatLine(0.12, 0.09), vatLine(0.03, 0.21), vatLine(0.05, 0.09),
                                     vatLine(0.03, 0.21000000000000002)};
        QTest::newRow("21 and 9 rounded per group")
            << mixed << std::optional<double>() << 0.0 << QList<VatGroup>{{9, 0.17, 0.02}, {21, 0.09, 0.02}} << 0.04
            << 0.30;
        QTest::newRow("manual percentage for every line")
            << mixed << std::optional<double>(21) << 9.0 << QList<VatGroup>{{21, 0.26, 0.05}} << 0.05 << 0.31;
        QTest::newRow("template percentage where a line has none")
            << QList<BuiltLine>{vatLine(100, {}), vatLine(50, 0.09)} << std::optional<double>() << 21.0
            << QList<VatGroup>{{9, 50, 4.5}, {21, 100, 21}} << 25.5 << 175.5;
        QTest::newRow("a rate of 0 is no VAT, not the template's")
            << QList<BuiltLine>{vatLine(100, 0.0), vatLine(10.01, {})} << std::optional<double>() << 19.0
            << QList<VatGroup>{{0, 100, 0}, {19, 10.01, 1.9}} << 1.9 << 111.91;
        QTest::newRow("manual 0") << QList<BuiltLine>{vatLine(80, 0.21)} << std::optional<double>(0) << 21.0
                                  << QList<VatGroup>{{0, 80, 0}} << 0.0 << 80.0;
        QTest::newRow("discount lowers its group's base")
            << QList<BuiltLine>{vatLine(200, 0.21), vatLine(-20, 0.21)} << std::optional<double>() << 0.0
            << QList<VatGroup>{{21, 180, 37.8}} << 37.8 << 217.8;
    }

    void vat()
    {
        QFETCH(QList<BuiltLine>, lines);
        QFETCH(std::optional<double>, manual);
        QFETCH(double, templatePercent);
        const double subtotal = std::accumulate(lines.cbegin(), lines.cend(), 0.0,
                                                [](double sum, const BuiltLine &line) { return sum + line.amount; });
        const Earnings::VatResult result =
            Earnings::computeVat(lines, Earnings::round2(subtotal), manual, templatePercent);
        QTEST(result.groups, "groups");
        QTEST(result.vat, "vat");
        QTEST(result.total, "total");
    }

    void vatFromBuiltLines()
    {
        const QList<ComposerTask> tasks{composerTask(u"a"_s, hour, withVat(hourly(100), 0.21)),
                                        composerTask(u"b"_s, hour, withVat(hourly(100), 0.09)),
                                        composerTask(u"c"_s, hour, {}, {}, 100)};
        const auto built = Earnings::buildInvoiceLines(tasks, 0, {}, {}, {}, {});
        const auto vat = Earnings::computeVat(built.lines, built.subtotal, {}, 19);
        QCOMPARE(vat.groups, (QList<VatGroup>{{9, 100, 9}, {19, 100, 19}, {21, 100, 21}}));
        QCOMPARE(vat.total, 349.0);
    }

    void infersTheVatPercent()
    {
        for (const double subtotal : {19.99, 100.0, 1234.56, 87.3}) {
            for (const double percent : {0.0, 5.5, 9.0, 19.0, 21.0, 25.0}) {
                const double vat = Earnings::round2(subtotal * percent / 100);
                QCOMPARE(Earnings::inferVatPercent(subtotal, vat), std::optional<double>(percent));
            }
        }
        // 33.33 at 21 % (7.00) and 10.00 at 9 % (0.90): no single rate gives 7.90 on 43.33.
        QCOMPARE(Earnings::inferVatPercent(43.33, 7.90), std::nullopt);
        QCOMPARE(Earnings::inferVatPercent(0, 5), std::nullopt);
        QCOMPARE(Earnings::inferVatPercent(0, 0), std::optional<double>(0));
        QCOMPARE(Earnings::inferVatPercent(1, 0.21), std::optional<double>(21)); // a whole rate is preferred
    }

    void vatRows()
    {
        QCOMPARE(Earnings::vatRows({{0, 100, 0}}, u"EUR"_s),
                 (QList<Earnings::VatRow>{{u"No VAT on these lines"_s, 0}}));
        QCOMPARE(Earnings::vatRows({{0, 100, 0}, {21, 50, 10.5}}, u"EUR"_s),
                 (QList<Earnings::VatRow>{{u"VAT 21%"_s, 10.5}}));
        const auto rows = Earnings::vatRows({{5.5, 10, 0.55}, {21, 50, 10.5}}, u"EUR"_s);
        QCOMPARE(rows.size(), 2);
        QCOMPARE(rows[0].text, u"VAT 5.5% on "_s + Earnings::formatMoney(10, u"EUR"_s));
        QCOMPARE(rows[1].amount, 10.5);
    }

    void lineLabelsFollowTheLanguage()
    {
        Language::apply(u"nl"_s);
        const Earnings::LineLabels dutch = Earnings::lineLabels();
        const auto built =
            Earnings::buildInvoiceLines({composerTask(u"a"_s, hour, fixedPrice(100))}, 0, {u"a"_s}, {}, {}, dutch);
        Language::apply(u"en"_s);
        QCOMPARE(dutch.surcharge, u"Voorrijkosten"_s);
        QCOMPARE(built.lines.front().label, dutch.followUp);
    }
};

QTEST_GUILESS_MAIN(TestInvoiceLines)
#include "tst_invoicelines.moc"
