#include "servercommand.h"

#include "app/startup.h"
#include "backend/runblocking.h"

#include <QCommandLineParser>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

constexpr int notRunningCode = 3;

QString stateName(LocalServer::State state)
{
    switch (state) {
    case LocalServer::State::Stopped:
        return u"stopped"_s;
    case LocalServer::State::Starting:
        return u"starting"_s;
    case LocalServer::State::Running:
        return u"running"_s;
    }
    return {};
}

QJsonValue orNull(qint64 pid)
{
    return pid != 0 ? QJsonValue(pid) : QJsonValue();
}

QJsonValue orNull(const QUrl &url)
{
    return url.isEmpty() ? QJsonValue() : QJsonValue(url.toString());
}

void printJson(QTextStream &out, const QJsonObject &object)
{
    out << QJsonDocument(object).toJson(QJsonDocument::Indented);
    out.flush();
}

// Where the status leaves off for a person: the folder, and a word when Morvane itself talks to
// another backend, since then this server's state does not matter to it.
void printContext(QTextStream &out, const LocalServer &server, const Config &config)
{
    //% "Data folder: %1"
    out << qtTrId("cli.server.dataDir").arg(server.dataDir()) << u'\n';
    if (!config.usesLocalServer()) {
        //% "Morvane uses %1 (%2), not the local backend."
        out << qtTrId("cli.server.notInUse").arg(config.supabaseURL.toString(), Config::sourceName(config.urlSource))
            << u'\n';
    }
    out.flush();
}

QJsonObject statusJson(const LocalServer &server, const LocalServer::Status &status, const Config &config)
{
    return {
        {u"state"_s, stateName(status.state)},   {u"running"_s, status.state == LocalServer::State::Running},
        {u"url"_s, orNull(status.url)},          {u"pid"_s, orNull(status.pid)},
        {u"data_dir"_s, server.dataDir()},       {u"log"_s, server.logPath()},
        {u"in_use"_s, config.usesLocalServer()},
    };
}

QString statusLine(const LocalServer::Status &status)
{
    switch (status.state) {
    case LocalServer::State::Running:
        //% "The local backend is running at %1 (process %2)."
        return qtTrId("cli.server.running").arg(status.url.toString()).arg(status.pid);
    case LocalServer::State::Starting:
        //% "The local backend (process %1) is starting and does not answer yet."
        return qtTrId("cli.server.starting").arg(status.pid);
    case LocalServer::State::Stopped:
        break;
    }
    //% "The local backend is not running."
    return qtTrId("cli.server.stopped");
}

int showStatus(const LocalServer &server, bool json, QTextStream &out)
{
    const LocalServer::Status status = runBlocking(server.status());
    const Config config = Config::current();
    if (json) {
        printJson(out, statusJson(server, status, config));
    } else {
        out << statusLine(status) << u'\n';
        printContext(out, server, config);
    }
    return status.state == LocalServer::State::Running ? 0 : notRunningCode;
}

int start(const LocalServer &server, bool json, QTextStream &out)
{
    const LocalServer::Address address = runBlocking(server.ensureRunning());
    const Config config = Config::current();
    if (json) {
        const LocalServer::Status status{LocalServer::State::Running, address.pid, address.url, address.anonKey};
        QJsonObject object = statusJson(server, status, config);
        object.insert(u"started"_s, address.started);
        printJson(out, object);
        return 0;
    }
    if (address.started) {
        //% "Started the local backend at %1 (process %2)."
        out << qtTrId("cli.server.started").arg(address.url.toString()).arg(address.pid) << u'\n';
    } else {
        out << statusLine({LocalServer::State::Running, address.pid, address.url, address.anonKey}) << u'\n';
    }
    printContext(out, server, config);
    return 0;
}

int stop(const LocalServer &server, bool json, QTextStream &out)
{
    const qint64 pid = runBlocking(server.stop());
    if (json) {
        printJson(out, {{u"stopped"_s, pid != 0}, {u"pid"_s, orNull(pid)}, {u"data_dir"_s, server.dataDir()}});
        return 0;
    }
    if (pid != 0) {
        //% "Stopped the local backend (process %1)."
        out << qtTrId("cli.server.stoppedNow").arg(pid) << Qt::endl;
    } else {
        out << qtTrId("cli.server.stopped") << Qt::endl;
    }
    return 0;
}

} // namespace

int runServerCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    const QCommandLineOption json(u"json"_s, qtTrId("cli.option.json"));
    parser.addOption(json);
    //% "start, stop or status"
    parser.addPositionalArgument(u"action"_s, qtTrId("cli.server.action"));
    if (!parser.parse(arguments)) {
        err << parser.errorText() << Qt::endl;
        return 2;
    }
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0);
    if (positional.size() != 1 || !QStringList{u"start"_s, u"stop"_s, u"status"_s}.contains(action)) {
        //% "Usage: morvane server start|stop|status [--json]"
        err << qtTrId("cli.server.usage") << Qt::endl;
        return 2;
    }

    const LocalServer server = Startup::localServer();
    try {
        if (action == u"status") {
            return showStatus(server, parser.isSet(json), out);
        }
        if (action == u"start") {
            return start(server, parser.isSet(json), out);
        }
        return stop(server, parser.isSet(json), out);
    } catch (const LocalServerError &error) {
        err << error.message() << Qt::endl;
        return 1;
    }
}
