// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMObjectContext.h"

#include <QAbstractTableModel>
#include <QList>
#include <QStringList>

/// Rows that stand for records, known by their identifiers: a record may be gone at any time, and
/// then its row is blank until the rows are set anew.
///
/// Derived classes read a record when one of its cells is first asked for, not before.
class LMRecordTableModel : public QAbstractTableModel {
    Q_OBJECT
public:
    /// The context outlives the model.
    LMRecordTableModel(LMObjectContext& context, QStringList headers, QObject* parent);

    /// Shows these records, each once. Rows of records that stay are moved, not made anew, so that
    /// selection, scroll position and an open cell editor stay with them.
    void setRecords(const QList<LMObjectID>& records);

    const QList<LMObjectID>& records() const { return m_records; }
    /// A null identifier for rows that do not exist.
    LMObjectID recordAt(int row) const { return m_records.value(row); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

protected:
    /// Whatever was read from records is out of date.
    virtual void forgetRecords() = 0;

    /// The record of a row; none when it is gone.
    template <class T>
    T* record(const QModelIndex& index) const {
        return static_cast<T*>(m_context.existingObjectWithID(recordAt(index.row())));
    }

private:
    void removeRowsExcept(const QList<LMObjectID>& records);
    void orderRowsAs(const QList<LMObjectID>& records);
    void insertMissing(const QList<LMObjectID>& records);

    LMObjectContext& m_context;
    QStringList m_headers;
    QList<LMObjectID> m_records;
};

/// The identifiers of objects, in their order.
template <class Objects>
QList<LMObjectID> LMIdentifiersOfObjects(const Objects& objects) {
    QList<LMObjectID> identifiers;
    identifiers.reserve(qsizetype(objects.size()));
    for (const auto* object : objects)
        identifiers.append(object->objectID());
    return identifiers;
}
