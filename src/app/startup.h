#pragma once

#include "backend/config.h"
#include "backend/localserver.h"

#include <QCoroTask>

// What has to happen before anything talks to the backend: with no backend configured, the
// user's own morvane-server is started (or found running) and its live address becomes the
// current configuration.
namespace Startup {

// The user's local backend: data under the XDG data folder, the program beside this one, and
// the port from MORVANE_SERVER_PORT when set (0 picks a free one).
LocalServer localServer();

// `config` with the local server's live address and key in place of what it left to the local
// server; a configuration that names another backend comes back unchanged and starts nothing.
// Throws LocalServerError.
QCoro::Task<Config> liveBackend(Config config, LocalServer server);

// liveBackend() for the current configuration, which it then replaces.
QCoro::Task<Config> ensureBackend();

} // namespace Startup
