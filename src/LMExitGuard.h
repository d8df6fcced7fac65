// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// Does some last work when the process ends by exit() while the guard lives, which is when nobody
/// returns from main and no destructor runs. A guard that is destroyed has nothing more to do.
class LMExitGuard {
public:
    explicit LMExitGuard(std::function<void()> work);
    ~LMExitGuard();
    LMExitGuard(const LMExitGuard&) = delete;
    LMExitGuard& operator=(const LMExitGuard&) = delete;

private:
    struct State;
    State* m_state; ///< Belongs to the C library, which hands it back once at exit.
};
