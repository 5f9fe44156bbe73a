#pragma once

#include "model/project.h"
#include "model/taskitem.h"
#include "model/timeentry.h"

#include <QJsonObject>
#include <QMetaType>
#include <QString>

#include <optional>
#include <variant>

// One row change from the realtime feed, decoded as the store merges it. Deletes carry the id.
struct RealtimeChange
{
    enum class Kind {
        TaskInserted,
        TaskUpdated,
        TaskDeleted,
        EntryInserted,
        EntryUpdated,
        EntryDeleted,
        ProjectUpserted,
        ProjectDeleted,
        TripUpserted,
        TripDeleted,
    };

    Kind kind = Kind::TaskInserted;
    // The row for inserts and updates (a trip as its JSON row until trips have a record of their
    // own), the id for deletes.
    std::variant<QString, TaskItem, TimeEntry, Project, QJsonObject> payload;

    [[nodiscard]] bool isDelete() const
    {
        return kind == Kind::TaskDeleted || kind == Kind::EntryDeleted || kind == Kind::ProjectDeleted ||
               kind == Kind::TripDeleted;
    }
    [[nodiscard]] QString deletedId() const { return isDelete() ? std::get<QString>(payload) : QString(); }
    [[nodiscard]] const TaskItem *task() const { return std::get_if<TaskItem>(&payload); }
    [[nodiscard]] const TimeEntry *entry() const { return std::get_if<TimeEntry>(&payload); }
    [[nodiscard]] const Project *project() const { return std::get_if<Project>(&payload); }
    [[nodiscard]] const QJsonObject *trip() const { return std::get_if<QJsonObject>(&payload); }

    // The change a postgres_changes payload ({"ids", "data": {table, type, record, old_record}})
    // describes; nothing for another table, an unknown type or a row that does not decode.
    static std::optional<RealtimeChange> fromPayload(const QJsonObject &payload);

    friend bool operator==(const RealtimeChange &, const RealtimeChange &) = default;
};

Q_DECLARE_METATYPE(RealtimeChange)
