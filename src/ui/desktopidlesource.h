#pragma once

#include "store/idlesource.h"

#include <QDBusConnection>

#include <optional>

// How long the person has been away, from whichever the desktop offers: GNOME's idle monitor,
// the screen saver service, or the X11 screen-saver extension; a locked screen (the screen
// saver's or logind's) and logind's sleep count as away. What the desktop lacks stays silent.
class DesktopIdleSource : public IdleSource
{
    Q_OBJECT

public:
    explicit DesktopIdleSource(QObject *parent = nullptr);

    void requestIdleTime() override;

private slots:
    void onScreenSaverActive(bool active);
    void onSessionLock();
    void onSessionUnlock();
    void onPrepareForSleep(bool sleeping);

private:
    enum class Method { Mutter, ScreenSaver, X11, Nothing };

    void ask(Method method);
    void watchSession();
    [[nodiscard]] static std::optional<qint64> x11IdleTime();

    QDBusConnection m_session;
    QDBusConnection m_system;
    // The first method that answered; the ones before it are not asked again.
    Method m_method = Method::Mutter;
    bool m_asking = false;
};
