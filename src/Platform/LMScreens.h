// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMPlatformTypes.h"

#include <QObject>
#include <QStringList>

#include <memory>

/// One attached screen. A mirrored group counts as one screen.
struct LMScreen {
    /// The rectangle in global display coordinates: origin at the top left of the main display, y
    /// down, pixels. The same space as window frames.
    QRectF displayBounds;
    /// The same rectangle with the origin at the *bottom left* of the main screen and y up.
    QRectF frame;
    /// displayBounds less docks and panels, global display coordinates.
    QRectF visibleFrame;
    quint32 displayID = 0; ///< Stable while the screen stays attached.
    quint32 vendorNumber = 0;
    quint32 modelNumber = 0;
    quint32 serialNumber = 0;
    QString productName;   ///< From the monitor itself; empty when it does not say.
    QString connectorName; ///< The output's name, for people and logs ("HDMI-1").

    bool operator==(const LMScreen&) const = default;
};

/// A change of the display arrangement in the making. Nothing happens before it is completed;
/// destroying it uncompleted changes nothing.
class LMDisplayConfiguration {
public:
    virtual ~LMDisplayConfiguration() = default;

    /// Where the display's top left corner shall stand, global display coordinates.
    virtual LMPlatformStatus configureDisplayOrigin(quint32 displayID, qint32 x, qint32 y) = 0;

    /// Applies all origins at once and keeps them as far as the platform can. When any step fails,
    /// the arrangement that was in force before is put back.
    virtual LMPlatformStatus completePermanently() = 0;
};

/// The attached screens and their arrangement.
class LMScreens : public QObject {
    Q_OBJECT
public:
    /// The attached screens in platform order, the main one first. Read afresh on every call.
    virtual QList<LMScreen> screens() = 0;

    /// Whether display arrangements can be changed at all.
    virtual bool canArrangeDisplays() const = 0;

    /// Begins a change of the arrangement; none when that is not possible now.
    virtual std::unique_ptr<LMDisplayConfiguration> beginDisplayConfiguration() = 0;

    /// For each monitor the identifiers of its spaces; "dashboard" is the one that does not count.
    /// Where windows on all virtual desktops can be reached, a monitor has one space.
    virtual QList<QStringList> spacesByMonitor() = 0;

    /// Whether each screen has spaces of its own.
    virtual bool screensHaveSeparateSpaces() const = 0;

Q_SIGNALS:
    /// The screens, their places or their sizes have changed and have come to rest: emitted once
    /// per change, after monitors and window manager have been quiet for a while.
    void screenParametersChanged();

    /// Emitted just before screenParametersChanged when a screen went through a state it did not
    /// keep, as one does that is switched off and on again: windows may have been moved although
    /// the screens are what they were.
    void screensFlickered();

protected:
    using QObject::QObject;
};
