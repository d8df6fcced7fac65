// SPDX-License-Identifier: MIT
#include "unit/UserInterface/UserInterfaceTest.h"
#include "UserInterface/LMAlertWindow.h"
#include "UserInterface/LMPermissionPrompt.h"
#include "UserInterface/LMProgressIndicator.h"
#include "UserInterface/LMProgressWindowController.h"
#include "UserInterface/LMStatusMenuView.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

class Windows : public UserInterfaceTest {
protected:
    static void pressKey(QWidget& window, Qt::Key key) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &press);
    }
};

TEST_F(Windows, AlertAnswersForKeysAndButtons) {
    const QStringList two{u"Replace"_s, u"Cancel"_s}, three{u"A"_s, u"B & C"_s, u"D"_s};
    const struct {
        QStringList buttons;
        Qt::Key key; ///< Pressed unless 0.
        int button;  ///< Clicked otherwise; -1 closes the window.
        int expected;
    } rows[] = {
        {two, Qt::Key_Return, 0, 1000}, {two, Qt::Key_Escape, 0, 1001},
        {two, Qt::Key(0), 1, 1001},     {two, Qt::Key(0), -1, 1001},
        {{}, Qt::Key_Return, 0, 1000},  {{}, Qt::Key_Escape, 0, 1000},
        {three, Qt::Key(0), 1, 1001},   {three, Qt::Key_Escape, 0, 1002},
    };
    for (const auto& row : rows) {
        LMAlertWindow window({u"Message"_s, u"More"_s, row.buttons, true});
        window.show();
        window.findChild<QCheckBox*>()->setChecked(row.button == 1);
        if (row.key != Qt::Key(0))
            pressKey(window, row.key);
        else if (row.button >= 0)
            window.findChild<QPushButton*>(u"button%1"_s.arg(1000 + row.button))->click();
        else
            window.close();
        EXPECT_FALSE(window.isVisible());
        EXPECT_EQ(window.answer().buttonCode, row.expected);
        EXPECT_EQ(window.answer().isSuppressionTicked, row.button == 1);
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
    EXPECT_FALSE(before.first()->isEnabled());
    EXPECT_EQ(panels.menu().actions().first()->text(), u"R&&D__team notes"_s);

    desktop.makeActive(u"org.editor"_s);
    Q_EMIT ours.menu().aboutToShow();
    EXPECT_EQ(ours.menu().actions(), before);
    EXPECT_EQ(before.first()->text(), u"Editor"_s);

    for (QAction* action : before) {
        if (action->text().startsWith(u"About"_s))
            action->trigger();
    }
    EXPECT_FALSE(userInterface.calls.contains(u"about"_s)) << "only once the menu is closed";
    QCoreApplication::sendPostedEvents();
    EXPECT_TRUE(userInterface.calls.contains(u"about"_s));
}

TEST_F(Windows, ProgressCountsStepsAndReadsNoEvents) {
    LMProgressWindowController progress;
    EXPECT_EQ(progress.label(), QString());
    bool wasDelivered = false;
    QMetaObject::invokeMethod(
        &application, [&] { wasDelivered = true; }, Qt::QueuedConnection);
    for (int showing = 0; showing < 2; ++showing) {
        progress.setLabel(u"Restoring Windows…"_s);
        progress.setIndeterminate(showing == 1);
        progress.showWindow();
        progress.setMaxValue(3);
        EXPECT_EQ(progress.progressIndicator()->doubleValue(), 0);
        EXPECT_EQ(progress.progressIndicator()->isAnimating(), showing == 1);
        progress.increment(nullptr);
        progress.increment(nullptr);
        progress.animate();
        EXPECT_EQ(progress.progressIndicator()->doubleValue(), 2);
        EXPECT_EQ(progress.progressIndicator()->maxValue(), 3);
    }
    progress.close();
    EXPECT_FALSE(progress.progressIndicator()->isAnimating());
    EXPECT_FALSE(wasDelivered);
}
