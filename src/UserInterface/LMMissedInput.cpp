// SPDX-License-Identifier: MIT
#include "UserInterface/LMMissedInput.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

namespace {

/// A thread of the toolkit receives events, so they may be a bit behind. Nobody is faster than
/// this with a key that is meant for what the work has led to.
constexpr int Arrival = 50; // milliseconds

} // namespace

void LMMissedInput::drop() {
    QCoreApplication* application = QCoreApplication::instance();
    auto* filter = new LMMissedInput(application);
    application->installEventFilter(filter);
    QTimer::singleShot(Arrival, filter, &QObject::deleteLater);
}

bool LMMissedInput::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::ContextMenu:
    case QEvent::Wheel:
        return true;
    default:
        return false;
    }
}
