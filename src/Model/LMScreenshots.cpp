// SPDX-License-Identifier: MIT
#include "Model/LMScreenshots.h"

#include "Model/LMWindow.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMFolders.h"
#include "Utilities/LMLogger.h"
#include "Utilities/LMRectangle.h"

#include <QFileInfo>
#include <QImageReader>
#include <QSaveFile>

namespace {

/// Reading from anything else, a pipe above all, may never end.
bool isReadable(const QString& path) {
    return !path.isEmpty() && QFileInfo(path).isFile();
}

QImage defaultWindow() {
    return QImage(QStringLiteral(":/rook/DefaultWindow.png"));
}

/// Writes the whole file or none, for the owner's eyes only; the reason of a failure is logged.
bool writePicture(const QImage& image, const QString& path, const LMLogger& logger) {
    constexpr auto OwnerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.setPermissions(OwnerOnly) &&
        image.save(&file, "PNG") && file.commit())
        return true;
    logger.error(QStringLiteral("Screenshot not written to %@: %@"), {path, file.errorString()});
    return false;
}

} // namespace

LMScreenshot LMTakeScreenshot(LMEnvironment& environment,
                              const QList<LMWindowDescription>& descriptions, const QRectF& frame) {
    for (qsizetype index = 0; index < descriptions.size(); ++index) {
        const LMWindowDescription& description = descriptions[index];
        if (description.number == 0 || !LMRectsEqual(description.bounds, frame))
            continue;
        const QImage image = environment.desktop.windowServer().imageOfWindow(description.number);
        if (!image.isNull())
            return {index, image};
    }
    return {};
}

QImage LMLoadScreenshot(const QString& path) {
    QImage image;
    if (isReadable(path))
        image.load(path);
    return image.isNull() ? defaultWindow() : image;
}

QSize LMScreenshotSize(const QString& path) {
    const QSize size = isReadable(path) ? QImageReader(path).size() : QSize();
    return size.isEmpty() ? defaultWindow().size() : size;
}

bool LMAttachScreenshot(const QImage& image, LMWindow& window) {
    const LMEnvironment& environment = window.environment();
    const QString path = environment.folders.uniqueScreenshotURL();
    if (path.isNull()) {
        environment.logger.error(QStringLiteral("No place for a screenshot"));
        return false;
    }
    if (!writePicture(image, path, environment.logger))
        return false;
    window.setScreenshotFilename(QFileInfo(path).fileName());
    return true;
}
