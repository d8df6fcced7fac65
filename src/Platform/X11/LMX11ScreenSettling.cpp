// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11ScreenSettling.h"

#include <algorithm>

void LMX11ScreenSettling::screensChanged(TimePoint now) {
    if (!m_firstEvent)
        m_firstEvent = now;
    m_lastEvent = now;
}

void LMX11ScreenSettling::desktopStirred(TimePoint now) {
    m_lastEvent = now;
}

std::optional<LMX11ScreenSettling::TimePoint> LMX11ScreenSettling::deadline() const {
    if (!m_firstEvent)
        return std::nullopt;
    return std::min(m_lastEvent + quietTime, *m_firstEvent + longestTime);
}

bool LMX11ScreenSettling::settle(TimePoint now) {
    if (!m_firstEvent || now < *deadline())
        return false;
    m_firstEvent.reset();
    return true;
}
