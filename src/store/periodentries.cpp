#include "periodentries.h"

#include "backend/authstore.h"
#include "backend/supabase.h"
#include "backend/supabaseerror.h"
#include "model/isodate.h"

using namespace Qt::StringLiterals;

QCoro::Task<std::optional<QList<TimeEntry>>> loadEntriesBetween(AuthStore &auth, QDateTime from, QDateTime to)
{
    std::optional<QString> token = co_await auth.validToken(30);
    if (!token) {
        co_return std::nullopt;
    }
    const QueryItems query{{u"select"_s, u"*"_s},
                           {u"started_at"_s, u"gte."_s + isoString(from.toUTC())},
                           {u"started_at"_s, u"lt."_s + isoString(to.toUTC())},
                           {u"order"_s, u"started_at.asc,id.asc"_s}};
    const Supabase client = auth.client();
    try {
        co_return co_await client.selectAll<TimeEntry>(u"time_entries"_s, *token, query);
    } catch (const SupabaseError &error) {
        if (error.kind() != SupabaseError::Kind::HttpStatus || error.status() != 401) {
            throw;
        }
    }
    token = co_await auth.tokenAfterUnauthorized(*token);
    if (!token) {
        co_return std::nullopt;
    }
    co_return co_await client.selectAll<TimeEntry>(u"time_entries"_s, *token, query);
}
