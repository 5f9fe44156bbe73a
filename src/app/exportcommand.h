#pragma once

#include <QStringList>

class QTextStream;

// `morvane export entries|invoices --from DAY --to DAY [--out FILE]`: a period's time entries or
// invoices as CSV for an accountant, on standard output or into a file.
int runExportCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);
