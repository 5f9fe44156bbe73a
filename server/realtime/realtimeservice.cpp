#include "realtimeservice.h"

#include "auth/jwt.h"
#include "pg/pgconnection.h"
#include "pg/pglistener.h"
#include "realtime/changedispatcher.h"

#include <QAbstractHttpServer>
#include <QDateTime>
#include <QJsonArray>
#include <QLoggingCategory>
#include <QUrlQuery>
#include <QWebSocket>

Q_LOGGING_CATEGORY(lcRealtime, "morvane.server.realtime")

using namespace Qt::StringLiterals;

namespace {

const QString socketPath = u"/realtime/v1/websocket"_s;
const QString heartbeatTopic = u"phoenix"_s;

qint64 nowSeconds()
{
    return QDateTime::currentSecsSinceEpoch();
}

QString subtopic(const QString &topic)
{
    return topic.startsWith(u"realtime:") ? topic.mid(9) : topic;
}

} // namespace

RealtimeService::RealtimeService(QByteArray conninfo, QByteArray checkConninfo, QByteArray jwtSecret, Options options,
                                 QObject *parent)
    : QObject(parent)
    , m_conninfo(std::move(conninfo))
    , m_checkConninfo(std::move(checkConninfo))
    , m_secret(std::move(jwtSecret))
    , m_options(options)
    , m_snapshot(std::make_shared<const QList<ChannelSubscription>>())
{
    m_silence.setInterval(std::chrono::seconds(5));
    connect(&m_silence, &QTimer::timeout, this, &RealtimeService::checkSilence);
}

RealtimeService::~RealtimeService()
{
    // Batches still queued are dropped with this object; the reader must not wait for them.
    m_batchSlots.release(1000);
    m_schemaListener.reset();
    m_listener.reset();
    m_dispatcher.reset();
    m_connections.clear();
    if (!m_capturing) {
        return;
    }
    try {
        auto connection = PgConnection::open(m_conninfo);
        connection->exec("UPDATE app.realtime_feed SET active = false");
    } catch (const PgException &error) {
        qCWarning(lcRealtime) << "cannot switch the change capture off:" << error.what();
    }
}

bool RealtimeService::start(QAbstractHttpServer &server)
{
    m_server = &server;
    connect(&server, &QAbstractHttpServer::newWebSocketConnection, this, &RealtimeService::accept);
    m_silence.start();
    {
        auto connection = PgConnection::open(m_conninfo);
        // A schema of other migrations than ours may lack the queue: channels still join, but
        // no change ever comes.
        if (connection
                ->exec("SELECT to_regclass('app.realtime_changes') IS NOT NULL AND"
                       " to_regclass('app.realtime_feed') IS NOT NULL")
                .value(0, 0) != "t") {
            return false;
        }
        // What a previous run left behind had nobody to go to; those subscribers resync anyway.
        connection->execScript(
            "BEGIN; DELETE FROM app.realtime_changes; UPDATE app.realtime_feed SET active = true; COMMIT");
    }
    m_capturing = true;

    ChangeDispatcher::Hooks hooks;
    hooks.subscriptions = [this] { return snapshot(); };
    // The reader waits while a few batches are still queued for the sockets, so that a busy main
    // thread slows the reading down instead of piling up batches in memory.
    hooks.deliver = [this](QList<ChangeDelivery> deliveries) {
        m_batchSlots.acquire();
        QMetaObject::invokeMethod(
            this,
            [this, deliveries = std::move(deliveries)] {
                deliver(deliveries);
                m_batchSlots.release();
            },
            Qt::QueuedConnection);
    };
    hooks.failed = [this](const QString &reason) {
        QMetaObject::invokeMethod(
            this, [this, reason] { feedFailed(reason); }, Qt::QueuedConnection);
    };
    hooks.recovered = [] {};
    m_dispatcher = std::make_unique<ChangeDispatcher>(m_conninfo, m_checkConninfo, std::move(hooks));
    ChangeDispatcher *dispatcher = m_dispatcher.get();
    m_listener = std::make_unique<PgListener>(m_conninfo, "morvane_realtime",
                                              [dispatcher](const QByteArray &) { dispatcher->wake(); });
    // The read policies of a table are taken from the catalogue once; a migration applied while
    // the server runs announces itself as it does to the REST layer.
    m_schemaListener = std::make_unique<PgListener>(m_conninfo, "pgrst",
                                                    [dispatcher](const QByteArray &) { dispatcher->forgetTables(); });
    return true;
}

SubscriptionSnapshot RealtimeService::snapshot() const
{
    std::lock_guard lock(m_snapshotMutex);
    return m_snapshot;
}

void RealtimeService::publish()
{
    auto subscriptions = std::make_shared<QList<ChannelSubscription>>();
    for (const auto &[id, connection] : m_connections) {
        for (const auto &[topic, channel] : connection->channels) {
            if (channel->bindings.isEmpty()) {
                continue;
            }
            subscriptions->append(
                {id, channel->serial, topic, channel->role, channel->claims, channel->expiresAt, channel->bindings});
        }
    }
    std::lock_guard lock(m_snapshotMutex);
    m_snapshot = std::move(subscriptions);
}

std::variant<RealtimeService::Identity, QString> RealtimeService::identify(const QByteArray &token) const
{
    const auto verified = Jwt::verify(token, m_secret, nowSeconds());
    if (const auto *failure = std::get_if<Jwt::Failure>(&verified)) {
        if (failure->kind == Jwt::Failure::Kind::Expired) {
            return u"Token has expired"_s;
        }
        return u"Invalid token: "_s + failure->message;
    }
    const QJsonObject claims = std::get<QJsonObject>(verified);
    const QString role = claims.value(u"role").toString(u"anon"_s);
    if (role != u"anon" && role != u"authenticated" && role != u"service_role") {
        return u"Invalid token: its role is not allowed"_s;
    }
    const QJsonValue exp = claims.value(u"exp");
    return Identity{role, claims, exp.isDouble() ? qint64(exp.toDouble()) : 0};
}

void RealtimeService::accept()
{
    while (m_server->hasPendingWebSocketConnections()) {
        std::unique_ptr<QWebSocket> socket = m_server->nextPendingWebSocketConnection();
        if (!socket) {
            continue;
        }
        const QUrl url = socket->requestUrl();
        const QUrlQuery query(url);
        const QString vsn = query.queryItemValue(u"vsn"_s);
        QString refusal;
        if (url.path() != socketPath && url.path() != socketPath + u'/') {
            refusal = u"no WebSocket at "_s + url.path();
        } else if (!vsn.isEmpty() && vsn != u"1.0.0" && vsn != u"2.0.0") {
            refusal = u"unsupported protocol version "_s + vsn;
        } else {
            const QByteArray apikey = query.queryItemValue(u"apikey"_s, QUrl::FullyDecoded).toUtf8();
            if (apikey.isEmpty()) {
                refusal = u"No apikey given"_s;
            } else if (const auto identity = identify(apikey); std::holds_alternative<QString>(identity)) {
                refusal = u"apikey: "_s + std::get<QString>(identity);
            }
        }
        if (!refusal.isEmpty()) {
            qCInfo(lcRealtime) << "refused a WebSocket:" << refusal;
            QWebSocket *raw = socket.release();
            connect(raw, &QWebSocket::disconnected, raw, &QObject::deleteLater);
            raw->close(QWebSocketProtocol::CloseCodePolicyViolated, refusal);
            continue;
        }

        auto connection = std::make_unique<Connection>();
        connection->id = m_nextConnection++;
        connection->form = vsn == u"2.0.0" ? PhoenixMessage::Form::Array : PhoenixMessage::Form::Object;
        connection->lastHeard = nowSeconds();
        connection->socket = std::move(socket);
        connection->socket->setMaxAllowedIncomingMessageSize(quint64(m_options.maxIncomingMessageBytes));
        const quint64 id = connection->id;
        QWebSocket *raw = connection->socket.get();
        connect(raw, &QWebSocket::textMessageReceived, this, [this, id](const QString &text) { receive(id, text); });
        connect(raw, &QWebSocket::bytesWritten, this, [this, id](qint64 written) {
            const auto it = m_connections.find(id);
            if (it != m_connections.end()) {
                it->second->backlog = std::max<qint64>(0, it->second->backlog - written);
            }
        });
        connect(raw, &QWebSocket::disconnected, this, [this, id] {
            const auto it = m_connections.find(id);
            if (it == m_connections.end()) {
                return;
            }
            // The socket may not be deleted inside its own signal.
            it->second->socket.release()->deleteLater();
            m_connections.erase(it);
            publish();
        });
        m_connections.emplace(id, std::move(connection));
    }
}

void RealtimeService::receive(quint64 connectionId, const QString &text)
{
    const auto it = m_connections.find(connectionId);
    if (it == m_connections.end()) {
        return;
    }
    Connection &connection = *it->second;
    connection.lastHeard = nowSeconds();
    const std::optional<PhoenixMessage> message = PhoenixMessage::decode(connection.form, text.toUtf8());
    if (!message) {
        qCInfo(lcRealtime) << "ignored a message that is not a Phoenix message:" << text.left(200);
        return;
    }
    if (message->topic == heartbeatTopic) {
        if (message->event == u"heartbeat") {
            reply(connection, *message, true, {});
        }
        return;
    }
    if (message->event == u"phx_join") {
        join(connection, *message);
        return;
    }
    if (connection.channels.find(message->topic) == connection.channels.end()) {
        reply(connection, *message, false, {{u"reason"_s, u"unmatched topic"_s}});
        return;
    }
    if (message->event == u"access_token") {
        renewToken(connection, *message);
    } else if (message->event == u"phx_leave") {
        leave(connection, *message);
    }
    // Broadcast and presence are not served; their messages are let pass without an answer.
}

void RealtimeService::join(Connection &connection, const PhoenixMessage &message)
{
    auto refuse = [&](const QString &reason) { reply(connection, message, false, {{u"reason"_s, reason}}); };
    if (!message.topic.startsWith(u"realtime:")) {
        refuse(u"topic must start with \"realtime:\""_s);
        return;
    }
    const QJsonValue tokenValue = message.payload.value(u"access_token");
    QByteArray token = tokenValue.toString().toUtf8();
    if (token.isEmpty()) {
        token = QUrlQuery(connection.socket->requestUrl()).queryItemValue(u"apikey"_s, QUrl::FullyDecoded).toUtf8();
    }
    const auto identity = identify(token);
    if (const auto *reason = std::get_if<QString>(&identity)) {
        refuse(*reason);
        return;
    }

    if (connection.channels.size() >= std::size_t(m_options.maxChannels) &&
        connection.channels.find(message.topic) == connection.channels.end()) {
        refuse(u"Too many channels: a connection may join at most %1"_s.arg(m_options.maxChannels));
        return;
    }
    auto channel = std::make_unique<Channel>();
    QJsonArray answered;
    const QJsonArray asked = message.payload.value(u"config").toObject().value(u"postgres_changes").toArray();
    if (asked.size() > m_options.maxBindings) {
        refuse(u"Unable to subscribe to changes: at most %1 postgres_changes per channel"_s.arg(m_options.maxBindings));
        return;
    }
    for (const QJsonValue &value : asked) {
        const QJsonObject params = value.toObject();
        ChangeBinding binding;
        binding.event = params.value(u"event").toString(u"*"_s).toUpper();
        binding.schema = params.value(u"schema").toString(u"public"_s);
        binding.table = params.value(u"table").toString(u"*"_s);
        if (binding.event != u"*" && binding.event != u"INSERT" && binding.event != u"UPDATE" &&
            binding.event != u"DELETE") {
            refuse(u"Unable to subscribe to changes: unknown event \"%1\""_s.arg(binding.event));
            return;
        }
        QString filterError;
        const std::optional<ChangeFilter> filter =
            ChangeFilter::parse(params.value(u"filter").toString(), &filterError);
        if (!filter) {
            refuse(u"Unable to subscribe to changes: "_s + filterError);
            return;
        }
        binding.filter = *filter;
        binding.params = params;
        binding.id = m_nextBindingId++;
        QJsonObject echoed = params;
        echoed.insert(u"id"_s, binding.id);
        answered.append(echoed);
        channel->bindings.append(binding);
    }

    const auto &[role, claims, expiresAt] = std::get<Identity>(identity);
    channel->serial = m_nextSerial++;
    channel->joinRef = message.joinRef.isNull() ? message.ref : message.joinRef;
    channel->role = role;
    channel->claims = claims;
    channel->expiresAt = expiresAt;
    // A second join of a topic replaces the first, as a client does after it lost track of it
    // or when it changes its bindings; the first is closed under its own join reference, which a
    // client recognises as the old channel's.
    if (const auto previous = connection.channels.find(message.topic); previous != connection.channels.end()) {
        push(connection, message.topic, u"phx_close"_s, {}, previous->second->joinRef);
    }
    Channel &joined = *connection.channels.insert_or_assign(message.topic, std::move(channel)).first->second;
    armExpiry(connection, message.topic, joined);
    publish();
    reply(connection, message, true, {{u"postgres_changes"_s, answered}});
    if (!joined.bindings.isEmpty()) {
        push(connection, message.topic, u"system"_s,
             {{u"extension"_s, u"postgres_changes"_s},
              {u"status"_s, u"ok"_s},
              {u"message"_s, u"Subscribed to PostgreSQL"_s},
              {u"channel"_s, subtopic(message.topic)}},
             joined.joinRef);
    }
}

void RealtimeService::renewToken(Connection &connection, const PhoenixMessage &message)
{
    const QByteArray token = message.payload.value(u"access_token").toString().toUtf8();
    if (token.isEmpty()) {
        return;
    }
    const auto identity = identify(token);
    if (const auto *reason = std::get_if<QString>(&identity)) {
        closeForToken(connection, message.topic, *reason);
        return;
    }
    Channel &channel = *connection.channels.at(message.topic);
    const auto &[role, claims, expiresAt] = std::get<Identity>(identity);
    channel.role = role;
    channel.claims = claims;
    channel.expiresAt = expiresAt;
    armExpiry(connection, message.topic, channel);
    publish();
}

void RealtimeService::armExpiry(Connection &connection, const QString &topic, Channel &channel)
{
    channel.expiry.reset();
    if (channel.expiresAt == 0) {
        return;
    }
    channel.expiry = std::make_unique<QTimer>();
    channel.expiry->setSingleShot(true);
    channel.expiry->setInterval(
        std::chrono::milliseconds(std::max<qint64>(0, channel.expiresAt - nowSeconds()) * 1000));
    const quint64 id = connection.id;
    const quint64 serial = channel.serial;
    connect(channel.expiry.get(), &QTimer::timeout, this, [this, id, serial, topic] {
        const auto it = m_connections.find(id);
        if (it == m_connections.end()) {
            return;
        }
        const auto found = it->second->channels.find(topic);
        if (found != it->second->channels.end() && found->second->serial == serial) {
            closeForToken(*it->second, topic, u"Token has expired"_s);
        }
    });
    channel.expiry->start();
}

void RealtimeService::closeForToken(Connection &connection, const QString &topic, const QString &reason)
{
    const auto found = connection.channels.find(topic);
    if (found == connection.channels.end()) {
        return;
    }
    const QJsonValue joinRef = found->second->joinRef;
    push(connection, topic, u"system"_s,
         {{u"extension"_s, u"system"_s},
          {u"status"_s, u"error"_s},
          {u"message"_s, reason},
          {u"channel"_s, subtopic(topic)}},
         joinRef);
    push(connection, topic, u"phx_close"_s, {}, joinRef);
    connection.channels.erase(topic);
    publish();
}

void RealtimeService::leave(Connection &connection, const PhoenixMessage &message)
{
    const QJsonValue joinRef = connection.channels.at(message.topic)->joinRef;
    connection.channels.erase(message.topic);
    publish();
    reply(connection, message, true, {});
    push(connection, message.topic, u"phx_close"_s, {}, joinRef);
}

void RealtimeService::reply(Connection &connection, const PhoenixMessage &question, bool ok,
                            const QJsonObject &response)
{
    PhoenixMessage answer;
    answer.topic = question.topic;
    answer.event = u"phx_reply"_s;
    answer.ref = question.ref;
    answer.joinRef = question.joinRef;
    answer.payload = {{u"status"_s, ok ? u"ok"_s : u"error"_s}, {u"response"_s, response}};
    connection.backlog += connection.socket->sendTextMessage(QString::fromUtf8(answer.encode(connection.form)));
}

void RealtimeService::push(Connection &connection, const QString &topic, const QString &event,
                           const QJsonObject &payload, const QJsonValue &joinRef)
{
    PhoenixMessage message;
    message.topic = topic;
    message.event = event;
    message.payload = payload;
    message.ref = QJsonValue::Null;
    message.joinRef = joinRef.isUndefined() ? QJsonValue(QJsonValue::Null) : joinRef;
    connection.backlog += connection.socket->sendTextMessage(QString::fromUtf8(message.encode(connection.form)));
}

void RealtimeService::deliver(const QList<ChangeDelivery> &deliveries)
{
    const qint64 now = nowSeconds();
    QList<quint64> tooSlow;
    for (const ChangeDelivery &delivery : deliveries) {
        const auto it = m_connections.find(delivery.connection);
        if (it == m_connections.end()) {
            continue;
        }
        Connection &connection = *it->second;
        const auto found = connection.channels.find(delivery.topic);
        if (found == connection.channels.end() || found->second->serial != delivery.serial) {
            continue;
        }
        if (found->second->expiresAt != 0 && found->second->expiresAt <= now) {
            closeForToken(connection, delivery.topic, u"Token has expired"_s);
            continue;
        }
        // Judged by what is still unread from before, so that one row larger than the allowance
        // still reaches a reader that keeps up.
        if (connection.backlog > m_options.maxBacklogBytes) {
            if (!tooSlow.contains(connection.id)) {
                tooSlow.append(connection.id);
            }
            continue;
        }
        // Server pushes carry no references (null).
        push(connection, delivery.topic, u"postgres_changes"_s, delivery.payload, QJsonValue::Null);
    }
    for (quint64 id : std::as_const(tooSlow)) {
        drop(id, u"too slow: more than %1 bytes of changes waiting to be read"_s.arg(m_options.maxBacklogBytes));
    }
}

void RealtimeService::feedFailed(const QString &reason)
{
    // Changes may be lost from here on: every subscribed channel errs, so that its client joins
    // again and reloads what it shows.
    qCWarning(lcRealtime) << "change feed failed:" << reason;
    for (const auto &[id, connection] : m_connections) {
        for (auto it = connection->channels.begin(); it != connection->channels.end();) {
            if (it->second->bindings.isEmpty()) {
                ++it;
                continue;
            }
            push(*connection, it->first, u"phx_error"_s, {}, it->second->joinRef);
            it = connection->channels.erase(it);
        }
    }
    publish();
}

void RealtimeService::drop(quint64 connectionId, const QString &reason)
{
    const auto it = m_connections.find(connectionId);
    if (it == m_connections.end()) {
        return;
    }
    qCWarning(lcRealtime) << "dropping a subscriber:" << reason;
    std::unique_ptr<QWebSocket> socket = std::move(it->second->socket);
    m_connections.erase(it);
    publish();
    // What is queued already is thrown away with the socket: waiting for a reader that does not
    // read is what would hold the memory.
    QWebSocket *raw = socket.release();
    raw->disconnect(this);
    raw->close(QWebSocketProtocol::CloseCodePolicyViolated, reason.left(120));
    raw->abort();
    raw->deleteLater();
}

void RealtimeService::checkSilence()
{
    const qint64 limit = nowSeconds() - m_options.silenceSeconds;
    QList<quint64> silent;
    for (const auto &[id, connection] : m_connections) {
        if (connection->lastHeard < limit) {
            silent.append(id);
        }
    }
    for (quint64 id : std::as_const(silent)) {
        const auto it = m_connections.find(id);
        QWebSocket *socket = it->second->socket.get();
        // The disconnected handler removes the connection.
        socket->close(QWebSocketProtocol::CloseCodeGoingAway, u"heartbeat timeout"_s);
    }
}
