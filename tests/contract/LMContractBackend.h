// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMDesktop.h"
#include "support/LMDesktopTools.h"

#include <QRect>
#include <QSize>

#include <memory>
#include <vector>

/// A window of 400 by 300 pixels that a test asks for. The desktop chooses its place.
struct LMContractWindow {
    enum class Kind { Standard, Dialog, Utility, ClientDecorated };

    QString application = QStringLiteral("first"); ///< Its identifier.
    QString title = QStringLiteral("Window");
    Kind kind = Kind::Standard;
    int gravity = 1; ///< As in the ICCCM: 1 is north-west, 10 is static.
    QSize increment{1, 1};
    bool isResizable = true;
    bool isModal = false;
};

/// What the user has in view.
struct LMContractView {
    int currentDesktop = 0;
    LMElement activeWindow;

    bool operator==(const LMContractView&) const = default;
};

/// What the contract tests need beside the desktop under test: a hand that opens and changes
/// windows as users and other programs do, and eyes that do not look through the desktop.
class LMContractBackend {
public:
    virtual ~LMContractBackend() = default;

    virtual LMDesktop& desktop() = 0;

    /// Opens a window and returns when it has come to rest.
    virtual LMElement openWindow(const LMContractWindow& window) = 0;
    virtual void closeWindow(const LMElement& window) = 0;
    virtual void setTitle(const LMElement& window, const QString& title) = 0;
    /// Returns when the window is so for everybody.
    virtual void setState(const LMElement& window, const LMWindowState& state) = 0;
    void minimize(const LMElement& window) {
        LMWindowState state = visibleState(window);
        state.isMinimized = true;
        setState(window, state);
    }
    /// Brings the window to the front and gives it the focus.
    virtual void raise(const LMElement& window) = 0;

    /// The frame that the user sees, global pixels.
    virtual QRectF visibleFrame(const LMElement& window) = 0;
    /// Without the normal frame and the desktop's name.
    virtual LMWindowState visibleState(const LMElement& window) = 0;
    bool isMinimized(const LMElement& window) { return visibleState(window).isMinimized; }
    virtual LMContractView view() = 0;
    /// The monitors' rectangles, global pixels, in any order.
    virtual QList<QRectF> monitors() = 0;
};

struct LMContractBackendFactory {
    const char* name;
    std::unique_ptr<LMContractBackend> (*create)();
};

std::unique_ptr<LMContractBackend> LMMakeFakeContractBackend();
std::unique_ptr<LMContractBackend> LMMakeX11ContractBackend();

/// Every back end that this build has.
std::vector<LMContractBackendFactory> LMContractBackends();
