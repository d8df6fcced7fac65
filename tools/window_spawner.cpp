// SPDX-License-Identifier: MIT
//
// A scriptable X client for what real applications do not offer: many windows at once, hostile
// titles, odd hints, a client that fights for its geometry. One command per line on standard
// input, one answer line per command on standard output. Values are percent-encoded.
//
//   create [count=N] [title=T] [class=INSTANCE,CLASS] [geometry=WxH+X+Y] [gravity=1..10]
//          [increment=W,H] [base=W,H] [minimum=W,H] [maximum=W,H] [shadow=L,R,T,B] [type=DIALOG]
//          [role=R] [state=MODAL] [transient=ID] [leader=ID] [process=PID] [iconic=1]
//          [stubborn=1]
//                                -> "windows 0x... 0x..."
//   retitle ID T | configure ID WxH+X+Y | withdraw ID | map ID | destroy ID | count
//
// With count > 1 each title ends in the window's number. process=0 leaves _NET_WM_PID out. A
// stubborn window takes its first geometry back whenever someone else changes it. The client
// ends with its standard input.
#include <array>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <map>
#include <memory>
#include <poll.h>
#include <sstream>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>
#include <xcb/xcb.h>
#include <xcb/xcb_icccm.h>

namespace {

using Arguments = std::map<std::string, std::string>;

template <typename T>
struct Free {
    void operator()(T* memory) const { std::free(memory); }
};
template <typename T>
using Reply = std::unique_ptr<T, Free<T>>;

struct Geometry {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::int32_t x = 0;
    std::int32_t y = 0;
};

std::string decoded(const std::string& text) {
    std::string bytes;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '%' && at + 2 < text.size()) {
            bytes += static_cast<char>(std::stoi(text.substr(at + 1, 2), nullptr, 16));
            at += 2;
        } else {
            bytes += text[at];
        }
    }
    return bytes;
}

std::string valueOf(const Arguments& arguments, const char* key, const std::string& fallback) {
    const auto found = arguments.find(key);
    return found == arguments.end() ? fallback : found->second;
}

std::vector<std::uint32_t> numbers(const std::string& text) {
    std::vector<std::uint32_t> values;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, ',');)
        values.push_back(static_cast<std::uint32_t>(std::stoul(part, nullptr, 0)));
    return values;
}

Geometry geometryFrom(const std::string& text) {
    Geometry geometry;
    char cross = 0;
    std::istringstream(text) >> geometry.width >> cross >> geometry.height >> geometry.x >>
        geometry.y;
    return geometry;
}

class Spawner {
public:
    Spawner() : m_connection(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(m_connection) != 0)
            throw std::runtime_error("cannot connect to the X server");
        m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    }
    ~Spawner() { xcb_disconnect(m_connection); }
    Spawner(const Spawner&) = delete;
    Spawner& operator=(const Spawner&) = delete;

    void run();

private:
    std::string answer(const std::string& line);
    std::string create(const Arguments& arguments);
    xcb_window_t createWindow(const Arguments& arguments, const std::string& title);
    void setHints(xcb_window_t window, const Arguments& arguments, const Geometry& geometry);
    void setIdentity(xcb_window_t window, const Arguments& arguments);
    void setTitle(xcb_window_t window, const std::string& title);
    void configure(xcb_window_t window, const Geometry& geometry);
    void handle(const xcb_generic_event_t& event);
    void handleMessage(xcb_client_message_event_t message);
    void destroy(xcb_window_t window);

    xcb_atom_t atom(const std::string& name);
    void setText(xcb_window_t window, const char* property, xcb_atom_t type,
                 const std::string& text);
    void setNumbers(xcb_window_t window, const char* property, xcb_atom_t type,
                    const std::vector<std::uint32_t>& values);

    xcb_connection_t* m_connection;
    xcb_screen_t* m_screen = nullptr;
    std::map<std::string, xcb_atom_t> m_atoms;
    std::map<xcb_window_t, Geometry> m_windows;
    std::map<xcb_window_t, Geometry> m_stubborn;
};

xcb_atom_t Spawner::atom(const std::string& name) {
    const auto known = m_atoms.find(name);
    if (known != m_atoms.end())
        return known->second;
    const auto cookie =
        xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const Reply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return m_atoms[name] = reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

void Spawner::setText(xcb_window_t window, const char* property, xcb_atom_t type,
                      const std::string& text) {
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, atom(property), type, 8,
                        static_cast<std::uint32_t>(text.size()), text.data());
}

void Spawner::setNumbers(xcb_window_t window, const char* property, xcb_atom_t type,
                         const std::vector<std::uint32_t>& values) {
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, atom(property), type, 32,
                        static_cast<std::uint32_t>(values.size()), values.data());
}

void Spawner::setTitle(xcb_window_t window, const std::string& title) {
    setText(window, "_NET_WM_NAME", atom("UTF8_STRING"), title);
    setText(window, "WM_NAME", XCB_ATOM_STRING, title);
}

void Spawner::setHints(xcb_window_t window, const Arguments& arguments, const Geometry& geometry) {
    xcb_size_hints_t hints{};
    xcb_icccm_size_hints_set_position(&hints, 1, geometry.x, geometry.y);
    xcb_icccm_size_hints_set_size(&hints, 1, static_cast<std::int32_t>(geometry.width),
                                  static_cast<std::int32_t>(geometry.height));
    const auto pair = [&arguments, &hints](const char* key, auto set) {
        if (const auto found = arguments.find(key); found != arguments.end()) {
            const auto values = numbers(found->second);
            set(&hints, static_cast<std::int32_t>(values.at(0)),
                static_cast<std::int32_t>(values.at(1)));
        }
    };
    pair("increment", xcb_icccm_size_hints_set_resize_inc);
    pair("base", xcb_icccm_size_hints_set_base_size);
    pair("minimum", xcb_icccm_size_hints_set_min_size);
    pair("maximum", xcb_icccm_size_hints_set_max_size);
    if (const auto gravity = arguments.find("gravity"); gravity != arguments.end())
        xcb_icccm_size_hints_set_win_gravity(
            &hints, static_cast<xcb_gravity_t>(numbers(gravity->second).at(0)));
    xcb_icccm_set_wm_normal_hints(m_connection, window, &hints);

    xcb_icccm_wm_hints_t managerHints{};
    if (arguments.contains("iconic"))
        xcb_icccm_wm_hints_set_iconic(&managerHints);
    else
        xcb_icccm_wm_hints_set_normal(&managerHints);
    xcb_icccm_wm_hints_set_input(&managerHints, 1);
    xcb_icccm_set_wm_hints(m_connection, window, &managerHints);
}

void Spawner::setIdentity(xcb_window_t window, const Arguments& arguments) {
    auto name = valueOf(arguments, "class", "window-spawner,Window-spawner") + ',';
    for (auto& letter : name)
        letter = letter == ',' ? '\0' : letter;
    setText(window, "WM_CLASS", XCB_ATOM_STRING, name);

    std::array<char, 256> host{};
    gethostname(host.data(), host.size() - 1);
    setText(window, "WM_CLIENT_MACHINE", XCB_ATOM_STRING, host.data());
    if (const auto process = numbers(valueOf(arguments, "process", std::to_string(getpid()))).at(0);
        process != 0)
        setNumbers(window, "_NET_WM_PID", XCB_ATOM_CARDINAL, {process});
    setNumbers(window, "WM_PROTOCOLS", XCB_ATOM_ATOM,
               {atom("WM_DELETE_WINDOW"), atom("_NET_WM_PING")});
    setNumbers(window, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM,
               {atom("_NET_WM_WINDOW_TYPE_" + valueOf(arguments, "type", "NORMAL"))});
    if (arguments.contains("role"))
        setText(window, "WM_WINDOW_ROLE", XCB_ATOM_STRING, valueOf(arguments, "role", ""));
    if (arguments.contains("state"))
        setNumbers(window, "_NET_WM_STATE", XCB_ATOM_ATOM,
                   {atom("_NET_WM_STATE_" + valueOf(arguments, "state", ""))});
    if (arguments.contains("transient"))
        setNumbers(window, "WM_TRANSIENT_FOR", XCB_ATOM_WINDOW,
                   numbers(valueOf(arguments, "transient", "0")));
    if (arguments.contains("leader"))
        setNumbers(window, "WM_CLIENT_LEADER", XCB_ATOM_WINDOW,
                   numbers(valueOf(arguments, "leader", "0")));
    if (arguments.contains("shadow")) {
        setNumbers(window, "_GTK_FRAME_EXTENTS", XCB_ATOM_CARDINAL,
                   numbers(valueOf(arguments, "shadow", "")));
        constexpr std::uint32_t decorationsGiven = 2;
        setNumbers(window, "_MOTIF_WM_HINTS", atom("_MOTIF_WM_HINTS"),
                   {decorationsGiven, 0, 0, 0, 0});
    }
}

xcb_window_t Spawner::createWindow(const Arguments& arguments, const std::string& title) {
    const Geometry geometry = geometryFrom(valueOf(arguments, "geometry", "400x300+0+0"));
    const xcb_window_t window = xcb_generate_id(m_connection);
    const std::uint32_t colour = 0x304060 + static_cast<std::uint32_t>(m_windows.size()) * 0x0a1507;
    const std::array<std::uint32_t, 2> values{colour & 0xffffff, XCB_EVENT_MASK_STRUCTURE_NOTIFY};
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, m_screen->root,
                      static_cast<std::int16_t>(geometry.x), static_cast<std::int16_t>(geometry.y),
                      static_cast<std::uint16_t>(geometry.width),
                      static_cast<std::uint16_t>(geometry.height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      m_screen->root_visual, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values.data());
    setTitle(window, title);
    setIdentity(window, arguments);
    setHints(window, arguments, geometry);
    xcb_map_window(m_connection, window);
    m_windows[window] = geometry;
    if (arguments.contains("stubborn"))
        m_stubborn[window] = geometry;
    return window;
}

std::string Spawner::create(const Arguments& arguments) {
    const auto count = numbers(valueOf(arguments, "count", "1")).at(0);
    std::ostringstream text;
    text << "windows" << std::hex << std::showbase;
    for (std::uint32_t number = 1; number <= count; ++number) {
        const auto suffix = count > 1 ? ' ' + std::to_string(number) : std::string();
        text << ' ' << createWindow(arguments, valueOf(arguments, "title", "Window") + suffix);
    }
    return text.str();
}

void Spawner::configure(xcb_window_t window, const Geometry& geometry) {
    const std::array<std::uint32_t, 4> values{static_cast<std::uint32_t>(geometry.x),
                                              static_cast<std::uint32_t>(geometry.y),
                                              geometry.width, geometry.height};
    xcb_configure_window(m_connection, window,
                         XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                             XCB_CONFIG_WINDOW_HEIGHT,
                         values.data());
}

void Spawner::destroy(xcb_window_t window) {
    xcb_destroy_window(m_connection, window);
    m_windows.erase(window);
    m_stubborn.erase(window);
}

std::string Spawner::answer(const std::string& line) {
    std::istringstream words(line);
    std::string command;
    words >> command;
    if (command == "count")
        return "windows " + std::to_string(m_windows.size());
    if (command == "create") {
        Arguments arguments;
        for (std::string word; words >> word;) {
            const auto equals = word.find('=');
            if (equals == std::string::npos)
                return "error no value in " + word;
            arguments[word.substr(0, equals)] = decoded(word.substr(equals + 1));
        }
        return create(arguments);
    }
    std::string identifier;
    std::string value;
    words >> identifier >> value;
    const xcb_window_t window = identifier.empty() ? 0 : numbers(identifier).at(0);
    if (!m_windows.contains(window))
        return "error no window " + identifier;
    if (command == "retitle")
        setTitle(window, decoded(value));
    else if (command == "configure")
        configure(window, geometryFrom(value));
    else if (command == "map")
        xcb_map_window(m_connection, window);
    else if (command == "withdraw")
        xcb_unmap_window(m_connection, window);
    else if (command == "destroy")
        destroy(window);
    else
        return "error unknown command " + command;
    return "ok";
}

void Spawner::handleMessage(xcb_client_message_event_t message) {
    if (message.type != atom("WM_PROTOCOLS"))
        return;
    if (message.data.data32[0] == atom("WM_DELETE_WINDOW")) {
        destroy(message.window);
    } else if (message.data.data32[0] == atom("_NET_WM_PING")) {
        message.window = m_screen->root;
        xcb_send_event(m_connection, 0, m_screen->root,
                       XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                       reinterpret_cast<const char*>(&message));
    }
}

void Spawner::handle(const xcb_generic_event_t& event) {
    const auto type = event.response_type & 0x7f;
    if (type == XCB_CLIENT_MESSAGE) {
        handleMessage(reinterpret_cast<const xcb_client_message_event_t&>(event));
    } else if (type == XCB_CONFIGURE_NOTIFY) {
        const auto& notify = reinterpret_cast<const xcb_configure_notify_event_t&>(event);
        const auto found = m_stubborn.find(notify.window);
        if (found == m_stubborn.end())
            return;
        // Only the size counts: the position in a real event is relative to the frame.
        if (notify.width != found->second.width || notify.height != found->second.height)
            configure(found->first, found->second);
    }
}

void Spawner::run() {
    std::string input;
    while (true) {
        xcb_flush(m_connection);
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)})
            handle(*event);
        xcb_flush(m_connection);
        if (xcb_connection_has_error(m_connection) != 0)
            return;
        std::array<pollfd, 2> sources{pollfd{STDIN_FILENO, POLLIN, 0},
                                      pollfd{xcb_get_file_descriptor(m_connection), POLLIN, 0}};
        poll(sources.data(), sources.size(), -1);
        if ((sources[0].revents & (POLLIN | POLLHUP)) == 0)
            continue;
        std::array<char, 65536> buffer{};
        const auto size = read(STDIN_FILENO, buffer.data(), buffer.size());
        if (size <= 0)
            return;
        input.append(buffer.data(), static_cast<std::size_t>(size));
        for (auto end = input.find('\n'); end != std::string::npos; end = input.find('\n')) {
            std::cout << answer(input.substr(0, end)) << std::endl;
            input.erase(0, end + 1);
        }
    }
}

} // namespace

int main() {
    try {
        Spawner().run();
    } catch (const std::exception& error) {
        std::cerr << "window-spawner: " << error.what() << '\n';
        return 1;
    }
}
