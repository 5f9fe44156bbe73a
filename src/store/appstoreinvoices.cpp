// Invoices of AppStore: the list, numbers, what is billed and what is not, the status lifecycle,
// the stored PDF and the save with its clean-up.

#include "appstore.h"
#include "appstore_p.h"

#include "model/isodate.h"
#include "store/storelog.h"

#include <QJsonObject>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace StoreDetail;

namespace {

const QString bucket = u"invoice-templates"_s;
constexpr int pdfLinkSeconds = 600;

// The older backend had no `pool_project_id` on lines; reading it there fails the whole read.
const QString linesSelect = u"id,task_id,pool_project_id,task:tasks(project_id,billing),invoice:invoices(status)"_s;
const QString linesSelectOlder = u"id,task_id,task:tasks(project_id,billing),invoice:invoices(status)"_s;
const QString entriesSelect =
    u"id,time_entry_id,invoice:invoices(status),entry:time_entries(task_id,task:tasks(project_id,billing))"_s;

namespace Text {

QString withDetail(QString text, const QString &detail)
{
    return text.arg(detail);
}

QString loadInvoicesFailed(const QString &detail)
{
    //% "Load invoices failed: %1"
    return withDetail(qtTrId("inv.err.loadInvoices"), detail);
}

QString allocateFailed(const QString &detail)
{
    //% "Allocate invoice number failed: %1"
    return withDetail(qtTrId("inv.err.allocateNumber"), detail);
}

QString unbilled()
{
    //% "Could not read which time is still unbilled."
    return qtTrId("inv.err.unbilled");
}

QString priorBilling()
{
    //% "Could not read which work was billed before. Billing waits until this works, so no fixed price or extra is billed twice."
    return qtTrId("inv.err.priorBilling");
}

QString notReady()
{
    //% "Still reading what was billed before."
    return qtTrId("inv.err.notReady");
}

QString loadLinesFailed(const QString &detail)
{
    //% "Load invoice lines failed: %1"
    return withDetail(qtTrId("inv.err.loadLines"), detail);
}

QString updateStatusFailed(const QString &detail)
{
    //% "Update invoice status failed: %1"
    return withDetail(qtTrId("inv.err.updateStatus"), detail);
}

QString voidFinal()
{
    //% "This invoice is void. A void invoice cannot be changed back."
    return qtTrId("invoiceErrVoidFinal");
}

QString voidUnavailable()
{
    //% "Voiding is not available yet because the server has not been updated. Try again later."
    return qtTrId("inv.err.voidUnavailable");
}

QString voidFailed(const QString &detail)
{
    //% "Voiding the invoice failed: %1"
    return withDetail(qtTrId("inv.err.voidFailed"), detail);
}

QString deleteFailed(const QString &detail)
{
    //% "Delete invoice failed: %1"
    return withDetail(qtTrId("inv.err.delete"), detail);
}

QString pdfLinkFailed(const QString &detail)
{
    //% "The invoice PDF could not be opened: %1"
    return withDetail(qtTrId("inv.err.pdfLink"), detail);
}

QString pdfReplaceFailed(const QString &detail)
{
    //% "The invoice PDF could not be replaced: %1"
    return withDetail(qtTrId("inv.err.pdfReplace"), detail);
}

QString alreadyBilled()
{
    //% "Some of these hours are already on another invoice. The list was refreshed: check it and try again."
    return qtTrId("inv.err.alreadyBilled");
}

QString tripsTaken()
{
    //% "Some of these trips are already on another invoice. Refresh and try again."
    return qtTrId("invoiceErrTripsTaken");
}

QString saveFailed(const QString &detail)
{
    //% "Save invoice failed: %1"
    return withDetail(qtTrId("inv.err.saveFailed"), detail);
}

QString saved(const QString &number)
{
    //% "Invoice %1 saved"
    return qtTrId("inv.saved").arg(number);
}

} // namespace Text

const SupabaseError *backendError(const MorvaneError &error)
{
    const auto *backend = dynamic_cast<const SupabaseError *>(&error);
    return backend && backend->kind() == SupabaseError::Kind::HttpStatus ? backend : nullptr;
}

bool hasCode(const MorvaneError &error, QStringView code)
{
    const SupabaseError *backend = backendError(error);
    return backend && backend->errorCode() == code;
}

// The trigger that keeps void final names itself in the error text.
bool isVoidFinal(const MorvaneError &error)
{
    const SupabaseError *backend = backendError(error);
    return (backend && backend->body().contains(u"invoice_void_final")) || error.message().contains(u"invoice_void_final");
}

// What the save was doing when it failed decides which words the user gets.
enum class SaveStep { Client, Insert, Pdf, Lines, Entries, Trips };

QString saveFailureText(SaveStep step, const MorvaneError &error)
{
    if (hasCode(error, u"23505")) {
        if (step == SaveStep::Entries) {
            return Text::alreadyBilled();
        }
        if (step == SaveStep::Trips) {
            return Text::tripsTaken();
        }
        if (step != SaveStep::Insert && step != SaveStep::Client) {
            const SupabaseError *backend = backendError(error);
            const QString said = backend ? backend->body() : error.message();
            return said.contains(u"trip") ? Text::tripsTaken() : Text::alreadyBilled();
        }
    }
    return Text::saveFailed(error.message());
}

struct StatusPatch
{
    QString status;

    static constexpr std::string_view wireName = "InvoiceStatusPatch";
    static constexpr auto wireFields() { return std::tuple{Wire::field("status", &StatusPatch::status)}; }
};

struct PdfPathPatch
{
    QString pdfPath;

    static constexpr std::string_view wireName = "InvoicePdfPathPatch";
    static constexpr auto wireFields() { return std::tuple{Wire::field("pdf_path", &PdfPathPatch::pdfPath)}; }
};

// The storage object of a save that was rolled back; nothing else points to it any more.
QCoro::Task<> removeObject(Supabase client, QString path, QString accessToken)
{
    BackendRequest request;
    request.method = "DELETE";
    request.path = u"storage/v1/object/"_s + bucket + u'/' + path;
    request.headers = {
        {"apikey", client.anonKey().toUtf8()},
        {"Authorization", QByteArray("Bearer " + accessToken.toUtf8())},
    };
    co_await client.send(std::move(request), Supabase::Channel::Data);
}

QString rawStatus(InvoiceStatus status)
{
    return Wire::enumName(status);
}

// Object keys are path segments: a number like "2026/07" must not open a folder.
QString safeFileName(QString name)
{
    static const QRegularExpression unsafe(u"[^A-Za-z0-9._-]+"_s);
    name.replace(unsafe, u"-"_s);
    return name.isEmpty() ? u"invoice"_s : name;
}

// Of `tracked` seconds, the share no longer unbilled.
double billedShare(qint64 tracked, qint64 unbilled)
{
    return std::clamp(double(tracked - unbilled) / double(tracked), 0.0, 1.0);
}

} // namespace

QString AppStore::invoicePdfPath(const QString &ownerId, const QString &fileName)
{
    return ownerId + u"/invoices/"_s + safeFileName(fileName) + u".pdf"_s;
}

std::optional<Invoice> AppStore::invoice(const QString &invoiceId) const
{
    for (const Invoice &known : m_invoices) {
        if (known.id == invoiceId) {
            return known;
        }
    }
    return std::nullopt;
}

std::optional<Invoice> AppStore::invoiceByNumber(const QString &number) const
{
    for (const Invoice &known : m_invoices) {
        if (known.number == number) {
            return known;
        }
    }
    return std::nullopt;
}

void AppStore::mergeInvoice(const Invoice &invoice)
{
    for (Invoice &known : m_invoices) {
        if (known.id == invoice.id) {
            if (known != invoice) {
                known = invoice;
                emit invoicesChanged();
            }
            return;
        }
    }
    m_invoices.prepend(invoice);
    emit invoicesChanged();
}

void AppStore::clearInvoices()
{
    m_invoices.clear();
    m_unbilledEntries.clear();
    m_unbilledReady = false;
    m_unbilledError = false;
    m_billedEntryIds.clear();
    m_priorBilling = {};
    m_priorBillingReady = false;
    m_priorBillingError = false;
    m_invoiceSaveMessage.clear();
    emit invoicesChanged();
    emit unbilledEntriesChanged();
    emit billedSetChanged();
    emit invoiceSaveMessageChanged();
}

void AppStore::setInvoiceSaveMessage(const QString &message)
{
    m_invoiceSaveMessage = message;
    emit invoiceSaveMessageChanged();
}

QCoro::Task<bool> AppStore::loadInvoices()
{
    const char *const logPrefix = "Load invoices failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    try {
        const Supabase client = m_auth.client();
        const QueryItems query{{u"select"_s, u"*"_s}, {u"order"_s, u"issued_at.desc,created_at.desc"_s}};
        const auto rowsRequest = [&](const QString &token) {
            return client.selectAll<Invoice>(u"invoices"_s, token, query);
        };
        QList<Invoice> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return false;
        }
        if (rows != m_invoices) {
            m_invoices = std::move(rows);
            emit invoicesChanged();
        }
        co_return true;
    } catch (const MorvaneError &error) {
        failed(logPrefix, error.message(), Text::loadInvoicesFailed(error.message()));
        co_return false;
    }
}

QCoro::Task<std::optional<QString>> AppStore::allocateInvoiceNumber()
{
    const char *const logPrefix = "Allocate invoice number failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return std::nullopt;
    }
    try {
        const Supabase client = m_auth.client();
        const QJsonObject noArguments;
        const auto numberRequest = [&](const QString &token) {
            return client.callRPCReturning<QString>(u"next_invoice_number"_s, token, noArguments);
        };
        QString number = co_await authorized(*session, numberRequest);
        if (number.isEmpty()) {
            failed(logPrefix, u"empty number"_s, Text::allocateFailed(u"empty number"_s));
            co_return std::nullopt;
        }
        co_return number;
    } catch (const MorvaneError &error) {
        failed(logPrefix, error.message(), Text::allocateFailed(error.message()));
        co_return std::nullopt;
    }
}

QCoro::Task<bool> AppStore::loadUnbilledEntries()
{
    const char *const logPrefix = "Load unbilled entries failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    try {
        const Supabase client = m_auth.client();
        const QueryItems query{{u"select"_s, u"*"_s}, {u"order"_s, u"id.asc"_s}};
        const auto rowsRequest = [&](const QString &token) {
            return client.selectAll<TimeEntry>(u"unbilled_time_entries"_s, token, query);
        };
        QList<TimeEntry> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return false;
        }
        m_unbilledEntries = std::move(rows);
        m_unbilledReady = true;
        m_unbilledError = false;
        emit unbilledEntriesChanged();
        co_return true;
    } catch (const MorvaneError &error) {
        // The entries read before stay: a failed read must not make billed work look unbilled or
        // the other way round, and the flag tells the composer not to trust them.
        m_unbilledError = true;
        emit unbilledEntriesChanged();
        failed(logPrefix, error.message(), Text::unbilled());
        co_return false;
    }
}

QCoro::Task<bool> AppStore::reloadBilledEntrySet()
{
    const char *const logPrefix = "Load billed state failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    const Supabase client = m_auth.client();
    try {
        const QueryItems entriesQuery{{u"select"_s, entriesSelect}, {u"order"_s, u"id.asc"_s}};
        const auto entriesRequest = [&](const QString &token) {
            return client.selectAll<BilledEntryRow>(u"invoice_entries"_s, token, entriesQuery);
        };
        const QList<BilledEntryRow> entryRows = co_await authorized(*session, entriesRequest);

        QList<BilledLineRow> lineRows;
        bool readNewForm = false;
        try {
            const QueryItems linesQuery{{u"select"_s, linesSelect}, {u"order"_s, u"id.asc"_s}};
            const auto linesRequest = [&](const QString &token) {
                return client.selectAll<BilledLineRow>(u"invoice_lines"_s, token, linesQuery);
            };
            lineRows = co_await authorized(*session, linesRequest);
            readNewForm = true;
        } catch (const SupabaseError &error) {
            if (error.kind() != SupabaseError::Kind::HttpStatus) {
                throw;
            }
            qCInfo(lcStore).noquote() << u"Billed lines read in the older form: "_s + error.message();
        }
        if (!readNewForm) {
            const QueryItems olderQuery{{u"select"_s, linesSelectOlder}, {u"order"_s, u"id.asc"_s}};
            const auto olderRequest = [&](const QString &token) {
                return client.selectAll<BilledLineRow>(u"invoice_lines"_s, token, olderQuery);
            };
            lineRows = co_await authorized(*session, olderRequest);
        }
        if (!isCurrent(*session)) {
            co_return false;
        }

        QSet<QString> billed;
        for (const BilledEntryRow &row : entryRows) {
            if (!row.invoice || row.invoice->isLive()) {
                billed.insert(row.timeEntryId);
            }
        }
        PriorBilling prior;
        for (const BilledLineRow &row : lineRows) {
            if (row.invoice && !row.invoice->isLive()) {
                continue;
            }
            if (row.poolProjectId) {
                prior.poolProjects.insert(*row.poolProjectId);
            }
            if (row.taskId && row.task && row.task->billing) {
                const Billing billing = Wire::decode<Billing>(row.task->billing->toJson());
                if (Earnings::hasOneOffParts(billing)) {
                    prior.tasks.insert(*row.taskId);
                }
            }
        }
        m_billedEntryIds = std::move(billed);
        m_priorBilling = std::move(prior);
        m_priorBillingReady = true;
        m_priorBillingError = false;
        emit billedSetChanged();
        co_return true;
    } catch (const MorvaneError &error) {
        m_priorBillingReady = false;
        m_priorBillingError = true;
        emit billedSetChanged();
        failed(logPrefix, error.message(), Text::priorBilling());
        co_return false;
    }
}

QCoro::Task<std::optional<QList<InvoiceLine>>> AppStore::loadInvoiceLines(QString invoiceId)
{
    const char *const logPrefix = "Load invoice lines failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return std::nullopt;
    }
    try {
        const Supabase client = m_auth.client();
        const QueryItems query{
            {u"select"_s, u"*"_s}, {u"invoice_id"_s, u"eq."_s + invoiceId}, {u"order"_s, u"order_index.asc"_s}};
        const auto rowsRequest = [&](const QString &token) {
            return client.selectAll<InvoiceLine>(u"invoice_lines"_s, token, query);
        };
        QList<InvoiceLine> rows = co_await authorized(*session, rowsRequest);
        co_return rows;
    } catch (const MorvaneError &error) {
        failed(logPrefix, error.message(), Text::loadLinesFailed(error.message()));
        co_return std::nullopt;
    }
}

QCoro::Task<bool> AppStore::updateInvoiceStatus(QString invoiceId, InvoiceStatus status)
{
    const char *const logPrefix = "Update invoice status failed: ";
    if (status == InvoiceStatus::Void) {
        // Voiding releases hours and trips; only the procedure does that.
        co_return co_await voidInvoice(invoiceId);
    }
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    try {
        const Supabase client = m_auth.client();
        const QueryItems query = idFilter(invoiceId);
        const StatusPatch patch{rawStatus(status)};
        const auto rowsRequest = [&](const QString &token) {
            return client.update<Invoice>(u"invoices"_s, token, query, patch);
        };
        const QList<Invoice> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return false;
        }
        if (rows.isEmpty()) {
            failed(logPrefix, u"no row matched "_s + invoiceId, Text::updateStatusFailed(u"not found"_s));
            co_return false;
        }
        mergeInvoice(rows.first());
        co_return true;
    } catch (const MorvaneError &error) {
        failed(logPrefix, error.message(),
               isVoidFinal(error) ? Text::voidFinal() : Text::updateStatusFailed(error.message()));
        co_return false;
    }
}

QCoro::Task<bool> AppStore::voidInvoice(QString invoiceId)
{
    const char *const logPrefix = "Void invoice failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    try {
        const Supabase client = m_auth.client();
        const QJsonObject arguments{{u"p_invoice_id"_s, invoiceId}};
        const auto voidRequest = [&](const QString &token) {
            return client.callRPC(u"void_invoice"_s, token, arguments);
        };
        co_await authorized(*session, voidRequest);
    } catch (const MorvaneError &error) {
        failed(logPrefix, error.message(),
               hasCode(error, u"PGRST202") ? Text::voidUnavailable() : Text::voidFailed(error.message()));
        co_return false;
    }
    if (!isCurrent(*session)) {
        co_return false;
    }
    if (std::optional<Invoice> known = invoice(invoiceId)) {
        known->status = InvoiceStatus::Void;
        mergeInvoice(*known);
    }
    const bool billedRead = co_await reloadBilledEntrySet();
    const bool unbilledRead = co_await loadUnbilledEntries();
    // Its trips are free again; a store that never read trips has no set to correct.
    const bool tripsRead = !m_billedTripsReady || co_await reloadBilledTrips();
    co_return billedRead && unbilledRead && tripsRead;
}

QCoro::Task<bool> AppStore::deleteInvoice(QString invoiceId)
{
    const char *const logPrefix = "Delete invoice failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    try {
        const Supabase client = m_auth.client();
        const QueryItems query = idFilter(invoiceId);
        const auto rowsRequest = [&](const QString &token) {
            return deleteReturning<Invoice>(client, u"invoices"_s, token, query);
        };
        const QList<Invoice> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return false;
        }
        if (rows.isEmpty()) {
            failed(logPrefix, u"no row matched "_s + invoiceId, Text::deleteFailed(u"not found"_s));
            co_return false;
        }
    } catch (const MorvaneError &error) {
        failed(logPrefix, error.message(), Text::deleteFailed(error.message()));
        co_return false;
    }
    if (m_invoices.removeIf([&](const Invoice &known) { return known.id == invoiceId; }) > 0) {
        emit invoicesChanged();
    }
    const bool billedRead = co_await reloadBilledEntrySet();
    const bool unbilledRead = co_await loadUnbilledEntries();
    // Its trips are free again; a store that never read trips has no set to correct.
    const bool tripsRead = !m_billedTripsReady || co_await reloadBilledTrips();
    co_return billedRead && unbilledRead && tripsRead;
}

QCoro::Task<std::optional<QUrl>> AppStore::invoicePdfURL(QString invoiceId)
{
    const char *const logPrefix = "Invoice PDF link failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return std::nullopt;
    }
    const std::optional<Invoice> known = invoice(invoiceId);
    if (!known || !known->pdfPath || known->pdfPath->isEmpty()) {
        failed(logPrefix, u"no stored PDF for "_s + invoiceId, Text::pdfLinkFailed(u"no PDF"_s));
        co_return std::nullopt;
    }
    try {
        const Supabase client = m_auth.client();
        const QString path = *known->pdfPath;
        const auto linkRequest = [&](const QString &token) {
            return client.signedURL(bucket, path, pdfLinkSeconds, token);
        };
        QUrl url = co_await authorized(*session, linkRequest);
        co_return url;
    } catch (const MorvaneError &error) {
        failed(logPrefix, error.message(), Text::pdfLinkFailed(error.message()));
        co_return std::nullopt;
    }
}

QCoro::Task<bool> AppStore::replaceInvoicePDF(QString invoiceId, QByteArray pdf)
{
    const char *const logPrefix = "Replace invoice PDF failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    const std::optional<Invoice> known = invoice(invoiceId);
    if (!known) {
        failed(logPrefix, u"unknown invoice "_s + invoiceId, Text::pdfReplaceFailed(u"not found"_s));
        co_return false;
    }
    // The object keeps its path so that links handed out before lead to the new PDF.
    const QString path = known->pdfPath && !known->pdfPath->isEmpty()
                             ? *known->pdfPath
                             : invoicePdfPath(known->userId, known->number);
    try {
        const Supabase client = m_auth.client();
        const auto uploadRequest = [&](const QString &token) {
            return client.uploadObject(bucket, path, pdf, "application/pdf", true, token);
        };
        co_await authorized(*session, uploadRequest);
        const QueryItems query = idFilter(invoiceId);
        const PdfPathPatch patch{path};
        const auto rowsRequest = [&](const QString &token) {
            return client.update<Invoice>(u"invoices"_s, token, query, patch);
        };
        const QList<Invoice> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return false;
        }
        if (rows.isEmpty()) {
            failed(logPrefix, u"no row matched "_s + invoiceId, Text::pdfReplaceFailed(u"not found"_s));
            co_return false;
        }
        mergeInvoice(rows.first());
        co_return true;
    } catch (const MorvaneError &error) {
        failed(logPrefix, error.message(),
               isVoidFinal(error) ? Text::voidFinal() : Text::pdfReplaceFailed(error.message()));
        co_return false;
    }
}

QCoro::Task<std::optional<QString>> AppStore::reuseOrCreateClient(Session &session, ClientInsert draft)
{
    const Supabase client = m_auth.client();
    const QueryItems query{{u"select"_s, u"*"_s}, {u"name"_s, u"eq."_s + draft.name}, {u"order"_s, u"id.asc"_s}};
    const auto findRequest = [&](const QString &token) { return client.select<Client>(u"clients"_s, token, query); };
    const QList<Client> same = co_await authorized(session, findRequest);
    for (const Client &known : same) {
        if (known.userId == m_currentUserId) {
            co_return known.id;
        }
    }
    draft.userId = m_currentUserId;
    const auto insertRequest = [&](const QString &token) { return client.insert<Client>(u"clients"_s, token, draft); };
    const QList<Client> rows = co_await authorized(session, insertRequest);
    if (rows.isEmpty()) {
        co_return std::nullopt;
    }
    co_return rows.first().id;
}

QCoro::Task<std::optional<Invoice>> AppStore::saveInvoice(InvoiceSaveRequest request)
{
    const char *const logPrefix = "Save invoice failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return std::nullopt;
    }
    if (!m_priorBillingReady) {
        const QString text = m_priorBillingError ? Text::priorBilling() : Text::notReady();
        setInvoiceSaveMessage(text);
        failed(logPrefix, u"billed state not read"_s, text);
        co_return std::nullopt;
    }
    const Supabase client = m_auth.client();
    SaveStep step = SaveStep::Client;
    std::optional<Invoice> created;
    std::optional<QString> uploadedPath;
    std::exception_ptr failure;
    QString failureText;
    QString failureLog;
    try {
        InvoiceInsert insert = request.invoice;
        insert.userId = m_currentUserId;
        if (request.saveClient && !request.saveClient->name.trimmed().isEmpty()) {
            insert.clientId = co_await reuseOrCreateClient(*session, *request.saveClient);
        }

        step = SaveStep::Insert;
        const auto insertRequest = [&](const QString &token) {
            return client.insert<Invoice>(u"invoices"_s, token, insert);
        };
        const QList<Invoice> rows = co_await authorized(*session, insertRequest);
        if (rows.isEmpty()) {
            throw SupabaseError::decoding(u"the new invoice did not come back"_s);
        }
        created = rows.first();
        const QString invoiceId = created->id;

        step = SaveStep::Pdf;
        const QString path = invoicePdfPath(m_currentUserId,
                                            request.pdfFileName.isEmpty() ? created->number : request.pdfFileName);
        const QByteArray pdf = request.pdf;
        const auto uploadRequest = [&](const QString &token) {
            return client.uploadObject(bucket, path, pdf, "application/pdf", true, token);
        };
        co_await authorized(*session, uploadRequest);
        uploadedPath = path;
        const QueryItems byId = idFilter(invoiceId);
        const PdfPathPatch pathPatch{path};
        const auto pathRequest = [&](const QString &token) {
            return client.update<Invoice>(u"invoices"_s, token, byId, pathPatch);
        };
        const QList<Invoice> withPath = co_await authorized(*session, pathRequest);
        if (!withPath.isEmpty()) {
            created = withPath.first();
        }

        step = SaveStep::Lines;
        if (!request.lines.isEmpty()) {
            QList<InvoiceLineInsert> lines = request.lines;
            for (qsizetype i = 0; i < lines.size(); ++i) {
                lines[i].invoiceId = invoiceId;
                lines[i].orderIndex = int(i);
            }
            const auto linesRequest = [&](const QString &token) {
                return client.insert<InvoiceLine>(u"invoice_lines"_s, token, lines);
            };
            co_await authorized(*session, linesRequest);
        }

        step = SaveStep::Entries;
        if (!request.coveredEntryIds.isEmpty()) {
            // Two saves over the same hours lock each entry's live link as they insert it; in one
            // order for everybody they queue, in opposite orders they deadlock and neither is told
            // that the hours went to the other.
            QStringList entryIds = request.coveredEntryIds;
            entryIds.sort();
            entryIds.removeDuplicates();
            QList<InvoiceEntryInsert> links;
            for (const QString &entryId : std::as_const(entryIds)) {
                links.append(InvoiceEntryInsert{invoiceId, entryId});
            }
            const auto linksRequest = [&](const QString &token) {
                return client.insert<InvoiceEntryLink>(u"invoice_entries"_s, token, links);
            };
            co_await authorized(*session, linksRequest);
        }

        step = SaveStep::Trips;
        if (!request.tripIds.isEmpty()) {
            QStringList tripIds = request.tripIds;
            tripIds.sort();
            tripIds.removeDuplicates();
            QList<InvoiceTripInsert> links;
            for (const QString &tripId : std::as_const(tripIds)) {
                links.append(InvoiceTripInsert{invoiceId, tripId});
            }
            const auto tripsRequest = [&](const QString &token) {
                return client.insert<InvoiceTripLink>(u"invoice_trips"_s, token, links);
            };
            co_await authorized(*session, tripsRequest);
        }
    } catch (const MorvaneError &error) {
        failure = std::current_exception();
        failureText = saveFailureText(step, error);
        failureLog = error.message();
    }

    if (failure) {
        if (created) {
            // Lines and links go with the row.
            const QueryItems byId = idFilter(created->id);
            try {
                const auto deleteRequest = [&](const QString &token) {
                    return deleteReturning<Invoice>(client, u"invoices"_s, token, byId);
                };
                co_await authorized(*session, deleteRequest);
            } catch (const MorvaneError &error) {
                qCWarning(lcStore).noquote() << u"Save invoice clean-up failed: "_s + error.message();
            }
        }
        if (uploadedPath) {
            // Best effort: a PDF left behind harms nobody, it only takes room.
            const QString path = *uploadedPath;
            try {
                const auto removeRequest = [&](const QString &token) { return removeObject(client, path, token); };
                co_await authorized(*session, removeRequest);
            } catch (const MorvaneError &error) {
                qCInfo(lcStore).noquote() << u"Save invoice left its PDF behind: "_s + error.message();
            }
        }
        setInvoiceSaveMessage(failureText);
        failed(logPrefix, failureLog, failureText);
        co_await reloadBilledEntrySet();
        co_await loadUnbilledEntries();
        if (!request.tripIds.isEmpty()) {
            co_await reloadBilledTrips();
        }
        co_return std::nullopt;
    }
    if (!isCurrent(*session)) {
        co_return std::nullopt;
    }
    mergeInvoice(*created);
    setInvoiceSaveMessage(Text::saved(created->number));
    co_await loadInvoices();
    co_await reloadBilledEntrySet();
    co_await loadUnbilledEntries();
    if (!request.tripIds.isEmpty()) {
        co_await reloadBilledTrips();
    }
    std::optional<Invoice> result = created;
    co_return result;
}

double AppStore::unbilledTotal(const QString &projectId) const
{
    QHash<QString, qint64> secondsByTask;
    for (const TimeEntry &entry : m_unbilledEntries) {
        if (projectId.isEmpty() || entry.projectId == projectId) {
            secondsByTask[entry.taskId] += entry.durationSeconds;
        }
    }
    const double defaultRate = defaultHourlyRate();
    double total = 0;
    for (auto it = secondsByTask.cbegin(); it != secondsByTask.cend(); ++it) {
        const std::optional<TaskItem> task = this->task(it.key());
        const std::optional<Project> project = task ? this->project(task->projectId) : std::nullopt;
        const TaskItem *taskPtr = task ? &*task : nullptr;
        const Project *projectPtr = project ? &*project : nullptr;
        const Billing billing = Earnings::resolve(taskPtr, projectPtr, defaultRate);
        total += Earnings::amount(billing, it.value(), Earnings::legacyRate(taskPtr, projectPtr, defaultRate));
    }
    return Earnings::round2(total);
}

std::optional<double> AppStore::billedFraction(const QString &projectId) const
{
    qint64 tracked = 0;
    for (const TaskItem &task : m_tasksByProject.value(projectId)) {
        tracked += task.timeSpentSeconds;
    }
    if (tracked <= 0) {
        return std::nullopt;
    }
    qint64 unbilled = 0;
    for (const TimeEntry &entry : m_unbilledEntries) {
        if (entry.projectId == projectId) {
            unbilled += entry.durationSeconds;
        }
    }
    return billedShare(tracked, unbilled);
}

std::optional<double> AppStore::taskBilledFraction(const QString &taskId) const
{
    const std::optional<TaskItem> item = task(taskId);
    if (!item || item->timeSpentSeconds <= 0) {
        return std::nullopt;
    }
    qint64 unbilled = 0;
    for (const TimeEntry &entry : m_unbilledEntries) {
        if (entry.taskId == taskId) {
            unbilled += entry.durationSeconds;
        }
    }
    return billedShare(item->timeSpentSeconds, unbilled);
}

QHash<QString, double> AppStore::taskBilledFractions() const
{
    QHash<QString, qint64> unbilled;
    for (const TimeEntry &entry : m_unbilledEntries) {
        unbilled[entry.taskId] += entry.durationSeconds;
    }
    QHash<QString, double> fractions;
    for (const QList<TaskItem> &tasks : m_tasksByProject) {
        for (const TaskItem &task : tasks) {
            if (task.timeSpentSeconds > 0) {
                fractions.insert(task.id, billedShare(task.timeSpentSeconds, unbilled.value(task.id)));
            }
        }
    }
    return fractions;
}

std::optional<QDate> AppStore::smartInvoiceStartDate(const QString &projectId) const
{
    std::optional<QDateTime> earliest;
    for (const TimeEntry &entry : m_unbilledEntries) {
        if (entry.projectId != projectId) {
            continue;
        }
        const std::optional<QDateTime> started = isoDate(entry.startedAt);
        if (started && (!earliest || *started < *earliest)) {
            earliest = started;
        }
    }
    if (!earliest) {
        return std::nullopt;
    }
    return earliest->toLocalTime().date();
}

void AppStore::openInvoiceComposer(const InvoiceContext &context)
{
    m_pendingInvoiceContext = context;
    emit pendingInvoiceContextChanged();
}

void AppStore::closeInvoiceComposer()
{
    if (!m_pendingInvoiceContext) {
        return;
    }
    m_pendingInvoiceContext.reset();
    emit pendingInvoiceContextChanged();
}
