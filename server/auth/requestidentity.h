#pragma once

#include "auth/jwt.h"
#include "http/httpmessage.h"

#include <QJsonObject>
#include <QString>

#include <variant>

// Who a request speaks for, from its bearer token (or, as the gateway of a hosted backend does,
// from its apikey header when there is no Authorization header).
struct RequestIdentity
{
    QString role; // anon, authenticated or service_role
    QJsonObject claims;
    QByteArray token;

    [[nodiscard]] bool isAnonymous() const { return role == u"anon"; }
    [[nodiscard]] QString userId() const { return claims.value(u"sub").toString(); }
};

// A token that verifies but names a role outside the three the backend knows is refused: the
// role claim decides the database role, and no token may reach the owner's role.
std::variant<RequestIdentity, Jwt::Failure> identify(const HttpRequest &request, const QByteArray &secret, qint64 now);
