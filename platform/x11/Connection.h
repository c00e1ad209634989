// A connection to the X server of one thread's own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <xcb/xcb.h>

namespace nerlo::platform::x11 {

struct Free {
    void operator()(void *pointer) const { std::free(pointer); }
};
// What xcb hands over is freed with free().
template <class T>
using Reply = std::unique_ptr<T, Free>;
using Event = Reply<xcb_generic_event_t>;

struct Property {
    xcb_atom_t type = XCB_NONE;
    int unit = 0; // 8, 16 or 32 bits
    std::string bytes;

    // The elements, if the unit is 32 bits; else nothing.
    std::vector<std::uint32_t> words() const;
};

// Why a backend declines without one.
inline constexpr const char *noDisplay = "no X display";

class Connection {
  public:
    // The display in $DISPLAY; null if there is none that answers.
    static std::unique_ptr<Connection> open();
    ~Connection();
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    xcb_connection_t *get() const { return connection_; }
    const xcb_screen_t &screen() const { return *screen_; }
    bool broken() const { return xcb_connection_has_error(connection_) != 0; }

    // Interned once; 0 if the connection is broken.
    xcb_atom_t atom(std::string_view name);
    // The names of `atoms`, empty for one that does not exist or is longer than `longest` bytes.
    std::vector<std::string> names(std::span<const xcb_atom_t> atoms, std::size_t longest);

    // A window that is never shown.
    xcb_window_t makeWindow(std::uint32_t eventMask);

    // Reads a property of any type, and deletes it if told to. Nothing if there is none, or if it
    // is larger than `limit` bytes; it is not deleted then.
    std::optional<Property> property(xcb_window_t window, xcb_atom_t name, std::size_t limit,
                                     bool thenDelete);

  private:
    explicit Connection(xcb_connection_t *connection, const xcb_screen_t *screen)
        : connection_(connection)
        , screen_(screen) {}

    xcb_connection_t *connection_;
    const xcb_screen_t *screen_;
    std::map<std::string, xcb_atom_t, std::less<>> atoms_;
};

} // namespace nerlo::platform::x11
