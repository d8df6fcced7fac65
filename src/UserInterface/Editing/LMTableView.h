// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMObjectID.h"

#include <QTableView>

class LMRecordTableModel;

/// A list of records of which one at a time is selected. Delete and Backspace ask for the removal
/// of the selected one, and beep without one.
class LMTableView final : public QTableView {
    Q_OBJECT
public:
    /// name: for people who do not see the table.
    LMTableView(LMRecordTableModel* records, const QString& name, QWidget* parent = nullptr);

    LMRecordTableModel& records() const { return *m_records; }
    /// What is painted while there are no rows.
    void setPlaceholderText(const QString& text) { m_placeholderText = text; }

    /// Columns as wide as these texts, with room around them; what is left is for the column whose
    /// text is null.
    void setColumnWidths(const QStringList& widestTexts);

    /// A null identifier when nothing is selected.
    LMObjectID selectedRecord() const;
    /// Does nothing for a record that is not shown.
    void select(const LMObjectID& record);
    /// Selects the first row when none is.
    void selectSomething();

    /// Writes what was typed so far into the record; an open cell editor stays open.
    void commitEditing();

Q_SIGNALS:
    void removeRequested();
    void selectedRecordChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    LMRecordTableModel* m_records;
    QString m_placeholderText;
};
