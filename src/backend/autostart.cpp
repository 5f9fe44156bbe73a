#include "autostart.h"

#include "backend/desktopentry.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

Autostart::Autostart(QObject *parent)
    : Autostart(QCoreApplication::applicationFilePath(), parent)
{}

Autostart::Autostart(QString program, QObject *parent)
    : QObject(parent)
    , m_program(std::move(program))
{}

QString Autostart::entryPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/autostart/morvane.desktop"_s;
}

bool Autostart::isEnabled() const
{
    QFile entry(entryPath());
    if (!entry.open(QIODevice::ReadOnly)) {
        return false;
    }
    // A desktop's settings tool may switch an entry off by hiding it instead of removing it.
    for (const QByteArray &line : entry.readAll().split('\n')) {
        const QByteArray trimmed = line.trimmed();
        if (trimmed == "Hidden=true" || trimmed == "X-GNOME-Autostart-enabled=false") {
            return false;
        }
    }
    return true;
}

void Autostart::setEnabled(bool enabled)
{
    if (enabled == isEnabled()) {
        return;
    }
    if (enabled) {
        DesktopEntry::write(entryPath(), DesktopEntry::text(m_program, {u"X-GNOME-Autostart-enabled=true"_s}));
    } else {
        QFile::remove(entryPath());
    }
    emit enabledChanged();
}
