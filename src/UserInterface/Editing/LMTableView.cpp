// SPDX-License-Identifier: MIT
#include "UserInterface/Editing/LMTableView.h"

#include "UserInterface/Editing/LMRecordTableModel.h"
#include "UserInterface/Editing/LMTextCellDelegate.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

namespace {

constexpr int RowPadding = 8;

/// Shows where a dragged row would land across the whole table, not in one of its cells.
class RowDropStyle final : public QProxyStyle {
public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (element != PE_IndicatorItemViewItemDrop || option->rect.isNull()) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
            return;
        }
        const int y = option->rect.top();
        painter->setPen(QPen(option->palette.color(QPalette::Highlight), 2));
        painter->drawLine(0, y, widget ? widget->width() : option->rect.right(), y);
    }
};

} // namespace

LMTableView::LMTableView(LMRecordTableModel* records, const QString& name, QWidget* parent)
    : QTableView(parent), m_records(records) {
    setAccessibleName(name);
    setModel(records);
    setItemDelegate(new LMTextCellDelegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setHorizontalScrollMode(ScrollPerPixel);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setMinimumSectionSize(fontMetrics().height());
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + RowPadding);
    auto* dropStyle = new RowDropStyle;
    dropStyle->setParent(this);
    setStyle(dropStyle);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &LMTableView::selectedRecordChanged);
}

void LMTableView::setColumnWidths(const QStringList& widestTexts) {
    for (int column = 0; column < widestTexts.size(); ++column) {
        if (widestTexts[column].isNull())
            horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
        else
            setColumnWidth(column,
                           fontMetrics().horizontalAdvance(widestTexts[column]) + 3 * RowPadding);
    }
}

LMObjectID LMTableView::selectedRecord() const {
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? LMObjectID() : m_records->recordAt(rows.last().row());
}

void LMTableView::select(const LMObjectID& record) {
    const qsizetype row = m_records->records().indexOf(record);
    if (row < 0 || record == selectedRecord())
        return;
    const int column = std::max(currentIndex().column(), 0);
    setCurrentIndex(m_records->index(int(row), column));
}

void LMTableView::selectSomething() {
    if (selectedRecord().isNull())
        select(m_records->recordAt(0));
}

void LMTableView::commitEditing() {
    for (QLineEdit* editor : viewport()->findChildren<QLineEdit*>()) {
        if (editor->isVisible())
            commitData(editor);
    }
}

void LMTableView::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Delete && event->key() != Qt::Key_Backspace)
        QTableView::keyPressEvent(event);
    else if (selectedRecord().isNull())
        QApplication::beep();
    else
        Q_EMIT removeRequested();
}

void LMTableView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (m_records->rowCount() > 0 || m_placeholderText.isEmpty())
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(RowPadding, RowPadding, -RowPadding, -RowPadding),
                     Qt::AlignCenter | Qt::TextWordWrap, m_placeholderText);
}
