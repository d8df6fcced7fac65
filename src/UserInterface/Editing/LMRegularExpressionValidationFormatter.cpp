// SPDX-License-Identifier: MIT
#include "UserInterface/Editing/LMRegularExpressionValidationFormatter.h"

#include "Utilities/LMFormat.h"

#include <QLineEdit>

namespace {

const QColor ValidColour = QColor::fromRgbF(0.27F, 0.63F, 0.02F);
constexpr qreal InvalidObliqueness = 0.3;
constexpr float SelectedTint = 0.15F;

} // namespace

QString LMRegularExpressionValidationFormatter::stringForObjectValue(const QVariant& value) {
    return value.userType() == QMetaType::QString ? value.toString() : QString();
}

std::optional<LMRegularExpressionValidationFormatter::DisplayForm>
LMRegularExpressionValidationFormatter::displayForm(const QString& text) const {
    if (text.isEmpty())
        return {};
    return m_patterns.isValid(text) ? DisplayForm{ValidColour, 0.0}
                                    : DisplayForm{Qt::red, InvalidObliqueness};
}

void LMRegularExpressionValidationFormatter::initStyleOption(QStyleOptionViewItem* option,
                                                             const QModelIndex& index) const {
    LMTextCellDelegate::initStyleOption(option, index);
    option->direction = Qt::LeftToRight;
    const auto form = displayForm(stringForObjectValue(index.data(Qt::EditRole)));
    if (!form)
        return;
    option->palette.setColor(QPalette::Text, form->colour);
    // On the full colour of a selection neither could be told from it.
    option->palette.setColor(QPalette::HighlightedText, form->colour);
    option->palette.setColor(QPalette::Highlight,
                             mixed(option->palette.color(QPalette::Base),
                                   option->palette.color(QPalette::Highlight), SelectedTint));
    option->font.setItalic(form->obliqueness > 0);
}

QWidget* LMRegularExpressionValidationFormatter::createEditor(QWidget* parent,
                                                              const QStyleOptionViewItem& option,
                                                              const QModelIndex& index) const {
    QWidget* editor = LMTextCellDelegate::createEditor(parent, option, index);
    auto* line = static_cast<QLineEdit*>(editor);
    line->setLayoutDirection(Qt::LeftToRight);
    connect(line, &QLineEdit::textChanged, this, [this, line] { colourText(*line); });
    return editor;
}

void LMRegularExpressionValidationFormatter::colourText(QLineEdit& editor) const {
    const auto form = displayForm(editor.text());
    QPalette palette = editor.parentWidget()->palette();
    QFont font = editor.font();
    if (form)
        palette.setColor(QPalette::Text, form->colour);
    font.setItalic(form && form->obliqueness > 0);
    editor.setPalette(palette);
    editor.setFont(font);
    editor.setAccessibleDescription(!form                   ? QString()
                                    : form->obliqueness > 0 ? LMLocalized("Not a valid pattern")
                                                            : LMLocalized("Valid pattern"));
}
