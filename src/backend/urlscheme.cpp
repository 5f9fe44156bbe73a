#include "urlscheme.h"

#include "backend/desktopentry.h"

#include <QFile>
#include <QLocalSocket>
#include <QStandardPaths>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString mimeType = u"x-scheme-handler/morvane"_s;
const QString defaultsGroup = u"[Default Applications]"_s;

// mimeapps.list with the scheme's default set to our entry; other groups and keys untouched.
QString withDefault(const QString &current)
{
    QStringList lines = current.split(u'\n');
    while (!lines.isEmpty() && lines.last().isEmpty()) {
        lines.removeLast();
    }
    const QString entry = mimeType + u'=' + UrlScheme::desktopEntryName.toString() + u';';
    qsizetype group = -1;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (lines[i].trimmed() == defaultsGroup) {
            group = i;
            break;
        }
    }
    if (group < 0) {
        if (!lines.isEmpty()) {
            lines << QString();
        }
        lines << defaultsGroup << entry;
        return lines.join(u'\n') + u'\n';
    }
    qsizetype end = group + 1;
    while (end < lines.size() && !lines[end].trimmed().startsWith(u'[')) {
        if (lines[end].trimmed().startsWith(mimeType + u'=')) {
            lines[end] = entry;
            return lines.join(u'\n') + u'\n';
        }
        ++end;
    }
    lines.insert(group + 1, entry);
    return lines.join(u'\n') + u'\n';
}

} // namespace

namespace UrlScheme {

QUrl callbackUrl()
{
    return QUrl(scheme.toString() + u"://auth-callback"_s);
}

bool isCallback(const QString &argument)
{
    return argument.startsWith(scheme.toString() + u"://"_s, Qt::CaseInsensitive);
}

QString desktopEntryPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/applications/"_s +
           desktopEntryName.toString();
}

QString mimeAppsPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/mimeapps.list"_s;
}

bool registerHandler(const QString &program)
{
    if (!DesktopEntry::write(desktopEntryPath(), DesktopEntry::text(program))) {
        return false;
    }
    QFile current(mimeAppsPath());
    const QString existing = current.open(QIODevice::ReadOnly) ? QString::fromUtf8(current.readAll()) : QString();
    current.close();
    return DesktopEntry::write(mimeAppsPath(), withDefault(existing));
}

bool isRegistered()
{
    if (!QFile::exists(desktopEntryPath())) {
        return false;
    }
    QFile list(mimeAppsPath());
    if (!list.open(QIODevice::ReadOnly)) {
        return false;
    }
    return QString::fromUtf8(list.readAll()).contains(mimeType + u'=' + desktopEntryName.toString());
}

} // namespace UrlScheme

CallbackRelay::CallbackRelay(QObject *parent)
    : QObject(parent)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *socket = m_server.nextPendingConnection()) {
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
                if (!socket->canReadLine()) {
                    return;
                }
                const QUrl url = QUrl::fromEncoded(socket->readLine().trimmed());
                socket->write("ok\n");
                socket->flush();
                socket->disconnectFromServer();
                if (url.scheme() == UrlScheme::scheme) {
                    emit callbackReceived(url);
                }
            });
        }
    });
}

QString CallbackRelay::serverName()
{
    return u"morvane-callback-"_s + QString::number(getuid());
}

bool CallbackRelay::listen()
{
    if (m_server.isListening()) {
        return true;
    }
    if (m_server.listen(serverName())) {
        return true;
    }
    // A name left by a process that died, or held by an older sign-in: this one takes it.
    QLocalServer::removeServer(serverName());
    return m_server.listen(serverName());
}

bool CallbackRelay::forward(const QUrl &url, int timeoutMs)
{
    QLocalSocket socket;
    socket.connectToServer(serverName());
    if (!socket.waitForConnected(timeoutMs)) {
        return false;
    }
    socket.write(url.toEncoded() + '\n');
    if (!socket.waitForBytesWritten(timeoutMs)) {
        return false;
    }
    while (!socket.canReadLine()) {
        if (!socket.waitForReadyRead(timeoutMs)) {
            return false;
        }
    }
    return socket.readLine().trimmed() == "ok";
}
