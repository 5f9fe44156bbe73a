#include "authstore.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUrlQuery>

#include <QCoroSignal>

Q_LOGGING_CATEGORY(lcAuthStore, "morvane.backend.auth")

using namespace Qt::StringLiterals;

namespace {

// Keyring items, one value each.
const QString accessItem = u"supabase.access_token"_s;
const QString refreshItem = u"supabase.refresh_token"_s;
const QString expiresItem = u"supabase.access_expires_at"_s;
const QString userItem = u"supabase.user_id"_s;
const QString passwordItem = u"supabase.password"_s;
// The remembered accounts carry refresh tokens, so they are kept with the secrets rather than in
// the settings file, which any local user may be able to read.
const QString accountsItem = u"morvane.accounts"_s;
const QString rememberMeKey = u"morvane.rememberMe"_s;

// The claims of a token without checking it: only its own holder reads them here.
QJsonObject claimsOf(const QString &token)
{
    const QStringList parts = token.split(u'.');
    if (parts.size() != 3) {
        return {};
    }
    return QJsonDocument::fromJson(QByteArray::fromBase64(parts[1].toLatin1(), QByteArray::Base64UrlEncoding)).object();
}

QString bodyText(const SupabaseError &error)
{
    const QJsonObject body = QJsonDocument::fromJson(error.body().toUtf8()).object();
    for (const char *key : {"error_description", "msg", "message", "error"}) {
        const QString text = body.value(QLatin1StringView(key)).toString();
        if (!text.isEmpty()) {
            return text.toLower();
        }
    }
    return error.body().toLower();
}

// Waiters of the one refresh in flight.
class RefreshFlight : public QObject
{
    Q_OBJECT

public:
    bool done = false;
    std::optional<QString> token;

signals:
    void finished();
};

} // namespace

struct AuthStore::Private
{
    std::shared_ptr<SecretStore> secrets;
    std::shared_ptr<QSettings> settings;
    Clock clock;
    QString accessToken;
    QString refreshToken;
    QDateTime accessExpiresAt;
    std::shared_ptr<RefreshFlight> flight;
    QString oauthDisplayNameGuess;
    // The authorisation code of a pending sign-in through a provider, once the browser is back.
    QPointer<RefreshFlight> callbackWaiter;
    QUrl callbackUrl;
};

AuthStore::AuthStore(Supabase client, std::shared_ptr<SecretStore> secrets, std::shared_ptr<QSettings> settings,
                     Clock clock, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
    , m_client(std::move(client))
{
    d->secrets = std::move(secrets);
    d->settings = std::move(settings);
    d->clock = std::move(clock);
    m_rememberMe = d->settings->value(rememberMeKey, true).toBool();
}

AuthStore::~AuthStore() = default;

QVariantList AuthStore::accountList() const
{
    QVariantList list;
    for (const RememberedAccount &account : m_accounts) {
        list.append(QVariantMap{{u"id"_s, account.id}, {u"email"_s, account.email}});
    }
    return list;
}

void AuthStore::setRememberMe(bool remember)
{
    if (m_rememberMe == remember) {
        return;
    }
    m_rememberMe = remember;
    d->settings->setValue(rememberMeKey, remember);
    if (!remember) {
        d->secrets->remove(passwordItem);
    }
    emit rememberMeChanged();
}

void AuthStore::setSignedIn(bool value)
{
    if (m_signedIn != value) {
        m_signedIn = value;
        emit isSignedInChanged();
    }
}

void AuthStore::setEmail(const QString &value)
{
    if (m_email != value) {
        m_email = value;
        emit emailChanged();
    }
}

void AuthStore::setUserId(const QString &value)
{
    if (m_userId != value) {
        m_userId = value;
        emit userIdChanged();
    }
}

void AuthStore::setLastError(const QString &value)
{
    if (m_lastError != value) {
        m_lastError = value;
        emit lastErrorChanged();
    }
}

void AuthStore::setUnconfirmedEmail(const QString &value)
{
    if (m_unconfirmedEmail != value) {
        m_unconfirmedEmail = value;
        emit unconfirmedEmailChanged();
    }
}

void AuthStore::setWorking(bool value)
{
    if (m_working != value) {
        m_working = value;
        emit isWorkingChanged();
    }
}

void AuthStore::setAccounts(const QList<RememberedAccount> &accounts)
{
    if (m_accounts == accounts) {
        return;
    }
    m_accounts = accounts;
    QJsonArray list;
    for (const RememberedAccount &account : accounts) {
        list.append(
            QJsonObject{{u"id"_s, account.id}, {u"email"_s, account.email}, {u"refreshToken"_s, account.refreshToken}});
    }
    d->secrets->write(accountsItem, QString::fromUtf8(QJsonDocument(list).toJson(QJsonDocument::Compact)));
    emit accountsChanged();
}

bool AuthStore::isEmailAddress(const QString &text)
{
    static const QRegularExpression pattern(u"^[^@\\s]+@[^@\\s]+\\.[^@\\s]+$"_s);
    return pattern.match(text).hasMatch();
}

AuthErrorKind AuthStore::classify(const std::exception &error)
{
    if (dynamic_cast<const TransportError *>(&error)) {
        return AuthErrorKind::Network;
    }
    const auto *backend = dynamic_cast<const SupabaseError *>(&error);
    if (!backend || backend->kind() != SupabaseError::Kind::HttpStatus) {
        return AuthErrorKind::Unknown;
    }
    if (backend->status() == 0) {
        return AuthErrorKind::Network;
    }
    const QString code = backend->errorCode().value_or(QString());
    const QString text = bodyText(*backend);
    static const QRegularExpression emailLimit(u"email rate limit|only request this after"_s);
    static const QRegularExpression requestLimit(u"rate limit|too many requests"_s);
    if (code == u"invalid_credentials" || text.contains(u"invalid login credentials")) {
        return AuthErrorKind::InvalidCredentials;
    }
    if (code == u"email_not_confirmed" || text.contains(u"email not confirmed")) {
        return AuthErrorKind::EmailNotConfirmed;
    }
    if (code == u"over_email_send_rate_limit" || emailLimit.match(text).hasMatch()) {
        return AuthErrorKind::EmailRateLimit;
    }
    if (code == u"over_request_rate_limit" || requestLimit.match(text).hasMatch()) {
        return AuthErrorKind::RateLimit;
    }
    if (backend->status() >= 500) {
        return AuthErrorKind::Server;
    }
    return AuthErrorKind::Unknown;
}

QString AuthStore::message(AuthErrorKind kind)
{
    switch (kind) {
    case AuthErrorKind::InvalidCredentials:
        //% "The e-mail address or the password is not right."
        return qtTrId("errInvalidCredentials");
    case AuthErrorKind::EmailNotConfirmed:
        //% "Confirm your e-mail address first: follow the link in the mail we sent you."
        return qtTrId("errEmailNotConfirmed");
    case AuthErrorKind::EmailRateLimit:
        //% "Too many e-mails went to this address. Wait a minute, then try again."
        return qtTrId("errEmailRateLimit");
    case AuthErrorKind::RateLimit:
        //% "Too many attempts. Wait a few minutes, then try again."
        return qtTrId("auth.err.rateLimit");
    case AuthErrorKind::Network:
        //% "Morvane cannot reach the server. Check your connection and try again."
        return qtTrId("auth.err.network");
    case AuthErrorKind::Server:
        //% "The server ran into a problem. Try again in a moment."
        return qtTrId("auth.err.server");
    case AuthErrorKind::Unknown:
        break;
    }
    //% "Something went wrong. Try again."
    return qtTrId("somethingWentWrong");
}

QCoro::Task<> AuthStore::applyTokens(QString access, QString refresh, qint64 expiresIn, bool rotated)
{
    const QString previous = d->refreshToken;
    d->accessToken = access;
    d->refreshToken = refresh;
    d->accessExpiresAt = d->clock().addSecs(expiresIn);
    const QString user = claimsOf(access).value(u"sub"_s).toString();
    co_await d->secrets->write(accessItem, access);
    co_await d->secrets->write(refreshItem, refresh);
    co_await d->secrets->write(expiresItem, d->accessExpiresAt.toString(Qt::ISODateWithMs));
    co_await d->secrets->write(userItem, user);
    if (rotated) {
        rememberRotatedToken(previous, refresh);
    }
}

QCoro::Task<> AuthStore::clearSessionLocally()
{
    d->accessToken.clear();
    d->refreshToken.clear();
    d->accessExpiresAt = {};
    for (const QString &item : {accessItem, refreshItem, expiresItem, userItem}) {
        co_await d->secrets->remove(item);
    }
    const bool wasSignedIn = m_signedIn;
    setUserId({});
    setEmail({});
    setSignedIn(false);
    if (wasSignedIn) {
        emit sessionChanged();
    }
}

void AuthStore::rememberCurrentAccount()
{
    QList<RememberedAccount> accounts = m_accounts;
    accounts.removeIf([&](const RememberedAccount &account) { return account.id == m_userId; });
    accounts.prepend({m_userId, m_email, d->refreshToken});
    setAccounts(accounts);
}

void AuthStore::rememberRotatedToken(const QString &oldToken, const QString &newToken)
{
    if (oldToken.isEmpty() || oldToken == newToken) {
        return;
    }
    QList<RememberedAccount> accounts = m_accounts;
    for (RememberedAccount &account : accounts) {
        if (account.refreshToken == oldToken) {
            account.refreshToken = newToken;
        }
    }
    setAccounts(accounts);
}

QCoro::Task<> AuthStore::restore()
{
    const std::optional<QString> accounts = co_await d->secrets->read(accountsItem);
    QList<RememberedAccount> list;
    for (const QJsonValue &value : QJsonDocument::fromJson(accounts.value_or(QString()).toUtf8()).array()) {
        const QJsonObject account = value.toObject();
        list.append({account.value(u"id"_s).toString(), account.value(u"email"_s).toString(),
                     account.value(u"refreshToken"_s).toString()});
    }
    m_accounts = list;
    emit accountsChanged();

    const std::optional<QString> access = co_await d->secrets->read(accessItem);
    const std::optional<QString> refresh = co_await d->secrets->read(refreshItem);
    const std::optional<QString> expires = co_await d->secrets->read(expiresItem);
    const std::optional<QString> user = co_await d->secrets->read(userItem);
    if (!refresh || refresh->isEmpty() || !user || user->isEmpty()) {
        co_return;
    }
    d->accessToken = access.value_or(QString());
    d->refreshToken = *refresh;
    d->accessExpiresAt = QDateTime::fromString(expires.value_or(QString()), Qt::ISODateWithMs);
    setUserId(*user);
    QString email = claimsOf(d->accessToken).value(u"email"_s).toString();
    for (const RememberedAccount &account : std::as_const(m_accounts)) {
        if (email.isEmpty() && account.id == *user) {
            email = account.email;
        }
    }
    setEmail(email);
    setSignedIn(true);
    emit sessionChanged();
}

QCoro::Task<bool> AuthStore::signIn(QString email, QString password)
{
    email = email.trimmed();
    if (!isEmailAddress(email)) {
        //% "Enter a valid e-mail address."
        setLastError(qtTrId("auth.err.invalidEmail"));
        co_return false;
    }
    setWorking(true);
    try {
        const AuthTokens tokens = co_await m_client.signInPassword(email, password);
        co_await applyTokens(tokens.accessToken, tokens.refreshToken, tokens.expiresIn);
        setUserId(tokens.user ? tokens.user->id : claimsOf(tokens.accessToken).value(u"sub"_s).toString());
        setEmail(tokens.user && tokens.user->email ? *tokens.user->email : email.toLower());
        setLastError({});
        setUnconfirmedEmail({});
        setSignedIn(true);
        rememberCurrentAccount();
        if (m_rememberMe) {
            co_await d->secrets->write(passwordItem, password);
        }
        setWorking(false);
        emit sessionChanged();
        co_return true;
    } catch (const std::exception &error) {
        qCInfo(lcAuthStore) << "Sign-in failed:" << error.what();
        setLastError(message(classify(error)));
    }
    setWorking(false);
    co_return false;
}

QCoro::Task<AuthStore::RegisterResult> AuthStore::registerAccount(QString email, QString password, QString displayName)
{
    email = email.trimmed();
    if (!isEmailAddress(email)) {
        setLastError(qtTrId("auth.err.invalidEmail"));
        co_return RegisterResult::Failed;
    }
    setWorking(true);
    RegisterResult result = RegisterResult::Failed;
    try {
        const SignUpOutcome outcome = co_await m_client.signUp(email, password, displayName);
        switch (outcome.kind) {
        case SignUpOutcome::Kind::Session: {
            const AuthTokens &tokens = *outcome.session;
            co_await applyTokens(tokens.accessToken, tokens.refreshToken, tokens.expiresIn);
            setUserId(tokens.user ? tokens.user->id : claimsOf(tokens.accessToken).value(u"sub"_s).toString());
            setEmail(email.toLower());
            setLastError({});
            setSignedIn(true);
            rememberCurrentAccount();
            emit sessionChanged();
            result = RegisterResult::SignedIn;
            break;
        }
        case SignUpOutcome::Kind::NeedsConfirmation:
            setUnconfirmedEmail(email.toLower());
            setLastError({});
            result = RegisterResult::NeedsConfirmation;
            break;
        case SignUpOutcome::Kind::EmailExists:
            //% "An account with this e-mail address exists already. Sign in instead."
            setLastError(qtTrId("auth.err.emailExists"));
            result = RegisterResult::EmailExists;
            break;
        }
    } catch (const SupabaseError &error) {
        setLastError(
            error.errorCode() == u"weak_password"
                ? QString::fromUtf8(
                      QJsonDocument::fromJson(error.body().toUtf8()).object().value(u"msg"_s).toString().toUtf8())
                : message(classify(error)));
        if (lastError().isEmpty()) {
            setLastError(message(classify(error)));
        }
    } catch (const std::exception &error) {
        setLastError(message(classify(error)));
    }
    setWorking(false);
    co_return result;
}

QCoro::Task<bool> AuthStore::recoverPassword(QString email)
{
    if (!isEmailAddress(email.trimmed())) {
        setLastError(qtTrId("auth.err.invalidEmail"));
        co_return false;
    }
    setWorking(true);
    bool sent = false;
    try {
        co_await m_client.recoverPassword(email.trimmed());
        setLastError({});
        sent = true;
    } catch (const std::exception &error) {
        setLastError(message(classify(error)));
    }
    setWorking(false);
    co_return sent;
}

QCoro::Task<AuthStore::ResendOutcome> AuthStore::resendConfirmation(QString email)
{
    setWorking(true);
    ResendOutcome outcome = ResendOutcome::Failed;
    try {
        co_await m_client.resendSignupConfirmation(email.trimmed());
        setLastError({});
        outcome = ResendOutcome::Sent;
    } catch (const std::exception &error) {
        const AuthErrorKind kind = classify(error);
        setLastError(message(kind));
        if (kind == AuthErrorKind::EmailRateLimit || kind == AuthErrorKind::RateLimit) {
            outcome = ResendOutcome::RateLimited;
        }
    }
    setWorking(false);
    co_return outcome;
}

QCoro::Task<std::optional<QString>> AuthStore::validToken(int minValiditySeconds)
{
    if (!m_signedIn) {
        co_return std::nullopt;
    }
    if (!d->accessToken.isEmpty() && d->accessExpiresAt.isValid() &&
        d->clock().secsTo(d->accessExpiresAt) > minValiditySeconds) {
        // A copy: QCoro moves from an lvalue of another type given to co_return.
        co_return std::optional<QString>(d->accessToken);
    }
    co_return co_await refreshNow();
}

QCoro::Task<std::optional<QString>> AuthStore::tokenAfterUnauthorized(QString failedToken)
{
    if (!m_signedIn) {
        co_return std::nullopt;
    }
    // Another caller rotated the token already: the new one is the answer.
    if (!d->accessToken.isEmpty() && d->accessToken != failedToken) {
        co_return std::optional<QString>(d->accessToken);
    }
    co_return co_await refreshNow();
}

QCoro::Task<std::optional<QString>> AuthStore::refreshNow()
{
    if (d->flight) {
        const std::shared_ptr<RefreshFlight> flight = d->flight;
        if (!flight->done) {
            co_await qCoro(flight.get(), &RefreshFlight::finished);
        }
        co_return std::optional<QString>(flight->token);
    }
    const std::shared_ptr<RefreshFlight> flight = std::make_shared<RefreshFlight>();
    d->flight = flight;
    bool dead = false;
    std::optional<RefreshResponse> fresh;
    try {
        fresh = co_await m_client.refresh(d->refreshToken);
    } catch (const SupabaseError &error) {
        // The service refused the refresh token itself: the session is over on every device.
        dead = error.status() == 400 || error.status() == 401;
        qCInfo(lcAuthStore) << (dead ? "the session ended:" : "Refresh failed:") << error.what();
    } catch (const TransportError &error) {
        // No answer says nothing about the session; try again later.
        qCInfo(lcAuthStore) << "Refresh failed:" << error.what();
    }
    if (fresh) {
        co_await applyTokens(fresh->accessToken, fresh->refreshToken, fresh->expiresIn, true);
        flight->token = fresh->accessToken;
    } else if (dead) {
        co_await clearSessionLocally();
    }
    flight->done = true;
    d->flight.reset();
    emit flight->finished();
    co_return std::optional<QString>(flight->token);
}

QCoro::Task<> AuthStore::signOut()
{
    setWorking(true);
    if (!d->accessToken.isEmpty()) {
        try {
            co_await m_client.signOut(d->accessToken);
        } catch (const std::exception &error) {
            // Signing out works locally even when the server cannot hear it.
            qCInfo(lcAuthStore) << "Sign-out not confirmed by the server:" << error.what();
        }
    }
    co_await d->secrets->remove(passwordItem);
    co_await clearSessionLocally();
    setWorking(false);
}

QCoro::Task<bool> AuthStore::switchAccount(QString userId)
{
    const auto account = std::find_if(m_accounts.cbegin(), m_accounts.cend(),
                                      [&](const RememberedAccount &a) { return a.id == userId; });
    if (account == m_accounts.cend()) {
        co_return false;
    }
    const RememberedAccount chosen = *account;
    setWorking(true);
    co_await clearSessionLocally();
    bool switched = false;
    try {
        const RefreshResponse fresh = co_await m_client.refresh(chosen.refreshToken);
        d->refreshToken = chosen.refreshToken;
        co_await applyTokens(fresh.accessToken, fresh.refreshToken, fresh.expiresIn, true);
        setUserId(chosen.id);
        setEmail(chosen.email);
        setLastError({});
        setSignedIn(true);
        rememberCurrentAccount();
        emit sessionChanged();
        switched = true;
    } catch (const std::exception &error) {
        const auto *backend = dynamic_cast<const SupabaseError *>(&error);
        if (backend && (backend->status() == 400 || backend->status() == 401)) {
            //% "Couldn't switch to %1. That account's session expired - sign in to it again."
            setLastError(qtTrId("auth.err.switchExpired").arg(chosen.email));
        } else {
            setLastError(message(classify(error)));
        }
    }
    setWorking(false);
    co_return switched;
}

QCoro::Task<bool> AuthStore::deleteAccount()
{
    const std::optional<QString> token = co_await validToken(30);
    if (!token) {
        setLastError(SupabaseError::noAuth().message());
        co_return false;
    }
    setWorking(true);
    bool deleted = false;
    try {
        const QJsonObject confirmation{{u"confirm"_s, u"DELETE"_s}};
        co_await m_client.invokeFunction(u"delete-account"_s, *token, confirmation);
        endSessionAfterAccountDeletion();
        deleted = true;
    } catch (const std::exception &error) {
        qCWarning(lcAuthStore) << "Delete account failed:" << error.what();
        setLastError(message(classify(error)));
    }
    setWorking(false);
    co_return deleted;
}

void AuthStore::endSessionAfterAccountDeletion()
{
    QList<RememberedAccount> accounts = m_accounts;
    accounts.removeIf([&](const RememberedAccount &account) { return account.id == m_userId; });
    setAccounts(accounts);
    d->secrets->remove(passwordItem);
    clearSessionLocally();
}

void AuthStore::handleCallback(const QUrl &url)
{
    d->callbackUrl = url;
    if (d->callbackWaiter) {
        emit d->callbackWaiter->finished();
    }
}

QCoro::Task<bool> AuthStore::signInWithOAuth(QString provider, BrowserOpener openBrowser,
                                             std::optional<QUrl> appRedirect)
{
    // The verifier: 64 characters of the unreserved alphabet.
    static const QByteArray alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~";
    QByteArray verifier(64, Qt::Uninitialized);
    for (char &c : verifier) {
        c = alphabet.at(QRandomGenerator::system()->bounded(int(alphabet.size())));
    }
    const QByteArray challenge = QCryptographicHash::hash(verifier, QCryptographicHash::Sha256)
                                     .toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);

    // Where no handler of the application's own address scheme is installed, the browser comes
    // back to a one-time address on this machine instead.
    QTcpServer loopback;
    QString redirect;
    if (appRedirect) {
        redirect = appRedirect->toString();
    } else if (loopback.listen(QHostAddress::LocalHost, 0)) {
        redirect = u"http://127.0.0.1:%1/auth-callback"_s.arg(loopback.serverPort());
    } else {
        //% "Could not start the sign-in."
        setLastError(qtTrId("auth.err.oauthCannotStart"));
        co_return false;
    }
    QUrl authorize(m_client.baseUrl().toString() + u"/auth/v1/authorize"_s);
    QUrlQuery query;
    query.addQueryItem(u"provider"_s, provider);
    query.addQueryItem(u"redirect_to"_s, redirect);
    query.addQueryItem(u"code_challenge"_s, QString::fromLatin1(challenge));
    query.addQueryItem(u"code_challenge_method"_s, u"s256"_s);
    authorize.setQuery(query);
    if (!authorize.isValid()) {
        //% "The sign-in address is not valid."
        setLastError(qtTrId("auth.err.oauthBadUrl"));
        co_return false;
    }

    setWorking(true);
    d->callbackUrl = {};
    if (!openBrowser(authorize)) {
        setLastError(qtTrId("auth.err.oauthCannotStart"));
        setWorking(false);
        co_return false;
    }

    // Wait for the browser: either it calls at the loopback address, or the application's
    // scheme handler hands the address over (handleCallback), or the user gives up.
    QUrl landing;
    RefreshFlight wait;
    QTimer giveUp;
    giveUp.setSingleShot(true);
    QObject::connect(&giveUp, &QTimer::timeout, &wait, &RefreshFlight::finished);
    giveUp.start(std::chrono::minutes(5));
    d->callbackWaiter = &wait;
    QObject::connect(&loopback, &QTcpServer::newConnection, &wait, [&] {
        QTcpSocket *socket = loopback.nextPendingConnection();
        QObject::connect(socket, &QTcpSocket::readyRead, &wait, [&, socket] {
            const QByteArray request = socket->readAll();
            const QByteArray line = request.left(request.indexOf('\r'));
            const QByteArray target = line.split(' ').value(1);
            landing = QUrl(redirect).resolved(QUrl::fromEncoded(target));
            //% "You are signed in to Morvane. You can close this window."
            const QByteArray page =
                "<!doctype html><meta charset=utf-8><p>" + qtTrId("auth.oauthDone").toHtmlEscaped().toUtf8() + "</p>";
            socket->write("HTTP/1.1 200 OK\r\nContent-Type: text/html; charset=utf-8\r\nConnection: close\r\n"
                          "Content-Length: " +
                          QByteArray::number(page.size()) + "\r\n\r\n" + page);
            socket->disconnectFromHost();
            emit wait.finished();
        });
    });
    co_await qCoro(&wait, &RefreshFlight::finished);
    d->callbackWaiter = nullptr;
    if (landing.isEmpty()) {
        landing = d->callbackUrl;
    }
    if (landing.isEmpty()) {
        //% "The sign-in was cancelled."
        setLastError(qtTrId("auth.err.oauthCancelled"));
        setWorking(false);
        co_return false;
    }
    const QUrlQuery answer(landing);
    const QString code = answer.queryItemValue(u"code"_s);
    // The server says why it refused, for instance an address that the provider did not confirm.
    if (const QString refused = answer.queryItemValue(u"error_description"_s, QUrl::FullyDecoded).simplified();
        code.isEmpty() && !refused.isEmpty()) {
        //% "The sign-in was refused: %1"
        setLastError(qtTrId("auth.err.oauthRefused").arg(refused.left(300)));
        setWorking(false);
        co_return false;
    }
    if (code.isEmpty()) {
        //% "The sign-in came back without a code."
        setLastError(qtTrId("auth.err.oauthNoCode"));
        setWorking(false);
        co_return false;
    }
    bool signedIn = false;
    try {
        const AuthTokens tokens = co_await m_client.exchangeCodeForSession(code, QString::fromLatin1(verifier));
        co_await applyTokens(tokens.accessToken, tokens.refreshToken, tokens.expiresIn);
        setUserId(tokens.user ? tokens.user->id : claimsOf(tokens.accessToken).value(u"sub"_s).toString());
        setEmail(tokens.user && tokens.user->email ? *tokens.user->email : QString());
        if (tokens.user && tokens.user->userMetadata) {
            const AuthUser::Metadata &metadata = *tokens.user->userMetadata;
            d->oauthDisplayNameGuess =
                metadata.fullName.value_or(metadata.name.value_or(metadata.displayName.value_or(QString())));
        }
        setLastError({});
        setSignedIn(true);
        rememberCurrentAccount();
        emit sessionChanged();
        signedIn = true;
    } catch (const std::exception &error) {
        setLastError(message(classify(error)));
    }
    setWorking(false);
    co_return signedIn;
}

#include "authstore.moc"
