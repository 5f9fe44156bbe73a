#pragma once

#include <QStringList>

class QTextStream;

// `morvane trips list|add|edit|rm|route|export` and `morvane travel show|set`.
int runTripsCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
int runTravelCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
