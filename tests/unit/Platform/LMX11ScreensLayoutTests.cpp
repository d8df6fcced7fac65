// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11ScreensLayout.h"

#include "LMX11SnapshotBuilder.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using Builder = LMX11SnapshotBuilder;

const QRect hd(0, 0, 1920, 1080);
const QRect side(1920, 180, 1440, 900);

/// "101 0,0 1920x1080" for each screen, from the top left of the main one.
std::string describe(const LMX11ScreensSnapshot& snapshot) {
    std::ostringstream text;
    for (const LMScreen& screen :
         LMX11ScreensFromDisplays(LMX11DisplaysFromSnapshot(snapshot), snapshot, {})) {
        const QRectF& rect = screen.displayBounds;
        text << (text.view().empty() ? "" : " | ") << screen.displayID << ' ' << rect.x() << ','
             << rect.y() << ' ' << rect.width() << 'x' << rect.height();
    }
    return text.str();
}

TEST(LMX11ScreensLayout, PlacesScreensAroundTheMainOne) {
    Builder bare = Builder().pictures({{0, 90, 1440, 900}, {1440, 0, 1920, 1080}}, 1);
    bare.snapshot.monitors.clear();
    Builder dark;
    dark.snapshot.crtcs.append(LMX11Crtc{1, {}, 0, 0, {}});
    const QRect overlapping(100, 100, 800, 600), small(0, 0, 1366, 768), square(0, 0, 1280, 1024);
    const std::tuple<const char*, Builder, const char*> rows[] = {
        {"CRTCs instead of monitors", bare, "102 0,0 1920x1080 | 101 -1440,90 1440x900"},
        {"primary missing", Builder().pictures({side, hd}),
         "101 0,0 1440x900 | 102 -1920,-180 1920x1080"},
        {"mirrored by smaller ones", Builder().pictures({square, small, hd}, 0),
         "103 0,0 1920x1080"},
        {"overlapping is not mirrored", Builder().pictures({hd, overlapping}, 0),
         "101 0,0 1920x1080 | 102 100,100 800x600"},
        {"nothing lit", dark, "1280 0,0 5760x2160"},
    };
    for (const auto& [what, builder, expected] : rows)
        EXPECT_EQ(describe(builder.snapshot), expected) << what;
}

TEST(LMX11ScreensLayout, PicturesJoinedToOneMonitorMoveTogether) {
    Builder joined;
    joined.addCrtc({0, 0, 800, 600});
    joined.addCrtc({800, 0, 800, 600});
    joined.monitor(QStringLiteral("wall"), {0, 0, 1600, 600}, {101, 102});
    EXPECT_TRUE(LMX11DisplaysFromSnapshot(joined.snapshot).first().canMove);
    EXPECT_EQ(describe(joined.snapshot), "101 0,0 1600x600");
}

TEST(LMX11ScreensLayout, LeavesOutWhatDocksReserve) {
    const LMX11Strut top{Qt::TopEdge, 30, 0, 1919};
    const LMX11Strut fullTop{Qt::TopEdge, 30, 0, 32767};
    const LMX11Strut deepTop{Qt::TopEdge, 180 + 40, 1920, 3359}; // A panel on top of the side one.
    const LMX11Strut inner{Qt::LeftEdge, 1920 + 64, 180, 1079};  // One on its left edge.
    const LMX11Strut bottom{Qt::BottomEdge, 48, 1920, 3359};
    const LMX11Strut nonsense{Qt::BottomEdge, 32000, 0, 32767};
    const QList<QRect> perMonitor{{0, 30, 1920, 1050}, {1920, 200, 1440, 880}};
    const std::tuple<const char*, QRect, bool, LMX11WorkAreas, QRect> rows[] = {
        {"only display", hd, true, {{0, 24, 1920, 1000}, {}, {top}}, {0, 24, 1920, 1000}},
        {"work area beyond", hd, true, {{-50, 24, 4000, 1000}, {}, {}}, {0, 24, 1920, 1000}},
        {"work area elsewhere", hd, true, {{5000, 0, 9, 9}, {}, {top}}, {0, 30, 1920, 1050}},
        {"one work area for several", side, false, {{0, 400, 3360, 400}, {}, {}}, side},
        {"one for each wins", side, false, {{}, perMonitor, {bottom}}, perMonitor[1]},
        {"struts", side, false, {{}, {}, {top, bottom, inner}}, {1984, 180, 1376, 852}},
        {"a strut from further up", side, false, {{}, {}, {deepTop}}, {1920, 220, 1440, 860}},
        {"a strut that ends above", side, false, {{}, {}, {fullTop}}, side},
        {"nonsense", side, false, {{}, {}, {nonsense}}, side},
    };
    for (const auto& [what, display, isOnly, areas, visible] : rows)
        EXPECT_EQ(LMX11VisibleGeometry(display, isOnly, {3360, 1080}, areas), visible) << what;
}

} // namespace
