#pragma once

#include <QString>

#include <qcoro/qcorotask.h>

#include <optional>

// A work burst on its way to becoming billable work: the task to create on the mapped project.
struct BurstTask
{
    QString userId;
    QString projectId;
    QString title;
    QString description;
    QString priority = QStringLiteral("medium");

    friend bool operator==(const BurstTask &, const BurstTask &) = default;
};

// Where logged bursts go: the application's store and session. The watcher holds it weakly, as
// it would the store and the session themselves, and stops logging when it is gone.
class SessionLogSink
{
public:
    virtual ~SessionLogSink() = default;

    // The signed-in user's id, when an access token valid for at least 30 more seconds is at
    // hand; nothing otherwise.
    virtual QCoro::Task<std::optional<QString>> signedInUserId() = 0;
    // Creates the task (with the default billing record) and adds it to the store; answers its
    // id. Failures are thrown as MorvaneError.
    virtual QCoro::Task<QString> createTask(BurstTask task) = 0;
    // Logs a fractional number of minutes on the task as one time entry; throws on failure.
    virtual QCoro::Task<> logMinutes(QString taskId, double minutes) = 0;
};
