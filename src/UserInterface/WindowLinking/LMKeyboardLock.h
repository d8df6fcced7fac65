// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>

class LMLogger;
class QWindow;

/// Brings every key of the session to one window, whatever application has the focus.
///
/// Another program may have the keyboard at first: an open menu, a hot key that is still held. Then
/// it is asked for again and again until unlock. When this process ends, in whatever way, the
/// display server takes the keyboard back.
class LMKeyboardLock final : public QObject {
    Q_OBJECT
public:
    /// The logger outlives the lock.
    explicit LMKeyboardLock(const LMLogger& logger);
    ~LMKeyboardLock() override;

    /// The window must be on the screen, and stay there until unlock.
    void lock(QWindow& window);
    void unlock();

private:
    void attempt();

    const LMLogger& m_logger;
    QPointer<QWindow> m_window;
    QTimer m_retry;
    QElapsedTimer m_waiting;
    bool m_isHeld = false;
    bool m_hasComplained = false;
};
