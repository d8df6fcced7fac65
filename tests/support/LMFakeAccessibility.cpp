// SPDX-License-Identifier: MIT
#include "support/LMFakeAccessibility.h"

#include <algorithm>
#include <cmath>

namespace {

using Value = LMPlatformResult<LMAttributeValue>;

template <class T>
LMPlatformResult<T> failure(LMPlatformError error) {
    return LMPlatformResult<T>::failure(error);
}

Value presence(bool isPresent) {
    return isPresent ? Value::success(true) : Value::failure(LMPlatformError::AttributeUnsupported);
}

Value text(const QString& text) {
    return text.isNull() ? Value::failure(LMPlatformError::AttributeUnsupported)
                         : Value::success(text);
}

QList<LMElement> childrenOf(const LMElement& element, const LMFakeWindow& window) {
    QList<LMElement> children;
    for (int index = 0; index < window.childRoles.size(); ++index)
        children.append({LMElement::Kind::Child, element.identifier, index});
    return children;
}

Value windowValue(const LMElement& element, const LMFakeWindow& window, QLatin1String attribute) {
    if (element.kind == LMElement::Kind::Child)
        return attribute == LMAttribute::Role ? text(window.childRoles.value(element.index))
                                              : presence(false);
    if (attribute == LMAttribute::Title)
        return text(window.title);
    if (attribute == LMAttribute::Role)
        return Value::success(QStringLiteral("AXWindow"));
    if (attribute == LMAttribute::Subrole)
        return text(window.subrole);
    if (attribute == LMAttribute::Position)
        return Value::success(window.frame.topLeft());
    if (attribute == LMAttribute::Size)
        return Value::success(window.frame.size());
    if (attribute == LMAttribute::Children)
        return Value::success(childrenOf(element, window));
    if (attribute == LMAttribute::Modal)
        return Value::success(window.isModal);
    if (attribute == LMAttribute::ToolbarButton)
        return presence(window.hasToolbarButton);
    if (attribute == LMAttribute::GrowArea)
        return presence(window.hasGrowArea);
    return presence(attribute == LMAttribute::Document && window.hasDocument);
}

double rounded(double value, double base, double increment, double minimum) {
    return std::max(minimum, base + std::floor((value - base) / increment) * increment);
}

QString pairText(double first, double second) {
    return QStringLiteral("%1,%2").arg(first).arg(second);
}

} // namespace

void LMFakeAccessibility::fail(const LMElement& element, LMFakeCall call, QLatin1String attribute,
                               LMPlatformError error, int after) {
    m_failures.insert_or_assign({element, call, QString(attribute)}, Failure{error, after});
}

void LMFakeAccessibility::failCreateApplication(LMPlatformError error) {
    fail({}, LMFakeCall::CreateApplication, QLatin1String(), error);
}

void LMFakeAccessibility::answer(const LMElement& element, QLatin1String attribute,
                                 const LMAttributeValue& value) {
    m_answers.insert_or_assign({element, LMFakeCall::Copy, QString(attribute)}, value);
}

void LMFakeAccessibility::mend() {
    m_failures.clear();
    m_answers.clear();
}

std::optional<LMPlatformError>
LMFakeAccessibility::failureOf(const LMElement& element, LMFakeCall call, QLatin1String attribute) {
    if (!m_world.isConnected)
        return LMPlatformError::CannotComplete;
    const auto found = m_failures.find({element, call, QString(attribute)});
    if (found == m_failures.end() || found->second.after-- > 0)
        return std::nullopt;
    return found->second.error;
}

LMPlatformResult<LMElement> LMFakeAccessibility::createApplication(qint64 processIdentifier) {
    if (const auto error = failureOf({}, LMFakeCall::CreateApplication, QLatin1String()))
        return failure<LMElement>(*error);
    return LMPlatformResult<LMElement>::success(
        {LMElement::Kind::Application, processIdentifier, 0});
}

LMPlatformResult<LMFakeWindow> LMFakeAccessibility::readWindow(const LMElement& element) {
    const auto remembered = m_remembered.find(element.identifier);
    if (remembered != m_remembered.end())
        return remembered->second;
    ++m_world.roundTrips;
    const auto window = m_world.windows.find(quint32(element.identifier));
    if (window == m_world.windows.end())
        return failure<LMFakeWindow>(LMPlatformError::InvalidElement);
    if (window->neverAnswers)
        return failure<LMFakeWindow>(LMPlatformError::CannotComplete);
    if (window->readsBeforeVanishing == 0) {
        m_world.removeWindow(quint32(element.identifier));
        return failure<LMFakeWindow>(LMPlatformError::InvalidElement);
    }
    if (window->readsBeforeVanishing > 0)
        --window->readsBeforeVanishing;
    return LMPlatformResult<LMFakeWindow>::success(*window);
}

Value LMFakeAccessibility::applicationValue(const LMElement& element, QLatin1String attribute) {
    ++m_world.roundTrips;
    const LMFakeApplication* application = m_world.application(element.identifier);
    if (!application)
        return Value::failure(LMPlatformError::InvalidElement);
    const QList<quint32> numbers = m_world.windowsOf(*application);
    QList<LMElement> windows;
    for (const quint32 number : numbers)
        windows.append({LMElement::Kind::Window, number, 0});
    if (attribute == LMAttribute::Windows)
        return Value::success(windows);
    if (attribute == LMAttribute::FocusedWindow && !windows.isEmpty()) {
        const LMElement focused{LMElement::Kind::Window, m_world.focusedWindow.value_or(0), 0};
        return Value::success(windows.contains(focused) ? focused : windows.first());
    }
    return Value::failure(LMPlatformError::AttributeUnsupported);
}

Value LMFakeAccessibility::copyAttributeValue(const LMElement& element, QLatin1String attribute) {
    if (const auto error = failureOf(element, LMFakeCall::Copy, attribute))
        return Value::failure(*error);
    const auto answer = m_answers.find({element, LMFakeCall::Copy, QString(attribute)});
    if (answer != m_answers.end())
        return Value::success(answer->second);
    if (element.kind == LMElement::Kind::Application)
        return applicationValue(element, attribute);
    if (element.isNull())
        return Value::failure(LMPlatformError::InvalidElement);
    const auto window = readWindow(element);
    return window ? windowValue(element, *window, attribute) : Value::failure(window.error());
}

LMPlatformResult<QList<LMElement>> LMFakeAccessibility::elements(const LMElement& element,
                                                                 QLatin1String attribute) {
    const Value value = copyAttributeValue(element, attribute);
    if (!value)
        return failure<QList<LMElement>>(value.error());
    const auto* list = std::get_if<QList<LMElement>>(&*value);
    return list ? LMPlatformResult<QList<LMElement>>::success(*list)
                : failure<QList<LMElement>>(LMPlatformError::AttributeUnsupported);
}

LMPlatformResult<int> LMFakeAccessibility::attributeValueCount(const LMElement& element,
                                                               QLatin1String attribute) {
    if (const auto error = failureOf(element, LMFakeCall::Count, attribute))
        return failure<int>(*error);
    const auto list = elements(element, attribute);
    return list ? LMPlatformResult<int>::success(int(list->size())) : failure<int>(list.error());
}

LMPlatformResult<QList<LMElement>>
LMFakeAccessibility::copyAttributeValues(const LMElement& element, QLatin1String attribute,
                                         int index, int maxValues) {
    if (const auto error = failureOf(element, LMFakeCall::CopyRange, attribute))
        return failure<QList<LMElement>>(*error);
    const auto list = elements(element, attribute);
    return list ? LMPlatformResult<QList<LMElement>>::success(
                      list->mid(std::max(index, 0), std::max(maxValues, 0)))
                : list;
}

LMPlatformResult<bool> LMFakeAccessibility::isAttributeSettable(const LMElement& element,
                                                                QLatin1String attribute) {
    if (const auto error = failureOf(element, LMFakeCall::IsSettable, attribute))
        return failure<bool>(*error);
    if (element.kind != LMElement::Kind::Window)
        return LMPlatformResult<bool>::success(false);
    const auto window = readWindow(element);
    if (!window)
        return failure<bool>(window.error());
    return LMPlatformResult<bool>::success(
        (attribute == LMAttribute::Position && !window->hasImmutablePosition) ||
        (attribute == LMAttribute::Size && !window->hasImmutableSize));
}

LMPlatformStatus LMFakeAccessibility::setPosition(LMFakeWindow& window,
                                                  const LMAttributeValue& value) {
    const auto* point = std::get_if<QPointF>(&value);
    if (!point)
        return LMPlatformStatus::failure(LMPlatformError::Failure);
    m_world.log.add(
        QStringLiteral("position \"%1\" %2").arg(window.title, pairText(point->x(), point->y())));
    if (window.hasImmutablePosition)
        return LMPlatformStatus::failure(LMPlatformError::NotSettable);
    window.frame.moveTopLeft(*point);
    return LMPlatformStatus::success();
}

LMPlatformStatus LMFakeAccessibility::setSize(LMFakeWindow& window, const LMAttributeValue& value) {
    const auto* size = std::get_if<QSizeF>(&value);
    if (!size)
        return LMPlatformStatus::failure(LMPlatformError::Failure);
    m_world.log.add(QStringLiteral("size \"%1\" %2")
                        .arg(window.title, pairText(size->width(), size->height())));
    if (window.hasImmutableSize)
        return LMPlatformStatus::failure(LMPlatformError::NotSettable);
    if (window.ignoredSizeChanges > 0) {
        --window.ignoredSizeChanges;
        return LMPlatformStatus::success();
    }
    window.frame.setSize({rounded(size->width(), window.baseSize.width(),
                                  window.sizeIncrement.width(), window.minimumSize.width()),
                          rounded(size->height(), window.baseSize.height(),
                                  window.sizeIncrement.height(), window.minimumSize.height())});
    return LMPlatformStatus::success();
}

LMPlatformStatus LMFakeAccessibility::setAttributeValue(const LMElement& element,
                                                        QLatin1String attribute,
                                                        const LMAttributeValue& value) {
    m_remembered.erase(element.identifier);
    const auto injected = failureOf(element, LMFakeCall::Set, attribute);
    const auto window = m_world.windows.find(quint32(element.identifier));
    if (element.kind != LMElement::Kind::Window || window == m_world.windows.end())
        return LMPlatformStatus::failure(LMPlatformError::InvalidElement);
    if (injected)
        return LMPlatformStatus::failure(*injected);
    if (window->neverAnswers)
        return LMPlatformStatus::failure(LMPlatformError::CannotComplete);
    if (attribute == LMAttribute::Position)
        return setPosition(*window, value);
    if (attribute == LMAttribute::Size)
        return setSize(*window, value);
    return LMPlatformStatus::failure(LMPlatformError::NotSettable);
}

void LMFakeAccessibility::beginReading(const QList<LMElement>& windows) {
    ++m_readingDepth;
    if (!m_world.isConnected)
        return;
    const int before = m_world.roundTrips;
    for (const LMElement& element : windows) {
        if (element.kind == LMElement::Kind::Window && !m_remembered.contains(element.identifier))
            m_remembered.emplace(element.identifier, readWindow(element));
    }
    m_world.roundTrips = before + 1;
}

void LMFakeAccessibility::endReading() {
    if (--m_readingDepth == 0)
        m_remembered.clear();
}
