// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11DisplayConfigurationPlan.h"

#include "LMX11SnapshotBuilder.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using Builder = LMX11SnapshotBuilder;
using Origins = QHash<quint32, QPoint>;

const QRect fullHd(0, 0, 1920, 1080);

Builder two() {
    return Builder({3360, 1080}).picture(fullHd, true).picture({1920, 0, 1440, 900});
}

Builder left() {
    return Builder({3360, 1080}).picture({0, 90, 1440, 900}).picture({1440, 0, 1920, 1080}, true);
}

TEST(LMX11DisplayConfigurationPlan, MovesDisplaysRoundTheMainOne) {
    Builder mirrored({3360, 1080});
    mirrored.picture(fullHd, true).picture(fullHd).picture({1920, 0, 1440, 900});
    // clang-format off
    const struct {
        const char* what;
        Builder builder;
        Origins origins;
        QSize root;
        QList<QPoint> crtcs;
    } cases[] = {
        {"to where it stands", left(), {{101, {-1440, 90}}}, {3360, 1080}, {{0, 90}, {1440, 0}}},
        {"to the left", two(), {{102, {-1440, 0}}}, {3360, 1080}, {{1440, 0}, {0, 0}}},
        {"back to the right", left(), {{101, {1920, 0}}}, {3360, 1080}, {{1920, 0}, {0, 0}}},
        {"above", two(), {{102, {100, -900}}}, {1920, 1980}, {{0, 900}, {100, 0}}},
        {"below", left(), {{101, {0, 1080}}}, {1920, 1980}, {{0, 1080}, {0, 0}}},
        {"with a gap", two(), {{102, {2000, -20}}}, {3440, 1100}, {{0, 20}, {2000, 0}}},
        {"overlapping", two(), {{102, {480, 180}}}, {1920, 1080}, {{0, 0}, {480, 180}}},
        {"the main one moves the others", two(), {{101, {200, 0}}}, {3160, 1080}, {{0, 0}, {1720, 0}}},
        {"a mirrored pair stays together", mirrored, {{101, {1440, 0}}, {103, {0, 0}}}, {3360, 1080}, {{1440, 0}, {1440, 0}, {0, 0}}},
    };
    // clang-format on
    for (const auto& row : cases) {
        const auto plan = LMX11PlanArrangement(row.builder.snapshot, row.origins);
        ASSERT_TRUE(plan) << row.what << ": " << plan.error().reason.toStdString();
        EXPECT_EQ(plan->rootSize, row.root) << row.what;
        for (qsizetype index = 0; index < row.crtcs.size(); ++index) {
            LMX11Crtc expected = row.builder.snapshot.crtcs[index];
            expected.geometry.moveTopLeft(row.crtcs[index]);
            EXPECT_EQ(plan->crtcs[index], expected) << row.what << " " << index;
        }
    }
}

TEST(LMX11DisplayConfigurationPlan, RefusesWhatCannotBe) {
    Builder split({4360, 1440});
    split.addCrtc({0, 0, 3440, 1440});
    split.monitor(QStringLiteral("left"), {0, 0, 1720, 1440}, {101});
    split.monitor(QStringLiteral("right"), {1720, 0, 1720, 1440}, {});
    split.picture({3440, 0, 800, 600});
    constexpr int most = std::numeric_limits<qint32>::max();
    const auto refusal = [](const Builder& builder, const Origins& origins) {
        return LMX11PlanArrangement(builder.snapshot, origins).error().error;
    };
    EXPECT_EQ(refusal(two(), {{999, {0, 0}}}), LMPlatformError::InvalidElement);
    EXPECT_EQ(refusal(two(), {{102, {6753, 0}}}), LMPlatformError::Failure);
    EXPECT_EQ(refusal(two(), {{102, {0, -3017}}}), LMPlatformError::Failure);
    EXPECT_EQ(refusal(two(), {{102, {most, -most}}}), LMPlatformError::Failure);
    EXPECT_EQ(refusal(split, {{101, {100, 0}}}), LMPlatformError::NotAvailable);
    EXPECT_TRUE(LMX11PlanArrangement(two().snapshot, {{102, {6752, 0}}})); // Just fits.

    // What cannot be moved by itself still gives way to another display.
    const auto plan = LMX11PlanArrangement(split.snapshot, {{102, {-800, 0}}});
    ASSERT_TRUE(plan);
    EXPECT_EQ(plan->monitors[0].geometry.topLeft(), QPoint(800, 0));
    EXPECT_EQ(plan->monitors[1].geometry.topLeft(), QPoint(2520, 0));
}

/// Carries steps out as a server does: no lit CRTC may ever reach beyond the root window.
class Server {
public:
    explicit Server(LMX11Arrangement arrangement) : state(std::move(arrangement)) {}

    bool run(const LMX11ArrangementStep& step) {
        if (step.kind == LMX11ArrangementStep::Kind::ResizeRoot) {
            state.rootSize = step.rootSize;
            ++resizes;
        }
        for (LMX11Crtc& crtc : state.crtcs) {
            if (step.kind == LMX11ArrangementStep::Kind::SetCrtc &&
                crtc.identifier == step.crtc.identifier)
                crtc = step.crtc;
            if (crtc.isLit() && !QRect(QPoint(), state.rootSize).contains(crtc.geometry))
                return false;
        }
        return true;
    }

    LMX11Arrangement state;
    int resizes = 0;
};

Builder randomLayout(std::mt19937& random) {
    const auto upTo = [&](unsigned most) { return int(random() % (most + 1)); };
    Builder builder({1, 1});
    const int count = 1 + upTo(3);
    for (int index = 0; index < count; ++index)
        builder.picture({upTo(3000), upTo(1500), 640 + upTo(1200), 480 + upTo(700)}, index == 1);
    QRect bounds;
    for (const LMX11Crtc& crtc : std::as_const(builder.snapshot.crtcs))
        bounds |= crtc.geometry | QRect(0, 0, 1, 1);
    builder.snapshot.rootSize = bounds.size();
    builder.snapshot.crtcs.append(LMX11Crtc{9, {}, 0, 0, {}});
    return builder;
}

/// From any arrangement to any other, and back from every point where a step may have failed.
TEST(LMX11DisplayConfigurationPlan, StepsNeverLeaveACrtcOutsideTheRootWindow) {
    std::mt19937 random(99);
    for (int round = 0; round < 2000; ++round) {
        const Builder builder = randomLayout(random);
        Origins origins;
        for (const LMX11Monitor& monitor : builder.snapshot.monitors)
            origins.insert(monitor.outputs.first(),
                           {int(random() % 6000) - 3000, int(random() % 2400) - 1200});
        const auto plan = LMX11PlanArrangement(builder.snapshot, origins);
        ASSERT_TRUE(plan);
        Server server(LMX11ArrangementFromSnapshot(builder.snapshot));
        const LMX11Arrangement before = server.state;
        for (const auto& step : LMX11ArrangementSteps(before, *plan)) {
            Server back(server.state);
            for (const auto& undo : LMX11ArrangementSteps(back.state, before))
                ASSERT_TRUE(back.run(undo));
            ASSERT_EQ(back.state, before);
            ASSERT_TRUE(server.run(step));
        }
        ASSERT_EQ(server.state, *plan);
        ASSERT_LE(server.resizes, 1);
    }
}

} // namespace
