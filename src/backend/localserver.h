#pragma once

#include "backend/config.h"
#include "model/error.h"

#include <QString>
#include <QStringList>
#include <QUrl>

#include <QCoroTask>

#include <chrono>

// Why the local backend could not be started or stopped; the message quotes what the server
// itself said when it said anything.
class LocalServerError : public MorvaneError
{
public:
    enum class Kind {
        NoProgram,    // no morvane-server to start
        DataFolder,   // the data folder cannot be made or written
        Launch,       // the program would not run at all
        ExitedEarly,  // it ran, then ended before it was ready
        NotReady,     // it runs, but did not get ready in time
        WouldNotStop, // it was asked to stop and did not
    };

    LocalServerError(Kind kind, QString subject, QString detail = {}, int seconds = 0);

    [[nodiscard]] Kind kind() const { return m_kind; }
    // The last lines of the server's log, when they tell why it failed.
    [[nodiscard]] QString detail() const { return m_detail; }
    [[nodiscard]] QString message() const override;

private:
    Kind m_kind;
    QString m_subject; // the program, folder, log or process the message names
    QString m_detail;
    int m_seconds = 0; // the time-out that ran out
};

// The backend on this machine: finds morvane-server serving a data folder or starts it,
// detached so that it outlives the application, and stops it again. Safe against several
// applications starting it at once: the server's own lock lets one of them win and the others
// use the winner.
class LocalServer
{
public:
    enum class State {
        Stopped,  // no live server holds the data folder
        Starting, // a server holds the folder but does not answer (yet)
        Running,  // a server holds the folder and answers at the address it wrote
    };

    struct Status
    {
        State state = State::Stopped;
        qint64 pid = 0;
        QUrl url;
        QString anonKey;
    };

    struct Address
    {
        QUrl url;
        QString anonKey;
        qint64 pid = 0;
        bool started = false; // this call started it, rather than finding it running
    };

    explicit LocalServer(QString dataDir = Config::localServerDir(), QString program = findProgram());

    [[nodiscard]] QString dataDir() const { return m_dataDir; }
    [[nodiscard]] QString program() const { return m_program; }
    // Where the server's output goes; failures quote its end.
    [[nodiscard]] QString logPath() const;

    // Passed to the server after its data folder (`--port 0`, say).
    void setArguments(const QStringList &arguments) { m_arguments = arguments; }
    void setStartTimeout(std::chrono::milliseconds timeout) { m_startTimeout = timeout; }
    void setStopTimeout(std::chrono::milliseconds timeout) { m_stopTimeout = timeout; }

    // Never starts anything.
    QCoro::Task<Status> status() const;
    // Answers the address of the server, started first when none runs; throws LocalServerError.
    QCoro::Task<Address> ensureRunning() const;
    // Stops the server and waits until it is gone; answers its process id, 0 when none ran.
    // Throws LocalServerError when it does not go.
    QCoro::Task<qint64> stop() const;

    // morvane-server beside this program, in the build tree's server folder, or on the PATH;
    // empty when there is none.
    static QString findProgram();

private:
    QCoro::Task<Address> waitUntilReady(qint64 launchedPid, qint64 logOffset) const;
    [[nodiscard]] qint64 launch() const;
    [[nodiscard]] qint64 lockHolder() const;
    [[nodiscard]] QString logSince(qint64 offset) const;

    QString m_dataDir;
    QString m_program;
    QStringList m_arguments;
    std::chrono::milliseconds m_startTimeout{std::chrono::seconds(90)};
    std::chrono::milliseconds m_stopTimeout{std::chrono::seconds(60)};
};
