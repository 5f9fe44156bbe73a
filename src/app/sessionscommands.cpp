#include "sessionscommands.h"

#include "app/clisession.h"
#include "app/startup.h"
#include "app/storesessionlogsink.h"
#include "backend/runblocking.h"
#include "sessions/claudewatcher.h"
#include "sessions/sessionjson.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QTextStream>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QString duration(qint64 seconds)
{
    return u"%1:%2:%3"_s.arg(seconds / 3600)
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

QString local(const QDateTime &at)
{
    return at.toLocalTime().toString(u"yyyy-MM-dd HH:mm"_s);
}

// Sessions grouped by working directory, the directory with the latest work first.
void printGrouped(const QList<ParsedSession> &sessions, QTextStream &out)
{
    QStringList order;
    QHash<QString, QList<ParsedSession>> groups;
    for (const ParsedSession &session : sessions) {
        if (!groups.contains(session.cwd)) {
            order.append(session.cwd);
        }
        groups[session.cwd].append(session);
    }
    for (const QString &cwd : order) {
        const QList<ParsedSession> &group = groups[cwd];
        qint64 active = 0;
        for (const ParsedSession &session : group) {
            active += session.activeSeconds;
        }
        //% "%1 · sessions: %2 · active %3"
        out << qtTrId("cli.sessions.group").arg(cwd, QString::number(group.size()), duration(active)) << '\n';
        for (const ParsedSession &session : group) {
            //% "%1 · %2 to %3 · active %4 · prompts: %5"
            out << u"  "_s
                << qtTrId("cli.sessions.session")
                       .arg(session.sessionId, local(session.startedAt), local(session.endedAt),
                            duration(session.activeSeconds), QString::number(session.promptCount))
                << '\n';
            const QList<SessionSegment> bursts =
                session.segments.isEmpty() ? ClaudeWatcher::fallbackSingleSegment(session) : session.segments;
            for (const SessionSegment &burst : bursts) {
                //% "%1. %2 to %3 · active %4 · prompts: %5 · %6"
                out << u"    "_s
                    << qtTrId("cli.sessions.burst")
                           .arg(QString::number(burst.index + 1), local(burst.startedAt), local(burst.endedAt),
                                duration(burst.activeSeconds), QString::number(burst.promptCount), burst.title)
                    << '\n';
            }
        }
    }
}

int listSessions(const QCommandLineParser &parser, const QCommandLineOption &json, const QCommandLineOption &days,
                 QTextStream &out, QTextStream &err)
{
    int recentDays = ClaudeWatcher::listRecentDays;
    if (parser.isSet(days)) {
        bool ok = false;
        recentDays = parser.value(days).toInt(&ok);
        // A day count past this would reach before the epoch; no log is that old.
        if (!ok || recentDays <= 0 || recentDays > 36500) {
            //% "--days takes a whole number of days from 1 to 36500."
            err << qtTrId("cli.sessions.err.days") << Qt::endl;
            return 2;
        }
    }

    const QSettings settings;
    const QString projectsDir = ClaudeWatcher::defaultProjectsDir();
    QList<ParsedSession> sessions =
        ClaudeWatcher::enumerateSessions(projectsDir, ClaudeWatcher::idleGapSeconds(settings), recentDays);
    std::stable_sort(sessions.begin(), sessions.end(),
                     [](const ParsedSession &a, const ParsedSession &b) { return a.endedAt > b.endedAt; });

    if (parser.isSet(json)) {
        out << QJsonDocument(SessionJson::toJson(sessions)).toJson(QJsonDocument::Indented);
        out.flush();
        return 0;
    }
    if (sessions.isEmpty()) {
        //% "No Claude sessions parsed yet"
        out << qtTrId("cli.sessions.none") << '\n';
        //% "Looked for logs changed in the last %1 days in %2."
        out << qtTrId("cli.sessions.where").arg(QString::number(recentDays), projectsDir) << Qt::endl;
        return 0;
    }
    printGrouped(sessions, out);
    out.flush();
    return 0;
}

QJsonObject resultJson(const ScanResult &result, const QList<PendingPath> &pending, const QString &scanError)
{
    QJsonArray paths;
    for (const PendingPath &path : pending) {
        paths.append(QJsonObject{{u"cwd"_s, path.cwd},
                                 {u"sessionCount"_s, path.sessionCount},
                                 {u"totalActiveSeconds"_s, path.totalActiveSeconds}});
    }
    QJsonObject json{{u"foundSessions"_s, result.foundSessions},
                     {u"loggedSessions"_s, result.loggedSessions},
                     {u"loggedSeconds"_s, result.loggedSeconds},
                     {u"loggedMinutes"_s, double(result.loggedSeconds) / 60.0},
                     {u"failedBursts"_s, result.failedBursts},
                     {u"pendingSessions"_s, result.pendingSessions},
                     {u"pendingPaths"_s, paths},
                     {u"scannedAt"_s, result.scannedAt.toUTC().toString(Qt::ISODateWithMs)}};
    if (!scanError.isEmpty()) {
        json.insert(u"scanError"_s, scanError);
    }
    return json;
}

// The figures of one scan; a burst that failed makes the command fail, so that a script notices.
int printResult(const ClaudeWatcher &watcher, const ScanResult &result, bool json, QTextStream &out, QTextStream &err)
{
    if (json) {
        Cli::printJson(out, resultJson(result, watcher.pendingPaths(), watcher.scanError()));
    } else {
        //% "Sessions seen: %1 · work bursts logged: %2 · time logged: %3 (%4 minutes) · failed: %5"
        out << qtTrId("cli.sessions.scanned")
                   .arg(QString::number(result.foundSessions), QString::number(result.loggedSessions),
                        duration(result.loggedSeconds),
                        QString::number(std::round(double(result.loggedSeconds) / 60.0 * 100.0) / 100.0),
                        QString::number(result.failedBursts))
            << '\n';
        for (const PendingPath &path : watcher.pendingPaths()) {
            //% "Not mapped to a project: %1 · sessions: %2 · active %3"
            out << qtTrId("cli.sessions.pending")
                       .arg(path.cwd, QString::number(path.sessionCount), duration(path.totalActiveSeconds))
                << '\n';
        }
        out.flush();
    }
    if (!watcher.scanError().isEmpty()) {
        err << watcher.scanError() << Qt::endl;
    }
    return result.failedBursts > 0 ? 1 : 0;
}

// The command is registered as needing no backend, since most of its actions only read logs and
// settings; the actions that log start the local backend (when none is configured) themselves.
bool ensureBackend(QTextStream &err)
{
    try {
        runBlocking(Startup::ensureBackend());
        return true;
    } catch (const LocalServerError &error) {
        err << error.message() << Qt::endl;
        return false;
    }
}

// Whether a session is kept on this machine, asked without a word: commands that also work
// without one use it to choose.
bool signedIn(CliSession &session)
{
    runBlocking(session.auth().restore());
    return session.auth().isSignedIn();
}

} // namespace

int runSessionsCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    const QCommandLineOption json(u"json"_s, qtTrId("cli.option.json"));
    //% "Sessions whose log changed in the last N days (30 when not given)."
    const QCommandLineOption days(u"days"_s, qtTrId("cli.sessions.option.days"), u"N"_s);
    //% "Every session (with reimport)."
    const QCommandLineOption all(u"all"_s, qtTrId("cli.sessions.option.all"));
    parser.addOptions({json, days, all});
    parser.addPositionalArgument(u"action"_s, qtTrId("cli.command.sessions"));
    //% "Usage: morvane sessions list [--days N] [--json] | scan [--json] | map <dir> <project-id> | ignore <dir> |
    // reimport <session>|--all | track on|off"
    const QString usage = qtTrId("cli.sessions.usage");
    if (!parser.parse(arguments)) {
        err << parser.errorText() << '\n' << usage << Qt::endl;
        return 2;
    }
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0);
    const qsizetype count = positional.size();
    const bool wellFormed = (action == u"list" && count == 1) || (action == u"scan" && count == 1) ||
                            (action == u"map" && count == 3) || (action == u"ignore" && count == 2) ||
                            (action == u"track" && count == 2 && (positional[1] == u"on" || positional[1] == u"off")) ||
                            (action == u"reimport" && (count == 2) != parser.isSet(all) && count <= 2);
    const bool optionsFit = (action == u"list" || !parser.isSet(days)) &&
                            (action == u"list" || action == u"scan" || !parser.isSet(json)) &&
                            (action == u"reimport" || !parser.isSet(all));
    if (!wellFormed || !optionsFit) {
        err << usage << Qt::endl;
        return 2;
    }
    if (action == u"list") {
        return listSessions(parser, json, days, out, err);
    }

    ClaudeWatcher watcher(std::make_shared<QSettings>());
    if (action == u"scan") {
        if (!ensureBackend(err)) {
            return 1;
        }
        CliSession session;
        if (!session.open(err)) {
            return 1;
        }
        const auto sink = std::make_shared<StoreSessionLogSink>(session.auth(), session.store());
        watcher.setSink(sink, false);
        const ScanResult result = runBlocking(watcher.scanNow());
        return printResult(watcher, result, parser.isSet(json), out, err);
    }
    if (action == u"track") {
        const bool on = positional[1] == u"on";
        watcher.setEnabled(on);
        if (on) {
            //% "Claude sessions are tracked: every minute the new work bursts of mapped folders are logged."
            out << qtTrId("cli.sessions.trackOn") << Qt::endl;
        } else {
            //% "Claude sessions are no longer tracked."
            out << qtTrId("cli.sessions.trackOff") << Qt::endl;
        }
        return 0;
    }
    if (action == u"map") {
        watcher.mapPath(positional[1], positional[2]);
        //% "%1 is mapped to project %2."
        out << qtTrId("cli.sessions.mapped").arg(positional[1], positional[2]) << Qt::endl;
        return 0;
    }
    if (action == u"ignore") {
        const qsizetype before = watcher.processedKeys().size();
        runBlocking(watcher.dismissPath(positional[1]));
        //% "Ignored %1: %2 sessions there will not be logged."
        out << qtTrId("cli.sessions.ignored")
                   .arg(positional[1], QString::number(watcher.processedKeys().size() - before))
            << Qt::endl;
        return 0;
    }
    // reimport: forgetting needs no backend; with a session kept here the bursts are logged at once.
    const bool canLog = [] {
        CliSession probe;
        return signedIn(probe);
    }();
    if (canLog && !ensureBackend(err)) {
        return 1;
    }
    // Made after the backend is known: a session keeps the client it was made with.
    CliSession session;
    std::shared_ptr<StoreSessionLogSink> sink;
    if (canLog) {
        if (!session.open(err)) {
            return 1;
        }
        sink = std::make_shared<StoreSessionLogSink>(session.auth(), session.store());
        watcher.setSink(sink, false);
    }
    if (parser.isSet(all)) {
        const ScanResult result = runBlocking(watcher.reimportAll());
        if (canLog) {
            return printResult(watcher, result, false, out, err);
        }
        //% "Every session will be logged again by the next scan."
        out << qtTrId("cli.sessions.reimportAll") << Qt::endl;
        return 0;
    }
    const QSettings settings;
    const QList<ParsedSession> sessions = ClaudeWatcher::enumerateSessions(
        watcher.projectsDir(), ClaudeWatcher::idleGapSeconds(settings), ClaudeWatcher::scanRecentDays);
    const auto found = std::find_if(sessions.cbegin(), sessions.cend(),
                                    [&](const ParsedSession &parsed) { return parsed.sessionId == positional[1]; });
    if (found == sessions.cend()) {
        //% "No session %1 among the logs of the last 60 days."
        err << qtTrId("cli.sessions.err.unknownSession").arg(positional[1]) << Qt::endl;
        return 1;
    }
    runBlocking(watcher.reimportSession(*found));
    const QString projectId = watcher.pathMappings().value(found->cwd);
    if (!canLog || projectId.isEmpty()) {
        //% "Session %1 will be logged again by the next scan."
        out << qtTrId("cli.sessions.reimportOne").arg(positional[1]) << Qt::endl;
        return 0;
    }
    const qsizetype bursts = std::max<qsizetype>(found->segments.size(), 1);
    const int logged = runBlocking(watcher.logSession(*found, projectId));
    //% "Session %1 logged again: %2 of %3 work bursts."
    out << qtTrId("cli.sessions.reimportLogged").arg(positional[1], QString::number(logged), QString::number(bursts))
        << Qt::endl;
    if (!watcher.scanError().isEmpty()) {
        err << watcher.scanError() << Qt::endl;
    }
    return logged == bursts ? 0 : 1;
}
