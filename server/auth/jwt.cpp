#include "jwt.h"

#include <QJsonDocument>
#include <QMessageAuthenticationCode>

using namespace Qt::StringLiterals;

namespace Jwt {

namespace {

constexpr auto base64UrlOptions = QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals;

QByteArray signature(const QByteArray &signingInput, const QByteArray &secret)
{
    return QMessageAuthenticationCode::hash(signingInput, secret, QCryptographicHash::Sha256);
}

// Compares in time that does not depend on where the first difference lies.
bool sameBytes(const QByteArray &a, const QByteArray &b)
{
    if (a.size() != b.size()) {
        return false;
    }
    unsigned char difference = 0;
    for (qsizetype i = 0; i < a.size(); ++i) {
        difference |= static_cast<unsigned char>(a[i] ^ b[i]);
    }
    return difference == 0;
}

std::optional<QJsonObject> decodePart(const QByteArray &part)
{
    const auto decoded =
        QByteArray::fromBase64Encoding(part, base64UrlOptions | QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded) {
        return std::nullopt;
    }
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(*decoded, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject()) {
        return std::nullopt;
    }
    return document.object();
}

} // namespace

QByteArray base64Url(const QByteArray &bytes)
{
    return bytes.toBase64(base64UrlOptions);
}

QByteArray sign(const QJsonObject &claims, const QByteArray &secret)
{
    const QByteArray header = base64Url(R"({"alg":"HS256","typ":"JWT"})");
    const QByteArray payload = base64Url(QJsonDocument(claims).toJson(QJsonDocument::Compact));
    const QByteArray input = header + '.' + payload;
    return input + '.' + base64Url(signature(input, secret));
}

std::variant<QJsonObject, Failure> verify(const QByteArray &token, const QByteArray &secret, qint64 now)
{
    const QList<QByteArray> parts = token.split('.');
    if (parts.size() != 3) {
        return Failure{Failure::Kind::Malformed, u"Expected 3 parts in JWT; got %1"_s.arg(parts.size())};
    }
    const std::optional<QJsonObject> header = decodePart(parts[0]);
    const std::optional<QJsonObject> claims = decodePart(parts[1]);
    if (!header || !claims) {
        return Failure{Failure::Kind::Malformed, u"JWSError (CompactDecodeError Invalid number of parts)"_s};
    }
    // Only HS256: accepting "none" or another algorithm named by the token would let a caller
    // choose how it is checked.
    if (header->value(u"alg").toString() != u"HS256") {
        return Failure{Failure::Kind::BadSignature, u"JWSError JWSInvalidSignature"_s};
    }
    const auto given =
        QByteArray::fromBase64Encoding(parts[2], base64UrlOptions | QByteArray::AbortOnBase64DecodingErrors);
    if (!given || !sameBytes(*given, signature(parts[0] + '.' + parts[1], secret))) {
        return Failure{Failure::Kind::BadSignature, u"JWSError JWSInvalidSignature"_s};
    }
    const QJsonValue expiry = claims->value(u"exp");
    if (expiry.isDouble() && now >= qint64(expiry.toDouble())) {
        return Failure{Failure::Kind::Expired, u"JWT expired"_s};
    }
    return *claims;
}

} // namespace Jwt
