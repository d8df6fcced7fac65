// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMHotKeys.h"
#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11KeyMap.h"

#include <QTimer>

#include <optional>
#include <vector>

/// Hot keys by passive grabs of keys on the root window, each for every combination of lock keys.
///
/// When the program ends in whatever way, the server drops the grabs with the connection.
class LMX11HotKeys final : public LMHotKeys {
    Q_OBJECT
public:
    explicit LMX11HotKeys(LMX11Connection& connection);
    ~LMX11HotKeys() override;

    bool isAvailable() const override { return true; }
    LMHotKeyStatus registerHotKey(const QString& identifier, const LMShortcut& shortcut) override;
    void unregisterHotKey(const QString& identifier) override;
    std::optional<LMKeyPress> keyPress(quint32 nativeScanCode, quint32 nativeModifiers) override;

private:
    /// A key with its modifiers, the locks left out.
    struct Grab {
        xcb_keycode_t code = 0;
        uint16_t modifiers = 0;
        bool operator==(const Grab&) const = default;
    };
    using Grabs = std::vector<Grab>;

    struct HotKey {
        QString identifier;
        LMShortcut shortcut;
        std::optional<LMHotKeyRefusal> refusal = LMHotKeyRefusal::NotAvailable;
        Grabs inForce{};
        Grabs required{}; ///< Without all of these it is refused.
        Grabs welcome{};  ///< On keys that are right in another layout of the user's.
    };

    /// The key that reported a hot key and has not been let go.
    struct HeldKey {
        xcb_keycode_t code = 0;
        QString identifier;
    };

    std::vector<HotKey>::iterator find(const QString& identifier);
    /// Brings everything up to date and tells of all changes but the caller's.
    void update(const QString& caller = QString());
    void plan();
    std::optional<LMHotKeyRefusal> claim(HotKey& hotKey, Grabs& taken);
    void releaseUnwanted();
    void takeWanted();
    std::vector<xcb_void_cookie_t> grab(const Grab& grab);
    std::optional<LMHotKeyRefusal> refusal(const std::vector<xcb_void_cookie_t>& cookies);
    void ungrab(const Grab& grab);
    void ungrab(HotKey& hotKey);
    std::vector<uint16_t> lockCombinations(uint16_t modifiers) const;

    void handle(const xcb_generic_event_t& event);
    void keyPressed(const xcb_key_press_event_t& event);
    void keyReleased(const xcb_key_release_event_t& event);
    void letGo();
    void report(void (LMX11HotKeys::*signal)(const QString&), const QString& identifier);

    LMX11Connection& m_connection;
    LMX11Connection::Subscription m_subscription;
    std::optional<LMX11KeyMap> m_keyMap; ///< Read when it is needed.
    uint16_t m_lockModifiers = 0;        ///< Those the grabs in force were made for.
    std::vector<HotKey> m_hotKeys;
    std::optional<HeldKey> m_heldKey;
    xcb_timestamp_t m_releaseTime = 0;
    QTimer m_release;        ///< Runs while a release may turn out to be a repetition.
    QTimer m_keyboardChange; ///< One change of layouts is many events.
};
