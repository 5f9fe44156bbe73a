#pragma once

#include "backend/authtypes.h"
#include "backend/connectivity.h"
#include "backend/supabaseerror.h"
#include "model/wire.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <QCoroTask>

#include <chrono>
#include <memory>

// URL query items in the caller's order, in PostgREST form ("status" = "eq.active").
using QueryItems = QList<std::pair<QString, QString>>;

// One HTTP request to the backend, before it is sent.
struct BackendRequest
{
    QByteArray method;
    QString path; // relative to the backend address, e.g. "rest/v1/tasks"
    QueryItems query;
    QList<std::pair<QByteArray, QByteArray>> headers; // sent in this order
    QByteArray body;
};

struct SupabaseTimeouts
{
    std::chrono::milliseconds idle;  // longest silence while waiting for bytes
    std::chrono::milliseconds total; // longest time for the whole call
};

// How long calls may take and how they learn about the network.
struct SupabaseOptions
{
    SupabaseTimeouts data{std::chrono::seconds(25), std::chrono::seconds(60)};
    SupabaseTimeouts interactive{std::chrono::seconds(25), std::chrono::seconds(40)};
    // Table reads and writes may stream large answers, so only the overall limit applies.
    std::chrono::milliseconds restIdle{std::chrono::seconds(60)};
    std::shared_ptr<Connectivity> connectivity;
    // A backend on this machine needs no network; tests that simulate an outage turn this off.
    bool loopbackIgnoresConnectivity = true;
    // Where sign-up confirmations and password resets land.
    QString confirmRedirect = QStringLiteral("morvane://auth/confirm");
    QString resetRedirect = QStringLiteral("morvane://auth/reset-password");
};

// The one HTTP client for the backend: tables and procedures, authentication, storage and
// server functions. It holds no user state (every data call takes the caller's access token)
// and is immutable, so copies are cheap and any thread with an event loop may call it.
class Supabase
{
public:
    // Data calls wait for the network to come back; calls a user is waiting on fail at once.
    enum class Channel { Data, Interactive };

    using Timeouts = SupabaseTimeouts;
    using Options = SupabaseOptions;

    static constexpr int pageSize = 1000;

    Supabase(QUrl baseUrl, QString anonKey, Options options = {});

    // The client for the configured backend (see Config).
    static Supabase shared();

    [[nodiscard]] QUrl baseUrl() const;
    [[nodiscard]] QString anonKey() const;

    // Tables and procedures.

    template<Wire::WireRecord T>
    QCoro::Task<QList<T>> select(QString table, QString accessToken, QueryItems query = {}) const
    {
        const QByteArray body = co_await send(restRequest("GET", table, accessToken, std::move(query)), Channel::Data);
        co_return decodeBody<QList<T>>(body);
    }

    // Reads every matching row in pages of 1000, so that no single answer is unbounded.
    // Any failing page fails the whole read.
    template<Wire::WireRecord T>
    QCoro::Task<QList<T>> selectAll(QString table, QString accessToken, QueryItems query = {}) const
    {
        QList<T> rows;
        int offset = 0;
        for (;;) {
            QList<T> page = co_await select<T>(table, accessToken, pageQuery(query, offset));
            const auto count = int(page.size());
            rows.append(std::move(page));
            if (count < pageSize) {
                break;
            }
            offset += count;
        }
        co_return rows;
    }

    template<Wire::WireRecord T>
    QCoro::Task<QList<T>> insert(QString table, QString accessToken, AnyEncodable body) const
    {
        BackendRequest request = restRequest("POST", table, accessToken, {}, body.toJson());
        request.headers.emplaceBack("Prefer", "return=representation");
        co_return decodeBody<QList<T>>(co_await send(std::move(request), Channel::Data));
    }

    // A filter that matches nothing is no error: the answer is then an empty list, which is how
    // callers notice a lost race or a missing right.
    template<Wire::WireRecord T>
    QCoro::Task<QList<T>> update(QString table, QString accessToken, QueryItems query, AnyEncodable body) const
    {
        BackendRequest request = restRequest("PATCH", table, accessToken, std::move(query), body.toJson());
        request.headers.emplaceBack("Prefer", "return=representation");
        co_return decodeBody<QList<T>>(co_await send(std::move(request), Channel::Data));
    }

    QCoro::Task<> deleteFrom(QString table, QString accessToken, QueryItems query) const;

    QCoro::Task<> callRPC(QString name, QString accessToken, AnyEncodable body) const;

    template<class T>
    QCoro::Task<T> callRPCReturning(QString name, QString accessToken, AnyEncodable body) const
    {
        co_return decodeBody<T>(co_await send(rpcRequest(name, accessToken, body), Channel::Data));
    }

    // Storage.

    // The address from which the object can be read without a token for `expiresIn` seconds.
    QCoro::Task<QUrl> signedURL(QString bucket, QString path, int expiresIn, QString accessToken) const;
    // Stores `data` as `bucket`/`path`; answers the object's key.
    QCoro::Task<QString> uploadObject(QString bucket, QString path, QByteArray data, QByteArray contentType,
                                      bool upsert, QString accessToken) const;

    // Server functions.

    template<class T = QJsonValue>
    QCoro::Task<T> invokeFunction(QString name, QString accessToken, AnyEncodable body) const
    {
        const QByteArray answer = co_await send(functionRequest(name, accessToken, body), Channel::Interactive);
        if constexpr (std::is_same_v<T, QJsonValue>) {
            if (answer.trimmed().isEmpty()) {
                co_return QJsonValue();
            }
        }
        co_return decodeBody<T>(answer);
    }

    // Authentication.

    QCoro::Task<AuthTokens> signInPassword(QString email, QString password) const;
    QCoro::Task<RefreshResponse> refresh(QString refreshToken) const;
    QCoro::Task<AuthTokens> exchangeCodeForSession(QString code, QString codeVerifier) const;
    // An empty `redirectTo` lands on the application's own confirmation address.
    QCoro::Task<SignUpOutcome> signUp(QString email, QString password, QString displayName,
                                      QString redirectTo = {}) const;
    QCoro::Task<> recoverPassword(QString email) const;
    QCoro::Task<> resendSignupConfirmation(QString email) const;
    QCoro::Task<> signOut(QString accessToken) const;

    [[nodiscard]] BackendRequest resendRequest(const QString &email) const;
    [[nodiscard]] BackendRequest logoutRequest(const QString &accessToken) const;

    // Sends a request and answers the body of a 2xx response. Any other status throws
    // SupabaseError::httpStatus (401 included: the caller decides whether to refresh and retry);
    // no answer at all throws TransportError.
    QCoro::Task<QByteArray> send(BackendRequest request, Channel channel) const;

    // Helpers for callers that build queries.

    // Keeps, in order, the strings that are UUIDs, so a malformed id can never break an
    // "in.(...)" filter.
    static QStringList uuidList(const QStringList &ids);
    // The query with any "limit" and "offset" replaced by one page starting at `offset`.
    static QueryItems pageQuery(QueryItems query, int offset);
    // The sign-up outcome that a response body of the sign-up call stands for.
    static SignUpOutcome signUpOutcome(const QByteArray &body);

    template<class T>
    static T decodeBody(const QByteArray &body)
    {
        try {
            return Wire::decodeJson<T>(body);
        } catch (const DecodeError &error) {
            throw SupabaseError::decoding(error.message());
        }
    }

private:
    struct Private;

    [[nodiscard]] BackendRequest restRequest(QByteArray method, const QString &table, const QString &accessToken,
                                             QueryItems query, QByteArray body = {}) const;
    [[nodiscard]] BackendRequest rpcRequest(const QString &name, const QString &accessToken,
                                            const AnyEncodable &body) const;
    [[nodiscard]] BackendRequest functionRequest(const QString &name, const QString &accessToken,
                                                 const AnyEncodable &body) const;
    [[nodiscard]] BackendRequest authRequest(const QString &path, QueryItems query, QByteArray body) const;

    std::shared_ptr<const Private> m_d;
};
