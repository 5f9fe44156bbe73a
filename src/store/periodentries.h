#pragma once

#include "model/timeentry.h"

#include <QDateTime>
#include <QList>

#include <QCoroTask>

#include <optional>

class AuthStore;

// The signed-in user's entries that started in [from, to), read past the recent window the store
// keeps, for figures over long periods. None when signed out; a failing read throws its
// MorvaneError. A refused token is renewed once, as the store's own reads do.
QCoro::Task<std::optional<QList<TimeEntry>>> loadEntriesBetween(AuthStore &auth, QDateTime from, QDateTime to);
