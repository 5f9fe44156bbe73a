#pragma once

#include "model/project.h"
#include "model/taskitem.h"
#include "model/timeentry.h"

#include <QDateTime>
#include <QList>

#include <qcoro/qcorotask.h>

#include <optional>

class AppStore;
class AuthStore;

namespace WorkSummary {

// What the recap and the stand-up are made from: the person's own entries of the last two weeks
// and a day (both recap weeks and the stand-up's week before today), their tasks and projects.
struct Sources
{
    QList<TimeEntry> entries;
    QList<TaskItem> tasks;
    QList<Project> projects;
    double defaultHourlyRate = 0;
    QString currency;
};

// Nothing when the entries cannot be read; the store's lastError says why. Throws what reading
// throws when no one is signed in.
QCoro::Task<std::optional<Sources>> loadSources(AuthStore &auth, const AppStore &store, QDateTime now);

} // namespace WorkSummary
