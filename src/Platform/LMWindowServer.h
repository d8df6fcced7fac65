// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMPlatformTypes.h"

#include <QImage>

#include <memory>

/// One window as it stands on the screen now.
struct LMWindowDescription {
    qint64 ownerProcessIdentifier = 0; ///< The process that stands for the owning application.
    QRectF bounds;                     ///< The frame the user sees, global pixels, y down.
    quint32 number = 0;                ///< The window server's number of the window; 0 is none.
    int layer = 0;                     ///< 0 for ordinary windows, higher for those kept above.
};

/// Something goes on for as long as it, or a copy of it, lives.
using LMKeptPictures = std::shared_ptr<void>;

/// What the window server knows of all windows, whoever owns them.
class LMWindowServer {
public:
    virtual ~LMWindowServer() = default;

    /// The windows that are on screen now, front to back, without desktop windows and docks. A
    /// minimised window or one on another virtual desktop is not on screen.
    virtual QList<LMWindowDescription> onScreenWindowDescriptions() = 0;

    /// The picture of one window without its shadow, or a null image. Where the server keeps no
    /// copy of covered windows, the picture shows what is visible at the window's place.
    virtual QImage imageOfWindow(quint32 number) = 0;

    /// Keeps whole pictures of all windows, whatever covers them, our own windows included. What
    /// was covered before is in the picture as soon as its application has drawn it. The answer
    /// must not outlive the desktop; it is empty where such pictures cannot be had.
    virtual LMKeptPictures keepPictures() { return {}; }
};
