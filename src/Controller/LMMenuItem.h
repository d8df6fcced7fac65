// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

/// What an entry of the status menu does.
enum class LMMenuCommand {
    None,
    RestoreAllWindows,
    RestoreActiveApplicationWindows,
    StoreActiveApplicationWindows,
    StoreActiveWindow,
    LinkActiveWindow,
    StoreAllWindows,
    ShowStoredWindowsEditor,
    ShowPreferencesWindow,
    ShowAboutPanel,
    CheckForUpdates,
    Quit,
};

struct LMMenuItem {
    int tag = 0; ///< 0 for entries that need none.
    LMMenuCommand command = LMMenuCommand::None;
    QString title = {}; ///< Plain text; an ampersand is an ampersand.
    bool isEnabled = true;
    bool isSeparator = false;
    /// For a place of 16 × 16 points. In device pixels, its device pixel ratio set: sharp up to 3×.
    /// May be null.
    QImage image = {};
    QString representedObject = {}; ///< The information line's application identifier.
};
