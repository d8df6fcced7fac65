// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class LMObjectModel;

/// The object model "Rook": workspaces, applications, stored windows, windows, displays and
/// actions, and the five templates that find what is unattached.
///
/// An attribute is added where its class describes its entity; count the version here up with it.
/// Older store files get the new column when they are opened.
std::unique_ptr<LMObjectModel> LMRookModel();
