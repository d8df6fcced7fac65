// SPDX-License-Identifier: MIT
#include "ModelTest.h"

TEST_F(ModelTest, AStateIsKeptAsText) {
    LMStoredState one;
    one.window.isMaximizedHorizontally = one.window.isMaximizedVertically = true;
    one.window.desktop = 0;
    one.window.desktopName = u"Mail \"&\" 日"_s;
    one.window.normalFrame = QRectF(-1.5, 2, 3, 4);
    one.stackingPosition = 7;
    EXPECT_EQ(LMStateFromString(LMStringFromState(one)), one);
    EXPECT_EQ(LMStringFromState(one),
              u"{\"desktop\":0,\"desktopName\":\"Mail \\\"&\\\" 日\","
              "\"normalFrame\":\"{{-1.5, 2}, {3, 4}}\",\"stackingPosition\":7,"
              "\"states\":[\"maximized\"]}"_s);
    for (const QString& text : {QString(), u""_s, u"["_s, u"[]"_s, u"7"_s})
        EXPECT_EQ(LMStateFromString(text), std::nullopt);
    for (const QString& text :
         {u"{}"_s, u"{\"states\":7,\"desktop\":-1,\"normalFrame\":[]}"_s,
          u"{\"normalFrame\":\"{{9, 9}, {0, x}}\"}"_s,
          u"{\"states\":[\"new\",{}],\"desktop\":1.5,\"x\":1}"_s, u"{\"desktop\":2147483647}"_s})
        EXPECT_EQ(LMStateFromString(text), LMStoredState()) << text.toStdString();
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
