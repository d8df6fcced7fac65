// SPDX-License-Identifier: MIT
#include "UserInterface/Editing/LMActionsModel.h"

#include "Model/LMAction.h"
#include "Model/LMWorkspace.h"
#include "UserInterface/LMPresentableText.h"
#include "Utilities/LMFormat.h"

#include <QGuiApplication>
#include <QPalette>
#include <QPixmap>

LMActionsModel::LMActionsModel(LMObjectContext& context, QObject* parent)
    : LMRecordTableModel(
          context, {QString(), LMLocalized("Label"), LMLocalized("On Display Change")}, parent) {}

void LMActionsModel::setWorkspace(const LMWorkspace* workspace) {
    setRecords(workspace ? LMIdentifiersOfObjects(workspace->actions()) : QList<LMObjectID>());
}

QVariant LMActionsModel::data(const QModelIndex& index, int role) const {
    const auto* action = record<LMAction>(index);
    if (!action)
        return {};
    switch (index.column()) {
    case Icon:
        return iconData(*action, role);
    case Label:
        return labelData(*action, role);
    default:
        return displayChangeData(*action, role);
    }
}

QVariant LMActionsModel::iconData(const LMAction& action, int role) const {
    if (role == Qt::ToolTipRole)
        return LMPresentableToolTip(action.runAs());
    if (role == Qt::AccessibleTextRole)
        return LMPresentableLine(action.runAs());
    if (role != Qt::DecorationRole)
        return {};
    QIcon& icon = m_icons[action.runAs()];
    if (icon.isNull())
        icon = QIcon(QPixmap::fromImage(action.icon()));
    return icon;
}

QVariant LMActionsModel::labelData(const LMAction& action, int role) {
    const QString label = action.label();
    switch (role) {
    case Qt::DisplayRole:
        return label.isEmpty() ? LMLocalized("Unlabeled Action") : LMPresentableLine(label);
    case Qt::ForegroundRole:
        return label.isEmpty()
                   ? QVariant(QGuiApplication::palette().brush(QPalette::PlaceholderText))
                   : QVariant();
    case Qt::EditRole:
        return label;
    case Qt::ToolTipRole:
        return LMPresentableToolTip(label);
    default:
        return {};
    }
}

QVariant LMActionsModel::displayChangeData(const LMAction& action, int role) {
    const bool isTicked = action.runOnDisplayChange();
    switch (role) {
    case Qt::CheckStateRole:
        return int(isTicked ? Qt::Checked : Qt::Unchecked);
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return isTicked ? LMLocalized("Runs only when the displays have changed")
                        : LMLocalized("Runs whenever the windows are restored");
    default:
        return {};
    }
}

bool LMActionsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    auto* action = record<LMAction>(index);
    if (!action)
        return false;
    if (index.column() == Label && role == Qt::EditRole) {
        action->setLabel(value.toString());
        Q_EMIT dataChanged(index, index);
        return true;
    }
    if (index.column() == OnDisplayChange && role == Qt::CheckStateRole) {
        action->setRunOnDisplayChange(value.toInt() == Qt::Checked);
        Q_EMIT dataChanged(index, index);
        Q_EMIT boxChanged();
        return true;
    }
    return false;
}

Qt::ItemFlags LMActionsModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    return index.column() == Label             ? flags | Qt::ItemIsEditable
           : index.column() == OnDisplayChange ? flags | Qt::ItemIsUserCheckable
                                               : flags;
}
