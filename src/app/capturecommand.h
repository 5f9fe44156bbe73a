#pragma once

#include <QStringList>

class QTextStream;

// `morvane add "<text>"`: one sentence becomes projects, tasks, logged time or a timer action.
int runAddCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
