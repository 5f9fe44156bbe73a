#pragma once

#include "functions/airelay.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class HttpServer;
class PgCluster;
class PgConnection;
class PgListener;
class PgPool;
class RealtimeService;

// morvane-server: owns the data folder, the database (a private cluster or a given one), the
// migrations and the HTTP services.
class ServerApp : public QObject
{
    Q_OBJECT

public:
    struct Options
    {
        QString dataDir;
        quint16 port = 54321;
        QString listenAddress = QStringLiteral("127.0.0.1");
        QString databaseUrl;
        QString migrationsDir; // empty: the migrations built into the program
        int idleSeconds = 60;
        bool confirmEmail = false; // send confirmation mails instead of confirming at once
        QString authProvidersFile; // empty: <data-dir>/auth-providers.json
        qint64 realtimeMaxBacklog = 16 * 1024 * 1024;
        QStringList redirectUrls; // besides the server's own address
        std::optional<AIRelay::Config> aiRelay; // none: "morvane-ai" answers 503
    };

    explicit ServerApp(Options options, QObject *parent = nullptr);
    ~ServerApp() override;

    // Brings everything up; on failure prints why and answers false.
    bool start();
    void stop();

    static QString defaultDataDir();

private:
    QByteArray loadOrCreateSecret(const QString &name);
    // The connection strings of the request role and of the authentication service's role.
    std::optional<std::pair<QByteArray, QByteArray>> loginRoles(PgConnection &owner, const QByteArray &conninfo);
    bool writeServerInfo(const QString &url, const QByteArray &anonKey);

    Options m_options;
    std::unique_ptr<class QLockFile> m_lock;
    std::unique_ptr<PgCluster> m_cluster;
    std::unique_ptr<PgPool> m_pool;
    std::unique_ptr<PgPool> m_authPool;
    std::unique_ptr<HttpServer> m_http;
    std::unique_ptr<PgListener> m_schemaListener;
    std::unique_ptr<RealtimeService> m_realtime;
};
