#pragma once

#include <QLocalServer>
#include <QObject>
#include <QUrl>

// The application's own address scheme. After a sign-in with an outside provider the browser
// opens "morvane://auth-callback?code=..."; the desktop starts `morvane` with that address, and
// that process hands it to the process that waits for it.
namespace UrlScheme {

inline constexpr QStringView scheme = u"morvane";
inline constexpr QStringView desktopEntryName = u"morvane.desktop";

[[nodiscard]] QUrl callbackUrl();
[[nodiscard]] bool isCallback(const QString &argument);

// $XDG_DATA_HOME/applications/morvane.desktop and $XDG_CONFIG_HOME/mimeapps.list.
[[nodiscard]] QString desktopEntryPath();
[[nodiscard]] QString mimeAppsPath();

// Writes the desktop entry that starts `program` with an address and makes it the scheme's
// handler, keeping every other line of mimeapps.list. Answers whether both were written.
bool registerHandler(const QString &program);
// Whether the desktop entry exists and mimeapps.list names it as the scheme's handler.
[[nodiscard]] bool isRegistered();

} // namespace UrlScheme

// Carries a callback address from the process the desktop started to the one that waits. The
// waiting process listens under a name private to the user; a second waiting process takes the
// name over, since only the sign-in started last can use the address.
class CallbackRelay : public QObject
{
    Q_OBJECT

public:
    explicit CallbackRelay(QObject *parent = nullptr);

    bool listen();
    [[nodiscard]] bool isListening() const { return m_server.isListening(); }

    // Hands `url` to the waiting process; answers whether one took it.
    static bool forward(const QUrl &url, int timeoutMs = 3000);
    [[nodiscard]] static QString serverName();

signals:
    void callbackReceived(const QUrl &url);

private:
    QLocalServer m_server;
};
