// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMPlatformTypes.h"
#include "Platform/X11/LMX11Window.h"

#include <QStringList>

/// The value of one attribute of a window that was read before. The frame is in global pixels.
LMPlatformResult<LMAttributeValue>
LMX11WindowAttribute(const LMX11Window& window, const QRectF& frame, QLatin1String attribute);

/// The value of one attribute of a window's child.
LMPlatformResult<LMAttributeValue> LMX11ChildAttribute(const LMX11Window& window, int index,
                                                       QLatin1String attribute);

/// The roles of a window's children, in fixed order.
QStringList LMX11ChildRoles(const LMX11WindowStructure& structure);
