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

bool fits(const LMAttributeValue& value, QLatin1String attribute) {
    return (attribute == LMAttribute::Position && std::holds_alternative<QPointF>(value)) ||
           (attribute == LMAttribute::Size && std::holds_alternative<QSizeF>(value));
}

LMX11Accessibility::Known knownOf(const LMX11Reading& reading, const LMX11Window& window) {
    return {window, reading.globalFrame(window), reading.coordinates, reading.desktopNames};
}

} // namespace

LMX11Accessibility::LMX11Accessibility(LMX11Connection& connection, LMX11ApplicationIndex& index,
                                       LMX11WindowManager& windowManager,
                                       LMX11NormalFrames& normalFrames)
    : m_connection(connection), m_index(index), m_normalFrames(normalFrames), m_reader(connection),
      m_setter(connection, windowManager, normalFrames) {}

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
        m_normalFrames.note(reading);
        known = knownOf(reading, reading.windows.first());
    }
    return known.window.exists ? LMPlatformResult<Known>::success(known)
                               : LMPlatformResult<Known>::failure(absence());
}

void LMX11Accessibility::forget(const LMElement& window) {
    m_known.remove(window.identifier);
    m_done.remove(window.identifier);
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
    // Once: who sets the same again has a reason to doubt.
    if (fits(value, attribute) && m_done.take(element.identifier) == value)
        return LMPlatformStatus::success();
    forget(element);
    const QList<xcb_window_t> window{windowOf(element)};
    const LMX11Reading reading =
        attribute == LMAttribute::Position ? m_reader.readFrames(window) : m_reader.read(window);
    if (!reading.windows.first().exists)
        return LMPlatformStatus::failure(absence());
    if (!isSettable(reading.windows.first(), attribute))
        return LMPlatformStatus::failure(LMPlatformError::NotSettable);
    if (!fits(value, attribute))
        return LMPlatformStatus::failure(LMPlatformError::Failure);
    return attribute == LMAttribute::Position
               ? m_setter.setPosition(reading, std::get<QPointF>(value))
               : m_setter.setSize(reading, std::get<QSizeF>(value));
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
    m_normalFrames.note(reading);
    for (const LMX11Window& window : reading.windows)
        m_known.insert(window.identifier, knownOf(reading, window));
}

void LMX11Accessibility::endReading() {
    if (--m_readingDepth > 0)
        return;
    m_known.clear();
    m_done.clear();
}

void LMX11Accessibility::beginSetting(QLatin1String attribute,
                                      const QList<LMElementValue>& changes) {
    ++m_readingDepth;
    QList<xcb_window_t> windows;
    QList<LMAttributeValue> values;
    for (const LMElementValue& change : changes) {
        if (change.element.kind != LMElement::Kind::Window || !fits(change.value, attribute))
            continue;
        windows.append(windowOf(change.element));
        values.append(change.value);
    }
    if (windows.isEmpty())
        return;
    LMX11Reading reading = m_reader.read(windows);
    const QList<bool> done = m_setter.setTogether(reading, values);
    for (qsizetype index = 0; index < values.size(); ++index) {
        const LMX11Window& window = reading.windows[index];
        m_known.insert(window.identifier, knownOf(reading, window));
        if (done[index] && isSettable(window, attribute))
            m_done.insert(window.identifier, values[index]);
    }
}
