#include "commandline.h"

#include "app/aicommands.h"
#include "app/authcommands.h"
#include "app/calendarcommands.h"
#include "app/capturecommand.h"
#include "app/companycommand.h"
#include "app/exportcommand.h"
#include "app/renderinvoice.h"
#include "app/servercommand.h"
#include "app/sessionscommands.h"
#include "app/startup.h"
#include "app/storecommands.h"
#include "app/summarycommands.h"
#include "app/tripcommands.h"
#include "backend/config.h"
#include "backend/runblocking.h"
#include "backend/urlscheme.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

struct Command
{
    QString name;
    std::function<QString()> summary;
    std::function<int(const QStringList &arguments, QTextStream &out, QTextStream &err)> run;
    // With no backend configured, the local one is started for such a command first. Commands
    // that only look at settings or manage the local server themselves say so.
    bool needsBackend = true;
};

QString sourceKey(Config::Source source)
{
    switch (source) {
    case Config::Source::Settings:
        return u"settings"_s;
    case Config::Source::Environment:
        return u"environment"_s;
    case Config::Source::LocalServer:
        return u"local"_s;
    }
    return {};
}

int showConfig(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    //% "Print the setting as JSON."
    const QCommandLineOption json(u"json"_s, qtTrId("cli.config.json"));
    parser.addOption(json);
    if (!parser.parse(arguments)) {
        err << parser.errorText() << Qt::endl;
        return 2;
    }

    const Config config = Config::current();
    if (parser.isSet(json)) {
        const QJsonObject object{
            {u"url"_s, config.supabaseURL.toString()},
            {u"url_source"_s, sourceKey(config.urlSource)},
            {u"anon_key"_s, config.supabaseAnonKey},
            {u"anon_key_source"_s, sourceKey(config.keySource)},
        };
        out << QJsonDocument(object).toJson(QJsonDocument::Indented);
        return 0;
    }

    //% "Backend address"
    const QString urlLabel = qtTrId("cli.config.url");
    //% "Anonymous key"
    const QString keyLabel = qtTrId("cli.config.key");
    const int width = int(std::max(urlLabel.size(), keyLabel.size())) + 2;
    //% "not set"
    const QString key = config.supabaseAnonKey.isEmpty() ? qtTrId("cli.config.keyMissing")
                                                         // The key is public, but a short form is easier to read.
                                                         : config.supabaseAnonKey.left(16) + u"…";
    auto line = [&](const QString &label, const QString &value, Config::Source source) {
        out << QString(label + u':').leftJustified(width) << value << u"  ("_s << Config::sourceName(source) << ")\n";
    };
    line(urlLabel, config.supabaseURL.toString(), config.urlSource);
    line(keyLabel, key, config.keySource);
    out.flush();
    return 0;
}

QList<Command> commands()
{
    return {
        //% "Sign up, sign in and out, switch between accounts"
        {u"auth"_s, [] { return qtTrId("cli.command.auth"); },
         [](const QStringList &arguments, QTextStream &out, QTextStream &err) {
             QTextStream in(stdin);
             return runAuthCommand(arguments, out, err, in);
         }},
        //% "Show which backend Morvane uses and where each setting comes from"
        {u"config"_s, [] { return qtTrId("cli.command.config"); }, showConfig, false},
        //% "Start, stop or show the local backend: server start|stop|status"
        {u"server"_s, [] { return qtTrId("cli.command.server"); }, runServerCommand, false},
        //% "List, add, rename, archive or delete projects: projects list|add|rename|archive|rm"
        {u"projects"_s, [] { return qtTrId("cli.command.projects"); }, runProjectsCommand},
        //% "List, add, edit, move or delete tasks: tasks list|add|edit|move|status|rm"
        {u"tasks"_s, [] { return qtTrId("cli.command.tasks"); }, runTasksCommand},
        //% "Teams and their members: teams list|create|invite|invitations|accept|decline|assign"
        {u"teams"_s, [] { return qtTrId("cli.command.teams"); }, runTeamsCommand},
        //% "Start, stop or show the timer: timer start|stop|toggle|status"
        {u"timer"_s, [] { return qtTrId("cli.command.timer"); }, runTimerCommand},
        //% "Log minutes of work on a task: log <task> <minutes>"
        {u"log"_s, [] { return qtTrId("cli.command.log"); }, runLogCommand},
        //% "Turn a sentence into projects, tasks, logged time or a timer action: add \"<text>\" [--dry-run] [--json]"
        {u"add"_s, [] { return qtTrId("cli.command.add"); }, runAddCommand},
        //% "List, edit or delete time entries: entries [--task T] | edit | rm"
        {u"entries"_s, [] { return qtTrId("cli.command.entries"); }, runEntriesCommand},
        //% "Show or set the price of a project or task: price show|set"
        {u"price"_s, [] { return qtTrId("cli.command.price"); }, runPriceCommand},
        //% "Coding-agent sessions found in the local logs: sessions list [--days N] [--json] | scan | map | ignore |
        // reimport | track"
        {u"sessions"_s, [] { return qtTrId("cli.command.sessions"); }, runSessionsCommand, false},
        //% "Where model calls go, your own API keys and what you agreed to send: ai show|provider|key|consent"
        {u"ai"_s, [] { return qtTrId("cli.command.ai"); }, runAICommand, false},
        //% "Invoices: invoice draft|create|list|show|status|void|rm|pdf"
        {u"invoice"_s, [] { return qtTrId("cli.command.invoice"); }, runInvoiceCommand},
        //% "Your sender details and invoice style: company show|set"
        {u"company"_s, [] { return qtTrId("cli.command.company"); }, runCompanyCommand},
        //% "Calendar events as time: calendar add|list|rm|events|import"
        {u"calendar"_s, [] { return qtTrId("cli.command.calendar"); }, runCalendarCommand},
        //% "The clients you invoice: clients list|add|edit|rm"
        {u"clients"_s, [] { return qtTrId("cli.command.clients"); }, runClientsCommand},
        //% "Trips and their kilometres: trips list|add|edit|rm|route|export"
        {u"trips"_s, [] { return qtTrId("cli.command.trips"); }, runTripsCommand},
        //% "Your rate per kilometre and how you usually travel: travel show|set"
        {u"travel"_s, [] { return qtTrId("cli.command.travel"); }, runTravelCommand},
        //% "Earned, billed and unbilled money by week, month or project: earnings [--from DAY --to DAY] [--by week|month|project]"
        {u"earnings"_s, [] { return qtTrId("cli.command.earnings"); }, runEarningsCommand},
        //% "Time entries or invoices of a period as CSV for the accountant: export entries|invoices --from DAY --to DAY [--out FILE]"
        {u"export"_s, [] { return qtTrId("cli.command.export"); }, runExportCommand},
        //% "A short recap of your tracked week, written by the model from your own figures: recap [--lang L]"
        {u"recap"_s, [] { return qtTrId("cli.command.recap"); }, runRecapCommand},
        //% "A stand-up draft from your last workday, today and your open tasks: standup [--lang L]"
        {u"standup"_s, [] { return qtTrId("cli.command.standup"); }, runStandupCommand},
    };
}

QString helpText(const QCommandLineParser &parser)
{
    QString text = parser.helpText();
    //% "Commands:"
    text += u'\n' + qtTrId("cli.commands") + u'\n';
    qsizetype width = 0;
    for (const Command &command : commands()) {
        width = std::max(width, command.name.size());
    }
    for (const Command &command : commands()) {
        text += u"  " + command.name.leftJustified(width + 2) + command.summary() + u'\n';
    }
    return text;
}

} // namespace

int runCommandLine(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    // The desktop started us with an address of our own scheme: it belongs to the sign-in that
    // waits in another process.
    if (arguments.size() == 2 && UrlScheme::isCallback(arguments.at(1))) {
        if (CallbackRelay::forward(QUrl(arguments.at(1)))) {
            return 0;
        }
        //% "No sign-in is waiting for this address. Start the sign-in in Morvane again."
        err << qtTrId("cli.err.noSignInWaiting") << Qt::endl;
        return 1;
    }

    QCommandLineParser parser;
    //% "Morvane tracks working time on projects and tasks and turns it into invoices."
    parser.setApplicationDescription(qtTrId("cli.description"));
    //% "Show this help."
    const QCommandLineOption help({u"h"_s, u"help"_s}, qtTrId("cli.option.help"));
    //% "Show the version."
    const QCommandLineOption version({u"v"_s, u"version"_s}, qtTrId("cli.option.version"));
    parser.addOption(help);
    parser.addOption(version);
    const RenderInvoiceCommand renderInvoice;
    renderInvoice.addOptions(parser);
    //% "The command to run; without one, the command list is shown."
    parser.addPositionalArgument(u"command"_s, qtTrId("cli.argument.command"), u"[command]"_s);
    // Options after the command belong to the command.
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);

    if (!parser.parse(arguments)) {
        err << parser.errorText() << Qt::endl;
        return 2;
    }
    if (parser.isSet(version)) {
        out << QCoreApplication::applicationName() << u' ' << QCoreApplication::applicationVersion() << Qt::endl;
        return 0;
    }
    const QStringList positional = parser.positionalArguments();
    if (renderInvoice.isSet(parser) && !parser.isSet(help)) {
        return renderInvoice.run(parser, out, err);
    }
    if (parser.isSet(help) || positional.isEmpty()) {
        out << helpText(parser);
        return 0;
    }

    const QString name = positional.first();
    for (const Command &command : commands()) {
        if (command.name == name) {
            if (command.needsBackend) {
                try {
                    runBlocking(Startup::ensureBackend());
                } catch (const LocalServerError &error) {
                    err << error.message() << Qt::endl;
                    return 1;
                }
            }
            return command.run(QStringList{arguments.first() + u' ' + name} + positional.mid(1), out, err);
        }
    }
    //% "Unknown command: %1. Run morvane --help for the list of commands."
    err << qtTrId("cli.err.unknownCommand").arg(name) << Qt::endl;
    return 2;
}
