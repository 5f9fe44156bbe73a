#pragma once

#include "model/invoicedraft.h"
#include "model/invoicestyle.h"

// A realistic invoice of a web studio for previews, `morvane --render-invoice` and benchmarks:
// the same document every time, so that renders can be compared.
namespace SampleInvoice {

InvoiceDraft draft(int lines = 6);
InvoiceStyle style();
// Number, days and client; VAT at 21 % of the draft's lines.
InvoiceMetadata metadata(const InvoiceDraft &draft);

} // namespace SampleInvoice
