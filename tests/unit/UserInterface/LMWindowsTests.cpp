// SPDX-License-Identifier: MIT
#include "unit/UserInterface/UserInterfaceTest.h"
#include "UserInterface/LMAlertWindow.h"
#include "UserInterface/LMPermissionPrompt.h"
#include "UserInterface/LMProgressIndicator.h"
#include "UserInterface/LMProgressWindowController.h"
#include "UserInterface/LMStatusMenuView.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

using Windows = UserInterfaceTest;

TEST_F(Windows, AlertAnswersForKeysAndButtons) {
    const QStringList two{u"Replace"_s, u"Cancel"_s}, three{u"A"_s, u"B & C"_s, u"D"_s};
    const auto press = [](Qt::Key key) {
        return [key](QWidget& window) { QTest::keyClick(&window, key); };
    };
    const auto clickSecond = [](QWidget& window) {
        window.findChild<QPushButton*>(u"button1001"_s)->click();
    };
    const std::tuple<QStringList, std::function<void(QWidget&)>, int> rows[] = {
        {two, press(Qt::Key_Return), 1000},
        {two, press(Qt::Key_Escape), 1001},
        {two, clickSecond, 1001},
        {two, &QWidget::close, 1001},
        {{}, press(Qt::Key_Return), 1000},
        {{}, press(Qt::Key_Escape), 1000},
        {three, press(Qt::Key_Escape), 1002},
        {three, clickSecond, 1001},
    };
    for (const auto& [buttons, answer, expected] : rows) {
        LMAlertWindow window({u"Message"_s, u"More"_s, buttons, true});
        window.show();
        window.findChild<QCheckBox*>()->setChecked(expected == 1001);
        answer(window);
        EXPECT_FALSE(window.isVisible());
        EXPECT_EQ(window.answer().buttonCode, expected);
        EXPECT_EQ(window.answer().isSuppressionTicked, expected == 1001);
    }
}

TEST_F(Windows, AlertKeepsItsShapeWhateverItSays) {
    for (const QString& hostile :
         {u"<h1>Title</h1>"_s, QString(10000, u'W'), u"a\n"_s.repeated(5000),
          u"\u202Eword "_s.repeated(2000), u"é\u0301\u0302"_s.repeated(3000)}) {
        LMAlertWindow window({hostile, hostile, {hostile.left(40), u"Cancel"_s}, true});
        window.show();
        EXPECT_LE(window.width(), 700);
        EXPECT_LE(window.height(), 900);
        for (const QLabel* label : window.findChildren<QLabel*>())
            EXPECT_TRUE(label->textFormat() == Qt::PlainText || label->text().isEmpty());
    }
}

TEST_F(Windows, WhatIsMissingIsShownUnlessItOnlyCameLate) {
    LMPermissionPrompt prompt(desktop, std::chrono::milliseconds(0));
    const auto isShown = [&prompt] {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        return prompt.window() != nullptr;
    };
    prompt.show(u"gone a moment ago"_s);
    EXPECT_FALSE(isShown());
    desktop.world().permission = {false, {u"No window manager."_s}};
    prompt.show(u"No window manager."_s);
    ASSERT_TRUE(wait(isShown));
    EXPECT_TRUE(prompt.window()->isVisible() && !prompt.window()->isModal());
    desktop.world().permission = {true, {}};
    EXPECT_TRUE(wait([&] { return !isShown(); }));
}

TEST_F(Windows, MenuShowsTheValueAndKeepsItsEntries) {
    launch(u"org.rooks"_s, {{.title = u"x"_s}});
    desktop.world().application(u"org.rooks"_s)->localizedName = u"R&D_team\nnotes"_s;
    LMStatusMenuView ours(delegate.statusItemMenu(), LMStatusMenuView::Drawn::ByUs);
    LMStatusMenuView panels(delegate.statusItemMenu(), LMStatusMenuView::Drawn::ByPanel);
    desktop.makeActive(u"org.rooks"_s);
    Q_EMIT ours.menu().aboutToShow();
    Q_EMIT panels.menu().aboutToShow();
    const QList<QAction*> before = ours.menu().actions();
    EXPECT_EQ(before.first()->text(), u"R&&D_team notes"_s);
    EXPECT_EQ(panels.menu().actions().first()->text(), u"R&&D__team notes"_s);

    desktop.makeActive(u"org.editor"_s);
    Q_EMIT ours.menu().aboutToShow();
    EXPECT_EQ(ours.menu().actions(), before);
    EXPECT_EQ(before.first()->text(), u"Editor"_s);

    (*std::ranges::find(before, u"About Rook"_s, &QAction::text))->trigger();
    EXPECT_FALSE(userInterface.calls.contains(u"about"_s)) << "only once the menu is closed";
    QCoreApplication::sendPostedEvents();
    EXPECT_TRUE(userInterface.calls.contains(u"about"_s));
}

TEST_F(Windows, ProgressCountsStepsAndReadsNoEvents) {
    LMProgressWindowController progress;
    bool wasDelivered = false;
    QMetaObject::invokeMethod(
        &application, [&] { wasDelivered = true; }, Qt::QueuedConnection);
    for (const bool isIndeterminate : {false, true}) {
        progress.setIndeterminate(isIndeterminate);
        progress.showWindow();
        progress.setMaxValue(3);
        EXPECT_EQ(progress.progressIndicator()->doubleValue(), 0);
        EXPECT_EQ(progress.progressIndicator()->isAnimating(), isIndeterminate);
        progress.increment(nullptr);
        progress.animate();
        EXPECT_EQ(progress.progressIndicator()->doubleValue(), 1);
    }
    progress.close();
    EXPECT_FALSE(wasDelivered || progress.progressIndicator()->isAnimating());
}
