// SPDX-License-Identifier: MIT
#include "Model/LMAction.h"

#include "Model/LMWorkspace.h"
#include "Model/Store/LMEntityDescription.h"

QString LMAction::entityName() {
    return QStringLiteral("Action");
}

LMEntityDescription LMAction::entityDescription() {
    return LMDescribeEntity<LMAction>(
        {
            LMDescribeAttribute<&LMAction::m_label>(QStringLiteral("label")),
            LMDescribeAttribute<&LMAction::m_script>(QStringLiteral("script")),
            LMDescribeAttribute<&LMAction::m_runAs>(QStringLiteral("runAs")),
            LMDescribeAttribute<&LMAction::m_runOnDisplayChange>(
                QStringLiteral("runOnDisplayChange")),
        },
        LMWorkspace::entityName(), QStringLiteral("workspace"));
}

void LMAction::setLabel(const QString& label) {
    setAttribute(m_label, label);
}

void LMAction::setScript(const QString& script) {
    setAttribute(m_script, script);
}

void LMAction::setRunAs(const QString& runAs) {
    setAttribute(m_runAs, runAs);
}

void LMAction::setRunOnDisplayChange(bool runOnDisplayChange) {
    setAttribute(m_runOnDisplayChange, runOnDisplayChange);
}

LMWorkspace* LMAction::workspace() const {
    return static_cast<LMWorkspace*>(owner());
}
