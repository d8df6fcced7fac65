// SPDX-License-Identifier: MIT
#pragma once

#include "UserInterface/Editing/LMRecordTableModel.h"

#include <QHash>
#include <QIcon>

class LMApplication;
class LMWorkspace;

/// The applications of a workspace by name, each with its icon.
class LMApplicationsModel final : public LMRecordTableModel {
    Q_OBJECT
public:
    LMApplicationsModel(LMObjectContext& context, QObject* parent);

    /// Shows the workspace's applications, sorted; of no workspace none.
    void setWorkspace(const LMWorkspace* workspace);

    QVariant data(const QModelIndex& index, int role) const override;

protected:
    void forgetRecords() override {}

private:
    const QIcon& icon(const LMApplication& application) const;

    /// By bundle identifier; finding an icon means looking through the icon themes.
    mutable QHash<QString, QIcon> m_icons;
};
