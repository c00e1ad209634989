// A clipboard owner in an X11 session; OwnerOptions.h tells what it can do.
//
// x11-owner --manager: is a clipboard manager instead. It prints "managing", and when it is asked
// to save the content it has xclip own the text from then on.
//
// x11-owner --watch: owns nothing, and prints "changed" for each time that somebody takes the
// clipboard, after "watching".
#include "OwnerOptions.h"
#include "platform/x11/Connection.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <unistd.h>
#include <xcb/xfixes.h>

namespace {

using namespace nerlo::platform::x11;
using nerlo::test::OwnerOptions;

constexpr std::size_t pieceSize = 64 * 1024;
constexpr std::size_t noLimit = std::numeric_limits<std::size_t>::max();

class Owner {
  public:
    explicit Owner(OwnerOptions options)
        : options_(std::move(options)) {}

    int run() {
        if (!x_) {
            std::cerr << "x11-owner: no display\n";
            return 1;
        }
        window_ = x_->makeWindow(XCB_EVENT_MASK_PROPERTY_CHANGE);
        if (options_.has("--watch")) {
            return printChanges();
        }
        const bool manager = options_.has("--manager");
        own(manager ? "CLIPBOARD_MANAGER" : "CLIPBOARD");
        std::cout << (manager ? "managing" : "owned") << std::endl;
        while (const auto event = next()) {
            if (type(event) == XCB_SELECTION_CLEAR) {
                const auto lost = as<xcb_selection_clear_event_t>(event).selection;
                if (lost == x_->atom("CLIPBOARD")) {
                    std::cout << "replaced" << std::endl;
                    return 0;
                }
            } else if (type(event) == XCB_SELECTION_REQUEST) {
                answer(as<xcb_selection_request_event_t>(event));
            } else if (type(event) == XCB_PROPERTY_NOTIFY) {
                sendNext(as<xcb_property_notify_event_t>(event));
            }
        }
        return 1;
    }

  private:
    struct Sending {
        xcb_atom_t type;
        std::string bytes;
        std::size_t sent = 0;
    };

    template <class T>
    static const T &as(const Event &event) {
        return reinterpret_cast<const T &>(*event);
    }
    static int type(const Event &event) { return event->response_type & 0x7f; }
    Event next() {
        xcb_flush(x_->get());
        return Event(xcb_wait_for_event(x_->get()));
    }
    // The next event of this type, and none of those before it.
    Event await(int awaited) {
        auto event = next();
        while (event && type(event) != awaited) {
            event = next();
        }
        return event;
    }

    int printChanges() {
        const auto *fixes = xcb_get_extension_data(x_->get(), &xcb_xfixes_id);
        std::free(xcb_xfixes_query_version_reply(
            x_->get(), xcb_xfixes_query_version(x_->get(), 5, 0), nullptr));
        xcb_xfixes_select_selection_input(x_->get(), window_, x_->atom("CLIPBOARD"),
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER);
        x_->atom("SYNCHRONIZE");
        std::cout << "watching" << std::endl;
        while (await(fixes->first_event + XCB_XFIXES_SELECTION_NOTIFY)) {
            std::cout << "changed" << std::endl;
        }
        return 1;
    }

    // Who takes it at the same moment may have a later time, and then keeps it.
    void own(const char *selection) {
        for (Reply<xcb_get_selection_owner_reply_t> owner; !owner || owner->owner != window_;) {
            set(window_, x_->atom("TIME"), XCB_ATOM_INTEGER, 8, "");
            const auto event = await(XCB_PROPERTY_NOTIFY);
            xcb_set_selection_owner(x_->get(), window_, x_->atom(selection),
                                    as<xcb_property_notify_event_t>(event).time);
            owner.reset(xcb_get_selection_owner_reply(
                x_->get(), xcb_get_selection_owner(x_->get(), x_->atom(selection)), nullptr));
        }
    }

    void set(xcb_window_t window, xcb_atom_t property, xcb_atom_t propertyType, std::uint8_t unit,
             std::string_view bytes) {
        xcb_change_property(x_->get(), XCB_PROP_MODE_REPLACE, window, property, propertyType, unit,
                            static_cast<std::uint32_t>(bytes.size() * 8 / unit), bytes.data());
    }

    void answer(const xcb_selection_request_event_t &request) {
        const auto format = x_->names(std::array{request.target}, 255).front();
        std::cout << "send " << format << std::endl;
        if (!options_.mayAnswer(format)) {
            return;
        }
        xcb_selection_notify_event_t notify{XCB_SELECTION_NOTIFY,
                                            0,
                                            0,
                                            request.time,
                                            request.requestor,
                                            request.selection,
                                            request.target,
                                            request.property};
        const auto found = options_.data.find(format);
        if (format == "SAVE_TARGETS" && options_.has("--manager")) {
            save();
        } else if (format == "TARGETS") {
            std::string atoms;
            const auto add = [&](const std::string &name) {
                const auto atom = x_->atom(name);
                atoms.append(reinterpret_cast<const char *>(&atom), sizeof atom);
            };
            add("TARGETS");
            for (const auto &[name, bytes] : options_.data) {
                add(name);
            }
            for (int i = 0; i < options_.moreFormats; ++i) {
                add("x/" + std::to_string(i));
            }
            set(request.requestor, request.property, XCB_ATOM_ATOM, 32, atoms);
        } else if (found == options_.data.end() || options_.has("--refuse")) {
            notify.property = XCB_NONE;
        } else if (found->second.size() <= pieceSize && options_.deliver == noLimit &&
                   !options_.has("--endless")) {
            set(request.requestor, request.property, request.target, 8, found->second);
        } else {
            const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
            xcb_change_window_attributes(x_->get(), request.requestor, XCB_CW_EVENT_MASK, &mask);
            sendings_[{request.requestor, request.property}] = {request.target, found->second};
            set(request.requestor, request.property, x_->atom("INCR"), 32, std::string(4, '\0'));
        }
        std::array<char, 32> wire{};
        std::copy_n(reinterpret_cast<const char *>(&notify), sizeof notify, wire.begin());
        xcb_send_event(x_->get(), 0, request.requestor, 0, wire.data());
    }

    // Another program takes the text over while its owner is still there.
    static void save() {
        const auto saved = std::string(std::getenv("NERLO_SESSION_DIR")) + "/saved";
        const auto clipboard = "xclip -selection clipboard -t UTF8_STRING ";
        if (std::system((clipboard + ("-o >" + saved)).c_str()) == 0 &&
            std::system((clipboard + ("-i " + saved + " >/dev/null")).c_str()) == 0) {
            std::cout << "saved" << std::endl;
        }
    }

    void sendNext(const xcb_property_notify_event_t &event) {
        const auto found = sendings_.find({event.window, event.atom});
        if (event.state != XCB_PROPERTY_DELETE || found == sendings_.end()) {
            return;
        }
        auto &sending = found->second;
        if (sending.sent >= options_.deliver) {
            if (options_.dies) {
                _exit(1);
            }
            return;
        }
        const auto piece =
            options_.has("--endless")
                ? std::string(pieceSize, 'x')
                : sending.bytes.substr(std::min(sending.sent, sending.bytes.size()), pieceSize);
        set(event.window, event.atom, sending.type, 8, piece);
        sending.sent += piece.size();
        if (piece.empty()) {
            sendings_.erase(found);
        }
    }

    OwnerOptions options_;
    std::unique_ptr<Connection> x_ = Connection::open();
    xcb_window_t window_ = XCB_NONE;
    std::map<std::pair<xcb_window_t, xcb_atom_t>, Sending> sendings_;
};

} // namespace

int main(int argc, char **argv) {
    return Owner(OwnerOptions(argc, argv)).run();
}
