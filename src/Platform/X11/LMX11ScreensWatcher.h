// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11ScreenSettling.h"

#include <QHash>
#include <QObject>
#include <QPair>
#include <QRect>
#include <QSizeF>
#include <QTimer>

#include <xcb/randr.h>

/// Listens for changes of the monitors and says when they have come to rest.
///
/// While nothing changes it costs nothing: no timer runs, and moved windows are reported by the
/// server only from the first sign of a change until things are settled.
class LMX11ScreensWatcher final : public QObject {
    Q_OBJECT
public:
    explicit LMX11ScreensWatcher(LMX11Connection& connection);

    /// The root window's scale. The protocol tells it when it changes but has no question for it.
    QSizeF millimetresPerPixel() const { return m_millimetresPerPixel; }

Q_SIGNALS:
    /// With whether a monitor took more than one state on the way.
    void settled(bool haveFlickered);

private:
    void handle(const xcb_generic_event_t& event);
    void noteRootSize(const QSizeF& pixels, const QSizeF& millimetres);
    void screensChanged();
    void noteMonitorState(const xcb_randr_crtc_change_t& change);
    void checkWhetherSettled();
    void waitUntilDeadline();

    LMX11Connection& m_connection;
    LMX11Connection::Subscription m_subscription;
    LMX11ScreenSettling m_settling;
    QTimer m_timer;
    /// What each CRTC was reported to show since the burst began (mode, place, size), and whether
    /// any was reported to show two different things.
    QHash<xcb_randr_crtc_t, std::pair<xcb_randr_mode_t, QRect>> m_monitorStates;
    bool m_haveFlickered = false;
    QSizeF m_millimetresPerPixel;
};
