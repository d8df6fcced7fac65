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
#include <QScopedValueRollback>
#include <QStyleOption>

#include <algorithm>

namespace {

constexpr int RowPadding = 8;
/// A list of thousands is not read as a whole for the width of a column.
constexpr int MostMeasuredRows = 100;

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
    connect(records, &QAbstractItemModel::dataChanged, this, &LMTableView::fitColumnsToContents);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, &LMTableView::keepWidthOfUser);
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

// --- widths of columns -------------------------------------------------------------------------

void LMTableView::setColumnWidths(const QList<std::pair<Width, QString>>& widths) {
    const QScopedValueRollback setting(m_isSettingWidths, true);
    for (int column = 0; column < widths.size(); ++column) {
        const auto& [kind, text] = widths[column];
        const int width = widthOfText(text);
        setColumnWidth(column, width);
        if (kind == Width::Contents) {
            m_mostWidths.insert(column, width);
        } else if (kind == Width::Rest) {
            m_restColumn = column;
            m_leastRest = width;
        }
    }
    fitColumnsToContents();
}

int LMTableView::widthOfText(const QString& text) const {
    return fontMetrics().horizontalAdvance(text) + 2 * RowPadding;
}

int LMTableView::widthOfContents(int column) const {
    int width = horizontalHeader()->sectionSizeHint(column);
    for (int row = 0; row < std::min(m_records->rowCount(), MostMeasuredRows); ++row)
        width = std::max(width, widthOfText(m_records->index(row, column).data().toString()));
    return width;
}

void LMTableView::fitColumnsToContents() {
    const QScopedValueRollback setting(m_isSettingWidths, true);
    for (auto most = m_mostWidths.cbegin(); most != m_mostWidths.cend(); ++most)
        setColumnWidth(most.key(), std::min(widthOfContents(most.key()), most.value()));
    giveRestOfWidth();
}

// A stretched section of the header would do, were there a least width of a single section: in a
// narrow window the others would leave nothing.
void LMTableView::giveRestOfWidth() {
    if (m_restColumn < 0)
        return;
    const QScopedValueRollback setting(m_isSettingWidths, true);
    const int others = horizontalHeader()->length() - columnWidth(m_restColumn);
    setColumnWidth(m_restColumn, std::max(m_leastRest, viewport()->width() - others));
}

void LMTableView::keepWidthOfUser(int column) {
    if (m_isSettingWidths)
        return;
    m_mostWidths.remove(column);
    if (column == m_restColumn)
        m_restColumn = -1;
    giveRestOfWidth();
}

void LMTableView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    giveRestOfWidth();
}
