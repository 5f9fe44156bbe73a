#pragma once

#include "backend/secretstore.h"
#include "backend/supabase.h"
#include "model/clock.h"

#include <QObject>
#include <QSettings>
#include <QVariantList>

#include <QCoroTask>

#include <functional>
#include <memory>
#include <optional>

// How an authentication failure is shown.
enum class AuthErrorKind { InvalidCredentials, EmailNotConfirmed, EmailRateLimit, RateLimit, Network, Server, Unknown };

// A signed-in account kept for quick switching.
struct RememberedAccount
{
    QString id;
    QString email;
    QString refreshToken;
    friend bool operator==(const RememberedAccount &, const RememberedAccount &) = default;
};

// The user's session with the backend: sign-up, sign-in, tokens and their refresh, remembered
// accounts, sign-out and account deletion. Every other part asks it for a token (validToken).
// Lives on the main thread.
class AuthStore : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isSignedIn READ isSignedIn NOTIFY isSignedInChanged)
    Q_PROPERTY(QString email READ email NOTIFY emailChanged)
    Q_PROPERTY(QString userId READ userId NOTIFY userIdChanged)
    Q_PROPERTY(QString lastError READ lastError NOTIFY lastErrorChanged)
    Q_PROPERTY(QString unconfirmedEmail READ unconfirmedEmail NOTIFY unconfirmedEmailChanged)
    Q_PROPERTY(bool isWorking READ isWorking NOTIFY isWorkingChanged)
    Q_PROPERTY(QVariantList accounts READ accountList NOTIFY accountsChanged)
    Q_PROPERTY(bool rememberMe READ rememberMe WRITE setRememberMe NOTIFY rememberMeChanged)

public:
    enum class RegisterResult { SignedIn, NeedsConfirmation, EmailExists, Failed };
    enum class ResendOutcome { Sent, RateLimited, Failed };

    // Opens an address in the user's browser (the OAuth sign-in); tests pass their own.
    using BrowserOpener = std::function<bool(const QUrl &)>;

    AuthStore(Supabase client, std::shared_ptr<SecretStore> secrets, std::shared_ptr<QSettings> settings,
              Clock clock = systemClock(), QObject *parent = nullptr);
    ~AuthStore() override;

    [[nodiscard]] bool isSignedIn() const { return m_signedIn; }
    [[nodiscard]] QString email() const { return m_email; }
    [[nodiscard]] QString userId() const { return m_userId; }
    [[nodiscard]] QString lastError() const { return m_lastError; }
    [[nodiscard]] QString unconfirmedEmail() const { return m_unconfirmedEmail; }
    [[nodiscard]] bool isWorking() const { return m_working; }
    [[nodiscard]] QList<RememberedAccount> accounts() const { return m_accounts; }
    [[nodiscard]] QVariantList accountList() const;
    [[nodiscard]] bool rememberMe() const { return m_rememberMe; }
    void setRememberMe(bool remember);
    [[nodiscard]] const Supabase &client() const { return m_client; }

    // Loads the session and the remembered accounts kept from an earlier run.
    QCoro::Task<> restore();

    QCoro::Task<bool> signIn(QString email, QString password);
    QCoro::Task<RegisterResult> registerAccount(QString email, QString password, QString displayName);
    QCoro::Task<bool> recoverPassword(QString email);
    QCoro::Task<ResendOutcome> resendConfirmation(QString email);
    // PKCE through the user's browser. The browser comes back to `appRedirect` (the application's
    // own scheme, whose handler passes the address to handleCallback()) or, without one, to a
    // one-time loopback address that this call answers itself.
    QCoro::Task<bool> signInWithOAuth(QString provider, BrowserOpener openBrowser,
                                      std::optional<QUrl> appRedirect = std::nullopt);
    QCoro::Task<> signOut();
    QCoro::Task<bool> switchAccount(QString userId);
    QCoro::Task<bool> deleteAccount();
    void endSessionAfterAccountDeletion();

    // An access token valid for at least `minValidity` seconds, refreshing first when needed;
    // none when signed out or when the refresh could not be made now. Concurrent callers share
    // one refresh.
    QCoro::Task<std::optional<QString>> validToken(int minValiditySeconds = 30);
    // For a caller whose request with `failedToken` answered 401.
    QCoro::Task<std::optional<QString>> tokenAfterUnauthorized(QString failedToken);

    // The kind of an authentication failure, from its code or its text.
    static AuthErrorKind classify(const std::exception &error);
    static QString message(AuthErrorKind kind);
    static bool isEmailAddress(const QString &text);

signals:
    void isSignedInChanged();
    void emailChanged();
    void userIdChanged();
    void lastErrorChanged();
    void unconfirmedEmailChanged();
    void isWorkingChanged();
    void accountsChanged();
    void rememberMeChanged();
    // A signed-in session began or ended (sign-in, restore, switch, sign-out, dead refresh).
    void sessionChanged();

public slots:
    // The browser came back to morvane://auth-callback?code=... (or the loopback address).
    void handleCallback(const QUrl &url);

private:
    struct Private;
    std::unique_ptr<Private> d;
    Supabase m_client;
    bool m_signedIn = false;
    QString m_email;
    QString m_userId;
    QString m_lastError;
    QString m_unconfirmedEmail;
    bool m_working = false;
    QList<RememberedAccount> m_accounts;
    bool m_rememberMe = true;

    friend struct AuthStorePrivateAccess;
    void setSignedIn(bool value);
    void setEmail(const QString &value);
    void setUserId(const QString &value);
    void setLastError(const QString &value);
    void setUnconfirmedEmail(const QString &value);
    void setWorking(bool value);
    void setAccounts(const QList<RememberedAccount> &accounts);
    // `rotated`: the tokens replace the current session's after a refresh (not a new sign-in).
    QCoro::Task<> applyTokens(QString access, QString refresh, qint64 expiresIn, bool rotated = false);
    QCoro::Task<> clearSessionLocally();
    void rememberCurrentAccount();
    void rememberRotatedToken(const QString &oldToken, const QString &newToken);
    QCoro::Task<std::optional<QString>> refreshNow();
};
