// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11WindowReader.h"

#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11DesktopsRequest.h"
#include "Platform/X11/LMX11FrameRequest.h"
#include "Platform/X11/LMX11StructureRequest.h"

#include <numeric>
#include <vector>

using namespace std::chrono_literals;

namespace {

/// Deeper nesting than any manager's: frame, title container, client.
constexpr int maximumDepth = 8;

constexpr auto animationStep = 20ms;

std::vector<LMX11FrameRequest> requestFrames(LMX11Connection& connection,
                                             const QList<LMX11Window*>& windows) {
    std::vector<LMX11FrameRequest> requests;
    requests.reserve(size_t(windows.size()));
    for (const LMX11Window* window : windows)
        requests.emplace_back(connection, window->identifier);
    return requests;
}

QRect outerRect(const xcb_get_geometry_reply_t& geometry) {
    return {geometry.x, geometry.y, geometry.width + 2 * geometry.border_width,
            geometry.height + 2 * geometry.border_width};
}

} // namespace

// The members are asked in their order.
struct LMX11WindowReader::Questions {
    Questions(LMX11Connection& connection, const Windows& windows)
        : coordinates(connection),
          supported(connection, connection.root(), connection.ewmhAtoms()._NET_SUPPORTED),
          desktops(connection), frames(requestFrames(connection, windows)) {}

    LMX11CoordinatesRequest coordinates;
    LMX11PropertyRequest supported;
    LMX11DesktopsRequest desktops;
    Requests frames;
};

LMX11Reading LMX11WindowReader::readFrames(const QList<xcb_window_t>& identifiers) {
    LMX11Reading reading;
    const Windows windows = prepare(reading, identifiers);
    Questions questions(m_connection, windows);
    settle(windows, receive(questions, reading, windows));
    return reading;
}

LMX11WindowReader::Windows LMX11WindowReader::prepare(LMX11Reading& reading,
                                                      const QList<xcb_window_t>& identifiers) {
    Windows windows;
    reading.windows.resize(identifiers.size());
    for (qsizetype index = 0; index < identifiers.size(); ++index) {
        reading.windows[index].identifier = identifiers[index];
        windows.append(&reading.windows[index]);
    }
    return windows;
}

LMX11WindowReader::Windows LMX11WindowReader::receive(Questions& questions, LMX11Reading& reading,
                                                      const Windows& windows) {
    const xcb_ewmh_connection_t& atoms = m_connection.ewmhAtoms();
    reading.coordinates = questions.coordinates.receive();
    m_tellsExtents =
        questions.supported.receive(m_connection).containsWord(atoms._NET_FRAME_EXTENTS);
    reading.desktopNames = questions.desktops.receive(m_connection);
    return receiveFrames(questions.frames, windows);
}

void LMX11WindowReader::settle(const Windows& windows, const Windows& unmeasured) {
    measureDecorations(unmeasured);
    waitForAnimations(windows);
}

void LMX11WindowReader::refresh(const Windows& windows) {
    settle(windows, receiveFrames(requestFrames(m_connection, windows), windows));
}

LMX11WindowReader::Windows LMX11WindowReader::receiveFrames(const Requests& requests,
                                                            const Windows& windows) {
    Windows unmeasured;
    for (qsizetype index = 0; index < windows.size(); ++index) {
        LMX11Window& window = *windows[index];
        const bool isMeasured = requests[size_t(index)].receive(m_connection, window);
        if (!isMeasured && !m_tellsExtents && window.exists)
            unmeasured.append(&window);
    }
    return unmeasured;
}

void LMX11WindowReader::waitForAnimations(Windows windows) {
    using Clock = std::chrono::steady_clock;
    const auto deadline = Clock::now() + LMX11MapWatch::moment;
    windows = animated(windows);
    while (!windows.isEmpty() && Clock::now() < deadline) {
        m_connection.waitForEvent([](const auto&) { return false; }, Clock::now() + animationStep);
        measureDecorations(receiveFrames(requestFrames(m_connection, windows), windows));
        windows = animated(windows);
    }
}

// Answers are taken in the order of the questions: libxcb walks over all that wait to be taken.
LMX11Reading LMX11WindowReader::read(const QList<xcb_window_t>& identifiers) {
    LMX11Reading reading;
    const Windows windows = prepare(reading, identifiers);
    Questions questions(m_connection, windows);
    std::vector<LMX11StructureRequest> requests;
    requests.reserve(size_t(windows.size()));
    for (const xcb_window_t identifier : identifiers)
        requests.emplace_back(m_connection, identifier);

    const Windows unmeasured = receive(questions, reading, windows);
    std::vector<LMX11TitleRequest> longTitles;
    for (qsizetype index = 0; index < windows.size(); ++index) {
        if (auto rest = requests[size_t(index)].receive(m_connection, *windows[index]))
            longTitles.emplace_back(m_connection, *rest, windows[index]);
    }
    for (const LMX11TitleRequest& request : longTitles)
        request.receive(m_connection);
    settle(windows, unmeasured);
    return reading;
}

/// Under a manager that does not say how large its decorations are, they are what lies between the
/// client's window and the child of the root that holds it. Under one that does, a window of which
/// it says nothing has none.
void LMX11WindowReader::measureDecorations(const Windows& windows) {
    const QList<TopLevel> topLevels = readTopLevels(windows);
    for (qsizetype index = 0; index < windows.size(); ++index) {
        const QRect& frame = topLevels[index].rect;
        const QRect& client = windows[index]->geometry.client;
        if (topLevels[index].exists())
            windows[index]->geometry.decorations =
                QMargins(client.left() - frame.left(), client.top() - frame.top(),
                         frame.right() - client.right(), frame.bottom() - client.bottom());
    }
}

/// Those that stand elsewhere for the moment. To draw how a window turns into its icon or back,
/// openbox moves the frame itself, small as a title bar: with the window already hidden on the way
/// there, with the window already shown on the way back, also when it is sent to another virtual
/// desktop meanwhile.
LMX11WindowReader::Windows LMX11WindowReader::animated(Windows windows) {
    windows.removeIf([this](const LMX11Window* window) {
        return !window->exists || window->states.isShaded ||
               !m_mapWatch.hasJustChanged(window->identifier);
    });
    const QList<TopLevel> topLevels = readTopLevels(windows);
    Windows result;
    for (qsizetype index = 0; index < windows.size(); ++index) {
        const TopLevel& topLevel = topLevels[index];
        const LMX11Geometry& geometry = windows[index]->geometry;
        const int height = geometry.client.marginsAdded(geometry.decorations).height();
        const bool isShown = topLevel.isMapped || !windows[index]->states.isMinimized;
        if (topLevel.exists() && isShown && topLevel.rect.height() < height)
            result.append(windows[index]);
    }
    return result;
}

QList<LMX11WindowReader::TopLevel> LMX11WindowReader::readTopLevels(const Windows& windows) {
    if (windows.isEmpty())
        return {};
    xcb_connection_t* xcb = m_connection.xcb();
    const QList<xcb_window_t> identifiers = findTopLevels(windows);
    std::vector<std::pair<xcb_get_geometry_cookie_t, xcb_get_window_attributes_cookie_t>> cookies;
    for (const xcb_window_t window : identifiers)
        cookies.emplace_back(xcb_get_geometry(xcb, window), xcb_get_window_attributes(xcb, window));
    QList<TopLevel> topLevels(windows.size());
    for (qsizetype index = 0; index < windows.size(); ++index) {
        const auto& [geometryCookie, attributesCookie] = cookies[size_t(index)];
        const auto geometry = m_connection.reply(xcb_get_geometry_reply, geometryCookie);
        const auto attributes =
            m_connection.reply(xcb_get_window_attributes_reply, attributesCookie);
        if (geometry && attributes && identifiers[index] != windows[index]->identifier)
            topLevels[index] = {outerRect(*geometry),
                                attributes->map_state != XCB_MAP_STATE_UNMAPPED};
    }
    return topLevels;
}

QList<xcb_window_t> LMX11WindowReader::findTopLevels(const Windows& windows) {
    QList<xcb_window_t> current;
    for (const LMX11Window* window : windows)
        current.append(window->identifier);
    QList<qsizetype> open(windows.size());
    std::iota(open.begin(), open.end(), 0);
    for (int depth = 0; depth < maximumDepth && !open.isEmpty(); ++depth) {
        std::vector<xcb_query_tree_cookie_t> cookies;
        for (const qsizetype index : open)
            cookies.push_back(xcb_query_tree(m_connection.xcb(), current[index]));
        QList<qsizetype> stillOpen;
        for (size_t position = 0; position < cookies.size(); ++position) {
            const auto reply = m_connection.reply(xcb_query_tree_reply, cookies[position]);
            if (!reply || reply->parent == reply->root || reply->parent == XCB_WINDOW_NONE)
                continue;
            const qsizetype index = open[qsizetype(position)];
            current[index] = reply->parent;
            stillOpen.append(index);
        }
        open = stillOpen;
    }
    return current;
}
