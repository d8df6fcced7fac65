// SPDX-License-Identifier: MIT
#include "Model/LMWindow.h"
#include "Model/LMWindowLikeness.h"
#include "Utilities/LMRectangle.h"

namespace {

constexpr int absent = 0;
constexpr int emptyText = 1;

} // namespace

int LMWindowTraitsTable::numberOfText(const QString& text) {
    if (text.isNull())
        return absent;
    if (text.isEmpty())
        return emptyText;
    const auto known = m_texts.constFind(text);
    if (known != m_texts.cend())
        return *known;
    const int number = emptyText + 1 + int(m_texts.size());
    m_texts.insert(text, number);
    return number;
}

LMWindowTraits LMWindowTraitsTable::traitsOfWindow(const LMWindow& window) {
    LMWindowTraits traits;
    if (window.children()) {
        const auto known = m_children.constFind(*window.children());
        const int children = known != m_children.cend() ? *known : 1 + int(m_children.size());
        m_children.insert(*window.children(), children);
        traits.structure = children * 8 + (window.hasToolbarButton() ? 4 : 0) +
                           (window.hasGrowArea() ? 2 : 0) + (window.hasDocument() ? 1 : 0);
    }
    traits.title = numberOfText(window.title());
    traits.subrole = numberOfText(window.subrole());
    traits.size = window.frame().size();
    return traits;
}

LMWindowLikeness LMCompareWindows(const LMWindowTraits& a, const LMWindowTraits& b) {
    LMWindowLikeness likeness;
    likeness.structure = a.structure != absent && a.structure == b.structure;
    if (!likeness.structure)
        return likeness;
    likeness.title = a.title != absent && a.title == b.title;
    likeness.subrole = a.subrole != absent && a.subrole == b.subrole;
    likeness.size = LMSizesEqual(a.size, b.size);
    return likeness;
}

LMWindowLikeness LMCompareWindows(const LMWindow& a, const LMWindow& b) {
    LMWindowTraitsTable table;
    const LMWindowTraits traits = table.traitsOfWindow(a);
    return LMCompareWindows(traits, table.traitsOfWindow(b));
}

bool LMTitleIsExact(const QString& recordedTitle, const QString& liveTitle) {
    return recordedTitle.isNull() || recordedTitle == liveTitle;
}

bool LMTitleIsExact(const LMWindowTraits& recorded, const LMWindowTraits& live) {
    // To an edit distance an absent live title is an empty one.
    const int liveTitle = live.title == absent ? emptyText : live.title;
    return recorded.title == absent || recorded.title == liveTitle;
}

unsigned LMWindow::windowMatchScore(const LMWindow& other) const {
    return LMCompareWindows(*this, other).score();
}

bool LMWindow::isIdenticalToWindow(const LMWindow& other) const {
    return LMCompareWindows(*this, other).isIdentity();
}
