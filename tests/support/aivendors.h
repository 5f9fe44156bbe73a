#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QString>

// A model vendor's successful answer carrying `text`, as its public documentation shows it:
// Anthropic Messages (a text block, or for a schema call a forced tool call whose input is the
// object `text` spells), OpenAI chat completions, Google generateContent.
inline QByteArray vendorAnswer(const QString &vendor, const QString &text, bool asTool = false)
{
    const QByteArray quoted = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact).mid(1).chopped(1);
    if (vendor == u"anthropic") {
        const QByteArray block =
            asTool ? "{\"type\":\"tool_use\",\"id\":\"toolu_1\",\"name\":\"answer\",\"input\":" + text.toUtf8() + "}"
                   : QByteArray("{\"type\":\"text\",\"text\":" + quoted + "}");
        return "{\"type\":\"message\",\"role\":\"assistant\",\"content\":[" + block + "],\"stop_reason\":\"" +
               (asTool ? "tool_use" : "end_turn") + "\"}";
    }
    if (vendor == u"openai") {
        return "{\"object\":\"chat.completion\",\"choices\":[{\"index\":0,\"message\":{\"role\":\"assistant\","
               "\"content\":" +
               quoted + ",\"refusal\":null},\"finish_reason\":\"stop\"}]}";
    }
    return "{\"candidates\":[{\"content\":{\"role\":\"model\",\"parts\":[{\"text\":" + quoted +
           "}]},\"finishReason\":\"STOP\"}]}";
}
