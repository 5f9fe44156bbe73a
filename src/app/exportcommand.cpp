#include "app/exportcommand.h"

#include "app/clisession.h"
#include "backend/runblocking.h"
#include "store/accountantexport.h"

#include <QCommandLineParser>
#include <QTextStream>

using namespace Qt::StringLiterals;

int runExportCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    //% "Show this help."
    const QCommandLineOption helpOption({u"h"_s, u"help"_s}, qtTrId("cli.export.option.help"));
    //% "First day of the period (yyyy-MM-dd)."
    const QCommandLineOption fromOption(u"from"_s, qtTrId("cli.export.option.from"), u"day"_s);
    //% "Last day of the period (yyyy-MM-dd), included."
    const QCommandLineOption toOption(u"to"_s, qtTrId("cli.export.option.to"), u"day"_s);
    //% "The CSV file to write; without it the CSV goes to standard output."
    const QCommandLineOption outOption(u"out"_s, qtTrId("cli.export.option.out"), u"file"_s);
    parser.addOptions({helpOption, fromOption, toOption, outOption});
    //% "What to export: entries or invoices."
    parser.addPositionalArgument(u"kind"_s, qtTrId("cli.export.argument.kind"), u"entries|invoices"_s);
    if (!parser.parse(arguments)) {
        err << parser.errorText() << Qt::endl;
        return 2;
    }
    //% "Usage: morvane export entries|invoices --from DAY --to DAY [--out FILE]"
    const QString usageText = qtTrId("cli.export.usage");
    if (parser.isSet(helpOption)) {
        out << usageText << u"\n\n"_s << parser.helpText();
        out.flush();
        return 0;
    }
    const QStringList positional = parser.positionalArguments();
    const std::optional<AccountantExport::Kind> kind =
        positional.size() == 1 ? AccountantExport::kindFromName(positional.first()) : std::nullopt;
    AccountantExport::Period period;
    period.from = QDate::fromString(parser.value(fromOption), Qt::ISODate);
    period.to = QDate::fromString(parser.value(toOption), Qt::ISODate);
    if (!kind || !period.isValid() || (parser.isSet(outOption) && parser.value(outOption).isEmpty())) {
        return Cli::usage(err, usageText);
    }

    CliSession session;
    if (!session.open(err)) {
        return 1;
    }
    const AccountantExport::Result result = runBlocking(AccountantExport::build(session.store(), *kind, period));
    if (!result.csv) {
        err << result.error << Qt::endl;
        return 1;
    }
    if (!parser.isSet(outOption)) {
        out << QString::fromUtf8(*result.csv);
        out.flush();
        return 0;
    }
    const QString path = parser.value(outOption);
    if (const QString failure = AccountantExport::writeFile(path, *result.csv); !failure.isEmpty()) {
        //% "Could not write %1: %2"
        err << qtTrId("cli.export.writeFailed").arg(path, failure) << Qt::endl;
        return 1;
    }
    //% "Saved %1 (rows: %2)."
    out << qtTrId("cli.export.written").arg(path, QString::number(result.rows)) << Qt::endl;
    return 0;
}
