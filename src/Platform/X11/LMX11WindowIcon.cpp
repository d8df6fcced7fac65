// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11WindowIcon.h"

#include "Platform/LMIconTheme.h"
#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11Properties.h"

#include <algorithm>

namespace {

constexpr uint32_t largestEdge = 2048;

} // namespace

QImage LMX11BestIcon(std::span<const uint32_t> icons, int size) {
    std::span<const uint32_t> best;
    QSize bestSize;
    while (icons.size() > 2) {
        const uint32_t width = icons[0];
        const uint32_t height = icons[1];
        icons = icons.subspan(2);
        if (width == 0 || height == 0 || width > largestEdge || height > largestEdge ||
            size_t(width) * height > icons.size())
            break; // Where the next picture begins is unknown.
        const QSize found(static_cast<int>(width), static_cast<int>(height));
        const int edge = std::max(found.width(), found.height());
        const int bestEdge = std::max(bestSize.width(), bestSize.height());
        const bool isBetter = bestEdge < size ? edge > bestEdge : edge >= size && edge < bestEdge;
        if (isBetter) {
            best = icons.first(size_t(width) * height);
            bestSize = found;
        }
        icons = icons.subspan(size_t(width) * height);
    }
    if (best.empty())
        return {};
    QImage image(bestSize, QImage::Format_ARGB32);
    for (int row = 0; row < image.height(); ++row) {
        const auto line = best.subspan(size_t(row) * size_t(image.width()), size_t(image.width()));
        std::ranges::copy(line, reinterpret_cast<uint32_t*>(image.scanLine(row)));
    }
    return image;
}

QImage LMX11IconOfWindow(LMX11Connection& connection, xcb_window_t window, int size) {
    const LMX11PropertyRequest request(connection, window, connection.ewmhAtoms()._NET_WM_ICON,
                                       LMX11PropertyRequest::maximumSize);
    return LMSquareImage(LMX11BestIcon(request.receive(connection).words(), size), size);
}
