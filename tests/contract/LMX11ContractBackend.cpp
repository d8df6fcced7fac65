// SPDX-License-Identifier: MIT
#include "contract/LMContractBackend.h"
#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11Desktop.h"
#include "Utilities/LMLogger.h"

#include <QRegularExpression>

#include <array>
#include <map>

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
    void setState(const LMElement& window, const LMWindowState& state) override;
    void raise(const LMElement& window) override;
    QRectF visibleFrame(const LMElement& window) override;
    LMWindowState visibleState(const LMElement& window) override;
    LMContractView view() override;
    QList<QRectF> monitors() override;

private:
    LMWindowClient& client(const LMElement& window) { return *m_owners.at(window.identifier); }
    static QString properties(const LMElement& window) {
        return LMRunTool(
            u"xprop -notype -id %1 WM_STATE _NET_FRAME_EXTENTS _GTK_FRAME_EXTENTS"_qs.arg(
                window.identifier));
    }

    LMLogger m_logger;
    std::unique_ptr<LMX11Connection> m_connection; ///< Not the desktop's.
    std::unique_ptr<LMDesktop> m_desktop;
    std::map<QString, std::unique_ptr<LMWindowClient>> m_clients; ///< By application.
    std::map<qint64, LMWindowClient*> m_owners;                   ///< By window.
    QPointF m_mainOrigin; ///< Where the main monitor stood when monitors were last read.
};

LMX11ContractBackend::LMX11ContractBackend() {
    QString reason;
    m_connection = LMX11Connection::open(QString(), m_logger, &reason);
    m_desktop = LMX11Backend().create(m_logger, &reason);
    if (!m_connection || !m_desktop)
        throw std::runtime_error(reason.toStdString());
    monitors();
}

LMX11ContractBackend::~LMX11ContractBackend() {
    m_clients.clear();
    // The next test begins without windows: the server will give them the same numbers.
    LMWaitUntilNoWindowIsListed();
}

LMElement LMX11ContractBackend::openWindow(const LMContractWindow& window) {
    auto& client = m_clients[window.application];
    if (!client)
        client = std::make_unique<LMWindowClient>();
    const QByteArray number = client->ask(creation(window).toLatin1()).split(' ').at(1);
    const LMElement element{LMElement::Kind::Window, number.toLongLong(nullptr, 0), 0};
    m_owners[element.identifier] = client.get();
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

void LMX11ContractBackend::setState(const LMElement& window, const LMWindowState& state) {
    const LMWindowState now = visibleState(window);
    const QRectF before = visibleFrame(window);
    const std::tuple<bool, bool, const char*> flags[] = {
        {now.isMaximizedVertically, state.isMaximizedVertically, "maximized_vert"},
        {now.isMaximizedHorizontally, state.isMaximizedHorizontally, "maximized_horz"},
        {now.isFullscreen, state.isFullscreen, "fullscreen"},
        {now.isShaded, state.isShaded, "shaded"},
        {now.isKeptAbove, state.isKeptAbove, "above"},
    };
    QStringList words;
    for (const auto& [is, shallBe, word] : flags)
        if (is != shallBe)
            words.append(QLatin1String(word));
    const auto run = [&](const QString& command) { LMRunTool(command.arg(window.identifier)); };
    if (!words.isEmpty())
        run(u"wmctrl -i -r %1 -b toggle,"_qs + words.join(u','));
    if (now.desktop != state.desktop)
        run(u"wmctrl -i -r %1 -t "_qs + QString::number(state.desktop.value_or(-1)));
    if (!now.isMinimized && state.isMinimized)
        run(u"xdotool windowminimize %1"_qs);
    if (now.isMinimized && !state.isMinimized)
        raise(window);
    // openbox draws how a window shrinks to an icon by moving its frame about.
    const auto isSo = [&] {
        return visibleState(window) == state &&
               (!state.isMinimized || visibleFrame(window) == before);
    };
    if (!LMWaitUntil(isSo))
        throw std::runtime_error("the window manager did not set the state");
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
    const QStringList lines = LMRunTool(u"xdotool get_desktop getactivewindow"_qs).split(u'\n');
    return {lines.value(0).toInt(), {LMElement::Kind::Window, lines.value(1).toLongLong()}};
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
