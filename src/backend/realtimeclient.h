#pragma once

#include "backend/realtimechange.h"
#include "backend/realtimescheduler.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <QCoroTask>

#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>

class QWebSocket;

// Keeps one WebSocket open to the backend's realtime service, subscribed to the changes of the
// user's tasks, time entries, projects and trips, and hands each change to the store. Reconnects
// with back-off, on wake from sleep and when the network comes back; asks for a full reload after
// a reconnect, since changes may have been missed while it was down. Lives on the main thread.
class RealtimeClient : public QObject
{
    Q_OBJECT

public:
    using Change = RealtimeChange;
    // An access token valid for a while yet, or none when there is no session.
    using TokenProvider = std::function<QCoro::Task<std::optional<QString>>()>;

    static constexpr std::array<int, 6> backoffSeconds{1, 2, 5, 10, 20, 30};
    static constexpr std::chrono::seconds heartbeatInterval{25};
    static constexpr std::chrono::seconds tokenWatchInterval{60};
    static inline const QStringList tables{QStringLiteral("tasks"), QStringLiteral("time_entries"),
                                           QStringLiteral("projects"), QStringLiteral("trips")};

    RealtimeClient(QUrl backend, QString anonKey,
                   std::shared_ptr<RealtimeScheduler> scheduler = RealtimeScheduler::system(),
                   QObject *parent = nullptr);
    ~RealtimeClient() override;

    // ws for an http backend, wss for https; the backend's host, port and path.
    static QUrl socketURL(const QUrl &backend, const QString &anonKey);
    static QString topicOf(const QString &table) { return QStringLiteral("realtime:public:") + table; }

    // Remembers the user and where tokens come from, watches for wake from sleep and for the
    // network, and connects.
    void start(const QString &userId, TokenProvider tokenProvider);
    // Closes the socket, cancels every wait, stops watching and reports disconnected.
    void stop();
    // Drops the socket and connects again at once.
    void reconnectNow(const QString &reason);
    // Sends the current access token to every joined channel.
    void renewToken();

    // Projects of teams the user belongs to: their tasks, time entries and the projects
    // themselves are subscribed to besides the user's own rows, so that team mates' edits arrive.
    // A change re-joins the affected channels.
    void setTeamProjects(const QStringList &projectIds);

    // What the system observers report; public so that a tool (or a test) can report it too.
    void noteWake();
    void noteNetwork(bool up);

    [[nodiscard]] bool isConnected() const { return m_connected; }
    [[nodiscard]] bool isRunning() const { return m_running; }
    [[nodiscard]] int attempt() const { return m_attempt; }
    [[nodiscard]] quint64 generation() const { return m_generation; }
    [[nodiscard]] QSet<QString> joinedTopics() const { return m_joinedTopics; }

    // The postgres_changes bindings a channel joins with.
    [[nodiscard]] QJsonArray bindingsFor(const QString &table) const;

signals:
    void changeReceived(const RealtimeClient::Change &change);
    void connectedChanged(bool connected);
    // Everything may have changed while the feed was down: reload.
    void resyncRequested();

private slots:
    // logind's signal: true before the machine sleeps, false once it has woken.
    void onPrepareForSleep(bool sleeping);

private:
    QCoro::Task<> connectSocket();
    void joinAll();
    void join(const QString &table);
    void receive(quint64 generation, const QString &text);
    void didJoinAll();
    void heartbeat(quint64 generation);
    QCoro::Task<> watchToken(quint64 generation);
    void connectionLost(quint64 generation, const QString &reason);
    void tearDown();
    void scheduleReconnect();
    void send(const QString &topic, const QString &event, const QJsonObject &payload, const QString &ref,
              const QString &joinRef = {});
    QString nextRef() { return QString::number(++m_refCounter); }
    void setConnected(bool connected);
    void installObservers();
    void removeObservers();

    QUrl m_backend;
    QString m_anonKey;
    std::shared_ptr<RealtimeScheduler> m_scheduler;
    QString m_userId;
    TokenProvider m_tokenProvider;
    QString m_currentToken;
    QStringList m_teamProjects;

    QWebSocket *m_socket = nullptr;
    quint64 m_generation = 0;
    quint64 m_connectTicket = 0;
    quint64 m_refCounter = 0;
    QHash<QString, QString> m_joinRefs; // topic -> ref of its join
    QSet<QString> m_joinedTopics;
    QString m_pendingHeartbeatRef;
    RealtimeScheduler::Id m_heartbeatTask = 0;
    RealtimeScheduler::Id m_tokenTask = 0;
    RealtimeScheduler::Id m_reconnectTask = 0;
    int m_attempt = 0;
    bool m_everJoined = false;
    bool m_running = false;
    bool m_connected = false;
    bool m_networkUp = true;
    QList<QMetaObject::Connection> m_observers;
    bool m_sleepWatched = false;
};
