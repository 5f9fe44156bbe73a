#pragma once

#include <QAbstractNativeEventFilter>
#include <QKeySequence>
#include <QList>
#include <QObject>

#include <cstdint>
#include <optional>

// A key combination that works whichever application has the focus, grabbed on the X11 root
// window. Wayland gives no application such a grab: there the person binds `morvane timer toggle`
// in the desktop's own keyboard settings, and this class reports that it is not active.
class GlobalShortcut : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit GlobalShortcut(QObject *parent = nullptr);
    ~GlobalShortcut() override;

    // Grabs `sequence` (its first combination) in place of the one grabbed before; answers false
    // off X11, for a key X11 cannot name, and when another program holds the combination already.
    bool setShortcut(const QKeySequence &sequence);
    [[nodiscard]] bool isActive() const { return m_keycode != 0; }

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

    // The X11 names of a key and of modifiers, where X11 has them.
    [[nodiscard]] static std::optional<std::uint32_t> keysym(Qt::Key key);
    [[nodiscard]] static std::optional<std::uint16_t> modifierMask(Qt::KeyboardModifiers modifiers);
    // Whether a key event's modifier `state` is the grabbed `mask`, whatever Caps Lock and Num Lock are.
    [[nodiscard]] static bool sameModifiers(std::uint16_t mask, std::uint16_t state);

signals:
    void activated();

private:
    void release();

    std::uint8_t m_keycode = 0;
    std::uint16_t m_mask = 0;
    // Held down, X11 repeats the press; one press is one toggle until the key is let go.
    bool m_down = false;
};
