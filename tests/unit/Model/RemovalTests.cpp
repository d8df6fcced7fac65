// SPDX-License-Identifier: MIT
#include "Model/LMRemoval.h"
#include "unit/Model/ModelTest.h"

#include <QRegularExpression>

/// A workspace with two applications of two and one stored windows, and an action.
class Removals : public ModelTest {
protected:
    Removals() {
        workspace = insert<LMWorkspace>();
        editor = application(u"org.editor"_s, workspace);
        editor->addWindows({storedWindow(u"a"_s), storedWindow(u"b"_s), storedWindow(u"c"_s)});
        editor->setWindowsOrdering({uri(2), uri(0), uri(1)});
        editor->orderedWindows()[2]->addMatchingWindowsObject(window(u"linked later"_s));
        application(u"org.browser"_s, workspace)->addWindows({storedWindow(u"news"_s)});
        for (int i = 0; i < 2; ++i)
            workspace->addActionsObject(insert<LMAction>());
        fillIn();
        store->saveWindows();
        workspaceID = workspace->objectID();
    }

    QString uri(std::size_t index) { return all<LMStoredWindow>()[index]->uriRepresentation(); }

    std::vector<LMManagedObject*> everything() {
        const auto workspaces = all<LMWorkspace>();
        std::vector<LMManagedObject*> objects(workspaces.begin(), workspaces.end());
        for (std::size_t i = 0; i < objects.size(); ++i) {
            const auto owned = objects[i]->ownedObjects();
            objects.insert(objects.end(), owned.begin(), owned.end());
        }
        std::ranges::sort(objects, {}, &LMManagedObject::uriRepresentation);
        return objects;
    }
    /// Gives attributes values of their own, except those that records are told apart by.
    void fillIn() {
        const QStringList kept{u"title"_s, u"bundleIdentifier"_s, u"displayBounds"_s};
        for (LMManagedObject* object : everything()) {
            for (const LMAttributeDescription& attribute : object->entity().attributes) {
                std::any value = attribute.value(*object);
                if (auto* text = std::any_cast<QString>(&value);
                    text && !kept.contains(attribute.name))
                    *text = object->uriRepresentation() + u' ' + attribute.name;
                else if (auto* flag = std::any_cast<bool>(&value))
                    *flag = true;
                attribute.setValue(*object, value);
            }
        }
    }
    /// Every value of every record, and what owns it.
    QStringList contents() {
        QStringList lines;
        for (LMManagedObject* object : everything()) {
            if (auto* member = dynamic_cast<LMApplication*>(object))
                lines += titles(member->orderedWindows()); // Puts the ordering in order.
            lines += object->uriRepresentation();
            lines += object->owner() ? object->owner()->uriRepresentation() : QString();
            for (const LMAttributeDescription& attribute : object->entity().attributes) {
                const std::any value = attribute.value(*object);
                if (const auto* text = std::any_cast<QString>(&value))
                    lines += *text;
                else if (const auto* list = std::any_cast<QStringList>(&value))
                    lines += *list;
            }
        }
        return lines;
    }

    LMWorkspace* workspace = nullptr;
    LMApplication* editor = nullptr;
    LMObjectID workspaceID;
};

/// From the first to the last; everything comes back in the opposite order.
TEST_F(Removals, AreTakenBackWholeWhetherTheyWereSavedOrNot) {
    for (const bool isSaved : {true, false}) {
        std::vector<LMRemoval> removals;
        QList<QStringList> before;
        for (const char* what : {"StoredWindow/1", "StoredWindow/2", "Application/2", "Action/1",
                                 "Action/2", "StoredWindow/3"}) {
            const LMObjectID id =
                context().managedObjectIDForURIRepresentation(u"rook://"_s + QLatin1String(what));
            before.append(contents());
            ASSERT_TRUE(removals.emplace_back(context(), id).perform());
            EXPECT_FALSE(LMRemoval(context(), id).perform());
            if (isSaved)
                store->saveWindows();
        }
        EXPECT_TRUE(everything().empty());
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

TEST_F(Removals, FindEveryAttributeInTheStore) {
    reopen();
    const LMAction* action = all<LMAction>().front();
    const LMDisplay* display = all<LMDisplay>().front();
    const LMStoredWindow* stored = all<LMStoredWindow>().front();
    const LMWindow* snapshot = all<LMWindow>().front();
    QStringList texts;
    texts << action->label() << action->script() << action->runAs() << display->productName()
          << display->vendorNumber() << display->modelNumber() << display->serialNumber()
          << stored->label() << stored->titleRegularExpression() << stored->frameString()
          << stored->stateString() << snapshot->subrole() << snapshot->frameString()
          << snapshot->screenshotFilename() << snapshot->stateString()
          << all<LMWorkspace>().front()->name();
    texts.replaceInStrings(QRegularExpression(u"^rook://\\w+/1 "_s), QString());
    EXPECT_EQ(texts.join(u' '),
              u"label script runAs productName vendorNumber modelNumber serialNumber label "
              "titleRegularExpression frameString stateString subrole frameString "
              "screenshotFilename stateString name"_s);
    EXPECT_TRUE(action->runOnDisplayChange() && snapshot->hasToolbarButton() &&
                snapshot->hasGrowArea() && snapshot->hasDocument());
}

/// Storing all windows anew makes new records of the same applications, and a new workspace where
/// there is none any more.
TEST_F(Removals, JoinWhatWasStoredInTheMeantime) {
    LMRemoval removal(context(), editor->objectID());
    removal.perform();
    context().deleteObject(workspace);
    workspace = insert<LMWorkspace>();
    editor = application(u"org.editor"_s, workspace);
    editor->addWindows({storedWindow(u"new"_s)});
    store->saveWindows();
    EXPECT_EQ(removal.takeBack(), workspace);
    store->saveWindows();
    EXPECT_EQ(all<LMWorkspace>().size(), 1U);
    EXPECT_EQ(workspace->applications().count(), 1U);
    EXPECT_THAT(titles(editor->orderedWindows()), ElementsAre(u"c"_s, u"a"_s, u"b"_s, u"new"_s));
}

TEST_F(Removals, NeverBringBackWhatNeverWas) {
    EXPECT_EQ(context().reinsertObjectWithID({}, nullptr), nullptr);
    EXPECT_EQ(context().reinsertObjectWithID({workspaceID.entity, 99}, nullptr), nullptr);
}
