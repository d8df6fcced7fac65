// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QString>

class LMHotKeyCenter;
struct LMCommandParts;

/// What Rook knows, as JSON objects for scripts and for the command line's tables. The shapes are
/// documented in docs/json.md and stay stable: keys are added, never renamed.
///
/// Frames are objects {"x", "y", "width", "height"} in global pixels, y down. Reading changes
/// nothing, neither windows nor store.
namespace LMReports {

/// Back end, permission, displays, current workspace, counts, hot keys, activity.
QJsonObject status(const LMCommandParts& parts, const LMHotKeyCenter& hotKeyCenter);
/// Workspaces, their applications, their stored windows in priority order.
QJsonObject list(const LMCommandParts& parts);
/// The live windows of the running applications as Rook sees them.
QJsonObject windows(const LMCommandParts& parts);
/// Which live window would take which stored window, and why. An empty identifier asks for every
/// application of the current workspace.
QJsonObject plan(const LMCommandParts& parts, const QString& bundleIdentifier);

} // namespace LMReports
