#pragma once

#include "model/error.h"

#include <QNetworkReply>
#include <QString>

#include <optional>

// What the backend answered when it did not answer as hoped.
class SupabaseError : public MorvaneError
{
public:
    enum class Kind { HttpStatus, Decoding, NoAuth, InvalidURL };

    static SupabaseError httpStatus(int status, QString body);
    static SupabaseError decoding(QString detail);
    static SupabaseError noAuth();
    static SupabaseError invalidURL();

    [[nodiscard]] Kind kind() const { return m_kind; }
    // The HTTP status of an httpStatus error; 0 when the answer was not an HTTP response.
    [[nodiscard]] int status() const { return m_status; }
    // The response body of an httpStatus error, or the decoder's words for a decoding error.
    [[nodiscard]] QString body() const { return m_text; }
    [[nodiscard]] QString message() const override;

    // The error code the backend put in a JSON body ("23505", "PGRST202", "user_already_exists").
    [[nodiscard]] std::optional<QString> errorCode() const;

private:
    SupabaseError(Kind kind, int status, QString text);

    Kind m_kind;
    int m_status = 0;
    QString m_text;
};

// The request never got an answer: the network is down, the host cannot be reached, or the
// answer took too long. Unlike SupabaseError this says nothing about the user's session.
class TransportError : public MorvaneError
{
public:
    enum class Kind { TimedOut, Offline, Connection };

    TransportError(Kind kind, QNetworkReply::NetworkError code = QNetworkReply::NoError, QString detail = {});

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] QNetworkReply::NetworkError code() const { return m_code; }
    [[nodiscard]] QString message() const override;

private:
    Kind m_kind;
    QNetworkReply::NetworkError m_code;
    QString m_detail;
};
