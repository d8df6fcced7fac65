// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11ScreensLayout.h"

#include "Platform/LMEdid.h"
#include "Platform/X11/LMX11Coordinates.h"

#include <QCryptographicHash>
#include <QtEndian>

#include <algorithm>

namespace {

const LMX11Output* outputWithIdentifier(const LMX11ScreensSnapshot& snapshot, quint32 identifier) {
    const auto found =
        std::find_if(snapshot.outputs.begin(), snapshot.outputs.end(),
                     [=](const auto& each) { return each.identifier == identifier; });
    return found == snapshot.outputs.end() ? nullptr : &*found;
}

/// What a server with RandR 1.5 would list: one monitor for each lit CRTC.
QList<LMX11Monitor> monitorsFromCrtcs(const LMX11ScreensSnapshot& snapshot) {
    QList<LMX11Monitor> monitors;
    for (const LMX11Crtc& crtc : snapshot.crtcs) {
        if (!crtc.isLit())
            continue;
        LMX11Monitor monitor;
        monitor.geometry = crtc.geometry;
        monitor.outputs = crtc.outputs;
        monitor.isPrimary = crtc.outputs.contains(snapshot.primaryOutput);
        monitors.append(monitor);
    }
    return monitors;
}

quint32 displayIDOfMonitor(const LMX11Monitor& monitor) {
    if (!monitor.outputs.isEmpty())
        return monitor.outputs.first();
    const QByteArray hash =
        QCryptographicHash::hash(monitor.name.toUtf8(), QCryptographicHash::Sha1);
    return qFromBigEndian<quint32>(hash.constData()) | 0x80000000U;
}

LMX11Display displayFromMonitor(const LMX11Monitor& monitor, const LMX11ScreensSnapshot& snapshot) {
    LMX11Display display;
    display.displayID = displayIDOfMonitor(monitor);
    display.name = monitor.name;
    if (const LMX11Output* output = outputWithIdentifier(snapshot, display.displayID))
        display.name = output->name;
    display.geometry = monitor.geometry;
    display.outputs = monitor.outputs;
    return display;
}

bool isMirrored(const LMX11Display& display, const LMX11Monitor& monitor) {
    return display.geometry.topLeft() == monitor.geometry.topLeft() &&
           display.geometry.contains(monitor.geometry);
}

/// The largest monitors first, so that each mirror meets what it mirrors.
void sortForMirroring(QList<LMX11Monitor>& monitors) {
    const auto key = [](const LMX11Monitor& monitor) {
        const qint64 area = qint64(monitor.geometry.width()) * monitor.geometry.height();
        return std::pair(-area, displayIDOfMonitor(monitor));
    };
    std::stable_sort(monitors.begin(), monitors.end(),
                     [&](const auto& a, const auto& b) { return key(a) < key(b); });
}

QList<LMX11Display> displaysFromMonitors(QList<LMX11Monitor> monitors,
                                         const LMX11ScreensSnapshot& snapshot) {
    sortForMirroring(monitors);
    QList<LMX11Display> displays;
    for (const LMX11Monitor& monitor : std::as_const(monitors)) {
        const auto mirrored =
            std::find_if(displays.begin(), displays.end(),
                         [&](const auto& display) { return isMirrored(display, monitor); });
        if (mirrored == displays.end())
            displays.append(displayFromMonitor(monitor, snapshot));
        else
            mirrored->outputs += monitor.outputs;
    }
    return displays;
}

void addCrtcs(LMX11Display& display, const LMX11ScreensSnapshot& snapshot) {
    QRect picture;
    for (const LMX11Crtc& crtc : snapshot.crtcs) {
        const bool isOurs =
            std::any_of(crtc.outputs.begin(), crtc.outputs.end(),
                        [&](quint32 each) { return display.outputs.contains(each); });
        if (!crtc.isLit() || !isOurs)
            continue;
        display.crtcs.append(crtc.identifier);
        picture |= crtc.geometry;
    }
    display.canMove = !display.crtcs.isEmpty() && picture == display.geometry;
}

QRect mainGeometry(const QList<LMX11Monitor>& monitors) {
    const auto primary = std::find_if(monitors.begin(), monitors.end(),
                                      [](const auto& monitor) { return monitor.isPrimary; });
    return (primary == monitors.end() ? monitors.first() : *primary).geometry;
}

LMX11Display rootDisplay(const LMX11ScreensSnapshot& snapshot) {
    LMX11Display display;
    display.displayID = snapshot.rootWindow;
    display.name = QStringLiteral("root");
    display.geometry = QRect(QPoint(), snapshot.rootSize);
    return display;
}

/// The part of the root window that the strut reserves.
QRect reservedByStrut(const LMX11Strut& strut, const QSize& root) {
    const int length = strut.last - strut.first + 1;
    switch (strut.edge) {
    case Qt::LeftEdge:
        return QRect(0, strut.first, strut.thickness, length);
    case Qt::RightEdge:
        return QRect(root.width() - strut.thickness, strut.first, strut.thickness, length);
    case Qt::TopEdge:
        return QRect(strut.first, 0, length, strut.thickness);
    case Qt::BottomEdge:
        return QRect(strut.first, root.height() - strut.thickness, length, strut.thickness);
    }
    return {};
}

/// Cuts the strip off the area. A strut is measured from the edge of the root window: one that
/// belongs to a monitor further in covers this one from edge to edge, and does not count here.
void cutStrut(QRect& area, const QRect& display, const LMX11Strut& strut, const QSize& root) {
    const QRect reserved = reservedByStrut(strut, root) & display;
    const bool isHorizontal = strut.edge == Qt::TopEdge || strut.edge == Qt::BottomEdge;
    const bool coversAll =
        isHorizontal ? reserved.height() >= display.height() : reserved.width() >= display.width();
    if (reserved.isEmpty() || coversAll)
        return;
    switch (strut.edge) {
    case Qt::LeftEdge:
        area.setLeft(std::max(area.left(), reserved.right() + 1));
        break;
    case Qt::RightEdge:
        area.setRight(std::min(area.right(), reserved.left() - 1));
        break;
    case Qt::TopEdge:
        area.setTop(std::max(area.top(), reserved.bottom() + 1));
        break;
    case Qt::BottomEdge:
        area.setBottom(std::min(area.bottom(), reserved.top() - 1));
        break;
    }
}

QRect largestPart(const QRect& display, const QList<QRect>& areas) {
    QRect best;
    for (const QRect& area : areas) {
        const QRect part = area & display;
        if (qint64(part.width()) * part.height() > qint64(best.width()) * best.height())
            best = part;
    }
    return best;
}

} // namespace

QList<LMX11Display> LMX11DisplaysFromSnapshot(const LMX11ScreensSnapshot& snapshot) {
    QList<LMX11Monitor> monitors = snapshot.monitors;
    if (monitors.isEmpty())
        monitors = monitorsFromCrtcs(snapshot);
    monitors.removeIf([](const auto& monitor) { return monitor.geometry.isEmpty(); });
    if (monitors.isEmpty())
        return {rootDisplay(snapshot)};
    QList<LMX11Display> displays = displaysFromMonitors(monitors, snapshot);
    for (LMX11Display& display : displays)
        addCrtcs(display, snapshot);

    const QRect main = mainGeometry(monitors);
    const auto isMain = [&](const LMX11Display& display) {
        return display.geometry.topLeft() == main.topLeft() && display.geometry.contains(main);
    };
    std::sort(displays.begin(), displays.end(), [&](const auto& a, const auto& b) {
        return std::pair(!isMain(a), a.displayID) < std::pair(!isMain(b), b.displayID);
    });
    return displays;
}

QRect LMX11VisibleGeometry(const QRect& display, bool isOnlyDisplay, const QSize& rootSize,
                           const LMX11WorkAreas& areas) {
    QRect visible = largestPart(display, areas.perMonitor);
    if (visible.isEmpty() && isOnlyDisplay)
        visible = areas.workArea & display;
    if (!visible.isEmpty())
        return visible;
    visible = display;
    for (const LMX11Strut& strut : areas.struts)
        cutStrut(visible, display, strut, rootSize);
    return visible.isEmpty() ? display : visible;
}

QList<LMScreen> LMX11ScreensFromDisplays(const QList<LMX11Display>& displays,
                                         const LMX11ScreensSnapshot& snapshot,
                                         const LMX11WorkAreas& areas) {
    const QRectF main = displays.first().geometry;
    const LMX11Coordinates coordinates(displays.first().geometry.topLeft());
    QList<LMScreen> screens;
    for (const LMX11Display& display : displays) {
        LMScreen screen;
        screen.displayBounds = coordinates.globalFromRoot(QRectF(display.geometry));
        screen.frame = screen.displayBounds;
        screen.frame.moveTop(main.height() - screen.displayBounds.bottom());
        screen.visibleFrame = coordinates.globalFromRoot(QRectF(LMX11VisibleGeometry(
            display.geometry, displays.size() == 1, snapshot.rootSize, areas)));
        screen.displayID = display.displayID;
        screen.connectorName = display.name;
        if (const LMX11Output* output = outputWithIdentifier(snapshot, display.displayID)) {
            const LMEdid edid = LMEdidFromData(output->edid);
            screen.vendorNumber = edid.vendorNumber;
            screen.modelNumber = edid.modelNumber;
            screen.serialNumber = edid.serialNumber;
            screen.productName = edid.productName;
        }
        screens.append(screen);
    }
    return screens;
}
