#pragma once

#include <QDateTime>

#include <functional>

// Where "now" comes from. Everything that reads the time takes one, so tests can move time on
// instead of sleeping.
using Clock = std::function<QDateTime()>;

inline Clock systemClock()
{
    return [] { return QDateTime::currentDateTimeUtc(); };
}
