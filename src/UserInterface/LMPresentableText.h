// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Text from anywhere (titles of windows above all) made fit to stand in a label as plain text.
///
/// Whatever could break a layout is taken out: control characters, line breaks beyond mostLines,
/// marks that turn the direction of the text after them. What is longer than mostCharacters is cut
/// in the middle, since the beginning and the end of a message carry its sense. Words too long for
/// a line get places (zero-width spaces) where they may be broken.
QString LMPresentableText(const QString& text, qsizetype mostCharacters, int mostLines);

/// The same for one line that is never wrapped; ends of it are cut by whoever knows the width.
QString LMPresentableLine(const QString& text);

/// A line as the text of a button or a menu entry, where a single ampersand marks a mnemonic.
QString LMEscapedAmpersands(const QString& line);

/// The text of a button or a menu entry as a name: without the mark of the mnemonic, and without
/// the letter that languages of other scripts add for it in brackets: "名前(&N)".
QString LMWithoutMnemonic(const QString& text);

/// Numbers and signs that keep their order among letters that are read from right to left, where
/// "-1" would become "1-".
QString LMLeftToRight(const QString& text);

/// Text made presentable in a tool tip, which would take markup in it for its own; null for an
/// empty text.
QString LMPresentableToolTip(const QString& text);
