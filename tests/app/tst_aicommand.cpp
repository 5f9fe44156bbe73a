#include "support/morvanecli.h"

#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

// `morvane ai` as a person uses it before any model call: a key read from standard input into the
// secrets and never shown again, the provider chosen by its exact name, consent set per route.
class TestAICommand : public QObject
{
    Q_OBJECT

private slots:
    void keysProviderAndConsent()
    {
        const MorvaneCli morvane;
        QCOMPARE(morvane(u"ai key openai"_s, "sk-very-secret\n").code, 0);
        QCOMPARE(morvane(u"ai key openai"_s, "\n").code, 2);
        QCOMPARE(morvane(u"ai provider openai"_s).code, 2); // not a provider's stored name
        QCOMPARE(morvane(u"ai provider openAICustom"_s).code, 0);
        QCOMPARE(morvane(u"ai consent openAI deny"_s).code, 0);
        QCOMPARE(morvane(u"ai consent claudeCLI allow"_s).code, 2); // nothing to agree to there

        const MorvaneCli::Run shown = morvane(u"ai show --json"_s);
        QCOMPARE(shown.code, 0);
        QVERIFY(!shown.out.contains(u"sk-very-secret"_s));
        const QJsonObject state = shown.object();
        QCOMPARE(state.value(u"provider"_s).toString(), u"openAICustom"_s);
        QCOMPARE(state.value(u"route"_s).toString(), u"OpenAI API"_s);
        QCOMPARE(state.value(u"keys"_s)[u"openai"_s].toBool(), true);
        QCOMPARE(state.value(u"keys"_s)[u"gemini"_s].toBool(), false);
        QCOMPARE(state.value(u"consent"_s)[u"openAI"_s].toBool(true), false);
        QVERIFY(state.value(u"consent"_s)[u"anthropic"_s].isNull());

        QCOMPARE(morvane(u"ai key openai --remove"_s).code, 0);
        QCOMPARE(morvane(u"ai show --json"_s).object().value(u"keys"_s)[u"openai"_s].toBool(), false);
    }
};

QTEST_GUILESS_MAIN(TestAICommand)
#include "tst_aicommand.moc"
