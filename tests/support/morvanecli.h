#pragma once

#include "support/localservers.h"
#include "support/testbackend.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <memory>

// The real `morvane` program run as one person on one machine: a home folder of its own (so the
// session lives in that home's secrets, as between a person's invocations) pointed at a test
// backend, or at none, so that it uses and starts the person's own local one. Tests that need two
// people take two of these.
class MorvaneCli
{
public:
    struct Run
    {
        int code = -1;
        QString out;
        QString err;

        [[nodiscard]] QJsonDocument json() const { return QJsonDocument::fromJson(out.toUtf8()); }
        [[nodiscard]] QJsonObject object() const { return json().object(); }
        // The id of what a `... add --json` made, empty when it failed.
        [[nodiscard]] QString id() const
        {
            return code == 0 ? object().value(QStringLiteral("id")).toString() : QString();
        }
    };

    explicit MorvaneCli(const TestBackend &backend)
        : m_backend(&backend)
    {}
    MorvaneCli() = default;

    [[nodiscard]] QString home() const { return m_home.base(); }
    [[nodiscard]] QString homeFile(const QString &relative) const { return m_home.base() + u'/' + relative; }
    // The local backend's data folder, under the home's XDG data folder; whatever server runs
    // there stops with this person.
    [[nodiscard]] QString localServerDir() const { return m_home.path(); }

    // What the program sees of its machine: this home, the backend, English.
    [[nodiscard]] QProcessEnvironment environment() const
    {
        using namespace Qt::StringLiterals;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, home());
        environment.insert(u"XDG_CONFIG_HOME"_s, homeFile(u"config"_s));
        environment.insert(u"XDG_DATA_HOME"_s, homeFile(u"data"_s));
        environment.insert(u"LANGUAGE"_s, u"en"_s);
        environment.insert(u"MORVANE_SERVER_PORT"_s, u"0"_s);
        environment.remove(u"SUPABASE_URL"_s);
        environment.remove(u"SUPABASE_ANON_KEY"_s);
        if (m_backend) {
            environment.insert(u"SUPABASE_URL"_s, m_backend->url().toString());
            environment.insert(u"SUPABASE_ANON_KEY"_s, QString::fromLatin1(m_backend->anonKey()));
        }
        // No keyring session here: the secrets go to the private file.
        environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
        return environment;
    }

    // Starts the program without waiting for it.
    [[nodiscard]] std::unique_ptr<QProcess> start(const QStringList &arguments,
                                                  const QProcessEnvironment &environment) const
    {
        auto process = std::make_unique<QProcess>();
        process->setProcessEnvironment(environment);
        // From the home folder, as in a new terminal: files named without a folder land there.
        process->setWorkingDirectory(home());
        process->start(QStringLiteral(MORVANE_APP_PROGRAM), arguments);
        process->waitForStarted();
        return process;
    }

    // `line` is the arguments separated by spaces, or by '|' when one of them holds a space.
    Run operator()(const QString &line, const QByteArray &input = {}) const
    {
        return finish(*start(line.split(line.contains(u'|') ? u'|' : u' '), environment()), input);
    }

    static Run finish(QProcess &process, const QByteArray &input = {})
    {
        process.write(input);
        process.closeWriteChannel();
        // Long enough for a first start of the local backend on a busy machine.
        process.waitForFinished(150000);
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

private:
    const TestBackend *m_backend = nullptr;
    ScratchServerDir m_home{QStringLiteral("data/morvane/server")};
};
