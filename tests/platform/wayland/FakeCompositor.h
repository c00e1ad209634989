// A compositor with one client, our program, and no windows: it has seats and data-control, and
// plays all other programs as the test tells it. It runs on a thread of its own; the functions here
// are for the test's thread and return when the compositor has done what they say.
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

struct wl_display;
struct wl_global;
struct wl_interface;
struct wl_resource;

namespace nerlo::platform::test {

class FakeCompositor {
  public:
    // Plays the owner of the content, on the compositor's thread: has to close `fd`, sooner or
    // later.
    using Owner = std::function<void(const std::string &format, int fd)>;

    // The managers' protocol, null for none. `more` may add to what it offers.
    explicit FakeCompositor(const wl_interface *manager, int seats = 1,
                            const std::function<void(wl_display *)> &more = {});
    ~FakeCompositor();

    // The path of the socket.
    const std::string &display() const { return path_; }

    void copy(std::vector<std::string> formats, Owner owner);
    // A copy of one text by an owner that behaves.
    void copyText(const std::string &text);
    void empty();
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
    void run(const std::function<void()> &task);
    void announce(const std::vector<std::string> *formats);
    void serve();
    void setProgramSource(wl_resource *source);
    void replace(std::vector<std::string> formats, Owner owner);

    friend struct Requests;

    const wl_interface *managerInterface_;
    std::string folder_;
    std::string path_;
    wl_display *server_ = nullptr;
    std::vector<wl_global *> seats_;
    wl_resource *device_ = nullptr;
    wl_resource *offer_ = nullptr;  // the last one; those before are dead
    wl_resource *source_ = nullptr; // the program's, while it is the content
    std::vector<std::string> formats_;
    std::vector<std::string> programFormats_;
    Owner owner_;
    bool overtake_ = false;
    bool quiet_ = false;

    int wake_ = -1;
    const std::function<void()> *task_ = nullptr;
    bool ending_ = false;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::thread thread_;
};

} // namespace nerlo::platform::test
