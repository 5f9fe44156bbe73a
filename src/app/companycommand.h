#pragma once

#include <QString>
#include <QStringList>

class QTextStream;

// `morvane company show|set`: the sender details and invoice style new invoices are drawn in.
int runCompanyCommand(const QStringList &arguments, QTextStream &out, QTextStream &err);

namespace Cli {
// Whether `name` is a design an invoice can be drawn in; an unknown one is printed with the list.
[[nodiscard]] bool knownDesign(const QString &name, QTextStream &err);
} // namespace Cli
