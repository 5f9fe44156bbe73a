#pragma once

#include "calendar/calendarfetcher.h"
#include "calendar/calendarimport.h"
#include "calendar/calendarlog.h"
#include "calendar/calendarsource.h"

#include <QDate>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QTimeZone>
#include <QTimer>

#include <QCoroTask>

#include <memory>

class AppStore;
class AuthStore;
class SecretStore;

// The import screen's state: the person's calendars, the events of the chosen day and the import
// of the picked ones as time. "Access" is having added a calendar; there is nothing to ask for.
class CalendarImporter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Auth authState READ authState NOTIFY authStateChanged)
    Q_PROPERTY(bool loading READ loading NOTIFY loadingChanged)
    Q_PROPERTY(QString errorMessage READ errorMessage NOTIFY errorMessageChanged)
    Q_PROPERTY(QDate day READ day NOTIFY eventsChanged)
    Q_PROPERTY(bool importing READ importing NOTIFY importingChanged)
    Q_PROPERTY(int imported READ imported NOTIFY importingChanged)

public:
    enum class Auth { Undetermined, Denied, Granted };
    Q_ENUM(Auth)

    CalendarImporter(AppStore &store, AuthStore &auth, std::shared_ptr<SecretStore> secrets,
                     QString cacheFolder = CalendarSources::cacheFolder(), QObject *parent = nullptr);
    ~CalendarImporter() override;

    [[nodiscard]] Auth authState() const { return m_authState; }
    [[nodiscard]] bool loading() const { return m_loading; }
    [[nodiscard]] QString errorMessage() const { return m_errorMessage; }
    [[nodiscard]] QDate day() const { return m_day; }
    [[nodiscard]] const QList<CalendarEventDraft> &events() const { return m_events; }
    [[nodiscard]] std::optional<CalendarEventDraft> event(const QString &id) const;
    [[nodiscard]] bool importing() const { return m_importing; }
    [[nodiscard]] int imported() const { return m_imported; }
    // Events imported in this screen and events the backend knows were imported before.
    [[nodiscard]] const QSet<QString> &loggedIds() const { return m_loggedIds; }
    // Days start and end, and floating times are read, in this zone (the system's by default).
    void setTimeZone(const QTimeZone &zone) { m_zone = zone; }
    CalendarFetcher &fetcher() { return *m_fetcher; }

    // The calendars the person added.
    [[nodiscard]] QList<CalendarSource> sources() const;
    // Adds a calendar after reading it once, so a wrong address or password is said at once;
    // a CalDAV password goes to the keyring.
    QCoro::Task<bool> addSource(CalendarSource source, std::optional<QString> password = std::nullopt);
    QCoro::Task<bool> removeSource(QString sourceId);

    void refreshStatus();
    QCoro::Task<> requestAccess();
    // Reads the events of `day` from every calendar into `events`; a calendar that cannot be
    // fetched is read from its offline copy.
    QCoro::Task<bool> load(QDate day);
    // Loads the chosen day again every `interval` while the importer lives.
    void refreshEvery(std::chrono::milliseconds interval);

    [[nodiscard]] std::optional<CalendarDestination> defaultDestination(const CalendarEventDraft &event) const;
    // Imports the events of `selectedIds` that have a destination and were not logged yet, one
    // after another in list order; answers how many were imported. The first failure stops the
    // run, and what was imported before it stays.
    QCoro::Task<int> importEvents(QSet<QString> selectedIds, QHash<QString, CalendarDestination> destinationByEvent);

signals:
    void authStateChanged();
    void loadingChanged();
    void errorMessageChanged();
    void eventsChanged();
    void importingChanged();
    void loggedIdsChanged();

private:
    void setAuthState(Auth state);
    void setLoading(bool loading);
    void setErrorMessage(const QString &message);
    QCoro::Task<CalendarText> fetchSource(CalendarSource source);
    QCoro::Task<> markImported(QList<CalendarEventDraft> events);

    AppStore &m_store;
    AuthStore &m_auth;
    std::shared_ptr<SecretStore> m_secrets;
    std::unique_ptr<CalendarFetcher> m_fetcher;
    CalendarLog m_log;
    QTimeZone m_zone = QTimeZone::systemTimeZone();
    QTimer m_refresh;

    Auth m_authState = Auth::Undetermined;
    bool m_loading = false;
    QString m_errorMessage;
    QDate m_day;
    QList<CalendarEventDraft> m_events;
    QSet<QString> m_loggedIds;
    bool m_importing = false;
    int m_imported = 0;
};
