#pragma once

#include <QStringList>

class QTextStream;

// `morvane auth signup|signin|signout|status|switch|accounts`: the account commands, over the
// same AuthStore and secrets the desktop application uses, so a session started here is the
// application's session too. Passwords are read from standard input.
int runAuthCommand(const QStringList &arguments, QTextStream &out, QTextStream &err, QTextStream &in);
