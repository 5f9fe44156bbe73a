#pragma once

#include "capture/aiparseresult.h"
#include "capture/applyairesult.h"

#include <QStringList>

class AppStore;

// A capture in words, for the command line and the window alike.
namespace CaptureText {

// What the model understood, one line per project, task, time or timer action (nested lines
// indented by two spaces), then the model's note and what checking changed.
[[nodiscard]] QStringList understood(const AISession &session, const QString &currency);
// What applying it made and matched, the timer it started or stopped, and notes.
[[nodiscard]] QStringList done(const AppStore &store, const AIApplyOutcome &outcome);
// Where a failed apply stopped and what to do; empty when nothing failed.
[[nodiscard]] QString stopped(const AIApplyOutcome &outcome);

} // namespace CaptureText
