// SPDX-License-Identifier: MIT
#include "UserInterface/LMAccessibleRoles.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace {

/// A widget may be given its parent later.
class PlainInterface final : public QAccessibleWidget {
public:
    explicit PlainInterface(QWidget* widget) : QAccessibleWidget(widget) {}

    QAccessible::Role role() const override {
        return widget()->isWindow() ? QAccessible::Window : QAccessibleWidget::role();
    }
};

} // namespace

QAccessibleInterface* LMMakeAccessibleInterface(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget)
        return nullptr;
    if (className == QLatin1String("LMDisplayView") ||
        className == QLatin1String("LMScreenshotView"))
        return new QAccessibleWidget(widget, QAccessible::Graphic);
    // Asked for each class from the most special to the most general.
    return className == QLatin1String("QWidget") ? new PlainInterface(widget) : nullptr;
}
