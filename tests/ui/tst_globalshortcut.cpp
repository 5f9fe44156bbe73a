#include "ui/globalshortcut.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestGlobalShortcut : public QObject
{
    Q_OBJECT

private slots:
    void locksDoNotMatter_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("matches");
        // Bits of the X11 core protocol: Shift 1, Lock 2, Control 4, Mod1 8, Mod2 16, Mod4 64.
        QTest::newRow("exactly") << 0x0c << true;
        QTest::newRow("caps and num lock on") << (0x0c | 0x02 | 0x10) << true;
        QTest::newRow("shift as well") << (0x0c | 0x01) << false;
        QTest::newRow("control alone") << 0x04 << false;
    }

    void locksDoNotMatter()
    {
        QFETCH(int, state);
        QFETCH(bool, matches);
        const std::optional<std::uint16_t> mask = GlobalShortcut::modifierMask(Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(mask, std::optional<std::uint16_t>(0x0c));
        QCOMPARE(GlobalShortcut::sameModifiers(*mask, std::uint16_t(state)), matches);
        QVERIFY(!GlobalShortcut::modifierMask(Qt::ControlModifier | Qt::KeypadModifier));
    }

    void offX11NothingIsGrabbed()
    {
        GlobalShortcut shortcut;
        QVERIFY(!shortcut.setShortcut(QKeySequence(u"Ctrl+Alt+Space"_s)));
        QVERIFY(!shortcut.isActive());
    }
};

QTEST_MAIN(TestGlobalShortcut)
#include "tst_globalshortcut.moc"
