// SPDX-License-Identifier: MIT
#include "Model/LMAction.h"

#include "Platform/LMIconTheme.h"
#include "Utilities/LMBaseDirectories.h"

namespace {

constexpr int IconPoints = 16;
constexpr int IconScale = 3; // Sharp up to three device pixels per point.

} // namespace

// The names are those of the shared MIME-info database's generic icons and of its own type.
QImage LMAction::iconForScripts(const QString& runAs) {
    constexpr int Size = IconPoints * IconScale;
    const bool isAppleScript = runAs == QLatin1String("AppleScript");
    LMIconTheme theme(LMDataDirectories(), LMIconThemeNameFromSettings(LMConfigDirectories()));
    const QString name = isAppleScript ? QStringLiteral("text-x-script")
                                       : QStringLiteral("application-x-executable");
    QImage image = LMSquareImageFromFile(theme.pathOfIcon(name, Size), Size);
    if (image.isNull())
        image = LMSquareImage(QImage(QStringLiteral(":/rook/GenericApplicationIcon.png")), Size);
    image.setDevicePixelRatio(IconScale);
    return image;
}
