// SPDX-License-Identifier: MIT
#include "Controller/LMDesktopMessage.h"

#include <QDBusMessage>

QDBusMessage LMDesktopMessage(const QString& summary, const QString& body) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"),
        QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    constexpr int DefaultTimeout = -1;
    message.setArguments({QStringLiteral("Rook"), 0U, QStringLiteral("org.rook.Rook"), summary,
                          body.toHtmlEscaped(), QStringList(), QVariantMap(), DefaultTimeout});
    return message;
}
