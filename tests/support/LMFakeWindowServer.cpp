// SPDX-License-Identifier: MIT
#include "support/LMFakeServices.h"

#include <algorithm>
#include <functional>

namespace {

class LMFakeWindowServer final : public LMWindowServer {
public:
    explicit LMFakeWindowServer(LMFakeWorld& world) : m_world(world) {}

    QList<LMWindowDescription> onScreenWindowDescriptions() override {
        QList<LMWindowDescription> descriptions;
        for (const quint32 number : std::as_const(m_world.stacking)) {
            const LMFakeWindow& window = m_world.windows[number];
            if (m_world.isInSight(window))
                descriptions.append(
                    {m_world.application(window.bundleIdentifier)->processIdentifier, window.frame,
                     number, std::max(m_world.layerOf(window), 0)});
        }
        std::ranges::stable_sort(descriptions, std::greater(), &LMWindowDescription::layer);
        return descriptions;
    }
    QImage imageOfWindow(quint32 number) override {
        const LMFakeWindow window = m_world.windows.value(number, {.hasImage = false});
        if (!window.hasImage)
            return QImage();
        QImage image(window.frame.size().toSize(), QImage::Format_RGB32);
        image.fill(0xff000000u | number);
        return image;
    }

private:
    LMFakeWorld& m_world;
};

} // namespace

std::unique_ptr<LMWindowServer> LMMakeFakeWindowServer(LMFakeWorld& world) {
    return std::make_unique<LMFakeWindowServer>(world);
}
