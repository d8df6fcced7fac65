// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LMAction.h"
#include "Model/LMApplication.h"
#include "Model/LMDisplay.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWindow.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"
#include "Model/Store/LMObjectModel.h"
#include "unit/DesktopTest.h"
#include "unit/Files.h"

#include <QDir>

using testing::ElementsAre;

/// The records in the store that the program itself opens.
class ModelTest : public DesktopTest {
protected:
    LMObjectContext& context() { return store->managedObjectContext(); }
    void reopen(const QString& version = u"1.0"_s) {
        store.reset();
        store = std::make_unique<LMStoredWindowsStore>(environment, version);
    }

    void saveAndReopen() {
        store->saveWindows();
        reopen();
    }

    template <class T>
    T* insert() {
        return context().insertObject<T>();
    }
    template <class T>
    std::vector<T*> all() {
        return context().objects<T>();
    }
    LMWindow* window(const QString& title) {
        auto* result = insert<LMWindow>();
        result->setTitle(title);
        result->setFrame({10, 20, 300, 400});
        return result;
    }
    LMStoredWindow* storedWindow(const QString& title) {
        return LMStoredWindow::storedWindowWithWindow(window(title));
    }
    LMApplication* application(const QString& identifier = u"org.editor"_s,
                               LMWorkspace* workspace = nullptr) {
        auto* result = insert<LMApplication>();
        result->setBundleIdentifier(identifier);
        (workspace ? workspace : insert<LMWorkspace>())->addApplicationsObject(result);
        return result;
    }
    /// A closed store with an application in it that has the stored windows "a" and "b".
    void makeStore() {
        application()->addWindows({storedWindow(u"a"_s), storedWindow(u"b"_s)});
        store->saveWindows();
        store.reset();
    }

    static QStringList titles(const std::vector<LMStoredWindow*>& windows) {
        QStringList result;
        for (LMStoredWindow* window : windows)
            result.append(window->title());
        return result;
    }
    QStringList storedTitles() { return titles(all<LMStoredWindow>()); }

    QString path() const { return test.folders.storedWindowsURL(); }
    std::unique_ptr<LMStoredWindowsStore> store =
        std::make_unique<LMStoredWindowsStore>(environment, u"1.0"_s);
};
