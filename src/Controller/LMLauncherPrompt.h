// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

class LMUserInterface;
struct LMEnvironment;

/// A program that runs from where the desktop does not look for programs (a build folder, a
/// download) offers once to add itself to the user's applications: a desktop entry that starts it
/// from there. Never without windows, and not where an entry is found.
void LMOfferLauncher(LMEnvironment& environment, LMUserInterface& userInterface);

/// Whether the desktop finds this program: an entry stands in one of the data directories, or below
/// the prefix the program was installed to.
bool LMHasLauncher(const QString& executable);

/// The desktop entries that packages install, for menus and for the start of a session, starting
/// the program from where it is.
QByteArray LMLauncherEntry(const QString& executable);
QByteArray LMAutostartEntry(const QString& executable);

/// Replaces the file in one step, and makes its directory. Null, or why it could not be done.
QString LMWriteFileAtomically(const QString& path, const QByteArray& data);

/// Writes the entry and its icon below $XDG_DATA_HOME. Null, or why it could not be done.
QString LMWriteLauncher(const QString& executable);
