// SPDX-License-Identifier: MIT
#include "Model/LMAction.h"

#include "Model/LMShellScript.h"
#include "Model/LMWorkspace.h"
#include "Platform/LMEnvironment.h"
#include "Platform/LMScriptHost.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMLogger.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

/// A script that is shorter has nothing to say: not even an interpreter line fits.
constexpr qsizetype shortestScript = 3;

QString firstLine(const QString& script) {
    const auto end = std::find_if(script.begin(), script.end(), [](QChar c) {
        return c == u'\n' || c == u'\r' || c == QChar::LineSeparator ||
               c == QChar::ParagraphSeparator;
    });
    return script.left(end - script.begin());
}

bool isExecutableFile(const QString& path) {
    const QFileInfo file(path);
    return file.isFile() && file.isExecutable();
}

} // namespace

void LMAction::run() {
    if (m_runAs == QLatin1String("AppleScript"))
        runAsAppleScript();
    else if (m_runAs == QLatin1String("Shell Script"))
        runAsShellScript();
}

// A script that never ends holds the whole program: whoever wonders must find out which it is.
LMActivityScope LMAction::announceRun() const {
    const QString workspaceName = workspace() ? workspace()->name() : QString();
    const QString what =
        LMFormat(LMLocalized("Running the action “%@” of “%@”…"), {m_label, workspaceName});
    environment().logger.info(QStringLiteral("%@"), {what});
    return LMActivityScope(environment(), what);
}

// The log names the parts of the error, not what they say: that may quote the user's documents.
void LMAction::runAsAppleScript() const {
    LMScriptHost* host = environment().scriptHost;
    if (!host || !host->canCompile(m_script))
        return;
    const LMActivityScope running = announceRun();
    const QStringList errorKeys = host->executeAndReturnError(m_script);
    if (!errorKeys.isEmpty())
        environment().logger.error(QStringLiteral("AppleScript error: %@"),
                                   {errorKeys.join(QLatin1String(", "))});
}

void LMAction::runAsShellScript() {
    if (m_script.size() < shortestScript)
        return;
    if (!m_script.startsWith(QLatin1String("#!")))
        setScript(QStringLiteral("#!/bin/bash\n\n") + m_script);
    // Nothing but a path: no blanks and no arguments.
    const QString interpreter = firstLine(m_script).mid(2);
    const LMLogger& logger = environment().logger;
    if (!isExecutableFile(interpreter)) {
        logger.error(QStringLiteral("Error running shell script: %@ is not executable"),
                     {interpreter});
        return;
    }
    const QString path = LMWriteScriptToTemporaryFile(m_script, environment().ownBundleIdentifier);
    if (path.isNull())
        return;
    const LMActivityScope running = announceRun();
    LMRunShellScriptAtPath(path, logger);
    QFile::remove(path);
}
