// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMPlatformTypes.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

class LMAccessibility;
struct LMEnvironment;

/// Every read and every change of another application's windows goes through these functions.
/// Unless stated otherwise a failure raises LMAccessibilityException with a fixed reason. Points
/// and sizes are global pixels: origin at the top left of the main display, y down.

// --- elements --------------------------------------------------------------------------------
LMElement LMElementCreateApplication(LMAccessibility& accessibility, qint64 processIdentifier);
/// The element of the active application; of process 0, which nothing can be read from, when there
/// is none.
LMElement LMElementCreateActiveApplication(LMEnvironment& environment);
/// The windows of the application that the process identifier stands for, front to back.
QList<LMElement> LMElementCopyWindows(LMAccessibility& accessibility, qint64 processIdentifier);
/// The focused window of the active application; null when it says that it has none.
LMElement LMElementCopyFocusedWindow(LMEnvironment& environment);
/// The same for the application of that element.
LMElement LMElementCopyFocusedWindow(LMAccessibility& accessibility, const LMElement& application);

// --- reading a window ------------------------------------------------------------------------
QString LMElementCopyTitle(LMAccessibility& accessibility, const LMElement& element);
QString LMElementCopySubrole(LMAccessibility& accessibility, const LMElement& element);
QPointF LMElementGetPosition(LMAccessibility& accessibility, const LMElement& element);
QSizeF LMElementGetSize(LMAccessibility& accessibility, const LMElement& element);
/// The frame as text, "{{x, y}, {w, h}}". The size is read first.
QString LMElementCopyFrameString(LMAccessibility& accessibility, const LMElement& element);
/// The roles of the children in child order; children without a role are left out.
QStringList LMElementCopyChildRoles(LMAccessibility& accessibility, const LMElement& element);

/// These three never raise: what cannot be read is not there.
bool LMElementHasToolbarButton(LMAccessibility& accessibility, const LMElement& element);
bool LMElementHasGrowArea(LMAccessibility& accessibility, const LMElement& element);
bool LMElementHasDocument(LMAccessibility& accessibility, const LMElement& element);

bool LMElementIsModal(LMAccessibility& accessibility, const LMElement& element);

// --- changing a window -----------------------------------------------------------------------
void LMElementSetPosition(LMEnvironment& environment, const LMElement& element,
                          const QPointF& position);
/// Some windows take a size only after a real change. When the size reads back other than asked
/// for, it is set once to 24 pixels less in each dimension (at least 1) and then asked for again;
/// the outcome of that is not checked.
void LMElementSetSize(LMEnvironment& environment, const LMElement& element, const QSizeF& size);
/// The position, then the size.
void LMElementSetFrame(LMEnvironment& environment, const LMElement& element, const QRectF& frame);
