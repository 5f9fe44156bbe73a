#include "redirectpolicy.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr auto appScheme = u"morvane://";

// Browsers drop tabs and line breaks anywhere in an address and read '\' as '/', so an address
// holding any of them means something else to the browser than to us.
bool plainAscii(const QString &address)
{
    return std::all_of(address.cbegin(), address.cend(),
                       [](QChar c) { return c.unicode() > 0x20 && c.unicode() < 0x7f && c != u'\\'; });
}

} // namespace

RedirectPolicy::RedirectPolicy(const QUrl &siteUrl, const QStringList &allowedUrls)
    : m_site(siteUrl.toString())
{
    for (const QString &address : QStringList{m_site} + allowedUrls) {
        const QString origin = strictOrigin(address);
        if (!origin.isEmpty() && !m_origins.contains(origin)) {
            m_origins.append(origin);
        }
    }
}

QString RedirectPolicy::strictOrigin(const QString &address)
{
    if (!plainAscii(address)) {
        return {};
    }
    // The authority ends at the first '/', '?' or '#'; a browser would also end it at '\', which
    // plainAscii already refused.
    static const QRegularExpression shape(u"^(https?)://([^/?#]*)(?:[/?#]|$)"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression hostPort(u"^([a-z0-9-]+(?:\\.[a-z0-9-]+)*|\\[[0-9a-f:.]+\\])(?::([0-9]{1,10}))?$"_s,
                                             QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch parts = shape.match(address);
    if (!parts.hasMatch()) {
        return {};
    }
    // No user-info ("a@b" sends the browser to b) and no percent-encoding, which browsers decode
    // in host names.
    const QRegularExpressionMatch authority = hostPort.match(parts.captured(2));
    if (!authority.hasMatch()) {
        return {};
    }
    const QString scheme = parts.captured(1).toLower();
    const int defaultPort = scheme == u"https" ? 443 : 80;
    // A browser reads leading zeros away ("054321" is 54321); so does toLongLong.
    const qint64 port = authority.captured(2).isEmpty() ? defaultPort : authority.captured(2).toLongLong();
    if (port < 1 || port > 65535) {
        return {};
    }
    QString origin = scheme + u"://"_s + authority.captured(1).toLower();
    if (port != defaultPort) {
        origin += u':' + QString::number(port);
    }
    return origin;
}

bool RedirectPolicy::allows(const QString &requested, Loopback loopback) const
{
    if (requested.startsWith(appScheme)) {
        return plainAscii(requested);
    }
    const QString origin = strictOrigin(requested);
    if (origin.isEmpty()) {
        return false;
    }
    if (m_origins.contains(origin)) {
        return true;
    }
    // A native application listens on a port of its own choosing on this machine's loopback
    // address; only the literal addresses count, since a name could be made to resolve elsewhere.
    static const QRegularExpression loopbackOrigin(u"^http://(127\\.0\\.0\\.1|\\[::1\\]):[0-9]+$"_s);
    return loopback == Loopback::Allowed && loopbackOrigin.match(origin).hasMatch();
}

QString RedirectPolicy::target(const QString &requested, Loopback loopback) const
{
    return allows(requested, loopback) ? requested : m_site;
}
