#include "tests/platform/wayland/FakeCompositor.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <utility>

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <wayland-server.h>
#include <wlr-data-control-unstable-v1-server.h>

namespace nerlo::platform::test {

namespace {

FakeCompositor &compositorOf(wl_resource *resource) {
    return *static_cast<FakeCompositor *>(wl_resource_get_user_data(resource));
}

// The type of the object that a request makes. The two names of the protocol differ in nothing
// else.
const wl_interface *made(const wl_interface *manager, int request) {
    return manager->methods[request].types[0];
}

void destroyResource(wl_client *, wl_resource *resource) {
    wl_resource_destroy(resource);
}

} // namespace

// The requests of the program.
struct Requests {
    static void createSource(wl_client *client, wl_resource *manager, std::uint32_t id) {
        auto &self = compositorOf(manager);
        wl_resource *source = wl_resource_create(client, made(self.managerInterface_, 0), 1, id);
        static const struct zwlr_data_control_source_v1_interface requests {
            .offer =
                [](wl_client *, wl_resource *of, const char *format) {
                    compositorOf(of).programFormats_.emplace_back(format);
                },
            .destroy = destroyResource
        };
        self.programFormats_.clear();
        wl_resource_set_implementation(source, &requests, &self, [](wl_resource *gone) {
            auto &compositor = compositorOf(gone);
            if (compositor.source_ == gone) {
                compositor.source_ = nullptr;
            }
        });
    }

    static void getDevice(wl_client *client, wl_resource *manager, std::uint32_t id,
                          wl_resource *) {
        auto &self = compositorOf(manager);
        self.device_ = wl_resource_create(client, made(self.managerInterface_, 1), 1, id);
        static const struct zwlr_data_control_device_v1_interface requests {
            .set_selection =
                [](wl_client *, wl_resource *device, wl_resource *source) {
                    auto &compositor = compositorOf(device);
                    compositor.setProgramSource(source);
                    if (std::exchange(compositor.overtake_, false)) {
                        compositor.replace({"text/plain"}, nullptr);
                    }
                },
            .destroy = destroyResource,
            .set_primary_selection = [](wl_client *, wl_resource *, wl_resource *) {}
        };
        wl_resource_set_implementation(self.device_, &requests, &self, [](wl_resource *gone) {
            auto &compositor = compositorOf(gone);
            if (compositor.device_ == gone) {
                compositor.device_ = nullptr;
            }
        });
        self.announce(self.formats_.empty() ? nullptr : &self.formats_);
    }

    static void bindManager(wl_client *client, void *data, std::uint32_t version,
                            std::uint32_t id) {
        auto *self = static_cast<FakeCompositor *>(data);
        wl_resource *manager =
            wl_resource_create(client, self->managerInterface_, static_cast<int>(version), id);
        static const struct zwlr_data_control_manager_v1_interface requests {
            .create_data_source = createSource, .get_data_device = getDevice,
            .destroy = destroyResource
        };
        wl_resource_set_implementation(manager, &requests, self, nullptr);
    }

    static void bindSeat(wl_client *client, void *, std::uint32_t version, std::uint32_t id) {
        wl_resource *seat =
            wl_resource_create(client, &wl_seat_interface, static_cast<int>(version), id);
        wl_resource_set_implementation(seat, nullptr, nullptr, nullptr);
    }

    static void receive(wl_client *, wl_resource *offer, const char *format, std::int32_t fd) {
        auto &self = compositorOf(offer);
        if (offer != self.offer_) {
            close(fd);
        } else if (self.source_) {
            zwlr_data_control_source_v1_send_send(self.source_, format, fd);
            close(fd);
        } else if (self.owner_) {
            self.owner_(format, fd);
        } else {
            close(fd);
        }
    }
};

FakeCompositor::FakeCompositor(const wl_interface *manager, int seats,
                               const std::function<void(wl_display *)> &more)
    : managerInterface_(manager) {
    std::array<char, 64> name{};
    std::strcpy(name.data(), "/tmp/nerlo-compositor.XXXXXX");
    folder_ = mkdtemp(name.data());
    path_ = folder_ + "/socket";
    server_ = wl_display_create();
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strcpy(address.sun_path, path_.c_str());
    const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (bind(listener, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0 ||
        listen(listener, 8) != 0) {
        std::abort();
    }
    wl_display_add_socket_fd(server_, listener);
    for (int i = 0; i < seats; ++i) {
        seats_.push_back(
            wl_global_create(server_, &wl_seat_interface, 1, nullptr, Requests::bindSeat));
    }
    if (manager) {
        wl_global_create(server_, manager, 1, this, Requests::bindManager);
    }
    if (more) {
        more(server_);
    }
    wake_ = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    thread_ = std::thread([this] { serve(); });
}

FakeCompositor::~FakeCompositor() {
    freeze();
    thread_.join();
    if (server_) {
        wl_display_destroy_clients(server_);
        wl_display_destroy(server_);
    }
    close(wake_);
    std::filesystem::remove_all(folder_);
}

void FakeCompositor::serve() {
    // The program may close a pipe that an owner writes to, and a socket that is served.
    sigset_t pipes;
    sigemptyset(&pipes);
    sigaddset(&pipes, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &pipes, nullptr);
    wl_event_loop *loop = wl_display_get_event_loop(server_);
    pollfd waits[2] = {{wake_, POLLIN, 0}, {wl_event_loop_get_fd(loop), POLLIN, 0}};
    for (;;) {
        poll(waits, 2, -1);
        if (waits[0].revents) {
            std::uint64_t count = 0;
            [[maybe_unused]] const auto taken = read(wake_, &count, sizeof count);
            const std::lock_guard lock(mutex_);
            if (task_) {
                (*task_)();
                task_ = nullptr;
                changed_.notify_all();
            }
            if (ending_) {
                return;
            }
        }
        if (waits[1].revents) {
            wl_event_loop_dispatch(loop, 0);
        }
        wl_display_flush_clients(server_);
    }
}

void FakeCompositor::run(const std::function<void()> &task) {
    std::unique_lock lock(mutex_);
    if (ending_) {
        return;
    }
    task_ = &task;
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = write(wake_, &one, sizeof one);
    changed_.wait(lock, [this] { return !task_; });
}

// Offers `formats` to the program as the new content; null: nothing.
void FakeCompositor::announce(const std::vector<std::string> *formats) {
    if (!device_) {
        return;
    }
    wl_resource *offer = nullptr;
    if (formats) {
        offer = wl_resource_create(wl_resource_get_client(device_),
                                   made(managerInterface_, 1)->events[0].types[0], 1, 0);
        static const struct zwlr_data_control_offer_v1_interface requests {
            .receive = Requests::receive, .destroy = destroyResource
        };
        wl_resource_set_implementation(offer, &requests, this, nullptr);
        zwlr_data_control_device_v1_send_data_offer(device_, offer);
        for (const auto &format : *formats) {
            zwlr_data_control_offer_v1_send_offer(offer, format.c_str());
        }
    }
    zwlr_data_control_device_v1_send_selection(device_, offer);
    offer_ = offer;
}

void FakeCompositor::setProgramSource(wl_resource *source) {
    if (wl_resource *old = std::exchange(source_, nullptr)) {
        zwlr_data_control_source_v1_send_cancelled(old);
    }
    source_ = source;
    owner_ = nullptr;
    formats_ = source ? programFormats_ : std::vector<std::string>();
    if (!quiet_) {
        announce(source ? &formats_ : nullptr);
    }
}

void FakeCompositor::replace(std::vector<std::string> formats, Owner owner) {
    if (wl_resource *old = std::exchange(source_, nullptr)) {
        zwlr_data_control_source_v1_send_cancelled(old);
    }
    owner_ = std::move(owner);
    formats_ = std::move(formats);
    announce(formats_.empty() ? nullptr : &formats_);
}

void FakeCompositor::copy(std::vector<std::string> formats, Owner owner) {
    run([&] { replace(std::move(formats), std::move(owner)); });
}

void FakeCompositor::copyText(const std::string &text) {
    copy({"text/plain;charset=utf-8"}, [text](const std::string &, int fd) {
        // Short enough for the pipe.
        [[maybe_unused]] const auto written = write(fd, text.data(), text.size());
        close(fd);
    });
}

void FakeCompositor::empty() {
    copy({}, nullptr);
}

void FakeCompositor::overtakeNextWrite() {
    run([this] { overtake_ = true; });
}

void FakeCompositor::keepOwnWritesQuiet() {
    run([&] { quiet_ = true; });
}

std::vector<std::string> FakeCompositor::programFormats() {
    std::vector<std::string> formats;
    run([&] { formats = source_ ? formats_ : formats; });
    return formats;
}

void FakeCompositor::requestFrom(const std::string &format, int fd) {
    run([&] {
        if (source_) {
            zwlr_data_control_source_v1_send_send(source_, format.c_str(), fd);
        }
    });
}

std::optional<std::string> FakeCompositor::paste(const std::string &format) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        return std::nullopt;
    }
    requestFrom(format, ends[1]);
    close(ends[1]);
    std::string text;
    std::array<char, 65536> buffer;
    pollfd wait{ends[0], POLLIN, 0};
    ssize_t count = 1;
    while (count > 0 && poll(&wait, 1, 10'000) == 1) {
        count = read(ends[0], buffer.data(), buffer.size());
        text.append(buffer.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
    close(ends[0]);
    return count == 0 ? std::optional(text) : std::nullopt;
}

void FakeCompositor::addSeat() {
    run([this] {
        seats_.push_back(
            wl_global_create(server_, &wl_seat_interface, 1, nullptr, Requests::bindSeat));
    });
}

void FakeCompositor::removeSeat() {
    run([this] {
        if (!seats_.empty()) {
            // Withdrawn, not destroyed: a bind may be on its way, and is no fault of the program's.
            wl_global_remove(seats_.back());
            seats_.pop_back();
        }
        if (seats_.empty()) {
            device_ = nullptr; // inert
        }
    });
}

void FakeCompositor::finishDevice() {
    run([this] {
        if (device_) {
            zwlr_data_control_device_v1_send_finished(std::exchange(device_, nullptr));
        }
    });
}

void FakeCompositor::throwOut() {
    run([this] { wl_display_destroy_clients(server_); });
}

void FakeCompositor::freeze() {
    run([this] { ending_ = true; });
}

void FakeCompositor::die() {
    run([this] {
        wl_display_destroy_clients(server_);
        wl_display_destroy(std::exchange(server_, nullptr));
        ending_ = true;
    });
}

} // namespace nerlo::platform::test
