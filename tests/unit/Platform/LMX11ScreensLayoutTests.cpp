// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11ScreensLayout.h"

#include "LMX11SnapshotBuilder.h"

#include <gtest/gtest.h>

namespace {

using Builder = LMX11SnapshotBuilder;

const QRect fullHd(0, 0, 1920, 1080);

TEST(LMX11ScreensLayout, PlacesScreensAroundTheMainOne) {
    struct Expected {
        quint32 displayID;
        QRectF bounds; ///< From the top left of the main display.
        qreal frameY;  ///< Of the same rectangle from its bottom left, upwards.
    };
    const QRect side(1920, 0, 1440, 900);
    Builder leftOfPrimary;
    leftOfPrimary.picture({0, 90, 1440, 900}).picture({1440, 0, 1920, 1080}, true);
    Builder bare = leftOfPrimary;
    bare.snapshot.monitors.clear();
    Builder dark;
    dark.snapshot.crtcs.append(LMX11Crtc{1, {}, 0, 0, {}});
    // clang-format off
    const struct {
        const char* what;
        Builder builder;
        QList<Expected> screens;
    } cases[] = {
        {"left of the primary", leftOfPrimary, {{102, fullHd, 0}, {101, {-1440, 90, 1440, 900}, 90}}},
        {"CRTCs instead of monitors", bare, {{102, fullHd, 0}, {101, {-1440, 90, 1440, 900}, 90}}},
        {"above the primary", Builder().picture({0, 1024, 1920, 1080}, true).picture({320, 0, 1280, 1024}), {{101, fullHd, 0}, {102, {320, -1024, 1280, 1024}, 1080}}},
        {"a portrait one beside", Builder().picture({0, 420, 1920, 1080}, true).picture({1920, 0, 1200, 1920}), {{101, fullHd, 0}, {102, {1920, -420, 1200, 1920}, -420}}},
        {"three, the last of them primary", Builder().picture(side).picture({0, 1080, 800, 600}).picture(fullHd, true), {{103, fullHd, 0}, {101, side, 180}, {102, {0, 1080, 800, 600}, -600}}},
        {"primary missing", Builder().picture(side).picture(fullHd), {{101, {0, 0, 1440, 900}, 0}, {102, {-1920, 0, 1920, 1080}, -180}}},
        {"mirrored", Builder().picture(fullHd).picture(fullHd, true).picture(side), {{101, fullHd, 0}, {103, side, 180}}},
        {"mirrored by smaller ones", Builder().picture({0, 0, 1280, 1024}, true).picture({0, 0, 1366, 768}).picture(fullHd), {{103, fullHd, 0}}},
        {"overlapping is not mirrored", Builder().picture(fullHd, true).picture({100, 100, 800, 600}), {{101, fullHd, 0}, {102, {100, 100, 800, 600}, 380}}},
        {"nothing lit", dark, {{0x500, {0, 0, 5760, 2160}, 0}}},
    };
    // clang-format on
    for (const auto& row : cases) {
        const LMX11ScreensSnapshot& snapshot = row.builder.snapshot;
        const auto screens =
            LMX11ScreensFromDisplays(LMX11DisplaysFromSnapshot(snapshot), snapshot, {});
        ASSERT_EQ(screens.size(), row.screens.size()) << row.what;
        for (qsizetype index = 0; index < screens.size(); ++index) {
            const auto& [displayID, bounds, frameY] = row.screens[index];
            EXPECT_EQ(screens[index].displayID, displayID) << row.what;
            EXPECT_EQ(screens[index].displayBounds, bounds) << row.what;
            EXPECT_EQ(screens[index].frame, QRectF({bounds.x(), frameY}, bounds.size()))
                << row.what;
            EXPECT_EQ(screens[index].visibleFrame, bounds) << row.what;
        }
    }
}

TEST(LMX11ScreensLayout, PartsOfAPictureAreDisplaysThatCannotMove) {
    // Two halves of one wide picture, as "xrandr --setmonitor" makes them.
    Builder split;
    split.addCrtc({0, 0, 3440, 1440});
    split.monitor(QStringLiteral("left"), {0, 0, 1720, 1440}, {101});
    split.monitor(QStringLiteral("right"), {1720, 0, 1720, 1440}, {});
    const auto displays = LMX11DisplaysFromSnapshot(split.snapshot);
    ASSERT_EQ(displays.size(), 2);
    EXPECT_NE(displays[1].displayID & 0x80000000U, 0U);
    EXPECT_FALSE(displays[0].canMove || displays[1].canMove);

    // Two pictures joined to one monitor move together.
    Builder joined;
    joined.addCrtc({0, 0, 800, 600});
    joined.addCrtc({800, 0, 800, 600});
    joined.monitor(QStringLiteral("wall"), {0, 0, 1600, 600}, {101, 102});
    const auto wall = LMX11DisplaysFromSnapshot(joined.snapshot);
    ASSERT_EQ(wall.size(), 1);
    EXPECT_TRUE(wall[0].canMove);
}

TEST(LMX11ScreensLayout, LeavesOutWhatDocksReserve) {
    const QSize root(3360, 1080);
    const QRect side(1920, 180, 1440, 900);
    const LMX11Strut top{Qt::TopEdge, 30, 0, 1919};
    const LMX11Strut fullTop{Qt::TopEdge, 30, 0, 32767};
    const LMX11Strut deepTop{Qt::TopEdge, 180 + 40, 1920, 3359}; // A panel on top of the side one.
    const LMX11Strut inner{Qt::LeftEdge, 1920 + 64, 180, 1079};  // One on its left edge.
    const LMX11Strut bottom{Qt::BottomEdge, 48, 1920, 3359};
    const LMX11Strut nonsense{Qt::BottomEdge, 32000, 0, 32767};
    // clang-format off
    const struct {
        const char* what;
        QRect display;
        bool isOnly;
        LMX11WorkAreas areas;
        QRect visible;
    } cases[] = {
        {"no dock", side, false, {}, side},
        {"work area of the only display", fullHd, true, {{0, 24, 1920, 1000}, {}, {top}}, {0, 24, 1920, 1000}},
        {"work area beyond it", fullHd, true, {{-50, 24, 4000, 1000}, {}, {}}, {0, 24, 1920, 1000}},
        {"work area elsewhere", fullHd, true, {{5000, 0, 10, 10}, {}, {top}}, {0, 30, 1920, 1050}},
        {"several displays ignore the work area", side, false, {{0, 400, 3360, 400}, {}, {}}, side},
        {"an answer per monitor wins", side, false, {{}, {{0, 30, 1920, 1050}, {1920, 200, 1440, 880}}, {bottom}}, {1920, 200, 1440, 880}},
        {"struts of the display", side, false, {{}, {}, {top, bottom, inner}}, {1984, 180, 1376, 852}},
        {"struts of the other one", fullHd, false, {{}, {}, {top, bottom, inner}}, {0, 30, 1920, 1050}},
        {"a strut from further up", side, false, {{}, {}, {deepTop}}, {1920, 220, 1440, 860}},
        {"a strut that ends above", side, false, {{}, {}, {fullTop}}, side},
        {"nonsense", side, false, {{}, {}, {nonsense}}, side},
    };
    // clang-format on
    for (const auto& row : cases)
        EXPECT_EQ(LMX11VisibleGeometry(row.display, row.isOnly, root, row.areas), row.visible)
            << row.what;
}

} // namespace
