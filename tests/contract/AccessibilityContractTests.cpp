// SPDX-License-Identifier: MIT
#include "contract/LMContractTest.h"

using Kind = LMContractWindow::Kind;

namespace {

const QList<QLatin1String> windowAttributes{
    LMAttribute::Title,    LMAttribute::Role,     LMAttribute::Subrole,       LMAttribute::Position,
    LMAttribute::Size,     LMAttribute::Children, LMAttribute::ToolbarButton, LMAttribute::GrowArea,
    LMAttribute::Document, LMAttribute::Modal};

/// What reads answered, so that two answers can be compared.
auto answers(LMAccessibility& accessibility, const QList<LMElement>& windows) {
    QList<std::pair<LMAttributeValue, std::optional<LMPlatformError>>> result;
    for (const LMElement& window : windows) {
        for (const QLatin1String attribute : windowAttributes) {
            const auto value = accessibility.copyAttributeValue(window, attribute);
            result.append({value.valueOr({}), LMErrorOf(value)});
        }
    }
    return result;
}

} // namespace

LM_CONTRACT_SUITE(AccessibilityContract);

TEST_P(AccessibilityContract, WindowsAreListedFrontToBackWithMinimizedOnes) {
    const LMElement first = open({.title = u"1"_qs});
    const LMElement second = open({.title = u"2"_qs});
    const LMElement other = open({.application = u"second"_qs});
    for (const auto& order : {QList({first, second}), QList({second, first})}) {
        backend->raise(order.first());
        EXPECT_TRUE(LMWaitUntil([&] { return windows() == order; }));
    }
    EXPECT_EQ(windows(u"second"_qs), QList({other}));

    backend->minimize(second);
    EXPECT_EQ(windows().size(), 2);
    EXPECT_TRUE(windows().contains(second));
}

TEST_P(AccessibilityContract, AttributesHaveTheirTypesAndArraysTheirRanges) {
    const QString title = u"Grüße — \u202eשלום 🙂"_qs;
    const LMElement window = open({.title = title});
    EXPECT_EQ(text(window, LMAttribute::Title), title);
    EXPECT_EQ(text(window, LMAttribute::Role), u"AXWindow"_qs);
    EXPECT_EQ(text(window, LMAttribute::Subrole), u"AXStandardWindow"_qs);
    EXPECT_FALSE(read<bool>(window, LMAttribute::Modal));
    EXPECT_EQ(frame(window), backend->visibleFrame(window));
    EXPECT_EQ(readError(window, LMAttribute::GrowArea), std::nullopt);
    for (const auto unknown : {LMAttribute::ToolbarButton, LMAttribute::Document,
                               LMAttribute::Windows, QLatin1String("AXNonsense")})
        EXPECT_EQ(readError(window, unknown), LMPlatformError::AttributeUnsupported);

    const LMElement dialog = open({.kind = Kind::Dialog, .isModal = true});
    EXPECT_EQ(text(dialog, LMAttribute::Subrole), u"AXDialog"_qs);
    EXPECT_TRUE(read<bool>(dialog, LMAttribute::Modal));
    EXPECT_EQ(text(open({.kind = Kind::Utility}), LMAttribute::Subrole), u"AXFloatingWindow"_qs);

    const auto children = read<QList<LMElement>>(window, LMAttribute::Children);
    EXPECT_EQ(*accessibility().attributeValueCount(window, LMAttribute::Children), children.size());
    for (const auto& [index, size] : {std::pair(0, 2), {1, 1}, {0, 0}, {1, 1000}, {1000, 1}})
        EXPECT_EQ(*accessibility().copyAttributeValues(window, LMAttribute::Children, index, size),
                  children.mid(index, size));
}

TEST_P(AccessibilityContract, OnlyPositionAndSizeCanBeSet) {
    const LMElement window = open();
    const QRectF before = frame(window);
    for (const QLatin1String attribute : windowAttributes) {
        EXPECT_EQ(isSettable(window, attribute),
                  attribute == LMAttribute::Position || attribute == LMAttribute::Size);
        EXPECT_FALSE(set(window, attribute, u"value"_qs)) << attribute.data();
    }
    EXPECT_FALSE(set(window, LMAttribute::Size, QPointF(1, 1)));
    EXPECT_EQ(frame(window), before);

    const LMElement fixed = open({.isResizable = false});
    EXPECT_FALSE(isSettable(fixed, LMAttribute::Size));
    EXPECT_TRUE(isSettable(fixed, LMAttribute::Position));
    EXPECT_EQ(readError(fixed, LMAttribute::GrowArea), LMPlatformError::AttributeUnsupported);

    backend->setState(window, {.isFullscreen = true, .desktop = 0});
    EXPECT_FALSE(isSettable(window, LMAttribute::Position));
    EXPECT_FALSE(isSettable(window, LMAttribute::Size));
    EXPECT_EQ(setError(window, LMAttribute::Position, QPointF(50, 50)),
              LMPlatformError::NotSettable);
}

TEST_P(AccessibilityContract, WhatIsGoneIsAnInvalidElement) {
    const LMElement window = open();
    QList<LMElement> gone = read<QList<LMElement>>(window, LMAttribute::Children);
    open();
    backend->closeWindow(window);
    ASSERT_TRUE(LMWaitUntil([&] { return !windows().contains(window); }));
    EXPECT_EQ(readError(*accessibility().createApplication(0x7ffffff0), LMAttribute::Windows),
              LMPlatformError::InvalidElement);
    for (const QLatin1String attribute : windowAttributes)
        EXPECT_EQ(readError(window, attribute), LMPlatformError::InvalidElement);
    for (const LMElement& element : gone << LMElement())
        EXPECT_EQ(readError(element, LMAttribute::Role), LMPlatformError::InvalidElement);
    EXPECT_EQ(setError(window, LMAttribute::Position, QPointF(1, 2)),
              LMPlatformError::InvalidElement);
    EXPECT_EQ(LMErrorOf(accessibility().isAttributeSettable(window, LMAttribute::Size)),
              LMPlatformError::InvalidElement);
}

TEST_P(AccessibilityContract, ABatchReadsWhatSingleReadsDoUntilItsEndOrAChange) {
    QList<LMElement> batch{open({.title = u"Before"_qs}),         open({.kind = Kind::Dialog}),
                           open({.kind = Kind::ClientDecorated}), open({.isResizable = false}),
                           open({.application = u"second"_qs}),   open()};
    backend->closeWindow(batch.last());
    ASSERT_TRUE(LMWaitUntil([&] { return !windows().contains(batch.last()); }));
    const auto single = answers(accessibility(), batch);
    {
        const LMReadingScope outer(accessibility(), batch.mid(0, 2));
        const LMReadingScope inner(accessibility(), batch);
        backend->setTitle(batch.first(), u"After"_qs);
        EXPECT_EQ(answers(accessibility(), batch), single);
        ASSERT_TRUE(set(batch.first(), LMAttribute::Position, QPointF(333, 222)));
        EXPECT_EQ(read<QPointF>(batch.first(), LMAttribute::Position), QPointF(333, 222));
    }
    EXPECT_TRUE(LMWaitUntil([&] { return text(batch[0], LMAttribute::Title) == u"After"_qs; }));
    EXPECT_EQ(answers(accessibility(), batch.mid(1)), single.mid(windowAttributes.size()));
}
