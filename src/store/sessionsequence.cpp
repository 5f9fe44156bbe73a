#include "sessionsequence.h"

#include "backend/authstore.h"
#include "store/appstore.h"

SessionSequence::SessionSequence(AuthStore &auth, AppStore &store, QObject *parent)
    : QObject(parent)
    , m_auth(auth)
    , m_store(store)
{
    connect(&m_auth, &AuthStore::sessionChanged, this, [this] { run(); });
}

QCoro::Task<bool> SessionSequence::run()
{
    const quint64 run = ++m_run;
    if (!m_auth.isSignedIn()) {
        m_store.endSession();
        emit finished(false);
        co_return false;
    }
    // The poll of the previous account must not refresh while this one loads.
    m_store.stopSync();
    co_await m_store.applyPendingOnboarding();
    if (run != m_run) {
        co_return false;
    }
    co_await m_store.ensureOnboarded();
    if (run != m_run) {
        co_return false;
    }
    const bool loaded = co_await m_store.refreshAll();
    if (run != m_run) {
        co_return false;
    }
    // Even after a failed load: the poll finds no last refresh and tries again on its next look.
    m_store.startSync();
    emit finished(loaded);
    co_return loaded;
}
