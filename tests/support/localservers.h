#pragma once

#include "backend/localserver.h"
#include "backend/runblocking.h"
#include "backend/supabase.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QList>
#include <QTemporaryDir>
#include <QTest>
#include <QUuid>

#include <csignal>

// The morvane-server processes whose command line names `dataDir`, found the way a person with
// `ps` would find them: what tests count to prove that exactly one server runs, or none.
inline QList<qint64> serversOn(const QString &dataDir)
{
    QList<qint64> found;
    const QByteArray wanted = QFile::encodeName(dataDir);
    for (const QString &entry : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        bool isPid = false;
        const qint64 pid = entry.toLongLong(&isPid);
        QFile cmdline(QStringLiteral("/proc/") + entry + QStringLiteral("/cmdline"));
        if (!isPid || !cmdline.open(QIODevice::ReadOnly)) {
            continue;
        }
        // A process that has ended but is not yet reaped has an empty command line.
        const QList<QByteArray> arguments = cmdline.readAll().split('\0');
        const qsizetype at = arguments.indexOf("--data-dir");
        if (arguments.first().endsWith("morvane-server") && at >= 0 && arguments.value(at + 1) == wanted) {
            found.append(pid);
        }
    }
    return found;
}

// Empty when a fresh account can be made and signed in through `url` with `anonKey`, which needs
// the address, the key and the database behind them to be right; otherwise what went wrong.
inline QString accountWorks(const QUrl &url, const QString &anonKey)
{
    try {
        const Supabase client(url, anonKey);
        const QString email = QUuid::createUuid().toString(QUuid::WithoutBraces) + QStringLiteral("@example.nl");
        const QString password = QStringLiteral("correct horse battery staple");
        const SignUpOutcome outcome = runBlocking(client.signUp(email, password, QStringLiteral("Test")));
        if (outcome.kind != SignUpOutcome::Kind::Session) {
            return QStringLiteral("the sign-up gave no session");
        }
        const AuthTokens tokens = runBlocking(client.signInPassword(email, password));
        return tokens.accessToken.isEmpty() ? QStringLiteral("the sign-in gave no token") : QString();
    } catch (const MorvaneError &error) {
        return error.message();
    }
}

// A throw-away data folder for a local server, reachable by the cluster's system user when the
// tests run as root. Whatever server ends up on it is stopped with it, including one that was
// still starting (it takes the lock only once it runs) or one a test suspended.
class ScratchServerDir
{
public:
    // `dataDir` is where the server's folder lies inside the throw-away one.
    explicit ScratchServerDir(QString dataDir = QStringLiteral("server"))
        : m_dataDir(std::move(dataDir))
    {
        QFile::setPermissions(m_dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
                                                QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
    }

    ~ScratchServerDir()
    {
        const QDeadlineTimer deadline(std::chrono::seconds(90));
        while (!serversOn(path()).isEmpty() && !deadline.hasExpired()) {
            for (const qint64 pid : serversOn(path())) {
                ::kill(pid_t(pid), SIGCONT);
            }
            try {
                runBlocking(LocalServer(path(), QString()).stop());
            } catch (const LocalServerError &error) {
                qWarning("%s", qPrintable(error.message()));
            }
            QTest::qWait(100);
        }
    }

    ScratchServerDir(const ScratchServerDir &) = delete;
    ScratchServerDir &operator=(const ScratchServerDir &) = delete;

    // The data folder itself, not made yet: the server (or LocalServer) makes it.
    [[nodiscard]] QString path() const { return m_dir.path() + u'/' + m_dataDir; }
    [[nodiscard]] QString base() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
    QString m_dataDir;
};
