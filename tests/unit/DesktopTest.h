// SPDX-License-Identifier: MIT
#pragma once

#include "support/LMFakeDesktop.h"
#include "support/LMTestEnvironment.h"
#include "Utilities/LMUserDefaultsKeys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
namespace Keys = LMUserDefaultsKeys;

/// A fake desktop with a fake clock. Whatever is asked of the desktop, and every pause, stands in
/// one log in order.
class DesktopTest : public testing::Test {
protected:
    /// Opens windows of a new application, front to back.
    QList<LMElement> launch(const QString& identifier,
                            const QList<LMFakeWindow>& windows = {LMFakeWindow()},
                            LMActivationPolicy policy = LMActivationPolicy::Regular) {
        desktop.addApplication(identifier, {}, policy);
        QList<LMElement> elements;
        for (const LMFakeWindow& window : windows)
            elements.append(desktop.addWindow(identifier, window));
        return elements;
    }

    void setHidden(const QString& identifier, bool isHidden) {
        const qint64 process = desktop.world().application(identifier)->processIdentifier;
        isHidden ? desktop.applications().hide(process) : desktop.applications().unhide(process);
        desktop.log().clear();
    }

    /// What happened since the last call.
    QString events() { return std::exchange(desktop.log(), {}).join(u", "_s); }

    LMFakeDesktop desktop;
    LMTestEnvironment test{desktop, &desktop.log()};
    LMEnvironment& environment = test.environment;
    LMUserDefaults& defaults = test.userDefaults;
};
