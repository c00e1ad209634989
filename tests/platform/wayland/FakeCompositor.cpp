#include "tests/platform/wayland/FakeCompositor.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdlib>
#include <utility>

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>
#include <wayland-server.h>
#include <wlr-data-control-unstable-v1-server.h>

namespace nerlo::test {

FakeCompositor::FakeCompositor(const wl_interface *manager, int seats, More more)
    : manager_(manager)
    , more_(std::move(more)) {
    server_ = wl_display_create();
    if (wl_display_add_socket(server_, display().c_str()) != 0) {
        std::abort();
    }
    wl_display_init_shm(server_);
    for (int i = 0; i < seats; ++i) {
        seats_.push_back(offer(&wl_seat_interface));
    }
    if (manager) {
        offer(manager);
    }
    for (const wl_interface *global : more_.globals) {
        offer(global);
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
}

void FakeCompositor::serve() {
    // SIGPIPE would end the test: the program may close a pipe while an owner writes to it, or its
    // socket.
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

wl_global *FakeCompositor::offer(const wl_interface *interface) {
    globals_.push_back({this, interface});
    // Version 3 is the first with a buffer scale.
    const int version = interface == manager_                   ? manager_->version
                        : interface == &wl_compositor_interface ? 3
                                                                : 1;
    return wl_global_create(
        server_, interface, version, &globals_.back(),
        [](wl_client *client, void *data, std::uint32_t bound, std::uint32_t id) {
            const auto &global = *static_cast<const Global *>(data);
            auto &self = *global.compositor;
            wl_resource *made = self.make(client, global.interface, static_cast<int>(bound), id);
            self.answer(global.interface->name + std::string(".bind"), made, nullptr, made);
        });
}

wl_resource *FakeCompositor::make(wl_client *client, const wl_interface *interface, int version,
                                  std::uint32_t id) {
    wl_resource *made = wl_resource_create(client, interface, version, id);
    wl_resource_set_dispatcher(made, dispatch, nullptr, this, [](wl_resource *gone) {
        auto &self = *static_cast<FakeCompositor *>(wl_resource_get_user_data(gone));
        for (wl_resource **held : {&self.device_, &self.source_}) {
            *held = *held == gone ? nullptr : *held;
        }
    });
    return made;
}

// Handles any request of any object: makes the object that the request makes, and destroys what it
// destroys.
int FakeCompositor::dispatch(const void *, void *target, std::uint32_t, const wl_message *message,
                             wl_argument *arguments) {
    auto *object = static_cast<wl_resource *>(target);
    auto &self = *static_cast<FakeCompositor *>(wl_resource_get_user_data(object));
    wl_resource *made = nullptr;
    int index = 0;
    for (const char *type = message->signature; *type; ++type) {
        if (*type == 'n') {
            made = self.make(wl_resource_get_client(object), message->types[index],
                             wl_resource_get_version(object), arguments[index].n);
        }
        index += std::isalpha(*type) ? 1 : 0; // the others are the version and "may be null"
    }
    const std::string request = message->name;
    self.answer(wl_resource_get_class(object) + ("." + request), object, arguments, made);
    if (request == "destroy") {
        wl_resource_destroy(object);
    }
    return 0;
}

// The two data-control protocols differ in their names only.
void FakeCompositor::answer(const std::string &request, wl_resource *object,
                            const wl_argument *arguments, wl_resource *made) {
    const auto is = [&](const char *end) { return request.ends_with(end); };
    if (is("control_manager_v1.bind")) {
        version_ = wl_resource_get_version(made);
    } else if (is("_manager_v1.create_data_source")) {
        programFormats_.clear();
    } else if (is("_manager_v1.get_data_device")) {
        device_ = made;
        announce();
    } else if (is("_control_source_v1.offer")) {
        programFormats_.emplace_back(arguments[0].s);
    } else if (is("_control_device_v1.set_selection")) {
        auto *source = reinterpret_cast<wl_resource *>(arguments[0].o);
        replace(source ? programFormats_ : std::vector<std::string>(), nullptr, source);
        if (std::exchange(overtake_, false)) {
            replace({"text/plain"}, nullptr);
        }
    } else if (is("_control_offer_v1.receive")) {
        receive(object, arguments[0].s, arguments[1].h);
    } else if (more_.answer) {
        more_.answer(request, object, made);
    }
}

void FakeCompositor::receive(wl_resource *offer, const char *format, int fd) {
    if (offer == offer_ && owner_) {
        owner_(format, fd);
        return;
    }
    if (offer == offer_ && source_) {
        zwlr_data_control_source_v1_send_send(source_, format, fd);
    }
    close(fd);
}

// Offers the content to the program.
void FakeCompositor::announce() {
    if (!device_) {
        return;
    }
    wl_resource *offer = nullptr;
    if (!formats_.empty()) {
        const wl_interface *device = manager_->methods[1].types[0];
        offer = make(wl_resource_get_client(device_), device->events[0].types[0], 1, 0);
        zwlr_data_control_device_v1_send_data_offer(device_, offer);
        for (const auto &format : formats_) {
            zwlr_data_control_offer_v1_send_offer(offer, format.c_str());
        }
    }
    zwlr_data_control_device_v1_send_selection(device_, offer);
    offer_ = offer;
}

// Replaces the content, by another program's copy or by the `source` of the program under test.
void FakeCompositor::replace(std::vector<std::string> formats, Owner owner, wl_resource *source) {
    if (wl_resource *old = std::exchange(source_, source)) {
        zwlr_data_control_source_v1_send_cancelled(old);
    }
    owner_ = std::move(owner);
    formats_ = std::move(formats);
    if (!source || !quiet_) {
        announce();
    }
}

void FakeCompositor::copy(std::vector<std::string> formats, Owner owner) {
    run([&] { replace(std::move(formats), std::move(owner)); });
}

void FakeCompositor::copyText(const std::string &text) {
    copy({"text/plain;charset=utf-8"}, [text](const std::string &, int fd) {
        // The text fits into the pipe, so write() does not block.
        [[maybe_unused]] const auto written = write(fd, text.data(), text.size());
        close(fd);
    });
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
    run([this] { seats_.push_back(offer(&wl_seat_interface)); });
}

void FakeCompositor::removeSeat() {
    run([this] {
        if (!seats_.empty()) {
            // The global is withdrawn but not destroyed: the program may just have asked to bind
            // it, which is no fault of the program's.
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

} // namespace nerlo::test
