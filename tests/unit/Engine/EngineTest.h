// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LMApplication.h"
#include "Model/LMProgress.h"
#include "Model/LMRookModel.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMWindow.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"
#include "Model/Store/LMObjectModel.h"
#include "support/LMFakeDesktop.h"
#include "support/LMTestEnvironment.h"
#include "Utilities/LMUserDefaultsKeys.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

/// Counts the steps it is told.
struct CountingProgress final : LMProgress {
    void setMaxValue(double value) override { maxValue = value; }
    void increment(const LMWorkspace*) override { ++steps; }
    double maxValue = 0;
    int steps = 0;
};

/// The model on a fake desktop with a fake clock. Whatever is asked of the desktop, and every
/// pause, stands in one log in order.
class EngineTest : public testing::Test {
protected:
    EngineTest() {
        test.knownApplications =
            LMKnownApplications::fromPropertyList(u":/rook/Known Applications.plist"_s);
        defaults.registerDefaults(
            {{LMUserDefaultsKeys::FloatingWindowActivationDelay, 2500.9},
             {LMUserDefaultsKeys::CreateScreenshotsWhenStoringWindows, false}});
    }

    static LMFakeWindow fakeWindow(const QString& title, const QRectF& frame) {
        return {.title = title, .frame = frame};
    }
    static LMFakeWindow floatingWindow(const QString& title, const QRectF& frame) {
        return {.title = title, .frame = frame, .subrole = u"AXFloatingWindow"_s};
    }

    /// Opens windows of a new application, front to back.
    QList<LMElement> launch(const QString& identifier, const QList<LMFakeWindow>& windows) {
        desktop.addApplication(identifier);
        QList<LMElement> elements;
        for (const LMFakeWindow& window : windows)
            elements.append(desktop.addWindow(identifier, window));
        return elements;
    }

    /// The record of a running application with all its present windows stored.
    LMApplication& stored(const QString& identifier) {
        LMApplication* application =
            LMApplication::applicationWithBundleIdentifier(context, identifier);
        EXPECT_NE(application, nullptr);
        desktop.log().clear();
        return *application;
    }

    /// What happened since the last call.
    QString events() {
        const QString result = desktop.log().events().join(u", "_s);
        desktop.log().clear();
        return result;
    }

    static QString titles(const std::vector<LMStoredWindow*>& windows) {
        QStringList result;
        for (LMStoredWindow* window : windows)
            result.append(window->title());
        return result.join(u", "_s);
    }

    LMFakeDesktop desktop;
    LMTestEnvironment test{desktop, &desktop.log()};
    LMEnvironment& environment = test.environment;
    LMUserDefaults& defaults = test.userDefaults;
    LMFolders& folders = test.folders;
    std::unique_ptr<LMObjectModel> model = LMRookModel();
    LMObjectContext context{*model, environment};
};
