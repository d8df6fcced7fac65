// SPDX-License-Identifier: MIT
#include "UserInterface/WindowLinking/LMScreenshotLoader.h"

#include "Categories/LMImageAdditions.h"
#include "Model/LMScreenshots.h"

#include <QThread>

namespace {

LMLoadedScreenshot load(const QString& path, const QRectF& area, double scale) {
    LMLoadedScreenshot screenshot;
    const QImage whole = LMLoadScreenshot(path);
    screenshot.size = QSizeF(whole.size()) / scale;
    const QSizeF shown = LMImageAdditions(screenshot.size).frameForRect(area).size() * scale;
    if (!shown.isEmpty())
        screenshot.image =
            whole.scaled(shown.toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    return screenshot;
}

} // namespace

LMScreenshotLoader::LMScreenshotLoader(QObject* parent) : QObject(parent) {
    m_pool.setMaxThreadCount(2);
    m_pool.setThreadPriority(QThread::LowPriority);
}

LMScreenshotLoader::~LMScreenshotLoader() {
    m_pool.clear();
    m_pool.waitForDone();
}

void LMScreenshotLoader::load(const QString& path, const QRectF& area, double scale,
                              Handler handler) {
    m_pool.start([this, path, area, scale, generation = m_generation,
                  finish = std::move(handler)]() mutable {
        auto deliver = [this, generation, screenshot = ::load(path, area, scale),
                        finish = std::move(finish)] {
            if (generation == m_generation)
                finish(screenshot);
        };
        QMetaObject::invokeMethod(this, std::move(deliver), Qt::QueuedConnection);
    });
}

void LMScreenshotLoader::cancel() {
    m_pool.clear();
    ++m_generation;
}
