#include "apierror.h"

#include "pg/pgconnection.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

int statusOf(const QByteArray &state, bool anonymous)
{
    if (state == "23505" || state == "23503") {
        return 409;
    }
    if (state == "42501") {
        return anonymous ? 401 : 403;
    }
    if (state == "P0001") {
        return 400;
    }
    if (state == "42883" || state == "42P01") {
        return 404;
    }
    if (state == "25006") {
        return 405;
    }
    if (state == "42P17") {
        return 500;
    }
    // A procedure may choose its status with SQLSTATE "PTnnn".
    if (state.startsWith("PT") && state.size() == 5) {
        bool ok = false;
        const int status = state.mid(2).toInt(&ok);
        if (ok && status >= 100 && status <= 599) {
            return status;
        }
    }
    const QByteArray cls = state.left(2);
    if (cls == "08" || cls == "53" || state == "57P01") {
        return 503;
    }
    if (cls == "28") {
        return 403;
    }
    static const QList<QByteArray> internal{"25", "2D", "38", "39", "3B", "40", "54",
                                            "55", "57", "58", "F0", "HV", "XX", "P0"};
    if (internal.contains(cls)) {
        return 500;
    }
    return 400;
}

std::optional<QString> orNull(const QString &text)
{
    return text.isEmpty() ? std::nullopt : std::optional<QString>(text);
}

} // namespace

ApiError::ApiError(int status, QString code, QString message, std::optional<QString> details,
                   std::optional<QString> hint)
    : m_status(status)
    , m_code(std::move(code))
    , m_message(std::move(message))
    , m_details(std::move(details))
    , m_hint(std::move(hint))
{}

ApiError ApiError::fromDatabase(const PgError &error, bool anonymous)
{
    if (error.sqlstate.isEmpty()) {
        return ApiError(503, u"PGRST001"_s, u"Database client error. Retrying the connection."_s,
                        orNull(error.message));
    }
    return ApiError(statusOf(error.sqlstate, anonymous), QString::fromLatin1(error.sqlstate), error.message,
                    orNull(error.detail), orNull(error.hint));
}

ApiError ApiError::badQuery(const QString &message, const QString &details)
{
    return ApiError(400, u"PGRST100"_s, message, orNull(details));
}

QByteArray ApiError::body() const
{
    const QJsonObject object{
        {u"code"_s, m_code},
        {u"details"_s, m_details ? QJsonValue(*m_details) : QJsonValue(QJsonValue::Null)},
        {u"hint"_s, m_hint ? QJsonValue(*m_hint) : QJsonValue(QJsonValue::Null)},
        {u"message"_s, m_message},
    };
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QList<std::pair<QByteArray, QByteArray>> ApiError::headers() const
{
    if (m_status == 401) {
        return {{"WWW-Authenticate", "Bearer"}};
    }
    return {};
}

const char *ApiError::what() const noexcept
{
    if (m_what.isEmpty()) {
        m_what = (m_code + u": "_s + m_message).toUtf8();
    }
    return m_what.constData();
}
