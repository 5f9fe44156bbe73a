#include "desktopshell.h"

#include "app/startup.h"
#include "backend/authstore.h"
#include "backend/localserver.h"
#include "backend/secretstore.h"
#include "backend/urlscheme.h"
#include "billing/moneyinput.h"
#include "i18n/language.h"
#include "store/appstore.h"
#include "store/pendingonboarding.h"
#include "store/sessionsequence.h"
#include "ui/timedecisions.h"
#include "ui/workspace.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QNetworkReply>
#include <QPalette>
#include <QQmlEngine>
#include <QTimeZone>

#include <QCoroNetworkReply>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcShell, "morvane.ui")

namespace {

DesktopShell *s_instance = nullptr;

constexpr auto colorSchemeKey = "appearance/color_scheme";

const QString portalService = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString portalInterface = u"org.freedesktop.portal.Settings"_s;
const QString appearanceNamespace = u"org.freedesktop.appearance"_s;
const QString colorSchemeSetting = u"color-scheme"_s;

// The portal answers a variant inside a variant; 1 is "prefer dark".
bool portalPrefersDark(const QVariant &value)
{
    QVariant inner = value;
    while (inner.canConvert<QDBusVariant>() && inner.userType() == qMetaTypeId<QDBusVariant>()) {
        inner = inner.value<QDBusVariant>().variant();
    }
    return inner.toUInt() == 1;
}

} // namespace

DesktopShell::DesktopShell(Options options, QObject *parent)
    : QObject(parent)
    , m_options(std::move(options))
    , m_workspace(new Workspace(this))
    , m_preferences(new Preferences(*this))
{
    if (!m_options.backend) {
        m_options.backend = [] { return Startup::ensureBackend(); };
    }
    if (!m_options.secrets) {
        m_options.secrets = [] { return SecretStore::system(); };
    }
    if (!m_options.settings) {
        m_options.settings = std::make_shared<QSettings>();
    }
    m_colorScheme = m_options.settings->value(QLatin1StringView(colorSchemeKey), u"system"_s).toString();
    if (auto *app = qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        m_systemDark = app->palette().color(QPalette::Window).lightness() < 128;
    }
    if (m_options.followDesktopScheme) {
        watchDesktopScheme();
    }
    m_idle = createTimeDecisions(*this, m_options.clock);
    m_earnings = new EarningsModel(m_options.clock, this);
    m_sessions = new SessionsView(m_options.settings, m_options.sessionsDir, this);
    m_assistant = new AssistantView(m_options.settings, this);
    m_calendar = new CalendarView(m_options.calendarCacheDir, this);
}

DesktopShell::~DesktopShell()
{
    if (s_instance == this) {
        s_instance = nullptr;
    }
    // The views' models hold the store; they let go of it first, then the sequence that follows
    // the auth store's signals.
    m_workspace->setStore(nullptr);
    m_earnings->setStores(nullptr, nullptr);
    m_sessions->setStores(nullptr, nullptr);
    m_assistant->setStores(nullptr, nullptr, {});
    m_calendar->setStores(nullptr, nullptr, {});
    m_sequence.reset();
    if (m_store) {
        m_store->stopSync();
    }
    m_store.reset();
}

DesktopShell *DesktopShell::create(QQmlEngine *, QJSEngine *)
{
    Q_ASSERT(s_instance);
    QJSEngine::setObjectOwnership(s_instance, QJSEngine::CppOwnership);
    return s_instance;
}

void DesktopShell::setEngine(QQmlEngine *engine)
{
    m_engine = engine;
    if (engine) {
        engine->addImageProvider(QLatin1String(ComposerView::previewProviderId), m_workspace->composer()->makePreviewProvider());
    }
}

void DesktopShell::setInstance(DesktopShell *shell)
{
    s_instance = shell;
}

QObject *DesktopShell::authObject() const
{
    return m_auth.get();
}

QObject *DesktopShell::storeObject() const
{
    return m_store.get();
}

QObject *DesktopShell::timerObject() const
{
    return m_store ? m_store->timerObject() : nullptr;
}

void DesktopShell::setPhase(Phase phase)
{
    if (m_phase == phase) {
        return;
    }
    m_phase = phase;
    emit phaseChanged();
}

void DesktopShell::setNotice(const QString &notice)
{
    if (m_notice == notice) {
        return;
    }
    m_notice = notice;
    emit noticeChanged();
}

void DesktopShell::start()
{
    startBackend();
}

void DesktopShell::restart()
{
    if (m_auth) {
        m_workspace->setStore(nullptr);
        m_earnings->setStores(nullptr, nullptr);
        m_sessions->setStores(nullptr, nullptr);
        m_assistant->setStores(nullptr, nullptr, {});
        m_calendar->setStores(nullptr, nullptr, {});
        m_sequence.reset();
        m_store->stopSync();
        disconnect(m_auth.get(), nullptr, this, nullptr);
        m_retired.push_back(std::move(m_store));
        m_retired.push_back(std::move(m_auth));
        m_providers.clear();
        emit providersChanged();
        emit storesChanged();
    }
    startBackend();
}

QCoro::Task<> DesktopShell::startBackend()
{
    if (m_auth) {
        co_return;
    }
    const quint64 run = ++m_startRun;
    m_backendError.clear();
    setPhase(StartingBackend);
    emit phaseChanged();
    Config config;
    try {
        config = co_await m_options.backend();
    } catch (const LocalServerError &error) {
        if (run == m_startRun) {
            m_backendError = error.message();
            setPhase(BackendFailed);
            emit phaseChanged();
        }
        co_return;
    }
    std::shared_ptr<SecretStore> secrets = co_await m_options.secrets();
    if (run != m_startRun || m_auth) {
        co_return;
    }
    buildStores(config, std::move(secrets));
    loadProviders(config.supabaseURL, config.supabaseAnonKey);
    co_await m_auth->restore();
    followSession();
    if (m_auth->isSignedIn()) {
        m_sequence->run();
    }
}

void DesktopShell::buildStores(const Config &config, std::shared_ptr<SecretStore> secrets)
{
    m_auth = std::make_unique<AuthStore>(Supabase(config.supabaseURL, config.supabaseAnonKey), secrets,
                                         m_options.settings, m_options.clock);
    m_store = std::make_unique<AppStore>(*m_auth, m_options.settings, m_options.clock);
    m_sequence = std::make_unique<SessionSequence>(*m_auth, *m_store);
    connect(m_sequence.get(), &SessionSequence::finished, this, [this] { followSession(); });
    connect(m_auth.get(), &AuthStore::sessionChanged, this, [this] {
        setNotice({});
        followSession();
    });
    m_workspace->setStore(m_store.get());
    m_workspace->invoices()->setBackend(m_auth->client().baseUrl());
    m_earnings->setStores(m_store.get(), m_auth.get());
    m_sessions->setStores(m_store.get(), m_auth.get());
    m_calendar->setStores(m_store.get(), m_auth.get(), secrets);
    m_assistant->setStores(m_store.get(), m_auth.get(), std::move(secrets));
    emit storesChanged();
}

// Signed out shows the sign-in; a new session shows the loading state until the sequence has
// loaded it (the sequence itself follows the auth store).
void DesktopShell::followSession()
{
    if (!m_auth->isSignedIn()) {
        setPhase(SignedOut);
    } else if (m_phase != Ready || m_store->currentUserId() != m_auth->userId()) {
        setPhase(m_store->lastRefreshedAt().isValid() && m_store->currentUserId() == m_auth->userId() ? Ready
                                                                                                      : Loading);
    }
    if (m_phase == Loading && !m_store->isLoading() && m_store->currentUserId() == m_auth->userId() &&
        !m_store->lastError().isEmpty()) {
        // The first load failed: the window opens anyway, with the store's message; the poll
        // tries again.
        setPhase(Ready);
    }
}

QCoro::Task<> DesktopShell::loadProviders(QUrl baseUrl, QString anonKey)
{
    QUrl url = baseUrl;
    url.setPath(url.path() + u"/auth/v1/settings"_s);
    QNetworkRequest request(url);
    request.setRawHeader("apikey", anonKey.toUtf8());
    request.setTransferTimeout(5000);
    std::unique_ptr<QNetworkReply> reply(co_await m_network.get(request));
    const QJsonObject external =
        QJsonDocument::fromJson(reply->readAll()).object().value(u"external"_s).toObject();
    QStringList providers;
    for (auto it = external.begin(); it != external.end(); ++it) {
        static const QStringList notProviders{u"email"_s, u"phone"_s};
        if (it.value().toBool() && !notProviders.contains(it.key())) {
            providers << it.key();
        }
    }
    providers.sort();
    if (providers != m_providers) {
        m_providers = providers;
        emit providersChanged();
    }
}

void DesktopShell::signIn(const QString &email, const QString &password)
{
    if (m_auth) {
        setNotice({});
        m_auth->signIn(email.trimmed(), password);
    }
}

void DesktopShell::signUp(const QString &email, const QString &password, const QString &displayName,
                          const QString &language, const QString &currency, const QString &hourlyRate,
                          const QString &timeZone)
{
    if (!m_auth) {
        return;
    }
    setNotice({});
    PendingOnboarding pending;
    pending.email = email.trimmed();
    pending.answers.displayName = displayName.trimmed().isEmpty() ? std::nullopt
                                                                  : std::optional(displayName.trimmed());
    pending.answers.language = language;
    pending.answers.currency = currency;
    pending.answers.defaultHourlyRate = MoneyInput::parseDecimal(hourlyRate);
    pending.answers.timezone = timeZone.isEmpty() ? std::nullopt : std::optional(timeZone);
    pending.answers.onboardingComplete = true;
    pending.save(*m_options.settings);
    [](DesktopShell *self, QString email, QString password, QString name) -> QCoro::Task<> {
        QPointer guard(self);
        const AuthStore::RegisterResult result = co_await self->m_auth->registerAccount(email, password, name);
        if (guard && result == AuthStore::RegisterResult::NeedsConfirmation) {
            //% "We sent a link to %1. Open it to confirm your address, then sign in."
            self->setNotice(qtTrId("ui.auth.confirmSent").arg(email));
        }
    }(this, email.trimmed(), password, displayName.trimmed());
}

void DesktopShell::recoverPassword(const QString &email)
{
    if (!m_auth) {
        return;
    }
    [](DesktopShell *self, QString email) -> QCoro::Task<> {
        QPointer guard(self);
        const bool sent = co_await self->m_auth->recoverPassword(email);
        if (guard && sent) {
            //% "Check your inbox for the reset link."
            self->setNotice(qtTrId("ui.auth.resetSent"));
        }
    }(this, email.trimmed());
}

void DesktopShell::resendConfirmation(const QString &email)
{
    if (!m_auth) {
        return;
    }
    [](DesktopShell *self, QString email) -> QCoro::Task<> {
        QPointer guard(self);
        const AuthStore::ResendOutcome outcome = co_await self->m_auth->resendConfirmation(email);
        if (guard && outcome == AuthStore::ResendOutcome::Sent) {
            //% "We sent a new confirmation link to %1."
            self->setNotice(qtTrId("ui.auth.confirmResent").arg(email));
        }
    }(this, email.trimmed());
}

void DesktopShell::signInWithProvider(const QString &provider)
{
    if (!m_auth) {
        return;
    }
    [](DesktopShell *self, QString provider) -> QCoro::Task<> {
        QPointer guard(self);
        // The browser comes back through our own scheme: the desktop starts `morvane` with the
        // address, which hands it over to this process.
        auto relay = std::make_unique<CallbackRelay>();
        std::optional<QUrl> appRedirect;
        if (UrlScheme::registerHandler(QCoreApplication::applicationFilePath()) && relay->listen()) {
            appRedirect = UrlScheme::callbackUrl();
            connect(relay.get(), &CallbackRelay::callbackReceived, self->m_auth.get(), &AuthStore::handleCallback);
        }
        co_await self->m_auth->signInWithOAuth(
            provider, [](const QUrl &address) { return QDesktopServices::openUrl(address); }, appRedirect);
        if (guard) {
            emit self->activationRequested();
        }
    }(this, provider);
}

void DesktopShell::handleUrl(const QUrl &url)
{
    if (m_auth && UrlScheme::isCallback(url.toString())) {
        m_auth->handleCallback(url);
    }
    emit activationRequested();
}

void DesktopShell::switchAccount(const QString &userId)
{
    if (m_auth) {
        m_auth->switchAccount(userId);
    }
}

void DesktopShell::signOut()
{
    if (m_auth) {
        m_auth->signOut();
    }
}

void DesktopShell::clearMessages()
{
    setNotice({});
    if (m_store) {
        m_store->clearLastError();
    }
}

QString DesktopShell::language() const
{
    return Language::current();
}

QStringList DesktopShell::languages() const
{
    return Language::available();
}

void DesktopShell::setLanguage(const QString &code)
{
    if (code == Language::current()) {
        return;
    }
    Language::apply(code);
    if (m_engine) {
        m_engine->retranslate();
    }
    m_workspace->retranslate();
    m_earnings->retranslate();
    m_sessions->retranslate();
    m_calendar->retranslate();
    emit languageChanged();
}

QString DesktopShell::languageName(const QString &code)
{
    // Each language by its own name, as people look for it in a list.
    static const QHash<QString, QString> names{
        {u"en"_s, u"English"_s},   {u"nl"_s, u"Nederlands"_s}, {u"de"_s, u"Deutsch"_s},
        {u"fr"_s, u"Français"_s},  {u"es"_s, u"Español"_s},    {u"it"_s, u"Italiano"_s},
        {u"pt"_s, u"Português"_s}, {u"ja"_s, u"日本語"_s},     {u"th"_s, u"ไทย"_s},
    };
    return names.value(code, code);
}

bool DesktopShell::isRate(const QString &text)
{
    if (text.trimmed().isEmpty()) {
        return true;
    }
    const std::optional<double> value = MoneyInput::parseDecimal(text);
    return value && *value >= 0;
}

void DesktopShell::setColorScheme(const QString &scheme)
{
    static const QStringList schemes{u"system"_s, u"light"_s, u"dark"_s};
    if (!schemes.contains(scheme) || scheme == m_colorScheme) {
        return;
    }
    const bool wasDark = isDark();
    m_colorScheme = scheme;
    m_options.settings->setValue(QLatin1StringView(colorSchemeKey), scheme);
    emit colorSchemeChanged();
    if (wasDark != isDark()) {
        emit darkChanged();
    }
}

bool DesktopShell::isDark() const
{
    if (m_colorScheme == u"dark") {
        return true;
    }
    if (m_colorScheme == u"light") {
        return false;
    }
    return m_systemDark;
}

void DesktopShell::setSystemDark(bool dark)
{
    if (dark == m_systemDark) {
        return;
    }
    const bool wasDark = isDark();
    m_systemDark = dark;
    if (wasDark != isDark()) {
        emit darkChanged();
    }
}

// The desktop's preference through the settings portal, read once and followed when it changes;
// without a portal the palette's guess stays.
void DesktopShell::watchDesktopScheme()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return;
    }
    QDBusMessage read = QDBusMessage::createMethodCall(portalService, portalPath, portalInterface, u"Read"_s);
    read << appearanceNamespace << colorSchemeSetting;
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(read, 2000), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *call) {
        const QDBusPendingReply<QVariant> reply = *call;
        if (!reply.isError()) {
            setSystemDark(portalPrefersDark(reply.value()));
        }
        call->deleteLater();
    });
    bus.connect(portalService, portalPath, portalInterface, u"SettingChanged"_s, this,
                SLOT(onPortalSettingChanged(QString, QString, QDBusVariant)));
}

void DesktopShell::onPortalSettingChanged(const QString &group, const QString &key, const QDBusVariant &value)
{
    if (group == appearanceNamespace && key == colorSchemeSetting) {
        setSystemDark(portalPrefersDark(value.variant()));
    }
}

QString DesktopShell::systemTimeZone() const
{
    return QString::fromUtf8(QTimeZone::systemTimeZoneId());
}

QStringList DesktopShell::timeZones() const
{
    QStringList zones;
    for (const QByteArray &id : QTimeZone::availableTimeZoneIds()) {
        // The region/city names a person recognises; the aliases and offsets only repeat them.
        if (id.contains('/') && !id.startsWith("Etc/") && !id.startsWith("SystemV/")) {
            zones << QString::fromUtf8(id);
        }
    }
    if (!zones.contains(systemTimeZone())) {
        zones.prepend(systemTimeZone());
    }
    return zones;
}

QStringList DesktopShell::currencies() const
{
    return {u"EUR"_s, u"USD"_s, u"GBP"_s, u"CHF"_s, u"JPY"_s, u"THB"_s, u"SEK"_s, u"NOK"_s, u"DKK"_s,
            u"PLN"_s, u"CZK"_s, u"CAD"_s, u"AUD"_s, u"NZD"_s, u"BRL"_s, u"MXN"_s, u"INR"_s, u"SGD"_s};
}
