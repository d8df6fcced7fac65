// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11Stacking.h"

#include <QSet>

#include <algorithm>

namespace {

using Windows = QList<xcb_window_t>;
using Set = QSet<xcb_window_t>;

Windows only(Windows windows, const Set& kept) {
    windows.removeIf([&](xcb_window_t window) { return !kept.contains(window); });
    return windows;
}

/// The windows that are seen together: those of one layer on one virtual desktop.
QList<Set> viewsOf(const QList<LMX11StackedWindow>& pile) {
    QSet<int> layers;
    QSet<quint32> desktops;
    for (const LMX11StackedWindow& each : pile) {
        layers.insert(each.layer);
        desktops.insert(each.desktop.value_or(0));
    }
    QList<Set> views;
    for (const int layer : std::as_const(layers)) {
        for (const quint32 desktop : std::as_const(desktops)) {
            Set& view = views.emplaceBack();
            for (const LMX11StackedWindow& each : pile) {
                if (each.layer == layer && each.desktop.value_or(desktop) == desktop)
                    view.insert(each.window);
            }
        }
    }
    return views;
}

/// Those that cannot stay where they are when the first ones stay. What is lowered already takes
/// everything behind it along. True when there are more than before.
bool addToLowered(const Windows& present, const Windows& wanted, Set& lowered) {
    const qsizetype before = lowered.size();
    auto kept = wanted.begin();
    for (auto at = present.begin(); at != present.end() && kept != wanted.end(); ++at) {
        if (lowered.contains(*kept))
            break;
        if (*at == *kept)
            ++kept;
    }
    lowered.unite(Set(kept, wanted.end()));
    return lowered.size() > before;
}

/// The whole layer of the window is put in order around it.
LMX11Restacking around(xcb_window_t staying, const QList<LMX11StackedWindow>& pile,
                       const Windows& order, const Set& lowered) {
    const int layer = std::ranges::find(pile, staying, &LMX11StackedWindow::window)->layer;
    Set neighbours;
    for (const LMX11StackedWindow& each : pile) {
        if (each.layer == layer)
            neighbours.insert(each.window);
    }
    LMX11Restacking result{{}, {}, order};
    bool isInFront = true;
    for (const xcb_window_t window : order) {
        if (window == staying)
            isInFront = false;
        else if (isInFront && neighbours.contains(window))
            result.raised.prepend(window);
        else if (lowered.contains(window) || neighbours.contains(window))
            result.lowered.append(window);
    }
    return result;
}

} // namespace

LMX11Restacking LMX11PlanRestacking(const QList<LMX11StackedWindow>& pile, const Windows& wanted,
                                    xcb_window_t staying) {
    Windows present;
    for (const LMX11StackedWindow& each : pile)
        present.append(each.window);
    const Set moving = Set(wanted.begin(), wanted.end()) & Set(present.begin(), present.end());
    Windows moved;
    for (const xcb_window_t window : only(wanted, moving)) {
        if (!moved.contains(window))
            moved.append(window);
    }
    const QList<Set> views = viewsOf(pile);
    if (std::ranges::all_of(views, [&](const Set& view) {
            // Not by the lists' own comparison, which hands an empty list's null to memcmp.
            return std::ranges::equal(only(only(present, moving), view), only(moved, view));
        }))
        return {};

    // They change places among themselves.
    Windows order;
    auto next = moved.constBegin();
    for (const xcb_window_t window : std::as_const(present))
        order.append(moving.contains(window) ? *next++ : window);
    Set lowered;
    bool hasGrown = true;
    while (hasGrown) {
        hasGrown = false;
        for (const Set& view : views)
            hasGrown = addToLowered(only(present, view), only(order, view), lowered) || hasGrown;
    }
    if (lowered.contains(staying))
        return around(staying, pile, order, lowered);
    return {only(order, lowered), {}, order};
}

LMX11Restacking LMX11PlanRestackingByDesktop(const QList<LMX11StackedWindow>& pile,
                                             const Windows& wanted, quint32 currentDesktop) {
    QList<LMX11StackedWindow> inSight = pile;
    inSight.removeIf([&](const LMX11StackedWindow& each) {
        return each.desktop.value_or(currentDesktop) != currentDesktop;
    });
    QList<LMX11StackedWindow> framed = pile;
    framed.removeIf([](const LMX11StackedWindow& each) { return each.isFullscreen; });
    const Windows order = LMX11PlanRestacking(pile, wanted).order;
    const auto desktop = [&](xcb_window_t window) {
        return std::ranges::find(pile, window, &LMX11StackedWindow::window)->desktop;
    };
    if (!LMX11PlanRestacking(inSight, wanted).isEmpty() ||
        LMX11PlanRestacking(framed, wanted).isEmpty())
        return {};

    LMX11Restacking result{{}, {}, order};
    const auto found = std::ranges::find(order.rbegin(), order.rend(), currentDesktop, desktop);
    xcb_window_t lowest = found == order.rend() ? xcb_window_t(XCB_WINDOW_NONE) : *found;
    if (lowest != XCB_WINDOW_NONE)
        result.lowered.append(lowest);
    for (const xcb_window_t window : order) {
        const std::optional<quint32> itsDesktop = desktop(window);
        if (itsDesktop && itsDesktop != currentDesktop)
            result.raised.prepend(window);
        result.lowered.append(window);
        if (window == lowest)
            lowest = XCB_WINDOW_NONE;
        else if (lowest != XCB_WINDOW_NONE && !itsDesktop)
            result.lowered.append(lowest);
    }
    return result;
}
