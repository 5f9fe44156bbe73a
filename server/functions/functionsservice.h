#pragma once

#include "functions/airelay.h"
#include "http/httpmessage.h"
#include "rest/callerscope.h"
#include "storage/objectfiles.h"

#include <memory>

// /functions/v1/<name>: the server functions the application calls with the user's token.
// "delete-account" removes the caller's account and everything it owns; "morvane-ai", the relay
// for model calls, forwards a signed-in user's call when the server has a provider configured and
// refuses while it has none.
class FunctionsService : public HttpService
{
public:
    FunctionsService(PgPool &pool, QByteArray jwtSecret, QString storageRoot, bool checkSessions = true,
                     std::shared_ptr<AIRelay> relay = {});

    [[nodiscard]] QString prefix() const override { return QStringLiteral("/functions/v1"); }
    HttpResponse handle(const HttpRequest &request) override;

private:
    HttpResponse deleteAccount(const HttpRequest &request);
    HttpResponse aiRelay(const HttpRequest &request);

    CallerScope m_scope;
    QByteArray m_secret;
    ObjectFiles m_files;
    std::shared_ptr<AIRelay> m_relay;
};
