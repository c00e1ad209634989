// A clipboard owner in a Wayland session; OwnerOptions.h tells what it can do.
#include "OwnerOptions.h"
#include "platform/wayland/DataControl.h"
#include "platform/wayland/EventLoop.h"
#include "platform/wayland/Registry.h"

#include <algorithm>
#include <csignal>
#include <iostream>
#include <map>
#include <string>
#include <thread>
#include <utility>

#include <unistd.h>
#include <wayland-client.h>

namespace {

using namespace nerlo::platform::wayland;
using nerlo::test::OwnerOptions;

class Owner final : private SourceEvents, private DeviceEvents {
  public:
    explicit Owner(OwnerOptions options)
        : options_(std::move(options)) {}

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
                for (const auto &[format, value] : options_.data) {
                    addFormat(source, format.c_str());
                }
                for (int i = 0; i < options_.moreFormats; ++i) {
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
        if (options_.mayAnswer(format)) {
            std::thread([this, name = std::string(format), fd] { answer(name, fd); }).detach();
        }
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
        const auto found = options_.data.find(format);
        if (found == options_.data.end() || options_.has("--refuse")) {
            close(fd);
            return;
        }
        const std::string &value = found->second;
        const bool endless = options_.has("--endless");
        std::size_t left = endless ? options_.deliver : std::min(options_.deliver, value.size());
        for (std::size_t from = 0; left > 0 && !value.empty();) {
            const auto count = write(fd, value.data() + from, std::min(value.size() - from, left));
            if (count <= 0) {
                break;
            }
            from = (from + static_cast<std::size_t>(count)) % value.size();
            left -= static_cast<std::size_t>(count);
        }
        if (options_.dies) {
            _exit(1);
        }
        if (options_.deliver >= value.size()) {
            close(fd);
        }
    }

    const OwnerOptions options_;
    bool replaced_ = false;
};

} // namespace

int main(int argc, char **argv) {
    signal(SIGPIPE, SIG_IGN);
    return Owner(OwnerOptions(argc, argv)).run();
}
