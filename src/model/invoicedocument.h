#pragma once

#include "model/invoicedraft.h"
#include "model/invoicestyle.h"

// An invoice to render as one JSON document, as `morvane --render-invoice --draft FILE` reads it:
// {"draft": {...}, "metadata": {...}, "style": {...}, "design": "boldDark"}. Only the draft is
// required.
struct InvoiceDocument
{
    InvoiceDraft draft;
    std::optional<InvoiceMetadata> metadata;
    std::optional<InvoiceStyle> style;
    std::optional<QString> design;

    static constexpr std::string_view wireName = "InvoiceDocument";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("draft", &InvoiceDocument::draft),
            field("metadata", &InvoiceDocument::metadata),
            field("style", &InvoiceDocument::style),
            field("design", &InvoiceDocument::design),
        };
    }
    friend bool operator==(const InvoiceDocument &, const InvoiceDocument &) = default;
};
