// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11ApplicationIndex.h"

#include "Platform/X11/LMX11ApplicationTable.h"
#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11LaunchWatch.h"
#include "Platform/X11/LMX11ManagerLists.h"
#include "Platform/X11/LMX11WindowManager.h"
#include "Platform/X11/LMX11WindowRecords.h"

#include <QAbstractEventDispatcher>
#include <QTimer>

using namespace std::chrono_literals;

namespace {

/// How long a window that says nothing about its application may keep its launch back.
constexpr auto settlingTime = 1000ms;

/// Without an event loop nobody waits for signals either.
void arm(QTimer& timer) {
    if (!timer.isActive() && QAbstractEventDispatcher::instance() != nullptr)
        timer.start();
}

} // namespace

struct LMX11ApplicationIndex::Private {
    Private(LMX11ApplicationIndex& index, LMX11Connection& xConnection, LMDesktopEntries& entries);

    void scheduleUpdate(const xcb_generic_event_t& event);
    void update();
    void refresh();
    void group();
    void watchLaunches();
    bool isSettled(xcb_window_t window) const;
    void ignoreExistingWindows();

    LMX11ApplicationIndex& q;
    LMX11Connection& connection;
    LMX11WindowRecords windowRecords;
    LMX11ManagerLists lists;
    LMX11ApplicationTable table;
    LMX11LaunchWatch launches;
    QStringList pendingLaunches;
    QList<xcb_window_t> stackingOrder; ///< Without windows that vanished.
    bool isChanged = true;             ///< Something that grouping rests on.
    QTimer updateTimer;
    QTimer settlingTimer;
    LMX11Connection::Subscription filter;
};

LMX11ApplicationIndex::Private::Private(LMX11ApplicationIndex& index, LMX11Connection& xConnection,
                                        LMDesktopEntries& entries)
    : q(index), connection(xConnection), windowRecords(xConnection, entries) {
    updateTimer.setSingleShot(true);
    settlingTimer.setSingleShot(true);
    settlingTimer.setInterval(settlingTime);
    QObject::connect(&updateTimer, &QTimer::timeout, &q, [this] { update(); });
    QObject::connect(&settlingTimer, &QTimer::timeout, &q, [this] {
        isChanged = true;
        update();
    });
    connection.selectEvents(connection.root(), XCB_EVENT_MASK_PROPERTY_CHANGE);
    filter = connection.addEventFilter([this](const auto& event) { scheduleUpdate(event); });
    refresh();
    ignoreExistingWindows();
}

/// What exists when the program starts was not launched now. As long as no window manager runs,
/// that goes for all windows on the screen, which the manager will take over.
void LMX11ApplicationIndex::Private::ignoreExistingWindows() {
    pendingLaunches.clear();
    launches.ignore(windowRecords.records().keys());
    if (LMX11WindowManager(connection).isRunning())
        return;
    const auto tree =
        connection.reply(xcb_query_tree_reply, xcb_query_tree(connection.xcb(), connection.root()));
    if (!tree)
        return;
    const xcb_window_t* begin = xcb_query_tree_children(tree.get());
    const QList<xcb_window_t> children(begin, begin + xcb_query_tree_children_length(tree.get()));
    for (const xcb_window_t window : children) // To hear of their end.
        connection.selectEvents(window, XCB_EVENT_MASK_NO_EVENT);
    launches.ignore(children);
}

/// Windows come and go, identities arrive late, and the most recently used window changes: all of
/// that is noticed without being asked.
void LMX11ApplicationIndex::Private::scheduleUpdate(const xcb_generic_event_t& event) {
    if (LMXcbEventType(event) != XCB_PROPERTY_NOTIFY)
        return;
    const auto& changed = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    const xcb_ewmh_connection_t& atoms = connection.ewmhAtoms();
    const bool isOfInterest =
        changed.window == connection.root()
            ? changed.atom == atoms._NET_CLIENT_LIST || changed.atom == atoms._NET_ACTIVE_WINDOW
            : LMX11ApplicationFactsRequest::restOn(connection, changed.atom);
    if (isOfInterest)
        arm(updateTimer);
}

void LMX11ApplicationIndex::Private::update() {
    refresh();
    const QStringList launched = std::exchange(pendingLaunches, {});
    for (const QString& identifier : launched)
        Q_EMIT q.applicationLaunched(identifier);
}

void LMX11ApplicationIndex::Private::refresh() {
    LMX11ManagerLists current = LMX11ReadManagerLists(connection);
    connection.receiveEvents();
    isChanged = isChanged || current != lists;
    lists = std::move(current);
    isChanged = windowRecords.refresh(lists.windows) || isChanged;
    windowRecords.noteUse(lists.activeWindow);
    const QList<xcb_window_t> vanished = windowRecords.takeVanished();
    for (const xcb_window_t window : vanished)
        launches.forget(window);
    if (std::exchange(isChanged, false)) {
        group();
        watchLaunches();
    }
}

void LMX11ApplicationIndex::Private::group() {
    // A window that says nothing of itself belongs to the application of its process.
    QHash<qint64, const LMApplicationIdentity*> identities;
    for (const LMX11WindowRecord& record : windowRecords.records()) {
        if (!record.identity.bundleIdentifier.isEmpty())
            identities.insert(record.process.identifier, &record.identity);
    }
    QList<LMX11ApplicationWindow> windows;
    for (const xcb_window_t window : std::as_const(lists.windows)) {
        const LMX11WindowRecord* record = windowRecords.record(window);
        if (record == nullptr)
            continue;
        const bool isNamed = !record->identity.bundleIdentifier.isEmpty();
        const LMApplicationIdentity* identity =
            isNamed ? &record->identity : identities.value(record->process.identifier);
        if (identity == nullptr)
            continue;
        const auto& information = record->process.information;
        windows.append({window, identity->bundleIdentifier, identity->localizedName,
                        record->process.identifier, information ? information->startTime : 0,
                        record->presentation.isListed()});
    }
    stackingOrder = lists.stackingOrder;
    stackingOrder.removeIf([this](xcb_window_t window) { return !windowRecords.record(window); });
    table.update(windows, stackingOrder);
}

bool LMX11ApplicationIndex::Private::isSettled(xcb_window_t window) const {
    const LMX11WindowRecord* record = windowRecords.record(window);
    if (record == nullptr)
        return false;
    const LMWindowIdentityFacts& said = record->facts.identity;
    return !said.wmClassName.isEmpty() || !said.wmClassInstance.isEmpty() ||
           !said.gtkApplicationID.isEmpty() || record->age.hasExpired(settlingTime.count());
}

void LMX11ApplicationIndex::Private::watchLaunches() {
    QList<LMX11LaunchWatch::Window> listed;
    bool isSettling = false;
    for (const LMX11Application& application : table.applications()) {
        for (const xcb_window_t window : application.windows) {
            const bool isWindowSettled = isSettled(window);
            isSettling = isSettling || !isWindowSettled;
            listed.append({window, application.bundleIdentifier, isWindowSettled});
        }
    }
    pendingLaunches += launches.update(listed);
    if (!pendingLaunches.isEmpty())
        arm(updateTimer);
    if (isSettling)
        arm(settlingTimer);
}

LMX11ApplicationIndex::LMX11ApplicationIndex(LMX11Connection& connection,
                                             LMDesktopEntries& desktopEntries)
    : d(std::make_unique<Private>(*this, connection, desktopEntries)) {}

LMX11ApplicationIndex::~LMX11ApplicationIndex() = default;

void LMX11ApplicationIndex::refresh() {
    d->refresh();
}

const QList<LMX11Application>& LMX11ApplicationIndex::applications() const {
    return d->table.applications();
}

const LMX11Application* LMX11ApplicationIndex::application(qint64 processIdentifier) const {
    return d->table.application(processIdentifier);
}

const LMX11Application*
LMX11ApplicationIndex::applicationWithIdentifier(const QString& bundleIdentifier) const {
    return d->table.applicationWithIdentifier(bundleIdentifier);
}

const LMX11Application* LMX11ApplicationIndex::applicationOfWindow(xcb_window_t window) const {
    return d->table.applicationOfWindow(window);
}

const QList<xcb_window_t>& LMX11ApplicationIndex::stackingOrder() const {
    return d->stackingOrder;
}

xcb_window_t LMX11ApplicationIndex::activeWindow() const {
    return d->lists.activeWindow;
}

std::optional<LMX11WindowPresence> LMX11ApplicationIndex::presence(xcb_window_t window) const {
    const LMX11WindowRecord* record = d->windowRecords.record(window);
    if (record == nullptr)
        return std::nullopt;
    const LMX11Presentation& presentation = record->presentation;
    const bool isInSight =
        !presentation.isMinimized() && presentation.isOnDesktop(d->lists.currentDesktop);
    return LMX11WindowPresence{presentation.isListed(), presentation.isInTaskBars(),
                               presentation.isMinimized(), isInSight, record->lastActive};
}
