#include "app/tripcommands.h"

#include "app/clisession.h"
#include "backend/runblocking.h"
#include "model/isodate.h"
#include "store/tripexport.h"
#include "travel/nominatimlookup.h"
#include "travel/roadrouter.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QTextStream>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QString kmText(int metres)
{
    return QString::number(Travel::billedKm(metres), 'f', 1);
}

// A place typed on the command line: coordinates as they stand, else the first hit of the
// address service. Without coordinates the label alone is kept (no estimate is then possible).
struct Place
{
    QString label;
    std::optional<GeoPoint> point;
};

// The road route and address look-ups of one command, with the services the settings name.
class Services
{
public:
    explicit Services(const QSettings &settings)
        : m_config(TravelServiceConfig::load(settings))
        , m_routeGate(std::chrono::milliseconds(0))
        , m_searchGate(std::chrono::seconds(1))
        , m_router(m_network, m_config.osrm, m_routeGate)
        , m_lookup(m_network, m_config.nominatim, m_searchGate, QLocale().name().left(2))
    {}

    Place place(const QString &text, QTextStream &err)
    {
        Place place{text.simplified(), Geo::parseLatLng(text)};
        if (place.point || !m_lookup.isConfigured()) {
            return place;
        }
        try {
            const QList<PlaceResult> hits = runBlocking(m_lookup.search(text, 1));
            if (!hits.isEmpty()) {
                place.point = hits.first().point();
            }
        } catch (const TravelServiceError &error) {
            err << error.message() << Qt::endl;
        }
        return place;
    }

    // The road distance, else the straight-line estimate with its note; none without points.
    std::optional<RoadRouter::Route> distance(const Place &from, const Place &to, TripMode mode, QTextStream &err)
    {
        if (!from.point || !to.point) {
            return std::nullopt;
        }
        if (m_router.isConfigured()) {
            try {
                const RoadRouter::Route route = runBlocking(m_router.route(*from.point, *to.point, mode));
                //% "Distance by road, about %1 min. Change it if you went another way."
                err << qtTrId("tripDistanceByRoad").arg(qRound(route.durationS / 60.0)) << Qt::endl;
                return route;
            } catch (const TravelServiceError &error) {
                err << error.message() << Qt::endl;
            }
        }
        //% "Kilometres are an estimate from the addresses; change them if needed."
        err << qtTrId("tripDistanceEstimate") << Qt::endl;
        RoadRouter::Route estimate;
        estimate.distanceM = int(std::lround(Geo::haversineM(*from.point, *to.point)));
        return estimate;
    }

private:
    TravelServiceConfig m_config;
    QNetworkAccessManager m_network;
    RequestGate m_routeGate;
    RequestGate m_searchGate;
    RoadRouter m_router;
    NominatimLookup m_lookup;
};

std::optional<Trip> findTrip(const QList<Trip> &trips, const QString &reference, QTextStream &err)
{
    const QString wanted = reference.trimmed();
    QList<Trip> matches;
    for (const Trip &trip : trips) {
        if (trip.id.compare(wanted, Qt::CaseInsensitive) == 0) {
            return trip;
        }
        if (wanted.size() >= 4 && trip.id.startsWith(wanted, Qt::CaseInsensitive)) {
            matches << trip;
        }
    }
    if (matches.size() == 1) {
        return matches.first();
    }
    //% "No single trip matches \"%1\". See them with: morvane trips list"
    err << qtTrId("cli.trips.noMatch").arg(Cli::printable(wanted)) << Qt::endl;
    return std::nullopt;
}

QString dayOf(const Trip &trip)
{
    const std::optional<QDateTime> started = isoDate(trip.startedAt);
    return started ? started->toLocalTime().date().toString(Qt::ISODate) : QString();
}

int listTrips(AppStore &store, bool json, QTextStream &out)
{
    if (json) {
        QJsonArray rows;
        for (const Trip &trip : store.trips()) {
            QJsonObject row = Wire::encode(trip).toObject();
            row.insert(u"invoiced"_s, store.billedTripIds().contains(trip.id));
            rows.append(row);
        }
        Cli::printJson(out, rows);
        return 0;
    }
    if (store.trips().isEmpty()) {
        //% "No trips yet. Trips your phone records while a timer runs show up here. You can also add a trip by hand."
        out << qtTrId("tripsEmpty") << Qt::endl;
        return 0;
    }
    for (const Trip &trip : store.trips()) {
        QStringList tags{Wire::enumName(trip.mode)};
        if (const std::optional<Project> project = store.project(trip.projectId.value_or(QString()))) {
            tags << Cli::printable(project->name);
        }
        if (!trip.isBusiness()) {
            //% "private"
            tags << qtTrId("cli.trips.private");
        } else if (!trip.billable) {
            //% "not charged"
            tags << qtTrId("cli.trips.notCharged");
        }
        if (store.billedTripIds().contains(trip.id)) {
            //% "invoiced"
            tags << qtTrId("cli.trips.invoiced");
        }
        if (!trip.isFinished()) {
            //% "Trip in progress"
            tags << qtTrId("tripInProgress");
        }
        out << Cli::shortId(trip.id) << u"  "_s << dayOf(trip) << u"  "_s
            << Cli::printable(trip.startLabel.value_or(u"?"_s)) << u" → "_s
            << Cli::printable(trip.endLabel.value_or(u"?"_s)) << u"  "_s << kmText(trip.distanceM) << u" km  "_s
            << tags.join(u", "_s);
        if (trip.purpose) {
            out << u"  "_s << Cli::printable(*trip.purpose);
        }
        out << u'\n';
    }
    out.flush();
    return 0;
}

// Metres from a typed number of kilometres; none for text that is no distance.
std::optional<int> metresOf(const QString &text)
{
    bool ok = false;
    const double km = QString(text).replace(u',', u'.').trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(km) || km < 0 || km > 40000) {
        return std::nullopt;
    }
    return int(std::lround(km * 1000));
}

} // namespace

int runTripsCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    const QCommandLineOption help({u"h"_s, u"help"_s}, qtTrId("cli.option.help"));
    //% "The day of the trip (YYYY-MM-DD)."
    const QCommandLineOption date(u"date"_s, qtTrId("cli.trips.option.date"), u"day"_s);
    //% "Where the trip started: an address, a place or \"lat,lng\"; for an export, the first day."
    const QCommandLineOption from(u"from"_s, qtTrId("cli.trips.option.from"), u"place"_s);
    //% "Where the trip ended; for an export, the last day."
    const QCommandLineOption to(u"to"_s, qtTrId("cli.trips.option.to"), u"place"_s);
    //% "The distance in kilometres; without it the road route, else the straight-line estimate."
    const QCommandLineOption km(u"km"_s, qtTrId("cli.trips.option.km"), u"km"_s);
    //% "The project the trip served."
    const QCommandLineOption project(u"project"_s, qtTrId("cli.trips.option.project"), u"project"_s);
    //% "The task the trip served."
    const QCommandLineOption task(u"task"_s, qtTrId("cli.trips.option.task"), u"task"_s);
    //% "car, bike, walk, transit or other."
    const QCommandLineOption mode(u"mode"_s, qtTrId("cli.trips.option.mode"), u"mode"_s);
    //% "A private trip; never charged."
    const QCommandLineOption privateTrip(u"private"_s, qtTrId("cli.trips.option.private"));
    //% "A business trip that is not charged to the client."
    const QCommandLineOption notBillable(u"not-billable"_s, qtTrId("cli.trips.option.notBillable"));
    //% "What the trip was for."
    const QCommandLineOption purpose(u"purpose"_s, qtTrId("cli.trips.option.purpose"), u"text"_s);
    //% "The CSV file to write."
    const QCommandLineOption outFile(u"out"_s, qtTrId("cli.trips.option.out"), u"file"_s);
    const QCommandLineOption yes(u"yes"_s, qtTrId("cli.clients.option.yes"));
    parser.addOptions({help, date, from, to, km, project, task, mode, privateTrip, notBillable, purpose, outFile, yes});
    parser.addPositionalArgument(u"action"_s, qtTrId("cli.command.trips"), u"list|add|edit|rm|route|export"_s);
    if (!Cli::parse(parser, arguments, err)) {
        return 2;
    }
    //% "Usage: morvane trips list | add --date DAY --from PLACE --to PLACE [--km N] [--project P] [--task T] [--mode M]
    //[--private] [--not-billable] [--purpose TEXT] | edit <trip> [the same options] | rm <trip> [--yes] | route <from>
    //<to> [--mode M] | export --from DAY --to DAY --out FILE.csv [--json]"
    const QString usageText = qtTrId("cli.trips.usage");
    if (parser.isSet(help)) {
        out << usageText << u"\n\n"_s << parser.helpText();
        out.flush();
        return 0;
    }
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0);
    const std::optional<TripMode> modeValue =
        parser.isSet(mode) ? Wire::enumFromName<TripMode>(parser.value(mode).trimmed()) : std::nullopt;
    const bool known =
        (action == u"list" && positional.size() == 1) ||
        (action == u"add" && positional.size() == 1 && parser.isSet(date) && parser.isSet(from) && parser.isSet(to)) ||
        (action == u"edit" && positional.size() == 2) || (action == u"rm" && positional.size() == 2) ||
        (action == u"route" && positional.size() == 3) ||
        (action == u"export" && positional.size() == 1 && parser.isSet(from) && parser.isSet(to) &&
         parser.isSet(outFile));
    if (!known || (parser.isSet(mode) && !modeValue)) {
        return Cli::usage(err, usageText);
    }
    std::optional<int> metres;
    if (parser.isSet(km)) {
        metres = metresOf(parser.value(km));
        if (!metres) {
            return Cli::usage(err, usageText);
        }
    }
    QDate day;
    if (parser.isSet(date)) {
        day = QDate::fromString(parser.value(date), Qt::ISODate);
        if (!day.isValid()) {
            return Cli::usage(err, usageText);
        }
    }
    const bool json = Cli::wantsJson(parser);

    if (action == u"route") {
        // Needs no account: only the services are asked.
        const QSettings settings;
        Services services(settings);
        const Place start = services.place(positional.at(1), err);
        const Place end = services.place(positional.at(2), err);
        const std::optional<RoadRouter::Route> route =
            services.distance(start, end, modeValue.value_or(TripMode::Car), err);
        if (!route) {
            //% "No place was found for \"%1\"."
            err << qtTrId("cli.trips.placeUnknown").arg(Cli::printable(start.point ? end.label : start.label))
                << Qt::endl;
            return 1;
        }
        if (json) {
            Cli::printJson(out, QJsonObject{{u"distance_m"_s, route->distanceM},
                                            {u"duration_s"_s, route->durationS},
                                            {u"route"_s, route->route}});
        } else {
            out << kmText(route->distanceM) << u" km"_s << Qt::endl;
        }
        return 0;
    }

    CliSession session;
    if (!session.open(err)) {
        return 1;
    }
    AppStore &store = session.store();
    if (action == u"export") {
        const AccountantExport::Period period{QDate::fromString(parser.value(from), Qt::ISODate),
                                              QDate::fromString(parser.value(to), Qt::ISODate)};
        if (!period.isValid()) {
            return Cli::usage(err, usageText);
        }
        const AccountantExport::Result result = runBlocking(TripExport::build(store, period));
        if (!result.csv) {
            err << result.error << Qt::endl;
            return 1;
        }
        const QString problem = AccountantExport::writeFile(parser.value(outFile), *result.csv);
        if (!problem.isEmpty()) {
            err << problem << Qt::endl;
            return 1;
        }
        //% "Wrote %1 trips to %2."
        out << qtTrId("cli.trips.exported").arg(result.rows).arg(parser.value(outFile)) << Qt::endl;
        return 0;
    }
    if (!runBlocking(store.loadTrips()) || !runBlocking(store.reloadBilledTrips())) {
        return session.failed(err);
    }
    if (action == u"list") {
        return listTrips(store, json, out);
    }

    std::optional<Project> projectValue;
    std::optional<TaskItem> taskValue;
    if (parser.isSet(task)) {
        taskValue = session.task(parser.value(task), err);
        if (!taskValue) {
            return 1;
        }
        projectValue = store.project(taskValue->projectId);
    } else if (parser.isSet(project)) {
        projectValue = session.project(parser.value(project), err);
        if (!projectValue) {
            return 1;
        }
    }
    const auto print = [&](const Trip &trip, const QString &text) {
        if (json) {
            Cli::printJson(out, Wire::encode(trip));
        } else {
            out << text << Qt::endl;
        }
        return 0;
    };

    if (action == u"add") {
        const QSettings settings;
        Services services(settings);
        const Place start = services.place(parser.value(from), err);
        const Place end = services.place(parser.value(to), err);
        TripInsert insert;
        insert.mode = modeValue.value_or(store.travelSettings().defaultMode);
        std::optional<RoadRouter::Route> route;
        if (!metres) {
            route = services.distance(start, end, insert.mode, err);
            if (!route) {
                //% "The distance is unknown: the places were not found. Give it with --km."
                err << qtTrId("cli.trips.needKm") << Qt::endl;
                return 1;
            }
        }
        // Noon keeps the day the person named in every zone the trip is later read in.
        const QDateTime started(day, QTime(12, 0));
        insert.startedAt = started.toUTC().toString(Qt::ISODate);
        insert.endedAt = started.addSecs(route ? route->durationS : 0).toUTC().toString(Qt::ISODate);
        insert.startLabel = start.label;
        insert.endLabel = end.label;
        if (start.point) {
            insert.startLat = start.point->lat;
            insert.startLng = start.point->lng;
        }
        if (end.point) {
            insert.endLat = end.point->lat;
            insert.endLng = end.point->lng;
        }
        insert.distanceM = metres ? *metres : route->distanceM;
        if (route && !route->route.isEmpty()) {
            insert.route = route->route;
        }
        insert.projectId = projectValue ? std::optional<QString>(projectValue->id) : std::nullopt;
        insert.taskId = taskValue ? std::optional<QString>(taskValue->id) : std::nullopt;
        insert.kind = parser.isSet(privateTrip) ? u"private"_s : u"business"_s;
        insert.billable = !parser.isSet(privateTrip) && !parser.isSet(notBillable);
        if (parser.isSet(purpose) && !parser.value(purpose).trimmed().isEmpty()) {
            insert.purpose = parser.value(purpose).trimmed();
        }
        const std::optional<QList<Trip>> rows = runBlocking(store.createTrips({insert}));
        if (!rows || rows->isEmpty()) {
            return session.failed(err);
        }
        //% "Added trip %1: %2 km."
        return print(rows->first(),
                     qtTrId("cli.trips.added").arg(Cli::shortId(rows->first().id), kmText(rows->first().distanceM)));
    }

    const std::optional<Trip> trip = findTrip(store.trips(), positional.at(1), err);
    if (!trip) {
        return 1;
    }
    if (action == u"rm") {
        if (!parser.isSet(yes) && !Cli::confirm(
                                      //% "Delete this trip? This cannot be undone."
                                      qtTrId("tripDeleteConfirm") + u" [y/N] "_s, err)) {
            err << qtTrId("cli.clients.kept") << Qt::endl;
            return 1;
        }
        if (!runBlocking(store.deleteTrip(trip->id))) {
            return session.failed(err);
        }
        //% "Deleted trip %1."
        return print(*trip, qtTrId("cli.trips.deleted").arg(Cli::shortId(trip->id)));
    }
    // edit: only what was named changes.
    TripPatch patch;
    if (parser.isSet(from)) {
        patch.setText(u"start_label"_s, parser.value(from).simplified());
        if (const std::optional<GeoPoint> point = Geo::parseLatLng(parser.value(from))) {
            patch.setNumber(u"start_lat"_s, point->lat);
            patch.setNumber(u"start_lng"_s, point->lng);
        }
    }
    if (parser.isSet(to)) {
        patch.setText(u"end_label"_s, parser.value(to).simplified());
        if (const std::optional<GeoPoint> point = Geo::parseLatLng(parser.value(to))) {
            patch.setNumber(u"end_lat"_s, point->lat);
            patch.setNumber(u"end_lng"_s, point->lng);
        }
    }
    if (metres) {
        patch.setInt(u"distance_m"_s, *metres);
    }
    if (day.isValid()) {
        const QDateTime started(day, QTime(12, 0));
        patch.setText(u"started_at"_s, started.toUTC().toString(Qt::ISODate));
        patch.setText(u"ended_at"_s, started.toUTC().toString(Qt::ISODate));
    }
    if (modeValue) {
        patch.setText(u"mode"_s, Wire::enumName(*modeValue));
    }
    if (projectValue) {
        patch.setText(u"project_id"_s, projectValue->id);
        patch.setText(u"task_id"_s, taskValue ? std::optional<QString>(taskValue->id) : std::nullopt);
    }
    if (parser.isSet(privateTrip)) {
        patch.setText(u"kind"_s, u"private"_s);
        patch.setBool(u"billable"_s, false);
    } else if (parser.isSet(notBillable)) {
        patch.setBool(u"billable"_s, false);
    }
    if (parser.isSet(purpose)) {
        const QString text = parser.value(purpose).trimmed();
        patch.setText(u"purpose"_s, text.isEmpty() ? std::nullopt : std::optional<QString>(text));
    }
    if (patch.isEmpty()) {
        return Cli::usage(err, usageText);
    }
    if (!runBlocking(store.updateTrip(trip->id, patch))) {
        return session.failed(err);
    }
    //% "Saved trip %1."
    return print(store.trip(trip->id).value_or(*trip), qtTrId("cli.trips.saved").arg(Cli::shortId(trip->id)));
}

int runTravelCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    const QCommandLineOption help({u"h"_s, u"help"_s}, qtTrId("cli.option.help"));
    //% "Your rate per kilometre, used where a project names none."
    const QCommandLineOption rate(u"rate"_s, qtTrId("cli.travel.option.rate"), u"amount"_s);
    //% "How you usually travel: car, bike, walk, transit or other."
    const QCommandLineOption mode(u"mode"_s, qtTrId("cli.travel.option.mode"), u"mode"_s);
    parser.addOptions({help, rate, mode});
    parser.addPositionalArgument(u"action"_s, qtTrId("cli.command.travel"), u"show|set"_s);
    if (!Cli::parse(parser, arguments, err)) {
        return 2;
    }
    //% "Usage: morvane travel show | set [--rate R] [--mode M] [--json]"
    const QString usageText = qtTrId("cli.travel.usage");
    if (parser.isSet(help)) {
        out << usageText << u"\n\n"_s << parser.helpText();
        out.flush();
        return 0;
    }
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0);
    const std::optional<TripMode> modeValue =
        parser.isSet(mode) ? Wire::enumFromName<TripMode>(parser.value(mode).trimmed()) : std::nullopt;
    std::optional<double> rateValue;
    if (parser.isSet(rate)) {
        bool ok = false;
        rateValue = QString(parser.value(rate)).replace(u',', u'.').trimmed().toDouble(&ok);
        if (!ok || !std::isfinite(*rateValue) || *rateValue < 0) {
            return Cli::usage(err, usageText);
        }
    }
    const bool known = positional.size() == 1 && ((action == u"show" && !parser.isSet(rate) && !parser.isSet(mode)) ||
                                                  (action == u"set" && (rateValue || modeValue)));
    if (!known || (parser.isSet(mode) && !modeValue)) {
        return Cli::usage(err, usageText);
    }
    CliSession session;
    if (!session.open(err)) {
        return 1;
    }
    AppStore &store = session.store();
    TravelSettings settings = store.travelSettings();
    if (action == u"set") {
        if (rateValue) {
            settings.ratePerKm = *rateValue;
        }
        if (modeValue) {
            settings.defaultMode = *modeValue;
        }
        if (!runBlocking(store.setTravelSettings(settings))) {
            return session.failed(err);
        }
        settings = store.travelSettings();
    }
    if (Cli::wantsJson(parser)) {
        Cli::printJson(out, QJsonObject{{u"rate_per_km"_s, settings.ratePerKm},
                                        {u"default_mode"_s, Wire::enumName(settings.defaultMode)},
                                        {u"detect"_s, settings.detect}});
        return 0;
    }
    //% "Rate per kilometre: %1. Usually travel by: %2."
    out << qtTrId("cli.travel.show")
               .arg(formatMoney(settings.ratePerKm, store.currency()), Wire::enumName(settings.defaultMode))
        << Qt::endl;
    return 0;
}
