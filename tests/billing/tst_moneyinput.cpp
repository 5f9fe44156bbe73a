#include "billing/billingsamples.h"
#include "billing/moneyinput.h"

#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

using BillingSamples::Opt;

class TestMoneyInput : public QObject
{
    Q_OBJECT

private slots:
    void parses_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Opt>("expected");
        QTest::newRow("point grouping") << u"1.250"_s << Opt(1250);
        QTest::newRow("comma groups, point decimal") << u"1,250.5"_s << Opt(1250.5);
        QTest::newRow("point groups, comma decimal") << u"1.250,5"_s << Opt(1250.5);
        QTest::newRow("decimal comma") << u"12,5"_s << Opt(12.5);
        QTest::newRow("four decimals are no group") << u"1.2345"_s << Opt(1.2345);
        QTest::newRow("four leading digits are no group") << u"1234,567"_s << Opt(1234.567);
        QTest::newRow("leading separator") << u",5"_s << Opt(0.5);
        QTest::newRow("Dutch round amount") << u"85,-"_s << Opt(85);
        QTest::newRow("code and space grouping") << u"EUR 1 250,50"_s << Opt(1250.5);
        QTest::newRow("percent sign") << u"21%"_s << Opt(21);
        QTest::newRow("minus sign character") << u"\u221212,5"_s << Opt(-12.5);
        QTest::newRow("minus after a currency sign") << u"€ -85"_s << Opt(-85);
        QTest::newRow("a dash inside is dropped") << u"85-"_s << Opt(85);
        QTest::newRow("Thai digits") << u"๘๕"_s << Opt(85);

        QTest::newRow("letters") << u"abc"_s << Opt();
        QTest::newRow("empty") << QString() << Opt();
        QTest::newRow("separator alone") << u","_s << Opt();
        QTest::newRow("two decimal points") << u"1.2.3"_s << Opt();
        QTest::newRow("two decimal commas after grouping") << u"1.2,3,4"_s << Opt();
        QTest::newRow("too large for a double") << QString(400, u'9') << Opt();
    }

    void parses()
    {
        QFETCH(QString, text);
        QTEST(MoneyInput::parseDecimal(text), "expected");
    }

    void recognisesGrouping_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QChar>("separator");
        QTest::addColumn<bool>("expected");
        QTest::newRow("one group") << u"1.250"_s << QChar(u'.') << true;
        QTest::newRow("several groups") << u"1,250,000"_s << QChar(u',') << true;
        QTest::newRow("four digits first") << u"1234.567"_s << QChar(u'.') << false;
        QTest::newRow("nothing first") << u".250"_s << QChar(u'.') << false;
        QTest::newRow("empty last group") << u"1.250."_s << QChar(u'.') << false;
        QTest::newRow("four digits in a group") << u"1.2500"_s << QChar(u'.') << false;
        QTest::newRow("the other separator") << u"1.250"_s << QChar(u',') << false;
    }

    void recognisesGrouping()
    {
        QFETCH(QString, text);
        QFETCH(QChar, separator);
        QTEST(MoneyInput::isGrouped(text, separator), "expected");
    }

    void writesPerLanguage_data()
    {
        QTest::addColumn<Opt>("value");
        QTest::addColumn<QString>("lang");
        QTest::addColumn<MoneyInput::Kind>("kind");
        QTest::addColumn<QString>("expected");
        using K = MoneyInput::Kind;
        QTest::newRow("nothing") << Opt() << u"en"_s << K::Amount << QString();
        QTest::newRow("whole money without cents") << Opt(85) << u"en"_s << K::Rate << u"85"_s;
        QTest::newRow("Dutch comma") << Opt(85.5) << u"nl"_s << K::Amount << u"85,50"_s;
        QTest::newRow("German, no grouping") << Opt(1250.5) << u"de"_s << K::Amount << u"1250,50"_s;
        QTest::newRow("money rounds to cents") << Opt(85.126) << u"en"_s << K::Amount << u"85.13"_s;
        QTest::newRow("a tiny negative is no -0") << Opt(-0.001) << u"en"_s << K::Amount << u"0"_s;
        QTest::newRow("quantity without trailing zeros") << Opt(0.5) << u"nl"_s << K::Number << u"0,5"_s;
        QTest::newRow("quantity to four decimals") << Opt(1.0 / 3) << u"en"_s << K::Number << u"0.3333"_s;
        QTest::newRow("percentage with binary noise") << Opt(0.07 * 100) << u"en"_s << K::Number << u"7"_s;
        QTest::newRow("three decimals would read as a group") << Opt(1.125) << u"en"_s << K::Number << u"1.1250"_s;
        QTest::newRow("three decimals that cannot be a group")
            << Opt(1234.125) << u"en"_s << K::Number << u"1234.125"_s;
    }

    void writesPerLanguage()
    {
        QFETCH(Opt, value);
        QFETCH(QString, lang);
        QFETCH(MoneyInput::Kind, kind);
        QTEST(MoneyInput::text(value, lang, kind), "expected");
    }

    // What a field shows must read back as what it holds, in every language.
    void readsBackWhatItWrites_data()
    {
        QTest::addColumn<QString>("lang");
        for (const char *lang : {"en", "nl", "de", "fr", "es", "it", "pt", "ja", "th"}) {
            QTest::newRow(lang) << QString::fromLatin1(lang);
        }
    }

    void readsBackWhatItWrites()
    {
        QFETCH(QString, lang);
        for (const double value : {0.0, 1.0, 12.5, 999.99, 1250.0, 1250.5, 1234567.89, -3.75, 0.05}) {
            for (const MoneyInput::Kind kind : {MoneyInput::Kind::Amount, MoneyInput::Kind::Number}) {
                const QString text = MoneyInput::text(value, lang, kind);
                QCOMPARE(MoneyInput::parseDecimal(text), Opt(value));
            }
        }
        for (const double quantity : {1.125, 12.125, 100.001, 0.0625, 999.999}) {
            const QString text = MoneyInput::text(quantity, lang, MoneyInput::Kind::Number);
            QCOMPARE(MoneyInput::parseDecimal(text), Opt(std::round(quantity * 10000) / 10000));
        }
    }
};

QTEST_GUILESS_MAIN(TestMoneyInput)
#include "tst_moneyinput.moc"
