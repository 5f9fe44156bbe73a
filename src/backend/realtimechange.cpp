#include "realtimechange.h"

#include "model/wire.h"

using namespace Qt::StringLiterals;

namespace {

template<class Record>
std::optional<RealtimeChange> decoded(RealtimeChange::Kind kind, const QJsonObject &row)
{
    try {
        return RealtimeChange{kind, Wire::decode<Record>(row)};
    } catch (const DecodeError &) {
        return std::nullopt;
    }
}

} // namespace

std::optional<RealtimeChange> RealtimeChange::fromPayload(const QJsonObject &payload)
{
    using K = RealtimeChange::Kind;
    const QJsonObject data = payload.value(u"data").toObject();
    const QString table = data.value(u"table").toString();
    const QString type = data.value(u"type").toString();
    const QJsonObject record = data.value(u"record").toObject();
    if (type == u"DELETE") {
        const QString id = data.value(u"old_record").toObject().value(u"id").toString();
        if (id.isEmpty()) {
            return std::nullopt;
        }
        static const QHash<QString, K> deletes{{u"tasks"_s, K::TaskDeleted},
                                               {u"time_entries"_s, K::EntryDeleted},
                                               {u"projects"_s, K::ProjectDeleted},
                                               {u"trips"_s, K::TripDeleted}};
        const auto kind = deletes.constFind(table);
        if (kind == deletes.cend()) {
            return std::nullopt;
        }
        return RealtimeChange{*kind, id};
    }
    const bool insert = type == u"INSERT";
    if (!insert && type != u"UPDATE") {
        return std::nullopt;
    }
    if (table == u"tasks") {
        return decoded<TaskItem>(insert ? K::TaskInserted : K::TaskUpdated, record);
    }
    if (table == u"time_entries") {
        return decoded<TimeEntry>(insert ? K::EntryInserted : K::EntryUpdated, record);
    }
    if (table == u"projects") {
        return decoded<Project>(K::ProjectUpserted, record);
    }
    if (table == u"trips") {
        if (!record.value(u"id").isString()) {
            return std::nullopt;
        }
        return RealtimeChange{K::TripUpserted, record};
    }
    return std::nullopt;
}
