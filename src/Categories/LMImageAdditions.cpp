// SPDX-License-Identifier: MIT
#include "Categories/LMImageAdditions.h"

#include <algorithm>
#include <cmath>

QRectF LMImageAdditions::frameForRect(const QRectF& rect) const {
    const double height = rect.height() - FreeBottom;
    QSizeF size = m_size;
    if (rect.width() <= 0 || height <= 0 || m_size.isEmpty()) {
        size = {0, 0};
    } else if (m_size.width() > rect.width() || m_size.height() > height) {
        const float scale = std::min(static_cast<float>(rect.width() / m_size.width()),
                                     static_cast<float>(height / m_size.height()));
        size = {std::ceil(m_size.width() * double(scale)),
                std::ceil(m_size.height() * double(scale))};
    }
    return {QPointF(std::floor(rect.x() + (rect.width() - size.width()) * 0.5),
                    std::floor(rect.y() + FreeBottom)),
            size};
}
