// SPDX-License-Identifier: MIT
#pragma once

class QDBusMessage;
class QString;

/// The call that has the desktop show the user a message (method Notify of
/// org.freedesktop.Notifications). Plain texts; the body may be empty.
QDBusMessage LMDesktopMessage(const QString& summary, const QString& body);
