#pragma once

#include "sessions/sessionlogsink.h"

class AppStore;
class AuthStore;

// Logs work bursts through the application's own store and session, so that the tasks and entries
// the watcher makes appear in the store like those a person makes. The store reports failures in
// its lastError; here they become thrown errors carrying that text, as the watcher expects.
class StoreSessionLogSink : public SessionLogSink
{
public:
    StoreSessionLogSink(AuthStore &auth, AppStore &store);

    QCoro::Task<std::optional<QString>> signedInUserId() override;
    QCoro::Task<QString> createTask(BurstTask task) override;
    QCoro::Task<> logMinutes(QString taskId, double minutes) override;

private:
    AuthStore &m_auth;
    AppStore &m_store;
};
