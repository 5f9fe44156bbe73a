#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <variant>

// HS256 JSON Web Tokens: the anon key, users' access tokens, signed storage addresses.
namespace Jwt {

QByteArray base64Url(const QByteArray &bytes);

QByteArray sign(const QJsonObject &claims, const QByteArray &secret);

struct Failure
{
    enum class Kind { Malformed, BadSignature, Expired };
    Kind kind;
    QString message; // as PostgREST words it, shown to the caller
};

// The token's claims when it is well formed, signed with `secret` and not expired at `now`
// (seconds since the epoch).
std::variant<QJsonObject, Failure> verify(const QByteArray &token, const QByteArray &secret, qint64 now);

} // namespace Jwt
