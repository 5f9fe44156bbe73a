#pragma once

#include "model/wire.h"

// The user as the authentication service describes it.
struct AuthUser
{
    struct Metadata
    {
        std::optional<QString> fullName;
        std::optional<QString> name;
        std::optional<QString> displayName;

        static constexpr std::string_view wireName = "AuthUser.Metadata";
        static constexpr auto wireFields()
        {
            using Wire::field;
            return std::tuple{
                field("full_name", &Metadata::fullName),
                field("name", &Metadata::name),
                field("display_name", &Metadata::displayName),
            };
        }
        friend bool operator==(const Metadata &, const Metadata &) = default;
    };

    QString id;
    std::optional<QString> email;
    std::optional<Metadata> userMetadata;

    static constexpr std::string_view wireName = "AuthUser";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("id", &AuthUser::id),
            field("email", &AuthUser::email),
            field("user_metadata", &AuthUser::userMetadata),
        };
    }
    friend bool operator==(const AuthUser &, const AuthUser &) = default;
};

// The answer to a token refresh.
struct RefreshResponse
{
    QString accessToken;
    QString refreshToken;
    qint64 expiresIn = 0;

    static constexpr std::string_view wireName = "RefreshResponse";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("access_token", &RefreshResponse::accessToken),
            field("refresh_token", &RefreshResponse::refreshToken),
            field("expires_in", &RefreshResponse::expiresIn),
        };
    }
    friend bool operator==(const RefreshResponse &, const RefreshResponse &) = default;
};

// A new session: what a sign-in, a code exchange or an auto-confirmed sign-up answers.
struct AuthTokens
{
    QString accessToken;
    QString refreshToken;
    qint64 expiresIn = 0;
    std::optional<AuthUser> user;

    static constexpr std::string_view wireName = "AuthTokens";
    static constexpr auto wireFields()
    {
        using Wire::field;
        return std::tuple{
            field("access_token", &AuthTokens::accessToken),
            field("refresh_token", &AuthTokens::refreshToken),
            field("expires_in", &AuthTokens::expiresIn),
            field("user", &AuthTokens::user),
        };
    }
    friend bool operator==(const AuthTokens &, const AuthTokens &) = default;
};

// How a sign-up ended.
struct SignUpOutcome
{
    enum class Kind {
        Session,           // the account is usable at once
        NeedsConfirmation, // the account exists but its e-mail must be confirmed first
        EmailExists,       // the address is already registered
    };

    Kind kind = Kind::NeedsConfirmation;
    std::optional<AuthTokens> session; // only for Session

    friend bool operator==(const SignUpOutcome &, const SignUpOutcome &) = default;
};
