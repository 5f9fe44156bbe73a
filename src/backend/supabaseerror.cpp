#include "supabaseerror.h"

#include <QJsonDocument>
#include <QJsonObject>

SupabaseError::SupabaseError(Kind kind, int status, QString text)
    : m_kind(kind)
    , m_status(status)
    , m_text(std::move(text))
{}

SupabaseError SupabaseError::httpStatus(int status, QString body)
{
    return {Kind::HttpStatus, status, std::move(body)};
}

SupabaseError SupabaseError::decoding(QString detail)
{
    return {Kind::Decoding, 0, std::move(detail)};
}

SupabaseError SupabaseError::noAuth()
{
    return {Kind::NoAuth, 0, {}};
}

SupabaseError SupabaseError::invalidURL()
{
    return {Kind::InvalidURL, 0, {}};
}

QString SupabaseError::message() const
{
    switch (m_kind) {
    case Kind::HttpStatus:
        //% "HTTP %1: %2"
        return qtTrId("supabase.err.http").arg(QString::number(m_status), m_text);
    case Kind::Decoding:
        //% "Decode: %1"
        return qtTrId("supabase.err.decoding").arg(m_text);
    case Kind::NoAuth:
        //% "Not signed in."
        return qtTrId("supabase.err.noAuth");
    case Kind::InvalidURL:
        //% "Invalid URL"
        return qtTrId("supabase.err.invalidURL");
    }
    return {};
}

std::optional<QString> SupabaseError::errorCode() const
{
    if (m_kind != Kind::HttpStatus) {
        return std::nullopt;
    }
    const QJsonDocument document = QJsonDocument::fromJson(m_text.toUtf8());
    if (!document.isObject()) {
        return std::nullopt;
    }
    const QJsonObject object = document.object();
    if (const QJsonValue code = object.value(u"code"); code.isString()) {
        return code.toString();
    }
    // The authentication service's older error form keeps the status in "code" and the
    // name of the error in "error_code".
    if (const QJsonValue code = object.value(u"error_code"); code.isString()) {
        return code.toString();
    }
    return std::nullopt;
}

TransportError::TransportError(Kind kind, QNetworkReply::NetworkError code, QString detail)
    : m_kind(kind)
    , m_code(code)
    , m_detail(std::move(detail))
{}

QString TransportError::message() const
{
    switch (m_kind) {
    case Kind::TimedOut:
        //% "The request timed out."
        return qtTrId("net.err.timeout");
    case Kind::Offline:
        //% "The Internet connection appears to be offline."
        return qtTrId("net.err.offline");
    case Kind::Connection:
        //% "Could not reach the server: %1"
        return qtTrId("net.err.connection").arg(m_detail);
    }
    return {};
}
