#pragma once

#include "backend/config.h"
#include "model/clock.h"
#include "ui/preferences.h"
#include "ui/assistantview.h"
#include "ui/calendarview.h"
#include "ui/earningsmodel.h"
#include "ui/sessionsview.h"
#include "ui/workspace.h"

#include <QDBusVariant>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QSettings>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <QCoroTask>

#include <functional>
#include <memory>

class AppStore;
class AuthStore;
class QJSEngine;
class SecretStore;
class SessionSequence;

// What the window needs before it can show anyone's data, and the four long-lived objects it
// hands to every view: the backend is started (or found), the session restored, the store loaded.
// The phases are what the window shows meanwhile, so nothing freezes and a failure is said.
class DesktopShell : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Shell)
    QML_SINGLETON
    Q_PROPERTY(Phase phase READ phase NOTIFY phaseChanged)
    Q_PROPERTY(QString backendError READ backendError NOTIFY phaseChanged)
    Q_PROPERTY(QObject *auth READ authObject NOTIFY storesChanged)
    Q_PROPERTY(QObject *store READ storeObject NOTIFY storesChanged)
    Q_PROPERTY(QObject *timer READ timerObject NOTIFY storesChanged)
    Q_PROPERTY(Workspace *workspace READ workspace CONSTANT)
    Q_PROPERTY(EarningsModel *earnings READ earnings CONSTANT)
    Q_PROPERTY(SessionsView *sessions READ sessions CONSTANT)
    Q_PROPERTY(AssistantView *assistant READ assistant CONSTANT)
    Q_PROPERTY(CalendarView *calendar READ calendar CONSTANT)
    // Time that needs a decision: the idle question, the timer limits and reminders (an IdleWatcher).
    Q_PROPERTY(QObject *idle READ idleWatcher CONSTANT)
    Q_PROPERTY(Preferences *preferences READ preferences CONSTANT)
    Q_PROPERTY(QStringList providers READ providers NOTIFY providersChanged)
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)
    Q_PROPERTY(QString language READ language NOTIFY languageChanged)
    Q_PROPERTY(QStringList languages READ languages CONSTANT)
    Q_PROPERTY(QString colorScheme READ colorScheme WRITE setColorScheme NOTIFY colorSchemeChanged)
    Q_PROPERTY(bool dark READ isDark NOTIFY darkChanged)
    Q_PROPERTY(QString systemTimeZone READ systemTimeZone CONSTANT)
    Q_PROPERTY(QStringList timeZones READ timeZones CONSTANT)
    Q_PROPERTY(QStringList currencies READ currencies CONSTANT)
    Q_PROPERTY(QString trId READ trId NOTIFY languageChanged)

public:
    enum Phase {
        StartingBackend, // the local backend is created or started
        BackendFailed,   // it could not be: `backendError` says why
        SignedOut,       // sign-in, sign-up, onboarding
        Loading,         // signed in, the first load runs
        Ready,
    };
    Q_ENUM(Phase)

    struct Options
    {
        // Where the backend is: by default the user's own local server, started when needed.
        std::function<QCoro::Task<Config>()> backend;
        std::function<QCoro::Task<std::shared_ptr<SecretStore>>()> secrets;
        std::shared_ptr<QSettings> settings;
        Clock clock = systemClock();
        // Follows the desktop's colour scheme unless the settings say otherwise.
        bool followDesktopScheme = true;
        // Where the coding agent keeps its session logs; empty for the user's own.
        QString sessionsDir;
        // Where fetched calendars are kept for offline use; empty for the application's data folder.
        QString calendarCacheDir;
    };

    explicit DesktopShell(Options options, QObject *parent = nullptr);
    ~DesktopShell() override;

    // The one shell of the process, for QML.
    static DesktopShell *create(QQmlEngine *, QJSEngine *);
    static void setInstance(DesktopShell *shell);

    // The engine of the window, retranslated on a change of language; it draws the composer's pages.
    void setEngine(QQmlEngine *engine);

    [[nodiscard]] Phase phase() const { return m_phase; }
    [[nodiscard]] QString backendError() const { return m_backendError; }
    [[nodiscard]] AuthStore *auth() const { return m_auth.get(); }
    [[nodiscard]] AppStore *store() const { return m_store.get(); }
    [[nodiscard]] QObject *authObject() const;
    [[nodiscard]] QObject *storeObject() const;
    [[nodiscard]] QObject *timerObject() const;
    [[nodiscard]] Workspace *workspace() const { return m_workspace; }
    [[nodiscard]] EarningsModel *earnings() const { return m_earnings; }
    [[nodiscard]] SessionsView *sessions() const { return m_sessions; }
    [[nodiscard]] AssistantView *assistant() const { return m_assistant; }
    [[nodiscard]] CalendarView *calendar() const { return m_calendar; }
    [[nodiscard]] QObject *idleWatcher() const { return m_idle; }
    [[nodiscard]] Preferences *preferences() const { return m_preferences; }
    [[nodiscard]] QStringList providers() const { return m_providers; }
    [[nodiscard]] QString notice() const { return m_notice; }
    [[nodiscard]] QString language() const;
    [[nodiscard]] QStringList languages() const;
    [[nodiscard]] QString colorScheme() const { return m_colorScheme; }
    void setColorScheme(const QString &scheme);
    [[nodiscard]] bool isDark() const;
    [[nodiscard]] QString systemTimeZone() const;
    [[nodiscard]] QStringList timeZones() const;
    [[nodiscard]] QStringList currencies() const;
    // Empty; changes with the language, so that bindings that append it re-translate.
    [[nodiscard]] QString trId() const { return {}; }
    [[nodiscard]] std::shared_ptr<QSettings> settings() const { return m_options.settings; }

    // Starts the backend (again, after a failure) and restores the session.
    Q_INVOKABLE void start();
    // Leaves the current backend and starts again with the configuration as it is now (after the
    // settings named another one).
    void restart();

    Q_INVOKABLE void signIn(const QString &email, const QString &password);
    // Keeps the onboarding answers for this address, then creates the account.
    Q_INVOKABLE void signUp(const QString &email, const QString &password, const QString &displayName,
                            const QString &language, const QString &currency, const QString &hourlyRate,
                            const QString &timeZone);
    Q_INVOKABLE void recoverPassword(const QString &email);
    Q_INVOKABLE void resendConfirmation(const QString &email);
    Q_INVOKABLE void signInWithProvider(const QString &provider);
    Q_INVOKABLE void switchAccount(const QString &userId);
    Q_INVOKABLE void signOut();
    Q_INVOKABLE void clearMessages();
    // Switches the interface language at once; the open window re-translates.
    Q_INVOKABLE void setLanguage(const QString &code);
    // The display name of a language code in its own language ("日本語").
    Q_INVOKABLE [[nodiscard]] static QString languageName(const QString &code);
    // Whether `text` is a money amount a rate field can save (empty counts: no rate).
    Q_INVOKABLE [[nodiscard]] static bool isRate(const QString &text);
    // Brings the window forward (a second start, the tray).
    Q_INVOKABLE void activate() { emit activationRequested(); }

    // A `morvane://` address handed over by a second start or the browser.
    void handleUrl(const QUrl &url);

signals:
    void phaseChanged();
    void storesChanged();
    void providersChanged();
    void noticeChanged();
    void languageChanged();
    void colorSchemeChanged();
    void darkChanged();
    void activationRequested();

private slots:
    void onPortalSettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    QCoro::Task<> startBackend();
    QCoro::Task<> loadProviders(QUrl baseUrl, QString anonKey);
    void buildStores(const Config &config, std::shared_ptr<SecretStore> secrets);
    void followSession();
    void setPhase(Phase phase);
    void setNotice(const QString &notice);
    void setSystemDark(bool dark);
    void watchDesktopScheme();

    Options m_options;
    Phase m_phase = StartingBackend;
    QString m_backendError;
    std::unique_ptr<AuthStore> m_auth;
    std::unique_ptr<AppStore> m_store;
    std::unique_ptr<SessionSequence> m_sequence;
    Workspace *m_workspace = nullptr;
    EarningsModel *m_earnings = nullptr;
    SessionsView *m_sessions = nullptr;
    AssistantView *m_assistant = nullptr;
    CalendarView *m_calendar = nullptr;
    QObject *m_idle = nullptr;
    Preferences *m_preferences = nullptr;
    // Stores of a backend left behind: operations may still run on them, so they stay until the
    // process ends rather than being destroyed under those operations.
    std::vector<std::unique_ptr<QObject>> m_retired;
    QStringList m_providers;
    QString m_notice;
    QString m_colorScheme;
    bool m_systemDark = false;
    QPointer<QQmlEngine> m_engine;
    QNetworkAccessManager m_network;
    quint64 m_startRun = 0;
};
