// SPDX-License-Identifier: MIT
#pragma once

#include <QMargins>
#include <QRect>
#include <QString>

#include <optional>
#include <xcb/xcb.h>

/// Where a window stands and what surrounds it; root coordinates, pixels.
struct LMX11Geometry {
    QRect client;         ///< The client's window, without its border.
    QMargins decorations; ///< What the window manager adds around it (_NET_FRAME_EXTENTS).
    QMargins shadow;      ///< The invisible margin inside it (_GTK_FRAME_EXTENTS).

    /// The part of the client's window that is neither content nor visible. A window that the
    /// manager decorates has no shadow of its own, whatever its client says.
    QMargins invisible() const { return decorations.isNull() ? shadow : QMargins(); }
    /// What the user sees.
    QRect frame() const { return client.marginsAdded(decorations).marginsRemoved(invisible()); }
    /// The corner that _NET_MOVERESIZE_WINDOW with north-west gravity names.
    QPoint requestOrigin(const QPoint& frameOrigin) const {
        return frameOrigin - QPoint(invisible().left(), invisible().top());
    }
    /// The size of the client's window that makes the frame as large as given.
    QSize clientSize(const QSize& frameSize) const {
        return frameSize.shrunkBy(decorations).grownBy(invisible());
    }

    bool operator==(const LMX11Geometry&) const = default;
};

enum class LMX11WindowType {
    Unknown, ///< Says what it is, but in no word of the standard.
    Normal,
    Dialog,
    Utility,
    Toolbar,
    Desktop,
    Dock,
    Splash,
    Menu, ///< Menus and the like: tool tips, combo boxes, drag icons.
    Notification,
};

/// The states that matter here (_NET_WM_STATE).
struct LMX11StateFlags {
    bool isModal = false;
    bool isMaximizedVertically = false;
    bool isMaximizedHorizontally = false;
    bool isFullscreen = false;
    bool isShaded = false;
    bool isAbove = false;
    bool isBelow = false;
    bool isSticky = false;
    bool skipsTaskbar = false;
    /// _NET_WM_STATE_HIDDEN of a window that is not shaded: marco and mutter call a shaded window
    /// hidden, too. WM_STATE does not tell, for most managers make windows of other virtual
    /// desktops iconic.
    bool isMinimized = false;

    bool isMaximized() const { return isMaximizedVertically || isMaximizedHorizontally; }
};

/// What a window's client has settled for the life of the window.
struct LMX11WindowStructure {
    LMX11WindowType type = LMX11WindowType::Normal;
    bool isResizable = true;
    bool offersClose = true;
    bool offersMinimize = true;
    bool offersMaximize = true;
    QString role; ///< WM_WINDOW_ROLE as it is; null when there is none.
};

/// One reading of one window.
struct LMX11Window {
    xcb_window_t identifier = XCB_WINDOW_NONE;
    bool exists = false;
    LMX11Geometry geometry;
    /// The client says how wide its shadow is; none at all, perhaps, while it is maximised.
    bool hasShadowProperty = false;
    LMX11StateFlags states;
    std::optional<quint32> desktop; ///< Virtual desktop, or allDesktops; absent without any.
    // What follows is filled in by LMX11WindowReader::read, not by readFrames.
    QString title; ///< Null when the window has none.
    LMX11WindowStructure structure;

    static constexpr quint32 allDesktops = 0xffffffff;

    bool isOnAllDesktops() const { return states.isSticky || desktop == allDesktops; }
};
