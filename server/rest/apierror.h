#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <exception>
#include <optional>

struct PgError;

// An error answer in PostgREST's form: {"code","details","hint","message"}, all four keys present.
class ApiError : public std::exception
{
public:
    ApiError(int status, QString code, QString message, std::optional<QString> details = {},
             std::optional<QString> hint = {});

    // The status and code PostgREST gives a database error. `anonymous` decides whether a
    // missing privilege means "sign in" (401) or "not allowed" (403).
    static ApiError fromDatabase(const PgError &error, bool anonymous);

    // A request PostgREST could not parse (400 PGRST100).
    static ApiError badQuery(const QString &message, const QString &details = {});

    [[nodiscard]] int status() const { return m_status; }
    [[nodiscard]] const QString &code() const { return m_code; }
    [[nodiscard]] const QString &message() const { return m_message; }
    [[nodiscard]] QByteArray body() const;
    [[nodiscard]] QList<std::pair<QByteArray, QByteArray>> headers() const;
    const char *what() const noexcept override;

private:
    int m_status;
    QString m_code;
    QString m_message;
    std::optional<QString> m_details;
    std::optional<QString> m_hint;
    mutable QByteArray m_what;
};
