#include "aiwire.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QUrl withPath(const QUrl &base, const QString &path)
{
    QUrl url = base;
    QString prefix = base.path();
    while (prefix.endsWith(u'/')) {
        prefix.chop(1);
    }
    url.setPath(prefix + path);
    return url;
}

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QJsonObject parsed(const QByteArray &body)
{
    return QJsonDocument::fromJson(body).object();
}

AIAnswer anthropicAnswer(const QJsonObject &answer)
{
    QString text;
    for (const QJsonValue &block : answer.value(u"content").toArray()) {
        const QJsonObject part = block.toObject();
        if (part.value(u"type").toString() == u"tool_use" && part.value(u"input").isObject()) {
            return {QString::fromUtf8(compact(part.value(u"input").toObject())), {}};
        }
        if (part.value(u"type").toString() == u"text") {
            text += part.value(u"text").toString();
        }
    }
    if (text.isEmpty()) {
        return {std::nullopt,
                u"the answer holds no text (stop reason: %1)"_s.arg(answer.value(u"stop_reason").toString(u"none"_s))};
    }
    return {text, {}};
}

AIAnswer openAIAnswer(const QJsonObject &answer)
{
    const QJsonObject message = answer.value(u"choices").toArray().at(0).toObject().value(u"message").toObject();
    if (message.value(u"refusal").isString()) {
        return {std::nullopt, u"the model refused: %1"_s.arg(message.value(u"refusal").toString())};
    }
    if (!message.value(u"content").isString() || message.value(u"content").toString().isEmpty()) {
        return {std::nullopt, u"the answer holds no text"_s};
    }
    return {message.value(u"content").toString(), {}};
}

AIAnswer geminiAnswer(const QJsonObject &answer)
{
    const QJsonArray candidates = answer.value(u"candidates").toArray();
    if (candidates.isEmpty()) {
        const QString blocked = answer.value(u"promptFeedback").toObject().value(u"blockReason").toString();
        return {std::nullopt, blocked.isEmpty() ? u"the answer holds no candidates"_s
                                                : u"the request was blocked (%1)"_s.arg(blocked)};
    }
    const QJsonObject first = candidates.first().toObject();
    QString text;
    for (const QJsonValue &part : first.value(u"content").toObject().value(u"parts").toArray()) {
        text += part.toObject().value(u"text").toString();
    }
    if (text.isEmpty()) {
        return {std::nullopt, u"the answer holds no text (finish reason: %1)"_s.arg(
                                  first.value(u"finishReason").toString(u"none"_s))};
    }
    return {text, {}};
}

} // namespace

namespace AIWire {

QString vendorName(AIVendor vendor)
{
    switch (vendor) {
    case AIVendor::Anthropic:
        return u"anthropic"_s;
    case AIVendor::OpenAI:
        return u"openai"_s;
    case AIVendor::Gemini:
        return u"gemini"_s;
    }
    return {};
}

std::optional<AIVendor> vendorFromName(const QString &name)
{
    for (AIVendor vendor : {AIVendor::Anthropic, AIVendor::OpenAI, AIVendor::Gemini}) {
        if (vendorName(vendor).compare(name, Qt::CaseInsensitive) == 0) {
            return vendor;
        }
    }
    return std::nullopt;
}

QString displayName(AIVendor vendor)
{
    switch (vendor) {
    case AIVendor::Anthropic:
        return u"Anthropic"_s;
    case AIVendor::OpenAI:
        return u"OpenAI"_s;
    case AIVendor::Gemini:
        return u"Google Gemini"_s;
    }
    return {};
}

QUrl defaultBaseUrl(AIVendor vendor)
{
    switch (vendor) {
    case AIVendor::Anthropic:
        return QUrl(u"https://api.anthropic.com"_s);
    case AIVendor::OpenAI:
        return QUrl(u"https://api.openai.com"_s);
    case AIVendor::Gemini:
        return QUrl(u"https://generativelanguage.googleapis.com"_s);
    }
    return {};
}

QString modelFor(AIVendor vendor, const QString &model)
{
    const bool small = model == u"haiku";
    const bool large = model == u"opus";
    // A vendor's own identifier is taken as it stands, as long as it cannot reshape the address
    // it becomes part of (Gemini puts it in the path).
    static const QRegularExpression identifier(u"^[A-Za-z0-9][A-Za-z0-9._-]{0,99}$"_s);
    if (!model.isEmpty() && !small && !large && model != u"sonnet" && identifier.match(model).hasMatch()) {
        return model;
    }
    switch (vendor) {
    case AIVendor::Anthropic:
        return small ? u"claude-haiku-4-5"_s : large ? u"claude-opus-5-5"_s : u"claude-sonnet-5-5"_s;
    case AIVendor::OpenAI:
        return small ? u"gpt-6-luna"_s : u"gpt-6.1-sol"_s;
    case AIVendor::Gemini:
        return small ? u"gemini-3.5-flash-lite"_s : u"gemini-3.8-flash"_s;
    }
    return {};
}

AIHttpCall build(AIVendor vendor, const QUrl &baseUrl, const QString &key, const AIRequest &request)
{
    const QString model = modelFor(vendor, request.model);
    const bool structured = !request.schema.isEmpty();
    AIHttpCall call;
    call.headers.emplaceBack("Content-Type", "application/json");
    QJsonObject body;
    switch (vendor) {
    case AIVendor::Anthropic: {
        call.url = withPath(baseUrl, u"/v1/messages"_s);
        call.headers.emplaceBack("x-api-key", key.toUtf8());
        call.headers.emplaceBack("anthropic-version", "2023-06-01");
        body = {{u"model"_s, model},
                {u"max_tokens"_s, request.maxTokens},
                {u"system"_s, request.systemPrompt},
                {u"messages"_s, QJsonArray{QJsonObject{{u"role"_s, u"user"_s}, {u"content"_s, request.userText}}}}};
        if (structured) {
            // A forced tool call is how the Messages API hands back an object that follows a schema.
            body.insert(u"tools"_s, QJsonArray{QJsonObject{{u"name"_s, u"answer"_s},
                                                           {u"description"_s, u"The answer as one JSON object."_s},
                                                           {u"input_schema"_s, request.schema}}});
            body.insert(u"tool_choice"_s, QJsonObject{{u"type"_s, u"tool"_s}, {u"name"_s, u"answer"_s}});
        }
        break;
    }
    case AIVendor::OpenAI: {
        call.url = withPath(baseUrl, u"/v1/chat/completions"_s);
        call.headers.emplaceBack("Authorization", "Bearer " + key.toUtf8());
        body = {{u"model"_s, model},
                {u"max_completion_tokens"_s, request.maxTokens},
                {u"messages"_s, QJsonArray{QJsonObject{{u"role"_s, u"system"_s}, {u"content"_s, request.systemPrompt}},
                                           QJsonObject{{u"role"_s, u"user"_s}, {u"content"_s, request.userText}}}}};
        if (structured) {
            body.insert(u"response_format"_s, QJsonObject{{u"type"_s, u"json_schema"_s},
                                                          {u"json_schema"_s, QJsonObject{{u"name"_s, u"answer"_s},
                                                                                         {u"schema"_s, request.schema},
                                                                                         {u"strict"_s, false}}}});
        }
        break;
    }
    case AIVendor::Gemini: {
        call.url = withPath(baseUrl, u"/v1beta/models/%1:generateContent"_s.arg(model));
        call.headers.emplaceBack("x-goog-api-key", key.toUtf8());
        QJsonObject generation{{u"maxOutputTokens"_s, request.maxTokens}};
        if (structured) {
            generation.insert(u"responseMimeType"_s, u"application/json"_s);
            generation.insert(u"responseJsonSchema"_s, request.schema);
        }
        body = {{u"systemInstruction"_s,
                 QJsonObject{{u"parts"_s, QJsonArray{QJsonObject{{u"text"_s, request.systemPrompt}}}}}},
                {u"contents"_s,
                 QJsonArray{QJsonObject{{u"role"_s, u"user"_s},
                                        {u"parts"_s, QJsonArray{QJsonObject{{u"text"_s, request.userText}}}}}}},
                {u"generationConfig"_s, generation}};
        break;
    }
    }
    call.body = compact(body);
    return call;
}

AIAnswer readAnswer(AIVendor vendor, const QByteArray &body)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(body, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject()) {
        return {std::nullopt, u"the answer is not JSON (%1)"_s.arg(error.errorString())};
    }
    switch (vendor) {
    case AIVendor::Anthropic:
        return anthropicAnswer(document.object());
    case AIVendor::OpenAI:
        return openAIAnswer(document.object());
    case AIVendor::Gemini:
        return geminiAnswer(document.object());
    }
    return {};
}

QString errorText(const QByteArray &body)
{
    // All three put their words under error.message: Anthropic as {"type":"error","error":{...}},
    // OpenAI as {"error":{"message","type","code"}}, Google as {"error":{"code","message","status"}};
    // the relay answers {"message"} like the backend's other functions.
    const QJsonObject object = parsed(body);
    const QJsonValue nested = object.value(u"error").toObject().value(u"message");
    if (nested.isString() && !nested.toString().isEmpty()) {
        return nested.toString();
    }
    if (object.value(u"message").isString()) {
        return object.value(u"message").toString();
    }
    constexpr qsizetype limit = 300;
    const QString text = QString::fromUtf8(body.left(limit)).trimmed();
    return body.size() > limit ? text + u"…"_s : text;
}

} // namespace AIWire
