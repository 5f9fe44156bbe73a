#pragma once

#include <QStringList>

class QTextStream;

// `morvane recap` and `morvane standup`: the weekly recap and the daily stand-up of the signed-in
// user's own work, as text or with --json, saying whether the model wrote it.
int runRecapCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
int runStandupCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
