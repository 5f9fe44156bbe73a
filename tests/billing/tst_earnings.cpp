#include "billing/billingsamples.h"
#include "billing/earnings.h"
#include "i18n/language.h"

#include <QLocale>
#include <QTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(std::optional<Earnings::ProjectBillingWrite>)

using namespace BillingSamples;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr qint64 hour = 3600;
const Opt none;

Billing extras(Billing billing, Opt minCharge, Opt surcharge, Opt materials = std::nullopt)
{
    return withExtras(std::move(billing), minCharge, surcharge, materials);
}

} // namespace

class TestEarnings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Language::apply(u"en"_s);
        QLocale::setDefault(QLocale(u"en_US"_s));
    }

    void legacyRateFallsThroughTaskProjectDefault_data()
    {
        QTest::addColumn<bool>("hasTask");
        QTest::addColumn<Opt>("taskRate");
        QTest::addColumn<bool>("hasProject");
        QTest::addColumn<Opt>("projectRate");
        QTest::addColumn<double>("expected");
        QTest::newRow("task rate wins") << true << Opt(90) << true << Opt(70) << 90.0;
        QTest::newRow("task rate 0 is no rate") << true << Opt(0) << true << Opt(70) << 70.0;
        QTest::newRow("task rate NaN is no rate") << true << Opt(notANumber) << true << Opt(70) << 70.0;
        QTest::newRow("neither") << false << Opt() << false << Opt() << 50.0;
    }

    void legacyRateFallsThroughTaskProjectDefault()
    {
        QFETCH(bool, hasTask);
        QFETCH(Opt, taskRate);
        QFETCH(bool, hasProject);
        QFETCH(Opt, projectRate);
        const TaskItem t = task(taskRate);
        const Project p = project(projectRate);
        QTEST(Earnings::legacyRate(hasTask ? &t : nullptr, hasProject ? &p : nullptr, 50), "expected");
    }

    void resolvesTaskThenProjectThenLegacy_data()
    {
        QTest::addColumn<bool>("hasTask");
        QTest::addColumn<std::optional<Billing>>("taskBilling");
        QTest::addColumn<std::optional<Billing>>("projectBilling");
        QTest::addColumn<Billing>("expected");
        const std::optional<Billing> own = extras(fixedPrice(500), 100, 20);
        const std::optional<Billing> shared = daily(600, 7);
        const std::optional<Billing> absent;
        QTest::newRow("task's own beats the project's") << true << own << shared << *own;
        QTest::newRow("inherited from the project") << true << absent << shared << *shared;
        // Task rate 90 and project rate 70: the legacy chain picks 90, every other field absent.
        QTest::newRow("legacy hourly") << true << absent << absent << hourly(90);
        QTest::newRow("legacy without a task") << false << absent << absent << hourly(70);
    }

    void resolvesTaskThenProjectThenLegacy()
    {
        QFETCH(bool, hasTask);
        QFETCH(std::optional<Billing>, taskBilling);
        QFETCH(std::optional<Billing>, projectBilling);
        const TaskItem t = task(90, taskBilling);
        const Project p = project(70, projectBilling);
        QTEST(Earnings::resolve(hasTask ? &t : nullptr, &p, 50), "expected");
    }

    void pricesTrackedTime_data()
    {
        QTest::addColumn<Billing>("billing");
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<double>("legacy");
        QTest::addColumn<double>("base");
        QTest::addColumn<double>("amount");
        QTest::newRow("hourly, seconds are fractions of hours") << hourly(85) << 90 * 60LL << 60.0 << 127.5 << 127.5;
        QTest::newRow("hourly rate 0 bills at the legacy rate") << hourly(0) << 2 * hour << 60.0 << 120.0 << 120.0;
        QTest::newRow("a NaN legacy rate is 0") << hourly() << 2 * hour << notANumber << 0.0 << 0.0;
        QTest::newRow("fixed ignores time") << fixedPrice(1200) << 10 * hour << 60.0 << 1200.0 << 1200.0;
        QTest::newRow("per unit ignores time") << perUnit(40, 3) << 10 * hour << 60.0 << 120.0 << 120.0;
        QTest::newRow("daily, 8 hours a day when absent, not rounded")
            << daily(600) << 7 * hour << 60.0 << 525.0 << 525.0;
        QTest::newRow("daily, 0 hours per day gives no days") << daily(600, 0) << 4 * hour << 60.0 << 0.0 << 0.0;
        // Extras on a base of one hour.
        QTest::newRow("minimum charge lifts a low base")
            << extras(hourly(60), 100, none) << hour << 0.0 << 60.0 << 100.0;
        QTest::newRow("negative minimum charge does not apply")
            << extras(hourly(60), -100, none) << hour << 0.0 << 60.0 << 60.0;
        QTest::newRow("surcharge and materials come after the minimum")
            << extras(hourly(60), 100, 20, 5) << hour << 0.0 << 60.0 << 125.0;
        QTest::newRow("percentage discount after the minimum")
            << withExtras(hourly(60), 100, 20, none, 50, true) << hour << 0.0 << 60.0 << 60.0;
        QTest::newRow("discount larger than the total never goes negative")
            << withExtras(hourly(100), none, 20, none, 500) << hour << 0.0 << 100.0 << 0.0;
        QTest::newRow("NaN surcharge ends at 0")
            << extras(hourly(100), none, notANumber) << hour << 0.0 << 100.0 << 0.0;
        QTest::newRow("VAT is not part of the net") << withVat(hourly(100), 0.21) << hour << 0.0 << 100.0 << 100.0;
    }

    void pricesTrackedTime()
    {
        QFETCH(Billing, billing);
        QFETCH(qint64, seconds);
        QFETCH(double, legacy);
        QFETCH(double, base);
        QFETCH(double, amount);
        QCOMPARE(Earnings::base(billing, seconds, legacy), base);
        QCOMPARE(Earnings::applyExtras(billing, base), amount);
        QCOMPARE(Earnings::amount(billing, seconds, legacy), amount);
    }

    void extrasOnABaseThatIsNotANumber()
    {
        QCOMPARE(Earnings::applyExtras(extras(hourly(), 50, none), notANumber), 50.0);
        QCOMPARE(Earnings::applyExtras(hourly(), notANumber), 0.0);
        QVERIFY(!std::signbit(Earnings::applyExtras(hourly(), -0.0)));
    }

    void findsOneOffParts_data()
    {
        QTest::addColumn<Billing>("billing");
        QTest::addColumn<bool>("expected");
        QTest::newRow("hourly with VAT") << withVat(hourly(85), 0.21) << false;
        QTest::newRow("fixed") << fixedPrice(500) << true;
        QTest::newRow("minimum charge") << extras(hourly(), 50, none) << true;
        QTest::newRow("call-out fee 0") << extras(hourly(), none, 0) << false;
        QTest::newRow("percentage discount scales with time") << discounted(hourly(), 10, true) << false;
    }

    void findsOneOffParts()
    {
        QFETCH(Billing, billing);
        QTEST(Earnings::hasOneOffParts(billing), "expected");
    }

    void cleansOnlyTheHourlyRate_data()
    {
        QTest::addColumn<Billing>("billing");
        QTest::addColumn<Billing>("expected");
        QTest::newRow("positive rate kept") << hourly(85) << hourly(85);
        QTest::newRow("rate 0 removed") << hourly(0) << hourly();
        QTest::newRow("infinite rate removed") << hourly(std::numeric_limits<double>::infinity()) << hourly();
        Billing fixedWithStaleRate = fixedPrice(500);
        fixedWithStaleRate.unitPrice = 0;
        QTest::newRow("other models unchanged") << fixedWithStaleRate << fixedWithStaleRate;
    }

    void cleansOnlyTheHourlyRate()
    {
        QFETCH(Billing, billing);
        QTEST(Earnings::cleanBilling(billing), "expected");
    }

    void startsTheProjectEditor_data()
    {
        QTest::addColumn<Project>("project");
        QTest::addColumn<Opt>("defaultRate");
        QTest::addColumn<Billing>("expected");
        QTest::newRow("the project's own") << project(70, daily(500)) << Opt(50) << daily(500);
        QTest::newRow("a project rate of 0 is still set") << project(0) << Opt(50) << hourly(0);
        QTest::newRow("hourly at the default rate") << project(none) << Opt(50) << hourly(50);
        QTest::newRow("no rate at all") << project(none) << Opt() << hourly();
    }

    void startsTheProjectEditor()
    {
        QFETCH(Project, project);
        QFETCH(Opt, defaultRate);
        QTEST(Earnings::editorBilling(project, defaultRate), "expected");
    }

    void savesAProjectPriceOnlyWhenItChanged_data()
    {
        QTest::addColumn<std::optional<Billing>>("loaded");
        QTest::addColumn<Billing>("current");
        QTest::addColumn<std::optional<Earnings::ProjectBillingWrite>>("expected");
        using Write = Earnings::ProjectBillingWrite;
        using Result = std::optional<Write>;
        const auto loaded = [](const Billing &billing) { return std::optional<Billing>(billing); };
        QTest::newRow("unchanged") << loaded(hourly(85)) << hourly(85) << Result();
        QTest::newRow("a legacy project gets its first setting")
            << std::optional<Billing>() << hourly(70) << Result(Write{hourly(70), 70});
        QTest::newRow("rate cleared") << loaded(hourly(85)) << hourly() << Result(Write{hourly(), none});
        QTest::newRow("a stored rate of 0 is no rate") << loaded(hourly(0)) << hourly() << Result();
        QTest::newRow("another model writes no hourly rate")
            << loaded(hourly(85)) << fixedPrice(1200) << Result(Write{fixedPrice(1200), none});
        Billing fixedStale = fixedPrice(1500);
        fixedStale.unitPrice = 85;
        QTest::newRow("fields of another model left from switching")
            << loaded(fixedPrice(1500)) << fixedStale << Result();
        QTest::newRow("8 hours per day is the default") << loaded(daily(600)) << daily(600, 8) << Result();
        QTest::newRow("zero extras are no extras")
            << loaded(hourly(85)) << withExtras(hourly(85), 0, 0, 0, 0, true) << Result();
        QTest::newRow("percentage switch off is absent")
            << loaded(discounted(hourly(85), 10)) << discounted(hourly(85), 10, false) << Result();
        QTest::newRow("VAT 0 is not the same as no VAT")
            << loaded(hourly(85)) << withVat(hourly(85), 0) << Result(Write{withVat(hourly(85), 0), 85});
        Billing travel = hourly(85);
        travel.travel = JSONValue::fromJson(QJsonObject{{u"mode"_s, u"per_km"_s}});
        QTest::newRow("travel settings count") << loaded(hourly(85)) << travel << Result(Write{travel, 85});
    }

    void savesAProjectPriceOnlyWhenItChanged()
    {
        QFETCH(std::optional<Billing>, loaded);
        QFETCH(Billing, current);
        QFETCH(std::optional<Earnings::ProjectBillingWrite>, expected);
        const std::optional<Earnings::ProjectBillingWrite> write = Earnings::projectBillingWrite(loaded, current);
        QCOMPARE(write.has_value(), expected.has_value());
        if (expected) {
            QCOMPARE(write->billing, expected->billing);
            QCOMPARE(write->hourlyRate, expected->hourlyRate);
        }
    }

    void describesAPrice_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<Billing>("billing");
        QTest::addColumn<Opt>("legacy");
        QTest::addColumn<QString>("expected");
        QTest::newRow("hourly rate 0 shows the legacy rate") << u"en"_s << hourly(0) << Opt(60) << u"€60.00/h"_s;
        QTest::newRow("fixed") << u"en"_s << fixedPrice(1200) << Opt() << u"€1,200.00"_s;
        QTest::newRow("per unit") << u"en"_s << perUnit(40, 3, u"visit"_s) << Opt() << u"3 visit × €40.00"_s;
        QTest::newRow("daily in Dutch") << u"nl"_s << daily(600) << Opt() << u"€600.00/dag"_s;
    }

    void describesAPrice()
    {
        QFETCH(QString, language);
        QFETCH(Billing, billing);
        QFETCH(Opt, legacy);
        Language::apply(language);
        const QString text = Earnings::describe(billing, u"EUR"_s, legacy);
        Language::apply(u"en"_s);
        QTEST(text, "expected");
    }

    void describesTheExtras_data()
    {
        QTest::addColumn<Billing>("billing");
        QTest::addColumn<QString>("expected"); // null: no extras
        QTest::newRow("none") << hourly(85) << QString();
        Billing labelled = extras(hourly(), none, 25);
        labelled.surchargeLabel = u"Parking"_s;
        QTest::newRow("call-out fee with its label") << labelled << u"+ Parking"_s;
        QTest::newRow("fractional percentage") << discounted(hourly(), 12.5, true) << u"\u2212 12.5% korting"_s;
        QTest::newRow("VAT 7 % despite binary noise") << withVat(hourly(85), 0.07) << u"7% BTW"_s;
        QTest::newRow("all, in order")
            << withVat(withExtras(hourly(85), 100, 25, 10, 10, true), 0.21)
            << u"+ Voorrijkosten · + materiaal · \u2212 10% korting · min. €100.00 · 21% BTW"_s;
    }

    void describesTheExtras()
    {
        QFETCH(Billing, billing);
        QFETCH(QString, expected);
        const std::optional<QString> text = Earnings::describeExtras(billing, u"EUR"_s);
        QCOMPARE(text.value_or(QString()), expected);
        QCOMPARE(text.has_value(), !expected.isNull());
    }

    void formatsQuantitiesAndPercentages_data()
    {
        QTest::addColumn<double>("x");
        QTest::addColumn<QString>("quantity");
        QTest::addColumn<QString>("percent");
        QTest::newRow("negative half goes away from zero") << -20.5 << u"-20.5"_s << u"-21"_s;
        QTest::newRow("binary noise over a whole number") << 7.000000000000001 << u"7.0"_s << u"7"_s;
        QTest::newRow("2^53 still fits") << 9007199254740992.0 << u"9007199254740992"_s << u"9007199254740992"_s;
        QTest::newRow("too large for 64 bits") << 1e20 << u"100000000000000000000.0"_s << u"100000000000000000000"_s;
    }

    void formatsQuantitiesAndPercentages()
    {
        QFETCH(double, x);
        QTEST(Earnings::formatQty(x), "quantity");
        QTEST(Earnings::formatPercent(x), "percent");
    }
};

QTEST_GUILESS_MAIN(TestEarnings)
#include "tst_earnings.moc"
