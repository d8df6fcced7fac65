// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>

/// Decides when a change of the screens has come to rest. It has no clock and no timer of its own:
/// whoever owns it says what time it is, and asks again at the deadline.
///
/// RandR reports one change in several events, monitors wake in steps, and afterwards the window
/// manager shoves windows about. All of it is one burst; it ends when nothing has stirred for a
/// while, or at last after a fixed time, for some desktops never come to rest.
class LMX11ScreenSettling {
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    static constexpr std::chrono::milliseconds quietTime{300};
    static constexpr std::chrono::milliseconds longestTime{3000}; ///< After the first event.

    /// A monitor has changed: begins a burst, or prolongs the one under way.
    void screensChanged(TimePoint now);

    /// The work area has changed or a window has been moved: prolongs a burst, never begins one.
    void desktopStirred(TimePoint now);

    bool isUnsettled() const { return m_firstEvent.has_value(); }

    /// When the burst ends if nothing more happens; none while settled.
    std::optional<TimePoint> deadline() const;

    /// True once per burst: when its end has come.
    bool settle(TimePoint now);

private:
    std::optional<TimePoint> m_firstEvent;
    TimePoint m_lastEvent;
};
