// SPDX-License-Identifier: MIT
#pragma once

class QAccessibleInterface;
class QObject;
class QString;

/// Tells screen readers that a window of ours is a window and that what is painted is a picture: to
/// the toolkit both are plain widgets, which say nothing. A factory for QAccessible; null for
/// everything else.
QAccessibleInterface* LMMakeAccessibleInterface(const QString& className, QObject* object);
