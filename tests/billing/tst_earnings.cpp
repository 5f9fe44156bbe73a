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
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr qint64 hour = 3600;

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
        QTest::newRow("task without rate") << true << Opt() << true << Opt(70) << 70.0;
        QTest::newRow("a negative task rate is still a rate") << true << Opt(-10) << true << Opt(70) << -10.0;
        QTest::newRow("project rate 0 is no rate") << true << Opt() << true << Opt(0) << 50.0;
        QTest::newRow("project rate NaN is no rate") << true << Opt() << true << Opt(notANumber) << 50.0;
        QTest::newRow("no task") << false << Opt() << true << Opt(70) << 70.0;
        QTest::newRow("no project") << true << Opt() << false << Opt() << 50.0;
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
        QTest::addColumn<bool>("hasProject");
        QTest::addColumn<std::optional<Billing>>("projectBilling");
        QTest::addColumn<Billing>("expected");
        const Billing own = withExtras(fixedPrice(500), 100, 20, std::nullopt);
        const Billing shared = daily(600, 7);
        QTest::newRow("task's own, unchanged") << true << std::optional(own) << true << std::optional(shared) << own;
        QTest::newRow("inherited from the project")
            << true << std::optional<Billing>() << true << std::optional(shared) << shared;
        QTest::newRow("project's without a task")
            << false << std::optional<Billing>() << true << std::optional(shared) << shared;
        QTest::newRow("task's own without a project")
            << true << std::optional(own) << false << std::optional<Billing>() << own;
        // Task rate 90 and project rate 70 below: the legacy chain picks 90, every other field absent.
        QTest::newRow("legacy hourly") << true << std::optional<Billing>() << true << std::optional<Billing>()
                                       << hourly(90);
        QTest::newRow("legacy without a task")
            << false << std::optional<Billing>() << true << std::optional<Billing>() << hourly(70);
    }

    void resolvesTaskThenProjectThenLegacy()
    {
        QFETCH(bool, hasTask);
        QFETCH(std::optional<Billing>, taskBilling);
        QFETCH(bool, hasProject);
        QFETCH(std::optional<Billing>, projectBilling);
        const TaskItem t = task(90, taskBilling);
        const Project p = project(70, projectBilling);
        QTEST(Earnings::resolve(hasTask ? &t : nullptr, hasProject ? &p : nullptr, 50), "expected");
    }

    void pricesTrackedTime_data()
    {
        QTest::addColumn<Billing>("billing");
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<double>("legacy");
        QTest::addColumn<double>("base");
        QTest::addColumn<double>("amount");

        QTest::newRow("hourly at its own rate") << hourly(85) << 2 * hour << 60.0 << 170.0 << 170.0;
        QTest::newRow("hourly, seconds are fractions of hours") << hourly(85) << 90 * 60LL << 60.0 << 127.5 << 127.5;
        QTest::newRow("hourly rate 0 bills at the legacy rate") << hourly(0) << 2 * hour << 60.0 << 120.0 << 120.0;
        QTest::newRow("hourly without rate bills at the legacy rate") << hourly() << 2 * hour << 60.0 << 120.0 << 120.0;
        QTest::newRow("hourly rate NaN bills at the legacy rate")
            << hourly(notANumber) << 2 * hour << 60.0 << 120.0 << 120.0;
        QTest::newRow("a NaN legacy rate is 0") << hourly() << 2 * hour << notANumber << 0.0 << 0.0;
        QTest::newRow("nothing tracked") << hourly(85) << 0LL << 60.0 << 0.0 << 0.0;

        QTest::newRow("fixed ignores time") << fixedPrice(1200) << 10 * hour << 60.0 << 1200.0 << 1200.0;
        QTest::newRow("fixed without total") << fixedPrice(std::nullopt) << 10 * hour << 60.0 << 0.0 << 0.0;
        QTest::newRow("per unit ignores time") << perUnit(40, 3) << 10 * hour << 60.0 << 120.0 << 120.0;
        QTest::newRow("per unit without price") << perUnit(std::nullopt, 3) << hour << 60.0 << 0.0 << 0.0;
        QTest::newRow("per unit without quantity") << perUnit(40, std::nullopt) << hour << 60.0 << 0.0 << 0.0;

        QTest::newRow("daily, 8 hours a day when absent: 4 h is half a day")
            << daily(600) << 4 * hour << 60.0 << 300.0 << 300.0;
        QTest::newRow("daily, days are not rounded") << daily(600) << 7 * hour << 60.0 << 525.0 << 525.0;
        QTest::newRow("daily, own hours per day") << daily(600, 6) << 9 * hour << 60.0 << 900.0 << 900.0;
        QTest::newRow("daily, 0 hours per day gives no days") << daily(600, 0) << 4 * hour << 60.0 << 0.0 << 0.0;
        QTest::newRow("daily, negative hours per day gives no days")
            << daily(600, -2) << 4 * hour << 60.0 << 0.0 << 0.0;
        QTest::newRow("daily without day rate") << daily(std::nullopt) << 8 * hour << 60.0 << 0.0 << 0.0;

        // Extras on a base of 60 (one hour at 60).
        QTest::newRow("minimum charge lifts a low base")
            << withExtras(hourly(60), 100, std::nullopt, std::nullopt) << hour << 0.0 << 60.0 << 100.0;
        QTest::newRow("minimum charge below the base")
            << withExtras(hourly(150), 100, std::nullopt, std::nullopt) << hour << 0.0 << 150.0 << 150.0;
        QTest::newRow("minimum charge 0 does not apply")
            << withExtras(hourly(), 0, std::nullopt, std::nullopt) << hour << 0.0 << 0.0 << 0.0;
        QTest::newRow("negative minimum charge does not apply")
            << withExtras(hourly(60), -100, std::nullopt, std::nullopt) << hour << 0.0 << 60.0 << 60.0;
        QTest::newRow("surcharge and materials come after the minimum")
            << withExtras(hourly(60), 100, 20, 5) << hour << 0.0 << 60.0 << 125.0;
        QTest::newRow("percentage discount of everything before it")
            << withExtras(hourly(100), std::nullopt, 20, 30, 10, true) << hour << 0.0 << 100.0 << 135.0;
        QTest::newRow("percentage discount after the minimum")
            << withExtras(hourly(60), 100, 20, std::nullopt, 50, true) << hour << 0.0 << 60.0 << 60.0;
        QTest::newRow("absolute discount")
            << withExtras(hourly(100), std::nullopt, std::nullopt, std::nullopt, 25) << hour << 0.0 << 100.0 << 75.0;
        QTest::newRow("absolute discount, switch set to false")
            << withExtras(hourly(100), std::nullopt, std::nullopt, std::nullopt, 25, false) << hour << 0.0 << 100.0
            << 75.0;
        QTest::newRow("discount larger than the total never goes negative")
            << withExtras(hourly(100), std::nullopt, 20, std::nullopt, 500) << hour << 0.0 << 100.0 << 0.0;
        QTest::newRow("discount 0 as a percentage changes nothing")
            << withExtras(hourly(100), std::nullopt, std::nullopt, std::nullopt, 0, true) << hour << 0.0 << 100.0
            << 100.0;
        QTest::newRow("negative surcharge is clamped at 0")
            << withExtras(hourly(10), std::nullopt, -30, std::nullopt) << hour << 0.0 << 10.0 << 0.0;
        QTest::newRow("extras on a fixed price")
            << withExtras(fixedPrice(1000), std::nullopt, 50, 200, 10, true) << 0LL << 0.0 << 1000.0 << 1125.0;
        QTest::newRow("NaN surcharge ends at 0")
            << withExtras(hourly(100), std::nullopt, notANumber, std::nullopt) << hour << 0.0 << 100.0 << 0.0;
        Billing withVat = hourly(100);
        withVat.vatRate = 0.21;
        QTest::newRow("VAT is not part of the net") << withVat << hour << 0.0 << 100.0 << 100.0;
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
        QCOMPARE(Earnings::applyExtras(withExtras(hourly(), 50, std::nullopt, std::nullopt), notANumber), 50.0);
        QCOMPARE(Earnings::applyExtras(hourly(), notANumber), 0.0);
        QVERIFY(!std::signbit(Earnings::applyExtras(hourly(), -0.0)));
    }

    void findsOneOffParts_data()
    {
        QTest::addColumn<Billing>("billing");
        QTest::addColumn<bool>("expected");
        QTest::newRow("hourly alone") << hourly(85) << false;
        QTest::newRow("daily alone") << daily(600) << false;
        QTest::newRow("fixed") << fixedPrice(500) << true;
        QTest::newRow("per unit") << perUnit(40, 3) << true;
        QTest::newRow("minimum charge") << withExtras(hourly(), 50, std::nullopt, std::nullopt) << true;
        QTest::newRow("minimum charge 0") << withExtras(hourly(), 0, std::nullopt, std::nullopt) << false;
        QTest::newRow("negative minimum charge") << withExtras(hourly(), -5, std::nullopt, std::nullopt) << false;
        QTest::newRow("call-out fee") << withExtras(hourly(), std::nullopt, 10, std::nullopt) << true;
        QTest::newRow("call-out fee 0") << withExtras(hourly(), std::nullopt, 0, std::nullopt) << false;
        QTest::newRow("negative call-out fee") << withExtras(hourly(), std::nullopt, -10, std::nullopt) << true;
        QTest::newRow("materials") << withExtras(hourly(), std::nullopt, std::nullopt, 5) << true;
        QTest::newRow("absolute discount")
            << withExtras(hourly(), std::nullopt, std::nullopt, std::nullopt, 10) << true;
        QTest::newRow("absolute discount, switch false")
            << withExtras(hourly(), std::nullopt, std::nullopt, std::nullopt, 10, false) << true;
        QTest::newRow("percentage discount scales with time")
            << withExtras(hourly(), std::nullopt, std::nullopt, std::nullopt, 10, true) << false;
        QTest::newRow("discount 0") << withExtras(hourly(), std::nullopt, std::nullopt, std::nullopt, 0) << false;
        Billing vat = hourly(85);
        vat.vatRate = 0.21;
        QTest::newRow("VAT alone") << vat << false;
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
        QTest::newRow("negative rate removed") << hourly(-5) << hourly();
        QTest::newRow("NaN rate removed") << hourly(notANumber) << hourly();
        QTest::newRow("infinite rate removed") << hourly(infinity) << hourly();
        QTest::newRow("no rate") << hourly() << hourly();
        Billing fixedWithStaleRate = fixedPrice(500);
        fixedWithStaleRate.unitPrice = 0;
        QTest::newRow("other models unchanged") << fixedWithStaleRate << fixedWithStaleRate;
        QTest::newRow("per unit price 0 unchanged") << perUnit(0, 2) << perUnit(0, 2);
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
        QTest::newRow("hourly at the project's rate") << project(70) << Opt(50) << hourly(70);
        QTest::newRow("a project rate of 0 is still set") << project(0) << Opt(50) << hourly(0);
        QTest::newRow("hourly at the default rate") << project(std::nullopt) << Opt(50) << hourly(50);
        QTest::newRow("no rate at all") << project(std::nullopt) << Opt() << hourly();
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
        QTest::newRow("a legacy project without a rate")
            << std::optional<Billing>() << hourly(0) << Result(Write{hourly(), std::nullopt});
        QTest::newRow("new rate") << loaded(hourly(85)) << hourly(95) << Result(Write{hourly(95), 95});
        QTest::newRow("rate cleared") << loaded(hourly(85)) << hourly() << Result(Write{hourly(), std::nullopt});
        QTest::newRow("rate 0 is no rate, as before") << loaded(hourly()) << hourly(0) << Result();
        QTest::newRow("a stored rate of 0 is no rate either") << loaded(hourly(0)) << hourly() << Result();
        QTest::newRow("NaN rate is no rate") << loaded(hourly()) << hourly(notANumber) << Result();
        QTest::newRow("another model writes no hourly rate")
            << loaded(hourly(85)) << fixedPrice(1200) << Result(Write{fixedPrice(1200), std::nullopt});
        Billing fixedStale = fixedPrice(1200);
        fixedStale.unitPrice = 85;
        QTest::newRow("fields of another model left from switching")
            << loaded(fixedPrice(1200)) << fixedStale << Result();
        Billing fixedStaleNew = fixedPrice(1500);
        fixedStaleNew.unitPrice = 85;
        QTest::newRow("a write keeps what the editor holds")
            << loaded(fixedPrice(1200)) << fixedStaleNew << Result(Write{fixedStaleNew, std::nullopt});
        QTest::newRow("per unit quantity") << loaded(perUnit(40, 3, u"visit"_s)) << perUnit(40, 4, u"visit"_s)
                                           << Result(Write{perUnit(40, 4, u"visit"_s), std::nullopt});
        QTest::newRow("empty unit label is no label") << loaded(perUnit(40, 3)) << perUnit(40, 3, u"  "_s) << Result();
        QTest::newRow("8 hours per day is the default") << loaded(daily(600)) << daily(600, 8) << Result();
        QTest::newRow("other hours per day")
            << loaded(daily(600)) << daily(600, 7) << Result(Write{daily(600, 7), std::nullopt});
        QTest::newRow("zero extras are no extras")
            << loaded(hourly(85)) << withExtras(hourly(85), 0, 0, 0, 0, true) << Result();
        Billing labelOnly = hourly(85);
        labelOnly.surchargeLabel = u"Parking"_s;
        QTest::newRow("a fee label without a fee") << loaded(hourly(85)) << labelOnly << Result();
        QTest::newRow("percentage switch off is absent")
            << loaded(withExtras(hourly(85), std::nullopt, std::nullopt, std::nullopt, 10))
            << withExtras(hourly(85), std::nullopt, std::nullopt, std::nullopt, 10, false) << Result();
        QTest::newRow("percentage switch on")
            << loaded(withExtras(hourly(85), std::nullopt, std::nullopt, std::nullopt, 10))
            << withExtras(hourly(85), std::nullopt, std::nullopt, std::nullopt, 10, true)
            << Result(Write{withExtras(hourly(85), std::nullopt, std::nullopt, std::nullopt, 10, true), 85});
        Billing vatZero = hourly(85);
        vatZero.vatRate = 0;
        QTest::newRow("VAT 0 is not the same as no VAT") << loaded(hourly(85)) << vatZero << Result(Write{vatZero, 85});
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
        QTest::newRow("hourly") << u"en"_s << hourly(85) << Opt(60) << u"€85.00/h"_s;
        QTest::newRow("hourly at the legacy rate") << u"en"_s << hourly() << Opt(60) << u"€60.00/h"_s;
        QTest::newRow("hourly rate 0 shows the legacy rate") << u"en"_s << hourly(0) << Opt(60) << u"€60.00/h"_s;
        QTest::newRow("hourly without any rate") << u"en"_s << hourly() << Opt() << u"€0.00/h"_s;
        QTest::newRow("fixed") << u"en"_s << fixedPrice(1200) << Opt() << u"€1,200.00"_s;
        QTest::newRow("fixed without total") << u"en"_s << fixedPrice(std::nullopt) << Opt() << u"€0.00"_s;
        QTest::newRow("per unit") << u"en"_s << perUnit(40, 3, u"visit"_s) << Opt() << u"3 visit × €40.00"_s;
        QTest::newRow("per unit, no label, half units")
            << u"en"_s << perUnit(40, 2.5) << Opt() << u"2.5 unit × €40.00"_s;
        QTest::newRow("per unit, blank label") << u"en"_s << perUnit(40, 1, u" "_s) << Opt() << u"1 unit × €40.00"_s;
        QTest::newRow("per unit, nothing set")
            << u"en"_s << perUnit(std::nullopt, std::nullopt) << Opt() << u"0 unit × €0.00"_s;
        QTest::newRow("daily") << u"en"_s << daily(600) << Opt() << u"€600.00/day"_s;
        QTest::newRow("daily in Dutch") << u"nl"_s << daily(600) << Opt() << u"€600.00/dag"_s;
        QTest::newRow("per unit in German") << u"de"_s << perUnit(40, 2) << Opt() << u"2 Einheit × €40.00"_s;
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

    void namesWhereAnInheritedPriceComesFrom()
    {
        QCOMPARE(Earnings::inheritedFrom(u"Website 100%"_s), u"Inherited from Website 100%"_s);
        Language::apply(u"nl"_s);
        const QString dutch = Earnings::inheritedFrom(u"Website"_s);
        Language::apply(u"en"_s);
        QCOMPARE(dutch, u"Overgenomen van Website"_s);
    }

    void describesTheExtras_data()
    {
        QTest::addColumn<Billing>("billing");
        QTest::addColumn<QString>("expected"); // null: no extras
        const auto vat = [](double rate) {
            Billing billing = hourly(85);
            billing.vatRate = rate;
            return billing;
        };
        const Opt none;
        QTest::newRow("none") << hourly(85) << QString();
        QTest::newRow("call-out fee") << withExtras(hourly(), none, 25, none) << u"+ Voorrijkosten"_s;
        Billing labelled = withExtras(hourly(), none, 25, none);
        labelled.surchargeLabel = u"Parking"_s;
        QTest::newRow("call-out fee with its label") << labelled << u"+ Parking"_s;
        labelled.surchargeLabel = u""_s;
        QTest::newRow("empty label") << labelled << u"+ Voorrijkosten"_s;
        QTest::newRow("call-out fee 0") << withExtras(hourly(), none, 0, none) << QString();
        QTest::newRow("negative call-out fee") << withExtras(hourly(), none, -5, none) << QString();
        QTest::newRow("materials") << withExtras(hourly(), none, none, 10) << u"+ materiaal"_s;
        QTest::newRow("percentage discount")
            << withExtras(hourly(), none, none, none, 10, true) << u"\u2212 10% korting"_s;
        QTest::newRow("fractional percentage")
            << withExtras(hourly(), none, none, none, 12.5, true) << u"\u2212 12.5% korting"_s;
        QTest::newRow("absolute discount") << withExtras(hourly(), none, none, none, 20) << u"\u2212 korting"_s;
        QTest::newRow("negative absolute discount")
            << withExtras(hourly(), none, none, none, -5) << u"\u2212 korting"_s;
        QTest::newRow("discount 0") << withExtras(hourly(), none, none, none, 0, true) << QString();
        QTest::newRow("minimum charge") << withExtras(hourly(), 100, none, none) << u"min. €100.00"_s;
        QTest::newRow("VAT") << vat(0.21) << u"21% BTW"_s;
        QTest::newRow("VAT 7 % despite binary noise") << vat(0.07) << u"7% BTW"_s;
        QTest::newRow("VAT 5.5 %") << vat(0.055) << u"5.5% BTW"_s;
        QTest::newRow("VAT 0") << vat(0) << QString();
        Billing all = withExtras(hourly(85), 100, 25, 10, 10, true);
        all.vatRate = 0.21;
        QTest::newRow("all, in order")
            << all << u"+ Voorrijkosten · + materiaal · \u2212 10% korting · min. €100.00 · 21% BTW"_s;
    }

    void describesTheExtras()
    {
        QFETCH(Billing, billing);
        QFETCH(QString, expected);
        const std::optional<QString> text = Earnings::describeExtras(billing, u"EUR"_s);
        QCOMPARE(text.has_value(), !expected.isNull());
        if (text) {
            QCOMPARE(*text, expected);
        }
    }

    void formatsQuantitiesAndPercentages_data()
    {
        QTest::addColumn<double>("x");
        QTest::addColumn<QString>("quantity");
        QTest::addColumn<QString>("percent");
        QTest::newRow("whole") << 3.0 << u"3"_s << u"3"_s;
        QTest::newRow("zero") << 0.0 << u"0"_s << u"0"_s;
        QTest::newRow("negative whole") << -4.0 << u"-4"_s << u"-4"_s;
        QTest::newRow("a half: one decimal, percentage up") << 2.5 << u"2.5"_s << u"3"_s;
        QTest::newRow("negative half goes away from zero") << -20.5 << u"-20.5"_s << u"-21"_s;
        QTest::newRow("more decimals are cut to one") << 2.26 << u"2.3"_s << u"2"_s;
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
