// SPDX-License-Identifier: MIT
#include "UserInterface/Editing/LMPassingMenu.h"

#include <QCloseEvent>
#include <QCoreApplication>

void LMPassingMenu::closeEvent(QCloseEvent* event) {
    hide();
    event->ignore();
}

bool LMPassingMenu::event(QEvent* event) {
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease ||
                       event->type() == QEvent::ShortcutOverride;
    QWidget* next = isKey && !isVisible() ? parentWidget()->window()->focusWidget() : nullptr;
    return next ? QCoreApplication::sendEvent(next, event) : QMenu::event(event);
}
