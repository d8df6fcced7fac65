// SPDX-License-Identifier: MIT
#include "Utilities/LMNotificationCenter.h"

#include <utility>

void LMNotificationCenter::postNotification(const QString& name) {
    Q_EMIT posted(name);
}

QMetaObject::Connection LMNotificationCenter::addObserver(const QString& name, QObject* context,
                                                          std::function<void()> handler) {
    return connect(
        this, &LMNotificationCenter::posted, context,
        [name, handler = std::move(handler)](const QString& postedName) {
            if (postedName == name)
                handler();
        },
        Qt::DirectConnection);
}
