// A thread that serves one connection to a compositor, and the transfers that belong to it.
//
// The thread sleeps without a time limit until the compositor, a transfer or a posted task has
// something; only a running transfer gives it a deadline. A compositor ends the connection of a
// client that does not keep pace with it, which one program with an absurd number of formats can
// bring about; so a lost connection is taken up again, at growing intervals, as long as there is a
// compositor.
#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/wayland/Transfer.h"

struct wl_display;

namespace nerlo::platform::wayland {

class EventLoop {
  public:
    using Task = std::function<void()>;

    // What becomes of the connection; all on the loop's thread.
    struct Watcher {
        // It ended: the objects on it are dead and have to be destroyed.
        Task lost;
        // There is a new one, to be set up now; roundTrip() may be used. False if that failed.
        std::function<bool()> restored;
        // There is no compositor any more. Called once, after `lost`; nothing follows.
        Task gone;
    };

    // Null when there is no compositor at `displayName` (a name below XDG_RUNTIME_DIR or a path).
    static std::unique_ptr<EventLoop> connect(const std::string &displayName);
    // The display that the environment names; empty for none. A compositor under the default name
    // counts only in a Wayland session: in another it is some nested one, and not the desktop.
    static std::string defaultDisplay();

    // Disconnects. stop() must have been called if start() was.
    ~EventLoop();

    // Before start(), or in Watcher::restored: serves the connection on the calling thread until
    // the compositor has handled every request made so far. False if it has not after `limit` or is
    // gone.
    bool roundTrip(Clock::duration limit);
    // Without `watcher.restored` a lost connection stays lost. Called once, before posts.
    void start(Watcher watcher);
    // Serves on until `atLeast`, then gives outgoing transfers until `atMost` to finish, and joins
    // the thread. The connection still exists after it, for the caller to destroy its objects.
    void stop(Clock::time_point atLeast, Clock::time_point atMost);

    // Any thread, and also after the connection was lost; tasks run in order on the thread.
    void post(Task task);

    // The rest is for the thread alone.

    wl_display *display() const { return display_; }
    bool connected() const { return connected_; }
    void add(std::unique_ptr<Transfer> transfer);
    // Abandons the outgoing transfers that have been still for longest, until `most` are left.
    void limitOutgoing(std::size_t most);
    // Abandons all incoming transfers.
    void abandonIncoming();
    // Runs `task` once: with true when the compositor has handled every request made so far, with
    // false when it has not done so by `limit` or is gone. Never inside this call.
    void afterRoundTrip(Clock::duration limit, std::function<void(bool answered)> task);

  private:
    EventLoop(std::string displayName, wl_display *display);

    struct RoundTrip;

    void run();
    // Runs posted tasks; false when the thread is to end.
    bool runTasks();
    // One sleep, and then everything that is ready.
    void turn();
    void prepareRead();
    void finishRead(short results);
    void advanceTransfers(const std::vector<short> &results);
    void finish(RoundTrip &trip, bool answered);
    void expireRoundTrips(Clock::time_point until);
    int pollTimeout() const;
    void lose();
    void reconnect();

    const std::string displayName_;
    wl_display *display_;
    FileDescriptor wake_;
    bool connected_ = true;
    bool flushBlocked_ = false;
    std::vector<std::unique_ptr<Transfer>> transfers_;
    std::vector<std::unique_ptr<RoundTrip>> roundTrips_;
    Watcher watcher_;
    Clock::time_point connectedSince_ = Clock::now();
    Clock::duration retryDelay_{};
    Clock::time_point retryAt_ = Clock::time_point::max();
    // Set once the thread was asked to end; nothing else waits for a time.
    Clock::time_point endAtLeast_ = Clock::time_point::max();
    Clock::time_point endAtMost_ = Clock::time_point::max();

    std::mutex mutex_;
    std::vector<Task> tasks_;

    std::thread thread_;
};

} // namespace nerlo::platform::wayland
