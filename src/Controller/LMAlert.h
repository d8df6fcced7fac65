// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// What a modal alert says and offers. Plain text, never rich text: titles of windows are in it.
struct LMAlert {
    QString message;
    QString informativeText;
    QStringList buttons;         ///< The first is the default one; empty for a single "OK".
    bool hasSuppression = false; ///< Offers a box "Do not show this message again".
};

struct LMAlertAnswer {
    static constexpr int FirstButton = 1000; ///< The others count up from there.
    int buttonCode = FirstButton;
    bool isSuppressionTicked = false; ///< Whichever button was pressed.
};
