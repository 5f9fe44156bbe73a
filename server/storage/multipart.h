#pragma once

#include <QByteArray>
#include <QList>

#include <optional>

// multipart/form-data bodies (RFC 7578), as browsers and the storage clients send file uploads.
namespace Multipart {

struct Part
{
    QByteArray name;
    std::optional<QByteArray> fileName; // present for a file field, even when empty
    QByteArray contentType;             // empty when the part does not say
    QByteArray body;
};

// The boundary named by a Content-Type header, or nothing when it is not multipart/form-data
// with a usable boundary.
std::optional<QByteArray> boundaryOf(const QByteArray &contentType);

// The parts of `body`, or nothing when the body is not well formed: no opening or closing
// delimiter, a part without its blank line after the headers, or more parts than anyone sends.
std::optional<QList<Part>> parse(const QByteArray &body, const QByteArray &boundary);

} // namespace Multipart
