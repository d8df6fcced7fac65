// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <span>
#include <xcb/xcb.h>

class LMX11Connection;

/// The icon that a window brings along, scaled into a square; null when it has none.
QImage LMX11IconOfWindow(LMX11Connection& connection, xcb_window_t window, int size);

/// The picture in the content of _NET_WM_ICON that suits the size best: the smallest of those that
/// are large enough, else the largest. Whatever is malformed is left out.
QImage LMX11BestIcon(std::span<const uint32_t> icons, int size);
