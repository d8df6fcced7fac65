// SPDX-License-Identifier: MIT
#include "ModelTest.h"

namespace {

/// Every attribute and relationship there is, read through the accessors.
QStringList everything(LMObjectContext& context) {
    QStringList all;
    for (LMWorkspace* each : context.objects<LMWorkspace>())
        all << each->name() << QString::number(each->displays().count());
    for (LMAction* each : context.objects<LMAction>())
        all << each->label() << each->script() << each->runAs() << each->workspace()->name()
            << QString::number(each->runOnDisplayChange());
    for (LMDisplay* each : context.objects<LMDisplay>())
        all << each->displayBounds() << each->productName() << each->vendorNumber()
            << each->modelNumber() << each->serialNumber();
    for (LMApplication* each : context.objects<LMApplication>())
        all << each->name() << each->bundleIdentifier() << each->windowsOrdering();
    for (LMStoredWindow* each : context.objects<LMStoredWindow>())
        all << each->label() << each->titleRegularExpression() << each->frameString()
            << each->application()->name() << each->matchingWindowsOrdering();
    for (LMWindow* each : context.objects<LMWindow>())
        all << each->title() << each->subrole() << each->frameString() << each->screenshotFilename()
            << each->children().value_or(QStringList()) << each->storedWindow()->label()
            << QString::number(each->hasToolbarButton())
            << QString::number(each->hasGrowArea()) + QString::number(each->hasDocument());
    return all;
}

} // namespace

TEST_F(ModelTest, EveryAttributeAndRelationshipSurvivesTheStore) {
    auto* workspace = insert<LMWorkspace>();
    workspace->setName(u"Desk"_s);
    auto* action = insert<LMAction>();
    action->setLabel(u"mount"_s);
    action->setScript(u"echo hi"_s);
    action->setRunAs(u"Shell Script"_s);
    action->setRunOnDisplayChange(true);
    workspace->addActionsObject(action);
    LMDisplay* display = workspace->displays().allObjects().front();
    display->setProductName(u"Panel"_s);
    display->setVendorNumber(u"4294967295"_s);
    display->setModelNumber(u"2"_s);
    display->setSerialNumber(u"3"_s);
    LMApplication* application = applicationIn(workspace, u"org.editor"_s);
    application->setName(u"Editor"_s);
    LMStoredWindow* stored = storedWindow(u"Draft"_s);
    application->windows().addObject(stored);
    stored->setLabel(u"label"_s);
    stored->setTitleRegularExpression(u"^Dr"_s);
    LMWindow* snapshot = stored->orderedMatchingWindows().front();
    snapshot->setSubrole(u"AXDialog"_s);
    snapshot->setHasToolbarButton(true);
    snapshot->setHasGrowArea(true);
    snapshot->setHasDocument(true);
    snapshot->setChildren(QStringList{u"AXButton"_s, u"AXGroup"_s});
    snapshot->setScreenshotFilename(u"a.png"_s);
    const QStringList before = everything(context());
    EXPECT_GE(before.size(), 29);
    store->saveWindows();
    reopen();
    EXPECT_EQ(everything(context()), before);
}

TEST_F(ModelTest, RecordsAreNamed) {
    desktop.setScreens({{0, 0, 100, 100}});
    EXPECT_EQ(insert<LMWorkspace>()->name(), u"1 Display"_s);
    desktop.setScreens({{0, 0, 100, 100}, {100, 0, 100, 100}});
    EXPECT_EQ(insert<LMWorkspace>()->name(), u"2 Displays"_s);
    EXPECT_EQ(insert<LMStoredWindow>()->title(), u"No title"_s);
    EXPECT_EQ(insert<LMStoredWindow>()->labelOrTitleIfNil(), u"Unlabeled Window"_s);
    LMStoredWindow* stored = storedWindow(u"first"_s);
    stored->addMatchingWindows({window(u"second"_s)});
    EXPECT_EQ(stored->labelOrTitleIfNil(), u"first"_s);
    stored->setLabel(u"mine"_s);
    EXPECT_EQ(stored->labelOrTitleIfNil(), u"mine"_s);
}

TEST_F(ModelTest, TheOrderingKeepsStepWithTheSet) {
    LMApplication* application = applicationIn(insert<LMWorkspace>(), u"org.editor"_s);
    LMStoredWindow *a = storedWindow(u"a"_s), *b = storedWindow(u"b"_s);
    LMStoredWindow *c = storedWindow(u"c"_s), *d = storedWindow(u"d"_s);
    const auto uris = [](const std::vector<LMStoredWindow*>& windows) {
        QStringList result;
        for (const LMStoredWindow* window : windows)
            result.append(window->uriRepresentation());
        return result;
    };
    application->addWindows({a, b, c});
    application->windows().addObject(d);
    application->addWindowsObject(a); // Once is enough.
    EXPECT_EQ(application->windowsOrdering(), uris({a, b, c, d}));
    EXPECT_EQ(application->orderedWindows(), std::vector({a, b, c, d}));
    application->removeWindows({a, c});
    EXPECT_EQ(application->windowsOrdering(), uris({b, d}));
    EXPECT_EQ(a->application(), nullptr);

    // Another owner takes a member over: one owner at a time.
    applicationIn(application->workspace(), u"org.viewer"_s)->addWindowsObject(d);
    EXPECT_EQ(application->windowsOrdering(), uris({b}));

    // Deleted, foreign and meaningless entries disappear when the list is read, in place.
    application->addWindows({a, c});
    application->setWindowsOrdering({u"rook://StoredWindow/999"_s, c->uriRepresentation(), u"?"_s,
                                     d->uriRepresentation(), b->uriRepresentation(),
                                     application->uriRepresentation(), a->uriRepresentation()});
    context().deleteObject(b);
    EXPECT_EQ(application->orderedWindows(), std::vector({c, a}));
    EXPECT_EQ(application->windowsOrdering(), uris({c, a}));
}

TEST_F(ModelTest, RemovingOneMemberDoesNotReportTheOrderingAsChanged) {
    LMApplication* application = applicationIn(insert<LMWorkspace>(), u"org.editor"_s);
    application->addWindows({storedWindow(u"a"_s), storedWindow(u"b"_s), storedWindow(u"c"_s)});
    store->saveWindows();
    application->removeWindowsObject(application->orderedWindows()[1]);
    EXPECT_FALSE(application->hasChanges());
    EXPECT_EQ(application->windowsOrdering().size(), 2);
    store->saveWindows();
    reopen();
    application = context().objects<LMApplication>().front();
    EXPECT_EQ(application->windowsOrdering().size(), 3); // As it stands in the file, until read.
    EXPECT_EQ(titles(application->orderedWindows()), QStringList({u"a"_s, u"c"_s}));
    EXPECT_EQ(application->windowsOrdering().size(), 2);

    application->removeWindows({application->orderedWindows().front()});
    EXPECT_TRUE(application->hasChanges());
}
