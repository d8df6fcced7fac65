// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMApplicationDelegate.h"
#include "Controller/LMUserInterface.h"
#include "Model/LMStoredWindowsStore.h"
#include "support/LMFakeDesktop.h"
#include "support/LMTestEnvironment.h"

#include <gtest/gtest.h>

/// Answers questions as told and writes down what it was asked and shown.
class ScriptedUserInterface final : public LMUserInterface, public LMProgressWindow {
public:
    LMProgressWindow& progressWindow() override { return *this; }
    LMAlertAnswer runModal(const LMAlert& alert) override {
        alerts.append(alert.message + QLatin1Char('|') + alert.informativeText);
        return answer;
    }
    bool canShowWindows() const override { return true; }
    bool isModalWindowOpen() const override { return isModal; }
    void activateIgnoringOtherApplications() override {}
    void showStatusItem(LMStatusMenu&) override { calls.append(QStringLiteral("icon")); }
    void removeStatusItem() override { calls.append(QStringLiteral("no icon")); }
    void displayMenuAtCursor(LMStatusMenu&) override { calls.append(QStringLiteral("menu")); }
    void showStoredWindowPicker(LMWorkspace&, LMWindow&) override {
        calls.append(QStringLiteral("picker"));
    }
    void closeStoredWindowPicker() override { calls.append(QStringLiteral("no picker")); }
    void showStoredWindowsList() override { calls.append(QStringLiteral("list")); }
    void showPreferencesWindow() override { calls.append(QStringLiteral("preferences")); }
    void showAboutPanel() override { calls.append(QStringLiteral("about")); }
    void reloadTableViews() override { calls.append(QStringLiteral("reload")); }
    void setLabel(const QString& label) override { labels.append(label); }
    void setIndeterminate(bool) override {}
    void showWindow() override { ++shown; }
    void close() override { --shown; }
    void setMaxValue(double steps) override { maxValue = steps; }
    void increment(const LMWorkspace*) override { value += 1; }

    LMAlertAnswer answer{LMAlertAnswer::FirstButton + 1, false}; ///< To every alert.
    bool isModal = false;
    QStringList alerts, calls, labels;
    int shown = 0;
    double maxValue = 0, value = 0;
};

/// A controller on a fake desktop with an editor of two windows and a browser of one; the editor is
/// the active application.
class ControllerTest : public testing::Test {
protected:
    ControllerTest() {
        editor = desktop.addApplication(QStringLiteral("org.editor"), QStringLiteral("Editor"));
        draft = desktop.addWindow(QStringLiteral("org.editor"),
                                  {.title = QStringLiteral("Draft"), .frame = {10, 20, 300, 200}});
        desktop.addWindow(QStringLiteral("org.editor"),
                          {.title = QStringLiteral("Letter"), .frame = {50, 60, 310, 210}});
        desktop.addApplication(QStringLiteral("org.browser"), QStringLiteral("Browser"));
        desktop.addWindow(QStringLiteral("org.browser"),
                          {.title = QStringLiteral("News"), .frame = {100, 100, 640, 480}});
        desktop.focus(draft);
    }

    LMCommandResult perform(const char (&code)[5], const QVariantMap& arguments = {}) {
        const auto answer = delegate.scriptingSupport().performDefaultImplementation(
            {LMFourCharCode("Rook"), LMFourCharCode(code), arguments});
        return answer.value_or(LMCommandResult::refused(QStringLiteral("unknown")));
    }

    LMFakeDesktop desktop;
    LMTestEnvironment test{desktop, &desktop.log()};
    ScriptedUserInterface userInterface;
    LMStoredWindowsStore store{test.environment};
    LMApplicationDelegate delegate{test.environment, store, userInterface};
    qint64 editor = 0;
    LMElement draft;
};
