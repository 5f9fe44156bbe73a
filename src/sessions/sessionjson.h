#pragma once

#include "sessions/sessionrecords.h"

#include <QJsonArray>
#include <QJsonObject>

// Sessions as JSON with the records' own field names and instants in ISO 8601, UTC, with
// milliseconds: what `morvane sessions list --json` prints.
namespace SessionJson {

QString instant(const QDateTime &at);
QJsonObject toJson(const SessionSegment &segment);
QJsonObject toJson(const ParsedSession &session);
QJsonArray toJson(const QList<ParsedSession> &sessions);

} // namespace SessionJson
