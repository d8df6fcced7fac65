// SPDX-License-Identifier: MIT
#include "UserInterface/Editing/LMTextCellDelegate.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QStyle>

namespace {
/// The default would cut long texts when they are shown.
constexpr int LongestText = 10'000'000;
} // namespace

QWidget* LMTextCellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                          const QModelIndex& index) const {
    auto* editor = new QLineEdit(parent);
    editor->setMaxLength(LongestText);
    editor->setAutoFillBackground(true);
    editor->setAccessibleName(
        index.model()->headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString());
    return editor;
}

void LMTextCellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    auto* line = static_cast<QLineEdit*>(editor);
    const QString text = index.data(Qt::EditRole).toString();
    if (!line->isModified() && line->text() != text)
        line->setText(text);
}

void LMTextCellDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                      const QModelIndex& index) const {
    const auto* line = static_cast<QLineEdit*>(editor);
    if (line->isModified())
        model->setData(index, line->text(), Qt::EditRole);
}

// A menu that closes takes the focus from the whole window for a moment, long after its entry has
// opened an editor.
bool LMTextCellDelegate::eventFilter(QObject* editor, QEvent* event) {
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason) {
            Q_EMIT commitData(static_cast<QWidget*>(editor));
            return false;
        }
    }
    return QStyledItemDelegate::eventFilter(editor, event);
}

void LMTextCellDelegate::initStyleOption(QStyleOptionViewItem* option,
                                         const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    // Styles derive a box's outline from the window's colour, which a dark table swallows.
    option->palette.setColor(QPalette::Window, mixed(option->palette.color(QPalette::Base),
                                                     option->palette.color(QPalette::Text), 0.5F));
    // Where there is more than text the direction orders the parts, too.
    if (option->features &
        (QStyleOptionViewItem::HasDecoration | QStyleOptionViewItem::HasCheckIndicator))
        return;
    option->displayAlignment =
        QStyle::visualAlignment(option->direction, option->displayAlignment) | Qt::AlignAbsolute;
    option->direction = option->text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

QColor LMTextCellDelegate::mixed(const QColor& ground, const QColor& tint, float share) {
    const auto part = [share](float a, float b) { return a + (b - a) * share; };
    return QColor::fromRgbF(part(ground.redF(), tint.redF()), part(ground.greenF(), tint.greenF()),
                            part(ground.blueF(), tint.blueF()));
}
