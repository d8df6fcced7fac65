// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct LMCommandLineDescription;

/// The manual page in the macros of man(7). In the template, the lines "%OPTIONS%", "%COMMANDS%"
/// and "%EXIT STATUS%" stand for what the description says.
QString LMManualPage(const QString& pageTemplate, const LMCommandLineDescription& description);
