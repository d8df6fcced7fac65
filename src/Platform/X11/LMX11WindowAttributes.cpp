// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11WindowAttributes.h"

#include <algorithm>

namespace {

using Value = LMPlatformResult<LMAttributeValue>;

constexpr qsizetype longestWord = 64;

Value unsupported() {
    return Value::failure(LMPlatformError::AttributeUnsupported);
}

QString subrole(const LMX11Window& window) {
    switch (window.structure.type) {
    case LMX11WindowType::Normal:
        return window.states.isAbove && window.states.skipsTaskbar
                   ? QStringLiteral("AXSystemFloatingWindow")
                   : QStringLiteral("AXStandardWindow");
    case LMX11WindowType::Dialog:
        return QStringLiteral("AXDialog");
    case LMX11WindowType::Utility:
    case LMX11WindowType::Toolbar:
        return QStringLiteral("AXFloatingWindow");
    default:
        return QStringLiteral("");
    }
}

/// Some clients number their windows in the role, others put a time or an address there.
bool isConstantWord(const QString& role) {
    const auto isWordCharacter = [](QChar character) {
        return character.isLetter() || QStringView(u"-_. ").contains(character);
    };
    return !role.isEmpty() && role.size() <= longestWord &&
           std::ranges::all_of(role, isWordCharacter);
}

QList<LMElement> children(const LMX11Window& window) {
    QList<LMElement> elements;
    const int count = int(LMX11ChildRoles(window.structure).size());
    for (int index = 0; index < count; ++index)
        elements.append({LMElement::Kind::Child, window.identifier, index});
    return elements;
}

} // namespace

QStringList LMX11ChildRoles(const LMX11WindowStructure& structure) {
    QStringList roles;
    if (structure.offersClose)
        roles.append(QStringLiteral("AXCloseButton"));
    if (structure.offersMinimize)
        roles.append(QStringLiteral("AXMinimizeButton"));
    if (structure.offersMaximize)
        roles.append(QStringLiteral("AXZoomButton"));
    if (isConstantWord(structure.role))
        roles.append(structure.role);
    return roles;
}

Value LMX11WindowAttribute(const LMX11Window& window, const QRectF& frame,
                           QLatin1String attribute) {
    if (attribute == LMAttribute::Title)
        return window.title.isNull() ? unsupported() : Value::success(window.title);
    if (attribute == LMAttribute::Role)
        return Value::success(QStringLiteral("AXWindow"));
    if (attribute == LMAttribute::Subrole)
        return Value::success(subrole(window));
    if (attribute == LMAttribute::Position)
        return Value::success(frame.topLeft());
    if (attribute == LMAttribute::Size)
        return Value::success(frame.size());
    if (attribute == LMAttribute::Children)
        return Value::success(children(window));
    if (attribute == LMAttribute::Modal)
        return Value::success(window.states.isModal);
    if (attribute == LMAttribute::GrowArea && window.structure.isResizable)
        return Value::success(true);
    return unsupported();
}

Value LMX11ChildAttribute(const LMX11Window& window, int index, QLatin1String attribute) {
    const QStringList roles = LMX11ChildRoles(window.structure);
    if (index < 0 || index >= roles.size())
        return Value::failure(LMPlatformError::InvalidElement);
    return attribute == LMAttribute::Role ? Value::success(roles[index]) : unsupported();
}
