// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMAppearance.h"

/// Makes the program's windows look as the desktop wants, without the toolkit's theme plug-ins: for
/// two colours and a font those load another toolkit as a whole.
class LMDesktopAppearance {
public:
    /// To be called before a window opens, with what the desktop says now.
    void follow(const LMAppearance& appearance);

private:
    LMAppearance m_followed;
};
