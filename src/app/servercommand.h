#pragma once

#include <QStringList>

class QTextStream;

// `morvane server start|stop|status [--json]`: the local backend by hand. `status` exits with 0
// while the server runs and 3 when it does not, as service managers do; failures exit with 1.
int runServerCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
