#pragma once

// The desktop application: the window, the tray and the floating timer over the same stores the
// command line uses. Started by `morvane` without a command.
class QQmlEngine;

namespace DesktopApp {

// Lets `engine` find the application's QML module.
void prepareEngine(QQmlEngine &engine);

// Whether these arguments ask for the window rather than a command.
[[nodiscard]] bool wanted(int argc, char *argv[]);

// Runs the application until it quits; a second start hands its arguments to the first and ends.
int run(int argc, char *argv[]);

} // namespace DesktopApp
