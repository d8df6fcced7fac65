// SPDX-License-Identifier: MIT
#include "UserInterface/Editing/LMRecordTableModel.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <utility>

LMRecordTableModel::LMRecordTableModel(LMObjectContext& context, QStringList headers,
                                       QObject* parent)
    : QAbstractTableModel(parent), m_context(context), m_headers(std::move(headers)) {}

int LMRecordTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_records.size());
}

int LMRecordTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_headers.size());
}

QVariant LMRecordTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return m_headers.value(section);
    return role == Qt::TextAlignmentRole ? QVariant(int(Qt::AlignLeading | Qt::AlignVCenter))
                                         : QVariant();
}

void LMRecordTableModel::setRecords(const QList<LMObjectID>& records) {
    forgetRecords();
    if (records != m_records) {
        removeRowsExcept(records);
        orderRowsAs(records);
        insertMissing(records);
    }
    if (!m_records.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void LMRecordTableModel::removeRowsExcept(const QList<LMObjectID>& records) {
    const QSet<LMObjectID> kept(records.begin(), records.end());
    for (int last = rowCount() - 1; last >= 0; --last) {
        if (kept.contains(m_records[last]))
            continue;
        int first = last;
        while (first > 0 && !kept.contains(m_records[first - 1]))
            --first;
        beginRemoveRows({}, first, last);
        m_records.remove(first, last - first + 1);
        endRemoveRows();
        last = first;
    }
}

void LMRecordTableModel::orderRowsAs(const QList<LMObjectID>& records) {
    QHash<LMObjectID, int> places;
    for (const LMObjectID& record : records)
        places.insert(record, int(places.size()));
    const auto isBefore = [&places](const LMObjectID& a, const LMObjectID& b) {
        return places.value(a) < places.value(b);
    };
    if (std::is_sorted(m_records.begin(), m_records.end(), isBefore))
        return;
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QList<LMObjectID> before = m_records;
    std::sort(m_records.begin(), m_records.end(), isBefore);
    QHash<LMObjectID, int> rows;
    for (const LMObjectID& record : m_records)
        rows.insert(record, int(rows.size()));
    QModelIndexList moved;
    const QModelIndexList persistent = persistentIndexList();
    for (const QModelIndex& old : persistent)
        moved.append(index(rows.value(before[old.row()]), old.column()));
    changePersistentIndexList(persistent, moved);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void LMRecordTableModel::insertMissing(const QList<LMObjectID>& records) {
    const QSet<LMObjectID> present(m_records.begin(), m_records.end());
    for (qsizetype first = 0; first < records.size(); ++first) {
        qsizetype end = first;
        while (end < records.size() && !present.contains(records[end]))
            ++end;
        if (end == first)
            continue;
        beginInsertRows({}, int(first), int(end) - 1);
        m_records.insert(first, end - first, LMObjectID());
        std::copy(records.begin() + first, records.begin() + end, m_records.begin() + first);
        endInsertRows();
        first = end;
    }
}
