// A compositor with one client, our program, and no windows: it has seats and data-control, and
// plays all other programs as the test tells it. It runs on a thread of its own; the functions here
// are for the test's thread and return when the compositor has done what they say.
#pragma once

#include "tests/TemporaryFolder.h"

#include <atomic>
#include <condition_variable>
#include <functional>
#include <list>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

struct wl_client;
struct wl_display;
struct wl_global;
struct wl_interface;
struct wl_message;
struct wl_resource;
union wl_argument;

namespace nerlo::test {

class FakeCompositor {
  public:
    // Plays the owner of the content, on the compositor's thread. It must close `fd` at some time.
    using Owner = std::function<void(const std::string &format, int fd)>;

    // What else it offers. Every object that the program asks for is made; `answer` is told, on the
    // compositor's thread, of each request ("wl_surface.commit", and "wl_seat.bind" for a bind)
    // with its object and with the one that it made.
    struct More {
        std::vector<const wl_interface *> globals;
        std::function<void(const std::string &request, wl_resource *object, wl_resource *made)>
            answer;
    };

    // The managers' protocol, null for none.
    explicit FakeCompositor(const wl_interface *manager, int seats = 1, More more = {});
    ~FakeCompositor();

    // The version of data-control that the program has bound.
    int version() const { return version_; }
    // The path of the socket.
    std::string display() const { return folder_ / "socket"; }

    // Runs it on the compositor's thread.
    void run(const std::function<void()> &task);

    void copy(std::vector<std::string> formats, Owner owner);
    // A copy of one text by an owner that behaves.
    void copyText(const std::string &text);
    void empty() { copy({}, nullptr); }
    // Another program copies right after the program's next write, before that is confirmed.
    void overtakeNextWrite();
    // From now on the program is not told of its own writes.
    void keepOwnWritesQuiet();

    // What the program offers; empty if the content is not its own.
    std::vector<std::string> programFormats();
    // Asks the program to write one of its formats to `fd`, which stays the caller's.
    void requestFrom(const std::string &format, int fd);
    // The whole answer to such a request; nothing if it takes longer than ten seconds.
    std::optional<std::string> paste(const std::string &format);

    void addSeat();
    void removeSeat();
    // Withdraws the clipboard of the seat from the program.
    void finishDevice();

    // Ends the program's connection, and takes the next one.
    void throwOut();
    // The compositor stops answering, until destruction.
    void freeze();
    void die();

  private:
    struct Global {
        FakeCompositor *compositor;
        const wl_interface *interface;
    };

    void serve();
    wl_global *offer(const wl_interface *interface);
    wl_resource *make(wl_client *client, const wl_interface *interface, int version,
                      std::uint32_t id);
    static int dispatch(const void *, void *target, std::uint32_t, const wl_message *message,
                        wl_argument *arguments);
    void answer(const std::string &request, wl_resource *object, const wl_argument *arguments,
                wl_resource *made);
    void receive(wl_resource *offer, const char *format, int fd);
    void announce();
    void replace(std::vector<std::string> formats, Owner owner, wl_resource *source = nullptr);

    const wl_interface *manager_;
    More more_;
    const TemporaryFolder folder_;
    wl_display *server_ = nullptr;
    std::list<Global> globals_;
    std::vector<wl_global *> seats_;
    wl_resource *device_ = nullptr;
    wl_resource *offer_ = nullptr;  // the last one; those before are dead
    wl_resource *source_ = nullptr; // the program's, while it is the content
    std::vector<std::string> formats_;
    std::vector<std::string> programFormats_;
    Owner owner_;
    std::atomic<int> version_ = 0;
    bool overtake_ = false;
    bool quiet_ = false;

    int wake_ = -1;
    const std::function<void()> *task_ = nullptr;
    bool ending_ = false;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::thread thread_;
};

} // namespace nerlo::test
