#include "invoicelist.h"

#include "store/invoicedocuments.h"
#include "ui/invoiceprinter.h"

#include "billing/invoicefigures.h"
#include "billing/money.h"

#include <QDesktopServices>
#include <QDir>
#include <QLocale>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStandardPaths>

#include <QCoroNetworkReply>
#include <QCoroTask>

using namespace Qt::StringLiterals;

namespace {

// Far above any invoice; a larger answer is not the PDF we asked for.
constexpr qint64 largestPdf = 64 * 1024 * 1024;

QString statusText(InvoiceStatus status)
{
    switch (status) {
    case InvoiceStatus::Draft:
        //% "Draft"
        return qtTrId("ui.invoices.status.draft");
    case InvoiceStatus::Sent:
        //% "Sent"
        return qtTrId("ui.invoices.status.sent");
    case InvoiceStatus::Paid:
        //% "Paid"
        return qtTrId("ui.invoices.status.paid");
    case InvoiceStatus::Void:
        //% "Void"
        return qtTrId("ui.invoices.status.void");
    }
    return {};
}

std::optional<InvoiceStatus> statusOf(const QString &name)
{
    for (InvoiceStatus status : {InvoiceStatus::Draft, InvoiceStatus::Sent, InvoiceStatus::Paid, InvoiceStatus::Void}) {
        if (Wire::enumName(status) == name) {
            return status;
        }
    }
    return std::nullopt;
}

QString dayText(const std::optional<QString> &text)
{
    const QDate day = text ? QDate::fromString(text->left(10), Qt::ISODate) : QDate();
    return day.isValid() ? QLocale().toString(day, QLocale::ShortFormat) : QString();
}

// The user's own currency first, then any other in which invoices were written.
QString sumsText(const InvoiceFigures::Sums &sums, const QString &currency)
{
    QStringList parts{formatMoney(sums.value(currency), currency)};
    for (auto it = sums.begin(); it != sums.end(); ++it) {
        if (it.key() != currency && it.value() != 0) {
            parts.append(formatMoney(it.value(), it.key()));
        }
    }
    return parts.join(u" + "_s);
}

} // namespace

InvoiceList::InvoiceList(QObject *parent)
    : QObject(parent)
    , m_rows(new RowsModel({u"id"_s, u"number"_s, u"client"_s, u"issued"_s, u"due"_s, u"net"_s, u"vat"_s,
                            u"total"_s, u"status"_s, u"statusText"_s, u"overdue"_s, u"hasPdf"_s},
                           this))
    , m_opener([](const QUrl &url) { return QDesktopServices::openUrl(url); })
{
}

void InvoiceList::setStore(AppStore *store)
{
    if (m_store == store) {
        return;
    }
    if (m_store) {
        disconnect(m_store, nullptr, this, nullptr);
    }
    m_store = store;
    if (store) {
        connect(store, &AppStore::invoicesChanged, this, &InvoiceList::rebuild);
        connect(store, &AppStore::profileChanged, this, &InvoiceList::rebuild);
    }
    say({}, false);
    rebuild();
}

void InvoiceList::setBackend(const QUrl &baseUrl)
{
    m_backend = baseUrl;
}

bool InvoiceList::isBackendLink(const QUrl &link, const QUrl &backend)
{
    const QString scheme = link.scheme().toLower();
    return link.isValid() && (scheme == u"https" || scheme == u"http") && !backend.host().isEmpty() &&
           link.host().compare(backend.host(), Qt::CaseInsensitive) == 0 && link.userInfo().isEmpty();
}

void InvoiceList::setStatus(const QString &status)
{
    const QString known = statusOf(status) ? status : QString();
    if (m_status == known) {
        return;
    }
    m_status = known;
    emit filterChanged();
    rebuild();
}

void InvoiceList::setYear(int year)
{
    if (m_year == year) {
        return;
    }
    m_year = year;
    emit filterChanged();
    rebuild();
}

QVariantList InvoiceList::years() const
{
    QVariantList list;
    for (int year : m_years) {
        list.append(year);
    }
    return list;
}

void InvoiceList::rebuild()
{
    const QList<Invoice> all = m_store ? m_store->invoices() : QList<Invoice>();
    const QDate today = QDate::currentDate();
    const QList<Invoice> shown = InvoiceFigures::filtered(all, {statusOf(m_status), m_year});
    QList<QVariantHash> rows;
    rows.reserve(shown.size());
    for (const Invoice &invoice : shown) {
        rows.append({{u"key"_s, invoice.id},
                     {u"id"_s, invoice.id},
                     {u"number"_s, invoice.number},
                     {u"client"_s, invoice.clientName.value_or(QString())},
                     {u"issued"_s, dayText(invoice.issuedAt)},
                     {u"due"_s, dayText(invoice.dueAt)},
                     {u"net"_s, formatMoney(invoice.subtotal, invoice.currency)},
                     {u"vat"_s, formatMoney(invoice.vatAmount, invoice.currency)},
                     {u"total"_s, formatMoney(invoice.total, invoice.currency)},
                     {u"status"_s, Wire::enumName(invoice.status)},
                     {u"statusText"_s, statusText(invoice.status)},
                     {u"overdue"_s, InvoiceFigures::isOverdue(invoice, today)},
                     {u"hasPdf"_s, invoice.pdfPath.has_value() && !invoice.pdfPath->isEmpty()}});
    }
    m_rows->setRows(std::move(rows));

    const QString currency = m_store ? m_store->currency() : QString();
    const InvoiceFigures::Outstanding sums = InvoiceFigures::outstanding(shown, today);
    m_years = InvoiceFigures::years(all);
    m_total = int(all.size());
    m_openText = sumsText(sums.open, currency);
    m_overdueText = sumsText(sums.overdue, currency);
    m_hasOverdue = !sums.overdue.isEmpty();
    emit figuresChanged();
}

void InvoiceList::say(const QString &text, bool error)
{
    if (m_message == text && m_messageIsError == error) {
        return;
    }
    m_message = text;
    m_messageIsError = error;
    emit messageChanged();
}

void InvoiceList::sayStoreError()
{
    say(m_store ? m_store->lastError() : QString(), true);
}

void InvoiceList::begin()
{
    if (m_busy++ == 0) {
        emit busyChanged();
    }
}

void InvoiceList::end()
{
    if (--m_busy == 0) {
        emit busyChanged();
    }
}

void InvoiceList::reload()
{
    if (!m_store) {
        return;
    }
    begin();
    [](QPointer<InvoiceList> self, QPointer<AppStore> store) -> QCoro::Task<> {
        const bool read = co_await store->loadInvoices();
        if (self) {
            if (!read) {
                self->sayStoreError();
            }
            self->end();
        }
    }(this, m_store);
}

void InvoiceList::changeStatus(const QString &invoiceId, const QString &status)
{
    const std::optional<InvoiceStatus> target = statusOf(status);
    // Voiding releases the hours and cannot be undone, so it has its own confirmed call.
    if (!m_store || !target || *target == InvoiceStatus::Void) {
        return;
    }
    begin();
    [](QPointer<InvoiceList> self, QPointer<AppStore> store, QString invoiceId, InvoiceStatus target) -> QCoro::Task<> {
        const bool changed = co_await store->updateInvoiceStatus(invoiceId, target);
        if (!self) {
            co_return;
        }
        if (changed) {
            const QString number = store->invoice(invoiceId).value_or(Invoice{}).number;
            //% "Invoice %1 is now %2."
            self->say(qtTrId("ui.invoices.statusChanged").arg(number, statusText(target)), false);
        } else {
            self->sayStoreError();
        }
        self->end();
    }(this, m_store, invoiceId, *target);
}

void InvoiceList::voidInvoice(const QString &invoiceId)
{
    if (!m_store) {
        return;
    }
    begin();
    [](QPointer<InvoiceList> self, QPointer<AppStore> store, QString invoiceId) -> QCoro::Task<> {
        const QString number = store->invoice(invoiceId).value_or(Invoice{}).number;
        const bool voided = co_await store->voidInvoice(invoiceId);
        if (!self) {
            co_return;
        }
        if (voided || store->invoice(invoiceId).value_or(Invoice{}).status == InvoiceStatus::Void) {
            //% "Invoice %1 is void; its hours are unbilled again."
            self->say(qtTrId("ui.invoices.voided").arg(number), false);
        } else {
            self->sayStoreError();
        }
        self->end();
    }(this, m_store, invoiceId);
}

void InvoiceList::redraw(const QString &invoiceId)
{
    if (!m_store || !m_printer) {
        return;
    }
    begin();
    [](QPointer<InvoiceList> self, QPointer<AppStore> store, QPointer<InvoicePrinter> printer,
       QString invoiceId) -> QCoro::Task<> {
        const std::optional<Invoice> invoice = store->invoice(invoiceId);
        std::optional<QList<InvoiceLine>> lines;
        if (invoice) {
            lines = co_await store->loadInvoiceLines(invoiceId);
        }
        bool replaced = false;
        QString problem;
        if (lines && store && printer) {
            try {
                const RenderedPdf rendered = co_await printer->print(InvoiceDocuments::stored(*store, *invoice, *lines));
                replaced = store && co_await store->replaceInvoicePDF(invoiceId, rendered.pdf);
            } catch (const InvoicePdfError &error) {
                problem = error.message();
            }
        }
        if (!self) {
            co_return;
        }
        if (replaced) {
            //% "Invoice %1 was drawn again with your current details."
            self->say(qtTrId("ui.invoices.redrawn").arg(invoice->number), false);
        } else if (!problem.isEmpty()) {
            //% "The invoice could not be drawn: %1"
            self->say(qtTrId("ui.invoices.redrawFailed").arg(problem), true);
        } else {
            self->sayStoreError();
        }
        self->end();
    }(this, m_store, m_printer, invoiceId);
}

void InvoiceList::remove(const QString &invoiceId)
{
    if (!m_store) {
        return;
    }
    begin();
    [](QPointer<InvoiceList> self, QPointer<AppStore> store, QString invoiceId) -> QCoro::Task<> {
        const QString number = store->invoice(invoiceId).value_or(Invoice{}).number;
        co_await store->deleteInvoice(invoiceId);
        if (!self) {
            co_return;
        }
        if (!store->invoice(invoiceId)) {
            //% "Invoice %1 deleted; its hours are unbilled again."
            self->say(qtTrId("ui.invoices.deleted").arg(number), false);
        } else {
            self->sayStoreError();
        }
        self->end();
    }(this, m_store, invoiceId);
}

void InvoiceList::openPdf(const QString &invoiceId)
{
    if (!m_store) {
        return;
    }
    begin();
    [](QPointer<InvoiceList> self, QPointer<AppStore> store, QString invoiceId) -> QCoro::Task<> {
        const std::optional<QUrl> link = co_await store->invoicePdfURL(invoiceId);
        if (!self) {
            co_return;
        }
        if (!link) {
            self->sayStoreError();
        } else if (!isBackendLink(*link, self->m_backend)) {
            //% "The link to the PDF does not lead to your server, so it was not opened."
            self->say(qtTrId("ui.invoices.foreignLink"), true);
        } else if (!self->m_opener(*link)) {
            //% "No program to show PDF files was found. Save the PDF and open it from there."
            self->say(qtTrId("ui.invoices.noViewer"), true);
        } else {
            self->say({}, false);
        }
        self->end();
    }(this, m_store, invoiceId);
}

QUrl InvoiceList::suggestedFile(const QString &invoiceId) const
{
    QString number = m_store ? m_store->invoice(invoiceId).value_or(Invoice{}).number : QString();
    static const QRegularExpression unsafe(u"[\\\\/:*?\"<>|\\s]+"_s);
    number.replace(unsafe, u"-"_s);
    return QUrl::fromLocalFile(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + u'/' +
                               (number.isEmpty() ? u"invoice"_s : number) + u".pdf"_s);
}

void InvoiceList::savePdf(const QString &invoiceId, const QUrl &file)
{
    if (!m_store || !file.isLocalFile()) {
        return;
    }
    begin();
    [](QPointer<InvoiceList> self, QPointer<AppStore> store, QString invoiceId, QString path) -> QCoro::Task<> {
        const std::optional<QUrl> link = co_await store->invoicePdfURL(invoiceId);
        if (!self) {
            co_return;
        }
        if (!link) {
            self->sayStoreError();
            self->end();
            co_return;
        }
        if (!isBackendLink(*link, self->m_backend)) {
            self->say(qtTrId("ui.invoices.foreignLink"), true);
            self->end();
            co_return;
        }
        QNetworkRequest request(*link);
        // A redirect would lead away from the host just checked.
        request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
        request.setTransferTimeout(60000);
        std::unique_ptr<QNetworkReply> reply(self->m_network.get(request));
        QObject::connect(reply.get(), &QNetworkReply::downloadProgress, reply.get(), [raw = reply.get()](qint64 got, qint64) {
            if (got > largestPdf) {
                raw->abort();
            }
        });
        co_await qCoro(reply.get()).waitForFinished();
        if (!self) {
            co_return;
        }
        const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        const QByteArray bytes = reply->error() == QNetworkReply::NoError && status == 200 ? reply->readAll() : QByteArray();
        if (reply->error() != QNetworkReply::NoError || status != 200) {
            const QString why = reply->error() != QNetworkReply::NoError ? reply->errorString()
                                                                           : u"HTTP %1"_s.arg(status);
            //% "The PDF could not be downloaded: %1"
            self->say(qtTrId("ui.invoices.downloadFailed").arg(why), true);
        } else if (!bytes.startsWith("%PDF-")) {
            self->say(qtTrId("ui.invoices.downloadFailed").arg(u"not a PDF"_s), true);
        } else {
            // Written whole or not at all: a half PDF is worse than none.
            QSaveFile out(path);
            if (out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size() && out.commit()) {
                //% "Saved to %1"
                self->say(qtTrId("ui.invoices.saved").arg(QDir::toNativeSeparators(path)), false);
            } else {
                //% "Could not write %1: %2"
                self->say(qtTrId("ui.invoices.writeFailed").arg(QDir::toNativeSeparators(path), out.errorString()),
                          true);
            }
        }
        self->end();
    }(this, m_store, invoiceId, file.toLocalFile());
}
