#pragma once

#include <QStringList>

class QTextStream;

// `morvane calendar add|list|rm|events|import`: the person's calendars and the import of a day's
// events as time. Adding, listing and reading events need no sign-in; importing does.
int runCalendarCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
