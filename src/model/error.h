#pragma once

#include <QString>

#include <exception>

// Base of every error the system throws: it carries the message a user is shown.
class MorvaneError : public std::exception
{
public:
    [[nodiscard]] virtual QString message() const = 0;

    // Kept in sync lazily: std::exception wants a stable C string.
    const char *what() const noexcept override
    {
        if (m_what.isEmpty()) {
            m_what = message().toUtf8();
        }
        return m_what.constData();
    }

private:
    mutable QByteArray m_what;
};
