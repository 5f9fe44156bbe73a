#include "summary/summarywriter.h"

#include "model/error.h"
#include "sessions/claudebridge.h"

#include <QLoggingCategory>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcSummary, "morvane.summary")

namespace WorkSummary {

namespace {

struct Answer
{
    std::optional<QString> text;
    QString error;
};

QCoro::Task<Answer> ask(ClaudeBridge &bridge, QString factsText, QString systemPrompt)
{
    try {
        // Awaited into a named value first: GCC 12 mishandles an await inside a braced initialiser.
        QString text = co_await bridge.parsePlain(u"FACTS:\n"_s + factsText, u"sonnet"_s, modelTimeoutSeconds,
                                                  systemPrompt, QString());
        co_return Answer{std::move(text), {}};
    } catch (const MorvaneError &error) {
        qCInfo(lcSummary) << "model call failed:" << error.message();
        co_return Answer{std::nullopt, error.message()};
    } catch (const std::exception &error) {
        co_return Answer{std::nullopt, QString::fromUtf8(error.what())};
    }
}

DailyStandup fromText(const StandupText &text, const Phrases &phrases)
{
    return {text.labels, text.first, text.today, text.blockers, text.joined(phrases), false, {}, {}};
}

// The body of a checked line: what follows its label and colon.
QString body(const QString &line, const QString &label)
{
    QString rest = line.mid(label.size()).trimmed();
    return rest.mid(1).trimmed();
}

} // namespace

QCoro::Task<Written> writeRecap(ClaudeBridge &bridge, RecapFacts facts, QString lang)
{
    lang = language(lang);
    const QString fixed = renderRecap(facts, lang);
    if (facts.totalMinutes <= 0) {
        co_return Written{fixed, false, u"no_time"_s, {}};
    }
    const QString factsText = recapFactsText(facts, lang);
    const Answer answer = co_await ask(bridge, factsText, recapSystemPrompt(lang));
    if (!answer.text) {
        co_return Written{fixed, false, u"call_failed"_s, answer.error};
    }
    const QString cleaned = cleanOutput(*answer.text);
    if (const std::optional<QString> problem = recapProblem(cleaned, facts.names(), factsText, facts, lang)) {
        qCInfo(lcSummary) << "recap from the model refused:" << *problem;
        co_return Written{fixed, false, *problem, {}};
    }
    co_return Written{cleaned, true, {}, {}};
}

QCoro::Task<DailyStandup> writeStandup(ClaudeBridge &bridge, StandupFacts facts, QString lang)
{
    lang = language(lang);
    const Phrases &p = phrases(lang);
    DailyStandup fixed = fromText(renderStandup(facts, lang), p);
    if (facts.isEmpty()) {
        fixed.reason = u"nothing_to_tell"_s;
        co_return fixed;
    }
    const Labels words = labels(lang, facts);
    const QString factsText = standupFactsText(facts, lang);
    const Answer answer = co_await ask(bridge, factsText, standupSystemPrompt(lang, words));
    if (!answer.text) {
        fixed.reason = u"call_failed"_s;
        fixed.detail = answer.error;
        co_return fixed;
    }
    const QString lines = toThreeLines(cleanOutput(*answer.text), lang, words);
    if (const std::optional<QString> problem = standupProblem(lines, words, facts.names(), factsText, lang)) {
        qCInfo(lcSummary) << "stand-up from the model refused:" << *problem;
        fixed.reason = *problem;
        co_return fixed;
    }
    const QStringList parts = lines.split(u'\n');
    co_return DailyStandup{words,
                           body(parts.at(0), words.first),
                           body(parts.at(1), words.today),
                           body(parts.at(2), words.blockers),
                           lines,
                           true,
                           {},
                           {}};
}

} // namespace WorkSummary
