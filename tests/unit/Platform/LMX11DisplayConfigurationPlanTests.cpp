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
    const Builder two = Builder({3360, 1080}).pictures({hd, side}, 0);
    Builder split({4360, 1440}); // One wide picture, of which the user made two halves.
    split.addCrtc({0, 0, 3440, 1440});
    split.monitor(QStringLiteral("left"), {0, 0, 1720, 1440}, {101});
    split.monitor(QStringLiteral("right"), {1720, 0, 1720, 1440}, {});
    EXPECT_FALSE(LMX11PlanArrangement(split.snapshot, {{101, {100, 0}}}));
    constexpr int most = std::numeric_limits<qint32>::max();
    for (const QPoint& origin : {QPoint(6753, 0), QPoint(0, -3017), QPoint(most, -most)})
        EXPECT_FALSE(LMX11PlanArrangement(two.snapshot, {{102, origin}}));
    EXPECT_TRUE(LMX11PlanArrangement(two.snapshot, {{102, {6752, 0}}})); // Just fits.
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
