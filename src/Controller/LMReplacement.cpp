// SPDX-License-Identifier: MIT
#include "Controller/LMReplacement.h"

#include "Model/LMApplication.h"
#include "Model/LMWorkspace.h"
#include "Platform/LMClock.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMFormat.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {

/// Window managers that end take their list of windows away first.
constexpr auto Farewell = 300ms;

} // namespace

LMReplacement::LMReplacement(LMEnvironment& environment, LMWorkspace& workspace,
                             LMProgress& progress)
    : m_environment(environment), m_workspace(workspace), m_progress(progress),
      m_former(workspace.applications().allObjects()) {}

void LMReplacement::setMaxValue(double maxValue) {
    look();
    m_progress.setMaxValue(maxValue);
}

void LMReplacement::increment(const LMWorkspace* sender) {
    look();
    m_progress.increment(sender);
}

void LMReplacement::look() {
    if (!m_isWhole)
        return;
    const LMPermission permission = m_environment.desktop.checkPermission();
    m_isWhole = permission.isTrusted && m_workspace.isCurrentWorkspace();
    m_missing = permission.isTrusted ? LMLocalized("The displays have changed.")
                                     : permission.missing.join(QLatin1Char(' '));
}

bool LMReplacement::forgetsApplications() const {
    return std::any_of(m_former.begin(), m_former.end(), [this](const LMApplication* application) {
        return !m_workspace.storesApplication(application->bundleIdentifier());
    });
}

bool LMReplacement::finish() {
    if (forgetsApplications())
        m_environment.clock.sleep(Farewell);
    look();
    if (!m_isWhole) {
        m_workspace.removeAllWindows();
        for (LMApplication* application : m_former)
            m_workspace.addApplicationsObject(application);
    }
    return m_isWhole;
}

QString LMReplacement::refusal() const {
    return LMFormat(LMLocalized("Not all windows could be read, so what was stored is kept: %@"),
                    {m_missing});
}
