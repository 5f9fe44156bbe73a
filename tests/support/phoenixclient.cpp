#include "phoenixclient.h"

#include <QJsonDocument>
#include <QTest>
#include <QUrlQuery>

using namespace Qt::StringLiterals;

PhoenixClient::PhoenixClient(const QUrl &backend, const QByteArray &apikey, const QString &vsn)
    : m_vsn(vsn)
{
    m_url = backend;
    m_url.setScheme(backend.scheme() == u"https" ? u"wss"_s : u"ws"_s);
    m_url.setPath(u"/realtime/v1/websocket"_s);
    QUrlQuery query;
    query.addQueryItem(u"apikey"_s, QString::fromLatin1(apikey));
    query.addQueryItem(u"vsn"_s, vsn);
    m_url.setQuery(query);
    connect(&m_socket, &QWebSocket::textMessageReceived, this, [this](const QString &text) {
        const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
        Message message;
        if (document.isArray()) {
            const QJsonArray array = document.array();
            message = {array.at(0), array.at(1), array.at(2).toString(), array.at(3).toString(),
                       array.at(4).toObject()};
        } else {
            const QJsonObject object = document.object();
            message = {object.value(u"join_ref"), object.value(u"ref"), object.value(u"topic").toString(),
                       object.value(u"event").toString(), object.value(u"payload").toObject()};
        }
        m_received.append(message);
    });
}

bool PhoenixClient::open(int timeoutMs)
{
    m_socket.open(m_url);
    return QTest::qWaitFor([this] { return m_socket.state() == QAbstractSocket::ConnectedState; }, timeoutMs);
}

bool PhoenixClient::isOpen() const
{
    return m_socket.state() == QAbstractSocket::ConnectedState;
}

QString PhoenixClient::send(const QString &topic, const QString &event, const QJsonObject &payload,
                            const QJsonValue &joinRef)
{
    const QString ref = QString::number(m_nextRef++);
    QByteArray frame;
    if (m_vsn == u"2.0.0") {
        frame = QJsonDocument(QJsonArray{joinRef, ref, topic, event, payload}).toJson(QJsonDocument::Compact);
    } else {
        frame = QJsonDocument(QJsonObject{{u"topic"_s, topic},
                                          {u"event"_s, event},
                                          {u"payload"_s, payload},
                                          {u"ref"_s, ref},
                                          {u"join_ref"_s, joinRef}})
                    .toJson(QJsonDocument::Compact);
    }
    m_socket.sendTextMessage(QString::fromUtf8(frame));
    return ref;
}

QJsonObject PhoenixClient::join(const QString &topic, const QJsonArray &bindings, const QByteArray &token)
{
    const QString ref = QString::number(m_nextRef);
    send(topic, u"phx_join"_s,
         {{u"config"_s, QJsonObject{{u"postgres_changes"_s, bindings}}},
          {u"access_token"_s, QString::fromLatin1(token)}},
         ref);
    const auto answer = take(reply(ref));
    return answer ? answer->payload : QJsonObject{};
}

std::optional<PhoenixClient::Message> PhoenixClient::take(const Predicate &predicate, int timeoutMs)
{
    std::optional<Message> found;
    auto look = [&] {
        for (qsizetype i = 0; i < m_received.size(); ++i) {
            if (predicate(m_received.at(i))) {
                found = m_received.takeAt(i);
                return true;
            }
        }
        return false;
    };
    if (!look()) {
        QTest::qWaitFor(look, timeoutMs);
    }
    return found;
}

bool PhoenixClient::has(const Predicate &predicate) const
{
    return std::any_of(m_received.cbegin(), m_received.cend(), predicate);
}

PhoenixClient::Predicate PhoenixClient::reply(const QString &ref)
{
    return [ref](const Message &message) { return message.event == u"phx_reply" && message.ref.toString() == ref; };
}

PhoenixClient::Predicate PhoenixClient::event(const QString &topic, const QString &event)
{
    return [topic, event](const Message &message) { return message.topic == topic && message.event == event; };
}

PhoenixClient::Predicate PhoenixClient::change(const QString &topic, const QString &type, const QString &rowId)
{
    return [topic, type, rowId](const Message &message) {
        if (message.topic != topic || message.event != u"postgres_changes") {
            return false;
        }
        const QJsonObject data = message.payload.value(u"data").toObject();
        const QJsonObject row = data.value(type == u"DELETE" ? u"old_record" : u"record").toObject();
        return data.value(u"type").toString() == type && row.value(u"id").toString() == rowId;
    };
}

QJsonObject changesOf(const QString &table, const QString &filter, const QString &event)
{
    QJsonObject binding{{u"event"_s, event}, {u"schema"_s, u"public"_s}, {u"table"_s, table}};
    if (!filter.isEmpty()) {
        binding.insert(u"filter"_s, filter);
    }
    return binding;
}
