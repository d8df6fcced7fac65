// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LMProgress.h"

#include <QString>

#include <vector>

class LMApplication;
class LMWorkspace;
struct LMEnvironment;

/// Guards what a workspace holds while it is stored anew, which it hears of as the progress.
///
/// A desktop that goes away on the way (the session ends, the window manager is restarted) shows no
/// windows, which would pass for windows that are closed; and windows that are pushed together on
/// the displays that are left do not stand where the user has put them.
class LMReplacement final : public LMProgress {
public:
    LMReplacement(LMEnvironment& environment, LMWorkspace& workspace, LMProgress& progress);

    void setMaxValue(double maxValue) override;
    void increment(const LMWorkspace* sender) override;

    /// Whether desktop and displays were there all the while. Otherwise the workspace holds what it
    /// held before.
    bool finish();
    /// Why not, in one line.
    QString refusal() const;

private:
    void look();
    bool forgetsApplications() const;

    LMEnvironment& m_environment;
    LMWorkspace& m_workspace;
    LMProgress& m_progress;
    std::vector<LMApplication*> m_former;
    bool m_isWhole = true;
    QString m_missing;
};
