// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMDesktop.h"

#include <QProcessEnvironment>

#include <functional>
#include <memory>
#include <vector>

class LMLogger;

/// A back end that can be asked whether it fits the session, and be made.
struct LMBackend {
    QString name;
    /// Whether this back end serves the session that the environment describes; it may decline and
    /// say why in reason (a plain sentence).
    std::function<bool(const QProcessEnvironment&, QString* reason)> isAvailable;
    /// Makes the desktop; null on failure, with the reason filled in.
    std::function<std::unique_ptr<LMDesktop>(LMLogger&, QString* reason)> create;
};

/// Takes the first back end in the given order that is available and can be made. When there is
/// none, answers null and fills reason with every back end's refusal, one sentence each.
std::unique_ptr<LMDesktop> LMCreateDesktop(const std::vector<LMBackend>& backends,
                                           const QProcessEnvironment& environment, LMLogger& logger,
                                           QString* reason);
