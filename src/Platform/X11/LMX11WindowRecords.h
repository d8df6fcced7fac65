// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMX11ApplicationFacts.h"
#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11WindowProcess.h"

#include <QElapsedTimer>

#include <memory>

class LMDesktopEntries;
class LMDesktopEntryTable;

/// What is known of a window, kept while it exists, managed or not.
struct LMX11WindowRecord {
    LMX11ApplicationFacts facts;
    LMX11WindowProcess process;
    LMApplicationIdentity identity;
    LMX11Presentation presentation;
    quint64 lastActive = 0; ///< Grows with every activation seen; 0 for never.
    QElapsedTimer age;      ///< Since the window was first seen.
    bool areFactsStale = true;
    bool isPresentationStale = true;
};

/// Keeps what was found out about windows until an event makes it stale.
class LMX11WindowRecords {
public:
    using Records = QHash<xcb_window_t, LMX11WindowRecord>;

    /// Both must outlive it.
    LMX11WindowRecords(LMX11Connection& connection, LMDesktopEntries& desktopEntries);
    Q_DISABLE_COPY_MOVE(LMX11WindowRecords)

    /// Reads those of the windows that are new or have changed, with one round trip for all of
    /// them. True when any record has changed since the last call. To be called when events have
    /// been received.
    bool refresh(const QList<xcb_window_t>& windows);

    const Records& records() const { return m_records; }
    /// Null for a window that is not known or does not exist any more.
    const LMX11WindowRecord* record(xcb_window_t window) const;

    /// The user works in the window now.
    void noteUse(xcb_window_t window);

    /// The windows that ceased to exist since the last call. One of them may exist again: the
    /// server gives identifiers of destroyed windows to new ones.
    QList<xcb_window_t> takeVanished() { return std::exchange(m_vanished, {}); }

private:
    struct Request;
    using Processes = QHash<qint64, std::optional<LMProcessInformation>>;

    void note(const xcb_generic_event_t& event);
    void forget(xcb_window_t window);
    bool readStaleWindows(const QList<xcb_window_t>& windows);
    void receive(const Request& request, const QHash<uint32_t, qint64>& clients,
                 Processes& processes);
    bool identifyAllAgain();
    void identify(LMX11WindowRecord& record, Processes& processes) const;

    LMX11Connection& m_connection;
    LMDesktopEntries& m_desktopEntries;
    std::shared_ptr<const LMDesktopEntryTable> m_entryTable;
    Records m_records;
    QList<xcb_window_t> m_vanished;
    quint64 m_activations = 0;
    bool m_hasForgotten = false; ///< Since the last refresh.
    LMX11Connection::Subscription m_observer;
};
