#pragma once

#include "auth/requestidentity.h"
#include "pg/pgpool.h"

#include <chrono>
#include <functional>

// Runs work in one transaction as the caller: role and claims set for the transaction so that
// row-level security decides, with a statement time-out. Database errors surface as ApiError.
struct CallerScope
{
    PgPool &pool;
    // Whether a user's token must still have its account and session (the schema provides
    // app.session_is_live()).
    bool checkSessions = true;
    std::chrono::milliseconds poolWait{std::chrono::seconds(10)};
    std::chrono::milliseconds statementTimeout{std::chrono::seconds(30)};

    // `work` returns true to commit, false to roll back.
    void run(const RequestIdentity &identity, const HttpRequest &request, bool readOnly,
             const std::function<bool(PgConnection &)> &work) const;
};
