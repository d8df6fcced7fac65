// SPDX-License-Identifier: MIT
#pragma once

#include "UserInterface/Editing/LMRecordTableModel.h"

#include <QHash>
#include <QIcon>

class LMAction;
class LMWorkspace;

/// The actions of a workspace in the order in which they run.
class LMActionsModel final : public LMRecordTableModel {
    Q_OBJECT
public:
    enum Column { Icon, Label, OnDisplayChange };

    LMActionsModel(LMObjectContext& context, QObject* parent);

    /// Shows the workspace's actions; of no workspace none.
    void setWorkspace(const LMWorkspace* workspace);

    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    /// A box was ticked or emptied.
    void boxChanged();

protected:
    void forgetRecords() override {}

private:
    QVariant iconData(const LMAction& action, int role) const;
    static QVariant labelData(const LMAction& action, int role);
    static QVariant displayChangeData(const LMAction& action, int role);

    mutable QHash<QString, QIcon> m_icons; ///< By kind of script.
};
