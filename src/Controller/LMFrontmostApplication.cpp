// SPDX-License-Identifier: MIT
#include "Controller/LMFrontmostApplication.h"

#include "Categories/LMWorkspaceAdditions.h"
#include "Platform/LMEnvironment.h"

bool LMFrontmostApplication::updateFrontmostApplication() {
    LMWorkspaceAdditions workspace(m_environment);
    const std::optional<LMRunningApplication> active = workspace.runningApplication();
    if (active && active->bundleIdentifier != m_environment.ownBundleIdentifier)
        m_frontmostApplication = active;
    if (!m_frontmostApplication)
        m_frontmostApplication = workspace.finderRunningApplication();
    return m_frontmostApplication.has_value();
}
