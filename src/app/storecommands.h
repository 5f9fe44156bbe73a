#pragma once

#include <QStringList>

class QTextStream;

// The data commands over the signed-in user's store. Each prints readable text, or JSON with
// --json; errors print the store's message and answer a non-zero exit code.
int runProjectsCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
int runTasksCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
int runTeamsCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
int runTimerCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
int runLogCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
int runEntriesCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
int runPriceCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
int runInvoiceCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
int runClientsCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
int runEarningsCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
