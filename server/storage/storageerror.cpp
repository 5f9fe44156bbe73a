#include "storageerror.h"

#include "rest/apierror.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

StorageError::StorageError(int status, QString code, QString error, QString message)
    : m_status(status)
    , m_code(std::move(code))
    , m_error(std::move(error))
    , m_message(std::move(message))
{}

StorageError StorageError::objectNotFound()
{
    return {404, u"NoSuchKey"_s, u"NoSuchKey"_s, u"Object not found"_s};
}

StorageError StorageError::bucketNotFound()
{
    return {404, u"NoSuchBucket"_s, u"Bucket not found"_s, u"Bucket not found"_s};
}

StorageError StorageError::duplicate()
{
    return {409, u"Duplicate"_s, u"Duplicate"_s, u"The resource already exists"_s};
}

StorageError StorageError::denied(const QString &message)
{
    return {403, u"AccessDenied"_s, u"Unauthorized"_s, message};
}

StorageError StorageError::tooLarge(qint64 limit)
{
    return {413, u"EntityTooLarge"_s, u"Payload too large"_s,
            u"The object exceeded the maximum allowed size of %1 bytes"_s.arg(limit)};
}

StorageError StorageError::invalidKey(const QString &name)
{
    // An absurd name is not worth echoing whole.
    const QString shown = name.size() > 120 ? name.left(120) + u"..."_s : name;
    return {400, u"InvalidKey"_s, u"Invalid Input"_s, u"Invalid key: "_s + shown};
}

StorageError StorageError::invalidBucketName(const QString &name)
{
    const QString shown = name.size() > 120 ? name.left(120) + u"..."_s : name;
    return {400, u"InvalidBucketName"_s, u"Invalid Input"_s, u"Bucket name invalid: "_s + shown};
}

StorageError StorageError::invalidMimeType(const QString &mimeType)
{
    return {415, u"InvalidMimeType"_s, u"invalid_mime_type"_s, u"mime type %1 is not supported"_s.arg(mimeType)};
}

StorageError StorageError::invalidRequest(const QString &message)
{
    return {400, u"InvalidRequest"_s, u"Invalid Input"_s, message};
}

StorageError StorageError::invalidJwt(const QString &message)
{
    return {401, u"InvalidJWT"_s, u"Unauthorized"_s, message};
}

StorageError StorageError::invalidSignature(const QString &message)
{
    return {400, u"InvalidSignature"_s, u"Invalid Signature"_s, message};
}

StorageError StorageError::internal(const QString &message)
{
    return {500, u"InternalError"_s, u"Internal Server Error"_s, message};
}

StorageError StorageError::fromDatabase(const ApiError &error)
{
    const QString &state = error.code();
    if (state == u"42501") {
        // Row-level security words its refusal with the table name; the storage API's clients know
        // the plain sentence.
        return denied(error.message().startsWith(u"new row violates row-level security policy")
                          ? u"new row violates row-level security policy"_s
                          : error.message());
    }
    if (state == u"23505") {
        return duplicate();
    }
    if (state == u"23503") {
        return bucketNotFound();
    }
    if (error.status() >= 500) {
        return {error.status(), error.status() == 503 ? u"DatabaseError"_s : u"InternalError"_s,
                u"Internal Server Error"_s, error.message()};
    }
    return invalidRequest(error.message());
}

HttpResponse StorageError::response() const
{
    const QJsonObject body{
        {u"statusCode"_s, QString::number(m_status)},
        {u"code"_s, m_code},
        {u"error"_s, m_error},
        {u"message"_s, m_message},
    };
    const int httpStatus = m_status >= 500 || m_status == 401 ? m_status : 400;
    HttpHeaders headers;
    if (m_status == 401) {
        headers.emplaceBack("WWW-Authenticate", "Bearer error=\"invalid_token\"");
    }
    return HttpResponse::json(httpStatus, QJsonDocument(body).toJson(QJsonDocument::Compact), headers);
}

const char *StorageError::what() const noexcept
{
    if (m_what.isEmpty()) {
        m_what = QString(m_code + u": "_s + m_message).toUtf8();
    }
    return m_what.constData();
}
