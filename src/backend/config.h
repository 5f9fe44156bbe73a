#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QUrl>

class QSettings;

// Which backend the application talks to: the address and the public anonymous key.
class Config
{
public:
    enum class Source {
        Settings,    // the application's own settings
        Environment, // SUPABASE_URL / SUPABASE_ANON_KEY
        LocalServer, // the backend that runs on this machine for this user
    };

    QUrl supabaseURL;
    QString supabaseAnonKey;
    Source urlSource = Source::LocalServer;
    Source keySource = Source::LocalServer;

    [[nodiscard]] bool usesLocalServer() const { return urlSource == Source::LocalServer; }

    // Read once on first use and kept; the start-up sequence replaces it once the local backend
    // has told its address and key.
    static Config current();
    static void setCurrent(const Config &config);
    // Counts replacements, so that holders of a client built from an older setting notice.
    static int generation();

    // Each setting independently: settings, then environment, then the local backend.
    static Config resolve(const QSettings &settings, const QProcessEnvironment &environment,
                          const QString &localServerDir);

    // Where the local backend keeps its data and its `server.json` (address and key).
    static QString localServerDir();
    static QUrl defaultLocalUrl();

    static QString sourceName(Source source);
};
