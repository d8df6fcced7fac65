// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMManagedObject.h"
#include "Model/Store/LMStoreRow.h"

#include <QString>

#include <any>

/// What a column of an entity's table holds.
enum class LMAttributeType { String, Boolean, Integer, Number, StringList };

/// One attribute of an entity, declared once: column, loading, saving and migration derive from it.
///
/// Attributes are optional unless their C++ type cannot be absent: a null QString and an empty
/// std::optional are kept as NULL, and so are columns that a migration adds.
struct LMAttributeDescription {
    QString name; ///< Also the column's name.
    LMAttributeType type = LMAttributeType::String;
    /// Fills the member from a column; answers false when the column holds no such value, and then
    /// the member is as in a new object.
    bool (*load)(LMManagedObject& object, const LMStoreRow& row, int column) = nullptr;
    void (*save)(const LMManagedObject& object, LMStoreRowWriter& row, int column) = nullptr;
    /// A copy of the member, for setValue of the same attribute, which reports no change.
    std::any (*value)(const LMManagedObject& object) = nullptr;
    void (*setValue)(LMManagedObject& object, const std::any& value) = nullptr;
};

namespace LMAttributeDetail {

template <class Pointer>
struct MemberOf;
template <class Object, class Value>
struct MemberOf<Value Object::*> {
    using ObjectType = Object;
    using ValueType = Value;
};

template <class Value>
struct TypeOf;
template <class Value>
struct TypeOf<std::optional<Value>> : TypeOf<Value> {};
template <>
struct TypeOf<QString> {
    static constexpr auto value = LMAttributeType::String;
};
template <>
struct TypeOf<bool> {
    static constexpr auto value = LMAttributeType::Boolean;
};
template <>
struct TypeOf<qint64> {
    static constexpr auto value = LMAttributeType::Integer;
};
template <>
struct TypeOf<double> {
    static constexpr auto value = LMAttributeType::Number;
};
template <>
struct TypeOf<QStringList> {
    static constexpr auto value = LMAttributeType::StringList;
};

} // namespace LMAttributeDetail

/// Describes the attribute kept in a data member:
/// LMDescribeAttribute<&LMWindow::m_title>(u"title"_qs).
template <auto Member>
LMAttributeDescription LMDescribeAttribute(const QString& name) {
    using Object = typename LMAttributeDetail::MemberOf<decltype(Member)>::ObjectType;
    using Value = typename LMAttributeDetail::MemberOf<decltype(Member)>::ValueType;
    return {name,
            LMAttributeDetail::TypeOf<Value>::value,
            [](LMManagedObject& object, const LMStoreRow& row, int column) {
                return row.read(column, static_cast<Object&>(object).*Member);
            },
            [](const LMManagedObject& object, LMStoreRowWriter& row, int column) {
                row.write(column, static_cast<const Object&>(object).*Member);
            },
            [](const LMManagedObject& object) -> std::any {
                return static_cast<const Object&>(object).*Member;
            },
            [](LMManagedObject& object, const std::any& value) {
                static_cast<Object&>(object).*Member = std::any_cast<const Value&>(value);
            }};
}
