#pragma once

#include <QDBusConnection>
#include <QHash>
#include <QList>
#include <QObject>
#include <QStringList>

#include <optional>

class QDBusMessage;

// Desktop notifications through the desktop's notification service (org.freedesktop.Notifications).
// Buttons are offered only where the service says it shows them; without a service nothing is
// shown and nothing fails, since every notification is also said in the window.
class Notifier : public QObject
{
    Q_OBJECT

public:
    struct Action
    {
        QString key;
        QString label;
    };

    // `bus` is the session bus unless a test brings its own.
    explicit Notifier(QObject *parent = nullptr);
    explicit Notifier(const QDBusConnection &bus, QObject *parent = nullptr);

    // Shows a notification; one shown earlier under the same `key` is replaced, so a reminder
    // that repeats stays one notification. The actions' labels are shown as buttons where the
    // service supports them.
    void notify(const QString &key, const QString &title, const QString &body, const QList<Action> &actions = {});
    // Withdraws the notification shown under `key`, for example once the person answered in the window.
    void withdraw(const QString &key);

    // The Notify call the service receives; `replaces` is the service's id of the one to replace.
    [[nodiscard]] static QDBusMessage notifyMessage(const QString &title, const QString &body,
                                                    const QList<Action> &actions, uint replaces);

signals:
    // The person chose `actionKey` ("default" for a click on the notification itself).
    void actionInvoked(const QString &key, const QString &actionKey);

private:
    struct Pending
    {
        QString key;
        QString title;
        QString body;
        QList<Action> actions;
    };

    void askCapabilities();
    void send(const Pending &notification);

private slots:
    void onActionInvoked(uint id, const QString &actionKey);
    void onClosed(uint id, uint reason);

private:
    QDBusConnection m_bus;
    // Unknown until the service answered GetCapabilities; notifications wait for the answer.
    std::optional<QStringList> m_capabilities;
    bool m_asking = false;
    QList<Pending> m_waiting;
    // Our key for each notification the service shows, by the service's id.
    QHash<uint, QString> m_shown;
};
