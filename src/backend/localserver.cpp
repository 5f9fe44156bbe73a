#include "localserver.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QLoggingCategory>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QProcess>
#include <QScopeGuard>
#include <QStandardPaths>

#include <QCoroNetworkReply>
#include <QCoroTimer>

#include <cerrno>
#include <csignal>
#include <cstring>

// Quiet unless asked for (QT_LOGGING_RULES): the command line shares standard error with it.
Q_LOGGING_CATEGORY(lcLocalServer, "morvane.backend.localserver", QtInfoMsg)

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

const auto serverName = u"morvane-server"_s;
// Enough to see a failing migration or a taken port without pages of start-up chatter.
constexpr int tailLines = 20;
constexpr qint64 tailBytes = 8 * 1024;
// The log only ever grows by appending; one old generation is kept.
constexpr qint64 logRotateBytes = 1024 * 1024;
constexpr auto probeTimeout = 2s;
constexpr auto pollInterval = 100ms;

struct ServerInfo
{
    QUrl url;
    QString anonKey;
};

QString lockPath(const QString &dataDir)
{
    return QDir(dataDir).filePath(u"morvane-server.lock"_s);
}

// What the server that holds the folder now wrote, once it listens. An older server.json (left by
// a server that is gone, or copied from elsewhere) may name an address where another server
// answers, so one that predates the lock does not count.
ServerInfo readServerInfo(const QString &dataDir)
{
    QFile file(QDir(dataDir).filePath(u"server.json"_s));
    const QFileInfo lock(lockPath(dataDir));
    if (!lock.exists() || QFileInfo(file).lastModified() < lock.lastModified() || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QJsonObject info = QJsonDocument::fromJson(file.readAll()).object();
    return {QUrl(info.value(u"url").toString()), info.value(u"anon_key").toString()};
}

// A process id from a lock file may outlive its process and be handed to another program, and a
// detached server that ended may linger as a zombie when nothing reaps it: only a live process
// of the server's own name counts.
bool serverProcessRunning(qint64 pid)
{
    if (pid <= 0 || (::kill(pid_t(pid), 0) != 0 && errno != EPERM)) {
        return false;
    }
    QFile stat(u"/proc/%1/stat"_s.arg(pid));
    if (!stat.open(QIODevice::ReadOnly)) {
        return true; // no /proc here: the signal test is all there is
    }
    // "<pid> (<name>) <state> ...": the name may hold parentheses itself, so the last one ends it.
    const QByteArray line = stat.readAll();
    const qsizetype open = line.indexOf('(');
    const qsizetype close = line.lastIndexOf(')');
    if (open < 0 || close < open || line.size() < close + 3) {
        return false;
    }
    const char state = line.at(close + 2);
    return line.mid(open + 1, close - open - 1) == serverName.toLatin1() && state != 'Z' && state != 'X';
}

// A morvane-server answers its authentication settings without a database round trip and
// without a session; anything else at that address (or nothing) does not.
QCoro::Task<bool> answers(QUrl url)
{
    if (!url.isValid() || url.isRelative() || url.scheme() != u"http") {
        co_return false;
    }
    // Deleted later, and the reply with it: the coroutine resumes inside the reply's own signal.
    auto *manager = new QNetworkAccessManager;
    const auto cleanUp = qScopeGuard([manager] { manager->deleteLater(); });
    // The server is on this machine: a proxy from the environment would only stand in its way.
    manager->setProxy(QNetworkProxy::NoProxy);
    url.setPath(url.path() + u"/auth/v1/settings"_s);
    QNetworkRequest request(url);
    request.setTransferTimeout(int(std::chrono::milliseconds(probeTimeout).count()));
    QNetworkReply *reply = manager->get(request);
    co_await reply;
    if (reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() != 200) {
        co_return false;
    }
    co_return QJsonDocument::fromJson(reply->readAll()).object().value(u"external").isObject();
}

} // namespace

LocalServerError::LocalServerError(Kind kind, QString subject, QString detail, int seconds)
    : m_kind(kind)
    , m_subject(std::move(subject))
    , m_detail(std::move(detail))
    , m_seconds(seconds)
{}

QString LocalServerError::message() const
{
    QString text;
    switch (m_kind) {
    case Kind::NoProgram:
        //% "Cannot find the local backend: %1 is neither next to Morvane nor on the PATH."
        text = qtTrId("localServer.err.noProgram").arg(serverName);
        break;
    case Kind::DataFolder:
        //% "Cannot write the local backend's data folder %1."
        text = qtTrId("localServer.err.dataFolder").arg(m_subject);
        break;
    case Kind::Launch:
        //% "Cannot run the local backend %1."
        text = qtTrId("localServer.err.launch").arg(m_subject);
        break;
    case Kind::ExitedEarly:
        //% "The local backend stopped before it was ready (log: %1)."
        text = qtTrId("localServer.err.exited").arg(m_subject);
        break;
    case Kind::NotReady:
        //% "The local backend was not ready within %1 seconds (log: %2)."
        text = qtTrId("localServer.err.notReady").arg(m_seconds).arg(m_subject);
        break;
    case Kind::WouldNotStop:
        //% "The local backend (process %1) did not stop within %2 seconds."
        text = qtTrId("localServer.err.wouldNotStop").arg(m_subject).arg(m_seconds);
        break;
    }
    return m_detail.isEmpty() ? text : QString(text + u'\n' + m_detail);
}

LocalServer::LocalServer(QString dataDir, QString program)
    : m_dataDir(std::move(dataDir))
    , m_program(std::move(program))
{}

QString LocalServer::logPath() const
{
    return QDir(m_dataDir).filePath(u"morvane-server.log"_s);
}

QString LocalServer::findProgram()
{
    const QString here = QCoreApplication::applicationDirPath();
    // Installed side by side, or run from the build tree (build/src/app beside build/server).
    const QStringList candidates{QString(here + u'/' + serverName), QString(here + u"/../../server/" + serverName)};
    for (const QString &candidate : candidates) {
        const QFileInfo info(candidate);
        if (info.isFile() && info.isExecutable()) {
            return info.canonicalFilePath();
        }
    }
    return QStandardPaths::findExecutable(serverName);
}

qint64 LocalServer::lockHolder() const
{
    // Only read: taking the lock, even for a moment, would turn a server starting just then away.
    QLockFile lock(lockPath(m_dataDir));
    qint64 pid = 0;
    QString host;
    QString application;
    if (!lock.getLockInfo(&pid, &host, &application)) {
        return 0;
    }
    return serverProcessRunning(pid) ? pid : 0;
}

QCoro::Task<LocalServer::Status> LocalServer::status() const
{
    Status status;
    status.pid = lockHolder();
    if (status.pid == 0) {
        co_return status;
    }
    const ServerInfo info = readServerInfo(m_dataDir);
    if (!co_await answers(info.url)) {
        status.state = State::Starting;
        co_return status;
    }
    status.state = State::Running;
    status.url = info.url;
    status.anonKey = info.anonKey;
    co_return status;
}

QCoro::Task<LocalServer::Address> LocalServer::ensureRunning() const
{
    const Status current = co_await status();
    if (current.state == State::Running) {
        co_return Address{current.url, current.anonKey, current.pid, false};
    }
    if (current.state == State::Starting) {
        co_return co_await waitUntilReady(0, 0);
    }

    if (m_program.isEmpty()) {
        throw LocalServerError(LocalServerError::Kind::NoProgram, {});
    }
    if (!QDir().mkpath(m_dataDir)) {
        throw LocalServerError(LocalServerError::Kind::DataFolder, m_dataDir);
    }
    const QString log = logPath();
    if (QFileInfo(log).size() > logRotateBytes) {
        QFile::remove(log + u".old");
        QFile::rename(log, log + u".old");
    }
    QFile logFile(log);
    if (!logFile.open(QIODevice::Append)) {
        throw LocalServerError(LocalServerError::Kind::DataFolder, m_dataDir, logFile.errorString());
    }
    logFile.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    const qint64 offset = logFile.size();
    logFile.close();

    const qint64 pid = launch();
    qCDebug(lcLocalServer) << "started" << m_program << "as process" << pid << "for" << m_dataDir;
    co_return co_await waitUntilReady(pid, offset);
}

qint64 LocalServer::launch() const
{
    QProcess process;
    process.setProgram(m_program);
    process.setArguments(QStringList{u"--data-dir"_s, m_dataDir} + m_arguments);
    // The server outlives this program: it must hold no terminal, and no folder of the caller's
    // busy.
    process.setWorkingDirectory(m_dataDir);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(logPath(), QIODevice::Append);
    process.setStandardErrorFile(logPath(), QIODevice::Append);
    qint64 pid = 0;
    if (!process.startDetached(&pid)) {
        throw LocalServerError(LocalServerError::Kind::Launch, m_program, process.errorString());
    }
    return pid;
}

QCoro::Task<LocalServer::Address> LocalServer::waitUntilReady(qint64 launchedPid, qint64 logOffset) const
{
    const QDeadlineTimer deadline(m_startTimeout);
    // The process whose end means failure: the one launched here, or whichever holds the lock.
    qint64 awaited = launchedPid;
    for (;;) {
        const qint64 holder = lockHolder();
        if (holder != 0) {
            const ServerInfo info = readServerInfo(m_dataDir);
            if (co_await answers(info.url)) {
                co_return Address{info.url, info.anonKey, holder, launchedPid != 0 && holder == launchedPid};
            }
        }
        if (awaited == 0 || !serverProcessRunning(awaited)) {
            // Another start won the folder's lock (ours then says "already serves" and ends):
            // its server is as good as ours, so wait for that one instead.
            if (holder == 0 || holder == awaited) {
                throw LocalServerError(LocalServerError::Kind::ExitedEarly, logPath(), logSince(logOffset));
            }
            awaited = holder;
        }
        if (deadline.hasExpired()) {
            const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(m_startTimeout).count();
            throw LocalServerError(LocalServerError::Kind::NotReady, logPath(), logSince(logOffset), int(seconds));
        }
        co_await QCoro::sleepFor(pollInterval);
    }
}

QCoro::Task<qint64> LocalServer::stop() const
{
    const qint64 pid = lockHolder();
    if (pid == 0) {
        co_return 0;
    }
    const auto seconds = int(std::chrono::duration_cast<std::chrono::seconds>(m_stopTimeout).count());
    if (::kill(pid_t(pid), SIGTERM) != 0) {
        throw LocalServerError(LocalServerError::Kind::WouldNotStop, QString::number(pid),
                               QString::fromLocal8Bit(std::strerror(errno)), seconds);
    }
    // It stops its database before it ends, so once the process is gone the cluster is too.
    const QDeadlineTimer deadline(m_stopTimeout);
    while (serverProcessRunning(pid)) {
        if (deadline.hasExpired()) {
            throw LocalServerError(LocalServerError::Kind::WouldNotStop, QString::number(pid), {}, seconds);
        }
        co_await QCoro::sleepFor(pollInterval);
    }
    qCDebug(lcLocalServer) << "stopped process" << pid << "serving" << m_dataDir;
    co_return pid;
}

QString LocalServer::logSince(qint64 offset) const
{
    QFile file(logPath());
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    // An offset past the end means another start rotated the log meanwhile.
    const qint64 from = offset <= file.size() ? offset : 0;
    file.seek(std::max(from, file.size() - tailBytes));
    QStringList lines = QString::fromLocal8Bit(file.readAll()).trimmed().split(u'\n');
    if (lines.size() > tailLines) {
        lines = lines.mid(lines.size() - tailLines);
    }
    return lines.join(u'\n').trimmed();
}
