#include "multipart.h"

namespace Multipart {

namespace {

constexpr int maxParts = 64;

bool isTokenSpace(char c)
{
    return c == ' ' || c == '\t';
}

// Splits "form-data; name=\"a;b\"; filename=x" at the semicolons outside quotes, and reads each
// parameter's value with its quotes and backslash escapes undone.
QList<std::pair<QByteArray, QByteArray>> parameters(const QByteArray &value)
{
    QList<std::pair<QByteArray, QByteArray>> found;
    qsizetype at = value.indexOf(';');
    while (at >= 0 && at < value.size()) {
        ++at;
        while (at < value.size() && isTokenSpace(value[at])) {
            ++at;
        }
        const qsizetype equals = value.indexOf('=', at);
        if (equals < 0) {
            break;
        }
        const qsizetype semicolon = value.indexOf(';', at);
        if (semicolon >= 0 && semicolon < equals) {
            at = semicolon; // a parameter without a value
            continue;
        }
        const QByteArray key = value.mid(at, equals - at).trimmed().toLower();
        at = equals + 1;
        QByteArray text;
        if (at < value.size() && value[at] == '"') {
            ++at;
            while (at < value.size() && value[at] != '"') {
                if (value[at] == '\\' && at + 1 < value.size()) {
                    ++at;
                }
                text += value[at];
                ++at;
            }
            ++at; // the closing quote
            const qsizetype next = value.indexOf(';', at);
            at = next;
        } else {
            const qsizetype next = value.indexOf(';', at);
            text = value.mid(at, next < 0 ? -1 : next - at).trimmed();
            at = next;
        }
        found.append({key, text});
    }
    return found;
}

// Where the next delimiter starts. Only a delimiter followed by "--" or the end of its line counts:
// content may hold the boundary's text with more after it ("--abc" inside a part bounded by "ab").
qsizetype delimiterAt(const QByteArray &body, const QByteArray &delimiter, qsizetype from)
{
    for (qsizetype at = body.indexOf(delimiter, from); at >= 0; at = body.indexOf(delimiter, at + 1)) {
        qsizetype after = at + delimiter.size();
        if (body.mid(after, 2) == "--") {
            return at;
        }
        while (after < body.size() && isTokenSpace(body[after])) {
            ++after;
        }
        if (body.mid(after, 2) == "\r\n") {
            return at;
        }
    }
    return -1;
}

} // namespace

std::optional<QByteArray> boundaryOf(const QByteArray &contentType)
{
    const qsizetype semicolon = contentType.indexOf(';');
    const QByteArray type = contentType.left(semicolon).trimmed().toLower();
    if (type != "multipart/form-data") {
        return std::nullopt;
    }
    for (const auto &[key, value] : parameters(contentType)) {
        // RFC 2046: 1 to 70 characters.
        if (key == "boundary" && !value.isEmpty() && value.size() <= 70) {
            return value;
        }
    }
    return std::nullopt;
}

std::optional<QList<Part>> parse(const QByteArray &body, const QByteArray &boundary)
{
    const QByteArray delimiter = "--" + boundary;
    const QByteArray nextDelimiter = "\r\n" + delimiter;
    qsizetype at = 0;
    if (body.startsWith(delimiter)) {
        at = delimiter.size();
    } else {
        // Anything before the first delimiter is a preamble to be ignored.
        const qsizetype first = delimiterAt(body, nextDelimiter, 0);
        if (first < 0) {
            return std::nullopt;
        }
        at = first + nextDelimiter.size();
    }

    QList<Part> parts;
    for (;;) {
        if (body.mid(at, 2) == "--") {
            return parts;
        }
        while (at < body.size() && isTokenSpace(body[at])) {
            ++at;
        }
        if (body.mid(at, 2) != "\r\n" || parts.size() == maxParts) {
            return std::nullopt;
        }
        at += 2;

        Part part;
        // Header lines up to the blank line; a part may have none at all.
        for (;;) {
            const qsizetype end = body.indexOf("\r\n", at);
            if (end < 0) {
                return std::nullopt;
            }
            const QByteArray line = body.mid(at, end - at);
            at = end + 2;
            if (line.isEmpty()) {
                break;
            }
            const qsizetype colon = line.indexOf(':');
            if (colon <= 0) {
                return std::nullopt;
            }
            const QByteArray name = line.left(colon).trimmed().toLower();
            const QByteArray value = line.mid(colon + 1).trimmed();
            if (name == "content-disposition") {
                for (const auto &[key, text] : parameters(value)) {
                    if (key == "name") {
                        part.name = text;
                    } else if (key == "filename") {
                        part.fileName = text;
                    }
                }
            } else if (name == "content-type") {
                part.contentType = value;
            }
        }

        const qsizetype end = delimiterAt(body, nextDelimiter, at);
        if (end < 0) {
            return std::nullopt;
        }
        part.body = body.mid(at, end - at);
        parts.append(std::move(part));
        at = end + nextDelimiter.size();
    }
}

} // namespace Multipart
