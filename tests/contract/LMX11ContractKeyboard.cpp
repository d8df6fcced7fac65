// SPDX-License-Identifier: MIT
#include "contract/LMContractKeyboard.h"
#include "Platform/X11/LMX11Connection.h"
#include "support/LMDesktopTools.h"

#include <QThread>

#include <xcb/xcb_keysyms.h>

namespace {

/// As xdotool takes it.
QString keys(const LMShortcut& shortcut) {
    QString text = shortcut.description();
    const bool isLetter = text[text.size() - 2] == u'+';
    return isLetter ? text.chopped(1) + text.back().toLower() : text;
}

class LMX11ContractKeyboard final : public LMContractKeyboard {
public:
    explicit LMX11ContractKeyboard(LMX11Connection& connection) : m_connection(connection) {}
    ~LMX11ContractKeyboard() override {
        giveBack();
        setLocks(false, false);
        setLayout(u"us"_qs);
    }
    void press(const LMShortcut& shortcut) override {
        LMRunTool(u"xdotool key "_qs + keys(shortcut));
    }
    void hold(const LMShortcut& shortcut) override {
        LMRunTool(u"xset r rate 50 100"_qs);
        LMRunTool(u"xdotool keydown "_qs + keys(shortcut));
        QThread::msleep(200); // The user's time: nobody but the desktop is told of repetitions.
        LMRunTool(u"xdotool keyup "_qs + keys(shortcut));
    }
    void setLocks(bool capsLock, bool numLock) override {
        if (std::exchange(m_hasCapsLock, capsLock) != capsLock)
            LMRunTool(u"xdotool key Caps_Lock"_qs);
        if (std::exchange(m_hasNumLock, numLock) != numLock)
            LMRunTool(u"xdotool key Num_Lock"_qs);
    }
    void setLayout(const QString& layout) override {
        if (std::exchange(m_layout, layout) != layout)
            LMRunTool(u"setxkbmap "_qs + layout);
    }
    /// Without regard to lock keys, as careless programs do.
    void takeForAnotherProgram(const LMShortcut& shortcut) override {
        m_taken = grab(shortcut, {0});
    }
    void giveBack() override { ungrab(std::exchange(m_taken, {})); }
    bool isTaken(const LMShortcut& shortcut) override {
        const QList<uint16_t> capsAndNumLock{0, 0x2, 0x10, 0x12};
        const Grabs grabs = grab(shortcut, capsAndNumLock);
        ungrab(grabs);
        return grabs.size() < capsAndNumLock.size();
    }

private:
    using Grabs = QList<std::pair<xcb_keycode_t, uint16_t>>;

    Grabs grab(const LMShortcut& shortcut, const QList<uint16_t>& lockCombinations);
    void ungrab(const Grabs& grabs);

    LMX11Connection& m_connection;
    Grabs m_taken;
    bool m_hasCapsLock = false, m_hasNumLock = false;
    QString m_layout = u"us"_qs;
};

/// Of a letter with Control and Alt.
LMX11ContractKeyboard::Grabs LMX11ContractKeyboard::grab(const LMShortcut& shortcut,
                                                         const QList<uint16_t>& lockCombinations) {
    xcb_key_symbols_t* symbols = xcb_key_symbols_alloc(m_connection.xcb());
    const LMXcbReply<xcb_keycode_t> code(xcb_key_symbols_get_keycode(symbols, shortcut.keysym()));
    xcb_key_symbols_free(symbols);
    Grabs grabs;
    for (const uint16_t locks : lockCombinations) {
        const auto modifiers = uint16_t(XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | locks);
        if (!m_connection.check(xcb_grab_key_checked(m_connection.xcb(), 0, m_connection.root(),
                                                     modifiers, *code, XCB_GRAB_MODE_ASYNC,
                                                     XCB_GRAB_MODE_ASYNC)))
            grabs.append({*code, modifiers});
    }
    return grabs;
}

void LMX11ContractKeyboard::ungrab(const Grabs& grabs) {
    for (const auto& [code, modifiers] : grabs)
        xcb_ungrab_key(m_connection.xcb(), code, m_connection.root(), modifiers);
    m_connection.serverTime(); // The server has done it.
}

} // namespace

std::unique_ptr<LMContractKeyboard> LMMakeX11ContractKeyboard(LMX11Connection& connection) {
    return std::make_unique<LMX11ContractKeyboard>(connection);
}
