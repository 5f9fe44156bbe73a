#pragma once

#include "realtime/phoenixmessage.h"
#include "realtime/subscription.h"

#include <QByteArray>
#include <QObject>
#include <QSemaphore>
#include <QTimer>

#include <map>
#include <memory>
#include <mutex>
#include <unordered_map>
#include <variant>

class ChangeDispatcher;
class PgListener;
class QAbstractHttpServer;
class QWebSocket;

// /realtime/v1/websocket: Phoenix channels with postgres_changes subscriptions. Lives on the
// server's main thread with the sockets; the change queue is read by a ChangeDispatcher.
class RealtimeService : public QObject
{
    Q_OBJECT

public:
    struct Options
    {
        // Bytes sent to a socket but not yet taken by its reader; past this the reader is too slow
        // and is dropped instead of being buffered for without bound.
        qint64 maxBacklogBytes = 16 * 1024 * 1024;
        qint64 maxIncomingMessageBytes = 1024 * 1024;
        // A socket that sends nothing for this long (not even a heartbeat) is closed.
        int silenceSeconds = 90;
        // One socket joins at most this many channels, each with at most this many bindings: every
        // binding is matched against every change.
        int maxChannels = 100;
        int maxBindings = 100;
    };

    // `conninfo` owns the change queue; `checkConninfo` is the login role the read checks run as.
    RealtimeService(QByteArray conninfo, QByteArray checkConninfo, QByteArray jwtSecret, Options options,
                    QObject *parent = nullptr);
    ~RealtimeService() override;

    // Serves the WebSockets that `server` accepts and switches the capture of changes on; false
    // when the database has no change queue (the feed then carries no changes). Throws
    // PgException when the database cannot be reached.
    bool start(QAbstractHttpServer &server);

private:
    struct Channel
    {
        quint64 serial = 0;
        QJsonValue joinRef;
        QString role;
        QJsonObject claims;
        qint64 expiresAt = 0;
        QList<ChangeBinding> bindings;
        std::unique_ptr<QTimer> expiry;
    };
    struct Connection
    {
        quint64 id = 0;
        std::unique_ptr<QWebSocket> socket;
        PhoenixMessage::Form form = PhoenixMessage::Form::Object;
        std::map<QString, std::unique_ptr<Channel>> channels;
        qint64 backlog = 0;
        qint64 lastHeard = 0;
    };
    struct Identity
    {
        QString role;
        QJsonObject claims;
        qint64 expiresAt = 0;
    };

    void accept();
    void receive(quint64 connectionId, const QString &text);
    void join(Connection &connection, const PhoenixMessage &message);
    void renewToken(Connection &connection, const PhoenixMessage &message);
    void leave(Connection &connection, const PhoenixMessage &message);
    void reply(Connection &connection, const PhoenixMessage &question, bool ok, const QJsonObject &response);
    void push(Connection &connection, const QString &topic, const QString &event, const QJsonObject &payload,
              const QJsonValue &joinRef = QJsonValue::Null);
    // Ends a channel whose token no longer holds: a system error, then phx_close.
    void closeForToken(Connection &connection, const QString &topic, const QString &reason);
    void armExpiry(Connection &connection, const QString &topic, Channel &channel);
    void deliver(const QList<ChangeDelivery> &deliveries);
    void feedFailed(const QString &reason);
    void drop(quint64 connectionId, const QString &reason);
    void checkSilence();
    std::variant<Identity, QString> identify(const QByteArray &token) const;
    void publish();
    SubscriptionSnapshot snapshot() const;

    QByteArray m_conninfo;
    QByteArray m_checkConninfo;
    QByteArray m_secret;
    Options m_options;
    bool m_capturing = false;
    quint64 m_nextConnection = 1;
    quint64 m_nextSerial = 1;
    int m_nextBindingId = 1;
    QAbstractHttpServer *m_server = nullptr;
    std::unordered_map<quint64, std::unique_ptr<Connection>> m_connections;
    QTimer m_silence;
    QSemaphore m_batchSlots{4};
    mutable std::mutex m_snapshotMutex;
    SubscriptionSnapshot m_snapshot;
    std::unique_ptr<ChangeDispatcher> m_dispatcher;
    std::unique_ptr<PgListener> m_listener;
    std::unique_ptr<PgListener> m_schemaListener;
};
