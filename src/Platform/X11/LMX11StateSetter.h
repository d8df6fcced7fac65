// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMWindowStates.h"
#include "Platform/X11/LMX11WindowReader.h"

#include <QSet>

class LMX11WindowManager;

/// Changes how windows stand, through the window manager, many at once.
///
/// What managers do with the requests, tried out:
///
///                                openbox 3.6  xfwm4 4.18   marco 1.26   kwin 5.27    mutter 43
///     minimise: WM_CHANGE_STATE  desktop (1)  yes          yes          yes          yes
///     minimise: add HIDDEN       yes          yes          no           no           no
///     show: remove HIDDEN        yes          yes          no           no           no
///     show: request to map       with focus   with focus   yes (2)      yes (3)      yes (2)
///     fullscreen                 with focus   raises (4)   yes          raises       yes
///     shade, unshade             yes          yes          with focus   yes (5)      loses focus
///     maximise a shaded one      yes          unshades     unshades     yes          unshades
///     above of a kept-below one  yes          refuses      keeps both   yes          keeps both
///     STICKY                     no           yes          yes          no           yes
///     desktop 0xffffffff         yes          yes          yes          yes          yes
///     desktop out of range       ignores      ignores      ignores      ignores      ignores
///     states of a minimised one  obeys        obeys        obeys        obeys (5)    obeys
///     same on another desktop    obeys        obeys        obeys        obeys        obeys
///
/// (1) Of windows of the current desktop only. (2) Brings the window to the current desktop; when
/// it is sent back at once, it does not appear there. (3) The window demands attention when it is
/// on another desktop. (4) A fullscreen window is not kept above. (5) A minimised window that is
/// shaded or unshaded can hardly be shown any more; a maximised one that is shaded forgets its
/// normal frame.
///
/// Hence: what is to go goes first, shading comes after maximising and never while minimised,
/// minimising comes last. A window is shown by its state; where that does not help, by a request
/// to map it, followed by its desktop. The focus is put back where it was, see LMX11ViewGuard.
///
/// A shaded window counts as not minimised, for marco and mutter call every shaded one hidden.
/// What a window and its manager agree upon when it leaves a state is theirs: under openbox, Qt's
/// windows come back from being maximised shifted by their decorations.
class LMX11StateSetter {
public:
    /// Both must outlive it.
    LMX11StateSetter(LMX11Connection& connection, LMX11WindowManager& windowManager);

    /// Wanted are possible states, one per window of the reading, which is brought up to date.
    /// Returns when all are reached, or when the manager has nothing more to say. False when
    /// something is left and it did not answer within 500 ms of its last sign of life; a frozen
    /// one costs a second.
    bool reach(LMX11Reading& reading, const QList<LMWindowState>& wanted);

    /// Whether there was anything to ask for the last time.
    bool hasAsked() const { return !m_asked.isEmpty(); }

private:
    enum class Means { States, Mapping };
    struct Task {
        LMX11Window* window;
        LMWindowState wanted;
    };
    using Tasks = QList<Task>;
    using Deadline = LMX11Connection::Deadline;

    void send(const Task& task, const LMWindowState& present, Means means);
    void show(xcb_window_t window, const LMWindowState& wanted, Means means);
    bool settle(Tasks& tasks, const QStringList& desktopNames);
    void waitForRest(bool haveShadows);
    bool waitForChange(Deadline deadline);

    LMX11Connection& m_connection;
    LMX11WindowManager& m_windowManager;
    LMX11WindowReader m_reader;
    QSet<xcb_window_t> m_asked; ///< The windows that something has been asked for.
};
