#pragma once

#include <QObject>
#include <QString>

// Starting Morvane at login, the XDG autostart way: an entry in $XDG_CONFIG_HOME/autostart that
// the desktop runs when the session begins. The entry is the file itself, so a desktop's own
// settings tool and Morvane see the same state.
class Autostart : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool enabled READ isEnabled WRITE setEnabled NOTIFY enabledChanged)

public:
    // `program` is what the entry runs: the running program unless a test says otherwise.
    explicit Autostart(QObject *parent = nullptr);
    explicit Autostart(QString program, QObject *parent = nullptr);

    [[nodiscard]] static QString entryPath();

    [[nodiscard]] bool isEnabled() const;
    // Writes or removes the entry. When that fails the state stays as it was and enabledChanged
    // is still emitted, so a switch bound to `enabled` shows the truth again.
    void setEnabled(bool enabled);

signals:
    void enabledChanged();

private:
    QString m_program;
};
