#include "realtimeclient.h"

#include <QDBusConnection>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QNetworkInformation>
#include <QUrlQuery>
#include <QWebSocket>

Q_LOGGING_CATEGORY(lcRealtime, "morvane.backend.realtime")

using namespace Qt::StringLiterals;

namespace {

const QString login1Service = u"org.freedesktop.login1"_s;
const QString login1Path = u"/org/freedesktop/login1"_s;
const QString login1Manager = u"org.freedesktop.login1.Manager"_s;

} // namespace

RealtimeClient::RealtimeClient(QUrl backend, QString anonKey, std::shared_ptr<RealtimeScheduler> scheduler,
                               QObject *parent)
    : QObject(parent)
    , m_backend(std::move(backend))
    , m_anonKey(std::move(anonKey))
    , m_scheduler(std::move(scheduler))
{
    qRegisterMetaType<RealtimeChange>();
}

RealtimeClient::~RealtimeClient()
{
    stop();
}

QUrl RealtimeClient::socketURL(const QUrl &backend, const QString &anonKey)
{
    QUrl url = backend;
    url.setScheme(backend.scheme() == u"https" ? u"wss"_s : u"ws"_s);
    QString path = backend.path();
    while (path.endsWith(u'/')) {
        path.chop(1);
    }
    url.setPath(path + u"/realtime/v1/websocket"_s);
    QUrlQuery query;
    query.addQueryItem(u"apikey"_s, anonKey);
    query.addQueryItem(u"vsn"_s, u"1.0.0"_s);
    url.setQuery(query);
    url.setFragment({});
    return url;
}

QJsonArray RealtimeClient::bindingsFor(const QString &table) const
{
    auto binding = [&table](const QString &filter) {
        return QJsonObject{
            {u"event"_s, u"*"_s}, {u"schema"_s, u"public"_s}, {u"table"_s, table}, {u"filter"_s, filter}};
    };
    QJsonArray bindings{binding(u"user_id=eq."_s + m_userId)};
    // Trips are private; the other rows of a team's projects are the team's.
    if (!m_teamProjects.isEmpty() && table != u"trips") {
        const QString column = table == u"projects" ? u"id"_s : u"project_id"_s;
        bindings.append(binding(column + u"=in.("_s + m_teamProjects.join(u',') + u')'));
    }
    return bindings;
}

void RealtimeClient::start(const QString &userId, TokenProvider tokenProvider)
{
    if (m_running) {
        stop();
    }
    m_userId = userId;
    m_tokenProvider = std::move(tokenProvider);
    m_running = true;
    m_attempt = 0;
    m_everJoined = false;
    installObservers();
    connectSocket();
}

void RealtimeClient::stop()
{
    const bool wasRunning = m_running;
    m_running = false;
    ++m_connectTicket; // a connection still waiting for its token gives up
    m_scheduler->cancel(m_reconnectTask);
    m_reconnectTask = 0;
    tearDown();
    removeObservers();
    setConnected(false);
    if (wasRunning) {
        qCInfo(lcRealtime) << "stopped";
    }
}

void RealtimeClient::reconnectNow(const QString &reason)
{
    if (!m_running) {
        return;
    }
    qCInfo(lcRealtime).noquote() << "reconnecting:" << reason;
    m_scheduler->cancel(m_reconnectTask);
    m_reconnectTask = 0;
    tearDown();
    setConnected(false);
    connectSocket();
}

void RealtimeClient::noteWake()
{
    reconnectNow(u"woke from sleep"_s);
}

void RealtimeClient::noteNetwork(bool up)
{
    const bool cameBack = up && !m_networkUp;
    m_networkUp = up;
    if (cameBack) {
        reconnectNow(u"network back"_s);
    }
}

void RealtimeClient::onPrepareForSleep(bool sleeping)
{
    if (!sleeping) {
        noteWake();
    }
}

void RealtimeClient::installObservers()
{
    removeObservers();
    // Where there is no system bus (a container, another platform) there is simply no wake signal;
    // the heartbeat still notices a dead socket.
    QDBusConnection bus = QDBusConnection::systemBus();
    if (bus.isConnected()) {
        m_sleepWatched = bus.connect(login1Service, login1Path, login1Manager, u"PrepareForSleep"_s, this,
                                     SLOT(onPrepareForSleep(bool)));
    }
    if (QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability)) {
        QNetworkInformation *info = QNetworkInformation::instance();
        auto usable = [](QNetworkInformation::Reachability reachability) {
            return reachability != QNetworkInformation::Reachability::Disconnected;
        };
        m_networkUp = usable(info->reachability());
        m_observers.append(connect(
            info, &QNetworkInformation::reachabilityChanged, this,
            [this, usable](QNetworkInformation::Reachability reachability) { noteNetwork(usable(reachability)); }));
    }
}

void RealtimeClient::removeObservers()
{
    for (const QMetaObject::Connection &connection : std::as_const(m_observers)) {
        disconnect(connection);
    }
    m_observers.clear();
    if (m_sleepWatched) {
        QDBusConnection::systemBus().disconnect(login1Service, login1Path, login1Manager, u"PrepareForSleep"_s, this,
                                                SLOT(onPrepareForSleep(bool)));
        m_sleepWatched = false;
    }
}

QCoro::Task<> RealtimeClient::connectSocket()
{
    const quint64 ticket = ++m_connectTicket;
    QPointer<RealtimeClient> self(this);
    QCoro::Task<std::optional<QString>> pending = m_tokenProvider();
    const std::optional<QString> token = co_await pending;
    if (!self || !m_running || ticket != m_connectTicket) {
        co_return;
    }
    if (!token || token->isEmpty()) {
        qCInfo(lcRealtime) << "no access token; retrying later";
        scheduleReconnect();
        co_return;
    }
    m_currentToken = *token;
    tearDown();
    const quint64 generation = ++m_generation;
    m_socket = new QWebSocket(QString(), QWebSocketProtocol::VersionLatest, this);
    connect(m_socket, &QWebSocket::connected, this, [this, generation] {
        if (generation == m_generation) {
            joinAll();
        }
    });
    connect(m_socket, &QWebSocket::textMessageReceived, this,
            [this, generation](const QString &text) { receive(generation, text); });
    connect(m_socket, &QWebSocket::disconnected, this, [this, generation] {
        const QString detail = m_socket && !m_socket->closeReason().isEmpty() ? m_socket->closeReason()
                               : m_socket                                     ? m_socket->errorString()
                                                                              : QString();
        connectionLost(generation, u"socket closed: "_s + detail);
    });
    connect(m_socket, qOverload<QAbstractSocket::SocketError>(&QWebSocket::error), this,
            [this, generation](QAbstractSocket::SocketError) {
                connectionLost(generation, u"socket closed: "_s + (m_socket ? m_socket->errorString() : QString()));
            });
    // Both waits run from the moment the socket opens: a connection that never completes is caught
    // by the heartbeat rule like one that stops answering.
    m_heartbeatTask =
        m_scheduler->schedule(heartbeatInterval, "heartbeat", [this, generation] { heartbeat(generation); });
    m_tokenTask = m_scheduler->schedule(tokenWatchInterval, "token", [this, generation] { watchToken(generation); });
    m_socket->open(socketURL(m_backend, m_anonKey));
}

void RealtimeClient::joinAll()
{
    m_joinedTopics.clear();
    for (const QString &table : tables) {
        join(table);
    }
}

void RealtimeClient::join(const QString &table)
{
    const QString topic = topicOf(table);
    const QString ref = nextRef();
    m_joinRefs.insert(topic, ref);
    send(topic, u"phx_join"_s,
         {{u"config"_s, QJsonObject{{u"postgres_changes"_s, bindingsFor(table)}}}, {u"access_token"_s, m_currentToken}},
         ref, ref);
}

void RealtimeClient::setTeamProjects(const QStringList &projectIds)
{
    QStringList sorted = projectIds;
    sorted.sort();
    sorted.removeDuplicates();
    if (sorted == m_teamProjects) {
        return;
    }
    m_teamProjects = sorted;
    if (!m_socket || m_socket->state() != QAbstractSocket::ConnectedState) {
        return;
    }
    // A second join of a topic replaces the first; the channel stays live meanwhile.
    for (const QString &table : tables) {
        if (table != u"trips") {
            join(table);
        }
    }
}

void RealtimeClient::send(const QString &topic, const QString &event, const QJsonObject &payload, const QString &ref,
                          const QString &joinRef)
{
    if (!m_socket) {
        return;
    }
    const QJsonObject message{{u"topic"_s, topic},
                              {u"event"_s, event},
                              {u"payload"_s, payload},
                              {u"ref"_s, ref},
                              {u"join_ref"_s, joinRef.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(joinRef)}};
    m_socket->sendTextMessage(QString::fromUtf8(QJsonDocument(message).toJson(QJsonDocument::Compact)));
}

void RealtimeClient::receive(quint64 generation, const QString &text)
{
    if (generation != m_generation) {
        return;
    }
    const QJsonObject message = QJsonDocument::fromJson(text.toUtf8()).object();
    const QString topic = message.value(u"topic").toString();
    const QString event = message.value(u"event").toString();
    const QJsonObject payload = message.value(u"payload").toObject();
    const QString ref = message.value(u"ref").toString();
    // A message of an earlier join of the topic (the server closes that one when a topic is joined
    // again) is not about the channel as it is now.
    const QJsonValue joinRef = message.value(u"join_ref");
    if (joinRef.isString() && m_joinRefs.contains(topic) && joinRef.toString() != m_joinRefs.value(topic)) {
        return;
    }

    if (event == u"phx_reply") {
        if (!ref.isEmpty() && ref == m_pendingHeartbeatRef) {
            m_pendingHeartbeatRef.clear();
            return;
        }
        if (m_joinRefs.value(topic) != ref || ref.isEmpty()) {
            return;
        }
        if (payload.value(u"status").toString() != u"ok") {
            qCWarning(lcRealtime).noquote()
                << "join refused on" << topic << payload.value(u"response").toObject().value(u"reason").toString();
            return;
        }
        const bool wasComplete = m_joinedTopics.size() == tables.size();
        m_joinedTopics.insert(topic);
        if (!wasComplete && m_joinedTopics.size() == tables.size()) {
            didJoinAll();
        }
        return;
    }
    if (event == u"postgres_changes") {
        if (const std::optional<Change> change = Change::fromPayload(payload)) {
            emit changeReceived(*change);
        } else {
            qCInfo(lcRealtime).noquote() << "dropped a change that does not decode on" << topic;
        }
        return;
    }
    if (event == u"system") {
        if (payload.value(u"status").toString() == u"error") {
            qCWarning(lcRealtime).noquote() << "system error on" << topic << payload.value(u"message").toString();
        }
        return;
    }
    if (event == u"phx_error" || event == u"phx_close") {
        connectionLost(generation, event + u" on "_s + topic);
    }
}

void RealtimeClient::didJoinAll()
{
    m_attempt = 0;
    const bool rejoined = m_everJoined;
    m_everJoined = true;
    setConnected(true);
    qCInfo(lcRealtime) << "live on" << m_joinedTopics.size() << "channels";
    if (rejoined) {
        emit resyncRequested();
    }
}

void RealtimeClient::heartbeat(quint64 generation)
{
    m_heartbeatTask = 0;
    if (generation != m_generation || !m_running) {
        return;
    }
    if (!m_pendingHeartbeatRef.isEmpty()) {
        connectionLost(generation, u"heartbeat timeout"_s);
        return;
    }
    m_pendingHeartbeatRef = nextRef();
    send(u"phoenix"_s, u"heartbeat"_s, {}, m_pendingHeartbeatRef);
    m_heartbeatTask =
        m_scheduler->schedule(heartbeatInterval, "heartbeat", [this, generation] { heartbeat(generation); });
}

QCoro::Task<> RealtimeClient::watchToken(quint64 generation)
{
    m_tokenTask = 0;
    if (generation != m_generation || !m_running) {
        co_return;
    }
    QPointer<RealtimeClient> self(this);
    QCoro::Task<std::optional<QString>> pending = m_tokenProvider();
    const std::optional<QString> token = co_await pending;
    if (!self || generation != m_generation || !m_running) {
        co_return;
    }
    if (token && !token->isEmpty() && *token != m_currentToken) {
        m_currentToken = *token;
        renewToken();
    }
    m_tokenTask = m_scheduler->schedule(tokenWatchInterval, "token", [this, generation] { watchToken(generation); });
}

void RealtimeClient::renewToken()
{
    for (const QString &topic : std::as_const(m_joinedTopics)) {
        send(topic, u"access_token"_s, {{u"access_token"_s, m_currentToken}}, nextRef(), m_joinRefs.value(topic));
    }
    qCInfo(lcRealtime, "access token renewed on %ld channels", long(m_joinedTopics.size()));
}

void RealtimeClient::connectionLost(quint64 generation, const QString &reason)
{
    if (generation != m_generation || !m_socket) {
        return;
    }
    qCInfo(lcRealtime).noquote() << "connection lost:" << reason;
    tearDown();
    setConnected(false);
    scheduleReconnect();
}

void RealtimeClient::tearDown()
{
    m_scheduler->cancel(m_heartbeatTask);
    m_scheduler->cancel(m_tokenTask);
    m_heartbeatTask = 0;
    m_tokenTask = 0;
    m_pendingHeartbeatRef.clear();
    m_joinedTopics.clear();
    m_joinRefs.clear();
    if (m_socket) {
        // Late signals of this socket must not reach the next one's state.
        QWebSocket *socket = m_socket;
        m_socket = nullptr;
        socket->disconnect(this);
        socket->abort();
        socket->deleteLater();
    }
}

void RealtimeClient::scheduleReconnect()
{
    if (!m_running || m_reconnectTask != 0) {
        return;
    }
    const int seconds = backoffSeconds.at(std::size_t(std::min<int>(m_attempt, int(backoffSeconds.size()) - 1)));
    ++m_attempt;
    qCInfo(lcRealtime) << "reconnecting in" << seconds << "s";
    m_reconnectTask = m_scheduler->schedule(std::chrono::seconds(seconds), "reconnect", [this] {
        m_reconnectTask = 0;
        if (m_running) {
            connectSocket();
        }
    });
}

void RealtimeClient::setConnected(bool connected)
{
    if (m_connected == connected) {
        return;
    }
    m_connected = connected;
    emit connectedChanged(connected);
}
