#pragma once

// What the files of AppStore share: request helpers, the scopes that publish loading and saving,
// and the retry of a refused token. Not for use outside the store.

#include "appstore.h"
#include "backend/authstore.h"
#include "backend/supabase.h"
#include "backend/supabaseerror.h"
#include "model/isodate.h"

#include <algorithm>
#include <limits>

namespace StoreDetail {

using namespace Qt::StringLiterals;

// Instants compare as numbers; an unreadable one sorts first.
inline qint64 instantKey(const std::optional<QString> &text)
{
    const std::optional<QDateTime> instant = isoDate(text);
    return instant ? instant->toMSecsSinceEpoch() : std::numeric_limits<qint64>::min();
}

// Owners, then editors, then viewers, each group by address.
inline void sortMembers(QList<TeamMember> &members)
{
    std::stable_sort(members.begin(), members.end(), [](const TeamMember &a, const TeamMember &b) {
        if (a.role != b.role) {
            return a.role < b.role;
        }
        return a.email.compare(b.email, Qt::CaseInsensitive) < 0;
    });
}

inline QueryItems idFilter(const QString &id)
{
    return {{u"id"_s, u"eq."_s + id}};
}

inline QString inList(const QStringList &ids)
{
    return u"in.("_s + Supabase::uuidList(ids).join(u',') + u')';
}

// deleteFrom() answers nothing, and a delete that row-level security keeps from a row is no error
// either: only the deleted rows coming back tell a refusal from a success.
template<Wire::WireRecord T>
inline QCoro::Task<QList<T>> deleteReturning(Supabase client, QString table, QString accessToken, QueryItems query)
{
    BackendRequest request;
    request.method = "DELETE";
    request.path = u"rest/v1/"_s + table;
    request.query = std::move(query);
    request.headers = {
        {"Accept", "application/json"},
        {"apikey", client.anonKey().toUtf8()},
        {"Authorization", QByteArray("Bearer " + accessToken.toUtf8())},
        {"Prefer", "return=representation"},
    };
    const QByteArray body = co_await client.send(std::move(request), Supabase::Channel::Data);
    co_return Supabase::decodeBody<QList<T>>(body);
}

inline // A refusal is the backend saying no to this user (a policy, a missing row the write refers to);
    // anything else (no answer, a server failure) is worth trying again.
    bool
    isRefusal(const MorvaneError &error)
{
    const auto *backend = dynamic_cast<const SupabaseError *>(&error);
    if (!backend || backend->kind() != SupabaseError::Kind::HttpStatus) {
        return false;
    }
    const std::optional<QString> code = backend->errorCode();
    return backend->status() == 403 || backend->status() == 409 || code == u"42501" || code == u"23503";
}

} // namespace StoreDetail

// isLoading is true while any refresh runs.
class AppStore::LoadingScope
{
public:
    explicit LoadingScope(AppStore &store)
        : m_store(store)
    {
        m_store.setLoadingDepth(m_store.m_loadingDepth + 1);
    }
    ~LoadingScope() { m_store.setLoadingDepth(m_store.m_loadingDepth - 1); }
    LoadingScope(const LoadingScope &) = delete;
    LoadingScope &operator=(const LoadingScope &) = delete;

private:
    AppStore &m_store;
};

// Marks tasks as saving for as long as a write on them is in flight.
class AppStore::SavingScope
{
public:
    SavingScope(AppStore &store, QStringList taskIds)
        : m_store(store)
        , m_ids(std::move(taskIds))
    {
        for (const QString &id : std::as_const(m_ids)) {
            ++m_store.m_savingCounts[id];
        }
        publish();
    }
    ~SavingScope()
    {
        for (const QString &id : std::as_const(m_ids)) {
            auto it = m_store.m_savingCounts.find(id);
            if (it != m_store.m_savingCounts.end() && --it.value() <= 0) {
                m_store.m_savingCounts.erase(it);
            }
        }
        publish();
    }
    SavingScope(const SavingScope &) = delete;
    SavingScope &operator=(const SavingScope &) = delete;

private:
    void publish()
    {
        QSet<QString> ids;
        for (auto it = m_store.m_savingCounts.cbegin(); it != m_store.m_savingCounts.cend(); ++it) {
            ids.insert(it.key());
        }
        if (ids != m_store.m_savingTaskIds) {
            m_store.m_savingTaskIds = std::move(ids);
            emit m_store.savingTaskIdsChanged();
        }
    }

    AppStore &m_store;
    QStringList m_ids;
};

template<typename Call>
auto AppStore::authorized(Session &session, Call call) -> decltype(call(QString()))
{
    // A handler may not await, so the refusal is kept and the retry happens after it.
    std::exception_ptr refused;
    const QString used = session.token;
    try {
        co_return co_await call(used);
    } catch (const SupabaseError &error) {
        if (error.kind() != SupabaseError::Kind::HttpStatus || error.status() != 401) {
            throw;
        }
        refused = std::current_exception();
    }
    // Several reads that were under way together share one refresh: the auth store rotates a
    // token once, and the others get the token that replaced it.
    const std::optional<QString> fresh = co_await m_auth.tokenAfterUnauthorized(used);
    if (!fresh || *fresh == used) {
        std::rethrow_exception(refused);
    }
    session.token = *fresh;
    co_return co_await call(*fresh);
}
