// The keyboard extension on a connection of our own.
#pragma once

#include "platform/x11/Connection.h"

#include <cstdint>
#include <optional>

namespace nerlo::platform::x11 {

class XkbEvents {
  public:
    // Asks for the events below from the core keyboard; nothing if the server has no such
    // extension.
    static std::optional<XkbEvents> select(Connection &connection);

    std::int32_t device() const { return device_; }
    // Another keyboard, or another map of keys or modifiers.
    bool isMapChange(const xcb_generic_event_t &event) const;
    // Another group of the map became the current one.
    bool isGroupChange(const xcb_generic_event_t &event) const;
    // The current group.
    std::uint32_t group(Connection &connection) const;
    // A held key sends presses without releases between them.
    void detectAutoRepeat(Connection &connection) const;

  private:
    std::uint8_t firstEvent_ = 0;
    std::int32_t device_ = 0;
};

} // namespace nerlo::platform::x11
