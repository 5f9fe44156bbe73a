#include "globalshortcut.h"

#include <QGuiApplication>
#include <QLoggingCategory>

#ifdef MORVANE_HAVE_XCB
#include <xcb/xcb.h>
#endif

#include <memory>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcShortcut, "morvane.ui.shortcut")

// The X11 core protocol's modifier bits (X.h), so that the pure part needs no X11 headers.
constexpr std::uint16_t shiftMask = 1 << 0;
constexpr std::uint16_t lockMask = 1 << 1;
constexpr std::uint16_t controlMask = 1 << 2;
constexpr std::uint16_t altMask = 1 << 3;     // Mod1
constexpr std::uint16_t numLockMask = 1 << 4; // Mod2 on every common layout
constexpr std::uint16_t superMask = 1 << 6;   // Mod4
// The grab is made once for each state of the two locks, since X11 matches modifiers exactly.
constexpr std::uint16_t lockVariants[] = {0, lockMask, numLockMask, lockMask | numLockMask};

#ifdef MORVANE_HAVE_XCB
xcb_connection_t *x11Connection()
{
#if QT_CONFIG(xcb)
    if (const auto *x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr) {
        return x11->connection();
    }
#endif
    return nullptr;
}

xcb_window_t rootWindow(xcb_connection_t *connection)
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

// The keycode that produces `keysym` on the current keyboard layout, or 0.
xcb_keycode_t keycodeFor(xcb_connection_t *connection, std::uint32_t keysym)
{
    const xcb_setup_t *setup = xcb_get_setup(connection);
    const int count = setup->max_keycode - setup->min_keycode + 1;
    const std::unique_ptr<xcb_get_keyboard_mapping_reply_t, decltype(&free)> mapping(
        xcb_get_keyboard_mapping_reply(connection, xcb_get_keyboard_mapping(connection, setup->min_keycode, count),
                                       nullptr),
        &free);
    if (!mapping) {
        return 0;
    }
    const xcb_keysym_t *syms = xcb_get_keyboard_mapping_keysyms(mapping.get());
    const int perCode = mapping->keysyms_per_keycode;
    for (int code = 0; code < count; ++code) {
        for (int column = 0; column < perCode; ++column) {
            if (syms[code * perCode + column] == keysym) {
                return xcb_keycode_t(setup->min_keycode + code);
            }
        }
    }
    return 0;
}
#endif

} // namespace

GlobalShortcut::GlobalShortcut(QObject *parent)
    : QObject(parent)
{}

GlobalShortcut::~GlobalShortcut()
{
    release();
}

std::optional<std::uint32_t> GlobalShortcut::keysym(Qt::Key key)
{
    if (key >= Qt::Key_A && key <= Qt::Key_Z) {
        return key - Qt::Key_A + u'a';
    }
    if (key >= Qt::Key_Space && key <= Qt::Key_AsciiTilde) {
        return std::uint32_t(key); // Latin-1 keys are their own keysyms
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) {
        return 0xffbe + (key - Qt::Key_F1); // XK_F1
    }
    return std::nullopt;
}

std::optional<std::uint16_t> GlobalShortcut::modifierMask(Qt::KeyboardModifiers modifiers)
{
    if (modifiers & ~(Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
        return std::nullopt;
    }
    std::uint16_t mask = 0;
    mask |= modifiers.testFlag(Qt::ShiftModifier) ? shiftMask : 0;
    mask |= modifiers.testFlag(Qt::ControlModifier) ? controlMask : 0;
    mask |= modifiers.testFlag(Qt::AltModifier) ? altMask : 0;
    mask |= modifiers.testFlag(Qt::MetaModifier) ? superMask : 0;
    return mask;
}

bool GlobalShortcut::sameModifiers(std::uint16_t mask, std::uint16_t state)
{
    constexpr std::uint16_t relevant = shiftMask | controlMask | altMask | superMask;
    return (state & relevant) == mask;
}

bool GlobalShortcut::setShortcut(const QKeySequence &sequence)
{
    release();
#ifdef MORVANE_HAVE_XCB
    xcb_connection_t *connection = x11Connection();
    if (!connection || sequence.isEmpty()) {
        return false;
    }
    const QKeyCombination combination = sequence[0];
    const std::optional<std::uint32_t> sym = keysym(combination.key());
    const std::optional<std::uint16_t> mask = modifierMask(combination.keyboardModifiers());
    const xcb_keycode_t keycode = sym ? keycodeFor(connection, *sym) : 0;
    if (!mask || keycode == 0) {
        qCInfo(lcShortcut) << "no X11 key for" << sequence.toString();
        return false;
    }
    const xcb_window_t root = rootWindow(connection);
    bool held = false;
    for (const std::uint16_t variant : lockVariants) {
        const xcb_void_cookie_t cookie = xcb_grab_key_checked(connection, 1, root, *mask | variant, keycode,
                                                              XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        if (xcb_generic_error_t *error = xcb_request_check(connection, cookie)) {
            held = true; // BadAccess: another program grabbed it first
            free(error);
        }
    }
    m_keycode = keycode;
    m_mask = *mask;
    if (held) {
        qCInfo(lcShortcut) << sequence.toString() << "is taken by another program";
        release();
        return false;
    }
    QCoreApplication::instance()->installNativeEventFilter(this);
    return true;
#else
    Q_UNUSED(sequence)
    return false;
#endif
}

void GlobalShortcut::release()
{
    if (m_keycode == 0) {
        return;
    }
#ifdef MORVANE_HAVE_XCB
    if (xcb_connection_t *connection = x11Connection()) {
        for (const std::uint16_t variant : lockVariants) {
            xcb_ungrab_key(connection, m_keycode, rootWindow(connection), m_mask | variant);
        }
        xcb_flush(connection);
    }
#endif
    if (QCoreApplication::instance()) {
        QCoreApplication::instance()->removeNativeEventFilter(this);
    }
    m_keycode = 0;
    m_down = false;
}

bool GlobalShortcut::nativeEventFilter(const QByteArray &eventType, void *message, qintptr * /*result*/)
{
#ifdef MORVANE_HAVE_XCB
    if (m_keycode == 0 || eventType != "xcb_generic_event_t") {
        return false;
    }
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    const std::uint8_t type = event->response_type & 0x7f;
    if (type != XCB_KEY_PRESS && type != XCB_KEY_RELEASE) {
        return false;
    }
    const auto *key = static_cast<const xcb_key_press_event_t *>(message);
    if (key->detail != m_keycode) {
        return false;
    }
    if (type == XCB_KEY_RELEASE) {
        m_down = false;
        return false;
    }
    if (!sameModifiers(m_mask, key->state)) {
        return false;
    }
    if (!m_down) {
        m_down = true;
        emit activated();
    }
    return true;
#else
    Q_UNUSED(eventType)
    Q_UNUSED(message)
    return false;
#endif
}
