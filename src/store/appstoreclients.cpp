#include "appstore.h"

#include "appstore_p.h"
#include "store/storelog.h"
#include "store/storetext.h"

// The saved clients invoices are addressed to.

using namespace Qt::StringLiterals;
using namespace StoreDetail;

namespace {

// What a person typed, as the column should hold it: blanks around it are typing slips, and an
// empty field means no value rather than an empty string that would print as a blank line.
std::optional<QString> cleaned(const std::optional<QString> &text)
{
    if (!text) {
        return std::nullopt;
    }
    const QString trimmed = text->trimmed();
    return trimmed.isEmpty() ? std::nullopt : std::optional<QString>(trimmed);
}

bool byName(const Client &a, const Client &b)
{
    return a.name.compare(b.name, Qt::CaseInsensitive) < 0;
}

} // namespace

QCoro::Task<bool> AppStore::loadClients()
{
    std::optional<Session> session = co_await openSession("Load clients failed: ");
    if (!session) {
        co_return false;
    }
    try {
        const QueryItems query{{u"select"_s, u"*"_s}, {u"order"_s, u"name.asc"_s}};
        const auto allRequest = [&, client = m_auth.client()](const QString &token) {
            return client.select<Client>(u"clients"_s, token, query);
        };
        QList<Client> all = co_await authorized(*session, allRequest);
        if (!isCurrent(*session)) {
            co_return false;
        }
        setClients(std::move(all));
        co_return true;
    } catch (const MorvaneError &error) {
        failed("Load clients failed: ", error.message(), StoreText::clientsNotLoaded());
        co_return false;
    }
}

void AppStore::setClients(QList<Client> all)
{
    QList<Client> active;
    for (const Client &client : all) {
        if (!client.isArchived()) {
            active.append(client);
        }
    }
    if (m_allClients == all && m_clients == active) {
        return;
    }
    m_allClients = std::move(all);
    m_clients = std::move(active);
    emit clientsChanged();
}

void AppStore::mergeClient(const Client &client)
{
    QList<Client> all = m_allClients;
    const auto same = std::find_if(all.begin(), all.end(), [&](const Client &c) { return c.id == client.id; });
    if (same != all.end()) {
        *same = client;
    } else {
        all.insert(std::upper_bound(all.begin(), all.end(), client, byName), client);
    }
    setClients(std::move(all));
}

QCoro::Task<std::optional<Client>> AppStore::createClient(ClientInsert draft)
{
    const char *const logPrefix = "Create client failed: ";
    draft.name = draft.name.trimmed();
    if (draft.name.isEmpty()) {
        failed(logPrefix, u"no name"_s, StoreText::clientNameMissing());
        co_return std::nullopt;
    }
    for (std::optional<QString> *text : {&draft.email, &draft.phone, &draft.address, &draft.vatId, &draft.kvk,
                                         &draft.iban, &draft.notes, &draft.colorHex, &draft.placeLabel}) {
        *text = cleaned(*text);
    }
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return std::nullopt;
    }
    draft.userId = m_currentUserId;
    try {
        const auto rowsRequest = [&, client = m_auth.client()](const QString &token) {
            return client.insert<Client>(u"clients"_s, token, draft);
        };
        const QList<Client> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return std::nullopt;
        }
        if (rows.isEmpty()) {
            failed(logPrefix, u"no row came back"_s, StoreText::clientNotCreated());
            co_return std::nullopt;
        }
        mergeClient(rows.first());
        co_return rows.first();
    } catch (const MorvaneError &error) {
        writeFailed(logPrefix, error, StoreText::clientNotCreated());
        co_return std::nullopt;
    }
}

QCoro::Task<bool> AppStore::updateClient(QString clientId, ClientPatch patch)
{
    const char *const logPrefix = "Update client failed: ";
    if (patch.name) {
        patch.name = patch.name->trimmed();
        if (patch.name->isEmpty()) {
            failed(logPrefix, u"no name"_s, StoreText::clientNameMissing());
            co_return false;
        }
    }
    for (std::optional<QString> *text : {&patch.email, &patch.address, &patch.vatId, &patch.kvk}) {
        *text = cleaned(*text);
    }
    co_return co_await patchClient(clientId, patch, logPrefix);
}

QCoro::Task<bool> AppStore::deleteClient(QString clientId)
{
    co_return co_await patchClient(clientId, ClientArchivePatch{true}, "Delete client failed: ");
}

QCoro::Task<bool> AppStore::patchClient(QString clientId, AnyEncodable body, const char *logPrefix)
{
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    try {
        const auto rowsRequest = [&, client = m_auth.client()](const QString &token) {
            return client.update<Client>(u"clients"_s, token, idFilter(clientId), body);
        };
        const QList<Client> rows = co_await authorized(*session, rowsRequest);
        if (!isCurrent(*session)) {
            co_return false;
        }
        // Row-level security hides a row this user may not change: nothing matches, and nothing
        // says why, so the refusal is told here.
        if (rows.isEmpty()) {
            failed(logPrefix, u"no row matched "_s + clientId, StoreText::clientNotSaved());
            co_return false;
        }
        mergeClient(rows.first());
        co_return true;
    } catch (const MorvaneError &error) {
        writeFailed(logPrefix, error, StoreText::clientNotSaved());
        co_return false;
    }
}
