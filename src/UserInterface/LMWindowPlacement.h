// SPDX-License-Identifier: MIT
#pragma once

class LMDesktop;
class QRect;
class QSize;
class QWidget;

/// A frame of that size, or as much of it as fits, in the middle of the work area of the screen
/// with the pointer: the screen the user looks at.
QRect LMCentredFrame(const QSize& size);

/// Puts a window there. It needs its final size.
void LMCentreWindow(QWidget& window);

/// Gives a window the focus and brings it to the front of all applications once it is on the
/// screen, which takes the window manager a moment. A plain request may be refused: window managers
/// guard the user against windows that push themselves forward, and to them Rook has not had the
/// user's attention lately, since hot keys and trays are not input to its windows.
void LMBringToFront(QWidget& window, LMDesktop& desktop);

/// Shows a window that is kept while it is closed: on the virtual desktop in use, in front, with
/// the focus. It opens in the middle of the screen the first time, and where it was after that, as
/// long as there is a screen.
void LMPresentWindow(QWidget& window, LMDesktop& desktop);
