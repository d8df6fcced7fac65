// SPDX-License-Identifier: MIT
#include "contract/LMContractBackend.h"
#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11Desktop.h"
#include "Utilities/LMLogger.h"

#include <QRegularExpression>

#include <array>
#include <csignal>
#include <map>
#include <sys/types.h>
#include <unistd.h>
#include <xcb/res.h>

namespace {

/// What the pattern captures in the text; zeros when it does not occur.
std::array<int, 4> numbers(const QString& text, const QString& pattern) {
    static const auto options = QRegularExpression::DotMatchesEverythingOption;
    const auto match = QRegularExpression(pattern, options).match(text);
    std::array<int, 4> result{};
    for (int index = 0; index < 4; ++index)
        result[size_t(index)] = match.captured(index + 1).toInt();
    return result;
}

/// Left, right, top, bottom; zero when the property is missing.
QMargins extents(const QString& properties, const QString& name) {
    const auto [left, right, top, bottom] =
        numbers(properties, name + u" = (\\d+), (\\d+), (\\d+), (\\d+)"_qs);
    return {left, top, right, bottom};
}

QString encoded(const QString& text) {
    return QString::fromLatin1(text.toUtf8().toPercentEncoding());
}

QString creation(const LMContractWindow& window) {
    constexpr std::array kinds{"", "type=DIALOG", "type=UTILITY", "shadow=26,26,23,29"};
    QStringList command{u"create geometry=400x300+200+150"_qs,
                        u"class=%1,%1"_qs.arg(window.application),
                        u"title="_qs + encoded(window.title), u"gravity=%1"_qs.arg(window.gravity),
                        QLatin1String(kinds.at(size_t(window.kind)))};
    if (window.increment != QSize(1, 1))
        command.append(u"base=0,0 increment=%1,%2"_qs.arg(window.increment.width())
                           .arg(window.increment.height()));
    if (window.isModal)
        command.append(u"state=MODAL"_qs);
    if (!window.isResizable)
        command.append(u"minimum=400,300 maximum=400,300"_qs);
    return command.join(u' ');
}

/// Opens windows in processes of their own on the X server of the environment, and looks at them
/// with the server's common tools (xwininfo, xprop, xrandr, wmctrl, xdotool), so that no mistake of
/// the desktop under test is repeated here.
class LMX11ContractBackend final : public LMContractBackend {
public:
    LMX11ContractBackend();
    ~LMX11ContractBackend() override;

    LMDesktop& desktop() override { return *m_desktop; }
    LMElement openWindow(const LMContractWindow& window) override;
    void closeWindow(const LMElement& window) override {
        client(window).ask("destroy " + QByteArray::number(window.identifier));
    }
    void setTitle(const LMElement& window, const QString& title) override {
        const QString command = u"retitle %1 %2"_qs.arg(window.identifier).arg(encoded(title));
        client(window).ask(command.toLatin1());
    }
    void minimize(const LMElement& window) override;
    void setState(const LMElement& window, LMContractState state, bool isSet) override {
        constexpr std::array words{"fullscreen", "above", "maximized_vert,maximized_horz"};
        LMRunTool(u"wmctrl -i -r %1 -b %2,%3"_qs.arg(window.identifier)
                      .arg(isSet ? u"add"_qs : u"remove"_qs)
                      .arg(QLatin1String(words.at(size_t(state)))));
    }
    void raise(const LMElement& window) override;
    void freeze(const LMElement& window) override {
        kill(pid_t(client(window).process()), SIGSTOP);
    }
    void breakConnection() override;
    LMContractKeyboard* keyboard() override { return m_keyboard.get(); }
    QRectF visibleFrame(const LMElement& window) override;
    bool isMinimized(const LMElement& window) override {
        return properties(window).contains(u"state: Iconic"_qs);
    }
    LMWindowState visibleState(const LMElement& window) override;
    LMContractView view() override;
    QList<QRectF> monitors() override;

private:
    using ProcessKey = std::pair<QString, int>;

    LMWindowClient& client(const LMElement& window) {
        return *m_clients.at(m_owners.at(window.identifier));
    }
    static QString properties(const LMElement& window) {
        return LMRunTool(
            u"xprop -notype -id %1 WM_STATE _NET_FRAME_EXTENTS _GTK_FRAME_EXTENTS"_qs.arg(
                window.identifier));
    }

    LMLogger m_logger;
    std::unique_ptr<LMX11Connection> m_connection; ///< Not the desktop's.
    std::unique_ptr<LMContractKeyboard> m_keyboard;
    std::unique_ptr<LMDesktop> m_desktop;
    std::map<ProcessKey, std::unique_ptr<LMWindowClient>> m_clients;
    std::map<qint64, ProcessKey> m_owners; ///< By window.
    QPointF m_mainOrigin; ///< Where the main monitor stood when monitors were last read.
};

LMX11ContractBackend::LMX11ContractBackend() {
    QString reason;
    m_connection = LMX11Connection::open(QString(), m_logger, &reason);
    m_desktop = LMX11Backend().create(m_logger, &reason);
    if (!m_connection || !m_desktop)
        throw std::runtime_error(reason.toStdString());
    m_keyboard = LMMakeX11ContractKeyboard(*m_connection);
    monitors();
}

LMX11ContractBackend::~LMX11ContractBackend() {
    for (const auto& [key, client] : m_clients)
        kill(pid_t(client->process()), SIGCONT);
    m_clients.clear();
    // The next test begins without windows: the server will give them the same numbers.
    LMWaitUntilNoWindowIsListed();
}

LMElement LMX11ContractBackend::openWindow(const LMContractWindow& window) {
    const ProcessKey key(window.application, window.process);
    auto& client = m_clients[key];
    if (!client)
        client = std::make_unique<LMWindowClient>();
    const QByteArray number = client->ask(creation(window).toLatin1()).split(' ').at(1);
    const LMElement element{LMElement::Kind::Window, number.toLongLong(nullptr, 0), 0};
    m_owners[element.identifier] = key;
    // Managed, decorated, placed, and nothing has moved from one look to the next.
    const bool isDecorated = window.kind != LMContractWindow::Kind::ClientDecorated;
    QRectF last;
    const bool hasSettled = LMWaitUntil([&] {
        const QRectF frame = visibleFrame(element);
        const QString state = properties(element);
        return std::exchange(last, frame) == frame && state.contains(u"state: Normal"_qs) &&
               (!isDecorated || !extents(state, u"_NET_FRAME_EXTENTS"_qs).isNull()) &&
               LMListedWindows().contains(u"0x%1"_qs.arg(element.identifier, 0, 16));
    });
    if (!hasSettled)
        throw std::runtime_error("the window manager did not show the window");
    return element;
}

void LMX11ContractBackend::minimize(const LMElement& window) {
    const QRectF before = visibleFrame(window);
    LMRunTool(u"xdotool windowminimize %1"_qs.arg(window.identifier));
    // openbox draws how the window shrinks to an icon by moving its frame about.
    LMWaitUntil([&] { return isMinimized(window) && visibleFrame(window) == before; });
}

/// No tool does this as a user's click does, with the time at which it happens: managers stamp
/// requests without one when they come to them, and then take later requests for outdated.
void LMX11ContractBackend::raise(const LMElement& window) {
    constexpr uint32_t user = 2;
    m_connection->sendToWindowManager(xcb_window_t(window.identifier),
                                      m_connection->ewmhAtoms()._NET_ACTIVE_WINDOW,
                                      {user, m_connection->serverTime()});
    m_connection->serverTime(); // The server has passed it on.
}

/// Has the server drop all connections of this process but the one that asks for it.
void LMX11ContractBackend::breakConnection() {
    xcb_connection_t* xcb = m_connection->xcb();
    const uint32_t ownBase = xcb_get_setup(xcb)->resource_id_base;
    const xcb_res_client_id_spec_t everyone{0, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const auto reply = m_connection->reply(xcb_res_query_client_ids_reply,
                                           xcb_res_query_client_ids(xcb, 1, &everyone));
    for (auto at = xcb_res_query_client_ids_ids_iterator(reply.get()); at.rem > 0;
         xcb_res_client_id_value_next(&at)) {
        const auto process = pid_t(*xcb_res_client_id_value_value(at.data));
        if (process == getpid() && at.data->spec.client != ownBase)
            xcb_kill_client(xcb, at.data->spec.client);
    }
    m_connection->flush();
}

QRectF LMX11ContractBackend::visibleFrame(const LMElement& window) {
    const auto [x, y, width, height] =
        numbers(LMRunTool(u"xwininfo -id %1"_qs.arg(window.identifier)),
                u"left X: +(-?\\d+).*?left Y: +(-?\\d+).*?Width: (\\d+)\\s+Height: (\\d+)"_qs);
    const QString properties = this->properties(window);
    return QRectF(x, y, width, height)
        .marginsAdded(extents(properties, u"_NET_FRAME_EXTENTS"_qs))
        .marginsRemoved(extents(properties, u"_GTK_FRAME_EXTENTS"_qs))
        .translated(-m_mainOrigin);
}

LMWindowState LMX11ContractBackend::visibleState(const LMElement& window) {
    const QString text =
        LMRunTool(u"xprop -notype -id %1 _NET_WM_STATE _NET_WM_DESKTOP"_qs.arg(window.identifier));
    const auto has = [&](const char* word) {
        return text.contains(QLatin1String("_NET_WM_STATE_") + QLatin1String(word));
    };
    LMWindowState state;
    state.isMaximizedHorizontally = has("MAXIMIZED_HORZ");
    state.isMaximizedVertically = has("MAXIMIZED_VERT");
    state.isFullscreen = has("FULLSCREEN");
    state.isShaded = has("SHADED");
    state.isMinimized = has("HIDDEN") && !state.isShaded;
    state.isKeptAbove = has("ABOVE");
    state.isKeptBelow = has("BELOW");
    const QString desktop =
        QRegularExpression(u"_NET_WM_DESKTOP = (\\d+)"_qs).match(text).captured(1);
    state.isOnAllDesktops = desktop == u"4294967295"_qs;
    if (!state.isOnAllDesktops)
        state.desktop = desktop.toInt();
    return state;
}

LMContractView LMX11ContractBackend::view() {
    const QString text =
        LMRunTool(u"xprop -root -notype _NET_CURRENT_DESKTOP _NET_ACTIVE_WINDOW"_qs);
    const auto captured = [&](const QString& pattern) {
        return QRegularExpression(pattern).match(text).captured(1);
    };
    return {captured(u"DESKTOP = (\\d+)"_qs).toInt(),
            {LMElement::Kind::Window,
             captured(u"window id # (0x[0-9a-f]+)"_qs).toLongLong(nullptr, 16)}};
}

QList<QRectF> LMX11ContractBackend::monitors() {
    QList<QRectF> result;
    for (const LMListedMonitor& monitor : LMListMonitors()) {
        result.append(monitor.frame);
        if (monitor.isMain)
            m_mainOrigin = monitor.frame.topLeft();
    }
    for (QRectF& monitor : result)
        monitor.translate(-m_mainOrigin);
    return result;
}

} // namespace

std::unique_ptr<LMContractBackend> LMMakeX11ContractBackend() {
    return std::make_unique<LMX11ContractBackend>();
}
