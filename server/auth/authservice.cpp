#include "authservice.h"

#include "auth/jwt.h"
#include "pg/pgpool.h"

#include <QCryptographicHash>
#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTimer>
#include <QUrlQuery>
#include <QUuid>

Q_LOGGING_CATEGORY(lcAuth, "morvane.server.auth")

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

struct AuthService::Failure : std::exception
{
    Failure(int status, QString code, QString message)
        : status(status)
        , code(std::move(code))
        , message(std::move(message))
    {}
    int status;
    QString code;
    QString message;
};

struct AuthService::Answer
{
    int status = 200;
    QJsonValue body = QJsonObject();
    HttpHeaders headers;
    bool noBody = false;
};

namespace {

constexpr qsizetype maxEmailLength = 255;
constexpr qsizetype maxPasswordBytes = 72; // what bcrypt reads
constexpr qsizetype maxMetadataBytes = 16 * 1024;
// Spent on unknown addresses too, so that the answer's timing does not tell which ones exist.
constexpr auto dummyHash = "$2a$10$CwTycUXWue0Thq9StjUM0uJ8DPLKXt1FYlwYpQW2G3cAwjKoh2WZu";

QByteArray randomToken(int bytes = 24)
{
    QByteArray random(bytes, Qt::Uninitialized);
    QRandomGenerator::system()->generate(random.begin(), random.end());
    return random.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
}

QByteArray sha256Hex(const QByteArray &text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex();
}

// One account per address, however it is typed: the same letters composed or decomposed
// (NFC and NFD), in any case, with spaces around.
QString normalizedEmail(const QString &text)
{
    return text.trimmed().normalized(QString::NormalizationForm_C).toLower();
}

bool isEmail(const QString &text)
{
    // No control characters: a NUL or a line break has no place in an address, a file name or a mail header.
    static const QRegularExpression pattern(
        u"^[^@\\s\\x00-\\x1f\\x7f]+@[^@\\s\\x00-\\x1f\\x7f]+\\.[^@\\s\\x00-\\x1f\\x7f]+$"_s);
    return text.size() <= maxEmailLength && pattern.match(text).hasMatch();
}

bool isCodeVerifierShape(const QString &text)
{
    static const QRegularExpression pattern(u"^[A-Za-z0-9._~-]{43,128}$"_s);
    return pattern.match(text).hasMatch();
}

template<class Work>
auto inTransaction(PgPool &pool, Work &&work)
{
    PgPool::Lease lease = pool.acquire(10s);
    lease->execScript("BEGIN");
    if constexpr (std::is_void_v<decltype(work(*lease))>) {
        work(*lease);
        lease->execScript("COMMIT");
    } else {
        auto result = work(*lease);
        lease->execScript("COMMIT");
        return result;
    }
}

QJsonObject userJson(PgConnection &db, const QString &userId)
{
    const PgResult row = db.exec(
        "SELECT json_strip_nulls(json_build_object("
        " 'id', u.id, 'aud', coalesce(u.aud, 'authenticated'), 'role', coalesce(u.role, 'authenticated'),"
        " 'email', coalesce(u.email, ''), 'email_confirmed_at', u.email_confirmed_at, 'phone', coalesce(u.phone, ''),"
        " 'confirmation_sent_at', u.confirmation_sent_at, 'recovery_sent_at', u.recovery_sent_at,"
        " 'confirmed_at', u.confirmed_at, 'last_sign_in_at', u.last_sign_in_at,"
        " 'app_metadata', coalesce(u.raw_app_meta_data, '{}'), 'user_metadata', coalesce(u.raw_user_meta_data, '{}'),"
        " 'identities', coalesce((SELECT json_agg(json_build_object('identity_id', i.id, 'id', i.provider_id,"
        "   'user_id', i.user_id, 'identity_data', i.identity_data, 'provider', i.provider,"
        "   'last_sign_in_at', i.last_sign_in_at, 'created_at', i.created_at, 'updated_at', i.updated_at,"
        "   'email', i.email) ORDER BY i.created_at) FROM auth.identities i WHERE i.user_id = u.id), '[]'),"
        " 'created_at', u.created_at, 'updated_at', u.updated_at, 'is_anonymous', coalesce(u.is_anonymous, false)"
        "))::text FROM auth.users u WHERE u.id = $1",
        {userId.toUtf8()});
    return row.rows() == 0 ? QJsonObject() : QJsonDocument::fromJson(row.value(0, 0)).object();
}

QJsonObject readJsonBody(const HttpRequest &request)
{
    if (request.body.trimmed().isEmpty()) {
        return {};
    }
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(request.body, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject()) {
        throw std::runtime_error(("Could not parse request body as JSON: " + error.errorString().toStdString()));
    }
    return document.object();
}

// Calls out to an identity provider from a worker thread, which has no event loop of its own.
QJsonObject fetchJson(const QNetworkRequest &request, const QByteArray &method, const QByteArray &body)
{
    QNetworkAccessManager manager;
    QNetworkReply *reply = method == "GET" ? manager.get(request) : manager.post(request, body);
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(15000, &loop, &QEventLoop::quit);
    loop.exec();
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QByteArray answer = reply->isFinished() ? reply->readAll() : QByteArray();
    delete reply;
    if (status < 200 || status > 299) {
        throw std::runtime_error("the identity provider answered " + std::to_string(status));
    }
    return QJsonDocument::fromJson(answer).object();
}

// Who asks, for the limits: one address, whether it arrives as IPv4 or mapped into IPv6.
QString clientOf(const HttpRequest &request)
{
    bool isV4 = false;
    const quint32 v4 = request.remote.toIPv4Address(&isV4);
    return isV4 ? QHostAddress(v4).toString() : request.remote.toString();
}

QString withQuery(const QString &address, const QString &query)
{
    return address + (address.contains(u'?') ? u'&' : u'?') + query;
}

} // namespace

QList<IdentityProvider> AuthSettings::readProviders(const QString &path, QString *error)
{
    QList<IdentityProvider> providers;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return providers;
    }
    const QJsonObject all = QJsonDocument::fromJson(file.readAll()).object();
    for (auto it = all.begin(); it != all.end(); ++it) {
        const QJsonObject config = it.value().toObject();
        IdentityProvider provider;
        provider.name = it.key();
        provider.clientId = config.value(u"client_id").toString();
        provider.clientSecret = config.value(u"client_secret").toString();
        provider.authorizationEndpoint = QUrl(config.value(u"authorization_endpoint").toString());
        provider.tokenEndpoint = QUrl(config.value(u"token_endpoint").toString());
        provider.userinfoEndpoint = QUrl(config.value(u"userinfo_endpoint").toString());
        provider.scope = config.value(u"scope").toString(provider.scope);
        if (provider.clientId.isEmpty() || !provider.authorizationEndpoint.isValid() ||
            !provider.tokenEndpoint.isValid() || !provider.userinfoEndpoint.isValid()) {
            if (error) {
                *error = u"provider %1 in %2 needs client_id and the three endpoints"_s.arg(it.key(), path);
            }
            continue;
        }
        providers.append(provider);
    }
    return providers;
}

AuthService::AuthService(PgPool &pool, QByteArray jwtSecret, QUrl publicUrl, AuthSettings settings)
    : m_pool(pool)
    , m_secret(std::move(jwtSecret))
    , m_publicUrl(std::move(publicUrl))
    , m_settings(std::move(settings))
    , m_outbox(m_settings.outboxDir)
    , m_redirects(m_publicUrl, m_settings.redirectUrls)
{}

HttpResponse AuthService::handle(const HttpRequest &request)
{
    // Two error forms: newer clients name an API version and get {"code","message"}; older ones
    // get the numeric code with "error_code" and "msg".
    const bool versioned = !request.header("x-supabase-api-version").isEmpty();
    HttpHeaders versionHeader;
    if (versioned) {
        versionHeader.emplaceBack("X-Supabase-Api-Version", "2024-01-01");
    }
    auto failure = [&](int status, const QString &code, const QString &message) {
        const QJsonObject body = versioned
                                     ? QJsonObject{{u"code"_s, code}, {u"message"_s, message}}
                                     : QJsonObject{{u"code"_s, status}, {u"error_code"_s, code}, {u"msg"_s, message}};
        HttpHeaders headers = versionHeader;
        headers.append({"x-sb-error-code", code.toUtf8()});
        return HttpResponse::json(status, QJsonDocument(body).toJson(QJsonDocument::Compact), headers);
    };
    try {
        Answer answer = route(request);
        answer.headers.append(versionHeader);
        if (answer.noBody) {
            return {answer.status, answer.headers, {}};
        }
        const QByteArray body = answer.body.isArray()
                                    ? QJsonDocument(answer.body.toArray()).toJson(QJsonDocument::Compact)
                                    : QJsonDocument(answer.body.toObject()).toJson(QJsonDocument::Compact);
        return HttpResponse::json(answer.status, body, answer.headers);
    } catch (const Failure &error) {
        return failure(error.status, error.code, error.message);
    } catch (const PgPool::Busy &) {
        return failure(503, u"unexpected_failure"_s, u"The server is busy; try again."_s);
    } catch (const PgException &error) {
        // Text the database cannot hold (a NUL character, also as \u0000 in JSON) is the
        // request's fault, not ours.
        if (error.error().sqlstate == "22021" || error.error().sqlstate == "22P05") {
            return failure(400, u"validation_failed"_s, u"Text may not contain NUL characters"_s);
        }
        qCWarning(lcAuth) << request.method << request.path << "database:" << error.what();
        return failure(500, u"unexpected_failure"_s, u"Database error"_s);
    } catch (const std::runtime_error &error) {
        return failure(400, u"bad_json"_s, QString::fromStdString(error.what()));
    }
}

AuthService::Answer AuthService::route(const HttpRequest &request)
{
    using Handler = Answer (AuthService::*)(const HttpRequest &);
    struct Route
    {
        const char *method;
        const char16_t *path;
        Handler handler;
    };
    static const Route routes[] = {
        {"POST", u"/signup", &AuthService::signUp},      {"POST", u"/token", &AuthService::token},
        {"POST", u"/recover", &AuthService::recover},    {"POST", u"/resend", &AuthService::resend},
        {"POST", u"/logout", &AuthService::logout},      {"GET", u"/user", &AuthService::user},
        {"PUT", u"/user", &AuthService::updateUser},     {"GET", u"/verify", &AuthService::verify},
        {"GET", u"/authorize", &AuthService::authorize}, {"GET", u"/callback", &AuthService::callback},
        {"GET", u"/settings", &AuthService::settings},
    };
    const QString path = request.path.mid(prefix().size());
    for (const Route &route : routes) {
        if (request.method == route.method && path == QStringView(route.path)) {
            return (this->*route.handler)(request);
        }
    }
    throw Failure(404, u"not_found"_s, u"The requested resource does not exist"_s);
}

QJsonObject AuthService::tokenAnswer(PgConnection &db, const QString &userId, const QString &sessionId,
                                     const QByteArray &refreshToken, const QString &method)
{
    const QJsonObject user = userJson(db, userId);
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    const qint64 expiresAt = now + m_settings.accessTokenLifetime.count();
    const QJsonObject claims{
        {u"iss"_s, QString(m_publicUrl.toString() + u"/auth/v1"_s)},
        {u"sub"_s, userId},
        {u"aud"_s, u"authenticated"_s},
        {u"exp"_s, expiresAt},
        {u"iat"_s, now},
        {u"email"_s, user.value(u"email"_s)},
        {u"phone"_s, u""_s},
        {u"app_metadata"_s, user.value(u"app_metadata"_s)},
        {u"user_metadata"_s, user.value(u"user_metadata"_s)},
        {u"role"_s, u"authenticated"_s},
        {u"aal"_s, u"aal1"_s},
        {u"amr"_s, QJsonArray{QJsonObject{{u"method"_s, method}, {u"timestamp"_s, now}}}},
        {u"session_id"_s, sessionId},
        {u"is_anonymous"_s, false},
    };
    QJsonObject answer;
    answer.insert(u"access_token"_s, QString::fromLatin1(Jwt::sign(claims, m_secret)));
    answer.insert(u"token_type"_s, u"bearer"_s);
    answer.insert(u"expires_in"_s, qint64(m_settings.accessTokenLifetime.count()));
    answer.insert(u"expires_at"_s, expiresAt);
    answer.insert(u"refresh_token"_s, QString::fromLatin1(refreshToken));
    answer.insert(u"user"_s, user);
    return answer;
}

QJsonObject AuthService::issueSession(PgConnection &db, const QString &userId, const QString &method)
{
    const QByteArray session =
        db.exec("INSERT INTO auth.sessions (user_id) VALUES ($1) RETURNING id", {userId.toUtf8()}).value(0, 0);
    const QByteArray refresh = randomToken();
    db.exec("INSERT INTO auth.refresh_tokens (token, user_id, session_id) VALUES ($1, $2, $3)",
            {refresh, userId.toUtf8(), session});
    db.exec("UPDATE auth.users SET last_sign_in_at = now() WHERE id = $1", {userId.toUtf8()});
    return tokenAnswer(db, userId, QString::fromLatin1(session), refresh, method);
}

void AuthService::checkEmailAllowance(const QString &email)
{
    const QString key = u"mail:"_s + email.toLower();
    const qint64 wait = m_limiter.secondsUntilFree(key, m_settings.emailInterval, QDateTime::currentDateTimeUtc());
    if (wait > 0) {
        throw Failure(429, u"over_email_send_rate_limit"_s,
                      u"For security purposes, you can only request this after %1 seconds."_s.arg(wait));
    }
    m_limiter.record(key, QDateTime::currentDateTimeUtc());
}

void AuthService::sendLink(PgConnection &db, const QString &userId, const QString &email, const QString &type,
                           const QString &redirectTo)
{
    const QByteArray token = randomToken(32);
    const bool recovery = type == u"recovery";
    db.exec(recovery ? "UPDATE auth.users SET recovery_token = $2, recovery_sent_at = now() WHERE id = $1"
                     : "UPDATE auth.users SET confirmation_token = $2, confirmation_sent_at = now() WHERE id = $1",
            {userId.toUtf8(), sha256Hex(token)});
    QUrlQuery query;
    query.addQueryItem(u"token"_s, QString::fromLatin1(token));
    query.addQueryItem(u"type"_s, type);
    query.addQueryItem(u"redirect_to"_s, QString::fromUtf8(QUrl::toPercentEncoding(m_redirects.target(redirectTo))));
    const QString link = m_publicUrl.toString() + u"/auth/v1/verify?"_s + query.toString(QUrl::FullyEncoded);
    const QString subject = recovery ? u"Reset your password"_s : u"Confirm your signup"_s;
    const QString body = recovery ? u"Follow this link to reset the password of your Morvane account:\n"_s + link
                                  : u"Follow this link to confirm your Morvane account:\n"_s + link;
    if (m_outbox.send(email, subject, body).isEmpty()) {
        throw Failure(500, u"unexpected_failure"_s, u"Error sending the e-mail"_s);
    }
}

AuthService::Answer AuthService::signUp(const HttpRequest &request)
{
    const QJsonObject body = readJsonBody(request);
    const QString email = normalizedEmail(body.value(u"email"_s).toString());
    const QString password = body.value(u"password"_s).toString();
    const QJsonValue data = body.value(u"data"_s);
    if (!isEmail(email)) {
        throw Failure(400, u"validation_failed"_s, u"Unable to validate email address: invalid format"_s);
    }
    if (password.size() < 6) {
        throw Failure(422, u"weak_password"_s, u"Password should be at least 6 characters."_s);
    }
    if (password.toUtf8().size() > maxPasswordBytes) {
        throw Failure(422, u"weak_password"_s, u"Password cannot be longer than 72 characters"_s);
    }
    const QJsonObject metadata = data.toObject();
    if (QJsonDocument(metadata).toJson(QJsonDocument::Compact).size() > maxMetadataBytes) {
        throw Failure(400, u"validation_failed"_s, u"User metadata is too large"_s);
    }
    const QString landing = request.queryValue(u"redirect_to"_s);
    const QString signUpKey = u"signup:"_s + clientOf(request);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    if (m_limiter.count(signUpKey, m_settings.signUpWindow, now) >= m_settings.signUpsPerClient) {
        throw Failure(429, u"over_request_rate_limit"_s, u"Too many sign-ups from this address; try again later."_s);
    }
    m_limiter.record(signUpKey, now);

    return inTransaction(m_pool, [&](PgConnection &db) -> Answer {
        const PgResult existing =
            db.exec("SELECT id, email_confirmed_at IS NOT NULL FROM auth.users WHERE lower(email) = $1 FOR UPDATE",
                    {email.toUtf8()});
        if (existing.rows() > 0) {
            if (m_settings.autoConfirm) {
                throw Failure(422, u"user_already_exists"_s, u"User already registered"_s);
            }
            const QString id = QString::fromLatin1(existing.value(0, 0));
            if (existing.value(0, 1) == "t") {
                // Confirmed already: answer like a new sign-up, but with no identity and no mail,
                // so that the answer does not tell whether the address has an account.
                const QString now = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
                return {200, QJsonObject{{u"id"_s, QUuid::createUuid().toString(QUuid::WithoutBraces)},
                                         {u"aud"_s, u"authenticated"_s},
                                         {u"role"_s, u"authenticated"_s},
                                         {u"email"_s, email},
                                         {u"phone"_s, u""_s},
                                         {u"confirmation_sent_at"_s, now},
                                         {u"app_metadata"_s, QJsonObject{}},
                                         {u"user_metadata"_s, QJsonObject{}},
                                         {u"identities"_s, QJsonArray{}},
                                         {u"created_at"_s, now},
                                         {u"updated_at"_s, now},
                                         {u"is_anonymous"_s, false}}};
            }
            checkEmailAllowance(email);
            sendLink(db, id, email, u"signup"_s, landing);
            return {200, userJson(db, id)};
        }
        const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
        db.exec(
            "INSERT INTO auth.users (id, aud, role, email, encrypted_password, email_confirmed_at,"
            " raw_app_meta_data, raw_user_meta_data)"
            " VALUES ($1, 'authenticated', 'authenticated', $2, extensions.crypt($3, extensions.gen_salt('bf', 10)),"
            " CASE WHEN $4 THEN now() END, '{\"provider\":\"email\",\"providers\":[\"email\"]}', $5::jsonb)",
            {id.toUtf8(), email.toUtf8(), password.toUtf8(), m_settings.autoConfirm ? "true" : "false",
             QJsonDocument(metadata).toJson(QJsonDocument::Compact)});
        const QJsonObject identity{{u"sub"_s, id},
                                   {u"email"_s, email},
                                   {u"email_verified"_s, m_settings.autoConfirm},
                                   {u"phone_verified"_s, false}};
        db.exec("INSERT INTO auth.identities (provider_id, user_id, identity_data, provider) VALUES ($1::text, "
                "$1::uuid, $2::jsonb, 'email')",
                {id.toUtf8(), QJsonDocument(identity).toJson(QJsonDocument::Compact)});
        if (m_settings.autoConfirm) {
            return {200, issueSession(db, id, u"password"_s)};
        }
        checkEmailAllowance(email);
        sendLink(db, id, email, u"signup"_s, landing);
        return {200, userJson(db, id)};
    });
}

AuthService::Answer AuthService::token(const HttpRequest &request)
{
    const QString grant = request.queryValue(u"grant_type"_s);
    const QJsonObject body = readJsonBody(request);
    if (grant == u"password") {
        return passwordGrant(body, clientOf(request));
    }
    if (grant == u"refresh_token") {
        return refreshGrant(body);
    }
    if (grant == u"pkce") {
        return pkceGrant(body);
    }
    throw Failure(400, u"validation_failed"_s, u"unsupported_grant_type"_s);
}

AuthService::Answer AuthService::passwordGrant(const QJsonObject &body, const QString &client)
{
    const QString email = normalizedEmail(body.value(u"email"_s).toString());
    const QString password = body.value(u"password"_s).toString();
    if (email.isEmpty() || password.isEmpty() || email.size() > maxEmailLength || password.size() > 1024) {
        throw Failure(400, u"validation_failed"_s, u"A valid email and password are required"_s);
    }
    // Wrong passwords are counted per client, so that a stranger's guesses lock out only the
    // stranger: per account and client, and for all accounts from one client.
    const QString key = u"password:"_s + email + u'|' + client;
    const QString clientKey = u"password-client:"_s + client;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    if (m_limiter.count(key, m_settings.passwordFailureWindow, now) >= m_settings.passwordFailuresAllowed ||
        m_limiter.count(clientKey, m_settings.passwordFailureWindow, now) >= m_settings.clientPasswordFailures) {
        throw Failure(429, u"over_request_rate_limit"_s, u"Request rate limit reached"_s);
    }
    return inTransaction(m_pool, [&](PgConnection &db) -> Answer {
        const PgResult found = db.exec("SELECT u.id, u.encrypted_password IS NOT NULL AND u.encrypted_password = "
                                       "extensions.crypt($2, u.encrypted_password),"
                                       " u.email_confirmed_at IS NOT NULL, coalesce(u.banned_until > now(), false)"
                                       " FROM auth.users u WHERE lower(u.email) = $1 AND u.deleted_at IS NULL",
                                       {email.toUtf8(), password.toUtf8()});
        if (found.rows() == 0) {
            db.exec("SELECT extensions.crypt($1, $2)", {password.toUtf8(), QByteArray(dummyHash)});
        }
        if (found.rows() == 0 || found.value(0, 1) != "t") {
            m_limiter.record(key, now);
            m_limiter.record(clientKey, now);
            throw Failure(400, u"invalid_credentials"_s, u"Invalid login credentials"_s);
        }
        // Checked only after the password, so that a stranger cannot learn which addresses wait
        // for confirmation.
        if (found.value(0, 2) != "t") {
            throw Failure(400, u"email_not_confirmed"_s, u"Email not confirmed"_s);
        }
        if (found.value(0, 3) == "t") {
            throw Failure(400, u"user_banned"_s, u"User is banned"_s);
        }
        return {200, issueSession(db, QString::fromLatin1(found.value(0, 0)), u"password"_s)};
    });
}

AuthService::Answer AuthService::refreshGrant(const QJsonObject &body)
{
    const QByteArray presented = body.value(u"refresh_token"_s).toString().toUtf8();
    if (presented.isEmpty() || presented.size() > 512) {
        throw Failure(400, u"validation_failed"_s, u"refresh_token required"_s);
    }
    return inTransaction(m_pool, [&](PgConnection &db) -> Answer {
        // The row lock makes two refreshes with one token line up: the second finds the token
        // revoked and its child active, and is given that child.
        const PgResult found =
            db.exec("SELECT id, user_id, session_id, revoked, updated_at > now() - make_interval(secs => $2)"
                    " FROM auth.refresh_tokens WHERE token = $1 FOR UPDATE",
                    {presented, QByteArray::number(qint64(m_settings.refreshReuseWindow.count()))});
        if (found.rows() == 0) {
            throw Failure(400, u"refresh_token_not_found"_s, u"Invalid Refresh Token: Refresh Token Not Found"_s);
        }
        const QString userId = QString::fromLatin1(found.value(0, 1));
        const QByteArray session = found.value(0, 2);
        if (found.value(0, 3) == "t") {
            // A client whose answer got lost asks again at once; a thief who copied the token
            // comes later. Only the first is given the token that replaced it.
            const PgResult active =
                db.exec("SELECT token FROM auth.refresh_tokens WHERE parent = $1 AND NOT revoked", {presented});
            if (active.rows() > 0 && found.value(0, 4) == "t") {
                return {200,
                        tokenAnswer(db, userId, QString::fromLatin1(session), active.value(0, 0), u"token_refresh"_s)};
            }
            // An older token came back: someone else may hold the family. End the session.
            db.exec("UPDATE auth.refresh_tokens SET revoked = true, updated_at = now() WHERE session_id = $1",
                    {session});
            db.exec("DELETE FROM auth.sessions WHERE id = $1", {session});
            // The refusal must not undo the revocation: commit it before failing.
            db.execScript("COMMIT");
            db.execScript("BEGIN");
            throw Failure(400, u"refresh_token_already_used"_s, u"Invalid Refresh Token: Already Used"_s);
        }
        const QByteArray fresh = randomToken();
        db.exec("UPDATE auth.refresh_tokens SET revoked = true, updated_at = now() WHERE id = $1", {found.value(0, 0)});
        db.exec("INSERT INTO auth.refresh_tokens (token, user_id, session_id, parent) VALUES ($1, $2, $3, $4)",
                {fresh, userId.toUtf8(), session, presented});
        db.exec("UPDATE auth.sessions SET refreshed_at = now(), updated_at = now() WHERE id = $1", {session});
        return {200, tokenAnswer(db, userId, QString::fromLatin1(session), fresh, u"token_refresh"_s)};
    });
}

AuthService::Answer AuthService::pkceGrant(const QJsonObject &body)
{
    const QString code = body.value(u"auth_code"_s).toString();
    const QString verifier = body.value(u"code_verifier"_s).toString();
    if (code.isEmpty() || verifier.isEmpty()) {
        throw Failure(400, u"validation_failed"_s,
                      u"invalid request: both auth code and code verifier should be non-empty"_s);
    }
    return inTransaction(m_pool, [&](PgConnection &db) -> Answer {
        const PgResult flow =
            db.exec("SELECT id, user_id, code_challenge, code_challenge_method, auth_code_issued_at < now() - "
                    "make_interval(secs => $2)"
                    " FROM auth.flow_state WHERE auth_code = $1 FOR UPDATE",
                    {code.toUtf8(), QByteArray::number(qint64(m_settings.flowStateLifetime.count()))});
        if (flow.rows() == 0 || flow.isNull(0, 1)) {
            throw Failure(404, u"flow_state_not_found"_s, u"invalid flow state, no valid flow state found"_s);
        }
        if (flow.value(0, 4) == "t") {
            db.exec("DELETE FROM auth.flow_state WHERE id = $1", {flow.value(0, 0)});
            // An expired flow is gone for good, also when the exchange is refused.
            db.execScript("COMMIT");
            db.execScript("BEGIN");
            throw Failure(422, u"flow_state_expired"_s, u"invalid flow state, flow state has expired"_s);
        }
        const QByteArray expected = flow.value(0, 2);
        const QByteArray computed =
            flow.value(0, 3) == "plain"
                ? verifier.toUtf8()
                : Jwt::base64Url(QCryptographicHash::hash(verifier.toUtf8(), QCryptographicHash::Sha256));
        if (!isCodeVerifierShape(verifier) || computed != expected) {
            throw Failure(400, u"bad_code_verifier"_s,
                          u"code challenge does not match previously saved code verifier"_s);
        }
        db.exec("DELETE FROM auth.flow_state WHERE id = $1", {flow.value(0, 0)});
        return {200, issueSession(db, QString::fromLatin1(flow.value(0, 1)), u"oauth"_s)};
    });
}

AuthService::Answer AuthService::recover(const HttpRequest &request)
{
    const QJsonObject body = readJsonBody(request);
    const QString email = normalizedEmail(body.value(u"email"_s).toString());
    if (!isEmail(email)) {
        throw Failure(400, u"validation_failed"_s, u"Unable to validate email address: invalid format"_s);
    }
    const QString landing = request.queryValue(u"redirect_to"_s);
    // The same answer and the same limit whether or not the address has an account.
    checkEmailAllowance(email);
    inTransaction(m_pool, [&](PgConnection &db) {
        const PgResult found =
            db.exec("SELECT id FROM auth.users WHERE lower(email) = $1 AND deleted_at IS NULL", {email.toUtf8()});
        if (found.rows() > 0) {
            sendLink(db, QString::fromLatin1(found.value(0, 0)), email, u"recovery"_s, landing);
        }
    });
    return {200, QJsonObject()};
}

AuthService::Answer AuthService::resend(const HttpRequest &request)
{
    const QJsonObject body = readJsonBody(request);
    const QString type = body.value(u"type"_s).toString();
    const QString email = normalizedEmail(body.value(u"email"_s).toString());
    if (type != u"signup") {
        throw Failure(400, u"validation_failed"_s, u"Missing one of these types: signup"_s);
    }
    if (!isEmail(email)) {
        throw Failure(400, u"validation_failed"_s, u"Unable to validate email address: invalid format"_s);
    }
    const QString landing = request.queryValue(u"redirect_to"_s);
    checkEmailAllowance(email);
    inTransaction(m_pool, [&](PgConnection &db) {
        const PgResult found = db.exec(
            "SELECT id FROM auth.users WHERE lower(email) = $1 AND email_confirmed_at IS NULL AND deleted_at IS NULL",
            {email.toUtf8()});
        if (found.rows() > 0) {
            sendLink(db, QString::fromLatin1(found.value(0, 0)), email, u"signup"_s, landing);
        }
    });
    return {200, QJsonObject()};
}

QJsonObject AuthService::requireClaims(const HttpRequest &request) const
{
    const QByteArray authorization = request.header("authorization");
    if (!authorization.toLower().startsWith("bearer ") || authorization.mid(7).trimmed().isEmpty()) {
        throw Failure(401, u"no_authorization"_s, u"This endpoint requires a Bearer token"_s);
    }
    const auto verified = Jwt::verify(authorization.mid(7).trimmed(), m_secret, QDateTime::currentSecsSinceEpoch());
    if (const auto *failure = std::get_if<Jwt::Failure>(&verified)) {
        throw Failure(403, u"bad_jwt"_s, u"invalid JWT: unable to parse or verify signature, "_s + failure->message);
    }
    const QJsonObject claims = std::get<QJsonObject>(verified);
    if (QUuid::fromString(claims.value(u"sub"_s).toString()).isNull()) {
        throw Failure(403, u"bad_jwt"_s, u"invalid claim: missing sub claim"_s);
    }
    return claims;
}

AuthService::Answer AuthService::logout(const HttpRequest &request)
{
    // As the service this one answers like, a logout without a scope ends every session.
    const QString scope = request.queryValue(u"scope"_s).isEmpty() ? u"global"_s : request.queryValue(u"scope"_s);
    if (scope != u"global" && scope != u"local" && scope != u"others") {
        throw Failure(400, u"validation_failed"_s, u"Unsupported logout scope \"%1\""_s.arg(scope));
    }
    const QJsonObject claims = requireClaims(request);
    const QByteArray user = claims.value(u"sub"_s).toString().toUtf8();
    const QByteArray session = claims.value(u"session_id"_s).toString().toUtf8();
    inTransaction(m_pool, [&](PgConnection &db) {
        if (scope == u"global") {
            db.exec("DELETE FROM auth.sessions WHERE user_id = $1", {user});
        } else if (scope == u"local") {
            db.exec("DELETE FROM auth.sessions WHERE user_id = $1 AND id::text = $2", {user, session});
        } else {
            db.exec("DELETE FROM auth.sessions WHERE user_id = $1 AND id::text <> $2", {user, session});
        }
    });
    Answer answer;
    answer.status = 204;
    answer.noBody = true;
    return answer;
}

AuthService::Answer AuthService::user(const HttpRequest &request)
{
    const QJsonObject claims = requireClaims(request);
    return inTransaction(m_pool, [&](PgConnection &db) -> Answer {
        const QString userId = claims.value(u"sub"_s).toString();
        const QJsonObject found = userJson(db, userId);
        if (found.isEmpty()) {
            throw Failure(403, u"user_not_found"_s, u"User from sub claim in JWT does not exist"_s);
        }
        const QString session = claims.value(u"session_id"_s).toString();
        if (!session.isEmpty() &&
            db.exec("SELECT 1 FROM auth.sessions WHERE id::text = $1", {session.toUtf8()}).rows() == 0) {
            throw Failure(403, u"session_not_found"_s, u"Session from session_id claim in JWT does not exist"_s);
        }
        return {200, found};
    });
}

AuthService::Answer AuthService::updateUser(const HttpRequest &request)
{
    const QJsonObject claims = requireClaims(request);
    const QJsonObject body = readJsonBody(request);
    const QByteArray userId = claims.value(u"sub"_s).toString().toUtf8();
    return inTransaction(m_pool, [&](PgConnection &db) -> Answer {
        if (body.contains(u"password"_s)) {
            const QString password = body.value(u"password"_s).toString();
            if (password.size() < 6) {
                throw Failure(422, u"weak_password"_s, u"Password should be at least 6 characters."_s);
            }
            if (password.toUtf8().size() > maxPasswordBytes) {
                throw Failure(422, u"weak_password"_s, u"Password cannot be longer than 72 characters"_s);
            }
            db.exec("UPDATE auth.users SET encrypted_password = extensions.crypt($2, extensions.gen_salt('bf', 10)),"
                    " updated_at = now() WHERE id = $1",
                    {userId, password.toUtf8()});
            // Whoever held another session, a stolen refresh token included, must sign in with the
            // new password; the device that changed it stays signed in.
            db.exec("DELETE FROM auth.sessions WHERE user_id = $1 AND id::text IS DISTINCT FROM $2",
                    {userId, claims.value(u"session_id"_s).toString().toUtf8()});
        }
        if (body.contains(u"data"_s)) {
            const QByteArray data = QJsonDocument(body.value(u"data"_s).toObject()).toJson(QJsonDocument::Compact);
            if (data.size() > maxMetadataBytes) {
                throw Failure(400, u"validation_failed"_s, u"User metadata is too large"_s);
            }
            // The merged whole is limited, not just each change: small changes must not add up.
            const PgResult merged =
                db.exec("UPDATE auth.users SET raw_user_meta_data = coalesce(raw_user_meta_data, '{}') || $2::jsonb,"
                        " updated_at = now() WHERE id = $1"
                        " AND octet_length((coalesce(raw_user_meta_data, '{}') || $2::jsonb)::text) <= $3 RETURNING 1",
                        {userId, data, QByteArray::number(maxMetadataBytes)});
            if (merged.rows() == 0 && db.exec("SELECT 1 FROM auth.users WHERE id = $1", {userId}).rows() == 1) {
                throw Failure(400, u"validation_failed"_s, u"User metadata is too large"_s);
            }
        }
        if (body.contains(u"email"_s)) {
            throw Failure(422, u"email_change_not_supported"_s, u"Changing the address is not supported"_s);
        }
        const QJsonObject found = userJson(db, QString::fromLatin1(userId));
        if (found.isEmpty()) {
            throw Failure(403, u"user_not_found"_s, u"User from sub claim in JWT does not exist"_s);
        }
        return {200, found};
    });
}

AuthService::Answer AuthService::verify(const HttpRequest &request)
{
    const QString token = request.queryValue(u"token"_s);
    const QString type = request.queryValue(u"type"_s);
    const QString landing = request.queryValue(u"redirect_to"_s);
    const QString target = m_redirects.target(landing);
    if (type != u"signup" && type != u"recovery" && type != u"email") {
        throw Failure(400, u"validation_failed"_s, u"Verify requires a verification type"_s);
    }
    const bool recovery = type == u"recovery";
    const QString userId = inTransaction(m_pool, [&](PgConnection &db) -> QString {
        const std::chrono::seconds lifetime = recovery ? m_settings.recoveryLifetime : m_settings.confirmationLifetime;
        const PgResult found = db.exec(
            recovery
                ? "UPDATE auth.users SET recovery_token = NULL,"
                  " email_confirmed_at = coalesce(email_confirmed_at, now())"
                  " WHERE recovery_token = $1 AND recovery_sent_at > now() - make_interval(secs => $2) RETURNING id"
                : "UPDATE auth.users SET confirmation_token = NULL, email_confirmed_at = coalesce(email_confirmed_at, "
                  "now())"
                  " WHERE confirmation_token = $1 AND confirmation_sent_at > now() - make_interval(secs => $2)"
                  " RETURNING id",
            {sha256Hex(token.toUtf8()), QByteArray::number(qint64(lifetime.count()))});
        return found.rows() == 0 ? QString() : QString::fromLatin1(found.value(0, 0));
    });
    Answer answer;
    answer.status = 303;
    answer.noBody = true;
    if (userId.isEmpty() || token.isEmpty()) {
        answer.headers.append(
            {"Location", QString(target + u"#error=access_denied&error_code=otp_expired"
                                          u"&error_description=Email+link+is+invalid+or+has+expired"_s)
                             .toUtf8()});
        return answer;
    }
    const QJsonObject tokens =
        inTransaction(m_pool, [&](PgConnection &db) { return issueSession(db, userId, u"otp"_s); });
    QUrlQuery fragment;
    for (const char *key : {"access_token", "expires_at", "expires_in", "refresh_token", "token_type"}) {
        fragment.addQueryItem(QString::fromLatin1(key), tokens.value(QLatin1StringView(key)).toVariant().toString());
    }
    fragment.addQueryItem(u"type"_s, recovery ? u"recovery"_s : u"signup"_s);
    answer.headers.append({"Location", QString(target + u'#' + fragment.toString(QUrl::FullyEncoded)).toUtf8()});
    return answer;
}

const IdentityProvider *AuthService::provider(const QString &name) const
{
    for (const IdentityProvider &candidate : m_settings.providers) {
        if (candidate.name == name) {
            return &candidate;
        }
    }
    return nullptr;
}

AuthService::Answer AuthService::authorize(const HttpRequest &request)
{
    const QString providerName = request.queryValue(u"provider"_s);
    const QString landing = request.queryValue(u"redirect_to"_s);
    const QString challenge = request.queryValue(u"code_challenge"_s);
    const QString method = request.queryValue(u"code_challenge_method"_s).isEmpty()
                               ? u"s256"_s
                               : request.queryValue(u"code_challenge_method"_s).toLower();
    const IdentityProvider *chosen = provider(providerName);
    if (!chosen) {
        throw Failure(400, u"validation_failed"_s,
                      providerName.isEmpty() ? u"Unsupported provider: missing provider"_s
                                             : u"Unsupported provider: provider is not enabled"_s);
    }
    if (!isCodeVerifierShape(challenge) || (method != u"s256" && method != u"plain")) {
        throw Failure(400, u"validation_failed"_s,
                      u"PKCE flow requires a code_challenge of 43 to 128 characters and a code_challenge_method of "
                      u"s256 or plain"_s);
    }
    const QByteArray flow = inTransaction(m_pool, [&](PgConnection &db) {
        return db
            .exec("INSERT INTO auth.flow_state (code_challenge, code_challenge_method, provider_type, redirect_to)"
                  " VALUES ($1, $2, $3, $4) RETURNING id",
                  {challenge.toUtf8(), method.toUtf8(), chosen->name.toUtf8(),
                   m_redirects.target(landing, RedirectPolicy::Loopback::Allowed).toUtf8()})
            .value(0, 0);
    });
    QUrl target = chosen->authorizationEndpoint;
    QUrlQuery query(target);
    query.addQueryItem(u"client_id"_s, chosen->clientId);
    query.addQueryItem(u"redirect_uri"_s, m_publicUrl.toString() + u"/auth/v1/callback"_s);
    query.addQueryItem(u"response_type"_s, u"code"_s);
    query.addQueryItem(u"scope"_s, chosen->scope);
    query.addQueryItem(u"state"_s, QString::fromLatin1(flow));
    target.setQuery(query);
    Answer answer;
    answer.status = 302;
    answer.noBody = true;
    answer.headers.append({"Location", target.toEncoded()});
    return answer;
}

AuthService::Answer AuthService::callback(const HttpRequest &request)
{
    const QString code = request.queryValue(u"code"_s);
    const QString state = request.queryValue(u"state"_s);
    const QString providerError = request.queryValue(u"error"_s);
    if (QUuid::fromString(state).isNull()) {
        throw Failure(400, u"bad_oauth_state"_s, u"OAuth state parameter missing or invalid"_s);
    }
    const auto flow = inTransaction(m_pool, [&](PgConnection &db) {
        return db.exec("SELECT provider_type, redirect_to FROM auth.flow_state WHERE id = $1 AND auth_code IS NULL",
                       {state.toUtf8()});
    });
    if (flow.rows() == 0) {
        throw Failure(404, u"flow_state_not_found"_s, u"invalid flow state, no valid flow state found"_s);
    }
    const IdentityProvider *chosen = provider(QString::fromUtf8(flow.value(0, 0)));
    const QString landing = QString::fromUtf8(flow.value(0, 1));
    auto redirectError = [&](const QString &error, const QString &description) {
        Answer answer;
        answer.status = 302;
        answer.noBody = true;
        answer.headers.append(
            {"Location", withQuery(landing, u"error="_s + error + u"&error_description="_s +
                                                QString::fromUtf8(QUrl::toPercentEncoding(description)))
                             .toUtf8()});
        return answer;
    };
    if (!chosen) {
        return redirectError(u"server_error"_s, u"the provider is no longer configured"_s);
    }
    if (!providerError.isEmpty() || code.isEmpty()) {
        return redirectError(u"access_denied"_s, u"the provider did not grant access"_s);
    }

    QJsonObject profile;
    try {
        QNetworkRequest exchange(chosen->tokenEndpoint);
        exchange.setHeader(QNetworkRequest::ContentTypeHeader, QByteArray("application/x-www-form-urlencoded"));
        exchange.setRawHeader("Accept", "application/json");
        QUrlQuery form;
        form.addQueryItem(u"grant_type"_s, u"authorization_code"_s);
        form.addQueryItem(u"code"_s, code);
        form.addQueryItem(u"redirect_uri"_s, m_publicUrl.toString() + u"/auth/v1/callback"_s);
        form.addQueryItem(u"client_id"_s, chosen->clientId);
        form.addQueryItem(u"client_secret"_s, chosen->clientSecret);
        const QJsonObject tokens = fetchJson(exchange, "POST", form.toString(QUrl::FullyEncoded).toUtf8());
        QNetworkRequest info(chosen->userinfoEndpoint);
        info.setRawHeader("Authorization", "Bearer " + tokens.value(u"access_token"_s).toString().toUtf8());
        info.setRawHeader("Accept", "application/json");
        profile = fetchJson(info, "GET", {});
    } catch (const std::runtime_error &error) {
        qCWarning(lcAuth) << "sign-in through" << chosen->name << "failed:" << error.what();
        return redirectError(u"server_error"_s, u"Error getting user profile from external provider"_s);
    }
    const QString subject = profile.value(u"sub"_s).toVariant().toString();
    const QString email = normalizedEmail(profile.value(u"email"_s).toString());
    if (subject.isEmpty() || !isEmail(email)) {
        return redirectError(u"server_error"_s, u"Error getting user email from external provider"_s);
    }

    const bool verified = profile.value(u"email_verified"_s) == QJsonValue(true);
    const QByteArray authCode = randomToken(32);
    try {
        inTransaction(m_pool, [&](PgConnection &db) {
            const QByteArray identityData = QJsonDocument(profile).toJson(QJsonDocument::Compact);
            PgResult identity = db.exec("SELECT user_id FROM auth.identities WHERE provider = $1 AND provider_id = $2",
                                        {chosen->name.toUtf8(), subject.toUtf8()});
            QByteArray userId;
            if (identity.rows() > 0) {
                userId = identity.value(0, 0);
                db.exec(
                    "UPDATE auth.identities SET identity_data = $3::jsonb, last_sign_in_at = now(), updated_at = now()"
                    " WHERE provider = $1 AND provider_id = $2",
                    {chosen->name.toUtf8(), subject.toUtf8(), identityData});
            } else {
                const PgResult byEmail = db.exec("SELECT id FROM auth.users WHERE lower(email) = $1", {email.toUtf8()});
                if (byEmail.rows() > 0) {
                    // Only a provider that vouches for the address may join the existing account:
                    // anyone can name any address at a provider that does not check it.
                    if (!verified) {
                        throw Failure(409, u"email_exists"_s, u""_s);
                    }
                    userId = byEmail.value(0, 0);
                    db.exec(
                        "UPDATE auth.users SET email_confirmed_at = coalesce(email_confirmed_at, now()),"
                        " raw_app_meta_data = jsonb_set(coalesce(raw_app_meta_data, '{}'), '{providers}',"
                        " (SELECT to_jsonb(array_agg(DISTINCT p)) FROM jsonb_array_elements_text("
                        "   coalesce(raw_app_meta_data -> 'providers', '[]') || to_jsonb($2::text)) p)) WHERE id = $1",
                        {userId, chosen->name.toUtf8()});
                } else {
                    QJsonObject metadata;
                    for (const char *key : {"full_name", "name", "display_name", "avatar_url", "picture"}) {
                        if (profile.contains(QLatin1StringView(key))) {
                            metadata.insert(QLatin1StringView(key), profile.value(QLatin1StringView(key)));
                        }
                    }
                    if (!metadata.contains(u"display_name"_s) && metadata.contains(u"name"_s)) {
                        metadata.insert(u"display_name"_s, metadata.value(u"name"_s));
                    }
                    const QJsonObject app{{u"provider"_s, chosen->name}, {u"providers"_s, QJsonArray{chosen->name}}};
                    userId =
                        db.exec("INSERT INTO auth.users (aud, role, email, email_confirmed_at, raw_app_meta_data,"
                                " raw_user_meta_data) VALUES ('authenticated', 'authenticated', $1,"
                                " CASE WHEN $4 THEN now() END, $2::jsonb, $3::jsonb) RETURNING id",
                                {email.toUtf8(), QJsonDocument(app).toJson(QJsonDocument::Compact),
                                 QJsonDocument(metadata).toJson(QJsonDocument::Compact), verified ? "true" : "false"})
                            .value(0, 0);
                }
                db.exec("INSERT INTO auth.identities (provider_id, user_id, identity_data, provider, last_sign_in_at)"
                        " VALUES ($1, $2, $3::jsonb, $4, now())",
                        {subject.toUtf8(), userId, identityData, chosen->name.toUtf8()});
            }
            db.exec("UPDATE auth.flow_state SET user_id = $2, auth_code = $3, auth_code_issued_at = now(), updated_at "
                    "= now()"
                    " WHERE id = $1",
                    {state.toUtf8(), userId, authCode});
        });
    } catch (const Failure &failure) {
        if (failure.code != u"email_exists") {
            throw;
        }
        return redirectError(u"access_denied"_s,
                             u"An account with this e-mail address already exists, and %1 did not confirm that the "
                             u"address is yours. Sign in with your password instead."_s.arg(chosen->name));
    }
    Answer answer;
    answer.status = 302;
    answer.noBody = true;
    answer.headers.append({"Location", withQuery(landing, u"code="_s + QString::fromLatin1(authCode)).toUtf8()});
    return answer;
}

AuthService::Answer AuthService::settings(const HttpRequest &)
{
    QJsonObject external{{u"email"_s, true}, {u"phone"_s, false}};
    for (const IdentityProvider &provider : m_settings.providers) {
        external.insert(provider.name, true);
    }
    return {200, QJsonObject{{u"external"_s, external},
                             {u"disable_signup"_s, false},
                             {u"mailer_autoconfirm"_s, m_settings.autoConfirm},
                             {u"phone_autoconfirm"_s, false},
                             {u"sms_provider"_s, u""_s},
                             {u"saml_enabled"_s, false}}};
}
