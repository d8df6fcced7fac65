// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMWindowServer.h"

#include <QImage>
#include <QList>

class LMWindow;
struct LMEnvironment;

/// A picture of one of the windows of a list; index -1 stands for none.
struct LMScreenshot {
    qsizetype index = -1;
    QImage image;
};

/// Takes a picture of the first window that stands exactly at the frame and can be pictured.
/// Nothing but the frame tells which description belongs to which window.
LMScreenshot LMTakeScreenshot(LMEnvironment& environment,
                              const QList<LMWindowDescription>& descriptions, const QRectF& frame);

/// The picture at a path, or the "DefaultWindow" image where none can be read. Any thread.
QImage LMLoadScreenshot(const QString& path);
/// The size of that picture, from the beginning of its file: fast, but a damaged file may turn out
/// to hold no picture.
QSize LMScreenshotSize(const QString& path);

/// Writes the picture to a new PNG file in the screenshots folder and gives the window its name.
/// When that fails it is logged, the window keeps the name it has, and the answer is false.
bool LMAttachScreenshot(const QImage& image, LMWindow& window);
