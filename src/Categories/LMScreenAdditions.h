// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMScreens.h"

#include <QList>
#include <QRectF>
#include <QString>

#include <optional>

/// A screen's numbers and rectangles in the forms in which they are stored and compared.
///
/// Holds a pointer to the screen, which must outlive it; null is a missing screen, all of whose
/// numbers and rectangles are zero.
class LMScreenAdditions {
public:
    explicit LMScreenAdditions(const LMScreen* screen) : m_screen(screen) {}

    quint32 CGDisplayID() const;
    /// Global display coordinates: origin at the top left of the main display, y down.
    QRectF CGDisplayBounds() const;
    /// The text form of the *other* rectangle: origin at the bottom left of the main screen, y up.
    QString displayBounds() const;
    /// Empty when the monitor does not say.
    QString CGDisplayProductName() const;
    /// Unsigned decimals.
    QString CGDisplayVendorNumber() const;
    QString CGDisplayModelNumber() const;
    QString CGDisplaySerialNumber() const;

    /// The first of the screens that wholly contains the frame (edges may touch); none when the
    /// frame lies across screens or outside them. Frames of windows have their origin at the top
    /// left of the main display, so they are held against the screens' rectangles in that space.
    static std::optional<LMScreen> screenContainingFrame(const QList<LMScreen>& screens,
                                                         const QRectF& frame);

private:
    const LMScreen* m_screen;
};
