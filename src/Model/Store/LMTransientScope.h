// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMObjectContext.h"

/// Lets go of the live records that are inserted while it lives and that nothing owns in the end.
/// Older ones stay: somebody else may be looking at them. Scopes nest.
class LMTransientScope {
public:
    explicit LMTransientScope(LMObjectContext& context)
        : m_context(context), m_begin(context.mark()) {}
    ~LMTransientScope() { m_context.discardTransientObjects(m_begin); }
    Q_DISABLE_COPY_MOVE(LMTransientScope)

private:
    LMObjectContext& m_context;
    LMObjectContext::Mark m_begin;
};
