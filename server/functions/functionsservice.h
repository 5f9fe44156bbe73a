#pragma once

#include "http/httpmessage.h"
#include "rest/callerscope.h"
#include "storage/objectfiles.h"

// /functions/v1/<name>: the server functions the application calls with the user's token.
// "delete-account" removes the caller's account and everything it owns; "morvane-ai", the relay
// for model calls, refuses while the server has no provider configured.
class FunctionsService : public HttpService
{
public:
    FunctionsService(PgPool &pool, QByteArray jwtSecret, QString storageRoot, bool checkSessions = true);

    [[nodiscard]] QString prefix() const override { return QStringLiteral("/functions/v1"); }
    HttpResponse handle(const HttpRequest &request) override;

private:
    HttpResponse deleteAccount(const HttpRequest &request);
    HttpResponse aiRelay(const HttpRequest &request);

    CallerScope m_scope;
    QByteArray m_secret;
    ObjectFiles m_files;
};
