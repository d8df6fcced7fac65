// SPDX-License-Identifier: MIT
#include "Categories/LMScreenAdditions.h"

#include "Utilities/LMRectangle.h"

quint32 LMScreenAdditions::CGDisplayID() const {
    return m_screen ? m_screen->displayID : 0;
}

QRectF LMScreenAdditions::CGDisplayBounds() const {
    return m_screen ? m_screen->displayBounds : QRectF();
}

QString LMScreenAdditions::displayBounds() const {
    return LMStringFromRect(m_screen ? m_screen->frame : QRectF());
}

QString LMScreenAdditions::CGDisplayProductName() const {
    return m_screen ? m_screen->productName : QStringLiteral("");
}

QString LMScreenAdditions::CGDisplayVendorNumber() const {
    return QString::number(m_screen ? m_screen->vendorNumber : 0);
}

QString LMScreenAdditions::CGDisplayModelNumber() const {
    return QString::number(m_screen ? m_screen->modelNumber : 0);
}

QString LMScreenAdditions::CGDisplaySerialNumber() const {
    return QString::number(m_screen ? m_screen->serialNumber : 0);
}

std::optional<LMScreen> LMScreenAdditions::screenContainingFrame(const QList<LMScreen>& screens,
                                                                 const QRectF& frame) {
    for (const LMScreen& screen : screens) {
        if (LMRectContainsRect(screen.displayBounds, frame))
            return screen;
    }
    return std::nullopt;
}
