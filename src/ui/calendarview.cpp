#include "ui/calendarview.h"

#include "billing/money.h"
#include "calendar/calendarimporter.h"
#include "store/appstore.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::minutes refreshInterval{15};

QString destinationKey(const CalendarDestination &destination)
{
    return (destination.kind == CalendarDestination::Kind::NewTask ? u"new:"_s : u"task:"_s) + destination.id;
}

std::optional<CalendarDestination> destinationOf(const QString &key)
{
    if (key.startsWith(u"new:"_s)) {
        return CalendarDestination{CalendarDestination::Kind::NewTask, key.mid(4)};
    }
    if (key.startsWith(u"task:"_s)) {
        return CalendarDestination{CalendarDestination::Kind::ExistingTask, key.mid(5)};
    }
    return std::nullopt;
}

} // namespace

CalendarView::CalendarView(QString cacheFolder, QObject *parent)
    : QObject(parent)
    , m_cacheFolder(std::move(cacheFolder))
    , m_events(new RowsModel({u"key"_s, u"title"_s, u"calendar"_s, u"calendarColor"_s, u"time"_s, u"duration"_s,
                              u"location"_s, u"selected"_s, u"logged"_s, u"destination"_s, u"section"_s},
                             this))
{}

CalendarView::~CalendarView() = default;

void CalendarView::setStores(AppStore *store, AuthStore *auth, std::shared_ptr<SecretStore> secrets)
{
    m_importer.reset();
    m_store = store;
    m_selected.clear();
    m_destinations.clear();
    if (store && auth) {
        m_importer = m_cacheFolder.isEmpty()
                         ? std::make_unique<CalendarImporter>(*store, *auth, std::move(secrets))
                         : std::make_unique<CalendarImporter>(*store, *auth, std::move(secrets), m_cacheFolder);
        CalendarImporter *importer = m_importer.get();
        connect(importer, &CalendarImporter::eventsChanged, this, [this] {
            proposeDestinations();
            rebuild();
        });
        connect(importer, &CalendarImporter::loggedIdsChanged, this, &CalendarView::rebuild);
        connect(importer, &CalendarImporter::loadingChanged, this, &CalendarView::busyChanged);
        connect(importer, &CalendarImporter::importingChanged, this, &CalendarView::busyChanged);
        connect(importer, &CalendarImporter::errorMessageChanged, this, [this] {
            if (!m_importer->errorMessage().isEmpty()) {
                say(m_importer->errorMessage(), true);
            }
        });
        connect(store, &AppStore::tasksChanged, this, &CalendarView::destinationsChanged);
        connect(store, &AppStore::projectsChanged, this, &CalendarView::destinationsChanged);
        importer->refreshStatus();
        // Subscriptions and CalDAV change on their own: the chosen day is read again now and then,
        // with conditional requests, so an unchanged calendar costs one short answer.
        importer->refreshEvery(refreshInterval);
    }
    emit readyChanged();
    emit sourcesChanged();
    emit destinationsChanged();
    rebuild();
}

bool CalendarView::hasAccess() const
{
    return m_importer && m_importer->authState() == CalendarImporter::Auth::Granted;
}

QVariantList CalendarView::sources() const
{
    QVariantList list;
    if (m_importer) {
        for (const CalendarSource &source : m_importer->sources()) {
            list << QVariantMap{{u"id"_s, source.id},
                                {u"name"_s, source.name},
                                {u"address"_s, source.address},
                                {u"kind"_s, CalendarSources::kindName(source.kind)},
                                {u"color"_s, source.colorHex}};
        }
    }
    return list;
}

QString CalendarView::dayText() const
{
    return QLocale().toString(m_day, QLocale::LongFormat);
}

QVariantList CalendarView::destinations() const
{
    QVariantList list;
    if (!m_store) {
        return list;
    }
    for (const Project &project : m_store->projects()) {
        if (project.status != ProjectStatus::Active) {
            continue;
        }
        //% "New task in %1"
        list << QVariantMap{{u"value"_s, QString(u"new:"_s + project.id)},
                            {u"label"_s, qtTrId("ui.calendar.newTaskIn").arg(project.name)}};
    }
    for (const Project &project : m_store->projects()) {
        if (project.status != ProjectStatus::Active) {
            continue;
        }
        for (const TaskItem &task : m_store->tasks(project.id)) {
            if (task.status != TaskStatus::Completed) {
                //% "Time on %1 (%2)"
                list << QVariantMap{{u"value"_s, QString(u"task:"_s + task.id)},
                                    {u"label"_s, qtTrId("ui.calendar.timeOn").arg(task.title, project.name)}};
            }
        }
    }
    return list;
}

QString CalendarView::selectedText() const
{
    return CalendarImport::selectedCount(selectedCount());
}

int CalendarView::selectedCount() const
{
    int count = 0;
    if (m_importer) {
        for (const CalendarEventDraft &event : m_importer->events()) {
            count += m_selected.contains(event.id) && !m_importer->loggedIds().contains(event.id);
        }
    }
    return count;
}

bool CalendarView::loading() const
{
    return m_importer && m_importer->loading();
}

bool CalendarView::importing() const
{
    return m_importer && m_importer->importing();
}

void CalendarView::proposeDestinations()
{
    for (const CalendarEventDraft &event : m_importer->events()) {
        if (!m_destinations.contains(event.id)) {
            if (const std::optional<CalendarDestination> proposed = m_importer->defaultDestination(event)) {
                m_destinations.insert(event.id, destinationKey(*proposed));
            }
        }
    }
}

void CalendarView::rebuild()
{
    QList<QVariantHash> rows;
    if (m_importer) {
        QHash<QString, CalendarDestination> byEvent;
        for (auto it = m_destinations.cbegin(); it != m_destinations.cend(); ++it) {
            if (const std::optional<CalendarDestination> destination = destinationOf(it.value())) {
                byEvent.insert(it.key(), *destination);
            }
        }
        const CalendarImport::Sections sections = CalendarImport::sections(m_importer->events(), byEvent);
        const QLocale locale;
        for (const auto &[section, list] :
             {std::pair{CalendarImport::newTaskSectionTitle(), &sections.newTasks},
              std::pair{CalendarImport::existingSectionTitle(), &sections.existing}}) {
            for (const CalendarEventDraft &event : *list) {
                const bool logged = m_importer->loggedIds().contains(event.id);
                rows << QVariantHash{
                    {u"key"_s, event.id},
                    {u"title"_s, event.title},
                    {u"calendar"_s, event.calendar},
                    {u"calendarColor"_s, event.calendarColorHex.value_or(QString())},
                    {u"time"_s, QString(locale.toString(event.start.toLocalTime().time(), QLocale::ShortFormat) +
                                        u" – "_s +
                                        locale.toString(event.end.toLocalTime().time(), QLocale::ShortFormat))},
                    {u"duration"_s, formatHM(event.durationSeconds)},
                    {u"location"_s, event.location.value_or(QString())},
                    {u"selected"_s, m_selected.contains(event.id) && !logged},
                    {u"logged"_s, logged},
                    {u"destination"_s, m_destinations.value(event.id)},
                    {u"section"_s, section},
                };
            }
        }
    }
    m_events->setRows(rows);
    emit eventsChanged();
}

void CalendarView::reload()
{
    if (m_importer) {
        m_importer->load(m_day);
    }
}

void CalendarView::moveDay(int days)
{
    m_day = m_day.addDays(days);
    reload();
    emit eventsChanged();
}

bool CalendarView::setDay(const QString &iso)
{
    const QDate day = QDate::fromString(iso.trimmed(), Qt::ISODate);
    if (!day.isValid()) {
        //% "Write the day as year-month-day, for example 2026-11-25."
        say(qtTrId("ui.calendar.badDay"), true);
        return false;
    }
    m_day = day;
    reload();
    emit eventsChanged();
    return true;
}

void CalendarView::addFile(const QUrl &file)
{
    if (file.isLocalFile()) {
        addSource(file.toLocalFile(), false, {}, std::nullopt);
    }
}

void CalendarView::addAddress(const QString &address, bool caldav, const QString &user, const QString &password)
{
    addSource(address.trimmed(), caldav, user.trimmed(),
              caldav ? std::optional<QString>(password) : std::nullopt);
}

QCoro::Task<> CalendarView::addSource(QString text, bool caldav, QString user, std::optional<QString> password)
{
    QPointer<CalendarView> self(this);
    if (!m_importer) {
        co_return;
    }
    QString why;
    const std::optional<CalendarSource> source = CalendarSources::make(text, caldav, user, &why);
    if (!source) {
        say(why, true);
        co_return;
    }
    const bool added = co_await m_importer->addSource(*source, password);
    if (!self) {
        co_return;
    }
    if (added) {
        //% "%1 was added."
        say(qtTrId("ui.calendar.added").arg(m_importer->sources().isEmpty() ? text : m_importer->sources().last().name),
            false);
        emit sourcesChanged();
        reload();
    }
}

void CalendarView::removeSource(const QString &sourceId)
{
    if (!m_importer) {
        return;
    }
    [](QPointer<CalendarView> self, QString sourceId) -> QCoro::Task<> {
        co_await self->m_importer->removeSource(sourceId);
        if (self) {
            emit self->sourcesChanged();
            self->reload();
        }
    }(this, sourceId);
}

void CalendarView::toggle(const QString &eventId)
{
    if (m_selected.contains(eventId)) {
        m_selected.remove(eventId);
    } else {
        m_selected.insert(eventId);
    }
    rebuild();
}

void CalendarView::setDestination(const QString &eventId, const QString &destination)
{
    if (destination.isEmpty() || !destinationOf(destination)) {
        m_destinations.remove(eventId);
    } else {
        m_destinations.insert(eventId, destination);
        m_selected.insert(eventId);
    }
    rebuild();
}

void CalendarView::importSelected()
{
    if (!m_importer || m_importer->importing()) {
        return;
    }
    QHash<QString, CalendarDestination> byEvent;
    int withoutDestination = 0;
    for (const QString &eventId : std::as_const(m_selected)) {
        if (const std::optional<CalendarDestination> destination = destinationOf(m_destinations.value(eventId))) {
            byEvent.insert(eventId, *destination);
        } else if (!m_importer->loggedIds().contains(eventId)) {
            ++withoutDestination;
        }
    }
    [](QPointer<CalendarView> self, QSet<QString> selected, QHash<QString, CalendarDestination> byEvent,
       int withoutDestination) -> QCoro::Task<> {
        const int imported = co_await self->m_importer->importEvents(selected, byEvent);
        if (!self) {
            co_return;
        }
        if (!self->m_importer->errorMessage().isEmpty() || (self->m_store && imported < byEvent.size() &&
                                                             !self->m_store->lastError().isEmpty())) {
            const QString why = self->m_importer->errorMessage().isEmpty() ? self->m_store->lastError()
                                                                            : self->m_importer->errorMessage();
            //% "%1 imported; then it stopped: %2"
            self->say(qtTrId("ui.calendar.partial").arg(imported).arg(why), true);
        } else if (withoutDestination > 0) {
            //% "%1 imported. %2 ticked events have no destination yet: choose where each goes."
            self->say(qtTrId("ui.calendar.noDestination").arg(imported).arg(withoutDestination), true);
        } else {
            //% "%1 imported as time."
            self->say(qtTrId("ui.calendar.imported").arg(imported), false);
        }
        self->rebuild();
    }(this, m_selected, byEvent, withoutDestination);
}

void CalendarView::say(const QString &text, bool error)
{
    if (text != m_message || error != m_messageIsError) {
        m_message = text;
        m_messageIsError = error;
        emit messageChanged();
    }
}
