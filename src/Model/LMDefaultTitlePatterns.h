// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMKnownApplications.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// Title patterns for the stored windows of well-known applications, whose titles change all the
/// time or carry a lasting mark inside a changing text.
///
/// Takes the titles of all stored windows of one application and answers one entry for each, in the
/// same order; none where the window keeps the pattern it has. A title that serves as a pattern is
/// not escaped.
std::vector<std::optional<QString>>
LMDefaultTitlePatterns(const LMKnownApplications& knownApplications,
                       const QString& bundleIdentifier, const QStringList& titles);
