#include "serverapp.h"

#include "auth/authservice.h"
#include "auth/jwt.h"
#include "functions/functionsservice.h"
#include "http/httpserver.h"
#include "pg/migrator.h"
#include "pg/pgcluster.h"
#include "pg/pglistener.h"
#include "pg/pgpool.h"
#include "realtime/realtimeservice.h"
#include "rest/catalog.h"
#include "rest/restservice.h"
#include "storage/storageservice.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QRandomGenerator>
#include <QSaveFile>
#include <QStandardPaths>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void say(const QString &line)
{
    std::fprintf(stderr, "morvane-server: %s\n", qPrintable(line));
    std::fflush(stderr);
}

bool writePrivateFile(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    file.write(content);
    return file.commit() && QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
}

} // namespace

ServerApp::ServerApp(Options options, QObject *parent)
    : QObject(parent)
    , m_options(std::move(options))
{}

ServerApp::~ServerApp()
{
    stop();
}

QString ServerApp::defaultDataDir()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/morvane/server"_s;
}

QByteArray ServerApp::loadOrCreateSecret()
{
    const QString path = QDir(m_options.dataDir).filePath(u"jwt-secret"_s);
    QFile existing(path);
    if (existing.open(QIODevice::ReadOnly)) {
        const QByteArray secret = existing.readAll().trimmed();
        if (secret.size() >= 32) {
            return secret;
        }
    }
    QByteArray random(48, Qt::Uninitialized);
    QRandomGenerator::system()->generate(random.begin(), random.end());
    const QByteArray secret = random.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
    if (!writePrivateFile(path, secret + '\n')) {
        return {};
    }
    return secret;
}

bool ServerApp::writeServerInfo(const QString &url, const QByteArray &anonKey)
{
    const QJsonObject info{{u"url"_s, url}, {u"anon_key"_s, QString::fromLatin1(anonKey)}};
    return writePrivateFile(QDir(m_options.dataDir).filePath(u"server.json"_s),
                            QJsonDocument(info).toJson(QJsonDocument::Indented));
}

bool ServerApp::start()
{
    if (!QDir().mkpath(m_options.dataDir)) {
        say(u"cannot create the data folder "_s + m_options.dataDir);
        return false;
    }
    QFile::setPermissions(m_options.dataDir, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
                                                 QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
    m_lock = std::make_unique<QLockFile>(QDir(m_options.dataDir).filePath(u"morvane-server.lock"_s));
    m_lock->setStaleLockTime(0);
    if (!m_lock->tryLock(0)) {
        qint64 pid = 0;
        QString host;
        QString app;
        m_lock->getLockInfo(&pid, &host, &app);
        say(u"another morvane-server (process %1) already serves %2"_s.arg(pid).arg(m_options.dataDir));
        return false;
    }

    const QByteArray secret = loadOrCreateSecret();
    if (secret.isEmpty()) {
        say(u"cannot write the secret into "_s + m_options.dataDir);
        return false;
    }

    QByteArray conninfo = m_options.databaseUrl.toUtf8();
    if (conninfo.isEmpty()) {
        m_cluster = std::make_unique<PgCluster>(m_options.dataDir, say);
        try {
            m_cluster->start();
        } catch (const PgCluster::Error &error) {
            say(QString::fromStdString(error.what()));
            return false;
        }
        conninfo = m_cluster->conninfo();
    }

    std::shared_ptr<const Catalog> catalog;
    try {
        auto connection = PgConnection::open(conninfo);
        applyMigrations(
            *connection,
            m_options.migrationsDir.isEmpty() ? embeddedMigrations() : migrationsIn(m_options.migrationsDir), say);
        catalog = std::make_shared<const Catalog>(Catalog::load(*connection));
    } catch (const MigrationError &error) {
        say(QString::fromStdString(error.what()));
        return false;
    } catch (const PgException &error) {
        say(u"database: "_s + QString::fromUtf8(error.what()));
        return false;
    }

    m_pool = std::make_unique<PgPool>(conninfo, 12);
    HttpServer::Limits limits;
    limits.idleConnection = std::chrono::seconds(m_options.idleSeconds);
    m_http = std::make_unique<HttpServer>(limits);
    const QHostAddress address(m_options.listenAddress);
    const quint16 port = m_http->listenGuarded(address, m_options.port);
    if (port == 0) {
        say(u"cannot listen on %1:%2 (is another program using the port?)"_s.arg(m_options.listenAddress)
                .arg(m_options.port));
        return false;
    }
    const QString host =
        address.protocol() == QAbstractSocket::IPv6Protocol ? u'[' + address.toString() + u']' : address.toString();
    const QString url = u"http://%1:%2"_s.arg(host == u"0.0.0.0" ? u"127.0.0.1"_s : host).arg(port);

    auto rest = std::make_shared<RestService>(*m_pool, secret, catalog);
    m_http->addService(rest);
    // Objects are never larger than a request may be: the HTTP front refuses those while they arrive.
    const QString storageRoot = QDir(m_options.dataDir).filePath(u"storage"_s);
    m_http->addService(
        std::make_shared<StorageService>(*m_pool, secret, storageRoot, StorageService::Limits{limits.maxBodyBytes}));
    m_http->addService(std::make_shared<FunctionsService>(*m_pool, secret, storageRoot));
    // As PostgREST does: `NOTIFY pgrst, 'reload schema'` after a change of tables or functions.
    m_schemaListener = std::make_unique<PgListener>(conninfo, "pgrst", [conninfo, rest](const QByteArray &payload) {
        if (!payload.isEmpty() && payload != "reload schema") {
            return;
        }
        try {
            auto connection = PgConnection::open(conninfo);
            rest->setCatalog(std::make_shared<const Catalog>(Catalog::load(*connection)));
            say(u"schema reloaded"_s);
        } catch (const PgException &error) {
            say(u"schema reload failed: "_s + QString::fromUtf8(error.what()));
        }
    });

    AuthSettings auth;
    auth.autoConfirm = !m_options.confirmEmail;
    auth.outboxDir = QDir(m_options.dataDir).filePath(u"outbox"_s);
    QString providersError;
    const QString providersFile = m_options.authProvidersFile.isEmpty()
                                      ? QDir(m_options.dataDir).filePath(u"auth-providers.json"_s)
                                      : m_options.authProvidersFile;
    auth.providers = AuthSettings::readProviders(providersFile, &providersError);
    if (!providersError.isEmpty()) {
        say(providersError);
    }
    // Links in e-mails and the token issuer name the address the server answers on, known only
    // now that it listens.
    m_http->addService(std::make_shared<AuthService>(*m_pool, secret, QUrl(url), auth));
    RealtimeService::Options realtime;
    realtime.maxBacklogBytes = m_options.realtimeMaxBacklog;
    m_realtime = std::make_unique<RealtimeService>(conninfo, secret, realtime);
    try {
        if (!m_realtime->start(*m_http)) {
            say(u"realtime: the schema has no change queue (app.realtime_changes); the feed carries no changes"_s);
        }
    } catch (const PgException &error) {
        say(u"realtime: "_s + QString::fromUtf8(error.what()));
        return false;
    }
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    const QByteArray anonKey = Jwt::sign(
        {{u"iss"_s, u"morvane"_s}, {u"role"_s, u"anon"_s}, {u"iat"_s, now}, {u"exp"_s, now + 10LL * 365 * 24 * 3600}},
        secret);
    if (!writeServerInfo(url, anonKey)) {
        say(u"cannot write server.json into "_s + m_options.dataDir);
        return false;
    }
    std::printf("morvane-server ready url=%s\n", qPrintable(url));
    std::fflush(stdout);
    return true;
}

void ServerApp::stop()
{
    m_schemaListener.reset();
    // Before the HTTP front, which owns nothing of the sockets but accepted them.
    m_realtime.reset();
    m_http.reset();
    m_pool.reset();
    if (m_cluster) {
        m_cluster->stop();
        m_cluster.reset();
    }
    if (m_lock) {
        m_lock->unlock();
    }
}
