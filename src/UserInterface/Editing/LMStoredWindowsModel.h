// SPDX-License-Identifier: MIT
#pragma once

#include "UserInterface/Editing/LMRecordTableModel.h"

#include <QHash>

class LMApplication;

/// The stored windows of an application, in the order in which live windows are offered to them.
/// Labels and patterns can be edited; rows can be dragged to another place.
class LMStoredWindowsModel final : public LMRecordTableModel {
    Q_OBJECT
public:
    enum Column { Label, Title, Pattern, Frame, State };

    LMStoredWindowsModel(LMObjectContext& context, QObject* parent);

    /// Shows its stored windows; of no application none.
    void setApplication(LMApplication* application);

    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    /// Asks for the new order and answers false: nothing is left for the view to remove.
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

    /// Asks for the order in which the row stands before what is now in another row (the number of
    /// rows for the end).
    void moveRow(int row, int before);

Q_SIGNALS:
    /// The user wants the records in this order.
    void orderRequested(const QList<LMObjectID>& records);

protected:
    void forgetRecords() override { m_rows.clear(); }

private:
    struct Row {
        QString texts[5]; ///< By column, presentable.
    };
    const Row& row(const QModelIndex& index) const;

    mutable QHash<LMObjectID, Row> m_rows;
};
