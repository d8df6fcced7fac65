// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QStyledItemDelegate>

/// Cells whose text is edited in a line. What the user has typed so far stays when the cell is read
/// again under the open editor, and so does an editor whose window is not the active one for a
/// while; a text that was not touched is not written back. A text is read in its own direction,
/// whichever that of the window is.
class LMTextCellDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    bool eventFilter(QObject* editor, QEvent* event) override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

    /// The ground with that share (0 to 1) of the tint in it.
    static QColor mixed(const QColor& ground, const QColor& tint, float share);
};
