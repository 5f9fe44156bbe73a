#pragma once

#include <QString>

#include <functional>
#include <stdexcept>

// The private PostgreSQL cluster of one data folder: created on first use, started with a Unix
// socket inside the cluster folder and no TCP port, stopped cleanly. PostgreSQL refuses to run as
// root, so a root process runs it as the system user "postgres".
class PgCluster
{
public:
    class Error : public std::runtime_error
    {
    public:
        explicit Error(const QString &message)
            : std::runtime_error(message.toStdString())
        {}
    };

    using Log = std::function<void(const QString &)>;

    PgCluster(QString dataDir, Log log);
    ~PgCluster();

    // Throws Error with a message a person can act on.
    void start();
    void stop();

    [[nodiscard]] QByteArray conninfo() const;
    [[nodiscard]] QString clusterDir() const { return m_clusterDir; }

    static constexpr const char *databaseName = "morvane";
    static constexpr const char *superuser = "morvane";
    // The login roles of the request connections and of the authentication service.
    static constexpr const char *requestRole = "morvane_authenticator";
    static constexpr const char *authRole = "morvane_auth";

private:
    int run(const QString &program, const QStringList &arguments, QString *output = nullptr) const;
    void chooseClusterDir();
    void initialise();
    void restrictAccess();
    void startServer();
    void ensureDatabase();
    [[nodiscard]] QString logTail() const;

    QString m_dataDir;
    QString m_clusterDir;
    QString m_binDir;
    Log m_log;
    bool m_asRoot = false;
    bool m_running = false;
};
