// SPDX-License-Identifier: MIT
#include "contract/LMContractBackend.h"
#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11Desktop.h"
#include "Utilities/LMLogger.h"

#include <QRegularExpression>

#include <algorithm>
#include <csignal>
#include <map>
#include <sys/types.h>
#include <unistd.h>
#include <xcb/res.h>

namespace {

QString hex(const LMElement& window) {
    return u"0x%1"_qs.arg(window.identifier, 0, 16);
}

QString property(const LMElement& window, const char* name) {
    return LMRunTool(u"xprop -notype -id %1 %2"_qs.arg(hex(window), QLatin1String(name)));
}

/// Left, right, top, bottom; zero when the window has none.
QMargins extents(const LMElement& window, const char* name) {
    static const QRegularExpression pattern(u"= (\\d+), (\\d+), (\\d+), (\\d+)"_qs);
    const auto match = pattern.match(property(window, name));
    return {match.captured(1).toInt(), match.captured(3).toInt(), match.captured(2).toInt(),
            match.captured(4).toInt()};
}

QRect clientArea(const LMElement& window) {
    static const QRegularExpression pattern(
        u"left X: +(-?\\d+).*?left Y: +(-?\\d+).*?Width: (\\d+)\\s+Height: (\\d+)"_qs,
        QRegularExpression::DotMatchesEverythingOption);
    const auto match = pattern.match(LMRunTool(u"xwininfo -id "_qs + hex(window)));
    return {match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt(),
            match.captured(4).toInt()};
}

QByteArray creation(const LMContractWindow& window, const QString& className) {
    using Kind = LMContractWindow::Kind;
    const QRect& geometry = window.geometry;
    const QString size = u"%1,%2"_qs.arg(geometry.width()).arg(geometry.height());
    QString command =
        u"create class=%1,%1 title=%2 gravity=%3 geometry=%4x%5+%6+%7"_qs
            .arg(className, QString::fromLatin1(window.title.toUtf8().toPercentEncoding()))
            .arg(window.gravity)
            .arg(geometry.width())
            .arg(geometry.height())
            .arg(geometry.x())
            .arg(geometry.y());
    if (window.kind == Kind::Dialog)
        command += u" type=DIALOG"_qs;
    if (window.kind == Kind::Utility)
        command += u" type=UTILITY"_qs;
    if (window.kind == Kind::ClientDecorated)
        command += u" shadow=26,26,23,29"_qs;
    if (window.increment != QSize(1, 1))
        command += u" increment=%1,%2 base=0,0"_qs.arg(window.increment.width())
                       .arg(window.increment.height());
    if (window.isModal)
        command += u" state=MODAL"_qs;
    if (!window.isResizable)
        command += u" minimum=%1 maximum=%1"_qs.arg(size);
    return command.toLatin1();
}

/// Opens windows in processes of their own on the X server of the environment, and looks at them
/// with the server's common tools (xwininfo, xprop, xrandr, wmctrl, xdotool), so that no mistake of
/// the desktop under test is repeated here.
class LMX11ContractBackend final : public LMContractBackend {
public:
    LMX11ContractBackend();
    ~LMX11ContractBackend() override;

    LMDesktop& desktop() override { return *m_desktop; }
    QString identifier(const QString& application) const override {
        return u"contract-%1-%2-%3"_qs.arg(application).arg(getpid()).arg(m_number);
    }
    LMElement openWindow(const LMContractWindow& window) override;
    void closeWindow(const LMElement& window) override { ask(window, u"destroy %1"_qs); }
    void setTitle(const LMElement& window, const QString& title) override {
        ask(window, u"retitle %1 "_qs + QString::fromLatin1(title.toUtf8().toPercentEncoding()));
    }
    void minimize(const LMElement& window) override;
    void setState(const LMElement& window, LMContractState state) override {
        const bool isAbove = state == LMContractState::Above;
        LMRunTool(u"wmctrl -i -r %1 -b add,%2"_qs.arg(hex(window),
                                                      isAbove ? u"above"_qs : u"fullscreen"_qs));
    }
    void raise(const LMElement& window) override;
    void freeze(const QString& application) override;
    void breakConnection() override;
    LMContractKeyboard& keyboard() override { return *m_keyboard; }
    QRectF visibleFrame(const LMElement& window) override;
    bool isMinimized(const LMElement& window) override {
        return property(window, "WM_STATE").contains(u"state: Iconic"_qs);
    }
    QList<QRectF> monitors() override;

private:
    using ProcessKey = std::pair<QString, int>;

    /// "%1" in the command stands for the window.
    void ask(const LMElement& window, const QString& command) {
        m_clients.at(m_owners.at(window.identifier))->ask(command.arg(hex(window)).toLatin1());
    }
    QPointF mainOrigin() const;

    LMLogger m_logger;
    std::unique_ptr<LMX11Connection> m_connection; ///< Not the desktop's.
    std::unique_ptr<LMContractKeyboard> m_keyboard;
    std::unique_ptr<LMDesktop> m_desktop;
    std::map<ProcessKey, std::unique_ptr<LMWindowClient>> m_clients;
    std::map<qint64, ProcessKey> m_owners; ///< By window.
    QList<pid_t> m_frozen;
    int m_number; ///< Of the test.
};

LMX11ContractBackend::LMX11ContractBackend() {
    static int tests = 0;
    m_number = ++tests;
    QString reason;
    m_connection = LMX11Connection::open(QString(), m_logger, &reason);
    m_desktop = LMX11Backend().create(m_logger, &reason);
    if (!m_connection || !m_desktop)
        throw std::runtime_error(reason.toStdString());
    m_keyboard = LMMakeX11ContractKeyboard(*m_connection);
}

LMX11ContractBackend::~LMX11ContractBackend() {
    for (const pid_t process : std::as_const(m_frozen))
        kill(process, SIGCONT);
    m_clients.clear();
    // The server will give the windows' numbers to those of the next test.
    LMWaitUntil([this] {
        const QString listed = LMRunTool(u"xprop -root _NET_CLIENT_LIST"_qs);
        return std::ranges::none_of(m_owners, [&](const auto& owner) {
            return listed.contains(u"0x%1"_qs.arg(owner.first, 0, 16));
        });
    });
}

LMElement LMX11ContractBackend::openWindow(const LMContractWindow& window) {
    const ProcessKey key(window.application, window.process);
    auto& client = m_clients[key];
    if (!client)
        client = std::make_unique<LMWindowClient>(QStringLiteral(ROOK_WINDOW_SPAWNER));
    const QByteArray answer = client->ask(creation(window, identifier(window.application)));
    const LMElement element{LMElement::Kind::Window, answer.split(' ').at(1).toLongLong(nullptr, 0),
                            0};
    m_owners[element.identifier] = key;
    // Managed, decorated, placed, and nothing has moved from one look to the next.
    const bool isDecorated = window.kind != LMContractWindow::Kind::ClientDecorated;
    QRectF last;
    const bool hasSettled = LMWaitUntil([&] {
        const QRectF frame = visibleFrame(element);
        return std::exchange(last, frame) == frame &&
               property(element, "WM_STATE").contains(u"state: Normal"_qs) &&
               (!isDecorated || !extents(element, "_NET_FRAME_EXTENTS").isNull());
    });
    if (!hasSettled)
        throw std::runtime_error("the window manager did not show the window");
    return element;
}

void LMX11ContractBackend::minimize(const LMElement& window) {
    const QRectF before = visibleFrame(window);
    LMRunTool(u"xdotool windowminimize "_qs + hex(window));
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

void LMX11ContractBackend::freeze(const QString& application) {
    for (const auto& [key, client] : m_clients) {
        if (key.first != application)
            continue;
        m_frozen.append(pid_t(client->process()));
        kill(m_frozen.last(), SIGSTOP);
    }
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
    const QRectF frame = clientArea(window)
                             .marginsAdded(extents(window, "_NET_FRAME_EXTENTS"))
                             .marginsRemoved(extents(window, "_GTK_FRAME_EXTENTS"));
    return QRectF(frame).translated(-mainOrigin());
}

QPointF LMX11ContractBackend::mainOrigin() const {
    static const QRegularExpression main(u": \\+\\*\\S+ \\S+x\\d+/\\d+([+-]\\d+)([+-]\\d+)"_qs);
    const auto match = main.match(LMRunTool(u"xrandr --listmonitors"_qs));
    return {match.captured(1).toDouble(), match.captured(2).toDouble()};
}

QList<QRectF> LMX11ContractBackend::monitors() {
    static const QRegularExpression pattern(u"(\\d+)/\\d+x(\\d+)/\\d+([+-]\\d+)([+-]\\d+)"_qs);
    const QString text = LMRunTool(u"xrandr --listmonitors"_qs);
    QList<QRectF> result;
    for (auto match = pattern.globalMatch(text); match.hasNext();) {
        const auto monitor = match.next();
        result.append(QRectF(monitor.captured(3).toInt(), monitor.captured(4).toInt(),
                             monitor.captured(1).toInt(), monitor.captured(2).toInt())
                          .translated(-mainOrigin()));
    }
    return result;
}

} // namespace

std::unique_ptr<LMContractBackend> LMMakeX11ContractBackend() {
    return std::make_unique<LMX11ContractBackend>();
}
