#pragma once

#include <QDateTime>
#include <QString>
#include <QStringView>

#include <optional>

// Reads the time stamps that rows carry. The accepted forms are tried in a fixed order:
// ISO 8601 internet date-time with fractional seconds, then without, then the fallbacks for
// what databases and older clients wrote (six-digit microseconds, offsets without a colon,
// a literal Z, a space instead of the T). Text without a zone is refused rather than guessed.
// The forms are a constant table and parsing keeps no state, so any thread may call this.
std::optional<QDateTime> isoDate(QStringView text);
std::optional<QDateTime> isoDate(const QString &text);
std::optional<QDateTime> isoDate(const std::optional<QString> &text);

// The form the client writes: UTC, whole seconds, e.g. 2025-03-01T09:30:00Z.
QString isoString(const QDateTime &instant);
