// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QSizeF>

/// Fits an image, of which only the size matters here, into a place.
class LMImageAdditions {
public:
    explicit LMImageAdditions(const QSizeF& size) : m_size(size) {}

    /// The frame of the image in a rectangle whose origin is at its *bottom left*, y up. It sits on
    /// a margin of FreeBottom, centred horizontally. Large images are made smaller, small ones are
    /// left alone. Empty where the rectangle leaves no room.
    QRectF frameForRect(const QRectF& rect) const;

    static constexpr double FreeBottom = 20;

private:
    QSizeF m_size;
};
