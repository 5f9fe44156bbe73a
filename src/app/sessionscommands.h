#pragma once

#include <QStringList>

class QTextStream;

// `morvane sessions list [--days N] [--json]`: the coding-agent sessions on this machine, read
// from their local logs; needs neither a backend nor a signed-in user.
int runSessionsCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
