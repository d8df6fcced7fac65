// SPDX-License-Identifier: MIT
#pragma once

#include "support/LMFakeDesktop.h"
#include "support/LMTestEnvironment.h"

#include <gtest/gtest.h>

/// A fake desktop and everything else that the additions reach.
class CategoriesTest : public testing::Test {
protected:
    CategoriesTest() {
        using Role = LMKnownApplications::Role;
        support.knownApplications =
            LMKnownApplications({{Role::NeverActive, {u"com.mizage.divvy"_qs}}});
    }

    LMFakeDesktop desktop;
    LMTestEnvironment support{desktop, &desktop.log()};
    LMEnvironment& environment = support.environment;
    LMUserDefaults& userDefaults = support.userDefaults;
    QStringList& messages = support.messages;
};
