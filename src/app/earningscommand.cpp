#include "app/clisession.h"
#include "app/storecommands.h"
#include "billing/earningsreport.h"
#include "billing/money.h"
#include "backend/runblocking.h"
#include "model/error.h"
#include "store/periodentries.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTextStream>
#include <QTimeZone>

using namespace Qt::StringLiterals;
using EarningsReport::Grouping;
using EarningsReport::PricedEntry;
using EarningsReport::Row;

namespace {

enum class By { Week, Month, Project };

std::optional<By> byFromName(const QString &name)
{
    if (name == u"week") {
        return By::Week;
    }
    if (name == u"month") {
        return By::Month;
    }
    if (name == u"project") {
        return By::Project;
    }
    return std::nullopt;
}

QString byName(By by)
{
    switch (by) {
    case By::Week:
        return u"week"_s;
    case By::Month:
        return u"month"_s;
    case By::Project:
        return u"project"_s;
    }
    return {};
}

// JSON carries money in cents and hours to the hundredth, as they are shown; the text rounds the same.
QJsonObject figures(const Row &row)
{
    const std::optional<double> rate = row.effectiveRate();
    return {
        {u"hours"_s, round2(row.hours())},
        {u"earned"_s, round2(row.earned)},
        {u"billed"_s, round2(row.billed)},
        {u"unbilled"_s, round2(row.unbilled())},
        {u"effective_rate"_s, rate ? QJsonValue(round2(*rate)) : QJsonValue()},
    };
}

struct Report
{
    QDate from;
    QDate to;
    By by = By::Month;
    QString currency;
    QList<Row> rows;
    Row total;
    bool anyEntries = false;
};

QString rowLabel(const Report &report, const Row &row, const AppStore &store)
{
    if (report.by == By::Project) {
        const std::optional<Project> project = store.project(row.projectId);
        //% "No project"
        return project ? Cli::printable(project->name) : qtTrId("cli.earnings.noProject");
    }
    return row.start.toString(Qt::ISODate) + u" – "_s + row.end.toString(Qt::ISODate);
}

void printJsonReport(const Report &report, const AppStore &store, QTextStream &out)
{
    QJsonArray rows;
    for (const Row &row : report.rows) {
        QJsonObject object = figures(row);
        if (report.by == By::Project) {
            object.insert(u"project_id"_s, row.projectId);
            const std::optional<Project> project = store.project(row.projectId);
            object.insert(u"project"_s, project ? QJsonValue(project->name) : QJsonValue());
        } else {
            object.insert(u"start"_s, row.start.toString(Qt::ISODate));
            object.insert(u"end"_s, row.end.toString(Qt::ISODate));
        }
        rows.append(object);
    }
    Cli::printJson(out, QJsonObject{
                            {u"from"_s, report.from.toString(Qt::ISODate)},
                            {u"to"_s, report.to.toString(Qt::ISODate)},
                            {u"by"_s, byName(report.by)},
                            {u"currency"_s, report.currency},
                            {u"rows"_s, rows},
                            {u"total"_s, figures(report.total)},
                        });
}

void printTable(const Report &report, const AppStore &store, QTextStream &out)
{
    //% "Earnings from %1 to %2"
    out << qtTrId("cli.earnings.heading")
               .arg(report.from.toString(Qt::ISODate), report.to.toString(Qt::ISODate))
        << u"\n\n"_s;
    if (!report.anyEntries) {
        //% "No time tracked in this period."
        out << qtTrId("cli.earnings.none") << Qt::endl;
        return;
    }
    //% "Project"
    const QString firstHeader = report.by == By::Project ? qtTrId("cli.earnings.column.project")
                                                         //% "Period"
                                                         : qtTrId("cli.earnings.column.period");
    const QStringList header{
        firstHeader,
        //% "Hours"
        qtTrId("cli.earnings.column.hours"),
        //% "Earned"
        qtTrId("cli.earnings.column.earned"),
        //% "Billed"
        qtTrId("cli.earnings.column.billed"),
        //% "Unbilled"
        qtTrId("cli.earnings.column.unbilled"),
        //% "Per hour"
        qtTrId("cli.earnings.column.rate"),
    };
    const auto cells = [&](const QString &label, const Row &row) {
        const std::optional<double> rate = row.effectiveRate();
        return QStringList{
            label,
            Cli::hoursMinutes(row.seconds),
            formatMoney(row.earned, report.currency),
            formatMoney(row.billed, report.currency),
            formatMoney(row.unbilled(), report.currency),
            rate ? formatMoney(*rate, report.currency) : u"–"_s,
        };
    };
    QList<QStringList> lines{header};
    for (const Row &row : report.rows) {
        lines << cells(rowLabel(report, row, store), row);
    }
    //% "Total"
    lines << cells(qtTrId("cli.earnings.total"), report.total);

    QList<qsizetype> widths(header.size(), 0);
    for (const QStringList &line : std::as_const(lines)) {
        for (qsizetype column = 0; column < line.size(); ++column) {
            widths[column] = std::max(widths[column], line.at(column).size());
        }
    }
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (i == lines.size() - 1) {
            qsizetype all = 0;
            for (const qsizetype width : std::as_const(widths)) {
                all += width + 2;
            }
            out << QString(all - 2, u'-') << u'\n';
        }
        const QStringList &line = lines.at(i);
        QStringList padded{line.first().leftJustified(widths.first())};
        for (qsizetype column = 1; column < line.size(); ++column) {
            padded << line.at(column).rightJustified(widths.at(column));
        }
        out << padded.join(u"  "_s) << u'\n';
    }
    out.flush();
}

} // namespace

int runEarningsCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    const QCommandLineOption help({u"h"_s, u"help"_s}, qtTrId("cli.option.help"));
    //% "First day of the period (yyyy-MM-dd); with --to. Without both, the current month."
    const QCommandLineOption fromOption(u"from"_s, qtTrId("cli.earnings.option.from"), u"day"_s);
    //% "Last day of the period (yyyy-MM-dd), included."
    const QCommandLineOption toOption(u"to"_s, qtTrId("cli.earnings.option.to"), u"day"_s);
    //% "Rows by week, month (the default) or project."
    const QCommandLineOption byOption(u"by"_s, qtTrId("cli.earnings.option.by"), u"week|month|project"_s);
    parser.addOptions({help, fromOption, toOption, byOption});
    if (!Cli::parse(parser, arguments, err)) {
        return 2;
    }
    //% "Usage: morvane earnings [--from DAY --to DAY] [--by week|month|project] [--json]"
    const QString usageText = qtTrId("cli.earnings.usage");
    if (parser.isSet(help)) {
        out << usageText << u"\n\n"_s << parser.helpText();
        out.flush();
        return 0;
    }
    if (!parser.positionalArguments().isEmpty()) {
        return Cli::usage(err, usageText);
    }

    Report report;
    const std::optional<By> by = parser.isSet(byOption) ? byFromName(parser.value(byOption)) : By::Month;
    if (!by) {
        //% "--by takes week, month or project, not \"%1\"."
        err << qtTrId("cli.earnings.badBy").arg(Cli::printable(parser.value(byOption))) << Qt::endl;
        return Cli::usage(err, usageText);
    }
    report.by = *by;
    const QTimeZone zone = QTimeZone::systemTimeZone();
    if (parser.isSet(fromOption) != parser.isSet(toOption)) {
        //% "Give both --from and --to, or neither for the current month."
        err << qtTrId("cli.earnings.halfPeriod") << Qt::endl;
        return Cli::usage(err, usageText);
    }
    if (parser.isSet(fromOption)) {
        for (const QCommandLineOption *option : {&fromOption, &toOption}) {
            const QDate day = QDate::fromString(parser.value(*option), u"yyyy-MM-dd"_s);
            if (!day.isValid()) {
                //% "\"%1\" is not a day; write it as yyyy-MM-dd, for example 2026-01-31."
                err << qtTrId("cli.earnings.badDay").arg(Cli::printable(parser.value(*option))) << Qt::endl;
                return Cli::usage(err, usageText);
            }
            (option == &fromOption ? report.from : report.to) = day;
        }
        if (report.from > report.to) {
            //% "The period ends before it begins."
            err << qtTrId("cli.earnings.backwards") << Qt::endl;
            return Cli::usage(err, usageText);
        }
    } else {
        const QDate today = QDateTime::currentDateTimeUtc().toTimeZone(zone).date();
        report.from = EarningsReport::periodStart(today, Grouping::Month);
        report.to = EarningsReport::periodEnd(report.from, Grouping::Month);
    }

    CliSession session;
    if (!session.open(err)) {
        return 1;
    }
    AppStore &store = session.store();
    EarningsReport::Sources sources;
    try {
        const std::optional<QList<TimeEntry>> entries =
            runBlocking(loadEntriesBetween(session.auth(), QDateTime(report.from, QTime(0, 0), zone),
                                           QDateTime(report.to.addDays(1), QTime(0, 0), zone)));
        if (!entries) {
            return session.failed(err);
        }
        sources.entries = *entries;
    } catch (const MorvaneError &error) {
        err << error.message() << Qt::endl;
        return 1;
    }
    // Without the set of billed work every fixed price would read as unbilled.
    if (!runBlocking(store.reloadBilledEntrySet())) {
        return session.failed(err);
    }
    for (const QList<TaskItem> &tasks : store.tasksByProject()) {
        sources.tasks << tasks;
    }
    sources.projects = store.projects();
    sources.billedEntryIds = store.billedEntryIds();
    sources.defaultHourlyRate = store.defaultHourlyRate();
    sources.zone = zone;

    QList<PricedEntry> priced;
    for (const PricedEntry &entry : EarningsReport::price(sources)) {
        if (entry.day.isValid() && entry.day >= report.from && entry.day <= report.to) {
            priced << entry;
        }
    }
    report.anyEntries = !priced.isEmpty();
    report.currency = store.currency();
    report.total = EarningsReport::total(priced);
    if (report.by == By::Project) {
        report.rows = EarningsReport::byProject(priced);
    } else {
        report.rows = EarningsReport::byPeriod(priced, report.by == By::Week ? Grouping::Week : Grouping::Month,
                                               report.from, report.to);
        // The first and last week or month may reach past the period; the rows say what they counted.
        for (Row &row : report.rows) {
            row.start = std::max(row.start, report.from);
            row.end = std::min(row.end, report.to);
        }
    }

    if (Cli::wantsJson(parser)) {
        printJsonReport(report, store, out);
    } else {
        printTable(report, store, out);
    }
    return 0;
}
