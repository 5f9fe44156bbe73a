#pragma once

#include "model/wire.h"

// One line of an invoice being composed, as the preview and the PDF show it.
struct DraftLine
{
    std::optional<QString> taskId;
    QString title;
    double hours = 0; // the quantity, in `unit`
    double amount = 0;
    double rate = 0; // price per unit
    QString unit;
    QList<QString> entryIds;
    bool included = true;
    std::optional<QString> description;

    static constexpr std::string_view wireName = "DraftLine";
    static constexpr auto wireFields()
    {
        using Wire::field;
        using Wire::FieldFlag;
        return std::tuple{
            field("task_id", &DraftLine::taskId),
            field("title", &DraftLine::title),
            field("hours", &DraftLine::hours, FieldFlag::DefaultWhenAbsent),
            field("amount", &DraftLine::amount),
            field("rate", &DraftLine::rate, FieldFlag::DefaultWhenAbsent),
            field("unit", &DraftLine::unit, FieldFlag::DefaultWhenAbsent),
            field("entry_ids", &DraftLine::entryIds, FieldFlag::DefaultWhenAbsent),
            field("included", &DraftLine::included, FieldFlag::DefaultWhenAbsent),
            field("description", &DraftLine::description),
        };
    }
    friend bool operator==(const DraftLine &, const DraftLine &) = default;
};

// What an invoice is drawn from: the composed lines of one project and period.
struct InvoiceDraft
{
    QString projectName;
    std::optional<QString> from; // "yyyy-MM-dd"
    std::optional<QString> to;
    QString currency = QStringLiteral("EUR");
    QList<DraftLine> lines;
    QString prose;
    QList<QString> coveredEntryIds;

    static constexpr std::string_view wireName = "InvoiceDraft";
    static constexpr auto wireFields()
    {
        using Wire::field;
        using Wire::FieldFlag;
        return std::tuple{
            field("project_name", &InvoiceDraft::projectName, FieldFlag::DefaultWhenAbsent),
            field("from", &InvoiceDraft::from),
            field("to", &InvoiceDraft::to),
            field("currency", &InvoiceDraft::currency, FieldFlag::DefaultWhenAbsent),
            field("lines", &InvoiceDraft::lines),
            field("prose", &InvoiceDraft::prose, FieldFlag::DefaultWhenAbsent),
            field("covered_entry_ids", &InvoiceDraft::coveredEntryIds, FieldFlag::DefaultWhenAbsent),
        };
    }
    friend bool operator==(const InvoiceDraft &, const InvoiceDraft &) = default;
};

// VAT of the lines that share one percentage.
struct InvoiceVatGroup
{
    double percent = 0;
    double base = 0;
    double amount = 0;

    static constexpr std::string_view wireName = "InvoiceVatGroup";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("percent", &InvoiceVatGroup::percent),
            field("base", &InvoiceVatGroup::base),
            field("amount", &InvoiceVatGroup::amount),
        };
    }
    friend bool operator==(const InvoiceVatGroup &, const InvoiceVatGroup &) = default;
};

// The header data of a rendered invoice: number, days, bill-to and VAT.
struct InvoiceMetadata
{
    QString number;
    QString issued; // "yyyy-MM-dd"
    std::optional<QString> due;
    std::optional<QString> clientName;
    std::optional<QString> clientEmail;
    std::optional<QString> clientAddress;
    std::optional<QString> notes;
    std::optional<double> vatRate; // percent, when all lines share one
    double vatAmount = 0;
    QList<InvoiceVatGroup> vatGroups;
    std::optional<QString> senderName;
    // The language the invoice is written in ("nl", "de", ...); absent means the interface's.
    std::optional<QString> language;

    static constexpr std::string_view wireName = "InvoiceMetadata";
    static constexpr auto wireFields()
    {
        using Wire::field;
        using Wire::FieldFlag;
        return std::tuple{
            field("number", &InvoiceMetadata::number),
            field("issued", &InvoiceMetadata::issued),
            field("due", &InvoiceMetadata::due),
            field("client_name", &InvoiceMetadata::clientName),
            field("client_email", &InvoiceMetadata::clientEmail),
            field("client_address", &InvoiceMetadata::clientAddress),
            field("notes", &InvoiceMetadata::notes),
            field("vat_rate", &InvoiceMetadata::vatRate),
            field("vat_amount", &InvoiceMetadata::vatAmount, FieldFlag::DefaultWhenAbsent),
            field("vat_groups", &InvoiceMetadata::vatGroups, FieldFlag::DefaultWhenAbsent),
            field("sender_name", &InvoiceMetadata::senderName),
            field("language", &InvoiceMetadata::language),
        };
    }
    friend bool operator==(const InvoiceMetadata &, const InvoiceMetadata &) = default;
};
