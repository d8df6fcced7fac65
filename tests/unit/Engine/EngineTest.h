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
#include "unit/DesktopTest.h"

#include <QDir>

/// The model on a fake desktop.
class EngineTest : public DesktopTest {
protected:
    EngineTest() {
        test.knownApplications =
            LMKnownApplications::fromPropertyList(u":/rook/Known Applications.plist"_s);
        defaults.registerDefaults({{Keys::FloatingWindowActivationDelay, 2500.9},
                                   {Keys::CreateScreenshotsWhenStoringWindows, false},
                                   {Keys::RestoreWindowStates, true},
                                   {Keys::RestoreVirtualDesktops, true},
                                   {Keys::RestoreStackingOrder, true}});
    }

    /// The record of a running application with all its present windows stored.
    LMApplication& stored(const QString& identifier) {
        auto* application = LMApplication::applicationWithBundleIdentifier(context, identifier);
        EXPECT_NE(application, nullptr);
        desktop.log().clear();
        return *application;
    }
    /// The same for a new application "app" with these windows.
    LMApplication& store(const QList<LMFakeWindow>& windows = {LMFakeWindow()}) {
        elements = launch(u"app"_s, windows);
        return stored(u"app"_s);
    }
    LMWindow* live(const LMElement& element) {
        return LMWindow::windowWithElement(context, element);
    }
    QRectF frame(const LMElement& element) { return desktop.window(element).frame; }

    /// Whether the picture kept with the window is that of the element.
    static bool shows(const LMWindow& window, const LMElement& element) {
        return window.screenshot().pixel(0, 0) == (0xff000000u | unsigned(element.identifier));
    }
    qsizetype pictures() const {
        return QDir(test.folders.screenshotsDirectoryURL()).entryList(QDir::Files).size();
    }
    static QString titles(const std::vector<LMStoredWindow*>& windows) {
        QStringList result;
        for (LMStoredWindow* window : windows)
            result.append(window->title());
        return result.join(u", "_s);
    }

    /// Counts the steps it is told.
    struct : LMProgress {
        void setMaxValue(double value) override { maxValue = value; }
        void increment(const LMWorkspace*) override { ++steps; }
        double maxValue = 0, steps = 0;
    } progress;
    QList<LMElement> elements; ///< The windows of "app".
    const QRectF left{0, 0, 300, 200};
    const QRectF right{400, 0, 350, 250};
    const QString floating = u"AXFloatingWindow"_s;
    std::unique_ptr<LMObjectModel> model = LMRookModel();
    LMObjectContext context{*model, environment};
};
