// SPDX-License-Identifier: MIT
#include "Platform/LMAppearance.h"

#include <QRegularExpression>

LMAppearance LMAppearanceFromTheme(const QString& themeName, const QString& fontName) {
    // Themes have no other way to say it; the convention is as old as dark themes are.
    static const QRegularExpression dark(QStringLiteral("(^|[^a-z])(dark|black|noir)($|[^a-z])"),
                                         QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression font(
        QStringLiteral("^(.+?),?(?: +(?:Regular|Book|Medium|Light|Bold|Italic|Oblique))* +"
                       "([0-9]+(?:\\.[0-9]+)?)$"));
    LMAppearance appearance;
    appearance.isDark = themeName.contains(dark);
    const QRegularExpressionMatch match = font.match(fontName.simplified().left(200));
    const double size = match.captured(2).toDouble();
    if (size >= 4 && size <= 72) {
        appearance.fontFamily = match.captured(1);
        appearance.fontSize = size;
    }
    return appearance;
}
