// SPDX-License-Identifier: MIT
#include "unit/Controller/ControllerTest.h"

#include "Model/LMApplication.h"
#include "Model/LMWindow.h"
#include "Model/Store/LMObjectContext.h"

namespace {

class StatusMenuTest : public ControllerTest {
protected:
    /// Tags of the enabled items after the menu was told to update.
    QString enabled() {
        menu.menuNeedsUpdate();
        QString tags;
        for (const LMMenuItem& item : menu.items())
            if (item.tag != 0 && item.isEnabled)
                tags += QString::number(item.tag) + u' ';
        return tags.trimmed();
    }
    QString title(int tag) const {
        return std::ranges::find(menu.items(), tag, &LMMenuItem::tag)->title;
    }

    LMStatusMenu& menu = delegate.statusItemMenu();
};

TEST_F(StatusMenuTest, EnablesWhatCanBeDoneNow) {
    EXPECT_EQ(enabled(), u"4 5 7 9 10 11"_s) << "nothing is stored yet";
    EXPECT_EQ(title(2), u"Restore Windows for Editor"_s);
    ASSERT_TRUE(perform("SApp").isDone);
    EXPECT_EQ(enabled(), u"4 2 5 6 1 7 9 10 11"_s);
    desktop.focus(LMElement());
    EXPECT_EQ(enabled(), u"4 2 1 7 9 10 11"_s) << "no window has the focus";
    userInterface.isModal = true;
    EXPECT_EQ(enabled(), QString());
    userInterface.isModal = false;
    desktop.world().permission = {false, {u"No window manager."_s}};
    EXPECT_EQ(enabled(), u"9 10 11"_s);
}

TEST_F(StatusMenuTest, NamesApplicationsThatAreNotHandled) {
    defaults.setObject(Keys::ExcludedApplications, QStringList{u"org.editor"_s});
    EXPECT_EQ(enabled(), u"7 9 10 11"_s);
    EXPECT_EQ(title(3), u"Editor (Incompatible)"_s);
}

TEST_F(StatusMenuTest, UpdatingLetsOtherLiveRecordsLive) {
    LMWindow* held = LMWindow::focusedWindow(store.managedObjectContext());
    enabled();
    EXPECT_EQ(store.managedObjectContext().objects<LMWindow>(), std::vector{held});
}

TEST_F(StatusMenuTest, EntriesDoWhatTheySay) {
    enabled();
    menu.perform(LMMenuCommand::RestoreAllWindows);
    EXPECT_TRUE(desktop.log().isEmpty()) << "it is disabled";
    perform("SAll");
    enabled();
    bool quits = false;
    QObject::connect(&delegate, &LMApplicationDelegate::quitRequested, [&] { quits = true; });
    userInterface.calls.clear();
    for (const auto command :
         {LMMenuCommand::LinkActiveWindow, LMMenuCommand::ShowStoredWindowsEditor,
          LMMenuCommand::ShowPreferencesWindow, LMMenuCommand::ShowAboutPanel, LMMenuCommand::Quit})
        menu.perform(command);
    EXPECT_EQ(userInterface.calls,
              (QStringList{u"picker"_s, u"reload"_s, u"list"_s, u"preferences"_s, u"about"_s}));
    EXPECT_TRUE(quits);
}

} // namespace
