#include "requestidentity.h"

using namespace Qt::StringLiterals;

std::variant<RequestIdentity, Jwt::Failure> identify(const HttpRequest &request, const QByteArray &secret, qint64 now)
{
    QByteArray token;
    const QByteArray authorization = request.header("authorization");
    if (authorization.toLower().startsWith("bearer ")) {
        token = authorization.mid(7).trimmed();
    } else if (!authorization.isEmpty()) {
        return Jwt::Failure{Jwt::Failure::Kind::Malformed, u"Authorization header is not a bearer token"_s};
    } else {
        token = request.header("apikey").trimmed();
    }
    if (token.isEmpty()) {
        return RequestIdentity{u"anon"_s, QJsonObject{{u"role"_s, u"anon"_s}}, {}};
    }
    auto verified = Jwt::verify(token, secret, now);
    if (const auto *failure = std::get_if<Jwt::Failure>(&verified)) {
        return *failure;
    }
    const QJsonObject claims = std::get<QJsonObject>(verified);
    const QString role = claims.value(u"role").toString(u"anon"_s);
    if (role != u"anon" && role != u"authenticated" && role != u"service_role") {
        return Jwt::Failure{Jwt::Failure::Kind::BadSignature, u"The token's role is not allowed"_s};
    }
    return RequestIdentity{role, claims, token};
}
