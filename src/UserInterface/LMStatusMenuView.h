// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMStatusMenu.h"

#include <QMenu>
#include <QTimer>

/// The status menu on the screen. It shows what the value says at the moment it opens, and hands
/// the chosen entry back once it is closed.
class LMStatusMenuView final : public QObject {
    Q_OBJECT
public:
    enum class Drawn {
        ByUs,
        ByPanel, ///< Sent over the bus; underscores mark mnemonics there.
    };

    /// The menu outlives the view.
    LMStatusMenuView(LMStatusMenu& menu, Drawn drawn);

    QMenu& menu() { return m_menu; }

    /// Opens the menu at the pointer, for keyboard and mouse, whichever application is active.
    /// Returns at once. When another program keeps hold of the pointer or the keyboard for longer
    /// than a moment, the menu closes again: it could not be left.
    void popUpAtCursor();

private:
    void update();
    bool fits(const QList<LMMenuItem>& items) const;
    void rebuild(const QList<LMMenuItem>& items);
    void show(const LMMenuItem& item, QAction& action) const;
    QString presentableTitle(const QString& title) const;
    bool grabInput();
    void waitForInput();

    LMStatusMenu& m_statusMenu;
    Drawn m_drawn;
    QMenu m_menu;
    QTimer m_grabTimer;
    int m_grabAttempts = 0;
};
