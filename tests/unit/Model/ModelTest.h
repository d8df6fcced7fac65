// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LMAction.h"
#include "Model/LMApplication.h"
#include "Model/LMDisplay.h"
#include "Model/LMRookModel.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWindow.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"
#include "Model/Store/LMObjectModel.h"
#include "support/LMFakeDesktop.h"
#include "support/LMTestEnvironment.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

/// The records in the store that the program itself opens.
class ModelTest : public testing::Test {
protected:
    LMObjectContext& context() { return store->managedObjectContext(); }
    void reopen(const QString& version = u"1.0"_s) {
        store.reset();
        store = std::make_unique<LMStoredWindowsStore>(world.environment, version);
    }

    template <class T>
    T* insert() {
        return context().insertObject<T>();
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
    LMApplication* applicationIn(LMWorkspace* workspace, const QString& identifier) {
        auto* application = insert<LMApplication>();
        application->setBundleIdentifier(identifier);
        workspace->addApplicationsObject(application);
        return application;
    }

    static QStringList titles(const std::vector<LMStoredWindow*>& windows) {
        QStringList result;
        for (LMStoredWindow* window : windows)
            result.append(window->title());
        return result;
    }

    QString write(const QString& path, const QByteArray& content = "x") const {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }

    QString path() const { return world.folders.storedWindowsURL(); }
    /// A closed store with an application in it that has the stored windows "a" and "b".
    void makeStore() {
        applicationIn(insert<LMWorkspace>(), u"org.editor"_s)
            ->addWindows({storedWindow(u"a"_s), storedWindow(u"b"_s)});
        store->saveWindows();
        store.reset();
    }
    QStringList storedTitles() { return titles(context().objects<LMStoredWindow>()); }

    LMFakeDesktop desktop;
    LMTestEnvironment world{desktop};
    std::unique_ptr<LMStoredWindowsStore> store =
        std::make_unique<LMStoredWindowsStore>(world.environment, u"1.0"_s);
};
