// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRect>

#include <xcb/xcb.h>

class LMX11Connection;

/// Copies a part of a drawable, whose own coordinates the rectangle uses. Null when the drawable is
/// gone, the rectangle is empty or reaches outside it, or the pixels have an unusual form.
QImage LMX11GrabImage(LMX11Connection& connection, xcb_drawable_t drawable, const QRect& rect);
