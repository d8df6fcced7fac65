// SPDX-License-Identifier: MIT
#include "UserInterface/Editing/LMStoredWindowsModel.h"

#include "Model/LMApplication.h"
#include "Model/LMStoredWindow.h"
#include "UserInterface/Editing/LMStateText.h"
#include "UserInterface/LMPresentableText.h"
#include "Utilities/LMFormat.h"

#include <QMimeData>

namespace {

/// Carries the window's key: rows may come and go while one is dragged.
constexpr QLatin1String WindowFormat{"application/x-rook-stored-window"};

QString frameText(const QRectF& frame) {
    const auto number = [](qreal value) { return LMLeftToRight(QString::number(value)); };
    return LMFormat(
        LMLocalized("%@ × %@ at %@, %@"),
        {number(frame.width()), number(frame.height()), number(frame.x()), number(frame.y())});
}

/// For those who hear a cell instead of seeing it.
QString emptyText(int column) {
    return column == LMStoredWindowsModel::Label     ? LMLocalized("No label")
           : column == LMStoredWindowsModel::Pattern ? LMLocalized("No title pattern")
                                                     : LMLocalized("No title");
}

} // namespace

LMStoredWindowsModel::LMStoredWindowsModel(LMObjectContext& context, QObject* parent)
    : LMRecordTableModel(context,
                         {LMLocalized("Label"), LMLocalized("Title"), LMLocalized("Title Pattern"),
                          LMLocalized("Frame"), LMLocalized("State")},
                         parent) {}

void LMStoredWindowsModel::setApplication(LMApplication* application) {
    setRecords(application ? LMIdentifiersOfObjects(application->orderedWindows())
                           : QList<LMObjectID>());
}

const LMStoredWindowsModel::Row& LMStoredWindowsModel::row(const QModelIndex& index) const {
    const auto known = m_rows.constFind(recordAt(index.row()));
    if (known != m_rows.constEnd())
        return *known;
    Row& row = m_rows[recordAt(index.row())];
    if (auto* window = record<LMStoredWindow>(index)) {
        row.texts[Label] = LMPresentableLine(window->label());
        row.texts[Title] = LMPresentableLine(window->title());
        row.texts[Pattern] = LMPresentableLine(window->titleRegularExpression());
        row.texts[Frame] = frameText(window->frame());
        row.texts[State] = LMTextOfState(window->state());
    }
    return row;
}

QVariant LMStoredWindowsModel::data(const QModelIndex& index, int role) const {
    const int column = index.column();
    if (role == Qt::DisplayRole)
        return row(index).texts[column];
    if (role == Qt::AccessibleTextRole && column != State && row(index).texts[column].isEmpty())
        return emptyText(column);
    if (role == Qt::ToolTipRole && column != Frame)
        return LMPresentableToolTip(row(index).texts[column]);
    if (role == Qt::EditRole) {
        const auto* window = record<LMStoredWindow>(index);
        return !window             ? QVariant()
               : column == Label   ? QVariant(window->label())
               : column == Pattern ? QVariant(window->titleRegularExpression())
                                   : QVariant(row(index).texts[column]);
    }
    return {};
}

bool LMStoredWindowsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    auto* window = record<LMStoredWindow>(index);
    if (!window || role != Qt::EditRole)
        return false;
    if (index.column() == Label)
        window->setLabel(value.toString());
    else if (index.column() == Pattern)
        window->setTitleRegularExpression(value.toString());
    m_rows.remove(window->objectID());
    Q_EMIT dataChanged(index, index);
    return true;
}

Qt::ItemFlags LMStoredWindowsModel::flags(const QModelIndex& index) const {
    // Between rows only: nothing is dropped onto a window.
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    const Qt::ItemFlags flags =
        Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
    const bool isEditable = index.column() == Label || index.column() == Pattern;
    return isEditable ? flags | Qt::ItemIsEditable : flags;
}

// --- moving --------------------------------------------------------------------------------

QStringList LMStoredWindowsModel::mimeTypes() const {
    return {WindowFormat};
}

QMimeData* LMStoredWindowsModel::mimeData(const QModelIndexList& indexes) const {
    auto* data = new QMimeData;
    if (!indexes.isEmpty())
        data->setData(WindowFormat, QByteArray::number(recordAt(indexes.front().row()).key));
    return data;
}

bool LMStoredWindowsModel::canDropMimeData(const QMimeData* data, Qt::DropAction action, int, int,
                                           const QModelIndex& parent) const {
    return data->hasFormat(WindowFormat) && action == Qt::MoveAction && !parent.isValid();
}

bool LMStoredWindowsModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row,
                                        int column, const QModelIndex& parent) {
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    const qint64 key = data->data(WindowFormat).toLongLong();
    for (int dragged = 0; dragged < rowCount(); ++dragged) {
        if (recordAt(dragged).key == key) {
            moveRow(dragged, row < 0 ? rowCount() : row); // Below all of them.
            break;
        }
    }
    return false;
}

void LMStoredWindowsModel::moveRow(int row, int before) {
    if (row < 0 || row >= rowCount() || before < 0 || before > rowCount() || before == row ||
        before == row + 1)
        return;
    QList<LMObjectID> order = records();
    order.move(row, before > row ? before - 1 : before);
    Q_EMIT orderRequested(order);
}
