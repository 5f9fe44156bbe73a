#pragma once

#include "auth/ratelimiter.h"
#include "http/httpmessage.h"
#include "sessions/aiwire.h"

#include <QUrl>

#include <optional>
#include <variant>

// The "morvane-ai" relay: forwards a signed-in user's model call to the vendor the server's
// operator configured, with the operator's key, so a user needs neither a key nor the `claude`
// program. The caller's identity is checked before this is reached; here each user is held to a
// rate and a size, and only the prompt, text, schema and model alias travel on.
class AIRelay
{
public:
    struct Config
    {
        AIVendor vendor = AIVendor::Anthropic;
        QString key;
        QUrl baseUrl;          // the vendor's public address unless set
        int callsPerHour = 60; // per user
        qint64 maxRequestBytes = 256 * 1024;
        int timeoutSeconds = 120;
    };

    explicit AIRelay(Config config);

    // The key in `path`, refused unless the file is readable by its owner alone and holds a key.
    static std::variant<QString, QString> readKeyFile(const QString &path); // key, or the problem

    // Runs on a worker thread and blocks for the vendor's answer.
    HttpResponse forward(const QString &userId, const QByteArray &body);

private:
    Config m_config;
    RateLimiter m_limiter;
};
