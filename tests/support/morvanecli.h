#pragma once

#include "support/testbackend.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>

// The real `morvane` program run as one person on one machine: a home folder of its own (so the
// session lives in that home's secrets, as between a person's invocations) pointed at a test
// backend. Tests that need two people take two of these.
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
        : m_backend(backend)
    {}

    [[nodiscard]] QString home() const { return m_home.path(); }
    [[nodiscard]] QString homeFile(const QString &relative) const { return m_home.filePath(relative); }

    // What the program sees of its machine: this home, the backend, English.
    [[nodiscard]] QProcessEnvironment environment() const
    {
        using namespace Qt::StringLiterals;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, m_home.path());
        environment.insert(u"XDG_CONFIG_HOME"_s, m_home.filePath(u"config"_s));
        environment.insert(u"XDG_DATA_HOME"_s, m_home.filePath(u"data"_s));
        environment.insert(u"SUPABASE_URL"_s, m_backend.url().toString());
        environment.insert(u"SUPABASE_ANON_KEY"_s, QString::fromLatin1(m_backend.anonKey()));
        environment.insert(u"LANGUAGE"_s, u"en"_s);
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
        process->start(QStringLiteral(MORVANE_APP_PROGRAM), arguments);
        process->waitForStarted();
        return process;
    }

    Run operator()(const QStringList &arguments, const QByteArray &input = {}) const
    {
        return finish(*start(arguments, environment()), input);
    }

    // `line` is the arguments separated by spaces, or by '|' when one of them holds a space.
    Run operator()(const QString &line, const QByteArray &input = {}) const
    {
        return (*this)(line.split(line.contains(u'|') ? u'|' : u' '), input);
    }

    static Run finish(QProcess &process, const QByteArray &input = {})
    {
        process.write(input);
        process.closeWriteChannel();
        process.waitForFinished(60000);
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

private:
    const TestBackend &m_backend;
    QTemporaryDir m_home;
};
