// SPDX-License-Identifier: MIT
#include "Categories/LMWorkspaceAdditions.h"

#include "unit/DesktopTest.h"

namespace {

const QString finder = u"com.apple.finder"_s;
const QString editor = u"editor"_s;
const QString mail = u"mail"_s;
const QString tray = u"tray"_s;

class WorkspaceAdditions : public DesktopTest {
protected:
    using W = LMWorkspaceAdditions;

    void run(const QString& identifier, bool isHidden = false,
             LMActivationPolicy policy = LMActivationPolicy::Regular) {
        launch(identifier, {LMFakeWindow()}, policy);
        setHidden(identifier, isHidden);
    }
    /// What happens in the function.
    template <class... Arguments>
    QString after(void (W::*function)(Arguments...), const std::decay_t<Arguments>&... arguments) {
        (workspace.*function)(arguments...);
        return events().replace(finder, u"finder"_s);
    }

    W workspace{environment};
};

} // namespace

TEST_F(WorkspaceAdditions, NameTheActiveApplication) {
    using Role = LMKnownApplications::Role;
    test.knownApplications = LMKnownApplications({{Role::NeverActive, {tray}}});
    run(editor);
    run(tray);
    EXPECT_FALSE(workspace.runningApplication());
    for (const QString& active : {editor, tray}) {
        desktop.makeActive(active);
        EXPECT_EQ(workspace.runningApplication().has_value(), active == editor);
    }
}

TEST_F(WorkspaceAdditions, HideAndShowApplicationsAndTakeThatBackOnce) {
    run(finder);
    run(editor);
    run(mail, true);
    run(tray, false, LMActivationPolicy::Accessory);
    EXPECT_EQ(after(&W::storeAndHideApps, {}), u"hide editor"_s);
    EXPECT_EQ(after(&W::restoreUnhiddenApps), u"unhide editor"_s);
    EXPECT_EQ(after(&W::restoreUnhiddenApps), QString());
    // With a list, whatever their policy and state, in platform order.
    EXPECT_EQ(after(&W::storeAndHideApps, QStringList{tray, finder, u"gone"_s}),
              u"hide finder, hide tray"_s);
    EXPECT_EQ(after(&W::storeAndUnhideApps, {}), u"unhide finder, unhide mail"_s);
    desktop.removeApplication(mail);
    EXPECT_EQ(after(&W::restoreHiddenApps), u"hide finder"_s) << "the other has quit";
}

TEST_F(WorkspaceAdditions, HidingFinderShowsAnotherApplicationFirstOnlyWhenNoneIsVisible) {
    for (auto harmless : {&W::hideFinder, &W::unhideFinder, &W::restoreFinderHiddenStatus})
        after(harmless); // Nothing runs.
    run(finder);
    run(mail, true);
    run(editor, true);
    EXPECT_EQ(after(&W::hideFinder), u"unhide mail, sleep 1000000, hide finder"_s);
    workspace.storeFinderHiddenStatus();
    EXPECT_EQ(after(&W::unhideFinder), u"unhide finder, hide mail"_s);
    EXPECT_EQ(after(&W::restoreFinderHiddenStatus), u"hide finder"_s);
    setHidden(finder, false);
    setHidden(editor, false);
    EXPECT_EQ(after(&W::hideFinder), u"hide finder"_s);
    EXPECT_EQ(after(&W::unhideFinder), u"unhide finder"_s);
}
