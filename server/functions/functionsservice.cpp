#include "functionsservice.h"

#include "auth/requestidentity.h"
#include "rest/apierror.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>

Q_LOGGING_CATEGORY(lcFunctions, "morvane.server.functions")

using namespace Qt::StringLiterals;

namespace {

// "error" is the functions' own convention; "code" is what the application's client reads from
// any error body.
HttpResponse failure(int status, const QString &code, const QString &message, HttpHeaders headers = {})
{
    const QJsonObject body{{u"code"_s, code}, {u"error"_s, code}, {u"message"_s, message}};
    return HttpResponse::json(status, QJsonDocument(body).toJson(QJsonDocument::Compact), std::move(headers));
}

HttpResponse postOnly(const QString &function)
{
    return failure(405, u"method_not_allowed"_s, u"%1 takes a POST request."_s.arg(function), {{"Allow", "POST"}});
}

// The caller's identity, or the answer that refuses a token that does not verify.
std::variant<RequestIdentity, HttpResponse> callerOf(const HttpRequest &request, const QByteArray &secret)
{
    auto identity = identify(request, secret, QDateTime::currentSecsSinceEpoch());
    if (const auto *problem = std::get_if<Jwt::Failure>(&identity)) {
        return failure(401, u"invalid_token"_s, problem->message,
                       {{"WWW-Authenticate", "Bearer error=\"invalid_token\""}});
    }
    return std::get<RequestIdentity>(std::move(identity));
}

} // namespace

FunctionsService::FunctionsService(PgPool &pool, QByteArray jwtSecret, QString storageRoot, bool checkSessions,
                                   std::shared_ptr<AIRelay> relay)
    : m_scope{pool, checkSessions}
    , m_secret(std::move(jwtSecret))
    , m_files(std::move(storageRoot))
    , m_relay(std::move(relay))
{}

HttpResponse FunctionsService::handle(const HttpRequest &request)
{
    const QString name = request.path.mid(prefix().size() + 1);
    if (name == u"delete-account") {
        return deleteAccount(request);
    }
    if (name == u"morvane-ai") {
        return aiRelay(request);
    }
    return failure(404, u"function_not_found"_s, u"There is no function \"%1\" on this server."_s.arg(name));
}

HttpResponse FunctionsService::deleteAccount(const HttpRequest &request)
{
    if (request.method != "POST") {
        return postOnly(u"delete-account"_s);
    }
    auto caller = callerOf(request, m_secret);
    if (auto *refusal = std::get_if<HttpResponse>(&caller)) {
        return *refusal;
    }
    const RequestIdentity &identity = std::get<RequestIdentity>(caller);
    if (identity.isAnonymous()) {
        return failure(401, u"not_signed_in"_s, u"Sign in to delete your account."_s, {{"WWW-Authenticate", "Bearer"}});
    }
    if (identity.role != u"authenticated" || identity.userId().isEmpty()) {
        return failure(403, u"user_token_required"_s, u"Only the account's own user can delete it."_s);
    }
    // A deliberate, exact confirmation: a stray or replayed request with any other body deletes nothing.
    const QJsonDocument body = QJsonDocument::fromJson(request.body);
    if (!body.isObject() || body.object() != QJsonObject{{u"confirm"_s, u"DELETE"_s}}) {
        return failure(400, u"confirmation_required"_s,
                       u"To delete the account and all its data, send {\"confirm\":\"DELETE\"}."_s);
    }

    QList<std::pair<QString, QString>> files;
    try {
        m_scope.run(identity, request, false, [&](PgConnection &db) {
            const PgResult removed = db.exec("SELECT bucket_id, version FROM app.delete_account()");
            for (int row = 0; row < removed.rows(); ++row) {
                files.append({QString::fromUtf8(removed.value(row, 0)), QString::fromUtf8(removed.value(row, 1))});
            }
            return true;
        });
    } catch (const ApiError &error) {
        if (error.code() == u"P0002") {
            return failure(404, u"user_not_found"_s, u"This account does not exist (any more)."_s);
        }
        if (error.status() == 401) {
            return failure(401, u"session_ended"_s, error.message(), {{"WWW-Authenticate", "Bearer"}});
        }
        qCWarning(lcFunctions) << "account deletion failed:" << error.what();
        return failure(error.status() >= 500 ? error.status() : 500, u"deletion_failed"_s,
                       u"The account could not be deleted. Please try again later."_s);
    }
    // Only now that no row points at them: had the transaction failed, every file would still be needed.
    for (const auto &[bucket, version] : std::as_const(files)) {
        m_files.remove(bucket, version);
    }
    return HttpResponse::json(200, R"({"deleted":true})");
}

HttpResponse FunctionsService::aiRelay(const HttpRequest &request)
{
    if (request.method != "POST") {
        return postOnly(u"morvane-ai"_s);
    }
    auto caller = callerOf(request, m_secret);
    if (auto *refusal = std::get_if<HttpResponse>(&caller)) {
        return *refusal;
    }
    const RequestIdentity &identity = std::get<RequestIdentity>(caller);
    if (identity.isAnonymous()) {
        return failure(401, u"not_signed_in"_s, u"Sign in to use Morvane AI."_s, {{"WWW-Authenticate", "Bearer"}});
    }
    // The limits are per user: a service token has no user to hold to them.
    if (identity.role != u"authenticated" || identity.userId().isEmpty()) {
        return failure(403, u"user_token_required"_s, u"Morvane AI answers signed-in users only."_s);
    }
    if (!m_relay) {
        return failure(503, u"ai_not_configured"_s, u"No AI provider is configured on this server."_s);
    }
    return m_relay->forward(identity.userId(), request.body);
}
