#include "notifier.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QLoggingCategory>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcNotifier, "morvane.ui.notifier")

const QString service = u"org.freedesktop.Notifications"_s;
const QString path = u"/org/freedesktop/Notifications"_s;
const QString interface = u"org.freedesktop.Notifications"_s;

} // namespace

Notifier::Notifier(QObject *parent)
    : Notifier(QDBusConnection::sessionBus(), parent)
{}

Notifier::Notifier(const QDBusConnection &bus, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
{
    if (!m_bus.isConnected()) {
        return;
    }
    m_bus.connect(service, path, interface, u"ActionInvoked"_s, this, SLOT(onActionInvoked(uint, QString)));
    m_bus.connect(service, path, interface, u"NotificationClosed"_s, this, SLOT(onClosed(uint, uint)));
}

QDBusMessage Notifier::notifyMessage(const QString &title, const QString &body, const QList<Action> &actions,
                                     uint replaces)
{
    QStringList flatActions;
    for (const Action &action : actions) {
        flatActions << action.key << action.label;
    }
    // The desktop entry's name lets the service show our icon and name, and group our notifications.
    const QVariantMap hints{{u"desktop-entry"_s, u"morvane"_s}};
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, u"Notify"_s);
    message << u"Morvane"_s << replaces << u"morvane"_s << title << body << flatActions << hints << -1;
    return message;
}

void Notifier::notify(const QString &key, const QString &title, const QString &body, const QList<Action> &actions)
{
    if (!m_bus.isConnected()) {
        return;
    }
    Pending notification{key, title, body, actions};
    if (m_capabilities) {
        send(notification);
        return;
    }
    m_waiting.append(std::move(notification));
    askCapabilities();
}

void Notifier::withdraw(const QString &key)
{
    const uint id = m_shown.key(key);
    m_waiting.removeIf([&](const Pending &pending) { return pending.key == key; });
    if (id == 0) {
        return;
    }
    m_shown.remove(id);
    m_bus.asyncCall(QDBusMessage::createMethodCall(service, path, interface, u"CloseNotification"_s) << id);
}

void Notifier::askCapabilities()
{
    if (m_asking) {
        return;
    }
    m_asking = true;
    const QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, u"GetCapabilities"_s);
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        m_asking = false;
        const QDBusPendingReply<QStringList> reply = *watcher;
        if (reply.isError()) {
            // No service on this desktop: the window says everything anyway. Asked again next time,
            // since a service may be started later in the session.
            qCDebug(lcNotifier) << "no notification service:" << reply.error().message();
            m_waiting.clear();
            return;
        }
        m_capabilities = reply.value();
        const QList<Pending> waiting = std::exchange(m_waiting, {});
        for (const Pending &notification : waiting) {
            send(notification);
        }
    });
}

void Notifier::send(const Pending &notification)
{
    const bool buttons = m_capabilities->contains(u"actions"_s);
    const uint replaces = m_shown.key(notification.key);
    // Bodies carry names that others typed (a team mate's task title); a service that reads markup
    // would otherwise show their tags, links and images.
    const QString body = m_capabilities->contains(u"body-markup"_s) ? notification.body.toHtmlEscaped()
                                                                     : notification.body;
    const QDBusMessage call = notifyMessage(notification.title, body,
                                            buttons ? notification.actions : QList<Action>{}, replaces);
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, key = notification.key, replaces] {
        watcher->deleteLater();
        const QDBusPendingReply<uint> reply = *watcher;
        if (reply.isError()) {
            qCDebug(lcNotifier) << "notification not shown:" << reply.error().message();
            return;
        }
        m_shown.remove(replaces);
        m_shown.insert(reply.value(), key);
    });
}

void Notifier::onActionInvoked(uint id, const QString &actionKey)
{
    // Other applications' notifications arrive on the same signal; only ours have a key here.
    const auto found = m_shown.constFind(id);
    if (found != m_shown.cend()) {
        emit actionInvoked(*found, actionKey);
    }
}

void Notifier::onClosed(uint id, uint /*reason*/)
{
    m_shown.remove(id);
}
