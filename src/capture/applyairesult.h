#pragma once

#include "capture/aiparseresult.h"

#include <QCoroTask>

class AppStore;
class QSettings;

// What applying a reading did. On a failure the counts and ids say what was made before it, and
// `error` says where it stopped.
struct AIApplyOutcome
{
    int projectsCreated = 0;
    // Drafts that named an existing project, which was used instead of making a second one.
    int projectsMatched = 0;
    int tasksCreated = 0;
    int tasksMatched = 0;
    double minutesLogged = 0;
    // A time or timer intent named no task that could be found (or several equally well).
    bool needsTaskClarification = false;
    std::optional<QString> error;
    QStringList newProjectIds;
    QStringList newTaskIds;
    std::optional<QString> focusProjectId;
    std::optional<QString> focusTaskId;
    std::optional<QString> timerStartedTaskId;
    std::optional<QString> timerStoppedTaskId;
    // Things the person should know that are not failures (a team that does not exist).
    QStringList notes;
    // Time already logged by an earlier, failed apply of the same sentence; see CaptureJournal.
    QStringList doneSteps;
};

// Names as people retype them: case, width and runs of spaces do not matter.
QString captureMatchKey(const QString &name);

// Applies a checked reading to the store. Projects and tasks that already exist under the
// draft's name are used, not made again, so applying a sentence a second time creates nothing
// new; time logged is the one step that would repeat, and `doneSteps` (from the journal) lists
// what an earlier failed apply already logged. Stops at the first failed write.
QCoro::Task<AIApplyOutcome> applyAIResult(AppStore &store, AIParseResult result, QStringList doneSteps = {});

// Remembers, per sentence, what a failed apply already logged, so that applying the same sentence
// again finishes it instead of logging the time twice. A sentence applied in full is forgotten:
// saying it again tomorrow means new work.
class CaptureJournal
{
public:
    explicit CaptureJournal(QSettings &settings);
    [[nodiscard]] QStringList doneSteps(const QString &sentence) const;
    void record(const QString &sentence, const AIApplyOutcome &outcome);

private:
    [[nodiscard]] static QString key(const QString &sentence);
    QSettings &m_settings;
};
