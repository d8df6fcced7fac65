// SPDX-License-Identifier: MIT
#include "contract/LMContractBackend.h"
#include "support/LMFakeDesktop.h"

namespace {

/// Furnishes the fake desktop.
class LMFakeContractBackend final : public LMContractBackend {
public:
    LMFakeContractBackend() {
        m_desktop.setScreens({QRectF(0, 0, 1920, 1080), QRectF(-1440, 90, 1440, 900)});
    }
    LMDesktop& desktop() override { return m_desktop; }
    LMElement openWindow(const LMContractWindow& window) override;
    void closeWindow(const LMElement& window) override { m_desktop.removeWindow(window); }
    void setTitle(const LMElement& window, const QString& title) override {
        m_desktop.window(window).title = title;
    }
    void setState(const LMElement& window, const LMWindowState& state) override {
        m_desktop.world().changeState(m_desktop.window(window), state);
        m_desktop.world().keepFocusInSight();
    }
    void raise(const LMElement& window) override { m_desktop.focus(window); }
    QRectF visibleFrame(const LMElement& window) override { return m_desktop.window(window).frame; }
    LMWindowState visibleState(const LMElement& window) override {
        return m_desktop.window(window).state;
    }
    LMContractView view() override {
        const LMFakeWorld& world = m_desktop.world();
        return {world.currentDesktop, {LMElement::Kind::Window, world.focusedWindow.value_or(0)}};
    }
    QList<QRectF> monitors() override {
        QList<QRectF> rectangles;
        for (const LMScreen& screen : std::as_const(m_desktop.world().screens))
            rectangles.append(screen.displayBounds);
        return rectangles;
    }

private:
    LMFakeDesktop m_desktop;
};

LMElement LMFakeContractBackend::openWindow(const LMContractWindow& window) {
    using Kind = LMContractWindow::Kind;
    const bool isUtility = window.kind == Kind::Utility;
    if (!m_desktop.world().application(window.application))
        m_desktop.addApplication(window.application, {},
                                 isUtility ? LMActivationPolicy::Accessory
                                           : LMActivationPolicy::Regular);
    const LMElement element = m_desktop.addWindow(
        window.application, {.title = window.title,
                             .frame = {200, 150, 400, 300},
                             .subrole = isUtility                     ? u"AXFloatingWindow"_qs
                                        : window.kind == Kind::Dialog ? u"AXDialog"_qs
                                                                      : u"AXStandardWindow"_qs,
                             .hasGrowArea = window.isResizable,
                             .isModal = window.isModal,
                             .hasImmutableSize = !window.isResizable});
    m_desktop.focus(element);
    return element;
}

} // namespace

std::unique_ptr<LMContractBackend> LMMakeFakeContractBackend() {
    return std::make_unique<LMFakeContractBackend>();
}
