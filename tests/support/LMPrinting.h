// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <ostream>

// Lets failed expectations print texts.
inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << (text.isNull() ? "null" : '"' + text.toStdString() + '"');
}
