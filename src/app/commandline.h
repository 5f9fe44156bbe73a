#pragma once

#include <QStringList>

class QTextStream;

// The `morvane` command line: options and subcommands over the same core as the desktop
// application. Answers the process exit code.
int runCommandLine(const QStringList &arguments, QTextStream &out, QTextStream &err);
