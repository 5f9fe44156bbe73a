#include "billing/money.h"
#include "i18n/language.h"

#include <QLocale>
#include <QTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

class TestMoney : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Language::apply(u"en"_s); }
    void cleanup()
    {
        QLocale::setDefault(QLocale::c());
        Language::apply(u"en"_s);
    }

    void roundsToCentsHalfAwayFromZero_data()
    {
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("expected");
        QTest::newRow("1.005 is 100.4999… cents in binary but a half to its writer") << 1.005 << 1.01;
        QTest::newRow("negative half goes away from zero") << -2.675 << -2.68;
        QTest::newRow("0.285 (28.499999999999996 cents)") << 0.285 << 0.29;
        QTest::newRow("exact binary half") << 0.125 << 0.13;
        QTest::newRow("just below half a cent") << 0.004999 << 0.0;
        QTest::newRow("large amount keeps its cents") << 123456789.125 << 123456789.13;
        QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN() << 0.0;
        QTest::newRow("infinity") << std::numeric_limits<double>::infinity() << 0.0;
    }

    void roundsToCentsHalfAwayFromZero()
    {
        QFETCH(double, x);
        QTEST(round2(x), "expected");
    }

    void roundingToZeroIsPositiveZero()
    {
        QVERIFY(!std::signbit(round2(-0.001)));
        QVERIFY(!std::signbit(round2(-0.0)));
        QVERIFY(std::signbit(round2(-0.005)));
    }

    void formatsDurations_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<QString>("expected");
        QTest::newRow("under a minute") << u"en"_s << qint64(59) << u"0m"_s;
        QTest::newRow("last second before an hour") << u"en"_s << qint64(3599) << u"59m"_s;
        QTest::newRow("one hour shows its minutes") << u"en"_s << qint64(3600) << u"1h 0m"_s;
        QTest::newRow("minutes not padded") << u"en"_s << qint64(7500) << u"2h 5m"_s;
        QTest::newRow("hours do not wrap at a day") << u"en"_s << qint64(90000) << u"25h 0m"_s;
        QTest::newRow("Dutch") << u"nl"_s << qint64(7500) << u"2u 5m"_s;
    }

    void formatsDurations()
    {
        QFETCH(QString, language);
        QFETCH(qint64, seconds);
        Language::apply(language);
        QTEST(formatHM(seconds), "expected");
    }

    void formatsMoneyInTheUsersLocale_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<double>("amount");
        QTest::addColumn<QString>("currency");
        QTest::addColumn<QString>("expected");
        const QString nbsp(QChar(0x00A0));
        QTest::newRow("euros in American English") << u"en_US"_s << 1234.5 << u"EUR"_s << u"€1,234.50"_s;
        QTest::newRow("German puts the sign last") << u"de_DE"_s << 1234.5 << u"EUR"_s << u"1.234,50" + nbsp + u"€";
        QTest::newRow("negative with a minus, not in brackets") << u"en_US"_s << -85.0 << u"EUR"_s << u"-€85.00"_s;
        QTest::newRow("a code in lower case") << u"en_US"_s << 12.0 << u"eur"_s << u"€12.00"_s;
        QTest::newRow("another dollar is not the user's own")
            << u"en_US"_s << 12.0 << u"AUD"_s << u"AUD" + nbsp + u"12.00";
        QTest::newRow("the dollar at home") << u"en_AU"_s << 12.0 << u"AUD"_s << u"$12.00"_s;
        QTest::newRow("yen have no cents") << u"en_US"_s << 1234.5 << u"JPY"_s << u"￥1,235"_s;
        QTest::newRow("cents round as invoices round") << u"en_US"_s << 1.005 << u"EUR"_s << u"€1.01"_s;
        QTest::newRow("exact half cent") << u"nl_NL"_s << -0.125 << u"EUR"_s << u"-€" + nbsp + u"0,13";
        QTest::newRow("less than half a cent below zero") << u"en_US"_s << -0.001 << u"EUR"_s << u"€0.00"_s;
        QTest::newRow("no currency: plain two decimals") << u"nl_NL"_s << 12.0 << QString() << u"12.00"_s;
    }

    void formatsMoneyInTheUsersLocale()
    {
        QFETCH(QString, locale);
        QFETCH(double, amount);
        QFETCH(QString, currency);
        QLocale::setDefault(QLocale(locale));
        QTEST(formatMoney(amount, currency), "expected");
    }
};

QTEST_GUILESS_MAIN(TestMoney)
#include "tst_money.moc"
