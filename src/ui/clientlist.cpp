#include "clientlist.h"

#include <QCoroTask>

using namespace Qt::StringLiterals;

namespace {

QVariantHash rowOf(const Client &client)
{
    return {{u"key"_s, client.id},
            {u"id"_s, client.id},
            {u"name"_s, client.name},
            {u"email"_s, client.email.value_or(QString())},
            {u"address"_s, client.address.value_or(QString())},
            {u"vatId"_s, client.vatId.value_or(QString())},
            {u"kvk"_s, client.kvk.value_or(QString())}};
}

// A field the form left empty is sent as empty: the store makes that "no value".
std::optional<QString> text(const QVariantMap &fields, const QString &name)
{
    return fields.value(name).toString();
}

} // namespace

ClientList::ClientList(QObject *parent)
    : QObject(parent)
    , m_rows(new RowsModel({u"id"_s, u"name"_s, u"email"_s, u"address"_s, u"vatId"_s, u"kvk"_s}, this))
{
}

void ClientList::setStore(AppStore *store)
{
    if (m_store == store) {
        return;
    }
    if (m_store) {
        disconnect(m_store, nullptr, this, nullptr);
    }
    m_store = store;
    if (store) {
        connect(store, &AppStore::clientsChanged, this, &ClientList::rebuild);
    }
    rebuild();
}

void ClientList::setSearch(const QString &search)
{
    if (m_search == search) {
        return;
    }
    m_search = search;
    emit searchChanged();
    rebuild();
}

int ClientList::total() const
{
    return m_total;
}

void ClientList::rebuild()
{
    QList<Client> shown = m_store ? m_store->clients() : QList<Client>();
    const int total = int(shown.size());
    const QString needle = m_search.trimmed();
    if (!needle.isEmpty()) {
        shown.removeIf([&](const Client &client) {
            for (const std::optional<QString> &value :
                 {std::optional<QString>(client.name), client.email, client.vatId, client.kvk}) {
                if (value && value->contains(needle, Qt::CaseInsensitive)) {
                    return false;
                }
            }
            return true;
        });
    }
    std::stable_sort(shown.begin(), shown.end(),
                     [](const Client &a, const Client &b) { return a.name.localeAwareCompare(b.name) < 0; });
    QList<QVariantHash> rows;
    rows.reserve(shown.size());
    for (const Client &client : std::as_const(shown)) {
        rows.append(rowOf(client));
    }
    m_rows->setRows(std::move(rows));
    if (m_total != total) {
        m_total = total;
        emit totalChanged();
    }
}

QVariantMap ClientList::client(const QString &clientId) const
{
    const int at = m_rows->indexOf(clientId);
    if (at >= 0) {
        return m_rows->get(at);
    }
    if (m_store) {
        for (const Client &known : m_store->clients()) {
            if (known.id == clientId) {
                QVariantMap fields;
                const QVariantHash row = rowOf(known);
                for (auto it = row.begin(); it != row.end(); ++it) {
                    fields.insert(it.key(), it.value());
                }
                return fields;
            }
        }
    }
    return {};
}

void ClientList::add(const QVariantMap &fields)
{
    if (!m_store) {
        return;
    }
    ClientInsert draft;
    draft.name = fields.value(u"name"_s).toString();
    draft.email = text(fields, u"email"_s);
    draft.address = text(fields, u"address"_s);
    draft.vatId = text(fields, u"vatId"_s);
    draft.kvk = text(fields, u"kvk"_s);
    [](QPointer<ClientList> self, AppStore *store, ClientInsert draft) -> QCoro::Task<> {
        const std::optional<Client> created = co_await store->createClient(std::move(draft));
        if (self && created) {
            emit self->added(created->id);
        }
    }(this, m_store, std::move(draft));
}

void ClientList::save(const QString &clientId, const QVariantMap &fields)
{
    if (!m_store) {
        return;
    }
    ClientPatch patch;
    patch.name = fields.value(u"name"_s).toString();
    patch.email = text(fields, u"email"_s);
    patch.address = text(fields, u"address"_s);
    patch.vatId = text(fields, u"vatId"_s);
    patch.kvk = text(fields, u"kvk"_s);
    m_store->updateClient(clientId, patch);
}

void ClientList::remove(const QString &clientId)
{
    if (m_store) {
        m_store->deleteClient(clientId);
    }
}
