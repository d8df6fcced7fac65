// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// How the user's desktop wants windows to look. Empty or 0 where it does not say.
struct LMAppearance {
    bool isDark = false;
    QString fontFamily;
    double fontSize = 0; ///< Points.
    /// Whether what stands below a translucent window shows through it.
    bool isComposited = false;

    bool operator==(const LMAppearance&) const = default;
};

/// From the texts that desktops publish: the name of a theme ("Adwaita-dark") and a font ("Noto
/// Sans Medium 10").
LMAppearance LMAppearanceFromTheme(const QString& themeName, const QString& fontName);
