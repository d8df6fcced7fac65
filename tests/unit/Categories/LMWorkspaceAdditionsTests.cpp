// SPDX-License-Identifier: MIT
#include "Categories/LMWorkspaceAdditions.h"

#include "unit/Categories/CategoriesTest.h"

namespace {

const QString finder = u"com.apple.finder"_qs;
const QString editor = u"org.editor"_qs;
const QString mail = u"org.mail"_qs;
const QString tray = u"org.tray"_qs;
const QString divvy = u"com.mizage.divvy"_qs;

QStringList identifiers(const QList<LMRunningApplication>& applications) {
    QStringList result;
    for (const LMRunningApplication& application : applications)
        result.append(application.bundleIdentifier);
    return result;
}

class WorkspaceAdditions : public CategoriesTest {
protected:
    void run(const QString& identifier, bool isHidden = false,
             LMActivationPolicy policy = LMActivationPolicy::Regular) {
        const qint64 process = desktop.addApplication(identifier, {}, {}, policy);
        desktop.addWindow(identifier);
        if (isHidden)
            desktop.applications().hide(process);
        desktop.log().clear();
    }

    QString takeEvents() {
        const QString events = desktop.log().events().join(u", "_qs).replace(finder, u"finder"_qs);
        desktop.log().clear();
        return events;
    }

    LMWorkspaceAdditions workspace{environment};
};

} // namespace

TEST_F(WorkspaceAdditions, NameTheActiveApplication) {
    run(editor);
    run(divvy);
    EXPECT_FALSE(workspace.runningApplication());
    desktop.makeActive(editor);
    ASSERT_TRUE(workspace.runningApplication());
    EXPECT_EQ(workspace.runningApplication()->bundleIdentifier, editor);
    desktop.makeActive(divvy);
    EXPECT_FALSE(workspace.runningApplication());
}

TEST_F(WorkspaceAdditions, ListHiddenAndVisibleRegularApplications) {
    run(mail, true);
    run(finder);
    run(tray, false, LMActivationPolicy::Accessory);
    run(editor);
    EXPECT_EQ(identifiers(workspace.hiddenApplications()), QStringList({mail}));
    EXPECT_EQ(identifiers(workspace.unhiddenApplications()), QStringList({editor}));
    desktop.world().fileManagerIdentifier.clear();
    EXPECT_FALSE(workspace.finderRunningApplication());
    EXPECT_EQ(identifiers(workspace.unhiddenApplications()), QStringList({finder, editor}));
}

TEST_F(WorkspaceAdditions, HideVisibleApplicationsAndShowThemOnce) {
    run(finder);
    run(editor);
    run(mail, true);
    run(tray, false, LMActivationPolicy::Accessory);
    workspace.storeAndHideApps();
    EXPECT_EQ(takeEvents(), u"hide org.editor"_qs);
    workspace.restoreUnhiddenApps();
    EXPECT_EQ(takeEvents(), u"unhide org.editor"_qs);
    workspace.restoreUnhiddenApps();
    EXPECT_TRUE(takeEvents().isEmpty());

    // With a list, whatever their policy and state, in platform order.
    workspace.storeAndHideApps(QStringList{tray, finder, u"org.gone"_qs});
    EXPECT_EQ(takeEvents(), u"hide finder, hide org.tray"_qs);
}

TEST_F(WorkspaceAdditions, ShowHiddenApplicationsAndHideThemAgain) {
    run(editor);
    run(mail, true);
    workspace.storeAndUnhideApps();
    EXPECT_EQ(takeEvents(), u"unhide org.mail"_qs);
    desktop.removeApplication(mail);
    workspace.restoreHiddenApps();
    EXPECT_TRUE(takeEvents().isEmpty()); // It has quit.
    workspace.storeAndUnhideApps(QStringList{editor});
    takeEvents();
    workspace.restoreHiddenApps();
    EXPECT_EQ(takeEvents(), u"hide org.editor"_qs);
}

TEST_F(WorkspaceAdditions, HidingFinderShowsAnotherApplicationFirstOnlyWhenNoneIsVisible) {
    workspace.hideFinder(); // Nothing runs: no harm.
    workspace.unhideFinder();
    run(finder);
    run(mail, true);
    run(editor, true);
    workspace.hideFinder();
    EXPECT_EQ(takeEvents(), u"unhide org.mail, sleep 1000000, hide finder"_qs);
    workspace.unhideFinder();
    EXPECT_EQ(takeEvents(), u"unhide finder, hide org.mail"_qs);
    desktop.applications().unhide(desktop.world().application(editor)->processIdentifiers[0]);
    takeEvents();
    workspace.hideFinder();
    EXPECT_EQ(takeEvents(), u"hide finder"_qs);
    workspace.unhideFinder();
    EXPECT_EQ(takeEvents(), u"unhide finder"_qs);
}

TEST_F(WorkspaceAdditions, FinderReturnsToItsRememberedState) {
    workspace.restoreFinderHiddenStatus(); // It does not run: no harm.
    run(finder, true);
    workspace.storeFinderHiddenStatus();
    workspace.unhideFinder();
    takeEvents();
    workspace.restoreFinderHiddenStatus();
    EXPECT_EQ(takeEvents(), u"hide finder"_qs);
    workspace.setFinderHiddenStatus(false);
    workspace.restoreFinderHiddenStatus();
    EXPECT_EQ(takeEvents(), u"unhide finder"_qs);
}
