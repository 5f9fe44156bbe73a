#include "startup.h"

#include <QProcessEnvironment>

using namespace Qt::StringLiterals;

namespace Startup {

LocalServer localServer()
{
    LocalServer server;
    // The server's own default port is taken when a second account on this machine runs its
    // backend too; tests use a free one.
    const QString port = QProcessEnvironment::systemEnvironment().value(u"MORVANE_SERVER_PORT"_s).trimmed();
    if (!port.isEmpty()) {
        server.setArguments({u"--port"_s, port});
    }
    return server;
}

QCoro::Task<Config> liveBackend(Config config, LocalServer server)
{
    if (!config.usesLocalServer()) {
        co_return config;
    }
    const LocalServer::Address address = co_await server.ensureRunning();
    // server.json may have been read before the server (re)wrote it, so the live answer wins.
    config.supabaseURL = address.url;
    if (config.keySource == Config::Source::LocalServer) {
        config.supabaseAnonKey = address.anonKey;
    }
    co_return config;
}

QCoro::Task<Config> ensureBackend()
{
    const Config current = Config::current();
    if (!current.usesLocalServer()) {
        // Replacing it unchanged would make every holder of a client rebuild it for nothing.
        co_return current;
    }
    const Config live = co_await liveBackend(current, localServer());
    Config::setCurrent(live);
    co_return live;
}

} // namespace Startup
