#pragma once

#include "summary/worksummary.h"

#include <QString>

#include <qcoro/qcorotask.h>

class ClaudeBridge;

// The recap and the stand-up as the person gets them: the model's rephrasing of the facts when it
// passes every check, else the fixed text, with the reason it was not the model's.
namespace WorkSummary {

inline constexpr int modelTimeoutSeconds = 120;

struct Written
{
    QString text;
    bool fromModel = false;
    // Why the fixed text was used: "no_time", "nothing_to_tell", "call_failed" or a validation
    // problem; empty when the text is the model's.
    QString reason;
    QString detail; // the failed call's message
};

struct DailyStandup
{
    Labels labels;
    QString yesterday;
    QString today;
    QString blockers;
    QString fullMarkdown;
    bool fromModel = false;
    QString reason;
    QString detail;
};

// `bridge` must outlive the call.
QCoro::Task<Written> writeRecap(ClaudeBridge &bridge, RecapFacts facts, QString lang);
QCoro::Task<DailyStandup> writeStandup(ClaudeBridge &bridge, StandupFacts facts, QString lang);

} // namespace WorkSummary
