// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>

class LMObjectModel;
struct LMEntityDescription;

namespace SQLite {
class Database;
}

// The tables of a store. For every entity one of the entity's name: the column "key", the owner's
// key in a column of the relationship's name where there is an owner, and a column per attribute.
// The table "NextKey" remembers for each entity the next key to give away.
//
// All functions throw SQLite::Exception.

/// Makes what the model knows and the file does not: tables, columns, marks. Touches nothing when
/// nothing is missing.
void LMBringSchemaUpToDate(SQLite::Database& database, const LMObjectModel& model);

/// Key, owner's key (NULL where there is no owner) and attributes of all objects by ascending key.
std::string LMSelectStatement(const LMEntityDescription& entity);
/// Parameters in the order of the columns of LMSelectStatement, without the owner's where there is
/// none.
std::string LMUpsertStatement(const LMEntityDescription& entity);
/// Parameter: the key.
std::string LMDeleteStatement(const LMEntityDescription& entity);
