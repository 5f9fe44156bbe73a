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
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void say(const QString &line)
{
    std::fprintf(stderr, "morvane-server: %s\n", qPrintable(line));
    std::fflush(stderr);
}

// What another local user could have planted must not be trusted: a data folder or secret of
// theirs, a secret others can read, or a link in place of a file.
QString untrustedReason(const QString &path, bool mustBePrivate)
{
    struct stat info
    {};
    if (::lstat(QFile::encodeName(path).constData(), &info) != 0) {
        return {};
    }
    if (S_ISLNK(info.st_mode) && mustBePrivate) {
        return path + u" is a link; a file the server trusts must be a file of its own"_s;
    }
    if (S_ISLNK(info.st_mode) && ::stat(QFile::encodeName(path).constData(), &info) != 0) {
        return path + u" is a link to nothing"_s;
    }
    if (info.st_uid != ::geteuid()) {
        return path + u" belongs to another user"_s;
    }
    if (mustBePrivate && (info.st_mode & 077) != 0) {
        return path + u" can be read or changed by other users (it must have mode 600)"_s;
    }
    if (!mustBePrivate && (info.st_mode & 022) != 0) {
        return path + u" can be changed by other users"_s;
    }
    return {};
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

QByteArray ServerApp::loadOrCreateSecret(const QString &name)
{
    const QString path = QDir(m_options.dataDir).filePath(name);
    if (const QString reason = untrustedReason(path, true); !reason.isEmpty()) {
        say(u"refusing to start: "_s + reason);
        return {};
    }
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

std::optional<std::pair<QByteArray, QByteArray>> ServerApp::loginRoles(PgConnection &owner, const QByteArray &conninfo)
{
    const QByteArray request = PgCluster::requestRole;
    const QByteArray auth = PgCluster::authRole;
    try {
        // Made, and put back in shape, at every start: a login role with rights of its own, or a
        // membership someone added, would undo what the role is for.
        owner.execScript(R"SQL(
DO $roles$
DECLARE
    r record;
BEGIN
    IF NOT EXISTS (SELECT 1 FROM pg_roles WHERE rolname = 'morvane_authenticator') THEN
        CREATE ROLE morvane_authenticator LOGIN NOINHERIT;
    END IF;
    IF NOT EXISTS (SELECT 1 FROM pg_roles WHERE rolname = 'morvane_auth') THEN
        CREATE ROLE morvane_auth LOGIN NOINHERIT;
    END IF;
    ALTER ROLE morvane_authenticator NOSUPERUSER NOCREATEDB NOCREATEROLE NOBYPASSRLS NOREPLICATION NOINHERIT LOGIN;
    ALTER ROLE morvane_auth NOSUPERUSER NOCREATEDB NOCREATEROLE NOBYPASSRLS NOREPLICATION NOINHERIT LOGIN;
    FOR r IN SELECT g.rolname, m.rolname AS member FROM pg_auth_members a
             JOIN pg_roles g ON g.oid = a.roleid JOIN pg_roles m ON m.oid = a.member
             WHERE m.rolname IN ('morvane_authenticator', 'morvane_auth')
               AND NOT (m.rolname = 'morvane_authenticator' AND g.rolname IN ('anon', 'authenticated', 'service_role'))
    LOOP
        EXECUTE format('REVOKE %I FROM %I', r.rolname, r.member);
    END LOOP;
    FOR r IN SELECT rolname FROM pg_roles WHERE rolname IN ('anon', 'authenticated', 'service_role')
             AND NOT pg_has_role('morvane_authenticator', oid, 'MEMBER') LOOP
        EXECUTE format('GRANT %I TO morvane_authenticator', r.rolname);
    END LOOP;
    IF to_regnamespace('auth') IS NOT NULL THEN
        GRANT USAGE ON SCHEMA auth TO morvane_auth;
        GRANT USAGE, SELECT ON ALL SEQUENCES IN SCHEMA auth TO morvane_auth;
        FOR r IN SELECT c.relname FROM pg_class c
                 WHERE c.relnamespace = 'auth'::regnamespace AND c.relkind = 'r'
                   AND c.relname IN ('users', 'identities', 'sessions', 'refresh_tokens', 'flow_state') LOOP
            EXECUTE format('GRANT SELECT, INSERT, UPDATE, DELETE ON auth.%I TO morvane_auth', r.relname);
        END LOOP;
    END IF;
    IF to_regnamespace('extensions') IS NOT NULL THEN
        GRANT USAGE ON SCHEMA extensions TO morvane_auth;
    END IF;
END
$roles$)SQL");
    } catch (const PgException &error) {
        say(u"cannot set up the server's login roles (the database user needs the CREATEROLE right): "_s +
            QString::fromUtf8(error.what()));
        return std::nullopt;
    }
    std::pair<QByteArray, QByteArray> roles;
    if (m_cluster) {
        // The private cluster admits only this server's own system user, by its identity.
        roles = {PgConnection::conninfoAs(conninfo, request), PgConnection::conninfoAs(conninfo, auth)};
    } else {
        // Another database is reached over the network: the roles sign in with passwords that
        // this server keeps in its data folder and sets anew at every start.
        const QByteArray password = loadOrCreateSecret(u"database-password"_s);
        if (password.isEmpty()) {
            return std::nullopt;
        }
        try {
            for (const QByteArray &role : {request, auth}) {
                const PgResult statement = owner.exec(
                    "SELECT format('ALTER ROLE %I WITH LOGIN PASSWORD %L', $1::text, $2::text)", {role, password});
                owner.execScript(statement.value(0, 0));
            }
        } catch (const PgException &error) {
            say(u"the database user of --database-url cannot give the server's login roles (%1, %2) their "
                u"passwords; it needs the CREATEROLE right: "_s.arg(QString::fromLatin1(request),
                                                                    QString::fromLatin1(auth)) +
                QString::fromUtf8(error.what()));
            return std::nullopt;
        }
        roles = {PgConnection::conninfoAs(conninfo, request, password),
                 PgConnection::conninfoAs(conninfo, auth, password)};
    }
    for (const QByteArray &login : {roles.first, roles.second}) {
        try {
            PgConnection::open(login)->exec("SELECT 1");
        } catch (const PgException &error) {
            say(u"cannot sign in to the database as the server's login roles: "_s + QString::fromUtf8(error.what()));
            return std::nullopt;
        }
    }
    return roles;
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
    if (const QString reason = untrustedReason(m_options.dataDir, false); !reason.isEmpty()) {
        say(u"refusing to start: "_s + reason);
        return false;
    }
    // Others may pass through (the database's system user must, when root runs the server), but
    // never list or change it; what lies inside is private file by file.
    QFile::setPermissions(m_options.dataDir,
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther);
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

    const QByteArray secret = loadOrCreateSecret(u"jwt-secret"_s);
    if (secret.isEmpty()) {
        say(u"cannot use the secret in "_s + m_options.dataDir);
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
    QByteArray requestConninfo;
    QByteArray authConninfo;
    try {
        auto connection = PgConnection::open(conninfo);
        applyMigrations(
            *connection,
            m_options.migrationsDir.isEmpty() ? embeddedMigrations() : migrationsIn(m_options.migrationsDir), say);
        catalog = std::make_shared<const Catalog>(Catalog::load(*connection));
        const auto roles = loginRoles(*connection, conninfo);
        if (!roles) {
            return false;
        }
        std::tie(requestConninfo, authConninfo) = *roles;
    } catch (const MigrationError &error) {
        say(QString::fromStdString(error.what()));
        return false;
    } catch (const PgException &error) {
        say(u"database: "_s + QString::fromUtf8(error.what()));
        return false;
    }

    // Requests never run on the owner's connections: their login role can become anon,
    // authenticated or service_role and nothing else, whatever a statement tries.
    m_pool = std::make_unique<PgPool>(requestConninfo, 12);
    // A schema of other migrations than ours may lack the check; tokens are then held to their
    // signature and expiry alone.
    bool sessionChecks = false;
    try {
        sessionChecks = PgConnection::open(conninfo)
                            ->exec("SELECT to_regprocedure('app.session_is_live()') IS NOT NULL")
                            .value(0, 0) == "t";
    } catch (const PgException &) {
    }
    m_authPool = std::make_unique<PgPool>(authConninfo, 4);
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

    auto rest = std::make_shared<RestService>(*m_pool, secret, catalog, sessionChecks);
    m_http->addService(rest);
    // Objects are never larger than a request may be: the HTTP front refuses those while they arrive.
    const QString storageRoot = QDir(m_options.dataDir).filePath(u"storage"_s);
    m_http->addService(std::make_shared<StorageService>(*m_pool, secret, storageRoot,
                                                        StorageService::Limits{limits.maxBodyBytes}, sessionChecks));
    std::shared_ptr<AIRelay> relay;
    if (m_options.aiRelay) {
        relay = std::make_shared<AIRelay>(*m_options.aiRelay);
        say(u"AI relay forwards to %1"_s.arg(AIWire::displayName(m_options.aiRelay->vendor)));
    }
    m_http->addService(std::make_shared<FunctionsService>(*m_pool, secret, storageRoot, sessionChecks, relay));
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
    auth.redirectUrls = m_options.redirectUrls;
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
    m_http->addService(std::make_shared<AuthService>(*m_authPool, secret, QUrl(url), auth));
    RealtimeService::Options realtime;
    realtime.maxBacklogBytes = m_options.realtimeMaxBacklog;
    m_realtime = std::make_unique<RealtimeService>(conninfo, requestConninfo, secret, realtime);
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
    m_authPool.reset();
    if (m_cluster) {
        m_cluster->stop();
        m_cluster.reset();
    }
    if (m_lock) {
        m_lock->unlock();
    }
}
