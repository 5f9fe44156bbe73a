#include "calendarcommands.h"

#include "app/clisession.h"
#include "backend/runblocking.h"
#include "calendar/calendarimporter.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>
#include <QTextStream>


using namespace Qt::StringLiterals;

namespace {

QString usageText()
{
    //% "Usage: morvane calendar add <file-or-address> [--caldav --user U] | list | rm <calendar> | events [--day DAY] [--json] | import --day DAY [--project P] [--events ID...] [--all]"
    return qtTrId("cli.calendar.usage");
}

std::optional<QDate> parseDay(const QString &text, QTextStream &err)
{
    const QString trimmed = text.trimmed().toLower();
    if (trimmed.isEmpty() || trimmed == "today"_L1) {
        return QDate::currentDate();
    }
    if (trimmed == "yesterday"_L1) {
        return QDate::currentDate().addDays(-1);
    }
    const QDate day = QDate::fromString(trimmed, Qt::ISODate);
    if (!day.isValid()) {
        //% "A day is written as YYYY-MM-DD, today or yesterday."
        err << qtTrId("cli.calendar.err.day") << Qt::endl;
        return std::nullopt;
    }
    return day;
}

QString readPassword(QTextStream &err)
{
    const QByteArray fromEnvironment = qgetenv("MORVANE_CALDAV_PASSWORD");
    if (!fromEnvironment.isEmpty()) {
        return QString::fromUtf8(fromEnvironment);
    }
    QTextStream in(stdin);
    //% "CalDAV password: "
    return Cli::readSecret(in, qtTrId("cli.calendar.password"), err);
}

QString clock(const QDateTime &at)
{
    return at.toLocalTime().toString(u"HH:mm"_s);
}

QJsonObject eventJson(const CalendarEventDraft &event, bool imported, const std::optional<CalendarDestination> &to)
{
    QJsonObject json{{u"id"_s, event.id},
                     {u"title"_s, event.title},
                     {u"calendar"_s, event.calendar},
                     {u"start"_s, event.start.toUTC().toString(Qt::ISODate)},
                     {u"end"_s, event.end.toUTC().toString(Qt::ISODate)},
                     {u"durationSeconds"_s, event.durationSeconds},
                     {u"attendeeCount"_s, event.attendeeCount},
                     {u"imported"_s, imported}};
    if (event.calendarColorHex) {
        json.insert(u"calendarColor"_s, *event.calendarColorHex);
    }
    if (event.location) {
        json.insert(u"location"_s, *event.location);
    }
    if (event.notes) {
        json.insert(u"notes"_s, *event.notes);
    }
    if (to) {
        json.insert(u"destination"_s,
                    QJsonObject{{u"kind"_s, to->kind == CalendarDestination::Kind::NewTask ? u"new_task"_s
                                                                                           : u"existing_task"_s},
                                {u"id"_s, to->id}});
    }
    return json;
}

int addCalendar(CalendarImporter &importer, const QCommandLineParser &parser, const QStringList &positional,
                QTextStream &out, QTextStream &err)
{
    if (positional.size() != 2) {
        return Cli::usage(err, usageText());
    }
    const bool caldav = parser.isSet(u"caldav"_s);
    QString why;
    std::optional<CalendarSource> source =
        CalendarSources::make(positional.at(1), caldav, parser.value(u"user"_s), &why);
    if (!source) {
        //% "That calendar cannot be added: %1."
        err << qtTrId("cli.calendar.err.add").arg(why) << Qt::endl;
        return 2;
    }
    if (parser.isSet(u"name"_s)) {
        source->name = parser.value(u"name"_s).trimmed();
    }
    std::optional<QString> password;
    if (caldav) {
        password = readPassword(err);
    }
    if (!runBlocking(importer.addSource(*source, password))) {
        err << importer.errorMessage() << Qt::endl;
        return 1;
    }
    const QList<CalendarSource> all = importer.sources();
    //% "Added %1 (%2)."
    out << qtTrId("cli.calendar.added").arg(all.last().name, Cli::shortId(source->id)) << Qt::endl;
    return 0;
}

std::optional<CalendarSource> findSource(const CalendarImporter &importer, const QString &reference, QTextStream &err)
{
    QList<CalendarSource> matches;
    for (const CalendarSource &source : importer.sources()) {
        if (source.id.startsWith(reference) || source.name.compare(reference, Qt::CaseInsensitive) == 0
            || source.address == reference) {
            matches.append(source);
        }
    }
    if (matches.size() != 1) {
        //% "No single calendar matches “%1”; see morvane calendar list."
        err << qtTrId("cli.calendar.err.unknown").arg(reference) << Qt::endl;
        return std::nullopt;
    }
    return matches.first();
}

int listCalendars(const CalendarImporter &importer, bool json, QTextStream &out)
{
    const QList<CalendarSource> sources = importer.sources();
    if (json) {
        QJsonArray rows;
        for (const CalendarSource &source : sources) {
            rows.append(QJsonObject{{u"id"_s, source.id},
                                    {u"kind"_s, CalendarSources::kindName(source.kind)},
                                    {u"name"_s, source.name},
                                    {u"address"_s, source.address},
                                    {u"user"_s, source.user},
                                    {u"color"_s, source.colorHex}});
        }
        Cli::printJson(out, rows);
        return 0;
    }
    if (sources.isEmpty()) {
        out << CalendarImport::accessOffTitle() << '\n' << CalendarImport::accessOffBody() << Qt::endl;
        return 0;
    }
    for (const CalendarSource &source : sources) {
        out << Cli::shortId(source.id) << "  " << CalendarSources::kindName(source.kind) << "  " << source.name << "  "
            << source.address << '\n';
    }
    out.flush();
    return 0;
}

int showEvents(CalendarImporter &importer, const QList<CalendarEventDraft> &events, bool json, QTextStream &out)
{
    if (json) {
        QJsonArray rows;
        for (const CalendarEventDraft &event : events) {
            rows.append(eventJson(event, importer.loggedIds().contains(event.id), importer.defaultDestination(event)));
        }
        Cli::printJson(out, rows);
        return 0;
    }
    if (events.isEmpty()) {
        out << CalendarImport::noEventsHint() << Qt::endl;
        return 0;
    }
    for (const CalendarEventDraft &event : events) {
        out << event.id << "  " << clock(event.start) << '-' << clock(event.end) << "  "
            << Cli::hoursMinutes(event.durationSeconds) << "  " << event.title << "  · " << event.calendar;
        if (importer.loggedIds().contains(event.id)) {
            //% "imported"
            out << "  [" << qtTrId("cli.calendar.imported") << ']';
        }
        out << '\n';
    }
    out.flush();
    return 0;
}

int importEvents(CliSession &session, CalendarImporter &importer, const QCommandLineParser &parser,
                 const QStringList &positional, QTextStream &out, QTextStream &err)
{
    if (parser.isSet(u"project"_s)) {
        const std::optional<Project> project = session.project(parser.value(u"project"_s), err);
        if (!project) {
            return 2;
        }
        session.store().setSelectedProjectId(project->id);
    }
    QStringList wanted;
    for (const QString &value : parser.values(u"events"_s)) {
        wanted += value.split(u',', Qt::SkipEmptyParts);
    }
    wanted += positional.mid(1);
    if (wanted.isEmpty() && !parser.isSet(u"all"_s)) {
        //% "Say which events to import: --events ID... (see morvane calendar events) or --all."
        err << qtTrId("cli.calendar.err.noSelection") << Qt::endl;
        return 2;
    }
    QSet<QString> selected;
    QHash<QString, CalendarDestination> destinations;
    QStringList homeless;
    for (const CalendarEventDraft &event : importer.events()) {
        const bool picked = parser.isSet(u"all"_s)
                            || std::any_of(wanted.begin(), wanted.end(),
                                           [&](const QString &id) { return event.id.startsWith(id.trimmed()); });
        if (!picked) {
            continue;
        }
        selected.insert(event.id);
        if (const std::optional<CalendarDestination> to = importer.defaultDestination(event)) {
            destinations.insert(event.id, *to);
        } else if (!importer.loggedIds().contains(event.id)) {
            homeless.append(event.title);
        }
    }
    if (!homeless.isEmpty()) {
        //% "No task or project for: %1. Pass --project P to make them new tasks there."
        err << qtTrId("cli.calendar.err.noDestination").arg(homeless.join(u", "_s)) << Qt::endl;
        return 2;
    }
    int skipped = 0;
    for (const QString &id : std::as_const(selected)) {
        skipped += importer.loggedIds().contains(id) ? 1 : 0;
    }
    const int imported = runBlocking(importer.importEvents(selected, destinations));
    //% "Imported %1 events; %2 were imported before."
    out << qtTrId("cli.calendar.importedCount").arg(imported).arg(skipped) << Qt::endl;
    if (!importer.errorMessage().isEmpty()) {
        err << importer.errorMessage() << Qt::endl;
        return 1;
    }
    return 0;
}

} // namespace

int runCalendarCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    //% "Read a CalDAV collection (with --user) instead of a subscription."
    parser.addOption({u"caldav"_s, qtTrId("cli.calendar.opt.caldav")});
    //% "The CalDAV user name."
    parser.addOption({u"user"_s, qtTrId("cli.calendar.opt.user"), u"U"_s});
    //% "The name the calendar is shown under."
    parser.addOption({u"name"_s, qtTrId("cli.calendar.opt.name"), u"N"_s});
    //% "The day: YYYY-MM-DD, today or yesterday."
    parser.addOption({u"day"_s, qtTrId("cli.calendar.opt.day"), u"DAY"_s});
    //% "The project new tasks are made in."
    parser.addOption({u"project"_s, qtTrId("cli.calendar.opt.project"), u"P"_s});
    //% "The events to import, by the id events shows."
    parser.addOption({u"events"_s, qtTrId("cli.calendar.opt.events"), u"ID"_s});
    //% "Import every event of the day."
    parser.addOption({u"all"_s, qtTrId("cli.calendar.opt.all")});
    if (!Cli::parse(parser, arguments, err)) {
        return 2;
    }
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0);
    CliSession session;
    CalendarImporter importer(session.store(), session.auth(), session.secrets());

    if (action == "add"_L1) {
        return addCalendar(importer, parser, positional, out, err);
    }
    if (action == "list"_L1) {
        return listCalendars(importer, Cli::wantsJson(parser), out);
    }
    if (action == "rm"_L1) {
        if (positional.size() != 2) {
            return Cli::usage(err, usageText());
        }
        const std::optional<CalendarSource> source = findSource(importer, positional.at(1), err);
        if (!source) {
            return 1;
        }
        runBlocking(importer.removeSource(source->id));
        //% "Removed %1."
        out << qtTrId("cli.calendar.removed").arg(source->name) << Qt::endl;
        return 0;
    }
    if (action != "events"_L1 && action != "import"_L1) {
        return Cli::usage(err, usageText());
    }
    if (action == "import"_L1 && !parser.isSet(u"day"_s)) {
        return Cli::usage(err, usageText());
    }
    const std::optional<QDate> day = parseDay(parser.value(u"day"_s), err);
    if (!day) {
        return 2;
    }
    importer.refreshStatus();
    if (importer.authState() != CalendarImporter::Auth::Granted) {
        err << CalendarImport::accessOffTitle() << '\n' << CalendarImport::accessOffBody() << Qt::endl;
        return 1;
    }
    if (action == "import"_L1) {
        if (!session.open(err)) {
            return 1;
        }
    } else {
        // Signed in, the list says what was imported before; without, it is still the day's list.
        QString ignored;
        QTextStream quiet(&ignored);
        session.open(quiet);
    }
    runBlocking(importer.load(*day));
    if (!importer.errorMessage().isEmpty()) {
        err << importer.errorMessage() << Qt::endl;
    }
    if (action == "events"_L1) {
        return showEvents(importer, importer.events(), Cli::wantsJson(parser), out);
    }
    return importEvents(session, importer, parser, positional, out, err);
}
