// SPDX-License-Identifier: MIT
#include "Categories/LMElementFunctions.h"

#include "Categories/LMAccessibilityException.h"
#include "Categories/LMWorkspaceAdditions.h"
#include "Platform/LMAccessibility.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMLogger.h"
#include "Utilities/LMRectangle.h"

#include <algorithm>

namespace {

LMAttributeValue copyValue(LMAccessibility& accessibility, const LMElement& element,
                           QLatin1String attribute, const QString& reason) {
    const auto value = accessibility.copyAttributeValue(element, attribute);
    if (!value)
        throw LMAccessibilityException(reason);
    return *value;
}

/// A value of another type than the attribute's counts as none.
template <class T>
T copyValueOrNone(LMAccessibility& accessibility, const LMElement& element, QLatin1String attribute,
                  const QString& reason) {
    const LMAttributeValue value = copyValue(accessibility, element, attribute, reason);
    const T* typed = std::get_if<T>(&value);
    return typed ? *typed : T();
}

template <class T>
T copyConverted(LMAccessibility& accessibility, const LMElement& element, QLatin1String attribute,
                const QString& copyReason, const QString& conversionReason) {
    const LMAttributeValue value = copyValue(accessibility, element, attribute, copyReason);
    const T* typed = std::get_if<T>(&value);
    if (!typed)
        throw LMAccessibilityException(conversionReason);
    return *typed;
}

bool isPresent(LMAccessibility& accessibility, const LMElement& element, QLatin1String attribute) {
    return accessibility.copyAttributeValue(element, attribute).isSuccess();
}

void setValue(LMAccessibility& accessibility, const LMElement& element, QLatin1String attribute,
              const LMAttributeValue& value, const QString& reason) {
    if (!accessibility.setAttributeValue(element, attribute, value))
        throw LMAccessibilityException(reason);
}

void requireSettable(LMAccessibility& accessibility, const LMElement& element,
                     QLatin1String attribute, const QString& checkFailed,
                     const QString& immutable) {
    if (element.isNull())
        throw LMAccessibilityException(QStringLiteral("Element is NULL, cannot set frame."));
    const auto isSettable = accessibility.isAttributeSettable(element, attribute);
    if (!isSettable)
        throw LMAccessibilityException(checkFailed);
    if (!*isSettable)
        throw LMAccessibilityException(immutable);
}

} // namespace

LMElement LMElementCreateApplication(LMAccessibility& accessibility, qint64 processIdentifier) {
    const auto element = accessibility.createApplication(processIdentifier);
    if (!element)
        throw LMAccessibilityException(QStringLiteral("Creation of application UIElement failed."));
    return *element;
}

LMElement LMElementCreateActiveApplication(LMEnvironment& environment) {
    const auto active = LMWorkspaceAdditions(environment).runningApplication();
    return LMElementCreateApplication(environment.desktop.accessibility(),
                                      active ? active->processIdentifier : 0);
}

QList<LMElement> LMElementCopyWindows(LMAccessibility& accessibility, qint64 processIdentifier) {
    const LMElement application = LMElementCreateApplication(accessibility, processIdentifier);
    return copyValueOrNone<QList<LMElement>>(
        accessibility, application, LMAttribute::Windows,
        QStringLiteral("Copy of windows attribute value failed."));
}

LMElement LMElementCopyFocusedWindow(LMEnvironment& environment) {
    return LMElementCopyFocusedWindow(environment.desktop.accessibility(),
                                      LMElementCreateActiveApplication(environment));
}

LMElement LMElementCopyFocusedWindow(LMAccessibility& accessibility, const LMElement& application) {
    return copyValueOrNone<LMElement>(
        accessibility, application, LMAttribute::FocusedWindow,
        QStringLiteral("Copy of focused window attribute value failed."));
}

QString LMElementCopyTitle(LMAccessibility& accessibility, const LMElement& element) {
    return copyValueOrNone<QString>(accessibility, element, LMAttribute::Title,
                                    QStringLiteral("Copy of title attribute value failed."));
}

QString LMElementCopySubrole(LMAccessibility& accessibility, const LMElement& element) {
    return copyValueOrNone<QString>(accessibility, element, LMAttribute::Subrole,
                                    QStringLiteral("Copy of subrole attribute value failed."));
}

QPointF LMElementGetPosition(LMAccessibility& accessibility, const LMElement& element) {
    return copyConverted<QPointF>(accessibility, element, LMAttribute::Position,
                                  QStringLiteral("Copy of position attribute value failed."),
                                  QStringLiteral("Conversion of position attribute value failed."));
}

QSizeF LMElementGetSize(LMAccessibility& accessibility, const LMElement& element) {
    return copyConverted<QSizeF>(accessibility, element, LMAttribute::Size,
                                 QStringLiteral("Copy of size attribute value failed."),
                                 QStringLiteral("Conversion of size attribute value failed."));
}

QString LMElementCopyFrameString(LMAccessibility& accessibility, const LMElement& element) {
    const QSizeF size = LMElementGetSize(accessibility, element);
    const QPointF position = LMElementGetPosition(accessibility, element);
    return LMStringFromRect(QRectF(position, size));
}

QStringList LMElementCopyChildRoles(LMAccessibility& accessibility, const LMElement& element) {
    const auto count = accessibility.attributeValueCount(element, LMAttribute::Children);
    if (!count)
        throw LMAccessibilityException(
            QStringLiteral("Getting count of children attribute failed."));
    const auto children =
        accessibility.copyAttributeValues(element, LMAttribute::Children, 0, *count);
    if (!children)
        throw LMAccessibilityException(QStringLiteral("Copy of children attribute value failed."));
    QStringList roles;
    for (const LMElement& child : *children) {
        const auto role = accessibility.copyAttributeValue(child, LMAttribute::Role);
        if (const auto* text = role ? std::get_if<QString>(&*role) : nullptr)
            roles.append(*text);
    }
    return roles;
}

bool LMElementHasToolbarButton(LMAccessibility& accessibility, const LMElement& element) {
    return isPresent(accessibility, element, LMAttribute::ToolbarButton);
}

bool LMElementHasGrowArea(LMAccessibility& accessibility, const LMElement& element) {
    return isPresent(accessibility, element, LMAttribute::GrowArea);
}

bool LMElementHasDocument(LMAccessibility& accessibility, const LMElement& element) {
    return isPresent(accessibility, element, LMAttribute::Document);
}

bool LMElementIsModal(LMAccessibility& accessibility, const LMElement& element) {
    return copyValueOrNone<bool>(accessibility, element, LMAttribute::Modal,
                                 QStringLiteral("Copy of modal attribute value failed."));
}

void LMElementSetPosition(LMEnvironment& environment, const LMElement& element,
                          const QPointF& position) {
    LMAccessibility& accessibility = environment.desktop.accessibility();
    requireSettable(accessibility, element, LMAttribute::Position,
                    QStringLiteral("Checking position attribute mutability failed."),
                    QStringLiteral("Position attribute is immutable."));
    setValue(accessibility, element, LMAttribute::Position, position,
             QStringLiteral("Setting position attribute value failed."));
}

void LMElementSetSize(LMEnvironment& environment, const LMElement& element, const QSizeF& size) {
    LMAccessibility& accessibility = environment.desktop.accessibility();
    const QString setFailed = QStringLiteral("Setting size attribute value failed.");
    requireSettable(accessibility, element, LMAttribute::Size,
                    QStringLiteral("Checking size attribute mutability failed."),
                    QStringLiteral("Size attribute is immutable."));
    setValue(accessibility, element, LMAttribute::Size, size, setFailed);
    if (LMSizesEqual(LMElementGetSize(accessibility, element), size))
        return;
    environment.logger.debug(QStringLiteral("Did not resize, attempting workaround."));
    const QSizeF smaller(std::max(size.width() - 24.0, 1.0), std::max(size.height() - 24.0, 1.0));
    setValue(accessibility, element, LMAttribute::Size, smaller, setFailed);
    setValue(accessibility, element, LMAttribute::Size, size, setFailed);
}

void LMElementSetFrame(LMEnvironment& environment, const LMElement& element, const QRectF& frame) {
    LMElementSetPosition(environment, element, frame.topLeft());
    LMElementSetSize(environment, element, frame.size());
}
