// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

struct LMXcbFree {
    void operator()(void* memory) const { std::free(memory); }
};

/// Owns what xcb allocates: replies, errors and events.
template <class T>
using LMXcbReply = std::unique_ptr<T, LMXcbFree>;

using LMXcbEvent = LMXcbReply<xcb_generic_event_t>;
using LMXcbError = LMXcbReply<xcb_generic_error_t>;

/// The event's code without the mark that distinguishes events sent by clients.
inline uint8_t LMXcbEventType(const xcb_generic_event_t& event) {
    return static_cast<uint8_t>(event.response_type & 0x7f);
}
