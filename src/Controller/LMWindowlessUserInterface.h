// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMUserInterface.h"

class LMLogger;
class LMUserDefaults;

/// The user interface of a process without windows: it logs what it would show, and it never
/// confirms a replacement that the user has not allowed beforehand.
class LMWindowlessUserInterface final : public LMUserInterface {
public:
    LMWindowlessUserInterface(const LMUserDefaults& userDefaults, const LMLogger& logger);

    LMProgressWindow& progressWindow() override { return m_progress; }
    bool confirmReplacement(const QString& suppressionKey, const QString& message,
                            const QString& informativeText) override;
    void reportSuccess(const QString& suppressionKey, const QString& message,
                       const QString& informativeText) override;
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

    const LMUserDefaults& m_userDefaults;
    const LMLogger& m_logger;
    Progress m_progress;
};
