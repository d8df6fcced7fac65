// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

/// Gives memory back when the program goes to rest: after its launch and whenever its last window
/// has closed. Rook waits in the panel for days between two seconds of work, and what it needed for
/// those should not stay with it.
///
/// What it lets go of are free blocks of the heap and the mapped pages of its own code and of its
/// libraries' code and tables, more than half of which only the dynamic linker and the launch have
/// read. The system keeps those pages in its cache as long as it has room; code that runs again is
/// mapped again, 64 kB at a time, without reading a disk.
class LMIdleMemory : public QObject {
    Q_OBJECT
public:
    explicit LMIdleMemory(QObject* parent = nullptr);

    /// Waits until what has just happened is over, then lets go, once.
    void releaseSoon() { m_timer.start(); }

private:
    QTimer m_timer;
};
