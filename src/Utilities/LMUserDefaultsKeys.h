// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1String>

/// The keys of the user defaults, with the type of each value.
namespace LMUserDefaultsKeys {
#define LM_KEY(name)                                                                               \
    inline constexpr QLatin1String name {                                                          \
#name                                                                                      \
    }

LM_KEY(StartRookAtLogin);                   ///< bool: keep Rook among the login items
LM_KEY(RestoreWindowsAutomatically);        ///< bool: restore all when the displays change
LM_KEY(RestoreWindowsAsApplicationsLaunch); ///< bool: restore an application when it launches
LM_KEY(ApplicationLaunchRestoreDelay);      ///< double, seconds between launch and restoring
LM_KEY(FloatingWindowActivationDelay);      ///< double, microseconds after an activation
LM_KEY(RestoreWindowStates);                ///< bool: restore maximised, minimised and the like
LM_KEY(RestoreVirtualDesktops);             ///< bool: restore on which virtual desktop windows are
LM_KEY(RestoreStackingOrder);               ///< bool: restore which windows are above which
LM_KEY(DisableStatusBarItem);               ///< bool: hide the status icon

LM_KEY(SuppressStoreActiveApplicationAlert);   ///< bool: skip the replace confirmation
LM_KEY(SuppressStoreActiveWindowAlert);        ///< bool: skip the replace confirmation
LM_KEY(SuppressLinkActiveWindowAlert);         ///< bool: skip the link confirmation
LM_KEY(SuppressStoreAllAlert);                 ///< bool: skip the replace confirmation
LM_KEY(SuppressStoreActiveApplicationSuccess); ///< bool: skip the success message
LM_KEY(SuppressStoreActiveWindowSuccess);      ///< bool: skip the success message
LM_KEY(SuppressStoreAllSuccess);               ///< bool: skip the success message
LM_KEY(moveToApplicationsFolderAlertSuppress); ///< bool: never offer to add a launcher

LM_KEY(DisableSpacesSupport); ///< bool: never count the user as working with several spaces
LM_KEY(EnableSpacesSupport);  ///< bool: always do so, unless disabled

LM_KEY(RestoreAllWindowsHotKey);               ///< data: archived shortcut
LM_KEY(RestoreActiveApplicationWindowsHotKey); ///< data: archived shortcut
LM_KEY(StoreActiveApplicationWindowsHotKey);   ///< data: archived shortcut
LM_KEY(StoreActiveWindowHotKey);               ///< data: archived shortcut
LM_KEY(LinkActiveWindowHotKey);                ///< data: archived shortcut
LM_KEY(StoreAllWindowsHotKey);                 ///< data: archived shortcut
LM_KEY(ShowMenuHotKey);                        ///< data: archived shortcut

LM_KEY(ExcludedApplications); ///< strings: identifiers of applications that are never handled
LM_KEY(CreateScreenshotsWhenStoringWindows);         ///< bool: take pictures when storing
LM_KEY(DisableAutomaticTitleMatchPatternGeneration); ///< bool: no patterns for new stored windows
LM_KEY(RookVersion);                                 ///< string: version that last opened the store
LM_KEY(SUEnableAutomaticChecks);                     ///< bool: look for updates at launch

#undef LM_KEY
} // namespace LMUserDefaultsKeys
