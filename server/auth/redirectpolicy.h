#pragma once

#include <QList>
#include <QString>
#include <QUrl>

// Decides where a browser may be sent after an e-mail link or a sign-in, judging an address the
// way a browser will read it rather than the way a lenient parser does. Only exact origins pass:
// the server's own site, the addresses an administrator configured, and the application's own
// `morvane://` scheme; a native sign-in may also come back to a loopback port (RFC 8252).
class RedirectPolicy
{
public:
    RedirectPolicy() = default;
    RedirectPolicy(const QUrl &siteUrl, const QStringList &allowedUrls);

    enum class Loopback { Refused, Allowed };

    // `requested` when it is allowed, otherwise the site address.
    [[nodiscard]] QString target(const QString &requested, Loopback loopback = Loopback::Refused) const;
    [[nodiscard]] bool allows(const QString &requested, Loopback loopback = Loopback::Refused) const;
    [[nodiscard]] QString siteUrl() const { return m_site; }

    // The origin ("http://host:port", default port left out) of an absolute http(s) address, read
    // strictly: anything a browser might read differently (backslashes, control characters,
    // user-info, percent signs or empty hosts) gives an empty string.
    static QString strictOrigin(const QString &address);

private:
    QString m_site;
    QList<QString> m_origins;
};
