// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <optional>

namespace SQLite {
class Statement;
}

/// A row of a table being read. Columns count from 0.
///
/// read() answers false when the column holds nothing that can be read as the type, and leaves the
/// value alone: a damaged value never stands in the way of the rest. NULL is a value for strings
/// and optionals, not for the others.
class LMStoreRow {
public:
    explicit LMStoreRow(SQLite::Statement& statement) : m_statement(&statement) {}

    bool read(int column, QString& value) const;
    bool read(int column, bool& value) const;
    bool read(int column, qint64& value) const;
    bool read(int column, double& value) const;
    bool read(int column, QStringList& value) const;

    template <class Value>
    bool read(int column, std::optional<Value>& value) const {
        if (isNull(column)) {
            value.reset();
            return true;
        }
        Value read{};
        const bool isRead = this->read(column, read);
        if (isRead)
            value = std::move(read);
        return isRead;
    }

    bool isNull(int column) const;

private:
    SQLite::Statement* m_statement;
};

/// A row of a table being written: binds values to the parameters of a statement, which count from
/// 1.
class LMStoreRowWriter {
public:
    explicit LMStoreRowWriter(SQLite::Statement& statement) : m_statement(&statement) {}

    void write(int parameter, const QString& value);
    void write(int parameter, bool value);
    void write(int parameter, qint64 value);
    /// What is not a finite number is written as NULL.
    void write(int parameter, double value);
    void write(int parameter, const QStringList& value);

    template <class Value>
    void write(int parameter, const std::optional<Value>& value) {
        if (value)
            write(parameter, *value);
        else
            writeNull(parameter);
    }

    void writeNull(int parameter);

private:
    void writeText(int parameter, const QByteArray& text);

    SQLite::Statement* m_statement;
};
