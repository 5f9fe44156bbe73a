#pragma once

#include <QObject>

#include <QCoroTask>

class AppStore;
class AuthStore;

// Keeps the store in step with the session: whenever a session begins (sign-in, restore, account
// switch) the store takes the onboarding answers that wait for it, makes sure the profile is
// onboarded, loads everything and starts syncing; when the session ends it stops syncing and
// empties. The desktop shell and the command line both start a session through run().
class SessionSequence : public QObject
{
    Q_OBJECT

public:
    // Follows auth.sessionChanged() from now on; the session as it is now needs one run().
    SessionSequence(AuthStore &auth, AppStore &store, QObject *parent = nullptr);

    // Brings the store in line with the session as it is now. A run that a newer one overtakes
    // (a quick account switch) stops where it is. Answers whether a signed-in user's data loaded.
    QCoro::Task<bool> run();

signals:
    void finished(bool loaded);

private:
    AuthStore &m_auth;
    AppStore &m_store;
    quint64 m_run = 0;
};
