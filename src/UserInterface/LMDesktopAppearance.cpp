// SPDX-License-Identifier: MIT
#include "UserInterface/LMDesktopAppearance.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyle>

namespace {

QPalette darkPalette() {
    const QColor window(0x2d, 0x30, 0x34);
    const QColor text(0xee, 0xf0, 0xf2);
    const QColor dimText(0x8a, 0x90, 0x98);
    QPalette palette(text, window.lighter(130), window.lighter(160), window.darker(180),
                     window.lighter(140), text, Qt::white, QColor(0x1e, 0x20, 0x23), window);
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0x8b, 0xe0));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x6c, 0xb2, 0xf5));
    palette.setColor(QPalette::LinkVisited, QColor(0xb4, 0x9a, 0xf0));
    palette.setColor(QPalette::PlaceholderText, dimText);
    palette.setColor(QPalette::ToolTipBase, window.lighter(130));
    palette.setColor(QPalette::ToolTipText, text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, dimText);
    return palette;
}

} // namespace

void LMDesktopAppearance::follow(const LMAppearance& appearance) {
    if (appearance == m_followed)
        return;
    if (appearance.isDark != m_followed.isDark)
        QApplication::setPalette(appearance.isDark ? darkPalette()
                                                   : QApplication::style()->standardPalette());
    if (!appearance.fontFamily.isEmpty()) {
        QFont font(appearance.fontFamily);
        font.setPointSizeF(appearance.fontSize);
        QApplication::setFont(font);
    }
    m_followed = appearance;
}
