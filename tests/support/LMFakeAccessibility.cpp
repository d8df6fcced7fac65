// SPDX-License-Identifier: MIT
#include "support/LMFakeAccessibility.h"

#include <cmath>

namespace {

using Value = LMPlatformResult<LMAttributeValue>;
using Elements = LMPlatformResult<QList<LMElement>>;
using enum LMPlatformError;

/// A failure of any call.
struct Failed {
    LMPlatformError error;

    template <class T>
    operator LMResult<T, LMPlatformError>() const {
        return LMResult<T, LMPlatformError>::failure(error);
    }
};

Value presence(bool isPresent) {
    return isPresent ? Value::success(true) : Failed{AttributeUnsupported};
}

Value text(const QString& text) {
    return text.isNull() ? Failed{AttributeUnsupported} : Value::success(text);
}

Value windowValue(const LMElement& element, const LMFakeWindow& window, QLatin1String attribute) {
    if (element.kind == LMElement::Kind::Child)
        return attribute == LMAttribute::Role ? text(window.childRoles.value(element.index))
                                              : presence(false);
    QList<LMElement> children;
    for (int index = 0; index < window.childRoles.size(); ++index)
        children.append({LMElement::Kind::Child, element.identifier, index});
    const std::map<QString, Value> values{
        {LMAttribute::Title, text(window.title)},
        {LMAttribute::Role, text(u"AXWindow"_qs)},
        {LMAttribute::Subrole, text(window.subrole)},
        {LMAttribute::Position, Value::success(window.frame.topLeft())},
        {LMAttribute::Size, Value::success(window.frame.size())},
        {LMAttribute::Children, Value::success(children)},
        {LMAttribute::Modal, Value::success(window.isModal)},
        {LMAttribute::ToolbarButton, presence(window.hasToolbarButton)},
        {LMAttribute::GrowArea, presence(window.hasGrowArea)},
        {LMAttribute::Document, presence(window.hasDocument)},
    };
    const auto value = values.find(attribute);
    return value != values.end() ? value->second : presence(false);
}

bool canSet(const LMFakeWindow& window, QLatin1String attribute) {
    if (window.state.isFullscreen)
        return false;
    return attribute == LMAttribute::Position
               ? !window.hasImmutablePosition
               : attribute == LMAttribute::Size && !window.hasImmutableSize;
}

QString request(const char* what, const LMFakeWindow& window, double first, double second) {
    return u"%1 \"%2\" %3,%4"_qs.arg(QLatin1String(what), window.title, QString::number(first),
                                     QString::number(second));
}

} // namespace

std::optional<Value> LMFakeAccessibility::injected(const LMElement& element, LMFakeCall call,
                                                   QLatin1String attribute) {
    const auto found = m_injected.find({element, call, attribute});
    return found != m_injected.end() ? std::optional(found->second) : std::nullopt;
}

LMPlatformResult<LMElement> LMFakeAccessibility::createApplication(qint64 processIdentifier) {
    if (const auto answer = injected({}, LMFakeCall::CreateApplication, QLatin1String()))
        return Failed{answer->error()};
    const LMElement element{LMElement::Kind::Application, processIdentifier, 0};
    return LMPlatformResult<LMElement>::success(element);
}

LMPlatformResult<LMFakeWindow> LMFakeAccessibility::readWindow(const LMElement& element) {
    const auto remembered = m_remembered.find(element.identifier);
    if (remembered != m_remembered.end())
        return remembered->second;
    ++m_world.roundTrips;
    const auto window = m_world.windows.find(quint32(element.identifier));
    if (window != m_world.windows.end() && window->neverAnswers)
        return Failed{CannotComplete};
    if (window != m_world.windows.end() && window->readsBeforeVanishing-- != 0)
        return LMPlatformResult<LMFakeWindow>::success(*window);
    m_world.removeWindow(quint32(element.identifier));
    return Failed{InvalidElement};
}

Value LMFakeAccessibility::applicationValue(const LMElement& element, QLatin1String attribute) {
    ++m_world.roundTrips;
    const LMFakeApplication* application = m_world.application(element.identifier);
    if (!application)
        return Failed{InvalidElement};
    QList<LMElement> windows;
    for (const quint32 number : m_world.windowsOf(*application))
        windows.append({LMElement::Kind::Window, number, 0});
    if (attribute == LMAttribute::Windows)
        return Value::success(windows);
    if (attribute != LMAttribute::FocusedWindow || windows.isEmpty())
        return Failed{AttributeUnsupported};
    const LMElement focused{LMElement::Kind::Window, m_world.focusedWindow.value_or(0), 0};
    return Value::success(windows.contains(focused) ? focused : windows.first());
}

Value LMFakeAccessibility::copyAttributeValue(const LMElement& element, QLatin1String attribute) {
    if (const auto answer = injected(element, LMFakeCall::Copy, attribute))
        return *answer;
    if (element.kind == LMElement::Kind::Application)
        return applicationValue(element, attribute);
    const auto window = readWindow(element);
    return window ? windowValue(element, *window, attribute) : Failed{window.error()};
}

Elements LMFakeAccessibility::elements(const LMElement& element, LMFakeCall call,
                                       QLatin1String attribute) {
    const auto answer = injected(element, call, attribute);
    const Value value = answer ? *answer : copyAttributeValue(element, attribute);
    if (!value)
        return Failed{value.error()};
    const auto* list = std::get_if<QList<LMElement>>(&*value);
    return list ? Elements::success(*list) : Failed{AttributeUnsupported};
}

LMPlatformResult<int> LMFakeAccessibility::attributeValueCount(const LMElement& element,
                                                               QLatin1String attribute) {
    const auto list = elements(element, LMFakeCall::Count, attribute);
    return list ? LMPlatformResult<int>::success(int(list->size())) : Failed{list.error()};
}

Elements LMFakeAccessibility::copyAttributeValues(const LMElement& element, QLatin1String attribute,
                                                  int index, int maxValues) {
    const auto list = elements(element, LMFakeCall::CopyRange, attribute);
    return list ? Elements::success(list->mid(index, maxValues)) : list;
}

LMPlatformResult<bool> LMFakeAccessibility::isAttributeSettable(const LMElement& element,
                                                                QLatin1String attribute) {
    if (const auto answer = injected(element, LMFakeCall::IsSettable, attribute))
        return Failed{answer->error()};
    const auto window = readWindow(element);
    return window ? LMPlatformResult<bool>::success(canSet(*window, attribute))
                  : Failed{window.error()};
}

LMPlatformStatus LMFakeAccessibility::setAttributeValue(const LMElement& element,
                                                        QLatin1String attribute,
                                                        const LMAttributeValue& value) {
    forget(element);
    const auto window = m_world.windows.find(quint32(element.identifier));
    if (element.kind != LMElement::Kind::Window || window == m_world.windows.end())
        return Failed{InvalidElement};
    if (const auto answer = injected(element, LMFakeCall::Set, attribute))
        return Failed{answer->error()};
    if (window->neverAnswers)
        return Failed{CannotComplete};
    const auto* point = attribute == LMAttribute::Position ? std::get_if<QPointF>(&value) : nullptr;
    const auto* size = attribute == LMAttribute::Size ? std::get_if<QSizeF>(&value) : nullptr;
    if (!point && !size)
        return Failed{NotSettable};
    m_world.log.append(point ? request("position", *window, point->x(), point->y())
                             : request("size", *window, size->width(), size->height()));
    if (!canSet(*window, attribute))
        return Failed{NotSettable};
    LMWindowState state = window->state;
    state.isMaximizedHorizontally = state.isMaximizedVertically = false;
    if (state != window->state)
        m_world.changeState(*window, state);
    if (point)
        window->frame.moveTopLeft(*point);
    else if (window->ignoredSizeChanges > 0)
        --window->ignoredSizeChanges;
    else
        window->frame.setSize(
            QSizeF(std::floor(size->width()), std::floor(size->height())).expandedTo({1, 1}));
    return LMPlatformStatus::success();
}

void LMFakeAccessibility::beginReading(const QList<LMElement>& windows) {
    ++m_readingDepth;
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
