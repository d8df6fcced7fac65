// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMObjectID.h"

#include <QHash>
#include <QTableView>

#include <utility>

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

    /// What the width of a column follows.
    enum class Width {
        Text,     ///< The text, with room around it.
        Contents, ///< Its header and what stands in it, up to the width of the text.
        Rest,     ///< What other columns leave, at least the width of the text. One column has it.
    };
    /// For each column. A width that the user gives to one stays.
    void setColumnWidths(const QList<std::pair<Width, QString>>& widths);

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
    void resizeEvent(QResizeEvent* event) override;

private:
    int widthOfText(const QString& text) const;
    int widthOfContents(int column) const;
    void fitColumnsToContents();
    void giveRestOfWidth();
    void keepWidthOfUser(int column);

    LMRecordTableModel* m_records;
    QString m_placeholderText;
    QHash<int, int> m_mostWidths; ///< Of the columns that follow their contents.
    int m_restColumn = -1;        ///< None when the user has given it a width.
    int m_leastRest = 0;
    bool m_isSettingWidths = false;
};
