#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QUrl>

#include <optional>

// The model services that take the user's own key (or the relay's key on the server).
enum class AIVendor { Anthropic, OpenAI, Gemini };

// One model call, independent of who carries it: the same system prompt, user text and, when the
// answer must be a JSON object, its schema.
struct AIRequest
{
    QString systemPrompt;
    QString userText;
    QJsonObject schema; // empty: a plain text answer
    QString model;      // an alias ("sonnet", "haiku", "opus") or a vendor's own identifier
    int maxTokens = 4096;
};

// An HTTP call ready to send.
struct AIHttpCall
{
    QUrl url;
    QList<std::pair<QByteArray, QByteArray>> headers;
    QByteArray body;
};

// What came back: the answer's text (for a schema call, the JSON object as text) or, when there
// is none, the vendor's own explanation.
struct AIAnswer
{
    std::optional<QString> text;
    QString problem;
};

// The vendors' public request and answer formats, shared by the application's own clients and
// the server's relay so both speak them the same way.
namespace AIWire {

QString vendorName(AIVendor vendor);                         // "anthropic", "openai", "gemini"
std::optional<AIVendor> vendorFromName(const QString &name); // by vendorName, any case
QString displayName(AIVendor vendor);                        // "Anthropic", "OpenAI", "Google Gemini"
QUrl defaultBaseUrl(AIVendor vendor);
// The vendor's model for an alias; a name that is not an alias is taken as the vendor's own.
QString modelFor(AIVendor vendor, const QString &model);

AIHttpCall build(AIVendor vendor, const QUrl &baseUrl, const QString &key, const AIRequest &request);
// Reads the body of a 2xx answer.
AIAnswer readAnswer(AIVendor vendor, const QByteArray &body);
// The vendor's message in an error body, or the start of the body when it has none.
QString errorText(const QByteArray &body);

} // namespace AIWire
