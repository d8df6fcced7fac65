// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMX11ApplicationFacts.h"

#include <functional>

/// The process that a window belongs to.
struct LMX11WindowProcess {
    qint64 identifier = 0; ///< Synthetic, of its client leader, when the process is unknown.
    std::optional<LMProcessInformation> information;
};

using LMProcessReader = std::function<std::optional<LMProcessInformation>(qint64)>;

/// Tells a window's process. What the server knows stands before what the client claims, which is
/// wrong inside sandboxes and means nothing when it comes from another computer; but where the
/// process that connected has ended (a program that went into the background by forking) or only
/// forwards windows, the claim is better.
LMX11WindowProcess LMX11ProcessOfWindow(const LMX11ApplicationFacts& facts, const QString& hostName,
                                        const LMProcessReader& readProcess);
