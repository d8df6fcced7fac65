// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMManagedObject.h"
#include "Platform/LMActivity.h"

#include <QImage>
#include <QString>

class LMWorkspace;

/// A script that runs before a workspace's windows are restored.
class LMAction final : public LMManagedObject {
public:
    static QString entityName();
    static LMEntityDescription entityDescription();

    QString label() const { return m_label; }
    void setLabel(const QString& label);
    /// The script's full source text.
    QString script() const { return m_script; }
    void setScript(const QString& script);
    /// "AppleScript" or "Shell Script"; any other value runs nothing.
    QString runAs() const { return m_runAs; }
    void setRunAs(const QString& runAs);
    /// Runs only on restores that a display change caused.
    bool runOnDisplayChange() const { return m_runOnDisplayChange; }
    void setRunOnDisplayChange(bool runOnDisplayChange);

    LMWorkspace* workspace() const;

    /// 16 × 16 points: that of a script file, or of a program. Never null.
    QImage icon() const { return iconForScripts(m_runAs); }
    /// The same for all actions of a kind.
    static QImage iconForScripts(const QString& runAs);

    /// Runs the script and returns when its output has ended. Failures are logged.
    void run();

private:
    void runAsAppleScript() const;
    void runAsShellScript();
    LMActivityScope announceRun() const;

    QString m_label;
    QString m_script;
    QString m_runAs;
    bool m_runOnDisplayChange = false;
};
