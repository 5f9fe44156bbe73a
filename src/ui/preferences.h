#pragma once

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

#include <QCoroTask>

#include "backend/autostart.h"

class DesktopShell;

// What the settings screen edits that the shell does not own itself: the profile, the backend
// (this machine's own server, or an address and key), and the account. Each write goes through
// the store or the settings and says how it went in `message`.
class Preferences : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the shell")
    Q_PROPERTY(QString displayName READ displayName NOTIFY profileChanged)
    Q_PROPERTY(QString hourlyRate READ hourlyRate NOTIFY profileChanged)
    Q_PROPERTY(QString currency READ currency NOTIFY profileChanged)
    Q_PROPERTY(QString email READ email NOTIFY profileChanged)
    Q_PROPERTY(bool usesLocalBackend READ usesLocalBackend NOTIFY backendChanged)
    Q_PROPERTY(QString backendUrl READ backendUrl NOTIFY backendChanged)
    Q_PROPERTY(QString backendKey READ backendKey NOTIFY backendChanged)
    Q_PROPERTY(QString localState READ localState NOTIFY localChanged)
    Q_PROPERTY(QString localDataDir READ localDataDir CONSTANT)
    Q_PROPERTY(QString localSize READ localSize NOTIFY localChanged)
    Q_PROPERTY(bool busy READ busy NOTIFY busyChanged)
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)
    Q_PROPERTY(Autostart *autostart READ autostart CONSTANT)

public:
    explicit Preferences(DesktopShell &shell);

    [[nodiscard]] QString displayName() const;
    [[nodiscard]] QString hourlyRate() const;
    [[nodiscard]] QString currency() const;
    [[nodiscard]] QString email() const;
    [[nodiscard]] bool usesLocalBackend() const;
    [[nodiscard]] QString backendUrl() const;
    [[nodiscard]] QString backendKey() const;
    [[nodiscard]] QString localState() const { return m_localState; }
    [[nodiscard]] QString localDataDir() const;
    [[nodiscard]] QString localSize() const { return m_localSize; }
    [[nodiscard]] bool busy() const { return m_busy; }
    [[nodiscard]] QString message() const { return m_message; }
    [[nodiscard]] Autostart *autostart() const { return m_autostart; }

    // Answers false (and writes nothing) when the rate cannot be read.
    Q_INVOKABLE bool saveProfile(const QString &displayName, const QString &hourlyRate, const QString &currency);
    // The interface switches at once; the profile keeps the choice for the next start and devices.
    Q_INVOKABLE void setLanguage(const QString &code);
    // An address and key of a shared server; empty both to go back to this machine's own.
    // Answers false for an address that is not http(s).
    Q_INVOKABLE bool useBackend(const QString &url, const QString &anonKey);
    Q_INVOKABLE void refreshLocal();
    Q_INVOKABLE void startLocal();
    Q_INVOKABLE void stopLocal();
    // Deletes the account once `confirmation` is its e-mail address as typed by the person.
    Q_INVOKABLE bool deleteAccount(const QString &confirmation);
    Q_INVOKABLE void clearMessage() { setMessage({}); }

signals:
    void profileChanged();
    void backendChanged();
    void localChanged();
    void busyChanged();
    void messageChanged();

private:
    QCoro::Task<> readLocal();
    void changeLocal(bool run);
    void setBusy(bool busy);
    void setMessage(const QString &message);

    DesktopShell &m_shell;
    Autostart *m_autostart;
    QString m_localState;
    QString m_localSize;
    bool m_busy = false;
    QString m_message;
};
