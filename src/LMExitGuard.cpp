// SPDX-License-Identifier: MIT
#include "LMExitGuard.h"

#include <cstdlib>
#include <memory>

struct LMExitGuard::State {
    std::function<void()> work;

    static void run(int, void* argument) {
        const std::unique_ptr<State> state(static_cast<State*>(argument));
        if (state->work)
            state->work();
    }
};

LMExitGuard::LMExitGuard(std::function<void()> work) : m_state(new State{std::move(work)}) {
    // Unlike atexit, this hands the function its data, so that none of it needs to be global.
    on_exit(&State::run, m_state);
}

LMExitGuard::~LMExitGuard() {
    m_state->work = nullptr;
}
