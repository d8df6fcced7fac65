// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What a command answers: whether it was done, and what the user should know, in one plain line.
struct LMCommandResult {
    bool isDone = false;
    /// Why it was not done, or what went wrong although it was done.
    QString refusal;

    static LMCommandResult done() { return {true, {}}; }
    static LMCommandResult refused(const QString& why) { return {false, why}; }
};
