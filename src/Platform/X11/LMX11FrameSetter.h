// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMPlatformTypes.h"
#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11NormalFrames.h"
#include "Platform/X11/LMX11WindowManager.h"
#include "Platform/X11/LMX11WindowReader.h"

#include <QHash>

/// Moves and resizes windows through the window manager and waits until it is done: at most 250 ms
/// for a window, more when it is maximised or shaded, but never beyond a second. Minimised windows
/// and windows of other virtual desktops are moved where they are, without showing up.
///
/// What managers do with _NET_MOVERESIZE_WINDOW, tried out:
///
///                                   openbox 3.6  xfwm4 4.18  marco 1.26  kwin 5.27  mutter 43
///     north-west gravity: place is    frame        frame       frame       frame      frame
///     static gravity: place is       client (1)    client      client      client     client
///     own shadow (GTK): place is      client       client      client      client     client
///     no border gravity drift          yes          yes         yes         yes        yes
///     size rounded to increments       yes          no          yes         yes        yes
///     minimised, other desktop         obeys        obeys       obeys       obeys      obeys
///     maximised both ways              ignores      ignores     ignores     ignores    ignores
///     maximised one way                free axis    unmaximises free axis   free axis  free axis
///     shaded                           obeys        obeys       obeys       place only obeys
///     fullscreen                       ignores      ignores     ignores     breaks it  ignores
///     place partly off the screen      obeys        obeys       moves in    obeys      moves in
///     size that reaches off screen     moves in     moves in    moves in    obeys      moves in
///
/// (1) Off by the border that the client has asked for and the manager has taken away (xterm).
///
/// Hence: always north-west gravity, and the same arithmetic under all managers. A maximised window
/// is taken out of that state first. A fullscreen one is left alone. A position that the manager
/// moved in because the window is still too large is asked for again together with the new size. A
/// frame that fills a monitor is that of a maximised window: terminals reach it in no other way,
/// since they round sizes, and marco would take a large undecorated window for a fullscreen one.
/// Who knows better says so first (setPlainFrame).
class LMX11FrameSetter {
public:
    /// All must outlive it.
    LMX11FrameSetter(LMX11Connection& connection, LMX11WindowManager& windowManager,
                     LMX11NormalFrames& normalFrames);

    /// Global pixels, the frame the user sees. The reading is that of one window, made just now.
    LMPlatformStatus setPosition(const LMX11Reading& reading, const QPointF& position);
    /// The window keeps its position.
    LMPlatformStatus setSize(const LMX11Reading& reading, const QSizeF& size);
    /// A frame that fills a monitor, for a window that is not to be maximised. Does nothing for
    /// other frames and for windows that are maximised or fullscreen.
    void setPlainFrame(const LMX11Coordinates& coordinates, LMX11Window& window,
                       const QRectF& frame);

    /// Sets a position or a size for each window of the reading, as far as one request for each
    /// will do: sends all requests, waits for them together and brings the reading up to date.
    /// Answers which windows need nothing more; the others are to be set one by one. Takes as long
    /// as the manager goes on changing windows; a frozen one costs 250 ms.
    QList<bool> setTogether(LMX11Reading& reading, const QList<LMAttributeValue>& values);

private:
    using Deadline = LMX11Connection::Deadline;
    using Change = LMX11WindowManager::Change;

    /// Where the frame shall stand, root coordinates.
    struct Goal {
        std::optional<QPoint> origin;
        std::optional<QSize> size;

        bool isReached(const LMX11Geometry& geometry) const;
        /// Whether a request for the place alone may bring a window nearer that was asked already.
        bool mayGetNearer(const LMX11Geometry& geometry) const;
        bool fillsMonitor(const QList<QRect>& monitors) const;
    };
    /// A position that the manager did not grant, and the one it gave instead.
    struct Refusal {
        QPoint wanted;
        QPoint granted;
    };

    Goal goalFor(const LMAttributeValue& value, const LMX11Coordinates& coordinates,
                 const LMX11Window& window) const;
    bool send(const LMX11Window& window, const Goal& goal);
    void noteRefusal(const LMX11Window& window, const QPoint& wanted);
    LMPlatformStatus reach(const LMX11Coordinates& coordinates, LMX11Window& window,
                           const Goal& goal);
    LMPlatformStatus reachPlainly(LMX11Window& window, const Goal& goal);
    LMPlatformStatus request(LMX11Window& window, const Goal& goal);
    LMPlatformStatus changeMaximized(LMX11Window& window, Change change);
    LMPlatformStatus resizeShaded(LMX11Window& window, const Goal& goal);
    LMPlatformStatus changeState(LMX11Window& window, Change change, xcb_atom_t first,
                                 xcb_atom_t second = XCB_ATOM_NONE);
    LMPlatformStatus refresh(LMX11Window& window);
    bool waitForChange(const LMX11Window& window, Deadline deadline);

    LMX11Connection& m_connection;
    LMX11WindowManager& m_windowManager;
    LMX11NormalFrames& m_normalFrames;
    LMX11WindowReader m_reader;
    QHash<xcb_window_t, Refusal> m_refusals;
    Deadline m_deadline; ///< Of the manager's next answer.
    LMX11Connection::Subscription m_subscription;
};
