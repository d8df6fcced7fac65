// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMApplicationDelegate.h"
#include "Controller/LMUserInterface.h"
#include "Model/LMStoredWindowsStore.h"
#include "support/LMDesktopTools.h"
#include "unit/DesktopTest.h"

#include <QCoreApplication>

#include <functional>

/// Answers questions as told and writes down what it was asked and shown.
class ScriptedUserInterface final : public LMUserInterface, public LMProgressWindow {
public:
    LMProgressWindow& progressWindow() override { return *this; }
    LMAlertAnswer runModal(const LMAlert& alert) override {
        alerts.append(alert.message + u'|' + alert.informativeText);
        isModal = true;
        if (duringModal)
            duringModal();
        isModal = false;
        return answer;
    }
    bool canShowWindows() const override { return showsWindows; }
    bool isModalWindowOpen() const override { return isModal; }
    void activateIgnoringOtherApplications() override {}
    void showPermissionPrompt(const QString& missing) override {
        calls.append(u"missing: "_s + missing);
    }
    void showStatusItem(LMStatusMenu&) override { calls.append(u"icon"_s); }
    void removeStatusItem() override { calls.append(u"no icon"_s); }
    void displayMenuAtCursor(LMStatusMenu&) override { calls.append(u"menu"_s); }
    void showStoredWindowPicker(LMWorkspace&, LMWindow&) override { calls.append(u"picker"_s); }
    void closeStoredWindowPicker() override { calls.append(u"no picker"_s); }
    void showStoredWindowsList() override { calls.append(u"list"_s); }
    void setUpPreferencesWindow(LMHotKeyCenter&) override {}
    void showPreferencesWindow() override { calls.append(u"preferences"_s); }
    void showAboutPanel() override { calls.append(u"about"_s); }
    void reloadTableViews() override { calls.append(u"reload"_s); }
    void setLabel(const QString& label) override { labels.append(label); }
    void setIndeterminate(bool) override {}
    void showWindow() override { ++shown; }
    void close() override { --shown; }
    void setMaxValue(double steps) override { maxValue = steps; }
    void increment(const LMWorkspace*) override {
        if (duringProgress)
            duringProgress();
    }

    LMAlertAnswer answer{LMAlertAnswer::FirstButton + 1, false}; ///< To every alert.
    bool isModal = false, showsWindows = true;
    std::function<void()> duringModal;    ///< What arrives through the alert's event loop.
    std::function<void()> duringProgress; ///< What happens at each step.
    QStringList alerts, calls, labels;
    int shown = 0;
    double maxValue = 0;
};

/// A controller on a fake desktop with an editor of two windows and a browser of one; the editor is
/// the active application.
class ControllerTest : public DesktopTest {
protected:
    ControllerTest() {
        desktop.addApplication(u"org.editor"_s, u"Editor"_s);
        draft = desktop.addWindow(u"org.editor"_s, {u"Draft"_s, {10, 20, 300, 200}});
        desktop.addWindow(u"org.editor"_s, {u"Letter"_s, {50, 60, 310, 210}});
        launch(u"org.browser"_s, {{.title = u"News"_s}});
        desktop.focus(draft);
    }

    static constexpr auto wait = &LMWaitUntil;

    LMCommandResult perform(const char* code, const QVariantMap& arguments = {}) {
        const char name[5] = {code[0], code[1], code[2], code[3], 0};
        const auto answer = delegate.scriptingSupport().performDefaultImplementation(
            {LMFourCharCode("Rook"), LMFourCharCode(name), arguments});
        return answer.value_or(LMCommandResult::refused(u"unknown"_s));
    }

    int argumentCount = 0;
    QCoreApplication coreApplication{argumentCount, nullptr}; ///< For timers.
    ScriptedUserInterface userInterface;
    LMStoredWindowsStore store{environment};
    LMApplicationDelegate delegate{environment, store, userInterface};
    LMElement draft;
};
