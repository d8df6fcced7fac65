// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QObject>
#include <QRectF>
#include <QThreadPool>

#include <functional>

/// A screenshot made ready to be drawn.
struct LMLoadedScreenshot {
    QSizeF size;  ///< Of the whole picture, in device-independent pixels.
    QImage image; ///< No larger than it is drawn, in the screen's pixels.
};

/// Reads pictures of windows and makes them as small as they are shown, beside the main thread:
/// large ones take tens of milliseconds each.
class LMScreenshotLoader final : public QObject {
    Q_OBJECT
public:
    using Handler = std::function<void(const LMLoadedScreenshot&)>;

    explicit LMScreenshotLoader(QObject* parent = nullptr);
    ~LMScreenshotLoader() override;

    /// Loads the picture at the path, or the default one, to be fitted into the area (its origin at
    /// the bottom left), and hands it over on the main thread. Pictures come in the order in which
    /// they were asked for, more or less.
    void load(const QString& path, const QRectF& area, double scale, Handler handler);

    /// No handler is called any more that was given before.
    void cancel();

private:
    QThreadPool m_pool;
    quint64 m_generation = 0;
};
