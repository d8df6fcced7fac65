// SPDX-License-Identifier: MIT
#include "Model/Store/LMStoreSchema.h"

#include "Model/Store/LMObjectModel.h"
#include "Model/Store/LMStoreFile.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <QStringList>

namespace {

QString quoted(const QString& name) {
    return u'"' + QString(name).replace(u'"', QLatin1String("\"\"")) + u'"';
}

std::string sql(const QString& text) {
    return text.toStdString();
}

QString columnType(LMAttributeType type) {
    switch (type) {
    case LMAttributeType::Boolean:
    case LMAttributeType::Integer:
        return QStringLiteral("INTEGER");
    case LMAttributeType::Number:
        return QStringLiteral("REAL");
    case LMAttributeType::String:
    case LMAttributeType::StringList:
        break;
    }
    return QStringLiteral("TEXT");
}

struct Column {
    QString name;
    QString definition;
};

/// All columns but the key.
std::vector<Column> columnsOf(const LMEntityDescription& entity) {
    std::vector<Column> columns;
    if (entity.hasOwner())
        columns.push_back({entity.ownerRelationship,
                           QStringLiteral("INTEGER REFERENCES %1(\"key\") ON DELETE SET NULL")
                               .arg(quoted(entity.ownerEntity))});
    for (const LMAttributeDescription& attribute : entity.attributes)
        columns.push_back({attribute.name, columnType(attribute.type)});
    return columns;
}

/// Names of the columns of an entity's table, none when there is no table.
QStringList existingColumns(SQLite::Database& database, const LMEntityDescription& entity) {
    QStringList names;
    bool hasKey = false;
    SQLite::Statement statement(
        database, sql(QStringLiteral("PRAGMA table_info(%1)").arg(quoted(entity.name))));
    while (statement.executeStep()) {
        const std::string name = statement.getColumn("name").getString();
        names.append(QString::fromStdString(name));
        hasKey |= name == "key" && statement.getColumn("type").getString() == "INTEGER" &&
                  statement.getColumn("pk").getInt() == 1;
    }
    if (!names.isEmpty() && !hasKey)
        throw SQLite::Exception("the table " + sql(entity.name) + " is not one of a store");
    return names;
}

/// The statements that bring an entity's table up to date.
QStringList changesFor(SQLite::Database& database, const LMEntityDescription& entity) {
    const QStringList existing = existingColumns(database, entity);
    const std::vector<Column> columns = columnsOf(entity);
    const QString table = quoted(entity.name);
    QStringList changes;
    if (existing.isEmpty()) {
        QStringList definitions{QStringLiteral("\"key\" INTEGER PRIMARY KEY")};
        for (const Column& column : columns)
            definitions.append(quoted(column.name) + u' ' + column.definition);
        changes.append(QStringLiteral("CREATE TABLE %1(%2)")
                           .arg(table, definitions.join(QLatin1String(", "))));
        return changes;
    }
    for (const Column& column : columns) {
        // SQLite's column names differ in more than case.
        if (!existing.contains(column.name, Qt::CaseInsensitive))
            changes.append(QStringLiteral("ALTER TABLE %1 ADD COLUMN %2 %3")
                               .arg(table, quoted(column.name), column.definition));
    }
    return changes;
}

int pragma(SQLite::Database& database, const char* query) {
    return database.execAndGet(query).getInt();
}

} // namespace

void LMBringSchemaUpToDate(SQLite::Database& database, const LMObjectModel& model) {
    QStringList changes;
    for (const LMEntityDescription& entity : model.entities())
        changes.append(changesFor(database, entity));
    if (!database.tableExists("NextKey"))
        changes.append(QStringLiteral(
            "CREATE TABLE \"NextKey\"(\"entity\" TEXT PRIMARY KEY, \"nextKey\" INTEGER)"));
    if (pragma(database, "PRAGMA application_id") != LMStoreApplicationID)
        changes.append(QStringLiteral("PRAGMA application_id = %1").arg(LMStoreApplicationID));
    if (pragma(database, "PRAGMA user_version") != model.version())
        changes.append(QStringLiteral("PRAGMA user_version = %1").arg(model.version()));
    if (changes.isEmpty())
        return;
    SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
    for (const QString& change : changes)
        database.exec(sql(change));
    transaction.commit();
}

std::string LMSelectStatement(const LMEntityDescription& entity) {
    QStringList names{QStringLiteral("\"key\"")};
    if (!entity.hasOwner())
        names.append(QStringLiteral("NULL"));
    for (const Column& column : columnsOf(entity))
        names.append(quoted(column.name));
    return sql(QStringLiteral("SELECT %1 FROM %2 ORDER BY \"key\"")
                   .arg(names.join(QLatin1String(", ")), quoted(entity.name)));
}

std::string LMUpsertStatement(const LMEntityDescription& entity) {
    QStringList names{QStringLiteral("\"key\"")};
    QStringList parameters{QStringLiteral("?")};
    QStringList assignments;
    for (const Column& column : columnsOf(entity)) {
        const QString name = quoted(column.name);
        names.append(name);
        parameters.append(QStringLiteral("?"));
        assignments.append(QStringLiteral("%1 = excluded.%1").arg(name));
    }
    const QString separator = QStringLiteral(", ");
    const QString conflict = assignments.isEmpty()
                                 ? QStringLiteral("NOTHING")
                                 : QStringLiteral("UPDATE SET ") + assignments.join(separator);
    return sql(
        QStringLiteral("INSERT INTO %1(%2) VALUES(%3) ON CONFLICT(\"key\") DO %4")
            .arg(quoted(entity.name), names.join(separator), parameters.join(separator), conflict));
}

std::string LMDeleteStatement(const LMEntityDescription& entity) {
    return sql(QStringLiteral("DELETE FROM %1 WHERE \"key\" = ?").arg(quoted(entity.name)));
}
