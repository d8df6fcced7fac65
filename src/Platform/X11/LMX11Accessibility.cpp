// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11Accessibility.h"

#include "Platform/X11/LMX11ApplicationIndex.h"
#include "Platform/X11/LMX11WindowAttributes.h"

#include <algorithm>

namespace {

using Value = LMPlatformResult<LMAttributeValue>;

LMElement windowElement(xcb_window_t window) {
    return {LMElement::Kind::Window, window, 0};
}

xcb_window_t windowOf(const LMElement& element) {
    return static_cast<xcb_window_t>(element.identifier);
}

bool isSettable(const LMX11Window& window, QLatin1String attribute) {
    if (window.states.isFullscreen)
        return false;
    return attribute == LMAttribute::Position ||
           (attribute == LMAttribute::Size && window.structure.isResizable);
}

} // namespace

LMX11Accessibility::LMX11Accessibility(LMX11Connection& connection, LMX11ApplicationIndex& index,
                                       LMX11WindowManager& windowManager)
    : m_connection(connection), m_index(index), m_reader(connection),
      m_setter(connection, windowManager) {}

LMPlatformResult<LMElement> LMX11Accessibility::createApplication(qint64 processIdentifier) {
    return LMPlatformResult<LMElement>::success(
        {LMElement::Kind::Application, processIdentifier, 0});
}

/// Why something is not there.
LMPlatformError LMX11Accessibility::absence() {
    return m_connection.isConnected() ? LMPlatformError::InvalidElement
                                      : LMPlatformError::CannotComplete;
}

Value LMX11Accessibility::copyAttributeValue(const LMElement& element, QLatin1String attribute) {
    switch (element.kind) {
    case LMElement::Kind::Application:
        return applicationValue(element, attribute);
    case LMElement::Kind::Window:
    case LMElement::Kind::Child: {
        const auto known = readWindow(element);
        if (!known)
            return Value::failure(known.error());
        return element.kind == LMElement::Kind::Window
                   ? LMX11WindowAttribute(known->window, known->frame, attribute)
                   : LMX11ChildAttribute(known->window, element.index, attribute);
    }
    case LMElement::Kind::None:
        break;
    }
    return Value::failure(LMPlatformError::InvalidElement);
}

Value LMX11Accessibility::applicationValue(const LMElement& element, QLatin1String attribute) {
    m_index.refresh();
    const LMX11Application* application = m_index.application(element.identifier);
    if (application == nullptr || !m_connection.isConnected())
        return Value::failure(absence());
    const QList<xcb_window_t>& windows = application->windows;
    if (attribute == LMAttribute::Windows) {
        QList<LMElement> list;
        std::ranges::transform(windows, std::back_inserter(list), windowElement);
        return Value::success(list);
    }
    if (attribute != LMAttribute::FocusedWindow || windows.isEmpty())
        return Value::failure(LMPlatformError::AttributeUnsupported);
    if (windows.contains(m_index.activeWindow()))
        return Value::success(windowElement(m_index.activeWindow()));
    const auto lastActive = [this](xcb_window_t window) {
        const auto presence = m_index.presence(window);
        return presence ? presence->lastActive : 0;
    };
    return Value::success(windowElement(*std::ranges::max_element(windows, {}, lastActive)));
}

LMPlatformResult<LMX11Accessibility::Known>
LMX11Accessibility::readWindow(const LMElement& element) {
    Known known;
    const auto remembered = m_known.constFind(element.identifier);
    if (remembered != m_known.constEnd()) {
        known = *remembered;
    } else {
        const LMX11Reading reading = m_reader.read({windowOf(element)});
        known = {reading.windows.first(), reading.globalFrame(reading.windows.first())};
    }
    return known.window.exists ? LMPlatformResult<Known>::success(known)
                               : LMPlatformResult<Known>::failure(absence());
}

LMPlatformResult<QList<LMElement>> LMX11Accessibility::elements(const LMElement& element,
                                                                QLatin1String attribute) {
    using List = LMPlatformResult<QList<LMElement>>;
    const Value value = copyAttributeValue(element, attribute);
    if (!value)
        return List::failure(value.error());
    const auto* list = std::get_if<QList<LMElement>>(&*value);
    return list != nullptr ? List::success(*list)
                           : List::failure(LMPlatformError::AttributeUnsupported);
}

LMPlatformResult<int> LMX11Accessibility::attributeValueCount(const LMElement& element,
                                                              QLatin1String attribute) {
    const auto list = elements(element, attribute);
    return list ? LMPlatformResult<int>::success(int(list->size()))
                : LMPlatformResult<int>::failure(list.error());
}

LMPlatformResult<QList<LMElement>> LMX11Accessibility::copyAttributeValues(const LMElement& element,
                                                                           QLatin1String attribute,
                                                                           int index,
                                                                           int maxValues) {
    const auto list = elements(element, attribute);
    return list ? LMPlatformResult<QList<LMElement>>::success(
                      list->mid(std::max(index, 0), std::max(maxValues, 0)))
                : list;
}

LMPlatformResult<bool> LMX11Accessibility::isAttributeSettable(const LMElement& element,
                                                               QLatin1String attribute) {
    using Answer = LMPlatformResult<bool>;
    if (element.kind != LMElement::Kind::Window)
        return Answer::success(false);
    const auto known = readWindow(element);
    return known ? Answer::success(isSettable(known->window, attribute))
                 : Answer::failure(known.error());
}

LMPlatformStatus LMX11Accessibility::setAttributeValue(const LMElement& element,
                                                       QLatin1String attribute,
                                                       const LMAttributeValue& value) {
    if (element.kind != LMElement::Kind::Window)
        return LMPlatformStatus::failure(element.isNull() ? LMPlatformError::InvalidElement
                                                          : LMPlatformError::NotSettable);
    m_known.remove(element.identifier);
    const QList<xcb_window_t> window{windowOf(element)};
    const LMX11Reading reading =
        attribute == LMAttribute::Position ? m_reader.readFrames(window) : m_reader.read(window);
    if (!reading.windows.first().exists)
        return LMPlatformStatus::failure(absence());
    if (!isSettable(reading.windows.first(), attribute))
        return LMPlatformStatus::failure(LMPlatformError::NotSettable);
    if (const auto* position = std::get_if<QPointF>(&value);
        position != nullptr && attribute == LMAttribute::Position)
        return m_setter.setPosition(reading, *position);
    if (const auto* size = std::get_if<QSizeF>(&value);
        size != nullptr && attribute == LMAttribute::Size)
        return m_setter.setSize(reading, *size);
    return LMPlatformStatus::failure(LMPlatformError::Failure);
}

void LMX11Accessibility::beginReading(const QList<LMElement>& windows) {
    ++m_readingDepth;
    QList<xcb_window_t> unknown;
    for (const LMElement& element : windows) {
        if (element.kind == LMElement::Kind::Window && !m_known.contains(element.identifier))
            unknown.append(windowOf(element));
    }
    if (unknown.isEmpty())
        return;
    const LMX11Reading reading = m_reader.read(unknown);
    for (const LMX11Window& window : reading.windows)
        m_known.insert(window.identifier, {window, reading.globalFrame(window)});
}

void LMX11Accessibility::endReading() {
    if (--m_readingDepth == 0)
        m_known.clear();
}
