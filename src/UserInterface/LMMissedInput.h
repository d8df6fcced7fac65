// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

/// Drops what the user pressed while Rook stood still: it was meant for the windows as they were
/// then. By the time it arrives the selection, or the whole window, may be another one.
class LMMissedInput final : public QObject {
    Q_OBJECT
public:
    /// Call it at the end of work that has let no event through. Keys, buttons and wheels do
    /// nothing in all of our windows until what was waiting has arrived.
    static void drop();

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    using QObject::QObject;
};
