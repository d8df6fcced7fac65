// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct LMCommandLineDescription;

/// Scripts that teach a shell to complete the command line. Identifiers of applications are those
/// that the resident process knows at the moment.
namespace LMShellCompletion {

QString bash(const LMCommandLineDescription& description);
QString zsh(const LMCommandLineDescription& description);
QString fish(const LMCommandLineDescription& description);

} // namespace LMShellCompletion
