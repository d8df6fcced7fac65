// SPDX-License-Identifier: MIT
// What window managers make difficult: states in which they ignore geometry, windows they hold on
// the screen, sizes they round.
#include "contract/LMContractTest.h"

using Kind = LMContractWindow::Kind;

namespace {

enum class State { None, Maximized, HalfMaximized, Shaded, Minimized, OnAnotherDesktop };

} // namespace

class X11FramesContract : public LMContractTest {
protected:
    void wmctrl(const LMElement& window, const char* arguments) {
        LMRunTool(u"wmctrl -i -r %1 %2"_qs.arg(window.identifier).arg(QLatin1String(arguments)));
    }
    void enter(const LMElement& window, State state) {
        constexpr std::array changes{"",
                                     "-b add,maximized_vert,maximized_horz",
                                     "-b add,maximized_vert",
                                     "-b add,shaded",
                                     "",
                                     "-t 2"};
        if (state == State::Minimized)
            backend->minimize(window);
        else if (state != State::None)
            wmctrl(window, changes.at(size_t(state)));
        ASSERT_TRUE(LMWaitUntil([&] { return isIn(window, state); }));
        settledFrame(window);
    }
    void leave(const LMElement& window, State state) {
        constexpr std::array changes{"",
                                     "-b remove,maximized_vert,maximized_horz",
                                     "-b remove,maximized_vert",
                                     "-b remove,shaded",
                                     "",
                                     "-t 0"};
        if (state == State::Minimized)
            backend->raise(window);
        else if (state != State::None)
            wmctrl(window, changes.at(size_t(state)));
        ASSERT_TRUE(LMWaitUntil([&] { return isIn(window, State::None); }));
    }
    bool isIn(const LMElement& window, State state) {
        const QString text =
            LMRunTool(u"xprop -id %1 _NET_WM_STATE _NET_WM_DESKTOP"_qs.arg(window.identifier));
        const bool isShaded = text.contains(u"SHADED"_qs);
        const bool isMinimized = text.contains(u"HIDDEN"_qs) && !isShaded;
        return text.contains(u"MAXIMIZED_VERT"_qs) ==
                   (state == State::Maximized || state == State::HalfMaximized) &&
               isShaded == (state == State::Shaded) && isMinimized == (state == State::Minimized) &&
               text.contains(u"(CARDINAL) = 2"_qs) == (state == State::OnAnotherDesktop);
    }
    /// Compositing in software, a manager may need longer than the deadline for the first request.
    void restore(const LMElement& window, const QRectF& stored) {
        EXPECT_TRUE(setFrame(window, stored) || setFrame(window, stored));
    }
    /// The window with the focus and the virtual desktop that is shown.
    QString place() { return LMRunTool(u"xprop -root _NET_ACTIVE_WINDOW _NET_CURRENT_DESKTOP"_qs); }
    bool isActive(const LMElement& window) {
        return place().contains(u" 0x%1"_qs.arg(window.identifier, 0, 16));
    }
    /// Waits until the window stands still: managers and clients still draw when states change.
    QRectF settledFrame(const LMElement& window) {
        QRectF last;
        int same = 0;
        EXPECT_TRUE(LMWaitUntil([&] {
            const QRectF now = backend->visibleFrame(window);
            same = std::exchange(last, now) == now ? same + 1 : 0;
            return same == 3;
        }));
        return last;
    }
    QRectF mainMonitor() { return desktop().screens().screens().first().displayBounds; }
};

INSTANTIATE_TEST_SUITE_P(On, X11FramesContract, testing::Values(LMContractBackends().back()),
                         LMBackendName);

TEST_P(X11FramesContract, WindowsGoToTheirFramesFromEveryState) {
    const QRectF stored(150, 120, 640, 480);
    const QStringList roles{u"AXCloseButton"_qs, u"AXMinimizeButton"_qs, u"AXZoomButton"_qs};
    for (const Kind kind : {Kind::Standard, Kind::ClientDecorated}) {
        for (const State state : {State::None, State::Maximized, State::HalfMaximized,
                                  State::Shaded, State::Minimized, State::OnAnotherDesktop}) {
            if (kind == Kind::ClientDecorated && state == State::Shaded)
                continue; // There is no title bar to shade it to.
            SCOPED_TRACE(testing::Message() << "kind " << int(kind) << ", state " << int(state));
            const LMElement window = open({.kind = kind});
            const LMElement other = open({.application = u"second"_qs});
            backend->raise(other);
            ASSERT_TRUE(LMWaitUntil([&] { return isActive(other); }));
            restore(window, stored);
            ASSERT_EQ(settledFrame(window), stored);
            restore(window, QRectF(420, 260, 500, 390));
            enter(window, state);
            const QString before = place();

            // Matching compares structures, which must not depend on the state.
            QStringList found;
            for (const auto& child : read<QList<LMElement>>(window, LMAttribute::Children))
                found.append(text(child, LMAttribute::Role));
            EXPECT_EQ(found, roles);
            EXPECT_TRUE(read<bool>(window, LMAttribute::GrowArea));
            EXPECT_EQ(text(window, LMAttribute::Subrole), u"AXStandardWindow"_qs);

            restore(window, stored);
            EXPECT_EQ(place(), before);
            const bool isKept = state != State::Maximized && state != State::HalfMaximized;
            EXPECT_TRUE(isIn(window, isKept ? state : State::None));
            if (isKept)
                leave(window, state);
            EXPECT_EQ(settledFrame(window), stored);
            EXPECT_EQ(frame(window), stored);
            backend->closeWindow(window);
            backend->closeWindow(other);
        }
    }
}

// Some managers hold large windows on the screen: such a window gets to its place with its size.
TEST_P(X11FramesContract, WindowsGetToAndBeyondTheCorner) {
    const LMElement window = open();
    const QRectF monitor = mainMonitor();
    restore(window, monitor.adjusted(10, 10, -100, -100));
    QRectF stored(0, 0, 400, 300);
    stored.moveBottomRight(monitor.bottomRight() - QPointF(5, 5));
    restore(window, stored);
    EXPECT_TRUE(isAt(window, stored));

    stored.translate(100, 100);
    restore(window, stored);
    if (frame(window) != stored)
        GTEST_SKIP() << "this window manager holds windows on the screen";
    stored.setSize(QSizeF(900, 700));
    restore(window, stored);
    EXPECT_TRUE(isAt(window, stored));
}

// The announcement does the work; each window is set after it all the same, and that tells.
TEST_P(X11FramesContract, ManyWindowsAreSetTogether) {
    const QList<LMElement> plain{open(), open({.kind = Kind::ClientDecorated}),
                                 open({.kind = Kind::Dialog}), open({.gravity = 10})};
    const LMElement large = open(), fixed = open({.isResizable = false}), gone = open();
    enter(large, State::Maximized);
    backend->closeWindow(gone);
    QList<QRectF> wanted;
    QList<LMElementValue> positions{{plain[0], QPointF(500, 400)}}; // The last word counts.
    QList<LMElementValue> sizes;
    for (const LMElement& window : plain + QList{large, fixed, gone}) {
        const auto step = double(wanted.size());
        wanted.append({90 + 40 * step, 70 + 30 * step, 440 + 10 * step, 330 + 10 * step});
        positions.append({window, wanted.last().topLeft()});
        sizes.append({window, wanted.last().size()});
    }
    {
        const LMSettingScope scope(accessibility(), LMAttribute::Position, positions);
        for (qsizetype index = 0; index < plain.size(); ++index)
            EXPECT_EQ(backend->visibleFrame(plain[index]).topLeft(), wanted[index].topLeft());
        wmctrl(plain[1], "-e 0,600,500,-1,-1");
        const auto isMoved = [&] {
            return backend->visibleFrame(plain[1]).topLeft() != wanted[1].topLeft();
        };
        ASSERT_TRUE(LMWaitUntil(isMoved));
        EXPECT_TRUE(set(plain[1], LMAttribute::Position, wanted[1].topLeft()));
        EXPECT_TRUE(isMoved()) << "it was done already";
        for (const auto& [window, value] : positions)
            EXPECT_EQ(set(window, LMAttribute::Position, value), window != gone);
    }
    {
        const LMSettingScope scope(accessibility(), LMAttribute::Size, sizes);
        for (qsizetype index = 0; index < plain.size(); ++index)
            EXPECT_TRUE(isAt(plain[index], wanted[index])) << index;
        for (const auto& [window, value] : sizes)
            EXPECT_EQ(set(window, LMAttribute::Size, value), window != gone && window != fixed);
        EXPECT_EQ(setError(gone, LMAttribute::Size, QSizeF()), LMPlatformError::InvalidElement);
    }
    EXPECT_TRUE(isAt(large, wanted[4]));
    EXPECT_EQ(frame(fixed).topLeft(), wanted[5].topLeft());
}

TEST_P(X11FramesContract, ATerminalComesBackToItsMaximizedFrame) {
    const LMElement window = open({.increment = QSize(7, 13)});
    restore(window, QRectF(40, 40, 500, 400));
    enter(window, State::Maximized);
    const QRectF stored = settledFrame(window);
    leave(window, State::Maximized);
    ASSERT_TRUE(LMWaitUntil([&] { return settledFrame(window) != stored; }));
    restore(window, stored);
    EXPECT_EQ(settledFrame(window), stored);
}
