#include "store/invoicedocuments.h"

#include "store/appstore.h"
#include "store/invoicecomposer.h"

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> nonEmpty(const QString &text)
{
    const QString trimmed = text.trimmed();
    return trimmed.isEmpty() ? std::nullopt : std::optional<QString>(trimmed);
}

// The sender's details and look from the house style. The profile's name stands for the sender
// until the style names the company.
void applyHouseStyle(const AppStore &store, InvoiceDocument &document)
{
    if (const std::optional<Profile> &profile = store.profile(); profile && profile->displayName) {
        document.metadata->senderName = profile->displayName;
    }
    const std::optional<InvoiceTemplate> house = store.defaultInvoiceTemplate();
    if (!house) {
        return;
    }
    document.style = house->style;
    document.design = house->style.htmlTemplate;
    if (const std::optional<QString> company = nonEmpty(house->style.company.value_or(QString()))) {
        document.metadata->senderName = company;
    }
}

} // namespace

namespace InvoiceDocuments {

HouseTerms houseTerms(const AppStore &store)
{
    const InvoiceStyle house = store.defaultInvoiceTemplate().value_or(InvoiceTemplate{}).style;
    HouseTerms terms;
    terms.paymentDays = std::clamp(house.paymentTermsDays.value_or(terms.paymentDays), 0, 365);
    terms.vatPercent = std::clamp(house.vatRate.value_or(0.0), 0.0, 100.0);
    return terms;
}

DraftLine draftLine(const Earnings::BuiltLine &built)
{
    DraftLine line;
    line.taskId = built.taskId;
    line.title = built.title;
    line.hours = built.quantity;
    line.amount = built.amount;
    line.rate = built.unitPrice;
    line.unit = built.unit.value_or(QString());
    line.description = built.description;
    return line;
}

InvoiceDocument composed(const AppStore &store, const InvoiceComposer &composer, const QString &number,
                         const QDate &issued, const QDate &due, const QString &notes)
{
    InvoiceDocument document;
    InvoiceDraft &draft = document.draft;
    QStringList names;
    for (const QString &projectId : composer.projectIds()) {
        if (const std::optional<Project> project = store.project(projectId)) {
            names << project->name;
        }
    }
    draft.projectName = names.join(u", "_s);
    if (composer.from().isValid()) {
        draft.from = composer.from().toString(Qt::ISODate);
    }
    if (composer.to().isValid()) {
        draft.to = composer.to().toString(Qt::ISODate);
    }
    draft.currency = composer.currency();
    draft.coveredEntryIds = composer.coveredEntryIds();
    for (const Earnings::BuiltLine &built : composer.built().lines) {
        draft.lines << draftLine(built);
    }

    InvoiceMetadata &metadata = document.metadata.emplace();
    metadata.number = number;
    metadata.issued = issued.toString(Qt::ISODate);
    if (due.isValid()) {
        metadata.due = due.toString(Qt::ISODate);
    }
    metadata.clientName = nonEmpty(composer.clientName());
    metadata.clientEmail = nonEmpty(composer.clientEmail());
    metadata.clientAddress = nonEmpty(composer.clientAddress());
    metadata.notes = nonEmpty(notes);
    metadata.vatAmount = composer.vatAmount();
    metadata.vatGroups = composer.vat().groups;
    if (metadata.vatGroups.size() == 1) {
        metadata.vatRate = metadata.vatGroups.first().percent;
    }
    applyHouseStyle(store, document);
    return document;
}

InvoiceDocument stored(const AppStore &store, const Invoice &invoice, const QList<InvoiceLine> &lines)
{
    InvoiceDocument document;
    InvoiceDraft &draft = document.draft;
    if (invoice.projectId) {
        if (const std::optional<Project> project = store.project(*invoice.projectId)) {
            draft.projectName = project->name;
        }
    }
    draft.currency = invoice.currency;
    for (const InvoiceLine &stored : lines) {
        DraftLine line;
        line.taskId = stored.taskId;
        line.title = stored.title;
        line.hours = stored.quantity;
        line.amount = stored.amount;
        line.rate = stored.unitPrice;
        line.unit = stored.unit.value_or(QString());
        line.description = stored.description;
        draft.lines << line;
    }
    InvoiceMetadata &metadata = document.metadata.emplace();
    metadata.number = invoice.number;
    metadata.issued = invoice.issuedAt;
    metadata.due = invoice.dueAt;
    metadata.clientName = invoice.clientName;
    metadata.clientEmail = invoice.clientEmail;
    metadata.clientAddress = invoice.clientAddress;
    metadata.notes = invoice.notes;
    metadata.vatAmount = invoice.vatAmount;
    if (const std::optional<double> percent = Earnings::inferVatPercent(invoice.subtotal, invoice.vatAmount)) {
        metadata.vatRate = *percent;
        metadata.vatGroups = {InvoiceVatGroup{*percent, invoice.subtotal, invoice.vatAmount}};
    }
    applyHouseStyle(store, document);
    return document;
}

} // namespace InvoiceDocuments
