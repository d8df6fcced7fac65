// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11DisplayConfigurationPlan.h"

#include "Platform/X11/LMX11ScreensLayout.h"
#include "Utilities/LMFormat.h"

#include <algorithm>
#include <limits>

namespace {

using Step = LMX11ArrangementStep;
using Refusal = LMX11PlanRefusal;

/// How far each output's picture moves, root coordinates.
using Shifts = QHash<quint32, QPoint>;

bool isInProtocolRange(const QPoint& point) {
    constexpr int limit = std::numeric_limits<qint16>::max();
    return std::abs(qint64(point.x())) <= limit && std::abs(qint64(point.y())) <= limit;
}

/// The display with the identifier, or null.
const LMX11Display* findDisplay(const QList<LMX11Display>& displays, quint32 displayID) {
    const auto found = std::find_if(displays.begin(), displays.end(),
                                    [=](const auto& each) { return each.displayID == displayID; });
    return found == displays.end() ? nullptr : &*found;
}

QPoint shiftOfDisplay(const QList<LMX11Display>& displays, const LMX11Display& display,
                      const QPoint& origin) {
    return displays.first().geometry.topLeft() + origin - display.geometry.topLeft();
}

std::optional<Refusal> check(const QList<LMX11Display>& displays, quint32 displayID,
                             const QPoint& origin) {
    const LMX11Display* display = findDisplay(displays, displayID);
    if (display == nullptr)
        return Refusal{LMPlatformError::InvalidElement, QStringLiteral("A display is gone.")};
    if (!isInProtocolRange(origin))
        return Refusal{LMPlatformError::Failure,
                       QStringLiteral("An origin lies beyond the coordinates of the protocol.")};
    if (!display->canMove && !shiftOfDisplay(displays, *display, origin).isNull())
        return Refusal{
            LMPlatformError::NotAvailable,
            LMFormat(QStringLiteral("Display %@ is not a picture of its own."), {display->name})};
    return std::nullopt;
}

QPoint shiftOfOutputs(const QList<quint32>& outputs, const Shifts& shifts) {
    return outputs.isEmpty() ? QPoint() : shifts.value(outputs.first());
}

void translate(LMX11Arrangement& arrangement, const Shifts& shifts, const QPoint& common) {
    for (LMX11Crtc& crtc : arrangement.crtcs) {
        if (crtc.isLit())
            crtc.geometry.translate(shiftOfOutputs(crtc.outputs, shifts) + common);
    }
    for (LMX11Monitor& monitor : arrangement.monitors)
        monitor.geometry.translate(shiftOfOutputs(monitor.outputs, shifts) + common);
}

QRect boundingRect(const QList<LMX11Crtc>& crtcs) {
    QRect bounds;
    for (const LMX11Crtc& crtc : crtcs)
        bounds |= crtc.isLit() ? crtc.geometry : QRect();
    return bounds;
}

QString sizeText(const QSize& size) {
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

bool fits(const LMX11Crtc& crtc, const QSize& root) {
    return !crtc.isLit() || QRect(QPoint(), root).contains(crtc.geometry);
}

Step resizeStep(const QSize& size) {
    return Step{Step::Kind::ResizeRoot, size, {}, {}};
}

Step crtcStep(const LMX11Crtc& crtc) {
    return Step{Step::Kind::SetCrtc, {}, crtc, {}};
}

/// The CRTCs of one arrangement that differ from those of the other.
QList<LMX11Crtc> changedCrtcs(const LMX11Arrangement& from, const LMX11Arrangement& to) {
    QList<LMX11Crtc> changed;
    std::copy_if(to.crtcs.begin(), to.crtcs.end(), std::back_inserter(changed),
                 [&](const auto& crtc) { return !from.crtcs.contains(crtc); });
    return changed;
}

} // namespace

LMX11Arrangement LMX11ArrangementFromSnapshot(const LMX11ScreensSnapshot& snapshot) {
    LMX11Arrangement arrangement{snapshot.rootSize, snapshot.crtcs, snapshot.monitors};
    arrangement.monitors.removeIf([](const auto& monitor) { return monitor.isAutomatic; });
    return arrangement;
}

std::optional<LMX11PlanRefusal> LMX11CheckOrigin(const LMX11ScreensSnapshot& snapshot,
                                                 quint32 displayID, const QPoint& origin) {
    return check(LMX11DisplaysFromSnapshot(snapshot), displayID, origin);
}

LMResult<LMX11Arrangement, LMX11PlanRefusal>
LMX11PlanArrangement(const LMX11ScreensSnapshot& snapshot, const QHash<quint32, QPoint>& origins) {
    using Result = LMResult<LMX11Arrangement, LMX11PlanRefusal>;
    const QList<LMX11Display> displays = LMX11DisplaysFromSnapshot(snapshot);
    Shifts shifts;
    for (auto origin = origins.begin(); origin != origins.end(); ++origin) {
        if (auto refusal = check(displays, origin.key(), origin.value()))
            return Result::failure(*refusal);
        const LMX11Display& display = *findDisplay(displays, origin.key());
        for (const quint32 output : display.outputs)
            shifts.insert(output, shiftOfDisplay(displays, display, origin.value()));
    }
    LMX11Arrangement arrangement = LMX11ArrangementFromSnapshot(snapshot);
    if (std::all_of(shifts.begin(), shifts.end(), [](const QPoint& each) { return each.isNull(); }))
        return Result::success(arrangement);

    translate(arrangement, shifts, {});
    const QRect bounds = boundingRect(arrangement.crtcs);
    translate(arrangement, {}, -bounds.topLeft());
    arrangement.rootSize = bounds.size().expandedTo(snapshot.minimumRootSize);
    if (arrangement.rootSize.expandedTo(snapshot.maximumRootSize) != snapshot.maximumRootSize)
        return Result::failure(
            {LMPlatformError::Failure,
             LMFormat(QStringLiteral("It needs %@ pixels, the server allows %@."),
                      {sizeText(arrangement.rootSize), sizeText(snapshot.maximumRootSize)})});
    return Result::success(arrangement);
}

QList<LMX11ArrangementStep> LMX11ArrangementSteps(const LMX11Arrangement& from,
                                                  const LMX11Arrangement& to) {
    QList<LMX11ArrangementStep> steps;
    LMX11Arrangement current = from;
    const QSize both = from.rootSize.expandedTo(to.rootSize);
    const bool growsOnly = both == to.rootSize;
    const bool shrinksOnly = both == from.rootSize;
    if (!growsOnly && !shrinksOnly) {
        for (LMX11Crtc& crtc : current.crtcs) {
            if (fits(crtc, to.rootSize))
                continue;
            crtc = LMX11Crtc{crtc.identifier, {}, 0, 0, {}};
            steps.append(crtcStep(crtc));
        }
    }
    if (!shrinksOnly)
        steps.append(resizeStep(to.rootSize));
    for (const LMX11Crtc& crtc : changedCrtcs(current, to))
        steps.append(crtcStep(crtc));
    if (shrinksOnly && !growsOnly)
        steps.append(resizeStep(to.rootSize));
    return steps;
}

QList<LMX11ArrangementStep> LMX11MonitorSteps(const LMX11Arrangement& from,
                                              const LMX11Arrangement& to) {
    QList<LMX11ArrangementStep> steps;
    if (from.monitors == to.monitors)
        return steps;
    for (const LMX11Monitor& monitor : to.monitors)
        steps.append(Step{Step::Kind::SetMonitor, {}, {}, monitor});
    return steps;
}
