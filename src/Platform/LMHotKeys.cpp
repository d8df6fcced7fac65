// SPDX-License-Identifier: MIT
#include "Platform/LMHotKeys.h"

#include "Utilities/LMFormat.h"

QString LMHotKeyRefusalText(LMHotKeyRefusal refusal, const LMShortcut& shortcut) {
    const auto text = [&](const char* key) {
        return LMFormat(LMLocalized(key), {shortcut.description()});
    };
    switch (refusal) {
    case LMHotKeyRefusal::HeldByAnotherProgram:
        return text(LMLocalizable("Another program is using %@."));
    case LMHotKeyRefusal::AlreadyInUse:
        return text(LMLocalizable("%@ is in use for another hot key."));
    case LMHotKeyRefusal::NoSuchKey:
        return text(LMLocalizable("This keyboard has no %@."));
    case LMHotKeyRefusal::NotAvailable:
        break;
    }
    return LMLocalized("Hot keys are not available in this session.");
}
