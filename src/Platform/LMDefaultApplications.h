// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMDesktopEntryTable.h"

#include <QString>
#include <QStringList>

/// Where the user's choice of applications for types of files is kept, most important file first,
/// by the freedesktop.org rules for associations between MIME types and applications. Desktops are
/// the names in XDG_CURRENT_DESKTOP.
QStringList LMAssociationFiles(const QStringList& configDirectories,
                               const QStringList& dataDirectories, const QStringList& desktops);

/// The installed application that opens files of a type: the first default of the association
/// files that is installed, else the first added association, else the first entry that says it
/// opens the type and was not removed. Null when there is none.
const LMDesktopEntry* LMDefaultApplication(const QString& mimeType,
                                           const QStringList& associationFiles,
                                           const LMDesktopEntryTable& table);
