#include "billing/billedchip.h"
#include "billing/billingsamples.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(BilledChip::Tone)

using BillingSamples::Opt;

class TestBilledChip : public QObject
{
    Q_OBJECT

private slots:
    void classifies_data()
    {
        QTest::addColumn<Opt>("fraction");
        QTest::addColumn<bool>("compact");
        QTest::addColumn<QString>("label");
        QTest::addColumn<BilledChip::Tone>("tone");
        QTest::addColumn<double>("opacity");
        using T = BilledChip::Tone;
        QTest::newRow("nothing tracked") << Opt() << false << u"GEEN TIJD"_s << T::Muted << 0.8;
        QTest::newRow("0 / 0") << Opt(std::numeric_limits<double>::quiet_NaN()) << false << u"GEEN TIJD"_s << T::Muted
                               << 0.8;
        QTest::newRow("nothing billed") << Opt(0) << false << u"OPEN"_s << T::DeepPrimary << 1.0;
        QTest::newRow("below nothing") << Opt(-0.1) << true << u"OPEN"_s << T::DeepPrimary << 1.0;
        QTest::newRow("smallest share") << Opt(0.001) << true << u"0%"_s << T::Primary << 1.0;
        QTest::newRow("a share") << Opt(0.4) << false << u"40% GEFACTUREERD"_s << T::Primary << 1.0;
        QTest::newRow("a share, compact") << Opt(0.4) << true << u"40%"_s << T::Primary << 1.0;
        QTest::newRow("half a percent rounds up") << Opt(0.125) << true << u"13%"_s << T::Primary << 1.0;
        QTest::newRow("just under the threshold") << Opt(0.998) << true << u"100%"_s << T::Primary << 1.0;
        QTest::newRow("at the threshold") << Opt(0.999) << false << u"GEFACTUREERD"_s << T::Success << 1.0;
        QTest::newRow("more than tracked") << Opt(1.25) << false << u"GEFACTUREERD"_s << T::Success << 1.0;
    }

    void classifies()
    {
        QFETCH(Opt, fraction);
        QFETCH(bool, compact);
        const BilledChip::Chip chip = BilledChip::classify(fraction, compact);
        QTEST(chip.label, "label");
        QTEST(chip.tone, "tone");
        QTEST(chip.opacity, "opacity");
    }
};

QTEST_GUILESS_MAIN(TestBilledChip)
#include "tst_billedchip.moc"
