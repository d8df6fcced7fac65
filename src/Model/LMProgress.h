// SPDX-License-Identifier: MIT
#pragma once

class LMWorkspace;

/// Where a long operation reports how far it is.
class LMProgress {
public:
    virtual ~LMProgress() = default;
    /// The number of steps to come.
    virtual void setMaxValue(double maxValue) = 0;
    /// One step is done.
    virtual void increment(const LMWorkspace* sender) = 0;
};
