// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11Connection.h"

#include "Utilities/LMFormat.h"
#include "Utilities/LMLogger.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QSocketNotifier>

#include <xcb/composite.h>
#include <xcb/randr.h>
#include <xcb/res.h>

#include <algorithm>
#include <poll.h>

using namespace std::chrono_literals;

std::unique_ptr<LMX11Connection> LMX11Connection::open(const QString& displayName,
                                                       const LMLogger& logger, QString* reason) {
    const QByteArray name = displayName.toLocal8Bit();
    int screenNumber = 0;
    xcb_connection_t* connection =
        xcb_connect(name.isEmpty() ? nullptr : name.constData(), &screenNumber);
    std::unique_ptr<LMX11Connection> result(new LMX11Connection(connection, screenNumber, logger));
    if (!result->setUp(reason))
        return nullptr;
    return result;
}

LMX11Connection::LMX11Connection(xcb_connection_t* connection, int screenNumber,
                                 const LMLogger& logger)
    : m_logger(logger), m_connection(connection), m_screenNumber(screenNumber) {}

LMX11Connection::~LMX11Connection() {
    xcb_ewmh_connection_wipe(&m_ewmh);
}

bool LMX11Connection::setUp(QString* reason) {
    if (xcb_connection_has_error(xcb()) != 0) {
        *reason = LMLocalized("The X server does not answer.");
        return false;
    }
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(xcb()));
    for (int index = 0; index < m_screenNumber && screens.rem > 1; ++index)
        xcb_screen_next(&screens);
    m_screen = screens.data;

    xcb_prefetch_extension_data(xcb(), &xcb_randr_id);
    xcb_prefetch_extension_data(xcb(), &xcb_composite_id);
    xcb_prefetch_extension_data(xcb(), &xcb_res_id);
    xcb_intern_atom_cookie_t* cookies = xcb_ewmh_init_atoms(xcb(), &m_ewmh);
    m_atoms = LMInternX11Atoms(xcb());
    if (cookies == nullptr || xcb_ewmh_init_atoms_replies(&m_ewmh, cookies, nullptr) == 0) {
        *reason = LMLocalized("The X server refused to intern atoms.");
        return false;
    }
    queryExtensions();
    createOwnWindow();
    listen();
    return true;
}

void LMX11Connection::queryExtensions() {
    const auto find = [this](xcb_extension_t* extension) -> std::optional<Extension> {
        const xcb_query_extension_reply_t* data = xcb_get_extension_data(xcb(), extension);
        if (data == nullptr || data->present == 0)
            return std::nullopt;
        return Extension{data->first_event, 0, 0};
    };
    const auto setVersion = [](std::optional<Extension>& extension, uint32_t major,
                               uint32_t minor) {
        extension->majorVersion = major;
        extension->minorVersion = minor;
    };
    m_randr = find(&xcb_randr_id);
    m_composite = find(&xcb_composite_id);
    m_resource = find(&xcb_res_id);
    if (m_randr) {
        if (const auto version =
                reply(xcb_randr_query_version_reply, xcb_randr_query_version(xcb(), 1, 6)))
            setVersion(m_randr, version->major_version, version->minor_version);
    }
    if (m_composite) {
        if (const auto version =
                reply(xcb_composite_query_version_reply, xcb_composite_query_version(xcb(), 0, 4)))
            setVersion(m_composite, version->major_version, version->minor_version);
    }
    if (m_resource) {
        if (const auto version =
                reply(xcb_res_query_version_reply, xcb_res_query_version(xcb(), 1, 2)))
            setVersion(m_resource, version->server_major, version->server_minor);
    }
}

void LMX11Connection::createOwnWindow() {
    m_ownWindow = xcb_generate_id(xcb());
    const uint32_t eventMask = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_create_window(xcb(), XCB_COPY_FROM_PARENT, m_ownWindow, root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &eventMask);
}

void LMX11Connection::listen() {
    QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
    if (dispatcher == nullptr)
        return;
    m_notifier =
        std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(xcb()), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &LMX11Connection::dispatchEvents);
    // While it waits for a reply, xcb reads events into its own queue: the socket does not become
    // readable for those again.
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this,
            &LMX11Connection::dispatchEvents);
}

bool LMX11Connection::isConnected() {
    if (m_isLost)
        return false;
    const int error = xcb_connection_has_error(xcb());
    if (error == 0)
        return true;
    m_isLost = true;
    if (m_notifier)
        m_notifier->setEnabled(false);
    m_logger.error(QStringLiteral("The connection to the X server is lost (error %@)."),
                   {QString::number(error)});
    QMetaObject::invokeMethod(
        this,
        [this] { Q_EMIT connectionLost(LMLocalized("The connection to the X server is lost.")); },
        Qt::QueuedConnection);
    return false;
}

LMXcbError LMX11Connection::check(xcb_void_cookie_t cookie) {
    noteWait(cookie.sequence);
    LMXcbError error(xcb_request_check(xcb(), cookie));
    if (error)
        logError(*error);
    return error;
}

void LMX11Connection::flush() {
    xcb_flush(xcb());
}

void LMX11Connection::noteWait(unsigned int sequence) {
    // Requests older than the last wait were sent with it, and so their answers are on the way.
    if (static_cast<int>(sequence - m_lastWaitSequence) <= 0)
        return;
    ++m_roundTrips;
    m_lastWaitSequence = xcb_no_operation(xcb()).sequence;
}

void LMX11Connection::finishReply(bool succeeded, LMXcbError refusal, LMXcbError* error) {
    if (refusal)
        logError(*refusal);
    else if (!succeeded)
        isConnected();
    if (error != nullptr)
        *error = std::move(refusal);
}

void LMX11Connection::logError(const xcb_generic_error_t& error) const {
    if (!m_logger.isDebugEnabled())
        return;
    m_logger.debug(QStringLiteral("X request %@.%@ failed: error %@, resource 0x%@"),
                   {QString::number(error.major_code), QString::number(error.minor_code),
                    QString::number(error.error_code), QString::number(error.resource_id, 16)});
}

LMX11Connection::Subscription LMX11Connection::addEventFilter(EventFilter filter) {
    auto subscription = std::make_shared<const EventFilter>(std::move(filter));
    m_filters.push_back(subscription);
    return subscription;
}

LMX11Connection::Subscription LMX11Connection::addEventObserver(EventFilter observer) {
    auto subscription = std::make_shared<const EventFilter>(std::move(observer));
    m_observers.push_back(subscription);
    return subscription;
}

void LMX11Connection::selectEvents(xcb_window_t window, uint32_t eventMask) {
    uint32_t& mask = m_eventMasks[window];
    const uint32_t wanted = mask | eventMask | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    if (wanted == mask)
        return;
    mask = wanted;
    xcb_change_window_attributes(xcb(), window, XCB_CW_EVENT_MASK, &mask);
}

void LMX11Connection::deselectEvents(xcb_window_t window, uint32_t eventMask) {
    const auto mask = m_eventMasks.find(window);
    if (mask == m_eventMasks.end() || (*mask & eventMask) == 0)
        return;
    *mask &= ~eventMask;
    xcb_change_window_attributes(xcb(), window, XCB_CW_EVENT_MASK, &*mask);
}

bool LMX11Connection::waitForEvent(const std::function<bool(const xcb_generic_event_t&)>& condition,
                                   Deadline deadline) {
    xcb_flush(xcb());
    while (isConnected()) {
        while (LMXcbEvent event = pollEvent()) {
            const bool isMatch = event->response_type != 0 && condition(*event);
            m_keptEvents.push_back(std::move(event));
            if (isMatch)
                return true;
        }
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        if (left <= 0ms)
            return false;
        pollfd descriptor{xcb_get_file_descriptor(xcb()), POLLIN, 0};
        poll(&descriptor, 1, static_cast<int>(left.count()));
    }
    return false;
}

LMXcbEvent LMX11Connection::nextEvent() {
    if (!m_keptEvents.empty()) {
        LMXcbEvent event = std::move(m_keptEvents.front());
        m_keptEvents.pop_front();
        return event;
    }
    return pollEvent();
}

LMXcbEvent LMX11Connection::pollEvent() {
    LMXcbEvent event(xcb_poll_for_event(xcb()));
    if (!event)
        return event;
    forgetVanishedWindow(*event);
    if (event->response_type != 0)
        hand(*event, m_observers);
    return event;
}

/// At once, since the next client may be given the same window identifier. A window that had
/// vanished before events of it were selected is told by the error instead.
void LMX11Connection::forgetVanishedWindow(const xcb_generic_event_t& event) {
    const auto& error = reinterpret_cast<const xcb_generic_error_t&>(event);
    if (event.response_type == 0 && error.major_code == XCB_CHANGE_WINDOW_ATTRIBUTES)
        m_eventMasks.remove(error.resource_id);
    else if (LMXcbEventType(event) == XCB_DESTROY_NOTIFY)
        m_eventMasks.remove(reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window);
}

void LMX11Connection::receiveEvents() {
    while (LMXcbEvent event = pollEvent())
        m_keptEvents.push_back(std::move(event));
}

void LMX11Connection::dispatchEvents() {
    // A listener may run an event loop of its own, which comes back here: each event is taken out
    // before it is handed on.
    while (const LMXcbEvent event = nextEvent()) {
        if (event->response_type == 0)
            logError(reinterpret_cast<const xcb_generic_error_t&>(*event));
        else
            hand(*event, m_filters);
    }
    if (isConnected())
        xcb_flush(xcb());
}

void LMX11Connection::hand(const xcb_generic_event_t& event, Subscribers& subscribers) {
    std::erase_if(subscribers, [](const auto& subscriber) { return subscriber.expired(); });
    const Subscribers called = subscribers;
    for (const auto& subscriber : called) {
        if (const Subscription subscription = subscriber.lock())
            (*subscription)(event);
    }
}

xcb_timestamp_t LMX11Connection::serverTime() {
    xcb_timestamp_t time = XCB_CURRENT_TIME;
    xcb_change_property(xcb(), XCB_PROP_MODE_APPEND, m_ownWindow, m_atoms.timestamp,
                        XCB_ATOM_INTEGER, 32, 0, nullptr);
    const auto isAnswer = [&](const xcb_generic_event_t& event) {
        if (LMXcbEventType(event) != XCB_PROPERTY_NOTIFY)
            return false;
        const auto& notify = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (notify.window != m_ownWindow || notify.atom != m_atoms.timestamp)
            return false;
        time = notify.time;
        return true;
    };
    waitForEvent(isAnswer, std::chrono::steady_clock::now() + 1s);
    return time;
}

void LMX11Connection::sendToWindowManager(xcb_window_t window, xcb_atom_t type,
                                          const std::array<uint32_t, 5>& data) {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = type;
    std::copy(data.begin(), data.end(), event.data.data32);
    xcb_send_event(xcb(), 0, root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&event));
}
