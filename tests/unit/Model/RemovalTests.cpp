// SPDX-License-Identifier: MIT
#include "Model/LMRemoval.h"
#include "unit/Model/ModelTest.h"

/// A workspace with two applications of two and one stored windows, and an action.
class Removals : public ModelTest {
protected:
    Removals() {
        workspace = insert<LMWorkspace>();
        editor = application(u"org.editor"_s, workspace);
        editor->addWindows({storedWindow(u"a"_s), storedWindow(u"b"_s), storedWindow(u"c"_s)});
        editor->setWindowsOrdering({uri(2), uri(0), uri(1)});
        LMStoredWindow* b = editor->orderedWindows()[2];
        b->addMatchingWindowsObject(window(u"linked later"_s));
        b->setLabel(u"Label"_s);
        b->setTitleRegularExpression(u"^b$"_s);
        b->orderedMatchingWindows()[0]->setScreenshotFilename(u"b.png"_s);
        b->orderedMatchingWindows()[0]->setChildren(QStringList{u"AXButton"_s});
        application(u"org.browser"_s, workspace)->addWindows({storedWindow(u"news"_s)});
        for (const char* label : {"first", "second"}) {
            auto* action = insert<LMAction>();
            action->setLabel(QLatin1String(label));
            action->setScript(u"#!/bin/sh\n\n"_s);
            action->setRunOnDisplayChange(true);
            workspace->addActionsObject(action);
        }
        store->saveWindows();
        workspaceID = workspace->objectID();
    }

    QString uri(std::size_t index) { return all<LMStoredWindow>()[index]->uriRepresentation(); }
    LMObjectID id(const QString& text) {
        return context().managedObjectIDForURIRepresentation(text);
    }

    /// Everything that the store holds, in the order in which people see it.
    QStringList contents() {
        QStringList lines;
        const auto add = [&lines](const LMManagedObject& object, const QStringList& values) {
            lines.append(object.uriRepresentation() + u" "_s + values.join(u"|"_s));
        };
        for (LMWorkspace* each : all<LMWorkspace>()) {
            add(*each, {each->name()});
            for (const LMDisplay* display : each->displays())
                add(*display, {display->displayBounds()});
            for (const LMAction* action : each->actions())
                add(*action, {action->label(), action->script(), action->runAs(),
                              QString::number(action->runOnDisplayChange())});
            for (LMApplication* member : each->applications()) {
                add(*member, {member->bundleIdentifier()});
                for (LMStoredWindow* stored : member->orderedWindows()) {
                    add(*stored,
                        {stored->label(), stored->titleRegularExpression(), stored->frameString()});
                    for (const LMWindow* snapshot : stored->orderedMatchingWindows())
                        add(*snapshot, {snapshot->title(), snapshot->screenshotFilename(),
                                        snapshot->children().value_or(QStringList()).join(u","_s)});
                }
            }
        }
        return lines;
    }

    LMWorkspace* workspace = nullptr;
    LMApplication* editor = nullptr;
    LMObjectID workspaceID;
};

/// Each row removes more, in this order; everything comes back in the opposite order.
TEST_F(Removals, AreTakenBackWholeAfterTheyWereSaved) {
    const struct {
        QString what;
        std::size_t workspaces, applications, windows, snapshots, actions;
    } rows[] = {
        {u"rook://StoredWindow/1"_s, 1, 2, 3, 4, 2}, {u"rook://StoredWindow/2"_s, 1, 2, 2, 2, 2},
        {u"rook://Application/2"_s, 1, 1, 1, 1, 2},  {u"rook://Action/1"_s, 1, 1, 1, 1, 1},
        {u"rook://Action/2"_s, 1, 1, 1, 1, 0},       {u"rook://StoredWindow/3"_s, 0, 0, 0, 0, 0},
    };
    for (int round = 0; round < 2; ++round) {
        std::vector<LMRemoval> removals;
        QList<QStringList> before;
        for (const auto& row : rows) {
            before.append(contents());
            ASSERT_TRUE(removals.emplace_back(context(), id(row.what)).perform())
                << row.what.toStdString();
            EXPECT_FALSE(LMRemoval(context(), id(row.what)).perform());
            if (round == 0)
                store->saveWindows();
            EXPECT_EQ(all<LMWorkspace>().size(), row.workspaces) << row.what.toStdString();
            if (round > 0)
                continue; // What is not saved is taken back as well.
            EXPECT_EQ(all<LMApplication>().size(), row.applications) << row.what.toStdString();
            EXPECT_EQ(all<LMStoredWindow>().size(), row.windows) << row.what.toStdString();
            EXPECT_EQ(all<LMWindow>().size(), row.snapshots) << row.what.toStdString();
            EXPECT_EQ(all<LMAction>().size(), row.actions) << row.what.toStdString();
        }
        while (!removals.empty()) {
            EXPECT_EQ(removals.back().takeBack()->objectID(), workspaceID);
            removals.pop_back();
            store->saveWindows();
            EXPECT_EQ(contents(), before.takeLast());
        }
    }
    const QStringList whole = contents();
    saveAndReopen();
    EXPECT_EQ(contents(), whole);
}

/// Storing all windows anew makes new records of the same applications, and a new workspace where
/// there is none any more.
TEST_F(Removals, JoinWhatWasStoredInTheMeantime) {
    for (const bool isWorkspaceNew : {false, true}) {
        editor = workspace->applicationForBundleIdentifier(u"org.editor"_s);
        LMRemoval removal(context(), editor->objectID());
        removal.perform();
        if (isWorkspaceNew) {
            context().deleteObject(workspace);
            workspace = insert<LMWorkspace>();
        }
        application(u"org.editor"_s, workspace)->addWindows({storedWindow(u"new"_s)});
        store->saveWindows();
        EXPECT_EQ(removal.takeBack(), workspace);
        store->saveWindows();
        EXPECT_EQ(all<LMWorkspace>().size(), 1U);
        EXPECT_EQ(workspace->applications().count(), isWorkspaceNew ? 1U : 2U);
        editor = workspace->applicationForBundleIdentifier(u"org.editor"_s);
        const QStringList back{u"c"_s, u"a"_s, u"b"_s, u"new"_s};
        EXPECT_EQ(titles(editor->orderedWindows()),
                  isWorkspaceNew ? back + QStringList{u"new"_s} : back);
    }
}

TEST_F(Removals, NeverBringBackWhatNeverWas) {
    EXPECT_EQ(context().reinsertObjectWithID({}, nullptr), nullptr);
    EXPECT_EQ(context().reinsertObjectWithID({workspaceID.entity, 99}, nullptr), nullptr);
    EXPECT_EQ(context().reinsertObjectWithID({99, 1}, nullptr), nullptr);
}
