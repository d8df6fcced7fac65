// SPDX-License-Identifier: MIT
#include "Categories/LMElementFunctions.h"

#include "Categories/LMAccessibilityException.h"
#include "unit/DesktopTest.h"

namespace {

/// The reason of the exception that the function raises; null when it raises none.
QString reasonOf(const auto& function) {
    try {
        function();
    } catch (const LMAccessibilityException& exception) {
        return exception.reason();
    }
    return QString();
}

class ElementFunctions : public DesktopTest {
protected:
    LMFakeAccessibility& accessibility = desktop.accessibility();
    LMElement window = launch(u"org.editor"_s, {{u"Draft"_s, {10, 20, 800, 600}}})[0];
    qint64 process = desktop.world().applications[0].processIdentifier;
    LMElement application{LMElement::Kind::Application, process, 0};
};

} // namespace

TEST_F(ElementFunctions, EveryFailureHasItsReason) {
    using enum LMFakeCall;
    namespace A = LMAttribute;
    desktop.makeActive(u"org.editor"_s);
    const auto everything = [&] {
        LMElementCopyWindows(accessibility, process);
        LMElementCopyFocusedWindow(environment);
        LMElementCopyTitle(accessibility, window);
        LMElementCopySubrole(accessibility, window);
        LMElementIsModal(accessibility, window);
        LMElementCopyFrameString(accessibility, window);
        LMElementCopyChildRoles(accessibility, window);
        LMElementSetFrame(environment, window, {1, 2, 300, 200});
    };
    const std::tuple<LMFakeCall, LMElement, QLatin1String, const char*> rows[] = {
        {Copy, application, A::Windows, "Copy of windows attribute value failed."},
        {Copy, application, A::FocusedWindow, "Copy of focused window attribute value failed."},
        {Copy, window, A::Title, "Copy of title attribute value failed."},
        {Copy, window, A::Subrole, "Copy of subrole attribute value failed."},
        {Copy, window, A::Modal, "Copy of modal attribute value failed."},
        {Copy, window, A::Position, "Copy of position attribute value failed."},
        {Copy, window, A::Size, "Copy of size attribute value failed."},
        {Count, window, A::Children, "Getting count of children attribute failed."},
        {CopyRange, window, A::Children, "Copy of children attribute value failed."},
        {IsSettable, window, A::Position, "Checking position attribute mutability failed."},
        {Set, window, A::Position, "Setting position attribute value failed."},
        {IsSettable, window, A::Size, "Checking size attribute mutability failed."},
        {Set, window, A::Size, "Setting size attribute value failed."},
    };
    for (const auto& [call, element, attribute, reason] : rows) {
        accessibility.fail(element, call, attribute, LMPlatformError::Failure);
        EXPECT_EQ(reasonOf(everything), QLatin1String(reason));
        accessibility.mend();
    }
    EXPECT_EQ(reasonOf(everything), QString());
    accessibility.answer(window, A::Position, u"nonsense"_s);
    EXPECT_EQ(reasonOf(everything), u"Conversion of position attribute value failed."_s);
    accessibility.fail({}, CreateApplication, QLatin1String(), LMPlatformError::Failure);
    EXPECT_EQ(reasonOf(everything), u"Creation of application UIElement failed."_s);
    desktop.window(window).neverAnswers = true;
    EXPECT_FALSE(LMElementHasGrowArea(accessibility, window)) << "presence tests never raise";
}

TEST_F(ElementFunctions, WhatCannotBeSetStopsTheFrame) {
    const auto setFrame = [&] { LMElementSetFrame(environment, window, {1, 2, 790, 590}); };
    desktop.window(window).hasImmutableSize = true;
    EXPECT_EQ(reasonOf(setFrame), u"Size attribute is immutable."_s);
    EXPECT_EQ(events(), u"position \"Draft\" 1,2"_s);
    desktop.window(window).hasImmutablePosition = true;
    EXPECT_EQ(reasonOf(setFrame), u"Position attribute is immutable."_s);
    EXPECT_EQ(events(), QString());
    EXPECT_EQ(reasonOf([&] { LMElementSetPosition(environment, {}, {}); }),
              u"Element is NULL, cannot set frame."_s);
}

TEST_F(ElementFunctions, AStubbornWindowIsShrunkAndGrownOnce) {
    const std::tuple<QSizeF, int, QString, QSizeF> cases[] = {
        {{700, 500}, 1, u"676,476"_s, {700, 500}},
        {{10, 20}, 1, u"1,1"_s, {10, 20}},
        {{799.5, 600}, 0, u"775.5,576"_s, {799, 600}},
        {{700, 500}, 9, u"676,476"_s, {800, 600}},
    };
    for (const auto& [size, ignored, intermediate, outcome] : cases) {
        desktop.window(window).frame.setSize({800, 600});
        desktop.window(window).ignoredSizeChanges = ignored;
        LMElementSetSize(environment, window, size);
        const QString wanted = u"size \"Draft\" %1,%2"_s.arg(size.width()).arg(size.height());
        EXPECT_EQ(events(), u"%1, size \"Draft\" %2, %1"_s.arg(wanted, intermediate));
        EXPECT_EQ(desktop.window(window).frame.size(), outcome);
        EXPECT_EQ(test.messages.takeLast(), u"Did not resize, attempting workaround."_s);
    }
}
