// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMDesktopEntryTable.h"
#include "Platform/LMProcessInformation.h"

#include <QString>

#include <optional>

/// What a window and its process say about the application they belong to. Everything may be
/// missing, wrong or hostile.
struct LMWindowIdentityFacts {
    QString gtkApplicationID; ///< _GTK_APPLICATION_ID
    QString kdeDesktopFile;   ///< _KDE_NET_WM_DESKTOP_FILE: an identifier or a path
    QString wmClassInstance;  ///< First part of WM_CLASS
    QString wmClassName;      ///< Second part of WM_CLASS
    std::optional<LMProcessInformation> process;

    bool operator==(const LMWindowIdentityFacts&) const = default;
};

/// Which rung of the ladder told the identity.
enum class LMIdentitySource {
    GtkApplicationID,
    KdeDesktopFile,
    SystemdScope,
    Flatpak,
    Snap,
    StartupWMClass,
    WMClass,
    Program,
    None,
};

/// Which application a window belongs to.
struct LMApplicationIdentity {
    QString bundleIdentifier; ///< Empty when nothing tells; at most 255 characters.
    QString localizedName;
    LMIdentitySource source = LMIdentitySource::None;
};

/// Climbs the ladder of identity: first for a rung that leads to an installed desktop entry, then,
/// when none does, for the first rung that gives an identifier at all.
LMApplicationIdentity LMIdentifyApplication(const LMWindowIdentityFacts& facts,
                                            const LMDesktopEntryTable& table);

/// Text of a client as an identifier: letters, digits, "-", "_", "." and what is not ASCII stay,
/// runs of other characters become one dash; at most 255 characters. Empty when no letter or digit
/// is in it.
QString LMSanitizedIdentifier(const QString& text);

/// Whether the process only carries another computer's windows here, as the ssh client does.
bool LMForwardsWindows(const LMProcessInformation& process);
