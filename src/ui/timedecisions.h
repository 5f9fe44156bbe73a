#pragma once

#include "model/clock.h"
#include "store/idlewatcher.h"

class DesktopShell;

// The window's idle watcher: fed by the desktop's idle and lock signals, following the shell's
// store, and saying its stops and nudges through desktop notifications. Owned by the shell.
IdleWatcher *createTimeDecisions(DesktopShell &shell, const Clock &clock);
