// SPDX-License-Identifier: MIT
#include "ModelTest.h"

TEST_F(ModelTest, EveryAttributeAndRelationshipSurvivesTheStore) {
    LMApplication* editor = application();
    editor->setName(u"Editor"_s);
    LMWorkspace* workspace = editor->workspace();
    workspace->setName(u"Desk"_s);
    auto* action = insert<LMAction>();
    action->setLabel(u"mount"_s);
    action->setScript(u"echo hi"_s);
    action->setRunAs(u"Shell Script"_s);
    action->setRunOnDisplayChange(true);
    workspace->addActionsObject(action);
    LMDisplay* display = all<LMDisplay>().front();
    display->setProductName(u"Panel"_s);
    display->setVendorNumber(u"4294967295"_s);
    display->setModelNumber(u"2"_s);
    display->setSerialNumber(u"3"_s);
    LMStoredWindow* stored = storedWindow(u"Draft"_s);
    editor->windows().addObject(stored);
    stored->setLabel(u"label"_s);
    stored->setTitleRegularExpression(u"^Dr"_s);
    LMWindow* snapshot = stored->orderedMatchingWindows().front();
    snapshot->setSubrole(u"AXDialog"_s);
    snapshot->setHasToolbarButton(true);
    snapshot->setHasGrowArea(true);
    snapshot->setHasDocument(true);
    snapshot->setChildren(QStringList{u"AXButton"_s, u"AXGroup"_s});
    snapshot->setScreenshotFilename(u"a.png"_s);
    snapshot->setStateString(u"{}"_s);
    stored->setStateString(u"{\"desktop\":1}"_s);

    const auto everything = [this] {
        QVariantList result;
        for (const LMAction* each : all<LMAction>())
            result << each->label() << each->script() << each->runAs() << each->runOnDisplayChange()
                   << each->workspace()->name();
        for (const LMDisplay* each : all<LMDisplay>())
            result << each->displayBounds() << each->productName() << each->vendorNumber()
                   << each->modelNumber() << each->serialNumber() << each->workspace()->name();
        for (const LMStoredWindow* each : all<LMStoredWindow>())
            result << each->label() << each->titleRegularExpression() << each->frameString()
                   << each->stateString() << each->matchingWindowsOrdering()
                   << each->application()->name() << each->application()->bundleIdentifier()
                   << each->application()->windowsOrdering();
        for (const LMWindow* each : all<LMWindow>())
            result << each->title() << each->subrole() << each->frameString()
                   << each->screenshotFilename() << each->stateString()
                   << each->children().value_or(QStringList()) << each->hasToolbarButton()
                   << each->hasGrowArea() << each->hasDocument() << each->storedWindow()->label();
        return result;
    };
    const QVariantList before = everything();
    EXPECT_EQ(before.size(), 29);
    saveAndReopen();
    EXPECT_EQ(everything(), before);
}

TEST_F(ModelTest, AStateIsKeptAsText) {
    LMStoredState everything;
    LMWindowState& window = everything.window;
    window.isMaximizedVertically = window.isFullscreen = window.isMinimized = true;
    window.isShaded = window.isKeptAbove = window.isKeptBelow = window.isOnAllDesktops = true;
    LMStoredState one;
    one.window.isMaximizedHorizontally = one.window.isMaximizedVertically = true;
    one.window.desktop = 0;
    one.window.desktopName = u"Mail \"&\" 日"_s;
    one.window.normalFrame = QRectF(-1.5, 2, 3, 4);
    one.stackingPosition = 7;
    for (const LMStoredState& state : {everything, one, LMStoredState()})
        EXPECT_EQ(LMStateFromString(LMStringFromState(state)), state);
    EXPECT_EQ(LMStringFromState(one),
              u"{\"desktop\":0,\"desktopName\":\"Mail \\\"&\\\" 日\","
              "\"normalFrame\":\"{{-1.5, 2}, {3, 4}}\",\"stackingPosition\":7,"
              "\"states\":[\"maximized\"]}"_s);
    for (const QString& text : {QString(), u""_s, u"["_s, u"[]"_s, u"7"_s})
        EXPECT_EQ(LMStateFromString(text), std::nullopt);
    for (const QString& text : {u"{}"_s, u"{\"states\":7,\"desktop\":-1,\"normalFrame\":[]}"_s,
                                u"{\"normalFrame\":\"{{9, 9}, {0, x}}\"}"_s,
                                u"{\"states\":[\"new\",{}],\"desktop\":1.5,\"x\":1}"_s})
        EXPECT_EQ(LMStateFromString(text), LMStoredState()) << text.toStdString();
}

TEST_F(ModelTest, RecordsAreNamed) {
    EXPECT_EQ(insert<LMWorkspace>()->name(), u"1 Display"_s);
    desktop.setScreens({{0, 0, 100, 100}, {100, 0, 100, 100}});
    EXPECT_EQ(insert<LMWorkspace>()->name(), u"2 Displays"_s);
    LMStoredWindow* stored = insert<LMStoredWindow>();
    EXPECT_EQ(stored->title(), u"No title"_s);
    EXPECT_EQ(stored->labelOrTitleIfNil(), u"Unlabeled Window"_s);
    stored->addMatchingWindows({window(u"first"_s), window(u"second"_s)});
    EXPECT_EQ(stored->labelOrTitleIfNil(), u"first"_s);
    stored->setLabel(u"mine"_s);
    EXPECT_EQ(stored->labelOrTitleIfNil(), u"mine"_s);
}

TEST_F(ModelTest, TheOrderingKeepsStepWithTheSet) {
    LMApplication* editor = application();
    LMStoredWindow *a = storedWindow(u"a"_s), *b = storedWindow(u"b"_s);
    LMStoredWindow *c = storedWindow(u"c"_s), *d = storedWindow(u"d"_s);
    const QString uriA = a->uriRepresentation(), uriB = b->uriRepresentation();
    const QString uriC = c->uriRepresentation(), uriD = d->uriRepresentation();
    editor->addWindows({a, b, c});
    editor->windows().addObject(d);
    editor->addWindowsObject(a); // Once is enough.
    EXPECT_THAT(editor->windowsOrdering(), ElementsAre(uriA, uriB, uriC, uriD));
    EXPECT_THAT(editor->orderedWindows(), ElementsAre(a, b, c, d));
    editor->removeWindows({a, c});
    EXPECT_THAT(editor->windowsOrdering(), ElementsAre(uriB, uriD));
    EXPECT_EQ(a->application(), nullptr);

    // Another owner takes a member over: one owner at a time.
    application(u"org.viewer"_s)->addWindowsObject(d);
    EXPECT_THAT(editor->windowsOrdering(), ElementsAre(uriB));

    // Deleted, foreign and meaningless entries disappear when the list is read, in place.
    editor->addWindows({a, c});
    editor->setWindowsOrdering({u"rook://StoredWindow/999"_s, uriC, u"?"_s, uriD, uriB,
                                editor->uriRepresentation(), uriA});
    context().deleteObject(b);
    EXPECT_THAT(editor->orderedWindows(), ElementsAre(c, a));
    EXPECT_THAT(editor->windowsOrdering(), ElementsAre(uriC, uriA));
}

TEST_F(ModelTest, RemovingOneMemberDoesNotReportTheOrderingAsChanged) {
    makeStore();
    reopen();
    LMApplication* editor = all<LMApplication>().front();
    editor->removeWindowsObject(editor->orderedWindows()[0]);
    EXPECT_FALSE(editor->hasChanges());
    EXPECT_EQ(editor->windowsOrdering().size(), 1);
    saveAndReopen();
    editor = all<LMApplication>().front();
    EXPECT_EQ(editor->windowsOrdering().size(), 2); // As it stands in the file, until read.
    EXPECT_EQ(titles(editor->orderedWindows()), QStringList(u"b"_s));
    EXPECT_EQ(editor->windowsOrdering().size(), 1);

    editor->removeWindows({editor->orderedWindows().front()});
    EXPECT_TRUE(editor->hasChanges());
}
