// SPDX-License-Identifier: MIT
#include "Model/LMWorkspace.h"

#include "Categories/LMScreenAdditions.h"
#include "Model/LMDisplay.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMLogger.h"
#include "Utilities/LMRectangle.h"

#include <algorithm>
#include <limits>

// Displays are described by global bounds (y down), screens are compared by their frames (origin at
// the bottom left of the main screen). For the main display both are the same; of the others only
// the sizes are compared.

namespace {

QRectF boundsOfDisplay(const LMDisplay* display) {
    return LMRectFromString(display->displayBounds());
}

bool isAtOrigin(const QRectF& rect) {
    return rect.x() == 0.0 && rect.y() == 0.0;
}

std::vector<QRectF> boundsMainFirst(const std::vector<LMDisplay*>& displays) {
    std::vector<QRectF> bounds;
    std::transform(displays.begin(), displays.end(), std::back_inserter(bounds), boundsOfDisplay);
    // Otherwise a display of the main one's size could take the main screen.
    std::stable_partition(bounds.begin(), bounds.end(), isAtOrigin);
    return bounds;
}

QList<LMScreen>::iterator firstScreenWithSize(QList<LMScreen>& screens, const QSizeF& size) {
    return std::find_if(screens.begin(), screens.end(), [&](const LMScreen& screen) {
        return LMSizesEqual(screen.frame.size(), size);
    });
}

qint32 truncated(double coordinate) {
    constexpr double limit = std::numeric_limits<qint32>::max();
    return static_cast<qint32>(std::clamp(coordinate, -limit, limit));
}

/// Where the secondary displays stood, sorted by their bounds' text.
std::vector<QRectF> secondaryBounds(std::vector<LMDisplay*> displays) {
    std::sort(displays.begin(), displays.end(), [](const LMDisplay* a, const LMDisplay* b) {
        return a->displayBounds() < b->displayBounds();
    });
    std::vector<QRectF> bounds;
    std::transform(displays.begin(), displays.end(), std::back_inserter(bounds), boundsOfDisplay);
    const auto main = std::find_if(bounds.begin(), bounds.end(), isAtOrigin);
    if (main != bounds.end())
        bounds.erase(main);
    return bounds;
}

/// The attached secondary screens, sorted by their bounds' text.
QList<LMScreen> secondaryScreens(QList<LMScreen> screens) {
    std::sort(screens.begin(), screens.end(), [](const LMScreen& a, const LMScreen& b) {
        return LMScreenAdditions(&a).displayBounds() < LMScreenAdditions(&b).displayBounds();
    });
    const auto main = std::find_if(screens.begin(), screens.end(),
                                   [](const LMScreen& screen) { return isAtOrigin(screen.frame); });
    if (main != screens.end())
        screens.erase(main);
    return screens;
}

bool configureOrigins(LMDisplayConfiguration& configuration, const std::vector<QRectF>& bounds,
                      QList<LMScreen> screens) {
    for (const QRectF& rect : bounds) {
        const auto screen = firstScreenWithSize(screens, rect.size());
        if (screen == screens.end())
            continue;
        if (!configuration.configureDisplayOrigin(screen->displayID, truncated(rect.x()),
                                                  truncated(rect.y())))
            return false;
        screens.erase(screen);
    }
    return true;
}

} // namespace

bool LMDisplaysCanBeArranged(const std::vector<LMDisplay*>& displays, QList<LMScreen> screens) {
    if (displays.size() < 2 || displays.size() != static_cast<std::size_t>(screens.size()))
        return false;
    for (const QRectF& bounds : boundsMainFirst(displays)) {
        if (isAtOrigin(bounds)) {
            if (!screens.isEmpty() && !LMRectsEqual(screens.constFirst().frame, bounds))
                return false;
            if (!screens.isEmpty())
                screens.removeFirst();
            continue;
        }
        const auto screen = firstScreenWithSize(screens, bounds.size());
        if (screen != screens.end())
            screens.erase(screen);
    }
    return screens.isEmpty();
}

bool LMWorkspace::isCurrentWorkspace() const {
    QStringList bounds;
    for (const LMDisplay* display : m_displays)
        bounds.append(display->displayBounds());
    return LMDisplayBoundsAreEqual(bounds, LMDisplay::currentBounds(environment()));
}

bool LMWorkspace::canBecomeCurrentWorkspace() const {
    LMScreens& platform = environment().desktop.screens();
    return !isCurrentWorkspace() && platform.canArrangeDisplays() &&
           LMDisplaysCanBeArranged(m_displays, platform.screens());
}

void LMWorkspace::makeCurrentWorkspace() {
    if (!canBecomeCurrentWorkspace())
        return;
    LMScreens& platform = environment().desktop.screens();
    const std::vector<QRectF> bounds = secondaryBounds(m_displays);
    const QList<LMScreen> screens = secondaryScreens(platform.screens());
    const std::unique_ptr<LMDisplayConfiguration> configuration =
        platform.beginDisplayConfiguration();
    if (!configuration || !configureOrigins(*configuration, bounds, screens) ||
        !configuration->completePermanently())
        environment().logger.warning(QStringLiteral("The displays of \"%@\" were not arranged"),
                                     {name()});
}
