// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMX11Atoms.h"
#include "Platform/X11/LMXcbReply.h"

#include <QHash>
#include <QObject>

#include <xcb/xcb_ewmh.h>

#include <array>
#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class LMLogger;
class QSocketNotifier;

/// One connection to the X server and everything that is asked of it: requests and their answers,
/// atoms, extensions, and the events, which are handed to any number of listeners.
///
/// Belongs to one thread. Events arrive by themselves while that thread runs its event loop; a
/// blocking wait in between keeps what it sees for later, so that no listener misses an event.
/// When the server goes away, every request answers null at once and connectionLost is emitted.
class LMX11Connection final : public QObject {
    Q_OBJECT
public:
    using Deadline = std::chrono::steady_clock::time_point;
    using EventFilter = std::function<void(const xcb_generic_event_t&)>;
    /// Keeps a listener registered for as long as it lives. It may outlive the connection.
    using Subscription = std::shared_ptr<const EventFilter>;

    /// An extension the server has, and the version it speaks.
    struct Extension {
        uint8_t firstEvent = 0;
        uint32_t majorVersion = 0;
        uint32_t minorVersion = 0;

        bool isAtLeast(uint32_t major, uint32_t minor) const {
            return majorVersion > major || (majorVersion == major && minorVersion >= minor);
        }
    };

    /// Connects to the named display, or to that of the environment when the name is empty. Null
    /// on failure, with a plain sentence in reason.
    static std::unique_ptr<LMX11Connection> open(const QString& displayName, const LMLogger& logger,
                                                 QString* reason);
    ~LMX11Connection() override;

    xcb_connection_t* xcb() const { return m_connection.get(); }
    xcb_window_t root() const { return m_screen->root; }
    const xcb_screen_t& screen() const { return *m_screen; }
    int screenNumber() const { return m_screenNumber; }
    const LMLogger& logger() const { return m_logger; }
    const LMX11Atoms& atoms() const { return m_atoms; }
    /// Interned EWMH atoms; also the first argument of the library's requests.
    xcb_ewmh_connection_t* ewmh() { return &m_ewmh; }
    const xcb_ewmh_connection_t& ewmhAtoms() const { return m_ewmh; }
    /// A window of our own that is never mapped, so that no window manager manages it. Property and
    /// structure events of it are selected.
    xcb_window_t ownWindow() const { return m_ownWindow; }

    /// Absent when the server lacks the extension.
    const std::optional<Extension>& randr() const { return m_randr; }
    const std::optional<Extension>& composite() const { return m_composite; }
    const std::optional<Extension>& resource() const { return m_resource; }

    /// Notices a lost connection as a side effect.
    bool isConnected();

    /// Waits for the answer to a request, sent before together with as many others as the task
    /// needs. Null when the server refused, which is logged at debug level and told in error.
    template <class Reply, class Cookie>
    LMXcbReply<Reply> reply(Reply* (*wait)(xcb_connection_t*, Cookie, xcb_generic_error_t**),
                            Cookie cookie, LMXcbError* error = nullptr) {
        noteWait(cookie.sequence);
        xcb_generic_error_t* refusal = nullptr;
        LMXcbReply<Reply> result(wait(xcb(), cookie, &refusal));
        finishReply(result != nullptr, LMXcbError(refusal), error);
        return result;
    }

    /// Waits until the server has carried out a request that was sent with xcb_..._checked. Null
    /// on success.
    LMXcbError check(xcb_void_cookie_t cookie);

    void flush();

    /// How often the program has waited for the server since it connected: requests whose answers
    /// arrive with one wait count once. For measurements.
    quint64 roundTrips() const { return m_roundTrips; }

    /// Registers a listener for all events. Errors of requests without a reply are not handed on
    /// but logged at debug level, since a window may vanish at any moment.
    [[nodiscard]] Subscription addEventFilter(EventFilter filter);

    /// Adds to the events that the server reports of a window, the root included; what others have
    /// selected stays. StructureNotify is always selected, so that the record of a destroyed
    /// window is dropped.
    void selectEvents(xcb_window_t window, uint32_t eventMask);

    /// Takes back what only the caller has selected.
    void deselectEvents(xcb_window_t window, uint32_t eventMask);

    /// Blocks until an event satisfies the condition. All events seen meanwhile, the matching one
    /// included, are handed to the listeners later, when control returns to the event loop.
    /// False when the deadline has passed or the connection is lost.
    bool waitForEvent(const std::function<bool(const xcb_generic_event_t&)>& condition,
                      Deadline deadline);

    /// Registers an observer that sees every event the moment it is received: before the listeners
    /// do, in the middle of a blocking wait, too. It must only take notes.
    [[nodiscard]] Subscription addEventObserver(EventFilter observer);

    /// Receives what the server has sent so far, for the observers; the listeners get it later. An
    /// answer arrives after all events that preceded it, so this makes an observer's notes current
    /// as of the latest answer.
    void receiveEvents();

    /// Hands waiting events to the listeners now, without blocking.
    void dispatchEvents();

    /// The server's clock, milliseconds, as window managers want it in requests on the user's
    /// behalf. XCB_CURRENT_TIME when the server does not answer.
    xcb_timestamp_t serverTime();

    /// Sends a client message about the window to the root, where the window manager listens.
    void sendToWindowManager(xcb_window_t window, xcb_atom_t type,
                             const std::array<uint32_t, 5>& data);

Q_SIGNALS:
    /// The server is gone for good. Emitted once, from the event loop.
    void connectionLost(const QString& reason);

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    using Subscribers = std::vector<std::weak_ptr<const EventFilter>>;

    LMX11Connection(xcb_connection_t* connection, int screenNumber, const LMLogger& logger);

    bool setUp(QString* reason);
    void queryExtensions();
    void createOwnWindow();
    void listen();
    LMXcbEvent pollEvent();
    LMXcbEvent nextEvent();
    void forgetVanishedWindow(const xcb_generic_event_t& event);
    void hand(const xcb_generic_event_t& event, Subscribers& subscribers);
    void noteWait(unsigned int sequence);
    void finishReply(bool succeeded, LMXcbError refusal, LMXcbError* error);
    void logError(const xcb_generic_error_t& error) const;

    const LMLogger& m_logger;
    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    int m_screenNumber = 0;
    xcb_screen_t* m_screen = nullptr;
    LMX11Atoms m_atoms;
    xcb_ewmh_connection_t m_ewmh{};
    xcb_window_t m_ownWindow = XCB_WINDOW_NONE;
    std::optional<Extension> m_randr;
    std::optional<Extension> m_composite;
    std::optional<Extension> m_resource;
    std::unique_ptr<QSocketNotifier> m_notifier;
    Subscribers m_filters;
    Subscribers m_observers;
    std::deque<LMXcbEvent> m_keptEvents;
    QHash<xcb_window_t, uint32_t> m_eventMasks;
    quint64 m_roundTrips = 0;
    unsigned int m_lastWaitSequence = 0;
    bool m_isLost = false;
};
