#include "supabase.h"

#include "backend/config.h"

#include <QDeadlineTimer>
#include <QHostAddress>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QMutex>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QThreadStorage>
#include <QTimeZone>
#include <QTimer>

#include <QCoroNetworkReply>
#include <QCoroTimer>

Q_LOGGING_CATEGORY(lcBackend, "morvane.backend")

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

struct Supabase::Private
{
    QUrl baseUrl;
    QByteArray anonKey;
    Options options;
};

namespace {

// QNetworkAccessManager belongs to the thread that made it, so each calling thread gets its
// own; within a thread it is shared so that connections to the backend are kept alive.
QNetworkAccessManager *threadNetworkManager()
{
    static QThreadStorage<QNetworkAccessManager *> managers;
    if (!managers.hasLocalData()) {
        managers.setLocalData(new QNetworkAccessManager);
    }
    return managers.localData();
}

// Query values reach PostgREST exactly as written: everything outside the unreserved set and
// the characters of its filter syntax is percent-encoded, notably "+" in time-zone offsets,
// which would otherwise arrive as a space.
QByteArray encodeQuery(const QueryItems &query)
{
    static const QByteArray keep = ",().:*";
    QByteArray encoded;
    for (const auto &[key, value] : query) {
        if (!encoded.isEmpty()) {
            encoded += '&';
        }
        encoded += QUrl::toPercentEncoding(key, keep) + '=' + QUrl::toPercentEncoding(value, keep);
    }
    return encoded;
}

QUrl requestUrl(const QUrl &base, const QString &path, const QueryItems &query)
{
    QByteArray encoded = base.toEncoded(QUrl::StripTrailingSlash | QUrl::RemoveQuery | QUrl::RemoveFragment);
    QString relative = path;
    while (relative.startsWith(u'/')) {
        relative.remove(0, 1);
    }
    encoded += '/' + QUrl::toPercentEncoding(relative, "/");
    if (!query.isEmpty()) {
        encoded += '?' + encodeQuery(query);
    }
    QUrl url = QUrl::fromEncoded(encoded, QUrl::StrictMode);
    if (!url.isValid() || url.isRelative() || url.host().isEmpty()) {
        return {};
    }
    return url;
}

bool isLoopback(const QUrl &url)
{
    const QString host = url.host();
    return host == u"localhost" || QHostAddress(host).isLoopback();
}

QString utf8OrEmpty(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(bytes);
    return decoder.hasError() ? QString() : text;
}

QByteArray bearer(const QString &accessToken)
{
    return "Bearer " + accessToken.toUtf8();
}

QByteArray compactJson(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

struct DeleteLater
{
    void operator()(QObject *object) const { object->deleteLater(); }
};

TransportError transportError(const QNetworkReply *reply)
{
    switch (reply->error()) {
    case QNetworkReply::TimeoutError:
    case QNetworkReply::OperationCanceledError: // a transfer time-out aborts with this code
        return TransportError(TransportError::Kind::TimedOut, reply->error(), reply->errorString());
    case QNetworkReply::NetworkSessionFailedError:
    case QNetworkReply::TemporaryNetworkFailureError:
        return TransportError(TransportError::Kind::Offline, reply->error(), reply->errorString());
    default:
        return TransportError(TransportError::Kind::Connection, reply->error(), reply->errorString());
    }
}

// Codes below 100 are failures of the connection itself, whatever status came before.
bool isConnectionFailure(QNetworkReply::NetworkError error)
{
    return error != QNetworkReply::NoError && error < QNetworkReply::ProxyConnectionRefusedError;
}

QCoro::Task<> waitForNetwork(const Connectivity *connectivity, Supabase::Channel channel, QDeadlineTimer deadline)
{
    if (!connectivity || connectivity->state() != Connectivity::State::Offline) {
        co_return;
    }
    if (channel == Supabase::Channel::Interactive) {
        throw TransportError(TransportError::Kind::Offline);
    }
    qCDebug(lcBackend) << "offline; waiting for the network before sending";
    while (connectivity->state() == Connectivity::State::Offline) {
        if (deadline.hasExpired()) {
            throw TransportError(TransportError::Kind::Offline);
        }
        co_await QCoro::sleepFor(std::min<std::chrono::milliseconds>(
            250ms, std::chrono::duration_cast<std::chrono::milliseconds>(deadline.remainingTimeAsDuration())));
    }
}

} // namespace

Supabase::Supabase(QUrl baseUrl, QString anonKey, Options options)
    : m_d(std::make_shared<Private>(Private{std::move(baseUrl), anonKey.toUtf8(), std::move(options)}))
{}

Supabase Supabase::shared()
{
    static QMutex mutex;
    static std::optional<Supabase> instance;
    static int generation = -1;
    QMutexLocker lock(&mutex);
    if (!instance || generation != Config::generation()) {
        const Config config = Config::current();
        Options options;
        options.connectivity = Connectivity::system();
        instance.emplace(config.supabaseURL, config.supabaseAnonKey, std::move(options));
        generation = Config::generation();
    }
    return *instance;
}

QUrl Supabase::baseUrl() const
{
    return m_d->baseUrl;
}

QString Supabase::anonKey() const
{
    return QString::fromUtf8(m_d->anonKey);
}

BackendRequest Supabase::restRequest(QByteArray method, const QString &table, const QString &accessToken,
                                     QueryItems query, QByteArray body) const
{
    return BackendRequest{
        std::move(method),
        u"rest/v1/" + table,
        std::move(query),
        {
            {"Content-Type", "application/json"},
            {"Accept", "application/json"},
            {"apikey", m_d->anonKey},
            {"Authorization", bearer(accessToken)},
        },
        std::move(body),
    };
}

BackendRequest Supabase::rpcRequest(const QString &name, const QString &accessToken, const AnyEncodable &body) const
{
    return restRequest("POST", u"rpc/" + name, accessToken, {}, body.toJson());
}

BackendRequest Supabase::functionRequest(const QString &name, const QString &accessToken,
                                         const AnyEncodable &body) const
{
    return BackendRequest{
        "POST",
        u"functions/v1/" + name,
        {},
        {
            {"Content-Type", "application/json"},
            {"apikey", m_d->anonKey},
            {"Authorization", bearer(accessToken)},
        },
        body.toJson(),
    };
}

BackendRequest Supabase::authRequest(const QString &path, QueryItems query, QByteArray body) const
{
    return BackendRequest{
        "POST",
        u"auth/v1/" + path,
        std::move(query),
        {
            {"Content-Type", "application/json"},
            {"apikey", m_d->anonKey},
        },
        std::move(body),
    };
}

QCoro::Task<QByteArray> Supabase::send(BackendRequest request, Channel channel) const
{
    // The coroutine keeps its own reference: the client it was called on may go away first.
    const std::shared_ptr<const Private> d = m_d;
    const QUrl url = requestUrl(d->baseUrl, request.path, request.query);
    if (url.isEmpty()) {
        throw SupabaseError::invalidURL();
    }
    const Timeouts timeouts = channel == Channel::Data ? d->options.data : d->options.interactive;
    const bool rest = request.path.startsWith(u"rest/");
    const QDeadlineTimer deadline(timeouts.total);

    if (!(d->options.loopbackIgnoresConnectivity && isLoopback(url))) {
        co_await waitForNetwork(d->options.connectivity.get(), channel, deadline);
    }

    QNetworkRequest networkRequest(url);
    for (const auto &[name, value] : std::as_const(request.headers)) {
        networkRequest.setRawHeader(name, value);
    }
    networkRequest.setTransferTimeout(int((rest ? d->options.restIdle : timeouts.idle).count()));

    QNetworkAccessManager *manager = threadNetworkManager();
    std::unique_ptr<QNetworkReply, DeleteLater> reply(
        request.method == "GET" ? manager->get(networkRequest)
                                : manager->sendCustomRequest(networkRequest, request.method, request.body));

    bool timedOut = false;
    QTimer overall;
    overall.setSingleShot(true);
    QObject::connect(&overall, &QTimer::timeout, reply.get(), [&timedOut, r = reply.get()] {
        timedOut = true;
        r->abort();
    });
    overall.start(std::max<std::chrono::milliseconds>(
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline.remainingTimeAsDuration()), 1ms));

    co_await reply.get();
    overall.stop();

    if (timedOut) {
        throw TransportError(TransportError::Kind::TimedOut, QNetworkReply::TimeoutError);
    }
    if (isConnectionFailure(reply->error())) {
        throw transportError(reply.get());
    }
    const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    const QByteArray body = reply->readAll();
    if (!status.isValid()) {
        if (reply->error() != QNetworkReply::NoError) {
            throw transportError(reply.get());
        }
        throw SupabaseError::httpStatus(0, QStringLiteral("no-response"));
    }
    const int code = status.toInt();
    if (code < 200 || code > 299) {
        qCDebug(lcBackend) << request.method << request.path << "answered" << code;
        throw SupabaseError::httpStatus(code, utf8OrEmpty(body));
    }
    co_return body;
}

QCoro::Task<> Supabase::deleteFrom(QString table, QString accessToken, QueryItems query) const
{
    co_await send(restRequest("DELETE", table, accessToken, std::move(query)), Channel::Data);
}

QCoro::Task<> Supabase::callRPC(QString name, QString accessToken, AnyEncodable body) const
{
    co_await send(rpcRequest(name, accessToken, body), Channel::Data);
}

QCoro::Task<QUrl> Supabase::signedURL(QString bucket, QString path, int expiresIn, QString accessToken) const
{
    BackendRequest request = restRequest("POST", {}, accessToken, {}, compactJson({{u"expiresIn"_s, expiresIn}}));
    request.path = u"storage/v1/object/sign/" + bucket + u'/' + path;
    const auto answer = decodeBody<QJsonObject>(co_await send(std::move(request), Channel::Data));
    const QString signedPath = answer.value(u"signedURL").toString();
    if (signedPath.isEmpty()) {
        throw SupabaseError::decoding(QStringLiteral("signedURL: required key is missing"));
    }
    // Older storage services answer a full address, newer ones a path below "storage/v1".
    QUrl url = QUrl::fromEncoded(signedPath.startsWith(u"http") ? signedPath.toUtf8()
                                                                : m_d->baseUrl.toEncoded(QUrl::StripTrailingSlash) +
                                                                      "/storage/v1" + signedPath.toUtf8());
    if (!url.isValid()) {
        throw SupabaseError::invalidURL();
    }
    co_return url;
}

QCoro::Task<QString> Supabase::uploadObject(QString bucket, QString path, QByteArray data, QByteArray contentType,
                                            bool upsert, QString accessToken) const
{
    BackendRequest request = restRequest("POST", {}, accessToken, {}, std::move(data));
    request.path = u"storage/v1/object/" + bucket + u'/' + path;
    request.headers[0].second = contentType;
    request.headers.emplaceBack("x-upsert", QByteArray(upsert ? "true" : "false"));
    const QByteArray answer = co_await send(std::move(request), Channel::Data);
    const QString key = QJsonDocument::fromJson(answer).object().value(u"Key").toString();
    co_return key.isEmpty() ? bucket + u'/' + path : key;
}

QCoro::Task<AuthTokens> Supabase::signInPassword(QString email, QString password) const
{
    // Requests are built before any co_await: GCC 12 cannot keep an initializer list's array
    // alive across a suspension point in the same expression.
    BackendRequest request = authRequest(u"token"_s, {{u"grant_type"_s, u"password"_s}},
                                         compactJson({{u"email"_s, email}, {u"password"_s, password}}));
    co_return decodeBody<AuthTokens>(co_await send(std::move(request), Channel::Interactive));
}

QCoro::Task<RefreshResponse> Supabase::refresh(QString refreshToken) const
{
    // Refreshes run ahead of data calls, in the background, so they wait for the network too.
    BackendRequest request = authRequest(u"token"_s, {{u"grant_type"_s, u"refresh_token"_s}},
                                         compactJson({{u"refresh_token"_s, refreshToken}}));
    co_return decodeBody<RefreshResponse>(co_await send(std::move(request), Channel::Data));
}

QCoro::Task<AuthTokens> Supabase::exchangeCodeForSession(QString code, QString codeVerifier) const
{
    BackendRequest request = authRequest(u"token"_s, {{u"grant_type"_s, u"pkce"_s}},
                                         compactJson({{u"auth_code"_s, code}, {u"code_verifier"_s, codeVerifier}}));
    co_return decodeBody<AuthTokens>(co_await send(std::move(request), Channel::Interactive));
}

QCoro::Task<SignUpOutcome> Supabase::signUp(QString email, QString password, QString displayName,
                                            QString redirectTo) const
{
    const QJsonObject data{
        {u"display_name"_s, displayName},
        {u"timezone"_s, QString::fromUtf8(QTimeZone::systemTimeZoneId())},
    };
    const QByteArray body = compactJson({{u"email"_s, email}, {u"password"_s, password}, {u"data"_s, data}});
    const QString landing = redirectTo.isEmpty() ? m_d->options.confirmRedirect : redirectTo;
    BackendRequest request = authRequest(u"signup"_s, {{u"redirect_to"_s, landing}}, body);
    try {
        co_return signUpOutcome(co_await send(std::move(request), Channel::Interactive));
    } catch (const SupabaseError &error) {
        const QString text = error.body();
        if (error.kind() == SupabaseError::Kind::HttpStatus &&
            (text.contains(u"already registered") || text.contains(u"already been registered") ||
             error.errorCode() == u"user_already_exists")) {
            co_return SignUpOutcome{SignUpOutcome::Kind::EmailExists, std::nullopt};
        }
        throw;
    }
}

SignUpOutcome Supabase::signUpOutcome(const QByteArray &body)
{
    const QJsonObject answer = QJsonDocument::fromJson(body).object();
    if (answer.contains(u"access_token")) {
        return {SignUpOutcome::Kind::Session, decodeBody<AuthTokens>(body)};
    }
    // Without auto-confirm the service answers the bare user; for an address that is already
    // registered it answers a look-alike user without identities, so as not to reveal it.
    const QJsonObject user = answer.contains(u"user") ? answer.value(u"user").toObject() : answer;
    const QJsonValue identities = user.value(u"identities");
    if (identities.isArray() && identities.toArray().isEmpty()) {
        return {SignUpOutcome::Kind::EmailExists, std::nullopt};
    }
    return {SignUpOutcome::Kind::NeedsConfirmation, std::nullopt};
}

QCoro::Task<> Supabase::recoverPassword(QString email) const
{
    BackendRequest request =
        authRequest(u"recover"_s, {{u"redirect_to"_s, m_d->options.resetRedirect}}, compactJson({{u"email"_s, email}}));
    co_await send(std::move(request), Channel::Interactive);
}

BackendRequest Supabase::resendRequest(const QString &email) const
{
    return authRequest(u"resend"_s, {{u"redirect_to"_s, m_d->options.confirmRedirect}},
                       compactJson({{u"type"_s, u"signup"_s}, {u"email"_s, email}}));
}

QCoro::Task<> Supabase::resendSignupConfirmation(QString email) const
{
    co_await send(resendRequest(email), Channel::Interactive);
}

BackendRequest Supabase::logoutRequest(const QString &accessToken) const
{
    BackendRequest request = authRequest(u"logout"_s, {{u"scope"_s, u"local"_s}}, {});
    request.headers.emplaceBack("Authorization", bearer(accessToken));
    return request;
}

QCoro::Task<> Supabase::signOut(QString accessToken) const
{
    co_await send(logoutRequest(accessToken), Channel::Interactive);
}

QStringList Supabase::uuidList(const QStringList &ids)
{
    static const QRegularExpression uuid(
        QStringLiteral("^[0-9a-fA-F]{8}-[0-9a-fA-F]{4}-[0-9a-fA-F]{4}-[0-9a-fA-F]{4}-[0-9a-fA-F]{12}$"));
    QStringList kept;
    for (const QString &id : ids) {
        if (uuid.match(id).hasMatch()) {
            kept.append(id);
        }
    }
    return kept;
}

QueryItems Supabase::pageQuery(QueryItems query, int offset)
{
    query.removeIf([](const auto &item) { return item.first == u"limit" || item.first == u"offset"; });
    query.append({u"limit"_s, QString::number(pageSize)});
    query.append({u"offset"_s, QString::number(offset)});
    return query;
}
