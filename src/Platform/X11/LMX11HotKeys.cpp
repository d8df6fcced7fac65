// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11HotKeys.h"

#include <algorithm>
#include <utility>

namespace {

constexpr uint16_t allModifiers = 0xff; // Shift to Mod5; the bits above are pointer buttons.

template <class T>
bool contains(const std::vector<T>& values, const T& value) {
    return std::ranges::find(values, value) != values.end();
}

} // namespace

LMX11HotKeys::LMX11HotKeys(LMX11Connection& connection) : m_connection(connection) {
    m_subscription = connection.addEventFilter([this](const auto& event) { handle(event); });
    m_release.setSingleShot(true);
    connect(&m_release, &QTimer::timeout, this, &LMX11HotKeys::letGo);
    m_keyboardChange.setSingleShot(true);
    connect(&m_keyboardChange, &QTimer::timeout, this, [this] { update(); });
}

LMX11HotKeys::~LMX11HotKeys() {
    for (HotKey& hotKey : m_hotKeys)
        ungrab(hotKey);
    m_connection.flush();
}

LMHotKeyStatus LMX11HotKeys::registerHotKey(const QString& identifier, const LMShortcut& shortcut) {
    auto hotKey = find(identifier);
    if (hotKey == m_hotKeys.end()) {
        m_hotKeys.push_back({.identifier = identifier, .shortcut = shortcut});
    } else if (hotKey->shortcut != shortcut) {
        ungrab(*hotKey);
        hotKey->shortcut = shortcut;
        hotKey->refusal = LMHotKeyRefusal::NotAvailable; // Not one that works already.
    }
    update(identifier);
    hotKey = find(identifier); // Whoever was told of a change may have registered others.
    if (hotKey == m_hotKeys.end() || !hotKey->refusal)
        return LMHotKeyStatus::success();
    return LMHotKeyStatus::failure(*hotKey->refusal);
}

void LMX11HotKeys::unregisterHotKey(const QString& identifier) {
    const auto hotKey = find(identifier);
    if (hotKey == m_hotKeys.end())
        return;
    ungrab(*hotKey);
    m_hotKeys.erase(hotKey);
    update();
}

std::optional<LMKeyPress> LMX11HotKeys::keyPress(quint32 nativeScanCode, quint32 nativeModifiers) {
    // The state of a key event: modifiers, pointer buttons, and the layout in use (X Keyboard
    // Extension, section 17.1.1).
    constexpr int layoutShift = 13;
    constexpr quint32 layoutMask = 3;
    if (!m_keyMap)
        m_keyMap = LMX11KeyMap::read(m_connection);
    if (!m_keyMap || nativeScanCode > 0xff)
        return std::nullopt;
    const quint32 keysym =
        m_keyMap->keysym(static_cast<xcb_keycode_t>(nativeScanCode),
                         static_cast<int>(nativeModifiers >> layoutShift & layoutMask));
    if (keysym == 0)
        return std::nullopt;
    return LMKeyPress{
        keysym, m_keyMap->modifierFlags(static_cast<uint16_t>(nativeModifiers & allModifiers))};
}

std::vector<LMX11HotKeys::HotKey>::iterator LMX11HotKeys::find(const QString& identifier) {
    return std::ranges::find(m_hotKeys, identifier, &HotKey::identifier);
}

void LMX11HotKeys::update(const QString& caller) {
    if (m_hotKeys.empty())
        return;
    QList<std::pair<QString, std::optional<LMHotKeyRefusal>>> before;
    for (const HotKey& hotKey : m_hotKeys)
        before.append({hotKey.identifier, hotKey.refusal});

    if (!m_keyMap || !m_connection.isConnected())
        m_keyMap = LMX11KeyMap::read(m_connection);
    plan();
    releaseUnwanted();
    takeWanted();
    m_connection.flush();

    for (const auto& [identifier, refusal] : std::as_const(before)) {
        const auto hotKey = find(identifier);
        if (identifier == caller || hotKey == m_hotKeys.end() || hotKey->refusal == refusal)
            continue;
        Q_EMIT hotKeyStateChanged(identifier, hotKey->refusal
                                                  ? LMHotKeyStatus::failure(*hotKey->refusal)
                                                  : LMHotKeyStatus::success());
    }
}

/// Deals out the keys: first to hot keys that work, then to the others, and what is only welcome
/// to whom it is left for.
void LMX11HotKeys::plan() {
    std::vector<HotKey*> order;
    for (HotKey& hotKey : m_hotKeys)
        order.push_back(&hotKey);
    std::stable_partition(order.begin(), order.end(),
                          [](const HotKey* hotKey) { return !hotKey->refusal; });
    Grabs taken;
    for (HotKey* hotKey : order)
        hotKey->refusal = claim(*hotKey, taken);
    for (HotKey* hotKey : order) {
        std::erase_if(hotKey->welcome, [&](const Grab& grab) { return contains(taken, grab); });
        taken.insert(taken.end(), hotKey->welcome.begin(), hotKey->welcome.end());
    }
}

std::optional<LMHotKeyRefusal> LMX11HotKeys::claim(HotKey& hotKey, Grabs& taken) {
    hotKey.required.clear();
    hotKey.welcome.clear();
    if (!m_keyMap)
        return LMHotKeyRefusal::NotAvailable;
    const auto modifiers = m_keyMap->modifiers(hotKey.shortcut.modifierFlags());
    const LMX11KeyMap::Keys keys = m_keyMap->keys(hotKey.shortcut.keysym());
    if (!modifiers || keys.codes.empty())
        return LMHotKeyRefusal::NoSuchKey;
    Grabs required;
    for (const xcb_keycode_t code : keys.codes)
        required.push_back({code, *modifiers});
    if (std::ranges::any_of(required, [&](const Grab& grab) { return contains(taken, grab); }))
        return LMHotKeyRefusal::AlreadyInUse;
    taken.insert(taken.end(), required.begin(), required.end());
    hotKey.required = required;
    for (const xcb_keycode_t code : keys.codesOfOtherLayouts)
        hotKey.welcome.push_back({code, *modifiers});
    return std::nullopt;
}

void LMX11HotKeys::releaseUnwanted() {
    const bool haveLocksChanged = m_keyMap && m_keyMap->lockModifiers() != m_lockModifiers;
    for (HotKey& hotKey : m_hotKeys) {
        std::erase_if(hotKey.inForce, [&](const Grab& grab) {
            const bool isWanted = contains(hotKey.required, grab) || contains(hotKey.welcome, grab);
            if (isWanted && !haveLocksChanged)
                return false;
            ungrab(grab);
            return true;
        });
    }
    if (m_keyMap)
        m_lockModifiers = m_keyMap->lockModifiers();
}

/// All requests are sent before the first answer is waited for.
void LMX11HotKeys::takeWanted() {
    struct Attempt {
        HotKey& hotKey;
        Grab grab;
        bool isRequired;
        std::vector<xcb_void_cookie_t> cookies;
    };
    std::vector<Attempt> attempts;
    for (HotKey& hotKey : m_hotKeys) {
        for (const Grabs* grabs : {&hotKey.required, &hotKey.welcome}) {
            for (const Grab& wanted : *grabs) {
                if (!contains(hotKey.inForce, wanted))
                    attempts.push_back({hotKey, wanted, grabs == &hotKey.required, grab(wanted)});
            }
        }
    }
    for (const Attempt& attempt : attempts) {
        const auto refused = refusal(attempt.cookies);
        if (!refused)
            attempt.hotKey.inForce.push_back(attempt.grab);
        else
            ungrab(attempt.grab);
        if (refused && attempt.isRequired)
            attempt.hotKey.refusal = refused;
    }
    for (HotKey& hotKey : m_hotKeys) {
        if (hotKey.refusal)
            ungrab(hotKey);
    }
}

std::vector<xcb_void_cookie_t> LMX11HotKeys::grab(const Grab& grab) {
    std::vector<xcb_void_cookie_t> cookies;
    for (const uint16_t locks : lockCombinations(grab.modifiers))
        cookies.push_back(xcb_grab_key_checked(m_connection.xcb(), 0, m_connection.root(),
                                               grab.modifiers | locks, grab.code,
                                               XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    return cookies;
}

std::optional<LMHotKeyRefusal>
LMX11HotKeys::refusal(const std::vector<xcb_void_cookie_t>& cookies) {
    constexpr uint8_t badAccess = 10;
    std::optional<LMHotKeyRefusal> result;
    for (const xcb_void_cookie_t cookie : cookies) { // Every answer must be collected.
        if (const LMXcbError error = m_connection.check(cookie))
            result = error->error_code == badAccess ? LMHotKeyRefusal::HeldByAnotherProgram
                                                    : LMHotKeyRefusal::NoSuchKey;
    }
    if (!m_connection.isConnected())
        result = LMHotKeyRefusal::NotAvailable;
    return result;
}

void LMX11HotKeys::ungrab(const Grab& grab) {
    for (const uint16_t locks : lockCombinations(grab.modifiers))
        xcb_ungrab_key(m_connection.xcb(), grab.code, m_connection.root(), grab.modifiers | locks);
}

void LMX11HotKeys::ungrab(HotKey& hotKey) {
    for (const Grab& grab : std::exchange(hotKey.inForce, {}))
        ungrab(grab);
}

/// Every set of lock modifiers, the empty one included; a grab holds for exactly its modifiers.
std::vector<uint16_t> LMX11HotKeys::lockCombinations(uint16_t modifiers) const {
    std::vector<uint16_t> combinations;
    const auto locks = static_cast<uint16_t>(m_lockModifiers & ~modifiers);
    for (unsigned int subset = locks;; subset = (subset - 1) & locks) {
        combinations.push_back(static_cast<uint16_t>(subset));
        if (subset == 0)
            return combinations;
    }
}

void LMX11HotKeys::handle(const xcb_generic_event_t& event) {
    switch (LMXcbEventType(event)) {
    case XCB_KEY_PRESS:
        keyPressed(reinterpret_cast<const xcb_key_press_event_t&>(event));
        break;
    case XCB_KEY_RELEASE:
        keyReleased(reinterpret_cast<const xcb_key_release_event_t&>(event));
        break;
    case XCB_MAPPING_NOTIFY:
        if (reinterpret_cast<const xcb_mapping_notify_event_t&>(event).request ==
            XCB_MAPPING_POINTER)
            break;
        m_keyMap.reset();
        m_keyboardChange.start(0);
        break;
    default:
        break;
    }
}

/// The server reports a key that repeats as released and pressed again at the same time.
void LMX11HotKeys::keyPressed(const xcb_key_press_event_t& event) {
    if (m_heldKey && m_heldKey->code == event.detail) {
        if (!m_release.isActive() || event.time == m_releaseTime) {
            m_release.stop();
            return;
        }
        letGo();
    }
    const Grab pressed{event.detail,
                       static_cast<uint16_t>(event.state & allModifiers & ~m_lockModifiers)};
    const auto hotKey = std::ranges::find_if(
        m_hotKeys, [&](const HotKey& candidate) { return contains(candidate.inForce, pressed); });
    if (event.event != m_connection.root() || hotKey == m_hotKeys.end())
        return;
    m_heldKey = {event.detail, hotKey->identifier};
    report(&LMX11HotKeys::hotKeyPressed, hotKey->identifier);
}

void LMX11HotKeys::keyReleased(const xcb_key_release_event_t& event) {
    if (!m_heldKey || m_heldKey->code != event.detail)
        return;
    m_releaseTime = event.time;
    m_release.start(0);
}

void LMX11HotKeys::letGo() {
    m_release.stop();
    if (const auto held = std::exchange(m_heldKey, std::nullopt))
        report(&LMX11HotKeys::hotKeyReleased, held->identifier);
}

/// From the event loop: what follows takes as long as it wants, and the event may have been read in
/// the middle of something else.
void LMX11HotKeys::report(void (LMX11HotKeys::*signal)(const QString&), const QString& identifier) {
    QMetaObject::invokeMethod(
        this,
        [this, signal, identifier] {
            if (find(identifier) != m_hotKeys.end())
                Q_EMIT(this->*signal)(identifier);
        },
        Qt::QueuedConnection);
}
