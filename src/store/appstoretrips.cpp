#include "appstore.h"

#include "appstore_p.h"
#include "store/storelog.h"
#include "store/storetext.h"

// The user's trips and which of them an invoice already charges.

using namespace Qt::StringLiterals;
using namespace StoreDetail;

namespace {

// One live link of `invoice_trips`, read for its trip only.
struct BilledTripRow
{
    QString tripId;
    QString invoiceId;

    static constexpr std::string_view wireName = "BilledTripRow";
    static constexpr auto wireFields()
    {
        return std::tuple{Wire::field("trip_id", &BilledTripRow::tripId),
                          Wire::field("invoice_id", &BilledTripRow::invoiceId)};
    }
    friend bool operator==(const BilledTripRow &, const BilledTripRow &) = default;
};

// Newest departure first, as lists and the export read them.
bool newestFirst(const Trip &a, const Trip &b)
{
    const qint64 ka = instantKey(a.startedAt);
    const qint64 kb = instantKey(b.startedAt);
    return ka != kb ? ka > kb : a.id > b.id;
}

QString tripNotSaved()
{
    //% "The trip was not saved: it no longer exists or you may not change it."
    return qtTrId("trip.err.notSaved");
}

QString tripsNotLoaded()
{
    //% "Your trips could not be loaded. Check your connection and try again."
    return qtTrId("trip.err.notLoaded");
}

QString travelNotSaved()
{
    //% "Your travel settings were not saved."
    return qtTrId("trip.err.settingsNotSaved");
}

// A phone or a person may send any number; a distance is whole, non-negative metres.
bool distanceUsable(int metres)
{
    return metres >= 0;
}

} // namespace

std::optional<Trip> AppStore::trip(const QString &tripId) const
{
    for (const Trip &known : m_trips) {
        if (known.id == tripId) {
            return known;
        }
    }
    return std::nullopt;
}

QCoro::Task<bool> AppStore::loadTrips()
{
    const char *const logPrefix = "Load trips failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    try {
        const QueryItems query{{u"select"_s, u"*"_s}, {u"order"_s, u"started_at.desc,id.desc"_s}};
        const auto request = [&, client = m_auth.client()](const QString &token) {
            return client.selectAll<Trip>(u"trips"_s, token, query);
        };
        QList<Trip> rows = co_await authorized(*session, request);
        if (!isCurrent(*session)) {
            co_return false;
        }
        std::stable_sort(rows.begin(), rows.end(), newestFirst);
        m_tripsReady = true;
        m_tripsError = false;
        m_trips = std::move(rows);
        emit tripsChanged();
        co_return true;
    } catch (const MorvaneError &error) {
        m_tripsError = true;
        emit tripsChanged();
        failed(logPrefix, error.message(), tripsNotLoaded());
        co_return false;
    }
}

QCoro::Task<bool> AppStore::fetchTrip(QString tripId)
{
    const char *const logPrefix = "Load trip failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    try {
        const QueryItems query = idFilter(tripId) + QueryItems{{u"select"_s, u"*"_s}};
        const auto request = [&, client = m_auth.client()](const QString &token) {
            return client.select<Trip>(u"trips"_s, token, query);
        };
        const QList<Trip> rows = co_await authorized(*session, request);
        if (!isCurrent(*session)) {
            co_return false;
        }
        if (rows.isEmpty()) {
            removeTripLocally(tripId);
        } else {
            upsertTripLocally(rows.first());
        }
        co_return true;
    } catch (const MorvaneError &error) {
        failed(logPrefix, error.message(), tripsNotLoaded());
        co_return false;
    }
}

QCoro::Task<std::optional<QList<Trip>>> AppStore::createTrips(QList<TripInsert> inserts)
{
    const char *const logPrefix = "Save trip failed: ";
    for (TripInsert &insert : inserts) {
        if (!distanceUsable(insert.distanceM) || !isoDate(insert.startedAt) ||
            (insert.endedAt && !isoDate(*insert.endedAt))) {
            failed(logPrefix, u"distance or time out of shape"_s, StoreText::writeFailed());
            co_return std::nullopt;
        }
        // A trip for a task serves the task's project; one without a project bills nowhere.
        if (insert.taskId && !insert.projectId) {
            if (const std::optional<TaskItem> task = this->task(*insert.taskId)) {
                insert.projectId = task->projectId;
            }
        }
    }
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return std::nullopt;
    }
    try {
        const auto request = [&, client = m_auth.client()](const QString &token) {
            return client.insert<Trip>(u"trips"_s, token, inserts);
        };
        const QList<Trip> rows = co_await authorized(*session, request);
        if (!isCurrent(*session)) {
            co_return std::nullopt;
        }
        for (const Trip &row : rows) {
            upsertTripLocally(row);
        }
        co_return rows;
    } catch (const MorvaneError &error) {
        writeFailed(logPrefix, error, tripNotSaved());
        co_return std::nullopt;
    }
}

QCoro::Task<bool> AppStore::updateTrip(QString tripId, TripPatch patch)
{
    const char *const logPrefix = "Save trip failed: ";
    if (patch.isEmpty()) {
        co_return true;
    }
    const QJsonValue distance = patch.values().value(u"distance_m"_s);
    if (!distance.isUndefined() && (!distance.isDouble() || !distanceUsable(distance.toInt(-1)))) {
        failed(logPrefix, u"distance out of range"_s, StoreText::writeFailed());
        co_return false;
    }
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    try {
        const QJsonObject body = patch.values();
        const auto request = [&, client = m_auth.client()](const QString &token) {
            return client.update<Trip>(u"trips"_s, token, idFilter(tripId), body);
        };
        const QList<Trip> rows = co_await authorized(*session, request);
        if (!isCurrent(*session)) {
            co_return false;
        }
        if (rows.isEmpty()) {
            failed(logPrefix, u"no row matched "_s + tripId, tripNotSaved());
            co_return false;
        }
        upsertTripLocally(rows.first());
        co_return true;
    } catch (const MorvaneError &error) {
        writeFailed(logPrefix, error, tripNotSaved());
        co_return false;
    }
}

QCoro::Task<bool> AppStore::deleteTrip(QString tripId)
{
    const char *const logPrefix = "Delete trip failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    try {
        const Supabase client = m_auth.client();
        const auto request = [&](const QString &token) {
            return deleteReturning<Trip>(client, u"trips"_s, token, idFilter(tripId));
        };
        const QList<Trip> rows = co_await authorized(*session, request);
        if (!isCurrent(*session)) {
            co_return false;
        }
        if (rows.isEmpty()) {
            failed(logPrefix, u"no row matched "_s + tripId, tripNotSaved());
            co_return false;
        }
        removeTripLocally(tripId);
        co_return true;
    } catch (const MorvaneError &error) {
        writeFailed(logPrefix, error, tripNotSaved());
        co_return false;
    }
}

QCoro::Task<bool> AppStore::reloadBilledTrips()
{
    const char *const logPrefix = "Load billed trips failed: ";
    std::optional<Session> session = co_await openSession(logPrefix);
    if (!session) {
        co_return false;
    }
    try {
        const QueryItems query{{u"select"_s, u"trip_id,invoice_id"_s}, {u"live"_s, u"is.true"_s}, {u"order"_s, u"id.asc"_s}};
        const auto request = [&, client = m_auth.client()](const QString &token) {
            return client.selectAll<BilledTripRow>(u"invoice_trips"_s, token, query);
        };
        const QList<BilledTripRow> rows = co_await authorized(*session, request);
        if (!isCurrent(*session)) {
            co_return false;
        }
        QSet<QString> billed;
        QHash<QString, QString> invoiceOf;
        for (const BilledTripRow &row : rows) {
            billed.insert(row.tripId);
            invoiceOf.insert(row.tripId, row.invoiceId);
        }
        m_billedTripInvoice = std::move(invoiceOf);
        const bool changed = billed != m_billedTripIds || !m_billedTripsReady || m_billedTripsError;
        m_billedTripIds = std::move(billed);
        m_billedTripsReady = true;
        m_billedTripsError = false;
        if (changed) {
            emit billedTripsChanged();
        }
        co_return true;
    } catch (const MorvaneError &error) {
        m_billedTripsError = true;
        emit billedTripsChanged();
        failed(logPrefix, error.message(), tripsNotLoaded());
        co_return false;
    }
}

void AppStore::upsertTripLocally(const Trip &trip)
{
    // The feed also carries rows of other users on a shared server only when the policy lets it;
    // a row that is not ours has no place in this list either way.
    if (!m_currentUserId.isEmpty() && trip.userId != m_currentUserId) {
        return;
    }
    const auto same = std::find_if(m_trips.begin(), m_trips.end(), [&](const Trip &t) { return t.id == trip.id; });
    if (same != m_trips.end()) {
        if (*same == trip) {
            return;
        }
        m_trips.erase(same);
    }
    m_trips.insert(std::upper_bound(m_trips.begin(), m_trips.end(), trip, newestFirst), trip);
    emit tripsChanged();
}

void AppStore::removeTripLocally(const QString &tripId)
{
    if (m_trips.removeIf([&](const Trip &t) { return t.id == tripId; }) > 0) {
        emit tripsChanged();
    }
}

void AppStore::clearTrips()
{
    const bool had = !m_trips.isEmpty() || m_tripsReady;
    const bool hadBilled = !m_billedTripIds.isEmpty() || m_billedTripsReady;
    m_trips.clear();
    m_tripsReady = m_tripsError = false;
    m_billedTripIds.clear();
    m_billedTripInvoice.clear();
    m_billedTripsReady = m_billedTripsError = false;
    if (had) {
        emit tripsChanged();
    }
    if (hadBilled) {
        emit billedTripsChanged();
    }
}

std::optional<Trip> AppStore::tripInProgress() const
{
    for (const Trip &trip : m_trips) {
        if (!trip.isFinished()) {
            return trip;
        }
    }
    return std::nullopt;
}

TravelSettings AppStore::travelSettings() const
{
    return TravelSettings::fromJson(m_profile && m_profile->travel ? *m_profile->travel : JSONValue());
}

QCoro::Task<bool> AppStore::setTravelSettings(TravelSettings settings)
{
    const char *const logPrefix = "Save travel settings failed: ";
    if (!std::isfinite(settings.ratePerKm) || settings.ratePerKm < 0) {
        failed(logPrefix, u"rate out of range"_s, travelNotSaved());
        co_return false;
    }
    const JSONValue current = m_profile && m_profile->travel ? *m_profile->travel : JSONValue();
    const QJsonObject patch{{u"travel"_s, settings.mergedInto(current).toJson()}};
    co_return co_await patchProfile(patch, logPrefix, travelNotSaved());
}

std::optional<Travel::InvoiceLine> AppStore::travelInvoiceLine(const QString &projectId, QDate from, QDate to) const
{
    const std::optional<Project> project = this->project(projectId);
    if (!project) {
        return std::nullopt;
    }
    QList<Trip> inPeriod;
    for (const Trip &trip : Travel::tripsToBill(m_trips, projectId, m_billedTripIds)) {
        const std::optional<QDateTime> started = isoDate(trip.startedAt);
        const QDate day = started ? started->toLocalTime().date() : QDate();
        if ((from.isValid() && day < from) || (to.isValid() && day > to)) {
            continue;
        }
        inPeriod.append(trip);
    }
    const std::optional<Travel::Line> line =
        Travel::line(inPeriod, Travel::of(project->billing), travelSettings().ratePerKm, Travel::labels());
    if (!line) {
        return std::nullopt;
    }
    return Travel::invoiceLine(*line, projectId, project->billing ? project->billing->vatRate : std::nullopt);
}

AppStore::TravelToInvoice AppStore::travelToInvoice(const QString &projectId) const
{
    const std::optional<Travel::InvoiceLine> line = travelInvoiceLine(projectId);
    if (!line) {
        return {};
    }
    return {line->line.amount, line->line.description.value_or(QString())};
}
