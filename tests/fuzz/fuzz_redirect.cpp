// libFuzzer target: any address through the redirect policy. Whatever it allows must lead, as a
// browser reads the address, to the server's own site, a configured address or the application:
// the check is an independent reading of the address the way the URL standard has browsers read it.

#include "auth/redirectpolicy.h"

#include <QByteArray>
#include <QUrl>

#include <cstdint>
#include <cstdlib>

namespace {

// Where a browser goes: tabs and line breaks dropped, leading and trailing control characters
// and spaces trimmed, '\' read as '/', user-info dropped, the host percent-decoded and in lower case.
QByteArray browserHost(QByteArray address)
{
    address.replace('\t', "").replace('\n', "").replace('\r', "");
    while (!address.isEmpty() && uchar(address.front()) <= 0x20) {
        address.remove(0, 1);
    }
    while (!address.isEmpty() && uchar(address.back()) <= 0x20) {
        address.chop(1);
    }
    address.replace('\\', '/');
    const qsizetype colon = address.indexOf(':');
    if (colon < 0) {
        return {};
    }
    QByteArray rest = address.mid(colon + 1);
    while (rest.startsWith('/')) {
        rest.remove(0, 1);
    }
    qsizetype end = rest.size();
    for (const char stop : {'/', '?', '#'}) {
        const qsizetype at = rest.indexOf(stop);
        if (at >= 0 && at < end) {
            end = at;
        }
    }
    QByteArray authority = rest.left(end);
    authority = authority.mid(authority.lastIndexOf('@') + 1);
    QByteArray host = QByteArray::fromPercentEncoding(authority).toLower();
    if (host.startsWith('[')) {
        return host.left(host.indexOf(']') + 1);
    }
    return host.left(host.indexOf(':') < 0 ? host.size() : host.indexOf(':'));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray raw(reinterpret_cast<const char *>(data), qsizetype(size));
    const QString address = QString::fromUtf8(raw);
    static const RedirectPolicy policy(QUrl(QStringLiteral("http://127.0.0.1:54321")),
                                       {QStringLiteral("https://app.example.org")});
    for (const auto loopback : {RedirectPolicy::Loopback::Refused, RedirectPolicy::Loopback::Allowed}) {
        if (!policy.allows(address, loopback)) {
            continue;
        }
        const QByteArray utf8 = address.toUtf8();
        if (utf8.startsWith("morvane://")) {
            // Handed to the application as it stands: nothing a browser would drop or reread.
            for (const char c : utf8) {
                if (uchar(c) <= 0x20 || uchar(c) >= 0x7f || c == '\\') {
                    std::abort();
                }
            }
            continue;
        }
        const QByteArray host = browserHost(utf8);
        const bool allowedHost = host == "127.0.0.1" || host == "app.example.org" ||
                                 (loopback == RedirectPolicy::Loopback::Allowed && host == "[::1]");
        if (!allowedHost) {
            std::abort();
        }
    }
    return 0;
}
