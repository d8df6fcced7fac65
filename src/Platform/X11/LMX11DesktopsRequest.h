// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMX11Properties.h"

#include <QStringList>

/// The question for the virtual desktops: asked together with others, answered later.
class LMX11DesktopsRequest {
public:
    explicit LMX11DesktopsRequest(LMX11Connection& connection);

    /// Waits for the answers. One name per desktop, empty when it has none.
    QStringList receive(LMX11Connection& connection) const;

private:
    LMX11PropertyRequest m_count;
    LMX11PropertyRequest m_names;
};
