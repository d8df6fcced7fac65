// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMUserInterface.h"

class LMLogger;

/// The user interface of a process without windows: it logs what it would show. An alert is
/// answered with its last button, the one that declines: nothing is replaced unless the user has
/// allowed it beforehand.
class LMWindowlessUserInterface final : public LMUserInterface {
public:
    explicit LMWindowlessUserInterface(const LMLogger& logger);

    bool canShowWindows() const override { return false; }
    LMProgressWindow& progressWindow() override { return m_progress; }
    LMAlertAnswer runModal(const LMAlert& alert) override;
    bool isModalWindowOpen() const override { return false; }
    void activateIgnoringOtherApplications() override {}
    void showPermissionPrompt(const QString&) override {}
    void showStatusItem(LMStatusMenu&) override {}
    void removeStatusItem() override {}
    void displayMenuAtCursor(LMStatusMenu&) override {}
    void showStoredWindowPicker(LMWorkspace&, LMWindow&) override {}
    void closeStoredWindowPicker() override {}
    void showStoredWindowsList() override {}
    void setUpPreferencesWindow(LMHotKeyCenter&) override {}
    void showPreferencesWindow() override {}
    void showAboutPanel() override {}
    void reloadTableViews() override {}

private:
    class Progress final : public LMProgressWindow {
    public:
        explicit Progress(const LMLogger& logger) : m_logger(logger) {}
        void setLabel(const QString& label) override { m_label = label; }
        void setIndeterminate(bool) override {}
        void showWindow() override;
        void close() override {}
        void setMaxValue(double) override {}
        void increment(const LMWorkspace*) override {}

    private:
        const LMLogger& m_logger;
        QString m_label;
    };

    const LMLogger& m_logger;
    Progress m_progress;
};
