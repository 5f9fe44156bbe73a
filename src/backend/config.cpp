#include "config.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMutex>
#include <QSettings>
#include <QStandardPaths>

#include <atomic>
#include <optional>

namespace {

constexpr auto urlKey = "SUPABASE_URL";
constexpr auto anonKeyKey = "SUPABASE_ANON_KEY";

struct LocalServer
{
    QUrl url = Config::defaultLocalUrl();
    QString anonKey;
};

LocalServer readLocalServer(const QString &dir)
{
    LocalServer local;
    QFile file(dir + u"/server.json");
    if (!file.open(QIODevice::ReadOnly)) {
        return local;
    }
    const QJsonObject info = QJsonDocument::fromJson(file.readAll()).object();
    const QUrl url(info.value(u"url").toString());
    if (url.isValid() && !url.isRelative()) {
        local.url = url;
    }
    local.anonKey = info.value(u"anon_key").toString();
    return local;
}

QMutex currentMutex;
std::optional<Config> currentConfig;
std::atomic<int> currentGeneration{0};

} // namespace

Config Config::resolve(const QSettings &settings, const QProcessEnvironment &environment, const QString &localServerDir)
{
    std::optional<LocalServer> local;
    auto lookup = [&](const char *key, Source &source) -> QString {
        const QString name = QString::fromLatin1(key);
        if (const QString value = settings.value(name).toString().trimmed(); !value.isEmpty()) {
            source = Source::Settings;
            return value;
        }
        if (const QString value = environment.value(name).trimmed(); !value.isEmpty()) {
            source = Source::Environment;
            return value;
        }
        source = Source::LocalServer;
        return {};
    };

    Config config;
    const QString url = lookup(urlKey, config.urlSource);
    const QString key = lookup(anonKeyKey, config.keySource);
    if (config.urlSource == Source::LocalServer || config.keySource == Source::LocalServer) {
        local = readLocalServer(localServerDir);
    }
    config.supabaseURL = config.urlSource == Source::LocalServer ? local->url : QUrl(url);
    config.supabaseAnonKey = config.keySource == Source::LocalServer ? local->anonKey : key;
    return config;
}

Config Config::current()
{
    QMutexLocker lock(&currentMutex);
    if (!currentConfig) {
        const QSettings settings;
        currentConfig = resolve(settings, QProcessEnvironment::systemEnvironment(), localServerDir());
    }
    return *currentConfig;
}

void Config::setCurrent(const Config &config)
{
    QMutexLocker lock(&currentMutex);
    currentConfig = config;
    ++currentGeneration;
}

int Config::generation()
{
    return currentGeneration.load();
}

QString Config::localServerDir()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/morvane/server";
}

QUrl Config::defaultLocalUrl()
{
    return QUrl(QStringLiteral("http://127.0.0.1:54321"));
}

QString Config::sourceName(Source source)
{
    switch (source) {
    case Source::Settings:
        //% "application settings"
        return qtTrId("config.source.settings");
    case Source::Environment:
        //% "environment"
        return qtTrId("config.source.environment");
    case Source::LocalServer:
        //% "local backend"
        return qtTrId("config.source.local");
    }
    return {};
}
