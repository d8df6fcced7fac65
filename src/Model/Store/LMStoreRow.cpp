// SPDX-License-Identifier: MIT
#include "Model/Store/LMStoreRow.h"

#include "Model/Store/LMStringListCoding.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Statement.h>

#include <cmath>

bool LMStoreRow::isNull(int column) const {
    return m_statement->isColumnNull(column);
}

bool LMStoreRow::read(int column, QString& value) const {
    const SQLite::Column cell = m_statement->getColumn(column);
    if (cell.isNull()) {
        value = QString();
        return true;
    }
    const char* text = cell.getText();
    value = QString::fromUtf8(text, cell.getBytes());
    return true;
}

bool LMStoreRow::read(int column, bool& value) const {
    qint64 number = 0;
    const bool isRead = read(column, number);
    if (isRead)
        value = number != 0;
    return isRead;
}

bool LMStoreRow::read(int column, qint64& value) const {
    const SQLite::Column cell = m_statement->getColumn(column);
    if (!cell.isInteger())
        return false;
    value = cell.getInt64();
    return true;
}

bool LMStoreRow::read(int column, double& value) const {
    const SQLite::Column cell = m_statement->getColumn(column);
    if (!cell.isInteger() && !cell.isFloat())
        return false;
    value = cell.getDouble();
    return true;
}

bool LMStoreRow::read(int column, QStringList& value) const {
    const SQLite::Column cell = m_statement->getColumn(column);
    if (!cell.isText())
        return false;
    const char* text = cell.getText();
    auto list = LMStringListFromJSON(QByteArrayView(text, cell.getBytes()));
    if (!list)
        return false;
    value = *std::move(list);
    return true;
}

void LMStoreRowWriter::write(int parameter, const QString& value) {
    if (value.isNull())
        writeNull(parameter);
    else
        writeText(parameter, value.toUtf8());
}

void LMStoreRowWriter::write(int parameter, bool value) {
    m_statement->bind(parameter, value ? 1 : 0);
}

void LMStoreRowWriter::write(int parameter, qint64 value) {
    m_statement->bind(parameter, static_cast<int64_t>(value));
}

void LMStoreRowWriter::write(int parameter, double value) {
    if (std::isfinite(value))
        m_statement->bind(parameter, value);
    else
        writeNull(parameter);
}

void LMStoreRowWriter::write(int parameter, const QStringList& value) {
    writeText(parameter, LMJSONFromStringList(value));
}

void LMStoreRowWriter::writeNull(int parameter) {
    m_statement->bind(parameter);
}

void LMStoreRowWriter::writeText(int parameter, const QByteArray& text) {
    m_statement->bind(parameter, text.toStdString());
}
