#include "billing/billingeditor.h"
#include "billing/billingsamples.h"
#include "i18n/language.h"

#include <QLocale>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

using namespace BillingSamples;

namespace {

// Applies edits as a person would make them: "field=text" types into a money field,
// "model=daily" picks a model, "unitLabel=…", "surchargeLabel=…" and "pct=1|0" set the others.
void edit(BillingEditor &editor, const QStringList &edits)
{
    for (const QString &step : edits) {
        const QString name = step.section(u'=', 0, 0);
        const QString text = step.section(u'=', 1);
        if (name == u"model") {
            editor.setModelName(text);
        } else if (name == u"unitLabel") {
            editor.setUnitLabel(text);
        } else if (name == u"surchargeLabel") {
            editor.setSurchargeLabel(text);
        } else if (name == u"pct") {
            editor.setDiscountIsPct(text == u"1");
        } else {
            auto *field = editor.property(name.toLatin1().constData()).value<MoneyField *>();
            QVERIFY2(field, qPrintable(u"no money field "_s + name));
            field->setText(text);
        }
    }
}

} // namespace

class TestBillingEditor : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Language::apply(u"en"_s);
        QLocale::setDefault(QLocale(u"en_US"_s));
    }

    void showsTheFieldsOfEachModel_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QStringList>("labels");
        QTest::addColumn<bool>("dayNote");
        QTest::newRow("hourly") << u"hourly"_s << QStringList{u"unitPrice"_s} << QStringList{u"Hourly rate"_s} << false;
        QTest::newRow("fixed") << u"fixed"_s << QStringList{u"amount"_s} << QStringList{u"Fixed total"_s} << false;
        QTest::newRow("per unit") << u"per_unit"_s << QStringList{u"unitLabel"_s, u"unitPrice"_s, u"unitQuantity"_s}
                                  << QStringList{u"Unit"_s, u"Price / unit"_s, u"Quantity"_s} << false;
        QTest::newRow("daily") << u"daily"_s << QStringList{u"dayRate"_s, u"dayHours"_s}
                               << QStringList{u"Day rate"_s, u"Hours per day"_s} << true;
    }

    void showsTheFieldsOfEachModel()
    {
        QFETCH(QString, model);
        BillingEditor editor;
        editor.setModelName(u"per_unit"_s); // from another model, so that every row is a switch
        QSignalSpy shown(&editor, &BillingEditor::shownFieldsChanged);
        editor.setModelName(model);
        QCOMPARE(shown.isEmpty(), model == u"per_unit");
        QStringList names;
        QStringList labels;
        for (const QVariant &entry : editor.shownFields()) {
            names << entry.toMap().value(u"name"_s).toString();
            labels << entry.toMap().value(u"label"_s).toString();
            QVERIFY2(editor.property(names.last().toLatin1().constData()).isValid(), qPrintable(names.last()));
        }
        QTEST(names, "names");
        QTEST(labels, "labels");
        QTEST(editor.showsDayNote(), "dayNote");
    }

    void foldsTheExtrasUntilOpened()
    {
        BillingEditor editor;
        editor.setCurrency(u"EUR"_s);
        QVERIFY(!editor.extrasOpen());
        QSignalSpy opened(&editor, &BillingEditor::extrasOpenChanged);
        editor.setExtrasOpen(true);
        editor.setExtrasOpen(true);
        QCOMPARE(opened.size(), 1);
        // Folded or not, the header tells what is inside.
        edit(editor, {u"surcharge=25"_s, u"vatPercent=21"_s});
        QCOMPARE(editor.extrasSummary(), u"+ Voorrijkosten · 21% BTW"_s);
    }

    void combinesTheInvalidFlags_data()
    {
        QTest::addColumn<QStringList>("edits");
        QTest::addColumn<bool>("invalid");
        QTest::newRow("words around a rate are dropped") << QStringList{u"unitPrice=85 per hour?"_s} << false;
        QTest::newRow("one of two corrected")
            << QStringList{u"surcharge=x"_s, u"discount=y"_s, u"surcharge=20"_s} << true;
        QTest::newRow("bad text in a model left behind is dropped")
            << QStringList{u"unitPrice=abc"_s, u"model=fixed"_s} << false;
        QTest::newRow("bad text in the extras survives a model switch")
            << QStringList{u"surcharge=abc"_s, u"model=fixed"_s} << true;
    }

    void combinesTheInvalidFlags()
    {
        QFETCH(QStringList, edits);
        QFETCH(bool, invalid);
        BillingEditor editor;
        editor.loadProject(project(std::nullopt, hourly(60)), 50.0);
        edit(editor, edits);
        QCOMPARE(editor.invalid(), invalid);
        QCOMPARE(editor.canSave(), !invalid);
    }

    void badTextNeverReachesTheRecord()
    {
        BillingEditor editor;
        editor.loadProject(
            project(std::nullopt, Billing{.model = BillingModel::Hourly, .unitPrice = 60, .surcharge = 10}), 50.0);
        const Billing before = editor.billing();
        edit(editor, {u"unitPrice=abc"_s, u"surcharge=--"_s});
        QCOMPARE(editor.billing(), before);
    }

    void invalidFlagIsSignalled()
    {
        BillingEditor editor;
        QSignalSpy changed(&editor, &BillingEditor::invalidChanged);
        edit(editor, {u"dayRate=?"_s, u"dayHours=?"_s, u"dayRate=500"_s});
        QCOMPARE(changed.size(), 1);
        edit(editor, {u"dayHours=7,5"_s});
        QCOMPARE(changed.size(), 2);
        QVERIFY(!editor.invalid());
        QCOMPARE(editor.billing().dayHours, Opt(7.5));
    }

    void previewsNetVatAndGross_data()
    {
        QTest::addColumn<QStringList>("edits");
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<double>("net");
        QTest::addColumn<double>("vat");
        QTest::addColumn<QString>("grossText");
        // Every row starts from a project billed hourly at the legacy rate of 60.
        QTest::newRow("own rate and VAT")
            << QStringList{u"unitPrice=85"_s, u"vatPercent=21"_s} << qint64(7200) << 170.0 << 35.7 << u"€205.70"_s;
        QTest::newRow("fixed with extras") << QStringList{u"model=fixed"_s, u"amount=1.000"_s, u"surcharge=50"_s,
                                                          u"discount=10"_s, u"pct=1"_s,        u"vatPercent=9"_s}
                                           << qint64(0) << 945.0 << 85.05 << u"€1,030.05"_s;
    }

    void previewsNetVatAndGross()
    {
        QFETCH(QStringList, edits);
        QFETCH(qint64, seconds);
        QFETCH(double, net);
        QFETCH(double, vat);
        BillingEditor editor;
        editor.setCurrency(u"EUR"_s);
        editor.loadProject(project(std::nullopt), 60.0);
        editor.setTrackedSeconds(seconds);
        edit(editor, edits);
        QCOMPARE(editor.net(), net);
        QCOMPARE(editor.vat(), vat);
        QCOMPARE(editor.gross(), net + vat);
        QTEST(editor.grossText(), "grossText");
    }

    void previewFollowsTheTrackedTime()
    {
        BillingEditor editor;
        editor.setCurrency(u"EUR"_s);
        editor.setBilling(hourly(100));
        QSignalSpy preview(&editor, &BillingEditor::previewChanged);
        editor.setTrackedSeconds(1800);
        QCOMPARE(preview.size(), 1);
        QCOMPARE(editor.netText(), u"€50.00"_s);
    }

    void vatIsShownAsAPercentageAndStoredAsAFraction()
    {
        BillingEditor editor;
        editor.setLanguage(u"en"_s);
        editor.setBilling(Billing{.model = BillingModel::Hourly, .vatRate = 0.07});
        QCOMPARE(editor.vatPercent()->text(), u"7"_s);
        QCOMPARE(editor.vatPercent()->placeholder(), u"No VAT"_s);
        edit(editor, {u"vatPercent=21"_s});
        QCOMPARE(editor.billing().vatRate, Opt(0.21));
        edit(editor, {u"vatPercent="_s});
        QCOMPARE(editor.billing().vatRate, Opt());
    }

    void discountSwitchChangesHowTheFieldReads()
    {
        BillingEditor editor;
        editor.setLanguage(u"nl"_s);
        edit(editor, {u"discount=12,5"_s});
        QCOMPARE(editor.discount()->text(), u"12,5"_s);
        editor.setBilling(editor.billing());
        QCOMPARE(editor.discount()->text(), u"12,50"_s); // an amount of money
        editor.setDiscountIsPct(true);
        QCOMPARE(editor.discount()->text(), u"12,5"_s); // a percentage
        QCOMPARE(editor.billing().discountIsPct, std::optional<bool>(true));
    }

    // Which changes are worth a write is decided by the price rules; the editor's part is that
    // typed text reaches them as the value it means.
    void savesAProjectOnlyWhenSomethingChanged_data()
    {
        QTest::addColumn<QStringList>("edits");
        QTest::addColumn<bool>("saves");
        QTest::addColumn<Opt>("hourlyRate");
        QTest::newRow("the same rate typed again") << QStringList{u"unitPrice=85,00"_s} << false << Opt();
        QTest::newRow("bad text is not a change") << QStringList{u"unitPrice=abc"_s} << false << Opt();
        QTest::newRow("a new rate") << QStringList{u"unitPrice=95"_s} << true << Opt(95);
    }

    void savesAProjectOnlyWhenSomethingChanged()
    {
        QFETCH(QStringList, edits);
        QFETCH(bool, saves);
        BillingEditor editor;
        editor.loadProject(project(std::nullopt, hourly(85)), 50.0);
        edit(editor, edits);
        const std::optional<Earnings::ProjectBillingWrite> write = editor.projectWrite();
        QCOMPARE(write.has_value(), saves);
        QCOMPARE(editor.hasChanges(), saves);
        if (write) {
            QCOMPARE(write->billing, Earnings::cleanBilling(editor.billing()));
            QTEST(write->hourlyRate, "hourlyRate");
        }
    }

    void aTaskInheritsUntilItGetsItsOwnPrice()
    {
        const Billing shared = daily(600);
        const Project p = project(std::nullopt, shared);
        TaskItem task;
        task.id = u"t1"_s;
        task.timeSpentSeconds = 4 * 3600;

        BillingEditor editor;
        editor.loadTask(task, &p, 50);
        QVERIFY(editor.allowInherit() && editor.isInheriting() && !editor.hasChanges());
        QCOMPARE(editor.billing(), shared);
        QCOMPARE(editor.net(), 300.0);
        QCOMPARE(editor.taskPrice(), Earnings::PriceColumns{});

        // Editing the inherited price makes it the task's own copy.
        QSignalSpy cleared(&editor, &BillingEditor::inheritanceCleared);
        edit(editor, {u"dayRate=650"_s});
        QCOMPARE(cleared.size(), 1);
        QVERIFY(!editor.isInheriting() && editor.hasChanges());
        Billing own = shared;
        own.dayRate = 650;
        QCOMPARE(editor.taskPrice(), (Earnings::PriceColumns{own, std::nullopt, std::nullopt}));
        QCOMPARE(p.billing, std::optional<Billing>(shared)); // the project is not touched

        editor.useProjectPrice();
        QVERIFY(editor.isInheriting() && !editor.hasChanges());
        QCOMPARE(editor.billing(), shared);
    }

    void aTaskWithItsOwnPriceCanInheritAgain()
    {
        const Project p = project(std::nullopt, fixedPrice(1000));
        TaskItem task;
        task.id = u"t1"_s;
        task.hourlyRate = 0;
        task.billing = hourly(0);

        BillingEditor editor;
        editor.loadTask(task, &p, 50);
        QVERIFY(!editor.isInheriting() && !editor.hasChanges());
        // A custom hourly price without a rate of its own writes no rate column.
        QCOMPARE(editor.taskPrice(), (Earnings::PriceColumns{hourly(), std::nullopt, std::nullopt}));
        edit(editor, {u"unitPrice=75"_s});
        QCOMPARE(editor.taskPrice(), (Earnings::PriceColumns{hourly(75), 75, std::nullopt}));

        editor.useProjectPrice();
        QVERIFY(editor.hasChanges()); // the task's own setting is to be removed
        QCOMPARE(editor.taskPrice(), Earnings::PriceColumns{});
    }

    void projectEditorNeverInherits()
    {
        BillingEditor editor;
        editor.loadProject(project(70), std::nullopt);
        QVERIFY(!editor.allowInherit());
        editor.useProjectPrice();
        QVERIFY(!editor.isInheriting());
        QCOMPARE(editor.legacyRate(), 70.0);
        QCOMPARE(editor.billing().unitPrice, Opt(70));
    }

    void textsFollowTheLanguage()
    {
        BillingEditor editor;
        QSignalSpy texts(&editor, &BillingEditor::textsChanged);
        Language::apply(u"nl"_s);
        editor.retranslate();
        const QString dutchNet = editor.labels().value(u"net"_s).toString();
        const QString dutchNone = editor.vatPercent()->placeholder();
        Language::apply(u"en"_s);
        QCOMPARE(texts.size(), 1);
        QCOMPARE(dutchNet, u"Netto (excl. btw)"_s);
        QCOMPARE(dutchNone, u"Geen btw"_s);
    }
};

QTEST_GUILESS_MAIN(TestBillingEditor)
#include "tst_billingeditor.moc"
