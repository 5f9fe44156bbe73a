#include "app/clisession.h"
#include "app/storecommands.h"
#include "backend/runblocking.h"
#include "billing/money.h"

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

} // namespace

int runInvoiceCommand(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    //% "The file to write the PDF to."
    const QCommandLineOption outOption(u"out"_s, qtTrId("cli.invoice.option.out"), u"file"_s);
    parser.addOption(outOption);
    parser.addPositionalArgument(u"action"_s, qtTrId("cli.command.invoice"));
    if (!Cli::parse(parser, arguments, err)) {
        return 2;
    }
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0);
    const qsizetype count = positional.size();
    //% "Usage: morvane invoice list | show <invoice> | status <invoice> draft|sent|paid|void | void <invoice> | rm <invoice> | pdf <invoice> --out FILE [--json]"
    const QString usageText = qtTrId("cli.invoice.usage");
    const std::optional<InvoiceStatus> status =
        action == u"status" && count == 3 ? Wire::enumFromName<InvoiceStatus>(positional.at(2)) : std::nullopt;
    const bool known = (action == u"list" && count == 1) || (action == u"show" && count == 2) ||
                       (action == u"status" && count == 3 && status) || (action == u"void" && count == 2) ||
                       (action == u"rm" && count == 2) || (action == u"pdf" && count == 2 && parser.isSet(outOption));
    if (!known) {
        return Cli::usage(err, usageText);
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
