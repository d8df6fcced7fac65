// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMAlert.h"

#include <QDialog>

class QAbstractButton;
class QCheckBox;
class QDialogButtonBox;
class QLabel;

/// The window of a modal alert: plain texts, buttons (Return presses the first, Escape the last),
/// and perhaps a box that stops it from being shown again. Closing it otherwise is the last button.
///
/// Without a window it belongs to, it stands above all windows and all of ours wait for it; as the
/// sheet of one, only that one does, and it is shown with open().
class LMAlertWindow final : public QDialog {
    Q_OBJECT
public:
    explicit LMAlertWindow(const LMAlert& alert, QWidget* sheetOf = nullptr);

    /// Once it is closed.
    LMAlertAnswer answer() const;

private:
    QLabel* makeLabel(const QString& text, bool isMessage);
    void addButtons(const QStringList& titles);

    QDialogButtonBox* m_buttonBox = nullptr;
    QList<QAbstractButton*> m_buttons; ///< In the alert's order.
    QAbstractButton* m_pressed = nullptr;
    QCheckBox* m_suppressionButton = nullptr;
};
