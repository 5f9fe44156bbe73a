#pragma once

#include "model/wire.h"

// Where an invoice stands. Void is final: the backend refuses any change to a void invoice.
enum class InvoiceStatus { Draft, Sent, Paid, Void };

constexpr auto wireNames(InvoiceStatus)
{
    return std::array<std::string_view, 4>{"draft", "sent", "paid", "void"};
}

// A row of `invoices`.
struct Invoice
{
    QString id;
    QString userId;
    std::optional<QString> teamId;
    std::optional<QString> projectId;
    std::optional<QString> templateId;
    QString number;
    QString issuedAt; // "yyyy-MM-dd"
    std::optional<QString> dueAt;
    QString currency;
    double subtotal = 0;
    double vatAmount = 0;
    double total = 0;
    InvoiceStatus status = InvoiceStatus::Draft;
    std::optional<QString> clientName;
    std::optional<QString> clientEmail;
    std::optional<QString> clientAddress;
    std::optional<QString> notes;
    std::optional<QString> coverNote;
    std::optional<QString> pdfPath;
    std::optional<QString> createdAt;
    std::optional<QString> updatedAt;

    // Every invoice but a void one holds its time entries and trips.
    [[nodiscard]] bool isLive() const { return status != InvoiceStatus::Void; }

    static constexpr std::string_view wireName = "Invoice";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("id", &Invoice::id),
            field("user_id", &Invoice::userId),
            field("team_id", &Invoice::teamId),
            field("project_id", &Invoice::projectId),
            field("template_id", &Invoice::templateId),
            field("number", &Invoice::number),
            field("issued_at", &Invoice::issuedAt),
            field("due_at", &Invoice::dueAt),
            field("currency", &Invoice::currency),
            field("subtotal", &Invoice::subtotal),
            field("vat_amount", &Invoice::vatAmount),
            field("total", &Invoice::total),
            field("status", &Invoice::status),
            field("client_name", &Invoice::clientName),
            field("client_email", &Invoice::clientEmail),
            field("client_address", &Invoice::clientAddress),
            field("notes", &Invoice::notes),
            field("cover_note", &Invoice::coverNote),
            field("pdf_path", &Invoice::pdfPath),
            field("created_at", &Invoice::createdAt),
            field("updated_at", &Invoice::updatedAt),
        };
    }
    friend bool operator==(const Invoice &, const Invoice &) = default;
};

// The body of a new `invoices` row. The status goes as its raw text so that the body is written
// exactly as chosen in the composer.
struct InvoiceInsert
{
    QString userId;
    std::optional<QString> teamId;
    std::optional<QString> projectId;
    std::optional<QString> templateId;
    std::optional<QString> clientId;
    QString number;
    QString issuedAt;
    std::optional<QString> dueAt;
    QString currency;
    double subtotal = 0;
    double vatAmount = 0;
    double total = 0;
    QString status;
    std::optional<QString> clientName;
    std::optional<QString> clientEmail;
    std::optional<QString> clientAddress;
    std::optional<QString> notes;
    std::optional<QString> coverNote;
    std::optional<QString> pdfPath;

    static constexpr std::string_view wireName = "InvoiceInsert";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("user_id", &InvoiceInsert::userId),
            field("team_id", &InvoiceInsert::teamId),
            field("project_id", &InvoiceInsert::projectId),
            field("template_id", &InvoiceInsert::templateId),
            field("client_id", &InvoiceInsert::clientId),
            field("number", &InvoiceInsert::number),
            field("issued_at", &InvoiceInsert::issuedAt),
            field("due_at", &InvoiceInsert::dueAt),
            field("currency", &InvoiceInsert::currency),
            field("subtotal", &InvoiceInsert::subtotal),
            field("vat_amount", &InvoiceInsert::vatAmount),
            field("total", &InvoiceInsert::total),
            field("status", &InvoiceInsert::status),
            field("client_name", &InvoiceInsert::clientName),
            field("client_email", &InvoiceInsert::clientEmail),
            field("client_address", &InvoiceInsert::clientAddress),
            field("notes", &InvoiceInsert::notes),
            field("cover_note", &InvoiceInsert::coverNote),
            field("pdf_path", &InvoiceInsert::pdfPath),
        };
    }
    friend bool operator==(const InvoiceInsert &, const InvoiceInsert &) = default;
};

// A row of `invoice_lines`. `pool_project_id` names the project whose shared price or extras the
// line bills; the billed-state reading depends on it.
struct InvoiceLine
{
    QString id;
    QString invoiceId;
    std::optional<QString> taskId;
    std::optional<QString> poolProjectId;
    QString title;
    std::optional<QString> description;
    double quantity = 0;
    std::optional<QString> unit;
    double unitPrice = 0;
    double amount = 0;
    int orderIndex = 0;
    std::optional<QString> createdAt;

    static constexpr std::string_view wireName = "InvoiceLine";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("id", &InvoiceLine::id),
            field("invoice_id", &InvoiceLine::invoiceId),
            field("task_id", &InvoiceLine::taskId),
            field("pool_project_id", &InvoiceLine::poolProjectId),
            field("title", &InvoiceLine::title),
            field("description", &InvoiceLine::description),
            field("quantity", &InvoiceLine::quantity),
            field("unit", &InvoiceLine::unit),
            field("unit_price", &InvoiceLine::unitPrice),
            field("amount", &InvoiceLine::amount),
            field("order_index", &InvoiceLine::orderIndex),
            field("created_at", &InvoiceLine::createdAt),
        };
    }
    friend bool operator==(const InvoiceLine &, const InvoiceLine &) = default;
};

// The body of a new `invoice_lines` row. Lines go in one bulk insert, and the backend wants every
// object of a bulk insert to carry the same keys, so absent optionals are written as null.
struct InvoiceLineInsert
{
    QString invoiceId;
    std::optional<QString> taskId;
    std::optional<QString> poolProjectId;
    QString title;
    std::optional<QString> description;
    double quantity = 0;
    std::optional<QString> unit;
    double unitPrice = 0;
    double amount = 0;
    int orderIndex = 0;

    static constexpr std::string_view wireName = "InvoiceLineInsert";
    static constexpr auto wireFields()
    {
        using Wire::field;
        using Wire::FieldFlag;
        return std::tuple{
            field("invoice_id", &InvoiceLineInsert::invoiceId),
            field("task_id", &InvoiceLineInsert::taskId, FieldFlag::NullWhenAbsent),
            field("pool_project_id", &InvoiceLineInsert::poolProjectId, FieldFlag::NullWhenAbsent),
            field("title", &InvoiceLineInsert::title),
            field("description", &InvoiceLineInsert::description, FieldFlag::NullWhenAbsent),
            field("quantity", &InvoiceLineInsert::quantity),
            field("unit", &InvoiceLineInsert::unit, FieldFlag::NullWhenAbsent),
            field("unit_price", &InvoiceLineInsert::unitPrice),
            field("amount", &InvoiceLineInsert::amount),
            field("order_index", &InvoiceLineInsert::orderIndex),
        };
    }
    friend bool operator==(const InvoiceLineInsert &, const InvoiceLineInsert &) = default;
};

// A row of `invoice_entries`: one billed time entry.
struct InvoiceEntryLink
{
    QString id;
    QString invoiceId;
    QString timeEntryId;
    std::optional<QString> createdAt;

    static constexpr std::string_view wireName = "InvoiceEntryLink";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("id", &InvoiceEntryLink::id),
            field("invoice_id", &InvoiceEntryLink::invoiceId),
            field("time_entry_id", &InvoiceEntryLink::timeEntryId),
            field("created_at", &InvoiceEntryLink::createdAt),
        };
    }
    friend bool operator==(const InvoiceEntryLink &, const InvoiceEntryLink &) = default;
};

struct InvoiceEntryInsert
{
    QString invoiceId;
    QString timeEntryId;

    static constexpr std::string_view wireName = "InvoiceEntryInsert";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("invoice_id", &InvoiceEntryInsert::invoiceId),
            field("time_entry_id", &InvoiceEntryInsert::timeEntryId),
        };
    }
    friend bool operator==(const InvoiceEntryInsert &, const InvoiceEntryInsert &) = default;
};

// A row of `invoice_trips`: one billed trip.
struct InvoiceTripLink
{
    QString id;
    QString invoiceId;
    QString tripId;

    static constexpr std::string_view wireName = "InvoiceTripLink";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("id", &InvoiceTripLink::id),
            field("invoice_id", &InvoiceTripLink::invoiceId),
            field("trip_id", &InvoiceTripLink::tripId),
        };
    }
    friend bool operator==(const InvoiceTripLink &, const InvoiceTripLink &) = default;
};

struct InvoiceTripInsert
{
    QString invoiceId;
    QString tripId;

    static constexpr std::string_view wireName = "InvoiceTripInsert";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("invoice_id", &InvoiceTripInsert::invoiceId),
            field("trip_id", &InvoiceTripInsert::tripId),
        };
    }
    friend bool operator==(const InvoiceTripInsert &, const InvoiceTripInsert &) = default;
};

// The embedded invoice of a billed-state row. The status stays raw text: a status this client
// does not know must not make the whole billed set unreadable.
struct BilledInvoiceStub
{
    std::optional<QString> status;

    // Only a void invoice releases what it bills; an unknown status still holds it.
    [[nodiscard]] bool isLive() const { return status != QStringLiteral("void"); }

    static constexpr std::string_view wireName = "BilledInvoiceStub";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{field("status", &BilledInvoiceStub::status)};
    }
    friend bool operator==(const BilledInvoiceStub &, const BilledInvoiceStub &) = default;
};

// The embedded task of a billed-state row; its price setting stays raw JSON for the billing rules.
struct BilledTaskStub
{
    std::optional<QString> projectId;
    std::optional<JSONValue> billing;

    static constexpr std::string_view wireName = "BilledTaskStub";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("project_id", &BilledTaskStub::projectId),
            field("billing", &BilledTaskStub::billing),
        };
    }
    friend bool operator==(const BilledTaskStub &, const BilledTaskStub &) = default;
};

struct BilledEntryStub
{
    std::optional<QString> taskId;
    std::optional<BilledTaskStub> task;

    static constexpr std::string_view wireName = "BilledEntryStub";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("task_id", &BilledEntryStub::taskId),
            field("task", &BilledEntryStub::task),
        };
    }
    friend bool operator==(const BilledEntryStub &, const BilledEntryStub &) = default;
};

// One billed time entry with its invoice's status and its task, as the billed-state read embeds them.
struct BilledEntryRow
{
    QString timeEntryId;
    std::optional<BilledInvoiceStub> invoice;
    std::optional<BilledEntryStub> entry;

    static constexpr std::string_view wireName = "BilledEntryRow";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("time_entry_id", &BilledEntryRow::timeEntryId),
            field("invoice", &BilledEntryRow::invoice),
            field("entry", &BilledEntryRow::entry),
        };
    }
    friend bool operator==(const BilledEntryRow &, const BilledEntryRow &) = default;
};

// One invoice line as the billed-state read sees it: which task or pool it billed, and whether
// its invoice still stands.
struct BilledLineRow
{
    std::optional<QString> taskId;
    std::optional<QString> poolProjectId;
    std::optional<BilledTaskStub> task;
    std::optional<BilledInvoiceStub> invoice;

    static constexpr std::string_view wireName = "BilledLineRow";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("task_id", &BilledLineRow::taskId),
            field("pool_project_id", &BilledLineRow::poolProjectId),
            field("task", &BilledLineRow::task),
            field("invoice", &BilledLineRow::invoice),
        };
    }
    friend bool operator==(const BilledLineRow &, const BilledLineRow &) = default;
};
