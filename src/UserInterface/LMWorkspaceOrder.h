// SPDX-License-Identifier: MIT
#pragma once

#include <QCollator>
#include <QSortFilterProxyModel>

class LMWorkspaceListModel;

/// The workspaces in the order of a column, numbers within texts by their value. What is equal
/// there is ordered by name, then by age.
class LMWorkspaceOrder final : public QSortFilterProxyModel {
public:
    /// The workspaces outlive it.
    explicit LMWorkspaceOrder(LMWorkspaceListModel& workspaces);

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    int compare(const QModelIndex& left, const QModelIndex& right) const;

    QCollator m_collator;
};
