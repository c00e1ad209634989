#include "platform/x11/Connection.h"

#include <cstring>

namespace nerlo::platform::x11 {

namespace {

// Of one answer of the server, in units of four bytes: large properties come in several.
constexpr std::uint32_t propertyPiece = 256 * 1024;

} // namespace

std::vector<std::uint32_t> Property::words() const {
    std::vector<std::uint32_t> result;
    if (unit == 32) {
        result.resize(bytes.size() / sizeof(std::uint32_t));
        std::memcpy(result.data(), bytes.data(), result.size() * sizeof(std::uint32_t));
    }
    return result;
}

std::unique_ptr<Connection> Connection::open() {
    int number = 0;
    auto *connection = xcb_connect(nullptr, &number);
    if (xcb_connection_has_error(connection) != 0) {
        xcb_disconnect(connection);
        return nullptr;
    }
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; number > 0 && screens.rem > 1; --number) {
        xcb_screen_next(&screens);
    }
    return std::unique_ptr<Connection>(new Connection(connection, screens.data));
}

Connection::~Connection() {
    xcb_disconnect(connection_);
}

xcb_atom_t Connection::atom(std::string_view name) {
    if (const auto known = atoms_.find(name); known != atoms_.end()) {
        return known->second;
    }
    const auto cookie =
        xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection_, cookie, nullptr));
    if (!reply) {
        return XCB_NONE;
    }
    atoms_.emplace(name, reply->atom);
    return reply->atom;
}

std::vector<std::string> Connection::names(std::span<const xcb_atom_t> atoms, std::size_t longest) {
    std::vector<xcb_get_atom_name_cookie_t> cookies;
    for (const auto atom : atoms) {
        cookies.push_back(xcb_get_atom_name(connection_, atom));
    }
    std::vector<std::string> result;
    for (const auto cookie : cookies) {
        xcb_generic_error_t *error = nullptr;
        const Reply<xcb_get_atom_name_reply_t> reply(
            xcb_get_atom_name_reply(connection_, cookie, &error));
        std::free(error);
        auto &name = result.emplace_back();
        if (reply && reply->name_len <= longest) {
            name.assign(xcb_get_atom_name_name(reply.get()), reply->name_len);
        }
    }
    return result;
}

xcb_window_t Connection::makeWindow(std::uint32_t eventMask) {
    const auto window = xcb_generate_id(connection_);
    xcb_create_window(connection_, XCB_COPY_FROM_PARENT, window, screen_->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &eventMask);
    return window;
}

std::optional<Property> Connection::property(xcb_window_t window, xcb_atom_t name,
                                             std::size_t limit, bool thenDelete) {
    Property result;
    for (;;) {
        const auto cookie =
            xcb_get_property(connection_, thenDelete, window, name, XCB_GET_PROPERTY_TYPE_ANY,
                             static_cast<std::uint32_t>(result.bytes.size() / 4), propertyPiece);
        xcb_generic_error_t *error = nullptr;
        const Reply<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(connection_, cookie, &error));
        std::free(error);
        if (!reply || reply->type == XCB_NONE) {
            return std::nullopt;
        }
        const auto length = static_cast<std::size_t>(xcb_get_property_value_length(reply.get()));
        if (result.bytes.size() + length + reply->bytes_after > limit) {
            return std::nullopt;
        }
        result.type = reply->type;
        result.unit = reply->format;
        result.bytes.append(static_cast<const char *>(xcb_get_property_value(reply.get())), length);
        if (reply->bytes_after == 0) {
            return result;
        }
    }
}

} // namespace nerlo::platform::x11
