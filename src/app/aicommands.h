#pragma once

#include <QStringList>

class QTextStream;

// `morvane ai show|provider|key|consent`: where model calls go, the user's own vendor keys in the
// keyring (read from standard input, never from the command line, and never printed) and the
// consent given or refused per route. Needs neither a backend nor a signed-in user.
int runAICommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
