// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11WindowRecords.h"

#include "Platform/LMDesktopEntries.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <vector>

LMX11WindowRecords::LMX11WindowRecords(LMX11Connection& connection,
                                       LMDesktopEntries& desktopEntries)
    : m_connection(connection), m_desktopEntries(desktopEntries),
      m_entryTable(desktopEntries.table()),
      m_observer(connection.addEventObserver([this](const auto& event) { note(event); })) {}

const LMX11WindowRecord* LMX11WindowRecords::record(xcb_window_t window) const {
    const auto found = m_records.constFind(window);
    return found != m_records.cend() ? &*found : nullptr;
}

bool LMX11WindowRecords::refresh(const QList<xcb_window_t>& windows) {
    const bool hasRead = readStaleWindows(windows);
    const bool hasIdentified = identifyAllAgain();
    return std::exchange(m_hasForgotten, false) || hasRead || hasIdentified;
}

/// Also windows without a record: others may have heard of them.
void LMX11WindowRecords::forget(xcb_window_t window) {
    m_hasForgotten = m_records.remove(window) || m_hasForgotten;
    m_vanished.append(window);
}

/// Marks what the event makes stale. Runs in the middle of other people's requests.
void LMX11WindowRecords::note(const xcb_generic_event_t& event) {
    const uint8_t type = LMXcbEventType(event);
    if (type == XCB_DESTROY_NOTIFY) {
        const auto& destroyed = reinterpret_cast<const xcb_destroy_notify_event_t&>(event);
        forget(destroyed.window);
    } else if (type == XCB_FOCUS_IN) {
        // The manager's property would not tell of activations between two looks at it.
        noteUse(reinterpret_cast<const xcb_focus_in_event_t&>(event).event);
    } else if (type == XCB_PROPERTY_NOTIFY) {
        const auto& changed = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        const auto record = m_records.find(changed.window);
        if (record == m_records.end())
            return;
        record->areFactsStale |= LMX11ApplicationFactsRequest::restOn(m_connection, changed.atom);
        record->isPresentationStale |=
            LMX11PresentationRequest::restsOn(m_connection, changed.atom);
    }
}

void LMX11WindowRecords::noteUse(xcb_window_t window) {
    const auto record = m_records.find(window);
    if (record != m_records.end() &&
        (record->lastActive == 0 || record->lastActive != m_activations))
        record->lastActive = ++m_activations;
}

/// What is to be asked about one window.
struct LMX11WindowRecords::Request {
    xcb_window_t window;
    std::optional<LMX11ApplicationFactsRequest> facts;
    std::optional<LMX11PresentationRequest> presentation;
};

/// One round trip for all windows that are new or have changed.
bool LMX11WindowRecords::readStaleWindows(const QList<xcb_window_t>& windows) {
    std::vector<Request> requests;
    QList<xcb_window_t> withStaleFacts;
    for (const xcb_window_t window : windows) {
        const auto record = m_records.constFind(window);
        const bool isNew = record == m_records.cend();
        if (isNew) // Before it is read, so that no change in between is missed.
            m_connection.selectEvents(window,
                                      XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_FOCUS_CHANGE);
        Request request{window, {}, {}};
        if (isNew || record->areFactsStale) {
            request.facts.emplace(m_connection, window);
            withStaleFacts.append(window);
        }
        if (isNew || record->isPresentationStale)
            request.presentation.emplace(m_connection, window);
        if (request.facts || request.presentation)
            requests.push_back(request);
    }
    const LMX11ClientProcessesRequest clientsRequest(m_connection, withStaleFacts);
    const QHash<uint32_t, qint64> clients = clientsRequest.receive(m_connection);
    Processes processes;
    for (const Request& request : requests)
        receive(request, clients, processes);
    return !requests.empty();
}

void LMX11WindowRecords::receive(const Request& request, const QHash<uint32_t, qint64>& clients,
                                 Processes& processes) {
    auto facts = request.facts ? request.facts->receive(m_connection, clients) : std::nullopt;
    const auto presentation = request.presentation
                                  ? std::optional(request.presentation->receive(m_connection))
                                  : std::nullopt;
    if (request.facts && !facts) {
        forget(request.window);
        return;
    }
    LMX11WindowRecord& record = m_records[request.window];
    if (!record.age.isValid())
        record.age.start();
    if (facts) {
        record.facts = std::move(*facts);
        identify(record, processes);
    }
    if (presentation)
        record.presentation = *presentation;
    record.areFactsStale = false;
    record.isPresentationStale = false;
}

void LMX11WindowRecords::identify(LMX11WindowRecord& record, Processes& processes) const {
    const auto readProcess = [&processes](qint64 process) {
        const auto known = processes.constFind(process);
        return known != processes.cend()
                   ? *known
                   : *processes.insert(process, LMReadProcessInformation(process));
    };
    record.process = LMX11ProcessOfWindow(record.facts, LMHostName(), readProcess);
    record.facts.identity.process = record.process.information;
    record.identity = LMIdentifyApplication(record.facts.identity, *m_entryTable);
    const QString ownIdentifier = QGuiApplication::desktopFileName();
    if (record.process.identifier == QCoreApplication::applicationPid() && !ownIdentifier.isEmpty())
        record.identity.bundleIdentifier = ownIdentifier;
}

/// Applications have been installed or removed.
bool LMX11WindowRecords::identifyAllAgain() {
    auto current = m_desktopEntries.table();
    if (current == m_entryTable)
        return false;
    m_entryTable = std::move(current);
    Processes processes;
    for (LMX11WindowRecord& record : m_records)
        identify(record, processes);
    return true;
}
