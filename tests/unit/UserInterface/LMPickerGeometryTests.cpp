// SPDX-License-Identifier: MIT
#include "Categories/LMImageAdditions.h"
#include "Platform/LMScreens.h"
#include "unit/Utilities/Support.h"
#include "UserInterface/WindowLinking/LMPickerGeometry.h"

#include <gtest/gtest.h>

TEST(PickerGeometry, GridGrowsWithTheWindows) {
    const std::tuple<int, unsigned, unsigned> table[] = {
        {0, 0, 0}, {1, 1, 1}, {2, 1, 2},  {3, 2, 2},  {4, 2, 2},  {5, 3, 2},
        {7, 3, 3}, {9, 3, 3}, {10, 4, 3}, {13, 4, 4}, {40, 7, 6}, {500, 23, 22}};
    for (const auto& [count, columns, rows] : table) {
        const LMPickerGrid grid(count, {0, 0, 1000, 900});
        EXPECT_EQ(grid.columns(), columns) << count;
        EXPECT_EQ(grid.rows(), rows) << count;
        EXPECT_EQ(grid.windowFrames().size(), count);
    }
}

TEST(PickerGeometry, CellsFillTheRowsFromTheBottom) {
    const std::tuple<int, int, QRectF> table[] = {
        {2, 0, {30, 55, 1160, 440}},                               // One above the other.
        {2, 1, {30, 505, 1160, 440}}, {5, 0, {230, 55, 360, 440}}, // Two, centred under three.
        {5, 2, {30, 505, 360, 440}},  {5, 4, {830, 505, 360, 440}},
        {9, 2, {830, 55, 360, 290}}, // The first three are the bottom row.
        {9, 8, {830, 655, 360, 290}},
    };
    for (const auto& [count, index, expected] : table) {
        const LMPickerGrid grid(count, {10, 50, 1200, 900});
        EXPECT_EQ(grid.windowFrames()[index], expected) << count << ' ' << index;
    }
    // Places are reckoned in single precision.
    const QList<QRectF> sevenths = LMPickerGrid(40, {0.1, 0, 1000, 900}).windowFrames();
    const float width = 1000.0F / 7;
    EXPECT_EQ(sevenths[39].x(), double(0.1F + 6 * width) + 20);
    EXPECT_EQ(sevenths[39].width(), double(width) - 40);
}

TEST(PickerGeometry, UsableFrameIsWhatPanelsLeave) {
    const std::tuple<QRectF, QRectF, double, QRectF> table[] = {
        {{0, 0, 1920, 1080}, {0, 30, 1920, 1000}, 1, {0, 50, 1920, 1000}}, // Bars above and below.
        {{0, 0, 1920, 1080}, {60, 0, 1860, 1080}, 2, {30, 0, 930, 540}},
        {{-100, 40, 800, 600}, {-90, 50, 700, 500}, 1, {10, 90, 700, 500}},
    };
    for (const auto& [display, visible, scale, expected] : table) {
        LMScreen screen;
        screen.displayBounds = display;
        screen.visibleFrame = visible;
        EXPECT_EQ(LMUsableFrame(screen, scale), expected);
    }
    EXPECT_EQ(LMCoveringSize({1366, 768}, 1.5), QSize(911, 512));
}

TEST(PickerGeometry, ScreenshotsSitOnTheirMargin) {
    const QRectF area(8, 38, 300, 220);
    const std::tuple<const char*, QSizeF, QRectF> table[] = {
        {"a small one keeps its size", {100, 50}, {108, 58, 100, 50}},
        {"too wide", {600, 200}, {8, 58, 300, 100}},
        {"too high", {300, 400}, {83, 58, 150, 200}},
        {"rounded up, from a scale in single precision", {700, 100}, {7, 58, 301, 43}},
        {"odd room is rounded down", {101, 51}, {107, 58, 101, 51}},
    };
    for (const auto& [why, image, expected] : table)
        EXPECT_EQ(LMImageAdditions(image).frameForRect(area), expected) << why;
    for (const QRectF& narrow : {QRectF(0, 0, 300, 20), QRectF(0, 0, -5, 100), QRectF(0, 0, 50, 5)})
        EXPECT_TRUE(LMImageAdditions({10, 10}).frameForRect(narrow).isEmpty());
}

TEST(PickerGeometry, PartsOfACell) {
    EXPECT_EQ(LMPickerCell::screenshotArea({360, 440}), QRectF(8, 38, 344, 394));
    // No room for a label: the picture gets it all.
    EXPECT_EQ(LMPickerCell::screenshotArea({43, 37}), QRectF(8, -12, 27, 41));
    const QRectF label = LMPickerCell::labelRect({20, 58, 200, 100}, {60, 15});
    EXPECT_EQ(label, QRectF(90, 28, 60, 15));
    EXPECT_EQ(LMPickerCell::labelFrame(label), QRectF(82, 26, 76, 19));
    EXPECT_EQ(LMPickerCell::labelWidth({20, 58, 200, 100}), 184);
    EXPECT_EQ(LMToolkitRect({5, 10, 20, 30}, 100), QRectF(5, 60, 20, 30));
}
