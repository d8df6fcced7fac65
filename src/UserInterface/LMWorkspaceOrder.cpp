// SPDX-License-Identifier: MIT
#include "UserInterface/LMWorkspaceOrder.h"

#include "UserInterface/LMWorkspaceListModel.h"

LMWorkspaceOrder::LMWorkspaceOrder(LMWorkspaceListModel& workspaces) {
    if (m_collator.locale() == QLocale::c()) // There characters are only numbers.
        m_collator.setLocale(QLocale(QLocale::English));
    m_collator.setNumericMode(true);
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    setSourceModel(&workspaces);
    setDynamicSortFilter(true);
    sort(LMWorkspaceListModel::Status);
}

int LMWorkspaceOrder::compare(const QModelIndex& left, const QModelIndex& right) const {
    const QVariant a = left.data(LMWorkspaceListModel::SortRole);
    const QVariant b = right.data(LMWorkspaceListModel::SortRole);
    if (a.typeId() != QMetaType::QString)
        return a.toLongLong() < b.toLongLong() ? -1 : int(a.toLongLong() > b.toLongLong());
    return m_collator.compare(a.toString(), b.toString());
}

bool LMWorkspaceOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    if (const int order = compare(left, right))
        return order < 0;
    const int name = LMWorkspaceListModel::Name;
    if (const int order = compare(left.siblingAtColumn(name), right.siblingAtColumn(name)))
        return order < 0;
    return left.row() < right.row();
}
