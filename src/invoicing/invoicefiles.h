#pragma once

#include <QString>

// The names under which invoice PDFs are written.
namespace InvoiceFiles {

// The live preview, rewritten on every change.
QString previewFileName();

// An exported or stored invoice: "morvane-invoice-2025-0042.pdf". Characters that are not safe
// in a file or storage name become "-"; an empty number gives "morvane-invoice.pdf".
QString exportFileName(const QString &number);

} // namespace InvoiceFiles
