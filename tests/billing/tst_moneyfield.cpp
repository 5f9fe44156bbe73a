#include "billing/billingsamples.h"
#include "billing/moneyfield.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

using BillingSamples::Opt;

class TestMoneyField : public QObject
{
    Q_OBJECT

private slots:
    void readsWhatIsTyped_data()
    {
        QTest::addColumn<bool>("required");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<Opt>("value");
        QTest::addColumn<bool>("invalid");
        QTest::addColumn<bool>("edited");
        // Every row starts from a field that holds 40.
        QTest::newRow("grouped with a currency sign") << false << u"€ 1.250,50"_s << Opt(1250.5) << false << true;
        QTest::newRow("unreadable text keeps the value") << false << u"abc"_s << Opt(40) << true << false;
        QTest::newRow("emptied, optional: no value") << false << QString() << Opt() << false << true;
        QTest::newRow("emptied, required: kept and invalid") << true << QString() << Opt(40) << true << false;
        QTest::newRow("the same value written otherwise") << false << u"40,00"_s << Opt(40) << false << false;
    }

    void readsWhatIsTyped()
    {
        QFETCH(bool, required);
        QFETCH(QString, typed);
        MoneyField field(MoneyInput::Kind::Amount);
        field.setRequired(required);
        field.setValue(40.0);
        QSignalSpy edits(&field, &MoneyField::edited);
        QSignalSpy invalidChanged(&field, &MoneyField::invalidChanged);

        field.setText(typed);

        QTEST(field.value(), "value");
        QTEST(field.invalid(), "invalid");
        QTEST(invalidChanged.size() == 1, "invalid");
        QTEST(edits.size() == 1, "edited");
        QCOMPARE(field.text(), typed); // what was typed stays as typed
    }

    void aValueFromOutsideReplacesBadText()
    {
        MoneyField field(MoneyInput::Kind::Amount);
        field.setLanguage(u"nl"_s);
        field.setText(u"12,5x,3"_s);
        QVERIFY(field.invalid());
        QSignalSpy edited(&field, &MoneyField::edited);

        field.setValue(12.5);

        QCOMPARE(field.text(), u"12,50"_s);
        QVERIFY(!field.invalid());
        QCOMPARE(edited.size(), 0);
        QCOMPARE(field.valueVariant(), QVariant(12.5));
        field.setValue(std::nullopt);
        QCOMPARE(field.text(), QString());
    }

    void becomingRequiredWhileEmptyIsInvalid()
    {
        MoneyField field(MoneyInput::Kind::Rate);
        QVERIFY(!field.invalid());
        field.setRequired(true);
        QVERIFY(field.invalid());
        field.setText(u"85"_s);
        QVERIFY(!field.invalid());
    }

    void showsTheValueForItsKindAndLanguage()
    {
        MoneyField field(MoneyInput::Kind::Amount);
        field.setLanguage(u"en"_s);
        field.setValue(12.5);
        QCOMPARE(field.text(), u"12.50"_s);
        field.setKind(MoneyInput::Kind::Number);
        QCOMPARE(field.text(), u"12.5"_s);
        field.setLanguage(u"de"_s);
        QCOMPARE(field.text(), u"12,5"_s);
        // Text that cannot be read is left for the person to correct.
        field.setText(u"x"_s);
        field.setKind(MoneyInput::Kind::Amount);
        QCOMPARE(field.text(), u"x"_s);
        QVERIFY(field.invalid());
    }
};

QTEST_GUILESS_MAIN(TestMoneyField)
#include "tst_moneyfield.moc"
