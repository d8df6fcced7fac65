// SPDX-License-Identifier: MIT
#pragma once

#include "Utilities/LMResult.h"

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QtGlobal>

#include <compare>
#include <variant>

/// Why a platform call did not succeed. A vanished window is an ordinary answer, not an exception.
enum class LMPlatformError {
    InvalidElement,       ///< The application or window is gone.
    AttributeUnsupported, ///< The element has no such attribute, or no value for it.
    NotSettable,          ///< The attribute can be read but not changed.
    CannotComplete,       ///< The other side did not answer within its deadline.
    NotAvailable,         ///< The back end cannot do this at all.
    Failure,              ///< Anything else; the back end has logged it.
};

template <class T>
using LMPlatformResult = LMResult<T, LMPlatformError>;
using LMPlatformStatus = LMResult<void, LMPlatformError>;

/// Identifies an application, a window or a child of a window of another process.
///
/// A plain value: it holds no resource and may outlive what it names, in which case every call
/// with it answers LMPlatformError::InvalidElement. Only the back end that made it can read it.
struct LMElement {
    enum class Kind : quint8 { None, Application, Window, Child };

    Kind kind = Kind::None;
    qint64 identifier = 0; ///< Application: process identifier. Window and child: the window.
    int index = 0;         ///< Child: its place among the window's children.

    bool isNull() const { return kind == Kind::None; }
    auto operator<=>(const LMElement&) const = default; // NOLINT(modernize-use-nullptr): generated
};

/// A value of an element's attribute. Points and sizes are global pixels, see LMScreens.
using LMAttributeValue =
    std::variant<std::monostate, bool, QString, QPointF, QSizeF, LMElement, QList<LMElement>>;

/// A value for an attribute of an element.
struct LMElementValue {
    LMElement element;
    LMAttributeValue value;
};

/// The attribute names the back ends understand.
namespace LMAttribute {
inline constexpr QLatin1String Windows{"AXWindows"}; ///< application: windows, front to back
inline constexpr QLatin1String FocusedWindow{"AXFocusedWindow"}; ///< application: one window
inline constexpr QLatin1String Title{"AXTitle"};                 ///< string
inline constexpr QLatin1String Role{"AXRole"};                   ///< string
inline constexpr QLatin1String Subrole{"AXSubrole"};             ///< string
inline constexpr QLatin1String Position{"AXPosition"};           ///< point, settable
inline constexpr QLatin1String Size{"AXSize"};                   ///< size, settable
inline constexpr QLatin1String Children{"AXChildren"};           ///< elements in a fixed order
inline constexpr QLatin1String ToolbarButton{"AXToolbarButton"}; ///< present or not
inline constexpr QLatin1String GrowArea{"AXGrowArea"};           ///< present or not
inline constexpr QLatin1String Document{"AXDocument"};           ///< present or not
inline constexpr QLatin1String Modal{"AXModal"};                 ///< boolean
} // namespace LMAttribute
