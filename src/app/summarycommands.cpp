#include "app/summarycommands.h"

#include "app/clisession.h"
#include "backend/runblocking.h"
#include "i18n/language.h"
#include "model/error.h"
#include "sessions/claudebridge.h"
#include "summary/summarysources.h"
#include "summary/summarywriter.h"

#include <QJsonObject>
#include <QSettings>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

enum class Kind { Recap, Standup };

using WorkSummary::Sources;

std::optional<Sources> load(CliSession &session, const QDateTime &now, QTextStream &err)
{
    try {
        const std::optional<Sources> sources =
            runBlocking(WorkSummary::loadSources(session.auth(), session.store(), now));
        if (!sources) {
            session.failed(err);
        }
        return sources;
    } catch (const MorvaneError &error) {
        err << error.message() << Qt::endl;
        return std::nullopt;
    }
}

QJsonValue orNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

void noteFixed(const QString &reason, const QString &detail, QTextStream &err)
{
    // An empty week or day is not a failure: there was nothing for the model to rephrase.
    if (reason.isEmpty() || reason == u"no_time" || reason == u"nothing_to_tell") {
        return;
    }
    //% "Written from your figures alone; the model's text was not used (%1)."
    err << qtTrId("cli.summary.fixed").arg(detail.isEmpty() ? reason : reason + u": "_s + detail) << Qt::endl;
}

int run(Kind kind, const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    const QCommandLineOption help({u"h"_s, u"help"_s}, qtTrId("cli.option.help"));
    //% "Language of the text: en, nl, de, fr, es, it, pt, ja or th; others mean English. Default: the interface
    // language."
    const QCommandLineOption langOption(u"lang"_s, qtTrId("cli.summary.option.lang"), u"code"_s);
    const QCommandLineOption yes = Cli::yesOption();
    parser.addOptions({help, langOption, yes});
    if (!Cli::parse(parser, arguments, err)) {
        return 2;
    }
    const QString usageText = kind == Kind::Recap
                                  //% "Usage: morvane recap [--lang L] [--yes] [--json]"
                                  ? qtTrId("cli.recap.usage")
                                  //% "Usage: morvane standup [--lang L] [--yes] [--json]"
                                  : qtTrId("cli.standup.usage");
    if (parser.isSet(help)) {
        out << usageText << u"\n\n"_s << parser.helpText();
        out.flush();
        return 0;
    }
    if (!parser.positionalArguments().isEmpty()) {
        return Cli::usage(err, usageText);
    }
    const QString lang =
        WorkSummary::language(parser.isSet(langOption) ? parser.value(langOption) : Language::current());

    CliSession session;
    if (!session.open(err)) {
        return 1;
    }
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const QTimeZone zone = QTimeZone::systemTimeZone();
    const std::optional<Sources> sources = load(session, now, err);
    if (!sources) {
        return 1;
    }
    ClaudeBridge bridge(std::make_shared<QSettings>());
    Cli::connectAI(bridge, session, parser.isSet(yes), err);

    if (kind == Kind::Recap) {
        const WorkSummary::RecapFacts facts =
            WorkSummary::recapFacts(sources->entries, sources->tasks, sources->projects, sources->defaultHourlyRate,
                                    sources->currency, now, zone);
        const WorkSummary::Written written = runBlocking(WorkSummary::writeRecap(bridge, facts, lang));
        if (Cli::wantsJson(parser)) {
            Cli::printJson(out, QJsonObject{
                                    {u"kind"_s, u"recap"_s},
                                    {u"lang"_s, lang},
                                    {u"from"_s, facts.from},
                                    {u"to"_s, facts.to},
                                    {u"text"_s, written.text},
                                    {u"source"_s, written.fromModel ? u"model"_s : u"fixed"_s},
                                    {u"reason"_s, orNull(written.reason)},
                                    {u"detail"_s, orNull(written.detail)},
                                });
            return 0;
        }
        out << written.text << Qt::endl;
        noteFixed(written.reason, written.detail, err);
        return 0;
    }

    const WorkSummary::StandupFacts facts =
        WorkSummary::standupFacts(sources->entries, sources->tasks, sources->projects, now, zone);
    const WorkSummary::DailyStandup standup = runBlocking(WorkSummary::writeStandup(bridge, facts, lang));
    if (Cli::wantsJson(parser)) {
        Cli::printJson(out, QJsonObject{
                                {u"kind"_s, u"standup"_s},
                                {u"lang"_s, lang},
                                {u"today"_s, facts.today},
                                {u"labels"_s, QJsonObject{{u"first"_s, standup.labels.first},
                                                          {u"today"_s, standup.labels.today},
                                                          {u"blockers"_s, standup.labels.blockers}}},
                                {u"yesterday"_s, standup.yesterday},
                                {u"today_line"_s, standup.today},
                                {u"blockers"_s, standup.blockers},
                                {u"text"_s, standup.fullMarkdown},
                                {u"source"_s, standup.fromModel ? u"model"_s : u"fixed"_s},
                                {u"reason"_s, orNull(standup.reason)},
                                {u"detail"_s, orNull(standup.detail)},
                            });
        return 0;
    }
    out << standup.fullMarkdown << Qt::endl;
    noteFixed(standup.reason, standup.detail, err);
    return 0;
}

} // namespace

int runRecapCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    return run(Kind::Recap, arguments, out, err);
}

int runStandupCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    return run(Kind::Standup, arguments, out, err);
}
