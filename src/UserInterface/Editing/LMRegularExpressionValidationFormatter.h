// SPDX-License-Identifier: MIT
#pragma once

#include "UserInterface/Editing/LMTextCellDelegate.h"
#include "Utilities/LMStringAdditions.h"

#include <QColor>

class QLineEdit;

/// Cells in which the user types a regular expression. They show, while it is typed and afterwards,
/// whether the text is a valid pattern. Every text is accepted.
class LMRegularExpressionValidationFormatter final : public LMTextCellDelegate {
    Q_OBJECT
public:
    using LMTextCellDelegate::LMTextCellDelegate;

    /// How a text is drawn.
    struct DisplayForm {
        QColor colour;
        qreal obliqueness; ///< 0 is upright.
    };

    /// The value itself when it is a text, otherwise nothing.
    static QString stringForObjectValue(const QVariant& value);
    /// Nothing for a text that is empty.
    std::optional<DisplayForm> displayForm(const QString& text) const;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    void colourText(QLineEdit& editor) const;

    mutable LMRegexCache m_patterns;
};
