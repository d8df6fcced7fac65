// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMApplications.h"
#include "Platform/LMDesktop.h"

#include <QHash>
#include <QMap>
#include <QRectF>
#include <QStringList>

#include <optional>

/// A window of the fake desktop; change its members at any time to change the window.
struct LMFakeWindow {
    QString title = QStringLiteral("Window"); ///< Null: the title cannot be read.
    QRectF frame{100, 100, 640, 480};
    QString subrole = QStringLiteral("AXStandardWindow"); ///< Null: cannot be read.
    /// A null role belongs to a child whose role cannot be read.
    QStringList childRoles{QStringLiteral("AXCloseButton"), QStringLiteral("AXMinimizeButton"),
                           QStringLiteral("AXZoomButton")};
    bool hasToolbarButton = false;
    bool hasGrowArea = true;
    bool hasDocument = false;
    bool isModal = false;
    LMWindowState state{}; ///< Without names and normalFrame, which the next two tell.
    /// What it returns to when it is neither maximised nor fullscreen. Null: it stays as it is.
    QRectF normalFrame{};
    bool tellsNormalFrame = true;
    int layer = 0; ///< Unless it is kept above or below.
    bool hasImage = true;

    // How it resists.
    bool hasImmutablePosition = false;
    bool hasImmutableSize = false;
    int ignoredSizeChanges = 0;    ///< So many requests for a size succeed without effect.
    int readsBeforeVanishing = -1; ///< The window is gone after so many reads; below 0: stays.
    bool neverAnswers = false;

    QString bundleIdentifier{}; ///< The owner, filled in by the desktop.
};

/// An application of the fake desktop.
struct LMFakeApplication {
    QString bundleIdentifier;
    QString localizedName;
    qint64 processIdentifier;
    LMActivationPolicy activationPolicy = LMActivationPolicy::Regular;
    QList<quint32> minimizedByHiding{}; ///< Window numbers.
};

/// The calls of the accessibility contract that can be made to fail.
enum class LMFakeCall { CreateApplication, Copy, Count, CopyRange, IsSettable, Set };

/// The state that the parts of the fake desktop share.
struct LMFakeWorld {
    QList<LMFakeApplication> applications; ///< In the order of their launch.
    QMap<quint32, LMFakeWindow> windows;   ///< By number.
    QList<quint32> stacking;               ///< Front to back.
    std::optional<quint32> focusedWindow;

    QStringList desktops{u"One"_qs, u"Two"_qs, u"Three"_qs, u"Four"_qs}; ///< Virtual ones' names.
    int currentDesktop = 0;
    LMWindowStateSupport stateSupport{true, true, true, true, true, true, true, true};

    QList<LMScreen> screens;
    QList<QStringList> spaces; ///< Identifiers by monitor; empty: one space on each.
    bool screensHaveSeparateSpaces = false;
    bool canArrangeDisplays = true;
    bool beginsDisplayConfiguration = true;    ///< False: cannot begin.
    bool completesDisplayConfiguration = true; ///< False: completing fails and changes nothing.

    QString fileManagerIdentifier = QStringLiteral("com.apple.finder");
    LMPermission permission{true, {}};
    int roundTrips = 0; ///< Reads that were not answered from memory; a batch counts as one.
    /// What was done and, by the clock, how long was slept, in order, one line each:
    ///     position "TITLE" X,Y      size "TITLE" W,H    (every request, also one that is refused)
    ///     activate ID    hide ID    unhide ID           (ID: the application's identifier)
    ///     state "TITLE" minimized desktop=2             stack "FRONT" "BACK"
    ///     arrange DISPLAYID X,Y     sleep MICROSECONDS
    QStringList log;

    LMFakeApplication* application(const QString& bundleIdentifier);
    LMFakeApplication* application(qint64 processIdentifier);
    /// The numbers of its windows, front to back.
    QList<quint32> windowsOf(const LMFakeApplication& application) const;
    void raise(quint32 number);
    void removeWindow(quint32 number);
    /// Gives the focus to the front window that is in sight unless one has it.
    void keepFocusInSight();
    /// Replaces the screens, the main one first, and says nothing. What the rectangles in
    /// displayBounds imply is filled in; screens without an identifier get one.
    void setScreens(const QList<LMScreen>& newScreens);

    /// Neither minimised nor on another virtual desktop.
    bool isInSight(const LMFakeWindow& window) const;
    int layerOf(const LMFakeWindow& window) const;
    /// Gives the window the state and the frame that comes with it.
    void changeState(LMFakeWindow& window, const LMWindowState& state);
};
