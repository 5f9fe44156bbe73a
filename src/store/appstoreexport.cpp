// Reads of AppStore that answer rows without keeping them: a period's entries beyond the recent
// window, and the links between invoices and entries, for the files an accountant gets.

#include "appstore.h"
#include "appstore_p.h"

#include "store/storetext.h"

using namespace Qt::StringLiterals;
using namespace StoreDetail;

QCoro::Task<std::optional<QList<TimeEntry>>> AppStore::readEntriesBetween(QDateTime start, QDateTime end)
{
    const char *const logPrefix = "Load entries failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return std::nullopt;
    }
    try {
        const Supabase client = m_auth.client();
        const QueryItems query{{u"select"_s, u"*"_s},
                               {u"started_at"_s, u"gte."_s + isoString(start)},
                               {u"started_at"_s, u"lt."_s + isoString(end)},
                               {u"order"_s, u"started_at.asc,id.asc"_s}};
        const auto rowsRequest = [&](const QString &token) {
            return client.selectAll<TimeEntry>(u"time_entries"_s, token, query);
        };
        QList<TimeEntry> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return std::nullopt;
        }
        co_return rows;
    } catch (const MorvaneError &error) {
        failed(logPrefix, error.message(), StoreText::loadFailed());
        co_return std::nullopt;
    }
}

QCoro::Task<std::optional<QList<InvoiceEntryLink>>> AppStore::readEntryLinks()
{
    const char *const logPrefix = "Load billed entries failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return std::nullopt;
    }
    try {
        const Supabase client = m_auth.client();
        const QueryItems query{{u"select"_s, u"id,invoice_id,time_entry_id,created_at"_s}, {u"order"_s, u"id.asc"_s}};
        const auto rowsRequest = [&](const QString &token) {
            return client.selectAll<InvoiceEntryLink>(u"invoice_entries"_s, token, query);
        };
        QList<InvoiceEntryLink> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return std::nullopt;
        }
        co_return rows;
    } catch (const MorvaneError &error) {
        failed(logPrefix, error.message(), StoreText::loadFailed());
        co_return std::nullopt;
    }
}
