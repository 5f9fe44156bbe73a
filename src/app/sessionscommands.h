#pragma once

#include <QStringList>

class QTextStream;

// `morvane sessions list|scan|map|ignore|reimport|track`: the coding-agent sessions on this
// machine, read from their local logs. Listing, mapping and ignoring need neither a backend nor a
// signed-in user; `scan` (and `reimport` when someone is signed in) logs bursts through the store.
int runSessionsCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
