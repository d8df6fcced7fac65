// SPDX-License-Identifier: MIT
// A static library needs a translation unit; the data files beside it are the library's content.
#include <QtGlobal>
