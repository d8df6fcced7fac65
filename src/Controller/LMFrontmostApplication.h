// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMApplications.h"

#include <optional>

struct LMEnvironment;

/// The application the user last worked in, other than this program: this program's own menu and
/// windows take the focus away from it.
class LMFrontmostApplication {
public:
    explicit LMFrontmostApplication(LMEnvironment& environment) : m_environment(environment) {}

    const std::optional<LMRunningApplication>& frontmostApplication() const {
        return m_frontmostApplication;
    }

    /// Takes the active application unless it is this program; falls back to the file manager.
    /// Answers whether there is one now.
    bool updateFrontmostApplication();

private:
    LMEnvironment& m_environment;
    std::optional<LMRunningApplication> m_frontmostApplication;
};
