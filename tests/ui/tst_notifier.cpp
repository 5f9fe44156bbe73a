#include "ui/notifier.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

// A notification service as the freedesktop.org notification protocol has it: it answers
// GetCapabilities, numbers what it shows, and announces a chosen action by signal.
class NotificationService : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    QStringList capabilities;
    QList<uint> replaced;
    QList<QStringList> actions;
    QStringList bodies;
    QList<uint> closed;

public slots:
    QStringList GetCapabilities() { return capabilities; }
    uint Notify(const QString &, uint replaces, const QString &, const QString &, const QString &body,
                const QStringList &buttons, const QVariantMap &, int)
    {
        bodies.append(body);
        replaced.append(replaces);
        actions.append(buttons);
        return replaces != 0 ? replaces : uint(replaced.size()) + 40;
    }
    void CloseNotification(uint id) { closed.append(id); }
};

class TestNotifier : public QObject
{
    Q_OBJECT

    QProcess m_daemon;
    QString m_address;

    QDBusConnection bus(const QString &name) { return QDBusConnection::connectToBus(m_address, name); }

private slots:
    void initTestCase()
    {
        const QString daemon = QStandardPaths::findExecutable(u"dbus-daemon"_s);
        if (daemon.isEmpty()) {
            QSKIP("dbus-daemon is not installed, so there is no bus to notify on");
        }
        m_daemon.start(daemon, {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s});
        QVERIFY(m_daemon.waitForReadyRead(5000));
        m_address = QString::fromLatin1(m_daemon.readLine()).trimmed();
    }

    void cleanupTestCase()
    {
        m_daemon.terminate();
        m_daemon.waitForFinished(5000);
    }

    void actionsWhereTheServiceShowsThem_data()
    {
        QTest::addColumn<QStringList>("capabilities");
        QTest::addColumn<QStringList>("sentActions");
        QTest::addColumn<QString>("sentBody");
        QTest::newRow("buttons") << QStringList{u"body"_s, u"actions"_s}
                                 << QStringList{u"keep"_s, u"Keep"_s, u"discard"_s, u"Discard"_s}
                                 << u"<b>Design</b> & review"_s;
        // A team mate's title is text, not markup, where the service would read markup.
        QTest::newRow("no buttons, markup read") << QStringList{u"body"_s, u"body-markup"_s} << QStringList{}
                                                 << u"&lt;b&gt;Design&lt;/b&gt; &amp; review"_s;
    }

    void actionsWhereTheServiceShowsThem()
    {
        QFETCH(QStringList, capabilities);
        QFETCH(QStringList, sentActions);
        QFETCH(QString, sentBody);
        QDBusConnection serviceBus = bus(u"service"_s);
        NotificationService service;
        service.capabilities = capabilities;
        QVERIFY(
            serviceBus.registerObject(u"/org/freedesktop/Notifications"_s, &service, QDBusConnection::ExportAllSlots));
        QVERIFY(serviceBus.registerService(u"org.freedesktop.Notifications"_s));

        {
            Notifier notifier(bus(u"app"_s));
            QSignalSpy chosen(&notifier, &Notifier::actionInvoked);
            const QList<Notifier::Action> actions{{u"keep"_s, u"Keep"_s}, {u"discard"_s, u"Discard"_s}};
            notifier.notify(u"idle"_s, u"Away for 12 minutes"_s, u"<b>Design</b> & review"_s, actions);
            notifier.notify(u"reminder"_s, u"Still working?"_s, QString());
            QTRY_COMPARE(service.replaced, (QList<uint>{0, 0}));
            QCOMPARE(service.actions.first(), sentActions);
            QCOMPARE(service.bodies.first(), sentBody);

            // The same key replaces what the service shows instead of adding a second one.
            notifier.notify(u"idle"_s, u"Away for 13 minutes"_s, u"Design review"_s, actions);
            QTRY_COMPARE(service.replaced, (QList<uint>{0, 0, 41}));

            // A choice on another application's notification is not ours.
            for (const uint id : {7u, 41u}) {
                serviceBus.send(QDBusMessage::createSignal(u"/org/freedesktop/Notifications"_s,
                                                           u"org.freedesktop.Notifications"_s, u"ActionInvoked"_s)
                                << id << u"discard"_s);
            }
            QTRY_COMPARE(chosen.size(), 1);
            QCOMPARE(chosen.first(), (QVariantList{u"idle"_s, u"discard"_s}));

            notifier.withdraw(u"reminder"_s);
            QTRY_COMPARE(service.closed, QList<uint>{42u});
        }
        serviceBus.unregisterService(u"org.freedesktop.Notifications"_s);
        QDBusConnection::disconnectFromBus(u"app"_s);
        QDBusConnection::disconnectFromBus(u"service"_s);
    }
};

QTEST_GUILESS_MAIN(TestNotifier)
#include "tst_notifier.moc"
