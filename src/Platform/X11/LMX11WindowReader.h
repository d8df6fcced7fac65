// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMX11Coordinates.h"
#include "Platform/X11/LMX11FrameRequest.h"
#include "Platform/X11/LMX11MapWatch.h"
#include "Platform/X11/LMX11Window.h"

#include <QList>
#include <QStringList>

#include <vector>

/// Windows as they were read together, in the order asked for, and the coordinates and virtual
/// desktops of that moment.
struct LMX11Reading {
    LMX11Coordinates coordinates;
    QStringList desktopNames; ///< See LMX11DesktopsRequest.
    QList<LMX11Window> windows;

    QRectF globalFrame(const LMX11Window& window) const {
        return coordinates.globalFromRoot(QRectF(window.geometry.frame()));
    }
};

/// Reads any number of windows in a constant number of round trips: all questions are sent before
/// the first answer is awaited. One round trip as a rule, one more when a title is longer than
/// usual, a few more for windows that have just been shown or hidden and under managers that do not
/// tell the size of their decorations. Waits while openbox draws how a window turns into its icon
/// or back, 250 ms at most.
class LMX11WindowReader {
public:
    /// The connection must outlive it.
    explicit LMX11WindowReader(LMX11Connection& connection)
        : m_connection(connection), m_mapWatch(connection) {}

    /// Everything about the windows. One that has vanished is marked so.
    LMX11Reading read(const QList<xcb_window_t>& identifiers);

    /// Geometry, states and virtual desktop only.
    LMX11Reading readFrames(const QList<xcb_window_t>& identifiers);

    using Windows = QList<LMX11Window*>;
    /// The same once more for windows that were read before, under the manager of that time.
    void refresh(const Windows& windows);

private:
    using Requests = std::vector<LMX11FrameRequest>;
    /// The child of the root that holds a window; the default when that is the window itself.
    struct TopLevel {
        QRect rect;
        bool isMapped = false;

        bool exists() const { return rect.isValid(); }
    };

    /// All that is asked before the first answer is awaited, without titles and the like.
    struct Questions;

    Windows prepare(LMX11Reading& reading, const QList<xcb_window_t>& identifiers);
    /// Both answer the windows whose decorations are still to be measured.
    Windows receive(Questions& questions, LMX11Reading& reading, const Windows& windows);
    Windows receiveFrames(const Requests& requests, const Windows& windows);
    /// What takes further questions: decorations that nobody tells, windows that are on the way.
    void settle(const Windows& windows, const Windows& unmeasured);
    void waitForAnimations(Windows windows);
    void measureDecorations(const Windows& windows);
    Windows animated(Windows windows);
    QList<TopLevel> readTopLevels(const Windows& windows);
    QList<xcb_window_t> findTopLevels(const Windows& windows);

    LMX11Connection& m_connection;
    LMX11MapWatch m_mapWatch;
    bool m_tellsExtents = true; ///< Whether the manager does.
};
