#include "app/clisession.h"
#include "app/companycommand.h"
#include "app/storecommands.h"
#include "backend/runblocking.h"
#include "billing/invoicelines.h"
#include "invoicing/invoicehtmlrenderer.h"
#include "invoicing/pdf/invoicepdfrenderer.h"
#include "billing/money.h"
#include "billing/moneyinput.h"
#include "model/isodate.h"
#include "store/invoicecomposer.h"
#include "store/invoicedocuments.h"

#include <QApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSaveFile>
#include <QTextStream>

#include <QCoroNetworkReply>

using namespace Qt::StringLiterals;

namespace {

QString statusText(InvoiceStatus status)
{
    switch (status) {
    case InvoiceStatus::Draft:
        //% "draft"
        return qtTrId("cli.invoice.status.draft");
    case InvoiceStatus::Sent:
        //% "sent"
        return qtTrId("cli.invoice.status.sent");
    case InvoiceStatus::Paid:
        //% "paid"
        return qtTrId("cli.invoice.status.paid");
    case InvoiceStatus::Void:
        //% "void"
        return qtTrId("cli.invoice.status.void");
    }
    return {};
}

QJsonObject invoiceJson(const Invoice &invoice)
{
    return Wire::encode(invoice).toObject();
}

// An invoice by its number (as printed on it), its id or the start of its id.
std::optional<Invoice> findInvoice(const AppStore &store, const QString &reference, QTextStream &err)
{
    if (std::optional<Invoice> byNumber = store.invoiceByNumber(reference)) {
        return byNumber;
    }
    QList<Invoice> matches;
    for (const Invoice &invoice : store.invoices()) {
        if (invoice.id == reference) {
            return invoice;
        }
        if (reference.size() >= 4 && invoice.id.startsWith(reference, Qt::CaseInsensitive)) {
            matches << invoice;
        }
    }
    if (matches.size() == 1) {
        return matches.first();
    }
    if (matches.isEmpty()) {
        //% "No invoice matches %1."
        err << qtTrId("cli.invoice.notFound").arg(reference) << Qt::endl;
    } else {
        //% "Several invoices match %1; give more of the id or the number."
        err << qtTrId("cli.invoice.ambiguous").arg(reference) << Qt::endl;
    }
    return std::nullopt;
}

void printInvoiceRow(QTextStream &out, const Invoice &invoice)
{
    out << invoice.number.leftJustified(12) << u"  "_s << invoice.issuedAt << u"  "_s
        << statusText(invoice.status).leftJustified(6) << u"  "_s
        << formatMoney(invoice.total, invoice.currency).rightJustified(14) << u"  "_s
        << invoice.clientName.value_or(QString()) << u'\n';
}

QCoro::Task<QByteArray> download(QUrl url)
{
    QNetworkAccessManager network;
    std::unique_ptr<QNetworkReply> reply(network.get(QNetworkRequest(url)));
    co_await qCoro(reply.get()).waitForFinished();
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (reply->error() != QNetworkReply::NoError || status / 100 != 2) {
        throw std::runtime_error(reply->errorString().toStdString());
    }
    co_return reply->readAll();
}

int showInvoice(AppStore &store, const Invoice &invoice, bool json, QTextStream &out, QTextStream &err)
{
    const std::optional<QList<InvoiceLine>> lines = runBlocking(store.loadInvoiceLines(invoice.id));
    if (!lines) {
        err << store.lastError() << Qt::endl;
        return 1;
    }
    if (json) {
        QJsonObject object = invoiceJson(invoice);
        QJsonArray lineArray;
        for (const InvoiceLine &line : *lines) {
            lineArray.append(Wire::encode(line));
        }
        object.insert(u"lines"_s, lineArray);
        Cli::printJson(out, object);
        return 0;
    }
    //% "Invoice %1 (%2), issued %3"
    out << qtTrId("cli.invoice.header").arg(invoice.number, statusText(invoice.status), invoice.issuedAt);
    if (invoice.dueAt) {
        //% ", due %1"
        out << qtTrId("cli.invoice.due").arg(*invoice.dueAt);
    }
    out << u'\n';
    if (invoice.clientName) {
        out << *invoice.clientName << u'\n';
    }
    for (const InvoiceLine &line : *lines) {
        out << u"  "_s << line.title.leftJustified(30) << u"  "_s << Earnings::formatQty(line.quantity).rightJustified(6)
            << u' ' << line.unit.value_or(QString()).leftJustified(4) << u"  "_s
            << formatMoney(line.amount, invoice.currency).rightJustified(14) << u'\n';
    }
    //% "Subtotal"
    out << qtTrId("cli.invoice.subtotal").leftJustified(46) << formatMoney(invoice.subtotal, invoice.currency).rightJustified(14)
        << u'\n';
    //% "VAT"
    out << qtTrId("cli.invoice.vat").leftJustified(46) << formatMoney(invoice.vatAmount, invoice.currency).rightJustified(14)
        << u'\n';
    //% "Total"
    out << qtTrId("cli.invoice.total").leftJustified(46) << formatMoney(invoice.total, invoice.currency).rightJustified(14)
        << Qt::endl;
    return 0;
}

QString lineKindName(Earnings::BuiltLine::Kind kind)
{
    using Kind = Earnings::BuiltLine::Kind;
    switch (kind) {
    case Kind::Work: return u"work"_s;
    case Kind::Fixed: return u"fixed"_s;
    case Kind::PerUnit: return u"per_unit"_s;
    case Kind::MinCharge: return u"min_charge"_s;
    case Kind::Surcharge: return u"surcharge"_s;
    case Kind::Materials: return u"materials"_s;
    case Kind::Discount: return u"discount"_s;
    case Kind::Travel: return u"travel"_s;
    }
    return {};
}

// The window's composer over one project's unbilled time in [from, to], so that the command line
// bills exactly what the window would. `--vat` stands in for the house style's rate.
void openComposer(const AppStore &store, InvoiceComposer &composer, const Project &project, std::optional<QDate> from,
                  std::optional<QDate> to, std::optional<double> vatPercent)
{
    InvoiceContext context;
    context.projectIds = {project.id};
    context.from = from;
    context.to = to;
    composer.open(context);
    composer.setDefaultVatPercent(vatPercent.value_or(InvoiceDocuments::houseTerms(store).vatPercent));
}

int showDraft(const Project &project, const InvoiceComposer &composer, bool json, QTextStream &out)
{
    const Earnings::BuildResult &built = composer.built();
    const Earnings::VatResult &vat = composer.vat();
    const QString fromText = composer.from().toString(Qt::ISODate);
    const QString toText = composer.to().toString(Qt::ISODate);
    const QString currency = composer.currency();
    const QStringList entryIds = composer.coveredEntryIds();
    if (json) {
        QJsonArray lines;
        for (const Earnings::BuiltLine &line : built.lines) {
            QJsonObject object{{u"kind"_s, lineKindName(line.kind)}, {u"title"_s, line.title},
                               {u"label"_s, line.label},           {u"quantity"_s, line.quantity},
                               {u"unit_price"_s, line.unitPrice},  {u"amount"_s, line.amount},
                               {u"unit_key"_s, line.unitKey}};
            if (line.description) {
                object.insert(u"description"_s, *line.description);
            }
            if (line.unit) {
                object.insert(u"unit"_s, *line.unit);
            }
            if (line.taskId) {
                object.insert(u"task_id"_s, *line.taskId);
            }
            lines.append(object);
        }
        QJsonArray units;
        for (const Earnings::BuiltUnit &unit : built.units) {
            units.append(QJsonObject{{u"key"_s, unit.key},
                                     {u"follow_up"_s, unit.followUp},
                                     {u"one_offs"_s, unit.oneOffs},
                                     {u"total"_s, unit.total}});
        }
        QJsonArray groups;
        for (const Earnings::VatGroup &group : vat.groups) {
            groups.append(QJsonObject{{u"percent"_s, group.percent}, {u"base"_s, group.base}, {u"amount"_s, group.amount}});
        }
        Cli::printJson(out, QJsonObject{{u"project_id"_s, project.id},
                                        {u"from"_s, fromText},
                                        {u"to"_s, toText},
                                        {u"currency"_s, currency},
                                        {u"units"_s, units},
                                        {u"lines"_s, lines},
                                        {u"entry_ids"_s, QJsonArray::fromStringList(entryIds)},
                                        {u"subtotal"_s, built.subtotal},
                                        {u"vat_groups"_s, groups},
                                        {u"vat_amount"_s, vat.vat},
                                        {u"total"_s, vat.total}});
        return 0;
    }
    if (built.lines.isEmpty()) {
        //% "No unbilled time of %1 in this period."
        out << qtTrId("cli.invoice.draftEmpty").arg(project.name) << Qt::endl;
        return 0;
    }
    out << project.name << u"  "_s << fromText << u" – "_s << toText << u'\n';
    for (const Earnings::BuiltLine &line : built.lines) {
        QString title = line.title;
        if (!line.label.isEmpty() && line.label != line.title) {
            title += u" ("_s + line.label + u')';
        }
        out << u"  "_s << title.leftJustified(40) << u"  "_s << Earnings::formatQty(line.quantity).rightJustified(6)
            << u' ' << line.unit.value_or(QString()).leftJustified(4) << u"  "_s
            << formatMoney(line.amount, currency).rightJustified(14) << u'\n';
        if (line.description) {
            out << u"      "_s << *line.description << u'\n';
        }
    }
    out << qtTrId("cli.invoice.subtotal").leftJustified(56) << formatMoney(built.subtotal, currency).rightJustified(14)
        << u'\n';
    for (const Earnings::VatRow &row : Earnings::vatRows(vat.groups, currency)) {
        out << row.text.leftJustified(56) << formatMoney(row.amount, currency).rightJustified(14) << u'\n';
    }
    out << qtTrId("cli.invoice.total").leftJustified(56) << formatMoney(vat.total, currency).rightJustified(14)
        << Qt::endl;
    return 0;
}

// The PDF of an invoice in its style and design, as the composer renders it.
std::optional<QByteArray> renderPdf(const InvoiceDocument &document, QTextStream &err)
{
    if (!qobject_cast<QApplication *>(QCoreApplication::instance())) {
        err << qtTrId("cli.renderInvoice.err.noGui") << Qt::endl;
        return std::nullopt;
    }
    const QString html = InvoiceHTMLRenderer::buildHTML(document);
    try {
        InvoicePdfRenderer renderer;
        return runBlocking(renderer.render(html)).pdf;
    } catch (const InvoicePdfError &error) {
        err << qtTrId("cli.renderInvoice.err.failed").arg(error.message()) << Qt::endl;
        return std::nullopt;
    }
}

// Draws a saved invoice again from its stored lines and the template's current details, and puts
// the new PDF in place of the stored one.
int replacePdf(AppStore &store, const Invoice &invoice, bool json, QTextStream &out, QTextStream &err)
{
    const std::optional<QList<InvoiceLine>> lines = runBlocking(store.loadInvoiceLines(invoice.id));
    if (!lines) {
        err << store.lastError() << Qt::endl;
        return 1;
    }
    const std::optional<QByteArray> pdf = renderPdf(InvoiceDocuments::stored(store, invoice, *lines), err);
    if (!pdf) {
        return 1;
    }
    if (!runBlocking(store.replaceInvoicePDF(invoice.id, *pdf))) {
        err << store.lastError() << Qt::endl;
        return 1;
    }
    if (json) {
        Cli::printJson(out, invoiceJson(store.invoice(invoice.id).value_or(invoice)));
    } else {
        //% "The PDF of invoice %1 was made again."
        out << qtTrId("cli.invoice.pdfReplaced").arg(invoice.number) << Qt::endl;
    }
    return 0;
}

// Renders the composed invoice as the composer would and saves it with its PDF.
int createInvoice(AppStore &store, const Project &project, InvoiceComposer &composer, const QString &status,
                  const std::optional<QString> &clientName, const std::optional<QString> &design, bool json,
                  QTextStream &out, QTextStream &err)
{
    if (composer.built().lines.isEmpty()) {
        err << qtTrId("cli.invoice.draftEmpty").arg(project.name) << Qt::endl;
        return 1;
    }
    const std::optional<QString> number = runBlocking(store.allocateInvoiceNumber());
    if (!number) {
        err << store.lastError() << Qt::endl;
        return 1;
    }
    composer.setClientName(clientName.value_or(QString()));
    const QDate issued = QDate::currentDate();
    const QDate due = issued.addDays(InvoiceDocuments::houseTerms(store).paymentDays);
    std::optional<InvoiceSaveRequest> request = composer.saveRequest(*number, issued, due, status);
    if (!request) {
        err << composer.readinessError() << Qt::endl;
        return 1;
    }
    InvoiceDocument document = InvoiceDocuments::composed(store, composer, *number, issued, due);
    if (design) {
        document.design = design;
    }
    const std::optional<QByteArray> pdf = renderPdf(document, err);
    if (!pdf) {
        return 1;
    }
    request->pdf = *pdf;
    const std::optional<Invoice> saved = runBlocking(store.saveInvoice(*request));
    if (!saved) {
        err << store.invoiceSaveMessage() << Qt::endl;
        return 1;
    }
    if (json) {
        Cli::printJson(out, invoiceJson(*saved));
    } else {
        out << store.invoiceSaveMessage() << Qt::endl;
    }
    return 0;
}

} // namespace

int runInvoiceCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    //% "The file to write the PDF to."
    const QCommandLineOption outOption(u"out"_s, qtTrId("cli.invoice.option.out"), u"file"_s);
    //% "First day of the period (yyyy-MM-dd)."
    const QCommandLineOption fromOption(u"from"_s, qtTrId("cli.invoice.option.from"), u"day"_s);
    //% "Last day of the period (yyyy-MM-dd)."
    const QCommandLineOption toOption(u"to"_s, qtTrId("cli.invoice.option.to"), u"day"_s);
    //% "VAT percentage for lines whose price has none."
    const QCommandLineOption vatOption(u"vat"_s, qtTrId("cli.invoice.option.vat"), u"percent"_s);
    //% "Status of the new invoice: draft or sent."
    const QCommandLineOption statusOption(u"status"_s, qtTrId("cli.invoice.option.status"), u"status"_s, u"draft"_s);
    //% "Bill-to name on the new invoice."
    const QCommandLineOption clientOption(u"client"_s, qtTrId("cli.invoice.option.client"), u"name"_s);
    //% "The design of the new invoice, instead of the one in your invoice style."
    const QCommandLineOption designOption(u"design"_s, qtTrId("cli.invoice.option.design"), u"name"_s);
    parser.addOptions({outOption, fromOption, toOption, vatOption, statusOption, clientOption, designOption});
    parser.addPositionalArgument(u"action"_s, qtTrId("cli.command.invoice"));
    if (!Cli::parse(parser, arguments, err)) {
        return 2;
    }
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0);
    const qsizetype count = positional.size();
    //% "Usage: morvane invoice draft|create <project> [--from DAY] [--to DAY] [--vat P] [--status draft|sent] [--client NAME] [--design NAME] | list | show <invoice> | status <invoice> draft|sent|paid|void | void <invoice> | rm <invoice> | pdf <invoice> --out FILE [--json]"
    const QString usageText = qtTrId("cli.invoice.usage");
    const std::optional<InvoiceStatus> status =
        action == u"status" && count == 3 ? Wire::enumFromName<InvoiceStatus>(positional.at(2)) : std::nullopt;
    const auto day = [&](const QCommandLineOption &option) -> std::optional<QDate> {
        const QDate parsed = QDate::fromString(parser.value(option), Qt::ISODate);
        return parser.isSet(option) && parsed.isValid() ? std::optional<QDate>(parsed) : std::nullopt;
    };
    const std::optional<QDate> from = day(fromOption);
    const std::optional<QDate> to = day(toOption);
    const std::optional<double> vatPercent =
        parser.isSet(vatOption) ? MoneyInput::parseDecimal(parser.value(vatOption)) : std::nullopt;
    const bool goodDraftOptions = (from || !parser.isSet(fromOption)) && (to || !parser.isSet(toOption)) &&
                                  (vatPercent || !parser.isSet(vatOption)) && (!from || !to || *from <= *to);
    const QString newStatus = parser.value(statusOption);
    const bool known = (action == u"draft" && count == 2 && goodDraftOptions) ||
                       (action == u"create" && count == 2 && goodDraftOptions &&
                        (newStatus == u"draft" || newStatus == u"sent")) || (action == u"list" && count == 1) || (action == u"show" && count == 2) ||
                       (action == u"status" && count == 3 && status) || (action == u"void" && count == 2) ||
                       (action == u"rm" && count == 2) || (action == u"pdf" && count == 2 && parser.isSet(outOption)) ||
                       (action == u"replace-pdf" && count == 2);
    if (!known || (parser.isSet(designOption) && action != u"create")) {
        return Cli::usage(err, usageText);
    }
    if (parser.isSet(designOption) && !Cli::knownDesign(parser.value(designOption), err)) {
        return 2;
    }

    CliSession session;
    if (!session.open(err)) {
        return 1;
    }
    AppStore &store = session.store();
    if (!runBlocking(store.loadInvoices())) {
        return session.failed(err);
    }
    const bool json = Cli::wantsJson(parser);

    if (action == u"draft" || action == u"create") {
        const std::optional<Project> project = session.project(positional.at(1), err);
        if (!project) {
            return 1;
        }
        // No draft from a half-read state: it would bill a fixed price twice or miss hours.
        if (!runBlocking(store.reloadBilledEntrySet()) || !runBlocking(store.loadUnbilledEntries())) {
            return session.failed(err);
        }
        InvoiceComposer composer(store);
        openComposer(store, composer, *project, from, to, vatPercent);
        if (action == u"create") {
            const std::optional<QString> client =
                parser.isSet(clientOption) ? std::optional<QString>(parser.value(clientOption)) : std::nullopt;
            const std::optional<QString> design =
                parser.isSet(designOption) ? std::optional<QString>(parser.value(designOption)) : std::nullopt;
            return createInvoice(store, *project, composer, newStatus, client, design, json, out, err);
        }
        return showDraft(*project, composer, json, out);
    }

    if (action == u"list") {
        if (json) {
            QJsonArray array;
            for (const Invoice &invoice : store.invoices()) {
                array.append(invoiceJson(invoice));
            }
            Cli::printJson(out, array);
        } else if (store.invoices().isEmpty()) {
            //% "No invoices yet."
            out << qtTrId("cli.invoice.none") << Qt::endl;
        } else {
            for (const Invoice &invoice : store.invoices()) {
                printInvoiceRow(out, invoice);
            }
            out.flush();
        }
        return 0;
    }

    const std::optional<Invoice> invoice = findInvoice(store, positional.at(1), err);
    if (!invoice) {
        return 1;
    }
    if (action == u"show") {
        return showInvoice(store, *invoice, json, out, err);
    }
    if (action == u"replace-pdf") {
        return replacePdf(store, *invoice, json, out, err);
    }
    if (action == u"status" || action == u"void") {
        const InvoiceStatus target = action == u"void" ? InvoiceStatus::Void : *status;
        if (!runBlocking(store.updateInvoiceStatus(invoice->id, target))) {
            return session.failed(err);
        }
        const Invoice changed = store.invoice(invoice->id).value_or(*invoice);
        if (json) {
            Cli::printJson(out, invoiceJson(changed));
        } else if (target == InvoiceStatus::Void) {
            //% "Invoice %1 is void; its hours are unbilled again."
            out << qtTrId("cli.invoice.voided").arg(changed.number) << Qt::endl;
        } else {
            //% "Invoice %1 is now %2."
            out << qtTrId("cli.invoice.statusChanged").arg(changed.number, statusText(changed.status)) << Qt::endl;
        }
        return 0;
    }
    if (action == u"rm") {
        if (!runBlocking(store.deleteInvoice(invoice->id))) {
            return session.failed(err);
        }
        if (json) {
            Cli::printJson(out, QJsonObject{{u"deleted"_s, invoice->id}, {u"number"_s, invoice->number}});
        } else {
            //% "Invoice %1 deleted; its hours are unbilled again."
            out << qtTrId("cli.invoice.deleted").arg(invoice->number) << Qt::endl;
        }
        return 0;
    }

    // pdf
    const std::optional<QUrl> url = runBlocking(store.invoicePdfURL(invoice->id));
    if (!url) {
        return session.failed(err);
    }
    QByteArray bytes;
    try {
        bytes = runBlocking(download(*url));
    } catch (const std::exception &error) {
        //% "The PDF could not be downloaded: %1"
        err << qtTrId("cli.invoice.downloadFailed").arg(QString::fromUtf8(error.what())) << Qt::endl;
        return 1;
    }
    const QString path = parser.value(outOption);
    // Written whole or not at all: a half PDF is worse than none.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        //% "Could not write %1: %2"
        err << qtTrId("cli.invoice.writeFailed").arg(path, file.errorString()) << Qt::endl;
        return 1;
    }
    if (json) {
        Cli::printJson(out, QJsonObject{{u"number"_s, invoice->number}, {u"file"_s, path}, {u"bytes"_s, bytes.size()}});
    } else {
        //% "Saved the PDF of invoice %1 to %2."
        out << qtTrId("cli.invoice.pdfSaved").arg(invoice->number, path) << Qt::endl;
    }
    return 0;
}
