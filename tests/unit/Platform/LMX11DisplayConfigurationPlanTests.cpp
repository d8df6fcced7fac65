// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11DisplayConfigurationPlan.h"

#include "LMX11SnapshotBuilder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

using Builder = LMX11SnapshotBuilder;
using Origins = QHash<quint32, QPoint>;
using Kind = LMX11ArrangementStep::Kind;

const QRect hd(0, 0, 1920, 1080);
const QRect side(1920, 0, 1440, 900);

TEST(LMX11DisplayConfigurationPlan, AMirroredPairStaysTogether) {
    const Builder mirrored = Builder({3360, 1080}).pictures({hd, hd, side}, 0);
    const auto plan = LMX11PlanArrangement(mirrored.snapshot, {{101, {1440, 0}}, {103, {0, 0}}});
    ASSERT_TRUE(plan);
    EXPECT_EQ(plan->crtcs[0].geometry, hd.translated(1440, 0));
    EXPECT_EQ(plan->crtcs[1].geometry, hd.translated(1440, 0));
    EXPECT_EQ(plan->crtcs[2].geometry, QRect(QPoint(), side.size()));
}

TEST(LMX11DisplayConfigurationPlan, RefusesWhatCannotBe) {
    using enum LMPlatformError;
    const Builder two = Builder({3360, 1080}).pictures({hd, side}, 0);
    Builder split({4360, 1440}); // One wide picture, of which the user made two halves.
    split.addCrtc({0, 0, 3440, 1440});
    split.monitor(QStringLiteral("left"), {0, 0, 1720, 1440}, {101});
    split.monitor(QStringLiteral("right"), {1720, 0, 1720, 1440}, {});
    split.pictures({{3440, 0, 800, 600}});
    constexpr int most = std::numeric_limits<qint32>::max();
    const auto refusal = [](const Builder& builder, quint32 displayID, const QPoint& origin) {
        return LMX11PlanArrangement(builder.snapshot, {{displayID, origin}}).error().error;
    };
    EXPECT_EQ(refusal(two, 999, {0, 0}), InvalidElement);
    EXPECT_EQ(refusal(two, 102, {6753, 0}), Failure);
    EXPECT_EQ(refusal(two, 102, {0, -3017}), Failure);
    EXPECT_EQ(refusal(two, 102, {most, -most}), Failure);
    EXPECT_EQ(refusal(split, 101, {100, 0}), NotAvailable);
    EXPECT_TRUE(LMX11PlanArrangement(two.snapshot, {{102, {6752, 0}}})); // Just fits.

    // What cannot be moved by itself still gives way to another display.
    const auto plan = LMX11PlanArrangement(split.snapshot, {{102, {-800, 0}}});
    ASSERT_TRUE(plan);
    EXPECT_EQ(plan->monitors[0].geometry.topLeft(), QPoint(800, 0));
    EXPECT_EQ(plan->monitors[1].geometry.topLeft(), QPoint(2520, 0));
}

/// Carries a step out as a server does: no lit CRTC may ever reach beyond the root window.
bool run(const LMX11ArrangementStep& step, LMX11Arrangement& state) {
    if (step.kind == Kind::ResizeRoot)
        state.rootSize = step.rootSize;
    return std::all_of(state.crtcs.begin(), state.crtcs.end(), [&](LMX11Crtc& crtc) {
        if (step.kind == Kind::SetCrtc && crtc.identifier == step.crtc.identifier)
            crtc = step.crtc;
        return !crtc.isLit() || QRect(QPoint(), state.rootSize).contains(crtc.geometry);
    });
}

/// From any arrangement to any other, and back from every point where a step may have failed.
TEST(LMX11DisplayConfigurationPlan, StepsNeverLeaveACrtcOutsideTheRootWindow) {
    std::mt19937 random(99);
    const auto upTo = [&](unsigned most) { return int(random() % (most + 1)); };
    for (int round = 0; round < 2000; ++round) {
        QRect bounds;
        QList<QRect> pictures;
        Origins origins;
        for (quint32 output = 101; output <= 101U + quint32(round % 4); ++output) {
            pictures.append({upTo(3000), upTo(1500), 640 + upTo(1200), 480 + upTo(700)});
            bounds |= pictures.last() | QRect(0, 0, 1, 1);
            origins.insert(output, {upTo(6000) - 3000, upTo(2400) - 1200});
        }
        Builder builder = Builder(bounds.size()).pictures(pictures, 1);
        builder.snapshot.crtcs.append(LMX11Crtc{9, {}, 0, 0, {}});
        const auto plan = LMX11PlanArrangement(builder.snapshot, origins);
        ASSERT_TRUE(plan);
        QRect extent;
        for (const LMX11Crtc& crtc : plan->crtcs.first(pictures.size())) {
            const QPoint shift = plan->crtcs[0].geometry.topLeft() - origins[101];
            ASSERT_EQ(crtc.geometry.topLeft(), origins[crtc.outputs[0]] + shift);
            extent |= crtc.geometry;
        }
        ASSERT_EQ(extent, QRect(QPoint(), plan->rootSize));
        const LMX11Arrangement before = LMX11ArrangementFromSnapshot(builder.snapshot);
        LMX11Arrangement state = before;
        int resizes = 0;
        for (const auto& step : LMX11ArrangementSteps(before, *plan)) {
            LMX11Arrangement back = state;
            for (const auto& undo : LMX11ArrangementSteps(state, before))
                ASSERT_TRUE(run(undo, back));
            ASSERT_EQ(back, before);
            ASSERT_TRUE(run(step, state));
            resizes += step.kind == Kind::ResizeRoot ? 1 : 0;
        }
        ASSERT_EQ(state, *plan);
        ASSERT_LE(resizes, 1);
    }
}

} // namespace
