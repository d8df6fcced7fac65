// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// Runs scripts in the system's own scripting language, inside this process. A platform without
/// such a language has no script host.
class LMScriptHost {
public:
    virtual ~LMScriptHost() = default;

    /// Whether the source text can be made into a script at all.
    virtual bool canCompile(const QString& source) = 0;

    /// Runs a source that compiles and returns when it has ended; its result is dropped. The answer
    /// names the parts of the error description; none when the script succeeded.
    virtual QStringList executeAndReturnError(const QString& source) = 0;
};
