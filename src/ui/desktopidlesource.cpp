#include "desktopidlesource.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>

#include <limits>
#include <optional>

#ifdef MORVANE_HAVE_XSS
#include <X11/Xlib.h>
#include <X11/extensions/scrnsaver.h>
#endif

using namespace Qt::StringLiterals;

namespace {

const QString login1Service = u"org.freedesktop.login1"_s;
const QString login1Path = u"/org/freedesktop/login1"_s;
const QString login1Manager = u"org.freedesktop.login1.Manager"_s;
const QString login1Session = u"org.freedesktop.login1.Session"_s;
// Only the screen-saver services know a session's idle time; both answer within moments.
constexpr int callTimeoutMilliseconds = 2000;

} // namespace

DesktopIdleSource::DesktopIdleSource(QObject *parent)
    : IdleSource(parent)
    , m_session(QDBusConnection::sessionBus())
    , m_system(QDBusConnection::systemBus())
{
    if (m_session.isConnected()) {
        // GNOME says it under its own name, the others under the freedesktop one; any sender will do.
        m_session.connect(QString(), u"/org/freedesktop/ScreenSaver"_s, u"org.freedesktop.ScreenSaver"_s,
                          u"ActiveChanged"_s, this, SLOT(onScreenSaverActive(bool)));
        m_session.connect(QString(), u"/org/gnome/ScreenSaver"_s, u"org.gnome.ScreenSaver"_s, u"ActiveChanged"_s,
                          this, SLOT(onScreenSaverActive(bool)));
    }
    if (m_system.isConnected()) {
        m_system.connect(login1Service, login1Path, login1Manager, u"PrepareForSleep"_s, this,
                         SLOT(onPrepareForSleep(bool)));
        watchSession();
    }
}

void DesktopIdleSource::watchSession()
{
    QDBusMessage call = QDBusMessage::createMethodCall(login1Service, login1Path, login1Manager, u"GetSessionByPID"_s);
    call << uint(QCoreApplication::applicationPid());
    auto *watcher = new QDBusPendingCallWatcher(m_system.asyncCall(call, callTimeoutMilliseconds), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *finished) {
        finished->deleteLater();
        const QDBusPendingReply<QDBusObjectPath> reply = *finished;
        if (reply.isError()) {
            return;
        }
        // logind signals from the session's own path, never from its "auto" alias.
        const QString path = reply.value().path();
        m_system.connect(login1Service, path, login1Session, u"Lock"_s, this, SLOT(onSessionLock()));
        m_system.connect(login1Service, path, login1Session, u"Unlock"_s, this, SLOT(onSessionUnlock()));
    });
}

void DesktopIdleSource::requestIdleTime()
{
    if (!m_asking) {
        ask(m_method);
    }
}

void DesktopIdleSource::ask(Method method)
{
    m_method = method;
    if (method == Method::X11 || method == Method::Nothing) {
        if (const std::optional<qint64> idle = x11IdleTime()) {
            emit idleTime(*idle);
        } else {
            m_method = Method::Nothing;
        }
        return;
    }
    if (!m_session.isConnected()) {
        ask(Method::X11);
        return;
    }
    const QDBusMessage call =
        method == Method::Mutter
            ? QDBusMessage::createMethodCall(u"org.gnome.Mutter.IdleMonitor"_s, u"/org/gnome/Mutter/IdleMonitor/Core"_s,
                                             u"org.gnome.Mutter.IdleMonitor"_s, u"GetIdletime"_s)
            : QDBusMessage::createMethodCall(u"org.freedesktop.ScreenSaver"_s, u"/org/freedesktop/ScreenSaver"_s,
                                             u"org.freedesktop.ScreenSaver"_s, u"GetSessionIdleTime"_s);
    m_asking = true;
    auto *watcher = new QDBusPendingCallWatcher(m_session.asyncCall(call, callTimeoutMilliseconds), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, method](QDBusPendingCallWatcher *finished) {
        finished->deleteLater();
        m_asking = false;
        const QDBusMessage reply = finished->reply();
        const QVariant value = reply.arguments().value(0);
        bool ok = false;
        // Mutter answers a uint64, the screen saver service a uint; both in milliseconds.
        const qulonglong idle = value.toULongLong(&ok);
        if (reply.type() == QDBusMessage::ReplyMessage && ok) {
            emit idleTime(qint64(qMin<qulonglong>(idle, qulonglong(std::numeric_limits<qint64>::max()))));
            return;
        }
        ask(method == Method::Mutter ? Method::ScreenSaver : Method::X11);
    });
}

std::optional<qint64> DesktopIdleSource::x11IdleTime()
{
#ifdef MORVANE_HAVE_XSS
    auto *app = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    auto *x11 = app ? app->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    Display *display = x11 ? x11->display() : nullptr;
    if (!display) {
        return std::nullopt;
    }
    int eventBase = 0;
    int errorBase = 0;
    if (!XScreenSaverQueryExtension(display, &eventBase, &errorBase)) {
        return std::nullopt;
    }
    XScreenSaverInfo *info = XScreenSaverAllocInfo();
    if (!info) {
        return std::nullopt;
    }
    std::optional<qint64> idle;
    if (XScreenSaverQueryInfo(display, DefaultRootWindow(display), info)) {
        idle = qint64(info->idle);
    }
    XFree(info);
    return idle;
#else
    return std::nullopt;
#endif
}

void DesktopIdleSource::onScreenSaverActive(bool active)
{
    emit lockedChanged(active);
}

void DesktopIdleSource::onSessionLock()
{
    emit lockedChanged(true);
}

void DesktopIdleSource::onSessionUnlock()
{
    emit lockedChanged(false);
}

void DesktopIdleSource::onPrepareForSleep(bool sleeping)
{
    emit sleepingChanged(sleeping);
}
