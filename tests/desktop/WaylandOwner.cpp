// wayland-owner [OPTION...] FORMAT=VALUE...: a program that owns the clipboard and offers several
// formats; VALUE is a text, @FILE, or *N for N letters, and has no "=" in it. For the tests it can
// also misbehave:
//
//   --hang             never deliver anything
//   --refuse           close each request without a byte
//   --stall-after N    deliver N bytes, and then nothing more
//   --die-after N      deliver N bytes, and die
//   --endless          deliver the value over and over
//   --more-formats N   offer so many formats more, which are never delivered
//
// Prints "owned" when it owns the clipboard, "send FORMAT" for each request, and "replaced" when it
// lost the clipboard, which ends it.
#include "platform/wayland/DataControl.h"
#include "platform/wayland/EventLoop.h"
#include "platform/wayland/Registry.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include <unistd.h>
#include <wayland-client.h>

namespace {

using namespace nerlo::platform::wayland;

enum class End { close, stall, die, repeat };

class Owner final : private SourceEvents, private DeviceEvents {
  public:
    std::vector<std::pair<std::string, std::string>> data;
    int moreFormats = 0;
    std::size_t deliver = std::numeric_limits<std::size_t>::max(); // bytes, and then
    End end = End::close;

    int run() {
        wl_display *display = wl_display_connect(nullptr);
        if (!display) {
            std::cerr << "wayland-owner: no compositor\n";
            return 1;
        }
        std::map<std::string, std::uint32_t> globals;
        Registry registry(
            display,
            [&](std::uint32_t name, std::string_view interface, std::uint32_t) {
                globals.emplace(interface, name);
            },
            [](std::uint32_t) {});
        wl_display_roundtrip(display);
        wl_proxy *source = nullptr;
        for (const DataControl &protocol : dataControls) {
            const auto manager = globals.find(protocol.manager->name);
            if (!source && manager != globals.end()) {
                wl_proxy *bound = registry.bind(manager->second, *protocol.manager, 1);
                wl_proxy *seat = registry.bind(globals["wl_seat"], wl_seat_interface, 1);
                source = protocol.newSource(bound, *this);
                for (const auto &[format, value] : data) {
                    addFormat(source, format.c_str());
                }
                for (int i = 0; i < moreFormats; ++i) {
                    addFormat(source, ("x/" + std::to_string(i)).c_str());
                    // A few at a time: libwayland gives a compositor up that does not keep pace.
                    if (i % 100 == 0) {
                        wl_display_roundtrip(display);
                    }
                }
                setSelection(protocol.newDevice(bound, reinterpret_cast<wl_seat *>(seat), *this),
                             source);
            }
        }
        if (!source || wl_display_roundtrip(display) < 0) {
            std::cerr << "wayland-owner: no data-control\n";
            return 1;
        }
        std::cout << "owned" << std::endl;
        while (!replaced_ && wl_display_dispatch(display) >= 0) {
        }
        std::cout << (replaced_ ? "replaced" : "compositor gone") << std::endl;
        return replaced_ ? 0 : 1;
    }

  private:
    void send(wl_proxy *, const char *format, int fd) override {
        std::cout << "send " << format << std::endl;
        std::thread([this, name = std::string(format), fd] { answer(name, fd); }).detach();
    }
    void cancelled(wl_proxy *) override { replaced_ = true; }
    void newOffer(wl_proxy *) override {}
    void selection(wl_proxy *offer) override {
        if (offer) {
            destroyOffer(offer);
        }
    }
    void primarySelection(wl_proxy *offer) override { selection(offer); }
    void finished() override {}

    void answer(const std::string &format, int fd) const {
        const auto named =
            std::ranges::find(data, format, &std::pair<std::string, std::string>::first);
        const std::string value = named == data.end() ? std::string() : named->second;
        std::size_t left = end == End::repeat ? deliver : std::min(deliver, value.size());
        for (std::size_t from = 0; left > 0 && !value.empty();) {
            const auto count = write(fd, value.data() + from, std::min(value.size() - from, left));
            if (count <= 0) {
                close(fd);
                return;
            }
            from = (from + static_cast<std::size_t>(count)) % value.size();
            left -= static_cast<std::size_t>(count);
        }
        if (end == End::die) {
            _exit(1);
        }
        if (end == End::close) {
            close(fd);
        }
    }

    bool replaced_ = false;
};

std::string bytesOf(const std::string &value) {
    if (value.starts_with('@')) {
        std::ifstream file(value.substr(1), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    return value.starts_with('*') ? std::string(std::stoul(value.substr(1)), 'x') : value;
}

} // namespace

int main(int argc, char **argv) {
    signal(SIGPIPE, SIG_IGN);
    Owner owner;
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string &option = arguments[i];
        const auto number = [&] { return std::stoul(arguments.at(++i)); };
        if (option == "--hang") {
            owner.deliver = 0;
            owner.end = End::stall;
        } else if (option == "--refuse") {
            owner.deliver = 0;
        } else if (option == "--stall-after") {
            owner.deliver = number();
            owner.end = End::stall;
        } else if (option == "--die-after") {
            owner.deliver = number();
            owner.end = End::die;
        } else if (option == "--endless") {
            owner.end = End::repeat;
        } else if (option == "--more-formats") {
            owner.moreFormats = static_cast<int>(number());
        } else {
            const auto equals = option.rfind('=');
            owner.data.emplace_back(option.substr(0, equals), bytesOf(option.substr(equals + 1)));
        }
    }
    return owner.run();
}
