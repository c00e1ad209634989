#include "platform/x11/XkbEvents.h"

#include "platform/x11/XkbProtocol.h"

#include <xkbcommon/xkbcommon-x11.h>

namespace nerlo::platform::x11 {

namespace {

constexpr auto coreKeyboard = static_cast<xcb_xkb_device_spec_t>(XCB_XKB_ID_USE_CORE_KBD);

// Every event of the extension has its own kind in the second byte.
std::uint8_t kindOf(const xcb_generic_event_t &event) {
    return event.pad0;
}

} // namespace

std::optional<XkbEvents> XkbEvents::select(Connection &connection) {
    XkbEvents events;
    if (xkb_x11_setup_xkb_extension(connection.get(), 1, 0, XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS,
                                    nullptr, nullptr, &events.firstEvent_, nullptr) == 0) {
        return std::nullopt;
    }
    events.device_ = xkb_x11_get_core_keyboard_device_id(connection.get());
    if (events.device_ < 0) {
        return std::nullopt;
    }
    constexpr std::uint16_t whole =
        XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr std::uint16_t parts =
        XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP |
        XCB_XKB_MAP_PART_EXPLICIT_COMPONENTS | XCB_XKB_MAP_PART_VIRTUAL_MODS |
        XCB_XKB_MAP_PART_VIRTUAL_MOD_MAP;
    xcb_xkb_select_events_details_t details{};
    details.affectState = details.stateDetails = XCB_XKB_STATE_PART_GROUP_STATE;
    xcb_xkb_select_events_aux(connection.get(), coreKeyboard,
                              whole | XCB_XKB_EVENT_TYPE_STATE_NOTIFY, 0, whole, parts, parts,
                              &details);
    return events;
}

bool XkbEvents::isMapChange(const xcb_generic_event_t &event) const {
    const auto type = event.response_type & 0x7f;
    return type == XCB_MAPPING_NOTIFY ||
           (type == firstEvent_ &&
            (kindOf(event) == XCB_XKB_NEW_KEYBOARD_NOTIFY || kindOf(event) == XCB_XKB_MAP_NOTIFY));
}

bool XkbEvents::isGroupChange(const xcb_generic_event_t &event) const {
    return (event.response_type & 0x7f) == firstEvent_ && kindOf(event) == XCB_XKB_STATE_NOTIFY;
}

std::uint32_t XkbEvents::group(Connection &connection) const {
    const Reply<xcb_xkb_get_state_reply_t> reply(xcb_xkb_get_state_reply(
        connection.get(), xcb_xkb_get_state(connection.get(), coreKeyboard), nullptr));
    return reply ? reply->group : 0;
}

void XkbEvents::detectAutoRepeat(Connection &connection) const {
    constexpr std::uint32_t flag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    const Reply<xcb_xkb_per_client_flags_reply_t> reply(xcb_xkb_per_client_flags_reply(
        connection.get(),
        xcb_xkb_per_client_flags(connection.get(), coreKeyboard, flag, flag, 0, 0, 0), nullptr));
}

} // namespace nerlo::platform::x11
