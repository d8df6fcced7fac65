// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QSizeF>
#include <QString>
#include <QStringList>

class LMWindow;

/// What matching looks at in a window, taken once so that comparing it with many others parses
/// nothing and reads no text: equal texts bear equal numbers. Numbers of one table can be compared.
struct LMWindowTraits {
    /// Toolbar button, grow area, document and child roles; 0: the child roles are absent.
    int structure = 0;
    int title = 0;   ///< 0: absent.
    int subrole = 0; ///< 0: absent.
    QSizeF size;     ///< Pixels. The position never counts.
};

/// Numbers the texts of windows that are to be compared with each other.
class LMWindowTraitsTable {
public:
    LMWindowTraits traitsOfWindow(const LMWindow& window);

private:
    int numberOfText(const QString& text);

    QHash<QString, int> m_texts;
    QHash<QStringList, int> m_children;
};

/// In what two windows are alike. The structure is a gate: without it nothing else is compared.
struct LMWindowLikeness {
    bool structure = false; ///< Toolbar button, grow area, document and child roles are equal.
    bool title = false;
    bool subrole = false;
    bool size = false; ///< Exactly, without tolerance.

    /// 0 to 5: 1 for the structure, 2 for the title, 1 each for subrole and size.
    unsigned score() const {
        return structure ? 1U + (title ? 2U : 0U) + (subrole ? 1U : 0U) + (size ? 1U : 0U) : 0U;
    }
    /// Two windows count as the same above a score of 3: the title and one thing more.
    bool isIdentity() const { return score() > 3; }
};

/// Compares two windows of one table. What is absent equals nothing, not even what is absent in the
/// other window, too.
LMWindowLikeness LMCompareWindows(const LMWindowTraits& a, const LMWindowTraits& b);

/// The likeness of two windows by themselves.
LMWindowLikeness LMCompareWindows(const LMWindow& a, const LMWindow& b);

/// Whether the edit distance from a recorded title to a live one is 0. That is so when they are
/// equal, and when there is no recorded title; nothing needs the distance itself.
bool LMTitleIsExact(const QString& recordedTitle, const QString& liveTitle);
bool LMTitleIsExact(const LMWindowTraits& recorded, const LMWindowTraits& live);
