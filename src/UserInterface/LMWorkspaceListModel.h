// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMObjectID.h"

#include <QAbstractTableModel>
#include <QList>

class LMStoredWindowsStore;
class LMWorkspace;
struct LMEnvironment;

/// All workspaces as a table, oldest first. It holds what it shows and the identifiers of the
/// records, so that records may go at any time; reload() takes over what the store says.
class LMWorkspaceListModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Name, Status, Displays, Applications, Windows, ColumnCount };
    enum class State {
        Current,          ///< The one that commands store to and restore from.
        CanBecomeCurrent, ///< The attached displays can be arranged like its own.
        SameDisplays,     ///< Like the current one, which is older.
        OtherDisplays,
    };
    static constexpr int SortRole = Qt::UserRole; ///< A text or a number.

    /// Both outlive the model.
    LMWorkspaceListModel(LMEnvironment& environment, LMStoredWindowsStore& store);

    /// Reads the workspaces and the attached displays again. Rows that stay keep their selection,
    /// and a name that is being edited stays so.
    void reload();

    LMObjectID objectID(int row) const { return m_rows.at(row).objectID; }
    State state(int row) const { return m_rows.at(row).state; }
    /// The record, or none when it is gone.
    LMWorkspace* workspace(const LMObjectID& objectID) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Renames the workspace and asks for a save. An empty name brings the automatic one back.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    struct Row {
        LMObjectID objectID;
        QString name;
        QString displays;
        QString displayDetails; ///< HTML for a tool tip, a line for each.
        qsizetype displayCount = 0;
        qsizetype applicationCount = 0;
        qsizetype windowCount = 0;
        State state = State::OtherDisplays;
        bool operator==(const Row&) const = default;
    };
    class Attached;

    static Row row(const LMWorkspace& workspace, const Attached& attached);
    static QVariant displayValue(const Row& row, int column);
    static QVariant sortValue(const Row& row, int column);

    LMEnvironment& m_environment;
    LMStoredWindowsStore& m_store;
    QList<Row> m_rows;
};
