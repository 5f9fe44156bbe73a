#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QList>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>

class PgConnection;

// One answer, as the client saw it.
struct HttpResult
{
    int status = 0;
    QList<std::pair<QByteArray, QByteArray>> headers;
    QByteArray body;

    [[nodiscard]] QByteArray header(const QByteArray &name) const;
    [[nodiscard]] QJsonDocument json() const { return QJsonDocument::fromJson(body); }
    // The "code" of an error body.
    [[nodiscard]] QString code() const;
};

// A real morvane-server on a throw-away PostgreSQL cluster, started for one test executable and
// stopped with it. Users are made directly in the database; tokens are signed with the server's
// own secret.
class TestBackend
{
public:
    // With `startNow` false the data folder exists but nothing runs until start().
    explicit TestBackend(const QStringList &extraArguments = {}, bool startNow = true);
    ~TestBackend();

    [[nodiscard]] bool isReady() const { return m_url.isValid(); }
    [[nodiscard]] QString startupLog() const { return m_log; }
    [[nodiscard]] QUrl url() const { return m_url; }
    [[nodiscard]] QByteArray anonKey() const { return m_anonKey; }
    [[nodiscard]] QString dataDir() const { return m_dir.path() + QStringLiteral("/data"); }

    // A user in auth.users (and so a profile); answers the id.
    QString createUser(const QString &email, const QString &displayName = {});
    QByteArray tokenFor(const QString &userId, const QString &role = QStringLiteral("authenticated"),
                        qint64 validSeconds = 3600) const;
    QByteArray serviceToken() const;

    // The database as its owner, for setting up rows and checking what a request changed.
    PgConnection &database();

    // One HTTP request: `target` is the path with its query, already encoded.
    HttpResult request(const QByteArray &method, const QByteArray &target, const QByteArray &token = {},
                       const QByteArray &body = {}, const QList<std::pair<QByteArray, QByteArray>> &headers = {}) const;

    static QString serverProgram();

    // Stops the server (and so its database) and starts it again on the same data and port, as
    // after a restart of the machine it runs on.
    void stop();
    bool restart();
    // Starts (again) on the same data, on the same port once there was one; false if it did not come up.
    bool start();
    [[nodiscard]] qint64 processId() const { return m_process.processId(); }

private:
    void launch(const QStringList &arguments);

    QTemporaryDir m_dir;
    QStringList m_extraArguments;
    QProcess m_process;
    QUrl m_url;
    QByteArray m_anonKey;
    QByteArray m_secret;
    QString m_log;
    std::unique_ptr<PgConnection> m_database;
};

// The value of `key` in every row of a JSON array, as text (numbers and booleans too).
QStringList jsonColumn(const QJsonArray &rows, const QString &key);

// Percent-encodes query values the way a client library does.
QByteArray queryString(const QList<std::pair<QString, QString>> &items);
