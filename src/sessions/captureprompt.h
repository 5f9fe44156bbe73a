#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QTimeZone>

// The days a capture prompt spells out, so that the model copies dates instead of counting them.
namespace ParseDates {

// Today's date where the user is, as "YYYY-MM-DD": late in the evening in Amsterdam is already
// tomorrow in UTC, and the model must hear the user's day.
QString todayISO(const QDateTime &now, const QTimeZone &zone);
// One day as the prompt writes it: "Monday 2026-03-30".
QString dayLine(QDate day);
// TODAY, TOMORROW with the day after, and three weeks from Monday, one per line. A date that
// cannot be read gives the TODAY line alone, with the text as it came.
QString calendar(const QString &todayISO, const QTimeZone &zone);

} // namespace ParseDates

// What the capture call tells the model: the extractor rules, the date rules and the calendar,
// and the shape of the answer as a JSON schema for the routes that take one.
namespace CapturePrompt {

QString systemPrompt(const QStringList &knownProjects, const QString &todayISO, const QTimeZone &zone);
QString jsonSchema();

} // namespace CapturePrompt
