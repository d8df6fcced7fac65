// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11ScreenSettling.h"

#include <QObject>
#include <QSizeF>
#include <QTimer>

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
    void settled();

private:
    void handle(const xcb_generic_event_t& event);
    void noteRootSize(const QSizeF& pixels, const QSizeF& millimetres);
    void screensChanged();
    void checkWhetherSettled();
    void waitUntilDeadline();

    LMX11Connection& m_connection;
    LMX11Connection::Subscription m_subscription;
    LMX11ScreenSettling m_settling;
    QTimer m_timer;
    QSizeF m_millimetresPerPixel;
};
