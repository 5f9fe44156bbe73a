#include "phoenixmessage.h"

#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

// Clients send references as strings; a number is taken as its text so that the answer still
// pairs with the question.
QJsonValue reference(const QJsonValue &value)
{
    if (value.isDouble()) {
        return QString::number(qint64(value.toDouble()));
    }
    return value.isString() ? value : QJsonValue(QJsonValue::Null);
}

} // namespace

std::optional<PhoenixMessage> PhoenixMessage::decode(Form form, const QByteArray &text)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        return std::nullopt;
    }
    PhoenixMessage message;
    QJsonValue payload;
    if (form == Form::Object) {
        if (!document.isObject()) {
            return std::nullopt;
        }
        const QJsonObject object = document.object();
        message.joinRef = reference(object.value(u"join_ref"));
        message.ref = reference(object.value(u"ref"));
        message.topic = object.value(u"topic").toString();
        message.event = object.value(u"event").toString();
        payload = object.value(u"payload");
    } else {
        if (!document.isArray() || document.array().size() != 5) {
            return std::nullopt;
        }
        const QJsonArray array = document.array();
        message.joinRef = reference(array.at(0));
        message.ref = reference(array.at(1));
        message.topic = array.at(2).toString();
        message.event = array.at(3).toString();
        payload = array.at(4);
    }
    if (message.topic.isEmpty() || message.event.isEmpty() || !(payload.isObject() || payload.isUndefined())) {
        return std::nullopt;
    }
    message.payload = payload.toObject();
    return message;
}

QByteArray PhoenixMessage::encode(Form form) const
{
    if (form == Form::Object) {
        const QJsonObject object{{u"topic"_s, topic},
                                 {u"event"_s, event},
                                 {u"payload"_s, payload},
                                 {u"ref"_s, ref.isUndefined() ? QJsonValue(QJsonValue::Null) : ref},
                                 {u"join_ref"_s, joinRef.isUndefined() ? QJsonValue(QJsonValue::Null) : joinRef}};
        return QJsonDocument(object).toJson(QJsonDocument::Compact);
    }
    const QJsonArray array{joinRef.isUndefined() ? QJsonValue(QJsonValue::Null) : joinRef,
                           ref.isUndefined() ? QJsonValue(QJsonValue::Null) : ref, topic, event, payload};
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}
