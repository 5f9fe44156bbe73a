#include "commandline.h"

#include "app/authcommands.h"
#include "app/renderinvoice.h"
#include "app/servercommand.h"
#include "app/startup.h"
#include "backend/config.h"
#include "backend/runblocking.h"

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
        //% "Show which backend Morvane uses and where each setting comes from"
        {u"auth"_s, [] { return qtTrId("cli.command.auth"); },
         [](const QStringList &arguments, QTextStream &out, QTextStream &err) {
             QTextStream in(stdin);
             return runAuthCommand(arguments, out, err, in);
         }},
        {u"config"_s, [] { return qtTrId("cli.command.config"); }, showConfig, false},
        //% "Start, stop or show the local backend: server start|stop|status"
        {u"server"_s, [] { return qtTrId("cli.command.server"); }, runServerCommand, false},
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
