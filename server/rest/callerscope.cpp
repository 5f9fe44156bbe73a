#include "callerscope.h"

#include "rest/apierror.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

void CallerScope::run(const RequestIdentity &identity, const HttpRequest &request, bool readOnly,
                      const std::function<bool(PgConnection &)> &work) const
{
    std::optional<PgPool::Lease> lease;
    try {
        lease.emplace(pool.acquire(poolWait));
    } catch (const PgPool::Busy &) {
        throw ApiError(503, u"PGRST003"_s, u"Timed out acquiring connection from connection pool."_s);
    } catch (const PgException &error) {
        throw ApiError::fromDatabase(error.error(), identity.isAnonymous());
    }
    PgConnection &connection = **lease;
    QJsonObject headers;
    for (const auto &[name, value] : request.headers) {
        if (name != "authorization" && name != "apikey" && name != "cookie") {
            headers.insert(QString::fromLatin1(name), QString::fromUtf8(value));
        }
    }
    try {
        connection.execScript(readOnly ? "BEGIN ISOLATION LEVEL READ COMMITTED READ ONLY" : "BEGIN");
        connection.exec("SELECT set_config('role', $1, true), set_config('request.jwt.claims', $2, true),"
                        " set_config('request.method', $3, true), set_config('request.path', $4, true),"
                        " set_config('request.headers', $5, true), set_config('statement_timeout', $6, true)",
                        {identity.role.toUtf8(), QJsonDocument(identity.claims).toJson(QJsonDocument::Compact),
                         request.method, request.path.toUtf8(), QJsonDocument(headers).toJson(QJsonDocument::Compact),
                         QByteArray::number(qint64(statementTimeout.count()))});
        if (checkSessions && identity.role == u"authenticated" &&
            connection.exec("SELECT app.session_is_live()").value(0, 0) != "t") {
            throw ApiError(401, u"PGRST301"_s, u"The session has ended or the account is gone; sign in again."_s);
        }
        if (work(connection)) {
            connection.execScript("COMMIT");
        } else {
            connection.execScript("ROLLBACK");
        }
    } catch (const PgException &error) {
        throw ApiError::fromDatabase(error.error(), identity.isAnonymous());
    }
}
