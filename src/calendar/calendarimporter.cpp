#include "calendarimporter.h"

#include "backend/authstore.h"
#include "backend/secretstore.h"
#include "store/appstore.h"
#include "store/storetext.h"
#include "store/writerecords.h"

#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

QString untitled()
{
    //% "Calendar event"
    return qtTrId("cal.untitled");
}

} // namespace

CalendarImporter::CalendarImporter(AppStore &store, AuthStore &auth, std::shared_ptr<SecretStore> secrets,
                                   QString cacheFolder, QObject *parent)
    : QObject(parent)
    , m_store(store)
    , m_auth(auth)
    , m_secrets(std::move(secrets))
    , m_fetcher(std::make_unique<CalendarFetcher>(std::move(cacheFolder)))
    , m_log(store, auth)
    , m_day(QDate::currentDate())
{
    connect(&m_refresh, &QTimer::timeout, this, [this] {
        if (m_authState == Auth::Granted && !m_loading && !m_importing) {
            load(m_day);
        }
    });
}

CalendarImporter::~CalendarImporter() = default;

std::optional<CalendarEventDraft> CalendarImporter::event(const QString &id) const
{
    for (const CalendarEventDraft &draft : m_events) {
        if (draft.id == id) {
            return draft;
        }
    }
    return std::nullopt;
}

QList<CalendarSource> CalendarImporter::sources() const
{
    return CalendarSources::load(QSettings());
}

QCoro::Task<bool> CalendarImporter::addSource(CalendarSource source, std::optional<QString> password)
{
    if (source.kind == CalendarSourceKind::CalDAV && m_secrets) {
        if (!co_await m_secrets->write(CalendarSources::secretName(source.id), password.value_or(QString()))) {
            //% "The password could not be stored in the keyring."
            setErrorMessage(qtTrId("cal.err.secret"));
            co_return false;
        }
    }
    const CalendarText text = co_await m_fetcher->fetch(source, password);
    const QDateTime now = QDateTime::currentDateTime();
    const CalendarFeed feed = IcalReader::read(text.ics, now, now, m_zone);
    if (!text.error.isEmpty() || !feed.error.isEmpty()) {
        if (source.kind == CalendarSourceKind::CalDAV && m_secrets) {
            co_await m_secrets->remove(CalendarSources::secretName(source.id));
        }
        setErrorMessage(CalendarImport::readFailed(source.name) + u' '
                        + (text.error.isEmpty() ? feed.error : text.error));
        co_return false;
    }
    if (source.kind != CalendarSourceKind::File && !feed.name.isEmpty()) {
        source.name = feed.name;
    }
    if (source.colorHex.isEmpty()) {
        source.colorHex = feed.colorHex;
    }
    QSettings settings;
    QList<CalendarSource> all = CalendarSources::load(settings);
    all.append(source);
    CalendarSources::save(settings, all);
    setErrorMessage({});
    refreshStatus();
    co_return true;
}

QCoro::Task<bool> CalendarImporter::removeSource(QString sourceId)
{
    QSettings settings;
    QList<CalendarSource> all = CalendarSources::load(settings);
    const auto gone = std::find_if(all.begin(), all.end(), [&](const CalendarSource &s) { return s.id == sourceId; });
    if (gone == all.end()) {
        co_return false;
    }
    const CalendarSource source = *gone;
    all.erase(gone);
    CalendarSources::save(settings, all);
    m_fetcher->drop(source);
    if (source.kind == CalendarSourceKind::CalDAV && m_secrets) {
        co_await m_secrets->remove(CalendarSources::secretName(source.id));
    }
    refreshStatus();
    co_return true;
}

void CalendarImporter::refreshStatus()
{
    setAuthState(sources().isEmpty() ? Auth::Denied : Auth::Granted);
}

QCoro::Task<> CalendarImporter::requestAccess()
{
    // Nothing to ask the system for: calendars are added by the person, maybe meanwhile in
    // another window or on the command line.
    refreshStatus();
    co_return;
}

void CalendarImporter::refreshEvery(std::chrono::milliseconds interval)
{
    m_refresh.start(interval);
}

QCoro::Task<CalendarText> CalendarImporter::fetchSource(CalendarSource source)
{
    std::optional<QString> password;
    if (source.kind == CalendarSourceKind::CalDAV && m_secrets) {
        password = co_await m_secrets->read(CalendarSources::secretName(source.id));
    }
    co_return co_await m_fetcher->fetch(source, password);
}

QCoro::Task<bool> CalendarImporter::load(QDate day)
{
    refreshStatus();
    m_day = day;
    if (m_authState != Auth::Granted) {
        m_events.clear();
        emit eventsChanged();
        co_return false;
    }
    setLoading(true);
    const QDateTime from(day, QTime(0, 0), m_zone);
    const QDateTime to = from.addDays(1);
    QList<std::pair<CalendarIdentity, CalendarFeed>> feeds;
    QStringList failed;
    const QList<CalendarSource> all = sources();
    for (const CalendarSource &source : all) {
        const CalendarText text = co_await fetchSource(source);
        CalendarFeed feed = IcalReader::read(text.ics, from, to, m_zone);
        if (text.ics.isEmpty() || !feed.error.isEmpty()) {
            failed.append(source.name);
            continue;
        }
        const QString color = source.colorHex.isEmpty() ? feed.colorHex : source.colorHex;
        feeds.append({CalendarIdentity{source.address, source.name, color}, std::move(feed)});
    }
    if (day != m_day) {
        // Another day was asked for meanwhile; its load sets the list and ends the loading.
        co_return false;
    }
    m_events = CalendarImport::drafts(feeds);
    setErrorMessage(failed.isEmpty() ? QString() : CalendarImport::readFailed(failed.join(u", "_s)));
    co_await markImported(m_events);
    setLoading(false);
    emit eventsChanged();
    co_return failed.isEmpty();
}

QCoro::Task<> CalendarImporter::markImported(QList<CalendarEventDraft> events)
{
    if (m_store.currentUserId().isEmpty() || events.isEmpty()) {
        co_return;
    }
    QStringList keys;
    for (const CalendarEventDraft &draft : events) {
        keys.append(draft.importKey);
    }
    // Offline the list still shows; the backend refuses a second copy at import anyway.
    const std::optional<QSet<QString>> imported = co_await m_log.importedKeys(keys);
    if (!imported) {
        co_return;
    }
    for (const CalendarEventDraft &draft : events) {
        if (imported->contains(draft.importKey)) {
            m_loggedIds.insert(draft.id);
        }
    }
    emit loggedIdsChanged();
}

std::optional<CalendarDestination> CalendarImporter::defaultDestination(const CalendarEventDraft &event) const
{
    QList<TaskItem> tasks;
    for (const QList<TaskItem> &projectTasks : m_store.tasksByProject()) {
        tasks.append(projectTasks);
    }
    return CalendarImport::defaultDestination(event.title, tasks, m_store.projects(), m_store.selectedProjectId());
}

QCoro::Task<int> CalendarImporter::importEvents(QSet<QString> selectedIds,
                                                QHash<QString, CalendarDestination> destinationByEvent)
{
    if (m_importing) {
        co_return 0;
    }
    if (!co_await m_auth.validToken()) {
        setErrorMessage(StoreText::notSignedIn());
        co_return 0;
    }
    m_importing = true;
    m_imported = 0;
    emit importingChanged();
    setErrorMessage({});
    QList<CalendarEventDraft> queue;
    for (const CalendarEventDraft &event : std::as_const(m_events)) {
        if (selectedIds.contains(event.id) && !m_loggedIds.contains(event.id) && destinationByEvent.contains(event.id)) {
            queue.append(event);
        }
    }
    // Asked again just before: another device may have imported some since the day was loaded,
    // and a new task for an event already logged would stay behind empty.
    co_await markImported(queue);
    for (const CalendarEventDraft &event : std::as_const(queue)) {
        if (m_loggedIds.contains(event.id)) {
            continue;
        }
        const CalendarDestination destination = destinationByEvent.value(event.id);
        std::optional<TaskItem> task;
        bool created = false;
        if (destination.kind == CalendarDestination::Kind::NewTask) {
            TaskInsert insert;
            insert.userId = m_store.currentUserId();
            insert.projectId = destination.id;
            insert.title = event.title.isEmpty() ? untitled() : event.title;
            task = co_await m_store.createTask(insert);
            created = task.has_value();
            if (!task) {
                setErrorMessage(m_store.lastError());
                break;
            }
        } else {
            task = m_store.task(destination.id);
            if (!task) {
                setErrorMessage(StoreText::entryNotLogged());
                break;
            }
        }
        const CalendarLogOutcome outcome = co_await m_log.logCalendarEvent(*task, event.start, event.end, event.importKey);
        if (outcome == CalendarLogOutcome::Failed) {
            if (created) {
                co_await m_store.deleteTask(task->id);
            }
            setErrorMessage(m_log.lastError());
            break;
        }
        if (outcome == CalendarLogOutcome::AlreadyImported) {
            if (created) {
                co_await m_store.deleteTask(task->id);
            }
        } else {
            ++m_imported;
        }
        m_loggedIds.insert(event.id);
        emit loggedIdsChanged();
        emit importingChanged();
    }
    m_importing = false;
    emit importingChanged();
    co_return m_imported;
}

void CalendarImporter::setAuthState(Auth state)
{
    if (m_authState == state) {
        return;
    }
    m_authState = state;
    emit authStateChanged();
}

void CalendarImporter::setLoading(bool loading)
{
    if (m_loading == loading) {
        return;
    }
    m_loading = loading;
    emit loadingChanged();
}

void CalendarImporter::setErrorMessage(const QString &message)
{
    if (m_errorMessage == message) {
        return;
    }
    m_errorMessage = message;
    emit errorMessageChanged();
}
