#include "preferences.h"

#include "app/startup.h"
#include "backend/authstore.h"
#include "backend/localserver.h"
#include "billing/moneyinput.h"
#include "store/appstore.h"
#include "ui/desktopshell.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

const QString urlSetting = u"SUPABASE_URL"_s;
const QString keySetting = u"SUPABASE_ANON_KEY"_s;

qint64 folderSize(const QString &path)
{
    qint64 total = 0;
    QDirIterator it(path, QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        it.next();
        total += it.fileInfo().size();
    }
    return total;
}

} // namespace

Preferences::Preferences(DesktopShell &shell)
    : QObject(&shell)
    , m_shell(shell)
    , m_autostart(new Autostart(this))
{
    connect(&shell, &DesktopShell::storesChanged, this, [this] {
        if (AppStore *store = m_shell.store()) {
            connect(store, &AppStore::profileChanged, this, &Preferences::profileChanged);
        }
        emit profileChanged();
        emit backendChanged();
    });
}

QString Preferences::displayName() const
{
    const AppStore *store = m_shell.store();
    return store && store->profile() ? store->profile()->displayName.value_or(QString()) : QString();
}

QString Preferences::hourlyRate() const
{
    const AppStore *store = m_shell.store();
    if (!store || !store->profile() || !store->profile()->defaultHourlyRate) {
        return {};
    }
    return MoneyInput::text(store->profile()->defaultHourlyRate, m_shell.language(), MoneyInput::Kind::Rate);
}

QString Preferences::currency() const
{
    const AppStore *store = m_shell.store();
    return store ? store->currency() : u"EUR"_s;
}

QString Preferences::email() const
{
    return m_shell.auth() ? m_shell.auth()->email() : QString();
}

bool Preferences::usesLocalBackend() const
{
    return m_shell.settings()->value(urlSetting).toString().trimmed().isEmpty() &&
           qEnvironmentVariable("SUPABASE_URL").trimmed().isEmpty();
}

QString Preferences::backendUrl() const
{
    return m_shell.settings()->value(urlSetting).toString();
}

QString Preferences::backendKey() const
{
    return m_shell.settings()->value(keySetting).toString();
}

QString Preferences::localDataDir() const
{
    return Config::localServerDir();
}

void Preferences::setBusy(bool busy)
{
    if (m_busy != busy) {
        m_busy = busy;
        emit busyChanged();
    }
}

void Preferences::setMessage(const QString &message)
{
    if (m_message != message) {
        m_message = message;
        emit messageChanged();
    }
}

bool Preferences::saveProfile(const QString &displayName, const QString &hourlyRate, const QString &currency)
{
    AppStore *store = m_shell.store();
    const std::optional<double> rate = MoneyInput::parseDecimal(hourlyRate);
    if (!store || (!hourlyRate.trimmed().isEmpty() && (!rate || *rate < 0))) {
        return false;
    }
    ProfilePatch patch;
    patch.displayName = displayName.trimmed().isEmpty() ? std::nullopt : std::optional(displayName.trimmed());
    patch.defaultHourlyRate = hourlyRate.trimmed().isEmpty() ? std::nullopt : rate;
    patch.currency = currency;
    [](QPointer<Preferences> self, QPointer<AppStore> store, ProfilePatch patch) -> QCoro::Task<> {
        const bool saved = co_await store->updateProfile(patch);
        if (self && saved) {
            //% "Saved."
            self->setMessage(qtTrId("ui.settings.saved"));
        }
    }(this, store, patch);
    return true;
}

void Preferences::setLanguage(const QString &code)
{
    m_shell.setLanguage(code);
    if (AppStore *store = m_shell.store(); store && store->profile() && store->profile()->language != code) {
        ProfilePatch patch;
        patch.language = code;
        store->updateProfile(patch);
    }
    emit profileChanged();
}

bool Preferences::useBackend(const QString &url, const QString &anonKey)
{
    const QUrl address(url.trimmed(), QUrl::StrictMode);
    const bool local = url.trimmed().isEmpty();
    if (!local && (!address.isValid() || (address.scheme() != u"https" && address.scheme() != u"http") ||
                   address.host().isEmpty() || anonKey.trimmed().isEmpty())) {
        return false;
    }
    if (local) {
        m_shell.settings()->remove(urlSetting);
        m_shell.settings()->remove(keySetting);
    } else {
        m_shell.settings()->setValue(urlSetting, address.toString(QUrl::StripTrailingSlash));
        m_shell.settings()->setValue(keySetting, anonKey.trimmed());
    }
    m_shell.settings()->sync();
    Config::setCurrent(Config::resolve(*m_shell.settings(), QProcessEnvironment::systemEnvironment(),
                                       Config::localServerDir()));
    emit backendChanged();
    m_shell.restart();
    return true;
}

void Preferences::refreshLocal()
{
    readLocal();
}

QCoro::Task<> Preferences::readLocal()
{
    QPointer guard(this);
    const LocalServer server = Startup::localServer();
    const LocalServer::Status status = co_await server.status();
    if (!guard) {
        co_return;
    }
    switch (status.state) {
    case LocalServer::State::Running:
        m_localState = u"running"_s;
        break;
    case LocalServer::State::Starting:
        m_localState = u"starting"_s;
        break;
    case LocalServer::State::Stopped:
        m_localState = u"stopped"_s;
        break;
    }
    m_localSize = QLocale().formattedDataSize(folderSize(server.dataDir()));
    emit localChanged();
}

void Preferences::startLocal()
{
    changeLocal(true);
}

void Preferences::stopLocal()
{
    changeLocal(false);
}

void Preferences::changeLocal(bool run)
{
    [](QPointer<Preferences> self, bool run) -> QCoro::Task<> {
        self->setBusy(true);
        try {
            const LocalServer server = Startup::localServer();
            if (run) {
                co_await server.ensureRunning();
            } else {
                co_await server.stop();
            }
        } catch (const LocalServerError &error) {
            if (self) {
                self->setMessage(error.message());
            }
        }
        if (self) {
            self->setBusy(false);
            co_await self->readLocal();
        }
    }(this, run);
}

bool Preferences::deleteAccount(const QString &confirmation)
{
    AuthStore *auth = m_shell.auth();
    if (!auth || confirmation.trimmed().compare(auth->email(), Qt::CaseInsensitive) != 0) {
        return false;
    }
    auth->deleteAccount();
    return true;
}
