#pragma once

#include "auth/mailoutbox.h"
#include "auth/ratelimiter.h"
#include "auth/redirectpolicy.h"
#include "http/httpmessage.h"

#include <QJsonObject>
#include <QMutex>
#include <QUrl>

#include <chrono>

class PgConnection;
class PgPool;

// An outside OpenID Connect provider the server may send people to.
struct IdentityProvider
{
    QString name;
    QString clientId;
    QString clientSecret;
    QUrl authorizationEndpoint;
    QUrl tokenEndpoint;
    QUrl userinfoEndpoint;
    QString scope = QStringLiteral("openid email profile");
};

struct AuthSettings
{
    // The local backend confirms addresses itself unless told to send confirmation mails.
    bool autoConfirm = true;
    QString outboxDir;
    std::chrono::seconds accessTokenLifetime{3600};
    std::chrono::seconds confirmationLifetime{24 * 3600};
    std::chrono::seconds recoveryLifetime{3600};
    std::chrono::seconds flowStateLifetime{300};
    int passwordFailuresAllowed = 10;
    std::chrono::seconds passwordFailureWindow{300};
    std::chrono::seconds emailInterval{60};
    // A rotated refresh token still gives its successor this long after, for a client whose
    // answer was lost; later it counts as reuse.
    std::chrono::seconds refreshReuseWindow{10};
    // Per client address: wrong passwords (for one account, and for all together) and sign-ups.
    int clientPasswordFailures = 30;
    int signUpsPerClient = 30;
    std::chrono::seconds signUpWindow{3600};
    QList<IdentityProvider> providers;
    // Addresses besides the server's own to which e-mail links and sign-ins may lead.
    QStringList redirectUrls;

    // Providers from a JSON file: {"name": {"client_id", "client_secret", "authorization_endpoint",
    // "token_endpoint", "userinfo_endpoint", "scope"?}}. A missing file means none.
    static QList<IdentityProvider> readProviders(const QString &path, QString *error);
};

// /auth/v1: accounts, passwords, sessions with rotating refresh tokens, e-mail links, PKCE and
// sign-in through an outside provider, answering as an authentication service of the GoTrue kind.
class AuthService : public HttpService
{
public:
    AuthService(PgPool &pool, QByteArray jwtSecret, QUrl publicUrl, AuthSettings settings);

    [[nodiscard]] QString prefix() const override { return QStringLiteral("/auth/v1"); }
    HttpResponse handle(const HttpRequest &request) override;

private:
    struct Failure;
    struct Answer;

    Answer route(const HttpRequest &request);
    Answer signUp(const HttpRequest &request);
    Answer token(const HttpRequest &request);
    Answer passwordGrant(const QJsonObject &body, const QString &client);
    Answer refreshGrant(const QJsonObject &body);
    Answer pkceGrant(const QJsonObject &body);
    Answer recover(const HttpRequest &request);
    Answer resend(const HttpRequest &request);
    Answer logout(const HttpRequest &request);
    Answer user(const HttpRequest &request);
    Answer updateUser(const HttpRequest &request);
    Answer verify(const HttpRequest &request);
    Answer authorize(const HttpRequest &request);
    Answer callback(const HttpRequest &request);
    Answer settings(const HttpRequest &request);

    QJsonObject issueSession(PgConnection &db, const QString &userId, const QString &method);
    QJsonObject tokenAnswer(PgConnection &db, const QString &userId, const QString &sessionId,
                            const QByteArray &refreshToken, const QString &method);
    QJsonObject requireClaims(const HttpRequest &request) const;
    void sendLink(PgConnection &db, const QString &userId, const QString &email, const QString &type,
                  const QString &redirectTo);
    void checkEmailAllowance(const QString &email);
    [[nodiscard]] const IdentityProvider *provider(const QString &name) const;

    PgPool &m_pool;
    QByteArray m_secret;
    QUrl m_publicUrl;
    AuthSettings m_settings;
    MailOutbox m_outbox;
    RateLimiter m_limiter;
    RedirectPolicy m_redirects;
};
