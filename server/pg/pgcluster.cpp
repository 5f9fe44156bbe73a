#include "pgcluster.h"

#include "pg/pgconnection.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto systemUser = "postgres";

QString findBinDir()
{
    QProcess config;
    config.start(u"pg_config"_s, {u"--bindir"_s});
    if (config.waitForFinished(5000) && config.exitCode() == 0) {
        const QString dir = QString::fromLocal8Bit(config.readAllStandardOutput()).trimmed();
        if (QFileInfo::exists(dir + u"/initdb")) {
            return dir;
        }
    }
    // Debian keeps the server programs off PATH, one folder per major version.
    QDir versions(u"/usr/lib/postgresql"_s);
    QStringList found = versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    std::sort(found.begin(), found.end(), [](const QString &a, const QString &b) { return a.toInt() > b.toInt(); });
    for (const QString &version : std::as_const(found)) {
        const QString dir = versions.filePath(version + u"/bin");
        if (QFileInfo::exists(dir + u"/initdb")) {
            return dir;
        }
    }
    return {};
}

QString quoteConf(const QString &value)
{
    QString quoted = value;
    quoted.replace(u'\\', u"\\\\"_s).replace(u'\'', u"''"_s);
    return u'\'' + quoted + u'\'';
}

} // namespace

PgCluster::PgCluster(QString dataDir, Log log)
    : m_dataDir(std::move(dataDir))
    , m_log(std::move(log))
    , m_asRoot(geteuid() == 0)
{}

PgCluster::~PgCluster()
{
    stop();
}

int PgCluster::run(const QString &program, const QStringList &arguments, QString *output) const
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    const QString path = m_binDir + u'/' + program;
    if (m_asRoot) {
        process.start(u"runuser"_s, QStringList{u"-u"_s, QString::fromLatin1(systemUser), u"--"_s, path} + arguments);
    } else {
        process.start(path, arguments);
    }
    if (!process.waitForStarted(10000)) {
        if (output) {
            *output = process.errorString();
        }
        return -1;
    }
    process.waitForFinished(120000);
    if (output) {
        *output = QString::fromLocal8Bit(process.readAll());
    }
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

void PgCluster::chooseClusterDir()
{
    m_clusterDir = QDir(m_dataDir).absoluteFilePath(u"postgres"_s);
    if (!m_asRoot) {
        return;
    }
    const passwd *user = getpwnam(systemUser);
    if (!user) {
        throw Error(u"morvane-server runs as root, and PostgreSQL refuses to; the system user 'postgres' "
                    u"(from the postgresql package) is needed to run it, but it does not exist"_s);
    }
    m_log(u"running as root: the database runs as the system user 'postgres'"_s);

    // Never through a link: a 'postgres' entry that another user planted as a link to a folder of
    // theirs (or to /etc) would otherwise be handed to the database's user by root.
    auto prepare = [user](const QString &dir) {
        const QByteArray path = QFile::encodeName(dir);
        struct stat info
        {};
        if (::lstat(path.constData(), &info) == 0 && !S_ISDIR(info.st_mode)) {
            throw Error(u"refusing to use "_s + dir + u": it is a link or a file, not a folder"_s);
        }
        QDir().mkpath(dir);
        const int fd = ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        if (fd < 0) {
            return false;
        }
        const bool done = ::fchown(fd, user->pw_uid, user->pw_gid) == 0 && ::fchmod(fd, 0700) == 0;
        ::close(fd);
        return done;
    };
    if (prepare(m_clusterDir)) {
        QProcess test;
        test.start(u"runuser"_s, {u"-u"_s, QString::fromLatin1(systemUser), u"--"_s, u"test"_s, u"-w"_s, m_clusterDir});
        test.waitForFinished(10000);
        if (test.exitStatus() == QProcess::NormalExit && test.exitCode() == 0) {
            return;
        }
    }
    // The data folder lies where 'postgres' cannot reach (root's home is closed to other users),
    // so the cluster lives in a folder of its own, named after the data folder.
    const QByteArray key =
        QCryptographicHash::hash(QFile::encodeName(QDir(m_dataDir).canonicalPath()), QCryptographicHash::Sha1).toHex();
    QDir().mkpath(u"/var/lib/morvane/clusters"_s);
    m_clusterDir = u"/var/lib/morvane/clusters/"_s + QString::fromLatin1(key);
    if (!prepare(m_clusterDir)) {
        throw Error(u"cannot prepare the database folder "_s + m_clusterDir);
    }
    m_log(u"the database lives in "_s + m_clusterDir + u" because the user 'postgres' cannot reach "_s + m_dataDir);
}

void PgCluster::initialise()
{
    if (QFileInfo::exists(m_clusterDir + u"/PG_VERSION"_s)) {
        return;
    }
    m_log(u"creating the database cluster in "_s + m_clusterDir);
    QString output;
    const int code = run(u"initdb"_s,
                         {u"-D"_s, m_clusterDir, u"-U"_s, QString::fromLatin1(superuser), u"--auth=peer"_s,
                          u"--encoding=UTF8"_s, u"--locale=C.UTF-8"_s, u"--no-instructions"_s},
                         &output);
    if (code != 0) {
        throw Error(u"initdb failed: "_s + output.trimmed());
    }
    // Settings are written by the process that may write there (postgres when we are root).
    const QString settings = u"\n# morvane-server\nlisten_addresses = ''\nunix_socket_directories = "_s +
                             quoteConf(m_clusterDir) + u"\nunix_socket_permissions = 0700\nmax_connections = 60\n"_s +
                             u"shared_buffers = 64MB\nlog_min_messages = warning\n"_s;
    QFile conf(m_clusterDir + u"/postgresql.conf"_s);
    if (!conf.open(QIODevice::Append) || conf.write(settings.toUtf8()) < 0) {
        throw Error(u"cannot write "_s + conf.fileName());
    }
}

void PgCluster::restrictAccess()
{
    // Only the user this server runs as, and only as the server's own roles. Trusting the socket
    // would let every process of the database's system user in, which, when root runs the server,
    // is every cluster and tool that runs as 'postgres'.
    const passwd *self = getpwuid(geteuid());
    if (!self) {
        throw Error(u"cannot tell which user this server runs as"_s);
    }
    const QByteArray name = self->pw_name;
    const QByteArray hba = "# morvane-server: rewritten at every start\nlocal all all peer map=morvane\n";
    QByteArray ident = "# morvane-server: rewritten at every start\n";
    for (const char *role : {superuser, requestRole, authRole}) {
        ident += "morvane " + name + ' ' + role + '\n';
    }
    // Rewritten in place, so the files keep the owner the database needs.
    for (const auto &[file, text] : {std::pair{u"pg_hba.conf"_s, hba}, std::pair{u"pg_ident.conf"_s, ident}}) {
        QFile conf(m_clusterDir + u'/' + file);
        if (!conf.open(QIODevice::WriteOnly | QIODevice::Truncate) || conf.write(text) != text.size()) {
            throw Error(u"cannot write "_s + conf.fileName());
        }
    }
}

QString PgCluster::logTail() const
{
    QFile log(m_clusterDir + u"/postgres.log"_s);
    if (!log.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QList<QByteArray> lines = log.readAll().trimmed().split('\n');
    return QString::fromUtf8(lines.mid(std::max<qsizetype>(0, lines.size() - 5)).join('\n'));
}

void PgCluster::startServer()
{
    // A postmaster left behind by a crashed morvane-server still holds the cluster: stop it, so
    // that this server owns what it starts.
    if (run(u"pg_ctl"_s, {u"-D"_s, m_clusterDir, u"status"_s}) == 0) {
        m_log(u"stopping a database server left running by an earlier start"_s);
        run(u"pg_ctl"_s, {u"-D"_s, m_clusterDir, u"-m"_s, u"fast"_s, u"-w"_s, u"stop"_s});
    }
    const QStringList start{u"-D"_s, m_clusterDir, u"-l"_s, m_clusterDir + u"/postgres.log"_s,
                            u"-w"_s, u"-t"_s,      u"60"_s, u"start"_s};
    QString output;
    if (run(u"pg_ctl"_s, start, &output) == 0) {
        m_running = true;
        return;
    }
    // After a crash the lock file may name a process id that now belongs to someone else.
    if (QFile::exists(m_clusterDir + u"/postmaster.pid"_s) &&
        run(u"pg_ctl"_s, {u"-D"_s, m_clusterDir, u"status"_s}) != 0) {
        m_log(u"removing the stale lock files of a database server that is gone"_s);
        QFile::remove(m_clusterDir + u"/postmaster.pid"_s);
        QFile::remove(m_clusterDir + u"/.s.PGSQL.5432.lock"_s);
        if (run(u"pg_ctl"_s, start, &output) == 0) {
            m_running = true;
            return;
        }
    }
    throw Error(u"the database server did not start: "_s + output.trimmed() + u"\n"_s + logTail());
}

void PgCluster::ensureDatabase()
{
    QByteArray info = conninfo();
    info.replace(QByteArray(QByteArray("dbname=") + databaseName), QByteArray("dbname=postgres"));
    auto connection = PgConnection::open(info);
    const PgResult found = connection->exec("SELECT 1 FROM pg_database WHERE datname = $1", {QByteArray(databaseName)});
    if (found.rows() == 0) {
        connection->execScript("CREATE DATABASE " + QByteArray(databaseName));
    }
}

void PgCluster::start()
{
    m_binDir = findBinDir();
    if (m_binDir.isEmpty()) {
        throw Error(u"PostgreSQL's server programs (initdb, pg_ctl) were not found; install the postgresql package"_s);
    }
    chooseClusterDir();
    // A Unix socket path is limited to 107 bytes.
    if (QFile::encodeName(m_clusterDir).size() + 16 > 107) {
        throw Error(u"the data folder path is too long for the database's socket: "_s + m_clusterDir);
    }
    initialise();
    restrictAccess();
    startServer();
    try {
        ensureDatabase();
    } catch (const PgException &error) {
        throw Error(u"cannot prepare the database: "_s + QString::fromUtf8(error.what()));
    }
}

void PgCluster::stop()
{
    if (!m_running) {
        return;
    }
    m_running = false;
    QString output;
    if (run(u"pg_ctl"_s, {u"-D"_s, m_clusterDir, u"-m"_s, u"fast"_s, u"-w"_s, u"-t"_s, u"60"_s, u"stop"_s}, &output) !=
        0) {
        m_log(u"the database server did not stop cleanly: "_s + output.trimmed());
    }
}

QByteArray PgCluster::conninfo() const
{
    QString host = m_clusterDir;
    host.replace(u'\\', u"\\\\"_s).replace(u'\'', u"\\'"_s);
    return "host='" + host.toUtf8() + "' dbname=" + databaseName + " user=" + superuser;
}
