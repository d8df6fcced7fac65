// SPDX-License-Identifier: MIT
#include "Categories/LMElementFunctions.h"

#include "Categories/LMAccessibilityException.h"
#include "unit/Categories/CategoriesTest.h"

#include <functional>

namespace {

/// The reason of the exception that the function raises; null when it raises none.
QString reasonOf(const std::function<void()>& function) {
    try {
        function();
    } catch (const LMAccessibilityException& exception) {
        EXPECT_EQ(exception.name(), u"LMAccessibilityException"_qs);
        EXPECT_EQ(QString::fromUtf8(exception.what()), exception.reason());
        return exception.reason();
    }
    return QString();
}

class ElementFunctions : public CategoriesTest {
protected:
    ElementFunctions() {
        process = desktop.addApplication(editor);
        window =
            desktop.addWindow(editor, {.title = u"Draft"_qs, .frame = QRectF(10, 20, 800, 600)});
        desktop.makeActive(editor);
        application = {LMElement::Kind::Application, process, 0};
    }

    QStringList moves() { return desktop.log().events(); }

    const QString editor = u"org.editor"_qs;
    LMFakeAccessibility& accessibility = desktop.accessibility();
    qint64 process = 0;
    LMElement application;
    LMElement window;
};

} // namespace

TEST_F(ElementFunctions, EveryFailureHasItsReason) {
    using enum LMFakeCall;
    namespace A = LMAttribute;
    const auto frame = [&] { LMElementCopyFrameString(accessibility, window); };
    const auto windows = [&] { LMElementCopyWindows(accessibility, process); };
    const auto focused = [&] { LMElementCopyFocusedWindow(environment); };
    const auto title = [&] { LMElementCopyTitle(accessibility, window); };
    const auto subrole = [&] { LMElementCopySubrole(accessibility, window); };
    const auto modal = [&] { LMElementIsModal(accessibility, window); };
    const auto roles = [&] { LMElementCopyChildRoles(accessibility, window); };
    const auto move = [&] { LMElementSetPosition(environment, window, {1, 2}); };
    const auto resize = [&] { LMElementSetSize(environment, window, {300, 200}); };
    // clang-format off
    const struct {
        LMFakeCall call;
        LMElement element;
        QLatin1String attribute;
        const char* reason;
        std::function<void()> function;
    } cases[] = {
        {Copy, application, A::Windows, "Copy of windows attribute value failed.", windows},
        {Copy, application, A::FocusedWindow, "Copy of focused window attribute value failed.", focused},
        {Copy, window, A::Title, "Copy of title attribute value failed.", title},
        {Copy, window, A::Subrole, "Copy of subrole attribute value failed.", subrole},
        {Copy, window, A::Modal, "Copy of modal attribute value failed.", modal},
        {Copy, window, A::Position, "Copy of position attribute value failed.", frame},
        {Copy, window, A::Size, "Copy of size attribute value failed.", frame},
        {Count, window, A::Children, "Getting count of children attribute failed.", roles},
        {CopyRange, window, A::Children, "Copy of children attribute value failed.", roles},
        {IsSettable, window, A::Position, "Checking position attribute mutability failed.", move},
        {Set, window, A::Position, "Setting position attribute value failed.", move},
        {IsSettable, window, A::Size, "Checking size attribute mutability failed.", resize},
        {Set, window, A::Size, "Setting size attribute value failed.", resize},
    };
    // clang-format on
    for (const auto& test : cases) {
        accessibility.fail(test.element, test.call, test.attribute, LMPlatformError::Failure);
        EXPECT_EQ(reasonOf(test.function), QString::fromLatin1(test.reason));
        accessibility.mend();
        EXPECT_EQ(reasonOf(test.function), QString()) << test.reason;
    }
    accessibility.answer(window, A::Position, u"nonsense"_qs);
    EXPECT_EQ(reasonOf(frame), u"Conversion of position attribute value failed."_qs);
    accessibility.failCreateApplication(LMPlatformError::Failure);
    EXPECT_EQ(reasonOf(windows), u"Creation of application UIElement failed."_qs);
    desktop.window(window).neverAnswers = true;
    EXPECT_FALSE(LMElementHasGrowArea(accessibility, window)) << "presence tests never raise";
}

TEST_F(ElementFunctions, WhatCannotBeSetStopsTheFrame) {
    desktop.window(window).hasImmutablePosition = true;
    const auto setFrame = [&] { LMElementSetFrame(environment, window, QRectF(1, 2, 3, 4)); };
    EXPECT_EQ(reasonOf(setFrame), u"Position attribute is immutable."_qs);
    EXPECT_TRUE(moves().isEmpty());
    desktop.window(window).hasImmutablePosition = false;
    desktop.window(window).hasImmutableSize = true;
    EXPECT_EQ(reasonOf(setFrame), u"Size attribute is immutable."_qs);
    EXPECT_EQ(moves(), QStringList({u"position \"Draft\" 1,2"_qs}));
    desktop.window(window).hasImmutableSize = false;
    desktop.log().clear();
    EXPECT_EQ(reasonOf(setFrame), QString());
    EXPECT_EQ(moves().at(0), u"position \"Draft\" 1,2"_qs);
    EXPECT_EQ(desktop.window(window).frame, QRectF(1, 2, 3, 4));
    EXPECT_EQ(reasonOf([&] { LMElementSetPosition(environment, {}, {}); }),
              u"Element is NULL, cannot set frame."_qs);
}

TEST_F(ElementFunctions, AStubbornWindowIsShrunkAndGrownOnce) {
    const std::tuple<QSizeF, int, QString, QSizeF> cases[] = {
        {{700, 500}, 1, u"676,476"_qs, {700, 500}}, {{10, 20}, 1, u"1,1"_qs, {10, 20}},
        {{25.5, 24}, 1, u"1.5,1"_qs, {25, 24}},     {{799.5, 600}, 0, u"775.5,576"_qs, {799, 600}},
        {{700, 500}, 9, u"676,476"_qs, {800, 600}},
    };
    for (const auto& [size, ignored, intermediate, outcome] : cases) {
        desktop.window(window).frame.setSize({800, 600});
        desktop.window(window).ignoredSizeChanges = ignored;
        desktop.log().clear();
        messages.clear();
        LMElementSetSize(environment, window, size);
        const QString request = u"size \"Draft\" "_qs;
        const QString wanted = request + u"%1,%2"_qs.arg(size.width()).arg(size.height());
        EXPECT_EQ(moves(), QStringList({wanted, request + intermediate, wanted}));
        EXPECT_EQ(desktop.window(window).frame.size(), outcome);
        EXPECT_EQ(messages, QStringList(u"Did not resize, attempting workaround."_qs));
    }
}
