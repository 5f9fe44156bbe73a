#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <optional>

// One Phoenix channel message. Version 1.0.0 sends it as a JSON object, 2.0.0 as the array
// [join_ref, ref, topic, event, payload]; the references are strings or null.
struct PhoenixMessage
{
    enum class Form { Object, Array }; // vsn 1.0.0, vsn 2.0.0

    QJsonValue joinRef;
    QJsonValue ref;
    QString topic;
    QString event;
    QJsonObject payload;

    static std::optional<PhoenixMessage> decode(Form form, const QByteArray &text);
    [[nodiscard]] QByteArray encode(Form form) const;
};
