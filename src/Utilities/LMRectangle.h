// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QSizeF>
#include <QString>

/// The text form of a rectangle: "{{x, y}, {w, h}}", origin first, then size.
///
/// Each number is the shortest decimal that reads back as the same double: integers without a
/// decimal point, an exponent only below 1e-4 and from 1e17 on. Negative zero prints as 0, and so
/// does what is not a finite number, so that equal rectangles always have equal texts.
QString LMStringFromRect(const QRectF& rect);

/// Reads the text form leniently: the first four numbers found are taken in order, missing ones
/// are 0. An absent or unreadable text gives the zero rectangle. All numbers are finite.
QRectF LMRectFromString(const QString& text);

/// Exact comparison of all four numbers, without the tolerance of QRectF::operator==.
bool LMRectsEqual(const QRectF& a, const QRectF& b);

/// Exact comparison of width and height, without the tolerance of QSizeF::operator==.
bool LMSizesEqual(const QSizeF& a, const QSizeF& b);

/// True when inner lies wholly inside outer; edges may touch.
bool LMRectContainsRect(const QRectF& outer, const QRectF& inner);
