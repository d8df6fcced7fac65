// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMXcbReply.h"

#include <QList>
#include <QPoint>
#include <QPointF>
#include <QRectF>

#include <optional>
#include <xcb/randr.h>

class LMX11Connection;

/// Translates between the coordinates of the X root window and global coordinates, whose origin is
/// the top left corner of the main display: the RandR primary monitor, else the first one. The two
/// differ as soon as a monitor stands to the left of or above the main one.
///
/// A value that holds for one batch of requests, since monitors may move at any time.
class LMX11Coordinates {
public:
    LMX11Coordinates() = default;
    explicit LMX11Coordinates(QPoint mainDisplayOrigin, QList<QRect> monitors = {})
        : m_origin(mainDisplayOrigin), m_monitors(std::move(monitors)) {}

    /// Root coordinates of the main display's top left corner.
    QPoint mainDisplayOrigin() const { return m_origin; }

    /// Root coordinates; empty on servers without monitors (RandR before 1.5).
    const QList<QRect>& monitors() const { return m_monitors; }

    QPointF globalFromRoot(const QPointF& point) const { return point - m_origin; }
    QPointF rootFromGlobal(const QPointF& point) const { return point + m_origin; }
    QRectF globalFromRoot(const QRectF& rect) const { return rect.translated(-QPointF(m_origin)); }
    QRectF rootFromGlobal(const QRectF& rect) const { return rect.translated(QPointF(m_origin)); }

private:
    QPoint m_origin;
    QList<QRect> m_monitors;
};

/// The question for the main display's place: asked together with other requests, answered later.
class LMX11CoordinatesRequest {
public:
    explicit LMX11CoordinatesRequest(LMX11Connection& connection);

    /// Waits for the answer; to be called once.
    LMX11Coordinates receive();

private:
    LMX11Coordinates receiveFromCrtcs();

    LMX11Connection& m_connection;
    std::optional<xcb_randr_get_monitors_cookie_t> m_cookie;
};
