#include "tripsview.h"

#include "billing/money.h"
#include "i18n/language.h"
#include "model/isodate.h"
#include "travel/travel.h"

#include <QLocale>
#include <QSettings>

#include <QCoroTask>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maxLabel = 500;
constexpr qsizetype maxPurpose = 1000;
constexpr qsizetype tasksPerProject = 100;
constexpr int minSearchChars = 3;

QVariantMap choice(const QString &value, const QString &label)
{
    return {{u"value"_s, value}, {u"label"_s, label}};
}

// Texts from phones and other devices are shown on one line.
QString oneLine(const std::optional<QString> &text)
{
    QString line = text.value_or(QString());
    for (QChar &c : line) {
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator) {
            c = u' ';
        }
    }
    return line.simplified();
}

QString kmText(double metres)
{
    return QLocale().toString(Travel::billedKm(metres), 'f', 1);
}

// The kilometres as the editor's field holds them: no grouping, a point for the decimals.
QString fieldKm(double metres)
{
    return QString::number(Travel::billedKm(metres), 'f', 1);
}

QDate dayOf(const Trip &trip)
{
    const std::optional<QDateTime> started = isoDate(trip.startedAt);
    return started ? started->toLocalTime().date() : QDate();
}

std::optional<QString> textOrNone(const QString &text)
{
    return text.isEmpty() ? std::nullopt : std::optional<QString>(text);
}

QString modeKey(TripMode mode)
{
    return Wire::enumName(mode);
}

} // namespace

TripsView::TripsView(QObject *parent)
    : QObject(parent)
    , m_rows(new RowsModel({u"id"_s, u"day"_s, u"from"_s, u"to"_s, u"km"_s, u"mode"_s, u"project"_s, u"purpose"_s,
                            u"chipLabel"_s, u"chipTone"_s},
                           this))
{
    m_searchDelay.setSingleShot(true);
    m_searchDelay.setInterval(searchDelay);
    connect(&m_searchDelay, &QTimer::timeout, this, &TripsView::runSearch);
    m_progressTick.setInterval(std::chrono::seconds(30));
    connect(&m_progressTick, &QTimer::timeout, this, &TripsView::progressChanged);
    connect(this, &TripsView::editorChanged, this, &TripsView::rebuildMap);
}

TripsView::~TripsView() = default;

void TripsView::setStore(AppStore *store)
{
    if (m_store == store) {
        return;
    }
    if (m_store) {
        disconnect(m_store, nullptr, this, nullptr);
    }
    m_store = store;
    closeEditor();
    if (store) {
        for (auto signal : {&AppStore::tripsChanged, &AppStore::billedTripsChanged, &AppStore::projectsChanged}) {
            connect(store, signal, this, &TripsView::rebuild);
        }
        connect(store, &AppStore::projectsChanged, this, &TripsView::choicesChanged);
        connect(store, &AppStore::tasksChanged, this, &TripsView::choicesChanged);
        connect(store, &AppStore::profileChanged, this, &TripsView::settingsChanged);
        connect(store, &AppStore::profileChanged, this, &TripsView::rebuild);
    }
    rebuild();
    emit choicesChanged();
    emit settingsChanged();
}

void TripsView::retranslate()
{
    emit choicesChanged();
    emit settingsChanged();
    emit editorChanged();
    rebuild();
}

// --- The list ------------------------------------------------------------------------------------

void TripsView::setPeriod(const QString &period)
{
    if (m_period == period || !QStringList{u"all"_s, u"month"_s, u"lastMonth"_s, u"year"_s}.contains(period)) {
        return;
    }
    m_period = period;
    emit filtersChanged();
    rebuild();
}

void TripsView::setProject(const QString &projectId)
{
    if (m_project == projectId) {
        return;
    }
    m_project = projectId;
    emit filtersChanged();
    rebuild();
}

void TripsView::setBillable(const QString &billable)
{
    if (m_billable == billable || !QStringList{u"all"_s, u"billable"_s, u"notBillable"_s}.contains(billable)) {
        return;
    }
    m_billable = billable;
    emit filtersChanged();
    rebuild();
}

QVariantList TripsView::periodChoices() const
{
    //% "All time"
    return {choice(u"all"_s, qtTrId("ui.trips.period.all")),
            //% "This month"
            choice(u"month"_s, qtTrId("ui.trips.period.month")),
            //% "Last month"
            choice(u"lastMonth"_s, qtTrId("ui.trips.period.lastMonth")),
            //% "This year"
            choice(u"year"_s, qtTrId("ui.trips.period.year"))};
}

QVariantList TripsView::projectChoices() const
{
    //% "All projects"
    QVariantList list{choice(QString(), qtTrId("ui.trips.allProjects"))};
    if (m_store) {
        for (const Project &project : m_store->projects()) {
            list << choice(project.id, oneLine(project.name));
        }
    }
    return list;
}

QVariantList TripsView::billableChoices() const
{
    //% "Charged and not"
    return {choice(u"all"_s, qtTrId("ui.trips.billable.all")),
            //% "Charged to the client"
            choice(u"billable"_s, qtTrId("ui.trips.billable.yes")),
            //% "Private or not charged"
            choice(u"notBillable"_s, qtTrId("ui.trips.billable.no"))};
}

QString TripsView::modeLabel(TripMode mode)
{
    switch (mode) {
    case TripMode::Car:
        //% "Car"
        return qtTrId("ui.trips.mode.car");
    case TripMode::Bike:
        //% "Bike"
        return qtTrId("ui.trips.mode.bike");
    case TripMode::Walk:
        //% "On foot"
        return qtTrId("ui.trips.mode.walk");
    case TripMode::Transit:
        //% "Public transport"
        return qtTrId("ui.trips.mode.transit");
    case TripMode::Other:
        break;
    }
    //% "Other"
    return qtTrId("ui.trips.mode.other");
}

QVariantList TripsView::modeChoices() const
{
    QVariantList list;
    for (TripMode mode : {TripMode::Car, TripMode::Bike, TripMode::Walk, TripMode::Transit, TripMode::Other}) {
        list << choice(modeKey(mode), modeLabel(mode));
    }
    return list;
}

QVariantList TripsView::workChoices() const
{
    //% "Choose a project or task"
    QVariantList list{choice(QString(), qtTrId("ui.trips.work.none"))};
    if (!m_store) {
        return list;
    }
    for (const Project &project : m_store->projects()) {
        const bool chosen = m_work == u"p:"_s + project.id;
        if (project.status != ProjectStatus::Active && !chosen) {
            continue;
        }
        const QString name = oneLine(project.name);
        //% "%1 · Whole project, no task"
        list << choice(u"p:"_s + project.id, qtTrId("ui.trips.work.wholeProject").arg(name));
        qsizetype shown = 0;
        for (const TaskItem &task : m_store->tasks(project.id)) {
            const QString value = u"t:"_s + task.id;
            if ((task.status == TaskStatus::Completed || shown >= tasksPerProject) && m_work != value) {
                continue;
            }
            ++shown;
            list << choice(value, name + u" · "_s + oneLine(task.title));
        }
    }
    return list;
}

int TripsView::total() const
{
    return m_store ? int(m_store->trips().size()) : 0;
}

bool TripsView::isReady() const
{
    return m_store && m_store->tripsReady();
}

bool TripsView::inPeriod(const Trip &trip) const
{
    if (m_period == u"all") {
        return true;
    }
    const QDate today = m_clock().toLocalTime().date();
    const QDate day = dayOf(trip);
    if (m_period == u"year") {
        return day.year() == today.year();
    }
    const QDate month = m_period == u"month" ? today : today.addMonths(-1);
    return day.year() == month.year() && day.month() == month.month();
}

QString TripsView::workOf(const Trip &trip) const
{
    if (trip.taskId) {
        return u"t:"_s + *trip.taskId;
    }
    return trip.projectId ? u"p:"_s + *trip.projectId : QString();
}

void TripsView::rebuild()
{
    QList<QVariantHash> rows;
    double metres = 0;
    if (m_store) {
        const QSet<QString> &billed = m_store->billedTripIds();
        for (const Trip &trip : m_store->trips()) {
            const bool charged = trip.isBusiness() && trip.billable;
            if (!inPeriod(trip) || (!m_project.isEmpty() && trip.projectId != m_project) ||
                (m_billable == u"billable" && !charged) || (m_billable == u"notBillable" && charged)) {
                continue;
            }
            metres += trip.distanceM;
            QString chip;
            QString tone = u"muted"_s;
            if (!trip.isFinished()) {
                chip = qtTrId("tripInProgress");
                tone = u"running"_s;
            } else if (billed.contains(trip.id)) {
                //% "Invoiced"
                chip = qtTrId("ui.trips.chip.invoiced");
                tone = u"success"_s;
            } else if (!trip.isBusiness()) {
                //% "Private"
                chip = qtTrId("ui.trips.chip.private");
            } else if (!trip.billable) {
                //% "Not charged"
                chip = qtTrId("ui.trips.chip.notCharged");
            } else {
                //% "To invoice"
                chip = qtTrId("ui.trips.chip.toInvoice");
                tone = u"primary"_s;
            }
            QString work;
            if (const std::optional<Project> project = m_store->project(trip.projectId.value_or(QString()))) {
                work = oneLine(project->name);
                if (const std::optional<TaskItem> task = m_store->task(trip.taskId.value_or(QString()))) {
                    work += u" · "_s + oneLine(task->title);
                }
            }
            const QDate day = dayOf(trip);
            rows.append({{u"key"_s, trip.id},
                         {u"id"_s, trip.id},
                         {u"day"_s, day.isValid() ? QLocale().toString(day, QLocale::ShortFormat) : QString()},
                         {u"from"_s, oneLine(trip.startLabel)},
                         {u"to"_s, oneLine(trip.endLabel)},
                         {u"km"_s, kmText(trip.distanceM)},
                         {u"mode"_s, modeLabel(trip.mode)},
                         {u"project"_s, work},
                         {u"purpose"_s, oneLine(trip.purpose)},
                         {u"chipLabel"_s, chip},
                         {u"chipTone"_s, tone}});
        }
    }
    const qsizetype count = rows.size();
    m_rows->setRows(std::move(rows));
    if (count == 1) {
        //% "1 trip · %1 km"
        m_summary = qtTrId("ui.trips.summaryOne").arg(kmText(metres));
    } else {
        //% "%1 trips · %2 km"
        m_summary = count > 0 ? qtTrId("ui.trips.summaryMany").arg(count).arg(kmText(metres)) : QString();
    }
    m_toInvoice.clear();
    if (m_store && !m_project.isEmpty()) {
        const AppStore::TravelToInvoice pending = m_store->travelToInvoice(m_project);
        if (pending.amount) {
            //% "%1 to invoice: %2"
            m_toInvoice = qtTrId("ui.trips.toInvoice").arg(formatMoney(*pending.amount, m_store->currency()),
                                                          pending.text);
        } else {
            //% "Trips of this project go on its invoices. Private trips and trips you do not charge never do."
            m_toInvoice = qtTrId("ui.trips.projectHint");
        }
    }
    if (m_editorOpen && !m_editing.isEmpty() && m_store && !m_store->trip(m_editing)) {
        // Deleted here or on another device: nothing is left to edit.
        closeEditor();
    }
    const bool underway = m_store && m_store->tripInProgress();
    if (underway != m_progressTick.isActive()) {
        underway ? m_progressTick.start() : m_progressTick.stop();
    }
    emit rowsChanged();
    emit progressChanged();
}

// --- The editor ----------------------------------------------------------------------------------

void TripsView::newTrip()
{
    clearSearch();
    m_editorOpen = true;
    m_editing.clear();
    m_finishing = false;
    m_date = m_clock().toLocalTime().date().toString(Qt::ISODate);
    m_from = {};
    m_to = {};
    m_km.clear();
    m_exactM.reset();
    m_mode = modeKey(m_store ? m_store->travelSettings().defaultMode : TripMode::Car);
    m_work = m_project.isEmpty() ? QString() : u"p:"_s + m_project;
    m_charge = true;
    m_private = false;
    m_purpose.clear();
    m_route.clear();
    m_durationS = 0;
    m_distanceNote.clear();
    m_routing = false;
    m_triedSave = false;
    ++m_routeGeneration;
    emit editorChanged();
    emit choicesChanged();
}

void TripsView::edit(const QString &tripId)
{
    const std::optional<Trip> trip = m_store ? m_store->trip(tripId) : std::nullopt;
    if (!trip) {
        return;
    }
    newTrip();
    m_editing = trip->id;
    const QDate day = dayOf(*trip);
    m_date = day.isValid() ? day.toString(Qt::ISODate) : QString();
    const auto pointOf = [](std::optional<double> lat, std::optional<double> lng) -> std::optional<GeoPoint> {
        if (!lat || !lng) {
            return std::nullopt;
        }
        const GeoPoint point{*lat, *lng};
        return point.isValid() ? std::optional<GeoPoint>(point) : std::nullopt;
    };
    m_from = {oneLine(trip->startLabel), pointOf(trip->startLat, trip->startLng), std::nullopt};
    m_to = {oneLine(trip->endLabel), pointOf(trip->endLat, trip->endLng), trip->clientId};
    m_km = fieldKm(trip->distanceM);
    m_exactM = trip->distanceM;
    m_mode = modeKey(trip->mode);
    m_work = workOf(*trip);
    m_private = !trip->isBusiness();
    m_charge = trip->billable;
    m_purpose = oneLine(trip->purpose);
    m_route = trip->route.value_or(QString());
    emit editorChanged();
    emit choicesChanged();
}

void TripsView::closeEditor()
{
    clearSearch();
    ++m_routeGeneration;
    m_routing = false;
    if (!m_editorOpen && m_editing.isEmpty()) {
        return;
    }
    m_editorOpen = false;
    m_editing.clear();
    m_finishing = false;
    m_route.clear();
    emit editorChanged();
}

void TripsView::setDate(const QString &date)
{
    if (m_date != date) {
        m_date = date.trimmed();
        emit editorChanged();
    }
}

void TripsView::setKm(const QString &km)
{
    if (m_km != km) {
        m_km = km;
        // A distance typed over the route's no longer comes from it.
        m_distanceNote.clear();
        emit editorChanged();
    }
}

void TripsView::setMode(const QString &mode)
{
    if (m_mode == mode || !Wire::enumFromName<TripMode>(mode)) {
        return;
    }
    m_mode = mode;
    emit editorChanged();
    // Roads differ by bike and on foot.
    if (m_from.point && m_to.point) {
        routeNow();
    }
}

void TripsView::setWork(const QString &work)
{
    if (m_work != work) {
        m_work = work;
        emit editorChanged();
    }
}

void TripsView::setCharge(bool charge)
{
    if (m_charge != charge) {
        m_charge = charge;
        emit editorChanged();
    }
}

void TripsView::setPrivateTrip(bool privateTrip)
{
    if (m_private != privateTrip) {
        m_private = privateTrip;
        emit editorChanged();
    }
}

void TripsView::setPurpose(const QString &purpose)
{
    if (m_purpose != purpose) {
        m_purpose = purpose;
        emit editorChanged();
    }
}

std::optional<int> TripsView::metresOf(const QString &km)
{
    QString text = km.trimmed();
    text.replace(u',', u'.');
    bool ok = false;
    const double value = text.toDouble(&ok);
    if (!ok || !std::isfinite(value) || value < 0 || value > maxKm) {
        return std::nullopt;
    }
    return int(std::lround(value * 1000));
}

QVariantMap TripsView::problems() const
{
    QVariantMap found;
    if (!m_triedSave) {
        return found;
    }
    if (!QDate::fromString(m_date, Qt::ISODate).isValid()) {
        //% "Enter the day as YYYY-MM-DD."
        found.insert(u"date"_s, qtTrId("ui.trips.problem.date"));
    }
    if (m_from.label.trimmed().isEmpty()) {
        //% "Where did the trip start?"
        found.insert(u"from"_s, qtTrId("ui.trips.problem.from"));
    }
    // A trip under way may not know its end yet; a finished one must.
    const bool underway = !m_finishing && m_store && m_store->trip(m_editing) && !m_store->trip(m_editing)->isFinished();
    if (m_to.label.trimmed().isEmpty() && !underway) {
        //% "Where did the trip end?"
        found.insert(u"to"_s, qtTrId("ui.trips.problem.to"));
    }
    if (!metresOf(m_km)) {
        //% "Enter the kilometres, for example 12.5."
        found.insert(u"km"_s, qtTrId("ui.trips.problem.km"));
    }
    return found;
}

bool TripsView::save()
{
    m_triedSave = true;
    emit editorChanged();
    if (!m_store || !m_editorOpen || m_saving || !problems().isEmpty()) {
        return false;
    }
    const QDate day = QDate::fromString(m_date, Qt::ISODate);
    // The route's or the trip's own metres while the field still shows them rounded.
    const int metres = m_exactM && fieldKm(*m_exactM) == m_km.trimmed() ? *m_exactM : *metresOf(m_km);
    const TripMode mode = Wire::enumFromName<TripMode>(m_mode).value_or(TripMode::Car);
    std::optional<QString> projectId;
    std::optional<QString> taskId;
    if (m_work.startsWith(u"t:")) {
        if (const std::optional<TaskItem> task = m_store->task(m_work.mid(2))) {
            taskId = task->id;
            projectId = task->projectId;
        }
    } else if (m_work.startsWith(u"p:")) {
        projectId = m_work.mid(2);
    }
    const QString startLabel = m_from.label.simplified().left(maxLabel);
    const QString endLabel = m_to.label.simplified().left(maxLabel);
    const QString purpose = m_purpose.trimmed().left(maxPurpose);
    const bool billable = !m_private && m_charge;
    // Noon keeps the day the person named in every zone the trip is later read in.
    const QDateTime noon(day, QTime(12, 0));

    const std::optional<Trip> original = m_store->trip(m_editing);
    if (!original) {
        TripInsert insert;
        insert.startedAt = noon.toUTC().toString(Qt::ISODate);
        insert.endedAt = noon.addSecs(m_durationS).toUTC().toString(Qt::ISODate);
        insert.startLabel = startLabel;
        insert.endLabel = endLabel;
        if (m_from.point) {
            insert.startLat = m_from.point->lat;
            insert.startLng = m_from.point->lng;
        }
        if (m_to.point) {
            insert.endLat = m_to.point->lat;
            insert.endLng = m_to.point->lng;
        }
        insert.clientId = m_to.clientId;
        insert.distanceM = metres;
        insert.route = textOrNone(m_route);
        insert.mode = mode;
        insert.projectId = projectId;
        insert.taskId = taskId;
        insert.kind = m_private ? u"private"_s : u"business"_s;
        insert.billable = billable;
        insert.purpose = textOrNone(purpose);
        m_saving = true;
        emit editorChanged();
        [](QPointer<TripsView> self, AppStore *store, QList<TripInsert> inserts) -> QCoro::Task<> {
            const std::optional<QList<Trip>> rows = co_await store->createTrips(std::move(inserts));
            if (!self) {
                co_return;
            }
            self->m_saving = false;
            if (rows && !rows->isEmpty()) {
                self->edit(rows->first().id);
                emit self->saved(rows->first().id);
            } else {
                emit self->editorChanged();
            }
        }(this, m_store, QList<TripInsert>{insert});
        return true;
    }

    TripPatch patch;
    const auto text = [&](const char16_t *column, const std::optional<QString> &now, const std::optional<QString> &was) {
        if (now != was) {
            patch.setText(QString::fromUtf16(column), now);
        }
    };
    const auto number = [&](const char16_t *column, std::optional<double> now, std::optional<double> was) {
        if (now != was) {
            patch.setNumber(QString::fromUtf16(column), now);
        }
    };
    if (dayOf(*original) != day) {
        const std::optional<QDateTime> started = isoDate(original->startedAt);
        const std::optional<QDateTime> ended = isoDate(original->endedAt);
        const qint64 took = started && ended ? std::max<qint64>(0, started->secsTo(*ended)) : 0;
        patch.setText(u"started_at"_s, noon.toUTC().toString(Qt::ISODate));
        if (original->endedAt) {
            patch.setText(u"ended_at"_s, noon.addSecs(took).toUTC().toString(Qt::ISODate));
        }
    }
    if (m_finishing) {
        QDateTime arrived = m_clock().toUTC();
        const std::optional<QDateTime> started = isoDate(original->startedAt);
        if (dayOf(*original) != day || (started && arrived < *started)) {
            arrived = noon.addSecs(m_durationS).toUTC();
        }
        patch.setText(u"ended_at"_s, arrived.toString(Qt::ISODate));
    }
    text(u"start_label", textOrNone(startLabel), original->startLabel);
    text(u"end_label", textOrNone(endLabel), original->endLabel);
    number(u"start_lat", m_from.point ? std::optional(m_from.point->lat) : std::nullopt, original->startLat);
    number(u"start_lng", m_from.point ? std::optional(m_from.point->lng) : std::nullopt, original->startLng);
    number(u"end_lat", m_to.point ? std::optional(m_to.point->lat) : std::nullopt, original->endLat);
    number(u"end_lng", m_to.point ? std::optional(m_to.point->lng) : std::nullopt, original->endLng);
    if (m_to.clientId != original->clientId && (m_to.clientId || !m_to.point)) {
        text(u"client_id", m_to.clientId, original->clientId);
    }
    if (metres != original->distanceM) {
        patch.setInt(u"distance_m"_s, metres);
    }
    text(u"route", textOrNone(m_route), original->route);
    if (mode != original->mode) {
        patch.setText(u"mode"_s, modeKey(mode));
    }
    text(u"project_id", projectId, original->projectId);
    text(u"task_id", taskId, original->taskId);
    const QString kind = m_private ? u"private"_s : u"business"_s;
    if (kind != original->kind) {
        patch.setText(u"kind"_s, kind);
    }
    if (billable != original->billable) {
        patch.setBool(u"billable"_s, billable);
    }
    text(u"purpose", textOrNone(purpose), original->purpose ? textOrNone(original->purpose->trimmed()) : std::nullopt);
    if (patch.isEmpty()) {
        closeEditor();
        return true;
    }
    m_saving = true;
    emit editorChanged();
    [](QPointer<TripsView> self, AppStore *store, QString tripId, TripPatch patch) -> QCoro::Task<> {
        const bool done = co_await store->updateTrip(tripId, std::move(patch));
        if (!self) {
            co_return;
        }
        self->m_saving = false;
        if (done) {
            self->edit(tripId);
            emit self->saved(tripId);
        } else {
            emit self->editorChanged();
        }
    }(this, m_store, original->id, std::move(patch));
    return true;
}

void TripsView::remove(const QString &tripId)
{
    if (!m_store || !m_store->trip(tripId)) {
        return;
    }
    if (m_editing == tripId) {
        closeEditor();
    }
    m_store->deleteTrip(tripId);
}

// --- Places and distance -------------------------------------------------------------------------

void TripsView::ensureServices()
{
    if (m_router) {
        return;
    }
    TravelServiceConfig config = TravelServiceConfig::load(QSettings());
    // Routing has no published limit of its own; address search asks for one request a second.
    m_routeGate = std::make_unique<RequestGate>(std::chrono::milliseconds(0));
    m_searchGate = std::make_unique<RequestGate>(std::chrono::seconds(1));
    m_router = std::make_unique<RoadRouter>(m_network, config.osrm, *m_routeGate);
    m_lookup = std::make_unique<NominatimLookup>(m_network, config.nominatim, *m_searchGate, Language::current());
}

TripsView::Place &TripsView::place(const QString &field)
{
    return field == u"to" ? m_to : m_from;
}

void TripsView::typePlace(const QString &field, const QString &text)
{
    if (field != u"from" && field != u"to") {
        return;
    }
    Place &typed = place(field);
    if (typed.label == text) {
        return;
    }
    typed = {text.left(maxLabel), Geo::parseLatLng(text), std::nullopt};
    // The old line no longer joins the places.
    m_route.clear();
    m_searchField = field;
    m_searchText = text.simplified();
    ++m_searchGeneration;
    m_searchResults.clear();
    m_searchPlaces.clear();
    m_searchNote.clear();
    m_searchDelay.stop();
    if (typed.point) {
        routeNow();
    } else if (m_searchText.size() >= minSearchChars) {
        m_searchDelay.start();
    }
    emit searchChanged();
    emit editorChanged();
}

void TripsView::runSearch()
{
    if (m_searchText.size() < minSearchChars) {
        return;
    }
    if (m_searching) {
        // One request at a time: the newest text goes when the one under way has answered.
        m_searchAgain = true;
        return;
    }
    ensureServices();
    const quint64 generation = m_searchGeneration;
    const QString text = m_searchText;
    // The user's own clients with a known place come first, without asking anyone.
    QList<Place> found;
    if (m_store) {
        for (const Client &client : m_store->clients()) {
            const std::optional<GeoPoint> point =
                client.lat && client.lng ? std::optional<GeoPoint>(GeoPoint{*client.lat, *client.lng}) : std::nullopt;
            if (point && point->isValid() && client.name.contains(text, Qt::CaseInsensitive)) {
                found << Place{oneLine(client.placeLabel).isEmpty() ? oneLine(client.name) : oneLine(client.placeLabel),
                               point, client.id};
            }
        }
    }
    const auto publish = [this](const QList<Place> &places, const QString &note) {
        m_searchPlaces = places;
        m_searchResults.clear();
        for (const Place &hit : places) {
            m_searchResults << QVariantMap{{u"label"_s, hit.label},
                                           {u"lat"_s, hit.point->lat},
                                           {u"lng"_s, hit.point->lng},
                                           {u"clientId"_s, hit.clientId.value_or(QString())}};
        }
        m_searchNote = note;
        emit searchChanged();
    };
    if (!m_lookup->isConfigured()) {
        publish(found, TravelServiceError(TravelServiceError::Kind::NotConfigured, {}).message());
        return;
    }
    m_searching = true;
    emit searchChanged();
    [](QPointer<TripsView> self, NominatimLookup *lookup, QString text, quint64 generation, QList<Place> found,
       std::function<void(const QList<Place> &, const QString &)> publish) -> QCoro::Task<> {
        QString note;
        try {
            const QList<PlaceResult> hits = co_await lookup->search(text, 5);
            for (const PlaceResult &hit : hits) {
                found << Place{hit.address, hit.point(), std::nullopt};
            }
            //% "Results from OpenStreetMap, without KvK numbers."
            note = qtTrId("ui.trips.resultsFrom");
        } catch (const TravelServiceError &error) {
            note = error.message();
        }
        if (!self) {
            co_return;
        }
        self->m_searching = false;
        // Typing went on, or the place was chosen meanwhile: this answer is for text no longer there.
        if (generation == self->m_searchGeneration) {
            publish(found, note);
        } else {
            emit self->searchChanged();
        }
        if (self->m_searchAgain) {
            self->m_searchAgain = false;
            self->runSearch();
        }
    }(this, m_lookup.get(), text, generation, found, publish);
}

void TripsView::choosePlace(int index)
{
    if (index < 0 || index >= m_searchPlaces.size()) {
        return;
    }
    place(m_searchField) = m_searchPlaces.at(index);
    clearSearch();
    emit editorChanged();
    routeNow();
}

void TripsView::dismissSearch()
{
    clearSearch();
}

void TripsView::clearSearch()
{
    m_searchDelay.stop();
    ++m_searchGeneration;
    m_searchAgain = false;
    const bool had = !m_searchResults.isEmpty() || !m_searchNote.isEmpty() || !m_searchField.isEmpty();
    m_searchResults.clear();
    m_searchPlaces.clear();
    m_searchNote.clear();
    m_searchField.clear();
    m_searchText.clear();
    if (had) {
        emit searchChanged();
    }
}

void TripsView::routeNow()
{
    if (!m_from.point || !m_to.point) {
        return;
    }
    ensureServices();
    const quint64 generation = ++m_routeGeneration;
    const GeoPoint from = *m_from.point;
    const GeoPoint to = *m_to.point;
    const auto estimate = [this, from, to](const QString &why) {
        m_exactM = int(std::lround(Geo::haversineM(from, to)));
        m_km = fieldKm(*m_exactM);
        m_route.clear();
        m_durationS = 0;
        m_distanceNote = (why.isEmpty() ? QString() : why + u' ') + qtTrId("tripDistanceEstimate");
        m_routing = false;
        emit editorChanged();
    };
    if (!m_router->isConfigured()) {
        estimate({});
        return;
    }
    m_routing = true;
    emit editorChanged();
    const TripMode mode = Wire::enumFromName<TripMode>(m_mode).value_or(TripMode::Car);
    [](QPointer<TripsView> self, RoadRouter *router, GeoPoint from, GeoPoint to, TripMode mode, quint64 generation,
       std::function<void(const QString &)> estimate) -> QCoro::Task<> {
        std::optional<RoadRouter::Route> route;
        QString why;
        try {
            route = co_await router->route(from, to, mode);
        } catch (const TravelServiceError &error) {
            why = error.message();
        }
        if (!self || generation != self->m_routeGeneration) {
            co_return;
        }
        if (!route) {
            estimate(why);
            co_return;
        }
        self->m_km = fieldKm(route->distanceM);
        self->m_exactM = route->distanceM;
        self->m_route = route->route;
        self->m_durationS = route->durationS;
        self->m_distanceNote = qtTrId("tripDistanceByRoad").arg(qRound(route->durationS / 60.0));
        self->m_routing = false;
        emit self->editorChanged();
    }(this, m_router.get(), from, to, mode, generation, estimate);
}

// --- The map -------------------------------------------------------------------------------------

QList<QPointF> TripsView::fitted(const QList<GeoPoint> &points)
{
    if (points.isEmpty()) {
        return {};
    }
    double minLat = points.first().lat;
    double maxLat = minLat;
    double minLng = points.first().lng;
    double maxLng = minLng;
    for (const GeoPoint &point : points) {
        minLat = std::min(minLat, point.lat);
        maxLat = std::max(maxLat, point.lat);
        minLng = std::min(minLng, point.lng);
        maxLng = std::max(maxLng, point.lng);
    }
    const double shrink = std::cos((minLat + maxLat) / 2 * M_PI / 180);
    const double width = (maxLng - minLng) * shrink;
    const double height = maxLat - minLat;
    const double extent = std::max(width, height);
    QList<QPointF> fit;
    fit.reserve(points.size());
    for (const GeoPoint &point : points) {
        if (extent <= 0) {
            fit << QPointF(0.5, 0.5);
            continue;
        }
        fit << QPointF(((point.lng - minLng) * shrink + (extent - width) / 2) / extent,
                       ((maxLat - point.lat) + (extent - height) / 2) / extent);
    }
    return fit;
}

void TripsView::rebuildMap()
{
    QList<GeoPoint> points;
    bool isRoute = false;
    if (m_editorOpen) {
        if (const std::optional<QList<GeoPoint>> line = Geo::decodePolyline(m_route); line && line->size() >= 2) {
            points = *line;
            isRoute = true;
        } else if (m_from.point && m_to.point) {
            points = {*m_from.point, *m_to.point};
        }
    }
    QVariantList drawn;
    for (const QPointF &point : fitted(points)) {
        drawn << point;
    }
    if (drawn == m_mapPoints && isRoute == m_mapIsRoute) {
        return;
    }
    m_mapPoints = drawn;
    m_mapIsRoute = isRoute;
    emit mapChanged();
}

// --- The trip under way --------------------------------------------------------------------------

QString TripsView::progressId() const
{
    const std::optional<Trip> trip = m_store ? m_store->tripInProgress() : std::nullopt;
    return trip ? trip->id : QString();
}

QString TripsView::progressText() const
{
    const std::optional<Trip> trip = m_store ? m_store->tripInProgress() : std::nullopt;
    if (!trip) {
        return {};
    }
    const std::optional<QDateTime> started = isoDate(trip->startedAt);
    const qint64 minutes = started ? std::max<qint64>(0, started->secsTo(m_clock()) / 60) : 0;
    //% "%1 km · %2 min"
    return qtTrId("ui.trips.progress").arg(kmText(trip->distanceM)).arg(minutes);
}

void TripsView::startTrip()
{
    if (!m_store || m_store->tripInProgress()) {
        return;
    }
    TripInsert insert;
    insert.startedAt = m_clock().toUTC().toString(Qt::ISODate);
    insert.mode = m_store->travelSettings().defaultMode;
    if (m_editorOpen && m_editing.isEmpty()) {
        insert.startLabel = textOrNone(m_from.label.simplified().left(maxLabel));
        if (m_from.point) {
            insert.startLat = m_from.point->lat;
            insert.startLng = m_from.point->lng;
        }
        insert.mode = Wire::enumFromName<TripMode>(m_mode).value_or(insert.mode);
        if (m_work.startsWith(u"t:")) {
            insert.taskId = m_work.mid(2);
        } else if (m_work.startsWith(u"p:")) {
            insert.projectId = m_work.mid(2);
        }
        insert.kind = m_private ? u"private"_s : u"business"_s;
        insert.billable = !m_private && m_charge;
        insert.purpose = textOrNone(m_purpose.trimmed().left(maxPurpose));
    } else if (!m_project.isEmpty()) {
        insert.projectId = m_project;
    }
    closeEditor();
    m_store->createTrips({insert});
}

void TripsView::finishTrip()
{
    const QString id = progressId();
    if (id.isEmpty()) {
        return;
    }
    edit(id);
    m_finishing = true;
    emit editorChanged();
}

// --- Travel settings -----------------------------------------------------------------------------

QString TripsView::ratePerKm() const
{
    if (!m_store) {
        return {};
    }
    return QLocale().toString(m_store->travelSettings().ratePerKm, 'f', 2);
}

QString TripsView::usualMode() const
{
    return modeKey(m_store ? m_store->travelSettings().defaultMode : TripMode::Car);
}

bool TripsView::saveSettings(const QString &rate, const QString &mode)
{
    QString text = rate.trimmed();
    text.replace(u',', u'.');
    bool ok = false;
    const double value = text.toDouble(&ok);
    const std::optional<TripMode> usual = Wire::enumFromName<TripMode>(mode);
    // A rate beyond a hundred per kilometre is a typing slip, not a price.
    if (!ok || !std::isfinite(value) || value < 0 || value > 100 || !usual) {
        //% "Enter the rate per kilometre as a number, for example 0.23."
        m_settingsProblem = qtTrId("ui.trips.problem.rate");
        emit settingsChanged();
        return false;
    }
    m_settingsProblem.clear();
    emit settingsChanged();
    if (!m_store) {
        return false;
    }
    TravelSettings settings = m_store->travelSettings();
    settings.ratePerKm = value;
    settings.defaultMode = *usual;
    m_store->setTravelSettings(settings);
    return true;
}

void TripsView::reload()
{
    if (m_store) {
        m_store->loadTrips();
        m_store->reloadBilledTrips();
    }
}
