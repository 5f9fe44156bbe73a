#pragma once

#include "http/httpmessage.h"

#include <QString>

#include <exception>

class ApiError;

// An error answer in the storage service's dialect: {"statusCode","code","error","message"} with
// the real status as a string inside. Client errors travel as HTTP 400, as the storage API's
// clients expect; server errors keep their 5xx, and a token that fails verification keeps its 401
// so that the application's client refreshes the session and tries again.
class StorageError : public std::exception
{
public:
    StorageError(int status, QString code, QString error, QString message);

    static StorageError objectNotFound();
    static StorageError bucketNotFound();
    static StorageError duplicate();
    static StorageError denied(const QString &message);
    static StorageError tooLarge(qint64 limit);
    static StorageError invalidKey(const QString &name);
    static StorageError invalidBucketName(const QString &name);
    static StorageError invalidMimeType(const QString &mimeType);
    static StorageError invalidRequest(const QString &message);
    static StorageError invalidJwt(const QString &message);
    static StorageError invalidSignature(const QString &message);
    static StorageError internal(const QString &message);
    // A database error as CallerScope reports it.
    static StorageError fromDatabase(const ApiError &error);

    [[nodiscard]] int status() const { return m_status; }
    [[nodiscard]] const QString &code() const { return m_code; }
    [[nodiscard]] HttpResponse response() const;
    const char *what() const noexcept override;

private:
    int m_status;
    QString m_code;
    QString m_error;
    QString m_message;
    mutable QByteArray m_what;
};
