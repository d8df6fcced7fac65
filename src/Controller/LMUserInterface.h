// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LMProgress.h"

#include <QString>

/// The window that shows how far a long operation is.
class LMProgressWindow : public LMProgress {
public:
    virtual void setLabel(const QString& label) = 0;
    /// Whether the number of steps is unknown.
    virtual void setIndeterminate(bool isIndeterminate) = 0;
    virtual void showWindow() = 0;
    virtual void close() = 0;
};

/// What the controller asks of whatever faces the user: questions, messages, progress.
///
/// The widgets implement it; without them LMWindowlessUserInterface does.
class LMUserInterface {
public:
    virtual ~LMUserInterface() = default;

    virtual LMProgressWindow& progressWindow() = 0;

    /// Asks whether something stored shall be replaced; true is "Replace". With the suppression
    /// key (a user default) set, answers true without asking. Ticking the suppression box sets the
    /// key, whichever button was pressed.
    virtual bool confirmReplacement(const QString& suppressionKey, const QString& message,
                                    const QString& informativeText) = 0;

    /// Says that something succeeded, unless the suppression key is set.
    virtual void reportSuccess(const QString& suppressionKey, const QString& message,
                               const QString& informativeText) = 0;

    /// The store has changed: whatever lists show it read it again.
    virtual void reloadTableViews() = 0;
};
