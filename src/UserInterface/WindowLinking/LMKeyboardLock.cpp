// SPDX-License-Identifier: MIT
#include "UserInterface/WindowLinking/LMKeyboardLock.h"

#include "Utilities/LMLogger.h"

#include <QWindow>

using namespace std::chrono_literals;

namespace {

constexpr auto Patience = 2s; ///< A key is let go sooner; a menu may stay open.
constexpr auto OftenAtFirst = 15ms;
constexpr auto SeldomLater = 250ms;

} // namespace

LMKeyboardLock::LMKeyboardLock(const LMLogger& logger) : m_logger(logger) {
    connect(&m_retry, &QTimer::timeout, this, &LMKeyboardLock::attempt);
}

LMKeyboardLock::~LMKeyboardLock() {
    unlock();
}

void LMKeyboardLock::lock(QWindow& window) {
    m_window = &window;
    m_hasComplained = false;
    m_waiting.start();
    m_retry.start(OftenAtFirst);
    attempt();
}

void LMKeyboardLock::attempt() {
    m_isHeld = m_window && m_window->setKeyboardGrabEnabled(true);
    if (m_isHeld || !m_window) {
        m_retry.stop();
        if (m_hasComplained && m_isHeld)
            m_logger.info(QStringLiteral("The keyboard is Rook's now."));
        return;
    }
    if (m_hasComplained || !m_waiting.hasExpired(std::chrono::milliseconds(Patience).count()))
        return;
    m_hasComplained = true;
    m_retry.start(SeldomLater);
    m_logger.warning(QStringLiteral(
        "Another program keeps the keyboard: what is typed goes there until it lets go."));
}

void LMKeyboardLock::unlock() {
    m_retry.stop();
    if (m_isHeld && m_window)
        m_window->setKeyboardGrabEnabled(false);
    m_isHeld = false;
    m_window.clear();
}
